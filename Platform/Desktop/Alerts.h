// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QStringList>

namespace Platform {

/// Modal messages with fixed texts. In the program a dialog; in a test a scripted answer; on the command line one line
/// on standard error and the default answer. Main thread only.
class Alerts {
public:
    virtual ~Alerts() = default;
    /// Shows a message and waits. The first of @p buttons is the default one. Escape takes cancelLabel(), or the last
    /// one where there is no such button.
    /// @return the index of the chosen button.
    virtual int runModal(const QString& title, const QString& text, const QStringList& buttons) = 0;

    /// Labels of buttons in the user's language.
    [[nodiscard]] static QString okLabel() { return QCoreApplication::translate("Alerts", "OK"); }
    [[nodiscard]] static QString cancelLabel() { return QCoreApplication::translate("Alerts", "Cancel"); }
};

} // namespace Platform

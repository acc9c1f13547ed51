// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

namespace Platform {

/// The program by its name on the session bus: the desktop starts it there, raises it, hands files over and sends the
/// actions of its desktop file. Main thread. The signals come from the event loop, never inside a call of the bus, so
/// that a receiver may open a dialog.
class ApplicationService : public QObject {
    Q_OBJECT
public:
    /// Takes the name. What is asked is kept until begin(): the desktop waits only some seconds for the name.
    [[nodiscard]] static std::unique_ptr<ApplicationService> create(const QString& bundleIdentifier);
    /// Sends the signals of what was asked so far and of what follows.
    virtual void begin() = 0;

Q_SIGNALS:
    // @p token see Activation::setToken(); may be empty.
    void activated(const QByteArray& token);
    void openRequested(const QStringList& paths, const QByteArray& token);
    void actionRequested(const QString& action, const QByteArray& token);
};

} // namespace Platform

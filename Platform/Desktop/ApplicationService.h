// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

namespace Platform {

/// Owns the program's name on the session bus (org.freedesktop.Application): the desktop starts and raises the program,
/// opens files and runs the actions of the desktop file through it. Main thread. The signals are emitted from the event
/// loop, never inside a D-Bus call, so a receiver may open a dialog.
class ApplicationService : public QObject {
    Q_OBJECT
public:
    /// Registers the name. Requests are queued until begin(), because D-Bus activation waits only 25 s for the name.
    [[nodiscard]] static std::unique_ptr<ApplicationService> create(const QString& bundleIdentifier);
    /// Emits the signals for the queued requests and for all later ones.
    virtual void begin() = 0;

Q_SIGNALS:
    // @p token see Activation::setToken(); may be empty.
    void activated(const QByteArray& token);
    void openRequested(const QStringList& paths, const QByteArray& token);
    void actionRequested(const QString& action, const QByteArray& token);
};

} // namespace Platform

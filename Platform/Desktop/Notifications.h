// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>

#include <memory>

namespace Platform {

/// Shows a desktop notification. There is one at a time: a new one replaces the last one. Main thread. All calls are
/// asynchronous. Without a notification server nothing is shown.
class Notifications : public QObject {
    Q_OBJECT
public:
    struct Action {
        QString key;
        QString label;
    };
    struct Notification {
        QString title; ///< plain text; markup in title and text is never interpreted
        QString text;
        QString defaultAction;  ///< key for a click on the notification itself; empty for none
        QList<Action> actions;  ///< shown as buttons
        bool isProblem = false; ///< asks the server to keep it until the user closes it
    };

    virtual void show(const Notification& notification) = 0;
    /// Closes the notification if it is still open.
    virtual void withdraw() = 0;

    /// Uses the notification server of the session bus.
    /// @param program name of the program as the user sees it
    /// @param desktopEntry name of the program's desktop file without its ending; also the icon name
    [[nodiscard]] static std::unique_ptr<Notifications> create(const QString& program, const QString& desktopEntry);

Q_SIGNALS:
    /// The user chose an action. @p token see Activation::setToken(); empty when the desktop gave none.
    void actionInvoked(const QString& key, const QByteArray& token);
};

} // namespace Platform

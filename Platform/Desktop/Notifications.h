// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>

#include <memory>

namespace Platform {

/// A notification of the desktop: there is one at a time, and a new one takes the place of the one before. Main thread;
/// nothing waits for the desktop. Where no server answers nothing is shown.
class Notifications : public QObject {
    Q_OBJECT
public:
    struct Action {
        QString key;
        QString label;
    };
    struct Notification {
        QString title; ///< plain text, like the other texts: no markup in them is interpreted
        QString text;
        QString defaultAction;  ///< key of a click on the notification itself; empty: nothing
        QList<Action> actions;  ///< its buttons
        bool isProblem = false; ///< stays until the user has seen it
    };

    virtual void show(const Notification& notification) = 0;
    /// Takes the notification away, if it still stands.
    virtual void withdraw() = 0;

    /// On the session bus.
    /// @param program name for people
    /// @param desktopEntry name of the program's desktop file without its ending, also of its icon
    [[nodiscard]] static std::unique_ptr<Notifications> create(const QString& program, const QString& desktopEntry);

Q_SIGNALS:
    /// The user chose an action. @p token see Activation::setToken(); empty when the desktop gave none.
    void actionInvoked(const QString& key, const QByteArray& token);
};

} // namespace Platform

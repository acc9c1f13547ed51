// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

#include <memory>

/// A separate desktop for tests with real keys and real windows: an X server without a screen, a session bus and a
/// window manager, each in a private folder. Each is ended by its process id when the object is destroyed, or when the
/// test dies for any reason. The constructor sets DISPLAY, QT_QPA_PLATFORM and DBUS_SESSION_BUS_ADDRESS, so create it
/// before the QApplication.
class XvfbSession {
public:
    XvfbSession();
    ~XvfbSession();
    XvfbSession(const XvfbSession&) = delete;
    XvfbSession& operator=(const XvfbSession&) = delete;

    /// The running session; null in tests without a display.
    static XvfbSession* current();

    /// Why there is no session; empty on success.
    [[nodiscard]] QString problem() const;
    [[nodiscard]] QString display() const; ///< for example ":7"
    /// A system tray; returns when it owns the tray selection.
    [[nodiscard]] bool startTray();
    /// Ends the tray; returns when the selection is free again.
    void stopTray();
    /// The accessibility bus and its registry, as on a desktop with a screen reader; returns when Qt serves it. It
    /// stays until the session ends.
    [[nodiscard]] bool startAccessibility();
    /// The windows that a root window property lists ("_NET_ACTIVE_WINDOW", "_NET_CLIENT_LIST_STACKING" with the lowest
    /// first).
    [[nodiscard]] QList<quint32> windowsOfRoot(const QByteArray& property) const;
    /// Runs xdotool with @p arguments and waits for it.
    bool xdotool(const QStringList& arguments) const;
    /// Its output, trimmed.
    [[nodiscard]] QString xdotoolOutput(const QStringList& arguments) const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

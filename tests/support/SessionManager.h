// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QLocalServer>
#include <QMap>

class QLocalSocket;

/// A desktop's session manager as its programs see it: it implements the X session management protocol (XSMP over ICE,
/// version 1.0 of both), so that a test can log out. Runs in the test's event loop.
class SessionManager {
public:
    /// Listens on a socket with this path, and sets SESSION_MANAGER for all programs that are started later.
    explicit SessionManager(const QString& socket);
    ~SessionManager();
    SessionManager(const SessionManager&) = delete;
    SessionManager& operator=(const SessionManager&) = delete;

    /// The number of programs that are registered and have answered the first request for their state.
    [[nodiscard]] int settledPrograms() const;
    /// Simulates a logout: asks every program to save its data.
    void askToSaveForTheEnd();
    /// Whether every program has saved since then, and reported success.
    [[nodiscard]] bool allSaved() const;
    /// Simulates a cancelled logout.
    void cancelTheEnd();
    /// The second half of a logout: asks every program to end.
    void tellToDie();

private:
    struct Program {
        bool registered = false;
        bool settled = false;
        bool saving = false;
        bool saved = false;
        QByteArray unread;
    };
    void greet(QLocalSocket* socket);
    void read(QLocalSocket* socket);
    void answer(QLocalSocket* socket, Program& program, const QByteArray& message);
    void askToSave(QLocalSocket* socket, Program& program, bool everything, bool end);
    void tellAll(unsigned char message);

    QMap<QLocalSocket*, Program> programs_;
    QByteArray before_;
    QLocalServer server_; // destroyed first: its sockets signal their end
};

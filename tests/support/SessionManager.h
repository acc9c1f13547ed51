// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QLocalServer>
#include <QMap>

class QLocalSocket;

/// A desktop's session manager as its programs see it: it speaks the X session management protocol (XSMP over ICE,
/// version 1.0 of both), so that a test can log out. Runs in the event loop of the test.
class SessionManager {
public:
    /// Listens on a socket with this path, and sets SESSION_MANAGER for the programs that are started from now on.
    explicit SessionManager(const QString& socket);
    ~SessionManager();
    SessionManager(const SessionManager&) = delete;
    SessionManager& operator=(const SessionManager&) = delete;

    /// Programs that are registered and have answered the question for their state that follows a registration.
    [[nodiscard]] int settledPrograms() const;
    /// The user logs out: every program is to save what it has.
    void askToSaveForTheEnd();
    /// Whether every program has saved since then, and says that it could.
    [[nodiscard]] bool allSaved() const;
    /// The user thinks better of it.
    void cancelTheEnd();
    /// The second half of a logout: every program is to end.
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
    QLocalServer server_; // destroyed first: its sockets tell of their end
};

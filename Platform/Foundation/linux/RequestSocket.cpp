// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/linux/RequestSocket.h"

#include "Platform/Foundation/Folders.h"
#include "Platform/Foundation/RunningProgram.h"
#include "Platform/Foundation/linux/Descriptor.h"

#include <QDeadlineTimer>
#include <QFile>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <thread>

namespace Platform {
namespace {

/// Waits until the socket is ready for @p events. False at the deadline.
bool waitFor(int socket, short events, const QDeadlineTimer& deadline) {
    for (;;) {
        pollfd watch{socket, events, 0};
        const int ready = poll(&watch, 1, int(deadline.remainingTime()));
        if (ready >= 0 || errno != EINTR)
            return ready > 0;
    }
}

bool connectTo(int socket, const QByteArray& path, const QDeadlineTimer& deadline) {
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    if (path.size() >= qsizetype(sizeof address.sun_path))
        return false;
    std::memcpy(address.sun_path, path.constData(), std::size_t(path.size()));
    while (connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
        // EAGAIN: too many programs wait to be accepted. Such a connection cannot be waited for.
        if ((errno != EAGAIN && errno != EINTR) || deadline.hasExpired())
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return true;
}

bool sendAll(int socket, QByteArrayView bytes, const QDeadlineTimer& deadline) {
    while (!bytes.isEmpty()) {
        const auto sent = send(socket, bytes.data(), std::size_t(bytes.size()), MSG_NOSIGNAL);
        if (sent >= 0)
            bytes = bytes.sliced(sent);
        else if (errno != EINTR && (errno != EAGAIN || !waitFor(socket, POLLOUT, deadline)))
            return false;
    }
    return true;
}

/// Reads up to the end of the line. False at the deadline, or when the program closes the connection before.
bool receiveLine(int socket, QByteArray& line, const QDeadlineTimer& deadline) {
    line.clear();
    char part[4096];
    for (;;) {
        const auto got = recv(socket, part, sizeof part, 0);
        if (got == 0)
            return false;
        if (got < 0) {
            if (errno != EINTR && (errno != EAGAIN || !waitFor(socket, POLLIN, deadline)))
                return false;
            continue;
        }
        const auto* const end = std::find(part, part + got, '\n');
        line.append(part, end - part);
        if (end != part + got)
            return true;
    }
}

} // namespace

QString requestSocket(const QString& bundleIdentifier) {
    return Folders::runtime() + u'/' + bundleIdentifier + QStringLiteral(".socket");
}

bool RunningProgram::askOther(const QString& bundleIdentifier, const QByteArray& request, QByteArray& answer,
                              int timeoutMs) {
    const QDeadlineTimer deadline(timeoutMs);
    const Descriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    QByteArray line = request;
    line.replace('\n', ' ').append('\n');
    QByteArray received;
    if (!socket || !connectTo(socket.get(), QFile::encodeName(requestSocket(bundleIdentifier)), deadline) ||
        !sendAll(socket.get(), line, deadline) || !receiveLine(socket.get(), received, deadline))
        return false;
    answer = received.trimmed();
    return true;
}

} // namespace Platform

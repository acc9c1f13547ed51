// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/SessionManager.h"

#include <QLocalSocket>
#include <QSysInfo>

#include <gtest/gtest.h>

#include <cstring>

namespace {

// The first byte of a message selects the protocol: 0 is ICE itself, 1 is the number chosen here for the session
// protocol. The second byte is the kind.
constexpr unsigned char ice = 0, session = 1;
enum IceMessage : unsigned char {
    ByteOrder = 1,
    ConnectionSetup = 2,
    ConnectionReply = 6,
    ProtocolSetup = 7,
    ProtocolReply = 8
};
enum SessionMessage : unsigned char {
    RegisterClient = 1,
    RegisterClientReply = 2,
    SaveYourself = 3,
    SaveYourselfDone = 8,
    Die = 9,
    ShutdownCancelled = 10,
    SaveComplete = 18
};
constexpr qsizetype header = 8; ///< the unit of all further lengths

template <typename Number>
QByteArray bytes(Number number) {
    return {reinterpret_cast<const char*>(&number), sizeof number};
}

QByteArray padded(QByteArray text, qsizetype block) {
    text.append((block - text.size() % block) % block, '\0');
    return text;
}

QByteArray shortText(const QByteArray& text) {
    return padded(bytes(static_cast<quint16>(text.size())) + text, 4);
}

QByteArray message(unsigned char protocol, unsigned char kind, const QByteArray& body = {}, unsigned char first = 0,
                   unsigned char second = 0) {
    const QByteArray whole = padded(body, header);
    QByteArray all;
    for (const unsigned char each : {protocol, kind, first, second})
        all.append(static_cast<char>(each));
    return all + bytes(static_cast<quint32>(whole.size() / header)) + whole;
}

} // namespace

SessionManager::SessionManager(const QString& socket) : before_(qgetenv("SESSION_MANAGER")) {
    QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this] {
        while (QLocalSocket* program = server_.nextPendingConnection())
            greet(program);
    });
    EXPECT_TRUE(server_.listen(socket)) << qPrintable(server_.errorString());
    qputenv("SESSION_MANAGER", "local/" + QSysInfo::machineHostName().toLocal8Bit() + ":" + socket.toLocal8Bit());
}

SessionManager::~SessionManager() {
    if (before_.isEmpty())
        qunsetenv("SESSION_MANAGER");
    else
        qputenv("SESSION_MANAGER", before_);
}

int SessionManager::settledPrograms() const {
    return static_cast<int>(std::ranges::count_if(programs_, &Program::settled));
}

void SessionManager::askToSaveForTheEnd() {
    for (auto program = programs_.begin(); program != programs_.end(); ++program)
        askToSave(program.key(), program.value(), true, true);
}

bool SessionManager::allSaved() const {
    return !programs_.isEmpty() && std::ranges::all_of(programs_, &Program::saved);
}

void SessionManager::cancelTheEnd() {
    tellAll(ShutdownCancelled);
}

void SessionManager::tellToDie() {
    tellAll(Die);
}

void SessionManager::tellAll(unsigned char kind) {
    for (auto program = programs_.begin(); program != programs_.end(); ++program) {
        program.key()->write(message(session, kind));
        program.key()->flush();
    }
}

void SessionManager::askToSave(QLocalSocket* socket, Program& program, bool everything, bool end) {
    program.saving = true;
    program.saved = false;
    QByteArray body;
    body.append(everything ? 2 : 1); // 1: window positions; 2: also user data
    body.append(end ? 1 : 0);
    body.append(end ? 2 : 0); // whether it may ask the user: 2 anything, 0 nothing
    body.append('\0');        // not urgent
    socket->write(message(session, SaveYourself, body));
    socket->flush();
}

void SessionManager::greet(QLocalSocket* socket) {
    programs_.insert(socket, {});
    QObject::connect(socket, &QLocalSocket::disconnected, &server_, [this, socket] {
        programs_.remove(socket);
        socket->deleteLater();
    });
    QObject::connect(socket, &QLocalSocket::readyRead, &server_, [this, socket] { read(socket); });
    socket->write(message(ice, ByteOrder, {}, Q_BYTE_ORDER == Q_BIG_ENDIAN ? 1 : 0));
    read(socket);
}

void SessionManager::read(QLocalSocket* socket) {
    Program& program = programs_[socket];
    program.unread += socket->readAll();
    while (program.unread.size() >= header) {
        quint32 blocks = 0;
        std::memcpy(&blocks, program.unread.constData() + 4, sizeof blocks);
        const qsizetype size = header + static_cast<qsizetype>(blocks) * header;
        if (program.unread.size() < size)
            return;
        const QByteArray whole = program.unread.left(size);
        program.unread.remove(0, size);
        answer(socket, program, whole);
    }
}

void SessionManager::answer(QLocalSocket* socket, Program& program, const QByteArray& whole) {
    const auto protocol = static_cast<unsigned char>(whole[0]);
    const auto kind = static_cast<unsigned char>(whole[1]);
    const QByteArray us = shortText("tests") + shortText("1");
    if (protocol == ice && kind == ConnectionSetup) {
        socket->write(message(ice, ConnectionReply, us));
    } else if (protocol == ice && kind == ProtocolSetup) {
        EXPECT_EQ(static_cast<unsigned char>(whole[2]), session);
        socket->write(message(ice, ProtocolReply, us, 0, session));
    } else if (protocol == session && kind == RegisterClient) {
        program.registered = true;
        const QByteArray name = "2" + QByteArray::number(reinterpret_cast<quintptr>(socket), 16);
        socket->write(message(session, RegisterClientReply, bytes(static_cast<quint32>(name.size())) + name));
        askToSave(socket, program, false, false); // sent to every new program, to learn its state
    } else if (protocol == session && kind == SaveYourselfDone) {
        program.saved = program.saving && whole[2] != 0;
        program.saving = false;
        if (!program.settled)
            socket->write(message(session, SaveComplete));
        program.settled = true;
    }
    socket->flush();
}

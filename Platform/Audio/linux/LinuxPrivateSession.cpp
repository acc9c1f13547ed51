// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Audio/linux/LinuxPrivateSession.h"

#include "Platform/Audio/linux/ServerProbe.h"
#include "Platform/Foundation/Bundle.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/linux/LinuxFoundation.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <vector>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QStandardPaths>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Platform {

using namespace Qt::StringLiterals;

namespace {

/// The process's bundle; a new one where no services are installed.
const Bundle& bundle() {
    static const std::unique_ptr<Bundle> own = createBundle();
    return services().bundle ? *services().bundle : *own;
}

/// A socket address holds at most 107 characters, so a long folder cannot be used.
QString baseFolder() {
    for (const QString& each : {qEnvironmentVariable("XDG_RUNTIME_DIR"), qEnvironmentVariable("TMPDIR"), u"/tmp"_s}) {
        const QFileInfo info(each);
        if (!each.isEmpty() && each.toLocal8Bit().size() < 70 && info.isAbsolute() && info.isDir() && info.isWritable())
            return each;
    }
    return u"/tmp"_s;
}

void closeFd(int& fd) {
    if (fd >= 0)
        close(fd);
    fd = -1;
}

} // namespace

PrivateSession::Server PrivateSession::lookForServer(int milliseconds, const std::function<bool()>& goOn) {
    return PipeWire::lookForServer(milliseconds, goOn);
}

PrivateSession::Server PrivateSession::waitForServer(const std::function<bool()>& goOn, int patienceMs) {
    const int first = std::min(1000, patienceMs);
    const auto server = lookForServer(first);
    if (server != Server::Silent)
        return server;
    const QString line = QCoreApplication::translate(
        "Audio", "the sound server does not answer: waiting for it, at most %n seconds", nullptr, patienceMs / 1000);
    std::fprintf(stderr, "sonaphex: %s\n", qUtf8Printable(line));
    return lookForServer(patienceMs - first, goOn);
}

bool PrivateSession::serverAnswers() {
    return lookForServer(1000) == Server::Answering;
}

Result<std::unique_ptr<PrivateSession>> PrivateSession::start() {
    LinuxPrivateSession::Options options;
    options.programs = {bundle().pathForTool(u"ToneSource"_s),
                        bundle().pathForTool(u"ComputerAudioCapture.kext/CaptureDriver"_s)};
    options.expectedSource = "sonaphex.tone";
    auto session = LinuxPrivateSession::start(options);
    if (!session)
        return session.error();
    return *std::move(session);
}

Result<std::unique_ptr<LinuxPrivateSession>> LinuxPrivateSession::start(const Options& options) {
    const QString keeper = bundle().pathForTool(u"AudioSessionKeeper"_s);
    QStringList arguments = {keeper, QString::number(getpid()), baseFolder(),
                             bundle().pathForResource(u"AudioSession"_s)};
    for (const QString& name : {u"pipewire"_s, u"wireplumber"_s}) {
        const QString path = QStandardPaths::findExecutable(name);
        if (path.isEmpty())
            return Error{Error::Kind::NotFound,
                         QCoreApplication::translate(
                             "Audio", "%1 is not installed: no sound server answers and none can be started")
                             .arg(name)};
        arguments << path;
    }
    for (const QString& each : options.programs) {
        if (QFileInfo(each).isExecutable())
            arguments << each;
    }

    std::unique_ptr<LinuxPrivateSession> session(new LinuxPrivateSession);
    session->expectedSource_ = options.expectedSource;
    if (const auto spawned = session->spawnKeeper(arguments); !spawned)
        return spawned.error();
    const QByteArray line = session->readLine(8000);
    if (!line.startsWith("ready "))
        return Error{Error::Kind::Other,
                     line.startsWith("failed ")
                         ? QString::fromLocal8Bit(line.mid(7))
                         : QCoreApplication::translate("Audio", "the private sound server did not start")};
    session->runtimeFolder_ = QString::fromLocal8Bit(line.mid(6));
    session->hadRuntimeFolder_ = qEnvironmentVariableIsSet("PIPEWIRE_RUNTIME_DIR");
    session->previousRuntimeFolder_ = qgetenv("PIPEWIRE_RUNTIME_DIR");
    qputenv("PIPEWIRE_RUNTIME_DIR", line.mid(6));
    // If the user set a remote name, it would be looked up in the private folder.
    qunsetenv("PIPEWIRE_REMOTE");
    if (!PipeWire::serverIsThere(8000, true, options.expectedSource))
        return Error{Error::Kind::Other,
                     QCoreApplication::translate("Audio", "the private sound server came up without its devices")};
    return session;
}

Result<> LinuxPrivateSession::spawnKeeper(const QStringList& arguments) {
    int input[2] = {-1, -1};
    int output[2] = {-1, -1};
    if (pipe2(input, O_CLOEXEC) != 0 || pipe2(output, O_CLOEXEC) != 0) {
        const Error error = Error::ofErrno(errno);
        closeFd(input[0]);
        closeFd(input[1]);
        return error;
    }
    toKeeper_ = input[1];
    fromKeeper_ = output[0];

    std::vector<QByteArray> bytes;
    bytes.reserve(std::size_t(arguments.size()));
    for (const QString& each : arguments)
        bytes.push_back(each.toLocal8Bit());
    std::vector<char*> argv;
    for (auto& each : bytes)
        argv.push_back(each.data());
    argv.push_back(nullptr);

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, input[0], STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, output[1], STDOUT_FILENO);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    sigset_t none;
    sigemptyset(&none);
    posix_spawnattr_setsigmask(&attributes, &none);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK);
    const int result = posix_spawn(&keeper_, argv[0], &actions, &attributes, argv.data(), environ);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    closeFd(input[0]);
    closeFd(output[1]);
    if (result != 0) {
        keeper_ = -1;
        return Error::ofErrno(result, arguments.first());
    }
    return {};
}

QByteArray LinuxPrivateSession::readLine(int deadlineMs) {
    QElapsedTimer timer;
    timer.start();
    for (;;) {
        if (const auto end = unread_.indexOf('\n'); end >= 0) {
            const QByteArray line = unread_.left(end);
            unread_.remove(0, end + 1);
            return line;
        }
        const int left = deadlineMs - int(timer.elapsed());
        pollfd watch = {fromKeeper_, POLLIN, 0};
        if (left <= 0 || (poll(&watch, 1, left) < 0 && errno != EINTR))
            return {};
        if (!watch.revents)
            continue;
        char block[512];
        const auto count = read(fromKeeper_, block, sizeof block);
        if (count <= 0)
            return {};
        unread_.append(block, count);
    }
}

bool LinuxPrivateSession::stopServer() {
    if (write(toKeeper_, "s", 1) != 1)
        return false;
    for (QByteArray line; !(line = readLine(5000)).isEmpty();) {
        if (line == "stopped")
            return true;
    }
    return false;
}

bool LinuxPrivateSession::startServer() {
    return write(toKeeper_, "r", 1) == 1 && readLine(8000).startsWith("ready ") &&
           PipeWire::serverIsThere(8000, true, expectedSource_);
}

LinuxPrivateSession::~LinuxPrivateSession() {
    closeFd(toKeeper_);
    if (keeper_ > 0) {
        QElapsedTimer timer;
        timer.start();
        while (waitpid(keeper_, nullptr, WNOHANG) == 0) {
            if (timer.elapsed() > 3000) {
                kill(keeper_, SIGKILL); // its children die with it
                waitpid(keeper_, nullptr, 0);
                break;
            }
            usleep(1000);
        }
    }
    closeFd(fromKeeper_);
    if (!runtimeFolder_.isEmpty()) {
        QDir(runtimeFolder_).removeRecursively();
        if (hadRuntimeFolder_)
            qputenv("PIPEWIRE_RUNTIME_DIR", previousRuntimeFolder_);
        else
            qunsetenv("PIPEWIRE_RUNTIME_DIR");
    }
}

} // namespace Platform

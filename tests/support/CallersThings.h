// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <csignal>
#include <cstdlib>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <unistd.h>

/// State that a shell may pass to the program: a lock on an inherited descriptor (exec 9>lock; flock 9), an ignored
/// signal (nohup) and a blocked one. A process that outlives the program must keep none of it.
class CallersThings {
public:
    CallersThings() {
        lock_ = open(path(), O_RDWR | O_CREAT, 0600); // no O_CLOEXEC, like a shell
        locked_ = flock(lock_, LOCK_EX | LOCK_NB) == 0;
        before_ = std::signal(SIGHUP, SIG_IGN);
        sigset_t blocked;
        sigemptyset(&blocked);
        sigaddset(&blocked, SIGUSR2);
        sigprocmask(SIG_BLOCK, &blocked, &mask_);
    }
    ~CallersThings() {
        std::signal(SIGHUP, before_);
        sigprocmask(SIG_SETMASK, &mask_, nullptr);
        if (lock_ >= 0)
            close(lock_);
    }
    CallersThings(const CallersThings&) = delete;
    CallersThings& operator=(const CallersThings&) = delete;

    /// Checks a running process. It may hold descriptors of its own, and block signals that it reads.
    [[nodiscard]] testing::AssertionResult areNotOf(pid_t process) const {
        const QString folder = QStringLiteral("/proc/%1/").arg(process);
        for (const QString& each : QDir(folder + QStringLiteral("fd")).entryList(QDir::AllEntries | QDir::System))
            if (QFile::symLinkTarget(folder + QStringLiteral("fd/") + each) == folder_.filePath(QStringLiteral("lock")))
                return testing::AssertionFailure() << process << " holds the caller's lock";
        QFile status(folder + QStringLiteral("status"));
        if (!status.open(QIODevice::ReadOnly))
            return testing::AssertionFailure() << process << " does not run";
        const QByteArray all = status.readAll();
        const auto has = [&all](const char* key, int number) {
            const QByteArray mask = all.mid(all.indexOf(key) + qstrlen(key)).trimmed().left(16);
            return (mask.toULongLong(nullptr, 16) >> (number - 1) & 1) != 0;
        };
        if (has("SigIgn:", SIGHUP))
            return testing::AssertionFailure() << process << " ignores the signal that the caller ignored";
        if (has("SigBlk:", SIGUSR2))
            return testing::AssertionFailure() << process << " blocks the signal that the caller blocked";
        if (getsid(process) == getsid(0))
            return testing::AssertionFailure() << process << " is in the caller's session";
        return testing::AssertionSuccess();
    }

    /// Whether the lock is free once the caller closed it.
    [[nodiscard]] testing::AssertionResult letGo() {
        close(lock_);
        lock_ = -1;
        const int again = open(path(), O_RDWR | O_CLOEXEC);
        const bool free = locked_ && flock(again, LOCK_EX | LOCK_NB) == 0;
        close(again);
        return free ? testing::AssertionSuccess() : testing::AssertionFailure() << "somebody holds the lock";
    }

private:
    [[nodiscard]] const char* path() const {
        name_ = QFile::encodeName(folder_.filePath(QStringLiteral("lock")));
        return name_.constData();
    }

    QTemporaryDir folder_;
    mutable QByteArray name_;
    int lock_ = -1;
    bool locked_ = false;
    void (*before_)(int) = SIG_DFL;
    sigset_t mask_ = {};
};

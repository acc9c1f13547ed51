// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <csignal>
#include <functional>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

/// Runs a function in a forked process, for tests in which processes are killed or write at the same time. Start it
/// while this process has only one thread.
class ChildProcess {
public:
    explicit ChildProcess(const std::function<int()>& work) : pid_(::fork()) {
        if (pid_ == 0)
            ::_exit(work());
    }
    ~ChildProcess() {
        if (pid_ > 0)
            kill();
    }
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    [[nodiscard]] bool started() const { return pid_ > 0; }
    [[nodiscard]] pid_t pid() const { return pid_; }
    /// Kills it with SIGKILL.
    void kill() {
        ::kill(pid_, SIGKILL);
        (void)wait();
    }
    /// Kills it and the programs that it started, after it became the leader of a process group. Returns when all of
    /// them are gone: a program that was just forked still holds its parent's locks.
    void killGroup() {
        const pid_t group = pid_;
        ::prctl(PR_SET_CHILD_SUBREAPER, 1); // orphans of the killed process become children of this one
        ::kill(-group, SIGKILL);
        (void)wait();
        while (::waitpid(-group, nullptr, 0) > 0) {
        }
        ::prctl(PR_SET_CHILD_SUBREAPER, 0);
    }
    /// The exit status; -1 when a signal ended it.
    [[nodiscard]] int wait() {
        int status = 0;
        if (pid_ <= 0 || ::waitpid(pid_, &status, 0) != pid_)
            return -1;
        pid_ = 0;
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

private:
    pid_t pid_;
};

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <csignal>
#include <functional>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

/// Runs a function in a forked process, for tests about processes that die or that write at once. Start it while this
/// process has one thread.
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
    /// Ends it without a chance to tidy up.
    void kill() {
        ::kill(pid_, SIGKILL);
        (void)wait();
    }
    /// kill() for it and the programs that it started, after it made itself the leader of a group.
    /// Returns when all of them are gone: a program that had just been forked still holds the locks of its parent.
    void killGroup() {
        const pid_t group = pid_;
        ::prctl(PR_SET_CHILD_SUBREAPER, 1); // what the dead process started becomes a child of this one
        ::kill(-group, SIGKILL);
        (void)wait();
        while (::waitpid(-group, nullptr, 0) > 0) {
        }
        ::prctl(PR_SET_CHILD_SUBREAPER, 0);
    }
    /// The exit status, -1 when a signal ended it.
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

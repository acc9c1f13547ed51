// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <csignal>
#include <cstdlib>

#include <dirent.h>
#include <unistd.h>

/// For programs that outlive the program that started them. Call it at the start of main(), with one thread only.
/// Closes every descriptor except the three standard ones, because an inherited lock or socket of the caller would stay
/// open. Resets all signals to their default action, unblocks them, and leaves the caller's terminal and session.
inline void becomeAProcessOfItsOwn() {
    if (DIR* folder = opendir("/proc/self/fd")) {
        const int own = dirfd(folder);
        while (const dirent* entry = readdir(folder))
            if (const int fd = std::atoi(entry->d_name); fd > STDERR_FILENO && fd != own)
                close(fd);
        closedir(folder);
    }
    for (int number = 1; number < NSIG; ++number)
        if (number != SIGKILL && number != SIGSTOP)
            std::signal(number, SIG_DFL);
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    setsid();
}

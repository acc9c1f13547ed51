// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Keeps a private sound server running for one program and stops it when that program ends, for whatever reason.
//
//   AudioSessionKeeper <owner pid> <folder to make the runtime folder in> <folder of the configuration>
//                      <pipewire> <wireplumber> [<program to run in the session>...]
//
// The owner controls it through standard input: end of file ends the session, 's' stops the server, 'r' starts it
// again. On standard output it prints "ready <runtime folder>" once the server listens, or "failed <reason>".
//
// It is a separate process because the parent-death signal follows the *thread* that started a child: here there is
// only one thread. The owner is watched through its process descriptor, so that nothing is left even when the owner is
// killed.

#include "Tools/OwnProcess.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include <dirent.h>
#include <fcntl.h>
#include <ftw.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/prctl.h>
#include <sys/signalfd.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Milliseconds = std::chrono::milliseconds;
using SteadyClock = std::chrono::steady_clock;

constexpr const char* folderPrefix = "sonaphex-audio-";

void removeFolder(const std::string& folder) {
    // A file that cannot be removed stays; the others are still removed.
    const auto removeOne = [](const char* path, const struct stat*, int, FTW*) {
        (void)remove(path);
        return 0;
    };
    nftw(folder.c_str(), removeOne, 16, FTW_DEPTH | FTW_PHYS | FTW_MOUNT);
}

/// Removes the folders of keepers that were killed: a running keeper holds the lock of its folder.
void removeDeserted(const std::string& base) {
    DIR* folder = opendir(base.c_str());
    if (!folder)
        return;
    while (const dirent* entry = readdir(folder)) {
        if (strncmp(entry->d_name, folderPrefix, strlen(folderPrefix)) != 0)
            continue;
        const std::string path = base + '/' + entry->d_name;
        struct stat status = {};
        if (lstat(path.c_str(), &status) != 0 || !S_ISDIR(status.st_mode) || status.st_uid != geteuid())
            continue;
        const int lock = open((path + "/lock").c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW);
        if (lock < 0)
            continue;
        if (flock(lock, LOCK_EX | LOCK_NB) == 0)
            removeFolder(path);
        close(lock);
    }
    closedir(folder);
}

bool answers(const std::string& socketPath) {
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    if (socketPath.size() >= sizeof address.sun_path)
        return false;
    memcpy(address.sun_path, socketPath.c_str(), socketPath.size() + 1);
    const int fd = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (fd < 0)
        return false;
    const bool connected = connect(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    close(fd);
    return connected;
}

class Keeper {
public:
    Keeper(pid_t owner, std::string base, std::string configuration, std::vector<std::string> programs)
        : owner_(owner), base_(std::move(base)), configuration_(std::move(configuration)),
          programs_(std::move(programs)) {}

    int run() {
        signal(SIGPIPE, SIG_IGN);
        sigset_t watched;
        sigemptyset(&watched);
        for (const int each : {SIGCHLD, SIGTERM, SIGINT, SIGHUP})
            sigaddset(&watched, each);
        sigprocmask(SIG_BLOCK, &watched, &inherited_);
        const int signals = signalfd(-1, &watched, SFD_CLOEXEC | SFD_NONBLOCK);
        const int owner = int(syscall(SYS_pidfd_open, owner_, 0));
        // The owner may have ended before its descriptor was opened; its pid may already be reused.
        if (owner < 0 || getppid() != owner_)
            return 1;
        // Processes that a child starts become ours when the child ends.
        prctl(PR_SET_CHILD_SUBREAPER, 1);

        if (!makeFolder())
            return failed("cannot make a folder in " + base_ + ": " + strerror(errno));
        if (!startServer()) {
            stopServer();
            removeFolder(folder_);
            return 1;
        }
        say("ready " + folder_);

        bool wanted = true;
        for (bool ending = false; !ending;) {
            pollfd watch[] = {{owner, POLLIN, 0}, {STDIN_FILENO, POLLIN, 0}, {signals, POLLIN, 0}};
            if (poll(watch, 3, -1) < 0 && errno != EINTR)
                break;
            if (watch[0].revents)
                break;
            if (watch[1].revents) {
                char command = 0;
                if (read(STDIN_FILENO, &command, 1) <= 0)
                    break;
                if (command == 's') {
                    wanted = false;
                    stopServer();
                    say("stopped");
                } else if (command == 'r') {
                    wanted = true;
                    if (startServer())
                        say("ready " + folder_);
                }
            }
            signalfd_siginfo info = {};
            while (read(signals, &info, sizeof info) == sizeof info) {
                if (info.ssi_signo != SIGCHLD)
                    ending = true;
            }
            // A session manager hangs without its server, and a server links nothing without a session manager: restart
            // both.
            if (reap() && wanted && !ending && !restart())
                break;
        }
        stopServer();
        removeFolder(folder_);
        return 0;
    }

private:
    static void say(const std::string& line) {
        const std::string whole = line + '\n';
        if (write(STDOUT_FILENO, whole.data(), whole.size()) < 0)
            return; // the owner does not read any more; its end is detected elsewhere
    }

    static int failed(const std::string& reason) {
        say("failed " + reason);
        return 1;
    }

    bool makeFolder() {
        removeDeserted(base_);
        // Until its lock is held, another keeper may consider the new folder abandoned.
        for (int attempt = 0; attempt < 100; ++attempt) {
            folder_ = base_ + '/' + folderPrefix + "XXXXXX";
            if (!mkdtemp(folder_.data()))
                return false;
            if (lockFolder())
                return mkdir((folder_ + "/state").c_str(), 0700) == 0;
        }
        return false;
    }

    /// False when another keeper holds the lock, or removed the folder before the lock was taken.
    bool lockFolder() {
        const std::string path = folder_ + "/lock";
        lock_ = open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
        struct stat held = {};
        struct stat there = {};
        if (lock_ >= 0 && flock(lock_, LOCK_EX | LOCK_NB) == 0 && fstat(lock_, &held) == 0 &&
            lstat(path.c_str(), &there) == 0 && held.st_ino == there.st_ino && held.st_dev == there.st_dev)
            return true;
        if (lock_ >= 0)
            close(lock_);
        lock_ = -1;
        return false;
    }

    pid_t launch(const std::vector<std::string>& command) {
        const pid_t keeper = getpid();
        const pid_t child = fork();
        if (child != 0) {
            if (child > 0)
                children_.push_back(child);
            return child;
        }
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (getppid() != keeper)
            _exit(127);
        sigprocmask(SIG_SETMASK, &inherited_, nullptr);
        signal(SIGPIPE, SIG_DFL);
        const int null = open("/dev/null", O_RDWR | O_CLOEXEC);
        dup2(null, STDIN_FILENO);
        dup2(null, STDOUT_FILENO);
        if (!getenv("SONAPHEX_SESSION_LOG"))
            dup2(null, STDERR_FILENO);
        setenv("PIPEWIRE_RUNTIME_DIR", folder_.c_str(), 1);
        unsetenv("PIPEWIRE_REMOTE");
        setenv("XDG_STATE_HOME", (folder_ + "/state").c_str(), 1);
        setenv("XDG_CONFIG_HOME", configuration_.c_str(), 1);
        unsetenv("PIPEWIRE_CONFIG_DIR");
        unsetenv("WIREPLUMBER_CONFIG_DIR");
        setenv("DBUS_SESSION_BUS_ADDRESS", "disabled:", 1);
        std::vector<char*> arguments;
        arguments.reserve(command.size() + 1);
        for (const auto& each : command)
            arguments.push_back(const_cast<char*>(each.c_str()));
        arguments.push_back(nullptr);
        execv(arguments[0], arguments.data());
        _exit(127);
    }

    bool startServer() {
        if (!children_.empty())
            return true;
        started_ = SteadyClock::now();
        launch({programs_[0], "-c", configuration_ + "/pipewire.conf"});
        const auto deadline = started_ + Milliseconds(5000);
        while (!answers(folder_ + "/pipewire-0")) {
            if (reap() || SteadyClock::now() > deadline) {
                failed("the sound server " + programs_[0] + " did not come up");
                return false;
            }
            usleep(1000);
        }
        for (std::size_t i = 1; i < programs_.size(); ++i)
            launch({programs_[i]});
        serverParts_ = {children_.begin(), children_.begin() + std::min<std::ptrdiff_t>(2, std::ssize(children_))};
        return true;
    }

    void stopServer() {
        for (const pid_t each : children_)
            kill(each, SIGTERM);
        const auto deadline = SteadyClock::now() + Milliseconds(300);
        while (!children_.empty() && SteadyClock::now() < deadline) {
            reap();
            usleep(1000);
        }
        for (const pid_t each : children_)
            kill(each, SIGKILL);
        for (const pid_t each : children_)
            waitpid(each, nullptr, 0);
        children_.clear();
        serverParts_.clear();
        while (waitpid(-1, nullptr, WNOHANG) > 0) {
        }
    }

    /// Collects children that ended. True when the server or its manager is among them.
    bool reap() {
        bool serverEnded = false;
        for (pid_t child; (child = waitpid(-1, nullptr, WNOHANG)) > 0;) {
            serverEnded = serverEnded || std::ranges::count(serverParts_, child) > 0 || serverParts_.empty();
            std::erase(children_, child);
        }
        return serverEnded;
    }

    /// Gives up on a server that crashes repeatedly within a second.
    bool restart() {
        failures_ = SteadyClock::now() - started_ < Milliseconds(1000) ? failures_ + 1 : 0;
        stopServer();
        return failures_ < 5 && startServer();
    }

    pid_t owner_;
    std::string base_;
    std::string configuration_;
    std::vector<std::string> programs_; ///< the server, its manager, then the further programs
    std::string folder_;
    int lock_ = -1;
    sigset_t inherited_ = {};
    std::vector<pid_t> children_;
    std::vector<pid_t> serverParts_;
    SteadyClock::time_point started_;
    int failures_ = 0;
};

} // namespace

int main(int argc, char** argv) {
    if (argc < 6) {
        fprintf(stderr, "usage: AudioSessionKeeper OWNER BASE CONFIGURATION PIPEWIRE WIREPLUMBER [PROGRAM...]\n");
        return 2;
    }
    // It also leaves the terminal's job: Ctrl-C is meant for the recorder, which must finish its file.
    becomeAProcessOfItsOwn();
    std::vector<std::string> programs(argv + 4, argv + argc);
    return Keeper(pid_t(atol(argv[1])), argv[2], argv[3], std::move(programs)).run();
}

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Result.h"

#include <functional>
#include <memory>

#include <QString>

namespace Platform {

/// Creates the Linux implementations of the platform's services and installs them in Platform::services() while it
/// lives. Main thread; one at a time. Needs a QCoreApplication.
class LinuxServices {
public:
    /// The kind of program: subcommands report on standard error and grab no hot keys.
    enum class Mode { CommandLine, Window };

    LinuxServices();
    /// Destroys the services in the reverse order of their dependencies, then a private session.
    ~LinuxServices();
    LinuxServices(const LinuxServices&) = delete;
    LinuxServices& operator=(const LinuxServices&) = delete;

    /// Installs all services that need no sound server. Cheap: a subcommand that only reads a file starts nothing else.
    void install(Mode mode);
    /// Connects to the sound server and installs the services that use it. Waits up to 30 seconds for a slow server. On
    /// a machine without a server a private session is started first. One line on standard error reports either case. A
    /// second call does nothing and returns the first result.
    /// @p whileWaiting is called about fifty times a second while it waits for a server; when it returns false, the
    /// wait ends. An error when no server answers and none can be started.
    Result<> startAudio(const std::function<bool()>& whileWaiting = {});

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Platform

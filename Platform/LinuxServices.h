// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>

#include <QString>

namespace Platform {

/// Makes the Linux side of the platform's services and puts it behind Platform::services() for as long as it lives.
/// Main thread; one at a time. Needs a QCoreApplication.
class LinuxServices {
public:
    /// Which program asks: subcommands speak through standard error and take no hot keys.
    enum class Mode { CommandLine, Window };

    LinuxServices();
    /// Ends the services, those that use others first, and with them a private session.
    ~LinuxServices();
    LinuxServices(const LinuxServices&) = delete;
    LinuxServices& operator=(const LinuxServices&) = delete;

    /// All services that need no sound server. Cheap: a subcommand that only reads a file pays for nothing else.
    void install(Mode mode);
    /// Connects to the sound server and adds the services that speak with it. A server that is slow to answer is waited
    /// for, up to 30 seconds. On a machine without one a private session is started first. One line on standard error
    /// says either. A second call does nothing.
    /// @p whileWaiting is called about fifty times a second while a server is waited for; false gives up.
    /// @return false when no server answers and none can be started; @p why then says what is wrong.
    [[nodiscard]] bool startAudio(QString& why, const std::function<bool()>& whileWaiting = {});

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Platform

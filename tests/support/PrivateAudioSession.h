// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/linux/LinuxPrivateSession.h"

#include <memory>

/// A sound server for the tests of one process, without hardware. It starts at the first use in about 50 ms, sets
/// PIPEWIRE_RUNTIME_DIR of this process, and ends with the process. It has the output "Silent Output" (node.name
/// "sonaphex.output", the default output); the only input devices are those that the test adds with TestSource.
///
///     class MyTest : public testing::Test {
///     protected:
///         PrivateAudioSession& session_ = PrivateAudioSession::shared();
///     };
///
/// Only for files that end in ServerTest.cpp (or Soak, Xvfb): those run one at a time.
class PrivateAudioSession {
public:
    /// The session of this process; a server that a test stopped is started again.
    static PrivateAudioSession& shared();
    /// Ends the shared session, for tests that need a machine without a sound server. shared() starts a new one.
    static void end();

    /// Stops the server; every client loses it. False on failure.
    [[nodiscard]] bool stopServer();
    [[nodiscard]] bool startServer();
    [[nodiscard]] QString runtimeFolder() const { return session_->runtimeFolder(); }
    /// The process of the server.
    [[nodiscard]] pid_t serverProcess() const;
    [[nodiscard]] Platform::LinuxPrivateSession& session() { return *session_; }

private:
    static std::unique_ptr<PrivateAudioSession>& instance();
    std::unique_ptr<Platform::LinuxPrivateSession> session_;
    bool stopped_ = false;
};

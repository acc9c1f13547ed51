// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Result.h"

#include <functional>
#include <memory>

#include <QString>

namespace Platform {

/// A private sound server for machines without one: an output, a tone as input device, and the computer-audio driver.
/// It ends with this object, and with the process, however the process ends.
class PrivateSession {
public:
    virtual ~PrivateSession() = default;
    /// The folder of its socket (the value of PIPEWIRE_RUNTIME_DIR for programs that use it).
    [[nodiscard]] virtual QString runtimeFolder() const = 0;

    /// State of the sound server in this process's environment.
    enum class Server {
        Absent,   ///< no socket accepts a connection
        Silent,   ///< one accepts but does not answer yet: a running server that is slow
        Answering ///< one that can be used
    };
    static constexpr int kPatienceMs = 30000;

    /// Looks for a sound server. @p goOn is called about fifty times a second; when it returns false, the search ends.
    [[nodiscard]] static Server lookForServer(int milliseconds, const std::function<bool()>& goOn = {});
    /// Like lookForServer(), but waits for a server that is silent for a second, and prints one line about it on
    /// standard error. @p goOn is called from then on. Main thread.
    [[nodiscard]] static Server waitForServer(const std::function<bool()>& goOn = {}, int patienceMs = kPatienceMs);
    /// Whether a server answers within a second.
    [[nodiscard]] static bool serverAnswers();
    /// Starts a private server and waits until its devices exist; then sets PIPEWIRE_RUNTIME_DIR of this process so
    /// that all later connections use it. Main thread, before any other use of the sound server.
    /// Never null. An error is one like "pipewire is not installed: ...".
    static Result<std::unique_ptr<PrivateSession>> start();
};

} // namespace Platform

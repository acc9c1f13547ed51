// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>

#include <QString>

namespace Platform {

/// A sound server of our own for machines without one: an output, a tone as input device, and the computer-audio
/// driver. It lives as long as this object and never longer than the process, however the process ends.
class PrivateSession {
public:
    virtual ~PrivateSession() = default;
    /// The folder in which its socket lies (PIPEWIRE_RUNTIME_DIR for those who want to join).
    [[nodiscard]] virtual QString runtimeFolder() const = 0;

    /// What there is in this process's environment.
    enum class Server {
        Absent,   ///< no socket accepts a connection
        Silent,   ///< one does, and nothing comes back yet: a living server that is slow
        Answering ///< one that can be used
    };
    static constexpr int kPatienceMs = 30000;

    /// Looks for a sound server. @p goOn is called about fifty times a second; false gives up.
    [[nodiscard]] static Server lookForServer(int milliseconds, const std::function<bool()>& goOn = {});
    /// The same with patience: a server that is silent for a second is waited for, and one line on standard error says
    /// so. @p goOn is called from then on. Main thread.
    [[nodiscard]] static Server waitForServer(const std::function<bool()>& goOn = {}, int patienceMs = kPatienceMs);
    /// Whether one answers within a second.
    [[nodiscard]] static bool serverAnswers();
    /// Starts one and waits until its devices are there; then sets PIPEWIRE_RUNTIME_DIR of this process so that what
    /// follows uses it. Main thread, before any other use of the sound server.
    /// @return null on failure, with the reason in @p why ("pipewire is not installed: ...").
    [[nodiscard]] static std::unique_ptr<PrivateSession> start(QString& why);
};

} // namespace Platform

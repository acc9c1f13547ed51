// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

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

    /// Whether a sound server answers this process as its environment stands. Waits at most a second.
    [[nodiscard]] static bool serverAnswers();
    /// Starts one and waits until its devices are there; then sets PIPEWIRE_RUNTIME_DIR of this process so that what
    /// follows uses it. Main thread, before any other use of the sound server.
    /// @return null on failure, with the reason in @p why ("pipewire is not installed: ...").
    [[nodiscard]] static std::unique_ptr<PrivateSession> start(QString& why);
};

} // namespace Platform

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

/// Decides at which cycle of the computer-audio source an armed recording starts, and when a silence is long enough for
/// a cut. Has no lock; its owner guards it.
class SilenceSplitter {
public:
    /// Digital silence lies below this level.
    static constexpr float AudibleLevel = 1e-6F;

    /// Ends the wait and switches cuts off. Called first by each start and stop.
    void clear() {
        isWaittingComputerAudioRecord_ = false;
        isOnlyComputerAudioRecording_ = false;
    }
    /// Waits for the next sound.
    void arm() { isWaittingComputerAudioRecord_ = true; }
    [[nodiscard]] bool isWaitting() const { return isWaittingComputerAudioRecord_; }
    [[nodiscard]] bool isOnlyComputerAudioRecording() const { return isOnlyComputerAudioRecording_; }

    /// Processes the level of one cycle. @p now is its capture time in nanoseconds; silence counts only while @p
    /// recording.
    void measure(float level, std::uint64_t now, bool recording);
    /// Whether this level ends the wait. From then on silences in the recording count for cuts.
    bool soundBegins(float level);
    /// Whether the silence is long enough for a cut. A cut only happens at a silent cycle of the recording, even with a
    /// time of 0. A negative time switches cuts off, and so does the input device.
    [[nodiscard]] bool wantsCut(std::int32_t splitTimeMS, bool inputOn) const;
    /// Call it after the stream was interrupted: the time without it does not count as silence.
    void restartClock() { lastTime_ = 0; }
    [[nodiscard]] std::int64_t computerAudioNullTimeMs() const { return computerAudioNullTimeMs_; }

private:
    std::uint64_t lastTime_ = 0;
    std::int64_t computerAudioNullTimeMs_ = 0;
    bool isSilent_ = false; ///< the last cycle was recorded and silent
    bool isWaittingComputerAudioRecord_ = false;
    bool isOnlyComputerAudioRecording_ = false;
};

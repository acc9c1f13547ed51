// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

/// Follows the level of the computer-audio source: says when the sound begins that a recording waits for, and when a
/// silence has lasted long enough for a cut. Has no lock of its own; its owner guards it.
class SilenceSplitter {
public:
    /// Digital silence lies below this level.
    static constexpr float AudibleLevel = 1e-6F;

    /// Ends the wait and switches cuts off. A start and a stop begin with it.
    void clear() {
        isWaittingComputerAudioRecord_ = false;
        isOnlyComputerAudioRecording_ = false;
    }
    /// Waits for the next sound.
    void arm() { isWaittingComputerAudioRecord_ = true; }
    [[nodiscard]] bool isWaitting() const { return isWaittingComputerAudioRecord_; }
    [[nodiscard]] bool isOnlyComputerAudioRecording() const { return isOnlyComputerAudioRecording_; }

    /// Takes the level of one cycle. @p now is its capture time in nanoseconds; silence counts while @p recording.
    void measure(float level, std::uint64_t now, bool recording);
    /// Whether this level ends the waiting. From then on the silences of the recording count for cuts.
    bool soundBegins(float level);
    /// Whether the silence so far asks for a cut. Only a silent cycle of the recording is cut at, also with a time of
    /// 0. A negative time means that cuts are off; with the input device on there are none either.
    [[nodiscard]] bool wantsCut(std::int32_t splitTimeMS, bool inputOn) const;
    /// After the stream was interrupted: the time without it does not count as silence.
    void restartClock() { lastTime_ = 0; }
    [[nodiscard]] std::int64_t computerAudioNullTimeMs() const { return computerAudioNullTimeMs_; }

private:
    std::uint64_t lastTime_ = 0;
    std::int64_t computerAudioNullTimeMs_ = 0;
    bool isSilent_ = false; ///< the last cycle was recorded and silent
    bool isWaittingComputerAudioRecord_ = false;
    bool isOnlyComputerAudioRecording_ = false;
};

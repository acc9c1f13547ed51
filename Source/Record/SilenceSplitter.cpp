// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Record/SilenceSplitter.h"

void SilenceSplitter::measure(float level, std::uint64_t now, bool recording) {
    if (lastTime_ == 0 || now < lastTime_)
        lastTime_ = now;
    isSilent_ = recording && !(level >= AudibleLevel);
    if (level >= AudibleLevel) {
        computerAudioNullTimeMs_ = 0;
    } else if (recording) {
        const auto silence = static_cast<std::int64_t>(static_cast<double>(now - lastTime_) / 1e6 +
                                                       static_cast<double>(computerAudioNullTimeMs_));
        // Only whole milliseconds are counted. lastTime_ is kept, so that cycles shorter than a millisecond add up:
        // otherwise a device with very small buffers would never be silent.
        if (silence == computerAudioNullTimeMs_)
            return;
        computerAudioNullTimeMs_ = silence;
    }
    lastTime_ = now;
}

bool SilenceSplitter::soundBegins(float level) {
    if (!isWaittingComputerAudioRecord_ || !(level > AudibleLevel))
        return false;
    isWaittingComputerAudioRecord_ = false;
    computerAudioNullTimeMs_ = 0;
    isOnlyComputerAudioRecording_ = true;
    return true;
}

bool SilenceSplitter::wantsCut(std::int32_t splitTimeMS, bool inputOn) const {
    if (splitTimeMS < 0 || !isSilent_ || !isOnlyComputerAudioRecording_ || inputOn)
        return false;
    return computerAudioNullTimeMs_ >= std::int64_t{splitTimeMS};
}

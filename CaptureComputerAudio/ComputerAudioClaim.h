// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/ProgramChoice.h"
#include "Platform/Foundation/FileLock.h"

/// The driver has one choice of programs for all who record from it. A recording claims its choice, so that another
/// process of the same user cannot change it: recordings of everything go together, one of chosen programs is alone.
/// The claim ends with its owner, however the process ends. Main thread.
class ComputerAudioClaim {
public:
    /// False when a recording with another choice holds a claim. Replaces the own claim.
    [[nodiscard]] bool take(const Platform::ProgramChoice& choice);
    void release() { lock_.release(); }
    [[nodiscard]] bool isHeld() const { return lock_.isHeld(); }

private:
    Platform::FileLock lock_;
};

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CaptureComputerAudio/ComputerAudioClaim.h"

#include "Platform/Foundation/Bundle.h"
#include "Platform/Foundation/Folders.h"
#include "Platform/Foundation/Services.h"

using namespace Qt::StringLiterals;

bool ComputerAudioClaim::take(const Platform::ProgramChoice& choice) {
    const auto* bundle = Platform::services().bundle;
    if (!bundle)
        return true;
    const QString path = Platform::Folders::runtime() + u'/' + bundle->bundleIdentifier() + u".computer-audio"_s;
    const bool everything = choice.mode == Platform::ProgramChoice::Mode::Everything;
    const auto taken = everything ? lock_.takeShared(path) : lock_.take(path);
    // A folder in which no file can be locked prevents no recording.
    return taken || taken.error().kind != Platform::Error::Kind::Busy;
}

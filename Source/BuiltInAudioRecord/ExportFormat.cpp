// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/BuiltInAudioRecord/ExportFormat.h"

#include "Platform/Foundation/Services.h"
#include "Platform/Media/ExtAudioFile.h"

AudioStreamBasicDescription waveExportFormat() {
    AudioStreamBasicDescription format;
    format.mSampleRate = 44100;
    format.mFormatID = kAudioFormatLinearPCM;
    format.mFormatFlags = kAudioFormatFlagIsSignedInteger | kAudioFormatFlagIsPacked;
    format.mBytesPerPacket = 8;
    // One packet of linear PCM really holds one frame. Files of this program have always been described with this
    // value, so it is kept.
    format.mFramesPerPacket = 1024;
    format.mBytesPerFrame = 8;
    format.mChannelsPerFrame = 2;
    format.mBitsPerChannel = 32;
    if (auto* files = Platform::services().mediaFiles)
        (void)files->completeFormat(format);
    return format;
}

AudioStreamBasicDescription aacExportFormat() {
    AudioStreamBasicDescription format;
    format.mSampleRate = 44100;
    format.mFormatID = kAudioFormatMPEG4AAC;
    format.mFramesPerPacket = 1024;
    format.mChannelsPerFrame = 2;
    return format;
}

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/Model/AudioRecordEntry.h"
#include "Source/WndController/BalanceWndController.h"
#include "tests/Source/WndController/EditWorld.h"

#include <cmath>
#include <vector>

/// The balance window with a recording of three seconds and its two tracks, in the environment of an editing window.
struct BalanceWorld : EditWorld {
    BalanceWndController balance;
    Dictionary entry;

    /// Writes a tone into a stereo file.
    void write(const QString& path, double pitch, float level) const {
        constexpr std::uint32_t frames = 3 * 44100;
        auto writer = media->createWriter(
            path, kAudioFileM4AType,
            {.mSampleRate = 44100, .mFormatID = kAudioFormatMPEG4AAC, .mFramesPerPacket = 1024, .mChannelsPerFrame = 2},
            kAudioFileFlags_EraseFile);
        if (!writer)
            return;
        (void)(*writer)->setClientDataFormat(planarFloatFormat(44100, 2));
        std::vector<float> samples(frames);
        for (std::uint32_t i = 0; i < frames; ++i)
            samples[i] = level * float(std::sin(2 * 3.14159265358979 * pitch * i / 44100));
        struct {
            AudioBufferList head;
            AudioBuffer second;
        } list;
        list.head.mNumberBuffers = 2;
        list.head.mBuffers[0] = {1, frames * 4, samples.data()};
        list.second = {1, frames * 4, samples.data()};
        (void)(*writer)->write(frames, &list.head);
        (void)(*writer)->dispose();
    }

    /// Makes the recording with its tracks and loads it into the window.
    void open(float level = 0.3F) {
        entry = recording(QStringLiteral("Interview with Ada"), 3);
        const QString mix = entry.value(AudioRecordEntry::SavePath).toString();
        const RecordingTracks::Tracks tracks{RecordingTracks::pathBeside(mix, RecordingTracks::Source::Input),
                                             RecordingTracks::pathBeside(mix, RecordingTracks::Source::Computer)};
        write(tracks.input, 440, level);
        write(tracks.computer, 1000, level);
        RecordingTracks::insertInto(entry, tracks);
        balance.setDelegate(this);
        EXPECT_EQ(balance.setEntry(entry), QString());
    }
};

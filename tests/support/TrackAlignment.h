// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/Model/RecordingTracks.h"
#include "tests/support/RecordMix.h"

/// Records two devices with different clocks and compares their kept tracks, with the real encoders and the real mix.
class TrackAlignment : public RecordMix {
protected:
    static constexpr double Warmup = 65; ///< seconds after which the clocks' rates are known

    TrackAlignment() { defaults.setObject(PreferenceStore::PreferenceKeepTracksKey, 1); }

    /// The first channel of some frames of a file.
    [[nodiscard]] std::vector<float> excerpt(const QString& path, std::int64_t from, std::uint32_t frames) const {
        std::vector<float> left(frames);
        std::vector<float> right(frames);
        auto reader = media->openReader(path);
        EXPECT_TRUE(reader) << qPrintable(reader.error().text);
        if (!reader)
            return left;
        EXPECT_EQ((*reader)->setClientDataFormat(planarFloatFormat(44100, 2)), noErr);
        EXPECT_EQ((*reader)->seek(from), noErr);
        for (std::uint32_t done = 0; done < frames;) {
            struct {
                AudioBufferList head;
                AudioBuffer second;
            } list;
            std::uint32_t count = frames - done;
            list.head.mNumberBuffers = 2;
            list.head.mBuffers[0] = {1, count * 4, left.data() + done};
            list.second = {1, count * 4, right.data() + done};
            EXPECT_EQ((*reader)->read(count, &list.head), noErr);
            if (count == 0)
                break;
            done += count;
        }
        return left;
    }
    [[nodiscard]] RecordingTracks::Tracks tracks(int part = 0) const {
        return RecordingTracks::stored(delegate.entries.at(part));
    }
    [[nodiscard]] std::int64_t framesOf(const QString& path) const { return media->info(path).valueOr({}).frameCount; }
    [[nodiscard]] bool finished() {
        return waitFor([this] { return controller->jobsInQueue() == 0; }, 600'000);
    }
    void expectEqualLengths(int part = 0) const {
        const auto mix = framesOf(delegate.paths.at(part));
        EXPECT_GT(mix, 0);
        EXPECT_EQ(framesOf(tracks(part).input), mix);
        EXPECT_EQ(framesOf(tracks(part).computer), mix);
    }
    /// The lag of the tracks against each other around a frame, and of their sum against the mix, in frames.
    void expectTogetherAt(std::int64_t place) const {
        constexpr std::uint32_t frames = 12000;
        const auto input = excerpt(tracks().input, place, frames);
        const auto computer = excerpt(tracks().computer, place, frames);
        const auto mix = excerpt(delegate.paths.at(0), place, frames);
        EXPECT_EQ(bestLag(input, computer, 2000, 8000, 100), 0) << "at frame " << place;
        std::vector<float> sum(frames);
        for (std::size_t i = 0; i < frames; ++i)
            sum[i] = input[i] + computer[i];
        EXPECT_EQ(bestLag(mix, sum, 2000, 8000, 100), 0) << "at frame " << place;
        EXPECT_GT(likeness(mix.data() + 2000, sum.data() + 2000, 8000), 0.98) << "at frame " << place;
    }

    /// Records for a while; there is sound in the first and in the last 12 seconds.
    void expectAligned(double seconds) {
        begin(true, true);
        // Both the same sound: each has a file of its own.
        Ear input{Microphone, &sound, Rate, 0.0};
        Ear computer{ComputerAudio, &sound, Rate * (1 + 100e-6), 0.0073};
        silent = true;
        hearBoth(input, computer, Warmup);
        silent = false;
        controller->startAndStopRecord();
        hearBoth(input, computer, Warmup + 12);
        silent = true;
        hearBoth(input, computer, Warmup + seconds - 12);
        silent = false;
        hearBoth(input, computer, Warmup + seconds);
        controller->startAndStopRecord();
        ASSERT_TRUE(finished());
        ASSERT_EQ(delegate.paths.size(), 1) << qPrintable(controller->notices().join(u'\n'));
        ASSERT_TRUE(tracks().isWhole());
        expectEqualLengths();
        const auto frames = framesOf(delegate.paths.at(0));
        EXPECT_NEAR(double(frames) / 44100, seconds, 0.05);
        expectTogetherAt(44100);
        expectTogetherAt(frames - 2 * 44100);
    }
};

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/PrivateAudioSession.h"
#include "tests/support/RealRecording.h"
#include "tests/support/TestSource.h"
#include "tests/support/UnitCapture.h"

/// Recordings of streams that play on the private sound server.
class RecordOnServer : public RealRecording {
protected:
    RecordOnServer() {
        Platform::services().audioHardware = hardware.get();
        Platform::services().ioRegistry = registry.get();
    }
    ~RecordOnServer() override { controller.reset(); }

    /// A source that looks like the capture driver's.
    static TestSource::Options computerAudio(std::function<float(std::uint64_t, std::uint32_t)> sample) {
        TestSource::Options options;
        options.name = "test.computer";
        options.description = RecordSources::ComputerAudioName.toStdString();
        options.sample = std::move(sample);
        return options;
    }
    [[nodiscard]] bool deviceIsThere(const QString& name) { return waitForDevice(*hardware, name) != 0; }

    /// Amplitude of one tone in the samples.
    [[nodiscard]] static double strength(const std::vector<float>& samples, double pitch) {
        double sine = 0;
        double cosine = 0;
        for (std::size_t i = 0; i < samples.size(); ++i) {
            const double angle = 2 * std::numbers::pi * pitch * double(i) / 44100;
            sine += double(samples[i]) * std::sin(angle);
            cosine += double(samples[i]) * std::cos(angle);
        }
        return 2 * std::hypot(sine, cosine) / double(samples.size());
    }

    /// Records a known sound with many cuts, by hand and at silences, and checks that the joined files equal the sound:
    /// at lag 0 before and after each cut, and as long as what was delivered.
    void expectExactCuts(int cuts) {
        KnownSound sound;
        // Automatic cuts happen in a gap of 60 ms every 2 s. Computed in advance: the source must not be late.
        std::vector<float> played(std::size_t(KnownSound::Period * 48000));
        for (std::size_t i = 2880; i < played.size(); ++i)
            played[i] = sound.at(double(i) / 48000);
        TestSource computer(computerAudio(
            [&](std::uint64_t frame, std::uint32_t) { return played[std::size_t(frame % played.size())]; }));
        ASSERT_TRUE(computer.start());
        ASSERT_TRUE(deviceIsThere(RecordSources::ComputerAudioName));
        begin(false, true);
        // A machine that does not run the sound server in time loses frames before they reach the program, which
        // reports it. Such a run says nothing about cuts and is repeated.
        for (int attempt = 0; attempt < 8; ++attempt) {
            delegate.paths.clear();
            g_SplitTimeMS = 20;
            controller->startAndStopRecord();
            startedAt = double(computer.position()) / 48000;
            double at = 0;
            for (int cut = 0; cut < cuts; ++cut) {
                ASSERT_TRUE(recorded(at += 0.35 + 0.01 * (cut % 9)));
                controller->splitTheRecord();
            }
            ASSERT_TRUE(recorded(at + 0.4));
            // Everything that the source has played must be in the files: after another second it is written.
            const auto played = computer.position();
            playedUntil = double(played) / 48000;
            ASSERT_TRUE(waitFor([&] { return computer.position() > played + 48000; }));
            g_SplitTimeMS = -1;
            controller->startAndStopRecord();
            delivered = controller->recordedSeconds();
            controller->finishAll();
            if (controller->lostFrames() == 0)
                break;
        }
        ASSERT_EQ(controller->lostFrames(), 0U);
        ASSERT_GT(delegate.paths.size(), cuts + 1) << "silences have cut as well";
        compare(sound);
    }

    void compare(const KnownSound& sound) {
        std::vector<float> all;
        std::vector<std::size_t> ends;
        for (const QString& path : delegate.paths) {
            const auto part = decoded(path);
            ASSERT_EQ(part.size(), 2U) << qPrintable(path);
            all.insert(all.end(), part[0].begin(), part[0].end());
            ends.push_back(all.size());
        }
        EXPECT_NEAR(double(all.size()), delivered * 44100, 1.0) << "all lengths add up to what was delivered";
        // Finds the position in the sound at which the recording began: the gaps give the second, the tones the frame.
        const auto heard = [&](double start, std::size_t from, std::size_t frames) {
            std::vector<float> expected(frames);
            for (std::size_t i = 0; i < frames; ++i) {
                const double seconds = start + double(from + i) / 44100;
                expected[i] = std::fmod(seconds, 2.0) < 0.06 ? 0.0F : sound.at(seconds);
            }
            return expected;
        };
        const double start = whereItBegan(sound, all);
        ASSERT_GE(start, 0);
        EXPECT_LE(start, startedAt + 0.2) << "from the start, by the source's count";
        EXPECT_GE(start + double(all.size()) / 44100, playedUntil) << "to the end, by the source's count";
        int checked = 0;
        for (std::size_t i = 0; i + 1 < ends.size(); ++i)
            for (const std::ptrdiff_t offset : {-3000, 500}) {
                const auto from = std::ptrdiff_t(ends[i]) + offset;
                if (from < 0 || std::size_t(from) + 2500 > all.size())
                    continue;
                const auto expected = heard(start, std::size_t(from) - 5, 2510);
                if (AudioCheck::levelOf(expected) < 0.02)
                    continue;
                double best = 0;
                int lag = 99;
                for (int shift = 0; shift <= 10; ++shift)
                    if (const double like = likeness(all.data() + from, expected.data() + shift, 2500); like > best) {
                        best = like;
                        lag = shift - 5;
                    }
                EXPECT_EQ(lag, 0) << "at cut " << i << (offset < 0 ? " before" : " after");
                EXPECT_GT(best, 0.9) << "at cut " << i;
                ++checked;
            }
        EXPECT_GE(checked, int(ends.size()) - 2);
    }

    /// The position in the sound of the recording's first frame, in seconds, to a fraction of a frame; negative when it
    /// is not found.
    [[nodiscard]] double whereItBegan(const KnownSound& sound, const std::vector<float>& all) const {
        constexpr std::size_t frames = 1200;
        constexpr std::size_t place = 4410;
        const double earliest = std::max(0.0, startedAt - 1.5);
        if (all.size() < place + frames)
            return -1;
        std::vector<float> piece(frames);
        std::copy_n(all.begin() + place, frames, piece.begin());
        double best = 0.6;
        double found = -1;
        std::vector<float> expected(44100 * 3);
        for (std::size_t i = 0; i < expected.size(); ++i)
            expected[i] = sound.at(earliest + double(i) / 44100);
        std::size_t near = 0;
        for (std::size_t i = 0; i + frames < expected.size(); ++i)
            if (const double like = likeness(piece.data(), expected.data() + i, frames); like > best) {
                best = like;
                near = i;
                found = 0;
            }
        if (found < 0)
            return -1;
        // Refined to a hundredth of a frame, so that rounding does not add up to a whole frame later.
        best = 0;
        for (int step = -100; step <= 100; ++step) {
            const double start = earliest + (double(near) + step / 100.0) / 44100;
            for (std::size_t i = 0; i < frames; ++i)
                expected[i] = sound.at(start + double(i) / 44100);
            if (const double like = likeness(piece.data(), expected.data(), frames); like > best) {
                best = like;
                found = start - double(place) / 44100;
            }
        }
        return found;
    }

    PrivateAudioSession& session = PrivateAudioSession::shared();
    std::unique_ptr<Platform::AudioHardware> hardware = Platform::createAudioHardware();
    std::unique_ptr<Platform::IORegistry> registry = Platform::createIORegistry();
    double delivered = 0;   ///< seconds, as counted by the engine
    double startedAt = 0;   ///< position in the sound, approximate
    double playedUntil = 0; ///< seconds of the sound that must be in the files
};

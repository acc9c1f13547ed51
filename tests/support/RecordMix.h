// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/fakes/FakeAudioHardware.h"
#include "tests/fakes/FakeIORegistry.h"
#include "tests/support/RealRecording.h"

/// Two devices that receive the same known sound, the input device on the left channel and computer audio on the right
/// one, so that the finished mix shows how far they are apart.
class RecordMix : public RealRecording {
protected:
    static constexpr AudioObjectID Microphone = 11;
    static constexpr AudioObjectID ComputerAudio = 12;
    static constexpr double Rate = 48000;
    static constexpr std::uint32_t Cycle = 1024;

    RecordMix() {
        Platform::services().audioHardware = &hardware;
        Platform::services().ioRegistry = &registry;
        hardware.nextUnit->bufferFrames = Cycle;
        add(Microphone, QStringLiteral("Microphone"));
        add(ComputerAudio, RecordSources::ComputerAudioName);
    }
    void add(AudioObjectID id, const QString& name) {
        FakeAudioHardware::Device device;
        device.id = id;
        device.name = name;
        hardware.add(device);
    }

    /// One device that receives the sound on one channel. Its clock is wrong by some parts per million.
    struct Ear {
        AudioObjectID device;
        std::size_t channel;
        double rate;   ///< frames that it really delivers per second
        double begins; ///< time of its first frame, in seconds
        std::int64_t frames = 0;
        [[nodiscard]] double next() const { return begins + double(frames) / rate; }
    };
    void hear(Ear& ear) {
        std::vector<std::vector<float>> samples(2, std::vector<float>(Cycle, 0.0F));
        const double start = ear.next();
        for (std::uint32_t i = 0; i < Cycle; ++i)
            samples[ear.channel][i] = silent ? 0.0F : sound.at(start + i / ear.rate);
        hardware.unitOf(ear.device)->feed(samples, 1'000'000'000'000 + std::uint64_t(std::llround(start * 1e9)));
        ear.frames += Cycle;
    }
    /// Feeds both; the one that is behind gets the next cycle.
    void hearBoth(Ear& one, Ear& other, double until) {
        while (one.next() < until || other.next() < until)
            hear(one.next() <= other.next() ? one : other);
    }

    /// Records for a while with a computer-audio clock that is wrong by 100 parts per million, and checks that both are
    /// aligned at both ends of the mix.
    void expectTogether(double seconds) {
        begin(true, true);
        Ear input{Microphone, 0, Rate, 0.0};
        Ear computer{ComputerAudio, 1, Rate * (1 + 100e-6), 0.0073};
        // The clock rates are known before the recording, as in a program that has run for a while.
        silent = true;
        hearBoth(input, computer, 65);
        silent = false;
        controller->startAndStopRecord();
        hearBoth(input, computer, 65 + seconds);
        controller->startAndStopRecord();
        ASSERT_TRUE(waitFor([this] { return controller->jobsInQueue() == 0; }, 600000));
        ASSERT_EQ(delegate.paths.size(), 1) << qPrintable(controller->notices().join(u'\n'));
        const auto mixed = decoded(delegate.paths.front());
        ASSERT_EQ(mixed.size(), 2U);
        const std::size_t end = mixed[0].size();
        EXPECT_NEAR(double(end) / 44100, seconds, 0.05);
        // In frames of 44100 Hz; without the correction the end would be off by 4.4 per second.
        const double atStart = bestLag(mixed[0], mixed[1], 22050, 4096, 400);
        const double atEnd = bestLag(mixed[0], mixed[1], end - 44100, 4096, 400);
        RecordProperty("lag_at_start_ms", std::to_string(atStart / 44.1));
        RecordProperty("lag_at_end_ms", std::to_string(atEnd / 44.1));
        EXPECT_LT(std::fabs(atStart), 22) << "half a millisecond";
        EXPECT_LT(std::fabs(atEnd), 22);
    }

    KnownSound sound{24};
    bool silent = false;
    FakeAudioHardware hardware;
    FakeIORegistry registry;
};

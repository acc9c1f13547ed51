// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/fakes/FakeAudioHardware.h"
#include "tests/fakes/FakeIORegistry.h"
#include "tests/support/RealRecording.h"

/// An input device and computer audio that receive known sounds on their first channel, which is the one that is mixed.
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

    /// One device that receives a sound. Its clock is wrong by some parts per million.
    struct Ear {
        AudioObjectID device;
        const KnownSound* sound;
        double rate;   ///< frames that it really delivers per second
        double begins; ///< time of its first frame, in seconds
        std::int64_t frames = 0;
        [[nodiscard]] double next() const { return begins + double(frames) / rate; }
    };
    void hear(Ear& ear) {
        std::vector<std::vector<float>> samples(2, std::vector<float>(Cycle, 0.0F));
        const double start = ear.next();
        for (std::uint32_t i = 0; i < Cycle; ++i)
            samples[0][i] = silent ? 0.0F : ear.sound->at(start + i / ear.rate);
        hardware.unitOf(ear.device)->feed(samples, 1'000'000'000'000 + std::uint64_t(std::llround(start * 1e9)));
        ear.frames += Cycle;
    }
    /// Feeds both; the one that is behind gets the next cycle.
    void hearBoth(Ear& one, Ear& other, double until) {
        while (one.next() < until || other.next() < until)
            hear(one.next() <= other.next() ? one : other);
    }

    /// How late a sound is in the mix at a frame, in frames of 44100 Hz, for a mix that begins at a time.
    static double lateness(const KnownSound& sound, const std::vector<float>& mixed, std::size_t place, double begins) {
        constexpr std::size_t length = 4096;
        constexpr std::size_t most = 2000;
        if (place < most || place + length + most >= mixed.size())
            return std::nan("");
        const auto* from = mixed.data() + place - most;
        const std::vector<float> heard(from, from + length + 2 * most + 1);
        std::vector<float> expected(heard.size());
        for (std::size_t i = 0; i < expected.size(); ++i)
            expected[i] = sound.at(begins + double(place - most + i) / 44100);
        return bestLag(expected, heard, most, length, int(most));
    }

    /// Records for a while with a computer-audio clock that is wrong by 100 parts per million, and checks that both are
    /// aligned at both ends of the mix.
    void expectTogether(double seconds) {
        constexpr double begins = 65;
        begin(true, true);
        Ear input{Microphone, &sound, Rate, 0.0};
        Ear computer{ComputerAudio, &otherSound, Rate * (1 + 100e-6), 0.0073};
        // The clock rates are known before the recording, as in a program that has run for a while.
        silent = true;
        hearBoth(input, computer, begins);
        silent = false;
        controller->startAndStopRecord();
        hearBoth(input, computer, begins + seconds);
        controller->startAndStopRecord();
        ASSERT_TRUE(waitFor([this] { return controller->jobsInQueue() == 0; }, 600000));
        ASSERT_EQ(delegate.paths.size(), 1) << qPrintable(controller->notices().join(u'\n'));
        const auto mixed = decoded(delegate.paths.front());
        ASSERT_EQ(mixed.size(), 2U);
        const std::size_t end = mixed[0].size();
        EXPECT_NEAR(double(end) / 44100, seconds, 0.05);
        // Without the correction the end would be off by 4.4 frames a second.
        for (const std::size_t place : {std::size_t(22050), end - 44100}) {
            const double apart =
                lateness(sound, mixed[0], place, begins) - lateness(otherSound, mixed[0], place, begins);
            std::printf("%.2f s: %.0f frames apart\n", double(place) / 44100, apart);
            EXPECT_LT(std::fabs(apart), 22) << "half a millisecond";
        }
    }

    KnownSound sound{24};
    KnownSound otherSound{24, 8};
    bool silent = false;
    FakeAudioHardware hardware;
    FakeIORegistry registry;
};

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Two sources whose clocks differ, with real encoders and the real mix: how far are they apart in the finished file?
#include "tests/fakes/FakeAudioHardware.h"
#include "tests/fakes/FakeIORegistry.h"
#include "tests/support/RealRecording.h"

using namespace Qt::StringLiterals;

namespace {

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
        add(Microphone, u"Microphone"_s);
        add(ComputerAudio, RecordSources::ComputerAudioName);
    }
    void add(AudioObjectID id, const QString& name) {
        FakeAudioHardware::Device device;
        device.id = id;
        device.name = name;
        hardware.add(device);
    }

    /// One device that hears the sound on one channel. Its clock is wrong by some parts in a million.
    struct Ear {
        AudioObjectID device;
        std::size_t channel;
        double rate;   ///< frames it really gives in a second
        double begins; ///< when it gives its first one, in seconds
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
    /// Both hear the same; whoever is behind comes next, as on a machine.
    void hearBoth(Ear& one, Ear& other, double until) {
        while (one.next() < until || other.next() < until)
            hear(one.next() <= other.next() ? one : other);
    }

    KnownSound sound{24};
    bool silent = false;
    FakeAudioHardware hardware;
    FakeIORegistry registry;
};

} // namespace

TEST_F(RecordMix, SourcesStayTogetherThoughTheirClocksDiffer) {
    begin(true, true);
    Ear input{Microphone, 0, Rate, 0.0};
    Ear computer{ComputerAudio, 1, Rate * (1 + 100e-6), 0.0073};
    // The clocks are known well before the recording, as in a program that has run for a while.
    silent = true;
    hearBoth(input, computer, 65);
    silent = false;
    controller->startAndStopRecord();
    hearBoth(input, computer, 65 + 40);
    controller->startAndStopRecord();
    ASSERT_TRUE(waitFor([this] { return controller->jobsInQueue() == 0; }, 120000));
    ASSERT_EQ(delegate.paths.size(), 1) << qPrintable(controller->notices().join(u'\n'));
    const auto mixed = decoded(delegate.paths.front());
    ASSERT_EQ(mixed.size(), 2U);
    const std::size_t end = mixed[0].size();
    EXPECT_NEAR(double(end) / 44100, 40, 0.05);
    // Frames of 44100 Hz; 88 are two milliseconds. Without the correction the end would be 176 frames off.
    const double atStart = bestLag(mixed[0], mixed[1], 22050, 4096, 400);
    const double atEnd = bestLag(mixed[0], mixed[1], end - 44100, 4096, 400);
    RecordProperty("lag_at_start_ms", std::to_string(atStart / 44.1));
    RecordProperty("lag_at_end_ms", std::to_string(atEnd / 44.1));
    EXPECT_LT(std::fabs(atStart), 22) << "half a millisecond";
    EXPECT_LT(std::fabs(atEnd), 22);
}

TEST_F(RecordMix, PartsOfTwoSourcesFitEndToEnd) {
    begin(true, true);
    Ear input{Microphone, 0, Rate, 0.0};
    Ear computer{ComputerAudio, 1, Rate, 0.011};
    controller->startAndStopRecord();
    for (int part = 1; part <= 4; ++part) {
        hearBoth(input, computer, part * 1.7);
        if (part < 4)
            controller->splitTheRecord();
    }
    controller->startAndStopRecord();
    ASSERT_TRUE(waitFor([this] { return controller->jobsInQueue() == 0; }, 120000));
    ASSERT_EQ(delegate.paths.size(), 4);
    AudioCheck::Channels all(2);
    std::vector<std::size_t> cuts;
    for (const QString& path : delegate.paths) {
        const auto part = decoded(path);
        ASSERT_EQ(part.size(), 2U);
        for (std::size_t channel = 0; channel < 2; ++channel)
            all[channel].insert(all[channel].end(), part[channel].begin(), part[channel].end());
        cuts.push_back(all[0].size());
    }
    std::vector<float> expected(all[0].size());
    for (std::size_t i = 0; i < expected.size(); ++i)
        expected[i] = sound.at(double(i) / 44100);
    for (std::size_t i = 0; i + 1 < cuts.size(); ++i)
        for (const auto& channel : all) {
            // A cut rounds to a frame, and each part's length does.
            EXPECT_LE(std::fabs(bestLag(expected, channel, cuts[i] - 6000, 4000, 60)), 3) << "before cut " << i;
            EXPECT_LE(std::fabs(bestLag(expected, channel, cuts[i] + 2000, 4000, 60)), 3) << "after cut " << i;
        }
}

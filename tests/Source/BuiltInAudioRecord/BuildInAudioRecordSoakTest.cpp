// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/AudioCheck.h"
#include "tests/support/EngineRecording.h"

#include <thread>

using namespace Qt::StringLiterals;

using EngineSoak = EngineRecording;

TEST_F(EngineSoak, LosesNotOneFrameInAMinuteBesideFourBusyLoops) {
    std::atomic<bool> end{false};
    std::vector<std::jthread> busy;
    for (int i = 0; i < 4; ++i)
        busy.emplace_back([&end] {
            while (!end)
                ;
        });
    TestSource source({.name = "soak", .description = "Soak", .rate = 44100, .ownClock = true});
    ASSERT_TRUE(configure(source));
    const QString wave = folder_.filePath(u"raw.wav"_s);
    ASSERT_TRUE(engine_.setOutPutAudioPath(wave, 0));
    ASSERT_TRUE(begin(1));
    const bool complete = recorded(60);
    end = true;
    ASSERT_TRUE(complete);
    engine_.stopRecordAudio();
    const auto samples = AudioCheck::waveSamples(wave);
    ASSERT_EQ(samples.size(), 2U);
    EXPECT_EQ(std::int64_t(samples[0].size()), engine_.framesAccepted());
    EXPECT_GE(samples[0].size(), 60U * 44100);
    EXPECT_TRUE(isUnbrokenRamp(samples[0], 0));
    EXPECT_TRUE(isUnbrokenRamp(samples[1], 1));
    EXPECT_EQ(engine_.lostFrames(), 0U);
}

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RingtoneMaker/CustomSound.h"

#include "Platform/Foundation/Services.h"
#include "tests/fakes/FakeSound.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class CustomSoundTest : public testing::Test {
protected:
    CustomSoundTest() { Platform::services().sounds = &sounds; }

    void expectStopped() { expectState(true, false, false); }
    void expectPlaying() { expectState(false, true, false); }
    void expectPaused() { expectState(false, false, true); }
    void expectState(bool stopped, bool playing, bool paused) {
        EXPECT_EQ(sound->isStop(), stopped);
        EXPECT_EQ(sound->isPlaying(), playing);
        EXPECT_EQ(sound->isPause(), paused);
    }
    FakeSound& player() { return *sounds.last; }

    Platform::ServicesScope scope;
    FakeSounds sounds;
    std::unique_ptr<CustomSound> sound = [this] {
        Platform::services().sounds = &sounds;
        return std::make_unique<CustomSound>(u"/music/a.m4a"_s);
    }();
};

TEST_F(CustomSoundTest, CreatesThePlayerOfTheFile) {
    EXPECT_EQ(sound->path(), u"/music/a.m4a"_s);
    EXPECT_EQ(sound->sound(), &player());
    EXPECT_EQ(player().path(), u"/music/a.m4a"_s);
    EXPECT_EQ(sound->duration(), 10.0);
    sound->setVolume(0.5F);
    EXPECT_EQ(sound->volume(), 0.5F);
    expectStopped();
}

TEST_F(CustomSoundTest, FollowsItsStateTable) {
    sound->stop();
    expectStopped();
    EXPECT_TRUE(player().calls.isEmpty()) << "a stopped player is not stopped again";
    sound->play();
    expectPlaying();
    sound->play();
    expectPlaying();
    EXPECT_EQ(player().calls, QStringList{u"play"_s});
    sound->pause();
    expectPaused();
    sound->pause();
    expectPaused();
    EXPECT_EQ(player().calls, (QStringList{u"play"_s, u"pause"_s}));
    sound->play();
    expectPlaying();
    EXPECT_EQ(player().calls.constLast(), u"resume"_s);
    sound->stop();
    expectStopped();
    sound->play();
    sound->pause();
    sound->stop();
    expectStopped();
}

TEST_F(CustomSoundTest, StaysStoppedWhenAStoppedSoundIsPausedAndStartsWithTheNextPlay) {
    sound->pause();
    expectStopped();
    EXPECT_TRUE(player().calls.isEmpty());
    sound->play();
    expectPlaying();
    EXPECT_EQ(player().calls, QStringList{u"play"_s});
}

TEST_F(CustomSoundTest, SeeksWhilePlayingAndContinuesFromThere) {
    sound->play();
    sound->setCurrentTime(4);
    expectPlaying();
    EXPECT_EQ(sound->currentTime(), 4.0);
    EXPECT_EQ(player().calls, (QStringList{u"play"_s, u"pause"_s, u"setCurrentTime 4"_s, u"resume"_s}));
}

TEST_F(CustomSoundTest, SeeksWhilePausedAndStaysPausedThere) {
    sound->play();
    sound->pause();
    sound->setCurrentTime(4);
    expectPaused();
    EXPECT_EQ(sound->currentTime(), 4.0);
    EXPECT_EQ(player().calls.constLast(), u"setCurrentTime 4"_s);
}

TEST_F(CustomSoundTest, SeeksWhileStoppedWithoutStarting) {
    sound->setCurrentTime(4);
    expectStopped();
    EXPECT_EQ(sound->currentTime(), 4.0);
}

TEST_F(CustomSoundTest, ReportsStoppedAtTheEndOfTheFile) {
    sound->play();
    player().end();
    expectStopped();
}

} // namespace

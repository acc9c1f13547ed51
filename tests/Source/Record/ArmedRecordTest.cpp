// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Recordings of computer audio alone: the wait for the first sound and the cuts at silences.
#include "tests/Source/Record/RecordFixture.h"

#include <sys/stat.h>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

/// Delivers a sound right after it was asked whether it records.
struct HeardWhenAsked : BuildInAudioRecord {
    [[nodiscard]] int recordStatus() const override {
        const int status = BuildInAudioRecord::recordStatus();
        if (status == 0 && sound)
            std::exchange(sound, {})();
        return status;
    }
    mutable std::function<void()> sound;
};

class ArmedRecordTest : public RecordFixture {
protected:
    /// Frames in all raw files, and frames in those that became recordings.
    [[nodiscard]] std::int64_t framesWritten() const {
        std::int64_t frames = 0;
        for (const auto& file : media.files)
            frames += file->framesAccepted;
        return frames;
    }
    [[nodiscard]] std::int64_t framesInRecordings() const {
        std::int64_t frames = 0;
        for (const QString& path : delegate.paths) {
            struct stat status {};
            if (::stat(QFile::encodeName(path).constData(), &status) != 0)
                continue;
            for (const auto& file : media.files)
                if (file->inode == status.st_ino)
                    frames += file->framesAccepted;
        }
        return frames;
    }
    /// Begins with computer audio alone and with engines of this kind. @return the engine that was made last
    template <typename Engine>
    Engine& beginWithEngines() {
        defaults.setObject(PreferenceStore::ChooseRecordBuiltIn, false);
        defaults.setObject(PreferenceStore::ChooseRecordComputerAudio, true);
        const auto last = std::make_shared<Engine*>();
        controller = std::make_unique<RecordStateController>([last] {
            auto engine = std::make_unique<Engine>();
            *last = engine.get();
            return engine;
        });
        controller->setDelegate(&delegate);
        controller->awakeFromNib();
        controller->setDisplayClockRunning(false);
        return **last;
    }
};

} // namespace

TEST_F(ArmedRecordTest, TheFileBeginsWithTheCycleOfTheFirstSound) {
    beginWithComputerAudioOnly();
    media.keepSamples = true;
    controller->startAndStopRecord();
    play(ComputerAudio, 0, 2);
    EXPECT_EQ(controller->recordState_(), 0);
    EXPECT_EQ(media.last().framesAccepted, 0);
    play(ComputerAudio, 0.25F, 0.01);
    EXPECT_EQ(controller->recordState_(), 1);
    EXPECT_FALSE(controller->isWaittingForSound());
    EXPECT_EQ(media.last().framesAccepted, 480);
    EXPECT_EQ(media.last().samples[0].front(), 0.25F);
    play(ComputerAudio, 0, 1);
    EXPECT_EQ(media.last().framesAccepted, 480 + 48000);
}

TEST_F(ArmedRecordTest, TheFileBeginsTheSetTimeBeforeTheFirstSound) {
    for (const auto& [stored, frames] :
         {std::pair<QVariant, int>{500, 24000}, {u"250"_s, 12000}, {-1, 0}, {60000, 5 * 48000}, {QVariantList{}, 0}}) {
        controller.reset();
        defaults.setObject(PreferenceStore::PreferencePreRollMSKey, stored);
        beginWithComputerAudioOnly();
        play(ComputerAudio, 0, 3);
        controller->startAndStopRecord();
        play(ComputerAudio, 0, 3);
        play(ComputerAudio, 0.25F, 6);
        EXPECT_EQ(media.last().framesAccepted, frames + 6 * 48000) << stored.typeName();
        EXPECT_NEAR(controller->recordedSeconds(), frames / 48000.0 + 6, 1e-6);
    }
}

TEST_F(ArmedRecordTest, ATimeBeforeTheFirstSoundThatIsSetLaterAppliesToTheNextStart) {
    beginWithComputerAudioOnly();
    defaults.setObject(PreferenceStore::PreferencePreRollMSKey, 500);
    controller->startAndStopRecord();
    play(ComputerAudio, 0, 3);
    play(ComputerAudio, 0.25F, 6);
    EXPECT_EQ(media.last().framesAccepted, 24000 + 6 * 48000);
}

TEST_F(ArmedRecordTest, AfterACutTheNextSoundRepeatsNothing) {
    beginWithComputerAudioOnly();
    setFilter(false);
    defaults.setObject(PreferenceStore::PreferencePreRollMSKey, 500);
    g_SplitTimeMS = 300;
    controller->startAndStopRecord();
    play(ComputerAudio, 0, 1);
    play(ComputerAudio, 0.25F, 2);
    play(ComputerAudio, 0, 1);
    play(ComputerAudio, 0.25F, 2);
    EXPECT_EQ(framesWritten(), 24000 + 5 * 48000);
}

TEST_F(ArmedRecordTest, StopBeforeAnySoundKeepsWaitingAndReportsIt) {
    beginWithComputerAudioOnly();
    controller->startAndStopRecord();
    controller->startAndStopRecord();
    EXPECT_FALSE(controller->isStateAudioRecord());
    EXPECT_EQ(controller->jobsInQueue(), 0);
    EXPECT_EQ(controller->startToolTip(), u"Start Record"_s);
    EXPECT_FALSE(controller->windowShouldClose());
    EXPECT_EQ(delegate.terminations, 1);

    play(ComputerAudio, 0.25F, 6);
    EXPECT_EQ(media.last().framesAccepted, 6 * 48000);
    EXPECT_FALSE(controller->isStateAudioRecord());
    controller->recordFlushTime();
    EXPECT_TRUE(controller->stateString().startsWith(u"Rec"_s));
    EXPECT_FALSE(controller->windowShouldClose());
    EXPECT_EQ(delegate.terminations, 1);
    EXPECT_EQ(alerts.shown.size(), 1);
}

TEST_F(ArmedRecordTest, ClosingDependsOnTheChosenSourceAndKeepsTheOtherRecording) {
    beginWithComputerAudioOnly();
    controller->startAndStopRecord();
    controller->startAndStopRecord();
    play(ComputerAudio, 0.25F, 6);
    controller->chooseRecordBuiltIn(true);
    EXPECT_FALSE(controller->windowShouldClose());
    EXPECT_EQ(delegate.terminations, 1);
    EXPECT_TRUE(alerts.shown.isEmpty());
    controller->finishAll();
    EXPECT_EQ(delegate.paths, QStringList{track(0)});
}

TEST_F(ArmedRecordTest, TheRecordingOfAStoppedWaitSurvivesItsDevice) {
    beginWithComputerAudioOnly();
    controller->startAndStopRecord();
    controller->startAndStopRecord();
    play(ComputerAudio, 0.25F, 6);
    hardware.remove(ComputerAudio);
    EXPECT_TRUE(hardware.unitOf(ComputerAudio)) << "the recording waits for its device";
    controller->startAndStopRecord();
    EXPECT_FALSE(controller->computerAudioChecked()) << "what came and went meanwhile is taken in at its end";
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(delegate.paths, QStringList{track(0)});
}

TEST_F(ArmedRecordTest, AStoppedWaitEndsWithItsDevice) {
    beginWithComputerAudioOnly();
    setFilter(false);
    controller->startAndStopRecord();
    controller->startAndStopRecord();
    hardware.remove(ComputerAudio);
    addComputerAudio();
    play(ComputerAudio, 0.25F, 1);
    EXPECT_EQ(controller->recordState_(), 0) << "there is no file to record into";
    EXPECT_EQ(controller->getAudioRecordPath(), track(0));
}

TEST_F(ArmedRecordTest, NoCutUsesAnInputThatIsBeingReplaced) {
    beginWithComputerAudioOnly();
    addHeadset();
    controller->startAndStopRecord();
    controller->startAndStopRecord();
    play(ComputerAudio, 0.25F, 1);
    int holdsOfTheComputer = 0;
    const auto computer = hardware.stateOf(ComputerAudio);
    hardware.onOpen = [&] { holdsOfTheComputer = computer->holds; };
    controller->chooseBuiltInDevice(1);
    EXPECT_EQ(holdsOfTheComputer, 1);
    EXPECT_EQ(computer->holds, 0);
    EXPECT_TRUE(hardware.unitOf(Headset));
}

TEST_F(ArmedRecordTest, ASoundDuringStopKeepsItsName) {
    addComputerAudio();
    HeardWhenAsked& computer = beginWithEngines<HeardWhenAsked>();
    controller->startAndStopRecord();
    computer.sound = [this] { play(ComputerAudio, 0.25F, 6); };
    controller->startAndStopRecord();
    EXPECT_EQ(media.last().framesAccepted, 6 * 48000);
    EXPECT_EQ(controller->getAudioRecordPath(), track(1));
    controller->finishAll();
    EXPECT_EQ(delegate.paths, QStringList{track(0)});
    controller.reset();
}

TEST_F(ArmedRecordTest, TheNextStartKeepsTheRecordingOfAStoppedWait) {
    beginWithComputerAudioOnly();
    controller->startAndStopRecord();
    record(ComputerAudio, 0.25F, 6);
    EXPECT_TRUE(controller->isWaittingForSound());
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(delegate.paths, QStringList{track(0)});
}

TEST_F(ArmedRecordTest, TheRecordingOfAStoppedWaitIsKeptWhenTheProgramEnds) {
    beginWithComputerAudioOnly();
    controller->startAndStopRecord();
    controller->startAndStopRecord();
    play(ComputerAudio, 0.25F, 6);
    controller->finishAll();
    EXPECT_EQ(delegate.paths, QStringList{track(0)});
}

TEST_F(ArmedRecordTest, PausingAWaitChangesOnlyTheButton) {
    beginWithComputerAudioOnly();
    controller->startAndStopRecord();
    controller->pauseAndResumeRecord();
    EXPECT_TRUE(controller->isRecordPause_());
    EXPECT_EQ(controller->pauseImage(), u"RecorderResume.png"_s);
    EXPECT_EQ(controller->recordState_(), 0);
    EXPECT_TRUE(controller->isWaittingForSound());
}

TEST_F(ArmedRecordTest, SplittingAWaitKeepsWaiting) {
    beginWithComputerAudioOnly();
    setFilter(false);
    controller->startAndStopRecord();
    controller->splitTheRecord();
    EXPECT_TRUE(controller->isWaittingForSound());
    EXPECT_TRUE(controller->isStateAudioRecord());
    EXPECT_EQ(controller->jobsInQueue(), 0);
    EXPECT_EQ(rawFiles().size(), 1);
    play(ComputerAudio, 0.25F, 1);
    controller->startAndStopRecord();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(delegate.paths, QStringList{track(0)});
}

TEST_F(ArmedRecordTest, SilenceClosesTheFileAndBeginsTheNextAtOnce) {
    beginWithComputerAudioOnly();
    g_SplitTimeMS = 300;
    controller->startAndStopRecord();
    play(ComputerAudio, 0.25F, 6);
    play(ComputerAudio, 0, 0.29);
    EXPECT_EQ(media.files.size(), 1U);
    play(ComputerAudio, 0, 0.01);
    ASSERT_EQ(media.files.size(), 2U);
    EXPECT_EQ(media.files[0]->framesAccepted, 48000 * 63 / 10);
    EXPECT_EQ(controller->recordState_(), 1);
    EXPECT_TRUE(controller->isStateAudioRecord());
    play(ComputerAudio, 0, 1);
    EXPECT_EQ(media.files.size(), 2U) << "one silence is cut once";
    EXPECT_EQ(media.last().framesAccepted, 48000);
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(delegate.paths, QStringList{track(0)});
    // The remaining silence is shorter than the filter time.
    controller->startAndStopRecord();
    EXPECT_EQ(controller->droppedRecordings(), 1);
    EXPECT_EQ(controller->jobsInQueue(), 0);
    EXPECT_TRUE(waitFor([this] { return rawFiles().isEmpty(); }));
}

TEST_F(ArmedRecordTest, APartAfterASilenceIsNamedWithoutReadingTheFolder) {
    beginWithComputerAudioOnly();
    setFilter(false);
    g_SplitTimeMS = 300;
    controller->startAndStopRecord();
    play(ComputerAudio, 0.25F, 1);
    // Another process creates a file with the next part's name.
    QDir().mkpath(folder());
    EXPECT_TRUE(QFile(track(1)).open(QIODevice::WriteOnly));
    play(ComputerAudio, 0, 0.3);
    play(ComputerAudio, 0.25F, 1);
    play(ComputerAudio, 0, 0.3);
    controller->startAndStopRecord();
    ASSERT_TRUE(queueDone());
    // Here the parts follow each other so quickly that a later one may be named first.
    ASSERT_EQ(delegate.paths.size(), 3);
    EXPECT_EQ(delegate.paths.front(), track(0));
    EXPECT_NE(delegate.paths.at(1), delegate.paths.at(2));
    EXPECT_FALSE(delegate.paths.contains(track(1))) << "the other file stays";
    EXPECT_EQ(framesInRecordings(), framesWritten());
}

TEST_F(ArmedRecordTest, ThePartAfterADroppedOneKeepsItsReservedName) {
    beginWithComputerAudioOnly();
    setFilter(true, u"1"_s);
    g_SplitTimeMS = 300;
    controller->startAndStopRecord();
    play(ComputerAudio, 0.25F, 0.1);
    play(ComputerAudio, 0, 0.3);
    ASSERT_EQ(media.files.size(), 2U);
    EXPECT_EQ(controller->droppedRecordings(), 1);
    EXPECT_EQ(controller->getAudioRecordPath(), track(1)) << "the part that is recorded has the first name";
    play(ComputerAudio, 0.25F, 2);
    controller->startAndStopRecord();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(delegate.paths, QStringList{track(0)});
}

TEST_F(ArmedRecordTest, CutsOnceAtEverySilenceBetweenSongs) {
    beginWithComputerAudioOnly();
    g_SplitTimeMS = 300;
    controller->startAndStopRecord();
    for (int song = 0; song < 3; ++song) {
        play(ComputerAudio, 0.25F, 6);
        play(ComputerAudio, 0, 0.5);
    }
    controller->startAndStopRecord();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(delegate.paths, (QStringList{track(0), track(1), track(2)}));
    std::int64_t frames = 0;
    for (const auto& file : media.files)
        frames += file->framesAccepted;
    EXPECT_EQ(frames, 3 * 48000 * 65 / 10);
}

TEST_F(ArmedRecordTest, APartAfterAManualSplitIsCutAtItsNextSilence) {
    beginWithComputerAudioOnly();
    g_SplitTimeMS = 300;
    controller->startAndStopRecord();
    play(ComputerAudio, 0.25F, 6);
    controller->splitTheRecord();
    EXPECT_EQ(controller->recordState_(), 1);
    play(ComputerAudio, 0.25F, 6);
    play(ComputerAudio, 0, 0.3);
    EXPECT_EQ(media.files.size(), 3U);
    controller->finishAll();
    EXPECT_EQ(delegate.paths, (QStringList{track(0), track(1)}));
}

TEST_F(ArmedRecordTest, WithTheInputOnNothingIsCut) {
    beginWithBoth();
    g_SplitTimeMS = 300;
    controller->startAndStopRecord();
    playBoth(0.25F, 1);
    playBoth(0, 2);
    EXPECT_EQ(media.files.size(), 2U);
}

TEST_F(ArmedRecordTest, WithSplittingOffNothingIsCut) {
    beginWithComputerAudioOnly();
    controller->startAndStopRecord();
    play(ComputerAudio, 0.25F, 1);
    play(ComputerAudio, 0, 3);
    EXPECT_EQ(media.files.size(), 1U);
}

TEST_F(ArmedRecordTest, AChangedSplitTimeAppliesAtOnce) {
    beginWithComputerAudioOnly();
    controller->startAndStopRecord();
    play(ComputerAudio, 0.25F, 1);
    play(ComputerAudio, 0, 1);
    g_SplitTimeMS = 500;
    play(ComputerAudio, 0, 0.01);
    EXPECT_EQ(media.files.size(), 2U);
}

TEST_F(ArmedRecordTest, APausedSilenceIsNotCut) {
    beginWithComputerAudioOnly();
    g_SplitTimeMS = 300;
    controller->startAndStopRecord();
    play(ComputerAudio, 0.25F, 1);
    controller->pauseAndResumeRecord();
    play(ComputerAudio, 0, 3);
    EXPECT_EQ(media.files.size(), 1U);
}

TEST_F(ArmedRecordTest, ATimeWithoutTheDeviceIsNotCut) {
    beginWithComputerAudioOnly();
    g_SplitTimeMS = 300;
    controller->startAndStopRecord();
    play(ComputerAudio, 0.25F, 1);
    play(ComputerAudio, 0, 0.1);
    // The first cycle may arrive before the main thread learns that the device is back.
    hardware.stateOf(ComputerAudio)->startsAnew = true;
    clock.advance(5);
    play(ComputerAudio, 0, 0.1);
    EXPECT_EQ(media.files.size(), 1U);
    play(ComputerAudio, 0, 0.15);
    EXPECT_EQ(media.files.size(), 2U) << "the silence before and after it counts";
}

TEST_F(ArmedRecordTest, AFailedCutContinuesInTheOldFileAndIsTriedOncePerSilence) {
    beginWithComputerAudioOnly();
    g_SplitTimeMS = 300;
    controller->startAndStopRecord();
    play(ComputerAudio, 0.25F, 6);
    media.createFails = true;
    play(ComputerAudio, 0, 2);
    EXPECT_TRUE(noticed(u"could not be split"_s));
    EXPECT_EQ(controller->notices().size(), 1);
    media.createFails = false;
    play(ComputerAudio, 0.25F, 1);
    EXPECT_EQ(media.files.size(), 1U);
    EXPECT_EQ(media.last().framesAccepted, 9 * 48000);
    play(ComputerAudio, 0, 0.3);
    EXPECT_EQ(media.files.size(), 2U);
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(delegate.paths, QStringList{track(0)});
}

TEST_F(ArmedRecordTest, ASplitTimeOfZeroDoesNotCutInsideSound) {
    beginWithComputerAudioOnly();
    g_SplitTimeMS = 0;
    controller->startAndStopRecord();
    play(ComputerAudio, 0.25F, 1);
    EXPECT_EQ(media.files.size(), 1U);
    play(ComputerAudio, 0, 0.01);
    EXPECT_EQ(media.files.size(), 2U) << "the first silent cycle cuts";
    play(ComputerAudio, 0, 1);
    EXPECT_EQ(media.files.size(), 2U) << "one silence is cut once";
    play(ComputerAudio, 0.25F, 1);
    EXPECT_EQ(media.files.size(), 2U);
}

TEST_F(ArmedRecordTest, AStoredSplitTimeThatIsNotANumberDoesNotCutInsideSound) {
    defaults.setObject(PreferenceStore::PreferenceSplitKey, 1);
    defaults.setObject(PreferenceStore::PreferenceSplitTimeMSKey, u"soon"_s);
    beginWithComputerAudioOnly();
    g_SplitTimeMS = Settings::storedSplitTimeMS();
    ASSERT_EQ(g_SplitTimeMS, 0);
    controller->startAndStopRecord();
    play(ComputerAudio, 0.25F, 1);
    EXPECT_EQ(media.files.size(), 1U);
}

TEST_F(ArmedRecordTest, ASplitTimeOfZeroDoesNotEndAPause) {
    beginWithComputerAudioOnly();
    controller->startAndStopRecord();
    play(ComputerAudio, 0.25F, 1);
    controller->pauseAndResumeRecord();
    g_SplitTimeMS = 0;
    play(ComputerAudio, 0, 1);
    EXPECT_EQ(controller->recordState_(), 2);
    EXPECT_EQ(media.files.size(), 1U);
}

namespace {

/// Delivers a sound at the moment when its cycles are about to be held.
struct HeardAtTheHold : BuildInAudioRecord {
    void holdCycles() override {
        if (sound)
            std::exchange(sound, {})();
        BuildInAudioRecord::holdCycles();
    }
    std::function<void()> sound;
};

} // namespace

TEST_F(ArmedRecordTest, ASoundDuringTheNextStartIsNotLost) {
    addComputerAudio();
    setFilter(false);
    HeardAtTheHold& computer = beginWithEngines<HeardAtTheHold>();
    controller->startAndStopRecord();
    controller->startAndStopRecord();
    computer.sound = [this] { play(ComputerAudio, 0.25F, 1); };
    controller->startAndStopRecord();
    play(ComputerAudio, 0.25F, 2);
    controller->startAndStopRecord();
    ASSERT_TRUE(queueDone());
    // Either the wait had ended, or its audio is a recording of its own: no file with sound is left without an owner.
    EXPECT_EQ(framesInRecordings(), framesWritten());
    EXPECT_EQ(delegate.paths.value(0), track(0)) << "no name is lost";
    EXPECT_TRUE(rawFiles().isEmpty());
    controller.reset();
}

TEST_F(ArmedRecordTest, ASoundDuringTheEndIsFinished) {
    addComputerAudio();
    setFilter(false);
    HeardWhenAsked& computer = beginWithEngines<HeardWhenAsked>();
    controller->startAndStopRecord();
    std::thread hearing;
    // On another thread, like an I/O thread: it may have to wait until the question is decided.
    std::atomic<bool> heard{false};
    computer.sound = [this, &hearing, &heard] {
        hearing = std::thread([this, &heard] {
            play(ComputerAudio, 0.25F, 1);
            heard = true;
        });
        for (int waits = 0; waits < 100 && !heard; ++waits)
            QThread::msleep(1);
    };
    controller->finishAll();
    ASSERT_TRUE(hearing.joinable());
    hearing.join();
    EXPECT_EQ(framesInRecordings(), framesWritten());
    EXPECT_EQ(controller->recordState_(), 0) << "nothing is left that the end cuts off";
    controller.reset();
}

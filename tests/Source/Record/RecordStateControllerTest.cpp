// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The state table row by row, the commands and the sources.
#include "tests/Source/Record/RecordFixture.h"

#include "Platform/Foundation/MainQueue.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/ProcessRequests/ControlRequests.h"

using namespace Qt::StringLiterals;

namespace {

class RecordStateControllerTest : public RecordFixture {
protected:
    void expectControlsOfARecording() {
        EXPECT_TRUE(controller->isStateAudioCanStartRecord());
        EXPECT_EQ(controller->startToolTip(), u"Stop Record"_s);
        EXPECT_EQ(controller->startImage(), u"RecorderStop.png"_s);
        EXPECT_EQ(controller->startPressedImage(), u"RecorderStopDown.png"_s);
        EXPECT_TRUE(controller->isStateAudioRecord());
        EXPECT_TRUE(controller->splitEnabled());
        EXPECT_FALSE(controller->sourcesEnabled());
        EXPECT_FALSE(controller->popUpEnabled());
    }
    void expectControlsOfIdle() {
        EXPECT_TRUE(controller->isStateAudioCanStartRecord());
        EXPECT_EQ(controller->startToolTip(), u"Start Record"_s);
        EXPECT_EQ(controller->startImage(), u"RecorderStart.png"_s);
        EXPECT_EQ(controller->startPressedImage(), u"RecorderStartDown.png"_s);
        EXPECT_FALSE(controller->isStateAudioRecord());
        EXPECT_FALSE(controller->isStateAudioRecordPause());
        EXPECT_FALSE(controller->splitEnabled());
        EXPECT_TRUE(controller->sourcesEnabled());
        EXPECT_TRUE(controller->popUpEnabled());
    }
};

} // namespace

TEST_F(RecordStateControllerTest, IdleOffersAStartAndTheSources) {
    addMicrophone();
    begin();
    expectControlsOfIdle();
    EXPECT_EQ(controller->recordState_(), 0);
    EXPECT_TRUE(controller->builtInChecked());
    EXPECT_FALSE(controller->computerAudioChecked());
    EXPECT_EQ(controller->pauseToolTip(), u"Pause Record"_s);
    EXPECT_EQ(controller->pauseImage(), u"RecorderPause.png"_s);
    controller->recordFlushTime();
    EXPECT_EQ(controller->stateString(), u"Ready"_s);
    EXPECT_EQ(controller->stateColor(), Qt::black);
}

TEST_F(RecordStateControllerTest, IdleWithoutASourceOffersNoStart) {
    addMicrophone();
    begin();
    controller->chooseRecordBuiltIn(false);
    EXPECT_FALSE(controller->canRecord());
    EXPECT_FALSE(controller->isStateAudioCanStartRecord());
    EXPECT_FALSE(controller->popUpEnabled());
    EXPECT_EQ(defaults.objectForKey(PreferenceStore::ChooseRecordBuiltIn), QVariant(false));
    controller->chooseRecordBuiltIn(true);
    EXPECT_TRUE(controller->isStateAudioCanStartRecord());
    EXPECT_TRUE(controller->popUpEnabled());
    EXPECT_EQ(defaults.objectForKey(PreferenceStore::ChooseRecordBuiltIn), QVariant(true));
}

TEST_F(RecordStateControllerTest, ArmedWaitsWithItsFileOpen) {
    beginWithComputerAudioOnly();
    controller->startAndStopRecord();
    expectControlsOfARecording();
    EXPECT_TRUE(controller->isWaittingForSound());
    EXPECT_EQ(controller->recordState_(), 0);
    ASSERT_EQ(rawFiles().size(), 1);
    EXPECT_TRUE(rawFiles().front().startsWith(u"ComputerA"_s));
    controller->recordFlushTime();
    EXPECT_EQ(controller->stateString(), u"Ready"_s);
}

TEST_F(RecordStateControllerTest, RecordingShowsItsTimeInRed) {
    addMicrophone();
    begin();
    controller->startAndStopRecord();
    expectControlsOfARecording();
    EXPECT_EQ(controller->recordState_(), 1);
    EXPECT_EQ(controller->pauseImage(), u"RecorderPause.png"_s);
    EXPECT_EQ(delegate.soundStops, 1);
    EXPECT_TRUE(delegate.waveShown);
    EXPECT_EQ(delegate.actionUpdates, 1);
    for (int tick = 0; tick < 4; ++tick)
        controller->recordFlushTime();
    EXPECT_EQ(controller->stateString(), u"Rec.."_s);
    EXPECT_EQ(controller->timeString(), u"00:02"_s);
    EXPECT_EQ(controller->stateColor(), Qt::red);
}

TEST_F(RecordStateControllerTest, PausedOffersToResumeAndStopsTheTime) {
    addMicrophone();
    begin();
    controller->startAndStopRecord();
    controller->recordFlushTime();
    controller->pauseAndResumeRecord();
    expectControlsOfARecording();
    EXPECT_EQ(controller->recordState_(), 2);
    EXPECT_TRUE(controller->isRecordPause_());
    EXPECT_TRUE(controller->isStateAudioRecordPause());
    EXPECT_EQ(controller->pauseImage(), u"RecorderResume.png"_s);
    EXPECT_EQ(controller->pauseToolTip(), u"Resume Record"_s);
    controller->recordFlushTime();
    controller->recordFlushTime();
    EXPECT_EQ(controller->stateString(), u"Pause"_s);
    EXPECT_FLOAT_EQ(controller->fRecordTime(), 0.5F);
    controller->pauseAndResumeRecord();
    EXPECT_EQ(controller->recordState_(), 1);
    EXPECT_EQ(controller->pauseImage(), u"RecorderPause.png"_s);
    EXPECT_EQ(controller->pauseToolTip(), u"Pause Record"_s);
}

TEST_F(RecordStateControllerTest, PausedCyclesAreNotWritten) {
    addMicrophone();
    begin();
    controller->startAndStopRecord();
    play(Microphone, 0.5F, 1);
    controller->pauseAndResumeRecord();
    play(Microphone, 0.5F, 1);
    controller->pauseAndResumeRecord();
    play(Microphone, 0.5F, 1);
    EXPECT_EQ(media.last().framesAccepted, 2 * 48000);
    EXPECT_DOUBLE_EQ(controller->recordedSeconds(), 2);
}

TEST_F(RecordStateControllerTest, StoppingReturnsToIdleAndQueuesOneJob) {
    addMicrophone();
    begin();
    record(Microphone, 0.5F, 6);
    expectControlsOfIdle();
    EXPECT_EQ(controller->recordState_(), 0);
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(delegate.paths, QStringList{track(0)});
    EXPECT_TRUE(QFileInfo::exists(track(0)));
    EXPECT_TRUE(rawFiles().isEmpty());
    const Dictionary entry = delegate.entries.at(0);
    EXPECT_EQ(entry.value(AudioRecordEntry::Title), u"Track0"_s);
    EXPECT_EQ(entry.value(AudioRecordEntry::Artist), u"NO Artist"_s);
    EXPECT_EQ(entry.value(AudioRecordEntry::Album), u"NO Album"_s);
    EXPECT_EQ(entry.value(AudioRecordEntry::Year), 2012);
    EXPECT_EQ(entry.value(AudioRecordEntry::Genre), u"NO General"_s);
    EXPECT_EQ(entry.value(AudioRecordEntry::AddDate), clock.now().toString(u"yyyy/MM/dd"_s));
    EXPECT_EQ(entry.value(AudioRecordEntry::SavePath), track(0));
    EXPECT_DOUBLE_EQ(entry.value(AudioRecordEntry::Length).toDouble(), 10);
    EXPECT_EQ(entry.value(AudioRecordEntry::IsNew), true);
}

TEST_F(RecordStateControllerTest, StoppingAPausedRecordingEndsThePause) {
    addMicrophone();
    begin();
    controller->startAndStopRecord();
    play(Microphone, 0.5F, 6);
    controller->pauseAndResumeRecord();
    controller->startAndStopRecord();
    expectControlsOfIdle();
    EXPECT_FALSE(controller->isRecordPause_());
    EXPECT_EQ(controller->pauseToolTip(), u"Pause Record"_s);
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(delegate.paths.size(), 1);
}

TEST_F(RecordStateControllerTest, SplittingKeepsTheButtonsAndCountsFromZero) {
    addMicrophone();
    begin();
    controller->startAndStopRecord();
    play(Microphone, 0.5F, 6);
    controller->recordFlushTime();
    controller->splitTheRecord();
    expectControlsOfARecording();
    EXPECT_EQ(controller->recordState_(), 1);
    EXPECT_FLOAT_EQ(controller->fRecordTime(), 0);
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(delegate.paths, QStringList{track(0)});
    play(Microphone, 0.5F, 7);
    EXPECT_DOUBLE_EQ(controller->recordedSeconds(), 13);
    controller->startAndStopRecord();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(delegate.paths, (QStringList{track(0), track(1)}));
}

TEST_F(RecordStateControllerTest, SplittingAPausedRecordingResumesIt) {
    addMicrophone();
    begin();
    controller->startAndStopRecord();
    play(Microphone, 0.5F, 6);
    controller->pauseAndResumeRecord();
    controller->splitTheRecord();
    EXPECT_EQ(controller->recordState_(), 1);
    EXPECT_FALSE(controller->isRecordPause_());
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(delegate.paths, QStringList{track(0)});
}

TEST_F(RecordStateControllerTest, SplittingGivesEveryFrameToExactlyOneFile) {
    addMicrophone();
    media.keepSamples = true;
    setFilter(false);
    begin();
    controller->startAndStopRecord();
    for (int cycle = 0; cycle < 20; ++cycle) {
        hardware.unitOf(Microphone)->feedValue(float(cycle), 10, clock.hostTime());
        if (cycle % 3 == 2)
            controller->splitTheRecord();
    }
    controller->startAndStopRecord();
    std::vector<float> all;
    for (const auto& file : media.files)
        all.insert(all.end(), file->samples[0].begin(), file->samples[0].end());
    ASSERT_EQ(all.size(), 200U);
    for (std::size_t i = 0; i < all.size(); ++i)
        EXPECT_EQ(all[i], float(i / 10));
    for (std::size_t i = 1; i < media.files.size(); ++i)
        EXPECT_EQ(media.files[i]->predecessor, media.files[i - 1].get());
    ASSERT_TRUE(queueDone());
}

TEST_F(RecordStateControllerTest, TwoSourcesAreCutAtTheSameTimeInsideACycle) {
    beginWithBoth();
    setFilter(false);
    controller->startAndStopRecord();
    const std::uint64_t start = clock.hostTime();
    // Cycles of 10 ms; those of the computer-audio device begin 4 ms later.
    const auto feed = [&](int cycle) {
        hardware.unitOf(Microphone)->feedValue(0.5F, 480, start + std::uint64_t(cycle) * 10'000'000);
        hardware.unitOf(ComputerAudio)->feedValue(0.5F, 480, start + std::uint64_t(cycle) * 10'000'000 + 4'000'000);
    };
    for (int cycle = 0; cycle < 10; ++cycle)
        feed(cycle);
    controller->splitTheRecord();
    for (int cycle = 10; cycle < 20; ++cycle)
        feed(cycle);
    EXPECT_DOUBLE_EQ(controller->recordedSeconds(), 0.196) << "of the shorter file of each part";
    controller->startAndStopRecord();
    ASSERT_EQ(media.files.size(), 4U);
    EXPECT_EQ(media.files[0]->framesAccepted, 4800 + 192) << "up to where the other device has come";
    EXPECT_EQ(media.files[1]->framesAccepted, 4800);
    EXPECT_EQ(media.files[2]->framesAccepted, 4800 - 192);
    EXPECT_EQ(media.files[3]->framesAccepted, 4800);
    ASSERT_TRUE(queueDone());
    const auto second = media.mixes().at(1).timings;
    EXPECT_NEAR(second.at(0).offset, 0, 1e-6);
    EXPECT_NEAR(second.at(1).offset, 0, 1e-6);
}

TEST_F(RecordStateControllerTest, TwoSourcesPauseAndResumeAtTheSameTimeInsideACycle) {
    beginWithBoth();
    controller->startAndStopRecord();
    const std::uint64_t start = clock.hostTime();
    // Cycles of 10 ms; those of the computer-audio device begin 4 ms later.
    const auto microphone = [&](int from, int to) {
        for (int cycle = from; cycle < to; ++cycle)
            hardware.unitOf(Microphone)->feedValue(0.5F, 480, start + std::uint64_t(cycle) * 10'000'000);
    };
    const auto computer = [&](int from, int to) {
        for (int cycle = from; cycle < to; ++cycle)
            hardware.unitOf(ComputerAudio)->feedValue(0.5F, 480, start + std::uint64_t(cycle) * 10'000'000 + 4'000'000);
    };
    microphone(0, 11); // until 110 ms
    computer(0, 10);   // until 104 ms
    controller->pauseAndResumeRecord();
    microphone(11, 15); // until 150 ms
    computer(10, 16);   // until 164 ms
    EXPECT_EQ(media.files.at(0)->framesAccepted, 110 * 48);
    EXPECT_EQ(media.files.at(1)->framesAccepted, 106 * 48) << "up to where the other device had come";
    controller->pauseAndResumeRecord();
    microphone(15, 26); // until 260 ms
    computer(16, 26);   // until 264 ms
    EXPECT_EQ(media.files.at(0)->framesAccepted, (110 + 96) * 48) << "from where the other device has come";
    EXPECT_EQ(media.files.at(1)->framesAccepted, (106 + 100) * 48);
}

TEST_F(RecordStateControllerTest, APauseThatEndsAtOnceOmitsNothing) {
    beginWithBoth();
    controller->startAndStopRecord();
    const std::uint64_t start = clock.hostTime();
    for (int cycle = 0; cycle < 20; ++cycle) {
        hardware.unitOf(Microphone)->feedValue(0.5F, 480, start + std::uint64_t(cycle) * 10'000'000);
        controller->pauseAndResumeRecord();
        controller->pauseAndResumeRecord();
        hardware.unitOf(ComputerAudio)->feedValue(0.5F, 480, start + std::uint64_t(cycle) * 10'000'000);
    }
    EXPECT_EQ(media.files.at(0)->framesAccepted, 20 * 480);
    EXPECT_EQ(media.files.at(1)->framesAccepted, 20 * 480);
}

TEST_F(RecordStateControllerTest, NamesSkipFilesAndReservedNames) {
    addMicrophone();
    QDir().mkpath(folder());
    EXPECT_TRUE(QFile(track(0)).open(QIODevice::WriteOnly));
    begin();
    EXPECT_EQ(controller->getAudioRecordPath(), track(1));
    EXPECT_EQ(controller->getAudioRecordPath(), track(2));
}

TEST_F(RecordStateControllerTest, RingtonesGetTheFirstFreeName) {
    addMicrophone();
    defaults.setObject(PreferenceStore::PreferenceRingtoneSavePathKey, folder());
    begin();
    EXPECT_EQ(controller->nextRingtoneMakerFilePath(), folder() + u"/Ringtone.m4r"_s);
    EXPECT_TRUE(QFile(folder() + u"/Ringtone.m4r"_s).open(QIODevice::WriteOnly));
    EXPECT_EQ(controller->nextRingtoneMakerFilePath(), folder() + u"/Ringtone1.m4r"_s);
}

TEST_F(RecordStateControllerTest, TheDefaultFolderIsTheMusicFolder) {
    addMicrophone();
    defaults.removeObject(PreferenceStore::PreferenceSavePathKey);
    begin();
    EXPECT_EQ(controller->getAudioRecordPath(), home.filePath(u"Music/com.korvane.Sonaphex/Track0.m4a"_s));
}

TEST_F(RecordStateControllerTest, AnUnusableStoredFolderGivesTheMusicFolder) {
    addMicrophone();
    begin();
    for (const QVariant& stored : {QVariant(u""_s), QVariant(12), QVariant(QByteArray("x")), QVariant(QVariantList{1}),
                                   QVariant(u"relative/folder"_s)}) {
        defaults.setObject(PreferenceStore::PreferenceSavePathKey, stored);
        defaults.setObject(PreferenceStore::PreferenceRingtoneSavePathKey, stored);
        const QString music = home.filePath(u"Music/com.korvane.Sonaphex"_s);
        EXPECT_TRUE(controller->getAudioRecordPath().startsWith(music + u"/Track"_s)) << stored.typeName();
        EXPECT_EQ(controller->nextRingtoneMakerFilePath(), music + u"/Ringtone.m4r"_s) << stored.typeName();
    }
    EXPECT_FALSE(QFileInfo::exists(u"/Track0.m4a"_s));
}

TEST_F(RecordStateControllerTest, TheMeterAlternatesBetweenTwoSources) {
    beginWithBoth();
    controller->clientRecievedBuiltInAudioData(0.25F);
    controller->clientRecievedComputerAudioData(0.75F);
    clock.setReferenceSeconds(1000.05);
    EXPECT_FLOAT_EQ(controller->getAudioWaveLevelValue(), 0.25F);
    clock.setReferenceSeconds(1000.15);
    EXPECT_FLOAT_EQ(controller->getAudioWaveLevelValue(), 0.75F);
    controller->chooseRecordBuiltIn(false);
    clock.setReferenceSeconds(1000.05);
    EXPECT_FLOAT_EQ(controller->getAudioWaveLevelValue(), 0.75F);
    controller->chooseRecordComputerAudio(false);
    EXPECT_FLOAT_EQ(controller->getAudioWaveLevelValue(), 0);
    controller->chooseRecordBuiltIn(true);
    EXPECT_FLOAT_EQ(controller->getAudioWaveLevelValue(), 0.25F);
}

TEST_F(RecordStateControllerTest, TellsClippingOfTheCheckedSourcesOnce) {
    beginWithBoth();
    play(Microphone, 0.5F, 0.02);
    EXPECT_FALSE(controller->takeClipping());
    play(Microphone, 1, 0.02);
    EXPECT_TRUE(controller->takeClipping()) << "also while nothing is recorded";
    EXPECT_FALSE(controller->takeClipping());
    play(ComputerAudio, 1, 0.02);
    EXPECT_TRUE(controller->takeClipping());
    controller->chooseRecordBuiltIn(false);
    play(Microphone, 1, 0.02);
    EXPECT_FALSE(controller->takeClipping());
    controller->chooseRecordBuiltIn(true);
    EXPECT_FALSE(controller->takeClipping()) << "that was before the source was checked";
}

TEST_F(RecordStateControllerTest, LevelsArriveWhileNothingIsRecorded) {
    addMicrophone();
    begin();
    play(Microphone, 0.01F, 0.02);
    EXPECT_NEAR(controller->getAudioWaveLevelValue(), 0.12, 1e-5);
}

TEST_F(RecordStateControllerTest, ClosingTheWindowEndsTheProgramWhenIdle) {
    addMicrophone();
    begin();
    EXPECT_FALSE(controller->windowShouldClose());
    EXPECT_EQ(delegate.terminations, 1);
    EXPECT_TRUE(alerts.shown.isEmpty());
}

TEST_F(RecordStateControllerTest, ClosingTheWindowIsRefusedWhileRecordingAndPaused) {
    addMicrophone();
    begin();
    controller->startAndStopRecord();
    EXPECT_FALSE(controller->windowShouldClose());
    controller->pauseAndResumeRecord();
    EXPECT_FALSE(controller->windowShouldClose());
    EXPECT_EQ(delegate.terminations, 0);
    ASSERT_EQ(alerts.shown.size(), 2);
    EXPECT_EQ(alerts.shown.at(0).title, u"Waring:"_s);
    EXPECT_EQ(alerts.shown.at(0).text, u"Please stop your recording."_s);
    EXPECT_EQ(alerts.shown.at(0).buttons, QStringList{u"OK"_s});
}

TEST_F(RecordStateControllerTest, ComputerAudioWithoutItsDeviceOffersTheAddOn) {
    addMicrophone();
    begin();
    alerts.answers = {1};
    controller->chooseRecordComputerAudio(true);
    ASSERT_EQ(alerts.shown.size(), 1);
    EXPECT_EQ(alerts.shown.at(0).title, u"Add-on required to record the system audio."_s);
    EXPECT_EQ(
        alerts.shown.at(0).text,
        u"KorvanAudioDevice is easy to use, it simply accept system audio data, allowing any audio application to "
        u"send and receive audio with no other support needed. KorvanAudioDevice is free, and runs on Linux "
        u"computers. This driver will only be used by Sonaphex."_s);
    EXPECT_EQ(alerts.shown.at(0).buttons, (QStringList{u"Install"_s, u"Cancel"_s}));
    EXPECT_EQ(delegate.installs, 0);
    EXPECT_FALSE(controller->computerAudioChecked());
    EXPECT_EQ(defaults.objectForKey(PreferenceStore::ChooseRecordComputerAudio), QVariant(false));
    controller->chooseRecordComputerAudio(true);
    EXPECT_EQ(delegate.installs, 1);
    EXPECT_FALSE(controller->computerAudioChecked());
}

TEST_F(RecordStateControllerTest, AStoredComputerAudioChoiceNeedsItsDevice) {
    addMicrophone();
    defaults.setObject(PreferenceStore::ChooseRecordComputerAudio, true);
    begin();
    EXPECT_FALSE(controller->computerAudioChecked());
    addComputerAudio();
    EXPECT_TRUE(controller->computerAudioChecked());
    EXPECT_EQ(controller->deviceNames(), QStringList{u"Microphone"_s});
}

TEST_F(RecordStateControllerTest, ARawFileThatCannotBeCreatedIsReported) {
    addMicrophone();
    begin();
    media.createFails = true;
    controller->startAndStopRecord();
    EXPECT_EQ(controller->recordState_(), 1);
    EXPECT_TRUE(noticed(u"is not being recorded"_s));
    controller->startAndStopRecord();
    EXPECT_EQ(controller->jobsInQueue(), 0);
    EXPECT_EQ(controller->getAudioRecordPath(), track(0));
}

TEST_F(RecordStateControllerTest, WithoutAMicrophoneTheComputerRecordingReachesTheLibrary) {
    addComputerAudio();
    defaults.setObject(PreferenceStore::ChooseRecordComputerAudio, true);
    begin();
    EXPECT_TRUE(controller->builtInChecked());
    EXPECT_TRUE(controller->computerAudioChecked());
    controller->startAndStopRecord();
    EXPECT_TRUE(noticed(u"The input device is off"_s));
    play(ComputerAudio, 0.5F, 6);
    EXPECT_EQ(controller->recordState_(), 1);
    controller->startAndStopRecord();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(delegate.paths, QStringList{track(0)});
}

TEST_F(RecordStateControllerTest, WithoutAnySourceTheUserIsInformedAndNoNameIsReserved) {
    begin();
    controller->startAndStopRecord();
    EXPECT_TRUE(noticed(u"Nothing is recorded"_s));
    EXPECT_EQ(controller->recordState_(), 0);
    controller->startAndStopRecord();
    expectControlsOfIdle();
    EXPECT_EQ(controller->getAudioRecordPath(), track(0));
}

TEST_F(RecordStateControllerTest, LostFramesOfOneOfTwoSourcesBecomeSilence) {
    beginWithBoth();
    controller->startAndStopRecord();
    for (const auto& unit : hardware.opened)
        EXPECT_TRUE(unit->fillsLost);
    controller->startAndStopRecord();
    controller->chooseRecordComputerAudio(false);
    controller->startAndStopRecord();
    for (const auto& unit : hardware.opened)
        EXPECT_FALSE(unit->fillsLost) << "alone, a recording leaves out what it lost";
}

TEST_F(RecordStateControllerTest, LostFramesAreCountedAndReported) {
    addMicrophone();
    begin();
    controller->startAndStopRecord();
    play(Microphone, 0.5F, 6);
    hardware.opened.back()->lost = 480;
    EXPECT_EQ(controller->lostFrames(), 480U);
    controller->recordFlushTime();
    EXPECT_TRUE(noticed(u"0.010 s are missing (480 frames)"_s));
    controller->splitTheRecord();
    play(Microphone, 0.5F, 6);
    hardware.opened.back()->lost = 500;
    controller->startAndStopRecord();
    EXPECT_EQ(controller->lostFrames(), 500U);
    ASSERT_TRUE(queueDone());
}

TEST_F(RecordStateControllerTest, ALostDeviceIsReported) {
    addMicrophone();
    begin();
    controller->startAndStopRecord();
    hardware.unitOf(Microphone)->tell(Platform::InputUnit::Event::DeviceLost);
    EXPECT_TRUE(noticed(u"The input device went away"_s));
    hardware.unitOf(Microphone)->tell(Platform::InputUnit::Event::DeviceReturned);
    EXPECT_TRUE(noticed(u"the input device was away"_s));
    EXPECT_EQ(controller->recordState_(), 1);
    controller->dismissNotices();
    EXPECT_TRUE(controller->notices().isEmpty());
}

TEST_F(RecordStateControllerTest, FinishingEndsTheRecordingAndTheQueue) {
    addMicrophone();
    begin();
    controller->startAndStopRecord();
    play(Microphone, 0.5F, 6);
    controller->splitTheRecord();
    play(Microphone, 0.5F, 6);
    controller->finishAll();
    EXPECT_EQ(controller->jobsInQueue(), 0);
    EXPECT_EQ(delegate.paths, (QStringList{track(0), track(1)}));
    expectControlsOfIdle();
}

TEST_F(RecordStateControllerTest, NoRecordingStartsWhileTheLastFilesAreFinished) {
    addMicrophone();
    begin();
    setFilter(false);
    controller->startAndStopRecord();
    play(Microphone, 0.5F, 1);
    controller->startAndStopRecord();
    ASSERT_EQ(controller->jobsInQueue(), 1);
    // Hot keys and requests of other processes still reach a program that is ending.
    std::optional<bool> couldStart;
    QByteArray answer;
    Platform::MainQueue::post([&] {
        couldStart = controller->isStateAudioCanStartRecord();
        answer = ControlRequests(*controller).answer("start-stop").line;
        controller->startAndStopRecord();
    });
    controller->finishAll();
    EXPECT_EQ(couldStart, false);
    EXPECT_EQ(answer, "failed the program is ending");
    EXPECT_EQ(controller->recordState_(), 0) << "nothing is left that would be cut off";
    EXPECT_EQ(delegate.paths, QStringList{track(0)});
    // A logout may be cancelled.
    expectControlsOfIdle();
    controller->startAndStopRecord();
    EXPECT_EQ(controller->recordState_(), 1);
}

TEST_F(RecordStateControllerTest, OverriddenSettingsAreNotStored) {
    addMicrophone();
    const Dictionary before = defaults.values();
    OverriddenPreferences preferences;
    preferences.setValue(0, Settings::filter);
    preferences.setValue(home.filePath(u"Elsewhere"_s), Settings::savePath);
    controller = std::make_unique<RecordStateController>();
    controller->setDelegate(&delegate);
    controller->setPreferences(&preferences);
    controller->awakeFromNib();
    controller->chooseRecordBuiltIn(true);
    record(Microphone, 0.5F, 0.5);
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(delegate.paths, QStringList{home.filePath(u"Elsewhere/Track0.m4a"_s)});
    EXPECT_EQ(defaults.values(), before);
    controller.reset();
}

TEST_F(RecordStateControllerTest, AThousandCommandsInATightLoopLoseNothing) {
    beginWithBoth();
    setFilter(false);
    for (int round = 0; round < 250; ++round) {
        controller->startAndStopRecord();
        playBoth(0.5F, 0.02);
        controller->pauseAndResumeRecord();
        controller->splitTheRecord();
        playBoth(0.5F, 0.01);
        controller->startAndStopRecord();
    }
    ASSERT_TRUE(waitFor([this] { return controller->jobsInQueue() == 0; }, 60000));
    EXPECT_EQ(delegate.paths.size(), 500);
    EXPECT_TRUE(rawFiles().isEmpty());
    std::int64_t frames = 0;
    for (const auto& file : media.files)
        if (file->path.contains(u"BuiltInA"_s))
            frames += file->framesAccepted;
    EXPECT_EQ(frames, 250 * 3 * 480);
}

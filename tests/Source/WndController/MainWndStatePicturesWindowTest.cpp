// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/Source/WndController/MainWndPictures.h"

#include "RingtoneMaker/CustomSound.h"
#include "Source/View/ConvertingTipView.h"
#include "tests/fakes/FakeRecordingFiles.h"

namespace {

/// What the window shows of the recording, from the smallest window to a full screen.
class StatePictures : public Pictures {
protected:
    ~StatePictures() override {
        if (world.record->isStateAudioRecord())
            world.controller->startAndStopRecord();
        EXPECT_TRUE(waitFor([&] { return world.record->jobsInQueue() == 0; }));
    }
    void openFilled(bool input = true, bool computer = false) {
        PreferenceStore::setPreferenceValue(input, PreferenceStore::ChooseRecordBuiltIn);
        PreferenceStore::setPreferenceValue(computer, PreferenceStore::ChooseRecordComputerAudio);
        fill();
        world.open({720, 480});
        world.record->setDisplayClockRunning(false);
        showAll(0);
    }
    void record() {
        world.controller->startAndStopRecord();
        feed(0.5F);
        if (world.record->computerAudioChecked())
            feed(0.5F, WindowWorld::kComputer);
        tick(374);
        levels();
    }
};

} // namespace

TEST_F(StatePictures, Idle) {
    openFilled();
    levels();
    takeAll(u"state-idle"_s);
}

TEST_F(StatePictures, AnEmptyLibrary) {
    world.open({720, 480});
    takeAll(u"state-empty"_s);
}

TEST_F(StatePictures, NoInputDevice) {
    openFilled();
    while (!world.hardware.list.empty())
        world.hardware.remove(world.hardware.list.back().id);
    ASSERT_TRUE(waitFor([&] { return !world.record->noticeList().isEmpty(); }));
    takeAll(u"state-no-device"_s);
}

TEST_F(StatePictures, NoSoundServer) {
    openFilled();
    world.hardware.isConnected = false;
    Q_EMIT world.hardware.connectedChanged(false);
    takeAll(u"state-no-server"_s);
}

TEST_F(StatePictures, ArmedAndWaitingForTheFirstSound) {
    openFilled(false, true);
    world.controller->startAndStopRecord();
    tick();
    takeAll(u"state-armed"_s);
    EXPECT_TRUE(world.record->isWaittingForSound());
}

TEST_F(StatePictures, RecordingOneSource) {
    openFilled();
    record();
    takeAll(u"state-recording"_s);
}

TEST_F(StatePictures, RecordingTwoSourcesWithALoss) {
    openFilled(true, true);
    record();
    for (const auto& state : world.hardware.opened)
        state->lost = 480;
    tick();
    ASSERT_TRUE(waitFor([&] { return !world.record->noticeList().isEmpty(); }));
    takeAll(u"state-two-sources"_s);
}

TEST_F(StatePictures, Paused) {
    openFilled();
    record();
    world.controller->pauseAndResumeRecord();
    tick();
    takeAll(u"state-paused"_s);
}

TEST_F(StatePictures, TheOtherSideOfTheDisplayDuringARecording) {
    openFilled();
    record();
    world.controller->display().changeTabView();
    takeAll(u"state-recording-other-side"_s);
}

TEST_F(StatePictures, FinishingTwoSources) {
    FakeRecordingFiles files;
    files.holdMix = true;
    Platform::services().mediaFiles = &files;
    openFilled(true, true);
    record();
    world.controller->startAndStopRecord();
    tick();
    auto& tip = world.controller->recordPanel().fileConvertingTipView();
    ASSERT_TRUE(waitFor([&] { return tip.isVisible() && tip.y() == tip.parentWidget()->height() - tip.height(); }));
    takeAll(u"state-finishing"_s);
    files.holdMix = false;
    EXPECT_TRUE(waitFor([&] { return world.record->jobsInQueue() == 0; }));
}

TEST_F(StatePictures, Playing) {
    openFilled();
    showAll(1);
    world.controller->tableViewDoubleAction();
    auto& sound = static_cast<FakeSound&>(*world.controller->display().playSound()->sound());
    sound.time = sound.duration() * 0.4;
    world.controller->display().updatePlaySoundProgress();
    takeAll(u"state-playing"_s);
}

TEST_F(StatePictures, AFullDisk) {
    openFilled();
    record();
    world.controller->display().setNotices(
        {{.text = u"The disk is full. Nothing more is recorded until there is room; what was recorded is kept."_s,
          .help = RecordNotice::Help::FreeSpace,
          .event = u"disk"_s}});
    takeAll(u"state-disk-full"_s);
}

TEST_F(StatePictures, SeveralNotices) {
    openFilled();
    levels();
    world.controller->display().setNotices(
        {{.text = u"An earlier recording could not be finished. It is kept at"_s,
          .path = QDir::homePath() + u"/.local/share/com.korvane.Sonaphex/Unfinished/Track12 computer.m4a"_s,
          .help = RecordNotice::Help::Show,
          .event = u"unfinished"_s},
         {.text = u"4.7 s are missing: the input device was away. The recording goes on."_s, .event = u"away"_s},
         {.text = u"Built-in Microphone is gone. USB Headset takes its place until it is back."_s,
          .help = RecordNotice::Help::ChooseDevice,
          .event = u"gone"_s}});
    takeAll(u"state-notices"_s);
    world.controller->display().showNextNotice();
    world.controller->display().showNextNotice();
    takeAll(u"state-notices-path"_s);
}

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The recorder's notices: one for each event, up to date, with the cause first, and none of an earlier recording.
#include "Source/Record/RecordNotices.h"

#include "Source/Record/RecordRoom.h"
#include "Source/Record/UnfinishedRecordings.h"
#include "tests/Source/Record/RecordFixture.h"
#include "tests/support/DiskRoom.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

using Event = Platform::InputUnit::Event;
using Help = RecordNotice::Help;

class RecordNoticesTest : public RecordFixture {
protected:
    void tell(AudioObjectID device, Event event) { hardware.unitOf(device)->tell(event); }
    void tick(int times = 1) {
        for (int i = 0; i < times; ++i)
            controller->recordFlushTime();
    }
    /// Waits until there is exactly one notice, which contains @p words.
    [[nodiscard]] bool tells(const QString& words) {
        return waitFor([&] {
            return controller->noticeList().size() == 1 && controller->noticeList().front().sentence().contains(words);
        });
    }
    [[nodiscard]] RecordNotice only() const { return controller->noticeList().value(0); }
    void expectNoNotice() {
        QCoreApplication::processEvents();
        EXPECT_TRUE(controller->notices().isEmpty()) << controller->notices().join(u'\n').toStdString();
    }
    [[nodiscard]] QString makeUnfinished(const QString& name) const {
        const QString path = Platform::FileManager::unfinishedFolder() + u'/' + name;
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return path;
    }
};

} // namespace

TEST_F(RecordNoticesTest, AnOutageIsOneNoticeInSecondsHoweverOftenTheDeviceGoes) {
    addMicrophone();
    begin();
    controller->startAndStopRecord();
    play(Microphone, 0.5F, 1);
    tell(Microphone, Event::DeviceLost);
    ASSERT_TRUE(tells(u"The input device went away."_s));
    clock.advance(4.7);
    tell(Microphone, Event::DeviceReturned);
    ASSERT_TRUE(tells(u"4.7 s are missing: the input device was away."_s));
    play(Microphone, 0.5F, 1);
    tell(Microphone, Event::DeviceLost);
    ASSERT_TRUE(tells(u"The input device went away."_s));
    clock.advance(1);
    tell(Microphone, Event::DeviceReturned);
    EXPECT_TRUE(tells(u"5.7 s are missing: the input device was away."_s));
    controller->startAndStopRecord();
}

TEST_F(RecordNoticesTest, TheTimeWithoutTheDeviceIsNotAlsoBlamedOnTheComputer) {
    addMicrophone();
    begin();
    controller->startAndStopRecord();
    play(Microphone, 0.5F, 1);
    tell(Microphone, Event::DeviceLost);
    clock.advance(2);
    tell(Microphone, Event::DeviceReturned);
    const auto unit = hardware.stateOf(Microphone);
    unit->lost = unit->away = 96000;
    tick();
    EXPECT_TRUE(tells(u"2.0 s are missing: the input device was away."_s));
    EXPECT_EQ(controller->lostFrames(), 96000U);
    // A file that ends keeps both counts.
    controller->splitTheRecord();
    tick();
    EXPECT_TRUE(tells(u"2.0 s are missing: the input device was away."_s));
    unit->lost += 480;
    tick();
    EXPECT_TRUE(waitFor([&] {
        return controller->notices().join(u' ').contains(u"0.010 s are missing (480 frames)"_s);
    })) << qPrintable(controller->notices().join(u'\n'));
    EXPECT_EQ(controller->lostFrames(), 96480U);
    controller->startAndStopRecord();
}

TEST_F(RecordNoticesTest, TenSecondsOfDigitalSilenceAreNamedUntilThereIsASound) {
    addMicrophone();
    begin();
    controller->startAndStopRecord();
    play(Microphone, 0.5F, 1);
    play(Microphone, 0, 9.9);
    tick();
    expectNoNotice();
    play(Microphone, 0, 0.2);
    tick();
    ASSERT_TRUE(tells(u"The input device has delivered only silence for 10 s."_s));
    tick(3);
    EXPECT_TRUE(tells(u"only silence"_s)) << "once";
    play(Microphone, 0.001F, 0.01);
    tick();
    expectNoNotice();
    play(Microphone, 0, 10.1);
    tick();
    ASSERT_TRUE(tells(u"only silence"_s));
    controller->startAndStopRecord();
    tick();
    EXPECT_TRUE(tells(u"only silence"_s)) << "whoever comes back finds out why the recording is silent";
}

TEST_F(RecordNoticesTest, AMutedInputIsNamedWithTheWayToUnmuteIt) {
    addMicrophone();
    begin();
    controller->startAndStopRecord();
    hardware.find(Microphone)->elements[1] = {.volume = 1, .mute = true};
    play(Microphone, 0, 11);
    tick();
    ASSERT_TRUE(tells(u"The input device is muted"_s));
    EXPECT_EQ(only().help, Help::Unmute);
    controller->unmuteBuiltInDevice();
    EXPECT_FALSE(hardware.find(Microphone)->elements[1].mute);
}

TEST_F(RecordNoticesTest, APauseIsNoSilence) {
    addMicrophone();
    begin();
    controller->startAndStopRecord();
    play(Microphone, 0, 9);
    controller->pauseAndResumeRecord();
    play(Microphone, 0, 9);
    tick();
    expectNoNotice();
    controller->pauseAndResumeRecord();
    play(Microphone, 0, 9);
    tick();
    expectNoNotice();
}

TEST_F(RecordNoticesTest, SilentComputerAudioIsNamedWithTheOutputThatIsRecorded) {
    add(30, u"Headphones"_s);
    hardware.defaultOutput = 30;
    beginWithComputerAudioOnly();
    controller->startAndStopRecord();
    play(ComputerAudio, 0, 20);
    tick();
    expectNoNotice(); // it waits for the first sound
    play(ComputerAudio, 0.5F, 1);
    play(ComputerAudio, 0, 10.1);
    tick();
    EXPECT_TRUE(tells(u"nothing plays on Headphones, the output that is recorded."_s));
}

TEST_F(RecordNoticesTest, SilenceIsExpectedWhereItCutsAndBesideAnInputDevice) {
    g_SplitTimeMS = 20000;
    beginWithComputerAudioOnly();
    controller->startAndStopRecord();
    play(ComputerAudio, 0.5F, 1);
    play(ComputerAudio, 0, 11);
    tick();
    expectNoNotice();
    controller->startAndStopRecord();
    ASSERT_TRUE(queueDone());
    controller->chooseRecordBuiltIn(true);
    controller->startAndStopRecord();
    playBoth(0.5F, 1);
    for (int i = 0; i < 1100; ++i) {
        hardware.unitOf(Microphone)->feedValue(0.5F, 480, clock.hostTime());
        hardware.unitOf(ComputerAudio)->feedValue(0, 480, clock.hostTime());
        clock.advance(0.01);
    }
    tick();
    expectNoNotice();
    controller->startAndStopRecord();
    ASSERT_TRUE(queueDone());
    controller->startAndStopRecord();
    for (int i = 0; i < 1100; ++i) {
        hardware.unitOf(Microphone)->feedValue(0.5F, 480, clock.hostTime());
        hardware.unitOf(ComputerAudio)->feedValue(0, 480, clock.hostTime());
        clock.advance(0.01);
    }
    tick();
    EXPECT_TRUE(tells(u"Computer audio has been silent for 10 s"_s)) << "it was never heard in this recording";
}

TEST_F(RecordNoticesTest, NoticesOfARecordingGoWhenTheNextOneStarts) {
    addMicrophone();
    begin();
    controller->startAndStopRecord();
    play(Microphone, 0.5F, 6);
    hardware.opened.back()->lost = 4800;
    tick();
    ASSERT_TRUE(tells(u"0.100 s are missing (4800 frames): the computer was too busy"_s));
    controller->startAndStopRecord();
    ASSERT_TRUE(queueDone());
    EXPECT_TRUE(controller->notices().join(u'\n').contains(u"0.100 s are missing"_s)) << "to be read after the end";
    hardware.opened.back()->lost = 0;
    controller->startAndStopRecord();
    tick();
    expectNoNotice();
    controller->startAndStopRecord();
}

TEST_F(RecordNoticesTest, ADeviceThatGoesWhileIdleIsReplacedByName) {
    addMicrophone();
    addHeadset();
    begin();
    hardware.remove(Microphone);
    ASSERT_TRUE(tells(u"Microphone is gone. Headset takes its place until it is back."_s));
    EXPECT_EQ(only().help, Help::ChooseDevice);
    addMicrophone();
    EXPECT_TRUE(waitFor([&] { return controller->notices().isEmpty(); })) << "it is back";
    hardware.remove(Microphone);
    ASSERT_TRUE(tells(u"Microphone is gone"_s));
    hardware.remove(Headset);
    ASSERT_TRUE(tells(u"Headset is gone. There is no other input device: connect one."_s));
    EXPECT_EQ(only().help, Help::None);
    addHeadset();
    EXPECT_TRUE(waitFor([&] { return hardware.unitOf(Headset) != nullptr; }));
    controller->chooseBuiltInDevice(0);
    EXPECT_TRUE(waitFor([&] { return controller->notices().isEmpty(); })) << "the user has chosen it";
}

TEST_F(RecordNoticesTest, ADeviceThatOpensAfterAllIsNoNoticeAnyMore) {
    addMicrophone();
    hardware.unitOpens = false;
    begin();
    ASSERT_TRUE(tells(u"Microphone cannot be opened"_s));
    EXPECT_EQ(only().help, Help::ChooseDevice);
    hardware.unitOpens = true;
    EXPECT_TRUE(waitFor([&] { return controller->notices().isEmpty(); }));
}

TEST_F(RecordNoticesTest, ADiskThatFillsUpIsReportedInMinutesAndOncePerStage) {
    // A recording needs 18 kB per second.
    DiskRoom room(25LL * 60 * 18000 + 9000);
    addMicrophone();
    begin();
    controller->startAndStopRecord();
    tick();
    ASSERT_TRUE(tells(u"The disk is nearly full: there is room for about 25 minutes of recording."_s));
    EXPECT_EQ(only().help, Help::FreeSpace);
    room.set(21LL * 60 * 18000 + 9000);
    tick(10);
    ASSERT_TRUE(tells(u"about 20 minutes"_s));
    controller->dismissNotices();
    room.set(16LL * 60 * 18000);
    const auto isAsked = [&] {
        tick(10);
        return waitFor([&] { return !controller->notices().isEmpty(); }, 200);
    };
    EXPECT_FALSE(isAsked()) << "the user knows";
    room.set(14LL * 60 * 18000);
    ASSERT_TRUE(waitFor(isAsked)) << "a quarter of an hour is left";
    controller->dismissNotices();
    room.set(9LL * 60 * 18000 + 9000);
    ASSERT_TRUE(waitFor(isAsked));
    EXPECT_TRUE(tells(u"about 9 minutes"_s));
    room.set(200LL * 60 * 18000);
    EXPECT_TRUE(waitFor([&] {
        tick(10);
        return controller->notices().isEmpty();
    })) << "somebody made room";
    controller->startAndStopRecord();
}

TEST_F(RecordNoticesTest, TheTimeThatIsLeftIsShownBelowTenHours) {
    DiskRoom room(11LL * 3600 * 18000);
    addMicrophone();
    begin();
    EXPECT_EQ(controller->roomLeft(), QString());
    controller->startAndStopRecord();
    const auto shows = [&](const QString& text) {
        return waitFor([&] {
            tick(10);
            return controller->roomLeft() == text;
        });
    };
    EXPECT_TRUE(shows({}));
    room.set(193LL * 60 * 18000);
    EXPECT_TRUE(shows(u"About 3 h 10 min left on this disk"_s));
    EXPECT_TRUE(controller->notices().isEmpty()) << "nothing is urgent yet";
    room.set(11LL * 3600 * 18000);
    EXPECT_TRUE(shows({}));
    room.set(9LL * 60 * 18000 + 9000);
    EXPECT_TRUE(shows(u"About 9 min left on this disk"_s));
    room.set(9000);
    EXPECT_TRUE(shows(u"Less than a minute left on this disk"_s));
    controller->startAndStopRecord();
    EXPECT_EQ(controller->roomLeft(), QString());
}

TEST_F(RecordNoticesTest, TwoSourcesNeedRoomForTheirMix) {
    const RecordRoom::Recording one{home.path(), home.path(), 1, 60};
    const RecordRoom::Recording both{home.path(), home.path(), 2, 60};
    const DiskRoom room(360'000'000);
    EXPECT_NEAR(RecordRoom::measure(one).seconds, 20000, 1);
    EXPECT_NEAR(RecordRoom::measure(both).seconds, (360e6 - 60 * 353000) / 389000, 1);
    EXPECT_EQ(RecordRoom::words(59), u"less than a minute"_s);
    EXPECT_EQ(RecordRoom::words(60), u"about 1 minute"_s);
    EXPECT_EQ(RecordRoom::words(59 * 60), u"about 55 minutes"_s);
}

TEST_F(RecordNoticesTest, TheTimeStandsStillWhileTheDiskIsFullAndTheRecordingGoesOnWhenThereIsRoom) {
    DiskRoom room(10'000);
    addMicrophone();
    begin();
    controller->startAndStopRecord();
    play(Microphone, 0.5F, 6);
    tick(12);
    EXPECT_FLOAT_EQ(controller->fRecordTime(), 6);
    media.files.back()->writeStatus = -34;
    play(Microphone, 0.5F, 0.1);
    tick(8);
    EXPECT_FLOAT_EQ(controller->fRecordTime(), 6);
    EXPECT_FALSE(controller->isGrowing());
    EXPECT_EQ(controller->getAudioWaveLevelValue(), 0);
    EXPECT_EQ(controller->headline(), u"Nothing is being recorded"_s);
    ASSERT_TRUE(tells(u"The disk is full. Nothing more is recorded until there is room"_s));
    EXPECT_EQ(only().help, Help::FreeSpace);
    EXPECT_EQ(only().target, g_strTmpPath);
    // A little free space is not enough.
    room.set(1'000'000);
    tick();
    EXPECT_FALSE(waitFor([&] { return media.files.size() > 1; }, 100));
    room.set(100'000'000);
    ASSERT_TRUE(waitFor([&] {
        tick();
        return media.files.size() == 2;
    }));
    EXPECT_TRUE(controller->isGrowing());
    EXPECT_TRUE(waitFor([&] {
        return controller->notices().join(u' ').contains(u"s are missing: the disk was full."_s);
    })) << controller->notices().join(u'\n').toStdString();
    play(Microphone, 0.5F, 6);
    controller->startAndStopRecord();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(delegate.paths, (QStringList{track(0), track(1)}));
}

TEST_F(RecordNoticesTest, AnUnfinishedRecordingIsShownAtEachStartUntilItIsDismissed) {
    const QString first = makeUnfinished(u"Track3.m4a"_s);
    addMicrophone();
    begin();
    controller->tellUnfinishedRecordings();
    ASSERT_TRUE(tells(u"An earlier recording could not be finished. It is kept at "_s + first));
    EXPECT_EQ(only().help, Help::Show);
    EXPECT_EQ(only().path, first);
    controller->startAndStopRecord();
    EXPECT_EQ(controller->notices().size(), 1) << "a new recording does not dismiss it";
    controller->startAndStopRecord();
    controller.reset();
    begin();
    controller->tellUnfinishedRecordings();
    EXPECT_TRUE(tells(first)) << "not dismissed yet";
    controller->dismissNotices();
    controller.reset();
    begin();
    controller->tellUnfinishedRecordings();
    expectNoNotice();
    // Only the new one is shown. For two the notice shows their folder.
    const QString second = makeUnfinished(u"Track4.m4a"_s);
    controller->tellUnfinishedRecordings();
    EXPECT_TRUE(tells(second));
    (void)makeUnfinished(u"Track5.m4a"_s);
    controller->tellUnfinishedRecordings();
    EXPECT_TRUE(tells(u"2 earlier recordings could not be finished. They are kept in "_s +
                      Platform::FileManager::unfinishedFolder()));
    // Printing the notices in a terminal does not dismiss them for the window.
    EXPECT_FALSE(controller->takeNotices().isEmpty());
    EXPECT_EQ(UnfinishedRecordings::unseen().size(), 2);
    controller->tellUnfinishedRecordings();
    controller->dismissNotice(only().event);
    EXPECT_TRUE(UnfinishedRecordings::unseen().isEmpty());
}

TEST(RecordNotices, ANoticeWithoutAnEventIsDismissedAlone) {
    RecordNotices notices;
    notices.show({.text = QStringLiteral("first")});
    notices.show({.text = QStringLiteral("second")});
    notices.dismiss(notices.list().first().event);
    EXPECT_EQ(notices.sentences(), QStringList{QStringLiteral("second")});
}

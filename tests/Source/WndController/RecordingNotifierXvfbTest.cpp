// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/RecordingNotifier.h"

#include "RingtoneMaker/CustomSound.h"
#include "tests/Source/WndController/WindowWorld.h"
#include "tests/fakes/FakeNotifications.h"
#include "tests/support/DiskRoom.h"

#include <QGuiApplication>
#include <QPushButton>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Notifier : public testing::Test {
protected:
    void SetUp() override {
        auto double_ = std::make_unique<FakeNotifications>();
        desktop = double_.get();
        notifier = std::make_unique<RecordingNotifier>(world.open(), std::move(double_));
        leave();
    }
    /// The user turns to another program.
    void leave() {
        world.controller->window()->hide();
        ASSERT_TRUE(waitFor([] { return !QGuiApplication::focusWindow(); }));
    }
    /// The recorder reports a recording that is in the library.
    void finish(const QString& title) {
        const Dictionary entry = world.made(title, 65);
        const QString path = entry.value(AudioRecordEntry::SavePath).toString();
        world.sounds.lengths.insert(path, 65);
        world.library->addRecordFile(entry);
        Q_EMIT world.record->recordingFinished(path, entry);
    }
    [[nodiscard]] QStringList keys() const {
        QStringList keys;
        for (const auto& action : desktop->all.last().actions)
            keys << action.key;
        return keys;
    }

    WindowWorld world;
    FakeNotifications* desktop = nullptr;
    std::unique_ptr<RecordingNotifier> notifier;
};

} // namespace

TEST_F(Notifier, TellsOfAFinishedRecordingAndPlaysIt) {
    finish(u"Morning"_s);
    ASSERT_EQ(desktop->all.size(), 1);
    EXPECT_EQ(desktop->all[0].title, u"Recording finished"_s);
    EXPECT_EQ(desktop->all[0].text, u"Morning (00:01:05)"_s);
    EXPECT_EQ(desktop->all[0].defaultAction, u"show"_s);
    EXPECT_FALSE(desktop->all[0].isProblem);
    EXPECT_EQ(keys(), (QStringList{u"show"_s, u"play"_s}));
    desktop->choose(u"play"_s);
    EXPECT_TRUE(world.controller->window()->isVisible());
    EXPECT_TRUE(world.controller->library().isPlaySoundPlaying());
    EXPECT_TRUE(world.controller->library().playingPath().endsWith(u"Morning.m4a"_s));
}

TEST_F(Notifier, ShowSelectsTheRecording) {
    finish(u"Morning"_s);
    desktop->choose(u"show"_s);
    EXPECT_TRUE(world.controller->library().tableViewSelectionAudioPath().endsWith(u"Morning.m4a"_s));
    EXPECT_FALSE(world.controller->library().isPlaySoundPlaying());
    EXPECT_TRUE(world.controller->window()->isVisible());
    EXPECT_FALSE(desktop->stands);
}

TEST_F(Notifier, SumsUpWhatTheUserHasNotSeen) {
    finish(u"One"_s);
    finish(u"Two"_s);
    ASSERT_EQ(desktop->all.size(), 2);
    EXPECT_TRUE(desktop->all[1].title.startsWith(u'2')) << desktop->all[1].title.toStdString();
    EXPECT_EQ(desktop->all[1].text, u"Two (00:01:05)"_s);
    ToolControl::showWindowNib(*world.controller);
    EXPECT_TRUE(waitFor([&] { return QGuiApplication::focusWindow() && !desktop->stands; })) << "seen";
    leave();
    finish(u"Three"_s);
    EXPECT_EQ(desktop->all.last().title, u"Recording finished"_s);
}

TEST_F(Notifier, ACutHasNothingToPlayWhileTheNextOneRuns) {
    world.controller->startAndStopRecord();
    ASSERT_TRUE(world.record->isStateAudioRecord());
    finish(u"First part"_s);
    EXPECT_EQ(desktop->all.last().title, u"Recording cut; the next one runs"_s);
    EXPECT_EQ(desktop->all.last().text, u"First part (00:01:05)"_s);
    EXPECT_EQ(keys(), QStringList{u"show"_s});
}

TEST_F(Notifier, AShortRecordingThatIsNotKeptIsTold) {
    Q_EMIT world.record->recordingFinished(u"/music/Track7.m4a"_s, {});
    ASSERT_EQ(desktop->all.size(), 1);
    EXPECT_EQ(desktop->all[0].title, u"Recording not kept"_s);
    EXPECT_EQ(desktop->all[0].text, u"“Track7” was not kept: it is too short."_s);
    EXPECT_EQ(keys(), QStringList{u"show"_s});
    finish(u"Song"_s);
    Q_EMIT world.record->recordingFinished(u"/music/Track8.m4a"_s, {});
    EXPECT_EQ(desktop->all.last().text, u"Song (00:01:05)"_s) << "a stretch between songs is no news";
}

TEST_F(Notifier, AFaultIsToldAndStaysInTheNotification) {
    world.controller->startAndStopRecord();
    ASSERT_TRUE(waitFor([&] { return world.record->isStateAudioRecord(); }));
    world.hardware.unitOf(WindowWorld::kMicrophone)->tell(Platform::InputUnit::Event::DeviceLost);
    ASSERT_TRUE(waitFor([&] { return !desktop->all.isEmpty(); }));
    EXPECT_TRUE(desktop->all[0].isProblem);
    EXPECT_TRUE(desktop->all[0].text.contains(u"went away"_s)) << desktop->all[0].text.toStdString();
    EXPECT_EQ(keys(), QStringList{u"show"_s});
    world.controller->startAndStopRecord();
    finish(u"Half"_s);
    EXPECT_EQ(desktop->all.last().title, u"Recording finished"_s);
    EXPECT_TRUE(desktop->all.last().text.startsWith(u"Half (00:01:05)\n"_s));
    EXPECT_TRUE(desktop->all.last().text.contains(u"went away"_s)) << "an update does not hide it";
}

TEST_F(Notifier, ADiskThatFillsUpIsToldAgainAtAQuarterOfAnHour) {
    DiskRoom room(25LL * 60 * 18000 + 9000);
    world.controller->startAndStopRecord();
    ASSERT_TRUE(waitFor([&] { return desktop->all.size() == 1; }));
    EXPECT_TRUE(desktop->all[0].text.contains(u"room for about 25 minutes"_s)) << desktop->all[0].text.toStdString();
    room.set(21LL * 60 * 18000 + 9000);
    ASSERT_TRUE(waitFor([&] { return world.record->notices().last().contains(u"about 20 minutes"_s); }));
    EXPECT_EQ(desktop->all.size(), 1) << "another number alone is not told again";
    room.set(14LL * 60 * 18000 + 9000);
    ASSERT_TRUE(waitFor([&] { return desktop->all.size() == 2; }));
    EXPECT_TRUE(desktop->all[1].text.contains(u"room for about 10 minutes"_s)) << desktop->all[1].text.toStdString();
    world.controller->startAndStopRecord();
}

TEST_F(Notifier, SaysNothingInFrontOrWhenItIsSwitchedOff) {
    PreferenceStore::setPreferenceValue(0, PreferenceStore::PreferenceNotificationsKey);
    finish(u"One"_s);
    EXPECT_TRUE(desktop->all.isEmpty());
    PreferenceStore::setPreferenceValue(1, PreferenceStore::PreferenceNotificationsKey);
    ToolControl::showWindowNib(*world.controller);
    ASSERT_TRUE(waitFor([] { return QGuiApplication::focusWindow() != nullptr; }));
    finish(u"Two"_s);
    EXPECT_TRUE(desktop->all.isEmpty());
    leave();
    finish(u"Three"_s);
    EXPECT_EQ(desktop->all.size(), 1);
}

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/LibraryPlayer.h"

#include "RingtoneMaker/CustomSound.h"
#include "tests/Source/WndController/WindowWorld.h"
#include "tests/fakes/FakeMediaPlayer.h"

#include <QDialog>
#include <QFileInfo>
#include <QTableView>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Platform::MediaPlayer;
using Status = Platform::MediaPlayer::Status;

namespace {

class DesktopPlayer : public testing::Test {
protected:
    void SetUp() override {
        for (const QString& title : {u"One"_s, u"Two"_s, u"Three"_s}) {
            const Dictionary entry = world.made(title, 30);
            world.sounds.lengths.insert(pathOf(entry), 30);
            world.library->addRecordFile(entry);
        }
        auto& window = world.open();
        world.selectNode(u"all-record"_s);
        auto double_ = std::make_unique<FakeMediaPlayer>();
        desktop = double_.get();
        player = std::make_unique<LibraryPlayer>(window, std::move(double_), world.folder.filePath(u"cover"_s));
    }
    static QString pathOf(const Dictionary& entry) { return entry.value(AudioRecordEntry::SavePath).toString(); }
    [[nodiscard]] LibraryPresenter& library() const { return world.controller->library(); }
    [[nodiscard]] QString titleAt(int row) const {
        return library().tableModel().entry(row).value(AudioRecordEntry::Title).toString();
    }
    void playRow(int row) const { library().playSoundFile(library().tableModel().entry(row)); }
    [[nodiscard]] FakeSound& sound() const {
        return static_cast<FakeSound&>(*world.controller->display().playSound()->sound());
    }

    WindowWorld world;
    FakeMediaPlayer* desktop = nullptr;
    std::unique_ptr<LibraryPlayer> player;
};

} // namespace

TEST_F(DesktopPlayer, ReportsTheTrackAndEachChangeOnce) {
    ASSERT_TRUE(waitFor([&] { return desktop->state.canPlay; }));
    EXPECT_EQ(desktop->state.status, Status::Stopped);
    EXPECT_EQ(desktop->state.track, MediaPlayer::Track());
    playRow(1);
    EXPECT_EQ(desktop->state.status, Status::Playing);
    EXPECT_EQ(desktop->state.track.title, titleAt(1));
    EXPECT_EQ(desktop->state.track.artist, u"NO Artist"_s);
    EXPECT_EQ(desktop->state.track.album, u"NO Album"_s);
    EXPECT_EQ(desktop->state.track.seconds, 30);
    EXPECT_EQ(desktop->state.track.file.toLocalFile(), library().playingPath());
    EXPECT_TRUE(desktop->state.canPause && desktop->state.canSeek);
    EXPECT_TRUE(desktop->state.canGoNext && desktop->state.canGoPrevious);
    const auto sent = desktop->states.size();
    for (int i = 0; i < 20; ++i) // the display reads the sound's state ten times a second
        world.controller->display().audioPlayUpdateTimerFireMethod();
    QCoreApplication::processEvents();
    EXPECT_EQ(desktop->states.size(), sent) << "nothing changed";
}

TEST_F(DesktopPlayer, FollowsTheWindowsOwnButtons) {
    playRow(0);
    library().playSoundButtonAction();
    EXPECT_EQ(desktop->state.status, Status::Paused);
    library().playSoundButtonAction();
    EXPECT_EQ(desktop->state.status, Status::Playing);
    world.controller->display().setAudioPosition(12);
    EXPECT_EQ(desktop->jumps.last(), 12);
    sound().end();
    EXPECT_TRUE(waitFor([&] { return desktop->state.status == Status::Stopped && desktop->state.track.number == 0; }));
}

TEST_F(DesktopPlayer, PlaysPausesStopsAndSeeks) {
    desktop->commands->play();
    EXPECT_EQ(desktop->state.track.title, titleAt(0)) << "nothing is selected: the first of the list";
    sound().time = 5;
    desktop->commands->pause();
    EXPECT_EQ(desktop->state.status, Status::Paused);
    EXPECT_EQ(desktop->commands->position(), 5);
    desktop->commands->setPosition(20);
    EXPECT_EQ(sound().time, 20);
    EXPECT_EQ(desktop->state.status, Status::Paused);
    EXPECT_EQ(desktop->jumps.last(), 20);
    desktop->commands->play();
    EXPECT_EQ(desktop->state.status, Status::Playing);
    const auto track = desktop->state.track.number;
    desktop->commands->stop();
    EXPECT_EQ(desktop->state.status, Status::Stopped);
    EXPECT_EQ(desktop->state.track.number, track) << "it can be played again";
    desktop->commands->play();
    EXPECT_EQ(desktop->state.status, Status::Playing);
    EXPECT_EQ(desktop->jumps.last(), 0) << "from its beginning";
}

TEST_F(DesktopPlayer, FollowsTheOrderOfTheShownList) {
    auto& rows = library().tableModel();
    rows.sort(AudioTableModel::Title, Qt::DescendingOrder);
    ASSERT_TRUE(waitFor([&] { return titleAt(0) == u"Two"_s && titleAt(2) == u"One"_s; }));
    playRow(0);
    EXPECT_FALSE(desktop->state.canGoPrevious);
    desktop->commands->next();
    EXPECT_EQ(desktop->state.track.title, u"Three"_s);
    EXPECT_EQ(desktop->state.status, Status::Playing);
    desktop->commands->next();
    EXPECT_EQ(desktop->state.track.title, u"One"_s);
    EXPECT_FALSE(desktop->state.canGoNext);
    desktop->commands->next();
    EXPECT_EQ(desktop->state.track.title, u"One"_s) << "there is none behind it";
    rows.sort(AudioTableModel::Title, Qt::AscendingOrder);
    EXPECT_TRUE(waitFor([&] { return desktop->state.canGoNext; })) << "it is the first one now";
    world.selectNode(u"all-ringtone"_s);
    EXPECT_TRUE(waitFor([&] { return !desktop->state.canGoNext && !desktop->state.canGoPrevious; }));
}

TEST_F(DesktopPlayer, SkipsMissingFiles) {
    playRow(0);
    ASSERT_TRUE(QFile::remove(pathOf(library().tableModel().entry(1))));
    desktop->commands->next();
    EXPECT_EQ(desktop->state.track.title, titleAt(2));
}

TEST_F(DesktopPlayer, APausedPlayerStaysPausedAtTheNextTrack) {
    playRow(0);
    desktop->commands->pause();
    desktop->states.clear();
    desktop->commands->next();
    EXPECT_EQ(desktop->state.track.title, titleAt(1));
    EXPECT_EQ(desktop->state.status, Status::Paused);
    EXPECT_EQ(desktop->states.size(), 1) << "it was not stopped in between";
    EXPECT_FALSE(sound().playing);
    desktop->commands->play();
    EXPECT_EQ(desktop->state.status, Status::Playing);
    desktop->commands->stop();
    desktop->commands->previous();
    EXPECT_EQ(desktop->state.status, Status::Stopped);
    EXPECT_EQ(desktop->state.track.title, titleAt(0));
}

TEST_F(DesktopPlayer, KeepsTheVolumeFromTrackToTrack) {
    playRow(0);
    desktop->commands->setVolume(0.25);
    EXPECT_FLOAT_EQ(sound().gain, 0.25F);
    EXPECT_EQ(desktop->state.volume, 0.25);
    desktop->commands->next();
    EXPECT_FLOAT_EQ(sound().gain, 0.25F);
}

TEST_F(DesktopPlayer, NothingCanBePlayedDuringARecording) {
    playRow(0);
    world.controller->startAndStopRecord();
    ASSERT_TRUE(world.record->isStateAudioRecord());
    EXPECT_TRUE(waitFor([&] { return desktop->state.status == Status::Stopped && !desktop->state.canPlay; }));
    EXPECT_FALSE(desktop->state.canPause || desktop->state.canSeek || desktop->state.canGoNext);
    EXPECT_FALSE(desktop->state.canQuit);
    EXPECT_EQ(desktop->state.track.title, titleAt(0)) << "the track that played, not what is recorded";
    desktop->commands->play();
    EXPECT_EQ(desktop->state.status, Status::Stopped);
    world.controller->startAndStopRecord();
    EXPECT_TRUE(waitFor([&] { return desktop->state.canPlay && desktop->state.canQuit; }));
}

TEST_F(DesktopPlayer, NothingPlaysDuringAModalWindow) {
    QDialog trim(world.controller->window());
    trim.setModal(true);
    trim.show();
    ASSERT_EQ(QApplication::activeModalWidget(), &trim);
    desktop->commands->play();
    EXPECT_EQ(desktop->state.status, Status::Stopped);
}

TEST_F(DesktopPlayer, ReportsARecordingThatIsRenamedWhileItPlays) {
    playRow(0);
    Dictionary entry = library().playingEntry();
    const auto track = desktop->state.track.number;
    entry.insert(AudioRecordEntry::Title, u"Renamed"_s);
    library().updateFile(pathOf(entry), entry);
    EXPECT_EQ(desktop->state.track.title, u"Renamed"_s);
    EXPECT_EQ(desktop->state.track.number, track) << "it is still the same sound";
    EXPECT_EQ(desktop->state.status, Status::Playing);
}

TEST_F(DesktopPlayer, ShowsTheWindow) {
    world.controller->window()->hide();
    desktop->commands->raise();
    EXPECT_TRUE(world.controller->window()->isVisible());
}

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Recordings with media players: titles of the parts, and cuts at tracks.
#include "Source/Record/RecordTracks.h"

#include "Source/Model/AudioRecordEntry.h"
#include "tests/Source/Record/RecordFixture.h"
#include "tests/fakes/FakePlayers.h"

using namespace Qt::StringLiterals;

namespace {

class RecordTracksTest : public RecordFixture {
protected:
    void beginWith(bool titles, bool cuts, bool both = false) {
        defaults.setObject(PreferenceStore::PreferenceTitlesKey, int(titles));
        defaults.setObject(PreferenceStore::PreferenceCutAtTracksKey, int(cuts));
        setFilter(false);
        if (both)
            beginWithBoth();
        else
            beginWithComputerAudioOnly();
        controller->setPlayers(players.factory());
    }
    /// @param later seconds from now
    void says(const QString& id, const QString& title, double later = 0) {
        ASSERT_TRUE(players.listener);
        Platform::WatchedPlayer player{.key = u"music"_s, .names = {u"Music"_s}, .isPlaying = true};
        player.track.id = id;
        player.track.title = title;
        player.track.artist = u"Somebody"_s;
        player.track.album = u"Numbers"_s;
        players.listener->playerChanged(player, clock.hostTime() + std::uint64_t(later * 1e9));
    }
    [[nodiscard]] QStringList titles() const {
        QStringList all;
        for (const Dictionary& entry : delegate.entries)
            all.append(entry.value(AudioRecordEntry::Title).toString());
        return all;
    }
    /// Frames of each raw file of a source, in order.
    [[nodiscard]] std::vector<std::int64_t> framesOf(const QString& source) const {
        std::vector<std::int64_t> frames;
        for (const auto& file : media.files)
            if (QFileInfo(file->path).fileName().startsWith(source) && !file->path.contains(u"temp"_s))
                frames.push_back(file->framesAccepted);
        return frames;
    }

    FakePlayers players;
};

} // namespace

TEST_F(RecordTracksTest, WithoutThePreferencesNoPlayerIsWatched) {
    beginWith(false, false);
    record(ComputerAudio, 0.25F, 3);
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(players.watches, 0);
    EXPECT_EQ(titles(), QStringList{u"Track0"_s});
    EXPECT_EQ(delegate.entries.front().value(AudioRecordEntry::Artist).toString(), u"NO Artist"_s);
}

TEST_F(RecordTracksTest, PlayersAreWatchedWhileARecordingRunsOnly) {
    beginWith(true, false);
    EXPECT_EQ(players.watches, 0);
    controller->startAndStopRecord();
    EXPECT_TRUE(players.listener) << "also while it waits for the first sound";
    play(ComputerAudio, 0.25F, 1);
    EXPECT_TRUE(players.listener);
    controller->startAndStopRecord();
    EXPECT_FALSE(players.listener);
    // A wait that ends without a sound.
    controller->startAndStopRecord();
    EXPECT_TRUE(players.listener);
    controller->finishAll();
    EXPECT_FALSE(players.listener);
    EXPECT_EQ(players.watches, 2);
}

TEST_F(RecordTracksTest, AnInputDeviceAloneHasNoTracks) {
    beginWith(true, true);
    controller->chooseRecordBuiltIn(true);
    controller->chooseRecordComputerAudio(false);
    record(Microphone, 0.25F, 1);
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(players.watches, 0);
}

TEST_F(RecordTracksTest, ARecordingGetsTheTitleAndKeepsItsFileName) {
    beginWith(true, false);
    controller->startAndStopRecord();
    says(u"/1"_s, u"One"_s);
    play(ComputerAudio, 0.25F, 4);
    says(u"/2"_s, u"Two"_s);
    play(ComputerAudio, 0.25F, 1);
    controller->startAndStopRecord();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(titles(), QStringList{u"One"_s}) << "titles do not cut";
    EXPECT_EQ(delegate.paths, QStringList{track(0)});
    const Dictionary& entry = delegate.entries.front();
    EXPECT_EQ(entry.value(AudioRecordEntry::Artist).toString(), u"Somebody"_s);
    EXPECT_EQ(entry.value(AudioRecordEntry::Album).toString(), u"Numbers"_s);
    EXPECT_EQ(entry.value(AudioRecordEntry::Genre).toString(), u"NO General"_s) << "no player names it";
}

TEST_F(RecordTracksTest, CutsAtTracksKeepTheUsualTagsWithoutTitles) {
    beginWith(false, true);
    controller->startAndStopRecord();
    says(u"/1"_s, u"One"_s);
    play(ComputerAudio, 0.25F, 2);
    says(u"/2"_s, u"Two"_s);
    play(ComputerAudio, 0.25F, 2);
    controller->startAndStopRecord();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(titles(), (QStringList{u"Track0"_s, u"Track1"_s}));
}

TEST_F(RecordTracksTest, ATrackCutsAtItsFrameAndLosesNone) {
    beginWith(true, true);
    controller->startAndStopRecord();
    says(u"/1"_s, u"One"_s);
    play(ComputerAudio, 0.25F, 2);
    // The message for a time that the recording has not reached, as usual: frames wait.
    says(u"/2"_s, u"Two"_s, 0.0527);
    play(ComputerAudio, 0.25F, 3);
    controller->startAndStopRecord();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(titles(), (QStringList{u"One"_s, u"Two"_s}));
    EXPECT_EQ(delegate.paths, (QStringList{track(0), track(1)}));
    const auto frames = framesOf(u"ComputerA"_s);
    ASSERT_EQ(frames.size(), 2U);
    EXPECT_EQ(frames[0] + frames[1], 5 * 48000);
    // 52.7 ms later, and half a block.
    EXPECT_NEAR(double(frames[0]), 2 * 48000 + 0.0527 * 48000 + 256, 2);
}

TEST_F(RecordTracksTest, BothSourcesAreCutAtOneTime) {
    beginWith(true, true, true);
    controller->startAndStopRecord();
    says(u"/1"_s, u"One"_s);
    playBoth(0.25F, 2);
    says(u"/2"_s, u"Two"_s, 0.0527);
    playBoth(0.25F, 3);
    controller->startAndStopRecord();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(titles(), (QStringList{u"One"_s, u"Two"_s}));
    const auto computer = framesOf(u"ComputerA"_s);
    const auto input = framesOf(u"BuiltInA"_s);
    ASSERT_EQ(computer.size(), 2U);
    ASSERT_EQ(input.size(), 2U);
    EXPECT_EQ(computer[0], input[0]);
    EXPECT_EQ(computer[0] + computer[1], 5 * 48000);
    EXPECT_EQ(input[0] + input[1], 5 * 48000);
}

TEST_F(RecordTracksTest, FramesWaitForMessagesOnlyWhereTracksCut) {
    beginWith(true, false);
    controller->startAndStopRecord();
    EXPECT_EQ(hardware.stateOf(ComputerAudio)->delay.count(), 0);
    play(ComputerAudio, 0.25F, 1);
    controller->startAndStopRecord();
    ASSERT_TRUE(queueDone());
    defaults.setObject(PreferenceStore::PreferenceCutAtTracksKey, 1);
    controller->startAndStopRecord();
    EXPECT_GT(hardware.stateOf(ComputerAudio)->delay, std::chrono::nanoseconds(TrackHistory::MostLate));
    EXPECT_EQ(hardware.stateOf(ComputerAudio)->delay, hardware.stateOf(Microphone)->delay);
    play(ComputerAudio, 0.25F, 1);
    controller->startAndStopRecord();
    EXPECT_EQ(hardware.stateOf(ComputerAudio)->delay.count(), 0);
}

TEST_F(RecordTracksTest, ATrackThatChangesInAPauseOfTheRecordingBeginsAPart) {
    beginWith(true, true);
    controller->startAndStopRecord();
    says(u"/1"_s, u"One"_s);
    play(ComputerAudio, 0.25F, 2);
    controller->pauseAndResumeRecord();
    play(ComputerAudio, 0.25F, 1);
    says(u"/2"_s, u"Two"_s);
    play(ComputerAudio, 0.25F, 1);
    EXPECT_EQ(framesOf(u"ComputerA"_s).size(), 1U) << "a pause cuts nothing";
    controller->pauseAndResumeRecord();
    EXPECT_EQ(controller->recordState_(), 1);
    EXPECT_FALSE(controller->isRecordPause_());
    play(ComputerAudio, 0.25F, 3);
    // The same track after a pause goes on.
    controller->pauseAndResumeRecord();
    play(ComputerAudio, 0.25F, 1);
    controller->pauseAndResumeRecord();
    play(ComputerAudio, 0.25F, 1);
    controller->startAndStopRecord();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(titles(), (QStringList{u"One"_s, u"Two"_s}));
    EXPECT_EQ(framesOf(u"ComputerA"_s), (std::vector<std::int64_t>{2 * 48000, 4 * 48000}));
}

TEST_F(RecordTracksTest, SilencesAndTracksCutTogether) {
    g_SplitTimeMS = 300;
    beginWith(true, true);
    g_SplitTimeMS = 300;
    controller->startAndStopRecord();
    says(u"/1"_s, u"One"_s);
    play(ComputerAudio, 0.25F, 2);
    play(ComputerAudio, 0, 1); // cuts
    says(u"/2"_s, u"Two"_s);   // in the same silence
    play(ComputerAudio, 0, 0.5);
    play(ComputerAudio, 0.25F, 3);
    says(u"/3"_s, u"Three"_s); // without a silence
    play(ComputerAudio, 0.25F, 3);
    controller->startAndStopRecord();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(titles(), (QStringList{u"One"_s, u"Two"_s, u"Three"_s}));
}

TEST_F(RecordTracksTest, ACutByHandBeginsANewTitle) {
    beginWith(true, false);
    controller->startAndStopRecord();
    says(u"/1"_s, u"One"_s);
    play(ComputerAudio, 0.25F, 5);
    controller->splitTheRecord();
    says(u"/2"_s, u"Two"_s);
    play(ComputerAudio, 0.25F, 2);
    controller->startAndStopRecord();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(titles(), (QStringList{u"One"_s, u"Two"_s}));
}

TEST_F(RecordTracksTest, WithoutASessionBusTheRecordingIsMadeAsUsual) {
    beginWith(true, true);
    controller->setPlayers([](Platform::PlayerWatch::Listener&) { return nullptr; });
    record(ComputerAudio, 0.25F, 3);
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(titles(), QStringList{u"Track0"_s});
}

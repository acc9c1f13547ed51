// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The title of a part by length, and the times at which one track ends and another begins.
#include "Source/Record/TrackHistory.h"

#include <gtest/gtest.h>

#include <QMap>
#include <QSet>

using namespace Qt::StringLiterals;
using Platform::PlayerTrack;
using Platform::PlayingProgram;
using Mode = Platform::ProgramChoice::Mode;

namespace {

PlayerTrack track(const QString& id, const QString& title, const QString& artist = {}, const QString& album = {},
                  double seconds = 0) {
    return {.id = id, .title = title, .artist = artist, .album = album, .source = {}, .cover = {}, .seconds = seconds};
}

PlayingProgram program(const QString& name, bool isPlaying = true, double latency = 0) {
    return {.id = name, .name = name, .iconName = {}, .parts = {}, .isPlaying = isPlaying, .latency = latency};
}

/// A recording in cycles of 10 ms, with players that the test drives.
class History : public testing::Test {
protected:
    static constexpr std::uint64_t CycleNs = 10'000'000;

    /// The player says this now; on a bus it sends everything with each change.
    void says(const QString& player, bool isPlaying, const PlayerTrack& now) {
        history.playerChanged({.key = player, .names = {player}, .isPlaying = isPlaying, .track = now}, time);
    }
    void says(bool isPlaying, const PlayerTrack& now) { says(u"music"_s, isPlaying, now); }
    /// Time passes while the recording runs. @return the capture times of the cuts, in seconds since the beginning
    std::vector<double> plays(double seconds, bool isAudible = true, bool isRecorded = true) {
        std::vector<double> cuts;
        for (int i = 0; i < int(seconds * 100 + 0.5); ++i) {
            const auto cut = history.follow(
                {.begin = time, .end = time + CycleNs, .isRecorded = isRecorded, .isAudible = isAudible});
            time += CycleNs;
            if (!cut)
                continue;
            cuts.push_back((double(*cut) - double(Begin)) / 1e9);
            titles.push_back(history.title());
            history.beginPart();
        }
        return cuts;
    }
    /// Without cuts: the part goes on over all tracks.
    void playsOn(double seconds) {
        for (int i = 0; i < int(seconds * 100 + 0.5); ++i, time += CycleNs)
            (void)history.follow({.begin = time, .end = time + CycleNs, .isRecorded = true, .isAudible = true});
    }
    [[nodiscard]] double now() const { return double(time - Begin) / 1e9; }

    static constexpr std::uint64_t Begin = 100'000'000'000;
    std::uint64_t time = Begin;
    TrackHistory history;
    std::vector<PartTitle> titles; ///< of the parts that cuts ended
};

/// The sound that a program hands over is captured half a block later.
constexpr double HalfBlock = 512.0 / 48000 / 2;

} // namespace

// ---- titles -------------------------------------------------------------------------------------------------------

TEST_F(History, TheTitleIsTheOneThatWasNamedForMoreThanHalfOfThePart) {
    says(true, track(u"/1"_s, u"One"_s, u"Somebody"_s, u"Numbers"_s));
    plays(4);
    says(true, track(u"/2"_s, u"Two"_s, u"Nobody"_s, u"Figures"_s));
    plays(6);
    const PartTitle title = history.title();
    EXPECT_EQ(title.title, u"Two"_s);
    EXPECT_EQ(title.artist, u"Nobody"_s);
    EXPECT_EQ(title.album, u"Figures"_s);
    ASSERT_EQ(titles.size(), 1U);
    EXPECT_EQ(titles.front().title, u"One"_s);
}

TEST_F(History, APartWithManyTracksHasOnlyWhatMostOfThemShare) {
    says(true, track(u"/1"_s, u"One"_s, u"Somebody"_s, u"Numbers"_s));
    playsOn(3);
    says(true, track(u"/2"_s, u"Two"_s, u"Somebody"_s, u"Numbers"_s));
    playsOn(3);
    says(true, track(u"/3"_s, u"Three"_s, u"Nobody"_s, u"Numbers"_s));
    playsOn(2);
    EXPECT_EQ(history.title().title, QString()) << "no track has more than half";
    EXPECT_EQ(history.title().artist, u"Somebody"_s);
    EXPECT_EQ(history.title().album, u"Numbers"_s);
    playsOn(6.1);
    EXPECT_EQ(history.title().title, u"Three"_s);
    EXPECT_EQ(history.title().artist, u"Nobody"_s);
}

TEST_F(History, ATrackThatIsNamedLateIsNamedForItsWholeLength) {
    says(true, track(u"/1"_s, QString()));
    plays(8);
    EXPECT_EQ(history.title().title, QString());
    says(true, track(u"/1"_s, u"One"_s, u"Somebody"_s));
    EXPECT_TRUE(plays(1).empty());
    EXPECT_EQ(history.title().title, u"One"_s);
    EXPECT_EQ(history.title().artist, u"Somebody"_s);
}

TEST_F(History, SilenceAndPausesDoNotCount) {
    says(true, track(u"/1"_s, u"One"_s));
    plays(2);
    plays(60, false);
    says(false, track(u"/1"_s, u"One"_s));
    plays(60, false);
    EXPECT_EQ(history.title().title, u"One"_s);
    plays(60, true, false); // the recording is paused
    EXPECT_EQ(history.title().title, u"One"_s);
    plays(3); // another program makes the sound
    EXPECT_EQ(history.title().title, QString());
}

TEST_F(History, WithoutPlayersThereIsNoTitle) {
    plays(3);
    EXPECT_TRUE(history.title().isEmpty());
    says(false, track(u"/1"_s, u"One"_s));
    plays(3);
    EXPECT_TRUE(history.title().isEmpty()) << "it is paused";
}

TEST_F(History, OfSeveralPlayersTheOneThatPlaysLongestNamesThePart) {
    says(u"a"_s, true, track(u"/1"_s, u"One"_s));
    playsOn(0.5);
    says(u"b"_s, true, track(u"/2"_s, u"Two"_s));
    playsOn(1);
    says(u"a"_s, false, track(u"/1"_s, u"One"_s));
    playsOn(0.3);
    EXPECT_EQ(history.title().title, u"One"_s);
}

TEST_F(History, APlayerWhoseProgramPlaysOnTheSoundServerGoesBeforeOthers) {
    // The other one may play in another room.
    history.setPrograms({}, {program(u"b"_s)});
    says(u"a"_s, true, track(u"/1"_s, u"One"_s));
    plays(0.5);
    says(u"b"_s, true, track(u"/2"_s, u"Two"_s));
    plays(5);
    EXPECT_EQ(history.title().title, u"Two"_s);
}

TEST_F(History, TheRecordedProgramNamesThePart) {
    const std::vector<PlayingProgram> playing{program(u"a"_s), program(u"b"_s)};
    for (const auto& [mode, chosen, title] : {std::tuple{Mode::Only, "b", u"Two"_s},
                                              {Mode::Only, "A", u"One"_s},
                                              {Mode::AllBut, "a", u"Two"_s},
                                              {Mode::AllBut, "b", u"One"_s},
                                              {Mode::Only, "c", QString()}}) {
        history.clear();
        history.setPrograms({.mode = mode, .programs = {chosen}}, playing);
        says(u"a"_s, true, track(u"/1"_s, u"One"_s));
        says(u"b"_s, true, track(u"/2"_s, u"Two"_s));
        plays(0.9);
        EXPECT_EQ(history.title().title, title) << chosen;
    }
    // By another name of its program on the sound server.
    PlayingProgram known = program(u"org.example.Music"_s);
    known.parts = {u"music"_s};
    history.clear();
    history.setPrograms({.mode = Mode::Only, .programs = {"org.example.Music"}}, {known, program(u"a"_s)});
    says(u"a"_s, true, track(u"/1"_s, u"One"_s));
    says(u"Music"_s, true, track(u"/2"_s, u"Two"_s));
    plays(0.9);
    EXPECT_EQ(history.title().title, u"Two"_s);
}

TEST_F(History, TheCoverIsTheOneThatWasNamedForMoreThanHalfOfThePart) {
    QMap<QString, int> reads;
    TrackHistory covered([&reads](const QUrl& place) {
        ++reads[place.toString()];
        std::promise<QByteArray> bytes;
        bytes.set_value(place.toString().toUtf8());
        return bytes.get_future().share();
    });
    const auto play = [&](const QString& id, const QString& cover, double seconds) {
        PlayerTrack said = track(id, id);
        said.cover = QUrl(cover);
        covered.playerChanged({.key = u"a"_s, .names = {u"a"_s}, .isPlaying = true, .track = said}, time);
        for (int i = 0; i < int(seconds * 100 + 0.5); ++i, time += CycleNs)
            (void)covered.follow({.begin = time, .end = time + CycleNs, .isRecorded = true, .isAudible = true});
    };
    play(u"/1"_s, u"file:///album"_s, 2);
    play(u"/2"_s, u"file:///album"_s, 2);
    play(u"/3"_s, u"file:///single"_s, 1);
    ASSERT_TRUE(covered.title().cover.valid()) << "two tracks share it";
    EXPECT_EQ(covered.title().cover.get(), "file:///album");
    EXPECT_EQ(covered.title().coverPlace, QUrl(u"file:///album"_s));
    EXPECT_EQ(covered.title().title, QString());
    EXPECT_EQ(reads.value(u"file:///album"_s), 1) << "the cover of an album is read once";
    play(u"/4"_s, u"file:///last"_s, 20);
    EXPECT_EQ(covered.title().cover.get(), "file:///last");
}

// ---- cuts ---------------------------------------------------------------------------------------------------------

TEST_F(History, AnotherTrackCutsAtTheTimeAtWhichItIsHeard) {
    says(true, track(u"/1"_s, u"One"_s));
    EXPECT_TRUE(plays(3).empty());
    const double changed = now();
    says(true, track(u"/2"_s, u"Two"_s));
    const auto cuts = plays(3);
    ASSERT_EQ(cuts.size(), 1U);
    EXPECT_NEAR(cuts.front(), changed + HalfBlock, 1e-6);
}

TEST_F(History, TheLatencyOfThePlayersStreamDelaysTheCut) {
    history.setPrograms({}, {program(u"music"_s, true, 0.25)});
    says(true, track(u"/1"_s, u"One"_s));
    plays(3);
    const double changed = now();
    says(true, track(u"/2"_s, u"Two"_s));
    const auto cuts = plays(3);
    ASSERT_EQ(cuts.size(), 1U);
    EXPECT_NEAR(cuts.front(), changed + 0.25 + HalfBlock, 1e-6);
}

TEST_F(History, WhatIsStillTheSameTrackDoesNotCut) {
    const PlayerTrack one = track(u"/1"_s, u"One"_s, u"Somebody"_s);
    says(true, one);
    plays(3);
    says(true, one); // once more, as after a seek
    EXPECT_TRUE(plays(2).empty());
    says(true, track(u"/1"_s, u"One"_s, u"Somebody and others"_s, u"Numbers"_s)); // completed
    EXPECT_TRUE(plays(2).empty());
    history.playerPosition(u"music"_s, 1, time); // sought
    EXPECT_TRUE(plays(2).empty());
    says(false, one); // paused, and on
    EXPECT_TRUE(plays(2, false).empty());
    says(true, one);
    EXPECT_TRUE(plays(2).empty());
    says(false, PlayerTrack()); // stopped, and on
    EXPECT_TRUE(plays(2, false).empty());
    says(true, one);
    EXPECT_TRUE(plays(2).empty());
}

TEST_F(History, ATrackIsKnownByItsTitleWhereThePlayerHasOneNameForAll) {
    for (const QString& id : {u"/always"_s, QString()}) {
        history.clear();
        says(true, track(id, u"One"_s));
        plays(3);
        says(true, track(id, u"Two"_s));
        EXPECT_EQ(plays(3).size(), 1U) << qPrintable(id);
    }
    // And by its name where two tracks have one title.
    says(true, track(u"/3"_s, u"Untitled"_s));
    plays(3);
    says(true, track(u"/4"_s, u"Untitled"_s));
    EXPECT_EQ(plays(3).size(), 1U);
}

TEST_F(History, APlayerThatShowsTheOldTitleForAMomentCutsOnce) {
    says(true, track(u"/1"_s, u"One"_s));
    plays(3);
    says(true, track(u"/2"_s, u"One"_s));
    EXPECT_EQ(plays(2).size(), 1U);
    says(true, track(u"/2"_s, u"Two"_s));
    EXPECT_TRUE(plays(3).empty());
    EXPECT_EQ(history.title().title, u"Two"_s);
    EXPECT_EQ(titles.front().title, u"One"_s);
}

TEST_F(History, ATrackChosenInAPauseCutsWhenItPlays) {
    says(true, track(u"/1"_s, u"One"_s));
    plays(3);
    says(false, track(u"/1"_s, u"One"_s));
    plays(1, false);
    says(false, track(u"/2"_s, u"Two"_s));
    EXPECT_TRUE(plays(2, false).empty());
    const double resumed = now();
    says(true, track(u"/2"_s, u"Two"_s));
    const auto cuts = plays(2);
    ASSERT_EQ(cuts.size(), 1U);
    EXPECT_NEAR(cuts.front(), resumed + HalfBlock, 1e-6);
}

TEST_F(History, PlayersThatExitCutOnlyWhenSomethingElsePlays) {
    says(u"a"_s, true, track(u"/1"_s, u"One"_s, u"Somebody"_s));
    plays(3);
    history.playerGone(u"a"_s, time);
    EXPECT_TRUE(plays(2).empty());
    EXPECT_EQ(history.title().title, u"One"_s) << "it still named most of the part";
    // The same track in a player that was started again.
    says(u"a2"_s, true, track(u"/7"_s, u"One"_s, u"Somebody"_s));
    EXPECT_TRUE(plays(2).empty());
    history.playerGone(u"a2"_s, time);
    plays(1);
    says(u"b"_s, true, track(u"/1"_s, u"Two"_s));
    EXPECT_EQ(plays(2).size(), 1U);
}

TEST_F(History, ASecondPlayerDoesNotCutWhileTheFirstPlays) {
    says(u"a"_s, true, track(u"/1"_s, u"One"_s));
    plays(3);
    says(u"b"_s, true, track(u"/1"_s, u"Bell"_s));
    EXPECT_TRUE(plays(2).empty());
    says(u"b"_s, true, track(u"/2"_s, u"Horn"_s));
    EXPECT_TRUE(plays(2).empty());
    says(u"a"_s, true, track(u"/2"_s, u"Two"_s));
    EXPECT_EQ(plays(2).size(), 1U);
}

TEST_F(History, ThePlayerOfAProgramThatIsNotRecordedDoesNotCut) {
    history.setPrograms({.mode = Mode::AllBut, .programs = {"music"}}, {});
    says(true, track(u"/1"_s, u"One"_s));
    plays(3);
    says(true, track(u"/2"_s, u"Two"_s));
    EXPECT_TRUE(plays(3).empty());
    EXPECT_TRUE(history.title().isEmpty());
}

TEST_F(History, NoPartIsShorterThanASecond) {
    says(true, track(u"/1"_s, u"One"_s));
    plays(0.9);
    says(true, track(u"/2"_s, u"Two"_s));
    EXPECT_TRUE(plays(3).empty()) << "the part was too short";
    // Three tracks are skipped.
    says(true, track(u"/3"_s, u"Three"_s));
    EXPECT_EQ(plays(0.3).size(), 1U);
    says(true, track(u"/4"_s, u"Four"_s));
    EXPECT_TRUE(plays(0.3).empty());
    says(true, track(u"/5"_s, u"Five"_s));
    EXPECT_TRUE(plays(4).empty());
    EXPECT_EQ(history.title().title, u"Five"_s);
}

TEST_F(History, TheSilenceBetweenTwoTracksIsCutOnce) {
    says(true, track(u"/1"_s, u"One"_s));
    plays(3);
    plays(1, false);
    history.beginPart(); // the silence has cut
    plays(1, false);
    says(true, track(u"/2"_s, u"Two"_s));
    EXPECT_TRUE(plays(1, false).empty());
    EXPECT_TRUE(plays(3).empty());
    EXPECT_EQ(history.title().title, u"Two"_s);
}

TEST_F(History, AMessageThatComesLateIsCorrectedByThePosition) {
    says(true, track(u"/1"_s, u"One"_s));
    plays(3);
    const double changed = now();
    says(true, track(u"/2"_s, u"Two"_s));
    history.playerPosition(u"music"_s, 0.1, time);
    const auto cuts = plays(2);
    ASSERT_EQ(cuts.size(), 1U);
    EXPECT_NEAR(cuts.front(), changed - 0.1 + HalfBlock, 1e-6);
}

TEST_F(History, AMessageThatComesEarlyIsCorrectedByThePosition) {
    says(true, track(u"/1"_s, u"One"_s, {}, {}, 5));
    plays(3);
    const double changed = now();
    says(true, track(u"/2"_s, u"Two"_s));
    history.playerPosition(u"music"_s, 3.5, time); // still in the first track
    const auto cuts = plays(3);
    ASSERT_EQ(cuts.size(), 1U);
    EXPECT_NEAR(cuts.front(), changed + 1.5 + HalfBlock, 1e-6);
}

TEST_F(History, APositionThatMakesNoSenseCorrectsNothing) {
    for (const double position : {0.0, 1.0, 300.0, 1e12}) {
        says(true, track(u"/1"_s, u"One"_s, {}, {}, 200));
        plays(3);
        const double changed = now();
        says(true, track(u"/2"_s, u"Two"_s, {}, {}, 100));
        history.playerPosition(u"music"_s, position, time);
        const auto cuts = plays(2);
        ASSERT_EQ(cuts.size(), 1U) << position;
        EXPECT_NEAR(cuts.front(), changed + HalfBlock, 1e-6) << position;
        plays(2);
    }
    history.playerPosition(u"nobody"_s, 1, time);
}

TEST_F(History, AnArmedRecordingCutsNothingBeforeItBegins) {
    says(true, track(u"/1"_s, u"One"_s));
    plays(3, false, false);
    says(true, track(u"/2"_s, u"Two"_s));
    plays(3, false, false);
    EXPECT_TRUE(plays(3).empty());
    EXPECT_EQ(history.title().title, u"Two"_s);
}

TEST_F(History, APausedRecordingKnowsThatTheTrackHasChanged) {
    says(true, track(u"/1"_s, u"One"_s));
    plays(3);
    says(true, track(u"/2"_s, u"Two"_s));
    EXPECT_TRUE(plays(3, true, false).empty());
    EXPECT_TRUE(history.changedSinceLastCycle());
    says(true, track(u"/1"_s, u"One"_s));
    plays(3, true, false);
    EXPECT_FALSE(history.changedSinceLastCycle()) << "back at the first one";
    EXPECT_TRUE(plays(2).empty());
}

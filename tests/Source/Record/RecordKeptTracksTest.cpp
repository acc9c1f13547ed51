// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The kept tracks of a recording of both sources: their files, names and entries, and what remains after a failure.
#include "Source/Model/AudioRecordEntry.h"
#include "Source/Model/RecordingTracks.h"
#include "Source/Record/CutOffRecordings.h"
#include "Source/Record/RecordRoom.h"
#include "tests/Source/Record/RecordFixture.h"
#include "tests/support/Mpeg4Files.h"

using namespace Qt::StringLiterals;

namespace {

class KeptTracks : public RecordFixture {
protected:
    void keepTracks() { defaults.setObject(PreferenceStore::PreferenceKeepTracksKey, 1); }
    void recordBoth(double seconds = 6) {
        controller->startAndStopRecord();
        playBoth(0.5F, seconds);
        controller->startAndStopRecord();
    }
    [[nodiscard]] QStringList recordings() const { return QDir(folder()).entryList(QDir::Files, QDir::Name); }
    [[nodiscard]] static QStringList unfinished() {
        return QDir(Platform::FileManager::unfinishedFolder()).entryList(QDir::Files, QDir::Name);
    }
};

} // namespace

TEST_F(KeptTracks, AreNotWrittenUnlessAskedFor) {
    beginWithBoth();
    recordBoth();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(recordings(), QStringList{u"Track0.m4a"_s});
    ASSERT_EQ(delegate.entries.size(), 1);
    EXPECT_FALSE(delegate.entries.at(0).contains(AudioRecordEntry::InputTrack));
    EXPECT_FALSE(delegate.entries.at(0).contains(AudioRecordEntry::ComputerTrack));
    EXPECT_EQ(media.tracksStarted, 0);
    EXPECT_FALSE(defaults.objectForKey(PreferenceStore::PreferenceKeepTracksKey).isValid());
}

TEST_F(KeptTracks, StandBesideTheMixAndInItsEntry) {
    keepTracks();
    beginWithBoth();
    controller->startAndStopRecord();
    hardware.unitOf(Microphone)->feedValue(0.5F, 480, clock.hostTime());
    hardware.unitOf(ComputerAudio)->feedValue(0.5F, 480, clock.hostTime() + 7'000'000);
    clock.advance(0.01);
    playBoth(0.5F, 6);
    controller->startAndStopRecord();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(recordings(), (QStringList{u"Track0 (computer).m4a"_s, u"Track0 (input).m4a"_s, u"Track0.m4a"_s}));
    ASSERT_EQ(delegate.entries.size(), 1) << "only the mix is a row";
    const Dictionary entry = delegate.entries.at(0);
    EXPECT_EQ(entry.value(AudioRecordEntry::InputTrack).toString(), folder() + u"/Track0 (input).m4a"_s);
    EXPECT_EQ(entry.value(AudioRecordEntry::ComputerTrack).toString(), folder() + u"/Track0 (computer).m4a"_s);
    EXPECT_TRUE(rawFiles().isEmpty()) << qPrintable(rawFiles().join(u' '));
    EXPECT_TRUE(unfinished().isEmpty());
    // By the same timing as the mix.
    ASSERT_EQ(media.tracks().size(), 1U);
    const auto tracks = media.tracks().at(0).timings;
    const auto mix = media.mixes().at(0).timings;
    ASSERT_EQ(tracks.size(), 2U);
    for (std::size_t i = 0; i < 2; ++i) {
        EXPECT_DOUBLE_EQ(tracks[i].offset, mix[i].offset);
        EXPECT_DOUBLE_EQ(tracks[i].speed, mix[i].speed);
    }
    EXPECT_NEAR(tracks[1].offset, 0.007, 1e-9);
}

TEST_F(KeptTracks, OverwriteNoFile) {
    QDir().mkpath(folder());
    ASSERT_TRUE(Mpeg4Files::write(folder() + u"/Track0 (input).m4a"_s, "of the user"));
    keepTracks();
    beginWithBoth();
    recordBoth();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(Mpeg4Files::contentOf(folder() + u"/Track0 (input).m4a"_s), "of the user");
    EXPECT_EQ(delegate.entries.at(0).value(AudioRecordEntry::InputTrack).toString(),
              folder() + u"/Track0 (input 2).m4a"_s);
}

TEST_F(KeptTracks, OneSourceHasNone) {
    keepTracks();
    addMicrophone();
    begin();
    record(Microphone, 0.5F, 6);
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(recordings(), QStringList{u"Track0.m4a"_s});
    EXPECT_FALSE(RecordingTracks::isKeptFor(delegate.entries.at(0)));
}

TEST_F(KeptTracks, ASourceThatGaveNothingHasNone) {
    keepTracks();
    beginWithBoth();
    controller->startAndStopRecord();
    play(Microphone, 0.5F, 6); // computer audio never delivers a frame
    controller->startAndStopRecord();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(recordings(), QStringList{u"Track0.m4a"_s});
}

TEST_F(KeptTracks, EveryPartOfASplitHasItsOwn) {
    keepTracks();
    beginWithBoth();
    controller->startAndStopRecord();
    playBoth(0.5F, 6);
    controller->splitTheRecord();
    playBoth(0.5F, 6);
    controller->startAndStopRecord();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(recordings(), (QStringList{u"Track0 (computer).m4a"_s, u"Track0 (input).m4a"_s, u"Track0.m4a"_s,
                                         u"Track1 (computer).m4a"_s, u"Track1 (input).m4a"_s, u"Track1.m4a"_s}));
}

TEST_F(KeptTracks, ThatCannotBeWrittenDoNotCostTheMix) {
    keepTracks();
    media.tracksError = {Platform::Error::Kind::DiskFull, u"No space left on device"_s};
    beginWithBoth();
    recordBoth();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(recordings(), QStringList{u"Track0.m4a"_s});
    ASSERT_EQ(delegate.entries.size(), 1);
    EXPECT_FALSE(RecordingTracks::isKeptFor(delegate.entries.at(0)));
    EXPECT_EQ(unfinished(), (QStringList{u"Track0 computer.m4a"_s, u"Track0 input.m4a"_s})) << "nothing is lost";
    EXPECT_TRUE(noticed(u"its tracks could not be kept: No space left on device"_s))
        << qPrintable(controller->notices().join(u'\n'));
    EXPECT_TRUE(rawFiles().isEmpty());
}

TEST_F(KeptTracks, WhoseMixCannotBeEncodedAreSetAsideWithIt) {
    keepTracks();
    beginWithBoth();
    media.createFails = false;
    controller->startAndStopRecord();
    playBoth(0.5F, 6);
    media.mixError = {Platform::Error::Kind::DiskFull, u"No space left on device"_s};
    controller->startAndStopRecord();
    ASSERT_TRUE(queueDone());
    EXPECT_TRUE(recordings().isEmpty());
    EXPECT_EQ(unfinished(), (QStringList{u"Track0 computer.m4a"_s, u"Track0 input.m4a"_s}));
}

TEST_F(KeptTracks, AreLeftToTheNextStartWhenTheProgramEndsBeforeTheyAreWritten) {
    keepTracks();
    media.holdTracks = true;
    beginWithBoth();
    recordBoth();
    ASSERT_TRUE(waitFor([this] { return media.tracksStarted == 1; }));
    EXPECT_TRUE(recordings().contains(u"Track0.m4a"_s)) << "the mix is at its place first";
    CutOffRecordings::keep(); // what exit() does
    EXPECT_EQ(rawFiles().size(), 2) << qPrintable(rawFiles().join(u' '));
    controller.reset();
    media.holdTracks = false;
    begin();
    controller->finishInterruptedRecordings();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(recordings(), (QStringList{u"Track0 (computer).m4a"_s, u"Track0 (input).m4a"_s, u"Track0.m4a"_s}));
    EXPECT_TRUE(unfinished().isEmpty());
}

TEST_F(KeptTracks, CountInTheTimeThatIsLeftOnTheDisk) {
    RecordRoom::Recording recording{.temporaryFolder = g_strTmpPath, .recordFolder = g_strTmpPath, .sources = 2};
    const double without = RecordRoom::measure(recording).seconds;
    recording.keepsTracks = true;
    const double with = RecordRoom::measure(recording).seconds;
    EXPECT_NEAR(with / without, 389.0 / 425.0, 0.01);
    recording.sources = 1;
    const double one = RecordRoom::measure(recording).seconds;
    EXPECT_GT(one, without) << "one source has no tracks";
}

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Recordings that had ended when the process did, and how the next start finishes them.
#include "Platform/Foundation/TemporaryFolder.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/Model/RecordingTracks.h"
#include "Source/Record/ExportNote.h"
#include "tests/Source/Record/RecordFixture.h"
#include "tests/support/Mpeg4Files.h"

using namespace Qt::StringLiterals;

namespace {

class Interrupted : public RecordFixture {
protected:
    /// A library that outlives the controllers.
    struct Library : Delegate {
        bool hasRecordFile(const QString& path) override { return paths.contains(path); }
    };

    Interrupted() { setFilter(false); }
    void keepTracks() { defaults.setObject(PreferenceStore::PreferenceKeepTracksKey, 1); }
    void beginProgram() {
        begin();
        controller->setDelegate(&library);
    }
    void recordBoth() {
        controller->startAndStopRecord();
        playBoth(0.5F, 1);
        controller->startAndStopRecord();
    }
    /// The next start: it empties the temporary folder, too.
    void startAgain() {
        controller.reset();
        media.holdMix = media.holdTracks = false;
        ExportNote::saveFilesOfEndedProcesses();
        Platform::TemporaryFolder::removeWhole(g_strTmpPath);
        QDir().mkpath(g_strTmpPath);
        beginProgram();
        controller->finishInterruptedRecordings();
    }
    /// Notes and folders beside them.
    [[nodiscard]] static QStringList notes() {
        return QDir(NoteFile::folderPath(u"Exports"_s)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    }
    [[nodiscard]] static bool notesAreGone() {
        return waitFor([] { return notes().isEmpty(); });
    }
    [[nodiscard]] QStringList recordings() const { return QDir(folder()).entryList(QDir::Files, QDir::Name); }
    [[nodiscard]] static QStringList unfinished() {
        return QDir(Platform::FileManager::unfinishedFolder()).entryList(QDir::Files, QDir::Name);
    }

    Library library;
};

} // namespace

TEST_F(Interrupted, AMixIsMadeByTheNextStart) {
    addMicrophone();
    addComputerAudio();
    defaults.setObject(PreferenceStore::ChooseRecordComputerAudio, true);
    beginProgram();
    media.holdMix = true;
    controller->startAndStopRecord();
    hardware.unitOf(Microphone)->feedValue(0.5F, 480, clock.hostTime());
    hardware.unitOf(ComputerAudio)->feedValue(0.5F, 480, clock.hostTime() + 7'000'000);
    clock.advance(0.01);
    playBoth(0.5F, 1);
    controller->startAndStopRecord();
    ASSERT_TRUE(waitFor([this] { return media.mixesStarted == 1; }));
    EXPECT_EQ(notes().size(), 1);
    startAgain();
    EXPECT_TRUE(rawFiles().isEmpty()) << "the temporary folder is empty after a start";
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(library.paths, QStringList{track(0)});
    EXPECT_EQ(recordings(), QStringList{u"Track0.m4a"_s});
    ASSERT_EQ(media.mixes().size(), 1U);
    EXPECT_NEAR(media.mixes().at(0).timings.at(1).offset, 0.007, 1e-9) << "the capture times are in the note";
    EXPECT_TRUE(noticed(u"An interrupted recording is complete now: "_s + track(0)));
    EXPECT_TRUE(notesAreGone()) << qPrintable(notes().join(u' '));
    EXPECT_TRUE(unfinished().isEmpty());
}

TEST_F(Interrupted, TracksAreWrittenByTheNextStartAndTheMixIsNotMadeAgain) {
    keepTracks();
    addMicrophone();
    addComputerAudio();
    defaults.setObject(PreferenceStore::ChooseRecordComputerAudio, true);
    beginProgram();
    media.holdTracks = true;
    recordBoth();
    ASSERT_TRUE(waitFor([this] { return media.tracksStarted == 1; }));
    EXPECT_EQ(recordings(), QStringList{u"Track0.m4a"_s});
    startAgain();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(recordings(), (QStringList{u"Track0 (computer).m4a"_s, u"Track0 (input).m4a"_s, u"Track0.m4a"_s}));
    EXPECT_EQ(media.mixesStarted, 1);
    ASSERT_EQ(library.entries.size(), 1);
    EXPECT_EQ(RecordingTracks::stored(library.entries.at(0)).input, folder() + u"/Track0 (input).m4a"_s);
    EXPECT_EQ(RecordingTracks::stored(library.entries.at(0)).computer, folder() + u"/Track0 (computer).m4a"_s);
    EXPECT_TRUE(notesAreGone());
    EXPECT_TRUE(unfinished().isEmpty());
}

TEST_F(Interrupted, WaitingRecordingsAreFinishedInTheirOrder) {
    addMicrophone();
    addComputerAudio();
    defaults.setObject(PreferenceStore::ChooseRecordComputerAudio, true);
    beginProgram();
    media.holdMix = true;
    for (int i = 0; i < 3; ++i) {
        recordBoth();
        ASSERT_TRUE(waitFor([&] { return notes().size() == i + 1; }));
    }
    startAgain();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(library.paths, (QStringList{track(0), track(1), track(2)}));
}

TEST_F(Interrupted, ARecordingThatTheLibraryHasIsNotAddedAgain) {
    addMicrophone();
    beginProgram();
    defaults.flushFails = true; // the library is not known to be on the disk, so the note stays
    record(Microphone, 0.5F, 1);
    ASSERT_TRUE(queueDone());
    controller.reset();
    EXPECT_EQ(notes().size(), 1);
    defaults.flushFails = false;
    startAgain();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(library.paths, QStringList{track(0)}) << "once";
    EXPECT_TRUE(notesAreGone());
    EXPECT_TRUE(controller->notices().isEmpty()) << qPrintable(controller->notices().join(u'\n'));
}

TEST_F(Interrupted, ARecordingThatTheLibraryLacksIsAdded) {
    addMicrophone();
    beginProgram();
    defaults.flushFails = true;
    record(Microphone, 0.5F, 1);
    ASSERT_TRUE(queueDone());
    controller.reset();
    defaults.flushFails = false;
    const Dictionary entry = library.entries.at(0);
    library.paths.clear(); // the kill came before the library was stored
    library.entries.clear();
    startAgain();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(library.paths, QStringList{track(0)});
    EXPECT_EQ(library.entries.at(0), entry);
}

TEST_F(Interrupted, AFileOfTheSameNameIsNotTakenForTheRecording) {
    addMicrophone();
    addComputerAudio();
    defaults.setObject(PreferenceStore::ChooseRecordComputerAudio, true);
    beginProgram();
    media.holdMix = true;
    recordBoth();
    ASSERT_TRUE(waitFor([this] { return media.mixesStarted == 1; }));
    controller.reset();
    ASSERT_TRUE(Mpeg4Files::write(track(0), "of the user"));
    startAgain();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(Mpeg4Files::contentOf(track(0)), "of the user");
    EXPECT_EQ(library.paths, QStringList{track(1)});
}

TEST_F(Interrupted, AJobWithoutAnyFileIsForgotten) {
    addMicrophone();
    addComputerAudio();
    defaults.setObject(PreferenceStore::ChooseRecordComputerAudio, true);
    beginProgram();
    media.holdMix = true;
    recordBoth();
    ASSERT_TRUE(waitFor([this] { return media.mixesStarted == 1; }));
    controller.reset();
    for (const QString& name : notes())
        QDir(NoteFile::folderPath(u"Exports"_s) + u'/' + name).removeRecursively();
    startAgain();
    EXPECT_EQ(controller->jobsInQueue(), 0);
    EXPECT_TRUE(notesAreGone());
    EXPECT_TRUE(library.paths.isEmpty());
}

TEST_F(Interrupted, NotesOfRunningProgramsAreLeftAlone) {
    addMicrophone();
    addComputerAudio();
    defaults.setObject(PreferenceStore::ChooseRecordComputerAudio, true);
    beginProgram();
    media.holdMix = true;
    recordBoth();
    ASSERT_TRUE(waitFor([this] { return media.mixesStarted == 1; }));
    const QStringList raws = rawFiles();
    ExportNote::saveFilesOfEndedProcesses();
    EXPECT_EQ(rawFiles(), raws);
    EXPECT_TRUE(ExportNote::interrupted().empty());
    media.holdMix = false;
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(library.paths, QStringList{track(0)});
}

TEST_F(Interrupted, ACopyThatAKillLeftTwiceIsKeptOnce) {
    const QString source = home.filePath(u"source"_s);
    const QString target = home.filePath(u"target"_s);
    ASSERT_TRUE(Mpeg4Files::write(source, "sound"));
    EXPECT_FALSE(ExportNote::isMoved(source, target));
    EXPECT_FALSE(ExportNote::isMoved(source, {}));
    ASSERT_TRUE(Mpeg4Files::write(target, "other"));
    EXPECT_FALSE(ExportNote::isMoved(source, target));
    EXPECT_TRUE(QFileInfo::exists(source));
    ASSERT_TRUE(Mpeg4Files::write(target, "sound"));
    EXPECT_TRUE(ExportNote::isMoved(source, target));
    EXPECT_FALSE(QFileInfo::exists(source));
    EXPECT_TRUE(ExportNote::isMoved(source, target)) << "a move within a file system leaves one";
}

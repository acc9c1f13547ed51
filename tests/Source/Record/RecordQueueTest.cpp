// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// From the raw files of a recording to one file of the library, and the handling of failures on the way.
#include "Source/Record/RecordQueue.h"

#include "Platform/Foundation/MovedFiles.h"
#include "Platform/Foundation/TemporaryFolder.h"

#include "tests/Source/Record/RecordFixture.h"

#include <csignal>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

class RecordQueueTest : public RecordFixture {
protected:
    void recordBoth(double seconds = 6) {
        controller->startAndStopRecord();
        playBoth(0.5F, seconds);
        controller->startAndStopRecord();
    }
    void record(double seconds = 6) {
        controller->startAndStopRecord();
        play(Microphone, 0.5F, seconds);
        controller->startAndStopRecord();
    }
    [[nodiscard]] QStringList unfinished() const {
        return QDir(Platform::FileManager::unfinishedFolder()).entryList(QDir::Files, QDir::Name);
    }
    void makeFile(const QString& path, const QByteArray& content) const {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
};

} // namespace

TEST_F(RecordQueueTest, OneSourceIsMovedNotEncoded) {
    addMicrophone();
    begin();
    record();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(delegate.paths, QStringList{track(0)});
    EXPECT_EQ(media.mixesStarted, 0);
    EXPECT_EQ(media.files.size(), 1U) << "only the raw file was ever written";
}

TEST_F(RecordQueueTest, TwoSourcesAreMixedAndEncoded) {
    beginWithBoth();
    recordBoth();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(delegate.paths, QStringList{track(0)});
    ASSERT_EQ(media.mixes().size(), 1U);
    const auto mix = media.mixes().front();
    EXPECT_TRUE(QFileInfo(mix.first).fileName().startsWith(u"BuiltInA"_s));
    EXPECT_TRUE(QFileInfo(mix.second).fileName().startsWith(u"ComputerA"_s));
    EXPECT_EQ(mix.wave, mix.second + u"temp"_s);
    EXPECT_EQ(mix.timings.size(), 2U);
    EXPECT_EQ(media.last().type, kAudioFileM4AType);
    EXPECT_TRUE(rawFiles().isEmpty()) << "raw files, WAVE and temporary files are gone";
    EXPECT_TRUE(unfinished().isEmpty());
}

TEST_F(RecordQueueTest, SourcesAreAlignedByTheirCaptureTimes) {
    beginWithBoth();
    controller->startAndStopRecord();
    // The computer-audio device delivers its first cycle 7 ms after the input device.
    hardware.unitOf(Microphone)->feedValue(0.5F, 480, clock.hostTime());
    hardware.unitOf(ComputerAudio)->feedValue(0.5F, 480, clock.hostTime() + 7'000'000);
    clock.advance(0.01);
    playBoth(0.5F, 6);
    controller->startAndStopRecord();
    ASSERT_TRUE(queueDone());
    const auto timings = media.mixes().at(0).timings;
    EXPECT_DOUBLE_EQ(timings.at(0).offset, 0);
    EXPECT_NEAR(timings.at(1).offset, 0.007, 1e-9);
    EXPECT_DOUBLE_EQ(timings.at(1).speed, 1);
}

TEST(ExportJobTiming, TheSourceThatStartedLaterPlaysLater) {
    ExportJob job;
    job.timings[0].span = {2'500'000'000, 0};
    job.timings[1].span = {2'000'000'000, 0};
    EXPECT_DOUBLE_EQ(job.timing().builtInOffset, 0.5);
    EXPECT_DOUBLE_EQ(job.timing().computerOffset, 0);
}

TEST(ExportJobTiming, DifferentClocksAreCompensated) {
    ExportJob job;
    job.timings[0].span = {1'000'000'000, 48000.0};
    job.timings[1].span = {1'000'000'000, 44100.0 * (1 + 1e-4)};
    job.timings[0].sampleRate = 48000;
    job.timings[1].sampleRate = 44100;
    EXPECT_NEAR(job.timing().computerSpeed, 1 + 1e-4, 1e-12);
}

TEST(ExportJobTiming, AnImpossibleMeasurementIsIgnored) {
    ExportJob job;
    job.timings[0].span = {1'000'000'000, 48000.0};
    job.timings[1].span = {1'000'000'000, 50000.0};
    job.timings[0].sampleRate = 48000;
    job.timings[1].sampleRate = 48000;
    EXPECT_DOUBLE_EQ(job.timing().computerSpeed, 1);
    job.timings[1].span = {};
    EXPECT_DOUBLE_EQ(job.timing().computerOffset, 0);
    EXPECT_DOUBLE_EQ(job.timing().builtInOffset, 0);
}

TEST_F(RecordQueueTest, TwoRecordingsWaitWhileOneConverts) {
    beginWithBoth();
    media.holdMix = true;
    recordBoth();
    ASSERT_TRUE(waitFor([this] { return media.mixesStarted == 1; }));
    recordBoth();
    recordBoth();
    EXPECT_EQ(controller->jobsInQueue(), 3);
    EXPECT_TRUE(waitFor([this] { return controller->jobProgress() > 0; }));
    EXPECT_EQ(controller->getAudioRecordPath(), track(3)) << "names stay reserved until their job is done";
    media.holdMix = false;
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(delegate.paths, (QStringList{track(0), track(1), track(2)}));
    EXPECT_LT(controller->jobProgress(), 0);
}

TEST_F(RecordQueueTest, AFinishedFileBelowTheFilterTimeStaysButIsNotListed) {
    addMicrophone();
    begin();
    media.seconds = 4;
    QStringList finished;
    bool listed = true;
    QObject::connect(controller.get(), &RecordStateController::recordingFinished, controller.get(),
                     [&](const QString& path, const Dictionary& entry) {
                         finished.append(path);
                         listed = !entry.isEmpty();
                     });
    record();
    ASSERT_TRUE(queueDone());
    EXPECT_TRUE(QFileInfo::exists(track(0)));
    EXPECT_TRUE(delegate.paths.isEmpty());
    EXPECT_EQ(finished, QStringList{track(0)});
    EXPECT_FALSE(listed);
}

TEST_F(RecordQueueTest, ClosingTheProgramWaitsUntilAllRecordingsAreInTheLibrary) {
    addMicrophone();
    begin();
    record();
    record();
    record();
    controller->finishAll();
    EXPECT_EQ(delegate.paths, (QStringList{track(0), track(1), track(2)})) << "in the order of their making";
    EXPECT_TRUE(rawFiles().isEmpty());
}

TEST_F(RecordQueueTest, TheMainThreadRunsWhileAFinishedFileIsMeasured) {
    addMicrophone();
    begin();
    media.holdInfo = true;
    record();
    ASSERT_TRUE(waitFor([this] { return media.infosStarted > 0; }));
    bool answered = false;
    QMetaObject::invokeMethod(
        controller.get(), [&] { answered = true; }, Qt::QueuedConnection);
    EXPECT_TRUE(waitFor([&] { return answered; }));
    EXPECT_EQ(controller->jobsInQueue(), 1);
    EXPECT_TRUE(delegate.paths.isEmpty());
    media.holdInfo = false;
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(delegate.paths, QStringList{track(0)});
}

TEST_F(RecordQueueTest, AFileThatTookTheNameIsNotOverwritten) {
    addMicrophone();
    begin();
    controller->startAndStopRecord();
    play(Microphone, 0.5F, 6);
    makeFile(track(0), "somebody else's");
    controller->startAndStopRecord();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(delegate.paths, QStringList{track(1)});
    QFile other(track(0));
    ASSERT_TRUE(other.open(QIODevice::ReadOnly));
    EXPECT_EQ(other.readAll(), QByteArray("somebody else's"));
}

TEST_F(RecordQueueTest, AMissingFolderSetsTheRecordingAsideAndReportsWhere) {
    addMicrophone();
    begin();
    controller->startAndStopRecord();
    play(Microphone, 0.5F, 6);
    ASSERT_TRUE(QDir(folder()).removeRecursively());
    controller->startAndStopRecord();
    ASSERT_TRUE(queueDone());
    EXPECT_TRUE(delegate.paths.isEmpty());
    EXPECT_EQ(unfinished(), QStringList{u"Track0.m4a"_s});
    EXPECT_TRUE(noticed(Platform::FileManager::unfinishedFolder() + u"/Track0.m4a"_s));
    EXPECT_FALSE(QFileInfo::exists(folder())) << "a folder that was taken away is not made up again";
    // The next recording works normally.
    record();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(delegate.paths, QStringList{track(0)});
}

TEST_F(RecordQueueTest, AFolderWithoutPermissionSetsTheRecordingAside) {
    // A file stands in place of the folder: even root cannot write into it.
    makeFile(folder(), "in the way");
    addMicrophone();
    begin();
    record();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(unfinished(), QStringList{u"Track0.m4a"_s});
    EXPECT_TRUE(noticed(u"could not be saved in"_s));
}

TEST_F(RecordQueueTest, AFullDiskSetsTheRecordingAside) {
    // The recordings are on another file system, so that the move has to copy.
    QTemporaryDir other(u"/dev/shm/sonaphex-XXXXXX"_s);
    ASSERT_TRUE(other.isValid());
    defaults.setObject(PreferenceStore::PreferenceSavePathKey, other.path());
    addMicrophone();
    begin();
    controller->startAndStopRecord();
    play(Microphone, 0.5F, 6);
    makeFile(media.last().path, QByteArray(200000, 'x'));
    {
        const auto before = std::signal(SIGXFSZ, SIG_IGN);
        rlimit limit{};
        getrlimit(RLIMIT_FSIZE, &limit);
        const rlimit tight{100000, limit.rlim_max};
        setrlimit(RLIMIT_FSIZE, &tight);
        controller->startAndStopRecord();
        EXPECT_TRUE(queueDone());
        setrlimit(RLIMIT_FSIZE, &limit);
        std::signal(SIGXFSZ, before);
    }
    EXPECT_TRUE(delegate.paths.isEmpty());
    EXPECT_EQ(unfinished(), QStringList{u"Track0.m4a"_s});
    EXPECT_EQ(QFileInfo(Platform::FileManager::unfinishedFolder() + u"/Track0.m4a"_s).size(), 200000);
    EXPECT_TRUE(QDir(other.path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    EXPECT_TRUE(noticed(u"could not be saved in"_s));
}

TEST_F(RecordQueueTest, ARecordingIsMovedToAnotherFileSystem) {
    QTemporaryDir other(u"/dev/shm/sonaphex-XXXXXX"_s);
    ASSERT_TRUE(other.isValid());
    defaults.setObject(PreferenceStore::PreferenceSavePathKey, other.path());
    addMicrophone();
    begin();
    record();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(delegate.paths, QStringList{other.filePath(u"Track0.m4a"_s)});
    EXPECT_TRUE(rawFiles().isEmpty());
}

TEST_F(RecordQueueTest, TwoRecordingsSetAsideGetDifferentNames) {
    addMicrophone();
    makeFile(folder(), "in the way");
    begin();
    record();
    ASSERT_TRUE(queueDone());
    record();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(unfinished().size(), 2);
}

TEST_F(RecordQueueTest, ARecordingThatCannotBeMovedOutlivesItsTemporaryFolder) {
    // Neither the recordings' folder nor the folder for unfinished recordings can be written.
    makeFile(folder(), "in the way");
    makeFile(home.filePath(u"data"_s), "in the way");
    addMicrophone();
    begin();
    QStringList kept;
    QObject::connect(controller.get(), &RecordStateController::recordingSetAside, controller.get(),
                     [&](const QString&, const QStringList& where) { kept = where; });
    controller->startAndStopRecord();
    play(Microphone, 0.5F, 6);
    makeFile(media.last().path, "the sound");
    controller->startAndStopRecord();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(kept, QStringList{g_strTmpPath + u"/Track0.m4a"_s}) << "no name that a later recording takes";
    EXPECT_TRUE(
        noticed(u"The recording is kept, and moved by the next start when there is room, at "_s + kept.value(0)));

    const auto contentOf = [](const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    Platform::TemporaryFolder::removeWhole(g_strTmpPath);
    EXPECT_EQ(contentOf(kept.value(0)), "the sound");
    ASSERT_TRUE(QFile::remove(home.filePath(u"data"_s)));
    Platform::TemporaryFolder::removeWhole(g_strTmpPath);
    EXPECT_EQ(contentOf(Platform::FileManager::unfinishedFolder() + u"/Track0.m4a"_s), "the sound");
    EXPECT_FALSE(QFileInfo::exists(g_strTmpPath));
}

TEST_F(RecordQueueTest, AMixThatFailsKeepsBothRawFiles) {
    beginWithBoth();
    media.mixError = {Platform::Error::Kind::DiskFull, u"No space left on device"_s};
    QStringList kept;
    QObject::connect(controller.get(), &RecordStateController::recordingSetAside, controller.get(),
                     [&](const QString&, const QStringList& where) { kept = where; });
    recordBoth();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(unfinished(), (QStringList{u"Track0 computer.m4a"_s, u"Track0 input.m4a"_s}));
    EXPECT_EQ(kept.size(), 2);
    EXPECT_TRUE(noticed(u"No space left on device"_s));
    EXPECT_TRUE(delegate.paths.isEmpty());
    media.mixError = {};
    recordBoth();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(delegate.paths, QStringList{track(0)});
}

TEST_F(RecordQueueTest, AMixWithoutEnoughSpaceIsNotBegun) {
    beginWithBoth();
    media.seconds = 1e15; // no disk holds that much
    recordBoth();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(media.mixesStarted, 0);
    EXPECT_EQ(unfinished().size(), 2);
    EXPECT_TRUE(noticed(u"Track0.m4a could not be mixed, which needs"_s));
}

TEST_F(RecordQueueTest, AnEncoderThatFailsKeepsTheWave) {
    beginWithBoth();
    media.holdMix = true;
    recordBoth();
    ASSERT_TRUE(waitFor([this] { return media.mixesStarted == 1; }));
    media.createFails = true;
    media.holdMix = false;
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(unfinished(), QStringList{u"Track0.wav"_s});
    EXPECT_TRUE(noticed(u"could not be encoded"_s));
    EXPECT_TRUE(rawFiles().isEmpty());
}

TEST_F(RecordQueueTest, ADamagedPlaceInASourceKeepsBothRawFilesBesideTheRecording) {
    beginWithBoth();
    media.mixReadError = {Platform::Error::Kind::Damaged, u"a packet is damaged"_s};
    recordBoth();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(delegate.paths, QStringList{track(0)});
    EXPECT_EQ(unfinished(), (QStringList{u"Track0 computer.m4a"_s, u"Track0 input.m4a"_s}));
    EXPECT_TRUE(noticed(u"A part of Track0.m4a could not be read (a packet is damaged)"_s));
    EXPECT_TRUE(noticed(u"Unfinished/Track0 computer.m4a"_s));
    EXPECT_TRUE(rawFiles().isEmpty());
}

TEST_F(RecordQueueTest, DamagedSourcesThatCannotBeMovedAreNotDeleted) {
    beginWithBoth();
    makeFile(home.filePath(u"data"_s), "in the way");
    media.mixReadError = {Platform::Error::Kind::Damaged, u"a packet is damaged"_s};
    recordBoth();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(delegate.paths, QStringList{track(0)});
    for (const QString& name : {u"/Track0 input.m4a"_s, u"/Track0 computer.m4a"_s})
        EXPECT_TRUE(Platform::MovedFiles::isKept(g_strTmpPath + name)) << qPrintable(name);
}

TEST_F(RecordQueueTest, APartlyUnreadableWaveIsKeptBesideTheRecording) {
    beginWithBoth();
    media.readError = {Platform::Error::Kind::Other, u"Input/output error"_s};
    recordBoth();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(delegate.paths, QStringList{track(0)});
    EXPECT_EQ(unfinished(), QStringList{u"Track0.wav"_s});
    EXPECT_TRUE(noticed(u"A part of Track0.m4a could not be read (Input/output error)"_s));
    EXPECT_TRUE(rawFiles().isEmpty());
}

TEST_F(RecordQueueTest, WithOneUnreadableSourceTheOtherBecomesTheRecording) {
    beginWithBoth();
    controller->startAndStopRecord();
    playBoth(0.5F, 6);
    for (const auto& file : media.files)
        if (file->path.contains(u"BuiltInA"_s)) {
            media.unreadable.insert(file->path);
            makeFile(file->path, "half a file");
        }
    controller->startAndStopRecord();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(delegate.paths, QStringList{track(0)});
    EXPECT_EQ(unfinished().size(), 1);
    EXPECT_TRUE(noticed(u"One source of Track0.m4a could not be read"_s));
}

TEST_F(RecordQueueTest, TwoUnreadableSourcesAreBothKept) {
    beginWithBoth();
    controller->startAndStopRecord();
    playBoth(0.5F, 6);
    for (const auto& file : media.files)
        media.unreadable.insert(file->path);
    controller->startAndStopRecord();
    ASSERT_TRUE(queueDone());
    EXPECT_TRUE(delegate.paths.isEmpty());
    EXPECT_EQ(unfinished().size(), 2);
}

TEST_F(RecordQueueTest, AnErrorWhileClosingTheFileIsReported) {
    addMicrophone();
    begin();
    controller->startAndStopRecord();
    play(Microphone, 0.5F, 6);
    media.last().disposeStatus = -34;
    controller->startAndStopRecord();
    ASSERT_TRUE(queueDone());
    EXPECT_TRUE(noticed(u"could not be written"_s));
    EXPECT_EQ(delegate.paths, QStringList{track(0)}) << "what was written is kept";
}

TEST_F(RecordQueueTest, AControllerDestroyedDuringAMixWithoutANoteKeepsTheRawFiles) {
    // A file stands in the place of the notes' folder.
    makeFile(home.filePath(u"data/com.korvane.Sonaphex/Exports"_s), "in the way");
    beginWithBoth();
    media.holdMix = true;
    recordBoth();
    ASSERT_TRUE(waitFor([this] { return media.mixesStarted == 1; }));
    controller.reset();
    EXPECT_EQ(unfinished().size(), 2);
}

TEST_F(RecordQueueTest, AControllerDestroyedDuringARecordingKeepsIt) {
    addMicrophone();
    makeFile(folder(), "in the way");
    begin();
    controller->startAndStopRecord();
    play(Microphone, 0.5F, 6);
    controller.reset();
    begin();
    controller->finishInterruptedRecordings();
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(unfinished(), QStringList{u"Track0.m4a"_s}) << "it still cannot be delivered";
}

TEST(RecordQueueMovies, AMissingMovieIsReplacedByTheOther) {
    std::unique_ptr<Platform::Movie> none;
    EXPECT_FALSE(RecordQueue::addAudioIntoMove(none, nullptr));

    QTemporaryDir folder;
    const QString path = folder.filePath(u"a.m4a"_s);
    EXPECT_TRUE(QFile(path).open(QIODevice::WriteOnly));
    FakeRecordingFiles media;
    std::unique_ptr<Platform::Movie> movie;
    EXPECT_TRUE(RecordQueue::addAudioIntoMove(movie, *media.openMovie(path)));
    ASSERT_TRUE(movie);
    EXPECT_EQ(movie->soundTracks(), 1);
    EXPECT_TRUE(RecordQueue::addAudioIntoMove(movie, *media.openMovie(path)));
    EXPECT_EQ(movie->soundTracks(), 2);
    EXPECT_FALSE(RecordQueue::addAudioIntoMove(movie, nullptr));
}

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/BurnCommand.h"
#include "CommandLine/DrivesCommand.h"
#include "Platform/Foundation/Services.h"
#include "tests/CommandLine/CommandRun.h"
#include "tests/fakes/FakeDiscRecording.h"
#include "tests/support/Environment.h"
#include "tests/support/FileContent.h"
#include "tests/support/RunTool.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTimer>

#include <csignal>
#include <sys/mount.h>
#include <sys/resource.h>

using namespace Qt::StringLiterals;
using namespace Platform;

namespace {

class BurnCommandTest : public testing::Test {
protected:
    BurnCommandTest() {
        services().discRecording = &discs;
        services().diskArbitration = &disks;
    }
    static CommandRun burn(const QStringList& arguments) { return {CommandLine::burnCommand, arguments}; }
    /// Expects this line and exit status 1 from the command with these arguments.
    static void expectFailure(const QStringList& arguments, const QString& line) {
        const CommandRun ran = burn(arguments);
        EXPECT_EQ(ran.status, CommandLine::Failed);
        EXPECT_EQ(ran.err, u"sonaphex: "_s + line + u'\n');
        EXPECT_EQ(ran.out, QString());
    }
    /// A writer with a blank disc, and the image drive behind it.
    std::shared_ptr<FakeDrive> addDrives() {
        const auto writer = discs.addDrive(u"ACME Writer"_s);
        writer->insertBlankDisc();
        addImageDrive();
        return writer;
    }
    void addImageDrive() {
        struct Image : FakeDrive {
            using FakeDrive::FakeDrive;
            QString path() const override { return {}; }
        };
        const auto image = std::make_shared<Image>(u"Disc Image (CUE/BIN)"_s);
        image->insertBlankDisc();
        discs.drives.push_back(image);
    }
    /// Runs @p act in the command's event loop once a burn has begun.
    void whenBurning(std::function<void(FakeBurn&)> act) {
        QTimer::singleShot(0, [this, act = std::move(act)] {
            if (discs.burns.empty() || discs.lastBurn()->state.state == DRStatusStateNone)
                whenBurning(act);
            else
                act(*discs.lastBurn());
        });
    }

    ServicesScope scope;
    FakeDiscRecording discs;
    FakeDiskArbitration disks;
};

TEST_F(BurnCommandTest, ListsDrivesAndTheirDiscs) {
    addDrives();
    const auto written = discs.addDrive(u"Old Writer"_s);
    written->insertBlankDisc();
    written->blank = false;
    written->erasable = true;
    discs.addDrive(u"Empty"_s);
    discs.addDrive(u"Locked"_s)->state.problem = u"another program uses the drive, or its disc is mounted"_s;
    const CommandRun ran(CommandLine::drivesCommand, {});
    EXPECT_EQ(ran.status, CommandLine::Done);
    EXPECT_EQ(ran.out, u"ACME Writer (/dev/sr0)\tCD-R, blank, 80 min 0 s of audio\n"
                       "Disc Image (CUE/BIN)\tCD-R, blank, 80 min 0 s of audio\n"
                       "Old Writer (/dev/sr2)\tCD-R, not blank, can be erased\n"
                       "Empty (/dev/sr3)\tno disc\n"
                       "Locked (/dev/sr4)\tanother program uses the drive, or its disc is mounted\n"_s);
    const CommandRun json(CommandLine::drivesCommand, {u"--json"_s});
    const QJsonArray list = QJsonDocument::fromJson(json.out.toUtf8()).object().value(u"drives"_s).toArray();
    ASSERT_EQ(list.size(), 5);
    EXPECT_EQ(list[0].toObject().value(u"path"_s), u"/dev/sr0"_s);
    EXPECT_EQ(list[0].toObject().value(u"freeSectors"_s), 360000);
    EXPECT_TRUE(list[1].toObject().value(u"path"_s).isNull());
    EXPECT_EQ(list[2].toObject().value(u"isErasable"_s), true);
    EXPECT_EQ(list[3].toObject().value(u"disc"_s), u"none"_s);
    EXPECT_EQ(list[4].toObject().value(u"problem"_s), u"another program uses the drive, or its disc is mounted"_s);
}

TEST_F(BurnCommandTest, ReportsWhyItCannotBurn) {
    addImageDrive();
    expectFailure({u"a.wav"_s}, u"there is no drive that writes discs (--image FILE writes a disc image)"_s);
    discs.drives.clear();
    const auto writer = addDrives();
    expectFailure({u"a.wav"_s, u"--drive"_s, u"Nothing"_s},
                  u"Nothing: there is no such drive (\"sonaphex drives\" lists them)"_s);
    writer->removeDisc();
    expectFailure({u"a.wav"_s}, u"ACME Writer: there is no disc in the drive"_s);
    writer->insertBlankDisc();
    writer->blank = false;
    expectFailure({u"a.wav"_s}, u"ACME Writer: the disc is not blank: put another one in"_s);
    writer->erasable = true;
    expectFailure({u"a.wav"_s}, u"ACME Writer: the disc is not blank: erase it, or put another one in"_s);
    writer->state.problem = u"another program uses the drive, or its disc is mounted"_s;
    expectFailure({u"a.wav"_s, u"--drive"_s, u"/dev/sr0"_s},
                  u"ACME Writer: another program uses the drive, or its disc is mounted"_s);
    EXPECT_TRUE(discs.burns.empty());
}

TEST_F(BurnCommandTest, RefusesWrongUsage) {
    addDrives();
    for (const QStringList& arguments :
         {QStringList{}, QStringList{u"a.wav"_s, u"--image"_s, u"x"_s, u"--drive"_s, u"y"_s},
          QStringList{u"a.wav"_s, u"--image"_s, QString()}, QStringList{u"a.wav"_s, u"--fast"_s}})
        EXPECT_EQ(burn(arguments).status, CommandLine::WrongUsage);
}

TEST_F(BurnCommandTest, BurnsTheFilesInTheirOrder) {
    addDrives();
    whenBurning([](FakeBurn& burn) {
        burn.reach(DRStatusStateTrackWrite, 0.5);
        burn.reach(DRStatusStateDone, 1);
    });
    const CommandRun ran = burn({u"/b.wav"_s, u"/a.wav"_s, u"--eject"_s, u"--json"_s});
    EXPECT_EQ(ran.status, CommandLine::Done);
    EXPECT_EQ(ran.err, QString());
    const QJsonObject all = QJsonDocument::fromJson(ran.out.toUtf8()).object();
    EXPECT_EQ(all.value(u"drive"_s), u"ACME Writer"_s);
    EXPECT_EQ(all.value(u"sectors"_s), 2 * (75 + 750));
    EXPECT_EQ(all.value(u"tracks"_s).toArray().at(0).toObject().value(u"path"_s), u"/b.wav"_s);
    EXPECT_EQ(all.value(u"tracks"_s).toArray().at(1).toObject().value(u"start"_s), 75 + 750 + 75);
    EXPECT_EQ(discs.lastBurn()->properties().completionAction, DRBurnCompletionActionEject);
}

TEST_F(BurnCommandTest, FailsWithTheBurnsReason) {
    addDrives();
    whenBurning([](FakeBurn& burn) { burn.reach(DRStatusStateFailed, 0.3, u"ACME Writer: medium error"_s); });
    expectFailure({u"/a.wav"_s}, u"ACME Writer: medium error"_s);
    discs.unreadable = {u"/b.wav"_s};
    whenBurning([](FakeBurn& burn) { burn.reach(DRStatusStateFailed, 0, u"no layout"_s); });
    discs.burns.clear();
    expectFailure({u"/a.wav"_s, u"/b.wav"_s}, u"/b.wav: cannot be read; nothing was burned"_s);
}

TEST_F(BurnCommandTest, WaitsForTheDriveAfterAnInterrupt) {
    addDrives();
    bool wasAsked = false;
    whenBurning([&](FakeBurn& burn) {
        std::raise(SIGINT);
        QTimer::singleShot(200, [&] {
            wasAsked = burn.aborts == 1;
            burn.state = {DRStatusStateFailed, 0.5, u"it was stopped before the end: the disc may be unusable"_s};
        });
    });
    expectFailure({u"/a.wav"_s}, u"it was stopped before the end: the disc may be unusable"_s);
    EXPECT_TRUE(wasAsked);
    EXPECT_EQ(discs.lastBurn()->aborts, 1);
}

/// The real program with real files.
class BurnImageProgram : public testing::Test {
protected:
    BurnImageProgram() {
        const auto made =
            runTool(u"sox"_s, {u"-R"_s, u"-n"_s, u"-r"_s, u"44100"_s, u"-b"_s, u"24"_s, u"-c"_s, u"2"_s,
                               at(u"a.flac"_s), u"synth"_s, u"120"_s, u"sine"_s, u"997"_s, u"vol"_s, u"0.5"_s});
        EXPECT_EQ(made.status, 0) << made.errors.data();
    }
    [[nodiscard]] QString at(const QString& name) const { return folder.filePath(name); }
    [[nodiscard]] QStringList burnInto(const QString& image) const {
        return {u"burn"_s, at(u"a.flac"_s), at(u"a.flac"_s), u"--image"_s, image};
    }
    static QStringList everything(const QString& path) { return FileContent::namesIn(path); }

    QTemporaryDir folder;
    EnvironmentScope config{"XDG_CONFIG_HOME", folder.path().toUtf8()};
    QString images = at(u"images"_s);
};

TEST_F(BurnImageProgram, LeavesACompleteImageOrNothingWhenItIsKilled) {
    ASSERT_TRUE(QDir().mkdir(images));
    QElapsedTimer timer;
    timer.start();
    const auto whole = runTool(QStringLiteral(SONAPHEX_PROGRAM), burnInto(at(u"whole"_s)));
    ASSERT_EQ(whole.status, 0) << whole.errors.data();
    const auto lasts = int(timer.elapsed());
    const QByteArray bin = FileContent::get(at(u"whole.bin"_s));
    ASSERT_EQ(bin.size(), 2 * (75 + 120 * 75) * 2352);
    int missing = 0;
    for (int i = 0; i < 20; ++i) {
        QProcess process;
        process.start(QStringLiteral(SONAPHEX_PROGRAM), burnInto(images + u"/disc"_s));
        ASSERT_TRUE(process.waitForStarted());
        // A random moment, on purpose: every moment must be harmless.
        (void)process.waitForFinished(QRandomGenerator::global()->bounded(lasts + 1));
        process.kill();
        ASSERT_TRUE(process.state() == QProcess::NotRunning || process.waitForFinished());
        const QStringList left = everything(images);
        if (left.isEmpty()) {
            ++missing;
            continue;
        }
        ASSERT_EQ(left, (QStringList{u"disc.bin"_s, u"disc.cue"_s}));
        EXPECT_EQ(FileContent::get(images + u"/disc.bin"_s), bin);
        EXPECT_EQ(FileContent::get(images + u"/disc.cue"_s).replace("disc.bin", "whole.bin"),
                  FileContent::get(at(u"whole.cue"_s)));
        QFile::remove(images + u"/disc.bin"_s);
        QFile::remove(images + u"/disc.cue"_s);
    }
    EXPECT_GT(missing, 0);
}

TEST_F(BurnImageProgram, StopsAtAnInterruptAndLeavesNothing) {
    ASSERT_TRUE(QDir().mkdir(images));
    QProcess process;
    process.start(QStringLiteral(SONAPHEX_PROGRAM), burnInto(images + u"/disc"_s));
    ASSERT_TRUE(process.waitForStarted());
    // The image has no name while it grows; it is visible among the program's open files.
    const QString files = u"/proc/%1/fd"_s.arg(process.processId());
    const auto grows = [&] {
        const auto all = QDir(files).entryInfoList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
        return std::any_of(all.begin(), all.end(),
                           [&](const QFileInfo& file) { return file.symLinkTarget().startsWith(images); });
    };
    while (!grows() && !process.waitForFinished(1))
        continue;
    ::kill(pid_t(process.processId()), SIGINT);
    ASSERT_TRUE(process.waitForFinished(60000));
    if (process.exitCode() == 0) { // it ended before the signal arrived
        EXPECT_EQ(everything(images), (QStringList{u"disc.bin"_s, u"disc.cue"_s}));
        return;
    }
    EXPECT_EQ(process.exitCode(), 1);
    EXPECT_EQ(process.readAllStandardError(), "sonaphex: it was stopped before the end: nothing was written\n");
    EXPECT_EQ(everything(images), QStringList());
}

TEST_F(BurnImageProgram, ReportsAFullDiskAndLeavesNothing) {
    ASSERT_TRUE(QDir().mkdir(images));
    const QByteArray mountPoint = QFile::encodeName(images);
    const bool mounted = ::mount("tmpfs", mountPoint.constData(), "tmpfs", 0, "size=4m") == 0;
    QProcess process;
    // When mounting is not permitted, a limit on the file size ends the writing instead.
    if (!mounted)
        process.setChildProcessModifier([] {
            std::signal(SIGXFSZ, SIG_IGN);
            const rlimit limit{1 << 22, 1 << 22};
            ::setrlimit(RLIMIT_FSIZE, &limit);
        });
    process.start(QStringLiteral(SONAPHEX_PROGRAM), burnInto(images + u"/disc"_s));
    ASSERT_TRUE(process.waitForFinished(60000));
    const QByteArray said = process.readAllStandardError();
    EXPECT_EQ(process.exitCode(), 1);
    EXPECT_EQ(said.count('\n'), 1) << said.data();
    EXPECT_TRUE(said.startsWith("sonaphex: " + mountPoint + "/disc.bin: ")) << said.data();
    if (mounted) {
        EXPECT_TRUE(said.contains("the disk is full: the image needs 43 MB, ")) << said.data();
    }
    EXPECT_EQ(everything(images), QStringList());
    if (mounted) {
        EXPECT_EQ(::umount(mountPoint.constData()), 0);
    }
}

} // namespace

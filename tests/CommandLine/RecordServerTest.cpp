// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The real program on a sound server, as a terminal user runs it.
#include "tests/CommandLine/RecordServerFixture.h"
#include "tests/support/TestCapture.h"

TEST_F(RecordServer, RecordsFiveSecondsOfAToneThatOtherProgramsRead) {
    tone();
    // A machine too busy for the sound server loses frames before they reach the program, which reports it. Then the
    // test repeats.
    QJsonObject document;
    for (int attempt = 0; attempt < 6; ++attempt) {
        QDir(folder_).removeRecursively();
        const auto result = sonaphex(recordArguments({u"--for"_s, u"5"_s, u"--json"_s}));
        ASSERT_EQ(result.status, 0) << result.errors.toStdString();
        document = QJsonDocument::fromJson(result.output).object();
        if (document[u"lostFrames"_s].toInt(-1) == 0)
            break;
    }
    EXPECT_EQ(document[u"lostFrames"_s].toInt(-1), 0);
    ASSERT_EQ(document[u"recordings"_s].toArray().size(), 1);
    const auto recording = document[u"recordings"_s][0].toObject();
    const QString path = recording[u"path"_s].toString();
    EXPECT_EQ(path, folder_ + u"/Track0.m4a"_s);
    const double seconds = recording[u"seconds"_s].toDouble();
    EXPECT_GE(seconds, 5.0);
    EXPECT_LT(seconds, 5.1) << "a cycle more at most";
    const auto frames = AudioCheck::framesByFfprobe(path);
    EXPECT_NEAR(double(frames), seconds * 44100, 1.0);
    for (const auto& decoded : {AudioCheck::decodedByFaad(path), AudioCheck::decodedByFfmpeg(path)}) {
        ASSERT_EQ(decoded.size(), 2U);
        EXPECT_NEAR(double(decoded[0].size()), double(frames), 2048) << "whole encoder frames, and the priming";
        for (const auto& channel : decoded) {
            const auto middle = AudioCheck::inner(channel, 8192);
            EXPECT_NEAR(AudioCheck::pitchOf(middle, 44100), 440, 0.5);
            EXPECT_NEAR(AudioCheck::levelOf(middle), 0.25 / std::numbers::sqrt2, 0.005);
        }
    }
    EXPECT_EQ(filesBelow(tmp_), QStringList());
}

TEST_F(RecordServer, ListsTheDevicesOfTheServer) {
    tone();
    QJsonArray devices;
    QJsonObject document;
    ASSERT_TRUE(waitFor([&] {
        document = QJsonDocument::fromJson(sonaphex({u"devices"_s, u"--json"_s}).output).object();
        devices = document[u"devices"_s].toArray();
        return !devices.isEmpty();
    }));
    EXPECT_EQ(devices[0][u"name"_s].toString(), u"Test Tone"_s);
    EXPECT_EQ(devices[0][u"channels"_s].toInt(), 2);
    EXPECT_EQ(devices[0][u"sampleRate"_s].toInt(), 48000);
    EXPECT_TRUE(devices[0][u"uid"_s].toString().startsWith(u"test.tone:"_s));
    EXPECT_EQ(document[u"defaultOutput"_s][u"name"_s].toString(), u"Silent Output"_s);
}

TEST_F(RecordServer, ListsTheDevicesForAnUnknownOne) {
    tone();
    const auto result = sonaphex({u"record"_s, u"--input"_s, u"Nothing like it"_s, u"--folder"_s, folder_});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "sonaphex: there is no input device \"Nothing like it\": there are Test Tone\n");
    EXPECT_FALSE(QFile::exists(folder_)) << "nothing half-made is left";
}

TEST_F(RecordServer, DoesNotChangeADeviceThatItDoesNotRecord) {
    TestSource other({.name = "test.left.alone", .description = "Left alone"});
    ASSERT_TRUE(other.start());
    ASSERT_TRUE(Platform::PipeWire::serverIsThere(30000, true, "test.left.alone"));
    {
        TestCapture capture({.target = "test.left.alone", .monitor = false});
        ASSERT_TRUE(capture.start()); // PipeWire 1.4 reports volumes only of a node that has run
    }
    const QString driver = QStringLiteral(SONAPHEX_BIN_DIR "/Resources/ComputerAudioCapture.kext/CaptureDriver");
    QProcess computerAudio;
    computerAudio.start(driver, QStringList());
    ASSERT_TRUE(Platform::PipeWire::serverIsThere(30000, true, "korvane.system-audio"));
    tone();
    const QString quiet = u"{ channelVolumes: [ 0.25, 0.25 ], mute: true }"_s;
    ASSERT_EQ(runTool(u"pw-cli"_s, {u"set-param"_s, u"test.left.alone"_s, u"Props"_s, quiet}).status, 0);
    ASSERT_EQ(runTool(u"pw-cli"_s, {u"set-param"_s, u"test.tone"_s, u"Props"_s, quiet}).status, 0);
    const auto result = sonaphex(recordArguments({u"--for"_s, u"0.2"_s}));
    EXPECT_EQ(result.status, 0) << result.errors.toStdString();
    const auto propsOf = [](const QString& node) { return runTool(u"pw-dump"_s, {node}).output.simplified(); };
    EXPECT_TRUE(propsOf(u"test.tone"_s).contains("\"channelVolumes\": [ 1.000000, 1.000000 ]"));
    const QByteArray untouched = propsOf(u"test.left.alone"_s);
    EXPECT_TRUE(untouched.contains("\"channelVolumes\": [ 0.250000, 0.250000 ]")) << untouched.toStdString();
    EXPECT_TRUE(untouched.contains("\"mute\": true"));
    // Computer audio is off: the driver gets no output path.
    EXPECT_FALSE(runTool(u"pw-metadata"_s, {}).output.contains("kCaptureDriverPathKey"));

    ASSERT_EQ(runTool(u"pw-cli"_s, {u"set-param"_s, u"test.tone"_s, u"Props"_s, quiet}).status, 0);
    const auto computerOnly = sonaphex({u"record"_s, u"--input"_s, u"none"_s, u"--computer"_s, u"--wait"_s, u"0.1"_s,
                                        u"--folder"_s, folder_, u"--filter"_s, u"off"_s});
    EXPECT_EQ(computerOnly.status, 0) << computerOnly.errors.toStdString();
    EXPECT_TRUE(propsOf(u"test.tone"_s).contains("\"mute\": true"));
    EXPECT_TRUE(propsOf(u"test.left.alone"_s).contains("\"mute\": true"));
    EXPECT_TRUE(runTool(u"pw-metadata"_s, {}).output.contains("kCaptureDriverPathKey"));
    computerAudio.terminate();
    computerAudio.waitForFinished();
}

TEST_F(RecordServer, RefusesAFolderThatCannotBeWritten) {
    tone();
    folder_ = u"/proc/self"_s;
    const auto result = sonaphex(recordArguments({u"--for"_s, u"1"_s}));
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.errors.startsWith("sonaphex: the folder /proc/self cannot be written")) << result.errors.data();
    EXPECT_EQ(result.errors.count('\n'), 1);
}

TEST_F(RecordServer, EndsWithACompleteFileAtASignal) {
    tone();
    for (const int signal : {SIGINT, SIGTERM}) {
        QProcess process;
        process.start(QStringLiteral(SONAPHEX_PROGRAM), recordArguments({}));
        ASSERT_FALSE(rawFile(20000).isEmpty());
        ::kill(pid_t(process.processId()), signal);
        ASSERT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
        const QString path = QString::fromUtf8(process.readAllStandardOutput().trimmed());
        EXPECT_GT(AudioCheck::framesByFfprobe(path), 22050);
        EXPECT_EQ(AudioCheck::decodedByFaad(path).size(), 2U) << "a plain file, closed";
        EXPECT_EQ(filesBelow(tmp_), QStringList());
    }
}

TEST_F(RecordServer, LeavesAPlayableRawFileWhenItIsKilled) {
    tone();
    QProcess process;
    process.start(QStringLiteral(SONAPHEX_PROGRAM), recordArguments({}));
    const QString raw = rawFile(60000);
    ASSERT_FALSE(raw.isEmpty());
    process.kill();
    ASSERT_TRUE(process.waitForFinished());
    const auto decoded = AudioCheck::decodedByFfmpeg(raw);
    ASSERT_EQ(decoded.size(), 2U);
    const double seconds = double(decoded[0].size()) / 44100;
    EXPECT_GT(seconds, 2.0);
    EXPECT_NEAR(AudioCheck::pitchOf(AudioCheck::inner(decoded[0], 8192), 44100), 440, 5);
    const auto demuxed = runTool(u"gst-launch-1.0"_s, {u"-q"_s, u"filesrc"_s, u"location="_s + raw, u"!"_s,
                                                       u"qtdemux"_s, u"!"_s, u"fakesink"_s});
    EXPECT_EQ(demuxed.status, 0) << demuxed.errors.toStdString();
    // The next recording of the same kind removes it.
    ASSERT_EQ(sonaphex(recordArguments({u"--for"_s, u"0.2"_s})).status, 0);
    EXPECT_EQ(filesBelow(tmp_), QStringList());
}

TEST_F(RecordServer, LosesAboutTheLastSecondWhenItIsKilled) {
    auto& source = tone();
    QProcess process;
    process.start(QStringLiteral(SONAPHEX_PROGRAM), recordArguments({}));
    const QString raw = rawFile(1);
    ASSERT_FALSE(raw.isEmpty());
    const auto begin = source.position();
    ASSERT_TRUE(waitFor([&] { return source.position() > begin + 3 * 48000; }, 60000));
    // The device is paused, so that the played frames can be compared with those on the disk.
    const double played = double(source.position() - begin) / 48000;
    source.remove();
    QByteArray said;
    ASSERT_TRUE(waitFor([&] {
        said += process.readAllStandardError();
        return said.contains("went away");
    }));
    const auto secondsOnDisk = [&] {
        const auto decoded = AudioCheck::decodedByFfmpeg(raw);
        return decoded.empty() ? 0.0 : double(decoded[0].size()) / 44100;
    };
    EXPECT_TRUE(waitFor([&] { return secondsOnDisk() > played - 1.5; })) << secondsOnDisk() << " of " << played;
    EXPECT_EQ(process.state(), QProcess::Running);
    process.kill();
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_GT(secondsOnDisk(), played - 1.5);
}

/// Files that ThreadSanitizer itself puts into $TMPDIR before the program starts.
#ifdef __SANITIZE_THREAD__
constexpr int kSanitizersKb = 512;
#else
constexpr int kSanitizersKb = 0;
#endif

TEST_F(RecordServer, KeepsTheRecordedAudioWhenTheDiskFillsUp) {
    tone();
    // The raw file is on a file system of 100 kB, in a mount namespace of the program; where mounting is not permitted,
    // the file size is limited to 100 kB instead.
    const bool mounts = runTool(u"unshare"_s, {u"-Urm"_s, u"true"_s}).status == 0;
    const QString script =
        mounts ? u"mount -t tmpfs -o size=%1k,mode=0700 tmpfs \"$TMPDIR\" && exec \"$@\""_s.arg(100 + kSanitizersKb)
               : u"trap '' XFSZ; ulimit -f 100; exec \"$@\""_s;
    QStringList arguments{u"-c"_s, script, u"sh"_s, QStringLiteral(SONAPHEX_PROGRAM)};
    arguments += recordArguments({u"--for"_s, u"60"_s});
    const auto result = mounts ? runTool(u"unshare"_s, QStringList{u"-Urm"_s, u"bash"_s} + arguments, 90000)
                               : runTool(u"bash"_s, arguments, 90000);
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.errors.contains("what was recorded is kept in")) << result.errors.data();
    const QString path = folder_ + u"/Track0.m4a"_s;
    ASSERT_TRUE(QFile::exists(path));
    const auto decoded = AudioCheck::decodedByFfmpeg(path);
    ASSERT_EQ(decoded.size(), 2U);
    EXPECT_GT(decoded[0].size(), 3U * 44100);
    EXPECT_NEAR(AudioCheck::pitchOf(AudioCheck::inner(decoded[0], 8192), 44100), 440, 5);
    const auto demuxed = runTool(u"gst-launch-1.0"_s, {u"-q"_s, u"filesrc"_s, u"location="_s + path, u"!"_s,
                                                       u"qtdemux"_s, u"!"_s, u"fakesink"_s});
    EXPECT_EQ(demuxed.status, 0) << demuxed.errors.toStdString();
}

TEST_F(RecordServer, SetsADamagedDefaultsFileAsideAndContinues) {
    tone();
    QDir(dir_.path()).mkdir(u"config"_s);
    const QString plist = dir_.filePath(u"config/com.korvane.Sonaphex.plist"_s);
    QFile file(plist);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("<?xml version=\"1.0\"?><plist><dict><key>Pref");
    file.close();
    const auto result = sonaphex(recordArguments({u"--for"_s, u"0.5"_s}));
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(result.errors.contains("is damaged")) << result.errors.data();
    EXPECT_EQ(QDir(dir_.filePath(u"config"_s)).entryList({u"*.damaged-*"_s}).size(), 1);
}

TEST_F(RecordServer, WaitsForAnUnpluggedDevice) {
    auto& source = tone();
    QProcess process;
    process.start(QStringLiteral(SONAPHEX_PROGRAM), recordArguments({u"--for"_s, u"4"_s}));
    ASSERT_FALSE(rawFile(2000).isEmpty());
    source.remove();
    QByteArray said;
    ASSERT_TRUE(waitFor([&] {
        said += process.readAllStandardError();
        return said.contains("went away");
    }));
    ASSERT_TRUE(source.start());
    ASSERT_TRUE(waitFor(
        [&] {
            said += process.readAllStandardError();
            return process.state() == QProcess::NotRunning;
        },
        30000))
        << said.data();
    EXPECT_EQ(process.exitCode(), 0);
    EXPECT_TRUE(said.contains("are missing: the input device was away")) << said.data();
    const QString path = QString::fromUtf8(process.readAllStandardOutput().trimmed());
    EXPECT_GE(AudioCheck::framesByFfprobe(path), 4 * 44100);
}

TEST_F(RecordServer, WaitsForASoundServerThatIsSlowToAnswer) {
    TestSource source({.name = "test.slow",
                       .description = "Slow Server",
                       .content = TestSource::Content::Tone,
                       .frequency = 660}); // a private session's tone has 440 Hz
    ASSERT_TRUE(source.start());
    ASSERT_TRUE(Platform::PipeWire::serverIsThere(30000, true, "test.slow"));
    const pid_t server = session_.serverProcess();
    ASSERT_GT(server, 0);
    ASSERT_EQ(kill(server, SIGSTOP), 0);
    QProcess process;
    process.start(QStringLiteral(SONAPHEX_PROGRAM), {u"record"_s, u"--for"_s, u"1"_s, u"--folder"_s, folder_,
                                                     u"--filter"_s, u"off"_s, u"--input"_s, u"Slow Server"_s});
    QByteArray said;
    const bool waited = waitFor([&] {
        said += process.readAllStandardError();
        return said.contains("waiting for it, at most 30 seconds") || process.state() == QProcess::NotRunning;
    });
    ASSERT_EQ(kill(server, SIGCONT), 0);
    ASSERT_TRUE(waited);
    ASSERT_TRUE(process.waitForFinished());
    said += process.readAllStandardError();
    EXPECT_EQ(process.exitCode(), 0) << said.data();
    EXPECT_FALSE(said.contains("a private one was started")) << said.data();
    const auto decoded = AudioCheck::decodedByFfmpeg(folder_ + u"/Track0.m4a"_s);
    ASSERT_EQ(decoded.size(), 2U);
    EXPECT_NEAR(AudioCheck::pitchOf(AudioCheck::inner(decoded[0], 8192), 44100), 660, 0.5);
}

TEST_F(RecordServer, StartsAPrivateSoundServerWhereThereIsNone) {
    PrivateAudioSession::end();
    const EnvironmentScope none("PIPEWIRE_RUNTIME_DIR");
    const auto result = sonaphex({u"record"_s, u"--for"_s, u"2"_s, u"--filter"_s, u"off"_s, u"--folder"_s, folder_});
    EXPECT_EQ(result.status, 0) << result.errors.data();
    EXPECT_TRUE(result.errors.contains("a private one was started")) << result.errors.data();
    const auto decoded = AudioCheck::decodedByFaad(folder_ + u"/Track0.m4a"_s);
    ASSERT_EQ(decoded.size(), 2U);
    EXPECT_GT(AudioCheck::levelOf(AudioCheck::inner(decoded[0], 8192)), 0.01);
}

TEST_F(RecordServer, ReportsMissingPackages) {
    PrivateAudioSession::end();
    const EnvironmentScope none("PIPEWIRE_RUNTIME_DIR");
    const EnvironmentScope path("PATH", dir_.path().toUtf8());
    const auto result = runTool(QStringLiteral(SONAPHEX_PROGRAM), {u"record"_s, u"--folder"_s, folder_});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors.count('\n'), 1) << result.errors.data();
    EXPECT_TRUE(result.errors.contains("not installed")) << result.errors.data();
    EXPECT_FALSE(QFile::exists(folder_));
}

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/RecordCommand.h"
#include "CommandLine/DevicesCommand.h"
#include "CommandLine/LevelMeter.h"
#include "Platform/Foundation/FileManager.h"
#include "Platform/Foundation/Services.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/Model/MediaLibrary.h"
#include "Source/Preferences/PreferenceStore.h"
#include "tests/CommandLine/CommandRun.h"
#include "tests/fakes/FakeAudioHardware.h"
#include "tests/fakes/FakeBundle.h"
#include "tests/fakes/FakeClock.h"
#include "tests/fakes/FakeIORegistry.h"
#include "tests/fakes/FakeMediaFiles.h"
#include "tests/fakes/FakeUserDefaults.h"
#include "tests/fakes/FakeWorkspace.h"
#include "tests/support/Environment.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocalServer>
#include <QLocalSocket>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>

#include <csignal>
#include <future>

using namespace Qt::StringLiterals;

namespace {

struct RecordCommandTest : testing::Test {
    Platform::ServicesScope scope;
    QTemporaryDir dir;
    EnvironmentScope home{"HOME", dir.path().toUtf8()};
    EnvironmentScope runtime{"XDG_RUNTIME_DIR", dir.path().toUtf8()};
    EnvironmentScope data{"XDG_DATA_HOME", dir.path().toUtf8()};
    EnvironmentScope temporary{"TMPDIR", (dir.path() + u"/tmp"_s).toUtf8()};
    FakeAudioHardware hardware;
    FakeMediaFiles media;
    FakeUserDefaults defaults;
    FakeClock clock;
    FakeIORegistry registry;
    FakeBundle bundle;
    FakeWorkspace workspace;
    QString out;
    QString err;
    QString folder = dir.filePath(u"recordings"_s);
    QTimer cycles; ///< plays the device's I/O thread
    float level = 0.5F;
    std::function<void()> eachCycle = [] {};
    std::function<void()> afterCycle = [] {};

    RecordCommandTest() {
        auto& set = Platform::services();
        set.audioHardware = &hardware;
        set.mediaFiles = &media;
        set.userDefaults = &defaults;
        set.bundle = &bundle;
        set.clock = &clock;
        set.ioRegistry = &registry;
        set.workspace = &workspace;
        media.knowsItsFiles = true;
        add(3, u"Speakers"_s, 0);
        add(7, u"Microphone"_s, 1);
        add(9, u"Korvane System Audio"_s, 2);
        add(12, u"Line in"_s, 2);
        hardware.defaultOutput = 3;
        QDir(dir.path()).mkdir(u"tmp"_s);
        QFile::setPermissions(dir.filePath(u"tmp"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QObject::connect(&cycles, &QTimer::timeout, &cycles, [this] {
            auto* unit = hardware.unit();
            if (!unit || !hardware.opened.back()->running)
                return;
            for (int i = 0; i < 50; ++i) {
                eachCycle();
                clock.advance(0.01);
                // Both devices deliver cycles; when only one exists, one is enough.
                for (const AudioObjectID device : std::set{AudioObjectID(9), hardware.opened.back()->device})
                    if (auto* each = hardware.unitOf(device); each && (device == 9 || each == unit))
                        (void)each->feedValue(level, 480, clock.hostTime());
            }
            afterCycle();
        });
        cycles.start(1);
    }
    void add(AudioObjectID id, const QString& name, std::uint32_t channels) {
        FakeAudioHardware::Device device;
        device.id = id;
        device.name = name;
        device.uid = u"node.%1:00000000"_s.arg(id);
        device.inputChannels = channels;
        hardware.list.push_back(device);
    }
    int run(const CommandLine::Command& command, const QStringList& arguments) {
        const CommandRun ran(command, arguments);
        out = ran.out;
        err = ran.err;
        // The double's files contain no audio, so they cannot carry tags.
        err.remove(QRegularExpression(
            u"sonaphex(: Track[0-9]+\\.m4a could not be tagged\\. Its audio is complete\\.|\\.media: .*)\n"_s));
        return ran.status;
    }
    int record(QStringList arguments) {
        arguments << u"--folder"_s << folder;
        return run(CommandLine::recordCommand, arguments);
    }
    [[nodiscard]] QStringList recordings() const {
        return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }
    [[nodiscard]] QStringList temporaries() const {
        return QDir(dir.filePath(u"tmp"_s)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
};

} // namespace

TEST_F(RecordCommandTest, RecordsTheRequestedNumberOfFramesAndPrintsThePath) {
    EXPECT_EQ(record({u"--for"_s, u"5"_s, u"--filter"_s, u"off"_s}), CommandLine::Done) << qPrintable(err);
    EXPECT_EQ(out, folder + u"/Track0.m4a\n"_s);
    EXPECT_EQ(err, QString());
    EXPECT_EQ(recordings(), QStringList{u"Track0.m4a"_s});
    EXPECT_EQ(media.last().framesAccepted, 5 * 48000) << "not a cycle more";
    EXPECT_EQ(temporaries(), QStringList()) << "the raw file's folder is gone";
}

TEST_F(RecordCommandTest, NeverRecordsFewerFramesThanRequested) {
    EXPECT_EQ(record({u"--for"_s, u"0.0101"_s, u"--filter"_s, u"off"_s}), CommandLine::Done);
    EXPECT_EQ(media.last().framesAccepted, 960) << "485 frames take two cycles";
}

TEST_F(RecordCommandTest, AddsTheEntryItselfWhenTheWindowDoesNotAnswer) {
    QByteArray asked;
    std::promise<void> listening;
    const std::unique_ptr<QThread> window(QThread::create([&] {
        QLocalServer server;
        const bool listens = server.listen(dir.filePath(bundle.bundleIdentifier() + u".socket"_s));
        listening.set_value();
        if (!listens || !server.waitForNewConnection(60000))
            return;
        QLocalSocket* const asker = server.nextPendingConnection();
        while (!asker->canReadLine() && asker->waitForReadyRead(60000)) {
        }
        asked = asker->readLine();
    }));
    window->start();
    listening.get_future().wait();
    EXPECT_EQ(record({u"--for"_s, u"2"_s, u"--filter"_s, u"off"_s}), CommandLine::Done) << qPrintable(err);
    window->wait();
    ASSERT_TRUE(asked.startsWith("library-add ")) << asked.constData();
    const QJsonDocument document = QJsonDocument::fromJson(asked.mid(asked.indexOf(' ')));
    const MediaLibrary library;
    ASSERT_EQ(library.records().size(), 1);
    const QString key = library.records().front().toMap().value(AudioRecordEntry::NodeDataKey).toString();
    EXPECT_TRUE(key.startsWith(folder + u"/Track0.m4a_"_s)) << qPrintable(key);
    EXPECT_EQ(document[u"tags"_s][AudioRecordEntry::NodeDataKey].toString(), key);
}

TEST_F(RecordCommandTest, PrintsJson) {
    EXPECT_EQ(record({u"--for"_s, u"2"_s, u"--filter"_s, u"1"_s, u"--json"_s}), CommandLine::Done);
    const auto document = QJsonDocument::fromJson(out.toUtf8()).object();
    ASSERT_EQ(document[u"recordings"_s].toArray().size(), 1);
    const auto recording = document[u"recordings"_s][0].toObject();
    EXPECT_EQ(recording[u"path"_s].toString(), folder + u"/Track0.m4a"_s);
    EXPECT_EQ(recording[u"title"_s].toString(), u"Track0"_s);
    EXPECT_EQ(recording[u"seconds"_s].toDouble(), 2.0);
    EXPECT_EQ(document[u"dropped"_s].toInt(-1), 0);
    EXPECT_EQ(document[u"lostFrames"_s].toInt(-1), 0);
}

TEST_F(RecordCommandTest, UsesTheFirstInputDeviceThatIsNotComputerAudio) {
    EXPECT_EQ(record({u"--for"_s, u"1"_s, u"--filter"_s, u"off"_s}), CommandLine::Done);
    EXPECT_EQ(hardware.opened.back()->device, 7U);
    EXPECT_EQ(hardware.find(7)->elements[1].volume, 1.0F);
}

TEST_F(RecordCommandTest, FindsADeviceByNameUidAndNumber) {
    for (const QString& wanted : {u"Line in"_s, u"node.12:00000000"_s, u"12"_s}) {
        EXPECT_EQ(record({u"--input"_s, wanted, u"--for"_s, u"1"_s, u"--filter"_s, u"off"_s}), CommandLine::Done);
        EXPECT_EQ(hardware.opened.back()->device, 12U);
    }
}

TEST_F(RecordCommandTest, ListsTheDevicesForAnUnknownOne) {
    EXPECT_EQ(record({u"--input"_s, u"Line %s out"_s}), CommandLine::Failed);
    EXPECT_EQ(err, u"sonaphex: there is no input device \"Line %s out\": there are Microphone, Korvane System Audio, "
                   "Line in\n"_s);
    EXPECT_EQ(recordings(), QStringList());
    hardware.list.clear();
    EXPECT_EQ(record({}), CommandLine::Failed);
    EXPECT_EQ(err, u"sonaphex: there is no input device\n"_s);
}

TEST_F(RecordCommandTest, RefusesAFolderThatCannotBeCreated) {
    QFile file(folder);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    EXPECT_EQ(record({u"--for"_s, u"1"_s}), CommandLine::Failed);
    EXPECT_EQ(err, u"sonaphex: the folder %1 cannot be created\n"_s.arg(folder));
    EXPECT_EQ(temporaries(), QStringList());
}

TEST_F(RecordCommandTest, FinishesItsFileAtASignal) {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        afterCycle = [signal] { std::raise(signal); };
        EXPECT_EQ(record({u"--filter"_s, u"off"_s}), CommandLine::Done);
    }
    EXPECT_EQ(recordings(), (QStringList{u"Track0.m4a"_s, u"Track1.m4a"_s, u"Track2.m4a"_s}));
    EXPECT_TRUE(media.last().disposed);
}

TEST_F(RecordCommandTest, DropsARecordingShorterThanTheStoredFilter) {
    EXPECT_EQ(record({u"--for"_s, u"4"_s, u"--json"_s}), CommandLine::Done);
    const auto document = QJsonDocument::fromJson(out.toUtf8()).object();
    EXPECT_EQ(document[u"dropped"_s].toInt(), 1);
    EXPECT_TRUE(document[u"recordings"_s].toArray().isEmpty());
    EXPECT_EQ(recordings(), QStringList());
    EXPECT_EQ(temporaries(), QStringList());
    defaults.setObject(PreferenceStore::PreferenceFilterTimeKey, u"3 s"_s);
    EXPECT_EQ(record({u"--for"_s, u"4"_s}), CommandLine::Done);
    defaults.setObject(PreferenceStore::PreferenceFilterTimeKey, u"30"_s);
    defaults.setObject(PreferenceStore::PreferenceFilterKey, 0);
    EXPECT_EQ(record({u"--for"_s, u"4"_s}), CommandLine::Done);
    EXPECT_EQ(recordings().size(), 2);
}

TEST_F(RecordCommandTest, ChangesNoStoredPreference) {
    const int before = defaults.changes();
    EXPECT_EQ(record({u"--for"_s, u"1"_s, u"--filter"_s, u"2"_s}), CommandLine::Done);
    EXPECT_EQ(defaults.changes(), before);
}

TEST_F(RecordCommandTest, KeepsTheRecordedAudioWhenTheDiskIsFull) {
    afterCycle = [this] { media.last().writeStatus = -34; };
    EXPECT_EQ(record({u"--for"_s, u"100"_s}), CommandLine::Failed);
    EXPECT_EQ(err, u"sonaphex: No space left on device: what was recorded is kept in %1/Track0.m4a\n"_s.arg(folder));
    EXPECT_EQ(recordings(), QStringList{u"Track0.m4a"_s});
    EXPECT_TRUE(media.last().disposed);
}

TEST_F(RecordCommandTest, ARecordingThatCannotBeMovedIsAtThePrintedPath) {
    const EnvironmentScope noData("XDG_DATA_HOME", dir.filePath(u"in the way"_s).toUtf8());
    QFile inTheWay(dir.filePath(u"in the way"_s));
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    afterCycle = [this] { QDir(folder).removeRecursively(); };
    EXPECT_EQ(record({u"--for"_s, u"6"_s}), CommandLine::Failed);
    EXPECT_TRUE(err.contains(u"The recording is kept, and moved by the next start when there is room, at "_s))
        << qPrintable(err);
    const QString kept = out.trimmed();
    EXPECT_TRUE(kept.endsWith(u"/Track0.m4a"_s)) << qPrintable(out);
    EXPECT_TRUE(QFile::exists(kept));
    // The next recording that finds room moves it to the folder of unfinished recordings.
    ASSERT_TRUE(inTheWay.remove());
    afterCycle = [] {};
    EXPECT_EQ(record({u"--for"_s, u"6"_s}), CommandLine::Done) << qPrintable(err);
    EXPECT_FALSE(QFile::exists(kept));
    EXPECT_TRUE(QFile::exists(Platform::FileManager::unfinishedFolder() + u"/Track0.m4a"_s));
    EXPECT_EQ(temporaries(), QStringList());
}

TEST_F(RecordCommandTest, FailsWhenTheLibraryCannotBeStored) {
    defaults.flushFails = true;
    EXPECT_EQ(record({u"--for"_s, u"6"_s}), CommandLine::Failed);
    EXPECT_EQ(out, folder + u"/Track0.m4a\n"_s);
    EXPECT_EQ(err, u"sonaphex: %1/Track0.m4a could not be added to the library: what was recorded is kept in "
                   "%1/Track0.m4a\n"_s.arg(folder));
}

TEST_F(RecordCommandTest, ReportsLostFrames) {
    afterCycle = [this] { hardware.opened.back()->lost = 24000; };
    EXPECT_EQ(record({u"--for"_s, u"5"_s, u"--json"_s}), CommandLine::Done);
    EXPECT_EQ(err, u"sonaphex: 0.500 s are missing (24000 frames): the computer was too busy to take them.\n"_s);
    EXPECT_EQ(QJsonDocument::fromJson(out.toUtf8())[u"lostFrames"_s].toInt(), 24000);
}

TEST_F(RecordCommandTest, ReportsALostDevice) {
    int count = 0;
    afterCycle = [&] {
        if (++count == 1)
            hardware.unit()->tell(Platform::InputUnit::Event::DeviceLost);
    };
    EXPECT_EQ(record({u"--for"_s, u"5"_s}), CommandLine::Done);
    EXPECT_EQ(err, u"sonaphex: The input device went away. The recording so far is kept and continues when "
                   "it is back.\n"_s)
        << qPrintable(err);
}

// The loss may be printed before it, or not at all when the device was back before the notices were read.
TEST_F(RecordCommandTest, ReportsHowLongAReturnedDeviceWasAway) {
    using Event = Platform::InputUnit::Event;
    int count = 0;
    afterCycle = [&] {
        if (++count == 1)
            hardware.unit()->tell(Event::DeviceLost);
        if (count == 2)
            hardware.unit()->tell(Event::DeviceReturned);
    };
    EXPECT_EQ(record({u"--for"_s, u"5"_s}), CommandLine::Done);
    EXPECT_TRUE(err.endsWith(u"sonaphex: 0.500 s are missing: the input device was away. The recording goes on.\n"_s))
        << qPrintable(err);
}

TEST_F(RecordCommandTest, ReportsAnUnusableDeviceOrFile) {
    hardware.remove(9);
    hardware.nextUnit->fails = {FakeInputUnit::Step::Start};
    EXPECT_EQ(record({u"--for"_s, u"1"_s}), CommandLine::Failed);
    EXPECT_TRUE(err.startsWith(u"sonaphex: Microphone cannot be opened: the device cannot be started"_s))
        << qPrintable(err);
    media.createFails = true;
    EXPECT_EQ(record({u"--for"_s, u"1"_s}), CommandLine::Failed);
    EXPECT_EQ(err, u"sonaphex: The input device is not being recorded: the file is set to fail.\n"_s);
    EXPECT_EQ(recordings(), QStringList());
    EXPECT_EQ(temporaries(), QStringList());
}

TEST_F(RecordCommandTest, RecordsComputerAudioAlone) {
    EXPECT_EQ(record({u"--computer"_s, u"--for"_s, u"2"_s, u"--filter"_s, u"off"_s}), CommandLine::Done)
        << qPrintable(err);
    EXPECT_EQ(recordings(), QStringList{u"Track0.m4a"_s});
    ASSERT_EQ(media.files.size(), 1U);
    EXPECT_TRUE(media.last().path.contains(u"ComputerA"_s));
    EXPECT_EQ(media.last().framesAccepted, 2 * 48000);
}

TEST_F(RecordCommandTest, AcceptsTheComputerAudioDeviceByName) {
    EXPECT_EQ(record({u"--input"_s, u"Korvane System Audio"_s, u"--for"_s, u"1"_s, u"--filter"_s, u"off"_s}),
              CommandLine::Done);
    EXPECT_TRUE(media.last().path.contains(u"ComputerA"_s));
}

TEST_F(RecordCommandTest, ReportsWhatIsMissingForComputerAudio) {
    hardware.remove(9);
    EXPECT_EQ(record({u"--computer"_s}), CommandLine::Failed);
    EXPECT_EQ(err, u"sonaphex: computer audio: its driver is not installed (see sonaphex driver install)\n"_s);
}

TEST_F(RecordCommandTest, EndsAnArmedWaitWithoutSound) {
    level = 0;
    EXPECT_EQ(record({u"--computer"_s, u"--wait"_s, u"0.1"_s, u"--json"_s}), CommandLine::Done);
    EXPECT_EQ(err, u"sonaphex: no sound came: nothing was recorded\n"_s);
    const auto document = QJsonDocument::fromJson(out.toUtf8()).object();
    EXPECT_TRUE(document[u"recordings"_s].toArray().isEmpty());
    EXPECT_EQ(document[u"dropped"_s].toInt(-1), 0);
    EXPECT_EQ(recordings(), QStringList());
    EXPECT_EQ(temporaries(), QStringList());
}

TEST_F(RecordCommandTest, ASignalWhileWaitingIsNotAFailure) {
    level = 0;
    afterCycle = [] { std::raise(SIGINT); };
    EXPECT_EQ(record({u"--computer"_s}), CommandLine::Done);
    EXPECT_EQ(out, QString());
}

TEST_F(RecordCommandTest, SplitsAtSilences) {
    // Alternates between a second of sound and half a second of silence.
    int cycles = 0;
    eachCycle = [&] { level = cycles++ / 50 % 3 < 2 ? 0.5F : 0; };
    EXPECT_EQ(
        record({u"--computer"_s, u"--split"_s, u"300"_s, u"--for"_s, u"4.4"_s, u"--filter"_s, u"off"_s, u"--json"_s}),
        CommandLine::Done)
        << qPrintable(err);
    const auto document = QJsonDocument::fromJson(out.toUtf8()).object();
    EXPECT_EQ(document[u"recordings"_s].toArray().size(), 3 + 1) << "the last part begins in the third silence";
    std::int64_t frames = 0;
    for (const auto& file : media.files)
        frames += file->framesAccepted;
    EXPECT_NEAR(double(frames), 4.4 * 48000, 480) << "the limit counts all files";
    EXPECT_GE(frames, std::int64_t(4.4 * 48000));
}

TEST_F(RecordCommandTest, RefusesWrongUsageAndPrintsTheUsage) {
    for (const auto& arguments :
         {QStringList{u"--for"_s, u"abc"_s}, QStringList{u"--for"_s, u"0"_s}, QStringList{u"--for"_s, u"-1"_s},
          QStringList{u"--filter"_s, u"maybe"_s}, QStringList{u"file"_s}, QStringList{u"--unknown"_s},
          QStringList{u"--input"_s, u"none"_s}, QStringList{u"--split"_s, u"2147483648"_s},
          QStringList{u"--app"_s, u"a"_s, u"--not-app"_s, u"b"_s}, QStringList{u"--app"_s, u""_s},
          QStringList{u"--not-app"_s, u""_s}, QStringList{u"--pre-roll"_s, u"5001"_s},
          QStringList{u"--pre-roll"_s, u"-1"_s}, QStringList{u"--filter"_s, u"2.5"_s},
          QStringList{u"--wait"_s, u"inf"_s}, QStringList{u"--for"_s, u"nan"_s}}) {
        EXPECT_EQ(record(arguments), CommandLine::WrongUsage) << qPrintable(arguments.join(u' '));
        EXPECT_TRUE(err.contains(u"usage: sonaphex record"_s));
    }
    EXPECT_EQ(hardware.opened.size(), 0U);
}

TEST_F(RecordCommandTest, ListsTheDevices) {
    hardware.find(12)->nameFails = true;
    EXPECT_EQ(run(CommandLine::devicesCommand, {}), CommandLine::Done);
    EXPECT_EQ(out, u"Microphone\t1 channel, 48000 Hz\n"
                   "Korvane System Audio\t2 channels, 48000 Hz, what the computer plays\n"
                   "node.12:00000000\t2 channels, 48000 Hz\n"
                   "default output: Speakers\n"_s);
}

TEST_F(RecordCommandTest, ListsTheDevicesAsJson) {
    EXPECT_EQ(run(CommandLine::devicesCommand, {u"--json"_s}), CommandLine::Done);
    const auto document = QJsonDocument::fromJson(out.toUtf8()).object();
    const auto devices = document[u"devices"_s].toArray();
    ASSERT_EQ(devices.size(), 3);
    EXPECT_EQ(devices[0].toObject(), (QJsonObject{{u"id"_s, 7},
                                                  {u"name"_s, u"Microphone"_s},
                                                  {u"uid"_s, u"node.7:00000000"_s},
                                                  {u"channels"_s, 1},
                                                  {u"sampleRate"_s, 48000},
                                                  {u"isComputerAudio"_s, false}}));
    EXPECT_TRUE(devices[1][u"isComputerAudio"_s].toBool());
    EXPECT_EQ(document[u"defaultOutput"_s][u"name"_s].toString(), u"Speakers"_s);
    hardware.list.clear();
    hardware.defaultOutput = 0;
    EXPECT_EQ(run(CommandLine::devicesCommand, {u"--json"_s}), CommandLine::Done);
    const auto none = QJsonDocument::fromJson(out.toUtf8()).object();
    EXPECT_TRUE(none[u"devices"_s].toArray().isEmpty());
    EXPECT_TRUE(none[u"defaultOutput"_s].isNull());
}

TEST(LevelMeter, ShowsTimeAndDecibels) {
    using CommandLine::LevelMeter;
    EXPECT_EQ(LevelMeter::text(65, 12, u"recording"_s), u"00:01:05 ["_s + QString(40, u'#') + u"]   0 dB  recording"_s);
    EXPECT_EQ(LevelMeter::text(0, 0, u"waiting"_s), u"00:00:00 ["_s + QString(40, u'.') + u"] -60 dB  waiting"_s);
    EXPECT_TRUE(LevelMeter::text(0, float(12 * 0.03162), u"x"_s).contains(u"] -30 dB"_s));
    EXPECT_TRUE(LevelMeter::text(0, std::nanf(""), u"x"_s).contains(u"] -60 dB"_s));
}

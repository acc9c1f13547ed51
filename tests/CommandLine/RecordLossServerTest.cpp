// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Output and behaviour in a terminal while computer audio is recorded, lost and silent.
#include "tests/support/AudioCheck.h"
#include "tests/support/Environment.h"
#include "tests/support/LoginManager.h"
#include "tests/support/PrivateAudioSession.h"
#include "tests/support/PrivateBus.h"
#include "tests/support/TestSource.h"
#include "tests/support/UnitCapture.h"
#include "tests/support/WaitFor.h"

#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

class RecordLossServer : public testing::Test {
protected:
    /// A source that looks like the capture driver's. Plays a tone or silence.
    [[nodiscard]] bool startComputerAudio(bool sounds) {
        source_ = std::make_unique<TestSource>(
            TestSource::Options{.name = "test.computer",
                                .description = "Korvane System Audio",
                                .content = sounds ? TestSource::Content::Tone : TestSource::Content::Silence,
                                .frequency = 440});
        return source_->start() && waitForDevice(*hardware_, u"Korvane System Audio"_s) != 0;
    }
    void startRecording(const QStringList& more) {
        process_.start(QStringLiteral(SONAPHEX_PROGRAM),
                       QStringList{u"record"_s, u"--input"_s, u"none"_s, u"--computer"_s, u"--filter"_s, u"off"_s,
                                   u"--folder"_s, home_.filePath(u"Music"_s)} +
                           more);
    }
    [[nodiscard]] bool hasRawFile() const {
        return QDirIterator(home_.path(), {u"ComputerA*.m4a"_s}, QDir::Files | QDir::Hidden,
                            QDirIterator::Subdirectories)
            .hasNext();
    }
    [[nodiscard]] bool says(const QByteArray& words) {
        return waitFor(
            [&] {
                said_ += process_.readAllStandardError();
                return said_.contains(words);
            },
            60000);
    }
    [[nodiscard]] bool ends() {
        return waitFor([this] { return process_.state() == QProcess::NotRunning; }, 60000) && process_.exitCode() == 0;
    }

    PrivateAudioSession& session_ = PrivateAudioSession::shared();
    QTemporaryDir home_;
    EnvironmentScope homeFolder_{"HOME", home_.path().toUtf8()};
    EnvironmentScope config_{"XDG_CONFIG_HOME", home_.filePath(u"config"_s).toUtf8()};
    EnvironmentScope data_{"XDG_DATA_HOME", home_.filePath(u"data"_s).toUtf8()};
    EnvironmentScope cache_{"XDG_CACHE_HOME", home_.filePath(u"cache"_s).toUtf8()};
    EnvironmentScope runtime_{"XDG_RUNTIME_DIR", home_.path().toUtf8()};
    EnvironmentScope temporary_{"TMPDIR"};
    std::unique_ptr<Platform::AudioHardware> hardware_ = Platform::createAudioHardware();
    std::unique_ptr<TestSource> source_;
    QProcess process_;
    QByteArray said_;
};

} // namespace

TEST_F(RecordLossServer, ASplitTimeOfZeroMakesOneFileOfATone) {
    ASSERT_TRUE(startComputerAudio(true));
    startRecording({u"--split"_s, u"0"_s, u"--for"_s, u"1"_s, u"--json"_s});
    ASSERT_TRUE(ends()) << process_.readAllStandardError().toStdString();
    const auto document = QJsonDocument::fromJson(process_.readAllStandardOutput()).object();
    EXPECT_EQ(document[u"recordings"_s].toArray().size(), 1);
}

TEST_F(RecordLossServer, AnArmedWaitReportsALostDevice) {
    ASSERT_TRUE(startComputerAudio(false));
    startRecording({u"--for"_s, u"1"_s});
    ASSERT_TRUE(waitFor([this] { return hasRawFile(); }, 60000)) << "it waits with its file open";
    source_->remove();
    ASSERT_TRUE(says("Computer audio went away. The wait for the first sound continues when it is back."))
        << said_.data();
    ASSERT_TRUE(startComputerAudio(true));
    EXPECT_TRUE(says("Computer audio is back.")) << said_.data();
    EXPECT_TRUE(ends()) << said_.data();
    EXPECT_GE(AudioCheck::framesByFfprobe(home_.filePath(u"Music/Track0.m4a"_s)), 44100);
}

TEST_F(RecordLossServer, ARecordingInhibitsSleepUntilItsEnd) {
    const PrivateBus bus(home_.path());
    const EnvironmentScope system("DBUS_SYSTEM_BUS_ADDRESS", bus.address().toUtf8());
    {
        QDBusConnection connection = QDBusConnection::connectToBus(bus.address(), u"login"_s);
        LoginManager manager(connection);
        ASSERT_TRUE(manager.isRegistered());
        ASSERT_TRUE(startComputerAudio(true));
        startRecording({});
        EXPECT_TRUE(waitFor([&] { return manager.isHeld(); }, 60000));
        EXPECT_EQ(manager.asked().value(2), u"A recording is running."_s);
        ::kill(pid_t(process_.processId()), SIGINT);
        EXPECT_TRUE(ends()) << process_.readAllStandardError().toStdString();
        EXPECT_TRUE(waitFor([&] { return !manager.isHeld(); }));
    }
    QDBusConnection::disconnectFromBus(u"login"_s);
}

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The program with its window, as a process: launched twice, sent requests, and ended by a signal.
#include "Platform/Audio/linux/ServerProbe.h"
#include "tests/support/AudioCheck.h"
#include "tests/support/Environment.h"
#include "tests/support/PrivateAudioSession.h"
#include "tests/support/TestSource.h"
#include "tests/support/WaitFor.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

class RunningWindow : public testing::Test {
protected:
    RunningWindow() {
        QDir(dir_.path()).mkdir(u"tmp"_s);
        QFile::setPermissions(tmp_, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        EXPECT_TRUE(source_.start());
        EXPECT_TRUE(Platform::PipeWire::serverIsThere(30000, true, "test.tone"));
    }
    ~RunningWindow() override {
        if (window_.state() == QProcess::NotRunning)
            return;
        window_.kill();
        window_.waitForFinished();
    }
    [[nodiscard]] QByteArray control(const QString& request) {
        return runTool(QStringLiteral(SONAPHEX_PROGRAM), {u"control"_s, request}).output.trimmed();
    }
    [[nodiscard]] bool launch() {
        window_.start(QStringLiteral(SONAPHEX_PROGRAM), QStringList());
        return window_.waitForStarted() && waitFor([this] { return control(u"status"_s).startsWith("idle"); }, 30000);
    }

    PrivateAudioSession& session_ = PrivateAudioSession::shared();
    QTemporaryDir dir_;
    QString tmp_ = dir_.filePath(u"tmp"_s);
    EnvironmentScope home_{"HOME", dir_.path().toUtf8()};
    EnvironmentScope config_{"XDG_CONFIG_HOME", dir_.filePath(u"config"_s).toUtf8()};
    EnvironmentScope data_{"XDG_DATA_HOME", dir_.filePath(u"data"_s).toUtf8()};
    EnvironmentScope runtime_{"XDG_RUNTIME_DIR", dir_.path().toUtf8()};
    EnvironmentScope temporary_{"TMPDIR", tmp_.toUtf8()};
    EnvironmentScope display_{"DISPLAY"};
    EnvironmentScope platform_{"QT_QPA_PLATFORM", "offscreen"};
    TestSource source_{{.name = "test.tone",
                        .description = "Test Tone",
                        .content = TestSource::Content::Tone,
                        .frequency = 440,
                        .ownClock = true}};
    QProcess window_;
};

} // namespace

TEST_F(RunningWindow, IsTheOnlyOneAndASecondLaunchKeepsItsFiles) {
    ASSERT_TRUE(launch());
    const QString raw = tmp_ + u"/com.korvane.Sonaphex/BuiltInA0.m4a"_s;
    QFile file(raw);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    const auto second = runTool(QStringLiteral(SONAPHEX_PROGRAM), {}, 30000);
    EXPECT_EQ(second.status, 0) << second.errors.toStdString();
    EXPECT_TRUE(QFile::exists(raw));
    EXPECT_EQ(window_.state(), QProcess::Running);
}

TEST_F(RunningWindow, TwoLaunchesAtOnceShowOneWindow) {
    QProcess second;
    window_.start(QStringLiteral(SONAPHEX_PROGRAM), QStringList());
    second.start(QStringLiteral(SONAPHEX_PROGRAM), QStringList());
    const auto ended = [](const QProcess& process) { return process.state() == QProcess::NotRunning; };
    ASSERT_TRUE(waitFor([&] { return ended(window_) || ended(second); }, 60000));
    QProcess& raised = ended(window_) ? window_ : second;
    QProcess& running = ended(window_) ? second : window_;
    EXPECT_EQ(raised.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(raised.exitCode(), 0) << raised.readAllStandardError().toStdString();
    EXPECT_EQ(running.state(), QProcess::Running);
    EXPECT_TRUE(control(u"status"_s).startsWith("idle"));
    second.kill();
    second.waitForFinished();
}

TEST_F(RunningWindow, FinishesItsRecordingWhenItIsAskedToEnd) {
    ASSERT_TRUE(launch());
    (void)control(u"start-stop"_s);
    ASSERT_TRUE(waitFor(
        [this] {
            return QFileInfo(tmp_ + u"/com.korvane.Sonaphex/BuiltInA0.m4a"_s).size() >
                   120000; // seven seconds: long enough for the filter
        },
        40000));
    ::kill(pid_t(window_.processId()), SIGTERM);
    ASSERT_TRUE(waitFor([this] { return window_.state() == QProcess::NotRunning; }, 30000));
    EXPECT_EQ(window_.exitStatus(), QProcess::NormalExit);
    const QString path = dir_.filePath(u"Music/com.korvane.Sonaphex/Track0.m4a"_s);
    ASSERT_TRUE(QFile::exists(path));
    EXPECT_GT(AudioCheck::framesByFfprobe(path), 5 * 44100);
    EXPECT_EQ(AudioCheck::decodedByFaad(path).size(), 2U) << "a plain file, closed";
}

TEST_F(RunningWindow, AddsARecordingOnceHoweverLateItAnswers) {
    ASSERT_TRUE(launch());
    ASSERT_EQ(::kill(pid_t(window_.processId()), SIGSTOP), 0);
    const auto recorded =
        runTool(QStringLiteral(SONAPHEX_PROGRAM), {u"record"_s, u"--for"_s, u"1"_s, u"--filter"_s, u"off"_s});
    EXPECT_EQ(recorded.status, 0) << recorded.errors.constData();
    ASSERT_EQ(::kill(pid_t(window_.processId()), SIGCONT), 0);
    ASSERT_TRUE(waitFor([this] { return control(u"status"_s).startsWith("idle"); }, 30000)); // this request came later
    ::kill(pid_t(window_.processId()), SIGTERM);
    ASSERT_TRUE(waitFor([this] { return window_.state() == QProcess::NotRunning; }, 30000));
    const auto listed = runTool(QStringLiteral(SONAPHEX_PROGRAM), {u"library"_s});
    EXPECT_TRUE(listed.output.startsWith("recordings: 1\n")) << listed.output.constData();
}

TEST_F(RunningWindow, RemovesTheFilesOfAKilledInstance) {
    ASSERT_TRUE(launch());
    window_.kill();
    ASSERT_TRUE(window_.waitForFinished(10000));
    const QString raw = tmp_ + u"/com.korvane.Sonaphex/BuiltInA0.m4a"_s;
    QFile file(raw);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    ASSERT_TRUE(launch());
    EXPECT_FALSE(QFile::exists(raw));
}

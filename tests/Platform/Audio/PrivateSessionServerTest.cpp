// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Audio/PrivateSession.h"

#include "tests/support/CallersThings.h"
#include "tests/support/PrivateAudioSession.h"
#include "tests/support/RunTool.h"
#include "tests/support/TestCapture.h"
#include "tests/support/TestSource.h"
#include "tests/support/UnitCapture.h"
#include "tests/support/WaitFor.h"

#include <atomic>
#include <csignal>
#include <cstdlib>
#include <optional>
#include <thread>
#include <vector>

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Platform;
using namespace Qt::StringLiterals;

namespace {

/// Processes whose command line names the folder of a session or that have it in their environment.
QStringList processesOf(const QString& runtimeFolder) {
    QStringList found;
    const QByteArray needle = "PIPEWIRE_RUNTIME_DIR=" + runtimeFolder.toLocal8Bit();
    for (const QString& pid : QDir(u"/proc"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile environment(u"/proc/"_s + pid + u"/environ"_s);
        if (pid.toInt() != getpid() && environment.open(QIODevice::ReadOnly) &&
            environment.readAll().split('\0').contains(needle))
            found << pid;
    }
    return found;
}

} // namespace

TEST(PrivateSession, HasAnOutputAndAToneThatCanBeHeard) {
    PrivateAudioSession::end();
    QString why;
    const auto session = PrivateSession::start(why);
    ASSERT_TRUE(session) << why.toStdString();
    EXPECT_TRUE(PrivateSession::serverAnswers());
    TestCapture capture({.target = "sonaphex.tone", .monitor = false});
    ASSERT_TRUE(capture.start());
    EXPECT_TRUE(waitFor([&] { return std::abs(capture.recentPeak() - 0.2512f) < 0.001f; }));
}

TEST(PrivateSession, LeavesNothingWhenItIsClosed) {
    PrivateAudioSession::end();
    QString why;
    auto session = PrivateSession::start(why);
    ASSERT_TRUE(session) << why.toStdString();
    const QString folder = session->runtimeFolder();
    EXPECT_TRUE(QFileInfo::exists(folder));
    EXPECT_GE(processesOf(folder).size(), 3);
    session.reset();
    EXPECT_FALSE(QFileInfo::exists(folder));
    EXPECT_TRUE(processesOf(folder).isEmpty());
}

TEST(PrivateSession, EndsWithItsOwnerThatIsKilled) {
    PrivateAudioSession::end();
    // The program itself, recording on a machine without a sound server.
    const QTemporaryDir home;
    auto environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME", "TMPDIR"})
        environment.insert(QString::fromLatin1(name), home.path());
    environment.remove(u"PIPEWIRE_RUNTIME_DIR"_s);
    QProcess owner;
    owner.setProcessEnvironment(environment);
    owner.setStandardOutputFile(QProcess::nullDevice());
    owner.start(QStringLiteral(SONAPHEX_PROGRAM), {u"record"_s, u"--for"_s, u"3600"_s, u"--filter"_s, u"off"_s});
    QByteArray said;
    ASSERT_TRUE(waitFor([&] {
        said += owner.readAllStandardError();
        return said.contains("a private one was started");
    })) << said.toStdString();
    QString folder;
    for (const QString& each : QDir(home.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        if (QFileInfo::exists(home.filePath(each + u"/pipewire-0"_s)))
            folder = home.filePath(each);
    ASSERT_FALSE(folder.isEmpty()) << QDir(home.path()).entryList().join(u' ').toStdString();
    ASSERT_GE(processesOf(folder).size(), 3);
    ASSERT_EQ(owner.state(), QProcess::Running);
    owner.kill();
    ASSERT_TRUE(owner.waitForFinished());
    EXPECT_TRUE(waitFor([&] { return processesOf(folder).isEmpty(); }));
    EXPECT_TRUE(waitFor([&] { return !QFileInfo::exists(folder); }));
}

TEST(PrivateSession, KeepsNothingOfItsCaller) {
    PrivateAudioSession::end();
    CallersThings things;
    QString why;
    const auto session = LinuxPrivateSession::start({}, why);
    ASSERT_TRUE(session) << why.toStdString();
    const QStringList processes = processesOf(session->runtimeFolder());
    ASSERT_GE(processes.size(), 2);
    for (const QString& each : processes + QStringList{QString::number(session->keeper())})
        EXPECT_TRUE(things.areNotOf(each.toInt()));
    EXPECT_TRUE(things.letGo());
}

namespace {

/// Keepers that begin beside this one: each takes every folder whose lock it gets for a deserted one.
class OtherKeepers {
public:
    explicit OtherKeepers(QString base) : base_(std::move(base)) {
        for (int i = 0; i < 2; ++i)
            threads_.emplace_back([this] {
                while (!end_)
                    removeAll();
            });
    }
    ~OtherKeepers() {
        end_ = true;
        for (auto& each : threads_)
            each.join();
    }
    OtherKeepers(const OtherKeepers&) = delete;
    OtherKeepers& operator=(const OtherKeepers&) = delete;

private:
    void removeAll() {
        for (const QString& each : QDir(base_).entryList({u"sonaphex-audio-*"_s}, QDir::Dirs)) {
            const QString path = base_ + u'/' + each;
            const int lock = open(QFile::encodeName(path + u"/lock"_s).constData(), O_RDONLY | O_CLOEXEC);
            if (lock < 0)
                continue;
            if (flock(lock, LOCK_EX | LOCK_NB) == 0)
                QDir(path).removeRecursively();
            close(lock);
        }
    }

    QString base_;
    std::atomic<bool> end_{false};
    std::vector<std::thread> threads_;
};

} // namespace

TEST(PrivateSession, FolderIsNotTakenForADesertedOneByAnotherThatBeginsBesideIt) {
    const QTemporaryDir base;
    const OtherKeepers others(base.path());
    const QString keeper = QStringLiteral(SONAPHEX_BIN_DIR "/Resources/AudioSessionKeeper");
    for (int i = 0; i < 300; ++i) {
        // Its server ends at once, so all that it does is to make its folder, and to say how far it came.
        const auto result = runTool(
            keeper, {QString::number(getpid()), base.path(), u"/nonexistent"_s, u"/bin/false"_s, u"/bin/false"_s});
        ASSERT_EQ(result.output, "failed the sound server /bin/false did not come up\n") << "at keeper " << i;
    }
}

TEST(PrivateSession, ServerDiesWithAKeeperThatIsKilled) {
    PrivateAudioSession::end();
    QString why;
    auto session = LinuxPrivateSession::start({}, why);
    ASSERT_TRUE(session) << why.toStdString();
    const QString folder = session->runtimeFolder();
    kill(session->keeper(), SIGKILL);
    EXPECT_TRUE(waitFor([&] { return processesOf(folder).isEmpty(); }));
    session.reset();
    EXPECT_FALSE(QFileInfo::exists(folder));
}

TEST(PrivateSession, NamesThePackageThatIsMissing) {
    PrivateAudioSession::end();
    const QByteArray path = qgetenv("PATH");
    const QTemporaryDir bare;
    qputenv("PATH", bare.path().toLocal8Bit());
    QString why;
    EXPECT_FALSE(PrivateSession::start(why));
    EXPECT_TRUE(why.startsWith(u"pipewire is not installed"_s)) << why.toStdString();
    ASSERT_TRUE(QFile::link(u"/usr/bin/pipewire"_s, bare.filePath(u"pipewire"_s)));
    EXPECT_FALSE(PrivateSession::start(why));
    EXPECT_TRUE(why.startsWith(u"wireplumber is not installed"_s)) << why.toStdString();
    qputenv("PATH", path);
}

TEST(PrivateSession, HearsNoServerWhereThereIsNone) {
    PrivateAudioSession::end();
    const QTemporaryDir bare;
    qputenv("PIPEWIRE_RUNTIME_DIR", bare.path().toLocal8Bit());
    EXPECT_FALSE(PrivateSession::serverAnswers());
    qunsetenv("PIPEWIRE_RUNTIME_DIR");
}

namespace {

/// The server stands still, as on a machine that is busy with other things, for as long as it lives.
class StoodStill {
public:
    explicit StoodStill(pid_t process) : process_(process) { kill(process_, SIGSTOP); }
    ~StoodStill() { kill(process_, SIGCONT); }
    StoodStill(const StoodStill&) = delete;
    StoodStill& operator=(const StoodStill&) = delete;

private:
    pid_t process_;
};

} // namespace

TEST(PrivateSession, TellsAServerThatStandsStillFromNone) {
    auto& session = PrivateAudioSession::shared();
    EXPECT_EQ(PrivateSession::lookForServer(10000), PrivateSession::Server::Answering);
    ASSERT_GT(session.serverProcess(), 0);
    {
        const StoodStill still(session.serverProcess());
        EXPECT_EQ(PrivateSession::lookForServer(200), PrivateSession::Server::Silent);
        int steps = 0;
        EXPECT_EQ(PrivateSession::lookForServer(60000, [&] { return ++steps < 5; }), PrivateSession::Server::Silent);
        EXPECT_EQ(steps, 5);
    }
    EXPECT_EQ(PrivateSession::lookForServer(10000), PrivateSession::Server::Answering);
    ASSERT_TRUE(session.stopServer());
    EXPECT_EQ(PrivateSession::lookForServer(200), PrivateSession::Server::Absent);
    ASSERT_TRUE(session.startServer());
}

TEST(PrivateSession, WaitsForAServerThatStandsStillAndSaysSoOnce) {
    auto& session = PrivateAudioSession::shared();
    std::optional<StoodStill> still(std::in_place, session.serverProcess());
    testing::internal::CaptureStderr();
    EXPECT_EQ(PrivateSession::waitForServer({}, 1500), PrivateSession::Server::Silent);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "sonaphex: the sound server does not answer: waiting for it, at most 1 seconds\n");
    // It wakes up while it is waited for.
    testing::internal::CaptureStderr();
    EXPECT_EQ(PrivateSession::waitForServer([&] {
                  still.reset();
                  return true;
              }),
              PrivateSession::Server::Answering);
    testing::internal::GetCapturedStderr();
}

TEST(PrivateSession, PlaysTheRampOfATestSourceUnbroken) {
    PrivateAudioSession::shared();
    TestSource source({.name = "test.ramp", .rate = 44100});
    ASSERT_TRUE(source.start());
    TestCapture capture({.target = "test.ramp", .monitor = false, .rate = 44100});
    ASSERT_TRUE(capture.start());
    ASSERT_TRUE(waitFor([&] { return capture.frames() > 44100; }));
    capture.stop();
    const auto samples = capture.interleaved();
    for (std::uint32_t channel = 0; channel < 2; ++channel) {
        std::vector<float> one;
        for (std::size_t i = channel; i < samples.size(); i += 2)
            one.push_back(samples[i]);
        EXPECT_TRUE(isUnbrokenRamp(one, channel));
    }
}

TEST(PrivateSession, CarriesAPlayerToTheMonitorOfItsOutput) {
    PrivateAudioSession::shared();
    TestCapture capture({});
    ASSERT_TRUE(capture.start());
    TestPlayer player({.content = TestSource::Content::Tone, .amplitude = 0.5});
    ASSERT_TRUE(player.start());
    EXPECT_TRUE(waitFor([&] { return std::abs(capture.recentPeak() - 0.5f) < 0.001f; }));
    player.setContent(TestSource::Content::Silence);
    EXPECT_TRUE(waitFor([&] { return capture.recentPeak() == 0; }));
}

TEST(PrivateSession, ComesBackInTheSameFolder) {
    auto& session = PrivateAudioSession::shared();
    ASSERT_TRUE(session.stopServer());
    EXPECT_FALSE(PrivateSession::serverAnswers());
    ASSERT_TRUE(session.startServer());
    EXPECT_TRUE(PrivateSession::serverAnswers());
}

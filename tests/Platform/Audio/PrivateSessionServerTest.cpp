// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Audio/PrivateSession.h"

#include "tests/support/CallersThings.h"
#include "tests/support/PrivateAudioSession.h"
#include "tests/support/TestCapture.h"
#include "tests/support/TestSource.h"
#include "tests/support/UnitCapture.h"
#include "tests/support/WaitFor.h"

#include <csignal>
#include <cstdlib>
#include <optional>

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Platform;
using namespace Qt::StringLiterals;

namespace {

/// Processes that have the folder of a session in their command line or their environment.
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
    auto started = PrivateSession::start();
    ASSERT_TRUE(started) << started.error().text.toStdString();
    auto session = *std::move(started);
    EXPECT_TRUE(PrivateSession::serverAnswers());
    TestCapture capture({.target = "sonaphex.tone", .monitor = false});
    ASSERT_TRUE(capture.start());
    EXPECT_TRUE(waitFor([&] { return std::abs(capture.recentPeak() - 0.2512f) < 0.001f; }));
}

TEST(PrivateSession, LeavesNothingWhenItIsClosed) {
    PrivateAudioSession::end();
    auto started = PrivateSession::start();
    ASSERT_TRUE(started) << started.error().text.toStdString();
    auto session = *std::move(started);
    const QString folder = session->runtimeFolder();
    EXPECT_TRUE(QFileInfo::exists(folder));
    EXPECT_GE(processesOf(folder).size(), 3);
    session.reset();
    EXPECT_FALSE(QFileInfo::exists(folder));
    EXPECT_TRUE(processesOf(folder).isEmpty());
}

TEST(PrivateSession, EndsWhenItsOwnerIsKilled) {
    PrivateAudioSession::end();
    // The real program records on a machine without a sound server.
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

TEST(PrivateSession, InheritsNothingFromItsCaller) {
    PrivateAudioSession::end();
    CallersThings things;
    auto started = LinuxPrivateSession::start({});
    ASSERT_TRUE(started) << started.error().text.toStdString();
    auto session = *std::move(started);
    const QStringList processes = processesOf(session->runtimeFolder());
    ASSERT_GE(processes.size(), 2);
    for (const QString& each : processes + QStringList{QString::number(session->keeper())})
        EXPECT_TRUE(things.areNotOf(each.toInt()));
    EXPECT_TRUE(things.letGo());
}

namespace {

/// Starts a keeper and removes its folder, as another starting keeper could: between the creation of the lock file and
/// the moment when the lock is held, the folder looks abandoned. Returns the keeper's last output. Its server exits at
/// once, so it does nothing but create its folder.
QByteArray keeperWhoseFolderIsRemoved(const QString& base, bool& removed) {
    const QByteArray path = QByteArrayLiteral(SONAPHEX_BIN_DIR "/Resources/AudioSessionKeeper");
    const QByteArray owner = QByteArray::number(getpid());
    const QByteArray folder = base.toLocal8Bit();
    int output[2] = {-1, -1};
    if (pipe2(output, O_CLOEXEC) != 0)
        return {};
    const pid_t keeper = fork();
    if (keeper == 0) {
        ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
        dup2(output[1], STDOUT_FILENO);
        execl(path.constData(), path.constData(), owner.constData(), folder.constData(), "/nonexistent", "/bin/false",
              "/bin/false", nullptr);
        _exit(127);
    }
    close(output[1]);
    removed = false;
    int status = 0;
    // The keeper is stopped at each of its system calls until the lock file exists.
    while (!removed && waitpid(keeper, &status, 0) == keeper && WIFSTOPPED(status)) {
        for (const QString& each : QDir(base).entryList({u"sonaphex-audio-*"_s}, QDir::Dirs)) {
            const int lock = open(QFile::encodeName(base + u'/' + each + u"/lock"_s).constData(), O_RDONLY | O_CLOEXEC);
            removed = lock >= 0 && flock(lock, LOCK_EX | LOCK_NB) == 0 && QDir(base + u'/' + each).removeRecursively();
            if (lock >= 0)
                close(lock);
        }
        ptrace(removed ? PTRACE_DETACH : PTRACE_SYSCALL, keeper, nullptr, nullptr);
    }
    QByteArray said;
    char block[256];
    for (ssize_t count = 0; (count = read(output[0], block, sizeof block)) > 0;)
        said.append(block, count);
    close(output[0]);
    waitpid(keeper, nullptr, 0);
    return said;
}

} // namespace

TEST(PrivateSession, CreatesAnotherFolderWhenAnotherKeeperRemovesTheFirst) {
    const QTemporaryDir base;
    bool removed = false;
    EXPECT_EQ(keeperWhoseFolderIsRemoved(base.path(), removed), "failed the sound server /bin/false did not come up\n");
    EXPECT_TRUE(removed);
}

TEST(PrivateSession, ServerEndsWhenItsKeeperIsKilled) {
    PrivateAudioSession::end();
    auto started = LinuxPrivateSession::start({});
    ASSERT_TRUE(started) << started.error().text.toStdString();
    auto session = *std::move(started);
    const QString folder = session->runtimeFolder();
    kill(session->keeper(), SIGKILL);
    EXPECT_TRUE(waitFor([&] { return processesOf(folder).isEmpty(); }));
    session.reset();
    EXPECT_FALSE(QFileInfo::exists(folder));
}

TEST(PrivateSession, NamesAMissingPackage) {
    PrivateAudioSession::end();
    const QByteArray path = qgetenv("PATH");
    const QTemporaryDir bare;
    qputenv("PATH", bare.path().toLocal8Bit());
    QString why = PrivateSession::start().error().text;
    EXPECT_TRUE(why.startsWith(u"pipewire is not installed"_s)) << why.toStdString();
    ASSERT_TRUE(QFile::link(u"/usr/bin/pipewire"_s, bare.filePath(u"pipewire"_s)));
    why = PrivateSession::start().error().text;
    EXPECT_TRUE(why.startsWith(u"wireplumber is not installed"_s)) << why.toStdString();
    qputenv("PATH", path);
}

TEST(PrivateSession, FindsNoServerWhereThereIsNone) {
    PrivateAudioSession::end();
    const QTemporaryDir bare;
    qputenv("PIPEWIRE_RUNTIME_DIR", bare.path().toLocal8Bit());
    EXPECT_FALSE(PrivateSession::serverAnswers());
    qunsetenv("PIPEWIRE_RUNTIME_DIR");
}

namespace {

/// Stops the server's process while this object lives, as on an overloaded machine.
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

TEST(PrivateSession, DistinguishesAStoppedServerFromNone) {
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

TEST(PrivateSession, WaitsForAStoppedServerAndReportsItOnce) {
    auto& session = PrivateAudioSession::shared();
    std::optional<StoodStill> still(std::in_place, session.serverProcess());
    testing::internal::CaptureStderr();
    EXPECT_EQ(PrivateSession::waitForServer({}, 1500), PrivateSession::Server::Silent);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "sonaphex: the sound server does not answer: waiting for it, at most 1 seconds\n");
    // The server continues while the program waits for it.
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

TEST(PrivateSession, PlaysAPlayerOnTheMonitorOfItsOutput) {
    PrivateAudioSession::shared();
    TestCapture capture({});
    ASSERT_TRUE(capture.start());
    TestPlayer player({.content = TestSource::Content::Tone, .amplitude = 0.5});
    ASSERT_TRUE(player.start());
    EXPECT_TRUE(waitFor([&] { return std::abs(capture.recentPeak() - 0.5f) < 0.001f; }));
    player.setContent(TestSource::Content::Silence);
    EXPECT_TRUE(waitFor([&] { return capture.recentPeak() == 0; }));
}

TEST(PrivateSession, RestartsInTheSameFolder) {
    auto& session = PrivateAudioSession::shared();
    ASSERT_TRUE(session.stopServer());
    EXPECT_FALSE(PrivateSession::serverAnswers());
    ASSERT_TRUE(session.startServer());
    EXPECT_TRUE(PrivateSession::serverAnswers());
}

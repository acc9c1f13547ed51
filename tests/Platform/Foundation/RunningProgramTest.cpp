// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/RunningProgram.h"

#include "Platform/Foundation/MainQueue.h"
#include "tests/support/Environment.h"
#include "tests/support/WaitFor.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <QLocalSocket>
#include <QProcess>
#include <QTemporaryDir>

#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <thread>

using Platform::RunningProgram;

namespace {

struct RunningProgramTest : testing::Test {
    QTemporaryDir dir{QDir::tempPath() + QStringLiteral("/sonaphex-XXXXXX")};
    EnvironmentScope temporary{"TMPDIR", dir.path().toUtf8()};
    EnvironmentScope runtime{"XDG_RUNTIME_DIR", dir.path().toUtf8()};
    std::unique_ptr<RunningProgram> first = RunningProgram::create(QStringLiteral("org.example.Test"));
    std::unique_ptr<RunningProgram> second = RunningProgram::create(QStringLiteral("org.example.Test"));
};

/// Asks on a separate thread, because this thread's event loop answers.
QByteArray askMeanwhile(RunningProgram& who, const QByteArray& request) {
    QByteArray answer;
    std::atomic<bool> done{false};
    std::thread asking([&] {
        if (!who.ask(request, answer))
            answer = "(nobody)";
        done = true;
    });
    EXPECT_TRUE(waitFor([&] { return done.load(); }));
    asking.join();
    return answer;
}

} // namespace

TEST_F(RunningProgramTest, OnlyOneHoldsTheLock) {
    EXPECT_TRUE(first->acquire());
    EXPECT_TRUE(first->acquire());
    EXPECT_FALSE(second->acquire());
    EXPECT_EQ(second->lastError(), QString());
    first.reset();
    EXPECT_TRUE(second->acquire());
}

TEST_F(RunningProgramTest, ReleasesTheLockWhenItsProcessIsKilled) {
    int ready[2];
    ASSERT_EQ(pipe(ready), 0);
    const pid_t child = fork();
    if (child == 0) {
        const char held = first->acquire() ? 'y' : 'n';
        (void)!write(ready[1], &held, 1);
        for (;;)
            pause();
    }
    char held = 0;
    ASSERT_EQ(read(ready[0], &held, 1), 1);
    EXPECT_EQ(held, 'y');
    EXPECT_FALSE(second->acquire());
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    EXPECT_TRUE(second->acquire());
}

TEST_F(RunningProgramTest, ChildProcessesDoNotInheritTheLock) {
    ASSERT_TRUE(first->acquire());
    QProcess child;
    child.start(QStringLiteral("sleep"), {QStringLiteral("30")});
    ASSERT_TRUE(child.waitForStarted());
    first.reset();
    EXPECT_TRUE(second->acquire());
    child.kill();
    child.waitForFinished();
}

TEST_F(RunningProgramTest, KeepsTheLockOutsideTheFolderThatALaunchEmpties) {
    ASSERT_TRUE(first->acquire());
    EXPECT_FALSE(QFileInfo::exists(dir.filePath(QStringLiteral("org.example.Test"))));
    EXPECT_TRUE(QFileInfo::exists(dir.filePath(QStringLiteral("org.example.Test.lock"))));
}

TEST_F(RunningProgramTest, ReportsWhyTheLockFileCannotBeCreated) {
    QDir().mkpath(dir.filePath(QStringLiteral("org.example.Test.lock")));
    EXPECT_FALSE(first->acquire());
    EXPECT_FALSE(first->lastError().isEmpty());
}

TEST_F(RunningProgramTest, AnswersLinesOfOtherPrograms) {
    ASSERT_TRUE(first->acquire());
    ASSERT_TRUE(first->listen([](const QByteArray& request) { return QByteArray("heard " + request); }));
    EXPECT_EQ(askMeanwhile(*second, "status"), "heard status");
    EXPECT_EQ(askMeanwhile(*second, "split"), "heard split");
}

TEST_F(RunningProgramTest, ReplacesLineBreaksInRequestAndAnswer) {
    ASSERT_TRUE(first->acquire());
    ASSERT_TRUE(first->listen([](const QByteArray& request) { return QByteArray(request + "\nsecond"); }));
    EXPECT_EQ(askMeanwhile(*second, "one\ntwo"), "one two second");
}

TEST_F(RunningProgramTest, AcceptsTheKeysOfAWholeLibraryInOneRequest) {
    ASSERT_TRUE(first->acquire());
    int requests = 0;
    ASSERT_TRUE(first->listen([&](const QByteArray& request) {
        ++requests;
        return request;
    }));
    const QByteArray keys(2 << 20, 'k'); // as long as a command line can be
    EXPECT_TRUE(askMeanwhile(*second, keys) == keys);
    EXPECT_EQ(requests, 1);
}

TEST_F(RunningProgramTest, ListensOnlyWithTheLock) {
    EXPECT_FALSE(first->listen([](const QByteArray&) { return QByteArray(); }));
    QByteArray answer;
    EXPECT_FALSE(second->ask("status", answer, 200));
}

TEST_F(RunningProgramTest, ReplacesTheSocketOfAKilledProgram) {
    ASSERT_TRUE(first->acquire());
    ASSERT_TRUE(first->listen([](const QByteArray&) { return QByteArray("old"); }));
    const QString socket = dir.filePath(QStringLiteral("org.example.Test.socket"));
    ASSERT_TRUE(QFileInfo::exists(socket));
    const QString kept = socket + QStringLiteral(".kept");
    ASSERT_TRUE(QFile::rename(socket, kept));
    first.reset();
    ASSERT_TRUE(QFile::rename(kept, socket));
    ASSERT_TRUE(second->acquire());
    ASSERT_TRUE(second->listen([](const QByteArray&) { return QByteArray("new"); })) << qPrintable(second->lastError());
    first = RunningProgram::create(QStringLiteral("org.example.Test"));
    EXPECT_EQ(askMeanwhile(*first, "who"), "new");
}

TEST_F(RunningProgramTest, AnswersBeforeWorkThatRunsAnEventLoop) {
    ASSERT_TRUE(first->acquire());
    bool answered = false;
    bool done = false;
    ASSERT_TRUE(first->listen([&](const QByteArray&) {
        return RunningProgram::Reply("ok", [&] {
            // Simulates a dialog: it stays open until the caller has its answer and has disconnected.
            EXPECT_TRUE(waitFor([&] { return answered; }, 10000));
            done = true;
        });
    }));
    QByteArray answer;
    std::thread asking([&] {
        if (!second->ask("start-stop", answer))
            answer = "(nobody)";
        Platform::MainQueue::post([&] { answered = true; });
    });
    EXPECT_TRUE(waitFor([&] { return done; }));
    asking.join();
    EXPECT_EQ(answer, "ok");
}

TEST_F(RunningProgramTest, FinishesTheWorkOfARequestBeforeTheNextOne) {
    ASSERT_TRUE(first->acquire());
    QByteArray heard;
    ASSERT_TRUE(first->listen([&](const QByteArray& request) {
        heard += request;
        return RunningProgram::Reply(heard, [&heard] { heard += '!'; });
    }));
    std::atomic<bool> done{false};
    QByteArrayList answers;
    std::thread asking([&] {
        QLocalSocket socket;
        socket.connectToServer(dir.filePath(QStringLiteral("org.example.Test.socket")));
        EXPECT_TRUE(socket.waitForConnected());
        socket.write("a\nb\nc\n"); // in one packet
        socket.waitForBytesWritten();
        while (answers.size() < 3 && (socket.canReadLine() || socket.waitForReadyRead(10000)))
            while (socket.canReadLine())
                answers.append(socket.readLine().trimmed());
        done = true;
    });
    EXPECT_TRUE(waitFor([&] { return done.load(); }));
    asking.join();
    EXPECT_EQ(answers, (QByteArrayList{"a", "a!b", "a!b!c"}));
    EXPECT_TRUE(waitFor([&] { return heard == "a!b!c!"; }));
}

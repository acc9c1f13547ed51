// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Terminals that close, readers that exit, signals that the caller ignores: none of them may end a recording.
#include "tests/CommandLine/RecordServerFixture.h"

#include <fcntl.h>
#include <unistd.h>

namespace {

/// A pipe whose reading end the test can close. Closing a channel of QProcess would only discard the data.
class Reader {
public:
    Reader() { EXPECT_EQ(pipe2(ends_, O_CLOEXEC), 0); }
    ~Reader() {
        leave();
        ::close(ends_[1]);
    }
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    /// Makes the pipe the stream @p stream of a process that is about to start.
    void attachTo(QProcess& process, int stream) {
        process.setChildProcessModifier([this, stream] { ::dup2(ends_[1], stream); });
    }
    void leave() {
        if (ends_[0] >= 0)
            ::close(ends_[0]);
        ends_[0] = -1;
    }

private:
    int ends_[2] = {-1, -1};
};

class ClosedOutputServer : public RecordServer {
protected:
    /// Starts the program from a shell that runs @p before first.
    void startAfter(const QString& before, const QStringList& more = {}) {
        process_.start(u"sh"_s,
                       QStringList{u"-c"_s, before + u"; exec \"$@\""_s, u"sh"_s, QStringLiteral(SONAPHEX_PROGRAM)} +
                           recordArguments(more));
        ASSERT_TRUE(process_.waitForStarted());
        raw_ = rawFile(20000);
        ASSERT_FALSE(raw_.isEmpty());
    }
    /// Whether the recording continues: its raw file grows by about another second.
    [[nodiscard]] bool goesOn() {
        const qint64 before = QFileInfo(raw_).size();
        return waitFor(
                   [&] { return process_.state() == QProcess::NotRunning || QFileInfo(raw_).size() > before + 20000; },
                   60000) &&
               process_.state() == QProcess::Running;
    }
    void signal(int number) {
        ASSERT_GT(process_.processId(), 0) << "it ended already"; // kill(0) would kill the test itself
        ASSERT_EQ(::kill(pid_t(process_.processId()), number), 0);
    }
    /// Ends the recording; its file must be complete.
    void endsWithAWholeFile() {
        ASSERT_NO_FATAL_FAILURE(signal(SIGTERM));
        ASSERT_TRUE(process_.waitForFinished());
        EXPECT_EQ(process_.exitStatus(), QProcess::NormalExit);
        const QString path = folder_ + u"/Track0.m4a"_s;
        EXPECT_GT(AudioCheck::framesByFfprobe(path), 22050);
        EXPECT_EQ(AudioCheck::decodedByFaad(path).size(), 2U) << "a plain file, closed";
        EXPECT_EQ(filesBelow(tmp_), QStringList());
    }

    QProcess process_;
    QString raw_;
};

} // namespace

TEST_F(ClosedOutputServer, ContinuesWhenTheReaderOfItsErrorsExits) {
    auto& source = tone();
    Reader reader;
    reader.attachTo(process_, STDERR_FILENO);
    startAfter(u":"_s);
    reader.leave();
    // The loss of the device and its return are both reported on standard error.
    source.remove();
    ASSERT_TRUE(source.start());
    EXPECT_TRUE(goesOn());
    endsWithAWholeFile();
    EXPECT_EQ(process_.exitCode(), 0);
}

TEST_F(ClosedOutputServer, PrintsThePathOnStandardErrorWhenStandardOutputIsClosed) {
    tone();
    Reader reader;
    reader.attachTo(process_, STDOUT_FILENO);
    startAfter(u":"_s);
    reader.leave();
    endsWithAWholeFile();
    EXPECT_EQ(process_.exitCode(), 1);
    EXPECT_EQ(process_.readAllStandardError(),
              "sonaphex: standard output could not be written: Broken pipe: what was recorded is kept in " +
                  folder_.toUtf8() + "/Track0.m4a\n");
}

TEST_F(ClosedOutputServer, WritesNoMessageIntoTheRecordingWhenItsOutputsAreClosed) {
    auto& source = tone();
    startAfter(u"exec 0<&- 1>&- 2>&-"_s);
    source.remove();
    ASSERT_TRUE(source.start());
    EXPECT_TRUE(goesOn());
    QFile raw(raw_);
    ASSERT_TRUE(raw.open(QIODevice::ReadOnly));
    EXPECT_FALSE(raw.readAll().contains("went away"));
    endsWithAWholeFile();
}

TEST_F(ClosedOutputServer, ContinuesAtAHangUpThatItsCallerIgnores) {
    tone();
    startAfter(u"trap '' HUP"_s); // as nohup does
    signal(SIGHUP);
    EXPECT_TRUE(goesOn());
    endsWithAWholeFile();
    EXPECT_EQ(process_.exitCode(), 0);
}

TEST_F(ClosedOutputServer, ContinuesAtAnInterruptThatItsCallerIgnores) {
    tone();
    startAfter(u"trap '' INT"_s); // as a shell does for the jobs that it runs in the background
    signal(SIGINT);
    EXPECT_TRUE(goesOn());
    endsWithAWholeFile();
    EXPECT_EQ(process_.exitCode(), 0);
}

TEST_F(ClosedOutputServer, EndsAtAHangUpThatItsCallerDoesNotIgnore) {
    tone();
    startAfter(u":"_s);
    signal(SIGHUP);
    ASSERT_TRUE(process_.waitForFinished());
    EXPECT_EQ(process_.exitCode(), 0);
    EXPECT_GT(AudioCheck::framesByFfprobe(folder_ + u"/Track0.m4a"_s), 22050);
}

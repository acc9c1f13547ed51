// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/Platform/Media/MediaTestSupport.h"
#include "tests/support/FileContent.h"
#include "tests/support/RunTool.h"
#include "tests/support/WaitFor.h"

#include <QDir>
#include <QTemporaryDir>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

/// The real program with malformed and special files.
class ConvertFiles : public testing::Test {
protected:
    [[nodiscard]] QString at(const QString& name) const { return folder.filePath(name); }
    static ToolResult sonaphex(const QStringList& arguments) {
        return runTool(QStringLiteral(SONAPHEX_PROGRAM), arguments);
    }
    [[nodiscard]] QStringList everything() const {
        return QDir(folder.path())
            .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System, QDir::Name);
    }
    void write(const QString& name, const QByteArray& content) const { FileContent::put(at(name), content); }
    [[nodiscard]] QByteArray read(const QString& name) const { return FileContent::get(at(name)); }
    /// An hour of silence in a sparse file.
    void writeLongWave(const QString& name) const {
        MediaTest::Samples rows(2, std::vector<float>(512));
        MediaTest::writeFile(at(name), kAudioFileWAVEType, rows);
        auto head = read(name);
        const auto data = head.indexOf("data");
        ASSERT_GT(data, 0);
        const std::uint32_t bytes = 3600U * 44100 * 8;
        const std::uint32_t riff = bytes + std::uint32_t(data);
        memcpy(head.data() + data + 4, &bytes, 4);
        memcpy(head.data() + 4, &riff, 4);
        QFile file(at(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(head.left(data + 8));
        ASSERT_TRUE(file.resize(data + 8 + qint64(bytes)));
    }

    QTemporaryDir folder;
};

TEST_F(ConvertFiles, RefusesBadInputWithOneLineAndLeavesNothing) {
    write(u"empty.wav"_s, "");
    write(u"text.m4a"_s, "Not a sound, but a text with the wrong name.\n");
    MediaTest::writeFile(at(u"whole.m4a"_s), kAudioFileM4AType, MediaTest::tones(200000));
    write(u"truncated.m4a"_s, read(u"whole.m4a"_s).left(10000));
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"folder.wav"_s));
    ASSERT_EQ(mkfifo(QFile::encodeName(at(u"fifo.wav"_s)).constData(), 0600), 0);
    ASSERT_EQ(runTool(u"ffmpeg"_s,
                      {u"-v"_s, u"error"_s, u"-f"_s, u"lavfi"_s, u"-i"_s, u"testsrc=d=0.2"_s, at(u"picture.mp4"_s)})
                  .status,
              0);
    const auto before = everything();
    for (const auto& name : {u"missing.wav"_s, u"empty.wav"_s, u"text.m4a"_s, u"truncated.m4a"_s, u"folder.wav"_s,
                             u"fifo.wav"_s, u"picture.mp4"_s}) {
        for (const auto& arguments : {QStringList{u"convert"_s, at(name), at(u"out.wav"_s)},
                                      QStringList{u"convert"_s, at(name), at(u"out.wav"_s), u"--length"_s, u"3"_s},
                                      QStringList{u"waveform"_s, at(name)}}) {
            const auto result = sonaphex(arguments);
            EXPECT_EQ(result.status, 1) << qPrintable(name);
            EXPECT_EQ(result.errors.count('\n'), 1) << result.errors.constData();
            EXPECT_TRUE(result.errors.startsWith("sonaphex: ")) << result.errors.constData();
            EXPECT_TRUE(result.output.isEmpty());
        }
    }
    EXPECT_EQ(everything(), before);
}

TEST_F(ConvertFiles, ReportsAFullDiskAndKeepsAnExistingTarget) {
    writeLongWave(u"long.wav"_s);
    write(u"target.wav"_s, "precious");
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit small{2 << 20, before.rlim_max};
    const auto handler =
        std::signal(SIGXFSZ, SIG_IGN); // inherited by the program: a full disk gives an error instead of a signal
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    const auto result =
        sonaphex({u"convert"_s, at(u"long.wav"_s), at(u"target.wav"_s), u"--overwrite"_s, u"--to"_s, u"60"_s});
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors.count('\n'), 1) << result.errors.constData();
    EXPECT_TRUE(result.errors.contains("target.wav")) << result.errors.constData();
    EXPECT_EQ(read(u"target.wav"_s), "precious");
    EXPECT_EQ(everything(), (QStringList{u"long.wav"_s, u"target.wav"_s}));
}

TEST_F(ConvertFiles, StopsAtAnInterruptWithoutAnIncompleteFile) {
    writeLongWave(u"long.wav"_s);
    write(u"target.m4a"_s, "precious");
    for (const int signal : {SIGINT, SIGTERM}) {
        QProcess program;
        program.start(QStringLiteral(SONAPHEX_PROGRAM),
                      {u"convert"_s, at(u"long.wav"_s), at(u"target.m4a"_s), u"--overwrite"_s});
        ASSERT_TRUE(program.waitForStarted());
        ASSERT_TRUE(waitFor([&] { return everything().size() == 3; })) << "the hidden file grows";
        ::kill(pid_t(program.processId()), signal);
        ASSERT_TRUE(program.waitForFinished());
        EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(program.exitCode(), 1);
        EXPECT_EQ(read(u"target.m4a"_s), "precious");
        EXPECT_EQ(everything(), (QStringList{u"long.wav"_s, u"target.m4a"_s}));
    }
}

TEST_F(ConvertFiles, ConvertsTheRestOfATruncatedWaveAndReportsIt) {
    MediaTest::writeFile(at(u"whole.wav"_s), kAudioFileWAVEType, MediaTest::tones(44100));
    write(u"truncated.wav"_s, read(u"whole.wav"_s).left(44100 * 4));
    const auto result = sonaphex({u"convert"_s, at(u"truncated.wav"_s), at(u"out.wav"_s)});
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(QFile::exists(at(u"out.wav"_s)));
}

TEST_F(ConvertFiles, PrintsNoProgressWithoutATerminal) {
    MediaTest::writeFile(at(u"whole.wav"_s), kAudioFileWAVEType, MediaTest::tones(44100 * 5));
    const auto result = sonaphex({u"convert"_s, at(u"whole.wav"_s), at(u"out.m4a"_s)});
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(result.errors.isEmpty()) << result.errors.constData();
    EXPECT_TRUE(result.output.isEmpty());
}

} // namespace

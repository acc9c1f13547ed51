// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The commands split and join, as the real program.
#include "tests/CommandLine/ProgramHome.h"
#include "tests/Platform/Media/MediaTestSupport.h"
#include "tests/support/AudioCheck.h"
#include "tests/support/Mpeg4Files.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t Second = 44100;

class SplitCommand : public testing::Test {
protected:
    SplitCommand() { QDir().mkdir(home.filePath(u"music"_s)); }
    [[nodiscard]] QString at(const QString& name) const { return home.filePath(u"music/"_s + name); }
    [[nodiscard]] QStringList files() const {
        return QDir(at({})).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
    }
    /// A recording with silences from 2 to 3, from 5 to 5.5 and from 8 to 9.2 s of 12, and at its begin and its end.
    QString record(const QString& name) const {
        auto sound = MediaTest::tones(12 * Second);
        const auto silence = [&](double from, double to) {
            for (auto& channel : sound)
                std::fill(channel.begin() + std::ptrdiff_t(from * Second),
                          channel.begin() + std::ptrdiff_t(to * Second), 0.0F);
        };
        silence(0, 0.9);
        silence(2, 3);
        silence(5, 5.5);
        silence(8, 9.2);
        silence(11, 12);
        MediaTest::writeFile(at(name), kAudioFileM4AType, std::move(sound));
        EXPECT_EQ(
            ProgramHome::sonaphex({u"tag"_s, at(name), u"--title"_s, u"Rain 100%1"_s, u"--artist"_s, u"Sky"_s}).status,
            0);
        return at(name);
    }
    static ToolResult split(const QStringList& arguments) {
        return ProgramHome::sonaphex(QStringList{u"split"_s} + arguments);
    }
    static ToolResult join(const QStringList& arguments) {
        return ProgramHome::sonaphex(QStringList{u"join"_s} + arguments);
    }
    static std::vector<double> cutsOf(const ToolResult& result) {
        std::vector<double> cuts;
        for (const auto& cut : QJsonDocument::fromJson(result.output)[u"cuts"_s].toArray())
            cuts.push_back(cut.toDouble());
        return cuts;
    }
    ProgramHome home;
};

} // namespace

TEST_F(SplitCommand, PartsEndToEndAreTheRecording) {
    const QString path = record(u"One.m4a"_s);
    const QByteArray before = Mpeg4Files::contentOf(path);
    const auto result = split({path, u"--silence"_s, u"400"_s});
    ASSERT_EQ(result.status, 0) << result.errors.constData();
    const QStringList names{u"One 1.m4a"_s, u"One 2.m4a"_s, u"One 3.m4a"_s, u"One 4.m4a"_s};
    EXPECT_EQ(files(), names + QStringList{u"One.m4a"_s});
    EXPECT_EQ(QString::fromUtf8(result.output).trimmed().split(u'\n'),
              (QStringList{at(names[0]), at(names[1]), at(names[2]), at(names[3])}));
    MediaTest::Samples all(2);
    for (const QString& name : names) {
        const auto part = MediaTest::readFile(at(name)).rows;
        for (std::size_t channel = 0; channel < 2; ++channel)
            all[channel].insert(all[channel].end(), part[channel].begin(), part[channel].end());
    }
    EXPECT_TRUE(all == MediaTest::readFile(path).rows) << "sample by sample";
    EXPECT_EQ(Mpeg4Files::contentOf(path), before);
    EXPECT_EQ(Mpeg4Files::probe(at(names[1]))[u"title"_s].toString(), u"Rain 100%1 2"_s);
    EXPECT_EQ(Mpeg4Files::probe(at(names[1]))[u"artist"_s].toString(), u"Sky"_s);
    const auto listed = ProgramHome::library()[u"records"_s].toArray();
    ASSERT_EQ(listed.size(), 4);
    EXPECT_EQ(listed[0][u"path"_s].toString(), at(names[3])) << "the newest entry comes first";
    EXPECT_EQ(listed[0][u"title"_s].toString(), u"Rain 100%1 4"_s);
    EXPECT_NEAR(listed[0][u"seconds"_s].toDouble(), 12 - 8.6, 0.05);
    EXPECT_TRUE(home.temporaries().isEmpty());
}

TEST_F(SplitCommand, ADryRunListsTheCutsAndWritesNothing) {
    const QString path = record(u"One.m4a"_s);
    const auto result = split({path, u"--silence"_s, u"400"_s, u"--dry-run"_s, u"--json"_s});
    ASSERT_EQ(result.status, 0) << result.errors.constData();
    const auto cuts = cutsOf(result);
    ASSERT_EQ(cuts.size(), 3U);
    // The encoder blurs an edge by up to a packet.
    EXPECT_NEAR(cuts[0], 2.5, 0.03);
    EXPECT_NEAR(cuts[1], 5.25, 0.03);
    EXPECT_NEAR(cuts[2], 8.6, 0.03);
    EXPECT_NEAR(QJsonDocument::fromJson(result.output)[u"longestSilence"_s].toDouble(), 1.2, 0.06);
    EXPECT_EQ(cutsOf(split({path, u"--silence"_s, u"700"_s, u"--dry-run"_s, u"--json"_s})).size(), 2U);
    EXPECT_TRUE(split({path, u"--silence"_s, u"700"_s, u"--dry-run"_s}).output.contains("longest silence found: 1.1"));
    EXPECT_EQ(files(), QStringList{u"One.m4a"_s});
}

TEST_F(SplitCommand, FindsTheSilencesThatSoxFinds) {
    const QString path = record(u"One.m4a"_s);
    ASSERT_EQ(runTool(u"ffmpeg"_s, {u"-v"_s, u"error"_s, u"-i"_s, path, at(u"One.wav"_s)}).status, 0);
    // sox removes silences of half a second at the same level, and leaves as many sounds as there are parts.
    const auto sox = runTool(u"sox"_s, {at(u"One.wav"_s), at(u"sound.wav"_s), u"silence"_s, u"1"_s, u"0"_s, u"-60d"_s,
                                        u"1"_s, u"0.4"_s, u"-60d"_s, u":"_s, u"newfile"_s, u":"_s, u"restart"_s});
    ASSERT_EQ(sox.status, 0) << sox.errors.constData();
    QStringList sounds;
    for (const QString& name : QDir(at({})).entryList({u"sound*.wav"_s}))
        if (QFileInfo(at(name)).size() > 1000)
            sounds.append(name);
    EXPECT_EQ(cutsOf(split({path, u"--silence"_s, u"400"_s, u"--dry-run"_s, u"--json"_s})).size() + 1,
              std::size_t(sounds.size()));
}

TEST_F(SplitCommand, TheLevelDecidesWhatIsSilent) {
    const QString path = record(u"One.m4a"_s);
    EXPECT_EQ(
        cutsOf(split({path, u"--silence"_s, u"400"_s, u"--level"_s, u"-5"_s, u"--dry-run"_s, u"--json"_s})).size(), 0U)
        << "all of it is one silence";
    EXPECT_EQ(
        cutsOf(split({path, u"--silence"_s, u"400"_s, u"--level"_s, u"-20"_s, u"--dry-run"_s, u"--json"_s})).size(),
        3U);
}

TEST_F(SplitCommand, WritesAllPartsOrNone) {
    const QString path = record(u"One.m4a"_s);
    ASSERT_TRUE(Mpeg4Files::write(at(u"One 3.m4a"_s), "another"));
    ProgramHome::expectOneLine(split({path, u"--silence"_s, u"400"_s}),
                               "This path exists, please change the path or name.");
    EXPECT_EQ(files(), (QStringList{u"One 3.m4a"_s, u"One.m4a"_s}));
    EXPECT_EQ(Mpeg4Files::contentOf(at(u"One 3.m4a"_s)), "another");
    EXPECT_TRUE(ProgramHome::library()[u"records"_s].toArray().isEmpty());
    QDir().mkdir(home.filePath(u"parts"_s));
    EXPECT_EQ(split({path, u"--silence"_s, u"400"_s, u"--folder"_s, home.filePath(u"parts"_s)}).status, 0);
    EXPECT_EQ(QDir(home.filePath(u"parts"_s)).entryList(QDir::Files).size(), 4);
}

TEST_F(SplitCommand, SaysWhyNothingIsSplit) {
    const QString path = record(u"One.m4a"_s);
    ProgramHome::expectOneLine(split({path, u"--silence"_s, u"3000"_s}),
                               "no silence of 3.000 s; the longest one has 1.");
    ProgramHome::expectOneLine(split({at(u"none.m4a"_s), u"--silence"_s, u"300"_s}), "there is no such file");
    ProgramHome::expectOneLine(split({path, u"--silence"_s, u"300"_s, u"--folder"_s, at(u"none"_s)}),
                               "there is no such folder");
    ASSERT_TRUE(Mpeg4Files::make(at(u"Other.m4a"_s)));
    for (const auto& wrong :
         {QStringList{path}, QStringList{path, u"--silence"_s, u"49"_s}, QStringList{u"--silence"_s, u"300"_s},
          QStringList{path, u"--silence"_s, u"300"_s, u"--level"_s, u"3"_s},
          QStringList{path, u"--silence"_s, u"300"_s, u"--level"_s, u"nan"_s}, QStringList{path, path}})
        EXPECT_EQ(split(wrong).status, 2) << qPrintable(wrong.join(u' '));
}

TEST_F(SplitCommand, RefusesAFileOfAnotherProgram) {
    ASSERT_EQ(runTool(u"ffmpeg"_s, {u"-v"_s, u"error"_s, u"-f"_s, u"lavfi"_s, u"-i"_s,
                                    u"sine=duration=4,volume='if(between(t,1,2),0,1)':eval=frame"_s, at(u"a.m4a"_s)})
                  .status,
              0);
    ProgramHome::expectOneLine(split({at(u"a.m4a"_s), u"--silence"_s, u"500"_s}),
                               "not a finished recording of Sonaphex");
    EXPECT_EQ(files(), QStringList{u"a.m4a"_s});
}

TEST_F(SplitCommand, JoinedPartsAreTheRecordingAgain) {
    const QString path = record(u"One.m4a"_s);
    ASSERT_EQ(split({path, u"--silence"_s, u"400"_s}).status, 0);
    const auto result = join({at(u"One 1.m4a"_s), at(u"One 2.m4a"_s), at(u"One 3.m4a"_s), at(u"One 4.m4a"_s), u"--to"_s,
                              at(u"All"_s), u"--json"_s});
    ASSERT_EQ(result.status, 0) << result.errors.constData();
    const auto told = QJsonDocument::fromJson(result.output);
    EXPECT_EQ(told[u"path"_s].toString(), at(u"All.m4a"_s));
    EXPECT_EQ(told[u"encoded"_s], false);
    EXPECT_EQ(told[u"seconds"_s].toDouble(), 12);
    EXPECT_TRUE(MediaTest::readFile(at(u"All.m4a"_s)).rows == MediaTest::readFile(path).rows);
    EXPECT_EQ(Mpeg4Files::probe(at(u"All.m4a"_s))[u"title"_s].toString(), u"Rain 100%1 1"_s);
    EXPECT_EQ(ProgramHome::library()[u"records"_s].toArray().size(), 5);
}

TEST_F(SplitCommand, JoinsOtherFilesByEncodingThem) {
    const QString path = record(u"One.m4a"_s);
    ASSERT_TRUE(Mpeg4Files::make(at(u"Other.m4a"_s)));
    const auto result = join({at(u"Other.m4a"_s), path, u"--to"_s, at(u"All.m4a"_s), u"--json"_s});
    ASSERT_EQ(result.status, 0) << result.errors.constData();
    EXPECT_EQ(QJsonDocument::fromJson(result.output)[u"encoded"_s], true);
    const auto all = MediaTest::readFile(at(u"All.m4a"_s)).rows;
    EXPECT_NEAR(double(all[0].size()), 15.0 * Second, 1024) << "the other program's file is not exactly three seconds";
    EXPECT_NEAR(AudioCheck::pitchOf({all[0].begin() + 20000, all[0].begin() + 100000}, 44100), 440, 1);
}

TEST_F(SplitCommand, JoinKeepsAnExistingFileAndItsSources) {
    const QString path = record(u"One.m4a"_s);
    const QByteArray before = Mpeg4Files::contentOf(path);
    ProgramHome::expectOneLine(join({path, path, u"--to"_s, path}), "This path exists");
    ProgramHome::expectOneLine(join({path, at(u"none.m4a"_s), u"--to"_s, at(u"b.m4a"_s)}), "there is no such file");
    ProgramHome::expectOneLine(join({path, path, u"--to"_s, at(u"none/b.m4a"_s)}), "there is no such folder");
    ASSERT_TRUE(Mpeg4Files::write(at(u"text.m4a"_s), "no audio"));
    ProgramHome::expectOneLine(join({path, at(u"text.m4a"_s), u"--to"_s, at(u"b.m4a"_s)}), "text.m4a");
    EXPECT_EQ(join({path, u"--to"_s, at(u"b.m4a"_s)}).status, 2);
    EXPECT_EQ(join({path, path}).status, 2);
    EXPECT_EQ(Mpeg4Files::contentOf(path), before);
    EXPECT_EQ(files(), (QStringList{u"One.m4a"_s, u"text.m4a"_s}));
}

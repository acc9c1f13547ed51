// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Model/AudioRecordEntry.h"
#include "tests/CommandLine/ProgramHome.h"
#include "tests/support/AudioCheck.h"
#include "tests/support/Mpeg4Files.h"
#include "tests/support/RunTool.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The real program with its own home folder.
class BalanceCommand : public testing::Test {
protected:
    BalanceCommand() {
        QDir().mkdir(home_.filePath(u"music"_s));
        for (const QString& path : {mix, input, computer})
            EXPECT_TRUE(Mpeg4Files::make(path, Mpeg4Files::Shape::IndexAtEnd, 3));
    }
    static ToolResult balance(const QStringList& arguments) {
        return ProgramHome::sonaphex(QStringList{u"balance"_s} + arguments);
    }
    void store() const {
        ProgramHome::store({Dictionary{{AudioRecordEntry::NodeDataKey, u"the key"_s},
                                       {AudioRecordEntry::SavePath, mix},
                                       {AudioRecordEntry::InputTrack, input},
                                       {AudioRecordEntry::ComputerTrack, computer},
                                       {AudioRecordEntry::Title, u"Rain"_s},
                                       {AudioRecordEntry::Length, 99.0}}});
    }
    [[nodiscard]] QString at(const QString& name) const { return home_.filePath(u"music/"_s + name); }
    static double levelOf(const QString& path) {
        const auto channels = AudioCheck::decodedByFfmpeg(path);
        return channels.empty() ? -1 : AudioCheck::levelOf(AudioCheck::inner(channels[0], 8192));
    }

    ProgramHome home_;
    QString mix = at(u"Track0.m4a"_s);
    QString input = at(u"Track0 (input).m4a"_s);
    QString computer = at(u"Track0 (computer).m4a"_s);
};

} // namespace

TEST_F(BalanceCommand, ReplacesTheMixAndItsLengthInTheLibrary) {
    store();
    ASSERT_EQ(balance({mix, u"--computer-gain"_s, u"-60"_s, u"--to"_s, at(u"input.m4a"_s)}).status, 0);
    const double one = levelOf(at(u"input.m4a"_s));
    const auto result = balance({mix, u"--input-gain"_s, u"-6"_s, u"--computer-gain"_s, u"-60"_s, u"--json"_s});
    ASSERT_EQ(result.status, 0) << result.errors.constData();
    const auto json = QJsonDocument::fromJson(result.output);
    EXPECT_EQ(json[u"path"_s].toString(), mix);
    EXPECT_EQ(json[u"inputGain"_s].toDouble(), -6);
    EXPECT_NEAR(levelOf(mix) / one, 0.501, 0.02);
    const auto listed = ProgramHome::library()[u"records"_s].toArray();
    ASSERT_EQ(listed.size(), 1);
    EXPECT_NEAR(listed.at(0)[u"seconds"_s].toDouble(), 3, 0.05);
    EXPECT_EQ(home_.temporaries() + home_.notes(), QStringList());
}

TEST_F(BalanceCommand, FindsTheTracksBesideAFileThatIsNotInTheLibrary) {
    const QByteArray before = Mpeg4Files::contentOf(mix);
    ASSERT_EQ(balance({mix, u"--delay"_s, u"-120"_s, u"--to"_s, at(u"new.m4a"_s)}).status, 0);
    EXPECT_EQ(Mpeg4Files::contentOf(mix), before);
    EXPECT_GT(levelOf(at(u"new.m4a"_s)), 0);
    ProgramHome::expectOneLine(balance({mix, u"--to"_s, at(u"new.m4a"_s)}), "This path exists");
    QFile::remove(input);
    ProgramHome::expectOneLine(balance({mix}), "no tracks were kept");
}

TEST_F(BalanceCommand, LowersASumThatWouldBeClippedAndSaysSo) {
    const auto result = balance({mix, u"--input-gain"_s, u"20"_s, u"--computer-gain"_s, u"20"_s});
    ASSERT_EQ(result.status, 0);
    EXPECT_TRUE(result.errors.contains("so that nothing is clipped")) << result.errors.constData();
}

TEST_F(BalanceCommand, RefusesWrongNumbers) {
    for (const QStringList& wrong : {QStringList{u"--input-gain"_s, u"loud"_s},
                                     {u"--input-gain"_s, u"21"_s},
                                     {u"--delay"_s, u"2001"_s},
                                     {u"--delay"_s, u"nan"_s},
                                     {u"--to"_s, QString()}})
        EXPECT_EQ(balance(QStringList{mix} + wrong).status, 2) << qPrintable(wrong.join(u' '));
    EXPECT_EQ(balance({}).status, 2);
    EXPECT_EQ(balance({mix, input}).status, 2);
}

TEST_F(BalanceCommand, TracksFollowARenameByTheTagCommand) {
    store();
    ASSERT_EQ(ProgramHome::sonaphex({u"tag"_s, mix, u"--title"_s, u"Rain"_s, u"--rename"_s}).status, 0);
    EXPECT_TRUE(QFileInfo::exists(at(u"Rain.m4a"_s)));
    EXPECT_TRUE(QFileInfo::exists(at(u"Rain (input).m4a"_s)));
    EXPECT_TRUE(QFileInfo::exists(at(u"Rain (computer).m4a"_s)));
    EXPECT_EQ(balance({at(u"Rain.m4a"_s)}).status, 0);
    ASSERT_EQ(ProgramHome::sonaphex({u"library"_s, u"remove"_s, u"the key"_s}).status, 0);
    EXPECT_TRUE(QDir(at({})).entryList(QDir::Files).isEmpty()) << "the tracks are deleted with their mix";
}

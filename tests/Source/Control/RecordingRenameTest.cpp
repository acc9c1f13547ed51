// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Control/RecordingRename.h"

#include "Source/Model/AudioRecordEntry.h"
#include "tests/support/Mpeg4Files.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Rename : public testing::Test {
protected:
    Rename() { EXPECT_TRUE(Mpeg4Files::write(at(u"Track0.m4a"_s), "the recording")); }
    [[nodiscard]] QString at(const QString& name) const { return folder_.filePath(name); }
    [[nodiscard]] QStringList files() const {
        return QDir(folder_.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden, QDir::Name);
    }
    QTemporaryDir folder_;
};

} // namespace

TEST_F(Rename, NamesTheFileAfterItsTitleAndKeepsTheExtension) {
    const auto renamed = RecordingRename::rename(at(u"Track0.m4a"_s), u"Rain on the roof"_s);
    EXPECT_EQ(renamed.path, at(u"Rain on the roof.m4a"_s));
    EXPECT_EQ(renamed.notice, QString());
    EXPECT_EQ(files(), QStringList{u"Rain on the roof.m4a"_s});
}

TEST_F(Rename, AcceptsTitlesWithShellFormatAndPathCharacters) {
    QString path = at(u"Track0.m4a"_s);
    for (const QString& title : {u"$(touch x) `id` $HOME"_s, u"%s%n %1 %2"_s, u"a\"b'c\\d"_s, u"; rm -rf . &"_s,
                                 u"..%2f..%2fx"_s, u"-rf"_s, u"a\nb\tc"_s, u"*?[]{}~!#|<>^"_s, u"a:b"_s, u"."_s,
                                 u".."_s, u" "_s, u"שלום عليكم"_s, u"日本語 🎵"_s, u"e\u0301"_s, QString(83, u'漢')}) {
        const auto renamed = RecordingRename::rename(path, title);
        EXPECT_EQ(renamed.notice, QString()) << qPrintable(title);
        EXPECT_EQ(renamed.path, folder_.path() + u'/' + title + u".m4a"_s) << qPrintable(title);
        EXPECT_EQ(files(), QStringList{title + u".m4a"_s}) << qPrintable(title);
        EXPECT_EQ(Mpeg4Files::contentOf(renamed.path), "the recording");
        path = renamed.path;
    }
}

TEST_F(Rename, KeepsTheNameWhenTheTitleCannotBeAFileName) {
    ASSERT_TRUE(QDir(folder_.path()).mkdir(u"sub"_s));
    const QStringList before = files();
    const QString half(QChar(0xD800));
    for (const auto& [title, why] : {std::pair{u""_s, u"the title is empty"_s},
                                     {u"sub/x"_s, u"cannot contain"_s},
                                     {u"../x"_s, u"cannot contain"_s},
                                     {u"/tmp/x"_s, u"cannot contain"_s},
                                     {QString(300, u'漢'), u"longer than a file name can be"_s},
                                     {QString(252, u'x'), u"longer than a file name can be"_s},
                                     {half, u"no file name can contain"_s},
                                     {QString(u"a"_s + QChar(u'\0')), u"no file name can contain"_s}}) {
        const auto renamed = RecordingRename::rename(at(u"Track0.m4a"_s), title);
        EXPECT_EQ(renamed.path, at(u"Track0.m4a"_s));
        EXPECT_TRUE(renamed.notice.startsWith(u"The file keeps its name “Track0.m4a”: "_s));
        EXPECT_TRUE(renamed.notice.contains(why)) << qPrintable(renamed.notice);
        EXPECT_EQ(renamed.notice.count(u'\n'), 0);
        EXPECT_EQ(files(), before);
    }
}

TEST_F(Rename, NeverTakesTheNameOfAnotherFile) {
    ASSERT_TRUE(Mpeg4Files::write(at(u"Taken.m4a"_s), "another one"));
    ASSERT_TRUE(QFile::link(at(u"nowhere"_s), at(u"Link.m4a"_s)));
    for (const QString& title : {u"Taken"_s, u"Link"_s}) {
        const auto renamed = RecordingRename::rename(at(u"Track0.m4a"_s), title);
        EXPECT_EQ(renamed.path, at(u"Track0.m4a"_s));
        EXPECT_TRUE(renamed.notice.contains(u"there is already a file named “"_s + title))
            << qPrintable(renamed.notice);
    }
    EXPECT_EQ(Mpeg4Files::contentOf(at(u"Taken.m4a"_s)), "another one");
    EXPECT_EQ(Mpeg4Files::contentOf(at(u"Track0.m4a"_s)), "the recording");
}

TEST_F(Rename, DoesNothingWhenTheFileHasItsTitleAsName) {
    const auto renamed = RecordingRename::rename(at(u"Track0.m4a"_s), u"Track0"_s);
    EXPECT_EQ(renamed.path, at(u"Track0.m4a"_s));
    EXPECT_EQ(renamed.notice, QString());
}

TEST_F(Rename, TracksFollowTheirMix) {
    using namespace AudioRecordEntry;
    for (const QString& name : {u"Track0 (input).m4a"_s, u"Track0 (computer 2).m4a"_s})
        ASSERT_TRUE(Mpeg4Files::write(at(name), "a track"));
    const Dictionary entry{{SavePath, at(u"Track0.m4a"_s)},
                           {InputTrack, at(u"Track0 (input).m4a"_s)},
                           {ComputerTrack, at(u"Track0 (computer 2).m4a"_s)}};
    const auto renamed = RecordingRename::rename(at(u"Track0.m4a"_s), u"100%1 $(x)"_s);
    const Dictionary after = RecordingRename::renameTracks(entry, at(u"Track0.m4a"_s), renamed.path);
    EXPECT_EQ(after.value(InputTrack), at(u"100%1 $(x) (input).m4a"_s));
    EXPECT_EQ(after.value(ComputerTrack), at(u"100%1 $(x) (computer 2).m4a"_s));
    EXPECT_EQ(files(),
              (QStringList{u"100%1 $(x) (computer 2).m4a"_s, u"100%1 $(x) (input).m4a"_s, u"100%1 $(x).m4a"_s}));
}

TEST_F(Rename, ATrackWhoseNameIsTakenOrMissingKeepsItsPath) {
    using namespace AudioRecordEntry;
    ASSERT_TRUE(Mpeg4Files::write(at(u"Track0 (input).m4a"_s), "a track"));
    ASSERT_TRUE(Mpeg4Files::write(at(u"Rain (input).m4a"_s), "another one"));
    const Dictionary entry{{SavePath, at(u"Track0.m4a"_s)},
                           {InputTrack, at(u"Track0 (input).m4a"_s)},
                           {ComputerTrack, at(u"Track0 (computer).m4a"_s)}};
    const Dictionary after = RecordingRename::renameTracks(entry, at(u"Track0.m4a"_s), at(u"Rain.m4a"_s));
    EXPECT_EQ(after, entry);
    EXPECT_EQ(Mpeg4Files::contentOf(at(u"Rain (input).m4a"_s)), "another one");
    const Dictionary plain{{SavePath, at(u"Track0.m4a"_s)}};
    EXPECT_EQ(RecordingRename::renameTracks(plain, at(u"Track0.m4a"_s), at(u"Rain.m4a"_s)), plain);
}

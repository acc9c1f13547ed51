// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Control/ID3EditSave.h"

#include "Source/Control/FileTags.h"
#include "Source/Control/ID3ChangeControl.h"
#include "tests/Source/Control/EditFixture.h"
#include "tests/support/ChildProcess.h"
#include "tests/support/FullDisk.h"

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QThread>

using namespace Qt::StringLiterals;
using Kind = ID3EditSave::Artwork::Kind;

namespace {

class TagSave : public EditFixture {
protected:
    static Dictionary retitled(Dictionary entry, const QString& title) {
        entry.insert(AudioRecordEntry::Title, title);
        return entry;
    }
    [[nodiscard]] QString cover() const {
        const QString path = home_.filePath(u"cover"_s);
        EXPECT_TRUE(Mpeg4Files::noise(300).save(path, "JPEG"));
        return path;
    }
};

class TagSaveOnAFullDisk : public TagSave {};
class TagSaveWithKills : public TagSave {}; // separate suites, because each takes long

} // namespace

TEST(TagYear, IsFourDigitsOrNothing) {
    for (const auto& [typed, year] : {std::pair{u"20"_s, u""_s},
                                      {u""_s, u""_s},
                                      {u"199"_s, u""_s},
                                      {u"0999"_s, u"2012"_s},
                                      {u"abcd"_s, u"2012"_s},
                                      {u"19845"_s, u"1984"_s},
                                      {u"1000"_s, u"1000"_s},
                                      {u"9999"_s, u"9999"_s},
                                      {u"12ab"_s, u"2012"_s}})
        EXPECT_EQ(ID3EditSave::yearText(typed), year) << qPrintable(typed);
}

TEST_F(TagSave, WritesTheTagsAndNamesTheFileAfterTheTitle) {
    const Dictionary before = recording(u"Track0"_s, 2);
    const QByteArray sound = Mpeg4Files::audioOf(at(u"Track0.m4a"_s));
    Dictionary edited = retitled(before, u"Rain"_s);
    edited.insert(AudioRecordEntry::Artist, u"Ada"_s);
    edited.insert(AudioRecordEntry::Year, 1984);
    auto result = ID3EditSave::save(before, edited, {Kind::Set, cover()});
    EXPECT_EQ(result.notice, QString());
    EXPECT_EQ(result.entry.value(AudioRecordEntry::SavePath), at(u"Rain.m4a"_s));
    EXPECT_EQ(files(), QStringList{u"Rain.m4a"_s});
    EXPECT_TRUE(FileTags::agree(at(u"Rain.m4a"_s), edited).valueOr(false));
    EXPECT_EQ(FileTags::artwork(at(u"Rain.m4a"_s)), Mpeg4Files::contentOf(cover()));
    EXPECT_EQ(Mpeg4Files::audioOf(at(u"Rain.m4a"_s)), sound);
    ASSERT_TRUE(result.note);
    EXPECT_EQ(notes().size(), 1) << "until the library has the entry";
    result.note->end();
    EXPECT_TRUE(notes().isEmpty());
}

TEST_F(TagSave, KeepsTheCoverByteForByteOrReplacesItWithTheDefaultOne) {
    const Dictionary before = recording(u"Track0"_s, 2);
    const QByteArray picture = Mpeg4Files::contentOf(cover());
    (void)ID3EditSave::save(before, before, {Kind::Set, cover()});
    ASSERT_EQ(FileTags::artwork(at(u"Track0.m4a"_s)), picture);
    (void)ID3EditSave::save(before, before, {Kind::Keep, {}});
    EXPECT_EQ(FileTags::artwork(at(u"Track0.m4a"_s)), picture);
    (void)ID3EditSave::save(before, before, {Kind::Default, {}});
    EXPECT_EQ(Platform::BasicID3Change::read(at(u"Track0.m4a"_s))->artwork,
              Mpeg4Files::contentOf(QStringLiteral(SONAPHEX_SOURCE_DIR "/Resources/AudioArtwork.png")));
    EXPECT_TRUE(FileTags::artwork(at(u"Track0.m4a"_s)).isEmpty()) << "the default one stands for none";
}

TEST_F(TagSave, AgreesInFileTagsAndEntryWhateverTheTitleIs) {
    Dictionary entry = recording(u"Track0"_s, 1);
    for (const QString& title : {u"$(touch x) `id` \"$HOME\""_s, u"%s%n%1%%"_s, u"a\\b'c"_s, u"a/b"_s, u"../../x"_s,
                                 u"שלום عليكم"_s, QString(300, u'漢'), QString(83, u'漢'), u""_s, u"😀"_s}) {
        auto result = ID3EditSave::save(entry, retitled(entry, title), {Kind::Keep, {}});
        entry = result.entry;
        const QString path = entry.value(AudioRecordEntry::SavePath).toString();
        EXPECT_EQ(entry.value(AudioRecordEntry::Title), title);
        EXPECT_TRUE(FileTags::agree(path, entry).valueOr(false)) << qPrintable(title);
        EXPECT_EQ(files(), QStringList{QFileInfo(path).fileName()}) << qPrintable(title);
        const bool possible = !title.isEmpty() && !title.contains(u'/') && title.size() < 200;
        EXPECT_EQ(result.notice.isEmpty(), possible) << qPrintable(result.notice);
        EXPECT_EQ(QFileInfo(path).completeBaseName() == title, possible);
    }
}

TEST_F(TagSave, ReportsAMissingFileAndChangesNothing) {
    const Dictionary before = recording(u"Track0"_s, 1);
    ASSERT_TRUE(QFile::remove(at(u"Track0.m4a"_s)));
    const auto result = ID3EditSave::save(before, retitled(before, u"New"_s), {Kind::Keep, {}});
    EXPECT_EQ(result.entry, before);
    EXPECT_EQ(result.notice, u"The file “Track0.m4a” is no longer there."_s);
    EXPECT_FALSE(result.note);
    EXPECT_TRUE(files().isEmpty());
}

TEST_F(TagSave, LeavesAFileWithoutTagSupportUnchanged) {
    const QString path = at(u"odd.m4a"_s);
    ASSERT_TRUE(Mpeg4Files::write(path, "no audio at all"));
    const Dictionary before = entryOf(path, u"odd"_s, 1);
    const auto result = ID3EditSave::save(before, retitled(before, u"New"_s), {Kind::Keep, {}});
    EXPECT_EQ(result.entry, before);
    EXPECT_TRUE(result.notice.startsWith(u"The tags of “odd.m4a” could not be written"_s)) << qPrintable(result.notice);
    EXPECT_EQ(Mpeg4Files::contentOf(path), "no audio at all");
    EXPECT_EQ(files(), QStringList{u"odd.m4a"_s});
    EXPECT_TRUE(notes().isEmpty());
}

TEST_F(TagSaveOnAFullDisk, KeepsTheRecordingWhereverTheSpaceEnds) {
    const Dictionary before = recording(u"Track0"_s, 5);
    const QString path = at(u"Track0.m4a"_s);
    const QByteArray whole = Mpeg4Files::contentOf(path);
    const QByteArray sound = Mpeg4Files::audioOf(path);
    const QString picture = cover();
    const auto needed = rlim_t(whole.size() + QFileInfo(picture).size());
    Dictionary edited = retitled(before, QString(80, u'漢'));
    edited.insert(AudioRecordEntry::Album, QString(3000, u'b'));
    int saved = 0;
    int refused = 0;
    for (rlim_t room = 0; room <= 4 * needed; room += needed / 8) {
        ID3EditSave::Result result;
        {
            const FullDisk full(room);
            result = ID3EditSave::save(before, edited, {Kind::Set, picture});
        }
        const QString now = result.entry.value(AudioRecordEntry::SavePath).toString();
        EXPECT_EQ(files(), QStringList{QFileInfo(now).fileName()}) << room;
        EXPECT_EQ(Mpeg4Files::audioOf(now), sound) << room;
        // Either the whole edit, or an explanation; the entry always matches the file.
        EXPECT_TRUE(FileTags::agree(now, result.entry).valueOr(false)) << room;
        if (result.notice.isEmpty()) {
            ++saved;
            EXPECT_EQ(result.entry.value(AudioRecordEntry::Title), edited.value(AudioRecordEntry::Title));
            EXPECT_EQ(FileTags::artwork(now), Mpeg4Files::contentOf(picture)) << room;
            if (result.note)
                result.note->end();
            ASSERT_TRUE(QFile::remove(now));
        } else {
            ++refused;
            EXPECT_EQ(result.notice.count(u'\n'), 0);
            EXPECT_EQ(result.entry, before) << room;
        }
        EXPECT_TRUE(notes().isEmpty()) << room;
        ASSERT_TRUE(Mpeg4Files::write(path, whole));
    }
    EXPECT_GT(saved, 0);
    EXPECT_GT(refused, 4);
}

TEST_F(TagSaveWithKills, LosesNothingAtAnyMoment) {
    Dictionary before = recording(u"Track0"_s, 20);
    const QByteArray sound = Mpeg4Files::audioOf(at(u"Track0.m4a"_s));
    const QString picture = cover();
    const int longest = timeOf([&] {
        return ID3EditSave::save(before, before, {Kind::Set, picture}).notice.isEmpty();
    });
    ASSERT_GT(longest, 0);
    startAnew();
    QRandomGenerator random(11);
    int renamed = 0;
    for (int round = 0; round < 50; ++round) {
        const QString title = u"Title %1"_s.arg(round);
        {
            ChildProcess child([&] {
                ::setpgid(0, 0);
                (void)ID3EditSave::save(before, retitled(before, title), {Kind::Set, picture});
                return 0;
            });
            ASSERT_TRUE(child.started());
            ::setpgid(child.pid(), child.pid()); // parent or child, whichever runs first
            QThread::usleep(random.bounded(1, longest));
            child.killGroup();
        }
        startAnew();
        ASSERT_EQ(library().records().size(), 1);
        const Dictionary now = listed();
        const QString path = now.value(AudioRecordEntry::SavePath).toString();
        ASSERT_TRUE(QFileInfo(path).isFile()) << "round " << round << ' ' << qPrintable(path);
        EXPECT_EQ(Mpeg4Files::audioOf(path), sound) << "round " << round;
        EXPECT_TRUE(FileTags::agree(path, now).valueOr(false)) << "round " << round;
        EXPECT_TRUE(notes().isEmpty());
        renamed += path.endsWith(title + u".m4a"_s) ? 1 : 0;
        before = now;
    }
    const QStringList left = files();
    EXPECT_EQ(left.filter(QRegularExpression(u"^[^.]"_s)).size(), 1) << qPrintable(left.join(u", "_s));
    EXPECT_LT(renamed, 50);
}

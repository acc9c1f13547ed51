// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/Source/Control/EditFixture.h"

using namespace Qt::StringLiterals;

namespace {
class Notes : public EditFixture {};
} // namespace

TEST_F(Notes, OfAFinishedEditAreRemoved) {
    const Dictionary entry = recording(u"One"_s, 3);
    auto note = EditNote::begin(at(u"One.m4a"_s), at(u"Two.m4a"_s), {});
    ASSERT_TRUE(note) << qPrintable(note.error().text);
    EXPECT_EQ(notes().size(), 1);
    note->end();
    EXPECT_TRUE(notes().isEmpty());
}

TEST_F(Notes, StayWhileTheLibraryCannotBeStored) {
    auto note = EditNote::begin(at(u"One.m4a"_s), at(u"Two.m4a"_s), {});
    ASSERT_TRUE(note);
    defaults_.flushFails = true;
    note->end();
    EXPECT_EQ(notes().size(), 1);
}

TEST_F(Notes, UpdateTheEntryOfARenamedAndTaggedFile) {
    const Dictionary entry = recording(u"One"_s, 3);
    {
        const auto note = EditNote::begin(at(u"One.m4a"_s), at(u"Two.m4a"_s), {});
        ASSERT_TRUE(note);
        EditNote::recover(MediaLibraryRequests::retag);
        EXPECT_EQ(notes().size(), 1) << "the note of a process that still works is left alone";
        ASSERT_TRUE(Platform::BasicID3Change::setMpeg4ID3Information(at(u"One.m4a"_s), u"Two"_s, u"A"_s, {}, 0, {}));
        ASSERT_TRUE(QFile::rename(at(u"One.m4a"_s), at(u"Two.m4a"_s)));
    }
    EditNote::recover(MediaLibraryRequests::retag);
    EXPECT_TRUE(notes().isEmpty());
    ASSERT_EQ(library().records().size(), 1);
    EXPECT_EQ(listed().value(AudioRecordEntry::SavePath), at(u"Two.m4a"_s));
    EXPECT_EQ(listed().value(AudioRecordEntry::Title), u"Two"_s);
    EXPECT_EQ(listed().value(AudioRecordEntry::Artist), u"A"_s);
    EXPECT_EQ(listed().value(AudioRecordEntry::NodeDataKey), entry.value(AudioRecordEntry::NodeDataKey));
}

TEST_F(Notes, KeepThePathWhenTheRenameDidNotHappen) {
    recording(u"One"_s, 3);
    ASSERT_TRUE(Mpeg4Files::write(at(u"Two.m4a"_s), "somebody else's"));
    (void)EditNote::begin(at(u"One.m4a"_s), at(u"Two.m4a"_s), {});
    EditNote::recover(MediaLibraryRequests::retag);
    EXPECT_EQ(listed().value(AudioRecordEntry::SavePath), at(u"One.m4a"_s));
    EXPECT_EQ(Mpeg4Files::contentOf(at(u"Two.m4a"_s)), "somebody else's");
}

TEST_F(Notes, CorrectTheLengthAndRemoveTheHiddenFileAndNoOther) {
    recording(u"One"_s, 3);
    library().addRecordFile(entryOf(at(u"One.m4a"_s), u"One"_s, 60));
    const QString hidden = at(u".sonaphex-1.part.m4a"_s);
    const QString other = at(u"precious.m4a"_s);
    ASSERT_TRUE(Mpeg4Files::write(hidden, "half"));
    ASSERT_TRUE(Mpeg4Files::write(other, "whole"));
    (void)EditNote::begin(at(u"One.m4a"_s), at(u"One.m4a"_s), hidden);
    (void)EditNote::begin(at(u"One.m4a"_s), at(u"One.m4a"_s), other);
    EditNote::recover(MediaLibraryRequests::retag);
    EXPECT_NEAR(listed().value(AudioRecordEntry::Length).toDouble(), 3, 0.05);
    EXPECT_FALSE(QFile::exists(hidden));
    EXPECT_TRUE(QFile::exists(other));
}

TEST_F(Notes, ThatAreIncompleteAreRemovedWithoutEffect) {
    recording(u"One"_s, 3);
    const Dictionary before = listed();
    const QString folder = home_.filePath(u"data/com.korvane.Sonaphex/Edits"_s);
    ASSERT_TRUE(QDir().mkpath(folder));
    ASSERT_TRUE(Mpeg4Files::write(folder + u"/a.edit"_s, "{\"path\":\"/mus"));
    ASSERT_TRUE(Mpeg4Files::write(folder + u"/b.edit"_s, ""));
    EditNote::recover(MediaLibraryRequests::retag);
    EXPECT_TRUE(notes().isEmpty());
    EXPECT_EQ(listed(), before);
}

TEST_F(Notes, ThatCannotBeWrittenStopTheEdit) {
    ASSERT_TRUE(Mpeg4Files::write(home_.filePath(u"data"_s), "no folder"));
    const auto note = EditNote::begin(at(u"One.m4a"_s), at(u"Two.m4a"_s), {});
    EXPECT_FALSE(note);
    EXPECT_FALSE(note.error().text.isEmpty());
}

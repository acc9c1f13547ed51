// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Model/RecordingTracks.h"

#include "Platform/Foundation/Services.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/Model/MediaLibrary.h"
#include "tests/fakes/FakeUserDefaults.h"
#include "tests/support/Mpeg4Files.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using RecordingTracks::Source;

namespace {

class Tracks : public testing::Test {
protected:
    Tracks() { Platform::services().userDefaults = &defaults_; }
    [[nodiscard]] QString at(const QString& name) const { return folder_.filePath(name); }
    QString write(const QString& name) const {
        EXPECT_TRUE(Mpeg4Files::write(at(name), "audio"));
        return at(name);
    }
    [[nodiscard]] Dictionary entry(const QString& mix, const QString& input, const QString& computer) const {
        return {{AudioRecordEntry::NodeDataKey, mix},
                {AudioRecordEntry::SavePath, at(mix)},
                {AudioRecordEntry::InputTrack, at(input)},
                {AudioRecordEntry::ComputerTrack, at(computer)}};
    }
    [[nodiscard]] QStringList files() const { return QDir(folder_.path()).entryList(QDir::Files, QDir::Name); }

    Platform::ServicesScope scope_;
    FakeUserDefaults defaults_;
    QTemporaryDir folder_;
};

} // namespace

TEST(TrackNames, StandBesideTheMix) {
    EXPECT_EQ(RecordingTracks::pathBeside(u"/m/Track3.m4a"_s, Source::Input), u"/m/Track3 (input).m4a"_s);
    EXPECT_EQ(RecordingTracks::pathBeside(u"/m/Track3.m4a"_s, Source::Computer, 2), u"/m/Track3 (computer 2).m4a"_s);
    EXPECT_EQ(RecordingTracks::pathBeside(u"/m/100%1 %n.b.m4a"_s, Source::Input), u"/m/100%1 %n.b (input).m4a"_s);
}

TEST_F(Tracks, AreFoundBesideTheMixAfterAnInterruptedRename) {
    const Dictionary stored = entry(u"Rain.m4a"_s, u"Track0 (input).m4a"_s, u"Track0 (computer).m4a"_s);
    write(u"Rain (input).m4a"_s);
    write(u"Track0 (computer).m4a"_s);
    const auto found = RecordingTracks::found(stored);
    EXPECT_EQ(found.input, at(u"Rain (input).m4a"_s));
    EXPECT_EQ(found.computer, at(u"Track0 (computer).m4a"_s));
}

TEST_F(Tracks, ThatAreMissingKeepTheirPaths) {
    const Dictionary stored = entry(u"Track0.m4a"_s, u"Track0 (input).m4a"_s, u"Track0 (computer).m4a"_s);
    EXPECT_TRUE(RecordingTracks::isKeptFor(stored));
    EXPECT_EQ(RecordingTracks::found(stored).input, at(u"Track0 (input).m4a"_s));
    EXPECT_FALSE(RecordingTracks::besideFile(at(u"Track0.m4a"_s)).isWhole());
}

TEST_F(Tracks, AreDeletedWithTheirMix) {
    MediaLibrary library;
    const Dictionary stored = entry(u"Track0.m4a"_s, u"Track0 (input).m4a"_s, u"Track0 (computer).m4a"_s);
    for (const QString& name : {u"Track0.m4a"_s, u"Track0 (input).m4a"_s, u"Track0 (computer).m4a"_s, u"Track1.m4a"_s,
                                u"Track1 (input).m4a"_s})
        write(name);
    library.addRecordFile(stored);
    library.removeMediaLibraryArray({stored});
    EXPECT_EQ(files(), (QStringList{u"Track1 (input).m4a"_s, u"Track1.m4a"_s})) << "files without an entry stay";
}

TEST_F(Tracks, ThatAnotherEntryNamesStay) {
    MediaLibrary library;
    const Dictionary one = entry(u"Track0.m4a"_s, u"Track0 (input).m4a"_s, u"Track0 (computer).m4a"_s);
    Dictionary copy = one;
    copy.insert(AudioRecordEntry::NodeDataKey, u"copy"_s);
    copy.insert(AudioRecordEntry::SavePath, at(u"Copy.m4a"_s));
    const Dictionary row{{AudioRecordEntry::NodeDataKey, u"row"_s},
                         {AudioRecordEntry::SavePath, at(u"Track2 (input).m4a"_s)}};
    const Dictionary other = entry(u"Track2.m4a"_s, u"Track2 (input).m4a"_s, u"Track2 (computer).m4a"_s);
    for (const QString& name : {u"Track0.m4a"_s, u"Track0 (input).m4a"_s, u"Track0 (computer).m4a"_s, u"Copy.m4a"_s,
                                u"Track2.m4a"_s, u"Track2 (input).m4a"_s, u"Track2 (computer).m4a"_s})
        write(name);
    for (const Dictionary& each : {one, copy, row, other})
        library.addRecordFile(each);
    library.removeMediaLibraryArray({one, other});
    EXPECT_EQ(files(), (QStringList{u"Copy.m4a"_s, u"Track0 (computer).m4a"_s, u"Track0 (input).m4a"_s,
                                    u"Track2 (input).m4a"_s}));
}

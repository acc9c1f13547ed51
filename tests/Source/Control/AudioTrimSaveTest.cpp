// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Control/AudioTrimSave.h"

#include "Source/Control/ConverterAudioControl.h"
#include "Source/Control/FileTags.h"
#include "tests/Platform/Media/MediaTestSupport.h"
#include "tests/Source/Control/EditFixture.h"
#include "tests/support/ChildProcess.h"
#include "tests/support/DiskCalls.h"
#include "tests/support/FullDisk.h"

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QThread>

using namespace Qt::StringLiterals;

namespace {

class TrimSave : public EditFixture {
protected:
    static AudioTrimSave::Task task(const Dictionary& entry, float from, float to, bool replace = true) {
        AudioTrimSave::Task made;
        made.source = entry.value(AudioRecordEntry::SavePath).toString();
        made.exportPath = AudioTrimSave::exportPath(made.source);
        made.from = from;
        made.to = to;
        made.entry = entry;
        made.replace = replace;
        return made;
    }
    static AudioTrimSave::Result save(const AudioTrimSave::Task& what) {
        ConverterAudioControl converter;
        return AudioTrimSave::run(converter, what, {});
    }
    [[nodiscard]] QStringList temporaries() const { return QDir(g_strTmpPath).entryList(QDir::Files | QDir::Hidden); }
};

// Separate suites, because each takes long.
class TrimSaveOnAFullDisk : public TrimSave {};
class TrimSaveWithKills : public TrimSave {};

} // namespace

TEST(TrimPath, HasItsExtensionReplaced) {
    EXPECT_EQ(AudioTrimSave::exportPath(u"/music/song.mp3"_s), u"/music/song.m4a"_s);
    EXPECT_EQ(AudioTrimSave::exportPath(u"/music/song.m4a"_s), u"/music/song.m4a"_s);
    EXPECT_EQ(AudioTrimSave::exportPath(u"/music/a.b.wav"_s), u"/music/a.b.m4a"_s);
    EXPECT_EQ(AudioTrimSave::exportPath(u"/mu.sic/song"_s), u"/mu.sic/song.m4a"_s);
}

TEST_F(TrimSave, CutsAtTheFramesOfTheRange) {
    const QString path = at(u"tones.m4a"_s);
    MediaTest::writeFile(path, kAudioFileM4AType, MediaTest::tones(441000));
    const double from = 2.5;
    const double to = 6.25;
    const auto result = save(task(entryOf(path, u"tones"_s, 10), float(from), float(to), true));
    ASSERT_TRUE(result.done) << qPrintable(result.problem);
    // The copy reads blocks of 512 frames from the first frame on, up to the end of the range.
    const auto first = std::int64_t(from * 44100);
    const auto blocks = (std::int64_t(to * 44100) - first + 511) / 512;
    const auto info = media_->info(path);
    ASSERT_TRUE(info);
    EXPECT_EQ(info->frameCount, blocks * 512);

    MediaTest::writeFile(at(u"whole.m4a"_s), kAudioFileM4AType, MediaTest::tones(441000));
    const auto whole = MediaTest::readFile(at(u"whole.m4a"_s));
    const auto cut = MediaTest::readFile(path);
    const auto differenceAt = [&](int lag) {
        double sum = 0;
        for (std::size_t i = 4096; i < cut.rows[0].size() - 4096; ++i) {
            const double apart = double(cut.rows[0][i]) - double(whole.rows[0][std::size_t(first + lag) + i]);
            sum += apart * apart;
        }
        return sum;
    };
    for (const int lag : {-2, -1, 1, 2})
        EXPECT_LT(differenceAt(0), differenceAt(lag)) << lag;
    EXPECT_GT(MediaTest::signalToError(
                  std::vector<float>(whole.rows[0].begin() + first + 4096, whole.rows[0].begin() + first + 140000),
                  std::vector<float>(cut.rows[0].begin() + 4096, cut.rows[0].begin() + 140000)),
              10);
}

TEST_F(TrimSave, ReplacesTheRecordingWithItsTagsAndItsCover) {
    const Dictionary entry = recording(u"One"_s, 10);
    const QString cover = home_.filePath(u"cover.jpg"_s);
    ASSERT_TRUE(Mpeg4Files::noise(50).save(cover, "JPEG"));
    ASSERT_TRUE(Platform::BasicID3Change::copyWithArtwork(at(u"One.m4a"_s), cover, at(u"One.m4a"_s)));
    ASSERT_TRUE(QFile::setPermissions(at(u"One.m4a"_s), QFile::ReadOwner | QFile::WriteOwner));
    auto result = save(task(entry, 2, 5));
    ASSERT_TRUE(result.done) << qPrintable(result.problem);
    EXPECT_EQ(files(), QStringList{u"One.m4a"_s});
    EXPECT_NEAR(secondsOf(at(u"One.m4a"_s)), 3, 0.02);
    EXPECT_TRUE(FileTags::agree(at(u"One.m4a"_s), entry).valueOr(false));
    EXPECT_EQ(FileTags::artwork(at(u"One.m4a"_s)), Mpeg4Files::contentOf(cover));
    EXPECT_EQ(QFile::permissions(at(u"One.m4a"_s)) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    EXPECT_TRUE(temporaries().filter(u"Trim"_s).isEmpty() && temporaries().filter(u"Own"_s).isEmpty());
    EXPECT_EQ(notes().size(), 1) << "until the library has the new length";
    result.note->end();
    EXPECT_TRUE(notes().isEmpty());
}

TEST_F(TrimSave, TrimsAnMp3IntoAnM4aThatReplacesAFileOfThatName) {
    ASSERT_EQ(
        runTool(u"ffmpeg"_s, {u"-v"_s, u"error"_s, u"-f"_s, u"lavfi"_s, u"-i"_s, u"sine=d=10"_s, at(u"song.mp3"_s)})
            .status,
        0);
    const QByteArray before = Mpeg4Files::contentOf(at(u"song.mp3"_s));
    ASSERT_TRUE(Mpeg4Files::write(at(u"song.m4a"_s), "an older result"));
    const auto result = save(task(entryOf(at(u"song.mp3"_s), u"song"_s, 10), 2, 5));
    ASSERT_TRUE(result.done) << qPrintable(result.problem);
    EXPECT_EQ(files(), (QStringList{u"song.m4a"_s, u"song.mp3"_s}));
    EXPECT_EQ(Mpeg4Files::contentOf(at(u"song.mp3"_s)), before);
    EXPECT_NEAR(secondsOf(at(u"song.m4a"_s)), 3, 0.02);
}

TEST_F(TrimSave, SavesAsANewFileAndNeverOverAnother) {
    const Dictionary entry = recording(u"One"_s, 10);
    const QByteArray before = Mpeg4Files::contentOf(at(u"One.m4a"_s));
    auto what = task(entry, 2, 5, false);
    what.exportPath = at(u"Two.m4a"_s);
    ASSERT_TRUE(save(what).done);
    const QByteArray made = Mpeg4Files::contentOf(at(u"Two.m4a"_s));
    EXPECT_FALSE(save(what).done);
    EXPECT_EQ(Mpeg4Files::contentOf(at(u"Two.m4a"_s)), made);
    EXPECT_EQ(Mpeg4Files::contentOf(at(u"One.m4a"_s)), before);
    EXPECT_EQ(files(), (QStringList{u"One.m4a"_s, u"Two.m4a"_s}));
}

TEST_F(TrimSave, FollowsALinkToTheFileThatItReplaces) {
    const Dictionary entry = recording(u"One"_s, 10);
    ASSERT_TRUE(QFile::link(at(u"One.m4a"_s), home_.filePath(u"Link.m4a"_s)));
    Dictionary linked = entry;
    linked.insert(AudioRecordEntry::SavePath, home_.filePath(u"Link.m4a"_s));
    ASSERT_TRUE(save(task(linked, 2, 5)).done);
    EXPECT_TRUE(QFileInfo(home_.filePath(u"Link.m4a"_s)).isSymLink());
    EXPECT_NEAR(secondsOf(at(u"One.m4a"_s)), 3, 0.02);
}

TEST_F(TrimSave, RefusesInOneSentence) {
    const Dictionary entry = recording(u"One"_s, 10);
    EXPECT_EQ(AudioTrimSave::refusal(at(u"gone.m4a"_s), 0, 5), u"The file “gone.m4a” is no longer there."_s);
    EXPECT_EQ(AudioTrimSave::refusal(at(u"One.m4a"_s), 3, 3.05), u"The range is shorter than a tenth of a second."_s);
    EXPECT_EQ(AudioTrimSave::refusal(at(u"One.m4a"_s), 3, 5), QString());
    {
        QFile recorder(at(u"One.m4a"_s));
        ASSERT_TRUE(recorder.open(QIODevice::ReadWrite));
        const auto result = save(task(entry, 2, 5));
        EXPECT_FALSE(result.done);
        EXPECT_EQ(result.problem, u"The file “One.m4a” is still being recorded to."_s);
    }
    EXPECT_TRUE(save(task(entry, 2, 5)).done);
}

TEST_F(TrimSave, LeavesAnUnreadableSourceUnchanged) {
    ASSERT_TRUE(Mpeg4Files::write(at(u"text.m4a"_s), "no audio at all"));
    const auto result = save(task(entryOf(at(u"text.m4a"_s), u"text"_s, 10), 2, 5));
    EXPECT_FALSE(result.done);
    EXPECT_FALSE(result.problem.isEmpty());
    EXPECT_EQ(Mpeg4Files::contentOf(at(u"text.m4a"_s)), "no audio at all");
    EXPECT_EQ(files(), QStringList{u"text.m4a"_s});
    EXPECT_TRUE(notes().isEmpty());
}

TEST_F(TrimSave, LeavesNothingWhenItIsStopped) {
    const Dictionary entry = recording(u"One"_s, 30);
    const QByteArray before = Mpeg4Files::contentOf(at(u"One.m4a"_s));
    ConverterAudioControl converter;
    const auto result = AudioTrimSave::run(converter, task(entry, 2, 25), [](double share) { return share < 0.1; });
    EXPECT_FALSE(result.done);
    EXPECT_EQ(Mpeg4Files::contentOf(at(u"One.m4a"_s)), before);
    EXPECT_EQ(files(), QStringList{u"One.m4a"_s});
    EXPECT_TRUE(temporaries().isEmpty());
}

TEST_F(TrimSave, SyncsTheResultBeforeItTakesTheName) {
    const Dictionary entry = recording(u"One"_s, 10);
    const DiskCalls disk;
    ASSERT_TRUE(save(task(entry, 2, 5)).done);
    bool named = false;
    std::uint64_t lastSynced = 0;
    for (const auto& call : disk.calls()) {
        if (call.kind == DiskCalls::Call::Kind::Sync) {
            if (!named)
                lastSynced = call.inode;
        } else if (call.to == at(u"One.m4a"_s)) {
            named = true;
            EXPECT_EQ(call.inode, lastSynced) << "the file that takes the name was synced last";
        }
    }
    EXPECT_TRUE(named);
}

TEST_F(TrimSaveOnAFullDisk, KeepsTheRecordingWhereverTheSpaceEnds) {
    const Dictionary entry = recording(u"One"_s, 20);
    const QByteArray before = Mpeg4Files::contentOf(at(u"One.m4a"_s));
    int saved = 0;
    int refused = 0;
    for (rlim_t room = 0; room <= 900000; room += 60000) {
        AudioTrimSave::Result result;
        {
            const FullDisk full(room);
            result = save(task(entry, 1, 19));
        }
        EXPECT_TRUE(temporaries().filter(u"Trim"_s).isEmpty()) << room;
        EXPECT_EQ(files(), QStringList{u"One.m4a"_s}) << room;
        if (result.done) {
            ++saved;
            EXPECT_NEAR(secondsOf(at(u"One.m4a"_s)), 18, 0.02);
            EXPECT_TRUE(FileTags::agree(at(u"One.m4a"_s), entry).valueOr(false));
            ASSERT_TRUE(Mpeg4Files::write(at(u"One.m4a"_s), before));
            result.note->end();
        } else {
            ++refused;
            EXPECT_FALSE(result.problem.isEmpty());
            EXPECT_EQ(Mpeg4Files::contentOf(at(u"One.m4a"_s)), before) << room;
        }
        EXPECT_TRUE(notes().isEmpty()) << room;
    }
    EXPECT_GT(saved, 0);
    EXPECT_GT(refused, 4);
}

TEST_F(TrimSaveWithKills, LosesNothingAtAnyMoment) {
    // Short, so that many of the kills hit the steps around the conversion.
    const Dictionary entry = recording(u"One"_s, 20);
    const QByteArray before = Mpeg4Files::contentOf(at(u"One.m4a"_s));
    const int longest = timeOf([&] { return save(task(entry, 5, 15)).done; });
    ASSERT_GT(longest, 0);
    ASSERT_TRUE(Mpeg4Files::write(at(u"One.m4a"_s), before));
    startAnew();
    library().addRecordFile(entry);
    QRandomGenerator random(5);
    int replaced = 0;
    for (int round = 0; round < 50; ++round) {
        {
            ChildProcess child([&] {
                ::setpgid(0, 0);
                return save(task(entry, 5, 15)).done ? 0 : 1;
            });
            ASSERT_TRUE(child.started());
            ::setpgid(child.pid(), child.pid()); // parent or child, whichever runs first
            QThread::usleep(random.bounded(1, longest));
            child.killGroup();
        }
        startAnew();
        EXPECT_TRUE(notes().isEmpty());
        const double seconds = secondsOf(at(u"One.m4a"_s));
        const bool isSource = Mpeg4Files::contentOf(at(u"One.m4a"_s)) == before;
        EXPECT_TRUE(isSource || std::abs(seconds - 10) < 0.02) << "round " << round << ": " << seconds;
        EXPECT_TRUE(FileTags::agree(at(u"One.m4a"_s), entry).valueOr(false));
        EXPECT_FALSE(Mpeg4Files::audioOf(at(u"One.m4a"_s)).isEmpty());
        EXPECT_NEAR(listed().value(AudioRecordEntry::Length).toDouble(), seconds, 0.05) << "round " << round;
        EXPECT_EQ(files().filter(QRegularExpression(u"^[^.]"_s)), QStringList{u"One.m4a"_s});
        if (!isSource) {
            ++replaced;
            ASSERT_TRUE(Mpeg4Files::write(at(u"One.m4a"_s), before));
            library().addRecordFile(entry);
        }
    }
    EXPECT_LT(replaced, 50);
}

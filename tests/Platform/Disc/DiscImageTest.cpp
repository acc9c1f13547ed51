// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The drive that writes images, with real audio files; other programs check the result.
#include "Platform/Disc/CueSheet.h"
#include "Platform/Foundation/Services.h"
#include "tests/Platform/Disc/DiscTestSupport.h"
#include "tests/fakes/FakeAlerts.h"
#include "tests/fakes/FakePanels.h"
#include "tests/fakes/FakeSourceFiles.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;
using namespace Platform;
using namespace DiscTest;

namespace {

class DiscImageTest : public testing::Test {
protected:
    [[nodiscard]] QString at(const QString& name) const { return folder.filePath(name); }
    [[nodiscard]] QStringList everything() const { return FileContent::namesIn(folder.path()); }
    /// An audio file of two tones, made by sox: @p format like "-r 48000 -b 24 -c 2".
    QString tones(const QString& name, const QString& format, const QString& seconds, const QString& vol = u"0.5"_s) {
        const QString path = at(name);
        sox(QStringList{u"-n"_s} + format.split(u' ') +
            QStringList{path, u"synth"_s, seconds, u"sine"_s, u"997"_s, u"sine"_s, u"1499"_s, u"vol"_s, vol});
        return path;
    }
    std::shared_ptr<DRTrack> track(const QString& path) {
        auto opened = discs.trackForAudioFile(path);
        EXPECT_TRUE(opened) << qPrintable(opened.error().text);
        const auto made = std::move(opened).valueOr(nullptr);
        if (made) {
            auto properties = made->properties();
            properties.preGapLength = 75;
            made->setProperties(properties);
        }
        return made;
    }
    DRLayout layoutOf(const QStringList& paths) {
        DRLayout layout;
        for (const QString& path : paths)
            layout.push_back(track(path));
        return layout;
    }
    std::shared_ptr<DRBurn> newBurn() { return discs.burnWithDevice(discs.devices().back()); }
    DRStatus burn(const std::optional<DRLayout>& layout) {
        const auto made = newBurn();
        const BurnWatch watch(discs.currentRunLoopCenter(), made);
        made->writeLayout(layout);
        EXPECT_TRUE(waitFor([&] { return watch.ended(); }, 120000));
        return made->status();
    }

    QTemporaryDir folder;
    std::unique_ptr<MediaFiles> files = createMediaFiles();
    LinuxDiscRecording discs{*files, noDrives};
};

TEST_F(DiscImageTest, IsTheLastDriveWithABlankDiscOf80Minutes) {
    const auto drives = discs.devices();
    ASSERT_EQ(drives.size(), 1U);
    EXPECT_EQ(drives[0]->displayName(), u"Disc Image (CUE/BIN)"_s);
    EXPECT_EQ(drives[0]->status().mediaState, DRDeviceMediaStateMediaPresent);
    EXPECT_EQ(drives[0]->status().mediaBlocksFree, 360'000);
    EXPECT_TRUE(drives[0]->mediaIsBlank());
    EXPECT_FALSE(drives[0]->mediaIsErasable());
    const auto disk =
        createDiskArbitration()->createSession()->createDiskFromBSDName("/dev/" + drives[0]->bsdName().toUtf8());
    ASSERT_TRUE(disk);
    EXPECT_TRUE(disk->hasDescription());
    EXPECT_FALSE(createDiskArbitration()->createSession()->createDiskFromBSDName("/dev/")->hasDescription());
    EXPECT_FALSE(createDiskArbitration()->createSession()->createDiskFromBSDName("/dev/sr99")->hasDescription());
}

// Ten tracks of different formats, compared with what sox makes of the same files and read by two other programs.
TEST_F(DiscImageTest, ContainsTheAudioOfTenFileFormats) {
    QStringList paths;
    paths << tones(u"01.wav"_s, u"-r 44100 -b 16 -c 2"_s, u"4.5"_s)
          << tones(u"02.wav"_s, u"-r 22050 -b 16 -c 1"_s, u"5.1"_s)
          << tones(u"03.wav"_s, u"-r 96000 -b 24 -c 2"_s, u"4.2"_s)
          << tones(u"04.flac"_s, u"-r 48000 -b 24 -c 2"_s, u"6"_s)
          << tones(u"05.flac"_s, u"-r 44100 -b 16 -c 2"_s, u"4.01"_s)
          << tones(u"06.aiff"_s, u"-r 44100 -b 24 -c 2"_s, u"4.7"_s)
          << tones(u"07.wav"_s, u"-r 8000 -b 16 -c 1"_s, u"4.4"_s)
          << tones(u"08.wav"_s, u"-r 44100 -b 8 -c 1"_s, u"4.3"_s)
          << tones(u"09.wav"_s, u"-r 192000 -b 32 -c 2"_s, u"4.1"_s)
          << tones(u"10.wav"_s, u"-r 44100 -b 16 -c 2"_s, u"2.5"_s);
    discs.setImagePath(at(u"disc.cue"_s));
    const DRLayout layout = layoutOf(paths);
    const DRStatus status = burn(layout);
    ASSERT_EQ(status.state, DRStatusStateDone) << qPrintable(status.reason);

    std::int64_t sectors = 0;
    QStringList starts;
    const QByteArray bin = get(at(u"disc.bin"_s));
    for (std::size_t i = 0; i < layout.size(); ++i) {
        EXPECT_EQ(bin.mid(qsizetype(sectors * 2352), 75 * 2352), QByteArray(75 * 2352, '\0')) << i;
        sectors += 75;
        starts << QString::number(sectors);
        const QString raw = at(u"reference.raw"_s);
        sox({paths[qsizetype(i)], u"-r"_s, u"44100"_s, u"-c"_s, u"2"_s, u"-b"_s, u"16"_s, u"-e"_s, u"signed"_s, raw,
             u"rate"_s, u"-v"_s});
        const auto reference = samplesOf(get(raw));
        const auto ours = samplesOf(bin.mid(qsizetype(sectors * 2352), qsizetype(layout[i]->sectors() * 2352)));
        ASSERT_GE(ours.size(), reference.size()) << i;
        EXPECT_LT(ours.size() - reference.size(), std::max<std::size_t>(1176 + 4, 300 * 1176 - reference.size() + 4))
            << i;
        // The first and last hundredth of a second of a resampled file depend on how the filter starts.
        const std::size_t margin = 882;
        const std::vector<std::int16_t> a(ours.begin() + margin,
                                          ours.begin() + std::ptrdiff_t(reference.size() - margin));
        const std::vector<std::int16_t> b(reference.begin() + margin, reference.end() - margin);
        // Two independent dithers of half a step each.
        EXPECT_LT(difference(a, b, a.size()), 0.85) << i;
        sectors += layout[i]->sectors();
    }
    EXPECT_EQ(bin.size(), sectors * 2352);
    // Files of 16 bits at the disc's own rate are copied bit for bit.
    const auto bits = [&](int number) {
        const QString raw = at(u"bits.raw"_s);
        sox({u"-D"_s, paths[number], u"-e"_s, u"signed"_s, u"-b"_s, u"16"_s, u"-c"_s, u"2"_s, raw});
        return get(raw);
    };
    EXPECT_EQ(bin.mid(75 * 2352, 4 * 198450), bits(0));
    const auto eighth = bits(7);
    EXPECT_EQ(bin.mid(qsizetype(starts[7].toLongLong() * 2352), eighth.size()), eighth);

    const auto info = runTool(u"cd-info"_s, {u"--no-header"_s, u"--no-device-info"_s, u"--no-analyze"_s, u"--no-cddb"_s,
                                             u"--cue-file"_s, at(u"disc.cue"_s)});
    ASSERT_EQ(info.status, 0) << info.errors.data();
    QStringList read;
    auto lines = QRegularExpression(u"^ *\\d+: \\d\\d:\\d\\d:\\d\\d +(\\d+) (audio|leadout)"_s,
                                    QRegularExpression::MultilineOption)
                     .globalMatch(QString::fromUtf8(info.output));
    while (lines.hasNext())
        read << QString::number(lines.next().captured(1).toLongLong());
    EXPECT_EQ(read, starts + QStringList{QString::number(sectors)}) << info.output.data();

    const auto chunks = runTool(u"bchunk"_s, {u"-w"_s, at(u"disc.bin"_s), at(u"disc.cue"_s), at(u"chunk"_s)});
    ASSERT_EQ(chunks.status, 0) << chunks.errors.data();
    for (int i = 1; i <= 10; ++i) {
        const QByteArray wave = get(at(u"chunk%1.wav"_s.arg(i, 2, 10, QChar(u'0'))));
        const auto& made = layout[std::size_t(i - 1)];
        EXPECT_EQ(wave.mid(44, qsizetype(made->sectors() * 2352)),
                  bin.mid(qsizetype(starts[i - 1].toLongLong() * 2352), qsizetype(made->sectors() * 2352)))
            << i;
    }
}

TEST_F(DiscImageTest, JoinsThePartsOfOneRecordingWithoutAClick) {
    const QString whole = tones(u"whole.wav"_s, u"-r 44100 -b 16 -c 2"_s, u"18"_s);
    // Not at sector boundaries.
    sox({whole, at(u"a.wav"_s), u"trim"_s, u"0s"_s, u"200001s"_s});
    sox({whole, at(u"b.wav"_s), u"trim"_s, u"200001s"_s, u"250037s"_s});
    sox({whole, at(u"c.wav"_s), u"trim"_s, u"450038s"_s});
    discs.setImagePath(at(u"parts"_s));
    const DRLayout layout = layoutOf({at(u"a.wav"_s), at(u"b.wav"_s), at(u"c.wav"_s)});
    ASSERT_EQ(burn(layout).state, DRStatusStateDone);
    const QByteArray bin = get(at(u"parts.bin"_s));
    QByteArray played;
    qsizetype place = 0;
    for (const auto& [part, frames] : {std::pair(0, 200001), std::pair(1, 250037), std::pair(2, 343762)}) {
        place += 75 * 2352;
        const auto bytes = qsizetype(layout[std::size_t(part)]->sectors() * 2352);
        played += bin.mid(place, 4 * frames);
        const QByteArray rest = bin.mid(place + 4 * frames, bytes - 4 * frames);
        EXPECT_LT(rest.size(), 2352);
        EXPECT_EQ(rest, QByteArray(rest.size(), '\0'));
        place += bytes;
    }
    sox({whole, at(u"whole.raw"_s)});
    EXPECT_EQ(played, get(at(u"whole.raw"_s)));
}

TEST_F(DiscImageTest, WritesTitlesAndArtistsIntoTheCueSheet) {
    tones(u"plain name.wav"_s, u"-r 44100 -b 16 -c 2"_s, u"4"_s);
    tones(u"b.wav"_s, u"-r 44100 -b 16 -c 2"_s, u"4"_s);
    ASSERT_EQ(runTool(u"ffmpeg"_s, {u"-v"_s, u"error"_s, u"-i"_s, at(u"b.wav"_s), u"-metadata"_s,
                                    u"title=Sæson \"7\""_s, u"-metadata"_s, u"artist=The\nBand"_s, at(u"b.m4a"_s)})
                  .status,
              0);
    discs.setImagePath(at(u"x.bin"_s));
    ASSERT_EQ(burn(layoutOf({at(u"plain name.wav"_s), at(u"b.m4a"_s)})).state, DRStatusStateDone);
    EXPECT_EQ(get(at(u"x.cue"_s)), "FILE \"x.bin\" BINARY\r\n"
                                   "  TRACK 01 AUDIO\r\n"
                                   "    TITLE \"plain name\"\r\n"
                                   "    INDEX 00 00:00:00\r\n"
                                   "    INDEX 01 00:01:00\r\n"
                                   "  TRACK 02 AUDIO\r\n"
                                   "    TITLE \"Sæson '7'\"\r\n"
                                   "    PERFORMER \"The Band\"\r\n"
                                   "    INDEX 00 00:05:00\r\n"
                                   "    INDEX 01 00:06:00\r\n");
}

TEST_F(DiscImageTest, RefusesToReplaceFiles) {
    const DRLayout layout = layoutOf({tones(u"a.wav"_s, u"-r 44100 -b 16 -c 2"_s, u"4"_s)});
    for (const QString& existing : {u"disc.cue"_s, u"disc.bin"_s}) {
        QFile file(at(existing));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("mine");
        file.close();
        discs.setImagePath(at(u"disc"_s));
        const DRStatus status = burn(layout);
        EXPECT_EQ(status.state, DRStatusStateFailed);
        EXPECT_TRUE(status.reason.startsWith(at(existing) + u": exists already"_s)) << qPrintable(status.reason);
        EXPECT_EQ(get(at(existing)), "mine");
        EXPECT_EQ(everything(), (QStringList{u"a.wav"_s, existing}));
        file.remove();
    }
    discs.setImagePath(at(u"no folder/disc"_s));
    EXPECT_EQ(burn(layout).reason, at(u"no folder"_s) + u": no such folder"_s);
    discs.setImagePath(at(u"a\"b"_s));
    EXPECT_TRUE(burn(layout).reason.contains(u"cue sheet cannot name"_s));
}

TEST_F(DiscImageTest, FailsBeforeWritingWithoutTracksOrSpace) {
    discs.setImagePath(at(u"disc"_s));
    EXPECT_EQ(burn(std::nullopt).reason, u"a file cannot be read: nothing was burned"_s);
    EXPECT_EQ(burn(DRLayout()).reason, u"there is nothing to burn: no file is ticked"_s);
    const QString path = tones(u"a.wav"_s, u"-r 44100 -b 16 -c 2"_s, u"4"_s);
    EXPECT_EQ(burn(DRLayout(100, track(path))).reason, u"an audio CD holds at most 99 tracks, these are 100"_s);
    FakeSourceFiles sources;
    LinuxDiscRecording other(sources, noDrives);
    sources.addSource(sources.at(u"long"_s), 7200, [](int, std::int64_t) { return 0.F; });
    const auto tooLong = other.trackForAudioFile(sources.at(u"long"_s)).valueOr(nullptr);
    ASSERT_TRUE(tooLong);
    tooLong->setProperties({75});
    EXPECT_EQ(
        burn(DRLayout{tooLong}).reason,
        u"there is not enough room on the disc: the tracks need 120:01 minutes (540075 sectors), 80:00 minutes (360000 sectors) are free"_s);
    EXPECT_EQ(everything(), QStringList{u"a.wav"_s});
}

TEST_F(DiscImageTest, NamesAFileThatCannotBeRead) {
    QString why = discs.trackForAudioFile(at(u"none.wav"_s)).error().text;
    EXPECT_TRUE(why.contains(at(u"none.wav"_s))) << qPrintable(why);
    QFile file(at(u"text.wav"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("not a sound");
    file.close();
    why = discs.trackForAudioFile(at(u"text.wav"_s)).error().text;
    EXPECT_TRUE(why.contains(at(u"text.wav"_s))) << qPrintable(why);
    EXPECT_FALSE(discs.trackForAudioFile(folder.path()));
}

TEST_F(DiscImageTest, LeavesNothingWhenItIsAborted) {
    FakeSourceFiles sources;
    LinuxDiscRecording slow(sources, noDrives);
    std::atomic<bool> asked{false};
    std::atomic<bool> goOn{false};
    sources.addSource(sources.at(u"slow"_s), 600, [&](int, std::int64_t frame) {
        asked = asked || frame > 441000;
        while (frame > 441000 && !goOn)
            std::this_thread::yield();
        return 0.F;
    });
    slow.setImagePath(at(u"disc"_s));
    const auto burn = slow.burnWithDevice(slow.devices().back());
    const BurnWatch watch(slow.currentRunLoopCenter(), burn);
    burn->writeLayout(DRLayout{slow.trackForAudioFile(sources.at(u"slow"_s)).valueOr(nullptr)});
    ASSERT_TRUE(waitFor([&] { return asked.load(); }));
    burn->abort();
    goOn = true;
    ASSERT_TRUE(waitFor([&] { return watch.ended(); }));
    EXPECT_EQ(burn->status().state, DRStatusStateFailed);
    EXPECT_EQ(burn->status().reason, u"it was stopped before the end: nothing was written"_s);
    EXPECT_EQ(everything(), QStringList());
}

TEST_F(DiscImageTest, LeavesNothingWhenASourceIsTruncated) {
    const QString path = tones(u"a.wav"_s, u"-r 44100 -b 16 -c 2"_s, u"400"_s);
    const DRLayout layout = layoutOf({path});
    ASSERT_TRUE(QFile::resize(path, 20'000'000));
    discs.setImagePath(at(u"disc"_s));
    const DRStatus status = burn(layout);
    EXPECT_EQ(status.state, DRStatusStateFailed);
    EXPECT_TRUE(status.reason.contains(path)) << qPrintable(status.reason);
    EXPECT_EQ(everything(), QStringList{u"a.wav"_s});
}

TEST_F(DiscImageTest, BurnsASourceThatWasDeletedAfterItWasMeasured) {
    const QString path = tones(u"a.wav"_s, u"-r 44100 -b 16 -c 2"_s, u"5"_s);
    const DRLayout layout = layoutOf({path});
    sox({path, at(u"a.raw"_s)});
    ASSERT_TRUE(QFile::remove(path));
    discs.setImagePath(at(u"disc"_s));
    ASSERT_EQ(burn(layout).state, DRStatusStateDone);
    EXPECT_EQ(get(at(u"disc.bin"_s)).mid(75 * 2352, 5 * 176400), get(at(u"a.raw"_s)));
}

TEST_F(DiscImageTest, AsksForAPathUntilOneIsFree) {
    const ServicesScope scope;
    FakePanels panels;
    FakeAlerts alerts;
    services().panels = &panels;
    services().alerts = &alerts;
    const DRLayout layout = layoutOf({tones(u"a.wav"_s, u"-r 44100 -b 16 -c 2"_s, u"4"_s)});
    const auto declined = newBurn();
    declined->writeLayout(layout);
    EXPECT_TRUE(declined->wasDeclined());
    EXPECT_EQ(declined->status().state, DRStatusStateNone);
    panels.answer = at(u"chosen.cue"_s);
    ASSERT_EQ(burn(layout).state, DRStatusStateDone);
    EXPECT_EQ(everything(), (QStringList{u"a.wav"_s, u"chosen.bin"_s, u"chosen.cue"_s}));
}

TEST_F(DiscImageTest, ReportsGrowingProgressAndOneEnd) {
    const auto burn = newBurn();
    discs.setImagePath(at(u"disc"_s));
    const auto second = newBurn();
    const BurnWatch watch(discs.currentRunLoopCenter(), second);
    second->writeLayout(layoutOf({tones(u"a.wav"_s, u"-r 48000 -b 24 -c 2"_s, u"300"_s)}));
    ASSERT_TRUE(waitFor([&] { return watch.ended(); }));
    ASSERT_GE(watch.statuses.size(), 2U);
    double before = -1;
    for (const DRStatus& status : watch.statuses) {
        EXPECT_GE(status.percentComplete, before);
        before = status.percentComplete;
    }
    EXPECT_EQ(before, 1.0);
    EXPECT_EQ(watch.statuses.back().state, DRStatusStateDone);
}

} // namespace

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/Platform/Media/MediaTestSupport.h"
#include "tests/support/WaitFor.h"

#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace MediaTest;
using namespace Platform;
using namespace Qt::StringLiterals;

namespace {

struct GrowingFiles : testing::Test {
    QTemporaryDir folder;
    QString at(const QString& name) const { return folder.filePath(name); }

    /// Seconds that GStreamer's demultiplexer and decoder get from a file; negative when they fail.
    double secondsOfGStreamer(const QString& path) const {
        const QString out = at(u"gst.wav"_s);
        QFile::remove(out);
        // Separate arguments: the path is not part of a pipeline description.
        const auto run = tool(u"gst-launch-1.0"_s, {u"-q"_s, u"filesrc"_s, u"location="_s + path, u"!"_s, u"qtdemux"_s,
                                                    u"!"_s, u"avdec_aac"_s, u"!"_s, u"audioconvert"_s, u"!"_s,
                                                    u"wavenc"_s, u"!"_s, u"filesink"_s, u"location="_s + out});
        const auto back = readFile(out);
        return run.status == 0 && !back.openError ? double(back.rows[0].size()) / 44100 : -1;
    }

    double secondsOfFfmpeg(const QString& path) const {
        const QString out = at(u"ff.wav"_s);
        const auto run =
            tool(u"ffmpeg"_s, {u"-v"_s, u"quiet"_s, u"-y"_s, u"-i"_s, path, u"-c:a"_s, u"pcm_s16le"_s, out});
        return run.status == 0 ? double(readFile(out).rows[0].size()) / 44100 : -1;
    }
};

/// Runs @p body in a child process; its result becomes the exit status.
template <typename Body>
pid_t inChild(Body body) {
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(body());
    return child;
}

/// Each fragment holds a second.
qsizetype fragmentsOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().count("moof") : 0;
}

int statusOf(pid_t child) {
    int status = 0;
    ::waitpid(child, &status, 0);
    return status;
}

} // namespace

TEST_F(GrowingFiles, OneThreadEncodesAndWritesALiveFile) {
    const auto threads = [] { return QDir(u"/proc/self/task"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(); };
    const auto before = threads();
    const QString path = at(u"live.m4a"_s);
    Samples sound = tones(5 * 44100);
    auto writer = newWriter(path, kAudioFileM4AType, aacFormat(), clientFormat());
    writeAll(*writer, sound, 1024, true);
    ASSERT_TRUE(waitFor([&] { return fragmentsOf(path) >= 4; }));
    EXPECT_EQ(threads(), before + 1);
    EXPECT_EQ(writer->dispose(), noErr);
}

TEST_F(GrowingFiles, AKilledRecordingPlaysUpToAboutItsLastSecond) {
    const QString path = at(u"killed.m4a"_s);
    constexpr double seconds = 7.4;
    int ready[2];
    ASSERT_EQ(::pipe(ready), 0);
    const pid_t child = inChild([&] {
        Samples sound = tones(std::size_t(seconds * 44100));
        const auto writer =
            media().createWriter(path, kAudioFileM4AType, aacFormat(), kAudioFileFlags_EraseFile).valueOr(nullptr);
        if (!writer || writer->setClientDataFormat(clientFormat()) != noErr)
            return 1;
        writeAll(*writer, sound, 512, true);
        // The file's thread is done when the last whole second is in the file and the file stops growing.
        for (qint64 size = -1, still = 0, waited = 0; waited < 60'000 && (still < 20 || fragmentsOf(path) < 7);) {
            ::usleep(20000);
            waited += 20;
            const qint64 now = QFileInfo(path).size();
            still = now == size ? still + 1 : 0;
            size = now;
        }
        (void)!::write(ready[1], "x", 1);
        ::pause();
        return 0;
    });
    char letter = 0;
    ASSERT_EQ(::read(ready[0], &letter, 1), 1);
    ::kill(child, SIGKILL);
    EXPECT_TRUE(WIFSIGNALED(statusOf(child)));
    ::close(ready[0]);
    ::close(ready[1]);

    EXPECT_GT(secondsOfFfmpeg(path), seconds - 1.1);
    EXPECT_GT(secondsOfGStreamer(path), seconds - 1.1);
    const auto back = readFile(path);
    EXPECT_EQ(back.errors, 0);
    EXPECT_EQ(back.length, std::int64_t(back.rows[0].size()));
    EXPECT_GT(double(back.length) / 44100, seconds - 1.1);
    const Samples sound = tones(back.rows[0].size());
    EXPECT_GT(signalToError(sound[0], back.rows[0]), 20); // in the right place: the priming is removed

    // Cuts anywhere inside the last fragment: a half-written fragment plays, too.
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.resize(file.size() - 5000));
    file.close();
    EXPECT_GT(secondsOfFfmpeg(path), seconds - 2.2);
    EXPECT_GT(double(readFile(path).rows[0].size()) / 44100, seconds - 2.2);
}

TEST_F(GrowingFiles, AClosedFileIsPlainWithItsIndexAtTheEndAndNothingBesideIt) {
    writeFile(at(u"a.m4a"_s), kAudioFileM4AType, tones(500000));
    QFile file(at(u"a.m4a"_s));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    EXPECT_EQ(bytes.indexOf("moof"), -1);
    EXPECT_EQ(bytes.indexOf("mvex"), -1);
    EXPECT_GT(bytes.indexOf("moov"), bytes.indexOf("mdat"));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList(u"a.m4a"_s));
    EXPECT_NEAR(secondsOfGStreamer(at(u"a.m4a"_s)), 500000 / 44100.0, 0.05);
}

TEST_F(GrowingFiles, AFileWithoutRoomForASecondCopyGetsItsIndexInPlace) {
    // The folder is read-only, so the plain version cannot be made beside the growing one.
    const QString path = at(u"a.m4a"_s);
    const pid_t child = inChild([&] {
        Samples sound = tones(500000);
        auto writer = newWriter(path, kAudioFileM4AType, aacFormat(), clientFormat());
        writeAll(*writer, sound, 512, true);
        if (::geteuid() == 0 && ::seteuid(65534) != 0)
            return 2;
        ::chmod(QFile::encodeName(folder.path()).constData(), 0500);
        return writer->dispose() == noErr ? 0 : 1;
    });
    EXPECT_EQ(statusOf(child), 0);
    ::chmod(QFile::encodeName(folder.path()).constData(), 0700);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_GT(file.readAll().indexOf("moof"), 0);
    const auto back = readFile(path);
    EXPECT_EQ(back.length, 500000);
    const Samples sound = tones(500000);
    EXPECT_GT(signalToError(sound[0], back.rows[0]), 20);
    EXPECT_NEAR(secondsOfFfmpeg(path), 500000 / 44100.0, 0.05);
    EXPECT_NEAR(secondsOfGStreamer(path), 500000 / 44100.0, 0.05);
}

TEST_F(GrowingFiles, AFullDiskKeepsTheRecordedAudioAndReportsIt) {
    const QString path = at(u"full.m4a"_s);
    const QByteArray mountPoint = QFile::encodeName(at(u"disk"_s));
    ASSERT_TRUE(QDir().mkdir(at(u"disk"_s)));
    const bool mounted = ::mount("tmpfs", mountPoint.constData(), "tmpfs", 0, "size=128k") == 0;
    const QString target = mounted ? at(u"disk/full.m4a"_s) : path;
    // When mounting is not permitted, a limit on the file size ends the writing at the same place.
    const pid_t child = inChild([&] {
        if (!mounted) {
            ::signal(SIGXFSZ, SIG_IGN);
            const rlimit limit{131072, 131072};
            ::setrlimit(RLIMIT_FSIZE, &limit);
        }
        Samples sound = tones(44100 * 20);
        auto writer = newWriter(target, kAudioFileM4AType, aacFormat(), clientFormat());
        writeAll(*writer, sound, 512, true);
        const OSStatus status = writer->dispose();
        const Error error = writer->firstError();
        if (status == noErr || error.kind != Error::Kind::DiskFull || !error.text.startsWith(target))
            return 1;
        return !mounted || error.text.contains("No space left on device"_L1) ? 0 : 2;
    });
    EXPECT_EQ(statusOf(child), 0);
    const auto back = readFile(target);
    EXPECT_EQ(back.errors, 0);
    EXPECT_GT(back.rows[0].size(), 44100u * 4);
    const double ffmpeg = secondsOfFfmpeg(target);
    EXPECT_NEAR(ffmpeg, double(back.rows[0].size()) / 44100, 0.05);
    EXPECT_NEAR(secondsOfGStreamer(target), ffmpeg, 0.1);
    if (mounted) {
        EXPECT_EQ(::umount(mountPoint.constData()), 0);
    }
}

TEST_F(GrowingFiles, AnHourHasTheIndexOfAnHour) {
    // Silence encodes faster, and the index has as many packets.
    Samples silence(2, std::vector<float>(44100 * 60));
    auto writer = newWriter(at(u"hour.m4a"_s), kAudioFileM4AType, aacFormat(), clientFormat());
    for (int minute = 0; minute < 60; ++minute)
        writeAll(*writer, silence, 8192, true);
    EXPECT_EQ(writer->dispose(), noErr);
    const auto info = media().info(at(u"hour.m4a"_s));
    ASSERT_TRUE(info);
    EXPECT_EQ(info->frameCount, 44100 * 3600);
}

namespace {

struct Cuts : GrowingFiles {
    /// Writes @p sound, cut at @p places, into WAVE files. Each new writer is created while the one before still works.
    QStringList writeCut(Samples& sound, double rate, const std::vector<std::size_t>& places, bool later) {
        QStringList paths;
        std::vector<std::future<OSStatus>> closed;
        std::unique_ptr<ExtAudioFileWriter> writer;
        std::size_t from = 0;
        for (std::size_t i = 0; i <= places.size(); ++i) {
            const std::size_t to = i < places.size() ? places[i] : sound[0].size();
            paths << at(u"cut%1.wav"_s.arg(i));
            auto next = newWriter(paths.back(), kAudioFileWAVEType, waveFormat(), clientFormat(rate));
            if (writer) {
                EXPECT_EQ(next->continueFrom(*writer), noErr);
                close(std::move(writer), later, closed);
            }
            writer = std::move(next);
            EXPECT_EQ(writer->writeAsync(0, nullptr), noErr);
            while (from < to) {
                const std::size_t count = std::min<std::size_t>(480, to - from);
                BufferList list(sound, from, count);
                EXPECT_EQ(writer->writeAsync(std::uint32_t(count), list.get()), noErr);
                from += count;
            }
        }
        close(std::move(writer), later, closed);
        for (auto& file : closed)
            EXPECT_EQ(file.get(), noErr);
        return paths;
    }

    static void close(std::unique_ptr<ExtAudioFileWriter> writer, bool later,
                      std::vector<std::future<OSStatus>>& closed) {
        auto done = std::make_shared<std::promise<OSStatus>>();
        closed.push_back(done->get_future());
        if (later)
            writer->disposeLater([done](OSStatus status) { done->set_value(status); });
        else
            done->set_value(writer->dispose());
    }

    static Samples laidEndToEnd(const QStringList& paths) {
        Samples all(2);
        for (const QString& path : paths) {
            const auto part = readFile(path);
            for (std::size_t c = 0; c < 2; ++c)
                all[c].insert(all[c].end(), part.rows[c].begin(), part.rows[c].end());
        }
        return all;
    }
};

} // namespace

TEST_F(Cuts, AtEqualRatesTheFilesHoldEveryFrameOnce) {
    Samples sound = tones(200000);
    const auto paths = writeCut(sound, 44100, {1, 2, 5000, 5001, 99999, 150000, 150000}, true);
    const Samples all = laidEndToEnd(paths);
    ASSERT_EQ(all[0].size(), sound[0].size());
    EXPECT_GT(signalToError(sound[0], all[0]), 140);
    EXPECT_GT(signalToError(sound[1], all[1]), 140);
    EXPECT_EQ(readFile(paths[2]).length, 4998);
}

TEST_F(Cuts, ResampledFilesLaidEndToEndAreTheUncutFile) {
    Samples sound = sweep(48000 * 20 + 77, 48000);
    std::vector<std::size_t> places;
    std::uint32_t seed = 7;
    for (std::size_t place = 0;;) {
        seed = seed * 1664525 + 1013904223;
        place += 17 + (seed >> 8) % 9000;
        if (place >= sound[0].size())
            break;
        places.push_back(place);
    }
    ASSERT_GT(places.size(), 200u);
    const auto paths = writeCut(sound, 48000, places, true);
    writeFile(at(u"whole.wav"_s), kAudioFileWAVEType, sound, 48000);
    const auto whole = readFile(at(u"whole.wav"_s));
    EXPECT_EQ(laidEndToEnd(paths), whole.rows);
    std::size_t from = 0;
    for (qsizetype i = 0; i < paths.size(); ++i) {
        const std::size_t to = std::size_t(i) < places.size() ? places[std::size_t(i)] : sound[0].size();
        EXPECT_NEAR(double(readFile(paths[i]).length), double(to - from) * 44100 / 48000, 1.01);
        from = to;
    }
}

TEST_F(Cuts, AFileClosedBeforeMoreInputEndsThereAndTheNextContinuesInPlace) {
    Samples sound = sweep(48000 * 4, 48000);
    const auto paths = writeCut(sound, 48000, {30011, 90017}, false); // closes at once, on the writing thread
    const Samples all = laidEndToEnd(paths);
    const Samples expected = sweep(all[0].size(), 44100);
    EXPECT_EQ(all[0].size(), 44100u * 4);
    const auto seam = std::size_t(30011.0 * 44100 / 48000);
    EXPECT_GT(signalToError(expected[0], all[0], 1000, seam - 500), 80);
    EXPECT_GT(signalToError(expected[0], all[0], seam + 500, seam + 40000), 80);
}

TEST_F(Cuts, FewFramesBehindACutGoToTheNextFile) {
    Samples sound = sweep(48000 * 2, 48000);
    auto first = newWriter(at(u"1.wav"_s), kAudioFileWAVEType, waveFormat(), clientFormat(48000));
    const auto put = [&](ExtAudioFileWriter& writer, std::size_t from, std::size_t to) {
        BufferList list(sound, from, to - from);
        EXPECT_EQ(writer.writeAsync(std::uint32_t(to - from), list.get()), noErr);
    };
    put(*first, 0, 40000);
    auto second = newWriter(at(u"2.wav"_s), kAudioFileWAVEType, waveFormat(), clientFormat(48000));
    EXPECT_EQ(second->continueFrom(*first), noErr);
    put(*second, 40000, 40200); // too few for the converter to output the end of the first file
    EXPECT_EQ(first->dispose(), noErr);
    put(*second, 40200, 96000);
    EXPECT_EQ(second->dispose(), noErr);
    const Samples all = laidEndToEnd({at(u"1.wav"_s), at(u"2.wav"_s)});
    ASSERT_EQ(all[0].size(), 88200u);
    const Samples expected = sweep(88200, 44100);
    const auto cut = std::size_t(40000.0 * 44100 / 48000);
    EXPECT_GT(signalToError(expected[0], all[0], 1000, cut), 50);
    EXPECT_GT(signalToError(expected[0], all[0], cut, cut + 100), 20);
    EXPECT_GT(signalToError(expected[0], all[0], cut + 700, 87000), 80);
}

TEST_F(Cuts, RefuseAFormatOfAnotherKindAndASecondSuccessor) {
    Samples sound = tones(1000);
    auto first = newWriter(at(u"1.wav"_s), kAudioFileWAVEType, waveFormat(), clientFormat());
    writeAll(*first, sound, 512, true);
    auto other = newWriter(at(u"2.wav"_s), kAudioFileWAVEType, waveFormat(), clientFormat(48000));
    EXPECT_NE(other->continueFrom(*first), noErr);
    auto second = newWriter(at(u"3.wav"_s), kAudioFileWAVEType, waveFormat(), clientFormat());
    EXPECT_EQ(second->continueFrom(*first), noErr);
    auto third = newWriter(at(u"4.wav"_s), kAudioFileWAVEType, waveFormat(), clientFormat());
    EXPECT_NE(third->continueFrom(*first), noErr);
    BufferList list(sound, 0, 100);
    EXPECT_NE(first->writeAsync(100, list.get()), noErr); // its frames go to the successor now
}

namespace {

struct Mixes : GrowingFiles {
    Platform::Result<> mix(const QString& first, const QString& second, const QString& out,
                           Movie::TrackTiming timing = {}) {
        const auto movie = media().openMovie(first).valueOr(nullptr);
        const auto other = media().openMovie(second).valueOr(nullptr);
        EXPECT_TRUE(movie && other);
        EXPECT_TRUE(movie->insertSoundTrackOf(*other));
        EXPECT_EQ(movie->soundTracks(), 2);
        movie->setTiming(1, timing);
        return movie->writeWave(out, {});
    }
};

} // namespace

TEST_F(Mixes, ContainTheSumOfBothForTheLengthOfTheLonger) {
    const Samples a = tones(100000);
    const Samples b = sweep(150000, 44100);
    writeFile(at(u"a.wav"_s), kAudioFileWAVEType, a);
    writeFile(at(u"b.wav"_s), kAudioFileWAVEType, b);
    EXPECT_TRUE(mix(at(u"a.wav"_s), at(u"b.wav"_s), at(u"sum.wav"_s)));
    const auto sum = readFile(at(u"sum.wav"_s));
    ASSERT_EQ(sum.length, 150000);
    for (std::size_t c = 0; c < 2; ++c) {
        std::vector<float> expected = b[c];
        for (std::size_t i = 0; i < a[c].size(); ++i)
            expected[i] += a[c][i];
        EXPECT_GT(signalToError(expected, sum.rows[c]), 130);
    }
}

TEST_F(Mixes, NeverWrapAround) {
    Samples loud(2, std::vector<float>(50000, 0.9f));
    loud[1].assign(50000, -0.9f);
    writeFile(at(u"a.wav"_s), kAudioFileWAVEType, loud);
    EXPECT_TRUE(mix(at(u"a.wav"_s), at(u"a.wav"_s), at(u"sum.wav"_s)));
    const auto sum = readFile(at(u"sum.wav"_s));
    EXPECT_TRUE(std::ranges::all_of(sum.rows[0], [](float v) { return v > 0.89f; }));
    EXPECT_TRUE(std::ranges::all_of(sum.rows[1], [](float v) { return v < -0.89f; }));
}

TEST_F(Mixes, ShiftAndResampleATrackOfAnotherClock) {
    // The second source's clock ran 100 ppm fast and started 0.25 s late: its file has more frames than the elapsed
    // time.
    constexpr double speed = 1.0001;
    const std::size_t frames = 44100 * 20;
    Samples silence(2, std::vector<float>(1000));
    writeFile(at(u"a.wav"_s), kAudioFileWAVEType, silence);
    writeFile(at(u"b.wav"_s), kAudioFileWAVEType, sweep(frames, 44100 * speed));
    EXPECT_TRUE(mix(at(u"a.wav"_s), at(u"b.wav"_s), at(u"sum.wav"_s), {0.25, speed}));
    const auto sum = readFile(at(u"sum.wav"_s));
    EXPECT_NEAR(double(sum.length), 11025 + double(frames) / speed, 1);
    const Samples expected = sweep(frames, 44100);
    std::vector<float> moved(sum.rows[0].begin() + 11025, sum.rows[0].end());
    EXPECT_GT(signalToError(expected[0], moved, 2000, 40000), 70);
    EXPECT_GT(signalToError(expected[0], moved, moved.size() - 40000, moved.size() - 2000), 70);
}

TEST_F(Mixes, ReportADamagedPlaceOfATrack) {
    writeFile(at(u"a.m4a"_s), kAudioFileM4AType, tones(400000));
    writeFile(at(u"b.m4a"_s), kAudioFileM4AType, tones(400000));
    const auto movie = media().openMovie(at(u"a.m4a"_s)).valueOr(nullptr);
    ASSERT_TRUE(movie->insertSoundTrackOf(*media().openMovie(at(u"b.m4a"_s)).valueOr(nullptr)));
    EXPECT_TRUE(movie->writeWave(at(u"sum.wav"_s), {}));
    EXPECT_FALSE(movie->readError());
    QFile damaged(at(u"b.m4a"_s));
    ASSERT_TRUE(damaged.open(QIODevice::ReadWrite));
    damaged.seek(damaged.size() / 2);
    damaged.write(QByteArray(2000, '\xff'));
    damaged.close();
    EXPECT_TRUE(movie->writeWave(at(u"sum.wav"_s), {})) << "what can be read is mixed";
    EXPECT_EQ(movie->readError().kind, Error::Kind::Damaged);
    EXPECT_TRUE(movie->readError().text.contains(u"b.m4a"_s)) << qPrintable(movie->readError().text);
    EXPECT_EQ(readFile(at(u"sum.wav"_s)).length, 400000);
}

TEST_F(Mixes, StopOnRequestAndLeaveNothing) {
    writeFile(at(u"a.wav"_s), kAudioFileWAVEType, tones(400000));
    const auto movie = media().openMovie(at(u"a.wav"_s)).valueOr(nullptr);
    EXPECT_NEAR(movie->duration(), 400000 / 44100.0, 1e-9);
    std::vector<double> shares;
    const auto stopped = movie->writeWave(at(u"sum.wav"_s), [&](double share) {
        shares.push_back(share);
        return shares.size() < 3;
    });
    EXPECT_EQ(stopped.error().kind, Error::Kind::Cancelled);
    EXPECT_EQ(shares.size(), 3u);
    EXPECT_TRUE(std::ranges::is_sorted(shares));
    EXPECT_FALSE(QFile::exists(at(u"sum.wav"_s)));
    EXPECT_EQ(movie->writeWave(at(u"missing/sum.wav"_s), {}).error().kind, Error::Kind::NotFound);
}

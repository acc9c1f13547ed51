// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The real program records a media player that plays an album without gaps: a private sound server, the real driver, a
// private bus.
#include "Platform/Media/BasicID3Change.h"
#include "tests/CommandLine/RecordServerFixture.h"
#include "tests/support/BusMonitor.h"
#include "tests/support/PrivateBus.h"
#include "tests/support/ScriptedPlayer.h"

#include <QElapsedTimer>
#include <QImage>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

using Platform::BasicID3Change;

namespace {

/// An album of tones that follow each other without a gap, and a player that names them.
class RecordTracks : public RecordServer {
protected:
    static constexpr std::array<double, 5> Pitches{1000, 2500, 4500, 7000, 10000};
    /// The frames at which the tracks begin, and the last one ends: nowhere near the borders of blocks.
    static constexpr std::array<std::uint64_t, 6> Borders{0, 110003, 230119, 341011, 460777, 560003};
    static constexpr double FileRate = 44100;

    RecordTracks() {
        driver_.start(QStringLiteral(SONAPHEX_BIN_DIR "/Resources/ComputerAudioCapture.kext/CaptureDriver"),
                      QStringList());
        EXPECT_TRUE(Platform::PipeWire::serverIsThere(30000, true, "korvane.system-audio"));
    }
    ~RecordTracks() override {
        driver_.terminate();
        driver_.waitForFinished();
    }

    static TestSource::Options album(std::uint32_t block) {
        TestSource::Options options{.name = "test.album", .description = "test.album", .cycle = block};
        options.sample = [](std::uint64_t frame, std::uint32_t) {
            const auto* next = std::upper_bound(Borders.begin(), Borders.end(), frame);
            if (next == Borders.end())
                return 0.0F;
            return Signal::tone(frame, Pitches[std::size_t(next - Borders.begin()) - 1], 48000, 0.25);
        };
        return options;
    }
    QVariantMap track(std::size_t number, const QString& cover = {}) const {
        return ScriptedPlayer::track(u"/track/%1"_s.arg(number), u"Title %1"_s.arg(number), u"Artist %1"_s.arg(number),
                                     u"Album"_s, double(Borders[number + 1] - Borders[number]) / 48000, cover);
    }
    /// A picture of one colour, different for each track.
    QString cover(std::size_t number) const {
        const QString path = dir_.filePath(u"cover %1.png"_s.arg(number));
        QImage image(64, 64, QImage::Format_RGB32);
        image.fill(QColor(int(number) * 40, 100, 200));
        EXPECT_TRUE(image.save(path));
        return path;
    }
    /// Level of a tone in 5 ms, in dB below full scale.
    static double levelOf(const std::vector<float>& samples, std::size_t from, double pitch) {
        constexpr std::size_t length = 220;
        double sine = 0;
        double cosine = 0;
        for (std::size_t i = 0; i < length && from + i < samples.size(); ++i) {
            const double angle = 2 * std::numbers::pi * pitch * double(i) / FileRate;
            sine += double(samples[from + i]) * std::sin(angle);
            cosine += double(samples[from + i]) * std::cos(angle);
        }
        return 20 * std::log10(std::max(2 * std::hypot(sine, cosine) / double(length), 1e-9));
    }
    /// Milliseconds at the beginning (or the end) of a file in which another tone is louder than its own.
    static double strange(const std::vector<float>& samples, double own, double other, bool atEnd) {
        constexpr std::size_t step = 44;
        int steps = 0;
        for (std::size_t at = 0; at + 220 < samples.size() / 2; at += step, ++steps) {
            const std::size_t from = atEnd ? samples.size() - 220 - at : at;
            if (levelOf(samples, from, own) > levelOf(samples, from, other))
                break;
        }
        return steps * 1000.0 * step / FileRate;
    }

    struct Result {
        QStringList files;
        QByteArray errors;
        double late = 1e9; ///< milliseconds by which a message of the test may have been late
        /// Whether the attempt counts. Only the test's own messages decide that, never what the program made of them.
        [[nodiscard]] bool isPunctual() const { return late <= LatestMessage; }
    };
    /// The largest delay of the test's own messages, in milliseconds, in an attempt that counts. A border may be 30 ms
    /// off, of which the blocks of the player and of the program take up to 21.
    static constexpr double LatestMessage = 8;
    /// Attempts until the test itself is in time. The first one that counts decides.
    static constexpr int MostAttempts = 8;

    /// Repeats attempts in which the test was late, and returns the first one that counts.
    static Result firstPunctual(const std::function<Result()>& attempt) {
        Result result;
        for (int i = 0; i < MostAttempts && !result.isPunctual(); ++i)
            result = attempt();
        EXPECT_TRUE(result.isPunctual()) << "the test was late in every attempt: this machine is too busy for it";
        return result;
    }
    /// Milliseconds since the test last looked where the player is.
    [[nodiscard]] double sinceLook() const { return double(lastLook_.nsecsElapsed()) / 1e6; }

    /// Records the album. @p announce is called with each track's number when the player passes on its first frame.
    Result recordAlbum(const QStringList& options, ScriptedPlayer& player, std::uint32_t block,
                       const std::function<void(std::size_t)>& announce,
                       const std::function<void(std::uint64_t)>& later = {}) {
        BusMonitor monitor(bus_.address());
        QProcess process;
        process.start(QStringLiteral(SONAPHEX_PROGRAM),
                      QStringList{u"record"_s, u"--input"_s, u"none"_s, u"--computer"_s, u"--folder"_s, folder_,
                                  u"--filter"_s, u"off"_s, u"--split"_s, u"off"_s} +
                          options);
        const bool isWatched = !options.isEmpty();
        announce(0);
        player.setStatus(u"Playing"_s);
        EXPECT_TRUE(waitFor([&] {
            return isWatched ? player.questions >= 2 : !filesBelow(tmp_).filter(u".m4a"_s).isEmpty();
        })) << process.readAllStandardError().toStdString();
        TestPlayer sound(album(block));
        EXPECT_TRUE(sound.start());
        std::size_t number = 0;
        staleAnswer_ = 0;
        double longestLook = 0;
        lastLook_.start();
        EXPECT_TRUE(waitFor([&] {
            QElapsedTimer look;
            look.start();
            const std::uint64_t position = sound.position();
            const std::size_t sentBefore = player.sentAt.size();
            if (number + 1 < Pitches.size() && position >= Borders[number + 1])
                announce(++number);
            if (later)
                later(position);
            // What is sent now was due at any time since the last look.
            if (player.sentAt.size() != sentBefore)
                longestLook = std::max(longestLook, sinceLook());
            lastLook_ = look;
            return position >= Borders.back() || std::max(longestLook, staleAnswer_) > LatestMessage;
        }));
        const double staleAnswer = staleAnswer_; // answers after the album do not count
        player.setStatus(u"Stopped"_s);
        ::kill(pid_t(process.processId()), SIGINT);
        EXPECT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitCode(), 0);
        Result result{QString::fromUtf8(process.readAllStandardOutput().trimmed()).split(u'\n'),
                      process.readAllStandardError()};
        const double way = monitor.longestWay(player.sentAt);
        result.late = std::max({longestLook, staleAnswer, way});
        std::printf("late by at most: %.1f ms until announced, %.1f ms on the bus, %.1f ms in answers\n", longestLook,
                    way, staleAnswer);
        return result;
    }
    /// The farthest border from the change of the tone, in milliseconds; every border is printed.
    static double worstBorder(const QStringList& files) {
        double worst = files.size() == qsizetype(Pitches.size()) ? 0 : 1e9;
        std::string all;
        for (std::size_t i = 0; i < std::size_t(files.size()) && worst < 1e9; ++i) {
            const auto decoded = AudioCheck::decodedByFfmpeg(files[qsizetype(i)]);
            if (decoded.size() != 2)
                return 1e9;
            const double early = i == 0 ? 0 : strange(decoded[0], Pitches[i], Pitches[i - 1], false);
            const double late = i + 1 == Pitches.size() ? 0 : strange(decoded[0], Pitches[i], Pitches[i + 1], true);
            worst = std::max({worst, early, late});
            all += " -" + std::to_string(int(early)) + " +" + std::to_string(int(late));
        }
        std::printf("borders (ms before and after the change):%s\n", all.c_str());
        return worst;
    }

    PrivateBus bus_{dir_.path()};
    EnvironmentScope bus_address_{"DBUS_SESSION_BUS_ADDRESS", bus_.address().toUtf8()};
    QProcess driver_;
    QElapsedTimer lastLook_;
    double staleAnswer_ = 0; ///< milliseconds by which an answer about the position was late
};

TEST_F(RecordTracks, AnAlbumWithoutGapsBecomesOneTaggedFileForEachTrack) {
    // The last two covers: inside the address, and no picture at all.
    QStringList covers;
    for (std::size_t i = 0; i < 3; ++i)
        covers << QUrl::fromLocalFile(cover(i)).toString(QUrl::FullyEncoded);
    QFile inside(cover(3));
    ASSERT_TRUE(inside.open(QIODevice::ReadOnly));
    covers << u"data:image/png;base64,"_s + QString::fromLatin1(inside.readAll().toBase64());
    QFile broken(dir_.filePath(u"broken.png"_s));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly) && broken.write("no picture") > 0);
    broken.close();
    covers << QUrl::fromLocalFile(broken.fileName()).toString();

    for (const std::uint32_t block : {1024U, 12000U}) {
        const Result result = firstPunctual([&] {
            ScriptedPlayer player(bus_.address(), u"album"_s);
            EXPECT_TRUE(player.isRegistered());
            player.rootProperties[u"Identity"_s] = u"test.album"_s;
            return recordAlbum({u"--titles"_s, u"--cut-at-tracks"_s}, player, block, [&](std::size_t number) {
                player.setTrack(track(number, covers.value(qsizetype(number))));
            });
        });
        ASSERT_EQ(result.files.size(), 5) << result.errors.toStdString();
        EXPECT_LE(worstBorder(result.files), 30) << "blocks of " << block;
        for (std::size_t i = 0; i < 5; ++i) {
            const auto tags = BasicID3Change::read(result.files[qsizetype(i)]);
            ASSERT_TRUE(tags);
            EXPECT_EQ(tags->title, u"Title %1"_s.arg(i));
            EXPECT_EQ(tags->artist, u"Artist %1"_s.arg(i));
            EXPECT_EQ(tags->album, u"Album"_s);
            EXPECT_TRUE(QFileInfo(result.files[qsizetype(i)]).fileName().startsWith(u"Track"_s));
            if (i == 4) {
                EXPECT_TRUE(tags->artwork.isEmpty()) << "a broken picture is left out";
                continue;
            }
            const QImage picture = QImage::fromData(tags->artwork);
            ASSERT_FALSE(picture.isNull());
            EXPECT_EQ(picture.pixelColor(10, 10), QColor(int(i) * 40, 100, 200));
        }
        EXPECT_TRUE(result.errors.contains("gets no cover")) << result.errors.toStdString();
    }
}

TEST_F(RecordTracks, TracksThatAreNamedLateHaveTheirTitlesAndBorders) {
    const Result result = firstPunctual([&] {
        ScriptedPlayer player(bus_.address(), u"album"_s);
        std::size_t current = 0;
        std::uint64_t nameAt = 0;
        // Another track at once, still with the old title; its own title follows 0.6 s later.
        const auto change = [&](std::size_t number) {
            current = number;
            QVariantMap data = track(number == 0 ? 0 : number - 1);
            data[u"mpris:trackid"_s] = QVariant::fromValue(QDBusObjectPath(u"/track/%1"_s.arg(number)));
            player.setTrack(data);
            nameAt = Borders[number] + 28800;
        };
        const auto name = [&](std::uint64_t position) {
            if (nameAt == 0 || position < nameAt)
                return;
            nameAt = 0;
            player.setTrack(track(current));
        };
        return recordAlbum({u"--titles"_s, u"--cut-at-tracks"_s}, player, 1024, change, name);
    });
    ASSERT_EQ(result.files.size(), 5) << result.errors.toStdString();
    EXPECT_LE(worstBorder(result.files), 30);
    for (std::size_t i = 0; i < 5; ++i)
        EXPECT_EQ(BasicID3Change::read(result.files[qsizetype(i)]).valueOr({}).title, u"Title %1"_s.arg(i));
}

TEST_F(RecordTracks, MessagesThatComeLateAreCorrectedByThePosition) {
    const Result result = firstPunctual([&] {
        ScriptedPlayer player(bus_.address(), u"album"_s);
        std::size_t current = 0;
        std::uint64_t now = 0;
        player.position = [&] {
            staleAnswer_ = std::max(staleAnswer_, sinceLook()); // `now` is as old as the last look
            return double(now - std::min(now, Borders[current])) / 48000;
        };
        std::optional<std::size_t> waits;
        const auto change = [&](std::size_t number) {
            if (number == 0)
                player.setTrack(track(0));
            else
                waits = number;
        };
        const auto tell = [&](std::uint64_t position) {
            now = position;
            if (!waits || position < Borders[*waits] + 7200) // 150 ms
                return;
            current = *waits;
            waits.reset();
            player.setTrack(track(current));
        };
        return recordAlbum({u"--titles"_s, u"--cut-at-tracks"_s}, player, 1024, change, tell);
    });
    ASSERT_EQ(result.files.size(), 5) << result.errors.toStdString();
    EXPECT_LE(worstBorder(result.files), 30);
}

TEST_F(RecordTracks, WithoutThePreferencesNothingChangesAndNoPlayerIsAsked) {
    ScriptedPlayer player(bus_.address(), u"album"_s);
    const auto result =
        recordAlbum({}, player, 1024, [&](std::size_t number) { player.setTrack(track(number, cover(number))); });
    ASSERT_EQ(result.files.size(), 1) << result.errors.toStdString();
    EXPECT_EQ(player.questions, 0);
    const auto tags = BasicID3Change::read(result.files.front());
    ASSERT_TRUE(tags);
    EXPECT_EQ(tags->title, QFileInfo(result.files.front()).completeBaseName());
    EXPECT_EQ(tags->artist, u"NO Artist"_s);
    EXPECT_EQ(tags->artwork, QByteArray());
}

} // namespace

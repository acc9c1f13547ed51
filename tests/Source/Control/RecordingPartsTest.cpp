// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Recordings cut at their silences: the parts are the recording, the cuts lie where another program hears the silences,
// and joining the parts gives the recording back.
#include "Source/Control/RecordingParts.h"
#include "Source/Control/SilenceFinder.h"
#include "tests/Platform/Media/MediaTestSupport.h"
#include "tests/Source/Control/EditFixture.h"
#include "tests/fakes/FakeClock.h"

#include <algorithm>
#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr double kRate = 44100;
constexpr double kShortestSilence = 0.4; ///< seconds
constexpr std::int64_t kCutWindow = 3072;

/// A stretch of frames.
struct Stretch {
    std::int64_t first = 0;
    std::int64_t end = 0;
};

class Parts : public EditFixture {
protected:
    Parts() { Platform::services().clock = &clock_; }

    /// A recording of noise with digital silences of 0.5 s to 1.5 s between sounds of 0.7 s to 3 s, and some silences
    /// that are too short for the rule.
    QString record(const QString& name, unsigned seed) {
        std::mt19937 random(seed);
        std::uniform_real_distribution<float> noise(-0.4F, 0.4F);
        const auto between = [&](double least, double most) {
            return std::size_t(std::uniform_real_distribution<double>(least, most)(random) * kRate);
        };
        MediaTest::Samples sound(2);
        const auto add = [&](std::size_t frames, bool silent) {
            for (std::size_t i = 0; i < frames; ++i)
                for (auto& plane : sound)
                    plane.push_back(silent ? 0.0F : noise(random));
        };
        const int sounds = 2 + int(random() % 4);
        for (int i = 0; i < sounds; ++i) {
            add(between(0.7, 3), false);
            if (random() % 2 == 0) {
                add(between(0.1, 0.3), true);
                add(between(0.7, 1), false);
            }
            if (i + 1 < sounds)
                add(between(0.5, 1.5), true);
        }
        MediaTest::writeFile(at(name), kAudioFileM4AType, std::move(sound));
        return at(name);
    }

    /// Where sox hears sound: between silences of the same length below the same level.
    [[nodiscard]] std::vector<Stretch> soundsBySox(const QString& path) const {
        const QString wave = at(u"whole.wav"_s);
        EXPECT_EQ(
            MediaTest::tool(u"ffmpeg"_s, {u"-v"_s, u"error"_s, u"-y"_s, u"-i"_s, path, u"-c:a"_s, u"pcm_s16le"_s, wave})
                .status,
            0);
        EXPECT_EQ(MediaTest::tool(u"sox"_s, {wave, at(u"sound.wav"_s), u"silence"_s, u"1"_s, u"0"_s, u"-60d"_s, u"1"_s,
                                             QString::number(kShortestSilence), u"-60d"_s, u":"_s, u"newfile"_s, u":"_s,
                                             u"restart"_s})
                      .status,
                  0);
        const auto whole = MediaTest::readFile(wave).rows[0];
        std::vector<Stretch> sounds;
        auto from = whole.begin();
        for (const QString& name : QDir(at({})).entryList({u"sound*.wav"_s}, QDir::Files, QDir::Name)) {
            const auto piece = MediaTest::readFile(at(name)).rows[0];
            QFile::remove(at(name));
            constexpr std::ptrdiff_t mark = 512; // the noise of no other place begins like this one
            if (piece.size() < 2 * mark)
                continue;
            const auto place = std::search(from, whole.end(), piece.begin() + mark, piece.begin() + 2 * mark);
            EXPECT_NE(place, whole.end());
            if (place == whole.end())
                break;
            const std::int64_t first = place - whole.begin() - mark;
            sounds.push_back({first, first + std::int64_t(piece.size())});
            from = place;
        }
        return sounds;
    }

    static MediaTest::Samples endToEnd(const QStringList& paths) {
        MediaTest::Samples all(2);
        for (const QString& path : paths) {
            const auto part = MediaTest::readFile(path).rows;
            for (std::size_t channel = 0; channel < all.size(); ++channel)
                all[channel].insert(all[channel].end(), part[channel].begin(), part[channel].end());
        }
        return all;
    }
    /// Frames that differ outside the window around each cut, and those inside.
    static std::pair<int, int> differences(const MediaTest::Samples& one, const MediaTest::Samples& other,
                                           const std::vector<std::int64_t>& cuts) {
        std::pair<int, int> count;
        for (std::size_t i = 0; i < std::min(one[0].size(), other[0].size()); ++i) {
            if (one[0][i] == other[0][i] && one[1][i] == other[1][i])
                continue;
            const bool inWindow = std::any_of(cuts.begin(), cuts.end(), [&](std::int64_t cut) {
                return std::abs(std::int64_t(i) - cut) <= kCutWindow / 2;
            });
            ++(inWindow ? count.second : count.first);
        }
        return count;
    }

    FakeClock clock_;
};

constexpr unsigned kSeedsAtOnce = 10;

/// Recordings of some seeds, beginning with the parameter.
class RandomParts : public Parts, public testing::WithParamInterface<unsigned> {};

} // namespace

TEST_P(RandomParts, AreTheRecordings) {
    std::size_t cutsOfAll = 0;
    for (unsigned seed = GetParam(); seed < GetParam() + kSeedsAtOnce; ++seed) {
        SCOPED_TRACE(seed);
        const QString path = record(u"One.m4a"_s, seed);
        const auto found = SilenceFinder::find(path, {kShortestSilence, -60});
        ASSERT_TRUE(found) << qPrintable(found.error().text);
        const auto cuts = SilenceFinder::cuts(*found);
        cutsOfAll += cuts.size();

        const auto sounds = soundsBySox(path);
        ASSERT_EQ(sounds.size(), cuts.size() + 1) << "as many sounds as parts";
        for (std::size_t i = 0; i < cuts.size(); ++i) {
            EXPECT_GE(cuts[i], sounds[i].end);
            EXPECT_LE(cuts[i], sounds[i + 1].first);
            // sox measures windows of 20 ms, so it hears the begin and the end of a silence a little elsewhere.
            EXPECT_NEAR(double(cuts[i]), double(sounds[i].end + sounds[i + 1].first) / 2, 0.025 * kRate);
        }

        const QStringList paths = RecordingParts::partPaths(path, at({}), cuts.size() + 1);
        const auto parts = RecordingParts::split(path, cuts, paths);
        ASSERT_TRUE(parts) << qPrintable(parts.error().text);
        const auto whole = MediaTest::readFile(path).rows;
        const auto together = endToEnd(paths);
        ASSERT_EQ(together[0].size(), whole[0].size());
        const auto [outside, inside] = differences(whole, together, cuts);
        EXPECT_EQ(outside, 0) << "frames differ that are not at a cut";
        EXPECT_EQ(inside, 0) << "frames differ at a cut";

        const auto joined = RecordingParts::join(paths, at(u"All.m4a"_s));
        ASSERT_TRUE(joined) << qPrintable(joined.error().text);
        EXPECT_EQ(joined->seconds, double(whole[0].size()) / kRate);
        EXPECT_TRUE(MediaTest::readFile(at(u"All.m4a"_s)).rows == whole) << "the join of the parts";
        for (const QString& each : paths + QStringList{at(u"All.m4a"_s)})
            QFile::remove(each);
    }
    EXPECT_GT(cutsOfAll, 10U);
}

// Fifty recordings.
INSTANTIATE_TEST_SUITE_P(Of, RandomParts, testing::Values(1U, 11U, 21U, 31U, 41U));

TEST_F(Parts, GetTheTitlesThatWereTyped) {
    const QString path = record(u"One.m4a"_s, 1);
    const auto all = std::int64_t(MediaTest::readFile(path).rows[0].size());
    const std::vector<std::int64_t> cuts{all / 3, all / 2};
    const auto parts =
        RecordingParts::split(path, cuts, RecordingParts::partPaths(path, at({}), 3), {}, {{}, u"Rain 100%1/2"_s, {}});
    ASSERT_TRUE(parts) << qPrintable(parts.error().text);
    EXPECT_EQ(Mpeg4Files::probe(at(u"One 1.m4a"_s))[u"title"_s].toString(), u"One 1"_s);
    EXPECT_EQ(Mpeg4Files::probe(at(u"One 2.m4a"_s))[u"title"_s].toString(), u"Rain 100%1/2"_s);
    const Dictionary entry = RecordingParts::entryOf(parts->at(1));
    EXPECT_EQ(entry.value(AudioRecordEntry::Title).toString(), u"Rain 100%1/2"_s);
    EXPECT_NEAR(entry.value(AudioRecordEntry::Length).toDouble(), double(all / 2 - all / 3) / kRate, 0.001);
    EXPECT_FALSE(entry.value(AudioRecordEntry::AddDate).toString().isEmpty());
}

TEST_F(Parts, FindNamesThatAreFree) {
    const QString path = at(u"Rain.m4a"_s);
    EXPECT_EQ(RecordingParts::freePartPaths(path, at(u"x"_s), 2),
              (QStringList{at(u"x/Rain 1.m4a"_s), at(u"x/Rain 2.m4a"_s)}));
    ASSERT_TRUE(Mpeg4Files::write(at(u"Rain 2.m4a"_s), "another"));
    ASSERT_TRUE(QFile::link(at(u"nowhere"_s), at(u"Rain (2) 1.m4a"_s)));
    const QString folder = QFileInfo(path).path();
    EXPECT_EQ(RecordingParts::freePartPaths(path, folder, 2),
              (QStringList{at(u"Rain (3) 1.m4a"_s), at(u"Rain (3) 2.m4a"_s)}));
    EXPECT_EQ(RecordingParts::joinedPath(path), at(u"Rain joined.m4a"_s));
    ASSERT_TRUE(Mpeg4Files::write(at(u"Rain joined.m4a"_s), "another"));
    EXPECT_EQ(RecordingParts::joinedPath(path), at(u"Rain joined 2.m4a"_s));
}

TEST_F(Parts, ACancelledSplitAndJoinWriteNothing) {
    const QString path = record(u"One.m4a"_s, 2);
    const auto all = std::int64_t(MediaTest::readFile(path).rows[0].size());
    int calls = 0;
    const auto stop = [&](double) { return ++calls < int(all / 1024 / 2); }; // in the second part
    const auto parts = RecordingParts::split(path, {all / 4}, RecordingParts::partPaths(path, at({}), 2), stop);
    ASSERT_FALSE(parts);
    EXPECT_EQ(parts.error().kind, Platform::Error::Kind::Cancelled);
    const auto joined = RecordingParts::join({path, path}, at(u"All.m4a"_s), [](double) { return false; });
    ASSERT_FALSE(joined);
    EXPECT_EQ(joined.error().kind, Platform::Error::Kind::Cancelled);
    EXPECT_EQ(files(), QStringList{u"One.m4a"_s});
}

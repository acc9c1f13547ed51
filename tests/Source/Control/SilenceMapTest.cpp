// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The silences at many levels that are found in one pass are those that the search for one rule finds.
#include "Source/Control/SilenceMap.h"
#include "Source/Control/LevelScan.h"
#include "tests/Platform/Media/MediaTestSupport.h"
#include "tests/Source/Control/EditFixture.h"

#include <cmath>
#include <limits>
#include <random>

using namespace Qt::StringLiterals;
using SilenceFinder::Silence;

namespace {

/// The silences of both planes below @p limit, frame by frame.
std::vector<Silence> slowly(const MediaTest::Samples& sound, float limit, std::int64_t shortest) {
    std::vector<Silence> found;
    std::int64_t since = 0;
    const auto frames = std::int64_t(sound[0].size());
    for (std::int64_t i = 0; i <= frames; ++i) {
        const auto at = std::size_t(i);
        if (i < frames && std::fabs(sound[0][at]) < limit && std::fabs(sound[1][at]) < limit)
            continue;
        if (i - since >= shortest)
            found.push_back({since, i});
        since = i + 1;
    }
    return found;
}

std::vector<Silence> silencesOf(const LevelScan& scan, std::size_t level, std::int64_t shortest) {
    if (scan.firstLoud(level) == scan.end())
        return scan.end() - scan.first() >= shortest ? std::vector{Silence{scan.first(), scan.end()}}
                                                     : std::vector<Silence>();
    std::vector<Silence> all;
    if (scan.firstLoud(level) - scan.first() >= shortest)
        all.push_back({scan.first(), scan.firstLoud(level)});
    all.insert(all.end(), scan.inside(level).begin(), scan.inside(level).end());
    if (scan.end() - scan.lastSilenceBegin(level) >= shortest)
        all.push_back({scan.lastSilenceBegin(level), scan.end()});
    return all;
}

/// Noise whose loudness changes at random, by steps and by slopes, with a few broken samples.
MediaTest::Samples restlessNoise(std::size_t frames, std::mt19937& random) {
    MediaTest::Samples sound(2, std::vector<float>(frames));
    std::uniform_real_distribution<float> noise(-1, 1);
    std::uniform_real_distribution<double> decibels(-110, 0);
    std::uniform_int_distribution<std::size_t> lengths(1, 4000);
    for (std::size_t i = 0; i < frames;) {
        const std::size_t end = std::min(frames, i + lengths(random));
        const double from = decibels(random);
        const double slope = random() % 3 == 0 ? (decibels(random) - from) / double(end - i) : 0;
        for (std::size_t begin = i; i < end; ++i) {
            const auto gain = float(std::pow(10.0, (from + slope * double(i - begin)) / 20));
            for (auto& plane : sound)
                plane[i] = gain * noise(random);
        }
    }
    sound[1][frames / 2] = std::numeric_limits<float>::quiet_NaN();
    sound[0][frames / 3] = -std::numeric_limits<float>::infinity();
    return sound;
}

class SilenceMaps : public EditFixture {
protected:
    /// A recording with silences of several levels and lengths.
    QString record(const QString& name, std::size_t frames, unsigned seed) {
        std::mt19937 random(seed);
        auto sound = MediaTest::tones(frames);
        std::uniform_int_distribution<std::size_t> sounds(2000, 60000);
        std::uniform_int_distribution<std::size_t> lengths(1000, 90000);
        for (std::size_t i = sounds(random); i < frames; i += sounds(random)) {
            const auto gain = float(std::pow(10.0, -double(random() % 100) / 20));
            for (const std::size_t end = std::min(frames, i + lengths(random)); i < end; ++i)
                for (auto& plane : sound)
                    plane[i] *= gain;
        }
        MediaTest::writeFile(at(name), kAudioFileM4AType, std::move(sound));
        return at(name);
    }
    static void compare(const QString& path) {
        const auto map = SilenceMap::read(path);
        ASSERT_TRUE(map) << qPrintable(map.error().text);
        std::size_t found = 0;
        for (const int level : {-90, -75, -60, -47, -33, -20})
            for (const double seconds : {0.1, 0.3, 1.0}) {
                const auto expected = SilenceFinder::find(path, {seconds, double(level)});
                ASSERT_TRUE(expected) << qPrintable(expected.error().text);
                const auto got = map->find({seconds, double(level)});
                EXPECT_TRUE(got.silences == expected->silences) << level << " dB, " << seconds << " s";
                EXPECT_EQ(got.frames, expected->frames);
                EXPECT_EQ(got.sampleRate, expected->sampleRate);
                if (double(expected->longest) >= 0.1 * expected->sampleRate) {
                    EXPECT_EQ(got.longest, expected->longest);
                }
                found += got.silences.size();
            }
        EXPECT_GT(found, 20U);
    }
};

} // namespace

TEST(LevelScans, FindWhatALookAtEachFrameFinds) {
    std::mt19937 random(7);
    const std::vector<float> limits{1e-5F, 1e-4F, 1e-3F, 0.01F, 0.05F, 0.3F, 1.0F};
    std::vector<LevelScan::Magnitude> magnitudes;
    for (const float limit : limits)
        magnitudes.push_back(LevelScan::magnitudeOf(limit));
    for (const std::int64_t shortest : {768, 800, 2205, 4410, 9000}) {
        const std::size_t frames = 150000 + random() % 1000;
        const auto sound = restlessNoise(frames, random);
        LevelScan scan(magnitudes, 0, shortest);
        for (std::size_t at = 0; at < frames;) {
            const std::size_t count = std::min<std::size_t>(frames - at, 1 + random() % 1500);
            scan.add(std::span(sound[0]).subspan(at, count), std::span(sound[1]).subspan(at, count));
            at += count;
        }
        scan.finish();
        EXPECT_EQ(scan.end(), std::int64_t(frames));
        for (std::size_t level = 0; level < limits.size(); ++level)
            EXPECT_TRUE(silencesOf(scan, level, shortest) == slowly(sound, limits[level], shortest))
                << limits[level] << ", " << shortest << " frames";
    }
}

TEST(LevelScans, OfNothingAndOfOnlySilence) {
    LevelScan empty({LevelScan::magnitudeOf(0.5F)}, 0, 1000);
    empty.finish();
    EXPECT_EQ(empty.end(), 0);
    LevelScan silent({LevelScan::magnitudeOf(0.5F)}, 10, 1000);
    const std::vector<float> zeros(5000);
    silent.add(zeros, zeros);
    silent.finish();
    EXPECT_EQ(silent.firstLoud(0), silent.end());
    EXPECT_EQ(silent.lastSilenceBegin(0), 10);
    EXPECT_TRUE(silent.inside(0).empty());
}

TEST_F(SilenceMaps, AgreeWithTheSearchOfOneRule) {
    compare(record(u"Short.m4a"_s, 30 * 44100 + 77, 1));
}

TEST_F(SilenceMaps, AgreeWhereTwoThreadsReadTheHalves) {
    // Long enough for two threads; a silence lies over the middle.
    constexpr std::size_t frames = 125 * 44100;
    const QString path = record(u"Long.m4a"_s, frames, 2);
    compare(path);
    auto sound = MediaTest::tones(frames);
    for (auto& plane : sound)
        std::fill(plane.begin() + frames / 2 - 50000, plane.begin() + frames / 2 + 70000, 0.0F);
    MediaTest::writeFile(at(u"Middle.m4a"_s), kAudioFileM4AType, sound);
    const auto map = SilenceMap::read(at(u"Middle.m4a"_s));
    ASSERT_TRUE(map);
    const auto expected = SilenceFinder::find(at(u"Middle.m4a"_s), {0.5, -60});
    ASSERT_TRUE(expected);
    ASSERT_EQ(expected->silences.size(), 1U);
    EXPECT_TRUE(map->find({0.5, -60}).silences == expected->silences);
    // Silent up to the end of the second half, and in all of the first.
    for (auto& plane : sound)
        std::fill(plane.begin(), plane.end() - 44100, 0.0F);
    MediaTest::writeFile(at(u"Late.m4a"_s), kAudioFileM4AType, sound);
    const auto late = SilenceMap::read(at(u"Late.m4a"_s));
    ASSERT_TRUE(late);
    EXPECT_TRUE(late->find({0.5, -60}).silences == SilenceFinder::find(at(u"Late.m4a"_s), {0.5, -60})->silences);
    EXPECT_EQ(late->find({0.5, -60}).silences.size(), 1U);
}

TEST_F(SilenceMaps, CanBeStopped) {
    const QString path = record(u"Short.m4a"_s, 30 * 44100, 3);
    const auto stopped = SilenceMap::read(path, [](double) { return false; });
    ASSERT_FALSE(stopped);
    EXPECT_EQ(stopped.error().kind, Platform::Error::Kind::Cancelled);
    EXPECT_FALSE(SilenceMap::read(at(u"none.m4a"_s)));
}

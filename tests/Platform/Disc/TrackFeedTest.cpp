// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Disc/TrackFeed.h"
#include "tests/Platform/Disc/DiscTestSupport.h"
#include "tests/fakes/FakeSourceFiles.h"

#include <future>

using namespace Qt::StringLiterals;
using namespace Platform;

namespace {

class TrackFeedTest : public testing::Test {
protected:
    ~TrackFeedTest() override { stalled = false; }
    /// A source that stops delivering frames, from a given frame on, while stalled is true.
    std::shared_ptr<DRTrack> track(const QString& name, double seconds, std::int64_t stallsAt = INT64_MAX) {
        const QString path = files.at(name);
        files.addSource(path, seconds, [this, stallsAt](int, std::int64_t frame) {
            while (frame >= stallsAt && stalled)
                std::this_thread::yield();
            return float(frame % 1000) / 32768;
        });
        return AudioTrack::open(files, path).valueOr(nullptr);
    }
    static bool takeSectors(TrackFeed& feed, std::int64_t sectors) {
        std::vector<std::byte> sector(2352);
        for (std::int64_t i = 0; i < sectors; ++i)
            if (!feed.take(sector))
                return false;
        return true;
    }

    FakeSourceFiles files;
    std::atomic<bool> stalled{true};
};

TEST_F(TrackFeedTest, DeliversTheTracksInOrderInWholeSectors) {
    const DRLayout layout{track(u"a"_s, 4.005), track(u"b"_s, 5)};
    TrackFeed feed(layout, 1 << 20); // less than both tracks
    ASSERT_TRUE(feed.fill());
    std::vector<std::byte> bytes(std::size_t((301 + 375) * 2352));
    for (std::size_t at = 0; at < bytes.size(); at += 2352)
        ASSERT_TRUE(feed.take(std::span(bytes).subspan(at, 2352)));
    std::byte more[2352];
    EXPECT_FALSE(feed.take(more)); // nothing follows
    EXPECT_FALSE(feed.error());
    const auto samples =
        DiscTest::samplesOf(QByteArray(reinterpret_cast<const char*>(bytes.data()), qsizetype(bytes.size())));
    for (std::size_t i = 0; i < 301U * 588; ++i)
        ASSERT_NEAR(samples[i * 2], i < 176621 ? double(i % 1000) : 0.0, i < 176621 ? 2 : 0) << i;
    for (std::size_t i = 0; i < 375U * 588; ++i)
        ASSERT_NEAR(samples[(301U * 588 + i) * 2], double(i % 1000), 2) << i;
}

// The ring supplies the fastest drive for five seconds while the sources deliver nothing.
TEST_F(TrackFeedTest, BridgesFiveSecondsWithoutDataFromTheSources) {
    for (const auto& [speed, times] : {std::pair(0.F, 52), std::pair(8467.F, 48), std::pair(706.F, 4)}) {
        stalled = true;
        const std::int64_t filled = std::int64_t(TrackFeed::bytesFor(speed) / 2352) + 150;
        TrackFeed feed({track(u"long"_s, 3000, filled * 588)}, TrackFeed::bytesFor(speed));
        ASSERT_TRUE(feed.fill());
        EXPECT_TRUE(takeSectors(feed, std::int64_t(times) * 75 * 5));
        EXPECT_EQ(feed.waits(), 0U) << times;
        stalled = false;
        EXPECT_TRUE(takeSectors(feed, 1000)); // and the feed continues
    }
    EXPECT_LE(TrackFeed::bytesFor(0), std::size_t(56) << 20);
}

TEST_F(TrackFeedTest, CancelReleasesAWaitingDrive) {
    TrackFeed feed({track(u"stuck"_s, 60, 0)}, 1 << 20);
    auto filled = std::async(std::launch::async, [&] { return feed.fill(); });
    feed.cancel();
    EXPECT_FALSE(filled.get());
    std::byte sector[2352];
    EXPECT_FALSE(feed.take(sector));
    stalled = false;
}

TEST_F(TrackFeedTest, NamesTheSourceThatFailed) {
    const DRLayout layout{track(u"good"_s, 5), track(u"bad"_s, 5)};
    files.sources[files.at(u"bad"_s)].failingRead = 2;
    TrackFeed feed(layout, 1 << 24);
    EXPECT_FALSE(feed.fill());
    EXPECT_TRUE(feed.error().text.startsWith(files.at(u"bad"_s))) << qPrintable(feed.error().text);
}

TEST(DitherTest, AddsTriangularNoiseThatDecorrelatesTheRoundingError) {
    constexpr std::size_t frames = 1 << 20;
    for (const float level : {0.F, 0.25F, 0.5F, 100.37F}) {
        const std::vector<float> row(frames, level / 32768);
        std::vector<std::int16_t> out(frames * 2);
        Dither(1).interleave(row.data(), row.data(), out.data(), frames, false);
        double sum = 0;
        double squares = 0;
        double together = 0;
        for (std::size_t i = 0; i < frames; ++i) {
            const double left = out[2 * i] - double(level);
            sum += left;
            squares += left * left;
            together += left * (out[2 * i + 1] - double(level));
        }
        EXPECT_NEAR(sum / frames, 0, 0.005) << level;       // the mean is that of the audio, also between two steps
        EXPECT_NEAR(squares / frames, 0.25, 0.01) << level; // and so is the noise: a quarter of a squared step
        EXPECT_NEAR(together / frames, 0, 0.005) << level;  // the noise of the channels is independent
    }
}

TEST(DitherTest, KeepsExactSamplesAndClips) {
    const std::vector<float> row{0, 1.F / 32768, -1.F / 32768, 32767.F / 32768, -1, 1, 1.5F, -1.5F};
    std::vector<std::int16_t> out(16);
    Dither(1).interleave(row.data(), row.data(), out.data(), 8, true);
    EXPECT_EQ(out, (std::vector<std::int16_t>{0, 0, 1, 1, -1, -1, 32767, 32767, -32768, -32768, 32767, 32767, 32767,
                                              32767, -32768, -32768}));
    std::vector<std::int16_t> all(65536 * 2);
    std::vector<float> every(65536);
    for (int i = 0; i < 65536; ++i)
        every[std::size_t(i)] = float(i - 32768) / 32768;
    Dither(1).interleave(every.data(), every.data(), all.data(), 65536, true);
    for (int i = 0; i < 65536; ++i)
        ASSERT_EQ(all[std::size_t(2 * i)], i - 32768);
}

} // namespace

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RingtoneMaker/AudioExtractWave.h"

#include "Platform/Audio/ClientFormat.h"
#include "Platform/Foundation/Services.h"
#include "RingtoneMaker/WaveImage.h"
#include "tests/fakes/FakeSourceFiles.h"
#include "tests/support/LogCatcher.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class AudioExtractWaveTest : public testing::Test {
protected:
    AudioExtractWaveTest() { Platform::services().mediaFiles = &files; }

    FakeSourceFiles::Source& addRamp(double seconds) {
        return files.addSource(path, seconds,
                               [](int channel, std::int64_t frame) { return channel ? -1.0F : float(frame); });
    }

    Platform::ServicesScope scope;
    FakeSourceFiles files;
    QTemporaryDir folder;
    QString path = folder.filePath(u"source.wav"_s);
    AudioExtractWave wave;
};

TEST_F(AudioExtractWaveTest, GivesThirtyValuesForThreeSecondsAndHalfATenth) {
    addRamp(3.05);
    ASSERT_TRUE(wave.openFile(path));
    EXPECT_EQ(wave.extractSamplePoint().size(), 30);
}

TEST_F(AudioExtractWaveTest, GivesNothingForLessThanATenth) {
    addRamp(0.09);
    ASSERT_TRUE(wave.openFile(path));
    EXPECT_TRUE(wave.extractSamplePoint().isEmpty());
}

TEST_F(AudioExtractWaveTest, TakesTheFirstLeftSampleOfTheBlockThatCompletesATenth) {
    addRamp(60);
    ASSERT_TRUE(wave.openFile(path));
    const auto points = wave.extractSamplePoint();
    ASSERT_EQ(points.size(), 600);
    for (int i = 0; i < points.size(); ++i) {
        const auto mark = 4410 * (i + 1);
        EXPECT_EQ(points[i], float((mark - 1) / 512 * 512)) << i;
    }
}

TEST_F(AudioExtractWaveTest, KeepsTheSignOfTheSamples) {
    files.addSource(path, 0.2, [](int, std::int64_t) { return -0.25F; });
    ASSERT_TRUE(wave.openFile(path));
    EXPECT_EQ(wave.extractSamplePoint(), (QList<float>{-0.25F, -0.25F}));
}

TEST_F(AudioExtractWaveTest, ReadsFromTheBeginInBlocksOf512FramesOfTheClientFormat) {
    auto& source = addRamp(1);
    ASSERT_TRUE(wave.openFile(path));
    (void)wave.extractSamplePoint();
    EXPECT_EQ(source.seeks, std::vector<std::int64_t>{0});
    EXPECT_EQ(source.asked, std::vector<std::uint32_t>(88, 512));
    EXPECT_EQ(source.clientFormat, clientFormat());
    EXPECT_EQ(source.firstList.mBuffers[0].mNumberChannels, 2U);
}

TEST_F(AudioExtractWaveTest, RefusesUnreadableFilesAndAFailingClientFormat) {
    EXPECT_FALSE(wave.openFile(path));
    EXPECT_TRUE(wave.error());
    EXPECT_TRUE(wave.extractSamplePoint().isEmpty());
    addRamp(1).clientFormatStatus = -50;
    EXPECT_FALSE(wave.openFile(path));
}

TEST_F(AudioExtractWaveTest, LogsAReadErrorAndContinues) {
    addRamp(1).failingRead = 5;
    ASSERT_TRUE(wave.openFile(path));
    LogCatcher log;
    EXPECT_EQ(wave.extractSamplePoint().size(), 10);
    EXPECT_EQ(log.lines(), QStringList{u"read Audio Data Error"_s});
}

TEST_F(AudioExtractWaveTest, FetchesTheSameValuesWithoutAFullRead) {
    for (const double seconds : {0.09, 0.1, 3.05, 61.234, 1300.0}) {
        auto& source = addRamp(seconds);
        source.sparse = false;
        ASSERT_TRUE(wave.openFile(path));
        const auto inFull = wave.extractSamplePoint();
        source.sparse = true;
        source.asked.clear();
        ASSERT_TRUE(wave.openFile(path));
        EXPECT_EQ(wave.extractSamplePoint(), inFull) << seconds;
        EXPECT_TRUE(source.asked.empty());
    }
}

TEST_F(AudioExtractWaveTest, ReadsAFileOfAnotherRateInFull) {
    auto& source = addRamp(1);
    source.sparse = true;
    source.rate = 48000;
    ASSERT_TRUE(wave.openFile(path));
    EXPECT_EQ(wave.extractSamplePoint().size(), 10);
    EXPECT_EQ(source.sparseCalls, 0);
}

TEST(WaveImage, IsNullForTenValuesOrFewer) {
    EXPECT_TRUE(WaveImage::draw(QList<float>(10, 0.5F)).isNull());
    EXPECT_FALSE(WaveImage::draw(QList<float>(11, 0.5F)).isNull());
}

TEST(WaveImage, DrawsOneCentredRedLinePerPoint) {
    QList<float> values(20, 0.0F);
    values[3] = 0.5F;
    values[4] = -0.5F;
    values[5] = 1.0F;
    values[6] = 7.0F;
    const auto picture = WaveImage::draw(values);
    ASSERT_EQ(picture.size(), QSize(20, 200));
    const QColor red(255, 0, 0);
    for (int x : {3, 4}) {
        EXPECT_EQ(picture.pixelColor(x, 49).alpha(), 0);
        EXPECT_EQ(picture.pixelColor(x, 50), red);
        EXPECT_EQ(picture.pixelColor(x, 149), red);
        EXPECT_EQ(picture.pixelColor(x, 150).alpha(), 0);
    }
    for (int x : {5, 6}) {
        EXPECT_EQ(picture.pixelColor(x, 0), red);
        EXPECT_EQ(picture.pixelColor(x, 199), red);
    }
    EXPECT_EQ(picture.pixelColor(10, 100).alpha(), 0);
}

TEST(WaveImage, SupportsMoreThanAnHour) {
    QList<float> values(40000, 0.0F);
    values[39999] = 1.0F;
    const auto picture = WaveImage::draw(values);
    EXPECT_EQ(picture.pixelColor(39999, 10), QColor(255, 0, 0));
    EXPECT_EQ(picture.pixelColor(39998, 10).alpha(), 0);
}

TEST(WaveImage, CanBeDrawnOnTheGreyOfTheStrip) {
    const auto ground = WaveImage::drawOnStrip(QList<float>(20, 0.0F)).pixelColor(5, 5);
    EXPECT_NEAR(ground.red(), 190, 1);
    EXPECT_NEAR(ground.alphaF(), 0.7, 0.01);
}

} // namespace

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Audio/ClientFormat.h"
#include "Platform/Foundation/Services.h"
#include "RingtoneMaker/AudioExtractWave.h"
#include "Source/Control/ConverterAudioControl.h"
#include "tests/Platform/Media/MediaTestSupport.h"
#include "tests/support/RunTool.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The engine with real files.
class ConverterFiles : public testing::Test {
protected:
    ConverterFiles() { Platform::services().mediaFiles = &MediaTest::media(); }

    [[nodiscard]] QString at(const QString& name) const { return folder.filePath(name); }

    /// Values that are exact in 24 bits and encode their frame number; the right channel differs.
    static MediaTest::Samples ramp(std::size_t frames) {
        MediaTest::Samples rows(2, std::vector<float>(frames));
        for (std::size_t i = 0; i < frames; ++i) {
            rows[0][i] = float(std::int32_t(i % 8000000) - 4000000) / 8388608.0F;
            rows[1][i] = 0.125F;
        }
        return rows;
    }
    /// All frames in the client format.
    static MediaTest::Samples read(const QString& path) {
        MediaTest::Samples rows(2);
        auto opened = MediaTest::media().openReader(path);
        EXPECT_TRUE(opened) << opened.error().text.toStdString();
        if (!opened)
            return rows;
        const auto reader = *std::move(opened);
        EXPECT_EQ(reader->setClientDataFormat(clientFormat()), noErr);
        MediaTest::Samples block(2, std::vector<float>(4096));
        for (;;) {
            MediaTest::BufferList list(block, 0, 4096);
            std::uint32_t frames = 4096;
            EXPECT_EQ(reader->read(frames, list.get()), noErr);
            if (frames == 0)
                return rows;
            for (int c = 0; c < 2; ++c)
                rows[c].insert(rows[c].end(), block[c].begin(), block[c].begin() + frames);
        }
    }
    bool convert(const QString& source, const QString& target, int type, float from = 0, float to = 0) {
        ConverterAudioControl converter;
        return converter.createOutPutFile(target, type) && converter.startConverterSource(source, from, to) &&
               !converter.exportError();
    }

    Platform::ServicesScope scope;
    QTemporaryDir folder;
    QString source = at(u"source.wav"_s);
    QString target = at(u"target"_s);
};

TEST_F(ConverterFiles, WritesTheLeftChannelExactlyIntoBothOfAWave) {
    const auto rows = ramp(100000);
    MediaTest::writeFile(source, kAudioFileWAVEType, rows);
    ASSERT_TRUE(convert(source, target + u".wav"_s, 0));
    const auto result = read(target + u".wav"_s);
    ASSERT_EQ(result[0].size(), 100000U);
    EXPECT_EQ(result[0], rows[0]);
    EXPECT_EQ(result[1], rows[0]);
    const auto info = MediaTest::media().info(target + u".wav"_s);
    ASSERT_TRUE(info);
    EXPECT_EQ(info->dataFormat.mBitsPerChannel, 32U);
    EXPECT_EQ(info->dataFormat.mSampleRate, 44100);
    EXPECT_EQ(info->dataFormat.mChannelsPerFrame, 2U);
    EXPECT_FALSE(info->dataFormat.mFormatFlags & kAudioFormatFlagIsFloat);
}

TEST_F(ConverterFiles, KeepsExactLengthsForOddPositions) {
    const auto rows = ramp(10 * 44100);
    MediaTest::writeFile(source, kAudioFileWAVEType, rows);
    for (const auto& [from, to] :
         {std::pair{0.0F, 0.05F}, {0.12345F, 3.33333F}, {1.00001F, 9.87654F}, {9.9999F, 0.0F}}) {
        ASSERT_TRUE(convert(source, target + u".wav"_s, 0, from, to));
        const auto first = std::size_t(44100.0 * double(from));
        std::size_t end = rows[0].size();
        if (to >= 0.1F) // whole blocks up to the end of the range
            end = first + (std::size_t(std::ceil(44100.0 * double(to))) - first + 511) / 512 * 512;
        const auto result = read(target + u".wav"_s);
        ASSERT_EQ(result[0].size(), end - first) << from << " to " << to;
        EXPECT_TRUE(std::equal(result[0].begin(), result[0].end(), rows[0].begin() + std::ptrdiff_t(first)));
    }
}

TEST_F(ConverterFiles, EveryOutputTypeHasItsContainerAndTheSourcesLength) {
    MediaTest::writeFile(source, kAudioFileWAVEType, MediaTest::tones(99999));
    const std::pair<int, const char*> types[] = {{0, "wav"}, {1, "m4a"}, {2, "caf"}, {3, "m4r"}};
    for (const auto& [type, suffix] : types) {
        const auto path = target + u'.' + QString::fromLatin1(suffix);
        ASSERT_TRUE(convert(source, path, type)) << suffix;
        const auto info = MediaTest::media().info(path);
        ASSERT_TRUE(info) << suffix;
        EXPECT_EQ(info->frameCount, 99999) << suffix;
        EXPECT_EQ(info->dataFormat.mFormatID, type == 0 ? kAudioFormatLinearPCM : kAudioFormatMPEG4AAC) << suffix;
    }
    QFile first(target + u".m4a"_s);
    QFile second(target + u".m4r"_s);
    ASSERT_TRUE(first.open(QIODevice::ReadOnly) && second.open(QIODevice::ReadOnly));
    EXPECT_EQ(first.size(), second.size()) << "type 3 is type 1";
}

TEST_F(ConverterFiles, RepeatsTheRangeInTheLastTenth) {
    const auto rows = ramp(30 * 44100);
    MediaTest::writeFile(source, kAudioFileWAVEType, rows);
    ConverterAudioControl converter;
    ASSERT_TRUE(converter.createOutPutFile(target + u".wav"_s, 0));
    ASSERT_TRUE(converter.startFadeInFadeOutConverterSource(source, 10, 20, 0, 0, 10));
    const auto result = read(target + u".wav"_s);
    ASSERT_EQ(result[0].size(), 862U * 512);
    EXPECT_TRUE(std::equal(result[0].begin(), result[0].begin() + 853 * 512, rows[0].begin() + 441000));
    EXPECT_TRUE(std::equal(result[0].begin() + 853 * 512, result[0].end(), rows[0].begin() + 441000));
}

TEST_F(ConverterFiles, ReadsFilesOfOtherPrograms) {
    // Left and right differ, so that a downmix would be noticed.
    const auto made = [this](const QString& name, const QStringList& options) {
        QStringList arguments{u"-v"_s,
                              u"error"_s,
                              u"-y"_s,
                              u"-f"_s,
                              u"lavfi"_s,
                              u"-i"_s,
                              u"aevalsrc=0.4*sin(440*2*PI*t)|0.4*sin(1000*2*PI*t):d=3:s=48000"_s};
        return runTool(u"ffmpeg"_s, arguments + options + QStringList{at(name)}).status == 0;
    };
    const std::vector<std::pair<QString, QStringList>> sources = {
        {u"16.wav"_s, {u"-c:a"_s, u"pcm_s16le"_s}},
        {u"24.wav"_s, {u"-c:a"_s, u"pcm_s24le"_s}},
        {u"32.wav"_s, {u"-c:a"_s, u"pcm_s32le"_s}},
        {u"float.wav"_s, {u"-c:a"_s, u"pcm_f32le"_s}},
        {u"a.flac"_s, {}},
        {u"a.mp3"_s, {u"-b:a"_s, u"192k"_s}},
        {u"vorbis.ogg"_s, {u"-c:a"_s, u"libvorbis"_s}},
        {u"a.opus"_s, {u"-c:a"_s, u"libopus"_s}},
        {u"a.m4a"_s, {}},
        {u"mono.wav"_s, {u"-af"_s, u"pan=mono|c0=c0"_s}},
        {u"8k.wav"_s, {u"-ar"_s, u"8000"_s}},
        {u"192k.wav"_s, {u"-ar"_s, u"192000"_s}},
    };
    for (const auto& [name, options] : sources) {
        ASSERT_TRUE(made(name, options)) << qPrintable(name);
        ASSERT_TRUE(convert(at(name), target + u".wav"_s, 0)) << qPrintable(name);
        const auto result = read(target + u".wav"_s);
        EXPECT_NEAR(double(result[0].size()), 3 * 44100.0, 2) << qPrintable(name);
        EXPECT_EQ(result[0], result[1]) << qPrintable(name);
        double difference = 0;
        double power = 0;
        for (std::size_t i = 44100; i < 88200; ++i) {
            const auto expected = 0.4 * std::sin(440 * 2 * std::numbers::pi * double(i) / 44100);
            difference += std::pow(double(result[0][i]) - expected, 2);
            power += expected * expected;
        }
        EXPECT_LT(std::sqrt(difference / power), 0.1) << qPrintable(name); // a downmix would give 0.7
    }
}

TEST_F(ConverterFiles, ReadsThirtyOutlineValuesWithoutAFullDecode) {
    const auto rows = MediaTest::tones(std::size_t(3.05 * 44100));
    MediaTest::writeFile(at(u"a.m4a"_s), kAudioFileM4AType, rows);
    AudioExtractWave wave;
    ASSERT_TRUE(wave.openFile(at(u"a.m4a"_s)));
    const auto values = wave.extractSamplePoint();
    ASSERT_EQ(values.size(), 30);
    const auto decoded = read(at(u"a.m4a"_s));
    for (int i = 0; i < 30; ++i)
        EXPECT_EQ(values[i], decoded[0][std::size_t((4410 * (i + 1) - 1) / 512 * 512)]) << i;
}

TEST_F(ConverterFiles, ReadsOutlinesOfMonoAndOtherRates) {
    for (const double rate : {8000.0, 44100.0, 48000.0, 96000.0}) {
        const auto path = at(u"mono.wav"_s);
        auto writer = MediaTest::newWriter(path, kAudioFileWAVEType, MediaTest::waveFormat(rate, 1),
                                           MediaTest::clientFormat(rate, 1));
        MediaTest::Samples rows(1, std::vector<float>(std::size_t(3.05 * rate), 0.25F));
        MediaTest::writeAll(*writer, rows);
        ASSERT_EQ(writer->dispose(), noErr);
        AudioExtractWave wave;
        ASSERT_TRUE(wave.openFile(path));
        const auto values = wave.extractSamplePoint();
        ASSERT_EQ(values.size(), 30) << rate;
        EXPECT_NEAR(values[15], 0.25F, 1e-4F) << rate;
    }
    MediaTest::writeFile(source, kAudioFileWAVEType, MediaTest::tones(3969));
    AudioExtractWave wave;
    ASSERT_TRUE(wave.openFile(source));
    EXPECT_TRUE(wave.extractSamplePoint().isEmpty()) << "0.09 s";
}

} // namespace

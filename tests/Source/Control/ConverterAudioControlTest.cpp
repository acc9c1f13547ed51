// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Control/ConverterAudioControl.h"

#include "Platform/Audio/ClientFormat.h"
#include "Platform/Foundation/Services.h"
#include "Source/Control/Fades.h"
#include "tests/fakes/FakeSourceFiles.h"
#include "tests/support/LogCatcher.h"

#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr double kRate = 44100;

struct FinishCounter : ConverterAudioControlDelegate {
    void converterFinish() override { ++finished; }
    int finished = 0;
};

class ConverterAudioControlTest : public testing::Test {
protected:
    ConverterAudioControlTest() { Platform::services().mediaFiles = &files; }

    [[nodiscard]] QString at(const QString& name) const { return folder.filePath(name); }
    /// A source whose left sample is its frame number and whose right sample is the negative of it.
    FakeSourceFiles::Source& addRamp(double seconds) {
        return files.addSource(source, seconds,
                               [](int channel, std::int64_t frame) { return channel ? -float(frame) : float(frame); });
    }
    FakeSourceFiles::Source& addOnes(double seconds) {
        return files.addSource(source, seconds, [](int, std::int64_t) { return 1.0F; });
    }
    const std::vector<float>& left() { return files.last().samples.at(0); }
    const std::vector<float>& right() { return files.last().samples.at(1); }
    float gainAt(double seconds) { return left()[std::size_t(seconds * kRate)]; }

    Platform::ServicesScope scope;
    FakeSourceFiles files;
    QTemporaryDir folder;
    QString source = at(u"source.wav"_s);
    QString target = at(u"target.m4a"_s);
    FinishCounter delegate;
    ConverterAudioControl converter;
};

TEST_F(ConverterAudioControlTest, DescribesEachOutputTypeFieldByField) {
    const auto wave = ConverterAudioControl::exportDescription(0);
    EXPECT_EQ(wave.mSampleRate, kRate);
    EXPECT_EQ(wave.mFormatID, fourCharCode("lpcm"));
    EXPECT_EQ(wave.mFormatFlags, 12U);
    EXPECT_EQ(wave.mBytesPerPacket, 8U);
    EXPECT_EQ(wave.mFramesPerPacket, 1024U);
    EXPECT_EQ(wave.mBytesPerFrame, 8U);
    EXPECT_EQ(wave.mChannelsPerFrame, 2U);
    EXPECT_EQ(wave.mBitsPerChannel, 32U);
    EXPECT_EQ(files.completions, 1);

    AudioStreamBasicDescription aac;
    aac.mSampleRate = kRate;
    aac.mFormatID = fourCharCode("aac ");
    aac.mFramesPerPacket = 1024;
    aac.mChannelsPerFrame = 2;
    EXPECT_EQ(ConverterAudioControl::exportDescription(1), aac);
    EXPECT_EQ(ConverterAudioControl::exportDescription(2), aac);
    EXPECT_EQ(ConverterAudioControl::exportDescription(3), aac);
    EXPECT_EQ(ConverterAudioControl::exportDescription(4), AudioStreamBasicDescription{});
    EXPECT_EQ(ConverterAudioControl::exportDescription(-1), AudioStreamBasicDescription{});
}

TEST_F(ConverterAudioControlTest, CreatesTheContainerOfEachType) {
    const std::pair<int, std::uint32_t> types[] = {
        {0, fourCharCode("WAVE")}, {1, fourCharCode("m4af")}, {2, fourCharCode("caff")}, {3, fourCharCode("m4af")}};
    for (const auto& [type, container] : types) {
        ASSERT_TRUE(converter.createOutPutFile(target, type));
        EXPECT_EQ(files.last().type, container);
        EXPECT_EQ(files.last().flags, 1U);
        EXPECT_EQ(files.last().clientFormat, clientFormat());
        EXPECT_EQ(files.last().format, ConverterAudioControl::exportDescription(type));
    }
}

TEST_F(ConverterAudioControlTest, UsesTwoNonInterleavedFloatChannels) {
    const auto format = clientFormat();
    EXPECT_EQ(format.mSampleRate, kRate);
    EXPECT_EQ(format.mFormatFlags, 41U);
    EXPECT_EQ(format.mBytesPerFrame, 4U);
    EXPECT_EQ(format.mBytesPerPacket, 4U);
    EXPECT_EQ(format.mFramesPerPacket, 1U);
    EXPECT_EQ(format.mChannelsPerFrame, 2U);
    EXPECT_EQ(format.mBitsPerChannel, 32U);
}

TEST_F(ConverterAudioControlTest, RefusesAnUnknownType) {
    EXPECT_FALSE(converter.createOutPutFile(target, 4));
    EXPECT_TRUE(files.files.empty());
    EXPECT_TRUE(converter.exportError());
}

TEST_F(ConverterAudioControlTest, RefusesAnOutputInAMissingFolderAndCreatesNothing) {
    EXPECT_FALSE(converter.createOutPutFile(at(u"missing/target.m4a"_s), 1));
    EXPECT_TRUE(files.files.empty());
    EXPECT_FALSE(QFileInfo::exists(at(u"missing"_s)));
    EXPECT_EQ(converter.exportError().kind, Platform::Error::Kind::NotFound);
}

TEST_F(ConverterAudioControlTest, RefusesAnOutputThatCannotBeCreatedOrRejectsTheClientFormat) {
    files.createFails = true;
    EXPECT_FALSE(converter.createOutPutFile(target, 1));
    EXPECT_TRUE(converter.exportError());
    files.createFails = false;
    files.clientFormatStatus = -50;
    EXPECT_FALSE(converter.createOutPutFile(target, 1));
}

TEST_F(ConverterAudioControlTest, FeedsBothChannelsOfTheOutputFromTheFirst) {
    ASSERT_TRUE(converter.createOutPutFile(target, 1));
    EXPECT_EQ(files.last().channelMap, (std::vector<std::int32_t>{0, 0}));
}

TEST_F(ConverterAudioControlTest, IgnoresAMissingConverterAndARefusedChannelMap) {
    files.hasConverter = false;
    ASSERT_TRUE(converter.createOutPutFile(target, 1));
    EXPECT_TRUE(files.last().channelMap.empty());
    files.hasConverter = true;
    files.channelMapStatus = -50;
    EXPECT_TRUE(converter.createOutPutFile(target, 1));
}

TEST_F(ConverterAudioControlTest, ClosesTheOutputBeforeItCreatesAnother) {
    ASSERT_TRUE(converter.createOutPutFile(target, 1));
    EXPECT_FALSE(files.last().disposed);
    ASSERT_TRUE(converter.createOutPutFile(at(u"second.wav"_s), 0));
    EXPECT_TRUE(files.files.front()->disposed);
    EXPECT_FALSE(files.last().disposed);
}

TEST_F(ConverterAudioControlTest, CopiesTheWholeFileForFromAndToOfZero) {
    addRamp(2.5);
    converter.setDelegate(&delegate);
    ASSERT_TRUE(converter.createOutPutFile(target, 1));
    ASSERT_TRUE(converter.startConverterSource(source, 0, 0));
    ASSERT_EQ(left().size(), 110250U);
    EXPECT_EQ(left().front(), 0.0F);
    EXPECT_EQ(left().back(), 110249.0F);
    EXPECT_EQ(right().back(), -110249.0F);
    EXPECT_TRUE(files.last().disposed);
    EXPECT_EQ(delegate.finished, 1);
}

TEST_F(ConverterAudioControlTest, CopiesToTheEndWhenTheEndIsBelowATenth) {
    addRamp(2.5);
    ASSERT_TRUE(converter.createOutPutFile(target, 1));
    ASSERT_TRUE(converter.startConverterSource(source, 0, 0.05F));
    EXPECT_EQ(left().size(), 110250U);
}

TEST_F(ConverterAudioControlTest, StopsAtTheBlockThatReachesATenth) {
    addRamp(2.5);
    ASSERT_TRUE(converter.createOutPutFile(target, 1));
    ASSERT_TRUE(converter.startConverterSource(source, 0, 0.1F));
    EXPECT_EQ(left().size(), 9U * 512);
}

TEST_F(ConverterAudioControlTest, CopiesWholeBlocksFromAnOddFrameOn) {
    addRamp(10);
    ASSERT_TRUE(converter.createOutPutFile(target, 1));
    ASSERT_TRUE(converter.startConverterSource(source, 1.23457F, 3.21F));
    EXPECT_EQ(left().front(), 54444.0F);
    // Whole blocks up to 3.21 s (141561 frames).
    EXPECT_EQ(left().size(), 171U * 512);
    EXPECT_EQ(files.sources[source].seeks, std::vector<std::int64_t>{54444});
}

TEST_F(ConverterAudioControlTest, WritesAnEmptyOutputForAStartBeyondTheEnd) {
    addRamp(1);
    ASSERT_TRUE(converter.createOutPutFile(target, 1));
    EXPECT_TRUE(converter.startConverterSource(source, 5, 0));
    EXPECT_TRUE(left().empty());
    EXPECT_TRUE(files.last().disposed);
}

TEST_F(ConverterAudioControlTest, AsksForBlocksOf512FramesInTwoBuffersOf2048Bytes) {
    auto& ramp = addRamp(1);
    ASSERT_TRUE(converter.createOutPutFile(target, 1));
    ASSERT_TRUE(converter.startConverterSource(source, 0, 0));
    EXPECT_EQ(ramp.firstList.mNumberBuffers, 2U);
    EXPECT_EQ(ramp.firstList.mBuffers[0].mNumberChannels, 2U);
    EXPECT_EQ(ramp.bytesOfBuffers[0], 2048U);
    EXPECT_EQ(ramp.bytesOfBuffers[1], 2048U);
    // 87 blocks and the read that finds the end; each read asks for a full block.
    EXPECT_EQ(ramp.asked, std::vector<std::uint32_t>(88, 512));
    EXPECT_EQ(ramp.clientFormat, clientFormat());
}

TEST_F(ConverterAudioControlTest, ContinuesAfterAReadErrorInAPlainCopy) {
    addRamp(1).failingRead = 3;
    ASSERT_TRUE(converter.createOutPutFile(target, 1));
    ASSERT_TRUE(converter.startConverterSource(source, 0, 0));
    EXPECT_EQ(left().size(), 44100U);
}

TEST_F(ConverterAudioControlTest, FailsForAMissingSourceWithoutCallingTheDelegate) {
    converter.setDelegate(&delegate);
    ASSERT_TRUE(converter.createOutPutFile(target, 1));
    EXPECT_FALSE(converter.startConverterSource(source, 0, 0));
    EXPECT_FALSE(converter.startFadeInFadeOutConverterSource(source, 0, 1, 0, 0, 1));
    EXPECT_EQ(delegate.finished, 0);
    EXPECT_FALSE(files.last().disposed) << "a failed copy leaves the output open";
    EXPECT_EQ(converter.sourceError().kind, Platform::Error::Kind::NotFound);
}

TEST_F(ConverterAudioControlTest, FailsForASourceThatCannotBeReadOrRejectsTheClientFormat) {
    addRamp(1).clientFormatStatus = -50;
    ASSERT_TRUE(converter.createOutPutFile(target, 1));
    EXPECT_FALSE(converter.startConverterSource(source, 0, 0));
    EXPECT_FALSE(converter.startFadeInFadeOutConverterSource(source, 0, 1, 0, 0, 1));
    files.sources.clear();
    EXPECT_FALSE(converter.startConverterSource(source, 0, 0));
    EXPECT_EQ(converter.sourceError().kind, Platform::Error::Kind::UnknownFormat);
    EXPECT_FALSE(files.last().disposed);
}

TEST_F(ConverterAudioControlTest, ContinuesWhenTheDiskIsFullAndKeepsTheFirstError) {
    addRamp(1);
    converter.setDelegate(&delegate);
    ASSERT_TRUE(converter.createOutPutFile(target, 1));
    files.last().writeStatus = -34;
    EXPECT_TRUE(converter.startConverterSource(source, 0, 0));
    EXPECT_EQ(delegate.finished, 1);
    EXPECT_EQ(converter.exportError().kind, Platform::Error::Kind::DiskFull);
    ASSERT_TRUE(converter.createOutPutFile(target, 1));
    EXPECT_FALSE(converter.exportError()) << "a new output begins without the error of the last one";
}

TEST_F(ConverterAudioControlTest, ReadsToTheEndWhenNoOutputIsOpen) {
    addRamp(1);
    converter.setDelegate(&delegate);
    EXPECT_TRUE(converter.startConverterSource(source, 0, 0));
    EXPECT_EQ(delegate.finished, 1);
}

TEST_F(ConverterAudioControlTest, ReportsItsProgressAndStopsOnRequest) {
    addRamp(10);
    converter.setDelegate(&delegate);
    std::vector<double> shares;
    converter.setProgress([&](double share) {
        shares.push_back(share);
        return share < 0.5;
    });
    ASSERT_TRUE(converter.createOutPutFile(target, 1));
    EXPECT_FALSE(converter.startConverterSource(source, 0, 0));
    EXPECT_TRUE(files.last().disposed);
    EXPECT_EQ(delegate.finished, 0);
    EXPECT_TRUE(std::ranges::is_sorted(shares));
    EXPECT_NEAR(shares.back(), 0.52, 0.05);
    EXPECT_LT(left().size(), 441000U);
}

TEST_F(ConverterAudioControlTest, WithFadesOffRepeatsTheRangeInTheLastTenth) {
    addRamp(30);
    converter.setDelegate(&delegate);
    ASSERT_TRUE(converter.createOutPutFile(target, 1));
    ASSERT_TRUE(converter.startFadeInFadeOutConverterSource(source, 10, 20, 0, 0, 10));
    // 9.9 s are reached by block 853 (9.903 s); then blocks from 10 s on until 441000 frames are there.
    constexpr std::size_t range = 853 * 512;
    constexpr std::size_t again = 9 * 512;
    ASSERT_EQ(left().size(), range + again);
    EXPECT_NEAR(double(range) / kRate, 9.9, 512 / kRate);
    EXPECT_NEAR(double(again) / kRate, 0.1, 512 / kRate);
    EXPECT_EQ(left()[0], 441000.0F);
    EXPECT_EQ(left()[range - 1], float(441000 + range - 1));
    EXPECT_EQ(left()[range], 441000.0F);
    EXPECT_EQ(left().back(), float(441000 + again - 1));
    EXPECT_TRUE(files.last().disposed);
    EXPECT_EQ(delegate.finished, 0) << "the fading copy tells nobody";
    EXPECT_EQ(files.sources[source].seeks, (std::vector<std::int64_t>{441000, 441000}));
}

TEST_F(ConverterAudioControlTest, IgnoresAFadeInBelowItsThreshold) {
    addOnes(10);
    ASSERT_TRUE(converter.createOutPutFile(target, 1));
    ASSERT_TRUE(converter.startFadeInFadeOutConverterSource(source, 0, 10, 0.5F, 0, 5));
    EXPECT_TRUE(std::ranges::all_of(left(), [](float v) { return v == 1.0F; }));
}

TEST_F(ConverterAudioControlTest, RaisesTheFirst86BlocksOfAFadeInOfOneSecondFromZero) {
    addOnes(20);
    ASSERT_TRUE(converter.createOutPutFile(target, 1));
    ASSERT_TRUE(converter.startFadeInFadeOutConverterSource(source, 0, 10, 1, 0, 5));
    for (std::size_t block = 0; block <= 86; ++block) {
        const auto gain = float(double(block) * 512 / kRate);
        for (std::size_t i : {std::size_t(0), std::size_t(511)}) {
            EXPECT_FLOAT_EQ(left()[block * 512 + i], gain) << block;
            EXPECT_FLOAT_EQ(right()[block * 512 + i], gain) << block;
        }
    }
    EXPECT_TRUE(std::all_of(left().begin() + 87 * 512, left().end(), [](float v) { return v == 1.0F; }));
}

TEST_F(ConverterAudioControlTest, FadesOutBeforeTheEndOfTheRangeAndIsNearSilentInTheRepeatedTenth) {
    addOnes(40);
    ASSERT_TRUE(converter.createOutPutFile(target, 1));
    ASSERT_TRUE(converter.startFadeInFadeOutConverterSource(source, 10, 20, 2, 2, 10));
    // The fade-out ends at 9.9 s: it begins at 7.9 s.
    EXPECT_NEAR(gainAt(5), 1.0, 1e-6);
    EXPECT_NEAR(gainAt(7.8), 1.0, 1e-6);
    EXPECT_NEAR(gainAt(8.9), 0.5, 0.01);
    EXPECT_NEAR(gainAt(9.88), 0.01, 0.01);
    for (std::size_t i = 853 * 512; i < left().size(); ++i)
        ASSERT_LE(left()[i], 0.05F);
}

TEST_F(ConverterAudioControlTest, FadesOutAtTheEndOfTheOutputWhenTheRangeIsRepeated) {
    addOnes(40);
    ASSERT_TRUE(converter.createOutPutFile(target, 1));
    // A range of 4.9 s played for 8 s: the output ends in the second pass, before the range's own fade.
    ASSERT_TRUE(converter.startFadeInFadeOutConverterSource(source, 0, 5, 0, 1, 8));
    EXPECT_NEAR(gainAt(3.8), 1.0, 1e-6);
    EXPECT_NEAR(gainAt(4.4), 0.5, 0.02);
    EXPECT_NEAR(gainAt(6.9), 1.0, 1e-6);
    EXPECT_NEAR(gainAt(7.5), 0.5, 0.02);
    EXPECT_NEAR(double(left().size()) / kRate, 8, 512 / kRate);
}

TEST(Fades, StayBetweenSilenceAndFullGain) {
    EXPECT_GT((Fades{0, 10, 1, 0, 10}.gainAt(0.9995, 0.9995)), 0.999);
    EXPECT_EQ((Fades{0, 10, 1, 0, 10}.gainAt(1.5, 1.5)), 1.0);
    EXPECT_EQ((Fades{5, 10, 1, 0, 10}.gainAt(4, 0)), 0.0);
    EXPECT_EQ((Fades{0, 10, 0, 2, 20}.gainAt(10.5, 10.5)), 0.0);
}

TEST_F(ConverterAudioControlTest, LogsAnEmptyReadAndAReadErrorOfTheFadingCopyAndContinues) {
    addOnes(1).failingRead = 2;
    ASSERT_TRUE(converter.createOutPutFile(target, 1));
    LogCatcher log;
    // The file is shorter than the range: no more frames, no repetition.
    ASSERT_TRUE(converter.startFadeInFadeOutConverterSource(source, 0, 5, 0, 0, 5));
    EXPECT_EQ(left().size(), 44100U);
    EXPECT_EQ(log.lines(), (QStringList{u"read Audio Data Error"_s, u"numFrames  =  0"_s}));
}

TEST_F(ConverterAudioControlTest, MayBeUsedForAnyNumberOfOutputs) {
    addRamp(1);
    for (int i = 0; i < 3; ++i) {
        ASSERT_TRUE(converter.createOutPutFile(at(u"%1.wav"_s.arg(i)), 0));
        ASSERT_TRUE(converter.startConverterSource(source, 0, 0));
    }
    ASSERT_EQ(files.files.size(), 3U);
    for (const auto& file : files.files)
        EXPECT_EQ(file->samples.at(0).size(), 44100U);
}

TEST_F(ConverterAudioControlTest, ClosesNothingWhenNothingIsOpen) {
    converter.closeExportFile();
    ASSERT_TRUE(converter.createOutPutFile(target, 1));
    converter.closeExportFile();
    EXPECT_TRUE(files.last().disposed);
    converter.closeExportFile();
}

} // namespace

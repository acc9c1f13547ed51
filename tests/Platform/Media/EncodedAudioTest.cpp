// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/EncodedAudio.h"
#include "Platform/Media/linux/encode/PacketFile.h"

#include "tests/Platform/Media/MediaTestSupport.h"
#include "tests/support/AudioCheck.h"
#include "tests/support/Mpeg4Files.h"

#include <random>

using namespace MediaTest;
using namespace Qt::StringLiterals;
using Platform::EncodedAudio;

namespace {

constexpr std::int64_t Frames = 8 * 44100 + 123;

class EncodedAudioTest : public testing::Test {
protected:
    void SetUp() override {
        auto sound = tones(Frames);
        // Loud and silent stretches of random length: the encoder switches between long and short blocks.
        std::mt19937 random(5);
        for (std::size_t i = 0; i < std::size_t(Frames);) {
            const std::size_t end = std::min<std::size_t>(Frames, i + 500 + random() % 9000);
            const bool isSilent = random() % 4 == 0;
            for (; i < end; ++i)
                for (auto& channel : sound)
                    channel[i] *= isSilent ? 0.0F : 1.0F;
        }
        writeFile(at(u"source.m4a"_s), kAudioFileM4AType, std::move(sound));
        decoded = readFile(at(u"source.m4a"_s)).rows;
        ASSERT_EQ(std::int64_t(decoded[0].size()), Frames);
    }
    [[nodiscard]] QString at(const QString& name) const { return folder.filePath(name); }
    [[nodiscard]] std::unique_ptr<EncodedAudio> open(const QString& name) const {
        auto audio = Platform::openEncodedAudio(at(name));
        EXPECT_TRUE(audio) << audio.error().text.toStdString();
        return std::move(audio).valueOr(nullptr);
    }
    void copy(const QString& source, const QString& target, std::int64_t first, std::int64_t end) const {
        const auto copied = open(source)->copy(at(target), first, end, {});
        ASSERT_TRUE(copied) << copied.error().text.toStdString();
    }
    /// Whether the file contains exactly the source's samples of this range. ffmpeg adds the padding of the last
    /// packet.
    void expectSamples(const QString& name, std::int64_t first, std::int64_t end) const {
        const auto part = readFile(at(name)).rows;
        const auto byFfmpeg = AudioCheck::decodedByFfmpeg(at(name));
        ASSERT_EQ(byFfmpeg.size(), 2U);
        ASSERT_EQ(std::int64_t(part[0].size()), end - first) << "from " << first;
        ASSERT_GE(byFfmpeg[0].size(), part[0].size());
        for (std::size_t channel = 0; channel < 2; ++channel) {
            const auto source = decoded[channel].begin() + first;
            ASSERT_TRUE(std::equal(part[channel].begin(), part[channel].end(), source)) << first << " to " << end;
            ASSERT_TRUE(std::equal(source, source + (end - first), byFfmpeg[channel].begin())) << first;
        }
        const auto info = media().info(at(name));
        ASSERT_TRUE(info);
        EXPECT_EQ(info->frameCount, end - first);
    }

    QTemporaryDir folder;
    Samples decoded;
};

} // namespace

TEST_F(EncodedAudioTest, ACopyDecodesToExactlyTheFramesOfItsRange) {
    std::mt19937 random(17);
    std::vector<std::pair<std::int64_t, std::int64_t>> ranges{{0, Frames},  {0, 2048},    {Frames - 2048, Frames},
                                                              {1024, 3072}, {1023, 3072}, {3 * 1024, 5 * 1024 + 1}};
    for (int i = 0; i < 20; ++i) {
        const auto first = std::int64_t(random() % (Frames - 2048));
        ranges.emplace_back(first, first + 2048 + std::int64_t(random() % std::uint64_t(Frames - 2047 - first)));
    }
    for (const auto& [first, end] : ranges) {
        copy(u"source.m4a"_s, u"part.m4a"_s, first, end);
        expectSamples(u"part.m4a"_s, first, end);
    }
}

TEST_F(EncodedAudioTest, ACopyOfACopyIsExactToo) {
    copy(u"source.m4a"_s, u"one.m4a"_s, 20000, 200000);
    copy(u"one.m4a"_s, u"two.m4a"_s, 1777, 150001);
    expectSamples(u"two.m4a"_s, 21777, 170001);
}

TEST_F(EncodedAudioTest, TheCopiedPacketsAreTheSourcesBytes) {
    copy(u"source.m4a"_s, u"part.m4a"_s, 100 * 1024, 200 * 1024);
    const QByteArray source = Mpeg4Files::contentOf(at(u"source.m4a"_s));
    const QByteArray part = Mpeg4Files::contentOf(at(u"part.m4a"_s));
    // The sound stands in one piece behind the header of the media box.
    const auto begin = part.indexOf("mdat") + 4;
    const auto end = part.indexOf("moov") - 4;
    ASSERT_GT(end, begin);
    EXPECT_TRUE(source.contains(part.mid(begin, end - begin)));
}

TEST_F(EncodedAudioTest, PartsInARowAreTheSourceAgain) {
    const std::vector<std::int64_t> cuts{0, 44100, 60 * 1024 + 1, 90 * 1024, 200000, Frames};
    for (std::size_t i = 0; i + 1 < cuts.size(); ++i)
        copy(u"source.m4a"_s, QString::number(i), cuts[i], cuts[i + 1]);
    auto all = open(u"0"_s);
    for (std::size_t i = 1; i + 1 < cuts.size(); ++i)
        ASSERT_TRUE(all->append(*open(QString::number(i)))) << "part " << i;
    EXPECT_EQ(all->frames(), Frames);
    ASSERT_TRUE(all->copy(at(u"all.m4a"_s), 0, Frames, {}));
    expectSamples(u"all.m4a"_s, 0, Frames);
}

TEST_F(EncodedAudioTest, OnlyAudioThatFollowsIsAppended) {
    copy(u"source.m4a"_s, u"a"_s, 0, 100000);
    copy(u"source.m4a"_s, u"b"_s, 100000, 200000);
    copy(u"source.m4a"_s, u"c"_s, 200000, 300000);
    auto audio = open(u"a"_s);
    EXPECT_FALSE(audio->append(*open(u"c"_s))) << "a part between them is missing";
    EXPECT_FALSE(audio->append(*open(u"a"_s)));
    EXPECT_FALSE(open(u"b"_s)->append(*open(u"a"_s))) << "the wrong order";
    EXPECT_EQ(audio->frames(), 100000) << "a refusal changes nothing";
    EXPECT_TRUE(audio->append(*open(u"b"_s)));
    EXPECT_TRUE(audio->append(*open(u"c"_s)));
}

TEST_F(EncodedAudioTest, FilesOfOtherProgramsAreRefused) {
    ASSERT_TRUE(Mpeg4Files::make(at(u"other.m4a"_s)));
    ASSERT_TRUE(Mpeg4Files::write(at(u"text.m4a"_s), "no audio"));
    // ffmpeg copies the name of the track's handler, but its encoder substitutes noise.
    ASSERT_EQ(tool(u"ffmpeg"_s, {u"-i"_s, at(u"source.m4a"_s), u"-c:a"_s, u"aac"_s, at(u"again.m4a"_s)}).status, 0);
    ASSERT_TRUE(Mpeg4Files::contentOf(at(u"again.m4a"_s)).contains(Platform::mpeg4HandlerName));
    for (const auto& name : {u"other.m4a"_s, u"text.m4a"_s, u"again.m4a"_s})
        EXPECT_EQ(Platform::openEncodedAudio(at(name)).error().kind, Platform::Error::Kind::UnknownFormat);
    EXPECT_EQ(Platform::openEncodedAudio(at(u"none.m4a"_s)).error().kind, Platform::Error::Kind::NotFound);
}

TEST_F(EncodedAudioTest, ADamagedIndexIsRefusedAndNeverReadBeyond) {
    const QByteArray whole = Mpeg4Files::contentOf(at(u"source.m4a"_s));
    for (const char* type : {"stsz", "stsc", "stco", "stsd", "esds", "elst"}) {
        const auto box = whole.lastIndexOf(type);
        ASSERT_GT(box, 0) << type;
        for (const int offset : {4, 8, 11, 12, 15, 16, 19, 20, 24}) {
            QByteArray damaged = whole;
            damaged[box + offset] = char(0xff);
            ASSERT_TRUE(Mpeg4Files::write(at(u"damaged.m4a"_s), damaged));
            const auto audio = Platform::openEncodedAudio(at(u"damaged.m4a"_s));
            if (audio)
                (void)(*audio)->copy(at(u"copy.m4a"_s), 0, (*audio)->frames(), {});
        }
    }
    for (qsizetype length = whole.size() - 1; length > 0; length -= 97)
        if (length < 4000 || length > whole.size() - 4000) {
            ASSERT_TRUE(Mpeg4Files::write(at(u"damaged.m4a"_s), whole.left(length)));
            EXPECT_FALSE(Platform::openEncodedAudio(at(u"damaged.m4a"_s))) << length;
        }
}

TEST_F(EncodedAudioTest, ACopyStopsWhenItIsTold) {
    int reports = 0;
    const auto copied =
        open(u"source.m4a"_s)->copy(at(u"part.m4a"_s), 0, Frames, [&](double) { return ++reports < 3; });
    EXPECT_EQ(copied.error().kind, Platform::Error::Kind::Cancelled);
    EXPECT_EQ(reports, 3);
}

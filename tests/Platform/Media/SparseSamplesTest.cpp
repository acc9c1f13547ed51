// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/EncodedAudio.h"
#include "Platform/Media/linux/decode/InputFile.h"

#include "tests/Platform/Media/MediaTestSupport.h"
#include "tests/support/Mpeg4Files.h"

#include <QtEndian>

#include <optional>
#include <random>

using namespace MediaTest;
using namespace Qt::StringLiterals;
using Mpeg4Files::contentOf;

namespace {

/// Frames with gaps from one frame to six packets, and both sides of the first borders of packets.
std::vector<std::int64_t> someFrames(std::int64_t length) {
    std::vector<std::int64_t> frames;
    for (const std::int64_t frame : {0, 1, 959, 960, 1023, 1024, 1087, 1088, 2047, 2048, 2112})
        frames.push_back(frame);
    std::mt19937 random(3);
    while (frames.back() + 6000 < length)
        frames.push_back(frames.back() + 1 + std::int64_t(random() % 6000));
    frames.push_back(length - 1);
    return frames;
}

/// The values of someFrames(), read without the frames between them; nothing when they must be read.
std::optional<std::vector<float>> sparse(const QString& path, unsigned threads = 0) {
    const auto file = Platform::InputFile::open(path, true);
    EXPECT_TRUE(file) << file.error().text.toStdString();
    if (!file)
        return std::nullopt;
    const auto frames = someFrames((*file)->lengthFrames());
    std::vector<float> values(frames.size());
    if (!(*file)->sparseSamples(frames, values, threads))
        return std::nullopt;
    return values;
}

/// The same values of a read from the beginning.
std::vector<float> ofFullRead(const QString& path) {
    const auto format = media().info(path)->dataFormat;
    const auto whole = readFile(path, format.mSampleRate, format.mChannelsPerFrame);
    EXPECT_EQ(whole.length, std::int64_t(whole.rows[0].size()));
    std::vector<float> values;
    for (const std::int64_t frame : someFrames(whole.length))
        values.push_back(whole.rows[0].at(std::size_t(frame)));
    return values;
}

class SparseSamplesTest : public testing::Test {
protected:
    [[nodiscard]] QString at(const QString& name) const { return folder.filePath(name); }

    /// Six seconds of tones and noise with sudden changes, for which an encoder uses short blocks, encoded by ffmpeg.
    /// Whole packets, and @p more frames: without an edit list the length is that of the packets.
    QString encode(const QString& name, int rate, int channels, const QStringList& options,
                   std::size_t more = 0) const {
        auto sound = tones(std::size_t(rate) * 6 / 1024 * 1024 + more, rate, std::size_t(channels));
        std::mt19937 random(5);
        for (std::size_t i = 0; i < sound[0].size();) {
            const std::size_t end = std::min(sound[0].size(), i + 500 + random() % 9000);
            const float gain = random() % 4 == 0 ? 0.0F : 1.0F;
            const float noise = random() % 3 == 0 ? 1e-10F : 0.0F;
            for (; i < end; ++i)
                for (auto& row : sound)
                    row[i] = gain * (row[i] + noise * (float(random()) - 2147483648.0F));
        }
        QByteArray bytes;
        for (std::size_t i = 0; i < sound[0].size(); ++i)
            for (const auto& row : sound)
                bytes.append(reinterpret_cast<const char*>(&row[i]), sizeof(float));
        EXPECT_TRUE(Mpeg4Files::write(at(u"raw"_s), bytes));
        QStringList arguments{u"-v"_s,
                              u"error"_s,
                              u"-y"_s,
                              u"-f"_s,
                              u"f32le"_s,
                              u"-ar"_s,
                              QString::number(rate),
                              u"-ac"_s,
                              QString::number(channels),
                              u"-i"_s,
                              at(u"raw"_s),
                              u"-c:a"_s,
                              u"aac"_s};
        const auto made = tool(u"ffmpeg"_s, arguments + options + QStringList{at(name)});
        EXPECT_EQ(made.status, 0) << made.err.toStdString();
        return at(name);
    }
    /// Without noise substitution: every decoder gives the same values, also one that starts in the middle.
    [[nodiscard]] QString withoutNoise(const QString& name, int rate = 44100, int channels = 2) const {
        return encode(name, rate, channels, {u"-aac_pns"_s, u"0"_s});
    }
    [[nodiscard]] QString withNoise(const QString& name) const { return encode(name, 44100, 2, {u"-b:a"_s, u"64k"_s}); }

    /// Writes @p bytes at @p offset bytes behind the only place of @p mark.
    static void patch(const QString& path, const QByteArray& mark, qsizetype offset, const QByteArray& bytes) {
        QByteArray content = contentOf(path);
        ASSERT_EQ(content.count(mark), 1);
        content.replace(content.indexOf(mark) + mark.size() + offset, bytes.size(), bytes);
        ASSERT_TRUE(Mpeg4Files::write(path, content));
    }
    static void setEditStart(const QString& path, std::uint32_t start) {
        const char bytes[] = {char(start >> 24), char(start >> 16), char(start >> 8), char(start)};
        patch(path, "elst", 12, QByteArray(bytes, 4));
    }
    /// Adds an edit to the only one: the track plays the same second twice.
    static void addEdit(const QString& path) {
        QByteArray content = contentOf(path);
        ASSERT_LT(content.indexOf("mdat"), content.indexOf("moov")); // the audio does not move
        for (const char* box : {"moov", "trak", "edts", "elst"}) {
            const qsizetype at = content.indexOf(box) - 4;
            const quint32 size = qFromBigEndian<quint32>(content.constData() + at) + 12;
            qToBigEndian(size, content.data() + at);
        }
        const qsizetype entry = content.indexOf("elst") + 12;
        qToBigEndian(quint32(2), content.data() + entry - 4);
        qToBigEndian(quint32(1000), content.data() + entry); // milliseconds
        qToBigEndian(quint32(100000), content.data() + entry + 4);
        content.insert(entry, content.mid(entry, 12));
        ASSERT_TRUE(Mpeg4Files::write(path, content));
    }
    /// Replaces the first two bytes of the decoder's configuration.
    static void setConfiguration(const QString& path, const char* bytes) {
        patch(path, QByteArray("\x05\x80\x80\x80\x05", 5), 0, QByteArray(bytes, 2));
    }

    QTemporaryDir folder;
};

TEST_F(SparseSamplesTest, AreThoseOfAFullReadWhenAnotherEncoderSubstitutedNoNoise) {
    for (const auto& [rate, channels] :
         {std::pair(44100, 2), {44100, 1}, {48000, 1}, {96000, 2}, {22050, 2}, {8000, 1}}) {
        const QString path = withoutNoise(u"a.m4a"_s, rate, channels);
        const auto values = sparse(path);
        ASSERT_TRUE(values) << rate << " " << channels;
        EXPECT_EQ(*values, ofFullRead(path)) << rate << " " << channels;
        EXPECT_FALSE(media().openReader(path).valueOr(nullptr)->seeksExactly());
    }
}

TEST_F(SparseSamplesTest, AreThoseOfAFullReadWhateverThePriming) {
    const QString path = withoutNoise(u"a.m4a"_s);
    for (const std::uint32_t start : {0, 1, 1023, 1024, 1500, 2047, 2048, 2112, 100000}) {
        setEditStart(path, start);
        const auto values = sparse(path);
        ASSERT_TRUE(values) << start;
        EXPECT_EQ(*values, ofFullRead(path)) << start;
    }
    patch(path, "edts", -4, "free"); // no edit list: a reader gives the priming, too
    const auto values = sparse(path);
    ASSERT_TRUE(values);
    EXPECT_EQ(*values, ofFullRead(path));
}

TEST_F(SparseSamplesTest, OfAPartOfARecordingAreThoseOfAFullRead) {
    writeFile(at(u"whole.m4a"_s), kAudioFileM4AType, sweep(200000, 44100));
    const auto recording = Platform::openEncodedAudio(at(u"whole.m4a"_s));
    ASSERT_TRUE(recording);
    for (const std::int64_t from : {0, 1, 1024, 44100, 50000}) {
        ASSERT_TRUE((*recording)->copy(at(u"part.m4a"_s), from, 150000, {}));
        EXPECT_TRUE(media().openReader(at(u"part.m4a"_s)).valueOr(nullptr)->seeksExactly());
        const auto values = sparse(at(u"part.m4a"_s));
        ASSERT_TRUE(values) << from;
        EXPECT_EQ(*values, ofFullRead(at(u"part.m4a"_s))) << from;
        const auto whole = readFile(at(u"part.m4a"_s)).rows[0];
        for (const std::int64_t first : {500, 1025, 2000, 60001}) {
            const auto part = readFile(at(u"part.m4a"_s), 44100, 2, first, 3000).rows[0];
            EXPECT_TRUE(std::equal(part.begin(), part.end(), whole.begin() + first)) << from << " " << first;
        }
    }
}

TEST_F(SparseSamplesTest, WithSubstitutedNoiseDifferOnlyByTheNoiseAndDoNotDependOnTheThreads) {
    const QString path = withNoise(u"noise.m4a"_s);
    const auto values = sparse(path, 1);
    ASSERT_TRUE(values);
    const auto full = ofFullRead(path);
    EXPECT_NE(*values, full) << "the encoder substituted no noise";
    EXPECT_GT(signalToError(full, *values), 10);
    for (const unsigned threads : {0, 2, 3, 4, 7})
        EXPECT_EQ(sparse(path, threads), values) << threads;
    // Searches and copies need the exact samples.
    EXPECT_FALSE(media().openReader(path).valueOr(nullptr)->seeksExactly());
}

TEST_F(SparseSamplesTest, AreRefusedForKindsOfAacWhosePacketsNeedMoreThanTheirPredecessor) {
    const QString path = withoutNoise(u"a.m4a"_s);
    for (const char* configuration : {"\x0a\x10", "\x22\x10", "\x12\x14"}) { // Main, LTP, packets of 960 frames
        setConfiguration(path, configuration);
        EXPECT_FALSE(sparse(path)) << int(configuration[0]) << " " << int(configuration[1]);
    }
    setConfiguration(path, "\x12\x10");
    EXPECT_TRUE(sparse(path));
}

TEST_F(SparseSamplesTest, AreRefusedForFilesInWhichThePlaceOfAPacketIsUncertain) {
    const QString path = withoutNoise(u"a.m4a"_s);
    const QByteArray original = contentOf(path);
    ASSERT_TRUE(sparse(path));
    setEditStart(path, std::uint32_t(-1)); // a pause before the audio
    EXPECT_FALSE(sparse(path));
    ASSERT_TRUE(Mpeg4Files::write(path, original));
    patch(path, "stsd", 4, QByteArray("\0\0\0\2", 4)); // a second format
    EXPECT_FALSE(sparse(path));
    ASSERT_TRUE(Mpeg4Files::write(path, original));
    addEdit(path);
    EXPECT_FALSE(sparse(path));
    const QString longer = encode(u"longer.m4a"_s, 44100, 2, {u"-aac_pns"_s, u"0"_s}, 500);
    EXPECT_TRUE(sparse(longer));
    patch(longer, "edts", -4, "free"); // a reader gives more than the file's length: all of the last packet
    EXPECT_FALSE(sparse(longer));
    EXPECT_FALSE(sparse(encode(u"fragmented.m4a"_s, 44100, 2,
                               {u"-aac_pns"_s, u"0"_s, u"-movflags"_s, u"+frag_keyframe+empty_moov"_s})));
    EXPECT_FALSE(sparse(encode(u"a.mka"_s, 44100, 2, {u"-aac_pns"_s, u"0"_s})));
}

// HE-AAC may be signalled by nothing but an element in the packets: the decoder then returns 2048 frames for each.
TEST_F(SparseSamplesTest, AreRefusedForHeAacThatOnlyThePacketsSignal) {
    const QString plain = encode(u"plain.aac"_s, 22050, 2, {u"-aac_pns"_s, u"0"_s});
    const QByteArray in = contentOf(plain);
    QByteArray out;
    constexpr qsizetype headBits = 56; // of each packet
    for (qsizetype begin = 0; begin + 7 <= in.size();) {
        const auto byte = [&](qsizetype i) { return unsigned(std::uint8_t(in[begin + i])); };
        const qsizetype size = (byte(3) & 3) << 11 | byte(4) << 3 | byte(5) >> 5;
        ASSERT_GT(size, 8);
        ASSERT_LE(begin + size, in.size());
        // The packet ends with the three bits 111 and zeros up to a whole byte. Before them, insert a fill element
        // (110) of one byte (0001) with the extension type 1101, for spectral band replication, and no header.
        std::vector<bool> bits;
        for (qsizetype i = headBits; i < size * 8; ++i)
            bits.push_back((byte(i / 8) >> (7 - i % 8) & 1) != 0);
        while (!bits.back())
            bits.pop_back();
        bits.resize(bits.size() - 3);
        for (const char bit : std::string_view("110"
                                               "0001"
                                               "11010000"
                                               "111"))
            bits.push_back(bit == '1');
        bits.resize((bits.size() + 7) / 8 * 8);
        QByteArray packet = in.mid(begin, 7);
        for (std::size_t i = 0; i < bits.size(); i += 8) {
            unsigned value = 0;
            for (std::size_t k = 0; k < 8; ++k)
                value = value << 1 | unsigned(bits[i + k]);
            packet.append(char(value));
        }
        const auto length = unsigned(packet.size());
        packet[3] = char((byte(3) & ~3U) | length >> 11);
        packet[4] = char(length >> 3);
        packet[5] = char((length & 7) << 5 | (byte(5) & 31));
        out += packet;
        begin += size;
    }
    ASSERT_TRUE(Mpeg4Files::write(at(u"he.aac"_s), out));
    ASSERT_EQ(
        tool(u"ffmpeg"_s, {u"-v"_s, u"error"_s, u"-i"_s, at(u"he.aac"_s), u"-c"_s, u"copy"_s, at(u"he.m4a"_s)}).status,
        0);
    const auto framesOfPacket = [&] {
        const auto file = Platform::InputFile::open(at(u"he.m4a"_s), true);
        return file ? (*file)->next().frames : 0;
    };
    ASSERT_EQ(framesOfPacket(), 2048U);
    EXPECT_FALSE(sparse(at(u"he.m4a"_s)));
    patch(at(u"he.m4a"_s), "stts", 12, QByteArray("\0\0\4\0", 4)); // the index says 1024 frames for each packet
    ASSERT_EQ(framesOfPacket(), 2048U);
    EXPECT_FALSE(sparse(at(u"he.m4a"_s)));
}

} // namespace

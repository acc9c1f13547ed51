// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/encode/StretchEncoder.h"
#include "Platform/Media/linux/encode/EqualChannels.h"
#include "Platform/Media/linux/encode/SerialEncoder.h"
#include "tests/Platform/Media/MediaTestSupport.h"

#include <random>

using namespace MediaTest;
using namespace Platform;

namespace {

/// @p step: frames of one call.
template <typename Encoder>
std::vector<AacEncoder::Packet> encodedBy(const Samples& rows, const AacSettings& settings, std::size_t step) {
    Encoder encoder(settings);
    std::vector<AacEncoder::Packet> packets;
    const std::size_t frames = rows[0].size();
    for (std::size_t at = 0; at < frames; at += step) {
        const std::array<const float*, 2> from = {rows[0].data() + at, rows[1].data() + at};
        encoder.append(from.data(), std::min(step, frames - at), packets);
    }
    encoder.finish(packets);
    EXPECT_TRUE(encoder.valid());
    return packets;
}

std::vector<AacEncoder::Packet> encoded(const Samples& rows, int workers, std::int64_t stretchPackets) {
    AacSettings settings;
    settings.rowOf = {0, 1};
    settings.workers = workers;
    settings.stretchPackets = stretchPackets;
    return encodedBy<StretchEncoder>(rows, settings, 700);
}

std::vector<AacEncoder::Packet> encodedInOneRun(const Samples& rows, std::size_t step = 700) {
    return encodedBy<SerialEncoder>(rows, {.rowOf = {0, 1}}, step);
}

/// Decodes without a container; one frame of 1024 per packet.
std::vector<float> decoded(const std::vector<AacEncoder::Packet>& packets, int channel = 0) {
    const AacEncoder describing(44100, 2);
    const auto config = describing.streamInfo().config;
    Av::CodecPtr codec(avcodec_alloc_context3(avcodec_find_decoder(AV_CODEC_ID_AAC)));
    codec->extradata = static_cast<std::uint8_t*>(av_mallocz(config.size() + AV_INPUT_BUFFER_PADDING_SIZE));
    codec->extradata_size = int(config.size());
    std::ranges::copy(config, codec->extradata);
    EXPECT_EQ(avcodec_open2(codec.get(), nullptr, nullptr), 0);
    const Av::FramePtr frame(av_frame_alloc());
    const Av::PacketPtr packet(av_packet_alloc());
    std::vector<float> samples;
    for (const auto& bytes : packets) {
        EXPECT_EQ(av_new_packet(packet.get(), int(bytes.size())), 0);
        std::ranges::copy(bytes, packet->data);
        EXPECT_EQ(avcodec_send_packet(codec.get(), packet.get()), 0);
        av_packet_unref(packet.get());
        EXPECT_EQ(avcodec_receive_frame(codec.get(), frame.get()), 0);
        const auto* row = reinterpret_cast<const float*>(frame->extended_data[channel]);
        samples.insert(samples.end(), row, row + frame->nb_samples);
    }
    samples.erase(samples.begin(), samples.begin() + 1024);
    return samples;
}

/// Music-like: tones that fade in and out, and strokes that make the encoder switch its windows.
Samples strokes(std::size_t frames) {
    Samples rows = sweep(frames, 44100);
    const Samples noise = tones(frames);
    for (std::size_t c = 0; c < 2; ++c) {
        for (std::size_t i = 0; i < frames; ++i)
            rows[c][i] = rows[c][i] * 0.5f + noise[c][i] * float(std::exp(-double(i % 9000) / 1500));
    }
    return rows;
}

} // namespace

TEST(StretchEncoder, OneStretchGivesTheBytesOfOneRun) {
    const Samples sound = strokes(1024 * 500 + 77);
    EXPECT_EQ(encodedInOneRun(sound), encoded(sound, 2, 600));
}

TEST(StretchEncoder, GivesAsManyPacketsAsOneRunWhereverTheFileEnds) {
    constexpr std::int64_t stretch = 512;
    for (const std::int64_t packets : {stretch - 257, stretch - 255, stretch - 1, stretch, stretch + 1, stretch + 15,
                                       stretch + 17, stretch + 40, 2 * stretch - 256, 2 * stretch}) {
        for (const int rest : {0, 1, 1023}) {
            Samples sound(2, std::vector<float>(std::size_t(packets) * 1024 + std::size_t(rest)));
            EXPECT_EQ(encoded(sound, 3, stretch).size(), encodedInOneRun(sound).size()) << packets << " " << rest;
        }
    }
}

TEST(StretchEncoder, ASeamHasNoLargerErrorThanItsSurroundings) {
    constexpr std::int64_t stretch = 512;
    const Samples sound = strokes(1024 * stretch * 4);
    const auto serialPackets = encodedInOneRun(sound);
    const auto parallelPackets = encoded(sound, 2, stretch);
    const auto serial = decoded(serialPackets);
    const auto parallel = decoded(parallelPackets);
    ASSERT_EQ(parallel.size(), serial.size());
    const auto bytesOf = [](const std::vector<AacEncoder::Packet>& packets) {
        double bytes = 0;
        for (const auto& each : packets)
            bytes += double(each.size());
        return bytes;
    };
    EXPECT_NEAR(bytesOf(parallelPackets) / bytesOf(serialPackets), 1, 0.02) << "the quality of the same rate";
    const auto quality = [&](const std::vector<float>& what, std::size_t from, std::size_t to) {
        return signalToError(sound[0], what, from, to);
    };
    // The rate control is chaotic: the stretches of one run differ by almost a decibel. Those of several encoders must
    // stay within that range.
    const auto rangeOfStretches = [&](const std::vector<float>& what) {
        std::pair range{1000.0, 0.0};
        for (std::size_t at = 0; at + 3 * 1024 < sound[0].size(); at += stretch * 1024) {
            const double here = quality(what, at + 2048, std::min(at + (stretch + 2) * 1024, sound[0].size()));
            range = {std::min(range.first, here), std::max(range.second, here)};
        }
        return range;
    };
    const auto [worstSerial, bestSerial] = rangeOfStretches(serial);
    EXPECT_GT(rangeOfStretches(parallel).first, worstSerial - (bestSerial - worstSerial));
    // The encoder's quality varies by some dB; at a seam it must stay within that range. A window holds one stroke.
    constexpr std::size_t window = 9 * 1024;
    double lowest = 1000;
    float worst = 0;
    for (std::size_t at = window; at + 2 * window < sound[0].size(); at += window) {
        lowest = std::min(lowest, quality(serial, at, at + window));
        for (std::size_t i = at; i < at + window; ++i)
            worst = std::max(worst, std::fabs(serial[i] - sound[0][i]));
    }
    for (std::size_t seam = 1; seam < 4; ++seam) {
        // The seam may lie up to 16 packets behind the boundary.
        const std::size_t border = seam * stretch * 1024;
        for (std::size_t at = border - window; at < border + 4 * window; at += 1024)
            EXPECT_GT(quality(parallel, at, at + window), lowest - 1.0);
        for (std::size_t i = border - window; i < border + 4 * window; ++i)
            ASSERT_LE(std::fabs(parallel[i] - sound[0][i]), worst * 1.1f);
    }
}

TEST(StretchEncoder, MemoryDependsOnTheStretchesNotOnTheFile) {
    // A producer far ahead of the encoders has to wait: the amount that was appended and has not come out stays below
    // the bound.
    AacSettings settings;
    settings.rowOf = {0, 0};
    settings.workers = 2;
    settings.stretchPackets = 512;
    StretchEncoder encoder(settings);
    std::vector<float> second(44100, 0.1f);
    std::vector<AacEncoder::Packet> packets;
    std::size_t out = 0;
    for (int i = 0; i < 120; ++i) {
        const std::array<const float*, 2> rows = {second.data(), second.data()};
        encoder.append(rows.data(), second.size(), packets);
        out += packets.size();
        packets.clear();
        const double in = double(i + 1) * 44100 / 1024;
        // Finished packets of a later stretch also wait; they are small.
        EXPECT_LT(in - double(out), 3 * 512 + 256 + 128);
    }
    encoder.finish(packets);
    EXPECT_EQ(out + packets.size(), std::size_t(120 * 44100 / 1024 + 2));
}

TEST(StretchEncoder, MayBeDestroyedBeforeTheEnd) {
    AacSettings settings;
    settings.rowOf = {0, 1};
    settings.workers = 3;
    settings.stretchPackets = 512;
    StretchEncoder encoder(settings);
    const Samples sound = strokes(1024 * 800);
    std::vector<AacEncoder::Packet> packets;
    const std::array<const float*, 2> rows = {sound[0].data(), sound[1].data()};
    encoder.append(rows.data(), sound[0].size(), packets);
    EXPECT_LT(packets.size(), 800u);
}

TEST(SerialEncoder, GivesTheSamePacketsForAnyBlockSizes) {
    const Samples sound = strokes(1024 * 40 + 77);
    const auto atOnce = encodedInOneRun(sound, sound[0].size());
    EXPECT_EQ(atOnce.size(), 42U) << "40 whole packets, the rest, and the encoder's delay";
    for (const std::size_t step : {std::size_t(1), std::size_t(480), std::size_t(1024), std::size_t(1500)})
        EXPECT_EQ(encodedInOneRun(sound, step), atOnce) << step;
}

TEST(SerialEncoder, DeliversEachPacketAsSoonAsItsFramesHaveArrived) {
    SerialEncoder encoder({.rowOf = {0, 1}});
    const std::vector<float> frames(1024, 0.1F);
    const std::array<const float*, 2> rows = {frames.data(), frames.data()};
    std::vector<AacEncoder::Packet> packets;
    for (std::size_t i = 1; i <= 20; ++i) {
        encoder.append(rows.data(), frames.size(), packets);
        EXPECT_GE(packets.size() + 2, i) << "a growing file lacks at most the encoder's own delay";
    }
}

TEST(SerialEncoder, RefusesAnUnsupportedRateOrChannelCount) {
    EXPECT_FALSE(SerialEncoder({.rate = 12345, .rowOf = {0, 1}}).valid());
    EXPECT_FALSE(StretchEncoder({.rate = 12345, .rowOf = {0, 1}, .workers = 2}).valid());
}

TEST(SerialEncoder, IsNoFartherFromTheSoundThanTheLibrarysOwnChoiceAtTheSameRate) {
    // The noise differs between the channels, so that neither can be predicted from the other.
    Samples sound = strokes(1024 * 300);
    std::mt19937 random(1);
    std::uniform_real_distribution<float> noise(-0.05F, 0.05F);
    for (auto& row : sound) {
        for (float& sample : row)
            sample += noise(random);
    }
    const QTemporaryDir dir;
    const QString source = dir.filePath(QStringLiteral("source.wav"));
    const QString peer = dir.filePath(QStringLiteral("peer.m4a"));
    writeFile(source, kAudioFileWAVEType, sound);
    ASSERT_EQ(tool(QStringLiteral("ffmpeg"),
                   {QStringLiteral("-i"), source, QStringLiteral("-c:a"), QStringLiteral("aac"), peer})
                  .status,
              0);
    const auto theirs = readFile(peer).rows;
    const auto packets = encodedInOneRun(sound);
    for (int c = 0; c < 2; ++c)
        EXPECT_GT(signalToError(sound[std::size_t(c)], decoded(packets, c), 2048, sound[0].size() - 2048),
                  signalToError(sound[std::size_t(c)], theirs[std::size_t(c)], 2048, sound[0].size() - 2048));
    std::size_t bytes = 0;
    for (const auto& packet : packets)
        bytes += packet.size();
    EXPECT_LT(double(bytes) * 8 / (300 * 1024 / 44100.0), 128000 * 1.05);
}

TEST(SerialEncoder, EqualChannelsDecodeToEqualSamplesAsCloseToTheSoundAsDifferentOnes) {
    Samples sound = strokes(1024 * 300);
    sound[1] = sound[0];
    const auto packets = encodedBy<SerialEncoder>(sound, {.rowOf = {0, 0}}, 700);
    const auto one = decoded(packets);
    EXPECT_EQ(one, decoded(packets, 1));
    const auto both = decoded(encodedInOneRun(sound));
    ASSERT_EQ(one.size(), both.size());
    const auto quality = [&](const std::vector<float>& what) {
        return signalToError(sound[0], what, 2048, sound[0].size());
    };
    EXPECT_GT(quality(one), quality(both) - 0.5);
}

TEST(StretchEncoder, EncodesEqualChannelsAsOneRunDoes) {
    Samples sound = strokes(1024 * 500 + 77);
    sound[1] = sound[0];
    const AacSettings settings{.rowOf = {0, 0}, .workers = 2, .stretchPackets = 600};
    EXPECT_EQ(encodedBy<StretchEncoder>(sound, settings, 700), encodedBy<SerialEncoder>(sound, settings, 700));
}

TEST(EqualChannels, RefusesPacketsThatAreNotOfOneChannel) {
    const auto pair = encodedInOneRun(strokes(1024 * 4)).at(2);
    EXPECT_TRUE(packetOfEqualChannels(pair).empty());
    EXPECT_TRUE(packetOfEqualChannels({}).empty());
    EXPECT_TRUE(packetOfEqualChannels({0x01}).empty());
    EXPECT_TRUE(packetOfEqualChannels(std::vector<std::uint8_t>(20, 0xff)).empty());
}

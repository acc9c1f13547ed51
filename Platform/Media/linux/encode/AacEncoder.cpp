// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/encode/AacEncoder.h"
#include "Platform/Media/linux/encode/EqualChannels.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace Platform {

namespace {

/// What libavcodec chooses for two channels: the bit rate, and the upper limit in Hz at that rate.
constexpr int bitRateOfTwoChannels = 128000;
constexpr int cutoffOfTwoChannels = 16600;

/// At the same bit rate this takes about half the time of libavcodec's defaults (5.1 and 7.1). The ratio of noise to
/// masking threshold (ITU-R BS.1387) of six kinds of music is -7.4 dB on average (defaults: -7.2), of two voices -14.1
/// (-9.9), of pink noise -5.7 (-5.4). The two-loop coder with the other three options has -8.7 for the music and -12.8
/// for the voices, but takes two to three times as long.
/// Without noise substitution decoding is deterministic. Noise shaping is stored for each channel and applied after
/// mid/side decoding: with it the second one of two equal channels would differ.
constexpr std::array<std::pair<const char*, const char*>, 4> codecOptions{
    {{"aac_coder", "fast"}, {"aac_pns", "0"}, {"aac_is", "0"}, {"aac_tns", "0"}}};

} // namespace

AacEncoder::AacEncoder(int rate, int channels, bool equalChannels) : equalChannels_(equalChannels && channels == 2) {
    if (!Av::codecLibrary())
        return;
    frame_.reset(av_frame_alloc());
    packet_.reset(Av::codecs().allocPacket());
    const AVCodec* codec = Av::codecs().findEncoderByName("aac");
    Av::CodecPtr context(codec ? Av::codecs().allocContext(codec) : nullptr);
    if (!context || !frame_ || !packet_ || channels < 1 || channels > 8)
        return;
    context->sample_rate = rate;
    context->sample_fmt = AV_SAMPLE_FMT_FLTP;
    context->time_base = {1, rate};
    context->thread_count = 1;
    context->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    av_channel_layout_default(&context->ch_layout, equalChannels_ ? 1 : channels);
    if (equalChannels_) {
        // By default one channel gets about half the bit rate of two, and at the same rate a wider band.
        context->bit_rate = bitRateOfTwoChannels;
        context->cutoff = std::min(cutoffOfTwoChannels, rate / 2);
    }
    for (const auto& [option, value] : codecOptions)
        av_opt_set(context->priv_data, option, value, 0);
    if (Av::codecs().open(context.get(), codec, nullptr) < 0)
        return;
    frame_->format = AV_SAMPLE_FMT_FLTP;
    frame_->sample_rate = rate;
    frame_->nb_samples = packetFrames;
    if (av_channel_layout_copy(&frame_->ch_layout, &context->ch_layout) < 0 || av_frame_get_buffer(frame_.get(), 0) < 0)
        return;
    context_ = std::move(context);
}

AacStreamInfo AacEncoder::streamInfo() const {
    AacStreamInfo info;
    info.sampleRate = context_->sample_rate;
    info.channels = equalChannels_ ? 2 : context_->ch_layout.nb_channels;
    info.framesPerPacket = context_->frame_size;
    info.primingFrames = context_->initial_padding;
    info.bitRate = int(context_->bit_rate);
    info.config.assign(context_->extradata, context_->extradata + context_->extradata_size);
    if (equalChannels_ && info.config.size() > 1) // AudioSpecificConfig: four bits behind type and rate
        info.config[1] = std::uint8_t((info.config[1] & 0x87) | 2 << 3);
    return info;
}

bool AacEncoder::encode(const float* const* channels, int frames, std::vector<Packet>& out) {
    frame_->nb_samples = packetFrames;
    if (av_frame_make_writable(frame_.get()) < 0)
        return false;
    frame_->nb_samples = frames;
    frame_->pts = position_;
    // The encoder fails on NaN and infinity; a bad sample from a device must not end a recording.
    constexpr float loudest = 1e6f;
    for (int c = 0; c < context_->ch_layout.nb_channels; ++c) {
        auto* out = reinterpret_cast<float*>(frame_->extended_data[c]);
        for (int i = 0; i < frames; ++i)
            out[i] = std::fabs(channels[c][i]) < loudest ? channels[c][i] : 0.0f;
    }
    position_ += frames;
    return Av::codecs().sendFrame(context_.get(), frame_.get()) >= 0 && receive(out);
}

bool AacEncoder::flush(std::vector<Packet>& out) {
    if (position_ == 0)
        return true;
    return Av::codecs().sendFrame(context_.get(), nullptr) >= 0 && receive(out);
}

bool AacEncoder::receive(std::vector<Packet>& out) {
    for (;;) {
        const int code = Av::codecs().receivePacket(context_.get(), packet_.get());
        if (code == AVERROR(EAGAIN) || code == AVERROR_EOF)
            return true;
        if (code < 0)
            return false;
        Packet packet(packet_->data, packet_->data + packet_->size);
        Av::codecs().unrefPacket(packet_.get());
        if (equalChannels_ && (packet = packetOfEqualChannels(packet)).empty())
            return false;
        out.push_back(std::move(packet));
    }
}

} // namespace Platform

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/encode/AacEncoder.h"
#include "Platform/Media/linux/encode/EqualChannels.h"

#include <algorithm>
#include <cmath>

namespace Platform {

namespace {

/// What libavcodec chooses for two channels: the bit rate, and the upper limit in Hz at that rate.
constexpr int bitRateOfTwoChannels = 128000;
constexpr int cutoffOfTwoChannels = 16600;

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
        // Noise shaping is stored for each channel and applied after mid/side decoding: the second one would lack it.
        av_opt_set_int(context->priv_data, "aac_tns", 0, 0);
    }
    // Without noise substitution the upper bands keep 4 dB more of the signal, and decoding is deterministic.
    av_opt_set_int(context->priv_data, "aac_pns", 0, 0);
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

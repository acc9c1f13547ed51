// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/channel_layout.h>
#include <libavutil/opt.h>
#include <libswresample/swresample.h>
}

/// Owners of libav's objects. Nothing of this leaves the folder.
namespace Av {

template <auto Free>
struct FreeByAddress {
    template <typename T>
    void operator()(T* object) const noexcept {
        Free(&object);
    }
};

struct FreeIo {
    void operator()(AVIOContext* io) const noexcept {
        // The buffer may have been exchanged by libavformat: free the one that is there now.
        av_freep(&io->buffer);
        avio_context_free(&io);
    }
};

using CodecPtr = std::unique_ptr<AVCodecContext, FreeByAddress<avcodec_free_context>>;
using FormatPtr = std::unique_ptr<AVFormatContext, FreeByAddress<avformat_close_input>>;
using FramePtr = std::unique_ptr<AVFrame, FreeByAddress<av_frame_free>>;
using PacketPtr = std::unique_ptr<AVPacket, FreeByAddress<av_packet_free>>;
using ResamplerPtr = std::unique_ptr<SwrContext, FreeByAddress<swr_free>>;
using IoPtr = std::unique_ptr<AVIOContext, FreeIo>;

/// What libav says about @p code.
inline std::string text(int code) {
    char buffer[AV_ERROR_MAX_STRING_SIZE] = {};
    av_strerror(code, buffer, sizeof buffer);
    return buffer;
}

/// A decoder for the stream, still closed; nothing when there is none or no memory.
inline CodecPtr createDecoder(const AVStream& stream) {
    const AVCodec* codec = avcodec_find_decoder(stream.codecpar->codec_id);
    CodecPtr context(codec ? avcodec_alloc_context3(codec) : nullptr);
    if (!context || avcodec_parameters_to_context(context.get(), stream.codecpar) < 0)
        return nullptr;
    context->thread_count = 1;
    context->pkt_timebase = stream.time_base;
    return context;
}

} // namespace Av

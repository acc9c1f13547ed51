// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/linux/libav/LibAv.h"

extern "C" {
#include <libavcodec/avcodec.h>
}

namespace Av {

/// The functions of libavcodec that are used here. The library is loaded when the first sound is encoded or decoded. It
/// depends on ninety other libraries, most of them for pictures, so a window is painted first (see
/// Platform::prepareCodecs()).
struct CodecLibrary {
    decltype(&::avcodec_find_decoder) findDecoder;
    decltype(&::avcodec_find_encoder_by_name) findEncoderByName;
    decltype(&::avcodec_alloc_context3) allocContext;
    decltype(&::avcodec_free_context) freeContext;
    decltype(&::avcodec_parameters_to_context) parametersToContext;
    decltype(&::avcodec_open2) open;
    decltype(&::avcodec_send_frame) sendFrame;
    decltype(&::avcodec_receive_packet) receivePacket;
    decltype(&::avcodec_send_packet) sendPacket;
    decltype(&::avcodec_receive_frame) receiveFrame;
    decltype(&::avcodec_flush_buffers) flushBuffers;
    decltype(&::avcodec_get_name) name;
    decltype(&::avcodec_descriptor_get) descriptor;
    decltype(&::av_get_bits_per_sample) bitsPerSample;
    decltype(&::av_packet_alloc) allocPacket;
    decltype(&::av_packet_free) freePacket;
    decltype(&::av_packet_unref) unrefPacket;
    decltype(&::av_new_packet) newPacket;
    decltype(&::av_packet_get_side_data) packetSideData;
};

/// Null when the library is missing, with the reason in @p why. Once loaded it stays loaded. Any thread.
[[nodiscard]] const CodecLibrary* codecLibrary(std::string* why = nullptr);

/// The library. Call it only after codecLibrary() has returned a library.
[[nodiscard]] inline const CodecLibrary& codecs() {
    return *codecLibrary();
}

struct FreeCodec {
    void operator()(AVCodecContext* context) const noexcept { codecs().freeContext(&context); }
};
struct FreePacket {
    void operator()(AVPacket* packet) const noexcept { codecs().freePacket(&packet); }
};

using CodecPtr = std::unique_ptr<AVCodecContext, FreeCodec>;
using PacketPtr = std::unique_ptr<AVPacket, FreePacket>;

} // namespace Av

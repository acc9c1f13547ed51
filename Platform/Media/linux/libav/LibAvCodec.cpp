// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/libav/LibAvCodec.h"

#include "Platform/Media/PrepareCodecs.h"
#include "Platform/Media/linux/libav/LoadedLibrary.h"

namespace Av {

namespace {

struct LoadedCodecs {
    LoadedCodecs() : file("libavcodec.so." AV_STRINGIFY(LIBAVCODEC_VERSION_MAJOR)) {
        file.find(library.findDecoder, "avcodec_find_decoder");
        file.find(library.findEncoderByName, "avcodec_find_encoder_by_name");
        file.find(library.allocContext, "avcodec_alloc_context3");
        file.find(library.freeContext, "avcodec_free_context");
        file.find(library.parametersToContext, "avcodec_parameters_to_context");
        file.find(library.open, "avcodec_open2");
        file.find(library.sendFrame, "avcodec_send_frame");
        file.find(library.receivePacket, "avcodec_receive_packet");
        file.find(library.sendPacket, "avcodec_send_packet");
        file.find(library.receiveFrame, "avcodec_receive_frame");
        file.find(library.flushBuffers, "avcodec_flush_buffers");
        file.find(library.name, "avcodec_get_name");
        file.find(library.descriptor, "avcodec_descriptor_get");
        file.find(library.bitsPerSample, "av_get_bits_per_sample");
        file.find(library.allocPacket, "av_packet_alloc");
        file.find(library.freePacket, "av_packet_free");
        file.find(library.unrefPacket, "av_packet_unref");
        file.find(library.newPacket, "av_new_packet");
        file.find(library.packetSideData, "av_packet_get_side_data");
    }
    LoadedLibrary file;
    CodecLibrary library = {};
};

} // namespace

const CodecLibrary* codecLibrary(std::string* why) {
    static const LoadedCodecs loaded;
    if (loaded.file.why().empty())
        return &loaded.library;
    if (why)
        *why = loaded.file.why();
    return nullptr;
}

} // namespace Av

namespace Platform {

void prepareCodecs() {
    (void)Av::codecLibrary();
}

} // namespace Platform

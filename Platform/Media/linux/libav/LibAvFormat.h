// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/linux/libav/LibAvCodec.h"

extern "C" {
#include <libavformat/avformat.h>
}

namespace Av {

/// The functions of libavformat that are used here. The library is loaded when the first audio file is read: forty
/// libraries come with it (network protocols, module players, disc readers) and occupy 10 MB. A process that only
/// records never needs them, because its files are written without libavformat.
struct FormatLibrary {
    decltype(&::avio_alloc_context) allocIo;
    decltype(&::avio_context_free) freeIo;
    decltype(&::avio_seek) seekIo;
    decltype(&::avformat_alloc_context) allocContext;
    decltype(&::avformat_open_input) openInput;
    decltype(&::avformat_close_input) closeInput;
    decltype(&::avformat_find_stream_info) findStreamInfo;
    decltype(&::av_find_best_stream) findBestStream;
    decltype(&::av_read_frame) readFrame;
    decltype(&::av_seek_frame) seekFrame;
    decltype(&::avformat_index_get_entries_count) indexEntriesCount;
    decltype(&::avformat_index_get_entry) indexEntry;
};

/// Null when the library is missing, with the reason in @p why. Once loaded it stays loaded. Any thread.
[[nodiscard]] const FormatLibrary* formatLibrary(std::string* why = nullptr);

struct CloseFormat {
    void operator()(AVFormatContext* context) const noexcept { formatLibrary()->closeInput(&context); }
};

struct FreeIo {
    void operator()(AVIOContext* io) const noexcept {
        // libavformat may have replaced the buffer: free the current one.
        av_freep(&io->buffer);
        formatLibrary()->freeIo(&io);
    }
};

using FormatPtr = std::unique_ptr<AVFormatContext, CloseFormat>;
using IoPtr = std::unique_ptr<AVIOContext, FreeIo>;

/// A decoder for the stream, not yet opened; null when there is none or no memory.
inline CodecPtr createDecoder(const AVStream& stream) {
    const AVCodec* codec = codecs().findDecoder(stream.codecpar->codec_id);
    CodecPtr context(codec ? codecs().allocContext(codec) : nullptr);
    if (!context || codecs().parametersToContext(context.get(), stream.codecpar) < 0)
        return nullptr;
    context->thread_count = 1;
    context->pkt_timebase = stream.time_base;
    return context;
}

} // namespace Av

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/libav/LibAvFormat.h"

#include "Platform/Media/linux/libav/LoadedLibrary.h"

namespace Av {

namespace {

struct LoadedFormats {
    // The major version of the headers, which fits that of libavcodec: both libraries use the same streams and packets.
    LoadedFormats() : file("libavformat.so." AV_STRINGIFY(LIBAVFORMAT_VERSION_MAJOR)) {
        file.find(library.allocIo, "avio_alloc_context");
        file.find(library.freeIo, "avio_context_free");
        file.find(library.seekIo, "avio_seek");
        file.find(library.allocContext, "avformat_alloc_context");
        file.find(library.openInput, "avformat_open_input");
        file.find(library.closeInput, "avformat_close_input");
        file.find(library.findStreamInfo, "avformat_find_stream_info");
        file.find(library.findBestStream, "av_find_best_stream");
        file.find(library.readFrame, "av_read_frame");
        file.find(library.seekFrame, "av_seek_frame");
        file.find(library.indexEntriesCount, "avformat_index_get_entries_count");
        file.find(library.indexEntry, "avformat_index_get_entry");
        (void)codecLibrary(&codecsMissing);
    }
    LoadedLibrary file;
    FormatLibrary library = {};
    std::string codecsMissing; // why libavcodec cannot be used; empty when it can
};

} // namespace

const FormatLibrary* formatLibrary(std::string* why) {
    static const LoadedFormats loaded;
    if (loaded.file.why().empty() && loaded.codecsMissing.empty())
        return &loaded.library;
    if (why)
        *why = loaded.file.why().empty() ? loaded.codecsMissing : loaded.file.why();
    return nullptr;
}

} // namespace Av

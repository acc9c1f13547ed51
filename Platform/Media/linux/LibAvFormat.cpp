// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/LibAvFormat.h"

#include <dlfcn.h>

namespace Av {

namespace {

struct Loaded {
    FormatLibrary library = {};
    std::string why; // why it cannot be used; empty when it can
};

Loaded load() {
    Loaded loaded;
    // The version of the headers: it matches the libavcodec that this program is linked with.
    constexpr const char* name = "libavformat.so." AV_STRINGIFY(LIBAVFORMAT_VERSION_MAJOR);
    void* const handle = dlopen(name, RTLD_LAZY | RTLD_LOCAL);
    const auto complain = [&] {
        const char* const error = dlerror();
        loaded.why = error ? error : name;
    };
    if (!handle) {
        complain();
        return loaded;
    }
    const auto find = [&]<typename Function>(Function*& function, const char* symbol) {
        function = reinterpret_cast<Function*>(dlsym(handle, symbol));
        if (!function && loaded.why.empty())
            complain();
    };
    FormatLibrary& library = loaded.library;
    find(library.allocIo, "avio_alloc_context");
    find(library.freeIo, "avio_context_free");
    find(library.seekIo, "avio_seek");
    find(library.allocContext, "avformat_alloc_context");
    find(library.openInput, "avformat_open_input");
    find(library.closeInput, "avformat_close_input");
    find(library.findStreamInfo, "avformat_find_stream_info");
    find(library.findBestStream, "av_find_best_stream");
    find(library.readFrame, "av_read_frame");
    find(library.seekFrame, "av_seek_frame");
    find(library.indexEntriesCount, "avformat_index_get_entries_count");
    find(library.indexEntry, "avformat_index_get_entry");
    return loaded;
}

} // namespace

const FormatLibrary* formatLibrary(std::string* why) {
    static const Loaded loaded = load();
    if (loaded.why.empty())
        return &loaded.library;
    if (why)
        *why = loaded.why;
    return nullptr;
}

} // namespace Av

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

extern "C" {
#include <libavutil/channel_layout.h>
#include <libavutil/opt.h>
#include <libswresample/swresample.h>
}

/// Owners of libav's objects. No libav type leaves this folder.
namespace Av {

template <auto Free>
struct FreeByAddress {
    template <typename T>
    void operator()(T* object) const noexcept {
        Free(&object);
    }
};

using FramePtr = std::unique_ptr<AVFrame, FreeByAddress<av_frame_free>>;
using ResamplerPtr = std::unique_ptr<SwrContext, FreeByAddress<swr_free>>;

/// libav's text for the error @p code.
inline std::string text(int code) {
    char buffer[AV_ERROR_MAX_STRING_SIZE] = {};
    av_strerror(code, buffer, sizeof buffer);
    return buffer;
}

} // namespace Av

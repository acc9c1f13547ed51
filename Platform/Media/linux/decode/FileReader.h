// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/linux/decode/InputFile.h"
#include "Platform/Media/linux/libav/RateConverter.h"

namespace Platform {

class FileReader final : public ExtAudioFileReader {
public:
    explicit FileReader(std::unique_ptr<InputFile> input);

    [[nodiscard]] AudioStreamBasicDescription fileDataFormat() const override { return input_->dataFormat(); }
    [[nodiscard]] std::int64_t fileLengthFrames() const override { return input_->lengthFrames(); }
    OSStatus setClientDataFormat(const AudioStreamBasicDescription& format) override;
    OSStatus seek(std::int64_t clientFrame) override;
    OSStatus read(std::uint32_t& frames, AudioBufferList* data) override;
    [[nodiscard]] bool seeksExactly() const override;
    [[nodiscard]] bool sparseSamples(std::span<const std::int64_t> frames, std::span<float> out) override;
    [[nodiscard]] Error firstError() const override { return firstError_; }
    [[nodiscard]] QString metadata(const QString& key) const override { return input_->metadata(key); }

    /// For callers inside this folder that can use rows directly: all frames that are decoded, valid until the next
    /// call.
    struct Rows {
        const float* const* rows = nullptr;
        std::size_t frames = 0;
        OSStatus status = noErr;
    };
    [[nodiscard]] Rows readRows(std::size_t most);

private:
    bool fill(OSStatus& status);

    std::unique_ptr<InputFile> input_;
    AudioStreamBasicDescription client_;
    std::unique_ptr<ConversionStream> converter_; // null when the rates are equal
    Planes converted_;
    std::vector<const float*> rows_; // frames that are decoded and not yet returned
    std::size_t waiting_ = 0;
    std::int64_t drop_ = 0; // converted frames before a seek's target
    bool ended_ = false;
    bool atStart_ = true;             // nothing has been read since the file was opened
    std::vector<const float*> given_; // the rows of the last readRows()
    Error firstError_;
};

} // namespace Platform

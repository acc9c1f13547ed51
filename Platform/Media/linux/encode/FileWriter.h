// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/ExtAudioFile.h"

#include <memory>

namespace Platform {

/// The writer implementation: an encoder behind a ring, on a thread of its own.
class FileWriter final : public ExtAudioFileWriter {
public:
    FileWriter(const QString& path, std::uint32_t fileType, const AudioStreamBasicDescription& format);
    ~FileWriter() override;
    /// Creates the file. Call once.
    Result<> open(bool overwrite);

    OSStatus setClientDataFormat(const AudioStreamBasicDescription& format) override;
    [[nodiscard]] bool hasAudioConverter() const override;
    OSStatus setConverterChannelMap(std::span<const std::int32_t> map) override;
    OSStatus continueFrom(ExtAudioFileWriter& predecessor) override;
    OSStatus write(std::uint32_t frames, const AudioBufferList* data) override;
    OSStatus writeAsync(std::uint32_t frames, const AudioBufferList* data) override;
    OSStatus dispose() override;
    void disposeLater(std::function<void(OSStatus)> closed) override;
    [[nodiscard]] std::int64_t framesAccepted() const override;
    [[nodiscard]] Error firstError() const override;
    [[nodiscard]] QString path() const override;

private:
    struct Core;
    void start(bool parallel);
    OSStatus push(std::uint32_t frames, const AudioBufferList* data, std::size_t wakeAfter);

    std::shared_ptr<Core> core_; // shared with the file's thread, which may outlive the writer
};

} // namespace Platform

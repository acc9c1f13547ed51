// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/ReplacementFile.h"
#include "Platform/Media/linux/MediaErrors.h"

#include <cstdint>
#include <memory>
#include <mutex>
#include <span>

namespace Platform {

/// A file that grows at its end and whose beginning may be patched. It keeps its first error; after one, nothing more
/// is appended, so that what stands in the file stays whole. One thread writes, firstError() is for any.
class OutputFile {
public:
    OutputFile() = default;
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    /// Creates the file; an existing one is emptied when @p overwrite, else it is kept and the call fails. Never waits
    /// for a FIFO or a device.
    [[nodiscard]] MediaError create(const QString& path, bool overwrite);

    /// Appends all of @p bytes, or nothing: a part that went in before an error is cut off again.
    bool append(std::span<const std::uint8_t> bytes);
    bool patch(std::int64_t offset, std::span<const std::uint8_t> bytes);
    bool readBack(std::int64_t offset, std::span<std::uint8_t> bytes) const;
    [[nodiscard]] std::int64_t size() const { return size_; }

    /// Begins a second form of this file, which has no name yet; false when it cannot be made, or when this file no
    /// longer lies at its path. A failure is never this file's error.
    [[nodiscard]] bool beginReplacement(OutputFile& replacement) const;
    /// Syncs the @p replacement, puts it in this file's place in one step, and goes on with it; a failed one is
    /// discarded. A power cut leaves the one form or the other, never an empty file.
    bool replaceWith(OutputFile& replacement);

    /// Waits until the file and its name are on the disk; an error of the disk is told here, if anywhere.
    void sync();
    void close();
    void fail(const MediaError& error);
    [[nodiscard]] bool failed() const;
    [[nodiscard]] MediaError firstError() const;
    [[nodiscard]] const QString& path() const { return path_; }

private:
    void syncContent();

    QString path_;
    int fd_ = -1;
    std::int64_t size_ = 0;
    std::unique_ptr<ReplacementFile> hidden_; // set while this is another file's replacement
    mutable std::mutex mutex_;                // guards error_
    MediaError error_;
};

} // namespace Platform

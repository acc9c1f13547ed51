// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/ReplacementFile.h"
#include "Platform/Media/linux/libav/MediaErrors.h"

#include <cstdint>
#include <memory>
#include <mutex>
#include <span>

namespace Platform {

/// A file that grows at its end and whose beginning may be patched. It keeps its first error; after an error nothing
/// more is appended, so that the existing content stays readable. One thread writes; firstError() is for any thread.
class OutputFile {
public:
    OutputFile() = default;
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    /// Creates the file. An existing file is truncated when @p overwrite, else it is kept and the call fails. Never
    /// blocks on a FIFO or a device.
    Result<> create(const QString& path, bool overwrite);

    /// Appends all of @p bytes, or nothing: a part that was written before an error is removed again.
    bool append(std::span<const std::uint8_t> bytes);
    bool patch(std::int64_t offset, std::span<const std::uint8_t> bytes);
    bool readBack(std::int64_t offset, std::span<std::uint8_t> bytes) const;
    [[nodiscard]] std::int64_t size() const { return size_; }

    /// Starts a second version of this file under no name yet; false when it cannot be created, or when this file is no
    /// longer at its path. A failure does not become this file's error.
    [[nodiscard]] bool beginReplacement(OutputFile& replacement) const;
    /// Syncs @p replacement, renames it over this file in one step, and continues with it; a failed one is discarded. A
    /// power cut leaves one version or the other, never an empty file.
    bool replaceWith(OutputFile& replacement);

    /// Waits until the file and its name are on the disk. Some disk errors are only reported here.
    void sync();
    void close();
    void fail(const Error& error);
    [[nodiscard]] bool failed() const;
    [[nodiscard]] Error firstError() const;
    [[nodiscard]] const QString& path() const { return path_; }

private:
    void syncContent();

    QString path_;
    int fd_ = -1;
    std::int64_t size_ = 0;
    std::unique_ptr<ReplacementFile> hidden_; // set while this is another file's replacement
    mutable std::mutex mutex_;                // guards error_
    Error error_;
};

} // namespace Platform

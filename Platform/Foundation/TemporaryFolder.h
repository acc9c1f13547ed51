// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/FileLock.h"

namespace Platform {

/// A folder below the user's temporary folder that belongs to one process; the destructor removes it. Folders of killed
/// processes are removed by the next process that creates such a folder.
class TemporaryFolder {
public:
    /// @param kind is part of the folder's name, one per purpose.
    static Result<TemporaryFolder> create(const QString& kind);
    /// Removes a folder with its content; a link is removed, not followed. Errors are ignored. Files of the user that a
    /// crash left in it are moved back first (MovedFiles); where that fails, the file and the folder are kept.
    static void removeWhole(const QString& path);

    ~TemporaryFolder();
    TemporaryFolder(TemporaryFolder&& other) noexcept = default;
    TemporaryFolder& operator=(TemporaryFolder&& other) = delete;
    [[nodiscard]] QString path() const { return path_; }

private:
    TemporaryFolder(FileLock lock, const QString& path) : lock_(std::move(lock)), path_(path) {}
    FileLock lock_; // lies beside the folder; held while the folder is in use
    QString path_;
};

} // namespace Platform

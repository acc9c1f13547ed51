// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Result.h"
#include "Platform/Foundation/linux/Descriptor.h"

#include <QString>

#include <sys/stat.h>

namespace Platform {

/// Conditions on a file that this process did not create. It must always be a regular file.
struct FileRules {
    bool writable = false;     ///< open for reading and writing
    bool ownUser = false;      ///< it must belong to this user or to root
    bool noLink = false;       ///< its name must not be a symbolic link
    std::int64_t largest = -1; ///< bytes; a negative value allows any size
};

struct OpenedFile {
    Descriptor file;       ///< empty on failure
    struct stat status {}; ///< of the file, also when a rule refused it
    int code = 0;          ///< errno; 0 when a rule refused the file
    Error error;           ///< none on success; the text says why, without the path
    [[nodiscard]] bool isFolder() const { return S_ISDIR(status.st_mode); }
};

/// Opens a file that this process did not create: a source, settings, a note left by a crash. All such files are opened
/// here. Never blocks and never changes anything: a pipe or a device of that name is refused without opening it. Any
/// thread.
[[nodiscard]] OpenedFile openFile(const QString& path, const FileRules& rules = {});

/// Reads such a file completely. Without a limit in @p rules at most 64 MiB.
Result<QByteArray> readFile(const QString& path, const FileRules& rules);

} // namespace Platform

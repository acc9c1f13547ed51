// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/linux/Descriptor.h"

#include <QString>

#include <optional>
#include <sys/stat.h>

namespace Platform {

/// Conditions on a file that this process did not make. It must always be a regular file.
struct FileRules {
    bool writable = false;     ///< open for reading and writing
    bool ownUser = false;      ///< it must belong to this user or to root
    bool noLink = false;       ///< its name must not be a symbolic link
    std::int64_t largest = -1; ///< bytes; below zero: any size
};

struct OpenedFile {
    Descriptor file;       ///< empty on failure
    struct stat status {}; ///< of the file, also of one that a rule refused
    int error = 0;         ///< errno; 0 when a rule refused the file
    QString why;           ///< for people; empty on success
    [[nodiscard]] bool isFolder() const { return S_ISDIR(status.st_mode); }
};

/// Opens a file that this process did not make: a source, settings, a note that a crash left. All such files are opened
/// here. Never waits and never changes anything: a pipe or a device of that name is refused unopened. Any thread.
[[nodiscard]] OpenedFile openFile(const QString& path, const FileRules& rules = {});

/// Reads the whole of such a file. Without a limit in @p rules at most 64 MiB. @return nothing on failure, with @p why.
[[nodiscard]] std::optional<QByteArray> readFile(const QString& path, const FileRules& rules, QString& why);

} // namespace Platform

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>

/// Paths that contain aliases. An alias is a symbolic link. Any thread.
namespace CarbonUtilities {

/// One existing file: its identity on the system, and its path.
struct FSRef {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    QByteArray path; ///< UTF-8, unchanged
};

/// The path of a reference; null for a null reference, for one whose file is gone, and for a path of more than 1024
/// bytes.
[[nodiscard]] QString stringWithFSRef(const FSRef* reference);
/// Fills @p reference with the file at the path itself, even when it is an alias; false when there is none.
[[nodiscard]] bool getFSRef(const QString& path, FSRef& reference);
/// The final target of an alias, through chains of aliases; the path itself when it is not an alias; null when nothing
/// is at the path, or when the alias is broken or circular.
[[nodiscard]] QString resolveAliasFile(const QString& path);

} // namespace CarbonUtilities

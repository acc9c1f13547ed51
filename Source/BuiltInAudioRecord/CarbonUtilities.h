// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>

/// Paths that lead through aliases. An alias is a symbolic link. Any thread.
namespace CarbonUtilities {

/// One existing file, by what the system knows it as and by its path.
struct FSRef {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    QByteArray path; ///< UTF-8, as it was given
};

/// The path of a reference; null for no reference, one whose file has gone, and a path of more than 1024 bytes.
[[nodiscard]] QString stringWithFSRef(const FSRef* reference);
/// Fills @p reference with the file at the path itself, be it an alias; false when there is none.
[[nodiscard]] bool getFSRef(const QString& path, FSRef& reference);
/// Where an alias leads in the end, through chains of them; the path itself when it is no alias; null when there is
/// nothing at the path, or when the alias is broken or leads back to itself.
[[nodiscard]] QString resolveAliasFile(const QString& path);

} // namespace CarbonUtilities

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Names a recording's file after its title. A rename never overwrites and never leaves the folder. Any thread,
/// blocking.
namespace RecordingRename {

/// The file's path with the title in place of its name; folder and ending stay. The title is not checked.
[[nodiscard]] QString pathForTitle(const QString& path, const QString& title);

struct Outcome {
    QString path;   ///< where the file is now
    QString notice; ///< one sentence why the file kept its name; empty when it has its new one, or had it before
};
/// Renames the file at @p path. A title that no file can be named after, and a name that is taken, leave the file as it
/// is. A link is renamed itself.
[[nodiscard]] Outcome rename(const QString& path, const QString& title);

} // namespace RecordingRename

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"

#include <QString>

/// Renames a recording's file after its title. Never overwrites and never moves to another folder. Any thread,
/// blocking.
namespace RecordingRename {

/// The file's path with the title as its name; folder and extension stay. The title is not checked.
[[nodiscard]] QString pathForTitle(const QString& path, const QString& title);

struct Outcome {
    QString path;   ///< the file's present path
    QString notice; ///< one sentence: why the file kept its name; empty when it has the new name
};
/// Renames the file at @p path. When the title cannot be a file name, or the name is taken, the file stays as it is. A
/// symbolic link itself is renamed.
[[nodiscard]] Outcome rename(const QString& path, const QString& title);

/// Renames the kept tracks of a mix (RecordingTracks) after the mix was renamed from @p before to @p after. A track
/// that is missing, has another name, or whose new name is taken keeps its path. @return the entry with the present
/// paths
[[nodiscard]] Dictionary renameTracks(const Dictionary& entry, const QString& before, const QString& after);

} // namespace RecordingRename

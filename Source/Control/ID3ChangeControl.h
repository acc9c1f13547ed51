// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"

#include <QImage>

/// Writes text tags and artwork into MPEG-4 audio files. Synchronous on the caller's thread, one thread at a time:
/// names in the temporary folder (g_strTmpPath) are numbered, not reserved. The keys of a tag dictionary are those of
/// AudioRecordEntry. No message is shown and file system errors are not reported; a file is never lost.
namespace ID3ChangeControl {

/// Writes an image to a new file in the temporary folder: JPEG data, although the name ends in ".png".
[[nodiscard]] QString createPathForImage(const QImage& image);
/// Writes artwork and text tags. When the two paths differ, this moves the file. A null artwork path means the default
/// artwork. When the artwork tool fails, the source stays at its path. Another file at the destination is set aside
/// (FileManager::setAside), not overwritten.
void changeID3(const QString& source, const QString& destAudioPath, const Dictionary& ID3Info,
               const QString& artworkPath);
/// Writes text tags in place. Any thread, one at a time per file: it uses no temporary name.
bool changeID3BasicInfo(const QString& path, const Dictionary& ID3Info);
/// Writes artwork in place.
void changeID3ArtworkInfo(const QString& path, const QString& artworkPath);
bool changeID3Info(const QString& path, const Dictionary& ID3Info);
/// Runs the artwork tool; it succeeded when the destination exists afterwards.
void changeID3Artwork(const QString& source, const QString& destPath, const QString& artworkPath);

/// The shell command that runs the artwork tool. Characters that a shell interprets inside double quotes are escaped.
[[nodiscard]] QString artworkCommandLine(const QString& tool, const QString& source, const QString& artwork,
                                         const QString& destination);

} // namespace ID3ChangeControl

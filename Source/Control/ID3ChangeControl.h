// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"

#include <QImage>

/// Writes text tags and artwork into MPEG-4 audio files. Synchronous on the caller's thread. The keys of a tag
/// dictionary are those of AudioRecordEntry.
namespace ID3ChangeControl {

/// Renders an image to a new file in the temporary folder: JPEG data, although the name ends in ".png".
[[nodiscard]] QString createPathForImage(const QImage& image);
/// Artwork and text tags; from one path to another it is a move. A null artwork path means the default artwork.
void changeID3(const QString& source, const QString& destAudioPath, const Dictionary& ID3Info,
               const QString& artworkPath);
/// Text tags in place.
bool changeID3BasicInfo(const QString& path, const Dictionary& ID3Info);
/// Artwork in place.
void changeID3ArtworkInfo(const QString& path, const QString& artworkPath);
bool changeID3Info(const QString& path, const Dictionary& ID3Info);
/// Runs the artwork tool; whether the destination exists afterwards says whether it worked.
void changeID3Artwork(const QString& source, const QString& destPath, const QString& artworkPath);

} // namespace ID3ChangeControl

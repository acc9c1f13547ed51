// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"

/// The dictionary that describes one file of the burn window's track list, and its keys.
namespace TrackEntry {
inline const QString FilePath = QStringLiteral("FilePath");
inline const QString FileName = QStringLiteral("FileName");             ///< last component of the path, with extension
inline const QString FileTimeLong = QStringLiteral("FileTimeLong");     ///< 64-bit integer: whole seconds plus one
inline const QString FileSize = QStringLiteral("FileSize");             ///< float: estimated megabytes on the disc
inline const QString ChooseTheAudio = QStringLiteral("ChooseTheAudio"); ///< bool: ticked for burning
inline const QString NumberForMusic = QStringLiteral("NumberForMusic"); ///< int: row, counted from 0
} // namespace TrackEntry

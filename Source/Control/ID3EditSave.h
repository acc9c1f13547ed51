// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"
#include "Source/Control/EditNote.h"

/// Writes edited tags into a recording and renames its file after the title.
namespace ID3EditSave {

/// The year for a typed text: empty for fewer than four characters, else the number in the first four; 2012 when that
/// is below 1000.
[[nodiscard]] QString yearText(const QString& typed);

/// How the cover changes.
struct Artwork {
    enum class Kind {
        Keep,   ///< keep the file's own cover, byte for byte
        Set,    ///< use the image at path
        Default ///< use the default cover
    };
    Kind kind = Kind::Keep;
    QString path{};
};

struct Result {
    Dictionary entry;             ///< the entry with the file's present values, including the path
    QString notice;               ///< one sentence about what failed; empty on success
    std::optional<EditNote> note; ///< call end() when the library has the entry; set when the file was changed
};

/// Saves. On a worker; a second call waits for the first. @p before is the entry with the file's path and present tags,
/// @p edited the same entry with the new tags and the old path.
[[nodiscard]] Result save(const Dictionary& before, const Dictionary& edited, const Artwork& artwork);

} // namespace ID3EditSave

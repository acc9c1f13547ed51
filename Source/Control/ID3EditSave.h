// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"
#include "Source/Control/EditNote.h"

/// Writes edited tags into a recording and names its file after the title.
namespace ID3EditSave {

/// The year that is meant by a typed text: empty for fewer than four characters, else the number that the first four
/// begin with; 2012 for one below 1000.
[[nodiscard]] QString yearText(const QString& typed);

/// How the cover changes.
struct Artwork {
    enum class Kind {
        Keep,   ///< the file's own cover stays, byte for byte
        Set,    ///< the picture at path
        Default ///< the default cover
    };
    Kind kind = Kind::Keep;
    QString path{};
};

struct Result {
    Dictionary entry;             ///< the entry as the file is now, path included
    QString notice;               ///< one sentence about what could not be done; empty when all was
    std::optional<EditNote> note; ///< end() it when the library has the entry; set when the file was changed
};

/// Does it. On a worker, one at a time in a process. @p before is the entry with the file's path and its tags so far,
/// @p edited the same entry with the new tags and the old path.
[[nodiscard]] Result save(const Dictionary& before, const Dictionary& edited, const Artwork& artwork);

} // namespace ID3EditSave

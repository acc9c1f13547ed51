// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace Platform::Media {

class PatchedFile;

/// One box of an MPEG-4 file, with the boxes in it where tags or the places of the audio are found in it.
struct Mpeg4Atom {
    QByteArray name;
    qint64 offset = 0;
    qint64 length = 0;  ///< header included
    qint64 content = 0; ///< where what is in it begins
    std::vector<Mpeg4Atom> children;

    [[nodiscard]] const Mpeg4Atom* child(const char* wanted) const;
};

/// The boxes of a file whose sizes all fit into one another.
struct Mpeg4Atoms {
    std::vector<Mpeg4Atom> top;
    bool complete = true; ///< false: the file ends within its last box

    [[nodiscard]] const Mpeg4Atom* find(const char* name) const;
    /// The way to the tag list, "moov", "udta", "meta", "ilst", as far as it is there.
    [[nodiscard]] std::vector<const Mpeg4Atom*> tagPath() const;
    /// Its end; null when the file has no tags.
    [[nodiscard]] const Mpeg4Atom* tagList() const;
};

/// Walks the boxes, all of whose sizes a file may lie about. Nothing when the file is no MPEG-4 file with an index, or
/// when a size or a table in it claims more than there is; @p why then says which.
[[nodiscard]] std::optional<Mpeg4Atoms> readMpeg4Atoms(const PatchedFile& file, QString& why);

} // namespace Platform::Media

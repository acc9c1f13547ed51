// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/mpeg4/Mpeg4Layout.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace Platform {
namespace {

constexpr std::size_t mostLaidOutBoxes = 2'000'000;

/// Whether the data behind the index is part of an index that an interrupted save left: truncated, or zeros where a
/// power cut came before the content.
bool isUnfinished(const std::optional<Mpeg4Box>& box, std::int64_t left) {
    if (!box)
        return left < 8;
    return box->type == fourCharCode("moov") || isFree(*box);
}

} // namespace

bool isFree(const Mpeg4Box& box) {
    return box.type == fourCharCode("free") || box.type == fourCharCode("skip") || box.type == 0;
}

std::optional<Mpeg4Layout> readLayout(const ByteSource& file, QString& why) {
    const auto refuse = [&why](const QString& reason) {
        why = reason;
        return std::nullopt;
    };
    if (numberAt(file, 4, 4) != fourCharCode("ftyp"))
        return refuse(QCoreApplication::translate("Media", "not an MPEG-4 file"));
    Mpeg4Layout layout;
    bool hasIndex = false;
    for (std::int64_t at = 0; at < file.size(); at = layout.boxes.back().end()) {
        auto box = readBoxHeader(file, at, file.size());
        const bool isWhole = box && box->end() <= file.size() && (box->type != 0 || !box->openEnded);
        if (!isWhole && hasIndex && !layout.fragmented && isUnfinished(box, file.size() - at))
            break;
        if (!box && file.size() - at >= 8)
            return refuse(QCoreApplication::translate("Media", "a box of impossible size"));
        layout.complete = box && box->end() <= file.size();
        if (!box)
            break;
        const bool isIndex = box->type == fourCharCode("moov");
        if (!layout.complete && (isIndex || box->type == fourCharCode("moof")))
            return refuse(QCoreApplication::translate("Media", "the file ends within its index"));
        if (layout.boxes.size() >= mostLaidOutBoxes)
            return refuse(QCoreApplication::translate("Media", "too many boxes"));
        layout.fragmented = layout.fragmented || box->type == fourCharCode("moof");
        box->length = std::min(box->length, file.size() - at);
        if (!isFree(*box) && !(isIndex && hasIndex))
            layout.end = box->end();
        if (isIndex && !hasIndex) {
            if (!readBoxTree(file, *box, why))
                return std::nullopt;
            layout.index = layout.boxes.size();
            layout.fragmented = layout.fragmented || box->child(fourCharCode("mvex"));
            hasIndex = true;
        }
        layout.boxes.push_back(std::move(*box));
    }
    if (!hasIndex)
        return refuse(QCoreApplication::translate("Media", "the file has no index"));
    return layout;
}

} // namespace Platform

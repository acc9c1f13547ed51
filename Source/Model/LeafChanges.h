// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QVariantList>

#include <vector>

/// The steps from one list of audio record entries to the next. A view applies them in this order: rows leave, the rows
/// that stay change their places, new rows come, and rows are drawn anew.
struct LeafChange {
    /// Both included.
    struct Rows {
        int first;
        int last;
        friend bool operator==(const Rows&, const Rows&) = default;
    };
    std::vector<Rows> removed;  ///< rows of the list before, the last ones first
    std::vector<int> moved;     ///< for each place, the row that comes to stand there, counted without the removed and
                                ///< the inserted rows; empty when the entries that stay keep their order
    std::vector<Rows> inserted; ///< rows of the new list, the first ones first
    std::vector<Rows> replaced; ///< rows of the new list whose entry has other values now, the first ones first
    QVariantList entries;       ///< the new list, shared with the leaf

    [[nodiscard]] bool isEmpty() const {
        return removed.empty() && moved.empty() && inserted.empty() && replaced.empty();
    }
    /// Whether the only step is that rows come.
    [[nodiscard]] bool onlyInserts() const { return removed.empty() && moved.empty() && replaced.empty(); }
};

namespace LeafChanges {

/// An entry is the same one when it has the same key, or no key and the same values. The time grows with the length of
/// the part that differs; what both lists share is only compared.
[[nodiscard]] LeafChange between(const QVariantList& before, const QVariantList& after);

} // namespace LeafChanges

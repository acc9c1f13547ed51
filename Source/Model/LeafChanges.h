// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QVariantList>

#include <vector>

/// The steps from one list of audio record entries to the next. A view applies them in this order: remove rows, reorder
/// the remaining rows, insert rows, redraw rows.
struct LeafChange {
    /// First and last row, both included.
    struct Rows {
        int first;
        int last;
        friend bool operator==(const Rows&, const Rows&) = default;
    };
    std::vector<Rows> removed; ///< rows of the old list, last ones first
    std::vector<int> moved; ///< for each position, the row that moves there, counted without removed and inserted rows;
                            ///< empty when the remaining entries keep their order
    std::vector<Rows> inserted; ///< rows of the new list, first ones first
    std::vector<Rows> replaced; ///< rows of the new list whose entry has new values, first ones first
    QVariantList entries;       ///< the new list, shared with the leaf

    [[nodiscard]] bool isEmpty() const {
        return removed.empty() && moved.empty() && inserted.empty() && replaced.empty();
    }
    /// Whether the change only inserts rows.
    [[nodiscard]] bool onlyInserts() const { return removed.empty() && moved.empty() && replaced.empty(); }
};

namespace LeafChanges {

/// Two entries are the same when they have the same key, or no key and the same values. The time depends on the length
/// of the part that differs; the common parts are only compared.
[[nodiscard]] LeafChange between(const QVariantList& before, const QVariantList& after);

} // namespace LeafChanges

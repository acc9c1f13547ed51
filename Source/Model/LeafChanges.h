// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QVariantList>

#include <optional>
#include <vector>

/// The rows by which two lists of audio record entries differ, so that views need not reload the whole list.
namespace LeafChanges {

struct Step {
    enum class Kind { Removed, Inserted, Replaced };
    Kind kind;
    int index; ///< of the row at this step: removals come first, from the last row to the first, then the others from
               ///< the first to the last
};

/// The steps from @p before to @p after. Nothing when there are too many steps, or when entries that are in both lists
/// have changed their order.
[[nodiscard]] std::optional<std::vector<Step>> between(const QVariantList& before, const QVariantList& after);

} // namespace LeafChanges

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Model/LeafChanges.h"

#include "Platform/Foundation/Dictionary.h"
#include "Source/Model/AudioRecordEntry.h"

#include <QDataStream>
#include <QHash>
#include <QIODevice>

#include <algorithm>
#include <deque>
#include <iterator>
#include <numeric>

namespace LeafChanges {
namespace {

/// Equal for two versions of the same entry.
QByteArray identityOf(const QVariant& entry) {
    if (const QVariant key = AudioRecordEntry::keyOf(entry); key.isValid())
        return 'k' + Platform::stringForm(key).toUtf8();
    QByteArray values("v");
    QDataStream stream(&values, QIODevice::Append);
    stream << entry;
    return values;
}

/// Adds a row behind the rows added before.
void addRow(std::vector<LeafChange::Rows>& ranges, int row) {
    if (!ranges.empty() && ranges.back().last == row - 1)
        ranges.back().last = row;
    else
        ranges.push_back({row, row});
}

/// For each remaining row, its old position among the remaining rows.
std::vector<int> permutationOf(const std::vector<int>& targets) {
    std::vector<int> order(targets.size());
    std::iota(order.begin(), order.end(), 0);
    std::ranges::sort(order, {}, [&](int row) { return targets[static_cast<std::size_t>(row)]; });
    return order;
}

} // namespace

LeafChange between(const QVariantList& before, const QVariantList& after) {
    LeafChange change;
    change.entries = after;
    // Long lists usually differ in a few rows only: equal rows at both ends are skipped without looking at keys.
    const auto top = std::mismatch(before.cbegin(), before.cend(), after.cbegin(), after.cend());
    const auto bottom = std::mismatch(before.crbegin(), std::make_reverse_iterator(top.first), after.crbegin(),
                                      std::make_reverse_iterator(top.second));
    const int first = static_cast<int>(top.first - before.cbegin());
    const int last = static_cast<int>(bottom.first.base() - before.cbegin());
    const int lastNow = static_cast<int>(bottom.second.base() - after.cbegin());

    if (first == last || first == lastNow) { // the case at every start and after every addition
        if (first < last)
            change.removed.push_back({first, last - 1});
        if (first < lastNow)
            change.inserted.push_back({first, lastNow - 1});
        return change;
    }

    QHash<QByteArray, std::deque<int>> rowsNow;
    for (int row = first; row < lastNow; ++row)
        rowsNow[identityOf(after[row])].push_back(row);

    std::vector<int> targets; // new positions of the remaining rows, in their old order
    std::vector<bool> isOld(static_cast<std::size_t>(lastNow - first));
    for (int row = first; row < last; ++row) {
        const auto found = rowsNow.find(identityOf(before[row]));
        if (found == rowsNow.end() || found->empty()) {
            addRow(change.removed, row);
            continue;
        }
        const int now = found->front();
        found->pop_front();
        targets.push_back(now);
        isOld[static_cast<std::size_t>(now - first)] = true;
        if (before[row] != after[now])
            change.replaced.push_back({now, now});
    }
    std::ranges::reverse(change.removed);
    for (int row = first; row < lastNow; ++row)
        if (!isOld[static_cast<std::size_t>(row - first)])
            addRow(change.inserted, row);
    std::ranges::sort(change.replaced, {}, &LeafChange::Rows::first);
    std::vector<LeafChange::Rows> joined;
    for (const auto& rows : change.replaced)
        addRow(joined, rows.first);
    change.replaced = std::move(joined);

    if (!std::ranges::is_sorted(targets)) {
        const auto order = permutationOf(targets);
        const auto above = static_cast<std::size_t>(first);
        change.moved.resize(above + order.size() + static_cast<std::size_t>(before.size() - last));
        std::iota(change.moved.begin(), change.moved.end(), 0);
        for (std::size_t place = 0; place < order.size(); ++place)
            change.moved[above + place] = first + order[place];
    }
    return change;
}

} // namespace LeafChanges

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/CDBurn/TrackListModel.h"

#include "Source/CDBurn/TrackEntry.h"
#include "Source/Control/ToolControl.h"

#include <algorithm>
#include <iterator>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

const QString kChoose = QStringLiteral("Choose");
const QString kAudioName = QStringLiteral("Audio Name");
const QString kTime = QStringLiteral("Time");

// Sorted, without duplicates, within the list.
void tidy(QList<int>& rows, qsizetype count) {
    rows.removeIf([count](int row) { return row < 0 || row >= count; });
    std::ranges::sort(rows);
    rows.resize(std::distance(rows.begin(), std::unique(rows.begin(), rows.end())));
}

} // namespace

TrackListModel::TrackListModel(QObject* parent) : QAbstractTableModel(parent) {
    connect(&missing_, &MissingFiles::changed, this, [this] {
        if (!entries_.isEmpty())
            Q_EMIT dataChanged(index(0, 0), index(int(entries_.size()) - 1, kColumns - 1));
    });
}

QString TrackListModel::identifier(int column) {
    switch (column) {
    case Choose:
        return kChoose;
    case AudioName:
        return kAudioName;
    case Time:
        return kTime;
    default:
        return {};
    }
}

void TrackListModel::setEntries(QList<Dictionary> entries) {
    beginResetModel();
    entries_ = std::move(entries);
    endResetModel();
}

void TrackListModel::append(const QList<Dictionary>& entries) {
    if (entries.isEmpty())
        return;
    beginInsertRows({}, int(entries_.size()), int(entries_.size() + entries.size()) - 1);
    entries_ += entries;
    endInsertRows();
}

void TrackListModel::remove(QList<int> rows) {
    tidy(rows, entries_.size());
    for (auto row = rows.crbegin(); row != rows.crend(); ++row) {
        beginRemoveRows({}, *row, *row);
        entries_.removeAt(*row);
        endRemoveRows();
    }
}

void TrackListModel::move(QList<int> rows, int before) {
    tidy(rows, entries_.size());
    before = std::clamp(before, 0, int(entries_.size()));
    // Rows from above the target are moved in reverse order, each in front of the one moved before.
    const auto below = std::ranges::lower_bound(rows, before);
    int target = before;
    for (auto row = below; row != rows.begin();) {
        --row;
        --target;
        // A row that is already in place is not a move, and Qt does not allow announcing one.
        if (*row != target && beginMoveRows({}, *row, *row, {}, target + 1)) {
            entries_.move(*row, target);
            endMoveRows();
        }
    }
    target = before;
    for (auto row = below; row != rows.end(); ++row, ++target) {
        if (*row != target && beginMoveRows({}, *row, *row, {}, target)) {
            entries_.move(*row, target);
            endMoveRows();
        }
    }
}

const Dictionary& TrackListModel::child(int row) const {
    Dictionary& entry = entries_[row];
    if (entry.value(TrackEntry::NumberForMusic) != row)
        entry.insert(TrackEntry::NumberForMusic, row);
    return entry;
}

QVariant TrackListModel::objectValue(const QString& identifier, int row) const {
    const Dictionary& entry = child(row);
    if (identifier == kAudioName)
        return entry.value(TrackEntry::FileName);
    if (identifier == kTime)
        return ToolControl::getTimeString(Platform::longLongValue(entry.value(TrackEntry::FileTimeLong)));
    if (identifier == kChoose)
        return entry.value(TrackEntry::ChooseTheAudio);
    return {};
}

bool TrackListModel::shouldEdit(const QString& identifier, int row) {
    if (identifier != kChoose || row < 0 || row >= entries_.size())
        return false;
    Dictionary& entry = entries_[row];
    entry.insert(TrackEntry::ChooseTheAudio, !Platform::boolValue(entry.value(TrackEntry::ChooseTheAudio)));
    Q_EMIT dataChanged(index(row, 0), index(row, kColumns - 1));
    Q_EMIT ticksChanged();
    return true;
}

template <typename Use>
void TrackListModel::forEachTicked(Use use) const {
    for (const Dictionary& entry : std::as_const(entries_))
        if (Platform::boolValue(entry.value(TrackEntry::ChooseTheAudio)))
            use(entry);
}

int TrackListModel::tickedCount() const {
    int count = 0;
    forEachTicked([&count](const Dictionary&) { ++count; });
    return count;
}

int TrackListModel::tickedSize() const {
    float megabytes = 0;
    forEachTicked([&megabytes](const Dictionary& entry) { megabytes += entry.value(TrackEntry::FileSize).toFloat(); });
    constexpr auto most = std::numeric_limits<int>::max();
    return megabytes < float(most) ? int(megabytes) : most;
}

std::int64_t TrackListModel::tickedSeconds() const {
    std::int64_t seconds = 0;
    forEachTicked([&seconds](const Dictionary& entry) {
        seconds += Platform::longLongValue(entry.value(TrackEntry::FileTimeLong));
    });
    return seconds;
}

int TrackListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(entries_.size());
}

int TrackListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : kColumns;
}

QVariant TrackListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= entries_.size())
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return index.column() == Choose ? QVariant() : objectValue(identifier(index.column()), index.row());
    case Qt::CheckStateRole:
        if (index.column() != Choose)
            return {};
        return Platform::boolValue(objectValue(kChoose, index.row())) ? Qt::Checked : Qt::Unchecked;
    case Qt::ToolTipRole: {
        if (index.column() != AudioName)
            return {};
        const QString path = child(index.row()).value(TrackEntry::FilePath).toString();
        return missing_.isMissing(path) ? tr("The file is no longer there.") + u'\n' + path : path;
    }
    case MissingRole:
        return missing_.isMissing(child(index.row()).value(TrackEntry::FilePath).toString());
    case Qt::AccessibleTextRole:
        // Only the cell with the check box is read by a screen reader when the row's tick changes.
        return index.column() == Choose ? objectValue(kAudioName, index.row()) : QVariant();
    case Qt::TextAlignmentRole:
        return index.column() == Time ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    default:
        return {};
    }
}

bool TrackListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!index.isValid() || index.column() != Choose || role != Qt::CheckStateRole)
        return false;
    const bool ticked = Platform::boolValue(objectValue(kChoose, index.row()));
    if (ticked == (value.toInt() == Qt::Checked))
        return true;
    return shouldEdit(kChoose, index.row());
}

QVariant TrackListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole && section == Time)
        return int(Qt::AlignRight | Qt::AlignVCenter);
    if (role == Qt::ToolTipRole && section == Choose)
        return tr("Only files with a tick are burned");
    if (role == Qt::AccessibleTextRole && section == Choose)
        return tr("Burn");
    if (role != Qt::DisplayRole)
        return {};
    switch (section) {
    case AudioName:
        return tr("Name");
    case Time:
        return tr("Time");
    default:
        return {};
    }
}

Qt::ItemFlags TrackListModel::flags(const QModelIndex& index) const {
    if (!index.isValid())
        return Qt::ItemIsDropEnabled; // between rows, never onto one
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren;
    if (index.column() == Choose)
        flags |= Qt::ItemIsUserCheckable;
    return flags;
}

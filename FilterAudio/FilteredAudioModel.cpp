// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "FilterAudio/FilteredAudioModel.h"

#include "Platform/Foundation/Translations.h"
#include "Source/Control/ToolControl.h"
#include "Source/Model/AudioRecordEntry.h"

#include <algorithm>

namespace {

QString text(const Dictionary& entry, const QString& key) {
    const QVariant value = entry.value(key);
    return value.isValid() ? Platform::stringForm(value) : QString();
}

} // namespace

void FilteredAudioModel::setContent(const QVariantList& entries) {
    beginResetModel();
    content_.clear();
    shown_.clear();
    for (const QVariant& entry : entries)
        content_.append(entry.toMap());
    endResetModel();
    Q_EMIT ticksChanged();
}

void FilteredAudioModel::setFilter(int seconds) {
    beginResetModel();
    shown_.clear();
    for (qsizetype i = 0; i < content_.size(); ++i) {
        if (seconds >= 1 && Platform::intValue(content_[i].value(AudioRecordEntry::Length)) > seconds)
            continue;
        content_[i].insert(AudioSelectedKey, true);
        shown_.append(i);
    }
    endResetModel();
    Q_EMIT ticksChanged();
}

QVariantList FilteredAudioModel::arrangedObjects() const {
    QVariantList copies;
    for (const qsizetype i : shown_)
        copies.append(content_[i]);
    return copies;
}

bool FilteredAudioModel::isTicked(int row) const {
    return Platform::boolValue(content_[shown_[row]].value(AudioSelectedKey));
}

QVariantList FilteredAudioModel::tickedEntries() const {
    QVariantList entries;
    for (int row = 0; row < shown_.size(); ++row) {
        if (!isTicked(row))
            continue;
        Dictionary entry = content_[shown_[row]];
        entry.remove(AudioSelectedKey); // library entries do not have this key
        entries.append(entry);
    }
    return entries;
}

int FilteredAudioModel::tickedCount() const {
    int count = 0;
    for (int row = 0; row < shown_.size(); ++row)
        count += isTicked(row) ? 1 : 0;
    return count;
}

double FilteredAudioModel::tickedSeconds() const {
    double seconds = 0;
    for (int row = 0; row < shown_.size(); ++row)
        if (isTicked(row))
            seconds += Platform::doubleValue(content_[shown_[row]].value(AudioRecordEntry::Length));
    return seconds;
}

void FilteredAudioModel::toggle(const QModelIndexList& rows) {
    if (rows.isEmpty())
        return;
    const bool tick = !std::ranges::all_of(rows, [this](const QModelIndex& each) { return isTicked(each.row()); });
    for (const QModelIndex& each : rows)
        content_[shown_[each.row()]].insert(AudioSelectedKey, tick);
    Q_EMIT dataChanged(index(0, Tick), index(rowCount() - 1, Tick), {Qt::CheckStateRole});
    Q_EMIT ticksChanged();
}

int FilteredAudioModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(shown_.size());
}

int FilteredAudioModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant FilteredAudioModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Dictionary& entry = content_[shown_[index.row()]];
    const QString title = text(entry, AudioRecordEntry::Title);
    switch (role) {
    case Qt::CheckStateRole:
        return index.column() == Tick ? QVariant(isTicked(index.row()) ? Qt::Checked : Qt::Unchecked) : QVariant();
    case Qt::ToolTipRole:
        return text(entry, AudioRecordEntry::SavePath);
    case Qt::AccessibleTextRole:
        if (index.column() == Tick)
            return title;
        [[fallthrough]];
    case Qt::DisplayRole:
        if (index.column() == Title)
            return title;
        if (index.column() == Length)
            return ToolControl::getTimeString(Platform::longLongValue(entry.value(AudioRecordEntry::Length)));
        if (index.column() == Date)
            return Platform::Translations::date(text(entry, AudioRecordEntry::AddDate));
        return {};
    default:
        return {};
    }
}

bool FilteredAudioModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::CheckStateRole || index.column() != Tick || index.row() >= shown_.size())
        return false;
    content_[shown_[index.row()]].insert(AudioSelectedKey, value.toInt() == Qt::Checked);
    Q_EMIT dataChanged(index, index, {Qt::CheckStateRole});
    Q_EMIT ticksChanged();
    return true;
}

QVariant FilteredAudioModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) // hidden, but read by screen readers
        return role == Qt::DisplayRole ? QVariant(section + 1) : QVariant();
    if (role == Qt::AccessibleTextRole && section == Tick)
        return tr("Remove");
    if (role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Title:
        return tr("Title");
    case Length:
        return tr("Time");
    case Date:
        return tr("Date");
    default:
        return QString();
    }
}

Qt::ItemFlags FilteredAudioModel::flags(const QModelIndex& index) const {
    const auto usual = QAbstractTableModel::flags(index);
    return index.column() == Tick ? usual | Qt::ItemIsUserCheckable : usual;
}

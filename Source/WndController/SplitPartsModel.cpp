// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/SplitPartsModel.h"

#include "Source/Control/SplitPlan.h"
#include "Source/Control/ToolControl.h"

using namespace Qt::StringLiterals;

SplitPartsModel::SplitPartsModel(SplitPlan& plan, QObject* parent) : QAbstractTableModel(parent), plan_(plan) {
}

void SplitPartsModel::setRecordingTitle(const QString& title) {
    recordingTitle_ = title;
    update();
}

void SplitPartsModel::update() {
    const int rows = plan_.partCount();
    if (rows > rows_) {
        beginInsertRows({}, rows_, rows - 1);
        rows_ = rows;
        endInsertRows();
    } else if (rows < rows_) {
        beginRemoveRows({}, rows, rows_ - 1);
        rows_ = rows;
        endRemoveRows();
    }
    if (rows > 0)
        Q_EMIT dataChanged(index(0, 0), index(rows - 1, ColumnCount - 1));
}

int SplitPartsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

int SplitPartsModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant SplitPartsModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= plan_.partCount())
        return {};
    if (role == Qt::TextAlignmentRole && index.column() != Title)
        return int(Qt::AlignRight | Qt::AlignVCenter);
    if (role != Qt::DisplayRole && role != Qt::EditRole)
        return {};
    const auto time = [this](std::int64_t frames) {
        const auto tenths = std::int64_t(double(frames) / plan_.sampleRate() * 10);
        return u"%1.%2"_s.arg(ToolControl::getTimeString(tenths / 10), QString::number(tenths % 10));
    };
    const std::int64_t begin = plan_.partBegin(index.row());
    switch (index.column()) {
    case Title: {
        const QString typed = plan_.title(index.row());
        return typed.isEmpty() ? u"%1 %2"_s.arg(recordingTitle_, QString::number(index.row() + 1)) : typed;
    }
    case Begin:
        return time(begin);
    case Length:
        return time(plan_.partEnd(index.row()) - begin);
    default:
        return {};
    }
}

bool SplitPartsModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::EditRole || index.column() != Title || index.row() >= plan_.partCount())
        return false;
    const QString title = value.toString().simplified();
    if (title != data(index, Qt::DisplayRole).toString()) // what it has without being typed is not kept as typed
        plan_.setTitle(index.row(), title);
    Q_EMIT dataChanged(index, index);
    return true;
}

Qt::ItemFlags SplitPartsModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return index.column() == Title ? flags | Qt::ItemIsEditable : flags;
}

QVariant SplitPartsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole)
        return {};
    if (orientation == Qt::Vertical)
        return section + 1; // hidden, but screen readers name the row after it
    switch (section) {
    case Title:
        return tr("Title");
    case Begin:
        return tr("Begin");
    case Length:
        return tr("Length");
    default:
        return {};
    }
}

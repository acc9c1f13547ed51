// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"

#include <QAbstractTableModel>
#include <QList>

/// A working copy of library entries, each with a tick, filtered by length. Main thread.
class FilteredAudioModel : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { Tick, Title, Length, Date, ColumnCount };
    /// The additional key of each copy: whether it is ticked.
    static inline const QString AudioSelectedKey = QStringLiteral("AudioSelectedKey");

    using QAbstractTableModel::QAbstractTableModel;

    void setContent(const QVariantList& entries);
    /// Shows the entries of at most this many whole seconds (below 1: all entries) and ticks the shown ones.
    void setFilter(int seconds);
    /// The shown copies, in the order of the entries.
    [[nodiscard]] QVariantList arrangedObjects() const;
    /// The shown and ticked entries, unchanged.
    [[nodiscard]] QVariantList tickedEntries() const;
    [[nodiscard]] int tickedCount() const;
    [[nodiscard]] double tickedSeconds() const;
    /// Ticks the rows, or unticks them when all of them are ticked.
    void toggle(const QModelIndexList& rows);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

Q_SIGNALS:
    void ticksChanged();

private:
    [[nodiscard]] bool isTicked(int row) const;

    QList<Dictionary> content_;
    QList<qsizetype> shown_; ///< indexes of content_
};

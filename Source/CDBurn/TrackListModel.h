// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"
#include "Source/Model/MissingFiles.h"

#include <QAbstractTableModel>

/// The files to be written as the tracks of a disc, in order, each with a tick (see TrackEntry). A file may be in the
/// list more than once. Main thread.
class TrackListModel : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { Choose, AudioName, Time };
    static constexpr int kColumns = 3;
    static constexpr int MissingRole = Qt::UserRole; ///< bool: the file does not exist any more

    explicit TrackListModel(QObject* parent = nullptr);

    /// "Choose", "Audio Name" or "Time".
    [[nodiscard]] static QString identifier(int column);

    /// All entries, in the order of the tracks.
    [[nodiscard]] const QList<Dictionary>& entries() const { return entries_; }
    void setEntries(QList<Dictionary> entries);
    void append(const QList<Dictionary>& entries);
    /// Removes rows from the list; the files are kept.
    void remove(QList<int> rows);
    /// Moves rows, in their order, in front of the row @p before (the number of rows: at the end).
    void move(QList<int> rows, int before);

    /// The entry of a row, with its "NumberForMusic" set to the row.
    [[nodiscard]] const Dictionary& child(int row) const;
    /// A cell's value: file name, time or tick; invalid for any other identifier.
    [[nodiscard]] QVariant objectValue(const QString& identifier, int row) const;
    /// Whether the column's cell may be edited. For "Choose" this call is the edit: it toggles the tick.
    bool shouldEdit(const QString& identifier, int row);

    [[nodiscard]] int tickedCount() const;
    /// Estimated megabytes of the ticked entries: summed in single precision, then truncated.
    [[nodiscard]] int tickedSize() const;
    /// Seconds of the ticked entries, as shown in their rows.
    [[nodiscard]] std::int64_t tickedSeconds() const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] Qt::DropActions supportedDropActions() const override { return Qt::MoveAction | Qt::CopyAction; }

Q_SIGNALS:
    void ticksChanged();

private:
    template <typename Use>
    void forEachTicked(Use use) const;

    mutable QList<Dictionary> entries_; ///< reading a row writes its number into it
    mutable MissingFiles missing_;      ///< reading a path starts a check on a worker
};

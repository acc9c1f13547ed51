// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"
#include "Source/Model/LeafChanges.h"

#include <QAbstractTableModel>
#include <QThreadPool>

#include <memory>
#include <vector>

class MediaLibrary;
class MediaLibraryNode;
class MissingFiles;

/// The audio record entries of one library node as rows. It shares the node's list and applies the steps of the
/// library's signals, so that selections, the scroll position and the sorting are kept. No call takes longer than a
/// frame of the screen, even with 100,000 entries: a worker sorts long lists. Main thread.
class AudioTableModel : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { State, Title, Artist, Album, Time, Date, Path, ColumnCount };
    enum Role { EntryRole = Qt::UserRole + 1, PathRole, MissingRole, PlayingRole };

    AudioTableModel(MediaLibrary& library, MissingFiles& missing, QObject* parent = nullptr);
    ~AudioTableModel() override;

    /// Identifier of a column: "state", "title", "artist", "album", "time", "date", "path".
    [[nodiscard]] static QString identifier(int column);

    /// Shows the entries of a leaf; null shows none.
    void setNode(std::shared_ptr<const MediaLibraryNode> node);
    /// An empty dictionary for a row that does not exist.
    [[nodiscard]] Dictionary entry(int row) const;
    /// The newest entry of a file; -1 when there is none.
    [[nodiscard]] int rowOfPath(const QString& path) const;
    /// The path of the current sound: its row shows the playing icon.
    void setPlayingPath(const QString& path);
    [[nodiscard]] bool isSorting() const { return sorting_; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    /// A title can be edited when the recording's file exists.
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// Emits titleTyped() when the title differs. The row changes when the library has the new entry.
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    /// A negative column restores the library's own order.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

Q_SIGNALS:
    void titleTyped(const Dictionary& entry, const QString& title);

private:
    struct Sorting {
        int column = -1;
        Qt::SortOrder order = Qt::AscendingOrder;
        bool operator==(const Sorting&) const = default;
    };
    using Order = std::vector<int>;

    [[nodiscard]] int sourceRow(int row) const;
    [[nodiscard]] int rowOfSource(int source) const;
    [[nodiscard]] std::vector<LeafChange::Rows> rowsOf(const std::vector<bool>& isMarked) const;
    [[nodiscard]] QVariant stateData(const Dictionary& entry, int role) const;
    void giveBack(QVariantList gone);
    void apply(const LeafChange& change);
    void takeOut(const LeafChange& change);
    void adopt(const LeafChange& change);
    void placeInLibraryOrder(const LeafChange& change);
    void placeSorted(const LeafChange& change);
    void announceReplaced(const LeafChange& change);
    void insertRows(int row, const Order& sources);
    [[nodiscard]] int sortedPosition(int source) const;
    static Order sortedOrder(const QVariantList& entries, Sorting sorting);
    void applyOrder(Order order, Sorting sorting);
    void rearrange(Order order);
    void startSorting();

    MediaLibrary& library_;
    MissingFiles& missing_;
    std::shared_ptr<const MediaLibraryNode> node_; ///< outlives a tree that the library has replaced
    QVariantList entries_;                         ///< in the library's order, shared with the node
    int rows_ = 0;                                 ///< equals the size of entries_, except while a change is applied
    Order order_;           ///< row to place in entries_; empty while rows are in the library's order
    Sorting applied_;       ///< the sorting of order_
    Sorting wanted_;        ///< the sorting that the user chose last
    bool isSettled_ = true; ///< false while rows at the end wait until the worker has sorted the list
    bool sorting_ = false;
    std::uint64_t generation_ = 0; ///< counts changes of entries_, to discard an order made from older ones
    QString playingPath_;
    QThreadPool worker_; ///< last member: its work uses the others
};

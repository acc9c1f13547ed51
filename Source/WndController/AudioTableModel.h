// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"

#include <QAbstractTableModel>
#include <QThreadPool>

#include <memory>
#include <vector>

class MediaLibrary;
class MediaLibraryNode;
class MissingFiles;

/// The audio record entries of one library node as rows. It keeps its own (shared) copy of the node's list and follows
/// the library's signals, so that an added or removed entry is one inserted or removed row. No call takes longer than a
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
    /// Applies the library's changes now; otherwise the model does so when the event loop runs.
    void reload();
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
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    /// A negative column restores the library's own order.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

private:
    struct Change {
        enum class Kind { Insert, Replace, Remove } kind;
        int index;
        QVariant entry;
    };
    struct Sorting {
        int column = -1;
        Qt::SortOrder order = Qt::AscendingOrder;
        bool operator==(const Sorting&) const = default;
    };
    using Order = std::vector<int>;

    [[nodiscard]] int sourceRow(int row) const;
    [[nodiscard]] int rowOfSource(int source) const;
    [[nodiscard]] QVariant stateData(const Dictionary& entry, int role) const;
    void note(const QString& leafKey, Change change);
    void takeLeafAnew();
    void giveBack(QVariantList gone);
    void applyChanges(const std::vector<Change>& changes);
    void insertEntry(int source, const QVariant& entry);
    void replaceEntry(int source, const QVariant& entry);
    void removeEntries(int first, int last);
    [[nodiscard]] int sortedPosition(int source) const;
    static Order sortedOrder(const QVariantList& entries, Sorting sorting);
    void applyOrder(Order order, Sorting sorting);
    void startSorting();

    MediaLibrary& library_;
    MissingFiles& missing_;
    std::shared_ptr<const MediaLibraryNode> node_; ///< outlives the library's tree when that is replaced
    QVariantList entries_;                         ///< in the library's order
    Order order_;     ///< row to index in entries_; empty while rows are in the library's order
    Sorting applied_; ///< the sorting of order_
    Sorting wanted_;  ///< the sorting that the user chose last
    bool sorting_ = false;
    std::uint64_t generation_ =
        0; ///< counts changes of entries_: an order that was sorted from older entries is discarded
    std::vector<Change> changes_;
    bool leafWasReset_ = false;
    bool applyScheduled_ = false;
    QString playingPath_;
    QThreadPool worker_; ///< last member: its work uses the others
};

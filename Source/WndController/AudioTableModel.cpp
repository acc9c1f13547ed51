// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/AudioTableModel.h"

#include "Platform/Foundation/MainQueue.h"
#include "Platform/Foundation/Translations.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/Model/MediaLibrary.h"
#include "Source/Model/MissingFiles.h"
#include "Source/View/NamedImages.h"
#include "Source/View/PathText.h"
#include "Source/WndController/AudioTags.h"

#include <QCollator>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPalette>

#include <algorithm>
#include <numeric>
#include <utility>

namespace {

// Sorting this many texts takes about 2 ms; longer lists are sorted by the worker.
constexpr qsizetype kSortAtOnce = 2000;
// For each range of inserted or removed rows the views go through all rows. More ranges than this are first moved
// together at the end of the list.
constexpr std::size_t kMostRanges = 64;
// Finding a row's position by its text takes about 20 µs. For more rows than this the worker sorts the list.
constexpr std::size_t kMostPlaced = 200;

QString sortText(const Dictionary& entry, int column) {
    return Platform::stringForm(entry.value(AudioTags::audioTagKeyTranslate(AudioTableModel::identifier(column))));
}

bool hasNoTitle(const Dictionary& entry) {
    return Platform::stringForm(entry.value(AudioRecordEntry::Title)).trimmed().isEmpty();
}

QCollator collator() {
    // The "C" locale compares bytes, so a list of names uses another one.
    const QLocale locale;
    QCollator result(locale.language() == QLocale::C ? QLocale(QLocale::English) : locale);
    result.setNumericMode(true);
    result.setCaseSensitivity(Qt::CaseInsensitive);
    return result;
}

double sortLength(const Dictionary& entry) {
    return Platform::doubleValue(entry.value(AudioRecordEntry::Length));
}

std::vector<bool> marked(const std::vector<LeafChange::Rows>& ranges, qsizetype count) {
    std::vector<bool> result(static_cast<std::size_t>(count));
    for (const auto& [first, last] : ranges)
        std::fill(result.begin() + first, result.begin() + last + 1, true);
    return result;
}

std::vector<int> placesOf(const std::vector<LeafChange::Rows>& ranges) {
    std::vector<int> result;
    for (const auto& [first, last] : ranges)
        for (int place = first; place <= last; ++place)
            result.push_back(place);
    return result;
}

} // namespace

AudioTableModel::AudioTableModel(MediaLibrary& library, MissingFiles& missing, QObject* parent)
    : QAbstractTableModel(parent), library_(library), missing_(missing) {
    worker_.setMaxThreadCount(1);
    connect(&library_, &MediaLibrary::leafChanged, this, [this](const QString& leaf, const LeafChange& change) {
        // A leaf of a rebuilt tree may have the same key: only the shown leaf shares the change's list.
        if (node_ && leaf == node_->key() && node_->leafNode().constData() == change.entries.constData())
            apply(change);
    });
    connect(&missing_, &MissingFiles::changed, this, [this] {
        if (rowCount() > 0)
            Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
    });
}

AudioTableModel::~AudioTableModel() {
    worker_.waitForDone();
}

QString AudioTableModel::identifier(int column) {
    static const QStringList names{QStringLiteral("state"), QStringLiteral("title"), QStringLiteral("artist"),
                                   QStringLiteral("album"), QStringLiteral("time"),  QStringLiteral("date"),
                                   QStringLiteral("path")};
    return names.value(column);
}

void AudioTableModel::setNode(std::shared_ptr<const MediaLibraryNode> node) {
    node_ = std::move(node);
    beginResetModel();
    QVariantList gone = std::exchange(entries_, node_ ? node_->leafNode() : QVariantList());
    rows_ = static_cast<int>(entries_.size());
    ++generation_;
    order_.clear();
    applied_ = {};
    isSettled_ = true;
    endResetModel();
    giveBack(std::move(gone));
    if (wanted_.column >= 0)
        startSorting();
}

void AudioTableModel::giveBack(QVariantList gone) {
    // Freeing many entries takes longer than a frame, so the worker does it; for few entries the hand-over would take
    // longer.
    if (gone.size() > kSortAtOnce)
        worker_.start([gone = std::move(gone)]() mutable { gone.clear(); });
}

void AudioTableModel::apply(const LeafChange& change) {
    if (change.isEmpty())
        return;
    ++generation_;
    if (order_.empty()) {
        order_.resize(static_cast<std::size_t>(rows_));
        std::iota(order_.begin(), order_.end(), 0);
    }
    takeOut(change);
    adopt(change);
    if (applied_.column >= 0)
        placeSorted(change);
    else
        placeInLibraryOrder(change);
    announceReplaced(change);
    if (applied_.column < 0)
        order_.clear();
    if (!isSettled_)
        startSorting();
}

/// Ranges of adjacent rows whose entry is marked.
std::vector<LeafChange::Rows> AudioTableModel::rowsOf(const std::vector<bool>& isMarked) const {
    std::vector<LeafChange::Rows> ranges;
    for (int row = 0; row < rows_; ++row) {
        if (!isMarked[static_cast<std::size_t>(sourceRow(row))])
            continue;
        if (!ranges.empty() && ranges.back().last == row - 1)
            ranges.back().last = row;
        else
            ranges.push_back({row, row});
    }
    return ranges;
}

/// Removes the rows of removed entries. entries_ is still the old list.
void AudioTableModel::takeOut(const LeafChange& change) {
    if (change.removed.empty())
        return;
    const auto isGone = marked(change.removed, entries_.size());
    auto ranges = rowsOf(isGone);
    if (ranges.size() > kMostRanges) {
        Order order = order_;
        const auto gone = std::stable_partition(order.begin(), order.end(),
                                                [&](int source) { return !isGone[static_cast<std::size_t>(source)]; });
        const int first = static_cast<int>(gone - order.begin());
        rearrange(std::move(order));
        ranges = {{first, rows_ - 1}};
    }
    for (auto range = ranges.rbegin(); range != ranges.rend(); ++range) {
        beginRemoveRows({}, range->first, range->last);
        order_.erase(order_.begin() + range->first, order_.begin() + range->last + 1);
        rows_ -= range->last - range->first + 1;
        endRemoveRows();
    }
}

/// Replaces the list. The rows stay: each refers to its entry in the new list.
void AudioTableModel::adopt(const LeafChange& change) {
    const auto isGone = marked(change.removed, entries_.size());
    const auto isNew = marked(change.inserted, change.entries.size());
    Order stays; // old positions, in the order of the new list
    for (int source = 0; source < entries_.size(); ++source)
        if (!isGone[static_cast<std::size_t>(source)])
            stays.push_back(source);
    if (!change.moved.empty()) {
        const Order before = stays;
        for (std::size_t place = 0; place < stays.size(); ++place)
            stays[place] = before[static_cast<std::size_t>(change.moved[place])];
    }
    Order now(static_cast<std::size_t>(entries_.size()));
    std::size_t next = 0;
    for (int source = 0; source < change.entries.size(); ++source)
        if (!isNew[static_cast<std::size_t>(source)])
            now[static_cast<std::size_t>(stays[next++])] = source;
    giveBack(std::exchange(entries_, change.entries));
    for (int& source : order_)
        source = now[static_cast<std::size_t>(source)];
}

void AudioTableModel::insertRows(int row, const Order& sources) {
    if (sources.empty())
        return;
    beginInsertRows({}, row, row + static_cast<int>(sources.size()) - 1);
    order_.insert(order_.begin() + row, sources.begin(), sources.end());
    rows_ += static_cast<int>(sources.size());
    endInsertRows();
}

void AudioTableModel::placeInLibraryOrder(const LeafChange& change) {
    const auto sorted = [this] {
        Order order = order_;
        std::ranges::sort(order);
        return order;
    };
    if (!change.moved.empty())
        rearrange(sorted());
    if (change.inserted.size() > kMostRanges) {
        insertRows(rows_, placesOf(change.inserted));
        rearrange(sorted());
        return;
    }
    for (const auto& rows : change.inserted)
        insertRows(rows.first, placesOf({rows}));
}

/// Moves new and edited entries to their sorted positions.
void AudioTableModel::placeSorted(const LeafChange& change) {
    const Order edited = placesOf(change.replaced);
    const Order added = placesOf(change.inserted);
    if (edited.size() + added.size() > kMostPlaced) {
        insertRows(rows_, added);
        isSettled_ = false;
        return;
    }
    if (!edited.empty()) {
        const auto isEdited = marked(change.replaced, entries_.size());
        const Order shown = order_;
        std::erase_if(order_, [&](int source) { return isEdited[static_cast<std::size_t>(source)]; });
        for (const int source : edited)
            order_.insert(order_.begin() + sortedPosition(source), source);
        Order wanted = std::exchange(order_, shown);
        if (wanted != order_)
            rearrange(std::move(wanted));
    }
    for (const int source : added)
        insertRows(sortedPosition(source), {source});
}

void AudioTableModel::announceReplaced(const LeafChange& change) {
    if (change.replaced.empty())
        return;
    auto ranges = rowsOf(marked(change.replaced, entries_.size()));
    if (ranges.size() > kMostRanges)
        ranges = {{0, rows_ - 1}}; // the views redraw only the visible rows
    for (const auto& rows : ranges)
        Q_EMIT dataChanged(index(rows.first, 0), index(rows.last, ColumnCount - 1));
}

Dictionary AudioTableModel::entry(int row) const {
    if (row < 0 || row >= rows_)
        return {};
    return entries_.at(sourceRow(row)).toMap();
}

int AudioTableModel::rowOfPath(const QString& path) const {
    // A new entry is at the front, so the search is short in the most frequent case.
    for (int source = 0; source < entries_.size(); ++source)
        if (entries_.at(source).toMap().value(AudioRecordEntry::SavePath).toString() == path)
            return rowOfSource(source);
    return -1;
}

void AudioTableModel::setPlayingPath(const QString& path) {
    playingPath_ = path;
    // Finding the two rows would read every entry; the views redraw only the visible rows.
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, State), index(rowCount() - 1, State));
}

int AudioTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

int AudioTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant AudioTableModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Dictionary entry = this->entry(index.row());
    const QString path = entry.value(AudioRecordEntry::SavePath).toString();
    switch (role) {
    case EntryRole:
        return entry;
    case PathRole:
        return path;
    case MissingRole:
        return missing_.isMissing(path);
    case PlayingRole:
        return !path.isEmpty() && path == playingPath_;
    case Qt::ForegroundRole:
        if (missing_.isMissing(path))
            return QGuiApplication::palette().brush(QPalette::Active, QPalette::PlaceholderText);
        if (index.column() == Title && hasNoTitle(entry))
            return QGuiApplication::palette().brush(QPalette::PlaceholderText);
        return {};
    case Qt::EditRole:
        return AudioTags::audioTag(entry, identifier(index.column()));
    case Qt::TextAlignmentRole:
        return index.column() == Time ? QVariant(Qt::AlignCenter) : QVariant();
    default:
        break;
    }
    if (index.column() == State)
        return stateData(entry, role);
    if (role == Qt::DisplayRole && index.column() == Date)
        return Platform::Translations::date(Platform::stringForm(AudioTags::audioTag(entry, identifier(Date))));
    if (role == Qt::DisplayRole)
        return index.column() == Title && hasNoTitle(entry) ? QVariant(QFileInfo(path).fileName())
                                                            : AudioTags::audioTag(entry, identifier(index.column()));
    if (role == Qt::ToolTipRole) {
        const QString text = Platform::stringForm(AudioTags::audioTag(entry, identifier(index.column())));
        const QString note = missing_.isMissing(path) ? tr("The file is no longer there.") + u'\n' : QString();
        return note + (index.column() == Title && !text.isEmpty() ? text + u'\n' + pathText(path)
                       : index.column() == Title                  ? pathText(path)
                                                                  : text);
    }
    return {};
}

Qt::ItemFlags AudioTableModel::flags(const QModelIndex& index) const {
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (index.isValid() && index.column() == Title && !index.data(MissingRole).toBool())
        flags |= Qt::ItemIsEditable;
    return flags;
}

bool AudioTableModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!index.isValid() || index.column() != Title || role != Qt::EditRole)
        return false;
    if (value.toString() != index.data(Qt::EditRole).toString())
        Q_EMIT titleTyped(entry(index.row()), value.toString());
    return true;
}

QVariant AudioTableModel::stateData(const Dictionary& entry, int role) const {
    const QString path = entry.value(AudioRecordEntry::SavePath).toString();
    const bool missing = missing_.isMissing(path);
    const bool playing = !path.isEmpty() && path == playingPath_;
    if (role == Qt::DecorationRole) {
        if (missing)
            return NamedImages::icon(QStringLiteral("broken-link"));
        return playing ? QVariant(NamedImages::icon(QStringLiteral("audio-playing-icon"))) : QVariant();
    }
    if (role == Qt::ToolTipRole || role == Qt::AccessibleTextRole) {
        if (missing)
            return tr("The file is no longer there.");
        if (playing)
            return tr("Playing");
        return role == Qt::AccessibleTextRole ? QVariant(tr("No mark")) : QVariant();
    }
    return {};
}

QVariant AudioTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) // hidden, but read by screen readers
        return role == Qt::DisplayRole ? QVariant(section + 1) : QVariant();
    if (role == Qt::TextAlignmentRole)
        return int((section == Time                    ? Qt::AlignHCenter
                    : QGuiApplication::isRightToLeft() ? Qt::AlignRight // Qt does not mirror headers
                                                       : Qt::AlignLeft) |
                   Qt::AlignVCenter);
    if (role == Qt::AccessibleTextRole && section == State)
        return tr("State");
    if (role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Title:
        return tr("Title");
    case Artist:
        return tr("Artist");
    case Album:
        return tr("Album");
    case Time:
        return tr("Time");
    case Date:
        return tr("Date");
    case Path:
        return tr("Path");
    default:
        return {};
    }
}

int AudioTableModel::sourceRow(int row) const {
    return order_.empty() ? row : order_[static_cast<std::size_t>(row)];
}

int AudioTableModel::rowOfSource(int source) const {
    if (order_.empty())
        return source;
    return static_cast<int>(std::find(order_.begin(), order_.end(), source) - order_.begin());
}

int AudioTableModel::sortedPosition(int source) const {
    const QCollator collate = collator();
    const auto less = [&](int a, int b) {
        const Dictionary left = entries_.at(a).toMap();
        const Dictionary right = entries_.at(b).toMap();
        if (applied_.column == Time)
            return sortLength(left) < sortLength(right);
        return collate.compare(sortText(left, applied_.column), sortText(right, applied_.column)) < 0;
    };
    const bool ascending = applied_.order == Qt::AscendingOrder;
    const auto place = std::upper_bound(order_.begin(), order_.end(), source,
                                        [&](int a, int b) { return ascending ? less(a, b) : less(b, a); });
    return static_cast<int>(place - order_.begin());
}

AudioTableModel::Order AudioTableModel::sortedOrder(const QVariantList& entries, Sorting sorting) {
    Order order(static_cast<std::size_t>(entries.size()));
    std::iota(order.begin(), order.end(), 0);
    const bool ascending = sorting.order == Qt::AscendingOrder;
    const auto sortBy = [&](const auto& keys) {
        std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
            return ascending ? keys[static_cast<std::size_t>(a)] < keys[static_cast<std::size_t>(b)]
                             : keys[static_cast<std::size_t>(b)] < keys[static_cast<std::size_t>(a)];
        });
    };
    if (sorting.column == Time) {
        std::vector<double> keys;
        keys.reserve(order.size());
        for (const QVariant& each : entries)
            keys.push_back(sortLength(each.toMap()));
        sortBy(keys);
    } else {
        const QCollator collate = collator();
        std::vector<QCollatorSortKey> keys;
        keys.reserve(order.size());
        for (const QVariant& each : entries)
            keys.push_back(collate.sortKey(sortText(each.toMap(), sorting.column)));
        sortBy(keys);
    }
    return order;
}

void AudioTableModel::sort(int column, Qt::SortOrder order) {
    wanted_ = {column > State ? column : -1, order};
    if (wanted_ == applied_ && isSettled_)
        return;
    if (wanted_.column < 0)
        applyOrder({}, wanted_);
    else
        startSorting();
}

void AudioTableModel::startSorting() {
    if (entries_.size() <= kSortAtOnce) {
        applyOrder(sortedOrder(entries_, wanted_), wanted_);
        return;
    }
    if (std::exchange(sorting_, true))
        return;
    worker_.start([this, entries = entries_, sorting = wanted_, generation = generation_]() mutable {
        Order order = sortedOrder(entries, sorting);
        entries.clear();
        Platform::MainQueue::post(this, [this, order = std::move(order), sorting, generation]() mutable {
            sorting_ = false;
            if (sorting == wanted_ && generation == generation_)
                applyOrder(std::move(order), sorting);
            else if (wanted_.column >= 0 && (wanted_ != applied_ || !isSettled_))
                startSorting();
        });
    });
}

void AudioTableModel::applyOrder(Order order, Sorting sorting) {
    if (order.empty()) {
        order.resize(static_cast<std::size_t>(rows_));
        std::iota(order.begin(), order.end(), 0);
    }
    rearrange(std::move(order));
    applied_ = sorting;
    isSettled_ = true;
    if (applied_.column < 0)
        order_.clear();
}

/// Shows the same rows in another order; selections and the current row move with their entries.
void AudioTableModel::rearrange(Order order) {
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    std::vector<int> newRow(static_cast<std::size_t>(entries_.size()));
    for (std::size_t row = 0; row < order.size(); ++row)
        newRow[static_cast<std::size_t>(order[row])] = static_cast<int>(row);
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    after.reserve(before.size());
    for (const QModelIndex& each : before)
        after.append(index(newRow[static_cast<std::size_t>(sourceRow(each.row()))], each.column()));
    order_ = std::move(order);
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

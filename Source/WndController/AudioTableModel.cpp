// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/AudioTableModel.h"

#include "Source/Model/AudioRecordEntry.h"
#include "Source/Model/MediaLibrary.h"
#include "Source/Model/MissingFiles.h"
#include "Source/View/NamedImages.h"
#include "Source/WndController/AudioTags.h"

#include <QCollator>
#include <QGuiApplication>
#include <QPalette>

#include <numeric>
#include <utility>

namespace {

// Sorting this many texts takes about 2 ms; longer lists are sorted by the worker.
constexpr qsizetype kSortAtOnce = 2000;
// More separate ranges of removed rows than this become one reset: for each range the views go through all rows.
constexpr std::size_t kMostSingleRemovals = 64;

QString sortText(const Dictionary& entry, int column) {
    return Platform::stringForm(entry.value(AudioTags::audioTagKeyTranslate(AudioTableModel::identifier(column))));
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

} // namespace

AudioTableModel::AudioTableModel(MediaLibrary& library, MissingFiles& missing, QObject* parent)
    : QAbstractTableModel(parent), library_(library), missing_(missing) {
    worker_.setMaxThreadCount(1);
    connect(&library_, &MediaLibrary::entryInserted, this, [this](const QString& leaf, int index) {
        note(leaf, {Change::Kind::Insert, index, node_ ? node_->leafNode().value(index) : QVariant()});
    });
    connect(&library_, &MediaLibrary::entryReplaced, this, [this](const QString& leaf, int index) {
        note(leaf, {Change::Kind::Replace, index, node_ ? node_->leafNode().value(index) : QVariant()});
    });
    connect(&library_, &MediaLibrary::entryRemoved, this, [this](const QString& leaf, int index) {
        note(leaf, {Change::Kind::Remove, index, {}});
    });
    connect(&library_, &MediaLibrary::leafReset, this, [this](const QString& leaf) {
        if (!node_ || leaf != node_->key())
            return;
        leafWasReset_ = true;
        note(leaf, {Change::Kind::Remove, -1, {}});
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
    takeLeafAnew();
}

void AudioTableModel::takeLeafAnew() {
    beginResetModel();
    changes_.clear();
    leafWasReset_ = false;
    QVariantList gone = std::exchange(entries_, node_ ? node_->leafNode() : QVariantList());
    ++generation_;
    order_.clear();
    applied_ = {};
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

void AudioTableModel::note(const QString& leafKey, Change change) {
    if (!node_ || leafKey != node_->key())
        return;
    // A removal of many entries arrives as many signals. They are applied together when the event loop runs: row by
    // row, a list of 100,000 would be moved 100,000 times.
    changes_.push_back(std::move(change));
    if (!std::exchange(applyScheduled_, true))
        QMetaObject::invokeMethod(this, &AudioTableModel::reload, Qt::QueuedConnection);
}

void AudioTableModel::reload() {
    applyScheduled_ = false;
    const std::vector<Change> changes = std::exchange(changes_, {});
    if (leafWasReset_)
        takeLeafAnew();
    else
        applyChanges(changes);
}

void AudioTableModel::applyChanges(const std::vector<Change>& changes) {
    // Removals are ordered from the last row to the first: adjacent rows are joined to ranges.
    struct Step {
        const Change* change;
        int first;
    };
    std::vector<Step> steps;
    for (const Change& change : changes) {
        if (change.kind == Change::Kind::Remove && !steps.empty() &&
            steps.back().change->kind == Change::Kind::Remove && change.index == steps.back().first - 1)
            steps.back().first = change.index;
        else
            steps.push_back({&change, change.index});
    }
    const auto removals = std::count_if(changes.begin(), changes.end(),
                                        [](const Change& each) { return each.kind == Change::Kind::Remove; });
    const std::size_t passes = order_.empty() ? steps.size() : static_cast<std::size_t>(removals);
    if (removals > 0 && passes > kMostSingleRemovals) {
        takeLeafAnew();
        return;
    }
    for (const Step& step : steps) {
        switch (step.change->kind) {
        case Change::Kind::Insert:
            insertEntry(step.change->index, step.change->entry);
            break;
        case Change::Kind::Replace:
            replaceEntry(step.change->index, step.change->entry);
            break;
        case Change::Kind::Remove:
            removeEntries(step.first, step.change->index);
            break;
        }
    }
}

void AudioTableModel::insertEntry(int source, const QVariant& entry) {
    if (source < 0 || source > entries_.size())
        return;
    ++generation_;
    if (order_.empty() && applied_.column < 0) {
        beginInsertRows({}, source, source);
        entries_.insert(source, entry);
        endInsertRows();
        return;
    }
    // The row's position is found before the views are notified, with the entry at the end of the list, where it shifts
    // no other.
    entries_.append(entry);
    const int row = sortedPosition(static_cast<int>(entries_.size()) - 1);
    entries_.removeLast();
    beginInsertRows({}, row, row);
    entries_.insert(source, entry);
    for (int& each : order_)
        each += each >= source ? 1 : 0;
    order_.insert(order_.begin() + row, source);
    endInsertRows();
}

void AudioTableModel::replaceEntry(int source, const QVariant& entry) {
    if (source < 0 || source >= entries_.size())
        return;
    ++generation_;
    const int row = rowOfSource(source);
    entries_[source] = entry;
    Q_EMIT dataChanged(index(row, 0), index(row, ColumnCount - 1));
    if (applied_.column < 0)
        return;
    Order others = order_;
    others.erase(others.begin() + row);
    std::swap(others, order_);
    const int target = sortedPosition(source);
    std::swap(others, order_);
    if (target == row || !beginMoveRows({}, row, row, {}, target > row ? target + 1 : target))
        return;
    others.insert(others.begin() + target, source);
    order_ = std::move(others);
    endMoveRows();
}

void AudioTableModel::removeEntries(int first, int last) {
    if (first < 0 || first > last || last >= entries_.size())
        return;
    ++generation_;
    if (applied_.column < 0) {
        beginRemoveRows({}, first, last);
        QVariantList gone = entries_.mid(first, last - first + 1);
        entries_.remove(first, last - first + 1);
        endRemoveRows();
        giveBack(std::move(gone));
        return;
    }
    for (int source = last; source >= first; --source) {
        const int row = rowOfSource(source);
        beginRemoveRows({}, row, row);
        entries_.remove(source);
        order_.erase(order_.begin() + row);
        for (int& each : order_)
            each -= each > source ? 1 : 0;
        endRemoveRows();
    }
}

Dictionary AudioTableModel::entry(int row) const {
    if (row < 0 || row >= entries_.size())
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
    return parent.isValid() ? 0 : static_cast<int>(entries_.size());
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
        return missing_.isMissing(path) ? QVariant(QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text))
                                        : QVariant();
    case Qt::TextAlignmentRole:
        return index.column() == Time ? QVariant(Qt::AlignCenter) : QVariant();
    default:
        break;
    }
    if (index.column() == State)
        return stateData(entry, role);
    if (role == Qt::DisplayRole)
        return AudioTags::audioTag(entry, identifier(index.column()));
    if (role == Qt::ToolTipRole) {
        const QString text = Platform::stringForm(AudioTags::audioTag(entry, identifier(index.column())));
        const QString note = missing_.isMissing(path) ? tr("The file is no longer there.") + u'\n' : QString();
        return note + (index.column() == Title ? text + u'\n' + path : text);
    }
    return {};
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
        return playing ? QVariant(tr("Playing")) : QVariant();
    }
    return {};
}

QVariant AudioTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant((section == Time                                         ? Qt::AlignHCenter
                         : QGuiApplication::layoutDirection() == Qt::RightToLeft ? Qt::AlignRight
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
    if (wanted_ == applied_)
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
        QMetaObject::invokeMethod(
            this,
            [this, order = std::move(order), sorting, generation]() mutable {
                sorting_ = false;
                if (sorting == wanted_ && generation == generation_)
                    applyOrder(std::move(order), sorting);
                else if (wanted_.column >= 0 && wanted_ != applied_)
                    startSorting();
            },
            Qt::QueuedConnection);
    });
}

void AudioTableModel::applyOrder(Order order, Sorting sorting) {
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    std::vector<int> newRow(order.size());
    for (std::size_t row = 0; row < order.size(); ++row)
        newRow[static_cast<std::size_t>(order[row])] = static_cast<int>(row);
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    after.reserve(before.size());
    for (const QModelIndex& each : before) {
        const int source = sourceRow(each.row());
        after.append(index(order.empty() ? source : newRow[static_cast<std::size_t>(source)], each.column()));
    }
    order_ = std::move(order);
    applied_ = sorting;
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

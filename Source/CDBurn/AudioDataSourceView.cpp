// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/CDBurn/AudioDataSourceView.h"

#include "Source/CDBurn/CDTextControl.h"
#include "Source/View/FocusFrame.h"
#include "Source/View/NamedImages.h"

#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>
#include <numeric>

namespace {

constexpr int kRowHeight = 24;
constexpr int kChooseWidth = 36;
constexpr int kTimeWidth = 96;

/// Draws rows without a focus ring around a single cell; a missing file is grey, with a mark.
class TrackRowDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const QSize size = QStyledItemDelegate::sizeHint(option, index);
        return {size.width(), qMax(kRowHeight, option.fontMetrics.height() + 8)};
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        option->state &= ~QStyle::State_HasFocus;
        if (!index.data(TrackListModel::MissingRole).toBool())
            return;
        option->palette.setColor(QPalette::Text, option->palette.color(QPalette::Active, QPalette::PlaceholderText));
        if (index.column() == TrackListModel::AudioName) {
            option->features |= QStyleOptionViewItem::HasDecoration;
            option->icon = NamedImages::icon(QStringLiteral("broken-link"));
            option->decorationSize = {16, 16};
        }
    }
};

} // namespace

AudioDataSourceView::AudioDataSourceView(QWidget* parent) : QTreeView(parent) {
    setModel(&tracks_);
    setItemDelegate(new TrackRowDelegate(this));
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setAlternatingRowColors(true);
    setSelectionMode(ExtendedSelection);
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setTextElideMode(Qt::ElideMiddle);
    setDragDropMode(DragDrop);
    setDefaultDropAction(Qt::MoveAction);
    setDragDropOverwriteMode(false);
    setContextMenuPolicy(Qt::ActionsContextMenu);

    QHeaderView* columns = header();
    columns->setStretchLastSection(false);
    columns->setSectionsMovable(false);
    columns->setMinimumSectionSize(24);
    columns->setSectionResizeMode(TrackListModel::Choose, QHeaderView::Fixed);
    columns->resizeSection(TrackListModel::Choose, kChooseWidth);
    columns->setSectionResizeMode(TrackListModel::AudioName, QHeaderView::Stretch);
    columns->setSectionResizeMode(TrackListModel::Time, QHeaderView::Fixed);
    columns->resizeSection(TrackListModel::Time,
                           std::max(kTimeWidth, fontMetrics().horizontalAdvance(QStringLiteral("00:00:00")) + 20));
    // Qt does not mirror the alignment of headers.
    columns->setDefaultAlignment((isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);

    makeActions();
    connect(&tracks_, &TrackListModel::ticksChanged, this, &AudioDataSourceView::flushOtherInfo);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, &AudioDataSourceView::updateActions);
    updateActions();
}

void AudioDataSourceView::makeActions() {
    const auto action = [this](const QString& text, const QKeySequence& keys, auto&& slot) {
        auto* made = new QAction(text, this);
        made->setShortcut(keys);
        made->setShortcutContext(Qt::WidgetShortcut);
        connect(made, &QAction::triggered, this, slot);
        addAction(made);
        return made;
    };
    toggle_ = action(tr("&Tick or Untick"), QKeySequence(Qt::Key_Space), [this] { toggleSelected(); });
    up_ = action(tr("Move &Up"), QKeySequence(Qt::ALT | Qt::Key_Up), [this] { moveSelected(-1); });
    down_ = action(tr("Move &Down"), QKeySequence(Qt::ALT | Qt::Key_Down), [this] { moveSelected(1); });
    remove_ = action(tr("&Remove from This List"), QKeySequence(Qt::Key_Delete), [this] { removeSelected(); });
    remove_->setToolTip(tr("The file itself stays"));
}

void AudioDataSourceView::updateActions() {
    const bool any = selectionModel()->hasSelection();
    for (QAction* each : {toggle_, up_, down_, remove_})
        each->setEnabled(any);
}

void AudioDataSourceView::addDataFromRecordAudio(const QVariantList& records) {
    QList<Dictionary> entries;
    for (const QVariant& record : records)
        if (const Dictionary entry = CDTextControl::addRecordAudioInfoForDic(record.toMap()); !entry.isEmpty())
            entries.append(entry);
    tracks_.setEntries(std::move(entries));
    updateActions(); // a reset clears the selection without a signal
    if (delegate_)
        delegate_->musicFileNumChange();
}

bool AudioDataSourceView::addFilesToDataAry(const QList<QUrl>& files) {
    QList<Dictionary> entries;
    // Measuring a file on a slow disk takes a while.
    QApplication::setOverrideCursor(Qt::WaitCursor);
    for (const QUrl& file : files)
        if (const Dictionary entry = CDTextControl::setAudioInfoForDic(file.toLocalFile()); !entry.isEmpty())
            entries.append(entry);
    QApplication::restoreOverrideCursor();
    if (entries.isEmpty())
        return false;
    tracks_.append(entries);
    if (delegate_)
        delegate_->musicFileNumChange();
    return true;
}

void AudioDataSourceView::flushOtherInfo() {
    if (delegate_)
        delegate_->flushOtherInfo();
}

QList<int> AudioDataSourceView::selectedRows() const {
    QList<int> rows;
    for (const QModelIndex& index : selectionModel()->selectedRows())
        rows.append(index.row());
    return rows;
}

void AudioDataSourceView::toggleSelected() {
    const QModelIndex current = currentIndex();
    if (!current.isValid())
        return;
    // All rows get the current row's state, so that a mixed selection becomes equal.
    const auto state = current.siblingAtColumn(TrackListModel::Choose).data(Qt::CheckStateRole) == Qt::Checked
                           ? Qt::Unchecked
                           : Qt::Checked;
    QList<int> rows = selectedRows();
    if (!rows.contains(current.row()))
        rows = {current.row()};
    for (const int row : rows)
        tracks_.setData(tracks_.index(row, TrackListModel::Choose), state, Qt::CheckStateRole);
}

void AudioDataSourceView::removeSelected() {
    const QList<int> rows = selectedRows();
    if (rows.isEmpty())
        return;
    const int next = *std::ranges::min_element(rows);
    tracks_.remove(rows);
    if (tracks_.rowCount() > 0)
        setCurrentIndex(tracks_.index(qMin(next, tracks_.rowCount() - 1), TrackListModel::AudioName));
    if (delegate_)
        delegate_->musicFileNumChange();
}

void AudioDataSourceView::moveSelected(int step) {
    const QList<int> rows = selectedRows();
    if (rows.isEmpty())
        return;
    const auto [first, last] = std::ranges::minmax(rows);
    if (step < 0 ? first > 0 : last < tracks_.rowCount() - 1)
        tracks_.move(rows, step < 0 ? first - 1 : last + 2);
    scrollTo(currentIndex());
}

void AudioDataSourceView::keyPressEvent(QKeyEvent* event) {
    // The base class would apply the space bar to the current cell only, and use letters typed after it for a search.
    if (event->key() == Qt::Key_Space && !event->modifiers()) {
        toggleSelected();
        return;
    }
    QTreeView::keyPressEvent(event);
}

void AudioDataSourceView::dragEnterEvent(QDragEnterEvent* event) {
    if (event->source() != this && event->mimeData()->hasUrls()) {
        event->setDropAction(Qt::CopyAction);
        event->accept();
        return;
    }
    // Rows of another window cannot be dropped here.
    if (event->source() == this)
        QTreeView::dragEnterEvent(event);
    else
        event->ignore();
}

void AudioDataSourceView::dragMoveEvent(QDragMoveEvent* event) {
    QTreeView::dragMoveEvent(event); // scrolls, and shows the drop position
    if (event->source() == this) {
        event->setDropAction(Qt::MoveAction);
        event->accept();
    } else if (event->mimeData()->hasUrls()) {
        event->setDropAction(Qt::CopyAction);
        event->accept();
    } else {
        event->ignore();
    }
}

int AudioDataSourceView::rowAt(const QPoint& place) const {
    const QModelIndex index = indexAt(place);
    if (!index.isValid())
        return tracks_.rowCount();
    return place.y() < visualRect(index).center().y() ? index.row() : index.row() + 1;
}

void AudioDataSourceView::dropEvent(QDropEvent* event) {
    const int before = rowAt(event->position().toPoint());
    if (event->source() == this) {
        tracks_.move(selectedRows(), before);
    } else if (event->mimeData()->hasUrls()) {
        const int first = tracks_.rowCount();
        if (addFilesToDataAry(event->mimeData()->urls())) {
            QList<int> rows(tracks_.rowCount() - first);
            std::iota(rows.begin(), rows.end(), first);
            tracks_.move(rows, before);
        }
    }
    // The rows are already moved: after a "move" the base class would remove the selected ones.
    event->setDropAction(Qt::CopyAction);
    event->accept();
    stopAutoScroll();
    setState(NoState);
    viewport()->update();
}

void AudioDataSourceView::paintEvent(QPaintEvent* event) {
    QTreeView::paintEvent(event);
    FocusFrame::draw(*this);
    if (!isNullForData())
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::Active, QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(24, 24, -24, -24), Qt::AlignCenter | Qt::TextWordWrap,
                     tr("No music yet. Press “Add Files…” or drop sound files here."));
}

void AudioDataSourceView::scrollContentsBy(int dx, int dy) {
    QTreeView::scrollContentsBy(dx, dy);
    FocusFrame::scrolled(*this);
}

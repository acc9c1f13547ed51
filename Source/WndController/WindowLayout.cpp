// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/WindowLayout.h"

#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/UserDefaults.h"

#include <QEvent>
#include <QHeaderView>
#include <QLayout>
#include <QMainWindow>
#include <QScreen>
#include <QSplitter>
#include <QTableView>

#include <algorithm>

namespace {

const QString kWidth = QStringLiteral("width");
const QString kHeight = QStringLiteral("height");
const QString kLibrary = QStringLiteral("library");
const QString kColumns = QStringLiteral("columns");
const QString kSort = QStringLiteral("sort");
const QString kDescending = QStringLiteral("descending");
constexpr int kNarrowestColumn = 24;
constexpr int kFirstLibraryWidth = 216;
constexpr int kTableRoom = 520;    ///< when the table is narrower, the library's pane shrinks
constexpr int kTitleRoom = 260;    ///< when the titles are narrower, empty columns are hidden
constexpr int kRowsLookedAt = 500; ///< rows of a long list that are checked for an empty column

constexpr int kCellMargins = 20;

int firstWidth(int column) {
    switch (column) {
    case AudioTableModel::State:
        return 28;
    case AudioTableModel::Time:
        return 76;
    case AudioTableModel::Date:
        return 92;
    default:
        return 100;
    }
}

/// The width for a time or a date in the table's letters; 0 for other columns. A shortened number says nothing.
int neededWidth(int column, const QFontMetrics& letters) {
    if (column == AudioTableModel::Time)
        return letters.horizontalAdvance(QStringLiteral("00:00:00")) + kCellMargins;
    if (column == AudioTableModel::Date)
        return letters.horizontalAdvance(QStringLiteral("0000/00/00")) + kCellMargins;
    return 0;
}

} // namespace

WindowLayout::WindowLayout(QMainWindow& window, QSplitter& splitter, QTableView& table)
    : window_(window), splitter_(splitter), table_(table) {
    later_.setSingleShot(true);
    later_.setInterval(500);
    connect(&later_, &QTimer::timeout, this, &WindowLayout::save);
    fit_.setSingleShot(true);
    fit_.setInterval(0);
    connect(&fit_, &QTimer::timeout, this, &WindowLayout::fitColumns);
    connect(&splitter_, &QSplitter::splitterMoved, this, [this] {
        libraryWidth_ = splitter_.sizes().value(0);
        later_.start();
        fit_.start();
    });
    connect(table_.horizontalHeader(), &QHeaderView::sectionResized, this, [this] {
        if (restored_)
            later_.start();
    });
    connect(table_.horizontalHeader(), &QHeaderView::sortIndicatorChanged, this, [this] {
        if (restored_)
            later_.start();
    });
    const auto fitLater = [this] { fit_.start(); };
    const QAbstractItemModel* rows = table_.model();
    connect(rows, &QAbstractItemModel::modelReset, this, fitLater);
    connect(rows, &QAbstractItemModel::rowsInserted, this, fitLater);
    connect(rows, &QAbstractItemModel::rowsRemoved, this, fitLater);
    connect(rows, &QAbstractItemModel::dataChanged, this, fitLater);
    window_.installEventFilter(this);
}

void WindowLayout::restore() {
    const auto* defaults = Platform::services().userDefaults;
    const Dictionary stored = defaults ? defaults->objectForKey(kKey).toMap() : Dictionary();
    QSize size(Platform::intValue(stored.value(kWidth)), Platform::intValue(stored.value(kHeight)));
    if (size.isEmpty())
        size = {900, 600};
    if (const QScreen* screen = window_.screen())
        size = size.boundedTo(screen->availableSize());
    // Large text needs more room than the smallest size that was designed.
    if (QLayout* content = window_.layout()) {
        content->activate();
        QSize least = window_.minimumSize().expandedTo(content->totalMinimumSize());
        if (const QScreen* screen = window_.screen())
            least = least.boundedTo(screen->availableSize());
        window_.setMinimumSize(least);
    }
    window_.resize(size.expandedTo(window_.minimumSize()));

    const int library = Platform::intValue(stored.value(kLibrary));
    libraryWidth_ = library > 0 ? library : kFirstLibraryWidth;
    splitter_.setStretchFactor(0, 0);
    splitter_.setStretchFactor(1, 1);

    const QVariantList columns = stored.value(kColumns).toList();
    QHeaderView* header = table_.horizontalHeader();
    header->setMinimumSectionSize(kNarrowestColumn);
    for (int column = 0; column < AudioTableModel::ColumnCount; ++column) {
        const int width = Platform::intValue(columns.value(column));
        if (!header->isSectionHidden(column) && column != AudioTableModel::Title)
            header->resizeSection(column,
                                  width >= kNarrowestColumn
                                      ? width
                                      : std::max(firstWidth(column), neededWidth(column, table_.fontMetrics())));
    }
    // The title column takes the remaining width, so that the columns always fill the table.
    header->setSectionResizeMode(AudioTableModel::Title, QHeaderView::Stretch);
    restored_ = true;
    fit();
    restoreSorting(stored.value(kSort).toString(), Platform::boolValue(stored.value(kDescending)));
}

void WindowLayout::restoreSorting(const QString& column, bool descending) {
    for (int each = AudioTableModel::Title; each < AudioTableModel::ColumnCount; ++each)
        if (AudioTableModel::identifier(each) == column)
            table_.sortByColumn(each, descending ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void WindowLayout::fit() {
    const int width = splitter_.isVisible() ? splitter_.width() : window_.width();
    const int left = qMin(libraryWidth_, qMax(splitter_.widget(0)->minimumWidth(), width - kTableRoom));
    splitter_.setSizes({left, qMax(1, width - left - splitter_.handleWidth())});
    fit_.start();
}

bool WindowLayout::saysNothing(int column) const {
    // The default texts of a new recording count as empty.
    const QString none = column == AudioTableModel::Artist ? QStringLiteral("NO Artist") : QStringLiteral("NO Album");
    const QAbstractItemModel* rows = table_.model();
    for (int row = 0; row < qMin(rows->rowCount(), kRowsLookedAt); ++row) {
        const QString text = rows->index(row, column).data().toString();
        if (!text.isEmpty() && text != none)
            return false;
    }
    // A list without rows leaves the columns as they are: a search that finds nothing must not move them.
    return rows->rowCount() > 0 || table_.isColumnHidden(column);
}

void WindowLayout::fitColumns() {
    QHeaderView* header = table_.horizontalHeader();
    constexpr std::array mayGo{AudioTableModel::Artist, AudioTableModel::Album};
    int room = table_.viewport()->width();
    for (int column = 0; column < AudioTableModel::ColumnCount; ++column)
        if (!header->isSectionHidden(column) && column != AudioTableModel::Title)
            room -= header->sectionSize(column);
    for (const int column : mayGo)
        if (header->isSectionHidden(column))
            room -= widths_[static_cast<std::size_t>(column)];
    for (const int column : mayGo) {
        const bool hide = room < kTitleRoom && saysNothing(column);
        if (hide && !header->isSectionHidden(column))
            widths_[static_cast<std::size_t>(column)] = header->sectionSize(column);
        header->setSectionHidden(column, hide);
    }
}

void WindowLayout::save() {
    later_.stop();
    auto* defaults = Platform::services().userDefaults;
    if (!defaults || !restored_)
        return;
    QVariantList columns;
    const QHeaderView* header = table_.horizontalHeader();
    for (int column = 0; column < AudioTableModel::ColumnCount; ++column)
        columns.append(header->isSectionHidden(column) ? widths_[static_cast<std::size_t>(column)]
                                                       : header->sectionSize(column));
    Dictionary layout = defaults->objectForKey(kKey).toMap();
    const Dictionary before = layout;
    // A maximised window is restored with its normal size.
    if (!window_.isMaximized() && !window_.isFullScreen()) {
        layout.insert(kWidth, window_.width());
        layout.insert(kHeight, window_.height());
    }
    layout.insert(kLibrary, libraryWidth_);
    layout.insert(kColumns, columns);
    const int sorted = header->sortIndicatorSection();
    layout.insert(kSort, sorted > AudioTableModel::State && sorted < AudioTableModel::ColumnCount
                             ? AudioTableModel::identifier(sorted)
                             : QString());
    layout.insert(kDescending, header->sortIndicatorOrder() == Qt::DescendingOrder);
    if (layout != before)
        defaults->setObject(kKey, layout);
}

bool WindowLayout::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize && restored_) {
        // Deferred until the splitter has its new width, because it distributes a new width by its own rule.
        QTimer::singleShot(0, this, &WindowLayout::fit);
        later_.start();
    }
    return QObject::eventFilter(watched, event);
}

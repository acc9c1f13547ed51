// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/WindowLayout.h"

#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/UserDefaults.h"
#include "Source/WndController/AudioTableModel.h"

#include <QEvent>
#include <QHeaderView>
#include <QMainWindow>
#include <QScreen>
#include <QSplitter>
#include <QTableView>

namespace {

const QString kWidth = QStringLiteral("width");
const QString kHeight = QStringLiteral("height");
const QString kLibrary = QStringLiteral("library");
const QString kColumns = QStringLiteral("columns");
constexpr int kNarrowestColumn = 24;

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

} // namespace

WindowLayout::WindowLayout(QMainWindow& window, QSplitter& splitter, QTableView& table)
    : window_(window), splitter_(splitter), table_(table) {
    later_.setSingleShot(true);
    later_.setInterval(500);
    connect(&later_, &QTimer::timeout, this, &WindowLayout::save);
    connect(&splitter_, &QSplitter::splitterMoved, this, [this] { later_.start(); });
    connect(table_.horizontalHeader(), &QHeaderView::sectionResized, this, [this] {
        if (restored_)
            later_.start();
    });
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
    window_.resize(size.expandedTo(window_.minimumSize()));

    const int library = Platform::intValue(stored.value(kLibrary));
    const int left = library > 0 ? library : 216;
    splitter_.setStretchFactor(0, 0);
    splitter_.setStretchFactor(1, 1);
    splitter_.setSizes({left, qMax(1, window_.width() - left)});

    const QVariantList columns = stored.value(kColumns).toList();
    QHeaderView* header = table_.horizontalHeader();
    header->setMinimumSectionSize(kNarrowestColumn);
    for (int column = 0; column < AudioTableModel::ColumnCount; ++column) {
        const int width = Platform::intValue(columns.value(column));
        if (!header->isSectionHidden(column) && column != AudioTableModel::Title)
            header->resizeSection(column, width >= kNarrowestColumn ? width : firstWidth(column));
    }
    // The title column takes the remaining width, so that the columns always fill the table.
    header->setSectionResizeMode(AudioTableModel::Title, QHeaderView::Stretch);
    restored_ = true;
}

void WindowLayout::save() {
    later_.stop();
    auto* defaults = Platform::services().userDefaults;
    if (!defaults || !restored_)
        return;
    QVariantList columns;
    for (int column = 0; column < AudioTableModel::ColumnCount; ++column)
        columns.append(table_.horizontalHeader()->sectionSize(column));
    Dictionary layout = defaults->objectForKey(kKey).toMap();
    const Dictionary before = layout;
    // A maximised window is restored with its normal size.
    if (!window_.isMaximized() && !window_.isFullScreen()) {
        layout.insert(kWidth, window_.width());
        layout.insert(kHeight, window_.height());
    }
    layout.insert(kLibrary, splitter_.sizes().value(0));
    layout.insert(kColumns, columns);
    if (layout != before)
        defaults->setObject(kKey, layout);
}

bool WindowLayout::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize && restored_)
        later_.start();
    return QObject::eventFilter(watched, event);
}

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/LibraryRowDelegates.h"

#include "Source/View/NamedImages.h"
#include "Source/View/Theme.h"
#include "Source/WndController/AudioTableModel.h"
#include "Source/WndController/LibraryOutlineModel.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QTableView>

namespace {

// An inactive window draws a pale selection: marks in the colour of selected text would be invisible on it.
QIcon::Mode markMode(const QStyleOptionViewItem& cell) {
    return cell.state.testFlag(QStyle::State_Selected) && cell.state.testFlag(QStyle::State_Active) ? QIcon::Selected
                                                                                                    : QIcon::Normal;
}

// What the user has done with a title editor that the window opened by itself: nothing, clicked into it, or typed
// (Taken). An editor that the user opened does not have the property and so counts as Taken.
constexpr const char* kOffer = "offer";
constexpr const char* kFilled = "filled";
enum Offer { Taken, Clicked, Untouched };

bool endsEditing(int key) {
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Tab || key == Qt::Key_Backtab;
}

} // namespace

QSize OutlineRowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    const int row = Theme::enlarged(kRowHeight);
    size.setHeight(index.data(LibraryOutlineModel::GroupRole).toBool() ? groupRowHeight(row) : row);
    return size;
}

void OutlineRowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    if (option.state.testFlag(QStyle::State_Selected) && option.widget) {
        // The selection extends to the edge of the pane: the indentation is part of the row.
        QRect indentation = option.rect;
        if (option.direction == Qt::RightToLeft)
            indentation.setCoords(option.rect.right() + 1, option.rect.top(), option.widget->width(),
                                  option.rect.bottom());
        else
            indentation.setCoords(0, option.rect.top(), option.rect.left() - 1, option.rect.bottom());
        const auto group = option.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
        painter->fillRect(indentation, option.palette.color(group, QPalette::Highlight));
    }
    QStyledItemDelegate::paint(painter, option, index);
}

void OutlineRowDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    option->state &= ~QStyle::State_HasFocus;
    if (index.data(LibraryOutlineModel::GroupRole).toBool()) {
        option->state &= ~QStyle::State_MouseOver; // a heading does not react to the pointer
        const bool mirrored = option->direction == Qt::RightToLeft;
        option->rect.adjust(mirrored ? 0 : kInset, 0, mirrored ? -kInset : 0, 0);
        option->palette.setColor(QPalette::Text, option->palette.color(QPalette::Active, QPalette::PlaceholderText));
    }
    const auto colors = markMode(*option) == QIcon::Selected ? QPalette::HighlightedText : QPalette::ButtonText;
    option->icon = NamedImages::icon(
        option->icon.name(), [color = option->palette.color(QPalette::Active, colors)](QIcon::Mode) { return color; });
}

int AudioRowDelegate::rowHeight(const QTableView& table) {
    return qMax(24, table.fontMetrics().height() + 8);
}

void AudioRowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    QStyleOptionViewItem cell = option;
    cell.state &= ~QStyle::State_HasFocus;
    if (index.column() != AudioTableModel::State) {
        QStyledItemDelegate::paint(painter, cell, index);
        return;
    }
    // Centres the row's mark in its narrow column.
    initStyleOption(&cell, index);
    const QIcon icon = std::exchange(cell.icon, QIcon());
    cell.features &= ~QStyleOptionViewItem::HasDecoration;
    const QStyle* style = cell.widget ? cell.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
    QRect place(0, 0, 14, 14);
    place.moveCenter(cell.rect.center());
    icon.paint(painter, place, Qt::AlignCenter, markMode(cell));
}

QWidget* AudioRowDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                        const QModelIndex& index) const {
    QWidget* editor = QStyledItemDelegate::createEditor(parent, option, index);
    editor->setObjectName(QStringLiteral("titleEditor"));
    editor->setAccessibleName(tr("Title"));
    return editor;
}

void AudioRowDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    if (editor->property(kFilled).toBool())
        return;
    editor->setProperty(kFilled, true);
    QStyledItemDelegate::setEditorData(editor, index);
}

void AudioRowDelegate::offer(QWidget& editor) {
    editor.setProperty(kOffer, Untouched);
    editor.setContextMenuPolicy(Qt::NoContextMenu); // the table shows its own menu
}

bool AudioRowDelegate::eventFilter(QObject* watched, QEvent* event) {
    auto* field = qobject_cast<QLineEdit*>(watched);
    if (!field)
        return QStyledItemDelegate::eventFilter(watched, event);
    const int offer = field->property(kOffer).toInt();
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        if (offer == Untouched)
            field->setProperty(kOffer, Clicked);
        break;
    case QEvent::MouseButtonDblClick:
        if (auto* view = qobject_cast<QAbstractItemView*>(parent()); view && offer != Taken) {
            Q_EMIT closeEditor(field, RevertModelCache);
            Q_EMIT view->doubleClicked(view->currentIndex());
            return true;
        }
        break;
    case QEvent::ShortcutOverride: {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (offer == Untouched && (key == Qt::Key_Space || key == Qt::Key_Delete)) {
            event->ignore();
            return true; // otherwise the field would handle the key as text input
        }
        if (endsEditing(key)) { // otherwise Enter would play the recording
            event->accept();
            return true;
        }
        break;
    }
    case QEvent::KeyPress: {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (endsEditing(key)) {
            // The base class would open the next cell on Tab.
            Q_EMIT commitData(field);
            Q_EMIT closeEditor(field, NoHint);
            return true;
        }
        if (offer != Taken && key < Qt::Key_Shift) { // a modifier key alone does not count as typing
            field->setProperty(kOffer, Taken);
            field->setContextMenuPolicy(Qt::DefaultContextMenu);
        }
        break;
    }
    default:
        break;
    }
    return QStyledItemDelegate::eventFilter(watched, event);
}

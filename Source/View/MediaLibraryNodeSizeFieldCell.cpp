// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/MediaLibraryNodeSizeFieldCell.h"

#include "Source/View/Theme.h"

#include <QApplication>
#include <QFontMetrics>
#include <QPainter>
#include <QStyle>

namespace {

constexpr qreal kCornerX = 10;

QFont badgeFont(QFont font) {
    font.setPixelSize(Theme::enlarged(11));
    font.setBold(true);
    return font;
}

} // namespace

MediaLibraryNodeSizeFieldCell::MediaLibraryNodeSizeFieldCell(QObject* parent) : QStyledItemDelegate(parent) {
    setHighlighted(false);
}

void MediaLibraryNodeSizeFieldCell::setHighlighted(bool highlighted) {
    textColor_ = highlighted ? QColor(0, 0, 255) : QColor(Qt::white);
    backgroundColor_ = highlighted ? QColor(Qt::white) : QColor(150, 170, 200);
}

QRect MediaLibraryNodeSizeFieldCell::titleRect(const QRect& frame, const QString& text, const QFont& font,
                                               Qt::LayoutDirection direction) {
    const QFontMetrics metrics(badgeFont(font));
    const QSize size(qMin(frame.width(), qMax(24, metrics.horizontalAdvance(text) + 16)),
                     qMin(frame.height(), metrics.height() + 4));
    return QStyle::alignedRect(direction, Qt::AlignRight | Qt::AlignVCenter, size, frame);
}

void MediaLibraryNodeSizeFieldCell::drawWithFrame(QPainter* painter, const QRect& frame, const QString& text,
                                                  const QFont& font) const {
    if (text.isEmpty())
        return;
    const QRectF badge = QRectF(frame).adjusted(1, 1, -1, -1);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(backgroundColor_);
    // The radius is limited to half the height, so that the ends are fully round.
    painter->drawRoundedRect(badge, qMin(kCornerX, badge.width() / 2), qMin(kCornerX, badge.height() / 2));
    painter->setPen(textColor_);
    painter->setFont(badgeFont(font));
    painter->drawText(badge, Qt::AlignCenter, text);
    painter->restore();
}

void MediaLibraryNodeSizeFieldCell::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                          const QModelIndex& index) const {
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QString text = std::exchange(cell.text, QString());
    const QStyle* style = cell.widget ? cell.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
    MediaLibraryNodeSizeFieldCell badge;
    badge.setHighlighted(cell.state.testFlag(QStyle::State_Selected));
    const bool mirrored = cell.direction == Qt::RightToLeft;
    const QRect frame = cell.rect.adjusted(mirrored ? 4 : 0, 0, mirrored ? 0 : -4, 0);
    badge.drawWithFrame(painter, titleRect(frame, text, cell.font, cell.direction), text, cell.font);
}

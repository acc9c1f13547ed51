// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QStyledItemDelegate>

/// Draws the number of a node's entries as a badge with fully round ends.
class MediaLibraryNodeSizeFieldCell : public QStyledItemDelegate {
    Q_OBJECT
public:
    explicit MediaLibraryNodeSizeFieldCell(QObject* parent = nullptr);

    void setHighlighted(bool highlighted);
    [[nodiscard]] QColor textColor() const { return textColor_; }
    [[nodiscard]] QColor backgroundColor() const { return backgroundColor_; }
    /// Draws the badge with @p text into @p frame: nothing for an empty text.
    void drawWithFrame(QPainter* painter, const QRect& frame, const QString& text, const QFont& font) const;
    /// The badge's rectangle in a cell: no wider than its number needs, at the trailing end.
    [[nodiscard]] static QRect titleRect(const QRect& frame, const QString& text, const QFont& font,
                                         Qt::LayoutDirection direction);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    QColor textColor_;
    QColor backgroundColor_;
};

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/View/SpokenView.h"

#include <QWidget>

/// One line of text with digits of equal width, so that a running time does not shift. Screen readers speak its
/// accessible name and the text.
class TabularLabel : public QWidget, public SpokenView {
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(Qt::Alignment alignment READ alignment WRITE setAlignment)
public:
    explicit TabularLabel(QWidget* parent = nullptr);
    [[nodiscard]] QString text() const { return text_; }
    void setText(const QString& text);
    [[nodiscard]] Qt::Alignment alignment() const { return alignment_; }
    void setAlignment(Qt::Alignment alignment);
    /// Also reserves the width of this text, so that a blinking text does not move its neighbours.
    void setReserve(const QString& text);
    [[nodiscard]] QAccessible::Role spokenRole() const override { return QAccessible::StaticText; }
    [[nodiscard]] QString spokenValue() const override { return text_; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    [[nodiscard]] qreal advance(QChar letter) const;
    [[nodiscard]] qreal widthOf(const QString& text) const;
    [[nodiscard]] qreal textWidth() const { return widthOf(text_); }

    QString text_;
    QString reserve_;
    Qt::Alignment alignment_ = Qt::AlignLeft;
};

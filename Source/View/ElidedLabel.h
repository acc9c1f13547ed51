// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/View/SpokenView.h"

#include <QWidget>

/// One line of text that is elided in the middle where it does not fit; the tool tip shows the whole text.
class ElidedLabel : public QWidget, public SpokenView {
    Q_OBJECT
public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    [[nodiscard]] QString text() const { return text_; }
    void setText(const QString& text);
    /// Margin at both ends, in points; 8 by default.
    void setMargin(int points);
    [[nodiscard]] QAccessible::Role spokenRole() const override { return QAccessible::StaticText; }
    [[nodiscard]] QString spokenValue() const override { return text_; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString text_;
    int margin_ = 8;
};

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "RingtoneMaker/DragScroll.h"
#include "RingtoneMaker/ImageCacheView.h"

/// The waveform strip: shows the outline of the file; dragging on it draws a selection. Main thread.
class AudioWaveEditView : public ImageCacheView {
    Q_OBJECT
public:
    explicit AudioWaveEditView(QWidget* parent = nullptr);

    /// Forwarded to the delegate.
    void trimAudioFromPoint(QPointF from, QPointF to);
    /// A line of text in the middle of the visible part; empty for none.
    [[nodiscard]] QString message() const { return message_; }
    void setMessage(const QString& message);
    /// The description for screen readers.
    void setDescription(const QString& description) { description_ = description; }

    [[nodiscard]] QAccessible::Role spokenRole() const override { return QAccessible::Graphic; }
    [[nodiscard]] QString spokenValue() const override { return message_.isEmpty() ? description_ : message_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void drawGround(QPainter& painter, const QRect& dirty) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QString message_;
    QString description_;
    DragScroll scroll_;
    QPointF pressed_;
    bool dragging_ = false;
};

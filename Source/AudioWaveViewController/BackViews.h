// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPixmap>
#include <QWidget>

/// The dark background of the display. It is kept as a picture: the level history above it is drawn ten times a second.
class AudioWaveformBackView : public QWidget {
    Q_OBJECT
public:
    explicit AudioWaveformBackView(QWidget* parent = nullptr);
    /// A red frame while sound is recorded.
    void setRecording(bool recording);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void draw(QPainter& painter);

    bool recording_ = false;
    QPixmap picture_; ///< null when it must be drawn
};

/// The background of the library.
class LibaryBackView : public QWidget {
    Q_OBJECT
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// The plain background of additional controls. The controls get their colours from its palette.
class AdditionalControlBackView : public QWidget {
    Q_OBJECT
public:
    explicit AdditionalControlBackView(QWidget* parent = nullptr);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void takeColors();
};

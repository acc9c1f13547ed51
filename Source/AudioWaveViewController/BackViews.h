// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

/// The dark background of the display.
class AudioWaveformBackView : public QWidget {
    Q_OBJECT
public:
    explicit AudioWaveformBackView(QWidget* parent = nullptr);
    /// A red frame while sound is recorded.
    void setRecording(bool recording);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool recording_ = false;
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

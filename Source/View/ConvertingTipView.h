// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QPropertyAnimation>

/// The notice at the lower edge of its parent that finished recordings are being converted. It slides in when there is
/// work and out when there is none; its owner calls showFileConvertTipView() on each tick to update text and position.
class ConvertingTipView : public QLabel {
    Q_OBJECT
public:
    explicit ConvertingTipView(QWidget* parent);

    /// @param working whether a recording waits or is being converted
    /// @param progress progress of the current job, negative for none
    void showFileConvertTipView(bool working, const QString& text, double progress);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QPoint place(bool shown) const;

    QPropertyAnimation slide_;
    bool shown_ = false;
    double progress_ = -1;
};

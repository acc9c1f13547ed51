// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QWidget>

class AudioTrimEditView;
class TabularLabel;

/// The row of times below the bar of the trim window: the begin of the range under the left handle, its end under the
/// right one, its length between them. They move with the handles, never overlap, and never leave the row. It has the
/// same column and width as the bar. Main thread.
class RangeTimesView : public QWidget {
    Q_OBJECT
public:
    explicit RangeTimesView(QWidget* parent = nullptr);

    /// The labels are children of this view.
    void setUp(AudioTrimEditView* bar, TabularLabel* left, TabularLabel* length, TabularLabel* right);
    /// Moves the labels to the current handle positions. Called automatically when the bar is resized.
    void place();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPointer<AudioTrimEditView> bar_;
    TabularLabel* left_ = nullptr;
    TabularLabel* length_ = nullptr;
    TabularLabel* right_ = nullptr;
};

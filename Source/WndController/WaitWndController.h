// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QObject>
#include <QPointer>

#include <functional>
#include <memory>

class QWidget;
namespace Ui {
class WaitWnd;
}

/// The sheet over a window while a worker is busy: a message and a progress bar, and a Cancel button where the work can
/// be cancelled. The bar is indeterminate until the progress is known. Main thread.
class WaitWndController : public QObject {
    Q_OBJECT
public:
    explicit WaitWndController(QObject* parent = nullptr);
    ~WaitWndController() override;

    [[nodiscard]] QDialog* window() const { return window_; }
    /// Shows the sheet over @p over; @p didEnd is called once when setStopWork() ends it. Meanwhile the window below
    /// accepts no input. With @p cancel the sheet has a Cancel button, which calls it, as Escape does; the worker then
    /// ends early, and setStopWork() still ends the sheet.
    void beginSheet(QWidget* over, std::function<void()> didEnd, std::function<void()> cancel = {});
    [[nodiscard]] bool isSheetUp() const { return static_cast<bool>(didEnd_); }
    /// Shows the message and starts the bar.
    void setIsWorking(const QString& message);
    /// The progress, 0 to 1.
    void setProgress(double share);
    /// Stops the bar, closes the sheet and calls didEnd. Does nothing without a sheet.
    void setStopWork();

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void cancelWork();

    QPointer<QDialog> window_; // a child of the covered window while it is shown
    std::unique_ptr<Ui::WaitWnd> ui_;
    std::function<void()> didEnd_;
    std::function<void()> cancel_; ///< empty when the work cannot be cancelled, or is already
};

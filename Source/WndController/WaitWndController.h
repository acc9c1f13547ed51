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

/// The sheet over an editing window while a worker is busy: a message and a bar, nothing to press. The bar runs to and
/// fro until a share is known. Main thread.
class WaitWndController : public QObject {
    Q_OBJECT
public:
    explicit WaitWndController(QObject* parent = nullptr);
    ~WaitWndController() override;

    [[nodiscard]] QDialog* window() const { return window_; }
    /// Shows the sheet over @p over; @p didEnd is called once when setStopWork() ends it. The window stays usable for
    /// nothing else meanwhile.
    void beginSheet(QWidget* over, std::function<void()> didEnd);
    [[nodiscard]] bool isSheetUp() const { return static_cast<bool>(didEnd_); }
    /// Shows the message and starts the bar.
    void setIsWorking(const QString& message);
    /// The share done, 0 to 1.
    void setProgress(double share);
    /// Stops the bar, takes the sheet away and tells its owner. Without a sheet nothing happens.
    void setStopWork();

private:
    bool eventFilter(QObject* watched, QEvent* event) override;

    QPointer<QDialog> window_; // a child of the window it lies over, while it does
    std::unique_ptr<Ui::WaitWnd> ui_;
    std::function<void()> didEnd_;
};

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/NotificationCenter.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>
#include <vector>

class BurnControl;
class QDialog;
class QWidget;
namespace Ui {
class ProcessWnd;
}

/// The progress sheet of a burn: follows the engine's notifications, offers to cancel, and stays open for five seconds
/// after a successful burn. Main thread.
class ProcessWndController : public QObject {
    Q_OBJECT
public:
    static constexpr int kLingerMs = 5000;

    /// The sheet covers @p window.
    explicit ProcessWndController(QWidget& window);
    ~ProcessWndController() override;

    /// The engine to stop on cancel; not owned.
    void senBurnControl(BurnControl* engine) { engine_ = engine; }
    [[nodiscard]] QDialog* window() const { return window_.get(); }

    /// Resets to the waiting state: unknown percentage, nothing to cancel.
    void initProcessWnd();
    /// Shows the sheet. @p didEnd is called once, when it is closed.
    void beginSheet(std::function<void()> didEnd);

    /// @p userInfo holds the progress from 0 to 1, or -1 while unknown.
    void burnProcess(const Dictionary& userInfo);
    void burnFinish();
    void finishBurn();
    void burnError();
    /// Asks, then stops the burn.
    void cancelBurn();
    void setProcess(int percent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void awakeFromNib();
    void applyColors();
    void endSheet();

    BurnControl* engine_ = nullptr;
    std::unique_ptr<QDialog> window_;
    std::unique_ptr<Ui::ProcessWnd> ui_;
    std::function<void()> didEnd_; ///< set while the sheet is open
    QTimer linger_;
    bool finished_ = false; ///< the burn succeeded; the sheet stays open for a while
    std::vector<std::unique_ptr<Platform::NotificationCenter::Observation>> observations_;
};

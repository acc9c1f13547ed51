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

/// The progress sheet of a burn: follows the engine's notifications, offers to cancel, and stays up for five seconds
/// after a burn that went well. Main thread.
class ProcessWndController : public QObject {
    Q_OBJECT
public:
    static constexpr int kLingerMs = 5000;

    /// @p window is the one that the sheet stands on.
    explicit ProcessWndController(QWidget& window);
    ~ProcessWndController() override;

    /// The engine that cancelling stops; not owned.
    void senBurnControl(BurnControl* engine) { engine_ = engine; }
    [[nodiscard]] QDialog* window() const { return window_.get(); }

    /// Back to the waiting state: no percentage known, nothing to cancel.
    void initProcessWnd();
    /// Shows the sheet. @p didEnd is called once, when it has gone.
    void beginSheet(std::function<void()> didEnd);

    /// @p userInfo holds the share that is done, from 0 to 1, or -1 while it is not known.
    void burnProcess(const Dictionary& userInfo);
    void burnFinish();
    void finishBurn();
    void burnError();
    /// Asks, and stops the burn.
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
    std::function<void()> didEnd_; ///< set while the sheet is up
    QTimer linger_;
    bool finished_ = false; ///< the burn went well; the sheet lingers
    std::vector<std::unique_ptr<Platform::NotificationCenter::Observation>> observations_;
};

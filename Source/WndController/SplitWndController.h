// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Result.h"
#include "Source/Control/RecordingParts.h"
#include "Source/Control/SplitPlan.h"
#include "Source/Control/ToolControl.h"
#include "Source/View/EditDialog.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <atomic>
#include <memory>
#include <thread>

class AudioOutline;
class CustomSound;
class RecordingEditDelegate;
class SilenceSearch;
class SplitEditView;
class SplitPartsModel;
class WaitWndController;
namespace Ui {
class SplitWnd;
}

/// The window that cuts a recording at its silences: two sliders choose which silences, and the user can listen to the
/// cuts, move, add and remove them, and name the parts. Created once and reused. Main thread; searching and writing run
/// on workers.
class SplitWndController : public QObject, public ToolControl::WindowShower {
    Q_OBJECT
public:
    /// @p mainWindow may be null.
    explicit SplitWndController(QWidget* mainWindow = nullptr, QObject* parent = nullptr);
    /// Cancels a running split: then no part is written.
    ~SplitWndController() override;

    void setDelegate(RecordingEditDelegate* delegate) { delegate_ = delegate; }
    [[nodiscard]] EditDialog* window() const { return window_; }
    [[nodiscard]] WaitWndController& waitWndController() const { return *waitWndController_; }
    [[nodiscard]] CustomSound* audioPlayControl() const { return audioPlayControl_.get(); }
    [[nodiscard]] const SplitPlan& plan() const { return plan_; }
    /// Whether the silences of the recording are known, or it cannot be split.
    [[nodiscard]] bool isSearched() const { return searched_; }

    /// Loads a recording by its entry and begins to search its silences.
    void setRecording(const Dictionary& entry);
    /// Shows the window and returns when it is closed.
    void runModal();
    /// Reads the play position; called ten times a second while the window is open.
    void updatePlayPosition();

    // ---- called to show the window
    [[nodiscard]] bool isWindowVisible() const override;
    void showWindow() override;
    void makeKeyAndOrderFront() override;
    void center() override;

public Q_SLOTS:
    void togglePlay();
    /// Plays from two seconds before the current cut to two seconds behind it.
    void listenToCut();
    void addCutHere();
    void removeCurrentCut();
    void resetCuts();
    /// Writes the parts.
    void split();
    void close();

private:
    void connectControls();
    void keyPressed(QKeyEvent& event);
    void searchEnded();
    void changeRule();
    /// Shows the cuts of the plan everywhere.
    void showCuts();
    void showFound();
    void showPlayButton(bool playing);
    void showPlayTime();
    void showScrollBar();
    void showCurrentPart();
    void seek(std::int64_t frame);
    void stopPlaying();
    void write();
    void written(std::shared_ptr<Platform::Result<QList<RecordingParts::Part>>> result);
    void sheetEnded();
    void joinWorker();
    [[nodiscard]] QString sourcePath() const;
    [[nodiscard]] double duration() const;

    QPointer<EditDialog> window_; // a child of the main window, which may be destroyed first
    std::unique_ptr<Ui::SplitWnd> ui_;
    Dictionary entry_;
    SplitPlan plan_;
    std::unique_ptr<SplitPartsModel> parts_;
    std::unique_ptr<SilenceSearch> search_;
    std::unique_ptr<AudioOutline> outline_;
    std::unique_ptr<CustomSound> audioPlayControl_;
    std::unique_ptr<WaitWndController> waitWndController_;
    bool searched_ = false;
    double searchedShare_ = 0;
    double listenUntil_ = -1; ///< seconds; -1: to the end
    QTimer timer_;
    QTimer listenEnd_; ///< ends listening exactly
    RecordingEditDelegate* delegate_ = nullptr;
    std::shared_ptr<Platform::Result<QList<RecordingParts::Part>>> result_;
    std::thread worker_;
    std::atomic<bool> cancelled_ = false;
};

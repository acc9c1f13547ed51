// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/NotificationCenter.h"
#include "Source/CDBurn/AudioDataSourceView.h"
#include "Source/CDBurn/BurnState.h"

#include <QObject>

#include <memory>
#include <vector>

class BurnControl;
class EditDialog;
class ProcessWndController;
namespace Ui {
class CDBurnWnd;
}

/// The burn window: the track list, the choice of the drive, whether a burn can start and why not, and the start.
/// During a burn a progress sheet covers it; the window closes with that sheet. Main thread.
class CDBurnWndController : public QObject, public AudioDataSourceViewDelegate {
    Q_OBJECT
public:
    /// The window is centred in front of @p mainWindow, which may be null.
    explicit CDBurnWndController(QWidget* mainWindow);
    ~CDBurnWndController() override;

    [[nodiscard]] EditDialog* window() const { return window_.get(); }
    [[nodiscard]] BurnControl& burnControl() const { return *burnControl_; }
    [[nodiscard]] ProcessWndController& processWndController() const { return *process_; }
    [[nodiscard]] AudioDataSourceView& trackList() const;

    /// Call it before the window is shown: restores its last size and selects the first track.
    void prepareWindow();
    /// Shows the window and returns when it is closed.
    void runModal();

    /// Fills the track list with recordings of the library (see AudioRecordEntry).
    void setAudioDataForCDBurn(const QVariantList& records);
    void addFilesToData();
    void chooseBurnDevice(int index);
    void ejesctDisc();
    void startBurnCD();
    void burnSheetDidEnd();
    /// Closes the window and ends the modal session. @return true
    bool windowShouldClose();

    void discInsertCDRROM() {}
    void discDidInCDROM();
    void discOutCDROM();

    /// The track list's content changed.
    void musicFileNumChange() override;
    /// Shows the size of the ticked tracks.
    void flushOtherInfo() override;
    /// Reads the state of the disc in the chosen drive.
    void flushDVDStartinfo();
    /// Shows whether a burn can start, and why not.
    void burnStateControl();

private:
    void awakeFromNib();
    void fillDrives();
    [[nodiscard]] BurnState currentState() const;

    std::unique_ptr<EditDialog> window_;
    std::unique_ptr<Ui::CDBurnWnd> ui_;
    std::unique_ptr<BurnControl> burnControl_;
    std::unique_ptr<ProcessWndController> process_;
    int discFreeSize_ = 0; ///< megabytes, each 1/1000 of 1024 * 1024 * 1024 bytes
    std::vector<std::unique_ptr<Platform::NotificationCenter::Observation>> observations_;
};

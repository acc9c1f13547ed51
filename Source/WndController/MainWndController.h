// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FilterAudio/AudioFilterController.h"
#include "RingtoneMaker/RingtoneMakerViewController.h"
#include "Source/AudioWaveViewController/AudioWaveViewController.h"
#include "Source/Control/ToolControl.h"
#include "Source/Record/RecordStateController.h"
#include "Source/View/MediaNodeListTableView.h"
#include "Source/WndController/WindowCommands.h"

#include <QMainWindow>
#include <QObject>

#include <optional>

class LibraryPresenter;
class MainMenus;
class MediaLibrary;
class QAction;
class RecordPanel;
class WindowKeys;
class WindowLayout;
namespace Ui {
class MainWnd;
}

/// The main window. It connects the recording side (RecordStateController), the library's presenter, the window
/// commands and the menus, which do the work. Main thread.
class MainWndController : public QObject,
                          public ToolControl::WindowShower,
                          public RecordStateControllerDelegate,
                          public AudioWaveViewControllerDelegate,
                          public MediaNodeListTableViewDelegate,
                          public RingtoneMakerViewControllerDelegate,
                          public AudioFilterControllerDelegate {
    Q_OBJECT
public:
    /// Builds the window for a recording side that is already set up. Neither is owned; both must outlive it.
    MainWndController(RecordStateController& record, MediaLibrary& library, QObject* parent = nullptr);
    ~MainWndController() override;

    [[nodiscard]] QMainWindow* window() const { return window_.get(); }
    [[nodiscard]] RecordStateController& record() const { return record_; }
    [[nodiscard]] LibraryPresenter& library() const { return *library_; }
    [[nodiscard]] AudioWaveViewController& display() const { return *display_; }
    [[nodiscard]] WindowCommands& commands() const { return *commands_; }
    [[nodiscard]] MainMenus& menus() const { return *menus_; }
    [[nodiscard]] RecordPanel& recordPanel() const { return *panel_; }
    [[nodiscard]] AudioFilterController& filter() const { return *filter_; }

    /// Connects the commands to the ringtone maker and the short-recording filter, and handles their results.
    void bindWindows();
    /// Shows a sentence in the line below the library, and says it to screen readers.
    void showStatus(const QString& text);

    // ---- called to show the window
    [[nodiscard]] bool isWindowVisible() const override;
    void showWindow() override;
    void makeKeyAndOrderFront() override;
    void center() override;
    /// The close box and Quit: ends the program unless something is recorded.
    void closeWindow();

    // ---- menus ------------------------------------------------------------------------------------------------------
    [[nodiscard]] QString startStopMenuString() const;
    [[nodiscard]] QString pauseResumeMenuString() const;
    /// Sets the item's title where its command has one that depends on the state; returns whether it is enabled.
    bool validateMenuItem(QAction& item) const;
    /// Hides the items of the table's context menu while nothing is selected.
    void menuWillOpen(QMenu& menu);
    [[nodiscard]] bool tableMenuHidden() const;

    // ---- commands ---------------------------------------------------------------------------------------------------
    void startAndStopRecord();
    void pauseAndResumeRecord();
    void splitTheRecord();
    [[nodiscard]] bool isStateAudioCanStartRecord() const;
    [[nodiscard]] bool isStateAudioRecord() const;
    void playSoundButtonAction();
    void tableViewDoubleAction();
    void deleteAudioFile();
    void revealInFinder();
    void openIniTunes();
    void openID3EditFace();
    void openAudioTrimFace();
    void openCDBurnFace();
    void openFilterWindow();
    void openRingtoneMakerWindow();
    /// The computer-audio device was installed: says so, and checks the box as soon as the device is there.
    void systemAudioRecordDeviceInstalled();

    // ---- called by the recording side
    void stopSoundPlaying() override;
    void setTabViewShowWave(bool show) override;
    void updateRecordStateAction() override;
    void addRecordFile(const QString& path, const Dictionary& tags) override;
    void insertTheSystemAudioRecordDevice() override;
    void terminate() override;

    // ---- called by the display
    float getAudioWaveLevelValue() override;
    bool takeClipping() override;
    void updateAudioWaveRecordState() override;
    void updatePlaySoundButton() override;

    // ---- called by the ringtone maker
    [[nodiscard]] QString nextRingtoneMakerFilePath() override;
    void addRingtoneFile(const QString& path, const Dictionary& tags) override;

    // ---- called by the short-recording filter
    void removeMediaLibraryArray(const QVariantList& entries) override;

    // ---- called by the table
    QMenu* menuForEvent(QContextMenuEvent& event) override;

Q_SIGNALS:
    // Forwarded to the application's delegate.
    void perference();
    void support();
    void audioDevice();
    void requestSystemAudioRecordDevice();
    void terminateRequested();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setUpViews();
    void bindLibrary();
    void bindMenus();
    void recordingFinished(const QString& path, const Dictionary& entry);
    /// Opens the title of the selected recording, so that it can be typed over at once.
    void offerTitle();
    void leaveSearch(bool toFirst);
    void showSelection();
    /// The selected node's key and the selected paths, for comparison.
    [[nodiscard]] QStringList selection() const;
    void showEmptyText();
    void chooseInstalledDevice();

    RecordStateController& record_;
    std::unique_ptr<QMainWindow> window_;
    std::unique_ptr<Ui::MainWnd> ui_;
    std::unique_ptr<AudioFilterController> filter_;
    std::unique_ptr<AudioWaveViewController> display_;
    std::unique_ptr<LibraryPresenter> library_;
    std::unique_ptr<WindowCommands> commands_;
    std::unique_ptr<RecordPanel> panel_;
    std::unique_ptr<MainMenus> menus_;
    std::unique_ptr<WindowLayout> layout_;
    std::unique_ptr<WindowKeys> keys_;
    std::optional<QStringList> selectionAtStop_; ///< at the last start or stop, or as changed for a finished file since
    std::optional<QString> shownSelection_;      ///< what the status line last showed for a selection
    bool awaitsDevice_ = false;                  ///< the computer-audio device was installed and is not there yet
};

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

/// The main window: recording side, library and menus behind one face. What it does is done by the recording side
/// (RecordStateController), the library's presenter, the window's commands and its menus; here they meet. Main thread.
class MainWndController : public QObject,
                          public ToolControl::WindowShower,
                          public RecordStateControllerDelegate,
                          public AudioWaveViewControllerDelegate,
                          public MediaNodeListTableViewDelegate,
                          public RingtoneMakerViewControllerDelegate,
                          public AudioFilterControllerDelegate {
    Q_OBJECT
public:
    /// Name of an action's property that holds the command which it sends ("startAndStopRecord:").
    static constexpr const char* kActionProperty = "action";

    /// Builds the window over a recording side that is already set up. Neither is owned; both must outlive it.
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

    /// Lets the commands open the ringtone maker and the short-recording filter, and takes what they bring.
    void bindWindows();

    // ---- the window, as ToolControl shows it
    [[nodiscard]] bool isWindowVisible() const override;
    void showWindow() override;
    void makeKeyAndOrderFront() override;
    void center() override;
    /// What the close box and Quit do: the program ends unless something records.
    void closeWindow();

    // ---- menus ------------------------------------------------------------------------------------------------------
    [[nodiscard]] QString startStopMenuString() const;
    [[nodiscard]] QString pauseResumeMenuString() const;
    /// Sets the item's title where the command has one that follows the state; answers whether it is enabled.
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

    // ---- asked by the recording side
    void stopSoundPlaying() override;
    void setTabViewShowWave(bool show) override;
    void updateRecordStateAction() override;
    void addRecordFile(const QString& path, const Dictionary& tags) override;
    void insertTheSystemAudioRecordDevice() override;
    void terminate() override;

    // ---- asked by the display
    float getAudioWaveLevelValue() override;
    void updateAudioWaveRecordState() override;
    void updatePlaySoundButton() override;

    // ---- asked by the ringtone maker
    [[nodiscard]] QString nextRingtoneMakerFilePath() override;
    void addRingtoneFile(const QString& path, const Dictionary& tags) override;

    // ---- asked by the short-recording filter
    void removeMediaLibraryArray(const QVariantList& entries) override;

    // ---- asked by the table
    QMenu* menuForEvent(QContextMenuEvent& event) override;

Q_SIGNALS:
    // What the application's delegate does.
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
    void recordingFinished(const QString& path, const Dictionary& entry);
    void showSelection();
    /// The selected node and rows, to be compared: its key, then the paths.
    [[nodiscard]] QStringList selection() const;
    void showStatus(const QString& text);
    void showEmptyText();

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
    std::optional<QStringList> selectionAtStop_; ///< of the last start or stop, or as a finished file has set it since
    std::optional<QString> shownSelection_;      ///< path that the status line showed last for a selection
};

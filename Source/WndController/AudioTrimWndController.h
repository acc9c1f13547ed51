// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/Control/AudioTrimSave.h"
#include "Source/Control/ConverterAudioControl.h"
#include "Source/Control/ToolControl.h"
#include "Source/View/AudioTrimEditView.h"
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
class WaitWndController;
namespace Ui {
class AudioTrimWnd;
}

/// The trim window: plays a recording, lets the user choose a range of it, and saves that range in place of the
/// recording or into a new file. Created once and reused. Main thread; saving runs on a worker.
class AudioTrimWndController : public QObject,
                               public ToolControl::WindowShower,
                               public AudioTrimEditViewDelegate,
                               public ConverterAudioControlDelegate {
    Q_OBJECT
public:
    /// @p mainWindow may be null.
    explicit AudioTrimWndController(QWidget* mainWindow = nullptr, QObject* parent = nullptr);
    /// Cancels a running save: the recording stays as it was.
    ~AudioTrimWndController() override;

    void setDelegate(RecordingEditDelegate* delegate) { delegate_ = delegate; }
    [[nodiscard]] RecordingEditDelegate* delegate() const { return delegate_; }
    [[nodiscard]] EditDialog* window() const { return window_; }
    [[nodiscard]] WaitWndController& waitWndController() const { return *waitWndController_; }
    [[nodiscard]] CustomSound* audioPlayControl() const { return audioPlayControl_.get(); }
    [[nodiscard]] const Dictionary& trimAudioSourceDic() const { return trimAudioSourceDic_; }
    [[nodiscard]] bool isPreview() const { return isPreview_; }

    /// Loads a recording by its entry.
    void setTrimAudioSourceData(const Dictionary& entry);
    /// Shows the window and returns when it is closed.
    void runModal();

    void playAudio();
    void pauseAudio();
    void stopAudio();

    // ---- called by the bar
    void seekPlay(float rate) override;
    void setLeftTrim(float rate) override;
    void setRightTrim(float rate) override;

    void playTimeForAudio(float rate, double audioLength);
    void showPlayTime(double seconds, double audioLength);
    void audioPlayTrimAudioUpdateTimer();
    void playTheAudioEnd();

    // ---- saving
    void startConverter();
    void converterAudio();
    void converterSheetDidEnd();
    void updateFile(const QString& path, const Dictionary& tags);

    // ---- called to show the window
    [[nodiscard]] bool isWindowVisible() const override;
    void showWindow() override;
    void makeKeyAndOrderFront() override;
    void center() override;

public Q_SLOTS:
    /// The play button: plays or pauses.
    void togglePlayAudio();
    void previewEditAudio();
    /// Sets the left or right end to the play position.
    void leftTrim();
    void rightTrim();
    void saveAudio();
    void saveAsAudio();
    void cancelTrimAudio();

private:
    void awakeFromNib();
    void keyPressed(QKeyEvent& event);
    void showPlayButton(bool playing);
    void showRange();
    void save(bool replace);
    [[nodiscard]] bool refuse();
    void converted(AudioTrimSave::Result result);
    void joinWorker();
    [[nodiscard]] double duration() const;
    [[nodiscard]] QString sourcePath() const;

    QPointer<EditDialog> window_; // a child of the main window, which may be destroyed first
    std::unique_ptr<Ui::AudioTrimWnd> ui_;
    Dictionary trimAudioSourceDic_;
    std::unique_ptr<CustomSound> audioPlayControl_;
    std::unique_ptr<WaitWndController> waitWndController_;
    std::unique_ptr<ConverterAudioControl> converterAudioControl_;
    std::unique_ptr<AudioOutline> outline_;
    bool isPreview_ = false;
    QString strExportAudioPath_;
    bool replaces_ = false; ///< true for Save, false for Save As
    QTimer timerForPlay_;
    QTimer previewEnd_; ///< gives a preview's last tick exactly at its end
    RecordingEditDelegate* delegate_ = nullptr;
    AudioTrimSave::Result result_;
    std::thread worker_;
    std::atomic<bool> cancelled_ = false;
};

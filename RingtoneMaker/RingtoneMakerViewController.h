// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"
#include "RingtoneMaker/CustomSound.h"
#include "RingtoneMaker/ImageCacheView.h"
#include "RingtoneMaker/RingtoneFile.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <atomic>
#include <memory>

class AudioOutline;
class ConverterAudioControl;
class EditDialog;
class QKeyEvent;
namespace Ui {
class RingtoneMakerViewController;
}

/// What the ringtone maker calls on its owner.
class RingtoneMakerViewControllerDelegate {
public:
    virtual ~RingtoneMakerViewControllerDelegate() = default;
    /// The path of the next ringtone; a null path when there is none.
    [[nodiscard]] virtual QString nextRingtoneMakerFilePath() { return {}; }
    /// Adds a finished ringtone to the library.
    virtual void addRingtoneFile(const QString& /*path*/, const Dictionary& /*tags*/) {}
};

/// The modal window that cuts a ringtone out of a recording: outline, selection, playback, writing. One instance for
/// the whole program. Main thread; separate threads read the outline and write the ringtone.
class RingtoneMakerViewController : public QObject, public RingtoneMakerViewDelegate {
    Q_OBJECT
    Q_PROPERTY(bool playSound READ playSound WRITE setPlaySound NOTIFY playSoundChanged)
    Q_PROPERTY(bool previewSound READ previewSound WRITE setPreviewSound NOTIFY previewSoundChanged)
    Q_PROPERTY(float fadeIn READ fadeIn WRITE setFadeIn NOTIFY fadesChanged)
    Q_PROPERTY(float fadeOut READ fadeOut WRITE setFadeOut NOTIFY fadesChanged)
    Q_PROPERTY(bool fadeInEnable READ fadeInEnable WRITE setFadeInEnable NOTIFY fadesChanged)
    Q_PROPERTY(bool fadeOutEnable READ fadeOutEnable WRITE setFadeOutEnable NOTIFY fadesChanged)
    Q_PROPERTY(bool transferToITunes READ transferToITunes WRITE setTransferToITunes NOTIFY transferToITunesChanged)
    Q_PROPERTY(bool generatingWave READ generatingWave NOTIFY generatingWaveChanged)
public:
    /// Points of the window per second of audio.
    static constexpr float kPointsPerSecond = 10;

    /// The only instance, created by the first call and destroyed with the QApplication.
    static RingtoneMakerViewController& shareController();
    RingtoneMakerViewController();
    ~RingtoneMakerViewController() override;

    [[nodiscard]] RingtoneMakerViewControllerDelegate* delegate() const { return delegate_; }
    void setDelegate(RingtoneMakerViewControllerDelegate* delegate) { delegate_ = delegate; }
    [[nodiscard]] EditDialog* window() const { return window_.get(); }

    /// Loads a recording and copies its library entry. What was open before is discarded.
    void openFile(const QString& path, const Dictionary& tag);
    /// Runs the window above @p owner; returns when it closes.
    void showWindow(QWidget* owner = nullptr);
    /// The close box and Cancel. A running write is stopped first.
    void closeWindow();

    // ---- called by the views
    [[nodiscard]] float soundDuration() const override;
    [[nodiscard]] float audioPosition() const override;
    /// Any length, limited to the file.
    void trimAudioFromPoint(QPointF from, QPointF to) override;
    void setAudioPosition(float x) override;

    // ---- playback
    [[nodiscard]] bool playSound() const;
    void setPlaySound(bool play);
    [[nodiscard]] bool previewSound() const;
    void setPreviewSound(bool preview);
    void stopPlay();
    void updatePlaySoundState();
    /// One tick of the timer that follows the sound.
    void audioPlayUpdateTimerFireMethod();
    void updatePlaySoundPreviewCurrentTime();
    void updatePlaySoundVolume();
    void updatePlaySoundCurrentTime();

    // ---- writing
    void startConvert();
    /// Returns when the ringtone is written or has failed; the event loop runs meanwhile.
    void converterAudio();
    void converterAudioFinish(const QString& path);

    [[nodiscard]] const Dictionary& audioTag() const { return audioTag_; }
    void setAudioTag(const Dictionary& tag) { audioTag_ = tag; }
    /// Null while no file is open.
    [[nodiscard]] CustomSound* sound() const { return sound_.get(); }
    [[nodiscard]] bool generatingWave() const { return generatingWave_; }
    [[nodiscard]] bool isWriting() const { return writing_; }
    [[nodiscard]] float fadeIn() const { return fadeIn_; }
    void setFadeIn(float seconds);
    [[nodiscard]] float fadeOut() const { return fadeOut_; }
    void setFadeOut(float seconds);
    [[nodiscard]] bool fadeInEnable() const { return fadeInEnable_; }
    void setFadeInEnable(bool enable);
    [[nodiscard]] bool fadeOutEnable() const { return fadeOutEnable_; }
    void setFadeOutEnable(bool enable);
    [[nodiscard]] bool transferToITunes() const { return transferToITunes_; }
    void setTransferToITunes(bool transfer);

Q_SIGNALS:
    void playSoundChanged();
    void previewSoundChanged();
    void fadesChanged();
    void transferToITunesChanged();
    void generatingWaveChanged();
    /// The play position changed.
    void currentTimeChanged();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void bindControls();
    void layViews();
    void resizeContainer();
    void windowWillClose();
    void keyPressed(QKeyEvent* event);
    void followSelection();
    void setSoundPlaying(bool play, bool preview);
    void beginGenerateWaveImage();
    void growWaveImage(qsizetype first);
    void finishGenerateWaveImage();
    void createDudioPlayUpdateTimer();
    void destroyDudioPlayUpdateTimer();
    void setWriting(bool writing);
    void updateEnabled();
    void showProblem(const QString& text);
    [[nodiscard]] RingtoneFile::Result writeOnWorker(const RingtoneFile::Task& task);

    std::unique_ptr<EditDialog> window_;
    std::unique_ptr<Ui::RingtoneMakerViewController> ui_;
    std::unique_ptr<AudioOutline> outline_;
    Dictionary audioTag_;
    std::unique_ptr<CustomSound> sound_;
    bool isPreview_ = false;
    bool wantsSound_ = false; ///< the user pressed play: when a preview reached the file's end, it starts again
    bool generatingWave_ = false;
    QTimer audioPlayUpdateTimer_;
    QTimer envelopeTimer_; ///< runs between the ticks while audio plays: fades without steps, jumps on time
    float fadeIn_ = RingtoneFile::kFadeSeconds;
    float fadeOut_ = RingtoneFile::kFadeSeconds;
    bool fadeInEnable_ = false;
    bool fadeOutEnable_ = false;
    bool transferToITunes_ = false;
    std::unique_ptr<ConverterAudioControl> converterAudioControl_;
    RingtoneMakerViewControllerDelegate* delegate_ = nullptr;
    bool writing_ = false;
    std::atomic<bool> stopWriting_{false};
};

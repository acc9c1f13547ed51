// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/AudioWaveViewController/AudioPlayProgressView.h"
#include "Source/Record/RecordNotice.h"

#include <QColor>
#include <QObject>
#include <QTimer>

#include <memory>

class AudioRecordWaveView;
class AudioWaveformBackView;
class CustomSound;
enum class RecordState;
namespace Ui {
class AudioWaveViewController;
}

/// What the display calls on the main window. Main thread.
class AudioWaveViewControllerDelegate {
public:
    virtual ~AudioWaveViewControllerDelegate() = default;
    /// The current level, 0 to 1.
    virtual float getAudioWaveLevelValue() { return 0; }
    /// Whether the sound was clipped since the last call.
    virtual bool takeClipping() { return false; }
    /// Compare the recording state with isRecording() now.
    virtual void updateAudioWaveRecordState() {}
    /// Read the state of the sound again now.
    virtual void updatePlaySoundButton() {}
};

/// The display in the upper part of the main window: the level history with the state and time of the recording, or
/// title, artist and a seekable bar of the playing file. It reads the level and the position ten times a second. Main
/// thread.
class AudioWaveViewController : public QObject, public AudioPlayProgressViewDelegate {
    Q_OBJECT
    Q_PROPERTY(bool tabViewShowWave READ tabViewShowWave WRITE setTabViewShowWave NOTIFY tabViewShowWaveChanged)
    Q_PROPERTY(bool isRecording READ isRecording WRITE setIsRecording NOTIFY isRecordingChanged)
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY titleChanged)
    Q_PROPERTY(QString artist READ artist WRITE setArtist NOTIFY artistChanged)
    Q_PROPERTY(QString stateString READ stateString WRITE setStateString NOTIFY stateStringChanged)
    Q_PROPERTY(QString timeString READ timeString WRITE setTimeString NOTIFY timeStringChanged)
    Q_PROPERTY(QColor stateColor READ stateColor WRITE setStateColor NOTIFY stateColorChanged)
    Q_PROPERTY(bool changeTabViewButtonState READ changeTabViewButtonState WRITE setChangeTabViewButtonState NOTIFY
                   changeTabViewButtonStateChanged)
    Q_PROPERTY(double currentTime READ currentTime NOTIFY playSoundProgressChanged)
    Q_PROPERTY(double duration READ duration NOTIFY playSoundProgressChanged)
    Q_PROPERTY(float playLeftTime READ playLeftTime NOTIFY playSoundProgressChanged)

public:
    /// Builds the view below @p parent and calls awakeFromNib().
    explicit AudioWaveViewController(QWidget* parent = nullptr);
    ~AudioWaveViewController() override;

    /// The panel to put into a window. Owned by its parent widget, else by this controller.
    [[nodiscard]] QWidget* view() const;
    /// Its controls in reading order, for the window's tab order.
    [[nodiscard]] QList<QWidget*> controls() const;
    void setDelegate(AudioWaveViewControllerDelegate* delegate) { delegate_ = delegate; }
    [[nodiscard]] AudioWaveViewControllerDelegate* delegate() const { return delegate_; }
    [[nodiscard]] AudioPlayProgressView* audioPlayProgressView() const;
    [[nodiscard]] AudioRecordWaveView* audioRecordWaveView() const;

    /// True: the recording side is shown; false: the playback side.
    [[nodiscard]] bool tabViewShowWave() const { return tabViewShowWave_; }
    void setTabViewShowWave(bool show);
    [[nodiscard]] bool isRecording() const { return isRecording_; }
    void setIsRecording(bool recording);
    /// The current sound; null when there is none.
    [[nodiscard]] const std::shared_ptr<CustomSound>& playSound() const { return playSound_; }
    void setPlaySound(std::shared_ptr<CustomSound> sound);
    [[nodiscard]] QString title() const { return title_; }
    void setTitle(const QString& title);
    [[nodiscard]] QString artist() const { return artist_; }
    void setArtist(const QString& artist);
    [[nodiscard]] QString stateString() const { return stateString_; }
    void setStateString(const QString& state);
    [[nodiscard]] QString timeString() const { return timeString_; }
    void setTimeString(const QString& time);
    /// Black or red; black is drawn in the panel's own text colour.
    [[nodiscard]] QColor stateColor() const { return stateColor_; }
    void setStateColor(const QColor& color);

    /// What the recording does. Beside the playback side, state and time show while it is not idle. The panel has a red
    /// frame while sound is written.
    void setRecordState(RecordState state, bool isRecording);
    [[nodiscard]] RecordState recordState() const { return recordState_; }
    /// One sentence above the level history: what an armed recording waits for, or why there is no sound. An empty text
    /// hides it.
    void setHint(const QString& hint);
    [[nodiscard]] QString hint() const { return hint_; }

    [[nodiscard]] bool changeTabViewButtonState() const { return true; }
    void updateChangeTabViewButtonState();
    void setChangeTabViewButtonState(bool state);

    /// Seconds; all of them are 0 without a sound.
    [[nodiscard]] double currentTime() const;
    [[nodiscard]] double duration() const;
    [[nodiscard]] float playLeftTime() const;
    void setAudioPosition(float seconds) override;

    /// Messages for the user, newest last. One is shown at a time, a new one at once. An empty list hides the line.
    void setNotices(const QList<RecordNotice>& notices);
    [[nodiscard]] const QList<RecordNotice>& notices() const { return notices_; }
    /// What the shown notice offers, as on its button; empty when it offers nothing.
    [[nodiscard]] QString noticeHelp() const;

    void createDudioPlayUpdateTimer();
    void destroyDudioPlayUpdateTimer();
    [[nodiscard]] bool hasDudioPlayUpdateTimer() const { return audioPlayUpdateTimer_ != nullptr; }
    void audioPlayUpdateTimerFireMethod();
    void updatePlaySoundProgress();
    void updatePlaySoundButton();
    void updateAudioWaveRecordState();
    void updateAudioWaveView();
    [[nodiscard]] float getAudioWaveLevelValue() const;

public Q_SLOTS:
    void changeTabView();
    /// Shows the notice before the shown one; after the oldest follows the newest.
    void showNextNotice();
    /// Asks for the help that the shown notice offers.
    void askForHelp();

Q_SIGNALS:
    void tabViewShowWaveChanged();
    void isRecordingChanged();
    void playSoundChanged();
    void titleChanged();
    void artistChanged();
    void stateStringChanged();
    void timeStringChanged();
    void stateColorChanged();
    void changeTabViewButtonStateChanged();
    void playSoundProgressChanged();
    /// Whether the panel is on the screen now: false in a hidden or iconified window. At first it counts as seen.
    void seenChanged(bool seen);
    /// The user moved the position of the sound; in seconds.
    void audioPositionSet(double seconds);
    /// The user went on to another notice.
    void shownNoticeChanged();
    /// The user dismissed the notice that was shown.
    void noticeDismissed(const RecordNotice& notice);
    /// The user asks for the help that the shown notice offers.
    void helpRequested(const RecordNotice& notice);

private:
    void awakeFromNib();
    void tick();
    void setTimerInterval(int milliseconds);
    void showTitles();
    void showHint();
    void showNotices();
    void showTab();
    bool eventFilter(QObject* watched, QEvent* event) override;

    std::unique_ptr<Ui::AudioWaveViewController> ui_;
    AudioWaveformBackView* view_ = nullptr;
    bool tabViewShowWave_ = false;
    bool isRecording_ = false;
    bool isSeen_ = true;
    std::shared_ptr<CustomSound> playSound_;
    QString title_;
    QString artist_;
    std::unique_ptr<QTimer> audioPlayUpdateTimer_;
    AudioWaveViewControllerDelegate* delegate_ = nullptr;
    QString stateString_;
    QString timeString_;
    QColor stateColor_;
    QString stateSentence_; ///< the state for screen readers; empty until it is known
    RecordState recordState_{};
    QString hint_;
    QList<RecordNotice> notices_;
    qsizetype shownNotice_ = 0; ///< index of the notice in the line
};

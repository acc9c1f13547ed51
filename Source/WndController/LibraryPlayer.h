// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Desktop/MediaPlayer.h"
#include "Source/Control/CoverFile.h"

#include <QObject>
#include <QTimer>

class CustomSound;
class MainWndController;

/// The playback of the library as a player of the desktop: tells it what plays, and does what media keys and panels ask
/// for. The next and the previous track are the rows of the list that the window shows. While something is recorded
/// nothing can be played. Main thread.
class LibraryPlayer : public QObject, public Platform::MediaPlayer::Commands {
    Q_OBJECT
public:
    /// @param coverFolder see CoverFile
    LibraryPlayer(MainWndController& window, std::unique_ptr<Platform::MediaPlayer> desktop, const QString& coverFolder,
                  QObject* parent = nullptr);
    ~LibraryPlayer() override;

    void play() override;
    void pause() override;
    void stop() override;
    void next() override;
    void previous() override;
    [[nodiscard]] double position() const override;
    void setPosition(double seconds) override;
    void setVolume(double volume) override;
    void raise() override;
    void quit() override;

private:
    void soundChanged();
    /// Tells the desktop the state of now.
    void update();
    [[nodiscard]] Platform::MediaPlayer::State state();
    /// The nearest row of the shown list, in steps of @p step from @p row, whose file is there; -1 when there is none.
    [[nodiscard]] int rowFrom(int row, int step) const;
    /// rowFrom() the playing one; -1 also when the list does not show that one.
    [[nodiscard]] int rowFromPlaying(int step) const;
    void go(int step);
    [[nodiscard]] std::shared_ptr<CustomSound> sound() const;

    MainWndController& window_;
    std::unique_ptr<Platform::MediaPlayer> desktop_;
    CoverFile cover_;
    QTimer later_; ///< many rows that change are one change for the desktop
    Platform::MediaPlayer::Status status_ = Platform::MediaPlayer::Status::Stopped;
    std::uint64_t track_ = 0;
    double volume_ = 1;
    bool pausedAtStart_ = false; ///< the sound was taken up by a paused player and has not begun yet
    bool takeUpPaused_ = false;  ///< so will be the next sound
};

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Desktop/MediaPlayer.h"
#include "Source/Control/CoverFile.h"

#include <QObject>
#include <QTimer>

class CustomSound;
class MainWndController;

/// Connects the playback of the library with the desktop's media controls: reports what plays and runs their commands.
/// Next and previous follow the list that the window shows. During a recording nothing can be played. Main thread.
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
    /// Sends the current state to the desktop.
    void update();
    [[nodiscard]] Platform::MediaPlayer::State state();
    /// The next row of the shown list after @p row, in steps of @p step, whose file exists; -1 if there is none.
    [[nodiscard]] int rowFrom(int row, int step) const;
    /// rowFrom() of the playing row; -1 also when the list does not show the playing entry.
    [[nodiscard]] int rowFromPlaying(int step) const;
    void go(int step);
    [[nodiscard]] std::shared_ptr<CustomSound> sound() const;

    MainWndController& window_;
    std::unique_ptr<Platform::MediaPlayer> desktop_;
    CoverFile cover_;
    QTimer later_; ///< merges the changes of many rows into one update
    Platform::MediaPlayer::Status status_ = Platform::MediaPlayer::Status::Stopped;
    std::uint64_t track_ = 0;
    double volume_ = 1;
    bool pausedAtStart_ = false; ///< the sound was loaded while the player was paused and has not been started
    bool takeUpPaused_ = false;  ///< value of pausedAtStart_ for the next sound
};

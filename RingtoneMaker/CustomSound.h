// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/Sound.h"

#include <memory>

/// Plays one audio file and keeps its own flag to distinguish paused from playing. Main thread.
class CustomSound {
public:
    explicit CustomSound(const QString& file);
    ~CustomSound();

    [[nodiscard]] double duration() const;
    [[nodiscard]] double currentTime() const;
    void setCurrentTime(double seconds);
    [[nodiscard]] float volume() const;
    void setVolume(float volume);
    /// Delay, in seconds of the file after currentTime(), until a new volume takes effect.
    [[nodiscard]] double volumeDelay() const;
    [[nodiscard]] bool isPlaying() const;
    [[nodiscard]] bool isPause() const;
    [[nodiscard]] bool isStop() const;
    void play();
    void pause();
    void stop();
    [[nodiscard]] Platform::Sound* sound() const;
    void setSound(std::unique_ptr<Platform::Sound> sound);
    [[nodiscard]] QString path() const;
    void setPath(const QString& path);

private:
    bool pauseState_ = false;
    std::unique_ptr<Platform::Sound> sound_;
    QString path_;
};

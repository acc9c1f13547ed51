// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RingtoneMaker/CustomSound.h"

#include "Platform/Foundation/Services.h"

CustomSound::CustomSound(const QString& file) {
    if (auto* sounds = Platform::services().sounds)
        setSound(sounds->open(file));
    setPath(file);
}

CustomSound::~CustomSound() = default;

double CustomSound::duration() const {
    return sound_ ? sound_->duration() : 0;
}

double CustomSound::currentTime() const {
    return sound_ ? sound_->currentTime() : 0;
}

void CustomSound::setCurrentTime(double seconds) {
    if (!sound_)
        return;
    if (isPlaying()) {
        pause();
        sound_->setCurrentTime(seconds);
        play();
    } else {
        sound_->setCurrentTime(seconds);
    }
}

float CustomSound::volume() const {
    return sound_ ? sound_->volume() : 0;
}

void CustomSound::setVolume(float volume) {
    if (sound_)
        sound_->setVolume(volume);
}

double CustomSound::volumeDelay() const {
    return sound_ ? sound_->volumeDelay() : 0;
}

bool CustomSound::isPlaying() const {
    return sound_ && sound_->isPlaying() && !pauseState_;
}

bool CustomSound::isPause() const {
    return sound_ && sound_->isPlaying() && pauseState_;
}

bool CustomSound::isStop() const {
    return !sound_ || !sound_->isPlaying();
}

void CustomSound::play() {
    if (sound_) {
        if (isStop())
            sound_->play();
        else if (isPause())
            sound_->resume();
    }
    pauseState_ = false;
}

void CustomSound::pause() {
    if (isPlaying())
        sound_->pause();
    // Also set for a stopped sound: it still reports stopped, and the next play() starts it.
    pauseState_ = true;
}

void CustomSound::stop() {
    if (!isStop())
        sound_->stop();
    pauseState_ = false;
}

Platform::Sound* CustomSound::sound() const {
    return sound_.get();
}

void CustomSound::setSound(std::unique_ptr<Platform::Sound> sound) {
    sound_ = std::move(sound);
}

QString CustomSound::path() const {
    return path_;
}

void CustomSound::setPath(const QString& path) {
    path_ = path;
}

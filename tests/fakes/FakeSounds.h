// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/Sound.h"

#include <QMap>

/// A sound that makes no noise: its position moves when the test moves it.
class FakeSound : public Platform::Sound {
public:
    FakeSound(QString path, double duration) : path_(std::move(path)), duration_(duration) {}

    [[nodiscard]] double duration() const override { return duration_; }
    [[nodiscard]] double currentTime() const override { return time; }
    void setCurrentTime(double seconds) override { time = seconds; }
    [[nodiscard]] float volume() const override { return volume_; }
    void setVolume(float volume) override { volume_ = volume; }
    [[nodiscard]] bool isPlaying() const override { return playing; }
    bool play() override {
        playing = duration_ > 0;
        return playing;
    }
    bool pause() override { return playing; }
    bool resume() override { return playing; }
    bool stop() override {
        playing = false;
        time = 0;
        Q_EMIT finished();
        return true;
    }
    [[nodiscard]] QString path() const override { return path_; }
    [[nodiscard]] QString lastError() const override { return {}; }

    double time = 0;
    bool playing = false;

private:
    QString path_;
    double duration_;
    float volume_ = 1;
};

/// Opens silent sounds of the lengths it was told; unknown paths cannot be played.
class FakeSounds : public Platform::Sounds {
public:
    [[nodiscard]] std::unique_ptr<Platform::Sound> open(const QString& path) override {
        opened.append(path);
        return std::make_unique<FakeSound>(path, lengths.value(path, 0));
    }

    QMap<QString, double> lengths;
    QStringList opened;
};

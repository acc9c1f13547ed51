// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/ExtAudioFile.h"
#include "Platform/Media/Sound.h"

#include <QMap>
#include <QStringList>

/// A player that records its calls and plays nothing. A paused sound counts as playing, as with the real one.
class FakeSound : public Platform::Sound {
public:
    explicit FakeSound(const QString& path) : path_(path) {}
    QStringList calls;
    double seconds = 10;
    double time = 0;
    float gain = 1;
    double delay = 0; ///< until a new volume takes effect, in seconds
    bool playing = false;
    bool paused = false;
    bool playFails = false;
    std::unique_ptr<Platform::ExtAudioFileReader> reader; ///< of a sound that has one

    double duration() const override { return seconds; }
    double currentTime() const override { return time; }
    void setCurrentTime(double to) override {
        calls.append(QStringLiteral("setCurrentTime %1").arg(to));
        time = to;
    }
    float volume() const override { return gain; }
    void setVolume(float volume) override { gain = volume; }
    double volumeDelay() const override { return delay; }
    bool isPlaying() const override { return playing; }
    bool play() override {
        calls.append(QStringLiteral("play"));
        playing = !playFails && seconds > 0;
        paused = false;
        return playing;
    }
    bool pause() override {
        calls.append(QStringLiteral("pause"));
        return paused = true;
    }
    bool resume() override {
        calls.append(QStringLiteral("resume"));
        paused = false;
        return true;
    }
    bool stop() override {
        calls.append(QStringLiteral("stop"));
        end();
        return true;
    }
    /// Simulates the end of the file.
    void end() {
        playing = false;
        paused = false;
        time = 0;
        Q_EMIT finished();
    }
    QString path() const override { return path_; }
    QString lastError() const override { return playFails ? QStringLiteral("no sound server answers") : QString(); }

private:
    QString path_;
};

/// Opens FakeSounds; the last one is available to the test as long as its owner keeps it.
class FakeSounds : public Platform::Sounds {
public:
    FakeSound* last = nullptr;
    QMap<QString, double> lengths; ///< of the known paths
    double otherLength = 10;       ///< of all others; 0 means that the file cannot be played
    bool playFails = false;        ///< as without a sound server
    std::unique_ptr<Platform::Sound> open(const QString& path) override {
        auto sound = std::make_unique<FakeSound>(path);
        sound->seconds = lengths.value(path, otherLength);
        sound->playFails = playFails;
        last = sound.get();
        return sound;
    }
    std::unique_ptr<Platform::Sound> openReader(std::unique_ptr<Platform::ExtAudioFileReader> reader,
                                                const QString& name, double /*ahead*/) override {
        auto sound = std::make_unique<FakeSound>(name);
        sound->seconds = double(reader->fileLengthFrames()) / reader->fileDataFormat().mSampleRate;
        sound->playFails = playFails;
        sound->reader = std::move(reader);
        last = sound.get();
        return sound;
    }
};

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Services.h"
#include "Platform/Media/ExtAudioFile.h"
#include "RingtoneMaker/CustomSound.h"
#include "Source/AudioWaveViewController/AudioWaveViewController.h"
#include "Source/View/Theme.h"

#include <QApplication>
#include <QTest>
#include <gtest/gtest.h>

/// A sound of ten seconds whose position only changes when the test sets it.
class StillSound : public Platform::Sound {
public:
    double duration() const override { return 10; }
    double currentTime() const override { return at_; }
    void setCurrentTime(double seconds) override { at_ = seconds; }
    float volume() const override { return 1; }
    void setVolume(float) override {}
    bool isPlaying() const override { return false; }
    bool play() override { return false; }
    bool pause() override { return false; }
    bool resume() override { return false; }
    bool stop() override { return false; }
    QString path() const override { return QStringLiteral("/somewhere"); }
    QString lastError() const override { return {}; }

private:
    double at_ = 0;
};

class StillSounds : public Platform::Sounds {
public:
    std::unique_ptr<Platform::Sound> open(const QString&) override { return std::make_unique<StillSound>(); }
    std::unique_ptr<Platform::Sound> openReader(std::unique_ptr<Platform::ExtAudioFileReader>, const QString&,
                                                double) override {
        return std::make_unique<StillSound>();
    }
};

class ListeningDelegate : public AudioWaveViewControllerDelegate {
public:
    float getAudioWaveLevelValue() override { return level; }
    void updateAudioWaveRecordState() override { ++recordStateAsked; }
    void updatePlaySoundButton() override { ++playButtonAsked; }
    float level = 0.5F;
    int recordStateAsked = 0;
    int playButtonAsked = 0;
};

/// The display in a window of its own.
class LiveDisplay : public testing::Test {
protected:
    LiveDisplay() {
        Platform::services().sounds = &sounds;
        Theme::install(*qApp, nullptr);
        controller.setDelegate(&delegate);
        controller.destroyDudioPlayUpdateTimer(); // the test replaces the timer
        panel->resize(480, 104);
        panel->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(panel, 30000));
    }
    ~LiveDisplay() override { controller.setDelegate(nullptr); }

    std::shared_ptr<CustomSound> playASound() {
        auto sound = std::make_shared<CustomSound>(QStringLiteral("/somewhere"));
        sound->setSound(std::make_unique<StillSound>());
        controller.setPlaySound(sound);
        return sound;
    }
    template <typename T>
    T* field(const char* name) {
        return panel->findChild<T*>(QString::fromLatin1(name));
    }

    Platform::ServicesScope scope;
    StillSounds sounds;
    ListeningDelegate delegate;
    AudioWaveViewController controller;
    QWidget* panel = controller.view();
};

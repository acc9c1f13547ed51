// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/FileManager.h"
#include "Platform/Foundation/Services.h"
#include "Source/Preferences/PreferenceStore.h"
#include "Source/Preferences/Settings.h"
#include "Source/Record/RecordSources.h"
#include "Source/Record/RecordStateController.h"
#include "tests/fakes/FakeAlerts.h"
#include "tests/fakes/FakeAudioHardware.h"
#include "tests/fakes/FakeBundle.h"
#include "tests/fakes/FakeClock.h"
#include "tests/fakes/FakeIORegistry.h"
#include "tests/fakes/FakeRecordingFiles.h"
#include "tests/fakes/FakeUserDefaults.h"
#include "tests/support/Environment.h"
#include "tests/support/WaitFor.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

/// A controller with real engines on test devices: the test feeds cycles and moves the time.
class RecordFixture : public testing::Test {
protected:
    static constexpr AudioObjectID Microphone = 11;
    static constexpr AudioObjectID ComputerAudio = 12;
    static constexpr AudioObjectID Headset = 13;
    static constexpr double Rate = 48000;

    struct Delegate : RecordStateControllerDelegate {
        void stopSoundPlaying() override { ++soundStops; }
        void setTabViewShowWave(bool show) override { waveShown = show; }
        void updateRecordStateAction() override { ++actionUpdates; }
        void addRecordFile(const QString& path, const Dictionary& tags) override {
            paths.append(path);
            entries.append(tags);
        }
        void insertTheSystemAudioRecordDevice() override { ++installs; }
        void terminate() override { ++terminations; }

        int soundStops = 0;
        bool waveShown = false;
        int actionUpdates = 0;
        int installs = 0;
        int terminations = 0;
        QStringList paths;
        QList<Dictionary> entries;
    };

    void SetUp() override {
        auto& services = Platform::services();
        services.audioHardware = &hardware;
        services.mediaFiles = &media;
        services.clock = &clock;
        services.alerts = &alerts;
        services.userDefaults = &defaults;
        services.bundle = &bundle;
        services.workspace = nullptr;
        services.ioRegistry = &registry;
        g_strTmpPath = home.filePath(QStringLiteral("tmp"));
        QDir().mkpath(g_strTmpPath);
        g_SplitTimeMS = -1;
        defaults.setObject(PreferenceStore::PreferenceSavePathKey, folder());
        media.keepSamples = false;
        hardware.nextUnit->bufferFrames = 4800;
    }

    void TearDown() override {
        controller.reset();
        g_SplitTimeMS = -1;
    }

    void addMicrophone() { add(Microphone, QStringLiteral("Microphone")); }
    void addComputerAudio() { add(ComputerAudio, RecordSources::ComputerAudioName); }
    void addHeadset() { add(Headset, QStringLiteral("Headset")); }
    void add(AudioObjectID id, const QString& name) {
        FakeAudioHardware::Device device;
        device.id = id;
        device.name = name;
        hardware.add(device);
    }

    /// Creates the controller as the program does, with the test's clock.
    void begin() {
        controller = std::make_unique<RecordStateController>();
        controller->setDelegate(&delegate);
        controller->awakeFromNib();
        controller->setDisplayClockRunning(false);
    }
    void beginWithBoth() {
        addMicrophone();
        addComputerAudio();
        defaults.setObject(PreferenceStore::ChooseRecordComputerAudio, true);
        begin();
    }
    void beginWithComputerAudioOnly() {
        addMicrophone();
        addComputerAudio();
        defaults.setObject(PreferenceStore::ChooseRecordBuiltIn, false);
        defaults.setObject(PreferenceStore::ChooseRecordComputerAudio, true);
        begin();
    }
    void setFilter(bool on, const QString& seconds = QStringLiteral("5")) {
        defaults.setObject(PreferenceStore::PreferenceFilterKey, on ? 1 : 0);
        defaults.setObject(PreferenceStore::PreferenceFilterTimeKey, seconds);
    }

    /// Feeds a device with one value for a while, in cycles of 10 ms, and advances the time.
    void play(AudioObjectID device, float value, double seconds) {
        const int cycles = int(seconds * 100 + 0.5);
        for (int i = 0; i < cycles; ++i) {
            hardware.unitOf(device)->feedValue(value, 480, clock.hostTime());
            clock.advance(0.01);
        }
    }
    void playBoth(float value, double seconds) {
        const int cycles = int(seconds * 100 + 0.5);
        for (int i = 0; i < cycles; ++i) {
            hardware.unitOf(Microphone)->feedValue(value, 480, clock.hostTime());
            hardware.unitOf(ComputerAudio)->feedValue(value, 480, clock.hostTime());
            clock.advance(0.01);
        }
    }

    /// A complete recording of a device that plays for a while.
    void record(AudioObjectID device, float value, double seconds) {
        controller->startAndStopRecord();
        play(device, value, seconds);
        controller->startAndStopRecord();
    }

    [[nodiscard]] QString folder() const { return home.filePath(QStringLiteral("Music")); }
    [[nodiscard]] QString track(int n) const { return folder() + QStringLiteral("/Track%1.m4a").arg(n); }
    [[nodiscard]] QStringList rawFiles() const { return QDir(g_strTmpPath).entryList(QDir::Files, QDir::Name); }
    [[nodiscard]] bool queueDone() {
        return waitFor([this] { return controller->jobsInQueue() == 0; });
    }
    [[nodiscard]] bool noticed(const QString& words) {
        return waitFor([this, words] { return controller->notices().join(u'\n').contains(words); });
    }

    QTemporaryDir home;
    EnvironmentScope homeFolder{"HOME", home.path().toUtf8()};
    EnvironmentScope runtimeFolder{"XDG_RUNTIME_DIR", home.path().toUtf8()};
    EnvironmentScope dataFolder{"XDG_DATA_HOME", home.filePath(QStringLiteral("data")).toUtf8()};
    Platform::ServicesScope scope;
    FakeClock clock;
    FakeAlerts alerts;
    FakeUserDefaults defaults;
    FakeBundle bundle;
    FakeAudioHardware hardware;
    FakeIORegistry registry;
    FakeRecordingFiles media;
    Delegate delegate;
    std::unique_ptr<RecordStateController> controller;
};

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Services.h"
#include "Platform/Media/linux/MediaFilesLinux.h"
#include "Source/BuiltInAudioRecord/BuildInAudioRecord.h"
#include "tests/fakes/FakeWorkspace.h"
#include "tests/support/PrivateAudioSession.h"
#include "tests/support/TestSource.h"
#include "tests/support/UnitCapture.h"
#include "tests/support/WaitFor.h"

#include <QTemporaryDir>

/// The real engine on the private sound server, with real files.
class EngineRecording : public testing::Test {
protected:
    EngineRecording() {
        auto& set = Platform::services();
        set.audioHardware = hardware_.get();
        set.mediaFiles = media_.get();
        set.workspace = &workspace_;
        engine_.setEventHandler([this](Platform::InputUnit::Event event) { events_.push_back(event); });
    }
    ~EngineRecording() override { engine_.cleanUp(); }

    /// Configures the engine for a test device.
    [[nodiscard]] testing::AssertionResult configure(TestSource& source) {
        if (const auto started = source.start(); !started)
            return started;
        const auto device = waitForDevice(*hardware_, QString::fromStdString(source.options().description));
        BuildInAudioRecord::setMaxVolume(device);
        if (device == 0 || !engine_.configureAudioUnit(device))
            return testing::AssertionFailure() << qPrintable(engine_.lastError());
        return testing::AssertionSuccess();
    }
    /// Starts a file of this type (0 WAVE, 1 M4A).
    [[nodiscard]] bool begin(int type) {
        path_ = folder_.filePath(type == 0 ? QStringLiteral("raw.wav") : QStringLiteral("raw.m4a"));
        return engine_.setOutPutAudioPath(path_, type) && engine_.startRecordAudio();
    }
    /// Waits until the open M4A file has this length.
    [[nodiscard]] bool recorded(double seconds) {
        return waitFor([&] { return double(engine_.framesAccepted()) >= seconds * engine_.sampleRate(); },
                       int(seconds * 1000) + 20000);
    }
    [[nodiscard]] bool heard(Platform::InputUnit::Event event) const {
        return std::find(events_.begin(), events_.end(), event) != events_.end();
    }

    Platform::ServicesScope scope_;
    PrivateAudioSession& session_ = PrivateAudioSession::shared();
    QTemporaryDir folder_;
    std::unique_ptr<Platform::AudioHardware> hardware_ = Platform::createAudioHardware();
    std::unique_ptr<Platform::MediaFiles> media_ = Platform::createMediaFiles();
    FakeWorkspace workspace_;
    std::vector<Platform::InputUnit::Event> events_;
    QString path_;
    BuildInAudioRecord engine_;
};

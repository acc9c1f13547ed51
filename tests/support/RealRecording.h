// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/IORegistry.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/linux/LinuxFoundation.h"
#include "Platform/Media/linux/MediaFilesLinux.h"
#include "Source/Preferences/PreferenceStore.h"
#include "Source/Record/RecordSources.h"
#include "Source/Record/RecordStateController.h"
#include "tests/fakes/FakeAlerts.h"
#include "tests/fakes/FakeBundle.h"
#include "tests/fakes/FakeUserDefaults.h"
#include "tests/fakes/FakeWorkspace.h"
#include "tests/support/AudioCheck.h"
#include "tests/support/Environment.h"
#include "tests/support/WaitFor.h"

#include <random>

#include <QTemporaryDir>

/// A known sound: tones over the whole audible range, so that two excerpts match at one position only; the encoder
/// preserves them.
class KnownSound {
public:
    /// Sounds of different seeds are not alike.
    explicit KnownSound(std::size_t tones = 60, unsigned seed = 7)
        : tones_(tones), gain_(0.2 / std::sqrt(double(tones))) {
        std::mt19937 random(seed);
        std::uniform_int_distribution<int> halfHertz(
            300, 18000); // multiples of half a hertz, so that the sum repeats every two seconds
        std::uniform_real_distribution<double> phase(0, 2 * std::numbers::pi);
        for (auto& tone : tones_)
            tone = {std::numbers::pi * halfHertz(random), phase(random)};
    }
    /// Period in seconds.
    static constexpr double Period = 2;
    [[nodiscard]] float at(double seconds) const {
        double sum = 0;
        for (const auto& tone : tones_)
            sum += std::sin(tone.omega * seconds + tone.phase);
        return float(sum * gain_);
    }

private:
    struct Tone {
        double omega;
        double phase;
    };
    std::vector<Tone> tones_;
    double gain_;
};

/// The whole path from the engines to the library, with real engines and real files. Derived classes supply the audio.
class RealRecording : public testing::Test {
protected:
    struct Delegate : RecordStateControllerDelegate {
        void addRecordFile(const QString& path, const Dictionary& tags) override {
            paths.append(path);
            entries.append(tags);
        }
        QStringList paths;
        QList<Dictionary> entries;
    };

    RealRecording() {
        auto& services = Platform::services();
        services.mediaFiles = media.get();
        services.clock = clock.get();
        services.alerts = &alerts;
        services.userDefaults = &defaults;
        services.bundle = &bundle;
        services.workspace = &workspace;
        g_strTmpPath = home.filePath(QStringLiteral("tmp"));
        QDir().mkpath(g_strTmpPath);
        g_SplitTimeMS = -1;
        defaults.setObject(PreferenceStore::PreferenceSavePathKey, home.filePath(QStringLiteral("Music")));
        defaults.setObject(PreferenceStore::PreferenceFilterKey, 0);
    }
    ~RealRecording() override {
        controller.reset();
        g_SplitTimeMS = -1;
    }

    void begin(bool builtIn, bool computer) {
        defaults.setObject(PreferenceStore::ChooseRecordBuiltIn, builtIn);
        defaults.setObject(PreferenceStore::ChooseRecordComputerAudio, computer);
        controller = std::make_unique<RecordStateController>();
        controller->setDelegate(&delegate);
        controller->awakeFromNib();
    }
    /// Waits until the recording has this length.
    [[nodiscard]] bool recorded(double seconds) {
        return waitFor([&] { return controller->recordedSeconds() >= seconds; }, int(seconds * 1000) + 30000);
    }
    /// ffmpeg's decoded samples, without the padding of the last packet, which other decoders do not remove.
    [[nodiscard]] static AudioCheck::Channels decoded(const QString& path) {
        auto channels = AudioCheck::decodedByFfmpeg(path);
        const auto frames = AudioCheck::framesByFfprobe(path);
        for (auto& channel : channels)
            if (frames >= 0 && std::int64_t(channel.size()) > frames)
                channel.resize(std::size_t(frames));
        return channels;
    }

    /// Correlation of two excerpts, from -1 to 1.
    [[nodiscard]] static double likeness(const float* one, const float* other, std::size_t frames) {
        double product = 0;
        double first = 0;
        double second = 0;
        for (std::size_t i = 0; i < frames; ++i) {
            product += double(one[i]) * double(other[i]);
            first += double(one[i]) * double(one[i]);
            second += double(other[i]) * double(other[i]);
        }
        return product / std::sqrt(std::max(1e-30, first * second));
    }
    /// The lag, within @p most frames, at which @p other matches @p one best around a position; NaN when it matches
    /// nowhere.
    [[nodiscard]] static double bestLag(const std::vector<float>& one, const std::vector<float>& other,
                                        std::size_t place, std::size_t frames, int most) {
        if (place < std::size_t(most) || place + frames + std::size_t(most) >= std::min(one.size(), other.size()))
            return std::nan("");
        double best = 0.5;
        double lag = std::nan("");
        for (int shift = -most; shift <= most; ++shift) {
            const double like = likeness(one.data() + place, other.data() + std::ptrdiff_t(place) + shift, frames);
            if (like > best) {
                best = like;
                lag = shift;
            }
        }
        return lag;
    }

    QTemporaryDir home;
    EnvironmentScope homeFolder{"HOME", home.path().toUtf8()};
    EnvironmentScope dataFolder{"XDG_DATA_HOME", home.filePath(QStringLiteral("data")).toUtf8()};
    Platform::ServicesScope scope;
    std::unique_ptr<Platform::MediaFiles> media = Platform::createMediaFiles();
    std::unique_ptr<Platform::Clock> clock = Platform::createClock();
    FakeAlerts alerts;
    FakeUserDefaults defaults;
    FakeBundle bundle;
    FakeWorkspace workspace;
    Delegate delegate;
    std::unique_ptr<RecordStateController> controller;
};

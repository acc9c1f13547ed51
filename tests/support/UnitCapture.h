// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/AudioHardware.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

#include <QString>
#include <gtest/gtest.h>

/// Runs an input unit through all its steps and stores what it delivers.
class UnitCapture {
public:
    struct Cycle {
        std::uint64_t hostTime = 0;  ///< of its time stamp
        std::uint64_t scopeTime = 0; ///< HostTimeScope::current() inside the callback
        double sampleTime = 0;
        std::uint32_t frames = 0;
        std::uint64_t firstFrame = 0; ///< its index in samples()
    };

    /// @p channels is the requested number; 0 means all channels of the device. With @p keep false frames are only
    /// counted.
    UnitCapture(Platform::AudioHardware& hardware, AudioObjectID device, std::uint32_t channels = 0, bool keep = true);
    ~UnitCapture();
    UnitCapture(const UnitCapture&) = delete;
    UnitCapture& operator=(const UnitCapture&) = delete;

    [[nodiscard]] testing::AssertionResult start();
    void stop() { unit_->stop(); }
    [[nodiscard]] Platform::InputUnit& unit() { return *unit_; }
    [[nodiscard]] double sampleRate() const { return format_.mSampleRate; }
    [[nodiscard]] std::uint32_t cycleFrames() const { return cycleFrames_; }
    [[nodiscard]] std::uint64_t frames() const;
    [[nodiscard]] std::vector<float> samples(std::uint32_t channel) const;
    [[nodiscard]] std::vector<Cycle> cycles() const;
    /// Returns all samples so far, one list per channel, and deletes them and the cycles; for long runs.
    [[nodiscard]] std::vector<std::vector<float>> takeAll();
    [[nodiscard]] std::vector<Platform::InputUnit::Event> events() const { return events_; }
    [[nodiscard]] bool heard(Platform::InputUnit::Event event) const;
    /// Called in each cycle, on the I/O thread, after its frames were copied.
    std::function<void()> inCycle;

private:
    static OSStatus callback(void* refCon, std::uint32_t* flags, const AudioTimeStamp* time, std::uint32_t bus,
                             std::uint32_t frames, AudioBufferList* data);

    std::unique_ptr<Platform::InputUnit> unit_;
    AudioObjectID device_;
    std::uint32_t channels_;
    bool keep_;
    AudioStreamBasicDescription format_;
    std::uint32_t cycleFrames_ = 0;
    std::vector<std::vector<float>> buffers_;
    std::vector<std::uint64_t> listStorage_;
    mutable std::mutex mutex_;
    std::vector<std::vector<float>> samples_;
    std::vector<Cycle> cycles_;
    std::uint64_t frames_ = 0;
    std::vector<Platform::InputUnit::Event> events_; ///< main thread
};

/// The device with that name, 0 when there is none.
[[nodiscard]] AudioObjectID deviceNamed(Platform::AudioHardware& hardware, const QString& name);
/// deviceNamed(), but waits until the device exists.
[[nodiscard]] AudioObjectID waitForDevice(Platform::AudioHardware& hardware, const QString& name);

/// Whether the samples of one channel count up without a step, except for silence at the very start.
[[nodiscard]] testing::AssertionResult isUnbrokenRamp(const std::vector<float>& samples, std::uint32_t channel);

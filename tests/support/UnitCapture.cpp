// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/UnitCapture.h"

#include "Platform/Foundation/Clock.h"
#include "tests/support/TestSource.h"
#include "tests/support/WaitFor.h"

#include <algorithm>

using namespace Platform;

UnitCapture::UnitCapture(AudioHardware& hardware, AudioObjectID device, std::uint32_t channels, bool keep)
    : device_(device), channels_(channels), keep_(keep) {
    bool found = false;
    unit_ = hardware.openOutputUnit(found);
}

UnitCapture::~UnitCapture() {
    if (unit_)
        unit_->stop(); // the callback uses unit_, which reset() sets to null before it destroys the unit
}

testing::AssertionResult UnitCapture::start() {
    const auto failed = [&](const char* step) {
        return testing::AssertionFailure() << step << ": " << unit_->lastError().toStdString();
    };
    if (unit_->setEnableInput(true) || unit_->setEnableOutput(false))
        return failed("enable");
    if (unit_->setCurrentDevice(device_))
        return failed("current device");
    if (unit_->setInputCallback(&UnitCapture::callback, this))
        return failed("callback");
    if (unit_->getDeviceFormat(format_))
        return failed("device format");
    if (channels_ == 0)
        channels_ = format_.mChannelsPerFrame;
    format_.mChannelsPerFrame = channels_;
    format_.mFormatFlags = 41;
    if (unit_->setClientFormat(format_))
        return failed("client format");
    if (unit_->getBufferFrameSize(cycleFrames_))
        return failed("buffer size");
    if (unit_->initialize())
        return failed("initialise");
    buffers_.assign(channels_, std::vector<float>(cycleFrames_));
    listStorage_.assign(sizeof(AudioBufferList) / 8 + channels_ * sizeof(AudioBuffer) / 8 + 2, 0);
    samples_.resize(channels_);
    unit_->setEventHandler([this](InputUnit::Event event) { events_.push_back(event); });
    if (unit_->start())
        return failed("start");
    return testing::AssertionSuccess();
}

OSStatus UnitCapture::callback(void* refCon, std::uint32_t* flags, const AudioTimeStamp* time, std::uint32_t bus,
                               std::uint32_t frames, AudioBufferList*) {
    auto& self = *static_cast<UnitCapture*>(refCon);
    auto* list = reinterpret_cast<AudioBufferList*>(self.listStorage_.data());
    list->mNumberBuffers = self.channels_;
    for (std::uint32_t i = 0; i < self.channels_; ++i)
        (&list->mBuffers[0])[i] = {1, std::uint32_t(self.buffers_[i].size() * 4), self.buffers_[i].data()};
    const OSStatus status = self.unit_->render(flags, time, bus, frames, list);
    {
        std::lock_guard guard(self.mutex_);
        if (self.keep_) {
            self.cycles_.push_back(
                {time->mHostTime, HostTimeScope::current(), time->mSampleTime, frames, self.frames_});
            for (std::uint32_t i = 0; i < self.channels_; ++i)
                self.samples_[i].insert(self.samples_[i].end(), self.buffers_[i].begin(),
                                        self.buffers_[i].begin() + frames);
        }
        self.frames_ += frames;
    }
    if (self.inCycle)
        self.inCycle();
    return status;
}

std::uint64_t UnitCapture::frames() const {
    std::lock_guard guard(mutex_);
    return frames_;
}

std::vector<float> UnitCapture::samples(std::uint32_t channel) const {
    std::lock_guard guard(mutex_);
    return samples_.at(channel);
}

std::vector<UnitCapture::Cycle> UnitCapture::cycles() const {
    std::lock_guard guard(mutex_);
    return cycles_;
}

std::vector<std::vector<float>> UnitCapture::takeAll() {
    std::lock_guard guard(mutex_);
    cycles_.clear();
    frames_ = 0;
    return std::exchange(samples_, std::vector<std::vector<float>>(channels_));
}

bool UnitCapture::heard(InputUnit::Event event) const {
    return std::ranges::find(events_, event) != events_.end();
}

AudioObjectID deviceNamed(AudioHardware& hardware, const QString& name) {
    for (const auto each : hardware.devices()) {
        QString found;
        if (hardware.getDeviceName(each, found) == noErr && found == name)
            return each;
    }
    return 0;
}

AudioObjectID waitForDevice(AudioHardware& hardware, const QString& name) {
    AudioObjectID device = 0;
    (void)waitFor([&] { return (device = deviceNamed(hardware, name)) != 0; });
    return device;
}

testing::AssertionResult isUnbrokenRamp(const std::vector<float>& samples, std::uint32_t channel) {
    auto sample = std::ranges::find_if(samples, [](float value) { return value != 0; });
    if (samples.end() - sample < 2)
        return testing::AssertionFailure() << "nothing was captured";
    if (sample - samples.begin() > 8192)
        return testing::AssertionFailure() << "a long silence at the start: " << sample - samples.begin();
    for (auto expected = Signal::rampFrame(*sample, channel); sample != samples.end(); ++sample, ++expected) {
        expected &= Signal::rampMask;
        if (*sample != Signal::ramp(expected, channel))
            return testing::AssertionFailure()
                   << "channel " << channel << " frame " << sample - samples.begin() << " of " << samples.size()
                   << ": expected " << expected << ", got " << Signal::rampFrame(*sample, channel);
    }
    return testing::AssertionSuccess();
}

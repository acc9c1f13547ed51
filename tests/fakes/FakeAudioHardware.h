// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/AudioHardware.h"

#include <map>
#include <set>
#include <vector>

/// An input unit whose I/O thread is the test: feed() runs one cycle. Every step can be made to fail.
class FakeInputUnit final : public Platform::InputUnit {
public:
    enum class Step {
        EnableInput,
        EnableOutput,
        CurrentDevice,
        InputCallback,
        DeviceFormat,
        ClientFormat,
        BufferFrameSize,
        Initialize,
        Start,
        Render
    };

    /// The unit's settings and a record of its calls. Shared, so that a test can read it after the unit is destroyed.
    struct State {
        std::set<Step> fails;
        std::vector<Step> steps; ///< in call order
        double sampleRate = 48000;
        std::uint32_t channels = 2;
        std::uint32_t bufferFrames = 512;
        AudioObjectID device = 0;
        AudioStreamBasicDescription clientFormat;
        bool running = false;
        bool closed = false;
        int stops = 0;
        int holds = 0;
        std::uint64_t lost = 0;
        std::uint64_t away = 0; ///< the part of lost in which the device was away
        bool fillsLost = false;
        std::chrono::milliseconds delay{0};
        Use use = Use::Now;
        bool startsAnew = false;       ///< the next cycle is the first of a new connection
        FakeInputUnit* unit = nullptr; ///< null once it is destroyed
    };

    explicit FakeInputUnit(std::shared_ptr<State> state) : state_(std::move(state)) { state_->unit = this; }
    ~FakeInputUnit() override {
        state_->unit = nullptr;
        state_->closed = true;
        state_->running = false;
    }

    /// Runs one cycle with these samples, one vector per channel. A missing channel of the client format is silent.
    /// @return the callback's result
    OSStatus feed(const std::vector<std::vector<float>>& channels, std::uint64_t hostTime = 0);
    /// Runs one cycle with the same sample in every channel.
    OSStatus feedValue(float value, std::uint32_t frames, std::uint64_t hostTime = 0);
    /// The next cycle comes so many frames later.
    void loseFrames(std::uint32_t frames) { sampleTime_ += frames; }
    /// Calls the event handler.
    void tell(Event event) {
        if (handler_)
            handler_(event);
    }

    OSStatus setEnableInput(bool) override { return step(Step::EnableInput); }
    OSStatus setEnableOutput(bool) override { return step(Step::EnableOutput); }
    OSStatus setCurrentDevice(AudioObjectID device) override {
        state_->device = device;
        return step(Step::CurrentDevice);
    }
    OSStatus setInputCallback(RenderCallback callback, void* refCon) override {
        callback_ = callback;
        refCon_ = refCon;
        return step(Step::InputCallback);
    }
    OSStatus getDeviceFormat(AudioStreamBasicDescription& format) override;
    OSStatus setClientFormat(const AudioStreamBasicDescription& format) override {
        state_->clientFormat = format;
        return step(Step::ClientFormat);
    }
    OSStatus getBufferFrameSize(std::uint32_t& frames) override {
        frames = state_->bufferFrames;
        return step(Step::BufferFrameSize);
    }
    OSStatus initialize() override { return step(Step::Initialize); }
    OSStatus start() override {
        const OSStatus status = step(Step::Start);
        state_->running = status == noErr;
        return status;
    }
    OSStatus stop() override {
        ++state_->stops;
        state_->running = false;
        return noErr;
    }
    OSStatus render(std::uint32_t*, const AudioTimeStamp*, std::uint32_t, std::uint32_t frames,
                    AudioBufferList* data) override;
    void holdCycles() override { ++state_->holds; }
    void releaseCycles() override { --state_->holds; }
    std::uint64_t lostFrames() const override { return state_->lost; }
    std::uint64_t awayFrames() const override { return state_->away; }
    void setFillLostFrames(bool on) override { state_->fillsLost = on; }
    void setDelay(std::chrono::milliseconds delay) override { state_->delay = delay; }
    void setUse(Use use) override { state_->use = use; }
    void setEventHandler(EventHandler handler) override { handler_ = std::move(handler); }
    QString lastError() const override { return QStringLiteral("the step is set to fail"); }

private:
    OSStatus step(Step which) {
        state_->steps.push_back(which);
        return state_->fails.contains(which) ? -1 : noErr;
    }

    std::shared_ptr<State> state_;
    RenderCallback callback_ = nullptr;
    void* refCon_ = nullptr;
    EventHandler handler_;
    const std::vector<std::vector<float>>* cycle_ = nullptr;
    double sampleTime_ = 0;
};

/// The test defines the list of devices.
class FakeAudioHardware : public Platform::AudioHardware {
public:
    struct Element {
        float volume = 0.5F;
        bool mute = true;
        bool volumeFails = false;
        bool muteFails = false;
        int muteSets = 0;
    };
    struct Device {
        AudioObjectID id = 0;
        QString name;
        QString uid;
        std::uint32_t inputChannels = 2; ///< 0: an output only
        std::uint32_t outputChannels = 0;
        double sampleRate = 48000;
        bool nameFails = false;
        bool streamsFail = false;
        std::map<std::uint32_t, Element> elements{{1, {}}, {2, {}}};
    };

    std::vector<Device> list;
    AudioObjectID defaultOutput = 0;
    bool unitFound = true;
    bool unitOpens = true;
    bool isConnected = true;
    bool testTone = false;
    std::vector<Platform::PlayingProgram> programs;
    /// How units of a device behave; nextUnit is used for a device without an entry. Created on demand.
    std::shared_ptr<FakeInputUnit::State> nextUnit = std::make_shared<FakeInputUnit::State>();
    std::function<void()> onOpen; ///< called before a unit is opened
    /// The states of all opened units, oldest first.
    std::vector<std::shared_ptr<FakeInputUnit::State>> opened;

    /// Adds a device and emits devicesChanged().
    void add(Device device) {
        list.push_back(std::move(device));
        Q_EMIT devicesChanged();
    }
    void setPrograms(std::vector<Platform::PlayingProgram> playing) {
        programs = std::move(playing);
        Q_EMIT playingProgramsChanged();
    }
    void remove(AudioObjectID id) {
        std::erase_if(list, [id](const Device& device) { return device.id == id; });
        Q_EMIT devicesChanged();
    }
    [[nodiscard]] Device* find(AudioObjectID id) {
        for (auto& device : list)
            if (device.id == id)
                return &device;
        return nullptr;
    }
    /// The unit that was opened last; null when it is closed or there is none.
    [[nodiscard]] FakeInputUnit* unit() const { return opened.empty() ? nullptr : opened.back()->unit; }
    /// The open unit on this device.
    [[nodiscard]] FakeInputUnit* unitOf(AudioObjectID id) const {
        const auto state = stateOf(id);
        return state ? state->unit : nullptr;
    }
    /// The state of that unit.
    [[nodiscard]] std::shared_ptr<FakeInputUnit::State> stateOf(AudioObjectID id) const {
        for (auto state = opened.rbegin(); state != opened.rend(); ++state)
            if ((*state)->device == id && (*state)->unit)
                return *state;
        return nullptr;
    }

    std::vector<AudioObjectID> devices() override;
    OSStatus getDeviceName(AudioObjectID device, QString& name) override;
    OSStatus getDeviceUID(AudioObjectID device, QString& uid) override;
    OSStatus getStreamsDataSize(AudioObjectID device, Scope scope, std::uint32_t& size) override;
    OSStatus setVolumeScalar(AudioObjectID device, std::uint32_t element, float volume) override;
    OSStatus getVolumeScalar(AudioObjectID device, std::uint32_t element, float& volume) override;
    OSStatus setMute(AudioObjectID device, std::uint32_t element, bool mute) override;
    OSStatus getMute(AudioObjectID device, std::uint32_t element, bool& mute) override;
    OSStatus getDefaultOutputDevice(AudioObjectID& device) override;
    OSStatus getInputFormat(AudioObjectID device, double& sampleRate, std::uint32_t& channels) override;
    std::unique_ptr<Platform::InputUnit> openOutputUnit(bool& found) override;
    std::vector<Platform::PlayingProgram> playingPrograms() override { return programs; }
    bool isTestTone() const override { return testTone; }
    bool connected() const override { return isConnected; }
    QString lastError() const override { return isConnected ? QString() : QStringLiteral("no sound server answers"); }

private:
    Element* element(AudioObjectID device, std::uint32_t number);
};

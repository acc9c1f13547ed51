// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Record/RecordSources.h"

#include "CaptureComputerAudio/CaptureComputerAudio.h"
#include "CaptureComputerAudio/KextInstallControl.h"
#include "Platform/Audio/AudioHardware.h"
#include "Platform/Desktop/Alerts.h"
#include "Platform/Foundation/MainQueue.h"
#include "Platform/Foundation/Services.h"

#include <QCoreApplication>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace {

constexpr int RetryMilliseconds = 500;
/// Event of the notice that another device replaces the chosen one.
const QString ReplacedEvent = u"replaced"_s;

QString nameOf(const QVariant& device) {
    return device.toMap().value(BuildInAudioRecord::DeviceNameKey).toString();
}

AudioObjectID idOf(const QVariant& device) {
    return device.toMap().value(BuildInAudioRecord::DeviceIDKey).toUInt();
}

void warnOfUsbHeadset() {
    if (auto* alerts = Platform::services().alerts)
        alerts->runModal(
            QCoreApplication::translate("Record", "Waring:"),
            QCoreApplication::translate(
                "Record", "The application is reading your USB headset data, please do not unplug your USB headset, if "
                          "you want to unplug your USB headset please turn off this application first， Otherwise give "
                          "your computer some trouble."),
            {Platform::Alerts::okLabel()});
}

} // namespace

RecordSources::RecordSources(BuildInAudioRecord& buildInAudioRecord, BuildInAudioRecord& computerAudioRecord,
                             QObject* parent)
    : QObject(parent), buildInAudioRecord_(buildInAudioRecord), computerAudioRecord_(computerAudioRecord) {
    retry_.setSingleShot(true);
    retry_.setInterval(RetryMilliseconds);
    connect(&retry_, &QTimer::timeout, this, &RecordSources::openAgain);
}

void RecordSources::awakeFromNib() {
    walking_ = true;
    aryInputAudioDevice_ = BuildInAudioRecord::getAudioInPutDeviceIDs();
    for (qsizetype i = 0; i < aryInputAudioDevice_.size(); ++i) {
        if (nameOf(aryInputAudioDevice_.at(i)) != ComputerAudioName)
            continue;
        adoptComputerAudio(idOf(aryInputAudioDevice_.at(i)));
        // The entry that moves into this position is skipped: there is only one such device.
        aryInputAudioDevice_.removeAt(i);
    }
    selected_ = aryInputAudioDevice_.isEmpty() ? -1 : 0;
    configAudioDevice(0);
    walking_ = false;
    Q_EMIT devicesChanged();

    if (auto* hardware = Platform::services().audioHardware) {
        connect(hardware, &Platform::AudioHardware::devicesChanged, this, &RecordSources::followDevices);
        // The driver does not follow the default output by itself. Select the new output, also during a recording.
        connect(hardware, &Platform::AudioHardware::defaultOutputDeviceChanged, this, [this] {
            if (computerAudioDeviceID_ != 0 && computerAudioRecord_.records(computerAudioDeviceID_))
                CaptureComputerAudio::startCaptureComputerAudio();
        });
        // The driver ends with its server. Load it again: a recording may wait for its device.
        connect(hardware, &Platform::AudioHardware::connectedChanged, this, [](bool connected) {
            if (connected && !KextInstallControl::isBusy())
                KextInstallControl::loadIfInstalled();
        });
    }
    if (changedMeanwhile_)
        followDevices();
}

void RecordSources::adoptComputerAudio(AudioObjectID device) {
    const bool records = computerAudioRecord_.records(device);
    if (records)
        CaptureComputerAudio::startCaptureComputerAudio();
    if (records && CaptureComputerAudio::captureComputerAudioIsUSBDevice()) {
        // A dialog runs the event loop. Inside a device event, that would handle the next event within this one.
        if (followsDeviceEvent_)
            Platform::MainQueue::post(this, warnOfUsbHeadset);
        else
            warnOfUsbHeadset();
    }
    computerAudioDeviceID_ = device;
    configComputerRecordAudioDevice();
}

void RecordSources::chooseBuiltInDevice(int index) {
    if (index < 0 || index >= aryInputAudioDevice_.size())
        return;
    selected_ = index;
    chosenDevice_ = idOf(aryInputAudioDevice_.at(index));
    Q_EMIT settled(ReplacedEvent);
    configAudioDevice(index);
    Q_EMIT devicesChanged();
}

void RecordSources::configAudioDevice(int index) {
    if (index < 0 || index >= aryInputAudioDevice_.size() || selected_ < 0)
        return;
    bindChosen();
}

void RecordSources::bindChosen() {
    // A cut of the computer-audio recording uses the units of both engines, and may happen while the window shows no
    // recording.
    const Platform::HeldCycles held(&computerAudioRecord_);
    const QVariant device = aryInputAudioDevice_.at(selected_);
    boundDevice_ = idOf(device);
    if (chosenDevice_ == 0)
        chosenDevice_ = boundDevice_;
    bind(buildInAudioRecord_, boundDevice_, nameOf(device));
}

void RecordSources::configComputerRecordAudioDevice() {
    if (computerAudioDeviceID_ != 0)
        bind(computerAudioRecord_, computerAudioDeviceID_, ComputerAudioName);
}

void RecordSources::bind(BuildInAudioRecord& engine, AudioObjectID device, const QString& name) {
    if (!engine.records(device))
        return;
    BuildInAudioRecord::setMaxVolume(device);
    const QString event = u"open %1"_s.arg(device);
    if (engine.configureAudioUnit(device)) {
        if (unopened_.removeAll(device) > 0)
            Q_EMIT settled(event);
        return;
    }
    // A device that just appeared may not be ready, and no event says when it is.
    retry_.start();
    if (unopened_.contains(device))
        return;
    unopened_.append(device);
    Q_EMIT noticed({.text = QCoreApplication::translate(
                                "Record", "%1 cannot be opened: %2. Nothing is heard from it until it can.")
                                .arg(name, engine.lastError()),
                    .help = RecordNotice::Help::ChooseDevice,
                    .event = event,
                    .outlivesRecording = true});
}

void RecordSources::openAgain() {
    if (recording_ || walking_) {
        retry_.start();
        return;
    }
    if (selected_ >= 0 && !buildInAudioRecord_.isRunning())
        bindChosen();
    if (computerAudioDeviceID_ != 0 && !computerAudioRecord_.isRunning())
        configComputerRecordAudioDevice();
}

void RecordSources::findComputerAudioDevice() {
    const QVariantList devices = BuildInAudioRecord::getAudioInPutDeviceIDs();
    for (const QVariant& device : devices)
        if (nameOf(device) == ComputerAudioName)
            adoptComputerAudio(idOf(device));
    if (computerAudioDeviceID_ != 0)
        Q_EMIT computerAudioDeviceChanged();
}

void RecordSources::setRecording(bool recording) {
    recording_ = recording;
    if (!recording && changedMeanwhile_)
        followDevices();
}

void RecordSources::followDevices() {
    if (recording_ || walking_) {
        changedMeanwhile_ = true;
        return;
    }
    walking_ = true;
    followsDeviceEvent_ = true;
    changedMeanwhile_ = false;
    const auto done = qScopeGuard([this] { walking_ = followsDeviceEvent_ = false; });

    QVariantList devices = BuildInAudioRecord::getAudioInPutDeviceIDs();
    AudioObjectID computerAudio = 0;
    for (const QVariant& device : devices)
        if (nameOf(device) == ComputerAudioName)
            computerAudio = idOf(device);
    devices.removeIf([](const QVariant& device) { return nameOf(device) == ComputerAudioName; });

    if (computerAudio != computerAudioDeviceID_) {
        if (computerAudioRecord_.recordStatus() != 0) {
            changedMeanwhile_ =
                true; // an armed wait that Stop left running is recording: keep its device until it ends
        } else if (computerAudio != 0) {
            adoptComputerAudio(computerAudio);
        } else {
            computerAudioDeviceID_ = 0;
            computerAudioRecord_.cleanUp();
        }
        if (computerAudio == computerAudioDeviceID_)
            Q_EMIT computerAudioDeviceChanged();
    }

    if (devices == aryInputAudioDevice_)
        return;
    const AudioObjectID boundBeforeID = boundDevice_;
    const int before = indexOfDevice(boundBeforeID);
    const QString boundBefore = before < 0 ? QString() : nameOf(aryInputAudioDevice_.at(before));
    for (const QVariant& device : aryInputAudioDevice_)
        if (!devices.contains(device) && unopened_.removeAll(idOf(device)) > 0)
            Q_EMIT settled(u"open %1"_s.arg(idOf(device)));
    aryInputAudioDevice_ = devices;
    selected_ = devices.isEmpty() ? -1 : 0;
    for (qsizetype i = 0; i < devices.size(); ++i)
        if (idOf(devices.at(i)) == chosenDevice_)
            selected_ = int(i);
    if (selected_ < 0) {
        const Platform::HeldCycles held(&computerAudioRecord_);
        boundDevice_ = 0;
        buildInAudioRecord_.cleanUp();
    } else if (idOf(devices.at(selected_)) != boundDevice_) {
        bindChosen();
    }
    if (selected_ >= 0 && boundDevice_ == chosenDevice_)
        Q_EMIT settled(ReplacedEvent);
    else if (!boundBefore.isNull() && indexOfDevice(boundBeforeID) < 0)
        tellReplacement(boundBefore);
    Q_EMIT devicesChanged();
}

/// The captured device is gone: informs the user which device replaces it.
void RecordSources::tellReplacement(const QString& gone) {
    RecordNotice notice{
        .text =
            QCoreApplication::translate("Record", "%1 is gone. There is no other input device: connect one.").arg(gone),
        .event = ReplacedEvent};
    if (selected_ >= 0) {
        notice.text = QCoreApplication::translate("Record", "%1 is gone. %2 takes its place until it is back.")
                          .arg(gone, nameOf(aryInputAudioDevice_.at(selected_)));
        notice.help = RecordNotice::Help::ChooseDevice;
    }
    Q_EMIT noticed(notice);
}

QStringList RecordSources::deviceNames() const {
    QStringList names;
    for (const QVariant& device : aryInputAudioDevice_)
        names.append(nameOf(device));
    return names;
}

int RecordSources::indexOfDevice(AudioObjectID device) const {
    for (qsizetype i = 0; i < aryInputAudioDevice_.size(); ++i)
        if (idOf(aryInputAudioDevice_.at(i)) == device)
            return int(i);
    return -1;
}

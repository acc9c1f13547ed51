// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/BuiltInAudioRecord/BuildInAudioRecord.h"

#include <QObject>
#include <QStringList>
#include <QTimer>
#include <QVariantList>

/// The devices behind the two recorder engines: the list to choose an input device from, and the computer-audio device.
/// The list follows the machine while nothing is recorded. Main thread.
class RecordSources : public QObject {
    Q_OBJECT
public:
    /// The name under which the capture driver shows its device.
    static inline const QString ComputerAudioName = QStringLiteral("Korvane System Audio");

    /// The engines are not owned and outlive this object.
    RecordSources(BuildInAudioRecord& buildInAudioRecord, BuildInAudioRecord& computerAudioRecord,
                  QObject* parent = nullptr);

    /// Walks the devices for the first time: takes the computer-audio device out of the list, binds both engines.
    void awakeFromNib();
    /// Chooses an entry of the list, as a pop-up does, and binds the input engine to it.
    void chooseBuiltInDevice(int index);
    /// Binds the input engine to the chosen entry. @p index is only checked for its range.
    void configAudioDevice(int index);
    void configComputerRecordAudioDevice();
    /// Looks for the computer-audio device again. The input list does not change.
    void findComputerAudioDevice();
    /// The list does not change during a recording. Devices that came or went meanwhile are handled at its end.
    void setRecording(bool recording);

    [[nodiscard]] QStringList deviceNames() const;
    [[nodiscard]] int selectedDevice() const { return selected_; }
    /// -1 when the device is not in the list.
    [[nodiscard]] int indexOfDevice(AudioObjectID device) const;
    [[nodiscard]] AudioObjectID computerAudioDeviceID() const { return computerAudioDeviceID_; }

Q_SIGNALS:
    void devicesChanged();
    /// The computer-audio device came or went.
    void computerAudioDeviceChanged();
    /// For the user, in plain words.
    void noticed(const QString& text);

private:
    void adoptComputerAudio(AudioObjectID device);
    void followDevices();
    void bindChosen();
    void bind(BuildInAudioRecord& engine, AudioObjectID device, const QString& name);
    void openAgain();

    BuildInAudioRecord& buildInAudioRecord_;
    BuildInAudioRecord& computerAudioRecord_;
    QVariantList aryInputAudioDevice_; ///< without the computer-audio device
    AudioObjectID computerAudioDeviceID_ = 0;
    AudioObjectID chosenDevice_ = 0; ///< stays while the device is away, so that it is chosen again
    AudioObjectID boundDevice_ = 0;  ///< the one that the input engine is on
    int selected_ = -1;
    QTimer retry_;                  ///< a device that cannot be opened is tried again until it can
    QList<AudioObjectID> unopened_; ///< of which the user knows that they cannot be opened
    bool recording_ = false;
    bool walking_ = false; ///< an alert may spin the event loop in the midst of a walk
    bool followsDeviceEvent_ = false;
    bool changedMeanwhile_ = false;
};

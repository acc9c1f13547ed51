// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/BuiltInAudioRecord/BuildInAudioRecord.h"
#include "Source/Record/RecordNotice.h"

#include <QObject>
#include <QStringList>
#include <QTimer>
#include <QVariantList>

/// The devices behind the two recorder engines: the list to choose an input device from, and the computer-audio device.
/// The list is updated while nothing is recorded. Main thread.
class RecordSources : public QObject {
    Q_OBJECT
public:
    /// The device name of the capture driver.
    static inline const QString ComputerAudioName = QStringLiteral("Korvane System Audio");

    /// The engines are not owned and must outlive this object.
    RecordSources(BuildInAudioRecord& buildInAudioRecord, BuildInAudioRecord& computerAudioRecord,
                  QObject* parent = nullptr);

    /// Lists the devices for the first time: removes the computer-audio device from the list and binds both engines.
    void awakeFromNib();
    /// Chooses an entry of the list, like the pop-up button, and binds the input engine to it.
    void chooseBuiltInDevice(int index);
    /// Binds the input engine to the chosen entry. @p index is only checked for its range.
    void configAudioDevice(int index);
    void configComputerRecordAudioDevice();
    /// Looks for the computer-audio device again. The input list does not change.
    void findComputerAudioDevice();
    /// The list does not change during a recording. Devices that appeared or left meanwhile are handled at its end.
    void setRecording(bool recording);

    [[nodiscard]] QStringList deviceNames() const;
    /// The device of the input engine; 0 when there is none.
    [[nodiscard]] AudioObjectID boundDevice() const { return boundDevice_; }
    [[nodiscard]] int selectedDevice() const { return selected_; }
    /// -1 when the device is not in the list.
    [[nodiscard]] int indexOfDevice(AudioObjectID device) const;
    [[nodiscard]] AudioObjectID computerAudioDeviceID() const { return computerAudioDeviceID_; }

Q_SIGNALS:
    void devicesChanged();
    /// The computer-audio device appeared or left.
    void computerAudioDeviceChanged();
    /// A message for the user.
    void noticed(const RecordNotice& notice);
    /// The event of an earlier notice is over.
    void settled(const QString& event);

private:
    void adoptComputerAudio(AudioObjectID device);
    void followDevices();
    void bindChosen();
    void bind(BuildInAudioRecord& engine, AudioObjectID device, const QString& name);
    void tellReplacement(const QString& gone);
    void openAgain();

    BuildInAudioRecord& buildInAudioRecord_;
    BuildInAudioRecord& computerAudioRecord_;
    QVariantList aryInputAudioDevice_; ///< without the computer-audio device
    AudioObjectID computerAudioDeviceID_ = 0;
    AudioObjectID chosenDevice_ = 0; ///< kept while the device is away, so that it is chosen again
    AudioObjectID boundDevice_ = 0;  ///< the device of the input engine
    int selected_ = -1;
    QTimer retry_;                  ///< retries a device that cannot be opened
    QList<AudioObjectID> unopened_; ///< devices for which the user was already informed
    bool recording_ = false;
    bool walking_ = false; ///< an alert may run the event loop while the devices are being listed
    bool followsDeviceEvent_ = false;
    bool changedMeanwhile_ = false;
};

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Devices that appear and disappear while the program runs.
#include "tests/Source/Record/RecordFixture.h"

using namespace Qt::StringLiterals;

namespace {

class RecordSourcesTest : public RecordFixture {
protected:
    static constexpr AudioObjectID Speakers = 21;

    /// Adds an output on a bus and makes it the default.
    void addOutput(AudioObjectID id, const QString& node, const QString& bus) {
        FakeAudioHardware::Device device;
        device.id = id;
        device.name = node;
        device.uid = node + u":0a0b0c0d"_s;
        device.inputChannels = 0;
        device.outputChannels = 2;
        hardware.list.push_back(device);
        hardware.defaultOutput = id;
        registry.add(u"IOAudioEngine"_s, pathOf(node, bus));
    }
    static QString pathOf(const QString& node, const QString& bus) {
        return u"IOService:/%1/card/%2@0a0b0c0d"_s.arg(bus, node);
    }
    /// The property that controls the driver.
    [[nodiscard]] QString steeredTo() { return registry.property(engine, u"kCaptureDriverPathKey"_s).toString(); }
    FakeIORegistry::Object engine = 0;
};

} // namespace

TEST_F(RecordSourcesTest, TheComputerAudioDeviceIsNotInTheList) {
    addComputerAudio();
    addMicrophone();
    addHeadset();
    begin();
    EXPECT_EQ(controller->deviceNames(), (QStringList{u"Microphone"_s, u"Headset"_s}));
    EXPECT_EQ(controller->selectedDevice(), 0);
    EXPECT_TRUE(hardware.unitOf(Microphone));
    EXPECT_TRUE(hardware.unitOf(ComputerAudio));
}

TEST_F(RecordSourcesTest, ADeviceIsSetToFullVolumeBeforeItIsUsed) {
    addMicrophone();
    begin();
    EXPECT_FLOAT_EQ(hardware.find(Microphone)->elements.at(1).volume, 1);
    EXPECT_FALSE(hardware.find(Microphone)->elements.at(2).mute);
}

TEST_F(RecordSourcesTest, AMachineWithoutDevicesHasAnEmptyList) {
    begin();
    EXPECT_TRUE(controller->deviceNames().isEmpty());
    EXPECT_EQ(controller->selectedDevice(), -1);
    controller->chooseBuiltInDevice(0);
    EXPECT_EQ(controller->selectedDevice(), -1);
}

TEST_F(RecordSourcesTest, ADeviceWithoutANameIsListed) {
    addMicrophone();
    hardware.list.front().nameFails = true;
    begin();
    EXPECT_EQ(controller->deviceNames(), QStringList{QString()});
    EXPECT_TRUE(hardware.unitOf(Microphone));
}

TEST_F(RecordSourcesTest, ChoosingADeviceBindsTheEngineToIt) {
    addMicrophone();
    addHeadset();
    begin();
    controller->chooseBuiltInDevice(1);
    EXPECT_EQ(controller->selectedDevice(), 1);
    EXPECT_TRUE(hardware.unitOf(Headset));
    EXPECT_FALSE(hardware.unitOf(Microphone));
    controller->chooseBuiltInDevice(2);
    controller->chooseBuiltInDevice(-1);
    EXPECT_EQ(controller->selectedDevice(), 1);
}

TEST_F(RecordSourcesTest, TheListFollowsAddedAndRemovedDevices) {
    addMicrophone();
    begin();
    int changes = 0;
    QObject::connect(controller.get(), &RecordStateController::devicesChanged, controller.get(), [&] { ++changes; });
    addHeadset();
    EXPECT_EQ(controller->deviceNames(), (QStringList{u"Microphone"_s, u"Headset"_s}));
    EXPECT_EQ(controller->selectedDevice(), 0);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(hardware.opened.size(), 1U) << "the device in use is left alone";
}

TEST_F(RecordSourcesTest, AChosenDeviceThatReturnsIsChosenAgain) {
    addMicrophone();
    addHeadset();
    begin();
    controller->chooseBuiltInDevice(1);
    hardware.remove(Headset);
    EXPECT_EQ(controller->deviceNames(), QStringList{u"Microphone"_s});
    EXPECT_EQ(controller->selectedDevice(), 0);
    EXPECT_TRUE(hardware.unitOf(Microphone));
    addHeadset();
    EXPECT_EQ(controller->selectedDevice(), 1);
    EXPECT_TRUE(hardware.unitOf(Headset));
    EXPECT_FALSE(hardware.unitOf(Microphone));
}

TEST_F(RecordSourcesTest, TheLastDeviceLeavesAnEmptyListAndReturns) {
    addMicrophone();
    begin();
    hardware.remove(Microphone);
    EXPECT_TRUE(controller->deviceNames().isEmpty());
    EXPECT_FALSE(hardware.unitOf(Microphone));
    addMicrophone();
    EXPECT_EQ(controller->selectedDevice(), 0);
    EXPECT_TRUE(hardware.unitOf(Microphone));
}

TEST_F(RecordSourcesTest, TheListDoesNotChangeDuringARecording) {
    addMicrophone();
    begin();
    controller->startAndStopRecord();
    addHeadset();
    EXPECT_EQ(controller->deviceNames(), QStringList{u"Microphone"_s});
    hardware.remove(Microphone);
    EXPECT_TRUE(hardware.unitOf(Microphone)) << "the recording waits for its device";
    controller->startAndStopRecord();
    EXPECT_EQ(controller->deviceNames(), QStringList{u"Headset"_s});
    EXPECT_TRUE(hardware.unitOf(Headset));
}

TEST_F(RecordSourcesTest, ALateComputerAudioDeviceIsUsed) {
    addMicrophone();
    begin();
    EXPECT_FALSE(hardware.unitOf(ComputerAudio));
    addComputerAudio();
    EXPECT_TRUE(hardware.unitOf(ComputerAudio));
    EXPECT_FALSE(controller->computerAudioChecked());
    controller->chooseRecordComputerAudio(true);
    EXPECT_TRUE(controller->computerAudioChecked());
    EXPECT_TRUE(alerts.shown.isEmpty());
}

TEST_F(RecordSourcesTest, ARemovedComputerAudioDeviceSwitchesItsBoxOff) {
    beginWithBoth();
    EXPECT_TRUE(controller->computerAudioChecked());
    hardware.remove(ComputerAudio);
    EXPECT_FALSE(controller->computerAudioChecked());
    EXPECT_FALSE(hardware.unitOf(ComputerAudio));
    addComputerAudio();
    EXPECT_TRUE(controller->computerAudioChecked()) << "the stored choice holds";
    EXPECT_TRUE(hardware.unitOf(ComputerAudio));
}

TEST_F(RecordSourcesTest, ADeviceThatCannotBeOpenedIsReported) {
    addMicrophone();
    hardware.nextUnit->fails.insert(FakeInputUnit::Step::CurrentDevice);
    begin();
    EXPECT_TRUE(noticed(u"Microphone cannot be opened"_s));
}

TEST_F(RecordSourcesTest, ADeviceThatCannotBeOpenedIsRetriedUntilItCan) {
    addMicrophone();
    addComputerAudio();
    int tries = 0;
    hardware.onOpen = [&] { ++tries; };
    hardware.unitOpens = false;
    begin();
    // Each is tried more than once, and reported once.
    ASSERT_TRUE(waitFor([&] { return tries >= 6; }));
    EXPECT_EQ(controller->notices().filter(u"Microphone cannot be opened"_s).size(), 1);
    hardware.unitOpens = true;
    ASSERT_TRUE(waitFor([&] { return hardware.unitOf(Microphone) && hardware.unitOf(ComputerAudio); }));
    controller->startAndStopRecord();
    EXPECT_EQ(controller->recordState_(), 1);
    play(Microphone, 0.5F, 0.1);
    controller->startAndStopRecord();
}

TEST_F(RecordSourcesTest, ShowsNoLevelForADeviceThatDeliversNothing) {
    using Event = Platform::InputUnit::Event;
    addMicrophone();
    addHeadset();
    begin();
    for (const Event event : {Event::NothingComes, Event::DeviceLost, Event::ServerLost}) {
        play(Microphone, 0.5F, 0.1);
        ASSERT_GT(controller->getAudioWaveLevelValue(), 0);
        hardware.unitOf(Microphone)->tell(event);
        EXPECT_EQ(controller->getAudioWaveLevelValue(), 0);
    }
    play(Microphone, 0.5F, 0.1);
    ASSERT_GT(controller->getAudioWaveLevelValue(), 0);
    hardware.remove(Headset);
    hardware.remove(Microphone);
    EXPECT_EQ(controller->getAudioWaveLevelValue(), 0);
}

TEST_F(RecordSourcesTest, AStartWithoutASourceStaysIdleAndReportsIt) {
    begin();
    ASSERT_TRUE(controller->builtInChecked());
    controller->startAndStopRecord();
    EXPECT_TRUE(noticed(u"There is no input device. Nothing is recorded."_s));
    EXPECT_FALSE(controller->isStateAudioRecord());
    EXPECT_FALSE(controller->splitEnabled());
    EXPECT_EQ(controller->startToolTip(), u"Start Record"_s);
    EXPECT_TRUE(controller->sourcesEnabled());
    EXPECT_FALSE(QFile::exists(track(0)));
    // Once there is a device, the next start records, under the first name.
    addMicrophone();
    record(Microphone, 0.5F, 6);
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(delegate.paths, QStringList{track(0)});
}

TEST_F(RecordSourcesTest, TheDriverCapturesTheDefaultOutput) {
    engine = registry.add(u"com_Korvane_driver_CaptureEngine"_s, u"IOService:/VIRTUAL/driver"_s);
    addOutput(Speakers, u"speakers"_s, u"PCI"_s);
    addMicrophone();
    addComputerAudio();
    begin();
    EXPECT_EQ(steeredTo(), pathOf(u"speakers"_s, u"PCI"_s));
    EXPECT_TRUE(alerts.shown.isEmpty());
}

TEST_F(RecordSourcesTest, TheDriverFollowsANewDefaultOutputDuringARecording) {
    engine = registry.add(u"com_Korvane_driver_CaptureEngine"_s, u"IOService:/VIRTUAL/driver"_s);
    addOutput(Speakers, u"speakers"_s, u"PCI"_s);
    beginWithBoth();
    controller->startAndStopRecord();
    addOutput(Speakers + 1, u"monitor"_s, u"PCI"_s);
    Q_EMIT hardware.defaultOutputDeviceChanged();
    EXPECT_EQ(steeredTo(), pathOf(u"monitor"_s, u"PCI"_s));
}

TEST_F(RecordSourcesTest, WarnsAboutAUsbHeadset) {
    addOutput(Speakers, u"headset"_s, u"USB"_s);
    addComputerAudio();
    begin();
    ASSERT_EQ(alerts.shown.size(), 1);
    EXPECT_EQ(alerts.shown.front().title, u"Waring:"_s);
    EXPECT_EQ(
        alerts.shown.front().text,
        u"The application is reading your USB headset data, please do not unplug your USB headset, if you want to "
        u"unplug your USB headset please turn off this application first， Otherwise give your computer some "
        u"trouble."_s);
    EXPECT_EQ(alerts.shown.front().buttons, QStringList{u"OK"_s});
    EXPECT_TRUE(hardware.unitOf(ComputerAudio));
}

TEST_F(RecordSourcesTest, DoesNotWarnInsideADeviceEvent) {
    addOutput(Speakers, u"headset"_s, u"USB"_s);
    addMicrophone();
    begin();
    addComputerAudio();
    Q_EMIT hardware.devicesChanged();
    EXPECT_TRUE(hardware.unitOf(ComputerAudio)) << "the event is handled";
    EXPECT_TRUE(alerts.shown.isEmpty()) << "a dialog would turn the event loop within it";
    EXPECT_TRUE(waitFor([this] { return alerts.shown.size() == 1; }));
}

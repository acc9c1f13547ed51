// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CaptureComputerAudio/AudioDevice.h"

#include "CaptureComputerAudio/CaptureComputerAudio.h"
#include "Platform/Foundation/Services.h"
#include "tests/fakes/FakeAudioHardware.h"
#include "tests/fakes/FakeIORegistry.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class AudioDeviceTest : public testing::Test {
protected:
    AudioDeviceTest() {
        Platform::services().audioHardware = &hardware;
        Platform::services().ioRegistry = &registry;
    }
    ~AudioDeviceTest() override { EXPECT_EQ(registry.holds(), 0) << "every entry is given back"; }

    AudioDevice addOutput(AudioObjectID id, const QString& uid) {
        FakeAudioHardware::Device device;
        device.id = id;
        device.uid = uid;
        device.outputChannels = 2;
        hardware.add(device);
        hardware.defaultOutput = id;
        return AudioDevice(id);
    }
    QStringList paths(const std::vector<IOService>& services) {
        QStringList list;
        for (const auto& service : services)
            list.append(service.path());
        return list;
    }

    Platform::ServicesScope scope;
    FakeAudioHardware hardware;
    FakeIORegistry registry;
};

TEST_F(AudioDeviceTest, StopsNarrowingWhenTheFirstPartNamesOneEngine) {
    registry.add(u"IOAudioEngine"_s, u"IOService:/PCI/card/speakers@aaaa0001"_s);
    registry.add(u"IOAudioEngine"_s, u"IOService:/USB/headset/phones@aaaa0002"_s);
    // The second part would match the other engine; it must not be used.
    EXPECT_EQ(addOutput(7, u"speakers:aaaa0002"_s).path(), u"IOService:/PCI/card/speakers@aaaa0001"_s);
}

TEST_F(AudioDeviceTest, KeepsTheCandidatesThatAPartDoesNotMatchAndNarrowsWithTheNext) {
    registry.add(u"IOAudioEngine"_s, u"IOService:/PCI/card/speakers@aaaa0001"_s);
    registry.add(u"IOAudioEngine"_s, u"IOService:/USB/headset/phones@aaaa0002"_s);
    EXPECT_EQ(addOutput(7, u"unknown:aaaa0001"_s).path(), u"IOService:/PCI/card/speakers@aaaa0001"_s);
}

TEST_F(AudioDeviceTest, TakesTheLastOfSeveralCandidatesAndNothingWhenThereIsNone) {
    const auto device = addOutput(7, u"nothing:fits"_s);
    EXPECT_TRUE(device.path().isNull());
    registry.add(u"IOAudioEngine"_s, u"IOService:/PCI/a/one@1"_s);
    registry.add(u"IOAudioEngine"_s, u"IOService:/PCI/b/two@2"_s);
    EXPECT_EQ(device.path(), u"IOService:/PCI/b/two@2"_s);
}

TEST_F(AudioDeviceTest, DistinguishesANameThatIsAPrefixOfAnother) {
    registry.add(u"IOAudioEngine"_s, u"IOService:/PCI/card/out@00000001"_s);
    registry.add(u"IOAudioEngine"_s, u"IOService:/PCI/card/out.second@00000002"_s);
    EXPECT_EQ(addOutput(7, u"out:00000001"_s).path(), u"IOService:/PCI/card/out@00000001"_s);
    EXPECT_EQ(addOutput(8, u"out.second:00000002"_s).path(), u"IOService:/PCI/card/out.second@00000002"_s);
}

TEST_F(AudioDeviceTest, FindsServicesByAKeyInTheirPathInOrder) {
    registry.add(u"Engine"_s, u"/one/x"_s);
    registry.add(u"Engine"_s, u"/two/y"_s);
    registry.add(u"Engine"_s, u"/three/x"_s);
    const auto all = IOService::getServicesByClassName(u"Engine"_s);
    EXPECT_EQ(paths(AudioDevice::findDeviceByKey(u"x"_s, all)), (QStringList{u"/one/x"_s, u"/three/x"_s}));
    EXPECT_EQ(paths(AudioDevice::findDeviceByKey(u"z"_s, all)), paths(all));
}

TEST_F(AudioDeviceTest, RecognisesItselfInAPath) {
    const auto device = addOutput(7, u"speakers:aaaa0001"_s);
    EXPECT_TRUE(device.sameDeviceWithPath(u"IOService:/PCI/card/speakers@aaaa0001"_s));
    EXPECT_FALSE(device.sameDeviceWithPath(u"IOService:/PCI/card/speakers@aaaa0002"_s));
    EXPECT_FALSE(device.sameDeviceWithPath(u"IOService:/PCI/card/phones@aaaa0001"_s));
    // One part fewer: the device's last part is appended to the path.
    EXPECT_TRUE(device.sameDeviceWithPath(u"IOService:/PCI/card/speakers"_s));
    EXPECT_FALSE(device.sameDeviceWithPath(u"IOService:/PCI/card/a@b@speakers"_s));
}

TEST_F(AudioDeviceTest, HasNoDefaultWhenTheQueryFails) {
    hardware.defaultOutput = 0;
    EXPECT_FALSE(AudioDevice::defaultAudioOutputDevice());
    addOutput(9, u"a:b"_s);
    ASSERT_TRUE(AudioDevice::defaultAudioOutputDevice());
    EXPECT_EQ(AudioDevice::defaultAudioOutputDevice()->audioDeviceID(), 9U);
}

TEST_F(AudioDeviceTest, CountsDevicesWithoutTheirNumbers) {
    addOutput(7, u"a:b"_s);
    addOutput(8, u"c:d"_s);
    const auto devices = AudioDevice::audioDevices();
    ASSERT_EQ(devices.size(), 2U);
    EXPECT_EQ(devices[0].audioDeviceID(), 0U);
    EXPECT_EQ(devices[1].audioDeviceID(), 0U);
}

TEST_F(AudioDeviceTest, HasNoUniqueIDOnceItIsGone) {
    EXPECT_TRUE(AudioDevice(77).uniqueID().isNull());
}

TEST_F(AudioDeviceTest, RetainsItsEntryThroughCopies) {
    const auto object = registry.add(u"Engine"_s, u"/one"_s);
    {
        IOService first(object);
        IOService second(first);
        EXPECT_EQ(registry.holds(), 2);
        second = first;
        EXPECT_EQ(registry.holds(), 2);
        EXPECT_EQ(second.object(), object);
        EXPECT_EQ(second.setProperty(5, u"key"_s), noErr);
        EXPECT_EQ(first.getProperty(u"key"_s), QVariant(5));
        EXPECT_FALSE(first.getProperty(u"other"_s).isValid());
    }
    EXPECT_EQ(registry.holds(), 0);
}

TEST_F(AudioDeviceTest, SetsTheDefaultOutputInTheLastCaptureEngine) {
    addOutput(7, u"speakers:aaaa0001"_s);
    registry.add(u"IOAudioEngine"_s, u"IOService:/PCI/card/speakers@aaaa0001"_s);
    const auto first = registry.add(u"com_Korvane_driver_CaptureEngine"_s, u"IOService:/VIRTUAL/a/b@1"_s);
    const auto last = registry.add(u"com_Korvane_driver_CaptureEngine"_s, u"IOService:/VIRTUAL/a/b@2"_s);
    CaptureComputerAudio::startCaptureComputerAudio();
    EXPECT_TRUE(registry.entries[first].properties.isEmpty());
    EXPECT_EQ(registry.entries[last].properties[u"kCaptureDriverPathKey"_s],
              u"IOService:/PCI/card/speakers@aaaa0001"_s);
    CaptureComputerAudio::stopCaptureComputerAudio();
    EXPECT_EQ(registry.entries[last].properties[u"kCaptureDriverPathKey"_s], u"kCaptureDriverPathKey"_s);
}

TEST_F(AudioDeviceTest, DoesNothingWithoutACaptureEngine) {
    addOutput(7, u"speakers:aaaa0001"_s);
    registry.add(u"IOAudioEngine"_s, u"IOService:/PCI/card/speakers@aaaa0001"_s);
    CaptureComputerAudio::startCaptureComputerAudio();
    CaptureComputerAudio::stopCaptureComputerAudio();
    EXPECT_TRUE(registry.entries.begin()->second.properties.isEmpty());
}

TEST_F(AudioDeviceTest, RecognisesAUsbOutputByItsPath) {
    registry.add(u"IOAudioEngine"_s, u"IOService:/USB/headset/phones@aaaa0002"_s);
    registry.add(u"IOAudioEngine"_s, u"IOService:/PCI/card/speakers@aaaa0001"_s);
    addOutput(7, u"phones:aaaa0002"_s);
    EXPECT_TRUE(CaptureComputerAudio::captureComputerAudioIsUSBDevice());
    addOutput(8, u"speakers:aaaa0001"_s);
    EXPECT_FALSE(CaptureComputerAudio::captureComputerAudioIsUSBDevice());
    hardware.defaultOutput = 0;
    EXPECT_FALSE(CaptureComputerAudio::captureComputerAudioIsUSBDevice());
}

} // namespace

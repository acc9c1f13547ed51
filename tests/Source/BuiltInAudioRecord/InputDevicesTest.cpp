// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/BuiltInAudioRecord/BuildInAudioRecord.h"

#include "Platform/Foundation/Services.h"
#include "tests/fakes/FakeAudioHardware.h"

#include <gtest/gtest.h>

namespace {

struct InputDevices : testing::Test {
    Platform::ServicesScope scope;
    FakeAudioHardware hardware;
    InputDevices() { Platform::services().audioHardware = &hardware; }

    FakeAudioHardware::Device& add(AudioObjectID id, const QString& name, std::uint32_t inputs = 2) {
        FakeAudioHardware::Device device;
        device.id = id;
        device.name = name;
        device.inputChannels = inputs;
        hardware.list.push_back(device);
        return hardware.list.back();
    }
    static QString nameAt(const QVariantList& list, int i) {
        return list.value(i).toMap().value(BuildInAudioRecord::DeviceNameKey).toString();
    }
};

} // namespace

TEST_F(InputDevices, AreNoneOnAMachineWithoutAny) {
    EXPECT_TRUE(BuildInAudioRecord::getAudioInPutDeviceIDs().isEmpty());
    add(3, QStringLiteral("Speakers"), 0);
    EXPECT_TRUE(BuildInAudioRecord::getAudioInPutDeviceIDs().isEmpty());
}

TEST_F(InputDevices, AreListedInTheSystemsOrderWithoutThoseThatOnlyPlay) {
    add(7, QStringLiteral("Microphone"));
    add(3, QStringLiteral("Speakers"), 0);
    add(5, QStringLiteral("Line in"), 1);
    const QVariantList list = BuildInAudioRecord::getAudioInPutDeviceIDs();
    ASSERT_EQ(list.size(), 2);
    EXPECT_EQ(list[0].toMap(), (Dictionary{{QStringLiteral("DeviceName"), QStringLiteral("Microphone")},
                                           {QStringLiteral("DeviceID"), qulonglong(7)}}));
    EXPECT_EQ(nameAt(list, 1), QStringLiteral("Line in"));
}

TEST_F(InputDevices, IncludeOneWhoseStreamsCannotBeQueried) {
    add(9, QStringLiteral("Shy")).streamsFail = true;
    EXPECT_TRUE(BuildInAudioRecord::isInputDeviceID(9));
    EXPECT_EQ(BuildInAudioRecord::getAudioInPutDeviceIDs().size(), 1);
    EXPECT_TRUE(BuildInAudioRecord::isInputDeviceID(1234)) << "a device that is not there cannot be asked either";
}

TEST_F(InputDevices, KeepADescriptorWithoutANameWhenTheNameCannotBeRead) {
    add(9, QStringLiteral("Hidden")).nameFails = true;
    EXPECT_TRUE(BuildInAudioRecord::getDeviceNameByDeviceID(9).isNull());
    const QVariantList list = BuildInAudioRecord::getAudioInPutDeviceIDs();
    ASSERT_EQ(list.size(), 1);
    EXPECT_FALSE(list[0].toMap().value(BuildInAudioRecord::DeviceNameKey).isValid());
    EXPECT_EQ(list[0].toMap().value(BuildInAudioRecord::DeviceIDKey).toUInt(), 9U);
}

TEST_F(InputDevices, MayBeMoreThanSixtyFour) {
    for (AudioObjectID id = 1; id <= 100; ++id)
        add(id, QStringLiteral("Device %1").arg(id));
    EXPECT_EQ(BuildInAudioRecord::getAudioInPutDeviceIDs().size(), 100);
}

TEST_F(InputDevices, AreSetToFullVolumeAndUnmuted) {
    auto& device = add(7, QStringLiteral("Microphone"));
    BuildInAudioRecord::setMaxVolume(7);
    for (const std::uint32_t element : {1U, 2U}) {
        EXPECT_EQ(device.elements[element].volume, 1.0F);
        EXPECT_FALSE(device.elements[element].mute);
    }
}

TEST_F(InputDevices, TryTheSecondChannelWhenTheFirstHasNoVolume) {
    auto& device = add(7, QStringLiteral("Microphone"));
    device.elements[1].volumeFails = true;
    BuildInAudioRecord::setMaxVolume(7);
    EXPECT_TRUE(device.elements[1].mute) << "mute is cleared only where the volume could be set";
    EXPECT_EQ(device.elements[1].muteSets, 0);
    EXPECT_EQ(device.elements[2].volume, 1.0F);
    EXPECT_FALSE(device.elements[2].mute);
}

TEST_F(InputDevices, SkipTheSecondChannelWhenItsMuteFails) {
    auto& device = add(7, QStringLiteral("Microphone"));
    device.elements[1].muteFails = true;
    BuildInAudioRecord::setMaxVolume(7);
    EXPECT_EQ(device.elements[2].volume, 1.0F);
}

TEST_F(InputDevices, NumberZeroIsNoDevice) {
    auto& device = add(0, QStringLiteral("Nothing"));
    BuildInAudioRecord::setMaxVolume(0);
    EXPECT_EQ(device.elements[1].volume, 0.5F);
}

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/HotKey/HotKeyRegister.h"

#include "Platform/Desktop/FocusProbe.h"
#include "Platform/Foundation/Services.h"
#include "tests/fakes/FakeHotKeys.h"
#include "tests/support/WaitFor.h"

#include <gtest/gtest.h>

namespace {

constexpr std::uint32_t commandControl = 0x140000;
constexpr std::uint32_t carbonCommandControl = 256 + 4096;

class ScriptedFocus : public Platform::FocusProbe {
public:
    bool isEditKeybordShortcutControl() const override { return editing; }
    bool editing = false;
};

class HotKeyRegisters : public testing::Test {
protected:
    HotKeyRegisters() {
        Platform::services().hotKeys = &hotKeys;
        Platform::services().focusProbe = &focus;
    }
    void drain() {
        for (int i = 0; i < 3; ++i)
            QCoreApplication::processEvents();
    }

    Platform::ServicesScope scope;
    FakeHotKeys hotKeys;
    ScriptedFocus focus;
};

} // namespace

TEST_F(HotKeyRegisters, TranslateTheFourModifiersAndDropTheRest) {
    EXPECT_EQ(HotKeyRegister::carbonKeyModifiers(0x20000), 512U);
    EXPECT_EQ(HotKeyRegister::carbonKeyModifiers(0x100000), 256U);
    EXPECT_EQ(HotKeyRegister::carbonKeyModifiers(0x80000), 2048U);
    EXPECT_EQ(HotKeyRegister::carbonKeyModifiers(0x40000), 4096U);
    EXPECT_EQ(HotKeyRegister::carbonKeyModifiers(0xFFFFFFFF), 512U + 256 + 2048 + 4096);
    EXPECT_EQ(HotKeyRegister::carbonKeyModifiers(0x10000), 0U); // Caps Lock
}

TEST_F(HotKeyRegisters, RegisterACombinationUnderTheirSignature) {
    HotKeyRegister hotKey;
    EXPECT_FALSE(hotKey.hasRegisterHotKey());
    hotKey.setSignature(0x73737273);
    hotKey.registerHotKey(1, commandControl);
    ASSERT_TRUE(hotKey.hasRegisterHotKey());
    ASSERT_EQ(hotKeys.registrations.size(), 1U);
    const auto& taken = hotKeys.registrations.begin()->second;
    EXPECT_EQ(taken.keyCode, 1);
    EXPECT_EQ(taken.carbonModifiers, carbonCommandControl);
    EXPECT_EQ(taken.id.signature, 0x73737273U);
    EXPECT_EQ(taken.id.id, 1U);
}

TEST_F(HotKeyRegisters, ReplaceTheirOwnCombination) {
    HotKeyRegister hotKey;
    hotKey.registerHotKey(1, commandControl);
    hotKey.registerHotKey(2, commandControl);
    ASSERT_EQ(hotKeys.registrations.size(), 1U);
    EXPECT_EQ(hotKeys.registrations.begin()->second.keyCode, 2);
}

TEST_F(HotKeyRegisters, AreEmptyAfterARefusal) {
    hotKeys.heldByOthers.insert({3, carbonCommandControl});
    HotKeyRegister hotKey;
    hotKey.registerHotKey(1, commandControl);
    hotKey.registerHotKey(3, commandControl);
    EXPECT_FALSE(hotKey.hasRegisterHotKey());
    EXPECT_TRUE(hotKeys.registrations.empty());
}

TEST_F(HotKeyRegisters, UnregisterWhenTheyAreDestroyed) {
    {
        HotKeyRegister hotKey;
        hotKey.registerHotKey(1, commandControl);
    }
    EXPECT_TRUE(hotKeys.registrations.empty());
    Platform::NotificationCenter::defaultCenter().post(HotKeyRegister::HotKeyRegisterNotification,
                                                       {{HotKeyRegister::HotKeyRegisterSignatureKey, 0}});
}

TEST_F(HotKeyRegisters, WorkWithoutSystemHotKeys) {
    Platform::services().hotKeys = nullptr;
    HotKeyRegister hotKey;
    hotKey.registerHotKey(1, commandControl);
    EXPECT_FALSE(hotKey.hasRegisterHotKey());
}

TEST_F(HotKeyRegisters, RunOnlyTheOperationOfTheirSignatureAndOnlyLater) {
    HotKeyRegister one, other;
    int oneRan = 0, otherRan = 0;
    one.setSignature(0x73737273);
    one.setOperation([&] { ++oneRan; });
    one.registerHotKey(1, commandControl);
    other.setSignature(0x70727273);
    other.setOperation([&] { ++otherRan; });
    other.registerHotKey(35, commandControl);
    ASSERT_TRUE(hotKeys.press(1, carbonCommandControl));
    EXPECT_EQ(oneRan, 0) << "never inside the event handler";
    EXPECT_TRUE(waitFor([&] { return oneRan == 1; }));
    EXPECT_EQ(otherRan, 0);
}

TEST_F(HotKeyRegisters, AreDisabledWhileAShortcutIsBeingTyped) {
    HotKeyRegister hotKey;
    int ran = 0;
    hotKey.setSignature(7);
    hotKey.setOperation([&] { ++ran; });
    hotKey.registerHotKey(1, commandControl);
    focus.editing = true;
    hotKeys.press(1, carbonCommandControl);
    drain();
    EXPECT_EQ(ran, 0);
    focus.editing = false;
    hotKeys.press(1, carbonCommandControl);
    EXPECT_TRUE(waitFor([&] { return ran == 1; }));
}

TEST_F(HotKeyRegisters, IgnoreAPressWithoutAnOperation) {
    HotKeyRegister hotKey;
    hotKey.registerHotKey(1, commandControl);
    EXPECT_TRUE(hotKeys.press(1, carbonCommandControl));
    drain();
}

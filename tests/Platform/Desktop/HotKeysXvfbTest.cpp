// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Desktop/linux/LinuxHotKeys.h"

#include "tests/support/OtherProgram.h"
#include "tests/support/WaitFor.h"
#include "tests/support/XvfbSession.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Platform::HotKeys;

namespace {

constexpr std::uint32_t command = 256, shift = 512, option = 2048, control = 4096;
constexpr std::uint8_t xKeyG = 34 + 8;
constexpr std::uint16_t superMask = 64, numLockMask = 16;

class GrabbedKeys : public testing::Test {
protected:
    GrabbedKeys() : hotKeys(Platform::createXcbHotKeys()) {
        hotKeys->setHandler([this](HotKeys::Id id) { pressed.append(id.signature); });
        EXPECT_TRUE(other.takeFocus());
    }
    void type(const QString& keys) { EXPECT_TRUE(XvfbSession::current()->xdotool({u"key"_s, keys})); }
    bool fires(const QString& keys, std::uint32_t signature) {
        pressed.clear();
        type(keys);
        return waitFor([&] { return pressed == QList<std::uint32_t>{signature}; });
    }

    OtherProgram other;
    std::unique_ptr<HotKeys> hotKeys;
    QList<std::uint32_t> pressed;
};

} // namespace

TEST_F(GrabbedKeys, WorkWhileAnotherWindowHasTheFocus) {
    EXPECT_EQ(hotKeys->way(), HotKeys::Way::X11Grab);
    ASSERT_NE(hotKeys->registerHotKey(1, command | control, {7, 1}), 0U);
    EXPECT_TRUE(fires(u"super+ctrl+s"_s, 7));
    EXPECT_EQ(other.presses(), 2) << "it sees the modifiers go down, not the key";
    type(u"s"_s);
    EXPECT_TRUE(waitFor([&] { return other.presses() == 1; }));
    EXPECT_EQ(pressed.size(), 1);
}

TEST_F(GrabbedKeys, WorkWithNumLockAndCapsLockInAnyState) {
    ASSERT_NE(hotKeys->registerHotKey(35, command | control, {8, 1}), 0U);
    EXPECT_TRUE(fires(u"super+ctrl+p"_s, 8));
    type(u"Num_Lock"_s);
    EXPECT_TRUE(fires(u"super+ctrl+p"_s, 8));
    type(u"Caps_Lock"_s);
    EXPECT_TRUE(fires(u"super+ctrl+p"_s, 8));
    type(u"Num_Lock"_s);
    EXPECT_TRUE(fires(u"super+ctrl+p"_s, 8));
    type(u"Caps_Lock"_s);
    EXPECT_TRUE(fires(u"super+ctrl+p"_s, 8));
}

TEST_F(GrabbedKeys, DistinguishCombinationsOfTheSameKey) {
    ASSERT_NE(hotKeys->registerHotKey(1, command | control, {1, 1}), 0U);
    ASSERT_NE(hotKeys->registerHotKey(1, command | shift, {2, 1}), 0U);
    ASSERT_NE(hotKeys->registerHotKey(1, command | option, {3, 1}), 0U);
    EXPECT_TRUE(fires(u"super+shift+s"_s, 2));
    EXPECT_TRUE(fires(u"super+alt+s"_s, 3));
    EXPECT_TRUE(fires(u"super+ctrl+s"_s, 1));
}

TEST_F(GrabbedKeys, ACombinationOfAnotherProgramIsRefusedAndLeavesNothingBehind) {
    ASSERT_TRUE(other.grab(xKeyG, superMask | numLockMask));
    EXPECT_EQ(hotKeys->registerHotKey(5, command, {9, 1}), 0U)
        << "also when it is taken in one state of the locks only";
    OtherProgram third;
    EXPECT_TRUE(third.grab(xKeyG, superMask)) << "what was granted before the refusal was given back";
}

TEST_F(GrabbedKeys, ACombinationThatThisProcessHoldsIsRefused) {
    const auto first = hotKeys->registerHotKey(5, command, {1, 1});
    ASSERT_NE(first, 0U);
    EXPECT_EQ(hotKeys->registerHotKey(5, command, {2, 1}), 0U);
    EXPECT_TRUE(fires(u"super+g"_s, 1));
    hotKeys->unregisterHotKey(first);
    EXPECT_NE(hotKeys->registerHotKey(5, command, {2, 1}), 0U);
    EXPECT_TRUE(fires(u"super+g"_s, 2));
}

TEST_F(GrabbedKeys, UnknownKeysAreRefused) {
    EXPECT_EQ(hotKeys->registerHotKey(0xFFFF, command, {1, 1}), 0U);
    hotKeys->unregisterHotKey(12345);
}

TEST_F(GrabbedKeys, AReleasedCombinationReachesOtherProgramsAgain) {
    const auto handle = hotKeys->registerHotKey(5, command, {1, 1});
    ASSERT_TRUE(fires(u"super+g"_s, 1));
    hotKeys->unregisterHotKey(handle);
    static_cast<void>(other.presses());
    type(u"super+g"_s);
    int reached = 0;
    EXPECT_TRUE(waitFor([&] { return (reached += other.presses()) == 2; }));
    EXPECT_EQ(pressed.size(), 1);
}

TEST_F(GrabbedKeys, AHeldKeyTriggersOnce) {
    ASSERT_NE(hotKeys->registerHotKey(5, command, {1, 1}), 0U);
    ASSERT_NE(hotKeys->registerHotKey(1, command, {2, 1}), 0U);
    auto* session = XvfbSession::current();
    other.letKeysRepeat(true);
    // The same key without the modifier auto-repeats in the other window: the server does repeat here.
    ASSERT_TRUE(session->xdotool({u"keydown"_s, u"g"_s}));
    int presses = 0;
    ASSERT_TRUE(waitFor([&] { return (presses += other.presses()) >= 1; }));
    const auto first = other.timeOfLastPress();
    ASSERT_TRUE(waitFor([&] { return (presses += other.presses()) >= 5; }));
    const auto repeating = other.timeOfLastPress() - first;
    ASSERT_TRUE(session->xdotool({u"keyup"_s, u"g"_s}));
    // Held with the modifier, it acts once, while twice as much of the server's time passes.
    ASSERT_TRUE(session->xdotool({u"keydown"_s, u"super"_s, u"keydown"_s, u"g"_s}));
    EXPECT_TRUE(waitFor([&] { return !pressed.isEmpty(); }));
    const auto held = other.serverTime();
    EXPECT_TRUE(waitFor([&] { return other.serverTime() - held > 2 * std::max(repeating, 700U); }));
    ASSERT_TRUE(session->xdotool({u"keyup"_s, u"g"_s, u"keyup"_s, u"super"_s}));
    other.letKeysRepeat(false);
    // Another key arrives after all events of this one.
    type(u"super+s"_s);
    EXPECT_TRUE(waitFor([&] { return pressed.contains(2U); }));
    EXPECT_EQ(pressed, (QList<std::uint32_t>{1, 2}));
    EXPECT_TRUE(fires(u"super+g"_s, 1)) << "and once more when it is pressed again";
}

TEST_F(GrabbedKeys, WorkAfterAChangeOfTheKeymap) {
    ASSERT_NE(hotKeys->registerHotKey(5, command, {1, 1}), 0U);
    // Moves Num Lock from the second modifier bit to the third.
    ASSERT_TRUE(other.moveModifier(4, 5));
    QCoreApplication::processEvents();
    type(u"Num_Lock"_s);
    EXPECT_TRUE(fires(u"super+g"_s, 1));
    type(u"Num_Lock"_s);
    ASSERT_TRUE(other.moveModifier(5, 4));
    EXPECT_TRUE(fires(u"super+g"_s, 1));
}

TEST(HotKeysOfTheSession, UnderWaylandGrabsAreNeverUsed) {
    qputenv("WAYLAND_DISPLAY", "wayland-9");
    const auto hotKeys = Platform::createHotKeys();
    qunsetenv("WAYLAND_DISPLAY");
    EXPECT_TRUE(waitFor([&] {
        return hotKeys->registerHotKey(5, command, {1, 1}) == 0;
    })) << "no portal answers here, so nothing can be registered";
    EXPECT_EQ(hotKeys->way(), HotKeys::Way::None);
}

TEST(HotKeysOfTheSession, AreNotAvailableWithoutADisplay) {
    const QByteArray display = qgetenv("DISPLAY");
    qunsetenv("DISPLAY");
    const auto none = Platform::createHotKeys();
    qputenv("DISPLAY", ":97");
    const auto unreachable = Platform::createHotKeys();
    qputenv("DISPLAY", display);
    EXPECT_EQ(none->way(), HotKeys::Way::None);
    EXPECT_EQ(none->registerHotKey(5, command, {1, 1}), 0U);
    EXPECT_EQ(unreachable->way(), HotKeys::Way::None);
}

TEST(HotKeysOfTheSession, UnderX11GrabsAreUsed) {
    EXPECT_EQ(Platform::createHotKeys()->way(), HotKeys::Way::X11Grab);
}

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/PreferenceWndController.h"

#include "Platform/Desktop/linux/LinuxHotKeys.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/UserDefaults.h"
#include "Platform/Foundation/linux/PropertyListDefaults.h"
#include "Source/HotKey/KeybordShortcutTextView.h"
#include "Source/View/QtFocusProbe.h"
#include "Source/View/Theme.h"
#include "tests/fakes/FakeBundle.h"
#include "tests/support/OtherProgram.h"
#include "tests/support/Screenshot.h"
#include "tests/support/WaitFor.h"
#include "tests/support/XvfbSession.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr std::uint8_t xKeyG = 34 + 8;
constexpr std::uint16_t superMask = 64;
const auto startStopKey = u"PreferenceStartStopShortcutKey"_s;

// Real keys, real grabs, a real settings file, with only the preferences window and the objects behind its fields.
class RealKeys : public testing::Test {
protected:
    RealKeys() {
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(config.path()));
        auto& set = Platform::services();
        set.bundle = &bundle;
        set.focusProbe = &probe;
        hotKeys = Platform::createHotKeys();
        set.hotKeys = hotKeys.get();
        Theme::install(*qApp, nullptr);
        launch();
    }
    ~RealKeys() override {
        controller.reset();
        defaults.reset();
        qunsetenv("XDG_CONFIG_HOME");
    }
    // Simulates a new start of the program: everything is read from the settings file.
    void launch() {
        controller.reset();
        defaults.reset();
        defaults = Platform::createUserDefaults(bundle.bundleIdentifier());
        Platform::services().userDefaults = defaults.get();
        controller = std::make_unique<PreferenceWndController>(
            ComputerAudioDevice{[] { return false; }, [] { return false; }, [] { return false; }, [] { return false; },
                                [] { return QString(); }});
        controller->startStopShortcut()->hotKeyRegister()->setOperation([this] { acted.append(u"start-stop"_s); });
        controller->pauseResumeShortcut()->hotKeyRegister()->setOperation([this] { acted.append(u"pause"_s); });
        controller->startNewRecordShortcut()->hotKeyRegister()->setOperation([this] { acted.append(u"new"_s); });
    }
    void show() {
        controller->makeKeyAndOrderFront();
        controller->center();
        ASSERT_TRUE(QTest::qWaitForWindowActive(controller->window(), 30000));
    }
    void keys(const QStringList& arguments) { EXPECT_TRUE(XvfbSession::current()->xdotool(arguments)); }
    void type(const QString& combination) { keys({u"key"_s, combination}); }
    void click(QWidget* widget) {
        // The window manager may still be moving the window: the field itself reports when the pointer is on it. A
        // pointer that does not move sends no event, so each try goes to another place.
        int tries = 0;
        EXPECT_TRUE(waitFor([&] {
            const QPoint at = widget->mapToGlobal(widget->rect().center()) + QPoint(++tries % 2, 0);
            keys({u"mousemove"_s, QString::number(at.x()), QString::number(at.y())});
            return waitFor([&] { return widget->underMouse(); }, 500);
        }));
        keys({u"click"_s, u"1"_s});
        EXPECT_TRUE(waitFor([&] { return widget->hasFocus(); }));
        // The keyboard is grabbed by a request, which must reach the server before the next key.
        QCoreApplication::processEvents();
        settle();
    }
    // A round trip to the server, so that it has handled the earlier requests.
    static void settle() { static_cast<void>(XvfbSession::current()->xdotoolOutput({u"getmouselocation"_s})); }
    bool acts(const QString& combination, const QString& what) {
        acted.clear();
        type(combination);
        return waitFor([&] { return acted == QStringList{what}; });
    }
    Dictionary stored(const QString& key) { return defaults->objectForKey(key).toMap(); }

    Platform::ServicesScope scope;
    QTemporaryDir config;
    FakeBundle bundle;
    QtFocusProbe probe;
    std::unique_ptr<Platform::HotKeys> hotKeys;
    std::unique_ptr<Platform::UserDefaults> defaults;
    std::unique_ptr<PreferenceWndController> controller;
    QStringList acted;
};

} // namespace

TEST_F(RealKeys, EachHotKeyWorksWhileAnotherWindowHasTheFocus) {
    OtherProgram other;
    ASSERT_TRUE(other.takeFocus());
    for (const char* lock : {"", "Num_Lock", "Caps_Lock", "Num_Lock", "Caps_Lock"}) {
        if (*lock)
            type(QString::fromLatin1(lock));
        EXPECT_TRUE(acts(u"super+ctrl+s"_s, u"start-stop"_s)) << lock;
        EXPECT_TRUE(acts(u"super+ctrl+p"_s, u"pause"_s)) << lock;
        EXPECT_TRUE(acts(u"super+ctrl+n"_s, u"new"_s)) << lock;
    }
}

TEST_F(RealKeys, AFieldShowsHeldModifiersThenTheCombination) {
    show();
    auto* field = controller->startStopShortcut();
    click(field);
    keys({u"keydown"_s, u"super"_s});
    EXPECT_TRUE(waitFor([&] { return field->text() == u"Super + "_s; })) << qPrintable(field->text());
    EXPECT_FALSE(field->hotKeyRegister()->hasRegisterHotKey());
    keys({u"keydown"_s, u"shift"_s});
    EXPECT_TRUE(waitFor([&] { return field->text() == u"Super + Shift + "_s; })) << qPrintable(field->text());
    keys({u"key"_s, u"a"_s, u"keyup"_s, u"shift"_s, u"keyup"_s, u"super"_s});
    EXPECT_TRUE(waitFor([&] { return !field->hasFocus(); }));
    EXPECT_EQ(field->text(), u"Super + Shift + A"_s);
    const Dictionary expected{{u"KeybordShortcutCharactersKey"_s, u"A"_s},
                              {u"KeybordShortcutModifierFlagsKey"_s, 0x120000},
                              {u"KeybordShortcutKeyCodeKey"_s, 0}};
    EXPECT_EQ(stored(startStopKey), expected);

    OtherProgram other;
    ASSERT_TRUE(other.takeFocus());
    EXPECT_TRUE(acts(u"super+shift+a"_s, u"start-stop"_s));
    type(u"super+ctrl+s"_s);
    EXPECT_TRUE(acts(u"super+ctrl+n"_s, u"new"_s)) << "and the old combination does nothing";
}

TEST_F(RealKeys, TheShortcutComesBackAfterARestart) {
    show();
    auto* field = controller->startStopShortcut();
    click(field);
    type(u"super+alt+F6"_s);
    ASSERT_TRUE(waitFor([&] { return field->text() == u"Alt + Super + F6"_s && !field->hasFocus(); }));
    ASSERT_TRUE(defaults->flush());
    launch();
    EXPECT_EQ(controller->startStopShortcut()->text(), u"Alt + Super + F6"_s);
    EXPECT_EQ(controller->startStopShortcut()->keyCode(), 97);
    OtherProgram other;
    ASSERT_TRUE(other.takeFocus());
    EXPECT_TRUE(acts(u"super+alt+F6"_s, u"start-stop"_s));
}

TEST_F(RealKeys, AKeyWithoutModifiersClearsTheShortcutAlsoAfterARestart) {
    show();
    auto* field = controller->startStopShortcut();
    click(field);
    type(u"k"_s);
    ASSERT_TRUE(waitFor([&] { return !field->hasFocus(); }));
    EXPECT_EQ(field->text(), QString());
    EXPECT_TRUE(stored(startStopKey).isEmpty());
    ASSERT_TRUE(defaults->flush());
    launch();
    EXPECT_EQ(controller->startStopShortcut()->text(), QString());
    EXPECT_FALSE(controller->startStopShortcut()->hotKeyRegister()->hasRegisterHotKey());
}

TEST_F(RealKeys, TabGoesThroughTheFieldsAndBackAndLeavesThemAsTheyWere) {
    show();
    auto* first = controller->startStopShortcut();
    auto* second = controller->pauseResumeShortcut();
    click(first);
    ASSERT_TRUE(waitFor([&] { return first->hasFocus(); }));
    type(u"Tab"_s);
    ASSERT_TRUE(waitFor([&] { return second->hasFocus(); }));
    type(u"shift+Tab"_s);
    ASSERT_TRUE(waitFor([&] { return first->hasFocus(); }));
    type(u"shift+Tab"_s);
    ASSERT_TRUE(waitFor([&] { return !first->hasFocus() && !second->hasFocus(); }));
    EXPECT_EQ(first->text(), u"Control + Super + S"_s);
    EXPECT_EQ(second->text(), u"Control + Super + P"_s);
    EXPECT_FALSE(defaults->objectForKey(startStopKey).isValid()) << "nothing was stored";
    OtherProgram other;
    ASSERT_TRUE(other.takeFocus());
    EXPECT_TRUE(acts(u"super+ctrl+s"_s, u"start-stop"_s));
    EXPECT_TRUE(acts(u"super+ctrl+p"_s, u"pause"_s));
}

TEST_F(RealKeys, TheDefaultsComeBackAlsoWhenTheFieldsHadExchangedThem) {
    show();
    auto* field = controller->startStopShortcut();
    click(field);
    type(u"k"_s);
    ASSERT_TRUE(waitFor([&] { return !field->hasFocus(); }));
    click(controller->pauseResumeShortcut());
    type(u"super+ctrl+s"_s); // the default of the other field
    ASSERT_TRUE(waitFor([&] {
        return controller->pauseResumeShortcut()->text() == u"Control + Super + S"_s &&
               !controller->pauseResumeShortcut()->hasFocus();
    }));
    click(controller->window()->findChild<QWidget*>(u"defaultShortcutsButton"_s));
    ASSERT_TRUE(waitFor([&] { return field->text() == u"Control + Super + S"_s; }));
    EXPECT_EQ(controller->pauseResumeShortcut()->text(), u"Control + Super + P"_s);
    EXPECT_EQ(stored(startStopKey).value(u"KeybordShortcutModifierFlagsKey"_s), 0x140000) << "in the form of before";
    OtherProgram other;
    ASSERT_TRUE(other.takeFocus());
    EXPECT_TRUE(acts(u"super+ctrl+s"_s, u"start-stop"_s));
    EXPECT_TRUE(acts(u"super+ctrl+p"_s, u"pause"_s));
}

TEST_F(RealKeys, ACombinationThatAnotherProgramHoldsClearsTheField) {
    OtherProgram other;
    ASSERT_TRUE(other.grab(xKeyG, superMask));
    show();
    auto* field = controller->startStopShortcut();
    click(field);
    type(u"super+g"_s);
    ASSERT_TRUE(waitFor([&] { return !field->hasFocus(); })) << "the key arrives although another program grabbed it";
    EXPECT_EQ(field->text(), QString());
    EXPECT_TRUE(stored(startStopKey).isEmpty());
}

TEST_F(RealKeys, ACombinationOfAnotherFieldIsRefusedAndDoesNotTrigger) {
    show();
    auto* field = controller->startStopShortcut();
    click(field);
    type(u"super+ctrl+p"_s);
    ASSERT_TRUE(waitFor([&] { return !field->hasFocus(); }));
    EXPECT_EQ(field->text(), QString());
    EXPECT_TRUE(acted.isEmpty());
    EXPECT_TRUE(acts(u"super+ctrl+p"_s, u"pause"_s)) << "it stays where it was";
}

TEST_F(RealKeys, ItsOwnCombinationCanBeTypedAgain) {
    show();
    auto* field = controller->startStopShortcut();
    click(field);
    type(u"super+ctrl+s"_s);
    ASSERT_TRUE(waitFor([&] { return !field->hasFocus(); }));
    EXPECT_EQ(field->text(), u"Control + Super + S"_s);
    EXPECT_TRUE(acted.isEmpty());
    EXPECT_TRUE(acts(u"super+ctrl+s"_s, u"start-stop"_s));
}

TEST_F(RealKeys, NoHotKeyTriggersWhileAFieldHasTheFocus) {
    show();
    click(controller->pauseResumeShortcut());
    type(u"super+ctrl+s"_s);
    ASSERT_TRUE(waitFor([&] { return !controller->pauseResumeShortcut()->hasFocus(); }));
    EXPECT_TRUE(acted.isEmpty());
}

TEST_F(RealKeys, LockKeysAreNeverStored) {
    show();
    type(u"Caps_Lock"_s);
    type(u"Num_Lock"_s);
    auto* field = controller->startStopShortcut();
    click(field);
    type(u"super+k"_s);
    ASSERT_TRUE(waitFor([&] { return !field->hasFocus(); }));
    type(u"Num_Lock"_s);
    type(u"Caps_Lock"_s);
    EXPECT_EQ(field->text(), u"Super + K"_s);
    EXPECT_EQ(stored(startStopKey).value(u"KeybordShortcutModifierFlagsKey"_s), 0x100000);
}

TEST_F(RealKeys, AMnemonicFocusesAFieldWithoutChangingItsShortcut) {
    show();
    auto* field = controller->pauseResumeShortcut();
    type(u"alt+p"_s);
    ASSERT_TRUE(waitFor([&] { return field->hasFocus(); }));
    settle();
    QCoreApplication::processEvents();
    EXPECT_EQ(field->text(), u"Control + Super + P"_s);
    EXPECT_TRUE(field->hotKeyRegister()->hasRegisterHotKey());
    type(u"super+j"_s);
    EXPECT_TRUE(waitFor([&] { return field->text() == u"Super + J"_s && !field->hasFocus(); }));
}

TEST_F(RealKeys, ClosingTheWindowWithAFocusedFieldReleasesTheKeyboard) {
    show();
    click(controller->startStopShortcut());
    controller->window()->close();
    OtherProgram other;
    ASSERT_TRUE(other.takeFocus());
    type(u"x"_s);
    int reached = 0;
    EXPECT_TRUE(waitFor([&] { return (reached += other.presses()) == 1; }));
    EXPECT_TRUE(acts(u"super+ctrl+s"_s, u"start-stop"_s));
}

TEST_F(RealKeys, TheWindowIsCentredOnItsScreen) {
    show();
    const QRect screen = controller->window()->screen()->availableGeometry();
    EXPECT_TRUE(waitFor([&] {
        const QPoint off = controller->window()->frameGeometry().center() - screen.center();
        return off.manhattanLength() < 60;
    }));
}

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/HotKey/KeybordShortcutTextView.h"

#include "Platform/Foundation/Services.h"
#include "Source/View/KeyNames.h"
#include "Source/View/QtFocusProbe.h"
#include "tests/fakes/FakeHotKeys.h"
#include "tests/fakes/FakeUserDefaults.h"
#include "tests/support/WaitFor.h"

#include <QAction>
#include <QMenu>
#include <QShortcut>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using Field = KeybordShortcutTextView;
constexpr std::uint32_t commandControl = Field::CommandFlag | Field::ControlFlag;
const auto saveKey = u"PreferenceStartStopShortcutKey"_s;

class ShortcutField : public testing::Test {
protected:
    ShortcutField() {
        Platform::services().hotKeys = &hotKeys;
        Platform::services().userDefaults = &defaults;
        Platform::services().focusProbe = &probe;
        auto* layout = new QVBoxLayout(&window);
        other = new QLineEdit(&window);
        layout->addWidget(other);
        field = new Field(&window);
        layout->addWidget(field);
        prepare(field, saveKey, 0x73737273);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window, 30000));
        other->setFocus();
    }
    static void prepare(Field* field, const QString& key, std::uint32_t signature) {
        field->setSaveKey(key);
        field->setCharacters(u"s"_s);
        field->setModifierFlags(commandControl);
        field->setKeyCode(1);
        field->loadUserDefault();
        field->setHotKeyRegister(std::make_unique<HotKeyRegister>());
        field->hotKeyRegister()->setSignature(signature);
        field->updateHotKeyRegister();
    }
    void type(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        field->setFocus();
        QTest::keyClick(field, key, modifiers);
    }
    Dictionary stored() { return defaults.objectForKey(saveKey).toMap(); }

    Platform::ServicesScope scope;
    FakeHotKeys hotKeys;
    FakeUserDefaults defaults;
    QtFocusProbe probe;
    QWidget window;
    QLineEdit* other = nullptr;
    Field* field = nullptr;
};

} // namespace

TEST_F(ShortcutField, ShowsTheDefaultWhenNothingIsStored) {
    EXPECT_EQ(field->text(), u"Control + Super + S"_s);
    EXPECT_TRUE(field->hotKeyRegister()->hasRegisterHotKey());
    EXPECT_TRUE(stored().isEmpty());
}

TEST_F(ShortcutField, ShowsThePrefixesInTheirOrder) {
    field->setCharacters(u"a"_s);
    field->setModifierFlags(Field::ShiftFlag | Field::CommandFlag);
    field->updateShortcutValue();
    EXPECT_EQ(field->text(), u"Super + Shift + A"_s);
    field->setModifierFlags(0xFFFFFFFF);
    field->updateShortcutValue();
    EXPECT_EQ(field->text(), u"Control + Alt + Super + Shift + A"_s);
}

TEST_F(ShortcutField, KeepsOnlyTheFourModifiers) {
    field->setModifierFlags(commandControl | 0x10000 | 0x800000 | 0x1F);
    field->updateShortcutValue();
    EXPECT_EQ(field->modifierFlags(), commandControl);
}

TEST_F(ShortcutField, NeverShowsAKeyWithoutAModifier) {
    field->setModifierFlags(0x10000);
    field->updateShortcutValue();
    EXPECT_EQ(field->text(), QString());
}

TEST_F(ShortcutField, RegistersAndStoresATypedCombination) {
    type(Qt::Key_A, Qt::ShiftModifier | Qt::MetaModifier);
    EXPECT_EQ(field->text(), u"Super + Shift + A"_s);
    EXPECT_FALSE(field->hasFocus());
    ASSERT_TRUE(field->hotKeyRegister()->hasRegisterHotKey());
    EXPECT_EQ(hotKeys.registrations.begin()->second.keyCode, 0);
    const Dictionary expected{{u"KeybordShortcutCharactersKey"_s, u"A"_s},
                              {u"KeybordShortcutModifierFlagsKey"_s, 0x120000U},
                              {u"KeybordShortcutKeyCodeKey"_s, 0U}};
    EXPECT_EQ(stored(), expected);
}

TEST_F(ShortcutField, IsRestoredAfterARestart) {
    type(Qt::Key_F5, Qt::AltModifier);
    EXPECT_EQ(field->text(), u"Alt + F5"_s);
    field->hotKeyRegister()->unregisterHotKey();
    Field again;
    prepare(&again, saveKey, 1);
    EXPECT_EQ(again.text(), u"Alt + F5"_s);
    EXPECT_EQ(again.keyCode(), 96);
    EXPECT_TRUE(again.hotKeyRegister()->hasRegisterHotKey());
}

TEST_F(ShortcutField, AKeyWithoutModifiersClearsTheShortcut) {
    type(Qt::Key_K);
    EXPECT_EQ(field->text(), QString());
    EXPECT_FALSE(field->hotKeyRegister()->hasRegisterHotKey());
    EXPECT_TRUE(defaults.objectForKey(saveKey).isValid());
    EXPECT_TRUE(stored().isEmpty());
    EXPECT_TRUE(field->characters().isNull());
    EXPECT_EQ(field->keyCode(), 0);
    Field again;
    prepare(&again, saveKey, 1);
    EXPECT_EQ(again.text(), QString());
    EXPECT_FALSE(again.hotKeyRegister()->hasRegisterHotKey());
}

TEST_F(ShortcutField, HeldModifiersShowAndReleaseTheOldHotKeyAtOnce) {
    field->setFocus();
    QTest::keyPress(field, Qt::Key_Meta);
    EXPECT_EQ(field->text(), u"Super + "_s);
    EXPECT_FALSE(field->hotKeyRegister()->hasRegisterHotKey());
    EXPECT_EQ(field->characters(), u""_s);
    EXPECT_FALSE(field->characters().isNull());
    EXPECT_FALSE(defaults.objectForKey(saveKey).isValid()) << "nothing is stored before a key";
}

TEST_F(ShortcutField, LeavingWithModifiersOnlyStoresNothing) {
    field->setFocus();
    QTest::keyPress(field, Qt::Key_Meta);
    other->setFocus();
    EXPECT_FALSE(field->hotKeyRegister()->hasRegisterHotKey());
    EXPECT_EQ(field->text(), u"Super + "_s);
    EXPECT_FALSE(defaults.objectForKey(saveKey).isValid());
}

TEST_F(ShortcutField, IgnoresModifiersWithoutTheFocus) {
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Meta, Qt::NoModifier);
    QCoreApplication::sendEvent(field, &event);
    EXPECT_EQ(field->text(), u"Control + Super + S"_s);
    EXPECT_TRUE(field->hotKeyRegister()->hasRegisterHotKey());
}

TEST_F(ShortcutField, ARefusedCombinationClearsAndStoresAnEmptyDictionary) {
    hotKeys.heldByOthers.insert({5, 256});
    type(Qt::Key_G, Qt::MetaModifier);
    EXPECT_EQ(field->text(), QString());
    EXPECT_TRUE(defaults.objectForKey(saveKey).isValid());
    EXPECT_TRUE(stored().isEmpty());
}

TEST_F(ShortcutField, ACombinationThatTheDesktopRefusesLaterIsClearedToo) {
    QMenu menu;
    QAction* item = menu.addAction(u"Start"_s);
    field->setMenuItem(item);
    type(Qt::Key_G, Qt::MetaModifier);
    ASSERT_EQ(field->text(), u"Super + G"_s);
    hotKeys.refuse(5, 256);
    EXPECT_EQ(field->text(), QString());
    EXPECT_TRUE(stored().isEmpty());
    EXPECT_FALSE(field->hotKeyRegister()->hasRegisterHotKey());
    EXPECT_TRUE(item->shortcut().isEmpty());
    type(Qt::Key_H, Qt::MetaModifier);
    EXPECT_EQ(field->text(), u"Super + H"_s) << "another one may be taken";
}

TEST_F(ShortcutField, ALoadedCombinationStaysWhenTheDesktopRefusesIt) {
    hotKeys.refuse(1, 256 + 4096);
    EXPECT_EQ(field->text(), u"Control + Super + S"_s);
    EXPECT_FALSE(field->hotKeyRegister()->hasRegisterHotKey());
    EXPECT_FALSE(defaults.objectForKey(saveKey).isValid());
}

TEST_F(ShortcutField, ACombinationOfAnotherFieldIsRefused) {
    Field second(&window);
    prepare(&second, u"PreferencePauseResumeShortcutKey"_s, 0x70727273);
    EXPECT_FALSE(second.hotKeyRegister()->hasRegisterHotKey()) << "both have the same default here";
    EXPECT_TRUE(field->hotKeyRegister()->hasRegisterHotKey());
}

TEST_F(ShortcutField, TypingItsOwnCombinationAgainKeepsIt) {
    type(Qt::Key_S, Qt::MetaModifier | Qt::ControlModifier);
    EXPECT_EQ(field->text(), u"Control + Super + S"_s);
    EXPECT_TRUE(field->hotKeyRegister()->hasRegisterHotKey());
}

TEST_F(ShortcutField, RegistersWhenTheKeyIsReleased) {
    field->setFocus();
    QTest::keyPress(field, Qt::Key_D, Qt::MetaModifier);
    EXPECT_EQ(field->text(), u"Super + D"_s);
    EXPECT_FALSE(defaults.objectForKey(saveKey).isValid());
    // Another key in between is not part of any combination.
    QTest::keyPress(field, Qt::Key_E, Qt::MetaModifier);
    EXPECT_EQ(field->text(), u"Super + D"_s);
    QTest::keyRelease(field, Qt::Key_D, Qt::MetaModifier);
    EXPECT_EQ(stored().value(Field::CharactersKey), u"d"_s);
    EXPECT_FALSE(field->hasFocus());
}

TEST_F(ShortcutField, CapturesEscapeTabAndMenuShortcuts) {
    bool menuActed = false;
    QShortcut shortcut(QKeySequence(Qt::CTRL | Qt::Key_Q), &window);
    QObject::connect(&shortcut, &QShortcut::activated, &window, [&] { menuActed = true; });
    type(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_FALSE(menuActed);
    EXPECT_EQ(field->text(), u"Control + Q"_s);
    type(Qt::Key_Tab, Qt::MetaModifier);
    EXPECT_EQ(field->text(), u"Super + TAB"_s);
    type(Qt::Key_Escape, Qt::MetaModifier);
    EXPECT_EQ(field->text(), u"Super + ESC"_s);
    type(Qt::Key_Escape);
    EXPECT_EQ(field->text(), QString());
}

TEST_F(ShortcutField, HotKeysAreDisabledWhileItHasTheFocus) {
    int ran = 0;
    field->hotKeyRegister()->setOperation([&] { ++ran; });
    field->setFocus();
    EXPECT_TRUE(probe.isEditKeybordShortcutControl());
    hotKeys.press(1, 256 + 4096);
    QCoreApplication::processEvents();
    EXPECT_EQ(ran, 0);
    other->setFocus();
    EXPECT_FALSE(probe.isEditKeybordShortcutControl());
    hotKeys.press(1, 256 + 4096);
    EXPECT_TRUE(waitFor([&] { return ran == 1; }));
}

TEST_F(ShortcutField, StoredDictionariesOfAnotherShapeGiveTheDefault) {
    const QList<QVariant> strangers{
        u"text"_s,
        7,
        QVariantList{1, 2},
        QVariantMap{{u"KeybordShortcutCharactersKey"_s, QVariantList{}},
                    {u"KeybordShortcutModifierFlagsKey"_s, u"many"_s},
                    {u"KeybordShortcutKeyCodeKey"_s, QVariantMap{}}},
        QVariantMap{{u"something"_s, 1}},
    };
    for (const QVariant& stranger : strangers) {
        defaults.setObject(u"strange"_s, stranger);
        Field strange;
        field->hotKeyRegister()->unregisterHotKey();
        prepare(&strange, u"strange"_s, 1);
        EXPECT_EQ(strange.text(), u"Control + Super + S"_s);
        EXPECT_EQ(defaults.objectForKey(u"strange"_s), stranger) << "and nothing is lost";
    }
}

TEST_F(ShortcutField, StoredNumbersOfAnyTypeAreAccepted) {
    defaults.setObject(u"wide"_s, QVariantMap{{Field::CharactersKey, u"p"_s},
                                              {Field::ModifierFlagsKey, qlonglong(0x140000)},
                                              {Field::KeyCodeKey, qlonglong(0x10023)}});
    Field wide;
    prepare(&wide, u"wide"_s, 1);
    EXPECT_EQ(wide.keyCode(), 35) << "the low 16 bits";
    EXPECT_EQ(wide.text(), u"Control + Super + P"_s);
}

TEST_F(ShortcutField, TheMenuItemShowsTheCombination) {
    QMenu menu;
    QAction* item = menu.addAction(u"Start"_s);
    field->setMenuItem(item);
    EXPECT_EQ(item->shortcut(), QKeySequence(Qt::CTRL | Qt::META | Qt::Key_S));
    EXPECT_EQ(item->data().value<QObject*>(), field);
    type(Qt::Key_J, Qt::AltModifier);
    EXPECT_EQ(item->shortcut(), QKeySequence(Qt::ALT | Qt::Key_J));
    type(Qt::Key_J);
    EXPECT_TRUE(item->shortcut().isEmpty());
}

TEST_F(ShortcutField, AMenuItemOfAnotherFieldIsNotChanged) {
    QAction item;
    field->setMenuItem(&item);
    item.setData(42);
    type(Qt::Key_J, Qt::AltModifier);
    EXPECT_EQ(item.data(), 42);
    EXPECT_EQ(item.shortcut(), QKeySequence(Qt::CTRL | Qt::META | Qt::Key_S));
}

TEST_F(ShortcutField, ShowsTheKeysThatTheDesktopsSettingsSay) {
    QAction item;
    KeyNames::install();
    field->setMenuItem(&item);
    hotKeys.rebind(1, u"Meta+F9"_s);
    EXPECT_EQ(field->text(), u"Super+F9"_s) << "the name that it has in the menus";
    EXPECT_EQ(item.shortcut(), QKeySequence(Qt::META | Qt::Key_F9));
    hotKeys.rebind(1, u"Press <Super>x twice"_s);
    EXPECT_EQ(field->text(), u"Press <Super>x twice"_s);
    EXPECT_TRUE(item.shortcut().isEmpty()) << "words that name no keys";
    hotKeys.rebind(1, u""_s);
    EXPECT_EQ(field->text(), u""_s) << "the user took the keys away";
    EXPECT_FALSE(field->toolTip().isEmpty());
    EXPECT_TRUE(stored().isEmpty()) << "nothing was typed here";
    type(Qt::Key_J, Qt::AltModifier);
    EXPECT_EQ(field->text(), u"Alt + J"_s) << "until the desktop answers";
    EXPECT_EQ(item.shortcut(), QKeySequence(Qt::ALT | Qt::Key_J));
}

TEST_F(ShortcutField, SurvivesItsMenuItem) {
    {
        QAction item;
        field->setMenuItem(&item);
    }
    type(Qt::Key_J, Qt::AltModifier);
    EXPECT_EQ(field->menuItem(), nullptr);
}

TEST_F(ShortcutField, AFocusRingIsDrawn) {
    const QImage before = field->grab().toImage();
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, field->mapTo(&window, field->rect().center()));
    ASSERT_TRUE(field->hasFocus());
    const QImage focused = field->grab().toImage();
    EXPECT_EQ(QColor(focused.pixel(0, focused.height() / 2)),
              field->palette().color(QPalette::Active, QPalette::Highlight));
    EXPECT_NE(before.pixel(0, before.height() / 2), focused.pixel(0, focused.height() / 2));
}

TEST_F(ShortcutField, TabReachesItAndLeavesItUnchanged) {
    QTest::keyClick(window.windowHandle(), Qt::Key_Tab);
    ASSERT_TRUE(field->hasFocus());
    QTest::keyClick(window.windowHandle(), Qt::Key_Tab);
    EXPECT_FALSE(field->hasFocus());
    EXPECT_EQ(field->text(), u"Control + Super + S"_s);
    EXPECT_TRUE(field->hotKeyRegister()->hasRegisterHotKey());
    EXPECT_FALSE(defaults.objectForKey(saveKey).isValid());
}

TEST_F(ShortcutField, ShiftTabGoesBackAndUndoesWhatItsShiftDid) {
    field->setFocus();
    QTest::keyPress(window.windowHandle(), Qt::Key_Shift);
    EXPECT_EQ(field->text(), u"Shift + "_s);
    EXPECT_FALSE(field->hotKeyRegister()->hasRegisterHotKey());
    QTest::keyPress(window.windowHandle(), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(other->hasFocus());
    EXPECT_EQ(field->text(), u"Control + Super + S"_s);
    EXPECT_TRUE(field->hotKeyRegister()->hasRegisterHotKey());
    EXPECT_FALSE(defaults.objectForKey(saveKey).isValid());
}

TEST_F(ShortcutField, ItAsksForTheKeysWhileItWaits) {
    field->resize(240, 30);
    const QImage atRest = field->grab().toImage();
    field->setFocus();
    EXPECT_EQ(field->accessibleDescription(), u"Press the keys"_s);
    const QImage waiting = field->grab().toImage();
    QTest::keyPress(field, Qt::Key_Meta);
    const QImage held = field->grab().toImage();
    const QRect inside = atRest.rect().adjusted(6, 6, -6, -6);
    EXPECT_NE(waiting.copy(inside), atRest.copy(inside));
    EXPECT_NE(held.copy(inside), waiting.copy(inside)) << "the held modifier is shown";
    QTest::keyRelease(field, Qt::Key_Meta);
    EXPECT_EQ(field->grab().toImage().copy(inside), waiting.copy(inside));
    other->setFocus();
    EXPECT_EQ(field->accessibleDescription(), QString());
}

TEST_F(ShortcutField, TheDefaultComesBackStoredAndInTheMenu) {
    QAction item;
    field->keepAsDefault();
    field->setMenuItem(&item);
    type(Qt::Key_J, Qt::AltModifier);
    ASSERT_EQ(field->text(), u"Alt + J"_s);
    field->useDefault();
    EXPECT_EQ(field->text(), u"Control + Super + S"_s);
    EXPECT_TRUE(field->hotKeyRegister()->hasRegisterHotKey());
    EXPECT_EQ(stored().value(Field::ModifierFlagsKey), commandControl);
    EXPECT_EQ(item.shortcut(), QKeySequence(Qt::CTRL | Qt::META | Qt::Key_S));
}

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/KeyNames.h"

#include "tests/Source/WndController/MainWindowTest.h"

#include <QAction>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace {

/// The names of the modifiers in what the window shows.
class KeyNamesOfTheWindow : public MainWindow {};

QString shown(const QKeySequence& keys) {
    return keys.toString(QKeySequence::NativeText);
}

} // namespace

TEST_F(KeyNamesOfTheWindow, AModifierHasTheNameThatALinuxKeyboardHas) {
    KeyNames::install();
    EXPECT_EQ(shown(Qt::CTRL | Qt::Key_R), u"Control+R"_s);
    EXPECT_EQ(shown(Qt::META | Qt::Key_R), u"Super+R"_s);
    EXPECT_EQ(shown(Qt::ALT | Qt::Key_R), u"Alt+R"_s);
    EXPECT_EQ(shown(Qt::SHIFT | Qt::Key_F8), u"Shift+F8"_s);
    EXPECT_EQ(QKeySequence(Qt::CTRL | Qt::META | Qt::Key_S).toString(QKeySequence::PortableText), u"Meta+Ctrl+S"_s)
        << "what is stored stays as it is";
}

TEST_F(KeyNamesOfTheWindow, NoMenuAndNoToolTipUsesAnotherName) {
    KeyNames::install();
    world.open();
    QStringList texts;
    for (const QAction* action : world.controller->menus().findChildren<QAction*>()) {
        texts << action->text() << action->toolTip() << action->statusTip();
        for (const QKeySequence& keys : action->shortcuts())
            texts << shown(keys);
    }
    for (const QWidget* widget : world.controller->window()->findChildren<QWidget*>())
        texts << widget->toolTip() << widget->whatsThis() << widget->accessibleDescription();
    EXPECT_TRUE(texts.contains(u"Control+R"_s)) << "the shortcuts are among them";
    for (const QString& text : std::as_const(texts))
        for (const QString& other : {u"Ctrl"_s, u"Meta"_s, u"Option"_s, u"Command"_s})
            EXPECT_FALSE(text.contains(other)) << qPrintable(text);
}

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What a screen reader reads of every window, over a real accessibility bus. SONAPHEX_PRINT_TREE=1 prints the trees.
#include "tests/support/AccessibleTree.h"

#include "tests/Accessibility/EveryWindow.h"
#include "tests/support/XvfbSession.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

const QStringList kControls{u"push button"_s,
                            u"button"_s,
                            u"toggle button"_s,
                            u"check box"_s,
                            u"radio button"_s,
                            u"combo box"_s,
                            u"text"_s,
                            u"entry"_s,
                            u"password text"_s,
                            u"spin button"_s,
                            u"slider"_s,
                            u"progress bar"_s,
                            u"menu item"_s,
                            u"menu"_s,
                            u"check menu item"_s,
                            u"page tab"_s,
                            u"table"_s,
                            u"tree"_s,
                            u"tree table"_s,
                            u"list"_s,
                            u"list item"_s,
                            u"table cell"_s,
                            u"tree item"_s,
                            u"column header"_s,
                            u"table column header"_s,
                            u"row header"_s,
                            u"table row header"_s,
                            u"dialog"_s,
                            u"image"_s,
                            u"icon"_s,
                            u"alert"_s,
                            u"notification"_s,
                            u"canvas"_s};
const QStringList kPlaceholders{u"filler"_s, u"panel"_s, u"unknown"_s, u"invalid"_s, u"redundant object"_s};
const QStringList kValued{u"slider"_s, u"progress bar"_s, u"spin button"_s};

/// What is wrong with the tree; empty when nothing is.
QStringList faults(const QList<AccessibleTree::Node>& tree) {
    QStringList found;
    QStringList path;
    for (const auto& node : tree) {
        path.resize(node.depth);
        path.append(node.role + (node.name.isEmpty() ? QString() : u" “"_s + node.name + u"”"_s));
        const QString where = path.join(u" / ");
        const bool shown = node.has(u"showing"_s);
        if (node.name.trimmed().isEmpty() && kControls.contains(node.role))
            found.append(u"nameless: "_s + where);
        if (node.depth == 1 &&
            (kPlaceholders.contains(node.role) || (node.name.trimmed().isEmpty() && node.role != u"popup menu"_s)))
            found.append(u"a window without name or role: "_s + where);
        if (node.role == u"combo box"_s && node.description.isEmpty())
            found.append(u"a pop-up that says only its value: "_s + where);
        if (node.name.trimmed().isEmpty() && node.role == u"label"_s && shown)
            found.append(u"a label that says nothing: "_s + where);
        if (node.has(u"focusable"_s) && kPlaceholders.contains(node.role))
            found.append(u"a control without a role: "_s + where);
        if (kValued.contains(node.role) && !node.value)
            found.append(u"no value: "_s + where);
        else if (kValued.contains(node.role) && node.value->maximum < node.value->now)
            found.append(u"a value beyond its limit: "_s + where);
    }
    return found;
}

class AccessibleWindows : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(XvfbSession::current()->startAccessibility()); }
    static void print(const QString& title, const QList<AccessibleTree::Node>& tree) {
        if (qEnvironmentVariableIsSet("SONAPHEX_PRINT_TREE"))
            std::printf("== %s\n%s\n", qPrintable(title), qPrintable(AccessibleTree::text(tree)));
    }
};

} // namespace

TEST_F(AccessibleWindows, EveryControlOfEveryWindowHasNameRoleAndValue) {
    int windows = 0;
    EveryWindow([&](QWidget&, const QString& name) {
        ++windows;
        const auto tree = AccessibleTree::read();
        print(name, tree);
        EXPECT_GT(tree.size(), 3) << qPrintable(name);
        for (const QString& fault : faults(tree))
            ADD_FAILURE() << qPrintable(name) << ": " << qPrintable(fault);
    }).open();
    EXPECT_EQ(windows, 20);
}

TEST_F(AccessibleWindows, LevelTimeAndStateAreReadAndChangesAreAnnounced) {
    Theme::install(*qApp, nullptr);
    WindowWorld world;
    PreferenceStore::setPreferenceValue(true, PreferenceStore::ChooseRecordBuiltIn);
    MainWndController& main = world.open();
    world.record->setDisplayClockRunning(false);
    auto tree = AccessibleTree::read();
    EXPECT_TRUE(AccessibleTree::find(tree, u"Recording state: Not recording"_s));

    AccessibleTree::Listener listener;
    ASSERT_TRUE(listener.isListening());
    EXPECT_TRUE(AccessibleTree::press(u"Start or stop recording"_s));
    ASSERT_TRUE(waitFor([&] { return world.record->isStateAudioRecord(); })) << "pressed by the screen reader";
    world.hardware.unitOf(WindowWorld::kMicrophone)->feedValue(0.5F, 512);
    for (int i = 0; i < 250; ++i)
        world.record->recordFlushTime();
    main.display().updateAudioWaveView();
    EXPECT_TRUE(listener.heardAnnouncement(u"Recording"_s)) << qPrintable(listener.heard().join(u'\n'));
    tree = AccessibleTree::read();
    EXPECT_TRUE(AccessibleTree::find(tree, u"Recording state: Recording"_s)) << qPrintable(AccessibleTree::text(tree));
    EXPECT_TRUE(AccessibleTree::find(tree, u"Recording time: 02:05"_s)) << qPrintable(AccessibleTree::text(tree));
    const auto level = AccessibleTree::find(tree, u"Recording level"_s);
    ASSERT_TRUE(level && level->value);
    EXPECT_EQ(level->role, u"progress bar"_s);
    EXPECT_EQ(level->value->maximum, 100);

    main.pauseAndResumeRecord();
    EXPECT_TRUE(listener.heardAnnouncement(u"Paused"_s));
    main.display().setNotices({{.text = u"The input device is gone."_s, .event = u"gone"_s}});
    EXPECT_TRUE(listener.heardAnnouncement(u"The input device is gone."_s));
    EXPECT_TRUE(AccessibleTree::find(AccessibleTree::read(), u"Notice: The input device is gone."_s));
    main.startAndStopRecord();
    ASSERT_TRUE(waitFor([&] { return world.record->jobsInQueue() == 0; }));
    // Not the announcement: the next one follows at once, and the reader may ask for the text only then.
    tree = AccessibleTree::read();
    EXPECT_TRUE(AccessibleTree::find(tree, u"Recording state: Not recording"_s))
        << qPrintable(AccessibleTree::text(tree));
}

TEST_F(AccessibleWindows, TheCurrentCutIsASliderThatAReaderMoves) {
    Theme::install(*qApp, nullptr);
    SplitWorld world;
    world.open(world.splitRecording(u"One"_s));
    world.length().setValue(4);
    world.bar().setCurrentCut(1);
    auto tree = AccessibleTree::read();
    const auto cut = AccessibleTree::find(tree, u"Current cut"_s);
    ASSERT_TRUE(cut && cut->value) << qPrintable(AccessibleTree::text(tree));
    EXPECT_EQ(cut->role, u"slider"_s);
    EXPECT_NEAR(cut->value->now, 5.25, 0.03);
    EXPECT_TRUE(AccessibleTree::setValue(u"Current cut"_s, 6.5));
    EXPECT_TRUE(AccessibleTree::setValue(u"Play position"_s, 4));
    EXPECT_NEAR(world.cuts()[1], 6.5, 0.001);
    EXPECT_EQ(world.bar().playFrame(), 4 * SplitWorld::kRate);
    world.controller.window()->hide();
}

TEST_F(AccessibleWindows, TheHandlesOfTheTrimWindowAreSlidersThatAReaderMoves) {
    Theme::install(*qApp, nullptr);
    EditWorld world;
    AudioTrimWndController trim;
    const Dictionary entry = world.recording(u"One"_s, 3);
    world.sounds.lengths[entry.value(AudioRecordEntry::SavePath).toString()] = 100;
    trim.setTrimAudioSourceData(entry);
    ToolControl::showWindowNib(trim);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(trim.window(), 30000));
    auto tree = AccessibleTree::read();
    const auto end = AccessibleTree::find(tree, u"End of the range to keep"_s);
    ASSERT_TRUE(end && end->value) << qPrintable(AccessibleTree::text(tree));
    EXPECT_EQ(end->role, u"slider"_s);
    EXPECT_EQ(end->value->now, 100);
    EXPECT_TRUE(AccessibleTree::setValue(u"End of the range to keep"_s, 60));
    EXPECT_TRUE(AccessibleTree::setValue(u"Begin of the range to keep"_s, 20));
    EXPECT_TRUE(AccessibleTree::setValue(u"Play position"_s, 40));
    const auto& bar = *trim.window()->findChild<AudioTrimEditView*>();
    EXPECT_NEAR(bar.rightTrimRate(), 0.6, 0.001);
    EXPECT_NEAR(bar.leftTrimRate(), 0.2, 0.001);
    EXPECT_NEAR(bar.playRate(), 0.4, 0.001);
    trim.window()->hide();
}

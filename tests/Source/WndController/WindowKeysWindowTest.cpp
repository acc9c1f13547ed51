// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/WindowKeys.h"

#include "RingtoneMaker/CustomSound.h"
#include "tests/Source/WndController/LibraryWindow.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QToolButton>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace {

class KeysOfTheWindow : public LibraryWindow {
protected:
    void SetUp() override {
        for (const QString& title : {u"Delta"_s, u"Charlie"_s, u"Bravo"_s, u"Alpha"_s})
            addRecording(title);
        openWithAll();
    }
    /// Also in the title of a new recording, which the list has opened.
    [[nodiscard]] bool focusIsInTheList() const {
        return table().hasFocus() || table().isAncestorOf(QApplication::focusWidget());
    }
    [[nodiscard]] bool plays() const { return library().isPlaySoundPlaying(); }
};

} // namespace

TEST_F(KeysOfTheWindow, AClickOnAButtonKeepsTheFocusInTheList) {
    clickRow(1);
    ASSERT_TRUE(table().hasFocus());
    for (const char* name : {"btnSatrtRecord_", "btnPauseRecord_", "btnSplitRecord_", "btnSatrtRecord_"}) {
        world.click(name);
        EXPECT_TRUE(focusIsInTheList()) << name;
    }
    ASSERT_TRUE(waitFor([&] { return world.record->jobsInQueue() == 0; }));
    key(Qt::Key_Escape); // the title of the new recording
    for (const char* name : {"btnBuiltInRecord_", "btnPlayAudio_", "btnBuiltInRecord_"}) {
        world.click(name);
        EXPECT_TRUE(focusIsInTheList()) << name;
    }
}

TEST_F(KeysOfTheWindow, SpacePlaysAfterTheRecordButtonWasClicked) {
    clickRow(1);
    world.click("btnSatrtRecord_");
    world.click("btnSatrtRecord_");
    ASSERT_TRUE(waitFor([&] { return world.record->jobsInQueue() == 0; }));
    clickRow(1);
    key(Qt::Key_Space);
    EXPECT_TRUE(plays());
    EXPECT_FALSE(world.controller->isStateAudioRecord());
    key(Qt::Key_Space);
    EXPECT_FALSE(plays());
}

TEST_F(KeysOfTheWindow, SpacePlaysWhereverTheFocusIs) {
    clickRow(1);
    for (const char* name : {"outlineLibraryView_", "btnSatrtRecord_", "btnPlayAudio_", "btnShow_", "btnDelete_",
                             "audioTableView_", "changeTabViewButton"}) {
        world.outlet(name).setFocus(Qt::TabFocusReason);
        key(Qt::Key_Space);
        EXPECT_TRUE(plays()) << name;
        key(Qt::Key_Space);
        EXPECT_FALSE(plays()) << name;
    }
    EXPECT_FALSE(world.controller->isStateAudioRecord());
    EXPECT_TRUE(world.alerts.shown.isEmpty()) << "nothing was asked, nothing deleted";
    EXPECT_TRUE(world.workspace.selected.isEmpty());
}

TEST_F(KeysOfTheWindow, SpaceNeverReachesTypeAhead) {
    addEntry(LibraryWorld::entry(u"blank"_s, u" begins with a blank"_s, world.file(u"blank.m4a"_s)));
    clickRow(1);
    const QStringList selected = selectedTitles();
    world.controller->startAndStopRecord(); // nothing can be played now
    key(Qt::Key_Space);
    EXPECT_EQ(selectedTitles(), selected);
    world.outlet("outlineLibraryView_").setFocus();
    key(Qt::Key_Space);
    EXPECT_EQ(library().libraryViewSelectedNode()->key(), u"all-record"_s);
    EXPECT_TRUE(world.controller->isStateAudioRecord());
    EXPECT_FALSE(world.record->isRecordPause_());
    world.controller->startAndStopRecord();
}

TEST_F(KeysOfTheWindow, EnterPressesTheFocusedButton) {
    world.outlet("btnSatrtRecord_").setFocus(Qt::TabFocusReason);
    key(Qt::Key_Return);
    EXPECT_TRUE(world.controller->isStateAudioRecord());
    key(Qt::Key_Enter);
    EXPECT_FALSE(world.controller->isStateAudioRecord());
    clickRow(0);
    world.alerts.answers = {0};
    world.outlet("btnDelete_").setFocus(Qt::TabFocusReason);
    key(Qt::Key_Return);
    EXPECT_EQ(world.alerts.shown.size(), 1);
}

TEST_F(KeysOfTheWindow, ABoxAndAPopUpReceiveSpace) {
    auto& box = world.outlet<QAbstractButton>("btnBuiltInRecord_");
    box.setFocus(Qt::TabFocusReason);
    key(Qt::Key_Space);
    EXPECT_FALSE(box.isChecked());
    key(Qt::Key_Space);
    auto& devices = world.outlet<QComboBox>("popBuiltInDevice_");
    devices.setFocus(Qt::TabFocusReason);
    key(Qt::Key_Space);
    EXPECT_TRUE(waitFor([&] { return devices.view()->isVisible(); }));
    devices.hidePopup();
    EXPECT_EQ(world.controller->display().playSound(), nullptr);
}

TEST_F(KeysOfTheWindow, HomeEndAndThePageKeysMoveTheRow) {
    for (int i = 0; i < 60; ++i)
        addRecording(u"Echo %1"_s.arg(i));
    clickRow(2);
    key(Qt::Key_End);
    EXPECT_EQ(table().currentIndex().row(), 63);
    EXPECT_EQ(selectedTitles(), QStringList{u"Delta"_s});
    key(Qt::Key_Home);
    EXPECT_EQ(table().currentIndex().row(), 0);
    EXPECT_EQ(selectedTitles().size(), 1);
    key(Qt::Key_PageDown);
    const int page = table().currentIndex().row();
    EXPECT_GT(page, 3);
    EXPECT_LT(page, 63);
    key(Qt::Key_PageUp);
    EXPECT_EQ(table().currentIndex().row(), 0);
    key(Qt::Key_Down);
    key(Qt::Key_Home, Qt::ShiftModifier);
    EXPECT_EQ(selectedTitles().size(), 2);
    key(Qt::Key_End, Qt::ShiftModifier);
    EXPECT_EQ(selectedTitles().size(), 63) << "from the second row to the last one";
}

TEST_F(KeysOfTheWindow, TypedLettersFindATitleWhicheverCellWasClicked) {
    QTest::mouseClick(handle(), Qt::LeftButton, {}, placeOf(0, AudioTableModel::Time));
    key(Qt::Key_C);
    EXPECT_EQ(selectedTitles(), QStringList{u"Charlie"_s});
}

TEST_F(KeysOfTheWindow, ControlWithTheArrowsSkipsTenSeconds) {
    clickRow(1);
    key(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(world.controller->display().playSound(), nullptr) << "nothing plays";
    key(Qt::Key_Space);
    ASSERT_TRUE(plays());
    auto& sound = static_cast<FakeSound&>(*world.controller->display().playSound()->sound());
    sound.seconds = 60;
    sound.time = 5;
    key(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_NEAR(world.controller->display().currentTime(), 15, 0.01);
    key(Qt::Key_Left, Qt::ControlModifier);
    key(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_NEAR(world.controller->display().currentTime(), 0, 0.01) << "not before the beginning";
    EXPECT_TRUE(plays());
}

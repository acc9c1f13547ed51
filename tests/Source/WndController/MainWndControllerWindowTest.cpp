// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/MainWndController.h"

#include "Platform/Foundation/FileManager.h"
#include "RingtoneMaker/CustomSound.h"
#include "Source/View/ConvertingTipView.h"
#include "Source/View/ElidedLabel.h"
#include "Source/View/TransportButton.h"
#include "Source/WndController/AudioTableModel.h"
#include "Source/WndController/WindowLayout.h"
#include "tests/Source/WndController/MainWindowTest.h"
#include "tests/fakes/FakeRecordingFiles.h"
#include "tests/support/Environment.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QSignalSpy>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST_F(MainWindow, StartsIdleWithTheInputChosen) {
    world.open();
    EXPECT_TRUE(button("btnSatrtRecord_").isEnabled());
    EXPECT_FALSE(button("btnPauseRecord_").isEnabled());
    EXPECT_FALSE(button("btnSplitRecord_").isEnabled());
    EXPECT_FALSE(button("btnPlayAudio_").isEnabled());
    EXPECT_TRUE(world.outlet<QAbstractButton>("btnBuiltInRecord_").isChecked());
    EXPECT_FALSE(world.outlet<QAbstractButton>("btnComputerAudioRecord_").isChecked());
    auto& devices = world.outlet<QComboBox>("popBuiltInDevice_");
    ASSERT_EQ(devices.count(), 1) << "the computer-audio device is none of the inputs";
    EXPECT_EQ(devices.itemText(0), u"Built-in Microphone"_s);
    EXPECT_EQ(button("btnSatrtRecord_").toolTip(), u"Start Record"_s);
    EXPECT_EQ(button("btnPauseRecord_").toolTip(), u"Pause Record"_s);
    EXPECT_EQ(button("btnSplitRecord_").toolTip(), u"Cut to another recording"_s);
    EXPECT_EQ(button("btnPlayAudio_").toolTip(), u"Play"_s);
    EXPECT_EQ(world.controller->display().stateString(), u"Ready"_s);
}

TEST_F(MainWindow, ButtonsFollowARecordingFromStartToStop) {
    world.open();
    world.click("btnSatrtRecord_");
    EXPECT_TRUE(button("btnPauseRecord_").isEnabled());
    EXPECT_TRUE(button("btnSplitRecord_").isEnabled());
    EXPECT_EQ(button("btnSatrtRecord_").toolTip(), u"Stop Record"_s);
    EXPECT_EQ(button("btnSatrtRecord_").image(), u"RecorderStop.png"_s);
    EXPECT_EQ(button("btnSatrtRecord_").pressedImage(), u"RecorderStopDown.png"_s);
    EXPECT_FALSE(world.outlet("btnBuiltInRecord_").isEnabled());
    EXPECT_FALSE(world.outlet("btnComputerAudioRecord_").isEnabled());
    EXPECT_FALSE(world.outlet("popBuiltInDevice_").isEnabled());
    feed(0.5F);
    world.click("btnPauseRecord_");
    EXPECT_EQ(button("btnPauseRecord_").image(), u"RecorderResume.png"_s);
    EXPECT_EQ(button("btnPauseRecord_").toolTip(), u"Resume Record"_s);
    world.click("btnPauseRecord_");
    EXPECT_EQ(button("btnPauseRecord_").image(), u"RecorderPause.png"_s);
    world.click("btnSatrtRecord_");
    EXPECT_FALSE(button("btnPauseRecord_").isEnabled());
    EXPECT_EQ(button("btnSatrtRecord_").image(), u"RecorderStart.png"_s);
    EXPECT_TRUE(world.outlet("btnBuiltInRecord_").isEnabled());
    EXPECT_TRUE(waitFor([&] { return world.record->jobsInQueue() == 0; }));
}

TEST_F(MainWindow, AFinishedRecordingIsSelectedAndItsPathShown) {
    addRecording(u"Old"_s);
    world.open();
    world.click("btnSatrtRecord_");
    feed(0.5F);
    world.click("btnSatrtRecord_");
    ASSERT_TRUE(waitFor([&] { return world.library->records().size() == 2; }));
    ASSERT_TRUE(waitFor([&] { return !world.controller->library().tableViewSelectionAudio().isEmpty(); }));
    EXPECT_EQ(world.controller->library().tableViewSelectionAudio().value(AudioRecordEntry::Title), u"Track0"_s);
    EXPECT_EQ(world.controller->library().libraryViewSelectedNode()->key(), u"new-record"_s);
    EXPECT_EQ(status(), world.folder.filePath(u"music/Track0.m4a"_s));
}

TEST_F(MainWindow, ARecordingFinishedLateKeepsTheUsersSelection) {
    for (const QString& title : {u"New"_s, u"One"_s, u"Two"_s})
        addRecording(title);
    MainWndController& controller = world.open();
    showAll();
    controller.updateRecordStateAction();
    clickRow(0);
    clickRow(1, Qt::ControlModifier);
    const Dictionary entry = world.library->records().last().toMap();
    const QString path = entry.value(AudioRecordEntry::SavePath).toString();
    Q_EMIT world.record->recordingFinished(path, entry);
    EXPECT_EQ(controllerSelection(), 2) << "a Delete means these two";
    EXPECT_EQ(status(), path);
    controller.updateRecordStateAction(); // stopped: nothing was selected since
    Q_EMIT world.record->recordingFinished(path, entry);
    EXPECT_EQ(controllerSelection(), 1);
    EXPECT_EQ(controller.library().tableViewSelectionAudioPath(), path);
}

TEST_F(MainWindow, APressedShortcutDoesNotExtendTheSelection) {
    addRecording(u"Old"_s);
    world.open();
    showAll();
    clickRow(0);
    world.click("btnSatrtRecord_");
    feed(0.5F);
    QTest::keyPress(world.controller->window()->windowHandle(), Qt::Key_Control);
    key(Qt::Key_R, Qt::ControlModifier);
    ASSERT_TRUE(waitFor([&] { return status() == world.folder.filePath(u"music/Track0.m4a"_s); }));
    EXPECT_EQ(controllerSelection(), 1);
    QTest::keyRelease(world.controller->window()->windowHandle(), Qt::Key_Control);
}

TEST_F(MainWindow, ReportsARecordingThatTheFilterDropped) {
    PreferenceStore::setPreferenceValue(1, PreferenceStore::PreferenceFilterKey);
    world.open();
    Q_EMIT world.record->recordingFinished(u"/music/Track7.m4a"_s, {});
    EXPECT_TRUE(status().contains(u"Track7"_s));
    EXPECT_TRUE(status().contains(u"5 s"_s));
}

TEST_F(MainWindow, ClosingWhileRecordingIsRefusedWithTheAlert) {
    world.open();
    QSignalSpy ended(world.controller.get(), &MainWndController::terminateRequested);
    world.click("btnSatrtRecord_");
    feed(0.5F);
    EXPECT_FALSE(world.controller->window()->close());
    ASSERT_EQ(world.alerts.shown.size(), 1);
    EXPECT_EQ(world.alerts.shown[0].title, u"Waring:"_s);
    EXPECT_EQ(world.alerts.shown[0].text, u"Please stop your recording."_s);
    EXPECT_EQ(world.alerts.shown[0].buttons, QStringList{u"OK"_s});
    EXPECT_EQ(ended.count(), 0);
    EXPECT_TRUE(world.controller->window()->isVisible());
    world.click("btnSatrtRecord_");
    ASSERT_TRUE(waitFor([&] { return world.record->jobsInQueue() == 0; }));
    EXPECT_FALSE(world.controller->window()->close()) << "the window itself is never closed";
    EXPECT_EQ(ended.count(), 1) << "the program ends";
    EXPECT_TRUE(world.controller->window()->isVisible());
}

TEST_F(MainWindow, WithoutASourceTheStartButtonIsDisabledWithAReason) {
    world.open();
    world.click("btnBuiltInRecord_");
    EXPECT_FALSE(button("btnSatrtRecord_").isEnabled());
    EXPECT_FALSE(button("btnSatrtRecord_").disabledReason().isEmpty());
    EXPECT_FALSE(world.outlet("popBuiltInDevice_").isEnabled());
    EXPECT_FALSE(world.controller->isStateAudioCanStartRecord());
    world.click("btnBuiltInRecord_");
    EXPECT_TRUE(button("btnSatrtRecord_").isEnabled());
}

TEST(MainWindowWithoutComputerAudio, TheBoxOffersTheAddOnAndSwitchesOffAgain) {
    WindowWorld world(false);
    world.open();
    QSignalSpy install(world.controller.get(), &MainWndController::requestSystemAudioRecordDevice);
    world.alerts.answers = {1, 0};
    world.click("btnComputerAudioRecord_");
    ASSERT_EQ(world.alerts.shown.size(), 1);
    EXPECT_EQ(world.alerts.shown[0].title, u"Add-on required to record the system audio."_s);
    EXPECT_FALSE(world.outlet<QAbstractButton>("btnComputerAudioRecord_").isChecked());
    EXPECT_EQ(install.count(), 0) << "Cancel installs nothing";
    world.click("btnComputerAudioRecord_");
    EXPECT_FALSE(world.outlet<QAbstractButton>("btnComputerAudioRecord_").isChecked());
    EXPECT_EQ(install.count(), 1);
}

TEST_F(MainWindow, TheMenuTitlesFollowTheState) {
    MainWndController& controller = world.open();
    EXPECT_EQ(controller.startStopMenuString(), u"Start Record"_s);
    EXPECT_EQ(controller.pauseResumeMenuString(), u"Pause Record"_s);
    EXPECT_EQ(controller.menus().startStop()->text(), u"Start Record"_s);
    EXPECT_FALSE(controller.menus().pauseResume()->isEnabled());
    EXPECT_FALSE(controller.menus().split()->isEnabled());
    controller.startAndStopRecord();
    feed(0.5F);
    controller.pauseAndResumeRecord();
    EXPECT_EQ(controller.startStopMenuString(), u"Stop Record"_s);
    EXPECT_EQ(controller.pauseResumeMenuString(), u"Resume Record"_s);
    EXPECT_EQ(controller.menus().startStop()->text(), u"Stop Record"_s);
    EXPECT_EQ(controller.menus().pauseResume()->text(), u"Resume Record"_s);
    EXPECT_TRUE(controller.menus().split()->isEnabled());
    controller.startAndStopRecord();
    EXPECT_EQ(controller.pauseResumeMenuString(), u"Pause Record"_s);
}

TEST_F(MainWindow, ValidatesItemsByTheirAction) {
    MainWndController& controller = world.open();
    QAction item;
    item.setText(u"kept"_s);
    EXPECT_TRUE(controller.validateMenuItem(item)) << "any other action is always enabled";
    EXPECT_EQ(item.text(), u"kept"_s);
    item.setProperty(MainMenus::kActionProperty, u"splitTheRecord:"_s);
    EXPECT_FALSE(controller.validateMenuItem(item));
    EXPECT_EQ(item.text(), u"kept"_s);
    item.setProperty(MainMenus::kActionProperty, u"startAndStopRecord:"_s);
    EXPECT_TRUE(controller.validateMenuItem(item));
    EXPECT_EQ(item.text(), u"Start Record"_s);
    item.setProperty(MainMenus::kActionProperty, u"pauseAndResumeRecord:"_s);
    EXPECT_FALSE(controller.validateMenuItem(item));
    EXPECT_EQ(item.text(), u"Pause Record"_s);
}

TEST_F(MainWindow, TheContextMenuIsHiddenWithoutASelectionAndTheMenuBarIsNot) {
    addRecording(u"One"_s);
    MainWndController& controller = world.open();
    showAll();
    QMenu* menu = controller.menus().audioTableViewMenu();
    EXPECT_TRUE(controller.tableMenuHidden());
    controller.menuWillOpen(*menu);
    for (const QAction* item : menu->actions())
        EXPECT_FALSE(item->isVisible());
    clickRow(0);
    EXPECT_FALSE(controller.tableMenuHidden());
    controller.menuWillOpen(*menu);
    for (const QAction* item : menu->actions())
        EXPECT_TRUE(item->isVisible());
    table().clearSelection();
    controller.menuWillOpen(*menu);
    EXPECT_TRUE(controller.menus().show()->isVisible());
    QMenu other;
    QAction* untouched = other.addAction(u"x"_s);
    controller.menuWillOpen(other);
    EXPECT_TRUE(untouched->isVisible()) << "other menus are left alone";
}

TEST_F(MainWindow, HeadingsOfTheLibraryCannotBeSelected) {
    addRecording(u"One"_s);
    MainWndController& controller = world.open();
    showAll();
    auto& outline = world.outlet<QTreeView>("outlineLibraryView_");
    const auto& nodes = controller.library().outlineModel();
    const auto selected = [&] {
        const MediaLibraryNode* node = controller.library().libraryViewSelectedNode();
        return node ? node->key() : QString();
    };
    const auto inWindow = [&](const QModelIndex& node) {
        return outline.viewport()->mapTo(controller.window(), outline.visualRect(node).center());
    };
    QWindow* handle = controller.window()->windowHandle();
    for (const int group : {1, 0}) {
        QTest::mouseClick(handle, Qt::LeftButton, {}, inWindow(nodes.index(group, 0)));
        EXPECT_EQ(selected(), u"all-record"_s);
        EXPECT_EQ(table().model()->rowCount(), 1) << "the list stays";
        outline.expand(nodes.index(group, 0));
    }
    QTest::mousePress(handle, Qt::LeftButton, {}, inWindow(nodes.indexOfKey(u"all-record"_s)));
    QTest::mouseMove(handle, inWindow(nodes.index(1, 0)) - QPoint(0, 2));
    QTest::mouseMove(handle, inWindow(nodes.index(1, 0)));
    EXPECT_EQ(selected(), u"all-record"_s) << "nor from a pointer that is drawn over them";
    QTest::mouseRelease(handle, Qt::LeftButton, {}, inWindow(nodes.index(1, 0)));
    EXPECT_EQ(selected(), u"all-record"_s);
    QTest::mouseClick(
        handle, Qt::LeftButton, {},
        outline.viewport()->mapTo(controller.window(), outline.viewport()->rect().bottomLeft() - QPoint(-9, 9)));
    EXPECT_EQ(selected(), u"all-record"_s) << "nor does the empty place below";
    outline.setFocus();
    world.selectNode(u"all-record"_s);
    key(Qt::Key_Down);
    EXPECT_EQ(selected(), u"new-ringtone"_s) << "the keys pass a heading over";
    key(Qt::Key_Up);
    EXPECT_EQ(selected(), u"all-record"_s);
    key(Qt::Key_Home);
    EXPECT_EQ(selected(), u"new-record"_s);
    key(Qt::Key_Up);
    EXPECT_EQ(selected(), u"new-record"_s) << "there is none above the first";
}

TEST_F(MainWindow, AnErrorStaysInTheStatusLineWhenItsRowTurnsGrey) {
    addRecording(u"One"_s);
    MainWndController& controller = world.open();
    showAll();
    clickRow(0);
    const QString path = status();
    ASSERT_EQ(path, world.folder.filePath(u"One.m4a"_s));
    world.sounds.lengths.insert(path, 0);
    ASSERT_TRUE(QFile::remove(path));
    controller.tableViewDoubleAction();
    const QString problem = status();
    EXPECT_NE(problem, path);
    const QModelIndex title = table().model()->index(0, AudioTableModel::Title);
    ASSERT_TRUE(waitFor([&] { return title.data(AudioTableModel::MissingRole).toBool(); }));
    EXPECT_EQ(status(), problem);
    table().clearSelection();
    EXPECT_EQ(status(), QString()) << "until something else is looked at";
}

TEST_F(MainWindow, DoubleClickPlaysAndTheButtonPauses) {
    addRecording(u"One"_s);
    addRecording(u"Two"_s);
    MainWndController& controller = world.open();
    showAll();
    clickRow(1);
    EXPECT_TRUE(button("btnPlayAudio_").isEnabled());
    const QPoint place = table().viewport()->mapTo(
        controller.window(), table().visualRect(table().model()->index(1, AudioTableModel::Title)).center());
    QTest::mouseDClick(controller.window()->windowHandle(), Qt::LeftButton, {}, place);
    ASSERT_NE(controller.display().playSound(), nullptr);
    EXPECT_EQ(controller.display().title(), u"One"_s);
    EXPECT_FALSE(controller.display().tabViewShowWave());
    EXPECT_EQ(button("btnPlayAudio_").image(), u"Pause.png"_s);
    world.click("btnPlayAudio_");
    EXPECT_TRUE(controller.display().playSound()->isPause());
    EXPECT_EQ(button("btnPlayAudio_").image(), u"Play.png"_s);
    world.click("btnSatrtRecord_");
    EXPECT_TRUE(controller.display().playSound()->isStop()) << "recording ends playback";
    EXPECT_TRUE(controller.display().tabViewShowWave());
    EXPECT_FALSE(button("btnPlayAudio_").isEnabled());
    EXPECT_FALSE(controller.menus().playSelected()->isEnabled());
    world.click("btnSatrtRecord_");
}

TEST_F(MainWindow, KeysTriggerTheMenuCommands) {
    addRecording(u"One"_s);
    MainWndController& controller = world.open();
    showAll();
    clickRow(0);
    table().setFocus();
    key(Qt::Key_Return);
    ASSERT_NE(controller.display().playSound(), nullptr);
    EXPECT_TRUE(controller.library().isPlaySoundPlaying());
    key(Qt::Key_Space);
    EXPECT_FALSE(controller.library().isPlaySoundPlaying());
    world.alerts.answers = {0};
    key(Qt::Key_Delete);
    EXPECT_EQ(world.alerts.shown.size(), 1);
    EXPECT_EQ(world.library->records().size(), 1);
    key(Qt::Key_R, Qt::ControlModifier);
    EXPECT_TRUE(controller.isStateAudioRecord());
    key(Qt::Key_P, Qt::ControlModifier);
    EXPECT_TRUE(world.record->isRecordPause_());
    key(Qt::Key_R, Qt::ControlModifier);
    EXPECT_FALSE(controller.isStateAudioRecord());
    QSignalSpy preferences(&controller, &MainWndController::perference);
    key(Qt::Key_Comma, Qt::ControlModifier);
    EXPECT_EQ(preferences.count(), 1);
    ASSERT_TRUE(waitFor([&] { return world.record->jobsInQueue() == 0; }));
    QSignalSpy ended(&controller, &MainWndController::terminateRequested);
    key(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(ended.count(), 1);
}

TEST_F(MainWindow, SpaceStillSwitchesABoxThatHasTheFocus) {
    world.open();
    auto& box = world.outlet<QAbstractButton>("btnBuiltInRecord_");
    box.setFocus();
    key(Qt::Key_Space);
    EXPECT_FALSE(box.isChecked());
    EXPECT_EQ(world.controller->display().playSound(), nullptr);
}

TEST_F(MainWindow, CommandsWithoutAWindowAreDisabledWithAReason) {
    addRecording(u"One"_s);
    MainWndController& controller = world.open();
    showAll();
    clickRow(0);
    for (const auto window :
         {WindowCommands::Window::ID3Edit, WindowCommands::Window::AudioTrim, WindowCommands::Window::CDBurn,
          WindowCommands::Window::Filter, WindowCommands::Window::RingtoneMaker}) {
        const QAction* action = controller.menus().window(window);
        EXPECT_FALSE(action->isEnabled()) << qPrintable(action->text());
        EXPECT_TRUE(action->toolTip().contains(u"later version"_s));
    }
    controller.openID3EditFace();
    controller.openFilterWindow();
}

TEST_F(MainWindow, DisabledCommandsShowTheReason) {
    MainWndController& controller = world.open();
    const auto saysWhy = [&](const char* name, const QString& why) {
        const QWidget& widget = world.outlet(name);
        return !widget.isEnabled() && widget.toolTip().contains(why);
    };
    for (const char* name : {"btnShow_", "btnOpen_", "btnDelete_"})
        EXPECT_TRUE(saysWhy(name, u"Select a recording first."_s)) << name;
    controller.startAndStopRecord();
    for (const char* name : {"btnBuiltInRecord_", "popBuiltInDevice_", "btnComputerAudioRecord_"})
        EXPECT_TRUE(saysWhy(name, u"until the recording ends"_s)) << name;
    for (const QMenu* menu : controller.window()->menuBar()->findChildren<QMenu*>())
        for (const QAction* action : menu->actions())
            EXPECT_TRUE(action->isEnabled() || action->toolTip().contains(u'.')) << qPrintable(action->text());
    controller.startAndStopRecord();
    for (const char* name : {"btnBuiltInRecord_", "popBuiltInDevice_", "btnComputerAudioRecord_"})
        EXPECT_FALSE(world.outlet(name).toolTip().contains(u"until the recording ends"_s)) << name;
}

TEST_F(MainWindow, WindowCommandsGetTheirEntries) {
    addRecording(u"One"_s);
    addRecording(u"Two"_s);
    MainWndController& controller = world.open();
    showAll();
    clickRow(0);
    using Window = WindowCommands::Window;
    QList<QPair<Window, QVariantList>> opened;
    for (const auto window :
         {Window::ID3Edit, Window::AudioTrim, Window::CDBurn, Window::Filter, Window::RingtoneMaker})
        controller.commands().setOpener(window, [&opened, window](const QVariantList& entries) {
            opened.append({window, entries});
        });
    controller.menus().update();
    EXPECT_TRUE(controller.menus().window(Window::ID3Edit)->isEnabled());
    EXPECT_TRUE(controller.menus().window(Window::RingtoneMaker)->isEnabled());
    controller.playSoundButtonAction();
    controller.openID3EditFace();
    EXPECT_TRUE(controller.library().isPlaySoundPlaying()) << "the tag editor lets it play";
    controller.openAudioTrimFace();
    EXPECT_FALSE(controller.library().isPlaySoundPlaying());
    controller.openCDBurnFace();
    controller.openFilterWindow();
    controller.playSoundButtonAction();
    controller.openRingtoneMakerWindow();
    EXPECT_FALSE(controller.library().isPlaySoundPlaying());
    ASSERT_EQ(opened.size(), 5);
    EXPECT_EQ(opened[0].second, QVariantList{controller.library().tableViewSelectionAudio()});
    EXPECT_EQ(opened[1].second, QVariantList{controller.library().tableViewSelectionAudio()});
    EXPECT_EQ(opened[2].second, world.library->records());
    EXPECT_EQ(opened[3].second, world.library->records());
    EXPECT_EQ(opened[4].second.size(), 1);
}

TEST_F(MainWindow, AHeadingShowsAndHidesItsGroup) {
    world.open();
    auto& outline = world.outlet<QTreeView>("outlineLibraryView_");
    const QModelIndex group = outline.model()->index(1, 0);
    const QPoint heading = outline.viewport()->mapTo(world.controller->window(), outline.visualRect(group).center());
    const auto click = [&](QPoint place) {
        QTest::mouseClick(world.controller->window()->windowHandle(), Qt::LeftButton, {}, place);
    };
    ASSERT_TRUE(outline.isExpanded(group));
    click(heading);
    EXPECT_FALSE(outline.isExpanded(group));
    EXPECT_EQ(world.controller->library().libraryViewSelectedNode()->key(), u"new-record"_s);
    click(heading);
    EXPECT_TRUE(outline.isExpanded(group));
    // A press that is released elsewhere has no effect.
    QTest::mousePress(world.controller->window()->windowHandle(), Qt::LeftButton, {}, heading);
    QTest::mouseRelease(world.controller->window()->windowHandle(), Qt::LeftButton, {}, heading + QPoint(0, 100));
    EXPECT_TRUE(outline.isExpanded(group));
}

TEST_F(MainWindow, TheArrowKeysShowAndHideTheGroupOfTheSelection) {
    world.open();
    auto& outline = world.outlet<QTreeView>("outlineLibraryView_");
    const QModelIndex group = outline.model()->index(0, 0);
    outline.setFocus();
    key(Qt::Key_Left);
    EXPECT_FALSE(outline.isExpanded(group));
    EXPECT_EQ(world.controller->library().libraryViewSelectedNode()->key(), u"new-record"_s)
        << "still shown at the right";
    key(Qt::Key_Right);
    EXPECT_TRUE(outline.isExpanded(group));
    key(Qt::Key_Left);
    key(Qt::Key_Down);
    EXPECT_FALSE(outline.isExpanded(group));
    EXPECT_EQ(world.controller->library().libraryViewSelectedNode()->key(), u"new-ringtone"_s)
        << "what is hidden is passed over";
}

TEST_F(MainWindow, RemembersItsSizeAndColumnsAndIsCentred) {
    world.open({840, 560});
    table().horizontalHeader()->resizeSection(AudioTableModel::Artist, 133);
    world.controller.reset();
    const Dictionary stored = world.defaults.objectForKey(WindowLayout::kKey).toMap();
    EXPECT_EQ(stored.value(u"width"_s).toInt(), 840);
    world.controller = std::make_unique<MainWndController>(*world.record, *world.library);
    EXPECT_EQ(world.controller->window()->size(),
              QSize(840, 560).boundedTo(world.controller->window()->screen()->availableSize()));
    EXPECT_EQ(table().horizontalHeader()->sectionSize(AudioTableModel::Artist), 133);
    world.controller->window()->move(0, 0);
    ToolControl::showWindowNib(*world.controller);
    const QRect screen = world.controller->window()->screen()->availableGeometry();
    EXPECT_NEAR(world.controller->window()->frameGeometry().center().x(), screen.center().x(), 1);
}

TEST_F(MainWindow, AnInvalidStoredSizeIsIgnored) {
    world.defaults.setObject(WindowLayout::kKey,
                             Dictionary{{u"width"_s, -5}, {u"height"_s, u"x"_s}, {u"columns"_s, 7}});
    world.controller.reset();
    world.record = std::make_unique<RecordStateController>();
    world.record->awakeFromNib();
    world.controller = std::make_unique<MainWndController>(*world.record, *world.library);
    EXPECT_GE(world.controller->window()->width(), 720);
    EXPECT_GE(world.controller->window()->height(), 480);
}

TEST_F(MainWindow, EveryControlHasAnAccessibleName) {
    world.open();
    for (const QWidget* widget : world.controller->window()->findChildren<QWidget*>()) {
        if (widget->focusPolicy() == Qt::NoFocus || !widget->isVisible() || qobject_cast<const QMenu*>(widget) ||
            qobject_cast<const QMenuBar*>(widget))
            continue;
        const auto* button = qobject_cast<const QAbstractButton*>(widget);
        EXPECT_FALSE(widget->accessibleName().isEmpty() && (!button || button->text().isEmpty()))
            << widget->metaObject()->className() << " " << qPrintable(widget->objectName());
    }
}

TEST_F(MainWindow, TabReachesEveryControl) {
    addRecording(u"One"_s);
    world.open();
    showAll();
    clickRow(0);
    world.outlet("btnSatrtRecord_").setFocus();
    QSet<QString> reached;
    for (int i = 0; i < 40; ++i) {
        if (const QWidget* focus = QApplication::focusWidget())
            reached.insert(focus->objectName());
        key(Qt::Key_Tab);
    }
    for (const QString& name :
         {u"btnSatrtRecord_"_s, u"btnPlayAudio_"_s, u"btnBuiltInRecord_"_s, u"popBuiltInDevice_"_s,
          u"btnComputerAudioRecord_"_s, u"btnRecordPrograms_"_s, u"outlineLibraryView_"_s, u"audioTableView_"_s,
          u"btnShow_"_s, u"btnOpen_"_s, u"btnDelete_"_s})
        EXPECT_TRUE(reached.contains(name)) << qPrintable(name);
}

TEST_F(MainWindow, RecordsTheChosenDevice) {
    world.hardware.list.push_back({30, u"USB Headset"_s, u"usb"_s});
    world.open();
    auto& devices = world.outlet<QComboBox>("popBuiltInDevice_");
    ASSERT_EQ(devices.count(), 2);
    devices.setFocus();
    key(Qt::Key_Down);
    EXPECT_EQ(world.record->selectedDevice(), 1);
    EXPECT_NE(world.hardware.unitOf(30), nullptr);
}

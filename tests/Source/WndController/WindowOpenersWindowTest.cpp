// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/EditWindows.h"
#include "tests/Source/WndController/WindowWorld.h"
#include "tests/fakes/FakePanels.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMenu>
#include <QTableView>
#include <QTimer>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The main window with the ringtone maker and the short-recording filter behind its commands, connected as in the
/// program: a library of two recordings and a ringtone.
class WindowOpeners : public testing::Test {
protected:
    using Window = WindowCommands::Window;

    WindowOpeners() {
        for (const QString& title : {u"One"_s, u"Two"_s}) {
            const Dictionary entry = world.made(title, 3);
            world.sounds.lengths.insert(entry.value(AudioRecordEntry::SavePath).toString(), 3);
            world.library->addRecordFile(entry);
        }
        world.library->addRingtoneFile(world.made(u"Ringtone"_s, 20, u"m4r"_s));
        world.open();
        world.controller->bindWindows();
        show(u"all-record"_s);
    }
    void show(const QString& node) {
        world.selectNode(node);
        table().clearSelection();
        QCoreApplication::processEvents();
    }
    [[nodiscard]] QTableView& table() const { return world.outlet<QTableView>("audioTableView_"); }
    void select(const QList<int>& rows) {
        table().clearSelection();
        for (const int row : rows)
            table().selectionModel()->select(table().model()->index(row, 0),
                                             QItemSelectionModel::Select | QItemSelectionModel::Rows);
        QCoreApplication::processEvents();
    }
    /// "menu bar strip context": whether each of the three offers the command; the last is "-" where it has no item.
    [[nodiscard]] QString offered(Window window, const char* button) const {
        MainWndController& controller = *world.controller;
        controller.menus().update();
        const QAction& action = *controller.menus().window(window);
        QMenu& context = *controller.menus().audioTableViewMenu();
        controller.menuWillOpen(context);
        QString inContext = u"-"_s;
        for (const QAction* item : context.actions())
            if (item->text() == action.text())
                inContext = item->isEnabled() && item->isVisible() ? u"yes"_s : u"no"_s;
        const auto word = [](bool yes) { return yes ? u"yes"_s : u"no"_s; };
        return u"%1 %2 %3"_s.arg(word(action.isEnabled()), word(world.outlet(button).isEnabled()), inContext);
    }
    [[nodiscard]] QString ringtone() const { return offered(Window::RingtoneMaker, "btnRingtone_"); }
    [[nodiscard]] QString filter() const { return offered(Window::Filter, "btnFilter_"); }
    /// Calls @p open, closes the modal window that opens with Escape, and returns its title.
    [[nodiscard]] QString modalWindowAfter(const std::function<void()>& open) const {
        QMainWindow& window = *world.controller->window();
        window.activateWindow(); // only the active window takes shortcuts
        EXPECT_TRUE(waitFor([&] { return window.isActiveWindow(); }));
        QString title;
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, &look, [&] {
            QWidget* const modal = QApplication::activeModalWidget();
            if (!modal || !title.isEmpty())
                return;
            title = modal->windowTitle();
            QTest::keyClick(modal, Qt::Key_Escape);
        });
        look.start(1);
        open();
        return title;
    }

    WindowWorld world;
};

TEST_F(WindowOpeners, TheRingtoneMakerIsOfferedForOneRecording) {
    EXPECT_EQ(ringtone(), u"no no no"_s) << "nothing is selected";
    select({0});
    EXPECT_EQ(ringtone(), u"yes yes yes"_s);
    select({0, 1});
    EXPECT_EQ(ringtone(), u"no no no"_s) << "two recordings";
    show(u"all-ringtone"_s);
    select({0});
    ASSERT_EQ(world.controller->library().tableViewSelectionAudioArray().size(), 1);
    EXPECT_EQ(ringtone(), u"no no no"_s) << "a ringtone";
    show(u"all-record"_s);
    select({0});
    EXPECT_EQ(ringtone(), u"yes yes yes"_s);
    world.click("btnSatrtRecord_");
    EXPECT_EQ(ringtone(), u"no no no"_s) << "while something records";
    world.click("btnSatrtRecord_");
    ASSERT_TRUE(waitFor([&] { return !world.controller->isStateAudioRecord(); }));
    select({0});
    EXPECT_EQ(ringtone(), u"yes yes yes"_s);
}

TEST_F(WindowOpeners, TheFilterIsOfferedForAListThatIsNotEmpty) {
    EXPECT_EQ(filter(), u"yes yes -"_s) << "whatever is selected";
    select({0, 1});
    EXPECT_EQ(filter(), u"yes yes -"_s);
    show(u"all-ringtone"_s);
    EXPECT_EQ(filter(), u"yes yes -"_s);
    select({0});
    world.alerts.answers = {1};
    world.controller->deleteAudioFile();
    ASSERT_TRUE(world.library->ringtones().isEmpty());
    EXPECT_EQ(filter(), u"no no -"_s) << "an empty list";
}

TEST_F(WindowOpeners, TheCommandsOpenTheirWindows) {
    select({1});
    const QString title =
        world.controller->library().tableViewSelectionAudio().value(AudioRecordEntry::Title).toString();
    QWindow* const window = world.controller->window()->windowHandle();
    EXPECT_EQ(modalWindowAfter([&] { QTest::keyClick(window, Qt::Key_M, Qt::ControlModifier); }),
              u"Ringtone from “%1”"_s.arg(title));
    EXPECT_EQ(modalWindowAfter([&] { world.click("btnRingtone_"); }), u"Ringtone from “%1”"_s.arg(title));
    const QString filterTitle = u"Short Recordings"_s;
    EXPECT_EQ(modalWindowAfter([&] { QTest::keyClick(window, Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier); }),
              filterTitle);
    EXPECT_EQ(modalWindowAfter([&] { world.click("btnFilter_"); }), filterTitle);
    EXPECT_FALSE(QApplication::activeModalWidget());
}

TEST_F(WindowOpeners, SplittingIsOfferedForOneRecordingAndJoiningForSeveral) {
    const EditWindows edits(*world.controller);
    const auto states = [this](Window window) {
        world.controller->menus().update();
        QMenu& context = *world.controller->menus().audioTableViewMenu();
        world.controller->menuWillOpen(context);
        const QAction& action = *world.controller->menus().window(window);
        int inContext = 0;
        for (const QAction* item : context.actions())
            inContext += item->text() == action.text() && item->isEnabled() && item->isVisible() ? 1 : 0;
        return u"%1 %2"_s.arg(action.isEnabled() ? 1 : 0).arg(inContext);
    };
    EXPECT_EQ(states(Window::Split), u"0 0"_s) << "nothing is selected";
    EXPECT_EQ(states(Window::Join), u"0 0"_s);
    select({0});
    EXPECT_EQ(states(Window::Split), u"1 1"_s);
    EXPECT_EQ(states(Window::Join), u"0 0"_s);
    select({0, 1});
    EXPECT_EQ(states(Window::Split), u"0 0"_s);
    EXPECT_EQ(states(Window::Join), u"1 1"_s);
    world.click("btnSatrtRecord_");
    EXPECT_EQ(states(Window::Join), u"0 0"_s) << "while something records";
    world.click("btnSatrtRecord_");
    ASSERT_TRUE(waitFor([&] { return !world.controller->isStateAudioRecord(); }));
    show(u"all-ringtone"_s);
    select({0});
    EXPECT_EQ(states(Window::Split), u"0 0"_s) << "a ringtone";
}

TEST_F(WindowOpeners, TheKeysSplitAndJoin) {
    const EditWindows edits(*world.controller);
    FakePanels panels; // Cancel
    Platform::services().panels = &panels;
    QWindow* const window = world.controller->window()->windowHandle();
    select({1});
    EXPECT_EQ(modalWindowAfter([&] { QTest::keyClick(window, Qt::Key_T, Qt::ControlModifier | Qt::ShiftModifier); }),
              u"Split at Silences"_s);
    select({1, 0});
    const QString first = world.controller->library()
                              .tableViewSelectionAudioArray()
                              .value(0)
                              .toMap()
                              .value(AudioRecordEntry::SavePath)
                              .toString();
    world.controller->window()->activateWindow();
    ASSERT_TRUE(waitFor([&] { return world.controller->window()->isActiveWindow(); }));
    QTest::keyClick(window, Qt::Key_J, Qt::ControlModifier);
    EXPECT_TRUE(world.alerts.shown.isEmpty());
    EXPECT_EQ(panels.prompts, QStringList{u"Join"_s});
    EXPECT_EQ(panels.startFolders, QStringList{QString(first).replace(u".m4a"_s, u" joined.m4a"_s)})
        << "it is named after the first one of the list";
    Platform::services().panels = nullptr;
}

} // namespace

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/ProgramsMenu.h"

#include "CaptureComputerAudio/CaptureComputerAudio.h"
#include "tests/Source/WndController/MainWndPictures.h"
#include "tests/fakes/FakeIORegistry.h"

#include <QMenu>
#include <QMenuBar>
#include <QScopeGuard>
#include <QTimer>
#include <QToolButton>

#include <functional>

using Mode = RecordPrograms::Mode;

namespace {

class MenuOfPrograms : public Pictures {
protected:
    MenuOfPrograms() {
        Platform::services().ioRegistry = &registry;
        const auto engine = registry.add(CaptureComputerAudio::kEngineClass, u"IOService:/VIRTUAL/driver/korvane@1"_s);
        registry.entries[engine].properties[u"korvane.engine.programs"_s] = u"true"_s;
        registry.onSet = [this](auto object, const QString& key, const QVariant& value) {
            if (key == CaptureComputerAudio::kCaptureDriverProgramsKey)
                registry.entries[object].properties[CaptureComputerAudio::kCaptureDriverProgramsAppliedKey] = value;
        };
        PreferenceStore::setPreferenceValue(false, PreferenceStore::ChooseRecordBuiltIn);
        PreferenceStore::setPreferenceValue(true, PreferenceStore::ChooseRecordComputerAudio);
        world.hardware.programs = {program(u"firefox"_s, u"Firefox"_s), program(u"vlc"_s, u"Tom & Jerry"_s)};
    }
    ~MenuOfPrograms() override { Platform::services().ioRegistry = nullptr; } // the world outlives it
    static Platform::PlayingProgram program(const QString& id, const QString& name, bool playing = true) {
        return {.id = id, .name = name, .iconName = {}, .parts = {id, name}, .isPlaying = playing};
    }
    QToolButton& button() { return world.outlet<QToolButton>("btnRecordPrograms_"); }
    /// Opens the menu with the keyboard and does the steps while it is open: it runs an event loop of its own.
    void inMenu(const std::function<void(QMenu&)>& steps, Qt::Key opens = Qt::Key_Space) {
        QMenu& menu = *button().menu();
        bool done = false;
        QTimer::singleShot(0, &menu, [&] {
            const auto closed = qScopeGuard([&] { menu.hide(); });
            ASSERT_TRUE(waitFor([&] { return menu.isVisible(); }, 5000));
            steps(menu);
            done = true;
        });
        button().setFocus();
        QTest::keyClick(&button(), opens);
        ASSERT_TRUE(done);
    }
    static void key(QWidget& widget, Qt::Key key) { QTest::keyClick(&widget, key); }
    /// Moves the pointer onto an entry.
    static QPoint point(QMenu& menu, QAction& action) {
        const QPoint place = menu.actionGeometry(&action).center();
        // A menu ignores a pointer that has hardly moved since it was opened. When it knows no earlier place of the
        // pointer, it counts its steps.
        for (int step = 8; step >= 0; --step)
            QTest::mouseMove(menu.windowHandle(), place - QPoint(2 * step, 0));
        return place;
    }
    static void click(QMenu& menu, QAction& action) {
        QTest::mouseClick(menu.windowHandle(), Qt::LeftButton, {}, point(menu, action));
    }
    static QStringList texts(const QMenu& menu) {
        QStringList list;
        for (const QAction* action : menu.actions())
            list << (action->isSeparator() ? u"-"_s : action->text() + (action->isChecked() ? u"*"_s : QString()));
        return list;
    }
    [[nodiscard]] const RecordPrograms& programs() const { return world.record->recordPrograms(); }

    FakeIORegistry registry;
};

} // namespace

TEST_F(MenuOfPrograms, IsSetToEverythingUntilTheUserChooses) {
    world.open();
    EXPECT_TRUE(button().isEnabled());
    EXPECT_EQ(button().text(), u"Everything"_s);
    EXPECT_EQ(button().accessibleName(), u"Programs to record: Everything"_s);
    EXPECT_EQ(programs().mode, Mode::Everything);
    EXPECT_FALSE(world.defaults.objectForKey(PreferenceStore::ChooseRecordPrograms).isValid());
}

TEST_F(MenuOfPrograms, IsUsedWithTheKeyboardAlone) {
    world.open();
    world.record->watchPrograms();
    inMenu([&](QMenu& menu) {
        EXPECT_EQ(texts(menu), (QStringList{u"&Everything*"_s, u"-"_s, u"&Only"_s, u"Everything &but"_s}));
        key(menu, Qt::Key_O);
        QMenu* only = menu.actions().at(2)->menu();
        ASSERT_TRUE(waitFor([&] { return only->isVisible(); }));
        EXPECT_EQ(texts(*only), (QStringList{u"Firefox"_s, u"Tom && Jerry"_s}));
        for (const QAction* action : only->actions())
            EXPECT_FALSE(action->icon().isNull()) << qPrintable(action->text());
        while (only->activeAction() != only->actions().at(1))
            key(*only, Qt::Key_Down);
        key(*only, Qt::Key_Return);
    });
    EXPECT_EQ(programs().mode, Mode::Only);
    ASSERT_EQ(programs().programs.size(), 1);
    EXPECT_EQ(programs().programs.first().id, u"vlc"_s);
    EXPECT_EQ(registry.entries.begin()->second.properties[CaptureComputerAudio::kCaptureDriverProgramsKey],
              u"only:vlc"_s);
    EXPECT_EQ(button().accessibleName(), u"Programs to record: Only Tom & Jerry"_s);
    EXPECT_FALSE(button().icon().isNull());
    EXPECT_TRUE(button().toolTip().contains(u"Only Tom & Jerry"_s));
}

TEST_F(MenuOfPrograms, IsUsedWithTheMouse) {
    world.open();
    world.record->watchPrograms();
    // A second program joins the list; without its last program the choice is everything again.
    for (const auto& [row, wanted] : {std::pair{0, u"Everything but Firefox"_s},
                                      {1, u"Everything but Firefox and Tom & Jerry"_s},
                                      {0, u"Everything but Tom & Jerry"_s},
                                      {1, u"Everything"_s}}) {
        inMenu([row = row](QMenu& menu) {
            QAction* action = menu.actions().at(3);
            QMenu* list = action->menu();
            // A click on an entry whose list has just been opened by the pointer may close it again.
            point(menu, *action);
            ASSERT_TRUE(waitFor([&] { return list->isVisible(); }, 5000));
            click(*list, *list->actions().at(row));
        });
        EXPECT_EQ(programs().title(), wanted);
    }
}

TEST_F(MenuOfPrograms, ListsProgramsThatPlayedLatelyBelowThoseThatPlay) {
    world.open();
    world.record->watchPrograms();
    world.hardware.setPrograms({program(u"vlc"_s, u"VLC"_s), program(u"game"_s, u"Game"_s, false)});
    inMenu([](QMenu& menu) {
        EXPECT_EQ(texts(*menu.actions().at(2)->menu()), (QStringList{u"VLC"_s, u"-"_s, u"Game"_s, u"Firefox"_s}));
    });
    RecordPrograms choice = programs();
    choice.mode = Mode::Only;
    choice.programs = {{u"mpv"_s, u"mpv"_s}};
    world.record->chooseRecordPrograms(choice);
    world.hardware.setPrograms({});
    inMenu([](QMenu& menu) {
        EXPECT_EQ(texts(*menu.actions().at(2)->menu()), (QStringList{u"mpv*"_s, u"Game"_s, u"VLC"_s, u"Firefox"_s}));
    });
    const auto stored = RecordPrograms::fromStored(world.defaults.objectForKey(PreferenceStore::ChooseRecordPrograms));
    EXPECT_EQ(stored.recent.size(), 3) << "the next start lists them, too";
}

TEST_F(MenuOfPrograms, SaysThatNoProgramHasPlayed) {
    world.hardware.programs.clear();
    world.open();
    const auto steps = [this](QMenu& menu) {
        const QMenu* only = menu.actions().at(2)->menu();
        EXPECT_EQ(texts(*only), QStringList{u"No program has played yet"_s});
        EXPECT_FALSE(only->actions().first()->isEnabled());
        // The first answer of the server arrives while the menu is open.
        world.hardware.setPrograms({program(u"vlc"_s, u"VLC"_s)});
        EXPECT_EQ(texts(*only), QStringList{u"VLC"_s});
    };
    inMenu(steps, Qt::Key_Return);
}

TEST_F(MenuOfPrograms, RestsWhileSomethingIsRecordedAndTheDisplaySaysWhatIsWaitedFor) {
    world.open();
    world.record->chooseRecordPrograms(RecordPrograms::named(Mode::Only, {u"Musicplayer"_s}));
    world.click("btnSatrtRecord_");
    EXPECT_FALSE(button().isEnabled());
    EXPECT_TRUE(button().toolTip().contains(u"until the recording ends"_s));
    tick();
    EXPECT_EQ(world.controller->display().hint(), u"Waiting for Musicplayer"_s);
    world.hardware.setPrograms({program(u"musicplayer"_s, u"Musicplayer"_s)});
    EXPECT_EQ(world.controller->display().hint(), u"Waiting for the first sound of computer audio"_s);
    world.click("btnSatrtRecord_");
    EXPECT_TRUE(button().isEnabled());
}

TEST_F(MenuOfPrograms, RestsWithoutTheComputerAudioDevice) {
    std::erase_if(world.hardware.list, [](const auto& each) { return each.id == WindowWorld::kComputer; });
    world.open();
    EXPECT_FALSE(button().isEnabled());
    EXPECT_TRUE(button().toolTip().contains(u"not installed."_s));
}

TEST_F(MenuOfPrograms, IsInTheMenuBarToo) {
    world.open();
    world.record->watchPrograms();
    QMenu* record = world.outlet<QMenuBar>("mainMenu_").actions().first()->menu();
    QAction* entry = button().menu()->menuAction();
    ASSERT_TRUE(record->actions().contains(entry));
    record->popup(world.controller->window()->mapToGlobal(QPoint(0, 20)));
    ASSERT_TRUE(waitFor([&] { return record->isVisible(); }));
    key(*record, Qt::Key_R);
    ASSERT_TRUE(waitFor([&] { return button().menu()->isVisible(); }));
    key(*button().menu(), Qt::Key_B);
    QMenu* allBut = button().menu()->actions().at(3)->menu();
    ASSERT_TRUE(waitFor([&] { return allBut->isVisible(); }));
    while (allBut->activeAction() != allBut->actions().at(0))
        key(*allBut, Qt::Key_Down);
    key(*allBut, Qt::Key_Return);
    EXPECT_EQ(programs().title(), u"Everything but Firefox"_s);
    EXPECT_TRUE(entry->isEnabled());
    world.click("btnSatrtRecord_");
    EXPECT_FALSE(entry->isEnabled());
    world.click("btnSatrtRecord_");
}

TEST_F(MenuOfPrograms, IsReachedByTab) {
    world.open();
    world.outlet("btnComputerAudioRecord_").setFocus();
    QTest::keyClick(world.controller->window()->windowHandle(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &button());
}

TEST_F(MenuOfPrograms, FitsTheSmallestWindow) {
    fill();
    world.open({720, 480});
    showAll(0);
    takeAll(u"programs-everything"_s);
    world.record->chooseRecordPrograms(
        RecordPrograms::named(Mode::AllBut, {u"Firefox"_s, u"A music player with a long name"_s}));
    QCoreApplication::processEvents();
    takeAll(u"programs-chosen"_s);
    world.hardware.programs.clear();
    world.record->chooseRecordPrograms(RecordPrograms::named(Mode::Only, {u"Firefox"_s}));
    world.click("btnSatrtRecord_");
    tick();
    takeAll(u"programs-waiting"_s);
}

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/TitleEdit.h"

#include "RingtoneMaker/CustomSound.h"
#include "Source/Control/FileTags.h"
#include "tests/Source/WndController/LibraryWindow.h"
#include "tests/support/Environment.h"
#include "tests/support/Mpeg4Files.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

/// The list of the window over recordings with real files.
class TitlesOfTheWindow : public LibraryWindow {
protected:
    void SetUp() override {
        for (const QString& title : {u"Charlie"_s, u"Bravo"_s, u"Alpha"_s}) {
            const QString path = pathOf(title);
            ASSERT_TRUE(Mpeg4Files::make(path));
            addEntry(LibraryWorld::entry(title, title, path, 3));
        }
        openWithAll();
    }
    [[nodiscard]] QString pathOf(const QString& title) const { return world.folder.filePath(title + u".m4a"_s); }
    [[nodiscard]] QLineEdit* editor() const { return table().findChild<QLineEdit*>(u"titleEditor"_s); }
    /// A second click. The editor opens when the time for a double click has passed.
    void clickAgain(int row) {
        clickRow(row);
        ASSERT_TRUE(waitFor([&] { return editor() && editor()->hasFocus(); }));
    }
    [[nodiscard]] static QString titleIn(const QString& path) {
        return FileTags::texts(path).value(AudioRecordEntry::Title).toString();
    }
    [[nodiscard]] bool isTitled(const QString& title) const {
        return titles().contains(title) && QFile::exists(pathOf(title)) && titleIn(pathOf(title)) == title;
    }

    EnvironmentScope data{"XDG_DATA_HOME", world.folder.filePath(u"data"_s).toUtf8()};
};

} // namespace

TEST_F(TitlesOfTheWindow, ASecondClickOpensTheTitleAndEnterWritesIt) {
    clickRow(1);
    clickRow(1);
    ASSERT_NO_FATAL_FAILURE(clickAgain(1));
    EXPECT_EQ(editor()->text(), u"Bravo"_s);
    EXPECT_EQ(editor()->selectedText(), u"Bravo"_s);
    type(u"New name"_s);
    key(Qt::Key_Return);
    ASSERT_TRUE(waitFor([&] { return isTitled(u"New name"_s); }));
    EXPECT_FALSE(QFile::exists(pathOf(u"Bravo"_s)));
    EXPECT_EQ(selectedTitles(), QStringList{u"New name"_s});
    EXPECT_EQ(status(), pathOf(u"New name"_s));
    EXPECT_EQ(world.controller->display().playSound(), nullptr) << "Enter wrote and did not play";
    EXPECT_EQ(Mpeg4Files::probe(pathOf(u"New name"_s)).value(u"title"_s), u"New name"_s)
        << "as another program reads it";
}

TEST_F(TitlesOfTheWindow, TheRowKeepsItsHighlightWhileItsTitleIsTypedOver) {
    clickRow(1);
    const auto ground = [&] {
        const QRect cell = table().visualRect(table().model()->index(1, AudioTableModel::Date));
        return table().viewport()->grab().toImage().pixelColor(cell.right() - 4, cell.top() + 3);
    };
    const QColor selected = ground();
    EXPECT_EQ(selected, table().palette().color(QPalette::Active, QPalette::Highlight));
    clickRow(1);
    ASSERT_NO_FATAL_FAILURE(clickAgain(1));
    EXPECT_EQ(ground(), selected);
}

TEST_F(TitlesOfTheWindow, AChangeOfTheRowLeavesWhatIsSelectedAndTyped) {
    clickRow(1);
    clickRow(1);
    ASSERT_NO_FATAL_FAILURE(clickAgain(1));
    auto& model = *table().model();
    Q_EMIT model.dataChanged(model.index(1, 0), model.index(1, model.columnCount() - 1));
    EXPECT_EQ(editor()->selectedText(), u"Bravo"_s);
    type(u"Typ"_s);
    Q_EMIT model.dataChanged(model.index(1, 0), model.index(1, model.columnCount() - 1));
    EXPECT_EQ(editor()->text(), u"Typ"_s);
    type(u"ed"_s);
    key(Qt::Key_Return);
    EXPECT_TRUE(waitFor([&] { return isTitled(u"Typed"_s); }));
}

TEST_F(TitlesOfTheWindow, EscapeLeavesTheTitle) {
    clickRow(1);
    clickRow(1);
    ASSERT_NO_FATAL_FAILURE(clickAgain(1));
    type(u"Other"_s);
    key(Qt::Key_Escape);
    EXPECT_TRUE(waitFor([&] { return !editor(); }));
    EXPECT_TRUE(table().hasFocus());
    EXPECT_EQ(titles(), (QStringList{u"Alpha"_s, u"Bravo"_s, u"Charlie"_s}));
    EXPECT_TRUE(QFile::exists(pathOf(u"Bravo"_s)));
}

TEST_F(TitlesOfTheWindow, LeavingTheFieldWritesWhatWasTyped) {
    clickRow(1);
    clickRow(1);
    ASSERT_NO_FATAL_FAILURE(clickAgain(1));
    type(u"Typed"_s);
    clickRow(2);
    EXPECT_TRUE(waitFor([&] { return isTitled(u"Typed"_s); }));
}

TEST_F(TitlesOfTheWindow, TabWritesAndStaysInTheRow) {
    clickRow(1);
    clickRow(1);
    ASSERT_NO_FATAL_FAILURE(clickAgain(1));
    type(u"Tabbed"_s);
    key(Qt::Key_Tab);
    EXPECT_TRUE(waitFor([&] { return isTitled(u"Tabbed"_s); }));
    EXPECT_TRUE(waitFor([&] { return !editor(); }));
    EXPECT_EQ(selectedTitles(), QStringList{u"Tabbed"_s});
}

TEST_F(TitlesOfTheWindow, ADoubleClickPlaysAndOpensNothing) {
    clickRow(1);
    clickRow(1);
    QTest::mouseDClick(handle(), Qt::LeftButton, {}, placeOf(1));
    QTest::qWait(QApplication::doubleClickInterval() + 100);
    EXPECT_EQ(editor(), nullptr);
    EXPECT_NE(world.controller->display().playSound(), nullptr);
}

TEST_F(TitlesOfTheWindow, ATitleThatNoFileCanHaveIsWrittenAndSaidSo) {
    clickRow(1);
    clickRow(1);
    ASSERT_NO_FATAL_FAILURE(clickAgain(1));
    editor()->clear();
    type(u"one/two"_s);
    key(Qt::Key_Return);
    ASSERT_TRUE(
        waitFor([&] { return titleIn(pathOf(u"Bravo"_s)) == u"one/two"_s && titles().contains(u"one/two"_s); }));
    EXPECT_TRUE(waitFor([&] { return status().contains(u"Bravo"_s) && status() != pathOf(u"Bravo"_s); }))
        << qPrintable(status());
}

TEST_F(TitlesOfTheWindow, ARecordingThatIsGoneCannotBeTypedOver) {
    ASSERT_TRUE(QFile::remove(pathOf(u"Bravo"_s)));
    const QModelIndex title = table().model()->index(1, AudioTableModel::Title);
    Q_EMIT world.workspace.fileSystemChanged(pathOf(u"Bravo"_s));
    ASSERT_TRUE(waitFor([&] { return title.data(AudioTableModel::MissingRole).toBool(); }));
    EXPECT_FALSE(title.flags().testFlag(Qt::ItemIsEditable));
    EXPECT_TRUE(title.siblingAtRow(0).flags().testFlag(Qt::ItemIsEditable));
}

TEST_F(TitlesOfTheWindow, APlayingRecordingPlaysOnUnderItsNewTitle) {
    clickRow(1);
    key(Qt::Key_Return);
    ASSERT_TRUE(library().isPlaySoundPlaying());
    clickRow(1);
    ASSERT_NO_FATAL_FAILURE(clickAgain(1));
    type(u"Renamed"_s);
    key(Qt::Key_Return);
    ASSERT_TRUE(waitFor([&] { return isTitled(u"Renamed"_s); }));
    EXPECT_TRUE(library().isPlaySoundPlaying());
    EXPECT_EQ(library().playingPath(), pathOf(u"Renamed"_s));
    EXPECT_EQ(world.controller->display().title(), u"Renamed"_s);
}

namespace {

/// A new recording whose title the window has opened.
class NewTitle : public TitlesOfTheWindow {
protected:
    void SetUp() override {
        ASSERT_NO_FATAL_FAILURE(TitlesOfTheWindow::SetUp());
        clickRow(1);
        const QString path = pathOf(u"Track0"_s);
        ASSERT_TRUE(Mpeg4Files::make(path));
        world.controller->updateRecordStateAction();
        const Dictionary entry = LibraryWorld::entry(u"Track0"_s, u"Track0"_s, path, 3);
        addEntry(entry);
        Q_EMIT world.record->recordingFinished(path, entry);
        ASSERT_TRUE(waitFor([&] { return editor() && editor()->hasFocus(); }));
        ASSERT_EQ(selectedTitles(), QStringList{u"Track0"_s});
    }
};

} // namespace

TEST_F(NewTitle, IsTypedOverAtOnce) {
    type(u"Choir 2"_s);
    EXPECT_EQ(editor()->text(), u"Choir 2"_s) << "a blank after the first letter belongs to it";
    key(Qt::Key_Return);
    EXPECT_TRUE(waitFor([&] { return isTitled(u"Choir 2"_s); }));
}

TEST_F(NewTitle, SpaceListensUntilSomethingIsTyped) {
    key(Qt::Key_Space);
    EXPECT_TRUE(library().isPlaySoundPlaying());
    key(Qt::Key_Space);
    EXPECT_FALSE(library().isPlaySoundPlaying());
    EXPECT_EQ(world.controller->display().title(), u"Track0"_s);
    EXPECT_EQ(editor()->text(), u"Track0"_s);
    type(u"A b"_s);
    EXPECT_EQ(editor()->text(), u"A b"_s);
}

TEST_F(NewTitle, DeleteAsksForTheRecordingUntilSomethingIsTyped) {
    world.alerts.answers = {1};
    key(Qt::Key_Delete);
    EXPECT_EQ(world.alerts.shown.size(), 1);
    EXPECT_FALSE(titles().contains(u"Track0"_s));
}

TEST_F(NewTitle, EnterWithoutTypingKeepsItAndPlaysNothing) {
    key(Qt::Key_Return);
    EXPECT_TRUE(waitFor([&] { return !editor(); }));
    EXPECT_EQ(world.controller->display().playSound(), nullptr);
    EXPECT_TRUE(titles().contains(u"Track0"_s));
}

TEST_F(NewTitle, TheKeysOfTheWindowStillWork) {
    key(Qt::Key_R, Qt::ControlModifier);
    EXPECT_TRUE(world.controller->isStateAudioRecord());
    key(Qt::Key_R, Qt::ControlModifier);
    EXPECT_FALSE(world.controller->isStateAudioRecord());
}

TEST_F(NewTitle, ADoubleClickOnItPlays) {
    const QPoint place = placeOf(table().currentIndex().row());
    QTest::mouseClick(handle(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(handle(), Qt::LeftButton, {}, place);
    EXPECT_TRUE(library().isPlaySoundPlaying());
    EXPECT_TRUE(waitFor([&] { return !editor(); }));
}

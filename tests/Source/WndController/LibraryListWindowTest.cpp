// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/LibrarySearch.h"
#include "Source/WndController/WindowLayout.h"
#include "tests/Source/WndController/LibraryWindow.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QSplitter>

using namespace Qt::StringLiterals;

namespace {

class ListOfTheWindow : public LibraryWindow {
protected:
    ListOfTheWindow() {
        for (const QString& title : {u"Delta"_s, u"Charlie"_s, u"Bravo"_s, u"Alpha"_s})
            addRecording(title, 100);
    }
    [[nodiscard]] QLineEdit& field() const { return world.outlet<QLineEdit>("searchField_"); }
    [[nodiscard]] QHeaderView& header() const { return *table().horizontalHeader(); }
    void search(const QString& text) {
        key(Qt::Key_F, Qt::ControlModifier);
        ASSERT_TRUE(field().hasFocus());
        type(text);
    }
};

} // namespace

TEST_F(ListOfTheWindow, TheLineBelowKeepsItsRoomWithoutAText) {
    openWithAll();
    EXPECT_EQ(status(), QString());
    const int height = table().height();
    clickRow(0);
    EXPECT_EQ(status(), world.folder.filePath(u"Alpha.m4a"_s));
    EXPECT_EQ(table().height(), height);
}

TEST_F(ListOfTheWindow, ADoubleClickOnTheLastRowHitsItTwice) {
    for (int i = 0; i < 40; ++i)
        addRecording(u"More %1"_s.arg(i));
    openWithAll();
    table().scrollToBottom();
    const int last = table().model()->rowCount() - 1;
    const QPoint place = placeOf(last);
    QTest::mouseClick(handle(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(handle(), Qt::LeftButton, {}, place);
    ASSERT_NE(world.controller->display().playSound(), nullptr);
    EXPECT_EQ(world.controller->display().title(), u"Delta"_s);
}

TEST_F(ListOfTheWindow, SeveralRowsSayHowManyAndHowLong) {
    openWithAll();
    clickRow(0);
    clickRow(2, Qt::ControlModifier);
    EXPECT_EQ(status(), u"2 selected, 00:03:20 together"_s);
    clickRow(3, Qt::ControlModifier);
    EXPECT_EQ(status(), u"3 selected, 00:05:00 together"_s);
    clickRow(1);
    EXPECT_EQ(status(), world.folder.filePath(u"Bravo.m4a"_s));
}

TEST_F(ListOfTheWindow, AfterADeletionTheNextRowIsSelected) {
    openWithAll();
    world.alerts.answers = {1, 1, 1, 1};
    clickRow(1);
    key(Qt::Key_Delete);
    EXPECT_EQ(selectedTitles(), QStringList{u"Charlie"_s});
    key(Qt::Key_End);
    key(Qt::Key_Delete);
    EXPECT_EQ(selectedTitles(), QStringList{u"Charlie"_s}) << "below the last one there is none";
    key(Qt::Key_Delete);
    EXPECT_EQ(selectedTitles(), QStringList{u"Alpha"_s});
    key(Qt::Key_Delete);
    EXPECT_EQ(selectedTitles(), QStringList());
    EXPECT_EQ(world.library->records().size(), 0);
}

TEST_F(ListOfTheWindow, AfterADeletionOfSeveralRowsTheOneBelowThemIsSelected) {
    openWithAll();
    world.alerts.answers = {1};
    clickRow(0);
    clickRow(2, Qt::ControlModifier);
    key(Qt::Key_Delete);
    EXPECT_EQ(selectedTitles(), QStringList{u"Delta"_s});
    EXPECT_EQ(titles(), (QStringList{u"Bravo"_s, u"Delta"_s}));
}

TEST_F(ListOfTheWindow, TheSortingIsRemembered) {
    openWithAll();
    table().sortByColumn(AudioTableModel::Title, Qt::DescendingOrder);
    EXPECT_EQ(titles().first(), u"Delta"_s);
    world.controller.reset();
    EXPECT_EQ(world.defaults.objectForKey(WindowLayout::kKey).toMap().value(u"sort"_s), u"title"_s);
    openWithAll();
    EXPECT_EQ(titles(), (QStringList{u"Delta"_s, u"Charlie"_s, u"Bravo"_s, u"Alpha"_s}));
    EXPECT_EQ(header().sortIndicatorSection(), AudioTableModel::Title);
    table().sortByColumn(-1, Qt::AscendingOrder);
    world.controller.reset();
    openWithAll();
    EXPECT_EQ(titles().first(), u"Alpha"_s) << "the newest first";
}

TEST_F(ListOfTheWindow, TheSearchFiltersTitleArtistAndAlbumAsOneTypes) {
    Dictionary entry = world.made(u"Echo"_s);
    entry.insert(AudioRecordEntry::Artist, u"The Alphabet"_s);
    addEntry(entry);
    entry = world.made(u"Foxtrot"_s);
    entry.insert(AudioRecordEntry::Album, u"Best of ALPHA"_s);
    addEntry(entry);
    openWithAll();
    search(u"alp"_s);
    EXPECT_EQ(titles(), (QStringList{u"Foxtrot"_s, u"Echo"_s, u"Alpha"_s}));
    type(u"hab"_s);
    EXPECT_EQ(titles(), QStringList{u"Echo"_s});
    type(u" ech"_s);
    EXPECT_EQ(titles(), QStringList{u"Echo"_s}) << "each word, wherever it is";
    key(Qt::Key_Escape);
    EXPECT_EQ(titles().size(), 6);
    EXPECT_EQ(field().text(), QString());
    EXPECT_TRUE(table().hasFocus());
}

TEST_F(ListOfTheWindow, TheArtistThatEveryRecordingBeginsWithIsNotFound) {
    openWithAll();
    search(u"art"_s);
    EXPECT_EQ(titles(), QStringList());
    EXPECT_FALSE(LibrarySearch::matches(LibraryWorld::entry(u"k"_s, u"One"_s, u"/x"_s), {u"album"_s}));
}

TEST_F(ListOfTheWindow, WhatTheSearchHidesIsNeitherSelectedNorDeleted) {
    openWithAll();
    clickRow(2);
    search(u"l"_s);
    EXPECT_EQ(titles(), (QStringList{u"Alpha"_s, u"Charlie"_s, u"Delta"_s}));
    EXPECT_EQ(selectedTitles(), QStringList{u"Charlie"_s}) << "the selection stays";
    type(u"t"_s);
    EXPECT_EQ(selectedTitles(), QStringList());
    key(Qt::Key_Backspace);
    key(Qt::Key_Down);
    EXPECT_EQ(selectedTitles(), QStringList{u"Alpha"_s});
    key(Qt::Key_A, Qt::ControlModifier);
    world.alerts.answers = {1};
    key(Qt::Key_Delete);
    EXPECT_EQ(world.library->records().size(), 1);
    EXPECT_EQ(titles(), QStringList());
    world.outlet<QLineEdit>("searchField_").clear();
    EXPECT_EQ(titles(), QStringList{u"Bravo"_s});
}

TEST_F(ListOfTheWindow, TheSearchFollowsTheLibraryAndTheNode) {
    openWithAll();
    search(u"ech"_s);
    EXPECT_EQ(titles(), QStringList());
    addRecording(u"Echo"_s);
    ASSERT_TRUE(waitFor([&] { return titles() == QStringList{u"Echo"_s}; }));
    world.selectNode(u"all-ringtone"_s);
    EXPECT_EQ(titles(), QStringList());
    world.selectNode(u"all-record"_s);
    EXPECT_EQ(titles(), QStringList{u"Echo"_s});
}

TEST_F(ListOfTheWindow, ALongListIsSearchedToo) {
    QVariantList many;
    for (int i = 0; i < 5000; ++i)
        many.append(LibraryWorld::entry(u"k%1"_s.arg(i), u"Take %1"_s.arg(i), u"/nowhere/%1.m4a"_s.arg(i)));
    world.library->setRecords(many);
    world.library->saveMediaLibraryList();
    openWithAll();
    ASSERT_EQ(table().model()->rowCount(), 5000);
    search(u"4321"_s);
    EXPECT_TRUE(waitFor([&] { return titles() == QStringList{u"Take 4321"_s}; }));
    key(Qt::Key_Escape);
    EXPECT_EQ(table().model()->rowCount(), 5000);
}

TEST_F(ListOfTheWindow, ANewRecordingIsShownAlthoughTheSearchHidesIt) {
    openWithAll();
    clickRow(0);
    search(u"alpha"_s);
    ASSERT_EQ(titles(), QStringList{u"Alpha"_s});
    world.click("btnSatrtRecord_");
    world.hardware.unitOf(WindowWorld::kMicrophone)->feedValue(0.5F, 512);
    world.click("btnSatrtRecord_");
    ASSERT_TRUE(waitFor([&] { return selectedTitles() == QStringList{u"Track0"_s}; }));
    EXPECT_EQ(field().text(), QString());
}

TEST_F(ListOfTheWindow, ControlShiftFFindsShortRecordings) {
    openWithAll();
    EXPECT_EQ(world.controller->menus().window(WindowCommands::Window::Filter)->shortcut(),
              QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_F));
}

TEST_F(ListOfTheWindow, InANarrowWindowTheTitlesHaveTheRoom) {
    openWithAll({900, 600});
    const auto widthOf = [&](int column) { return header().sectionSize(column); };
    QSplitter& splitter = world.outlet<QSplitter>("librarySplitter_");
    const auto wide = [&] { return splitter.sizes().value(0) == 216 && !header().isSectionHidden(2); };
    const auto narrow = [&] {
        return splitter.sizes().value(0) == 200 && header().isSectionHidden(AudioTableModel::Artist) &&
               header().isSectionHidden(AudioTableModel::Album);
    };
    EXPECT_TRUE(waitFor(wide)) << splitter.sizes().value(0);
    world.controller->window()->resize(720, 480);
    EXPECT_TRUE(waitFor(narrow)) << splitter.sizes().value(0);
    EXPECT_GE(widthOf(AudioTableModel::Title), 300);
    world.controller->window()->resize(900, 600);
    EXPECT_TRUE(waitFor(wide)) << "and they come back";
    EXPECT_EQ(widthOf(AudioTableModel::Artist), 100);
    world.controller->window()->resize(720, 480);
    ASSERT_TRUE(waitFor(narrow));
    auto& search = world.outlet<QLineEdit>("searchField_");
    search.setText(u"nothing like it"_s);
    ASSERT_TRUE(waitFor([&] { return table().model()->rowCount() == 0; }));
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents(); // a timer without a delay lays the columns out anew
    EXPECT_TRUE(narrow()) << "a search that finds nothing moves no column";
    search.clear();
    ASSERT_TRUE(waitFor([&] { return table().model()->rowCount() > 0; }));
    // A column with something in it stays.
    Dictionary entry = world.made(u"Echo"_s);
    entry.insert(AudioRecordEntry::Artist, u"Somebody"_s);
    addEntry(entry);
    EXPECT_TRUE(waitFor([&] { return !header().isSectionHidden(AudioTableModel::Artist); }));
    EXPECT_TRUE(header().isSectionHidden(AudioTableModel::Album));
}

TEST_F(ListOfTheWindow, ARecordingWithoutATitleShowsTheNameOfItsFileInGrey) {
    addEntry(LibraryWorld::entry(u"k"_s, u""_s, world.file(u"Interview.m4a"_s)));
    openWithAll();
    EXPECT_EQ(titleOf(0), u"Interview.m4a"_s);
    const QModelIndex title = table().model()->index(0, AudioTableModel::Title);
    EXPECT_EQ(title.data(Qt::ForegroundRole).value<QBrush>().color(),
              QGuiApplication::palette().color(QPalette::PlaceholderText));
    EXPECT_EQ(title.data(Qt::EditRole), u""_s);
    search(u"interv"_s);
    EXPECT_EQ(titles(), QStringList{u"Interview.m4a"_s});
}

TEST(EmptyListOfTheWindow, TheInvitationGoesWhenTheFirstRecordingStarts) {
    WindowWorld world;
    world.open();
    const auto picture = [&] { return world.outlet("audioTableView_").grab().toImage(); };
    const QImage before = picture();
    world.click("btnSatrtRecord_");
    EXPECT_NE(picture(), before);
    world.click("btnSatrtRecord_");
    EXPECT_TRUE(waitFor([&] { return world.record->jobsInQueue() == 0; }));
}

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/LibraryPresenter.h"

#include "FilterAudio/AudioFilterController.h"
#include "RingtoneMaker/CustomSound.h"
#include "Source/AudioWaveViewController/AudioWaveViewController.h"
#include "Source/View/MediaNodeListTableView.h"
#include "Source/WndController/AudioTableModel.h"
#include "Source/WndController/LibraryOutlineModel.h"
#include "tests/Source/WndController/LibraryWorld.h"
#include "tests/support/WaitFor.h"

#include <QIcon>
#include <QMetaProperty>
#include <QSignalSpy>
#include <QTreeView>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Presenter : public testing::Test {
protected:
    Presenter() {
        for (const QString& title : {u"One"_s, u"Two"_s, u"Three"_s}) {
            const Dictionary entry = world.made(title, 3);
            world.sounds.lengths.insert(pathOf(entry), 3);
            library.addRecordFile(entry);
        }
        presenter.updateDefaultListStyle();
        selectNode(u"all-record"_s);
    }
    static QString pathOf(const Dictionary& entry) { return entry.value(AudioRecordEntry::SavePath).toString(); }
    void selectNode(const QString& key) {
        outline.selectionModel()->setCurrentIndex(presenter.outlineModel().indexOfKey(key),
                                                  QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
    void select(std::initializer_list<int> rows) {
        table.clearSelection();
        for (const int row : rows)
            table.selectionModel()->select(table.model()->index(row, 0),
                                           QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
    [[nodiscard]] bool value(const char* key) const { return presenter.property(key).toBool(); }
    [[nodiscard]] QString iconOf(int row) const {
        return table.model()->index(row, AudioTableModel::State).data(Qt::DecorationRole).value<QIcon>().name();
    }
    [[nodiscard]] FakeSound& sound() const { return static_cast<FakeSound&>(*display.playSound()->sound()); }

    LibraryWorld world;
    MediaLibrary library;
    QTreeView outline;
    MediaNodeListTableView table;
    AudioWaveViewController display;
    AudioFilterController filter;
    bool recording = false;
    LibraryPresenter presenter{library, outline, table, display, filter, [this] { return recording; }};
};

} // namespace

TEST_F(Presenter, StartsWithTheGroupsOpenAndTheFirstNodeSelected) {
    presenter.updateDefaultListStyle();
    EXPECT_TRUE(outline.isExpanded(presenter.outlineModel().index(0, 0)));
    EXPECT_TRUE(outline.isExpanded(presenter.outlineModel().index(1, 0)));
    ASSERT_NE(presenter.libraryViewSelectedNode(), nullptr);
    EXPECT_EQ(presenter.libraryViewSelectedNode()->key(), u"new-record"_s);
    outline.clearSelection();
    EXPECT_EQ(presenter.libraryViewSelectedNode(), nullptr);
    EXPECT_EQ(table.model()->rowCount(), 0);
}

TEST_F(Presenter, ARebuiltLibraryIsShownWithTheDefaultSelection) {
    select({1});
    library.loadDefaultMediaLibrary();
    library.addRecordFile(world.made(u"Four"_s));
    ASSERT_NE(presenter.libraryViewSelectedNode(), nullptr);
    EXPECT_EQ(presenter.libraryViewSelectedNode()->key(), u"new-record"_s);
    EXPECT_TRUE(outline.isExpanded(presenter.outlineModel().index(1, 0)));
    selectNode(u"all-record"_s);
    EXPECT_EQ(table.model()->rowCount(), 4);
}

TEST_F(Presenter, EveryBindableKeyIsAPropertyWithAnnouncement) {
    const QMetaObject* meta = presenter.metaObject();
    for (const char* key :
         {"tableViewPlayEnable", "tableViewShowEnable", "tableViewDeleteEnable", "tableViewSelectionAudio",
          "tableViewSelectionAudioIsRingtone", "tableViewCanEditSelectionAudioRecord", "canFilterAudio",
          "isPlaySoundButtonEnable", "isPlaySoundPlaying"}) {
        const int index = meta->indexOfProperty(key);
        ASSERT_GE(index, 0) << key;
        EXPECT_TRUE(meta->property(index).hasNotifySignal()) << key;
    }
}

TEST_F(Presenter, TableViewPlayEnableNeedsOneRowAndNoRecording) {
    EXPECT_FALSE(value("tableViewPlayEnable"));
    select({1});
    EXPECT_TRUE(value("tableViewPlayEnable"));
    recording = true;
    EXPECT_FALSE(value("tableViewPlayEnable"));
    recording = false;
    select({0, 2});
    EXPECT_FALSE(value("tableViewPlayEnable"));
}

TEST_F(Presenter, TableViewShowEnableNeedsOneRowAlsoWhileRecording) {
    EXPECT_FALSE(value("tableViewShowEnable"));
    recording = true;
    select({1});
    EXPECT_TRUE(value("tableViewShowEnable"));
    select({0, 1});
    EXPECT_FALSE(value("tableViewShowEnable"));
}

TEST_F(Presenter, TableViewDeleteEnableNeedsAnyRow) {
    EXPECT_FALSE(value("tableViewDeleteEnable"));
    select({1});
    EXPECT_TRUE(value("tableViewDeleteEnable"));
    select({0, 1, 2});
    EXPECT_TRUE(value("tableViewDeleteEnable"));
}

TEST_F(Presenter, TableViewSelectionAudioIsTheSelectedEntryOrNothing) {
    EXPECT_TRUE(presenter.tableViewSelectionAudio().isEmpty());
    select({1});
    EXPECT_EQ(presenter.property("tableViewSelectionAudio").toMap().value(AudioRecordEntry::Title), u"Two"_s);
    EXPECT_EQ(presenter.tableViewSelectionAudioPath(), world.folder.filePath(u"Two.m4a"_s));
}

TEST_F(Presenter, TableViewSelectionAudioIsRingtoneDependsOnTheExtension) {
    select({1});
    EXPECT_FALSE(value("tableViewSelectionAudioIsRingtone"));
    library.addRingtoneFile(world.made(u"Ring"_s, 20, u"M4R"_s));
    selectNode(u"all-ringtone"_s);
    select({0});
    EXPECT_TRUE(value("tableViewSelectionAudioIsRingtone"));
}

TEST_F(Presenter, TableViewCanEditSelectionAudioRecordNeedsAPlayableRecording) {
    select({1});
    EXPECT_TRUE(value("tableViewCanEditSelectionAudioRecord"));
    recording = true;
    EXPECT_FALSE(value("tableViewCanEditSelectionAudioRecord"));
    recording = false;
    library.addRingtoneFile(world.made(u"Ring"_s, 20, u"m4r"_s));
    selectNode(u"all-ringtone"_s);
    select({0});
    EXPECT_TRUE(value("tableViewPlayEnable"));
    EXPECT_FALSE(value("tableViewCanEditSelectionAudioRecord"));
}

TEST_F(Presenter, CanFilterAudioNeedsRows) {
    EXPECT_TRUE(value("canFilterAudio"));
    QSignalSpy announced(&presenter, &LibraryPresenter::canFilterAudioChanged);
    selectNode(u"all-ringtone"_s);
    EXPECT_FALSE(value("canFilterAudio"));
    EXPECT_GE(announced.count(), 1) << "the outline's selection announces it";
}

TEST_F(Presenter, IsPlaySoundButtonEnableNeedsASoundWithLengthOrASelection) {
    EXPECT_FALSE(value("isPlaySoundButtonEnable"));
    select({0});
    EXPECT_TRUE(value("isPlaySoundButtonEnable"));
    recording = true;
    EXPECT_FALSE(value("isPlaySoundButtonEnable"));
    recording = false;
    presenter.playSoundFile(presenter.tableViewSelectionAudio());
    select({});
    EXPECT_TRUE(value("isPlaySoundButtonEnable")) << "the current sound can be played again";
    presenter.playSoundFile(LibraryWorld::entry(u"k"_s, u"gone"_s, u"/gone.m4a"_s));
    EXPECT_FALSE(value("isPlaySoundButtonEnable")) << "neither a sound nor a selection";
    select({0});
    EXPECT_TRUE(value("isPlaySoundButtonEnable")) << "a sound without length is not kept";
}

TEST_F(Presenter, AFinishedSoundIsReleasedAndPlayFollowsTheSelection) {
    select({1});
    presenter.playSoundButtonAction();
    select({0});
    presenter.playSoundButtonAction();
    EXPECT_EQ(display.title(), u"Two"_s) << "a sound that plays is paused, whatever is selected";
    presenter.playSoundButtonAction();
    sound().end();
    ASSERT_TRUE(waitFor([&] { return !display.playSound(); }));
    EXPECT_EQ(display.title(), QString());
    EXPECT_EQ(iconOf(1), QString());
    presenter.playSoundButtonAction();
    EXPECT_EQ(display.title(), u"Three"_s);
    EXPECT_EQ(iconOf(0), u"audio-playing-icon"_s);
}

TEST_F(Presenter, ASoundThatARecordingStoppedStays) {
    select({1});
    presenter.playSoundButtonAction();
    presenter.stopSoundPlaying();
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    ASSERT_TRUE(display.playSound());
    presenter.playSoundButtonAction();
    EXPECT_TRUE(value("isPlaySoundPlaying"));
    EXPECT_EQ(display.title(), u"Two"_s);
}

TEST_F(Presenter, AMissingOrBrokenFileIsReleased) {
    presenter.playSoundFile(LibraryWorld::entry(u"k"_s, u"gone"_s, u"/gone.m4a"_s));
    EXPECT_FALSE(display.playSound());
    select({0});
    presenter.playSoundButtonAction();
    EXPECT_EQ(display.title(), u"Three"_s);
    // Deleted by another owner, after playback was stopped.
    presenter.stopSoundPlaying();
    ASSERT_TRUE(QFile::remove(display.playSound()->path()));
    QSignalSpy problem(&presenter, &LibraryPresenter::problem);
    presenter.playSoundButtonAction();
    EXPECT_EQ(problem.count(), 1);
    EXPECT_FALSE(display.playSound());
    // Deleted by another program while it was paused.
    select({1});
    presenter.playSoundButtonAction();
    presenter.playSoundButtonAction();
    ASSERT_TRUE(display.playSound() && display.playSound()->isPause());
    ASSERT_TRUE(QFile::remove(display.playSound()->path()));
    select({2});
    presenter.playSoundButtonAction();
    EXPECT_EQ(problem.count(), 2);
    EXPECT_FALSE(display.playSound());
    presenter.playSoundButtonAction();
    EXPECT_TRUE(presenter.isPlaySoundPlaying()) << "Play follows the selection";
}

TEST_F(Presenter, ADeletedRecordingStops) {
    select({1});
    presenter.playSoundButtonAction();
    const auto playing = display.playSound();
    select({0});
    presenter.removeMediaLibraryArray(presenter.tableViewSelectionAudioArray());
    EXPECT_TRUE(playing->isPlaying()) << "another one was deleted";
    select({0});
    ASSERT_EQ(presenter.tableViewSelectionAudioPath(), playing->path());
    presenter.removeMediaLibraryArray(presenter.tableViewSelectionAudioArray());
    EXPECT_TRUE(playing->isStop());
    EXPECT_FALSE(display.playSound());
    EXPECT_FALSE(value("isPlaySoundPlaying"));
}

TEST_F(Presenter, IsPlaySoundPlayingFollowsTheSound) {
    EXPECT_FALSE(value("isPlaySoundPlaying"));
    select({0});
    presenter.playSoundButtonAction();
    EXPECT_TRUE(value("isPlaySoundPlaying"));
    presenter.playSoundButtonAction();
    EXPECT_FALSE(value("isPlaySoundPlaying"));
    EXPECT_TRUE(display.playSound()->isPause());
    presenter.playSoundButtonAction();
    EXPECT_TRUE(value("isPlaySoundPlaying"));
    sound().stop();
    EXPECT_FALSE(value("isPlaySoundPlaying")) << "it ended by itself";
    QSignalSpy announced(&presenter, &LibraryPresenter::isPlaySoundPlayingChanged);
    presenter.setProperty("isPlaySoundPlaying", true);
    EXPECT_FALSE(value("isPlaySoundPlaying")) << "setting it only announces it";
    EXPECT_EQ(announced.count(), 1);
}

TEST_F(Presenter, ATableSelectionAnnouncesTheSixKeysOfTheSelectionAndTheTwoOfPlaying) {
    QSignalSpy play(&presenter, &LibraryPresenter::tableViewPlayEnableChanged);
    QSignalSpy show(&presenter, &LibraryPresenter::tableViewShowEnableChanged);
    QSignalSpy remove(&presenter, &LibraryPresenter::tableViewDeleteEnableChanged);
    QSignalSpy audio(&presenter, &LibraryPresenter::tableViewSelectionAudioChanged);
    QSignalSpy ringtone(&presenter, &LibraryPresenter::tableViewSelectionAudioIsRingtoneChanged);
    QSignalSpy edit(&presenter, &LibraryPresenter::tableViewCanEditSelectionAudioRecordChanged);
    QSignalSpy enable(&presenter, &LibraryPresenter::isPlaySoundButtonEnableChanged);
    QSignalSpy playing(&presenter, &LibraryPresenter::isPlaySoundPlayingChanged);
    table.selectRow(1);
    for (QSignalSpy* spy : {&play, &show, &remove, &audio, &ringtone, &edit, &enable, &playing})
        EXPECT_EQ(spy->count(), 1) << spy->signal().constData();
}

TEST_F(Presenter, StartAndStopAnnounceTheTwoKeysThatRecordingChanges) {
    QSignalSpy play(&presenter, &LibraryPresenter::tableViewPlayEnableChanged);
    QSignalSpy show(&presenter, &LibraryPresenter::tableViewShowEnableChanged);
    QSignalSpy edit(&presenter, &LibraryPresenter::tableViewCanEditSelectionAudioRecordChanged);
    presenter.updateRecordStateAction();
    EXPECT_EQ(play.count(), 1);
    EXPECT_EQ(edit.count(), 1);
    EXPECT_EQ(show.count(), 0);
}

TEST_F(Presenter, TwoSelectedRowsCanBeDeletedButNeitherPlayedNorShown) {
    select({0, 2});
    EXPECT_FALSE(value("tableViewPlayEnable"));
    EXPECT_FALSE(value("tableViewShowEnable"));
    EXPECT_TRUE(value("tableViewDeleteEnable"));
    const QVariantList chosen = presenter.tableViewSelectionAudioArray();
    ASSERT_EQ(chosen.size(), 2);
    EXPECT_EQ(chosen[0].toMap().value(AudioRecordEntry::Title), u"Three"_s);
    EXPECT_EQ(chosen[1].toMap().value(AudioRecordEntry::Title), u"One"_s);
}

TEST_F(Presenter, WhileRecordingADoubleClickPlaysNothing) {
    select({0});
    recording = true;
    presenter.tableViewDoubleAction();
    EXPECT_EQ(display.playSound(), nullptr);
}

TEST_F(Presenter, ThePlayingRowHasTheIconWhateverIsSelected) {
    select({1});
    presenter.tableViewDoubleAction();
    EXPECT_EQ(display.title(), u"Two"_s);
    EXPECT_EQ(display.artist(), u"NO Artist"_s);
    EXPECT_FALSE(display.tabViewShowWave()) << "the play tab is shown";
    EXPECT_EQ(iconOf(1), u"audio-playing-icon"_s);
    EXPECT_EQ(iconOf(0), QString());
    select({0});
    EXPECT_EQ(iconOf(1), u"audio-playing-icon"_s);
    EXPECT_EQ(iconOf(0), QString());
    const auto first = display.playSound();
    presenter.tableViewDoubleAction();
    EXPECT_EQ(iconOf(0), u"audio-playing-icon"_s);
    EXPECT_EQ(iconOf(1), QString());
    EXPECT_TRUE(first->isStop()) << "one sound at a time";
}

TEST_F(Presenter, StoppingPlaybackIsAnnouncedLater) {
    select({1});
    presenter.tableViewDoubleAction();
    QSignalSpy announced(&presenter, &LibraryPresenter::isPlaySoundPlayingChanged);
    presenter.stopSoundPlaying();
    EXPECT_TRUE(display.playSound()->isStop());
    EXPECT_EQ(announced.count(), 0);
    EXPECT_TRUE(waitFor([&] { return announced.count() > 0; }));
}

TEST_F(Presenter, ReportsWhyAFileCannotBePlayed) {
    QSignalSpy problem(&presenter, &LibraryPresenter::problem);
    presenter.playSoundFile(LibraryWorld::entry(u"k"_s, u"gone"_s, u"/nowhere/gone.m4a"_s));
    ASSERT_EQ(problem.count(), 1);
    EXPECT_TRUE(problem.at(0).at(0).toString().contains(u"/nowhere/gone.m4a"_s));
}

TEST_F(Presenter, ReportsWhyASoundDoesNotStart) {
    QSignalSpy problem(&presenter, &LibraryPresenter::problem);
    world.sounds.playFails = true;
    select({1});
    presenter.playSoundButtonAction();
    ASSERT_EQ(problem.count(), 1);
    EXPECT_TRUE(problem.at(0).at(0).toString().contains(u"Two.m4a"_s));
    EXPECT_TRUE(problem.at(0).at(0).toString().contains(u"no sound server answers"_s));
    presenter.playSoundButtonAction();
    EXPECT_EQ(problem.count(), 2) << "also when it is tried again";
    sound().playFails = false;
    presenter.playSoundButtonAction();
    presenter.playSoundButtonAction();
    EXPECT_EQ(problem.count(), 2) << "neither playing nor pausing is a problem";
}

TEST_F(Presenter, DeletingAsksAndRemovesOnlyAfterRemove) {
    select({1});
    world.alerts.answers = {0};
    presenter.deleteAudioFile();
    ASSERT_EQ(world.alerts.shown.size(), 1);
    EXPECT_EQ(world.alerts.shown[0].title, u"Do you want to move these items to the trash?"_s);
    EXPECT_EQ(library.records().size(), 3);
    world.alerts.answers = {1};
    presenter.deleteAudioFile();
    EXPECT_EQ(library.records().size(), 2);
    EXPECT_FALSE(QFile::exists(world.folder.filePath(u"Two.m4a"_s)));
    EXPECT_TRUE(QFile::exists(world.folder.filePath(u"One.m4a"_s)));
    EXPECT_EQ(table.model()->rowCount(), 2);
}

TEST_F(Presenter, DeletingNothingAsksNothing) {
    select({});
    presenter.deleteAudioFile();
    EXPECT_TRUE(world.alerts.shown.isEmpty());
}

TEST_F(Presenter, ShowsTheFileAndOpensItInThePlayer) {
    select({1});
    presenter.revealInFinder();
    EXPECT_EQ(world.workspace.selected, QStringList{world.folder.filePath(u"Two.m4a"_s)});
    presenter.openIniTunes();
    ASSERT_EQ(world.workspace.opened.size(), 1);
    EXPECT_EQ(world.workspace.opened[0].first, world.folder.filePath(u"Two.m4a"_s));
    EXPECT_EQ(world.workspace.opened[0].second, u"iTunes"_s);
    world.workspace.answer = false;
    QSignalSpy problem(&presenter, &LibraryPresenter::problem);
    presenter.revealInFinder();
    presenter.openIniTunes();
    EXPECT_EQ(problem.count(), 2);
}

TEST_F(Presenter, AnEntryGetsItsIdentityOnceFromPathAndTime) {
    world.clock.setReferenceSeconds(12.5);
    const Dictionary made =
        LibraryPresenter::makeAudioLibraryDataByFile(u"/a.m4a"_s, {{AudioRecordEntry::Title, u"A"_s}});
    EXPECT_EQ(made.value(AudioRecordEntry::NodeDataKey), u"/a.m4a_12.500000"_s);
    EXPECT_EQ(made.value(AudioRecordEntry::SavePath), u"/a.m4a"_s);
    EXPECT_EQ(made.value(AudioRecordEntry::Title), u"A"_s);
    world.clock.advance(1);
    EXPECT_EQ(LibraryPresenter::makeAudioLibraryDataByFile(u"/b.m4a"_s, made).value(AudioRecordEntry::NodeDataKey),
              u"/a.m4a_12.500000"_s);
}

TEST_F(Presenter, FilesAreAddedToTheCollectionOfTheirExtension) {
    presenter.updateFile(u"/r.M4R"_s, {{AudioRecordEntry::Title, u"R"_s}});
    EXPECT_EQ(library.ringtones().size(), 1);
    presenter.updateFile(u"/s.m4a"_s, {{AudioRecordEntry::Title, u"S"_s}});
    EXPECT_EQ(library.records().size(), 4);
    presenter.addRingtoneFile(u"/t.m4r"_s, {});
    EXPECT_EQ(library.ringtones().size(), 2);
    Dictionary again = library.records().first().toMap();
    again.insert(AudioRecordEntry::Title, u"S2"_s);
    presenter.updateFile(u"/s.m4a"_s, again);
    EXPECT_EQ(library.records().size(), 4) << "the same identity is replaced";
    EXPECT_EQ(table.model()->index(0, AudioTableModel::Title).data().toString(), u"S2"_s);
}

TEST_F(Presenter, ANewEntryIsSelectedAlsoWhenAnotherNodeIsShown) {
    selectNode(u"all-ringtone"_s);
    presenter.addRecordFile(u"/n.m4a"_s, {{AudioRecordEntry::Title, u"N"_s}});
    EXPECT_TRUE(presenter.selectFile(u"/n.m4a"_s));
    EXPECT_EQ(presenter.libraryViewSelectedNode()->key(), u"all-record"_s);
    EXPECT_EQ(presenter.tableViewSelectionAudio().value(AudioRecordEntry::Title), u"N"_s);
    EXPECT_FALSE(presenter.selectFile(u"/unknown.m4a"_s));
}

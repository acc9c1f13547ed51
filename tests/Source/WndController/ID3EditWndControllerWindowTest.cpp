// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/ID3EditWndController.h"

#include "Platform/Media/BasicID3Change.h"
#include "RingtoneMaker/CustomSound.h"
#include "Source/Control/FileTags.h"
#include "Source/View/AcceptDragImageView.h"
#include "Source/WndController/EditWindows.h"
#include "Source/WndController/WaitWndController.h"
#include "tests/Source/WndController/EditWorld.h"
#include "tests/Source/WndController/WindowWorld.h"

#include <QApplication>
#include <QBuffer>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class TagWindow : public testing::Test {
protected:
    TagWindow() { tags.setDelegate(&world); }
    void open(const Dictionary& entry) {
        tags.setID3EditDataSource(entry);
        ToolControl::showWindowNib(tags);
    }
    [[nodiscard]] QLineEdit& field(const char* name) const {
        return *tags.window()->findChild<QLineEdit*>(QString::fromLatin1(name));
    }
    [[nodiscard]] AcceptDragImageView& well() const { return *tags.window()->findChild<AcceptDragImageView*>(); }
    void done() {
        tags.window()->findChild<QPushButton*>(u"btnDone_"_s)->click();
        ASSERT_TRUE(waitFor([&] { return !tags.isWindowVisible(); }, 60000));
    }
    [[nodiscard]] QString picture(const QColor& color) const {
        QImage image(40, 20, QImage::Format_RGB32);
        image.fill(color);
        EXPECT_TRUE(image.save(world.at(u"tmp/cover.png"_s)));
        return world.at(u"tmp/cover.png"_s);
    }
    static int count(const char* folder) {
        return int(QDir(QString::fromLatin1(folder)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size());
    }

    EditWorld world;
    ID3EditWndController tags;
};

} // namespace

TEST_F(TagWindow, ShowsTheEntry) {
    Dictionary entry = world.recording(u"One"_s, 1);
    entry.insert(AudioRecordEntry::Year, u"1984"_s);
    QImage image(10, 10, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray data;
    QBuffer buffer(&data);
    buffer.open(QIODevice::WriteOnly);
    ASSERT_TRUE(image.save(&buffer, "TIFF"));
    entry.insert(AudioRecordEntry::Artwork, data);
    open(entry);
    EXPECT_EQ(field("titleField_").text(), u"One"_s);
    EXPECT_EQ(field("artistField_").text(), u"NO Artist"_s);
    EXPECT_EQ(field("yearField_").text(), u"1984"_s);
    EXPECT_EQ(well().imgShow().pixelColor(5, 5), QColor(Qt::red));
    entry.remove(AudioRecordEntry::Artwork);
    tags.setID3EditDataSource(entry);
    EXPECT_TRUE(well().imgShow().isNull());
}

TEST_F(TagWindow, DoneWritesTheTagsRenamesTheFileAndUpdatesTheLibrary) {
    const Dictionary entry = world.recording(u"One"_s, 1);
    open(entry);
    field("titleField_").setText(u"Rain $(x) %1"_s);
    field("artistField_").setText(u"Ada"_s);
    field("yearField_").setText(u"19845"_s);
    ASSERT_TRUE(well().hasImageFile({picture(Qt::red)}));
    done();
    const QString path = world.at(u"Rain $(x) %1.m4a"_s);
    EXPECT_EQ(world.files(), QStringList{u"Rain $(x) %1.m4a"_s});
    ASSERT_EQ(world.updatedPaths, QStringList{path});
    const auto read = Platform::BasicID3Change::read(path);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->title, u"Rain $(x) %1"_s);
    EXPECT_EQ(read->artist, u"Ada"_s);
    EXPECT_EQ(read->year, 1984);
    EXPECT_EQ(QImage::fromData(read->artwork).size(), QSize(300, 300));
    EXPECT_EQ(world.updatedTags[0].value(AudioRecordEntry::SavePath), path);
    EXPECT_EQ(world.updatedTags[0].value(AudioRecordEntry::Year), 1984);
    EXPECT_FALSE(world.updatedTags[0].value(AudioRecordEntry::Artwork).toByteArray().isEmpty());
    EXPECT_TRUE(world.alerts.shown.isEmpty());
}

TEST_F(TagWindow, AnEmptyYearIsSavedAsNone) {
    open(world.recording(u"One"_s, 1));
    field("yearField_").setText(u"20"_s);
    done();
    EXPECT_EQ(world.updatedTags.value(0).value(AudioRecordEntry::Year), 0);
    EXPECT_EQ(world.files(), QStringList{u"One.m4a"_s});
}

TEST_F(TagWindow, ReportsWhyAFileKeptItsNameAndStillWritesTheTags) {
    const Dictionary entry = world.recording(u"One"_s, 1);
    ASSERT_TRUE(Mpeg4Files::write(world.at(u"Taken.m4a"_s), "another"));
    open(entry);
    field("titleField_").setText(u"Taken"_s);
    done();
    ASSERT_EQ(world.alerts.shown.size(), 1);
    EXPECT_EQ(world.alerts.shown[0].text,
              u"The file keeps its name “One.m4a”: there is already a file named “Taken.m4a” in its folder."_s);
    EXPECT_EQ(Platform::BasicID3Change::read(world.at(u"One.m4a"_s))->title, u"Taken"_s);
    EXPECT_EQ(Mpeg4Files::contentOf(world.at(u"Taken.m4a"_s)), "another");
    EXPECT_EQ(world.updatedPaths, QStringList{world.at(u"One.m4a"_s)});
    EXPECT_EQ(world.updatedTags[0].value(AudioRecordEntry::Title), u"Taken"_s);
}

TEST_F(TagWindow, CancelWritesNothing) {
    open(world.recording(u"One"_s, 1));
    const QByteArray before = Mpeg4Files::contentOf(world.at(u"One.m4a"_s));
    field("titleField_").setText(u"Two"_s);
    QTest::keyClick(tags.window(), Qt::Key_Escape);
    EXPECT_FALSE(tags.isWindowVisible());
    EXPECT_EQ(Mpeg4Files::contentOf(world.at(u"One.m4a"_s)), before);
    EXPECT_TRUE(world.updatedPaths.isEmpty());
}

TEST_F(TagWindow, ChoosesACoverByPanelAndWritesTheDefaultOneWhenItIsRemoved) {
    open(world.recording(u"One"_s, 1));
    world.panels.answer = picture(Qt::blue);
    tags.chooseImageForArtwork();
    EXPECT_EQ(world.panels.prompts, QStringList{u"Choose"_s});
    EXPECT_EQ(well().imgShow().pixelColor(150, 150), QColor(Qt::blue));
    done();
    EXPECT_FALSE(FileTags::artwork(world.at(u"One.m4a"_s)).isEmpty());
    open(world.updatedTags[0]);
    well().removeImage();
    done();
    EXPECT_EQ(Platform::BasicID3Change::read(world.at(u"One.m4a"_s))->artwork,
              Mpeg4Files::contentOf(QStringLiteral(SONAPHEX_SOURCE_DIR "/Resources/AudioArtwork.png")));
}

TEST_F(TagWindow, AHundredRecordingsInARowLeaveNothingBehind) {
    Dictionary entry = world.recording(u"Title"_s, 1);
    const auto once = [&](int number) {
        open(entry);
        field("titleField_").setText(u"Title %1"_s.arg(number));
        ASSERT_TRUE(well().hasImageFile({picture(QColor(number, 0, 0))}));
        done();
        entry = world.updatedTags.last();
    };
    for (int i = 0; i < 3; ++i)
        once(i);
    const int descriptors = count("/proc/self/fd");
    const int threads = count("/proc/self/task");
    const auto windows = QApplication::topLevelWidgets().size();
    const auto temporaries = QDir(g_strTmpPath).entryList(QDir::Files | QDir::Hidden).size();
    for (int i = 3; i < 100; ++i)
        once(i);
    EXPECT_EQ(count("/proc/self/fd"), descriptors);
    EXPECT_EQ(count("/proc/self/task"), threads);
    EXPECT_EQ(QApplication::topLevelWidgets().size(), windows);
    EXPECT_EQ(QDir(g_strTmpPath).entryList(QDir::Files | QDir::Hidden).size(), temporaries);
    EXPECT_EQ(world.files(), QStringList{u"Title 99.m4a"_s});
    EXPECT_TRUE(QDir(world.at(u"data/com.korvane.Sonaphex/Edits"_s))
                    .isEmpty(QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot));
}

TEST(EditWindowsOfTheMainWindow, FollowARenameWhileTheRecordingPlays) {
    WindowWorld world;
    const std::unique_ptr<Platform::MediaFiles> media = Platform::createMediaFiles();
    const EnvironmentScope data("XDG_DATA_HOME", world.folder.filePath(u"data"_s).toUtf8());
    const QString path = world.folder.filePath(u"One.m4a"_s);
    ASSERT_TRUE(Mpeg4Files::make(path, Mpeg4Files::Shape::IndexAtEnd, 2));
    world.sounds.lengths.insert(path, 100);
    world.library->addRecordFile(WindowWorld::entry(u"key"_s, u"One"_s, path, 100));
    MainWndController& main = world.open();
    const EditWindows edits(main);
    world.selectNode(u"all-record"_s);
    ASSERT_TRUE(main.library().selectFile(path));
    main.library().tableViewDoubleAction();
    ASSERT_TRUE(main.library().isPlaySoundPlaying());
    FakeSound* const sound = world.sounds.last;
    sound->calls.clear();

    EXPECT_TRUE(main.menus().window(WindowCommands::Window::ID3Edit)->isEnabled());
    EXPECT_TRUE(main.menus().window(WindowCommands::Window::AudioTrim)->isEnabled());
    QTimer::singleShot(0, &main, [] {
        QWidget* const window = QApplication::activeModalWidget();
        ASSERT_NE(window, nullptr);
        window->findChild<QLineEdit*>(u"titleField_"_s)->setText(u"Two"_s);
        window->findChild<QPushButton*>(u"btnDone_"_s)->click();
    });
    QTest::keyClick(main.window()->windowHandle(), Qt::Key_F2);
    const QString renamed = world.folder.filePath(u"Two.m4a"_s);
    EXPECT_TRUE(QFile::exists(renamed));
    EXPECT_TRUE(main.library().isPlaySoundPlaying()) << "the playback goes on";
    EXPECT_TRUE(sound->calls.isEmpty());
    EXPECT_EQ(main.library().playingPath(), renamed);
    EXPECT_EQ(main.display().title(), u"Two"_s);
    const Dictionary entry = world.library->records().value(0).toMap();
    EXPECT_EQ(entry.value(AudioRecordEntry::SavePath), renamed);
    EXPECT_EQ(entry.value(AudioRecordEntry::NodeDataKey), u"key"_s);
    EXPECT_FALSE(entry.contains(AudioRecordEntry::Artwork)) << "entries hold texts and numbers";
    const QModelIndex row = main.library().tableModel().index(0, AudioTableModel::Title);
    EXPECT_EQ(row.data().toString(), u"Two"_s);
    EXPECT_TRUE(waitFor([&] { return !row.data(AudioTableModel::MissingRole).toBool(); }));
}

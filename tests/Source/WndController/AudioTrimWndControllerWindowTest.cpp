// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/AudioTrimWndController.h"

#include "Platform/Media/BasicID3Change.h"
#include "RingtoneMaker/CustomSound.h"
#include "Source/View/ElidedLabel.h"
#include "Source/View/TabularLabel.h"
#include "Source/WndController/WaitWndController.h"
#include "tests/Source/WndController/EditWorld.h"

#include <QPushButton>
#include <QTimer>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class TrimWindow : public testing::Test {
protected:
    TrimWindow() { trim.setDelegate(&world); }
    void open(const Dictionary& entry, double seconds) {
        path = entry.value(AudioRecordEntry::SavePath).toString();
        world.sounds.lengths[path] = seconds;
        trim.setTrimAudioSourceData(entry);
        trim.window()->restoreSize();
        ToolControl::showWindowNib(trim);
        (void)QTest::qWaitForWindowExposed(trim.window(), 30000);
        bar().setFocus();
    }
    [[nodiscard]] AudioTrimEditView& bar() const { return *trim.window()->findChild<AudioTrimEditView*>(); }
    [[nodiscard]] QPushButton& button(const char* name) const {
        return *trim.window()->findChild<QPushButton*>(QString::fromLatin1(name));
    }
    [[nodiscard]] QString label(const char* name) const {
        return trim.window()->findChild<TabularLabel*>(QString::fromLatin1(name))->text();
    }
    void click(const char* name) {
        QTest::mouseClick(trim.window()->windowHandle(), Qt::LeftButton, {},
                          button(name).mapTo(trim.window(), button(name).rect().center()));
    }
    void key(Qt::Key code, Qt::KeyboardModifiers keys = {}) {
        QTest::keyClick(trim.window()->windowHandle(), code, keys);
    }
    [[nodiscard]] QString playImage() const { return button("btnPlay_").property("image").toString(); }
    [[nodiscard]] FakeSound& sound() { return *world.sounds.last; }
    void playTo(double seconds) {
        sound().time = seconds;
        trim.audioPlayTrimAudioUpdateTimer();
    }
    void waitForSheet() {
        ASSERT_TRUE(waitFor([&] { return !trim.waitWndController().isSheetUp(); }, 60000));
    }
    [[nodiscard]] double secondsOf(const QString& file) const {
        const auto info = world.media->info(file);
        return info ? info->seconds : -1;
    }

    EditWorld world;
    AudioTrimWndController trim;
    QString path;
};

} // namespace

TEST_F(TrimWindow, ShowsTheWholeRecording) {
    open(world.recording(u"One"_s, 3), 100);
    EXPECT_EQ(trim.window()->findChild<ElidedLabel*>()->text(), u"One.m4a"_s);
    EXPECT_EQ(label("lblPlayTime_"), u"00:00:00/00:01:40"_s);
    EXPECT_EQ(label("lblLeftTrimTime_"), u"00:00:00"_s);
    EXPECT_EQ(label("lblRightTrimTime_"), u"00:01:40"_s);
    EXPECT_EQ(label("lblTrimAudiolength_"), u"00:01:40"_s);
    EXPECT_EQ(playImage(), u"Play.png"_s);
    EXPECT_FALSE(button("btnSave_").isDefault()) << "Return must not save";
    EXPECT_TRUE(button("btnPreview_").isDefault());
    for (QWidget* each : trim.window()->findChildren<QWidget*>())
        if (each->focusPolicy() != Qt::NoFocus && !qobject_cast<QPushButton*>(each)) {
            EXPECT_FALSE(each->accessibleName().isEmpty()) << qPrintable(each->objectName());
        }
}

TEST_F(TrimWindow, ShowsTheTimesUnderTheirHandles) {
    open(world.recording(u"One"_s, 3), 100);
    const auto place = [this](const char* name) {
        auto* const found = trim.window()->findChild<TabularLabel*>(QString::fromLatin1(name));
        return QRect(found->mapTo(trim.window(), QPoint()), found->size());
    };
    const auto handle = [this](const QRectF& rect) { return bar().mapTo(trim.window(), rect.center().toPoint()).x(); };
    for (const QSize& size : {QSize(720, 320), QSize(560, 300), QSize(1200, 400)}) {
        trim.window()->resize(size);
        ASSERT_TRUE(waitFor([&] { return trim.window()->size() == size && bar().width() == size.width() - 32; }));
        for (const auto& [left, right] :
             {std::pair{0.0F, 1.0F}, {0.25F, 0.75F}, {0.4F, 0.45F}, {0.0F, 0.0F}, {1.0F, 1.0F}, {0.95F, 1.0F}}) {
            trim.setLeftTrim(0);
            trim.setRightTrim(right);
            trim.setLeftTrim(left);
            const QRect begin = place("lblLeftTrimTime_");
            const QRect length = place("lblTrimAudiolength_");
            const QRect end = place("lblRightTrimTime_");
            EXPECT_GE(begin.left(), 16);
            EXPECT_LT(begin.right(), length.left());
            EXPECT_LT(length.right(), end.left());
            EXPECT_LE(end.right(), size.width() - 16);
            EXPECT_GT(begin.top(), bar().mapTo(trim.window(), QPoint(0, bar().height() - 1)).y());
            if (left == 0.25F) { // enough room: each is centred under its handle
                EXPECT_NEAR(begin.center().x(), handle(bar().leftHandleRect()), 2);
                EXPECT_NEAR(end.center().x(), handle(bar().rightHandleRect()), 2);
                EXPECT_NEAR(length.center().x(), (begin.center().x() + end.center().x()) / 2, 2);
            }
        }
    }
}

TEST_F(TrimWindow, PlaysAndPausesByButtonAndSpace) {
    open(world.recording(u"One"_s, 3), 100);
    click("btnPlay_");
    EXPECT_TRUE(trim.audioPlayControl()->isPlaying());
    EXPECT_EQ(playImage(), u"Pause.png"_s);
    key(Qt::Key_Space);
    EXPECT_TRUE(trim.audioPlayControl()->isPause());
    EXPECT_EQ(playImage(), u"Play.png"_s);
    key(Qt::Key_Space);
    playTo(30);
    EXPECT_FLOAT_EQ(bar().playRate(), 0.3F);
    EXPECT_EQ(label("lblPlayTime_"), u"00:00:30/00:01:40"_s);
    playTo(99.95);
    EXPECT_TRUE(trim.audioPlayControl()->isStop()) << "a tenth of a second before its end the file counts as played";
    EXPECT_EQ(playImage(), u"Play.png"_s);
}

TEST_F(TrimWindow, SetsItsEndsToThePlayPosition) {
    open(world.recording(u"One"_s, 3), 100);
    playTo(20);
    click("btnLeftTrim_");
    playTo(60);
    key(Qt::Key_O);
    EXPECT_EQ(label("lblLeftTrimTime_"), u"00:00:20"_s);
    EXPECT_EQ(label("lblRightTrimTime_"), u"00:01:00"_s);
    EXPECT_EQ(label("lblTrimAudiolength_"), u"00:00:40"_s);
    playTo(30);
    key(Qt::Key_I);
    EXPECT_EQ(label("lblLeftTrimTime_"), u"00:00:30"_s);
    key(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(label("lblLeftTrimTime_"), u"00:00:31"_s);
}

TEST_F(TrimWindow, PreviewsTheRangeAndEndsAtItsRightEnd) {
    open(world.recording(u"One"_s, 3), 100);
    trim.setLeftTrim(0.25F);
    trim.setRightTrim(0.5F);
    key(Qt::Key_P);
    EXPECT_TRUE(trim.isPreview());
    EXPECT_EQ(sound().time, 25);
    EXPECT_TRUE(trim.audioPlayControl()->isPlaying());
    EXPECT_EQ(playImage(), u"Pause.png"_s);
    playTo(49.9);
    EXPECT_TRUE(trim.audioPlayControl()->isPlaying());
    playTo(50);
    EXPECT_FALSE(trim.isPreview());
    EXPECT_TRUE(trim.audioPlayControl()->isStop());
    EXPECT_EQ(playImage(), u"Play.png"_s);
}

TEST_F(TrimWindow, ChecksAgainExactlyAtTheEndOfAPreview) {
    open(world.recording(u"One"_s, 3), 100);
    trim.setLeftTrim(0.25F);
    trim.setRightTrim(0.5F);
    trim.previewEditAudio();
    playTo(49.99);     // 10 ms are left
    sound().time = 50; // the value it will have by then
    EXPECT_TRUE(waitFor([&] { return trim.audioPlayControl()->isStop(); }));
}

TEST_F(TrimWindow, SavesTheRangeInPlaceOfTheRecording) {
    Dictionary entry = world.recording(u"One"_s, 10);
    open(entry, 10);
    trim.setLeftTrim(0.2F);
    trim.setRightTrim(0.5F);
    trim.playAudio();
    click("btnSave_");
    ASSERT_EQ(world.alerts.shown.size(), 1);
    EXPECT_EQ(world.alerts.shown[0].title, u"Waring:"_s);
    EXPECT_EQ(world.alerts.shown[0].text, u"Do you want to replace \""_s + path + u"\" audio file."_s);
    EXPECT_EQ(world.alerts.shown[0].buttons, (QStringList{u"OK"_s, u"Cancel"_s}));
    waitForSheet();
    ASSERT_EQ(world.updatedPaths, QStringList{path});
    EXPECT_NEAR(world.updatedTags[0].value(AudioRecordEntry::Length).toDouble(), 3, 0.001);
    EXPECT_NEAR(secondsOf(path), 3, 0.02);
    EXPECT_EQ(Platform::BasicID3Change::read(path)->title, u"One"_s);
    EXPECT_EQ(world.files(), QStringList{u"One.m4a"_s});
    EXPECT_EQ(bar().leftTrimRate(), 0) << "the window shows what stands there now";
    EXPECT_EQ(bar().rightTrimRate(), 1);
    EXPECT_EQ(world.alerts.shown.size(), 1);
}

TEST_F(TrimWindow, AsksBeforeItReplacesAndAcceptsNo) {
    open(world.recording(u"One"_s, 3), 3);
    const QByteArray before = Mpeg4Files::contentOf(path);
    world.alerts.answers = {1};
    click("btnSave_");
    EXPECT_FALSE(trim.waitWndController().isSheetUp());
    EXPECT_EQ(Mpeg4Files::contentOf(path), before);
    EXPECT_TRUE(world.updatedPaths.isEmpty());
}

TEST_F(TrimWindow, SavesAsANewFileAndKeepsTheEntry) {
    Dictionary entry = world.recording(u"One"_s, 10);
    open(entry, 10);
    trim.setRightTrim(0.5F);
    world.panels.answer = world.at(u"Two.wav"_s);
    click("btnSaveAs_");
    waitForSheet();
    EXPECT_NEAR(secondsOf(world.at(u"Two.m4a"_s)), 5, 0.02);
    EXPECT_NEAR(secondsOf(path), 10, 0.05);
    ASSERT_EQ(world.updatedPaths, QStringList{path}) << "the path of the recording is reported, not the new one";
    EXPECT_EQ(world.updatedTags[0].value(AudioRecordEntry::Length), 10);
}

TEST_F(TrimWindow, NeverSavesAsAnExistingFile) {
    open(world.recording(u"One"_s, 3), 3);
    ASSERT_TRUE(Mpeg4Files::write(world.at(u"Two.m4a"_s), "another"));
    world.panels.answer = world.at(u"Two.mp3"_s);
    click("btnSaveAs_");
    ASSERT_EQ(world.alerts.shown.size(), 1);
    EXPECT_EQ(world.alerts.shown[0].title, u"Warning:"_s);
    EXPECT_EQ(world.alerts.shown[0].text, u"This path exists, please change the path or name."_s);
    EXPECT_EQ(world.alerts.shown[0].buttons, QStringList{u"OK"_s});
    EXPECT_FALSE(trim.waitWndController().isSheetUp());
    EXPECT_EQ(Mpeg4Files::contentOf(world.at(u"Two.m4a"_s)), "another");
    EXPECT_TRUE(world.updatedPaths.isEmpty());
}

TEST_F(TrimWindow, RefusesMissingPlayingAndGrowingFilesInOneLine) {
    open(world.recording(u"One"_s, 3), 3);
    world.playedElsewhere = path;
    click("btnSave_");
    world.playedElsewhere.clear();
    {
        QFile recorder(path);
        ASSERT_TRUE(recorder.open(QIODevice::ReadWrite));
        click("btnSave_");
    }
    ASSERT_TRUE(QFile::remove(path));
    click("btnSave_");
    ASSERT_EQ(world.alerts.shown.size(), 3);
    EXPECT_EQ(world.alerts.shown[0].text, u"The file is being played."_s);
    EXPECT_EQ(world.alerts.shown[1].text, u"The file “One.m4a” is still being recorded to."_s);
    EXPECT_EQ(world.alerts.shown[2].text, u"The file “One.m4a” is no longer there."_s);
    EXPECT_FALSE(trim.waitWndController().isSheetUp());
}

TEST_F(TrimWindow, AFailedConversionKeepsTheRecordingAndItsLength) {
    ASSERT_TRUE(Mpeg4Files::write(world.at(u"odd.m4a"_s), "no audio at all"));
    open(LibraryWorld::entry(u"k"_s, u"odd"_s, world.at(u"odd.m4a"_s), 10), 10);
    trim.setRightTrim(0.5F);
    click("btnSave_");
    waitForSheet();
    EXPECT_EQ(Mpeg4Files::contentOf(path), "no audio at all");
    ASSERT_EQ(world.updatedPaths, QStringList{path});
    EXPECT_EQ(world.updatedTags[0].value(AudioRecordEntry::Length), 10);
    ASSERT_EQ(world.alerts.shown.size(), 2);
    EXPECT_FALSE(world.alerts.shown[1].text.isEmpty());
}

TEST_F(TrimWindow, RefusesTooShortARange) {
    open(world.recording(u"One"_s, 3), 100);
    trim.setLeftTrim(0.5F);
    trim.setRightTrim(0.5F);
    EXPECT_FALSE(button("btnSave_").isEnabled());
    EXPECT_FALSE(button("btnSaveAs_").isEnabled());
    trim.setRightTrim(0.6F);
    EXPECT_TRUE(button("btnSave_").isEnabled());
}

TEST_F(TrimWindow, ShowsTheOutlineOfTheFile) {
    open(world.recording(u"One"_s, 3), 3);
    const QRect middle = bar().backStripRect().toRect().adjusted(10, 20, -10, -20);
    const auto shown = [&] { return bar().grab(middle).toImage(); };
    EXPECT_TRUE(waitFor([&] {
        const QImage image = shown();
        return image.pixel(image.width() / 2, image.height() / 2) != image.pixel(image.width() / 2, 0);
    }));
}

TEST_F(TrimWindow, ClosesWithEscapeAndRemembersItsSize) {
    const Dictionary entry = world.recording(u"One"_s, 3);
    world.sounds.lengths[entry.value(AudioRecordEntry::SavePath).toString()] = 3;
    trim.setTrimAudioSourceData(entry);
    QTimer::singleShot(0, &trim, [&] {
        trim.window()->resize(800, 340);
        key(Qt::Key_Escape);
    });
    trim.runModal();
    EXPECT_FALSE(trim.isWindowVisible());
    EXPECT_EQ(trim.audioPlayControl(), nullptr) << "the file is closed";
    trim.window()->restoreSize();
    EXPECT_EQ(trim.window()->size(), QSize(800, 340));
}

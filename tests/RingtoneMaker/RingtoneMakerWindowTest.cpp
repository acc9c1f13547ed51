// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RingtoneMaker/AudioPointerLineView.h"
#include "RingtoneMaker/AudioTimeField.h"
#include "RingtoneMaker/AudioWaveEditView.h"
#include "RingtoneMaker/AudioWaveTrimView.h"
#include "Source/Control/ConverterAudioControl.h"
#include "tests/RingtoneMaker/RingtoneWorld.h"
#include "tests/support/ScreenReader.h"

#include <QAccessible>
#include <QCheckBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolButton>
#include <ctime>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class RingtoneMaker : public testing::Test {
protected:
    [[nodiscard]] AudioWaveTrimView& selection() const { return world.outlet<AudioWaveTrimView>("audioWaveTrimView"); }
    [[nodiscard]] QScrollBar& bar() const {
        return *world.outlet<QScrollArea>("audioEditScrollView").horizontalScrollBar();
    }
    void select(float from, float to) const {
        selection().setAudioFrom(from * 10);
        selection().setAudioLength((to - from) * 10);
    }
    [[nodiscard]] FakeSound& sound() const { return *world.sounds.last; }
    [[nodiscard]] float volumeAt(double seconds) {
        sound().time = seconds;
        world.maker.audioPlayUpdateTimerFireMethod();
        return sound().gain;
    }
    RingtoneWorld world;
};

TEST_F(RingtoneMaker, OpensWithTheFirstFortySecondsOrTheWholeOfAShorterFile) {
    world.open(180);
    EXPECT_EQ(selection().audioFromTime(), 0);
    EXPECT_EQ(selection().audioToTime(), 40);
    world.open(25);
    EXPECT_EQ(selection().audioToTime(), 25);
    world.open(40);
    EXPECT_EQ(selection().audioToTime(), 40);
    world.open(3);
    EXPECT_EQ(selection().audioToTime(), 3);
    world.show();
    world.open(180);
    EXPECT_EQ(world.outlet("audioEditContainerView").width(), 1800);
    world.open(3);
    EXPECT_EQ(world.outlet("audioEditContainerView").width(),
              world.outlet<QScrollArea>("audioEditScrollView").viewport()->width());
    EXPECT_EQ(world.maker.window()->windowTitle(), u"Ringtone from “Track2”"_s);
}

TEST_F(RingtoneMaker, ShowsAnOutlineOfMoreThanTenValuesOnly) {
    auto& wave = world.outlet<AudioWaveEditView>("audioWaveEditView");
    world.open(1.05);
    ASSERT_TRUE(world.outlineDone());
    EXPECT_FALSE(wave.viewContentCache());
    world.open(1.15);
    ASSERT_TRUE(world.outlineDone());
    ASSERT_TRUE(wave.viewContentCache());
    EXPECT_EQ(wave.viewContentCache()->size(), QSizeF(11, 200));
}

TEST_F(RingtoneMaker, ClosingOrOpeningAnotherFileStopsTheOutline) {
    const QString slow = world.recording(u"slow.m4a"_s, 36000);
    world.media.sources[slow].sparse = false; // must be read from begin to end
    world.maker.openFile(slow, {});
    world.open(12);
    ASSERT_TRUE(world.outlineDone());
    EXPECT_EQ(world.outlet<AudioWaveEditView>("audioWaveEditView").viewContentCache()->size(), QSizeF(120, 200));
    world.maker.openFile(slow, {});
    world.maker.closeWindow();
    const auto asked = world.media.sources[slow].asked.size();
    QTest::qWait(50);
    EXPECT_EQ(world.media.sources[slow].asked.size(), asked) << "nobody reads any more";
    EXPECT_LT(asked, std::size_t(36000) * 86);
}

TEST_F(RingtoneMaker, ReportsAnUnreadableFile) {
    world.maker.openFile(world.file(u"broken.m4a"_s), {});
    ASSERT_TRUE(world.outlineDone());
    EXPECT_TRUE(world.outlet<AudioWaveEditView>("audioWaveEditView").message().contains(u"broken.m4a"_s));
    for (const char* each : {"btnPlay", "btnPreview", "makeButton"})
        EXPECT_FALSE(world.outlet(each).isEnabled()) << each;
    EXPECT_TRUE(world.outlet("cancelButton").isEnabled());
}

TEST_F(RingtoneMaker, TheFieldsFollowTheSelectionAndSetIt) {
    world.open(100);
    select(10, 40);
    auto& from = world.outlet<AudioTimeField>("fromField");
    auto& to = world.outlet<AudioTimeField>("toField");
    ASSERT_TRUE(waitFor([&] { return from.text() == u"00:00:10"_s && to.text() == u"00:00:40"_s; }));
    EXPECT_EQ(world.outlet<QLabel>("lengthLabel").text(), u"30.0 seconds"_s);
    from.setCursorPosition(6);
    QTest::keyClicks(&from, u"20"_s);
    QTest::keyClick(&from, Qt::Key_Return);
    EXPECT_EQ(selection().audioFromTime(), 20);
    EXPECT_EQ(selection().audioToTime(), 40);
    EXPECT_TRUE(world.paths.isEmpty()) << "Return in a field makes no ringtone";
}

TEST_F(RingtoneMaker, DrawsASelectionOfAnyLengthInsideTheFile) {
    world.open(30);
    world.show();
    auto& wave = world.outlet("audioWaveEditView");
    select(0, 5);
    QCoreApplication::processEvents();
    world.drag(wave, {250, 50}, {80, 60});
    EXPECT_EQ(selection().audioFromTime(), 8);
    EXPECT_EQ(selection().audioToTime(), 25);
    world.maker.trimAudioFromPoint({-50, 0}, {900, 0});
    EXPECT_EQ(selection().audioFromTime(), 0);
    EXPECT_EQ(selection().audioToTime(), 30);
    world.maker.trimAudioFromPoint({100, 0}, {103, 0});
    EXPECT_NEAR(selection().audioLength(), 3, 0.001);
}

TEST_F(RingtoneMaker, TheHandlesAndTheMiddleFollowTheMouse) {
    world.open(200);
    world.show();
    select(10, 30);
    QCoreApplication::processEvents();
    world.drag(selection(), {196, 100}, {296, 100});
    EXPECT_NEAR(selection().audioToTime(), 40, 0.01);
    EXPECT_NEAR(selection().audioFromTime(), 10, 0.01);
    world.drag(selection(), {4, 100}, {54, 100});
    EXPECT_NEAR(selection().audioFromTime(), 15, 0.01);
    world.drag(selection(), {100, 100}, {120, 100});
    EXPECT_NEAR(selection().audioFromTime(), 17, 0.01);
    EXPECT_NEAR(selection().audioToTime(), 42, 0.01);
    world.press(selection(), {100, 100});
    world.release(selection(), {100, 100});
    EXPECT_NEAR(selection().audioFromTime(), 17, 0.01) << "a press without a move changes nothing";
}

TEST_F(RingtoneMaker, TheCursorDiffersOverHandlesAndMiddle) {
    world.open(200);
    world.show();
    select(10, 30);
    QCoreApplication::processEvents();
    world.moveTo(selection(), {5, 100});
    EXPECT_EQ(selection().cursor().shape(), Qt::SizeHorCursor);
    world.moveTo(selection(), {100, 100});
    EXPECT_EQ(selection().cursor().shape(), Qt::OpenHandCursor);
    world.moveTo(selection(), {195, 100});
    EXPECT_EQ(selection().cursor().shape(), Qt::SizeHorCursor);
}

TEST_F(RingtoneMaker, ADragHeldAtTheEdgeKeepsScrolling) {
    world.open(600);
    world.show();
    auto& area = world.outlet<QScrollArea>("audioEditScrollView");
    auto& wave = world.outlet("audioWaveEditView");
    world.press(wave, {500, 100});
    const QPoint outside = area.mapTo(area.window(), QPoint(area.width() + 5, 100));
    QTest::mouseMove(area.window()->windowHandle(), outside);
    ASSERT_TRUE(waitFor([&] { return bar().value() > 1500; })) << "without any further event";
    EXPECT_GT(selection().audioToTime(), 150) << "the selection follows";
    QTest::mouseRelease(area.window()->windowHandle(), Qt::LeftButton, {}, outside);
    const int stopped = bar().value();
    QTest::qWait(100);
    EXPECT_EQ(bar().value(), stopped);
}

TEST_F(RingtoneMaker, TheViewScrollsWithThePlayPointer) {
    world.open(600);
    world.show();
    auto& pointer = world.outlet<AudioPointerLineView>("audioPointerLineView");
    sound().time = 300;
    world.maker.audioPlayUpdateTimerFireMethod();
    EXPECT_EQ(pointer.position(), 3000);
    EXPECT_EQ(bar().value(), 0);
    world.maker.setPlaySound(true);
    sound().time = 300;
    world.maker.audioPlayUpdateTimerFireMethod();
    EXPECT_GT(bar().value(), 2000);
}

TEST_F(RingtoneMaker, TheRulerMovesThePlayPosition) {
    world.open(100);
    world.show();
    auto& ruler = world.outlet("audioEditTimeView");
    world.press(ruler, {123, 10});
    world.release(ruler, {123, 10});
    EXPECT_NEAR(sound().time, 12.3, 0.001);
    world.maker.setAudioPosition(-20);
    EXPECT_EQ(sound().time, 0);
    world.maker.setAudioPosition(99999);
    EXPECT_EQ(sound().time, 100);
}

TEST_F(RingtoneMaker, PlayAndPreviewShareOneSound) {
    world.open(100);
    world.maker.setPlaySound(true);
    EXPECT_TRUE(world.maker.playSound());
    EXPECT_FALSE(world.maker.previewSound());
    world.maker.setPreviewSound(true);
    EXPECT_FALSE(world.maker.playSound());
    EXPECT_TRUE(world.maker.previewSound());
    auto& preview = world.outlet<QPushButton>("btnPreview");
    ASSERT_TRUE(waitFor([&] { return preview.isChecked() && !world.outlet<QPushButton>("btnPlay").isChecked(); }));
    world.maker.setPreviewSound(false);
    EXPECT_TRUE(sound().paused);
    ASSERT_TRUE(waitFor([&] { return !preview.isChecked(); }));
}

TEST_F(RingtoneMaker, ThePreviewLoopsOverTheSelection) {
    world.open(100);
    select(10, 20);
    sound().time = 50;
    world.maker.setPreviewSound(true);
    EXPECT_EQ(sound().time, 10);
    for (const double inside : {10.0, 15.0, 20.0}) {
        sound().time = inside;
        world.maker.audioPlayUpdateTimerFireMethod();
        EXPECT_EQ(sound().time, inside);
    }
    sound().time = 20.05;
    world.maker.audioPlayUpdateTimerFireMethod();
    EXPECT_EQ(sound().time, 10);
    world.maker.setPlaySound(true);
    sound().time = 50;
    world.maker.audioPlayUpdateTimerFireMethod();
    EXPECT_EQ(sound().time, 50) << "plain playing goes on";
}

TEST_F(RingtoneMaker, ThePreviewOfASelectionAtTheEndOfTheFileLoopsToo) {
    world.open(25);
    select(15, 25);
    world.maker.setPreviewSound(true);
    sound().end();
    world.maker.audioPlayUpdateTimerFireMethod();
    EXPECT_TRUE(world.maker.previewSound());
    EXPECT_EQ(sound().time, 15);
    sound().playFails = true; // the sound server went away
    sound().end();
    world.maker.audioPlayUpdateTimerFireMethod();
    EXPECT_FALSE(world.maker.previewSound());
}

TEST_F(RingtoneMaker, TheVolumeFollowsTheEnabledFades) {
    world.open(100);
    select(10, 30);
    EXPECT_EQ(volumeAt(27.5), 1);
    world.maker.setFadeOutEnable(true);
    EXPECT_NEAR(volumeAt(27.5), 0.5, 0.001);
    EXPECT_NEAR(volumeAt(30.1), 0, 0.001);
    EXPECT_EQ(volumeAt(30.25), 1);
    EXPECT_EQ(volumeAt(24.9), 1);
    world.maker.setFadeOut(0.1F);
    EXPECT_EQ(volumeAt(29.95), 1) << "a fade of a tenth of a second is off";
    world.maker.setFadeOut(0.5F);
    EXPECT_NEAR(volumeAt(29.75), 0.5, 0.001);
    world.maker.setFadeInEnable(true);
    EXPECT_NEAR(volumeAt(11), 0.2, 0.001);
    EXPECT_NEAR(volumeAt(9.9), 0, 0.001);
    select(10, 15);
    world.maker.setFadeOut(5);
    EXPECT_NEAR(volumeAt(12.5), 0.25, 0.001) << "both at once";
    world.maker.setFadeInEnable(false);
    sound().delay = 0.5;
    EXPECT_NEAR(volumeAt(12), 0.5, 0.001) << "the player reaches the volume half a second later";
}

TEST_F(RingtoneMaker, ReportsWhyNothingPlays) {
    world.sounds.playFails = true;
    world.open(100);
    world.maker.setPlaySound(true);
    EXPECT_TRUE(world.outlet<QLabel>("problemLabel").text().contains(u"no sound server answers"_s));
}

TEST_F(RingtoneMaker, WritesTheSelectionWithFadesWhateverTheBoxesShow) {
    world.open(100);
    select(10, 20);
    world.show();
    QTest::mouseClick(&world.outlet("makeButton"), Qt::LeftButton);
    ASSERT_TRUE(waitFor([&] { return world.paths.size() == 1; }));
    EXPECT_EQ(world.paths[0], world.folder.filePath(u"made/Ringtone.m4r"_s));
    EXPECT_TRUE(QFile::exists(world.paths[0]));
    const auto& samples = world.media.last().samples.at(0);
    EXPECT_EQ(samples.size(), 862U * 512);
    EXPECT_EQ(samples[100], 0);
    const auto& tags = world.entries[0];
    EXPECT_EQ(tags.value(AudioRecordEntry::Title).toString(), u"Ringtone"_s);
    EXPECT_EQ(tags.value(AudioRecordEntry::Length).toDouble(), 10);
    EXPECT_TRUE(tags.value(AudioRecordEntry::IsNew).toBool());
    EXPECT_FALSE(tags.contains(AudioRecordEntry::NodeDataKey));
    EXPECT_FALSE(world.maker.window()->isVisible());
    EXPECT_TRUE(world.workspace.opened.isEmpty());
    EXPECT_TRUE(world.alerts.shown.isEmpty());
    EXPECT_TRUE(QDir(g_strTmpPath).isEmpty());
}

TEST_F(RingtoneMaker, OpensTheRingtoneInThePlayerWhenAsked) {
    world.open(20, u"Song"_s);
    world.maker.setTransferToITunes(true);
    world.maker.converterAudio();
    ASSERT_EQ(world.workspace.opened.size(), 1);
    EXPECT_EQ(world.workspace.opened[0], qMakePair(world.paths.value(0), u"iTunes"_s));
    EXPECT_EQ(world.entries[0].value(AudioRecordEntry::Title).toString(), u"Song"_s);
}

TEST_F(RingtoneMaker, StaysOpenAndRepaintsWhileItWrites) {
    world.open(3600);
    world.maker.trimAudioFromPoint({0, 0}, {36000, 0});
    world.show();
    bool seen = false;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        if (!world.maker.isWriting() || world.outlet<QProgressBar>("progressBar").value() == 0)
            return;
        seen = world.maker.window()->isVisible() && world.outlet("progressBar").isVisible() &&
               !world.outlet("makeButton").isEnabled() && !world.outlet("audioEditScrollView").isEnabled() &&
               !world.outlet("fadeInField").isEnabled() && world.outlet("cancelButton").isEnabled();
        world.maker.converterAudio(); // a second call is refused
        QTest::keyClick(world.maker.window(), Qt::Key_Escape);
        look.stop();
    });
    look.start(1);
    world.maker.converterAudio();
    EXPECT_TRUE(seen);
    EXPECT_TRUE(world.paths.isEmpty()) << "Escape stops it";
    EXPECT_TRUE(world.alerts.shown.isEmpty());
    EXPECT_FALSE(world.maker.window()->isVisible());
    EXPECT_TRUE(QDir(g_strTmpPath).isEmpty());
    EXPECT_TRUE(QDir(world.folder.filePath(u"made"_s)).isEmpty());
}

TEST_F(RingtoneMaker, ReportsAnErrorInOneLine) {
    world.open(20);
    world.target = world.folder.filePath(u"no/such/Ringtone.m4r"_s);
    world.maker.converterAudio();
    ASSERT_EQ(world.alerts.shown.size(), 1);
    EXPECT_EQ(world.alerts.shown[0].title, u"The ringtone could not be made."_s);
    EXPECT_TRUE(world.alerts.shown[0].text.contains(world.target)) << qPrintable(world.alerts.shown[0].text);
    EXPECT_EQ(world.alerts.shown[0].text.count(u'\n'), 0);
    EXPECT_TRUE(world.paths.isEmpty());
    EXPECT_TRUE(QDir(g_strTmpPath).isEmpty());

    world.target = QString();
    world.open(20);
    QFile::remove(world.folder.filePath(u"Track2.m4a"_s)); // while the window is open
    world.maker.converterAudio();
    ASSERT_EQ(world.alerts.shown.size(), 2);
    EXPECT_TRUE(world.alerts.shown[1].text.contains(u"Track2.m4a"_s));
}

TEST_F(RingtoneMaker, HandlesTenHoursWithoutDelay) {
    world.open(36000);
    world.show();
    ASSERT_TRUE(world.outlineDone());
    EXPECT_EQ(world.outlet("audioEditContainerView").width(), 360000);
    QImage frame(world.maker.window()->size(), QImage::Format_ARGB32_Premultiplied);
    bar().setValue(bar().maximum());
    world.maker.window()->render(&frame);
    const auto& strip = world.outlet<AudioWaveEditView>("audioWaveEditView").viewContentCache();
    EXPECT_LE(strip->bytes(), ImageStrip::kMostBytes);
    int red = 0;
    for (int x = 20; x < 800; ++x)
        red += frame.pixelColor(x, 140).red() > 200 && frame.pixelColor(x, 140).green() < 100 ? 1 : 0;
    EXPECT_GT(red, 300) << "the end of the file has its outline";
    // Processor time, which the load of other programs does not change: the median of many frames.
    std::vector<double> times;
    for (int i = 0; i < 60; ++i) {
        bar().setValue(1000 + i * 300);
        const std::clock_t begin = std::clock();
        world.maker.window()->render(&frame);
        times.push_back(double(std::clock() - begin) * 1000 / CLOCKS_PER_SEC);
    }
    std::sort(times.begin(), times.end());
    std::printf("a frame of the whole window: median %.2f ms, worst %.2f ms\n", times[30], times[59]);
    EXPECT_LT(times[30], 16);
    select(35990, 36000);
    EXPECT_EQ(selection().audioToTime(), 36000);
}

TEST_F(RingtoneMaker, DescribesEachPartToScreenReaders) {
    world.open(100);
    world.show();
    struct Expected {
        const char* outlet;
        QString name;
        QAccessible::Role role;
        QString value;
    };
    ASSERT_TRUE(world.outlineDone());
    select(10, 40);
    for (const auto& [outlet, name, role, value] :
         {Expected{"audioEditTimeView", u"Play position"_s, QAccessible::Slider, u"00:00:00"_s},
          Expected{"audioWaveEditView", u"Outline"_s, QAccessible::Graphic, u"Track2, 00:01:40"_s},
          Expected{"audioWaveTrimView", u"Selection"_s, QAccessible::Slider,
                   u"from 00:00:10 to 00:00:40, 30.0 seconds"_s},
          Expected{"audioPointerLineView", u"Play pointer"_s, QAccessible::Graphic, u"00:00:00"_s}}) {
        auto* const spoken = QAccessible::queryAccessibleInterface(&world.outlet(outlet));
        ASSERT_TRUE(spoken) << outlet;
        EXPECT_EQ(spoken->text(QAccessible::Name), name) << outlet;
        EXPECT_EQ(spoken->role(), role) << outlet;
        EXPECT_EQ(spoken->text(QAccessible::Value), value) << outlet;
    }
    EXPECT_EQ(ScreenReader::namelessControls(*world.maker.window()), "");
    auto* const nameless = new QToolButton(&world.outlet("audioEditContainerView"));
    nameless->setObjectName(u"qt_nameless"_s);
    EXPECT_EQ(ScreenReader::namelessControls(*world.maker.window()), "QToolButton “qt_nameless”");
    nameless->setAccessibleName(u"Named"_s);
    EXPECT_EQ(ScreenReader::namelessControls(*world.maker.window()), "");
}

TEST_F(RingtoneMaker, IsReachableByKeyboard) {
    world.open(100);
    world.show();
    auto* const window = world.maker.window();
    EXPECT_EQ(window->focusWidget(), &selection());
    QTest::keyClick(window->windowHandle(), Qt::Key_Space);
    EXPECT_TRUE(world.maker.playSound());
    QTest::keyClick(window->windowHandle(), Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(selection().audioFromTime(), 1);
    QSet<QWidget*> reached;
    for (int i = 0; i < 20; ++i) {
        reached.insert(window->focusWidget());
        QTest::keyClick(window->windowHandle(), Qt::Key_Tab);
    }
    for (const char* each :
         {"audioWaveTrimView", "audioEditTimeView", "btnPlay", "btnPreview", "fromField", "toField", "fadeInBox",
          "fadeInField", "fadeOutBox", "fadeOutField", "transferBox", "cancelButton", "makeButton"})
        EXPECT_TRUE(reached.contains(&world.outlet(each))) << each;
    QTest::keyClick(window->windowHandle(), Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
    EXPECT_FALSE(world.maker.sound());
}

TEST_F(RingtoneMaker, RunsModallyAndIsShared) {
    auto& shared = RingtoneMakerViewController::shareController();
    EXPECT_EQ(&shared, &RingtoneMakerViewController::shareController());
    shared.openFile(world.recording(u"a.m4a"_s, 12), {});
    bool modal = false;
    QTimer::singleShot(0, [&] {
        (void)QTest::qWaitForWindowExposed(shared.window(), 30000);
        modal = QApplication::activeModalWidget() == shared.window();
        shared.closeWindow();
    });
    QWidget owner;
    owner.show();
    shared.showWindow(&owner);
    EXPECT_TRUE(modal);
    EXPECT_FALSE(shared.window()->parentWidget()) << "the owner may be destroyed before the window";
}

} // namespace

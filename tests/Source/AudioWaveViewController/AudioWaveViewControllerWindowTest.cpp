// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/AudioWaveViewController/AudioWaveViewController.h"

#include "Platform/Foundation/Services.h"
#include "RingtoneMaker/CustomSound.h"
#include "Source/AudioWaveViewController/AudioRecordWaveView.h"
#include "Source/AudioWaveViewController/BackViews.h"
#include "Source/Record/RecordState.h"
#include "Source/View/TabularLabel.h"
#include "Source/View/Theme.h"
#include "tests/Source/AudioWaveViewController/LiveDisplay.h"
#include "tests/support/Screenshot.h"
#include "tests/support/WaitFor.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTest>
#include <QToolButton>
#include <gtest/gtest.h>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

class AskedPosition : public AudioPlayProgressViewDelegate {
public:
    void setAudioPosition(float seconds) override { asked.append(seconds); }
    QList<float> asked;
};

/// Counts the paint events of all widgets and windows.
class PaintCounter : public QObject {
public:
    PaintCounter() { qApp->installEventFilter(this); }
    bool eventFilter(QObject* watched, QEvent* event) override {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }
    int count = 0;
};

bool isLevelColor(QRgb pixel) {
    return qRed(pixel) == 78 && qGreen(pixel) == 242 && qBlue(pixel) == 255;
}

} // namespace

TEST_F(LiveDisplay, AHiddenWindowDrawsNothingAndShowsTheWholeHistoryAgain) {
    PaintCounter paints;
    const auto tick = [&] {
        controller.audioPlayUpdateTimerFireMethod();
        QApplication::processEvents();
    };
    tick();
    EXPECT_GT(paints.count, 0) << "a window on the screen draws the level";
    panel->hide();
    QApplication::processEvents();
    paints.count = 0;
    for (int i = 0; i < 20; ++i)
        tick();
    EXPECT_EQ(paints.count, 0);
    EXPECT_EQ(controller.audioRecordWaveView()->audioLevelArray().size(), 21);

    panel->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(panel, 30000));
    const auto* view = controller.audioRecordWaveView();
    const QImage shown = panel->grab(QRect(view->mapTo(panel, QPoint(0, 0)), view->size())).toImage();
    for (int x = 0; x < 21; ++x)
        EXPECT_TRUE(isLevelColor(shown.pixel(x, shown.height() / 2))) << "column " << x;
}

TEST_F(LiveDisplay, TheBackgroundFollowsItsSizeAndTheRecording) {
    const auto frameAtBottom = [this] {
        const QImage shown = panel->grab().toImage();
        return QColor(shown.pixel(shown.width() / 2, shown.height() - 1)).red();
    };
    const int idle = frameAtBottom();
    controller.setRecordState(RecordState::Recording, true);
    EXPECT_GT(frameAtBottom(), idle + 60);
    panel->resize(600, 140);
    EXPECT_GT(frameAtBottom(), idle + 60);
    controller.setRecordState(RecordState::Idle, false);
    EXPECT_LT(frameAtBottom(), idle + 60);
}

TEST_F(LiveDisplay, StartsOnTheRecordingSideWithATimerAndBlackState) {
    AudioWaveViewController fresh;
    EXPECT_TRUE(fresh.tabViewShowWave());
    EXPECT_TRUE(fresh.hasDudioPlayUpdateTimer());
    EXPECT_EQ(fresh.stateColor(), QColor(Qt::black));
    EXPECT_TRUE(fresh.changeTabViewButtonState());
}

TEST_F(LiveDisplay, TheTimerFetchesALevelTenTimesASecond) {
    auto* history = controller.audioRecordWaveView();
    QElapsedTimer timer;
    timer.start(); // started before: if the machine stalls here, the levels must not seem too fast
    controller.createDudioPlayUpdateTimer();
    ASSERT_TRUE(waitFor([&] { return history->audioLevelArray().size() >= 5; }));
    EXPECT_GE(timer.elapsed(), 400);
    EXPECT_EQ(history->audioLevelArray().first(), 0.5F);
    EXPECT_TRUE(waitFor([&] { return delegate.playButtonAsked >= 5 && delegate.recordStateAsked >= 5; }));
}

TEST_F(LiveDisplay, AWindowThatNobodySeesTicksLessOftenAndItsHistoryKeepsItsTime) {
    auto* history = controller.audioRecordWaveView();
    const auto levels = [&] { return history->audioLevelArray().size(); };
    QSignalSpy seen(&controller, &AudioWaveViewController::seenChanged);
    panel->hide();
    controller.createDudioPlayUpdateTimer();
    ASSERT_TRUE(waitFor([&] { return levels() >= 11; }));
    EXPECT_EQ(levels(), 1 + 5 * (delegate.recordStateAsked - 1));
    EXPECT_EQ(seen, QList<QVariantList>({{false}}));
    panel->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(panel, 30000));
    ASSERT_TRUE(waitFor([&, asked = delegate.recordStateAsked, before = levels()] {
        const int ticks = delegate.recordStateAsked - asked;
        return ticks >= 10 && levels() - before < 2 * ticks;
    }));
    EXPECT_EQ(seen, QList<QVariantList>({{false}, {true}}));
}

TEST_F(LiveDisplay, WithoutADelegateTheLevelIsZero) {
    controller.setDelegate(nullptr);
    EXPECT_EQ(controller.getAudioWaveLevelValue(), 0.0F);
    controller.audioPlayUpdateTimerFireMethod();
    QCoreApplication::processEvents();
}

TEST_F(LiveDisplay, TheProgressIsUpdatedLaterAndTheLevelAtOnce) {
    controller.audioPlayUpdateTimerFireMethod();
    EXPECT_EQ(delegate.recordStateAsked, 1);
    EXPECT_EQ(controller.audioRecordWaveView()->audioLevelArray().size(), 1);
    EXPECT_EQ(delegate.playButtonAsked, 0);
    QCoreApplication::processEvents();
    EXPECT_EQ(delegate.playButtonAsked, 1);
}

TEST_F(LiveDisplay, TheSwitchShowsTheOtherSide) {
    QSignalSpy changed(&controller, &AudioWaveViewController::tabViewShowWaveChanged);
    field<QToolButton>("changeTabViewButton")->click();
    EXPECT_FALSE(controller.tabViewShowWave());
    EXPECT_EQ(field<QStackedWidget>("tabView")->currentWidget()->objectName(), u"playPage"_s);
    controller.changeTabView();
    EXPECT_EQ(field<QStackedWidget>("tabView")->currentWidget()->objectName(), u"recordPage"_s);
    EXPECT_EQ(changed.count(), 2);
}

TEST_F(LiveDisplay, WithoutASoundEverythingIsZeroAndTheBarIsFull) {
    EXPECT_EQ(controller.playLeftTime(), 0.0F);
    controller.setAudioPosition(12);
    EXPECT_EQ(controller.currentTime(), 0.0);
    const auto* bar = controller.audioPlayProgressView();
    EXPECT_EQ(bar->progressWidth(), bar->validProgressRect().width());
}

TEST_F(LiveDisplay, SeekingIsLimitedToTheSound) {
    playASound();
    controller.setAudioPosition(4);
    EXPECT_FLOAT_EQ(float(controller.currentTime()), 4);
    EXPECT_FLOAT_EQ(controller.playLeftTime(), 6);
    controller.setAudioPosition(-1);
    EXPECT_EQ(controller.currentTime(), 0.0);
    controller.setAudioPosition(10.2F);
    EXPECT_EQ(controller.currentTime(), 10.0);
}

TEST_F(LiveDisplay, AClickAtTheFarRightIsLimitedToTheEnd) {
    playASound();
    controller.setTabViewShowWave(false);
    QCoreApplication::processEvents();
    AudioPlayProgressView* bar = controller.audioPlayProgressView();
    AskedPosition asked;
    bar->setDelegate(&asked);
    const QPoint farRight(bar->width() - 1, bar->height() / 2);
    QTest::mouseClick(panel->windowHandle(), Qt::LeftButton, {}, bar->mapTo(panel, farRight));
    ASSERT_EQ(asked.asked.size(), 1);
    EXPECT_GT(asked.asked.first(), 10.0F);
    bar->setDelegate(&controller);
    QTest::mouseClick(panel->windowHandle(), Qt::LeftButton, {}, bar->mapTo(panel, farRight));
    EXPECT_EQ(controller.currentTime(), 10.0);
}

TEST_F(LiveDisplay, ADragSeeksAllAlongAndEndsAtTheRelease) {
    playASound();
    AskedPosition asked;
    AudioPlayProgressView bar;
    bar.resize(110, 20);
    bar.setDuration(10);
    bar.setDelegate(&asked);
    bar.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&bar, 30000));
    QTest::mousePress(bar.windowHandle(), Qt::LeftButton, {}, {50, 10});
    QTest::mouseMove(bar.windowHandle(), {60, 10});
    QTest::mouseMove(bar.windowHandle(), {70, 10});
    QTest::mouseRelease(bar.windowHandle(), Qt::LeftButton, {}, {70, 10});
    const qsizetype during = asked.asked.size();
    QTest::mouseMove(bar.windowHandle(), {20, 10});
    EXPECT_EQ(asked.asked.size(), during);
    ASSERT_GE(during, 2);
    // Only the width without the insets counts; the insets do not shift the position.
    EXPECT_FLOAT_EQ(asked.asked.first(), 5.0F);
    EXPECT_FLOAT_EQ(asked.asked.last(), 7.0F);
}

TEST_F(LiveDisplay, ABarWithoutWidthSeeksToTheBeginning) {
    AskedPosition asked;
    AudioPlayProgressView bar;
    bar.setMinimumSize(1, 1);
    bar.resize(10, 10);
    bar.setDuration(10);
    bar.setDelegate(&asked);
    bar.setAudioPosition(7);
    ASSERT_EQ(asked.asked.size(), 1);
    EXPECT_EQ(asked.asked.first(), 0.0F);
}

TEST_F(LiveDisplay, TheBarIsFilledUpToTheCurrentTime) {
    AudioPlayProgressView bar;
    bar.setAttribute(Qt::WA_OpaquePaintEvent);
    bar.resize(110, 20);
    bar.setDuration(10);
    bar.setCurrentTime(5);
    QImage image(bar.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    bar.render(&image, {}, {}, QWidget::RenderFlags());
    const auto progressColor = [&](int x) { return qBlue(image.pixel(x, 10)) > 200 && qRed(image.pixel(x, 10)) < 120; };
    EXPECT_TRUE(progressColor(10));
    EXPECT_TRUE(progressColor(45));
    EXPECT_FALSE(progressColor(65));
    EXPECT_GT(qRed(image.pixel(55, 10)), 220) << "the point stands on the border";
}

TEST_F(LiveDisplay, TheSeekPointIsCompleteAtBothEnds) {
    AudioPlayProgressView bar;
    bar.resize(110, 20);
    bar.setDuration(10);
    const auto widthOfPoint = [&](double time, qreal ratio) {
        bar.setCurrentTime(time);
        QImage image((QSizeF(bar.size()) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(ratio);
        image.fill(Qt::black);
        bar.render(&image, {}, {}, QWidget::RenderFlags());
        int pixels = 0;
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, image.height() / 2);
            pixels += color.red() > 200;
        }
        return pixels / ratio;
    };
    for (const qreal ratio : {1.0, 1.5, 2.0}) {
        EXPECT_GE(widthOfPoint(5, ratio), 7) << ratio;
        EXPECT_NEAR(widthOfPoint(0, ratio), widthOfPoint(5, ratio), 0.7) << ratio;
        EXPECT_NEAR(widthOfPoint(10, ratio), widthOfPoint(5, ratio), 0.7) << ratio;
    }
}

TEST_F(LiveDisplay, AVeryShortSoundFillsTheBar) {
    AudioPlayProgressView bar;
    bar.resize(110, 20);
    bar.setDuration(0.1);
    bar.setCurrentTime(0);
    EXPECT_EQ(bar.progressWidth(), 100);
    bar.setDuration(0.2);
    EXPECT_EQ(bar.progressWidth(), 0);
}

TEST_F(LiveDisplay, KeysSeekToo) {
    playASound();
    controller.setAudioPosition(4);
    QTest::keyClick(controller.audioPlayProgressView(), Qt::Key_Right);
    EXPECT_EQ(controller.currentTime(), 9.0);
    QTest::keyClick(controller.audioPlayProgressView(), Qt::Key_Home);
    EXPECT_EQ(controller.currentTime(), 0.0);
}

TEST(LevelHistory, DrawsTheNewestLevelAtTheLeft) {
    AudioRecordWaveView view;
    view.resize(100, 50);
    view.addCurrentLevel(0.25F);
    view.addCurrentLevel(0.75F);
    EXPECT_EQ(view.audioLevelArray(), (QList<float>{0.75F, 0.25F}));
}

TEST(LevelHistory, NarrowingDropsTheOldestLevelsAtTheNextTick) {
    AudioRecordWaveView view;
    view.setMinimumSize(1, 1);
    view.resize(10, 50);
    for (int i = 0; i < 20; ++i)
        view.addCurrentLevel(float(i));
    ASSERT_EQ(view.audioLevelArray().size(), 10);
    view.resize(4, 50);
    EXPECT_EQ(view.audioLevelArray().size(), 10);
    view.addCurrentLevel(20);
    EXPECT_EQ(view.audioLevelArray(), (QList<float>{20, 19, 18, 17}));
}

TEST(LevelHistory, DrawsEachLevelAroundTheMiddleAndSilenceAsAThinLine) {
    AudioRecordWaveView view;
    view.resize(100, 100);
    view.addCurrentLevel(0);
    view.addCurrentLevel(0.5F);
    view.addCurrentLevel(2);
    const QImage image = Screenshot::take(view, u"level-history"_s);
    const auto reach = [&](int x) {
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            count += isLevelColor(image.pixel(x, y)) ? 1 : 0;
        return count;
    };
    EXPECT_EQ(reach(0), 100);
    EXPECT_EQ(reach(1), 50);
    EXPECT_EQ(reach(2), 2);
    EXPECT_EQ(reach(3), 0);
    EXPECT_TRUE(isLevelColor(image.pixel(1, 25)));
    EXPECT_TRUE(isLevelColor(image.pixel(1, 74)));
    EXPECT_FALSE(isLevelColor(image.pixel(1, 24)));
}

TEST(LevelHistory, MarksClippedSoundByColourAndByAMarkAtTheEdges) {
    AudioRecordWaveView view;
    view.resize(100, 100);
    view.addCurrentLevel(0.5F, true);
    EXPECT_EQ(view.spokenValue(), u"50 %, clipped"_s);
    for (int i = 0; i < 4; ++i)
        view.addCurrentLevel(0.5F);
    EXPECT_EQ(view.spokenValue(), u"50 %"_s);
    const QImage image = Screenshot::take(view, u"level-history-clipped"_s);
    const auto isClippingColor = [&](int x, int y) { return image.pixel(x, y) == Theme::Glass::clipping().rgb(); };
    for (int x = 0; x < 10; ++x) {
        EXPECT_EQ(isClippingColor(x, 50), x == 4) << x;
        EXPECT_EQ(isLevelColor(image.pixel(x, 50)), x < 4) << x;
        for (const int y : {0, 99})
            EXPECT_EQ(isClippingColor(x, y), x >= 2 && x <= 4) << x << ", " << y;
    }
}

TEST(LevelHistory, AMovedPictureEqualsADrawnOne) {
    const auto level = [](int i) { return float(std::sin(i) * std::sin(i)); };
    // One of them is the level that left the history last: two columns of its mark are still in the picture.
    const auto isClipped = [](int i) { return i % 7 == 1; };
    AudioRecordWaveView moved;
    moved.setFixedSize(64, 40);
    moved.show(); // only a picture on the screen is moved
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&moved, 30000));
    for (int i = 0; i < 80; ++i) {
        moved.addCurrentLevel(level(i), isClipped(i));
        moved.grab(); // draws once, so that the next level moves the picture
    }
    AudioRecordWaveView drawn;
    drawn.resize(64, 40);
    for (int i = 0; i < 80; ++i)
        drawn.addCurrentLevel(level(i), isClipped(i));
    EXPECT_EQ(moved.grab().toImage(), drawn.grab().toImage());
}

TEST(LevelHistory, AnInvalidLevelDoesNotBreakTheDrawing) {
    AudioRecordWaveView view;
    view.resize(20, 20);
    view.addCurrentLevel(0.5F);
    view.addCurrentLevel(std::nanf(""));
    view.addCurrentLevel(INFINITY);
    const QImage image = Screenshot::take(view, u"damaged-level"_s);
    EXPECT_TRUE(isLevelColor(image.pixel(2, 10)));
}

TEST(BackViews, FillTheirWholeBounds) {
    AdditionalControlBackView strip;
    strip.resize(20, 20);
    const QImage image = Screenshot::take(strip, u"strip"_s);
    EXPECT_EQ(image.pixel(0, 0), QColor::fromRgbF(0.78F, 0.78F, 0.78F).rgba());
    EXPECT_EQ(image.pixel(19, 19), image.pixel(0, 0));
    AudioWaveformBackView glass;
    glass.resize(200, 60);
    EXPECT_LT(qGray(Screenshot::take(glass, u"glass"_s).pixel(100, 30)), 60);
}

TEST(BackViews, TheStripHasADarkTheme) {
    const QPalette before = QApplication::palette();
    AdditionalControlBackView strip;
    strip.resize(20, 20);
    strip.show();
    Theme::apply(Theme::Shade::Dark);
    QCoreApplication::processEvents();
    EXPECT_LT(qGray(Screenshot::take(strip, u"strip-dark"_s).pixel(10, 10)), 80);
    EXPECT_GT(strip.palette().color(QPalette::ButtonText).lightness(), 200);
    Theme::apply(Theme::Shade::Light);
    QCoreApplication::processEvents();
    EXPECT_EQ(Screenshot::take(strip, u"strip-light"_s).pixel(10, 10), QColor::fromRgbF(0.78F, 0.78F, 0.78F).rgba());
    EXPECT_LT(strip.palette().color(QPalette::ButtonText).lightness(), 60);
    QApplication::setPalette(before);
}

TEST_F(LiveDisplay, AnImageUnderThePointerStaysVisible) {
    auto* button = field<QToolButton>("changeTabViewButton");
    button->clearFocus(); // its frame would count as light
    for (const auto shade : {Theme::Shade::Light, Theme::Shade::Dark}) {
        Theme::apply(shade);
        QCoreApplication::processEvents();
        QTest::mouseMove(panel->windowHandle(), button->mapTo(panel, button->rect().center()));
        ASSERT_TRUE(waitFor([&] { return button->underMouse(); }));
        const QImage image = Screenshot::take(*panel, u"hover"_s)
                                 .copy(QRect(button->mapTo(panel, QPoint()), button->size()).adjusted(2, 2, -2, -2));
        int light = 0;
        int dark = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                ++(qGray(image.pixel(x, y)) > 160 ? light : dark);
        EXPECT_GT(light, 10) << "the picture";
        EXPECT_GT(dark, 3 * light) << "on its ground";
        QTest::mouseMove(panel->windowHandle(), QPoint(1, 1));
    }
    Theme::apply(Theme::Shade::Light);
}

TEST_F(LiveDisplay, StateTextKeepsItsColorAndBlackBecomesThePanelsOwn) {
    controller.setStateString(u"Rec.."_s);
    auto* state = field<QLabel>("stateField");
    EXPECT_EQ(state->text(), u"Rec.."_s);
    EXPECT_EQ(state->palette().color(QPalette::WindowText), Theme::Glass::text());
    controller.setStateColor(Qt::red);
    EXPECT_EQ(state->palette().color(QPalette::WindowText), QColor(Qt::red));
}

TEST_F(LiveDisplay, TheTimeIsLargeAndDoesNotShift) {
    auto* time = field<TabularLabel>("timeField");
    EXPECT_GE(time->font().pointSizeF(), 28);
    controller.setTimeString(u"11:11"_s);
    const QSize ones = time->sizeHint();
    controller.setTimeString(u"08:48"_s);
    EXPECT_EQ(time->sizeHint(), ones);
}

TEST_F(LiveDisplay, LongTitlesAreElidedInTheMiddleAndWholeInTheToolTip) {
    controller.setTabViewShowWave(false);
    const QString title = u"A very long title "_s.repeated(20);
    controller.setTitle(title);
    QCoreApplication::processEvents();
    auto* shown = field<QLabel>("titleField");
    EXPECT_TRUE(shown->text().contains(QChar(0x2026)));
    EXPECT_EQ(shown->toolTip(), title);
    controller.setTitle(u"<b>plain</b>"_s);
    EXPECT_EQ(shown->text(), u"<b>plain</b>"_s);
    EXPECT_EQ(shown->textFormat(), Qt::PlainText);
}

TEST_F(LiveDisplay, TheTabButtonStateIsAlwaysTrueAndAnnouncedOnTheMainQueue) {
    QSignalSpy announced(&controller, &AudioWaveViewController::changeTabViewButtonStateChanged);
    controller.setChangeTabViewButtonState(false);
    EXPECT_EQ(announced.count(), 0);
    EXPECT_TRUE(waitFor([&] { return announced.count() == 1; }));
    EXPECT_TRUE(controller.changeTabViewButtonState());
}

TEST_F(LiveDisplay, EveryControlHasAnAccessibleName) {
    for (QWidget* control : panel->findChildren<QWidget*>()) {
        if (control->focusPolicy() != Qt::NoFocus) {
            EXPECT_FALSE(control->accessibleName().isEmpty()) << qPrintable(control->objectName());
        }
    }
}

TEST_F(LiveDisplay, OutlivesTheWindowThatOwnsItsPanel) {
    auto window = std::make_unique<QWidget>();
    AudioWaveViewController inside(nullptr);
    inside.view()->setParent(window.get());
    window.reset();
    EXPECT_EQ(inside.view(), nullptr);
    inside.setTitle(u"after"_s);
    inside.setTimeString(u"00:01"_s);
    inside.audioPlayUpdateTimerFireMethod();
    QCoreApplication::processEvents();
}

TEST_F(LiveDisplay, HasPictures) {
    playASound();
    controller.setAudioPosition(3.2F);
    controller.setTitle(u"Concert in the park"_s);
    controller.setArtist(u"The Sparrows"_s);
    controller.setStateString(u"Rec.."_s);
    controller.setStateColor(Qt::red);
    controller.setTimeString(u"00:03:12"_s);
    panel->resize(560, 112);
    QCoreApplication::processEvents();
    for (int i = 0; i < 700; ++i)
        controller.audioRecordWaveView()->addCurrentLevel(
            float(std::fabs(std::sin(i * 0.031) * std::sin(i * 0.37 + std::sin(i * 0.11)))) * 0.8F);
    for (const double ratio : {1.0, 2.0}) {
        const QString suffix = ratio > 1 ? u"-2x"_s : u"-1x"_s;
        controller.setTabViewShowWave(true);
        QCoreApplication::processEvents();
        EXPECT_GT(Screenshot::coverage(Screenshot::take(*panel, u"display-record"_s + suffix, ratio)), 0.9);
        controller.setNotices(
            {{.text = u"0.100 s are missing (4800 frames): the computer was too busy to take them."_s},
             {.text = u"An earlier recording could not be finished. It is kept at"_s,
              .path = QDir::homePath() + u"/.local/share/com.korvane.Sonaphex/Unfinished/Track12 computer.m4a"_s,
              .help = RecordNotice::Help::Show}});
        QCoreApplication::processEvents();
        Screenshot::take(*panel, u"display-notice"_s + suffix, ratio);
        controller.setNotices({});
        controller.setTabViewShowWave(false);
        QCoreApplication::processEvents();
        Screenshot::take(*panel, u"display-play"_s + suffix, ratio);
    }
}

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RingtoneMaker/AudioEditTimeView.h"
#include "RingtoneMaker/AudioPointerLineView.h"
#include "RingtoneMaker/AudioTimeField.h"
#include "RingtoneMaker/AudioWaveEditView.h"
#include "RingtoneMaker/AudioWaveTrimView.h"
#include "RingtoneMaker/WaveImage.h"
#include "tests/RingtoneMaker/RingtoneWorld.h"
#include "tests/support/Screenshot.h"

#include <QPainter>
#include <QSignalSpy>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Ears : RingtoneMakerViewDelegate {
    void trimAudioFromPoint(QPointF from, QPointF to) override { drawn.append({from, to}); }
    void setAudioPosition(float x) override { positions.append(x); }
    [[nodiscard]] float audioPosition() const override { return positions.isEmpty() ? 0 : positions.last(); }
    [[nodiscard]] float soundDuration() const override { return 65; }
    QList<QPair<QPointF, QPointF>> drawn;
    QList<float> positions;
};

TEST(AudioEditTimeView, HasShortMiddleAndLongTicksWithTheirTimes) {
    AudioEditTimeView ruler;
    ruler.resize(650, 30);
    const auto ticks = ruler.ticks(0, 10000);
    ASSERT_EQ(ticks.size(), 33); // 0, 2, … 64
    QStringList labels;
    for (const auto& tick : ticks) {
        const int second = int(tick.x) / 10;
        EXPECT_DOUBLE_EQ(tick.height, second % 20 == 0 ? 30 / 1.3 : second % 10 == 0 ? 30 / 1.7 : 10);
        if (tick.labelledSecond >= 0)
            labels.append(QString::number(tick.labelledSecond));
    }
    EXPECT_EQ(labels, (QStringList{u"0"_s, u"20"_s, u"40"_s, u"60"_s}));
}

TEST(AudioEditTimeView, IsRedrawnOnlyForAnotherWidth) {
    AudioEditTimeView ruler;
    ruler.resize(650, 32);
    (void)Screenshot::take(ruler, u"ruler"_s);
    const auto cache = ruler.viewContentCache();
    ASSERT_TRUE(cache);
    (void)Screenshot::take(ruler, u"ruler"_s);
    EXPECT_EQ(ruler.viewContentCache(), cache);
    ruler.resize(900, 32);
    (void)Screenshot::take(ruler, u"ruler"_s);
    EXPECT_NE(ruler.viewContentCache(), cache);
}

TEST(AudioEditTimeView, LooksTheSameAcrossTileBoundaries) {
    // The label of 00:01:40, which begins at 1005, crosses the boundary at 1024.
    Theme::install(*qApp, nullptr);
    AudioEditTimeView ruler;
    ruler.resize(1200, 32);
    const QImage whole = Screenshot::take(ruler, u"ruler-tiles"_s);
    int dark = 0;
    for (int x = 1026; x < 1060; ++x)
        for (int y = 2; y < 17; ++y)
            dark += qGray(whole.pixel(x, y)) < 120 ? 1 : 0;
    EXPECT_GT(dark, 30) << "the label goes on behind the border";
}

TEST(AudioEditTimeView, APressAndADragMoveThePlayPosition) {
    Ears ears;
    AudioEditTimeView ruler;
    ruler.setDelegate(&ears);
    ruler.resize(650, 32);
    QTest::mousePress(&ruler, Qt::LeftButton, {}, {120, 10});
    QTest::mouseMove(&ruler, {200, 10});
    QTest::mouseRelease(&ruler, Qt::LeftButton, {}, {200, 10});
    EXPECT_EQ(ears.positions, (QList<float>{120, 200}));
    QTest::keyClick(&ruler, Qt::Key_Right);
    QTest::keyClick(&ruler, Qt::Key_Home);
    EXPECT_EQ(ears.positions.mid(2), (QList<float>{210, 0}));
    auto* const spoken = QAccessible::queryAccessibleInterface(&ruler);
    EXPECT_EQ(spoken->role(), QAccessible::Slider);
    EXPECT_EQ(spoken->text(QAccessible::Name), u"Play position"_s);
    EXPECT_EQ(spoken->text(QAccessible::Value), u"00:00:00"_s);
}

TEST(AudioWaveEditView, ADragDrawsASelectionAndAPressAloneChangesNothing) {
    Ears ears;
    AudioWaveEditView wave;
    wave.setDelegate(&ears);
    wave.resize(650, 200);
    QTest::mousePress(&wave, Qt::LeftButton, {}, {300, 20});
    QTest::mouseRelease(&wave, Qt::LeftButton, {}, {300, 20});
    EXPECT_TRUE(ears.drawn.isEmpty());
    QTest::mousePress(&wave, Qt::LeftButton, {}, {300, 20});
    QTest::mouseMove(&wave, {250, 40});
    QTest::mouseRelease(&wave, Qt::LeftButton, {}, {250, 40});
    ASSERT_EQ(ears.drawn.size(), 1);
    EXPECT_EQ(ears.drawn[0], (QPair<QPointF, QPointF>({300, 20}, {250, 40})));
}

TEST(AudioWaveEditView, ShowsOneRedLineForEachValue) {
    Theme::install(*qApp, nullptr);
    QList<float> values(600, 0.5F);
    values[3] = -1;
    AudioWaveEditView wave;
    wave.resize(600, 200);
    wave.setViewContentCache(std::make_shared<ImageStrip>(QSizeF(600, 200), [&](QPainter& painter, const QRectF& area) {
        WaveImage::paint(painter, values, int(area.left()), int(area.right()) + 1);
    }));
    for (const qreal ratio : {1.0, 2.0}) {
        const QImage seen = Screenshot::take(wave, u"wave"_s, ratio);
        const auto red = [&](double x, double y) {
            return seen.pixelColor(int(x * ratio), int(y * ratio)) == QColor(255, 0, 0);
        };
        EXPECT_TRUE(red(10, 51));
        EXPECT_FALSE(red(10, 49));
        EXPECT_TRUE(red(10, 149));
        EXPECT_FALSE(red(10, 151));
        EXPECT_TRUE(red(3, 1));
        EXPECT_TRUE(red(511, 100) && red(512, 100)) << "no gap between two tiles";
    }
}

TEST(AudioPointerLineView, ItsPositionIsTheMiddleOfItsFrame) {
    QWidget container;
    AudioPointerLineView pointer(&container);
    for (const float x : {0.0F, 100.0F, 12.5F, 359999.0F}) {
        pointer.setPosition(x);
        EXPECT_FLOAT_EQ(pointer.position(), x);
        EXPECT_EQ(pointer.x(), int(std::floor(x - 10)));
    }
    EXPECT_TRUE(pointer.testAttribute(Qt::WA_TransparentForMouseEvents));
}

TEST(ImageStrip, KeepsSomeTilesOnlyAndDrawsTheVisiblePart) {
    int draws = 0;
    ImageStrip strip(QSizeF(360000, 200), [&](QPainter&, const QRectF& area) {
        EXPECT_LE(area.width(), ImageStrip::kTileWidth);
        ++draws;
    });
    QImage window(860, 200, QImage::Format_ARGB32_Premultiplied);
    for (double x = 0; x < 359000; x += 400) {
        QPainter painter(&window);
        painter.translate(-x, 0);
        strip.paint(painter, QRectF(x, 0, 860, 200));
        ASSERT_LE(strip.bytes(), ImageStrip::kMostBytes);
    }
    EXPECT_LE(draws, 360000 / ImageStrip::kTileWidth + 1) << "each tile once";
    draws = 0;
    strip.forget(359900);
    QPainter painter(&window);
    painter.translate(-359140, 0);
    strip.paint(painter, QRectF(359140, 0, 860, 200));
    EXPECT_LE(draws, 2);
}

TEST(AudioTimeField, AcceptsOnlyTextOfItsForm) {
    AudioTimeField field;
    const QSignalSpy edited(&field, &AudioTimeField::secondsEdited);
    field.setSeconds(10.4F);
    EXPECT_EQ(field.text(), u"00:00:10"_s);
    field.setCursorPosition(0);
    QTest::keyClicks(&field, u"000130"_s);
    EXPECT_EQ(field.text(), u"00:01:30"_s);
    QTest::keyClick(&field, Qt::Key_Return);
    ASSERT_EQ(edited.count(), 1);
    EXPECT_EQ(edited[0][0].toInt(), 90);
    field.setCursorPosition(3);
    QTest::keyClicks(&field, u"7x"_s);
    EXPECT_EQ(field.text(), u"00:01:30"_s) << "no 71 minutes, no letters";
    field.setCursorPosition(8);
    QTest::keyClick(&field, Qt::Key_Backspace);
    QTest::keyClick(&field, Qt::Key_Backspace);
    EXPECT_EQ(field.text(), u"00:01:"_s);
    QTest::keyClick(&field, Qt::Key_Backspace);
    EXPECT_EQ(field.text(), u"00:01:"_s) << "the colons stay";
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(edited.last()[0].toInt(), 60);
}

TEST(AudioTimeField, TheSameSecondKeepsTheTenths) {
    AudioTimeField field;
    const QSignalSpy edited(&field, &AudioTimeField::secondsEdited);
    field.setSeconds(10.4F);
    field.setCursorPosition(7);
    QTest::keyClicks(&field, u"0"_s);
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(edited.count(), 0);
    QTest::keyClick(&field, Qt::Key_Up);
    ASSERT_EQ(edited.count(), 1);
    EXPECT_EQ(edited[0][0].toInt(), 11);
}

TEST(AudioTimeField, DoesNotChangeWhileTheUserTypes) {
    AudioTimeField field;
    field.setSeconds(10);
    field.setCursorPosition(6);
    QTest::keyClicks(&field, u"2"_s);
    field.setSeconds(15);
    EXPECT_EQ(field.text(), u"00:00:20"_s);
}

} // namespace

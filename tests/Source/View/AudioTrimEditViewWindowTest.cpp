// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/AudioTrimEditView.h"

#include "Source/View/NamedImages.h"
#include "Source/View/OutlineDrawing.h"
#include "tests/support/Screenshot.h"

#include <QApplication>
#include <QPainter>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The bar with a delegate that behaves like the window's controller and records its calls.
class TrimBar : public testing::Test, protected AudioTrimEditViewDelegate {
protected:
    TrimBar() {
        bar.setDelegate(this);
        bar.resize(624, bar.sizeHint().height());
        bar.setDuration(100);
        bar.show();
        (void)QTest::qWaitForWindowExposed(&bar, 30000);
    }
    void seekPlay(float rate) override {
        seeks.append(rate);
        bar.setPlayRate(rate);
    }
    void setLeftTrim(float rate) override { bar.setLeftTrimRate(rate); }
    void setRightTrim(float rate) override { bar.setRightTrimRate(rate); }

    void press(QPointF place) { QTest::mousePress(bar.windowHandle(), Qt::LeftButton, {}, place.toPoint()); }
    void move(double x) { QTest::mouseMove(bar.windowHandle(), QPoint(int(x), 10)); }
    void release(double x) { QTest::mouseRelease(bar.windowHandle(), Qt::LeftButton, {}, QPoint(int(x), 10)); }
    /// The x position of the pointer that gives this rate.
    [[nodiscard]] double xOf(double rate) const { return 12 + 600 * rate; }

    AudioTrimEditView bar;
    QList<float> seeks;
};

} // namespace

TEST_F(TrimBar, HasItsGeometry) {
    ASSERT_EQ(NamedImages::naturalSize(u"TrimPlaybtn.png"_s), QSize(24, 24));
    const double height = bar.height();
    bar.setLeftTrimRate(0.25F);
    bar.setRightTrimRate(0.5F);
    bar.setPlayRate(0.1F);
    EXPECT_EQ(bar.seekStripRect(), QRectF(0, 0, 624, 24));
    EXPECT_EQ(bar.backStripRect(), QRectF(12, 24, 600, height - 48));
    EXPECT_EQ(bar.leftHandleRect(), QRectF(150, height - 24, 12, 24));
    EXPECT_EQ(bar.rightHandleRect(), QRectF(312, height - 24, 12, 24));
    EXPECT_NEAR(bar.playButtonRect().x(), 60, 0.01);
    EXPECT_EQ(bar.playButtonRect().y(), 0);
    const double area = NamedImages::naturalSize(u"TrimArea.png"_s).height();
    EXPECT_EQ(bar.rangeRect(), QRectF(162, (height - area) / 2 - 1, 150, area));
    EXPECT_FLOAT_EQ(bar.mousePointRate({312, 0}), 0.5F);
    EXPECT_EQ(bar.mousePointRate({0, 0}), 0);
    EXPECT_EQ(bar.mousePointRate({700, 0}), 1);
    EXPECT_FALSE(AudioTrimEditView::mouseDownCanMoveWindow());
}

TEST_F(TrimBar, TheEndsNeverPassEachOther) {
    bar.setRightTrimRate(0.5F);
    bar.setLeftTrimRate(0.75F);
    EXPECT_EQ(bar.leftTrimRate(), 0.5F);
    bar.setLeftTrimRate(0.25F);
    bar.setRightTrimRate(0.125F);
    EXPECT_EQ(bar.rightTrimRate(), 0.25F);
}

TEST_F(TrimBar, DragsTheLeftHandleUpToTheRightOne) {
    bar.setRightTrimRate(0.5F);
    press(bar.leftHandleRect().center());
    EXPECT_EQ(bar.dragType(), AudioTrimEditView::LeftHandle);
    EXPECT_EQ(bar.leftTrimRate(), 0) << "the press itself moves nothing";
    move(xOf(0.25));
    EXPECT_FLOAT_EQ(bar.leftTrimRate(), 0.25F);
    move(xOf(0.9));
    EXPECT_EQ(bar.leftTrimRate(), 0.5F);
    EXPECT_EQ(bar.rightTrimRate(), 0.5F);
    release(xOf(0.9));
    EXPECT_EQ(bar.dragType(), AudioTrimEditView::NoDrag);
    move(xOf(0.1));
    EXPECT_EQ(bar.leftTrimRate(), 0.5F) << "nothing is dragged any more";
}

TEST_F(TrimBar, DragsTheRightHandleDownToTheLeftOne) {
    bar.setLeftTrimRate(0.5F);
    press(bar.rightHandleRect().center());
    EXPECT_EQ(bar.dragType(), AudioTrimEditView::RightHandle);
    move(xOf(0.75));
    EXPECT_FLOAT_EQ(bar.rightTrimRate(), 0.75F);
    move(xOf(0.1));
    EXPECT_EQ(bar.rightTrimRate(), 0.5F);
    EXPECT_EQ(bar.leftTrimRate(), 0.5F);
    release(xOf(0.1));
}

TEST_F(TrimBar, SeeksByADragOfTheStripAndNotByAClick) {
    press({xOf(0.5), 10});
    EXPECT_EQ(bar.dragType(), AudioTrimEditView::Seek);
    release(xOf(0.5));
    EXPECT_TRUE(seeks.isEmpty());
    press({xOf(0.5), 10});
    move(xOf(0.75));
    release(xOf(0.75));
    ASSERT_EQ(seeks.size(), 1);
    EXPECT_FLOAT_EQ(seeks.first(), 0.75F);
}

TEST_F(TrimBar, IgnoresADragFromItsMiddle) {
    press({xOf(0.5), 60});
    EXPECT_EQ(bar.dragType(), AudioTrimEditView::NoDrag);
    move(xOf(0.75));
    release(xOf(0.75));
    EXPECT_TRUE(seeks.isEmpty());
    EXPECT_EQ(bar.leftTrimRate(), 0);
    EXPECT_EQ(bar.rightTrimRate(), 1);
}

TEST_F(TrimBar, NudgesTheHandleThatWasUsedLast) {
    bar.setFocus();
    QTest::keyClick(&bar, Qt::Key_Right);
    EXPECT_FLOAT_EQ(bar.leftTrimRate(), 0.001F) << "a tenth of a second of a hundred";
    QTest::keyClick(&bar, Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_FLOAT_EQ(bar.leftTrimRate(), 0.011F);
    press(bar.rightHandleRect().center());
    release(bar.rightHandleRect().center().x());
    QTest::keyClick(&bar, Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_FLOAT_EQ(bar.rightTrimRate(), 0.99F);
    QTest::keyClick(&bar, Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClick(&bar, Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(bar.rightTrimRate(), 1) << "not beyond the end";
    EXPECT_FLOAT_EQ(bar.leftTrimRate(), 0.011F);
}

TEST_F(TrimBar, ShowsTheRangeBrighterThanTheRestAndTheTimeDuringADrag) {
    bar.setOutline(QList<float>(1000, 0.8F));
    bar.setLeftTrimRate(0.5F);
    const QImage image = Screenshot::take(bar, u"trim-bar"_s);
    const QRectF strip = bar.backStripRect();
    const int y = int(strip.center().y()) + 20;
    EXPECT_GT(qGray(image.pixel(int(xOf(0.75)), y)), qGray(image.pixel(int(xOf(0.25)), y)));
    press(bar.leftHandleRect().center());
    move(xOf(0.25));
    const QImage dragged = Screenshot::take(bar, u"trim-bar-drag"_s);
    const QImage before = [&] {
        release(xOf(0.25));
        return Screenshot::take(bar, u"trim-bar-after"_s);
    }();
    const QRect place(int(xOf(0.25)) - 20, int(strip.center().y()) - 8, 40, 16);
    EXPECT_NE(dragged.copy(place), before.copy(place));
}

TEST(TrimOutline, DrawsTheLoudestValueOfEachPoint) {
    QImage image(10, 100, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    QList<float> values(100, 0.0F);
    values[55] = -1; // of the sixth point
    OutlineDrawing::draw(painter, QRectF(0, 0, 10, 100), values, Qt::white);
    painter.end();
    for (int x = 0; x < 10; ++x)
        EXPECT_EQ(image.pixel(x, 10) == qRgb(255, 255, 255), x == 5) << x;
}

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RingtoneMaker/AudioWaveTrimView.h"
#include "tests/support/WaitFor.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Type = AudioWaveTrimView::DragType;

namespace {

class Selection : public testing::Test, public RingtoneMakerViewDelegate {
protected:
    Selection() {
        view.setDelegate(this);
        view.setFrame(QRectF(100, 32, 200, 200));
    }
    [[nodiscard]] float soundDuration() const override { return seconds; }
    void select(double from, double to) { view.setFrame(QRectF(from * 10, 32, (to - from) * 10, 200)); }
    void drag(Type type, double dx) { view.doDragAction(type, {500, 50}, {500 + dx, 80}); }
    void expect(float from, float to) const {
        EXPECT_NEAR(view.audioFromTime(), from, 0.001);
        EXPECT_NEAR(view.audioToTime(), to, 0.001);
    }

    QWidget container;
    AudioWaveTrimView view{&container};
    float seconds = 60;
};

TEST_F(Selection, TheRightEdgeStopsAtFortyAndAtFiveSeconds) {
    seconds = 100;
    select(10, 30);
    drag(AudioWaveTrimView::RightHandle, 300);
    expect(10, 50);
    select(10, 30);
    drag(AudioWaveTrimView::RightHandle, -300);
    expect(10, 15);
    seconds = 32;
    select(10, 30);
    drag(AudioWaveTrimView::RightHandle, 300);
    expect(10, 32);
}

TEST_F(Selection, TheLeftEdgeStopsAtTheBeginAndAtItsLimitsAndKeepsTheEnd) {
    select(0, 20);
    drag(AudioWaveTrimView::LeftHandle, -50);
    expect(0, 20);
    select(30, 50);
    drag(AudioWaveTrimView::LeftHandle, -300);
    expect(10, 50);
    drag(AudioWaveTrimView::LeftHandle, 900);
    expect(45, 50);
}

TEST_F(Selection, TheMiddleMovesInsideTheFile) {
    seconds = 30;
    select(2, 22);
    drag(AudioWaveTrimView::Move, 500);
    expect(10, 30);
    drag(AudioWaveTrimView::Move, -500);
    expect(0, 20);
    drag(AudioWaveTrimView::Move, 5);
    expect(0.5, 20.5);
}

TEST_F(Selection, ATypedBeginKeepsTheEndWhereTheLimitsAllowIt) {
    select(10, 40);
    view.setAudioFromTime(15);
    expect(15, 40);
    view.setAudioFromTime(100);
    expect(55, 60);
    select(10, 30);
    seconds = 200;
    select(60, 90);
    view.setAudioFromTime(10); // would give 80 seconds: the length stays and the end moves
    expect(10, 40);
    view.setAudioFromTime(-3);
    expect(0, 40);
}

TEST_F(Selection, MovesItsEndToATypedTime) {
    select(10, 30);
    view.setAudioToTime(25);
    expect(10, 25);
    view.setAudioToTime(2);
    EXPECT_NEAR(view.audioToTime(), 5, 0.001);
    select(10, 30);
    view.setAudioToTime(58); // 48 seconds are too long: the length stays and the begin moves
    expect(38, 58);
    view.setAudioToTime(1000);
    EXPECT_NEAR(view.audioToTime(), 60, 0.001);
}

TEST_F(Selection, StaysInsideAFileOfLessThanFiveSeconds) {
    seconds = 3;
    select(0, 3);
    for (const Type type : {AudioWaveTrimView::LeftHandle, AudioWaveTrimView::RightHandle, AudioWaveTrimView::Move})
        for (const double dx : {-40.0, 40.0}) {
            drag(type, dx);
            expect(0, 3);
        }
    view.setAudioFromTime(1);
    expect(0, 3);
    view.setAudioToTime(2);
    expect(0, 3);
}

TEST_F(Selection, ADrawnSelectionIsLimitedByTheNextDrag) {
    select(0, 58);
    drag(AudioWaveTrimView::LeftHandle, 10);
    expect(18, 58);
    select(10, 11);
    drag(AudioWaveTrimView::RightHandle, 1);
    expect(10, 15);
}

TEST_F(Selection, TheHandlesAreTenPointsWideAndTheLeftOneWins) {
    select(10, 30);
    const auto at = [this](double x) { return view.judgeDragType({x, 50}); };
    EXPECT_EQ(at(4), AudioWaveTrimView::LeftHandle);
    EXPECT_EQ(at(9.9), AudioWaveTrimView::LeftHandle);
    EXPECT_EQ(at(10), AudioWaveTrimView::Move);
    EXPECT_EQ(at(100), AudioWaveTrimView::Move);
    EXPECT_EQ(at(190), AudioWaveTrimView::RightHandle);
    EXPECT_EQ(at(196), AudioWaveTrimView::RightHandle);
    EXPECT_EQ(at(-5), AudioWaveTrimView::Move);
    view.setAudioLength(15);
    EXPECT_EQ(at(7), AudioWaveTrimView::LeftHandle);
    EXPECT_EQ(view.calcuateDragRect(AudioWaveTrimView::RightHandle), QRectF(5, 0, 10, 200));
}

TEST_F(Selection, ReportsItsTimesAfterTheCurrentEvent) {
    const QSignalSpy from(&view, &AudioWaveTrimView::audioFromTimeChanged);
    const QSignalSpy to(&view, &AudioWaveTrimView::audioToTimeChanged);
    view.setAudioFrom(50);
    view.setAudioLength(70);
    EXPECT_EQ(from.count() + to.count(), 0);
    ASSERT_TRUE(waitFor([&] { return from.count() == 1 && to.count() == 1; }));
    expect(5, 12);
}

TEST_F(Selection, KeepsFractionsOfAPoint) {
    view.setAudioFrom(12.3F);
    view.setAudioLength(253.7F);
    EXPECT_NEAR(view.audioToTime(), 26.6, 0.001);
    EXPECT_EQ(view.geometry(), QRect(12, 32, 254, 200));
    view.setAudioFrom(360000);
    EXPECT_EQ(view.x(), 360000);
}

TEST_F(Selection, MovesByTheArrowKeys) {
    seconds = 100;
    select(10, 30);
    QTest::keyClick(&view, Qt::Key_Right);
    expect(10.1, 30.1);
    QTest::keyClick(&view, Qt::Key_Left, Qt::ShiftModifier);
    expect(9.1, 29.1);
    QTest::keyClick(&view, Qt::Key_Left, Qt::ControlModifier);
    expect(9, 29.1);
    QTest::keyClick(&view, Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
    expect(10, 29.1);
    QTest::keyClick(&view, Qt::Key_Right, Qt::AltModifier);
    expect(10, 29.2);
    QTest::keyClick(&view, Qt::Key_Left, Qt::AltModifier | Qt::ShiftModifier);
    expect(10, 28.2);
}

TEST_F(Selection, IsDescribedToScreenReaders) {
    select(10, 40);
    auto* const spoken = QAccessible::queryAccessibleInterface(&view);
    ASSERT_TRUE(spoken);
    EXPECT_EQ(spoken->text(QAccessible::Name), u"Selection"_s);
    EXPECT_EQ(spoken->role(), QAccessible::Slider);
    EXPECT_EQ(spoken->text(QAccessible::Value), u"from 00:00:10 to 00:00:40, 30.0 seconds"_s);
    ASSERT_TRUE(spoken->valueInterface());
    EXPECT_EQ(spoken->valueInterface()->currentValue().toDouble(), 10);
    EXPECT_EQ(spoken->valueInterface()->maximumValue().toDouble(), 30);
    spoken->valueInterface()->setCurrentValue(20);
    expect(20, 50);
}

TEST_F(Selection, HasNoDurationWithoutADelegate) {
    view.setDelegate(nullptr);
    EXPECT_EQ(view.soundDuration(), 0);
}

} // namespace

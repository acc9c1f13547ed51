// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RingtoneMaker/AudioWaveEditView.h"
#include "RingtoneMaker/AudioWaveTrimView.h"
#include "tests/RingtoneMaker/RingtoneWorld.h"
#include "tests/support/RealPointer.h"

#include <QScrollArea>
#include <QScrollBar>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Counts the button events that reach a view.
class Buttons : public QObject {
public:
    explicit Buttons(QWidget& view) { view.installEventFilter(this); }
    int presses = 0;
    int releases = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        presses += event->type() == QEvent::MouseButtonPress;
        releases += event->type() == QEvent::MouseButtonRelease;
        return false;
    }
};

/// The ringtone maker's window under a real window manager, with the X server's pointer.
class RingtoneMakerOnADesktop : public testing::Test {
protected:
    /// A failed test may leave the button pressed.
    void TearDown() override { (void)RealPointer::run({u"mouseup"_s, u"1"_s}); }
    /// Runs @p test while the window is open, modal as in the program.
    void withWindow(double seconds, const std::function<void()>& test) {
        world.open(seconds);
        bool ran = false;
        QTimer::singleShot(0, &world.maker, [&] {
            if (RealPointer::shown(*world.maker.window())) {
                ran = true;
                test();
            }
            world.maker.closeWindow();
        });
        world.maker.showWindow();
        EXPECT_TRUE(ran) << "the window was not shown";
    }
    [[nodiscard]] AudioWaveTrimView& selection() const { return world.outlet<AudioWaveTrimView>("audioWaveTrimView"); }
    [[nodiscard]] AudioWaveEditView& wave() const { return world.outlet<AudioWaveEditView>("audioWaveEditView"); }
    [[nodiscard]] QScrollArea& area() const { return world.outlet<QScrollArea>("audioEditScrollView"); }
    [[nodiscard]] QScrollBar& bar() const { return *area().horizontalScrollBar(); }
    void select(float from, float to) const {
        selection().setAudioFrom(from * 10);
        selection().setAudioLength((to - from) * 10);
        QCoreApplication::processEvents();
    }
    /// The screen position of a point of the outline, in seconds of the recording.
    [[nodiscard]] QPoint at(double seconds) const { return RealPointer::onScreen(wave(), {seconds * 10, 90}); }
    [[nodiscard]] QPoint leftHandle() const { return RealPointer::onScreen(selection(), {4, 90}); }
    [[nodiscard]] QPoint rightHandle() const {
        return RealPointer::onScreen(selection(), {double(selection().audioLength()) - 4, 90});
    }
    [[nodiscard]] QPoint middle() const { return RealPointer::onScreen(selection(), selection().rect().center()); }
    /// @param seconds how far to the right
    [[nodiscard]] static QPoint moved(QPoint from, int seconds) { return from + QPoint(seconds * 10, 0); }
    void expectSelection(double from, double to) const {
        EXPECT_NEAR(selection().audioFromTime(), from, 0.01);
        EXPECT_NEAR(selection().audioToTime(), to, 0.01);
    }
    /// Waits so long that a scrolling timer, if it still ran, would have moved the bar a few times.
    [[nodiscard]] static bool severalTurns() {
        int turns = 0;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, &timer, [&turns] { ++turns; });
        timer.start(30);
        return waitFor([&] { return turns >= 4; });
    }
    RingtoneWorld world;
};

TEST_F(RingtoneMakerOnADesktop, TheRightHandleStopsAtFortyAndAtFiveSeconds) {
    withWindow(200, [this] {
        select(10, 30);
        ASSERT_TRUE(RealPointer::drag(rightHandle(), moved(rightHandle(), 12)));
        expectSelection(10, 42);
        ASSERT_TRUE(RealPointer::drag(rightHandle(), moved(rightHandle(), 18)));
        expectSelection(10, 50);
        ASSERT_TRUE(RealPointer::drag(rightHandle(), moved(rightHandle(), -45)));
        expectSelection(10, 15);
    });
}

TEST_F(RingtoneMakerOnADesktop, TheLeftHandleStopsAtTheLimitsAndAtTheBegin) {
    withWindow(200, [this] {
        select(20, 40);
        ASSERT_TRUE(RealPointer::drag(leftHandle(), moved(leftHandle(), -8)));
        expectSelection(12, 40);
        ASSERT_TRUE(RealPointer::drag(leftHandle(), moved(leftHandle(), 26)));
        expectSelection(35, 40);
        select(30, 60);
        ASSERT_TRUE(RealPointer::drag(leftHandle(), moved(leftHandle(), -25)));
        expectSelection(20, 60);
        select(0, 20);
        ASSERT_TRUE(RealPointer::drag(leftHandle(), moved(leftHandle(), -5)));
        expectSelection(0, 20);
    });
}

TEST_F(RingtoneMakerOnADesktop, TheMiddleMovesTheBoxInsideTheFile) {
    withWindow(30, [this] {
        select(2, 22);
        ASSERT_TRUE(RealPointer::drag(middle(), moved(middle(), 5)));
        expectSelection(7, 27);
        ASSERT_TRUE(RealPointer::drag(middle(), moved(middle(), 20)));
        expectSelection(10, 30);
        ASSERT_TRUE(RealPointer::drag(middle(), moved(middle(), -18)));
        expectSelection(0, 20);
    });
}

TEST_F(RingtoneMakerOnADesktop, ADragOnTheOutlineDrawsASelectionOfAnyLength) {
    withWindow(200, [this] {
        select(0, 5);
        ASSERT_TRUE(RealPointer::drag(at(10), at(70)));
        expectSelection(10, 70);
        select(0, 5);
        ASSERT_TRUE(RealPointer::drag(at(33), at(30)));
        expectSelection(30, 33);
    });
}

TEST_F(RingtoneMakerOnADesktop, APressWithoutAMoveChangesNothing) {
    withWindow(200, [this] {
        select(10, 30);
        const QList<std::pair<QWidget*, QPoint>> places{
            {&wave(), at(60)}, {&selection(), leftHandle()}, {&selection(), middle()}, {&selection(), rightHandle()}};
        for (const auto& [view, place] : places) {
            Buttons buttons(*view);
            ASSERT_TRUE(RealPointer::run(RealPointer::moveTo(place) + QStringList{u"click"_s, u"1"_s}));
            ASSERT_TRUE(waitFor([&] { return buttons.presses == 1 && buttons.releases == 1; }));
            expectSelection(10, 30);
        }
        EXPECT_EQ(bar().value(), 0);
    });
}

TEST_F(RingtoneMakerOnADesktop, AnUnmovedPointerBeyondTheEdgeKeepsScrollingWhileASelectionIsDrawn) {
    withWindow(600, [this] {
        select(0, 5);
        const QPoint outside = RealPointer::onScreen(area(), QPointF(area().width() + 20, 120));
        ASSERT_TRUE(RealPointer::run(RealPointer::pressWords(at(50), outside)));
        ASSERT_TRUE(waitFor([&] { return bar().value() > 1500; })) << "without any further event";
        Buttons buttons(wave());
        ASSERT_TRUE(RealPointer::run({u"mouseup"_s, u"1"_s}));
        ASSERT_TRUE(waitFor([&] { return buttons.releases == 1; }));
        const int stopped = bar().value();
        EXPECT_NEAR(selection().audioFromTime(), 50, 0.01);
        // The selection's end is below the pointer, wherever the view scrolled to.
        EXPECT_NEAR(selection().audioToTime(), wave().mapFromGlobal(outside).x() / 10.0, 0.01);
        ASSERT_TRUE(severalTurns());
        EXPECT_EQ(bar().value(), stopped);
    });
}

TEST_F(RingtoneMakerOnADesktop, ABoxHeldAtTheEdgeKeepsMovingAndReturns) {
    withWindow(600, [this] {
        select(20, 40);
        const QPoint right = RealPointer::onScreen(area(), QPointF(area().width() + 20, 120));
        const QPoint left = RealPointer::onScreen(area(), QPointF(-20, 120));
        ASSERT_TRUE(RealPointer::run(RealPointer::pressWords(middle(), right)));
        ASSERT_TRUE(waitFor([&] { return selection().audioFromTime() > 200; }));
        EXPECT_NEAR(selection().audioLength(), 200, 0.01);
        EXPECT_GT(bar().value(), 1000);
        ASSERT_TRUE(RealPointer::run(RealPointer::moveTo(left)));
        ASSERT_TRUE(waitFor([&] { return bar().value() == 0 && selection().audioFromTime() == 0; }));
        ASSERT_TRUE(RealPointer::run({u"mouseup"_s, u"1"_s}));
        expectSelection(0, 20);
    });
}

} // namespace

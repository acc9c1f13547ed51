// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The burn window under a real window manager, with a real pointer and real keys.
#include "Source/View/QtAlerts.h"
#include "Source/View/Theme.h"
#include "tests/Source/CDBurn/BurnWorld.h"
#include "tests/support/XvfbSession.h"

#include <QApplication>
#include <QDropEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class BurnWindowOnADesktop : public testing::Test {
protected:
    BurnWindowOnADesktop() { Theme::install(*qApp, nullptr); }

    void open() {
        world.insert(*world.drive);
        world.open(BurnWorld::records());
        ASSERT_TRUE(waitFor([this] { return world.controller->window()->isActiveWindow(); }));
    }
    static bool xdotool(const QStringList& arguments) { return XvfbSession::current()->xdotool(arguments); }
    static void pointTo(const QPoint& place) {
        EXPECT_TRUE(xdotool({u"mousemove"_s, QString::number(place.x()), QString::number(place.y())}));
    }
    /// Clicks a widget once the pointer is on it: the window manager may still be moving the window.
    static void click(const QWidget& widget) {
        ASSERT_TRUE(waitFor([&] {
            pointTo(QPoint()); // a pointer that does not move sends no event
            pointTo(widget.mapToGlobal(widget.rect().center()));
            return waitFor([&] { return widget.underMouse(); }, 500);
        }));
        EXPECT_TRUE(xdotool({u"click"_s, u"1"_s}));
    }
    static void keys(const QString& combination) { EXPECT_TRUE(xdotool({u"key"_s, combination})); }
    [[nodiscard]] QRect cell(int row) const {
        AudioDataSourceView& list = world.controller->trackList();
        const QRect cell = list.visualRect(list.model()->index(row, TrackListModel::AudioName));
        return {list.viewport()->mapToGlobal(cell.topLeft()), cell.size()};
    }

    BurnWorld world;
};

/// Records the positions of a drag over a widget.
class DragWatch : public QObject {
public:
    explicit DragWatch(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::DragMove)
            at = static_cast<QDropEvent*>(event)->position().toPoint();
        return false;
    }
    std::optional<QPoint> at;
};

} // namespace

TEST_F(BurnWindowOnADesktop, ARowIsDraggedToAnotherPlace) {
    open();
    const QStringList before = world.names();
    AudioDataSourceView& list = world.controller->trackList();
    DragWatch watch(*list.viewport());
    // The lower half of the fourth row: drops behind it.
    const QPoint target = cell(3).center() + QPoint(0, 6);
    click(list); // now the pointer is in the window
    pointTo(cell(0).center());
    ASSERT_TRUE(xdotool({u"mousedown"_s, u"1"_s}));
    // The drag runs its own loop, in which this timer continues.
    QTimer hand;
    int step = 0;
    QObject::connect(&hand, &QTimer::timeout, [&] {
        if (!watch.at)
            pointTo(cell(0).center() + QPoint(30 + step++ % 5, 4));
        else if (*watch.at != list.viewport()->mapFromGlobal(target))
            pointTo(target);
        else if (step >= 0) {
            step = -1;
            EXPECT_TRUE(xdotool({u"mouseup"_s, u"1"_s}));
        }
    });
    hand.start(50);
    ASSERT_TRUE(waitFor([&] { return world.names() != before; }));
    hand.stop();
    EXPECT_EQ(world.names(), (QStringList{before[1], before[2], before[3], before[0], before[4]}));
    EXPECT_EQ(list.selectionModel()->selectedRows().value(0).row(), 3) << "the row stays selected";
    EXPECT_EQ(world.controller->trackList().dataCountNum(), 5);
}

TEST_F(BurnWindowOnADesktop, TheSheetKeepsTheWindowOpenAndCancelEndsBoth) {
    open();
    QtAlerts alerts;
    Platform::services().alerts = &alerts;
    click(world.outlet("btnBurn_"));
    ASSERT_TRUE(waitFor([this] { return world.sheet().isActiveWindow(); }));
    const auto burn = world.recording.lastBurn();
    burn->reach(Platform::DRStatusStateTrackWrite, 0.03);
    keys(u"Escape"_s); // there is nothing to cancel yet
    burn->reach(Platform::DRStatusStateTrackWrite, 0.5);

    const auto ask = [this](const QString& press, const QString& answer) {
        QString text;
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box || !box->isActiveWindow())
                return;
            look.stop();
            text = box->text() + u'|' + box->informativeText();
            for (QAbstractButton* button : box->buttons())
                if (button->text() == answer)
                    click(*button);
        });
        look.start(20);
        if (press.isEmpty())
            click(*world.sheet().findChild<QPushButton*>(u"btnCancel_"_s));
        else
            keys(press);
        EXPECT_TRUE(
            waitFor([&] { return !text.isEmpty() && !qobject_cast<QMessageBox*>(QApplication::activeModalWidget()); }));
        EXPECT_EQ(text, u"Warning:|Are you sure to end the task?"_s);
    };
    ask(u"Escape"_s, u"Cancel"_s);
    EXPECT_TRUE(world.sheet().isVisible());
    EXPECT_EQ(burn->aborts, 0);
    ask({}, u"OK"_s);
    EXPECT_EQ(burn->aborts, 1);
    EXPECT_FALSE(world.sheet().isVisible());
    EXPECT_FALSE(world.controller->window()->isVisible());
}

TEST_F(BurnWindowOnADesktop, TheKeyboardAloneBurns) {
    open();
    for (const char* each : {"Home", "space", "alt+Down", "Return"}) {
        keys(QString::fromLatin1(each));
    }
    ASSERT_TRUE(waitFor([this] { return world.recording.lastBurn() != nullptr; }));
    QStringList names;
    for (const auto& track : *world.recording.lastBurn()->layout)
        names.append(track->path().section(u'/', -1));
    EXPECT_EQ(names, (QStringList{u"Rain.m4a"_s, u"Choir.m4a"_s, u"Lecture 7.m4a"_s, u"Encore.m4a"_s}));
    EXPECT_EQ(world.names().value(1), u"Interview with Ada.m4a"_s);
}

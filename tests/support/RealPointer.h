// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/WaitFor.h"

#include <QPoint>
#include <QProcess>
#include <QTimer>
#include <QWidget>
#include <QWindow>
#include <functional>

/// Controls the pointer of the X server in tests with a display (XvfbSession). This program's event loop continues
/// while xdotool runs.
namespace RealPointer {

/// The screen position of a point of @p widget.
[[nodiscard]] inline QPoint onScreen(const QWidget& widget, QPointF place) {
    return widget.mapToGlobal(place.toPoint());
}

/// The xdotool arguments that move the pointer there.
[[nodiscard]] inline QStringList moveTo(QPoint place) {
    return {QStringLiteral("mousemove"), QString::number(place.x()), QString::number(place.y())};
}

/// Runs xdotool with these arguments.
[[nodiscard]] inline bool run(const QStringList& words) {
    QProcess pointer;
    pointer.start(QStringLiteral("xdotool"), words);
    return waitFor([&] { return pointer.state() == QProcess::NotRunning; }, 60000) && pointer.exitCode() == 0;
}

/// Notes where the pointer is in a window, by the X server's events.
class PointerNote : public QObject {
public:
    explicit PointerNote(QWindow& window) { window.installEventFilter(this); }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::MouseMove || event->type() == QEvent::Enter)
            place = static_cast<QSinglePointEvent*>(event)->position().toPoint();
        return QObject::eventFilter(watched, event);
    }
    QPoint place{-1, -1};
};

/// Whether the window manager shows @p window, has made it the active one, and no longer moves it: the pointer, sent to
/// its middle, arrives there.
[[nodiscard]] inline bool shown(QWidget& window) {
    if (!waitFor([&] { return window.windowHandle() && window.windowHandle()->isExposed(); }) ||
        !waitFor([&] { return window.isActiveWindow(); }))
        return false;
    PointerNote note(*window.windowHandle());
    return waitFor([&] {
        note.place = {-1, -1};
        const QPoint middle = window.rect().center();
        // A pointer that does not move sends no event.
        return run(moveTo({0, 0}) + moveTo(window.mapToGlobal(middle))) &&
               waitFor([&] { return note.place == middle; }, 500);
    });
}

/// The arguments that press the left button at @p from and move in steps to @p to. The button stays pressed.
[[nodiscard]] inline QStringList pressWords(QPoint from, QPoint to) {
    using namespace Qt::StringLiterals;
    QStringList words = moveTo(from) + QStringList{u"sleep"_s, u"0.1"_s, u"mousedown"_s, u"1"_s};
    constexpr int steps = 8;
    for (int i = 1; i <= steps; ++i)
        words += QStringList{u"sleep"_s, u"0.05"_s} + moveTo(from + (to - from) * i / steps);
    return words;
}

/// Drags from one screen position to another in steps, while this program's event loop continues, also inside a drag's
/// own loop, in which this function does not return before the button is released. It is released when @p ready returns
/// true; until then the pointer moves slightly, like a hand. With @p cancel, Escape is pressed first.
[[nodiscard]] inline bool drag(
    QPoint from, QPoint to, const std::function<bool()>& ready = [] { return true; }, bool cancel = false) {
    using namespace Qt::StringLiterals;
    QProcess pointer;
    pointer.start(u"xdotool"_s, pressWords(from, to));
    int turn = 0;
    bool released = false;
    QTimer hand;
    QObject::connect(&hand, &QTimer::timeout, &hand, [&] {
        if (released || pointer.state() != QProcess::NotRunning)
            return;
        if (!ready() && ++turn < 300) {
            pointer.start(u"xdotool"_s, moveTo(to + QPoint(turn % 2, 0)));
            return;
        }
        released = true;
        pointer.start(u"xdotool"_s, cancel
                                        ? QStringList{u"key"_s, u"Escape"_s, u"sleep"_s, u"0.2"_s, u"mouseup"_s, u"1"_s}
                                        : QStringList{u"mouseup"_s, u"1"_s});
    });
    hand.start(40);
    return waitFor([&] { return released && pointer.state() == QProcess::NotRunning; }, 60000) && turn < 300;
}

} // namespace RealPointer

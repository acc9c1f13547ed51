// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The keyboard focus in every window: it is always visible, and Tab goes in reading order.
#include "tests/Accessibility/EveryWindow.h"
#include "tests/support/Screenshot.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QString named(const QWidget& widget) {
    return u"%1 “%2”"_s.arg(QLatin1StringView(widget.metaObject()->className()),
                            widget.objectName().isEmpty() ? widget.accessibleName() : widget.objectName());
}

QRect placeOf(const QWidget& widget) {
    return {widget.mapTo(widget.window(), QPoint(0, 0)), widget.size()};
}

/// The controls that Tab reaches, in its order, beginning with the first one of the window.
QList<QWidget*> tabOrder(QWidget& window) {
    QList<QWidget*> order;
    for (QWidget* each = window.nextInFocusChain(); each && each != &window; each = each->nextInFocusChain()) {
        const bool reached = (each->focusPolicy() & Qt::TabFocus) && !each->focusProxy() && each->isEnabled() &&
                             each->isVisibleTo(&window) && each->window() == &window;
        if (reached)
            order.append(each);
    }
    return order;
}

/// Whether @p next may follow @p before: it is further on in the same row, in a lower row, or in a column further on.
bool isReadAfter(const QRect& before, const QRect& next, bool mirrored) {
    const bool besideBefore = mirrored ? next.right() <= before.left() : next.left() >= before.right();
    if (besideBefore)
        return true; // the same row, or a column beside
    return next.top() >= before.top();
}

QStringList wrongOrder(QWidget& window) {
    QStringList wrong;
    const QList<QWidget*> order = tabOrder(window);
    for (qsizetype i = 1; i < order.size(); ++i)
        if (!isReadAfter(placeOf(*order[i - 1]), placeOf(*order[i]), window.isRightToLeft()))
            wrong.append(named(*order[i - 1]) + u" -> "_s + named(*order[i]));
    return wrong;
}

/// The picture of the window around this control.
QImage picture(const QWidget& widget) {
    QImage image = Screenshot::take(*widget.window(), u"focus"_s);
    return image.copy(placeOf(widget).adjusted(-4, -4, 4, 4));
}

qsizetype differing(const QImage& one, const QImage& other) {
    qsizetype count = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            count += one.pixel(x, y) != other.pixel(x, y) ? 1 : 0;
    return count;
}

/// A blinking cursor must not count as a sign of the focus, nor selected text as a difference.
struct NoBlinking {
    NoBlinking() { QApplication::setCursorFlashTime(0); }
    ~NoBlinking() { QApplication::setCursorFlashTime(before); }
    int before = QApplication::cursorFlashTime();
};

} // namespace

TEST(KeyboardFocus, IsVisibleOnEveryControl) {
    const NoBlinking still;
    int looked = 0;
    EveryWindow([&](QWidget& window, const QString& name) {
        if (qobject_cast<QMenu*>(&window))
            return; // a menu shows its current item
        for (const auto shade : {Theme::Shade::Light, Theme::Shade::Dark}) {
            Theme::apply(shade);
            QCoreApplication::processEvents();
            const QList<QWidget*> order = tabOrder(window);
            for (QWidget* each : order) {
                // Another control has the focus in the picture without it; of a single control the focus is taken away.
                QWidget* other = order.size() > 1 ? order[each == order.first() ? 1 : 0] : nullptr;
                const auto focus = [&](QWidget* widget) {
                    if (widget)
                        widget->setFocus(Qt::TabFocusReason);
                    else if (QWidget* has = window.focusWidget())
                        has->clearFocus();
                    QCoreApplication::processEvents();
                };
                focus(other);
                const QImage without = picture(*each);
                focus(each);
                if (!each->hasFocus())
                    continue; // it passed the focus on, as the window told it to
                const QImage with = picture(*each);
                ++looked;
                EXPECT_GT(differing(with, without), 12)
                    << qPrintable(name) << (shade == Theme::Shade::Dark ? " dark: " : " light: ")
                    << qPrintable(named(*each)) << " looks the same with and without the focus";
            }
        }
        Theme::apply(Theme::Shade::Light);
    }).open();
    EXPECT_GT(looked, 100);
}

TEST(KeyboardFocus, TabGoesInReadingOrder) {
    EveryWindow([](QWidget& window, const QString& name) {
        EXPECT_TRUE(wrongOrder(window).isEmpty())
            << qPrintable(name) << ": " << qPrintable(wrongOrder(window).join(u"; "_s));
    }).open();
}

TEST(KeyboardFocus, TabGoesInReadingOrderFromRightToLeft) {
    QApplication::setLayoutDirection(Qt::RightToLeft);
    EveryWindow([](QWidget& window, const QString& name) {
        EXPECT_TRUE(wrongOrder(window).isEmpty())
            << qPrintable(name) << ": " << qPrintable(wrongOrder(window).join(u"; "_s));
    }).open();
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

TEST(KeyboardFocus, TheTabKeyFollowsThatOrder) {
    EveryWindow([](QWidget& window, const QString& name) {
        const QList<QWidget*> order = tabOrder(window);
        if (order.size() < 2 || qobject_cast<QMenu*>(&window))
            return;
        order.first()->setFocus(Qt::TabFocusReason);
        for (qsizetype i = 1; i < order.size(); ++i) {
            QTest::keyClick(window.windowHandle(), Qt::Key_Tab);
            EXPECT_EQ(window.focusWidget(), order[i])
                << qPrintable(name) << ": "
                << (window.focusWidget() ? qPrintable(named(*window.focusWidget())) : "nothing") << " instead of "
                << qPrintable(named(*order[i]));
        }
    }).open();
}

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Text at 200 %: no window cuts a text off. All text of this program is twice as large, as with the desktop's setting;
// pictures and distances are not. When SONAPHEX_SCREENSHOTS names a folder, the pictures are saved there.
#include "Source/View/ElidedLabel.h"
#include "Source/View/TabularLabel.h"
#include "tests/Accessibility/EveryWindow.h"
#include "tests/support/Screenshot.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QScrollArea>
#include <QToolButton>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The application's typeface twice as large. A desktop that scales everything scales the room for a text with it; this
/// is the harder case.
struct TwiceAsLarge {
    TwiceAsLarge() {
        Theme::install(*qApp, nullptr);
        before = QApplication::font();
        QFont large = before;
        large.setPointSizeF(2 * before.pointSizeF());
        QApplication::setFont(large);
    }
    ~TwiceAsLarge() { QApplication::setFont(before); }
    QFont before;
};

QString named(const QWidget& widget, const QString& text) {
    return u"%1 “%2”: %3"_s.arg(QLatin1StringView(widget.metaObject()->className()), widget.objectName(), text);
}

QSize textSize(const QLabel& label) {
    if (!label.wordWrap())
        return label.fontMetrics().size(label.buddy() ? Qt::TextShowMnemonic : 0, label.text());
    const QRect room(0, 0, label.contentsRect().width(), 100000);
    return label.fontMetrics().boundingRect(room, int(label.alignment() | Qt::TextWordWrap), label.text()).size();
}

/// The visible texts that do not fit their widgets. A text that is elided with a tool tip is whole there.
QStringList cutOff(const QWidget& window) {
    QStringList found;
    for (const QWidget* each : window.findChildren<QWidget*>()) {
        if (!each->isVisible() || each->window() != &window)
            continue;
        const QRect place(each->mapTo(&window, QPoint(0, 0)), each->size());
        const bool scrolls = [&] {
            for (const QWidget* parent = each->parentWidget(); parent; parent = parent->parentWidget())
                if (qobject_cast<const QAbstractScrollArea*>(parent))
                    return true;
            return false;
        }();
        if (!scrolls && !each->size().isEmpty() && each->objectName() != u"fileConvertingTipView_"_s &&
            !window.rect().contains(place))
            found.append(named(*each, u"beyond the window's edge"_s));
        if (const auto* label = qobject_cast<const QLabel*>(each);
            label && !label->text().isEmpty() && label->toolTip().isEmpty()) {
            const QSize text = textSize(*label);
            if (text.width() > label->width() + 1 || text.height() > label->height() + 1)
                found.append(named(*label, label->text()));
        }
        if (qobject_cast<const TabularLabel*>(each) &&
            (each->width() < each->sizeHint().width() || each->height() < each->sizeHint().height()))
            found.append(named(*each, u"a time"_s));
        if (qobject_cast<const ElidedLabel*>(each) && each->height() < each->fontMetrics().height())
            found.append(named(*each, u"too low"_s));
        const auto* tool = qobject_cast<const QToolButton*>(each);
        const bool showsText = !tool || tool->toolButtonStyle() != Qt::ToolButtonIconOnly;
        const bool control = qobject_cast<const QAbstractButton*>(each) || qobject_cast<const QComboBox*>(each) ||
                             qobject_cast<const QLineEdit*>(each);
        if (control && showsText && each->height() < each->fontMetrics().height() && each->property("text").isValid() &&
            !each->property("text").toString().isEmpty())
            found.append(named(*each, u"too low"_s));
        if (const auto* button = qobject_cast<const QAbstractButton*>(each);
            button && showsText && !button->text().isEmpty() && button->sizeHint().width() > button->width() + 1)
            found.append(named(*button, button->text()));
        if (const auto* list = qobject_cast<const QAbstractItemView*>(each); list && list->model())
            for (int row = 0; row < std::min(3, list->model()->rowCount()); ++row)
                for (int column = 0; column < list->model()->columnCount(); ++column) {
                    const QModelIndex cell = list->model()->index(row, column);
                    const QString text = cell.data().toString();
                    const QRect room = list->visualRect(cell);
                    if (room.isEmpty() || text.isEmpty())
                        continue;
                    if (room.height() < list->fontMetrics().height())
                        found.append(named(*list, u"a row is too low"_s));
                    // Names are shortened and whole in the tool tip; a number must be whole.
                    if (text.front().isDigit() && room.width() < list->fontMetrics().horizontalAdvance(text) + 4)
                        found.append(named(*list, text));
                }
    }
    return found;
}

} // namespace

TEST(LargeText, IsCutOffInNoWindow) {
    const TwiceAsLarge text;
    ASSERT_GE(QApplication::font().pointSizeF(), 20);
    EveryWindow([](QWidget& window, const QString& name) {
        if (qobject_cast<QMenu*>(&window))
            return; // a menu is as large as its items
        Screenshot::take(window, u"large-"_s + QString(name).replace(u' ', u'-'));
        QStringList found = cutOff(window);
        if (!window.screen()->availableSize().isEmpty() &&
            (window.width() > window.screen()->availableSize().width() ||
             window.height() > window.screen()->availableSize().height()))
            found.append(u"larger than the screen"_s);
        EXPECT_TRUE(found.isEmpty()) << qPrintable(name) << " " << window.width() << "x" << window.height() << "\n  "
                                     << qPrintable(found.join(u"\n  "_s));
    }).open();
}

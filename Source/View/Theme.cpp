// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/Theme.h"

#include "Platform/Desktop/ColorScheme.h"
#include "Source/View/NamedImages.h"
#include "Source/View/SpokenField.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QFontDatabase>
#include <QLabel>
#include <QMessageBox>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

Theme::Shade currentShade = Theme::Shade::Light;

// Fusion draws the outline of an empty check box as a darker shade of the window, which is nearly invisible on a dark
// one.
class SonaphexStyle : public QProxyStyle {
public:
    SonaphexStyle() : QProxyStyle(QStyleFactory::create(u"Fusion"_s)) {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        if (element == PE_FrameLineEdit) {
            drawFieldFrame(*option, *painter);
            return;
        }
        if (element == PE_FrameFocusRect) {
            drawFocus(*option, *painter, option->rect);
            return;
        }
        const bool box = element == PE_IndicatorCheckBox || element == PE_IndicatorItemViewItemCheck;
        if (!box && element != PE_IndicatorRadioButton) {
            QProxyStyle::drawPrimitive(element, option, painter, widget);
            if (element == PE_PanelButtonCommand && option->state & State_HasFocus)
                drawFocus(*option, *painter, option->rect);
            return;
        }
        const QPalette& colors = option->palette;
        const bool enabled = option->state & State_Enabled;
        const auto group = enabled ? QPalette::Active : QPalette::Disabled;
        const bool on = option->state & (State_On | State_NoChange);
        const QColor accent = colors.color(group, QPalette::Highlight);
        QColor outline = Theme::outline(colors, enabled);
        if (option->state & State_MouseOver && enabled)
            outline = accent;
        QColor fill = on ? accent : colors.color(group, QPalette::Base);
        if (option->state & State_Sunken)
            fill = fill.darker(112);

        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(on ? QPen(accent.darker(115), 1) : QPen(outline, 1));
        painter->setBrush(fill);
        const int side = qMin(option->rect.width(), option->rect.height());
        QRectF square(0, 0, side, side);
        square.moveCenter(QRectF(option->rect).center());
        square.adjust(1, 1, -1, -1);
        if (box)
            painter->drawRoundedRect(square, 3, 3);
        else
            painter->drawEllipse(square);
        if (on) {
            const QColor mark = colors.color(group, QPalette::HighlightedText);
            const auto at = [&](qreal x, qreal y) {
                return QPointF(square.left() + x * square.width(), square.top() + y * square.height());
            };
            painter->setPen(QPen(mark, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
            painter->setBrush(Qt::NoBrush);
            if (!box) {
                painter->setPen(Qt::NoPen);
                painter->setBrush(mark);
                painter->drawEllipse(square.center(), square.width() / 5, square.width() / 5);
            } else if (option->state & State_NoChange) {
                painter->drawLine(at(0.25, 0.5), at(0.75, 0.5));
            } else {
                painter->drawPolyline(QPolygonF{at(0.24, 0.52), at(0.43, 0.71), at(0.77, 0.31)});
            }
        }
        painter->restore();
    }

    // Fusion shows the focus only after Tab was pressed, and thinly. A dialog or a command may give it to a control,
    // too.
    static void drawFocus(const QStyleOption& option, QPainter& painter, const QRectF& rect) {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(option.palette.color(QPalette::Active, QPalette::Highlight), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(rect.adjusted(1, 1, -1, -1), 3, 3);
        painter.restore();
    }

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        if ((control == CC_ComboBox || control == CC_SpinBox || control == CC_Slider) && option->state & State_HasFocus)
            drawFocus(*option, *painter, option->rect);
    }

    // The frame of a text field has the same problem.
    static void drawFieldFrame(const QStyleOption& option, QPainter& painter) {
        const bool enabled = option.state & State_Enabled;
        const auto group = enabled ? QPalette::Active : QPalette::Disabled;
        const bool focused = enabled && option.state & State_HasFocus;
        const QColor outline =
            focused ? option.palette.color(group, QPalette::Highlight) : Theme::outline(option.palette, enabled);
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(outline, focused ? 2 : 1));
        painter.setBrush(Qt::NoBrush);
        const qreal inset = focused ? 1 : 0.5;
        painter.drawRoundedRect(QRectF(option.rect).adjusted(inset, inset, -inset, -inset), 3, 3);
        painter.restore();
    }

    // A name that is longer than its box is elided in the middle; Qt 6.4 would cut it off.
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
        const auto* box = qstyleoption_cast<const QStyleOptionComboBox*>(option);
        if (element != CE_ComboBoxLabel || !box) {
            QProxyStyle::drawControl(element, option, painter, widget);
            return;
        }
        QStyleOptionComboBox elided = *box;
        int room = subControlRect(CC_ComboBox, box, SC_ComboBoxEditField, widget).width() - 4;
        if (!box->currentIcon.isNull())
            room -= box->iconSize.width() + 4;
        elided.currentText = box->fontMetrics.elidedText(box->currentText, Qt::ElideMiddle, room);
        QProxyStyle::drawControl(element, &elided, painter, widget);
    }

    // Keeps images sharp at 1.5 pixels per point.
    void drawItemPixmap(QPainter* painter, const QRect& rect, int alignment, const QPixmap& pixmap) const override {
        const QSize size = pixmap.deviceIndependentSize().toSize();
        const QRect place = alignedRect(painter->layoutDirection(), Qt::Alignment(alignment), size, rect);
        painter->drawPixmap(NamedImages::onWholePixels(*painter, place.topLeft()), pixmap);
    }

    // Names for screen readers that Qt leaves empty.
    void polish(QWidget* widget) override {
        QProxyStyle::polish(widget);
        if (auto* box = qobject_cast<QComboBox*>(widget); box && !box->accessibleName().isEmpty()) {
            // Qt names a combo box after its current item, and its list not at all.
            box->view()->setAccessibleName(box->accessibleName());
            if (box->accessibleDescription().isEmpty())
                box->setAccessibleDescription(box->accessibleName());
        }
        auto* sign = qobject_cast<QLabel*>(widget);
        if (const auto* box = sign ? qobject_cast<QMessageBox*>(sign->parentWidget()) : nullptr;
            box && sign->objectName() == u"qt_msgboxex_icon_label")
            sign->setAccessibleName(box->icon() == QMessageBox::Warning
                                        ? QCoreApplication::translate("Theme", "Warning")
                                        : QGuiApplication::applicationDisplayName());
    }
    using QProxyStyle::polish;

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* more) const override {
        if (hint == SH_DialogButtonBox_ButtonsHaveIcons)
            return 0;
        // Qt draws an underlined letter by itself, which breaks the joined letters of Arabic. The key works anyway.
        if (hint == SH_UnderlineShortcut && QGuiApplication::isRightToLeft())
            return 0;
        return QProxyStyle::styleHint(hint, option, widget, more);
    }

    QIcon standardIcon(StandardPixmap which, const QStyleOption* option, const QWidget* widget) const override {
        if (which == SP_MessageBoxWarning)
            return NamedImages::icon(u"warning"_s, [](QIcon::Mode) { return Theme::warning(); });
        // Qt searches the icon themes for this one and decodes its own pictures, 5 ms of the window's start.
        if (which == SP_LineEditClearButton)
            return NamedImages::icon(u"close"_s);
        return QProxyStyle::standardIcon(which, option, widget);
    }

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
        switch (metric) {
        case PM_LayoutLeftMargin:
        case PM_LayoutRightMargin:
        case PM_LayoutTopMargin:
        case PM_LayoutBottomMargin:
            return 16;
        case PM_LayoutHorizontalSpacing:
        case PM_LayoutVerticalSpacing:
            return 8;
        case PM_IndicatorWidth:
        case PM_IndicatorHeight:
            return 16;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
        }
    }
};

struct Colors {
    QColor window, base, alternate, text, button, highlight, onHighlight, link, quiet, disabled, tip, tipText;
};

Colors colors(Theme::Shade shade) {
    if (shade == Theme::Shade::Dark)
        return {QColor(0x24272b), QColor(0x1b1e21), QColor(0x202327), QColor(0xe8eaed),
                QColor(0x34383d), QColor(0x2c75c5), QColor(0xffffff), QColor(0x6cb4ff),
                QColor(0x9aa0a7), QColor(0x858b92), QColor(0x3a3f45), QColor(0xf2f3f5)};
    return {QColor(0xf2f3f5), QColor(0xffffff), QColor(0xf7f8fa), QColor(0x1d2125), QColor(0xfbfbfc), QColor(0x2c75c5),
            QColor(0xffffff), QColor(0x1a63ad), QColor(0x666c73), QColor(0x9aa0a6), QColor(0x2b3035), QColor(0xf2f3f5)};
}

} // namespace

namespace Theme {

QPalette palette(Shade shade) {
    const Colors c = colors(shade);
    QPalette p(c.button, c.window);
    const auto everywhere = [&p](QPalette::ColorRole role, const QColor& color) { p.setColor(role, color); };
    everywhere(QPalette::Window, c.window);
    everywhere(QPalette::WindowText, c.text);
    everywhere(QPalette::Base, c.base);
    everywhere(QPalette::AlternateBase, c.alternate);
    everywhere(QPalette::Text, c.text);
    everywhere(QPalette::Button, c.button);
    everywhere(QPalette::ButtonText, c.text);
    everywhere(QPalette::BrightText, Qt::white);
    everywhere(QPalette::Highlight, c.highlight);
    everywhere(QPalette::HighlightedText, c.onHighlight);
    everywhere(QPalette::Link, c.link);
    everywhere(QPalette::LinkVisited, c.link);
    everywhere(QPalette::ToolTipBase, c.tip);
    everywhere(QPalette::ToolTipText, c.tipText);
    everywhere(QPalette::PlaceholderText, c.quiet);
    everywhere(QPalette::Light, c.button.lighter(shade == Shade::Dark ? 140 : 105));
    everywhere(QPalette::Midlight, c.button.lighter(shade == Shade::Dark ? 115 : 102));
    everywhere(QPalette::Mid, c.button.darker(130));
    everywhere(QPalette::Dark, c.button.darker(160));
    everywhere(QPalette::Shadow, shade == Shade::Dark ? QColor(0x0c0d0e) : QColor(0x9aa0a6));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::PlaceholderText})
        p.setColor(QPalette::Disabled, role, c.disabled);
    p.setColor(QPalette::Disabled, QPalette::Base, c.window);
    p.setColor(QPalette::Disabled, QPalette::Highlight, c.disabled);
    p.setColor(QPalette::Disabled, QPalette::HighlightedText, c.window);
    // A selection in an inactive window stays visible but less prominent.
    p.setColor(QPalette::Inactive, QPalette::Highlight, shade == Shade::Dark ? QColor(0x3d4a58) : QColor(0xcfdbe8));
    p.setColor(QPalette::Inactive, QPalette::HighlightedText, c.text);
    return p;
}

Shade shade() {
    return currentShade;
}

int enlarged(int pixels) {
    constexpr double usual = 10; // points
    return int(pixels * std::max(1.0, QGuiApplication::font().pointSizeF() / usual));
}

QColor outline(const QPalette& colors, bool enabled) {
    QColor color = colors.color(enabled ? QPalette::Active : QPalette::Disabled, QPalette::WindowText);
    color.setAlphaF(enabled ? 0.55F : 0.3F);
    return color;
}

QColor warning() {
    return currentShade == Shade::Dark ? QColor(0xffc857) : QColor(0xc07400);
}

QColor alarmGround() {
    return QColor(0x101418);
}

void apply(Shade shade) {
    currentShade = shade;
    QApplication::setPalette(palette(shade));
    for (QWidget* window : QApplication::topLevelWidgets())
        window->update();
}

void install(QApplication& application, Platform::ColorScheme* scheme) {
    SpokenField::install();
    QApplication::setStyle(new SonaphexStyle);
    QFont font = QApplication::font();
    if (QFontDatabase::hasFamily(u"Inter"_s))
        font.setFamily(u"Inter"_s);
    if (font.pointSizeF() < 10)
        font.setPointSizeF(10);
    QApplication::setFont(font);

    const auto follow = [scheme] {
        const bool dark = scheme && scheme->preference() == Platform::ColorScheme::Preference::Dark;
        apply(dark ? Shade::Dark : Shade::Light);
    };
    follow();
    if (scheme)
        QObject::connect(scheme, &Platform::ColorScheme::changed, &application, follow);
}

namespace Glass {
QColor top() {
    return QColor(0x22303b);
}
QColor bottom() {
    return QColor(0x111b24);
}
QColor warning() {
    return QColor(0xffc857);
}
QColor focus() {
    return QColor(0x6cb4ff);
}
QColor text() {
    return QColor(0xf0f6fa);
}
QColor dimText() {
    return QColor(0x93a6b4);
}
QColor recording() {
    return QColor(0xe5434a);
}
QColor level() {
    return QColor::fromRgbF(78.0F / 255, 242.0F / 255, 1.0F);
}
QColor clipping() {
    return QColor(0xff6b5e);
}
QColor button() {
    return QColor(0x2c3f4d);
}
} // namespace Glass

namespace Strip {
QColor ground() {
    return currentShade == Shade::Dark ? QColor(0x31353a) : QColor::fromRgbF(0.78F, 0.78F, 0.78F);
}
QColor text(bool enabled) {
    if (currentShade == Shade::Dark)
        return palette(Shade::Dark).color(enabled ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText);
    return enabled ? QColor(0x1f242a) : QColor(0x80, 0x83, 0x88);
}
QColor focus() {
    return currentShade == Shade::Dark ? QColor(0x6cb4ff) : QColor(0x1a5fa8);
}
} // namespace Strip

} // namespace Theme

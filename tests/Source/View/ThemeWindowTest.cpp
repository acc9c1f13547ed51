// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/Theme.h"

#include "Platform/Desktop/ColorScheme.h"
#include "tests/support/Screenshot.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QStyle>
#include <gtest/gtest.h>

namespace {

double luminance(const QColor& color) {
    const auto linear = [](double v) { return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& a, const QColor& b) {
    const double x = luminance(a), y = luminance(b);
    return (std::max(x, y) + 0.05) / (std::min(x, y) + 0.05);
}

class ScriptedScheme : public Platform::ColorScheme {
public:
    Preference preference() const override { return preference_; }
    void change(Preference preference) {
        preference_ = preference;
        Q_EMIT changed();
    }

private:
    Preference preference_ = Preference::NoPreference;
};

} // namespace

TEST(Theme, TextIsReadableInBothThemes) {
    for (const auto shade : {Theme::Shade::Light, Theme::Shade::Dark}) {
        const QPalette p = Theme::palette(shade);
        EXPECT_GT(contrast(p.color(QPalette::WindowText), p.color(QPalette::Window)), 7);
        EXPECT_GT(contrast(p.color(QPalette::Text), p.color(QPalette::Base)), 7);
        EXPECT_GT(contrast(p.color(QPalette::ButtonText), p.color(QPalette::Button)), 7);
        EXPECT_GT(contrast(p.color(QPalette::HighlightedText), p.color(QPalette::Highlight)), 4);
        EXPECT_GT(contrast(p.color(QPalette::PlaceholderText), p.color(QPalette::Window)), 4.5)
            << "quiet, but to be read";
        EXPECT_GT(contrast(p.color(QPalette::PlaceholderText), p.color(QPalette::Base)), 4.5);
        EXPECT_NE(p.color(QPalette::Disabled, QPalette::ButtonText), p.color(QPalette::Active, QPalette::ButtonText));
    }
}

TEST(Theme, ALongNameInABoxIsElidedInTheMiddle) {
    Theme::install(*qApp, nullptr);
    const auto drawn = [](const QString& name) {
        QComboBox box;
        box.addItem(name);
        box.resize(150, 26);
        return Screenshot::take(box, QStringLiteral("long-name-in-a-box"));
    };
    const QString name = QStringLiteral("A Microphone With An Unreasonably Long Name, Channel ");
    EXPECT_NE(drawn(name + u'1'), drawn(name + u'2')) << "what tells two devices apart is at the end of their names";
    EXPECT_NE(drawn(u'B' + name), drawn(u'C' + name));
}

TEST(Theme, DialogsAndFieldsUseTheProgramsOwnIcons) {
    Theme::install(*qApp, nullptr);
    EXPECT_EQ(QApplication::style()->styleHint(QStyle::SH_DialogButtonBox_ButtonsHaveIcons), 0);
    for (const auto which : {QStyle::SP_MessageBoxWarning, QStyle::SP_LineEditClearButton}) {
        const auto sign = [which] { return QApplication::style()->standardIcon(which).pixmap({32, 32}, 1).toImage(); };
        const QImage light = sign();
        EXPECT_GT(Screenshot::coverage(light), 0.05) << which;
        Theme::apply(Theme::Shade::Dark);
        EXPECT_NE(sign(), light) << "it is drawn for its ground: " << which;
        Theme::apply(Theme::Shade::Light);
    }
}

TEST(Theme, FollowsALateAnswerOfTheDesktop) {
    ScriptedScheme scheme;
    Theme::install(*qApp, &scheme);
    EXPECT_EQ(Theme::shade(), Theme::Shade::Light);
    scheme.change(Platform::ColorScheme::Preference::Dark);
    EXPECT_EQ(Theme::shade(), Theme::Shade::Dark);
    EXPECT_EQ(QApplication::palette().color(QPalette::Window),
              Theme::palette(Theme::Shade::Dark).color(QPalette::Window));
    scheme.change(Platform::ColorScheme::Preference::NoPreference);
    EXPECT_EQ(Theme::shade(), Theme::Shade::Light);
}

TEST(Theme, AnEmptyCheckBoxStaysVisibleOnADarkWindow) {
    Theme::install(*qApp, nullptr);
    Theme::apply(Theme::Shade::Dark);
    QCheckBox box;
    box.resize(24, 24);
    const QImage image = Screenshot::take(box, QStringLiteral("empty-check-box"));
    const QColor window = QApplication::palette().color(QPalette::Window);
    double strongest = 1;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            strongest = std::max(strongest, contrast(QColor(image.pixel(x, y)), window));
    Theme::apply(Theme::Shade::Light);
    EXPECT_GT(strongest, 2.5);
}

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The contrast of the program's own colours: 4.5 to 1 for text, 3 to 1 for marks, in both themes.
#include "Source/View/Theme.h"

#include <QApplication>
#include <QColor>
#include <QPalette>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kText = 4.5;
constexpr double kMark = 3;

double luminance(const QColor& color) {
    const auto part = [](double c) { return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) + 0.0722 * part(color.blueF());
}

/// @p color as it looks on an opaque ground.
QColor on(const QColor& ground, const QColor& color) {
    const float alpha = color.alphaF();
    const auto mixed = [alpha](float top, float below) { return top * alpha + below * (1 - alpha); };
    return QColor::fromRgbF(mixed(color.redF(), ground.redF()), mixed(color.greenF(), ground.greenF()),
                            mixed(color.blueF(), ground.blueF()));
}

double contrast(const QColor& color, const QColor& ground) {
    const double one = luminance(on(ground, color)) + 0.05;
    const double other = luminance(ground) + 0.05;
    return std::max(one, other) / std::min(one, other);
}

class Contrast : public testing::TestWithParam<Theme::Shade> {
protected:
    Contrast() { Theme::apply(GetParam()); }
    ~Contrast() override { Theme::apply(Theme::Shade::Light); }

    [[nodiscard]] QColor color(QPalette::ColorRole role, QPalette::ColorGroup group = QPalette::Active) const {
        return Theme::palette(GetParam()).color(group, role);
    }
    static void expect(double least, const QColor& color, const QColor& ground, const char* what) {
        EXPECT_GE(contrast(color, ground), least)
            << what << ": " << qPrintable(color.name(QColor::HexArgb)) << " on " << qPrintable(ground.name());
    }
};

INSTANTIATE_TEST_SUITE_P(BothThemes, Contrast, testing::Values(Theme::Shade::Light, Theme::Shade::Dark),
                         [](const auto& info) { return info.param == Theme::Shade::Dark ? "Dark" : "Light"; });

} // namespace

TEST_P(Contrast, OfTextInWindowsFieldsListsAndButtons) {
    for (const auto ground : {QPalette::Window, QPalette::Base, QPalette::AlternateBase, QPalette::Button}) {
        expect(kText, color(QPalette::WindowText), color(ground), "window text");
        expect(kText, color(QPalette::Text), color(ground), "text");
        expect(kText, color(QPalette::ButtonText), color(ground), "button text");
    }
    for (const auto ground : {QPalette::Window, QPalette::Base, QPalette::AlternateBase}) {
        expect(kText, color(QPalette::PlaceholderText), color(ground), "quiet text");
        expect(kText, color(QPalette::Link), color(ground), "link");
    }
    expect(kText, color(QPalette::ToolTipText), color(QPalette::ToolTipBase), "tool tip");
    for (const auto group : {QPalette::Active, QPalette::Inactive})
        expect(kText, color(QPalette::HighlightedText, group), color(QPalette::Highlight, group), "selected text");
}

TEST_P(Contrast, OfTheDisplayAndTheStrip) {
    for (const QColor& ground : {Theme::Glass::top(), Theme::Glass::bottom()}) {
        expect(kText, Theme::Glass::text(), ground, "the display's text");
        expect(kText, Theme::Glass::dimText(), ground, "the display's quiet text");
        expect(kMark, Theme::Glass::level(), ground, "the level");
        expect(kMark, Theme::Glass::recording(), ground, "the frame of a recording");
        expect(kMark, Theme::Glass::warning(), ground, "the mark of a notice");
        expect(kMark, Qt::red, ground, "the state of a recording, in large letters");
    }
    expect(kText, Theme::Glass::text(), Theme::Glass::button(), "a button of the display");
    expect(kText, Theme::Strip::text(true), Theme::Strip::ground(), "the strip");
    expect(kText, Qt::red, Theme::alarmGround(), "a warning in red");
}

TEST_P(Contrast, OfMarks) {
    for (const auto ground : {QPalette::Window, QPalette::Base, QPalette::AlternateBase})
        expect(kMark, color(QPalette::Highlight), color(ground), "focus and selection");
    expect(kMark, Theme::Strip::focus(), Theme::Strip::ground(), "focus in the strip");
    for (const QColor& ground : {Theme::Glass::top(), Theme::Glass::bottom(), Theme::Glass::button()})
        expect(kMark, Theme::Glass::focus(), ground, "focus in the display");
    for (const auto ground : {QPalette::Window, QPalette::Base}) {
        expect(kMark, Theme::outline(Theme::palette(GetParam()), true), color(ground), "outline of a field or a box");
        expect(kMark, Theme::warning(), color(ground), "warning sign");
    }
    expect(kMark, color(QPalette::HighlightedText), color(QPalette::Highlight), "tick of a box");
}

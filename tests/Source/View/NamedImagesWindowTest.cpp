// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/NamedImages.h"
#include "Source/View/Theme.h"
#include "tests/support/Screenshot.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QImage picture(const QString& name, const QColor& color, int side = 48) {
    return NamedImages::pixmap(name, {side, side}, 1, color).toImage();
}

bool contains(const QImage& image, const QColor& color) {
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) == color.rgba())
                return true;
    return false;
}

} // namespace

TEST(NamedImages, EveryNameHasANonEmptyDrawing) {
    const QStringList names = NamedImages::names();
    ASSERT_GE(names.size(), 48);
    for (const QString& name : names) {
        EXPECT_TRUE(NamedImages::naturalSize(name).isValid()) << qPrintable(name);
        EXPECT_GT(Screenshot::coverage(picture(name, Qt::black)), 0.01) << qPrintable(name);
    }
}

TEST(NamedImages, RequiredNamesExist) {
    for (const auto* name : {"RecorderStart.png",
                             "RecorderStartDown.png",
                             "RecorderStop.png",
                             "RecorderStopDown.png",
                             "RecorderStopWaiting.png",
                             "RecorderStopWaitingDown.png",
                             "RecorderPause.png",
                             "RecorderResume.png",
                             "audio-playing-icon",
                             "all-record-node-icon",
                             "all-ringtone-node-icon",
                             "record-status-bar-start",
                             "record-status-bar-armed",
                             "record-status-bar-recording",
                             "record-status-bar-paused",
                             "progress-bar-background",
                             "progress-bar-progress",
                             "progress-bar-point",
                             "AudioWaveformBack.png",
                             "LibaryBackImage.png",
                             "AudioWaveRuleBackground",
                             "RingtoneMakerViewBackground",
                             "TrimLeft.png",
                             "TrimRight.png",
                             "TrimPlaybtn.png",
                             "ProcessBack.png",
                             "TrimArea.png",
                             "Play.png",
                             "Pause.png",
                             "EjectDisc1.png",
                             "EjectDisc2.png",
                             "burn1.png",
                             "burn3.png",
                             "com.korvane.Sonaphex"})
        EXPECT_TRUE(NamedImages::exists(QString::fromLatin1(name))) << name;
}

TEST(NamedImages, UnknownNamesGiveNullImages) {
    EXPECT_TRUE(NamedImages::icon(u"no-such-picture"_s).isNull());
    EXPECT_TRUE(NamedImages::icon(u"../sonaphex.qrc"_s).isNull());
    EXPECT_TRUE(NamedImages::pixmap(u"no-such-picture"_s, {16, 16}, 1).isNull());
}

TEST(NamedImages, DrawingsUseTheGivenColor) {
    EXPECT_TRUE(contains(picture(u"trim"_s, Qt::green), Qt::green));
    EXPECT_FALSE(contains(picture(u"trim"_s, Qt::green), Qt::black));
}

TEST(NamedImages, IconsFollowAChangeOfTheme) {
    const QIcon icon = NamedImages::icon(u"delete"_s);
    const QPalette before = QApplication::palette();
    Theme::apply(Theme::Shade::Light);
    const QImage light = icon.pixmap(QSize(48, 48), 1.0).toImage();
    Theme::apply(Theme::Shade::Dark);
    const QImage dark = icon.pixmap(QSize(48, 48), 1.0).toImage();
    QApplication::setPalette(before);
    EXPECT_TRUE(contains(light, Theme::palette(Theme::Shade::Light).color(QPalette::ButtonText)));
    EXPECT_TRUE(contains(dark, Theme::palette(Theme::Shade::Dark).color(QPalette::ButtonText)));
}

TEST(NamedImages, TwoPixelsPerPointDoubleThePixels) {
    const QPixmap sharp = NamedImages::icon(u"play"_s).pixmap(QSize(24, 24), 2.0);
    EXPECT_EQ(sharp.size(), QSize(48, 48));
    EXPECT_EQ(sharp.devicePixelRatio(), 2.0);
}

TEST(NamedImages, AnImageIsSharpAtOneAndAHalfPixelsPerPoint) {
    // At an odd position a point begins in the middle of a pixel.
    const QIcon icon = NamedImages::icon(u"stop"_s, [](QIcon::Mode) { return QColor(Qt::black); });
    const auto drawn = [&](QPoint place) {
        QImage image(90, 90, QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(1.5);
        image.fill(Qt::white);
        QPainter painter(&image);
        icon.paint(&painter, QRect(place, QSize(24, 24)));
        painter.end();
        return image;
    };
    const QImage even = drawn({4, 4});
    EXPECT_GT(Screenshot::coverage(even, QColor(Qt::white).rgba()), 0.01);
    const QImage odd = drawn({5, 5});
    EXPECT_EQ(odd.copy(8, 8, 36, 36), even.copy(6, 6, 36, 36)) << "the same pixels, at a whole pixel";
}

TEST(NamedImages, AnIconOnItsOwnBackgroundRequestsItsColorEachTime) {
    QColor color = Qt::green;
    const QIcon icon = NamedImages::icon(u"trim"_s, [&](QIcon::Mode) { return color; });
    EXPECT_TRUE(contains(icon.pixmap(QSize(48, 48), 1.0).toImage(), Qt::green));
    color = Qt::magenta;
    EXPECT_TRUE(contains(icon.pixmap(QSize(48, 48), 1.0).toImage(), Qt::magenta));
}

TEST(NamedImages, RecordingAndPlaybackHaveDifferentPauseSymbols) {
    const QImage record = picture(u"RecorderPause.png"_s, Qt::black);
    EXPECT_TRUE(contains(record, QColor(0xe5383b))) << "the dot of a recording";
    EXPECT_FALSE(contains(picture(u"Pause.png"_s, Qt::black), QColor(0xe5383b)));
}

TEST(NamedImages, TheStatusBarTellsEachStateByItsShape) {
    QList<QImage> shapes;
    for (const char* state : {"start", "armed", "recording", "paused"}) {
        const QImage shape = NamedImages::pixmap(u"record-status-bar-"_s + QLatin1String(state), {20, 20}, 1)
                                 .toImage()
                                 .createAlphaMask();
        ASSERT_FALSE(shape.isNull()) << state;
        for (const QImage& other : shapes) {
            int differing = 0;
            for (int y = 0; y < 20; ++y)
                for (int x = 0; x < 20; ++x)
                    differing += shape.pixelIndex(x, y) != other.pixelIndex(x, y) ? 1 : 0;
            EXPECT_GT(differing, 30) << state << " is seen without colours";
        }
        shapes.append(shape);
    }
}

TEST(NamedImages, DisabledIconsLookDisabled) {
    const QIcon icon = NamedImages::icon(u"RecorderStart.png"_s);
    const QImage on = icon.pixmap(QSize(48, 48), 1.0, QIcon::Normal).toImage();
    const QImage off = icon.pixmap(QSize(48, 48), 1.0, QIcon::Disabled).toImage();
    EXPECT_GT(QColor(on.pixel(24, 24)).saturation(), 150);
    EXPECT_LT(QColor(off.pixel(24, 24)).saturation(), 60);
}

TEST(NamedImages, HasAPictureOfAllImages) {
    for (const auto shade : {Theme::Shade::Light, Theme::Shade::Dark}) {
        const QPalette before = QApplication::palette();
        Theme::apply(shade);
        QWidget sheet;
        sheet.setAutoFillBackground(true);
        auto* grid = new QGridLayout(&sheet);
        int index = 0;
        for (const QString& name : NamedImages::names()) {
            const QSize natural = NamedImages::naturalSize(name);
            auto* label = new QLabel(&sheet);
            label->setPixmap(NamedImages::pixmap(name, natural.width() > 128 ? QSize(96, 24) : natural, 2));
            grid->addWidget(label, index / 10 * 2, index % 10, Qt::AlignCenter);
            auto* caption = new QLabel(name.left(18), &sheet);
            QFont small = caption->font();
            small.setPointSizeF(6);
            caption->setFont(small);
            grid->addWidget(caption, index / 10 * 2 + 1, index % 10, Qt::AlignCenter);
            ++index;
        }
        sheet.resize(sheet.sizeHint());
        const QImage image =
            Screenshot::take(sheet, shade == Theme::Shade::Dark ? u"icons-dark"_s : u"icons-light"_s, 2);
        QApplication::setPalette(before);
        EXPECT_GT(Screenshot::coverage(image, image.pixel(0, 0)), 0.02);
    }
}

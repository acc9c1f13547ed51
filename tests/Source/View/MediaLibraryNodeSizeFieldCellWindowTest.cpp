// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/MediaLibraryNodeSizeFieldCell.h"

#include <QFont>
#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QImage drawn(bool highlighted, const QString& text, QSize size = {60, 18}) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    MediaLibraryNodeSizeFieldCell cell;
    cell.setHighlighted(highlighted);
    cell.drawWithFrame(&painter, image.rect(), text, {});
    return image;
}

} // namespace

TEST(SizeFieldCell, ColoursFollowTheHighlight) {
    MediaLibraryNodeSizeFieldCell cell;
    EXPECT_EQ(cell.textColor(), QColor(Qt::white));
    EXPECT_EQ(cell.backgroundColor(), QColor(150, 170, 200));
    cell.setHighlighted(true);
    EXPECT_EQ(cell.textColor(), QColor(Qt::blue));
    EXPECT_EQ(cell.backgroundColor(), QColor(Qt::white));
    cell.setHighlighted(false);
    EXPECT_EQ(cell.backgroundColor(), QColor(150, 170, 200));
}

TEST(SizeFieldCell, TheBadgeIsInsetByOnePointAndFullyRound) {
    const QImage image = drawn(false, u"8"_s);
    EXPECT_EQ(image.pixelColor(8, 3), QColor(150, 170, 200));
    EXPECT_EQ(image.pixelColor(30, 0).alpha(), 0) << "one point stays free";
    EXPECT_EQ(image.pixelColor(0, 9).alpha(), 0);
    EXPECT_LT(image.pixelColor(1, 1).alpha(), 64) << "the corner is cut";
    EXPECT_GT(image.pixelColor(2, 9).alpha(), 200) << "the end's middle is filled";
}

TEST(SizeFieldCell, NothingIsDrawnForAnEmptyText) {
    QImage empty({60, 18}, QImage::Format_ARGB32_Premultiplied);
    empty.fill(Qt::transparent);
    EXPECT_EQ(drawn(false, QString()), empty);
}

TEST(SizeFieldCell, TheHighlightedBadgeIsWhite) {
    EXPECT_EQ(drawn(true, u"8"_s).pixelColor(8, 3), QColor(Qt::white));
}

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/AcceptDragImageView.h"

#include "tests/support/Mpeg4Files.h"

#include <QDropEvent>
#include <QMimeData>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

class Well : public testing::Test {
protected:
    Well() { well.show(); }
    [[nodiscard]] QString at(const QString& name) const { return folder.filePath(name); }
    [[nodiscard]] QString picture(const QString& name, const char* format = "PNG", QSize size = {40, 20}) const {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::red);
        EXPECT_TRUE(image.save(at(name), format));
        return at(name);
    }
    /// Simulates a drop from another program.
    void drop(QMimeData& data) {
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&well, &enter);
        EXPECT_TRUE(enter.isAccepted());
        EXPECT_EQ(enter.dropAction(), Qt::CopyAction);
        QDropEvent event(QPointF(5, 5), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&well, &event);
    }

    QTemporaryDir folder;
    AcceptDragImageView well;
};

} // namespace

TEST_F(Well, ScalesAFileToTheCoverSize) {
    EXPECT_TRUE(well.hasImageFile({picture(u"wide.png"_s)}));
    EXPECT_EQ(well.imgShow().size(), QSize(300, 300));
    EXPECT_EQ(well.imgShow().deviceIndependentSize(), QSizeF(50, 50));
    for (const QPoint corner : {QPoint(0, 0), QPoint(299, 299), QPoint(0, 299)})
        EXPECT_EQ(well.imgShow().pixelColor(corner), QColor(Qt::red)) << "stretched, not letter-boxed";
    EXPECT_EQ(well.strImagePath(), at(u"wide.png"_s));
}

TEST_F(Well, TakesTheFirstFileThatIsAPicture) {
    ASSERT_TRUE(Mpeg4Files::write(at(u"a.png"_s), "no picture"));
    const QString second = picture(u"b.dat"_s, "JPEG");
    QSignalSpy changed(&well, &AcceptDragImageView::imageChanged);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(at(u"a.png"_s)), QUrl::fromLocalFile(second)});
    drop(data);
    EXPECT_EQ(well.strImagePath(), second);
    EXPECT_EQ(changed.size(), 1);
}

TEST_F(Well, ReadsTiff) {
    EXPECT_TRUE(well.hasImageFile({picture(u"a.tiff"_s, "TIFF")}));
}

TEST_F(Well, DoesNotChangeWhenADropContainsNoPicture) {
    ASSERT_TRUE(well.hasImageFile({picture(u"a.png"_s)}));
    ASSERT_EQ(mkfifo(QFile::encodeName(at(u"pipe"_s)).constData(), 0600), 0);
    ASSERT_TRUE(Mpeg4Files::write(at(u"text"_s), "no picture"));
    EXPECT_FALSE(well.hasImageFile({at(u"pipe"_s), at(u"text"_s), at(u"none"_s), folder.path()}));
    QMimeData data;
    data.setText(u"words"_s);
    drop(data);
    EXPECT_EQ(well.strImagePath(), at(u"a.png"_s));
    EXPECT_FALSE(well.imgShow().isNull());
}

TEST_F(Well, TakesAPictureWithoutAFile) {
    QImage image(10, 10, QImage::Format_RGB32);
    image.fill(Qt::blue);
    QMimeData data;
    data.setUrls({QUrl(u"https://example.org/a.png"_s)});
    data.setImageData(image);
    drop(data);
    EXPECT_EQ(well.imgShow().size(), QSize(300, 300));
    EXPECT_EQ(well.imgShow().pixelColor(150, 150), QColor(Qt::blue));
    EXPECT_EQ(well.strImagePath(), QString());
}

TEST_F(Well, RemovesItsPictureByKey) {
    ASSERT_TRUE(well.hasImageFile({picture(u"a.png"_s)}));
    QTest::keyClick(&well, Qt::Key_Delete);
    EXPECT_TRUE(well.imgShow().isNull());
    EXPECT_EQ(well.strImagePath(), QString());
}

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/Theme.h"
#include "tests/Source/CDBurn/BurnWorld.h"
#include "tests/support/Screenshot.h"

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The burn window in each of its states. When SONAPHEX_SCREENSHOTS names a folder, the pictures are saved there.
class BurnPictures : public testing::Test {
protected:
    BurnPictures() { Theme::install(*qApp, nullptr); }
    ~BurnPictures() override { Theme::apply(Theme::Shade::Light); }

    /// Files that exist, except the last one.
    QVariantList records() {
        QVariantList result;
        for (const QVariant& each : BurnWorld::records()) {
            Dictionary record = each.toMap();
            const QString path = folder.filePath(record.value(AudioRecordEntry::SavePath).toString().section(u'/', -1));
            if (!path.contains(u"Encore"_s)) {
                QFile made(path);
                EXPECT_TRUE(made.open(QIODevice::WriteOnly));
            }
            record.insert(AudioRecordEntry::SavePath, path);
            result.append(record);
        }
        return result;
    }
    /// In both themes, at one and two pixels per point.
    void take(QWidget& window, const QString& name, const QString& state) {
        for (const auto shade : {Theme::Shade::Light, Theme::Shade::Dark}) {
            Theme::apply(shade);
            QCoreApplication::processEvents();
            for (const qreal ratio : {1.0, 2.0}) {
                const QString full = u"burn-%1-%2%3"_s.arg(name, shade == Theme::Shade::Dark ? u"dark"_s : u"light"_s,
                                                           ratio > 1 ? u"-2x"_s : QString());
                const QImage image = Screenshot::take(window, full, ratio);
                EXPECT_GT(Screenshot::coverage(image, image.pixel(image.width() / 2, 4)), 0.02) << qPrintable(full);
            }
        }
        EXPECT_EQ(world.stateText(), state);
    }
    void takeWindow(const QString& name, const QString& state) {
        // A worker looks at the disk.
        auto& tracks = world.controller->trackList().tracks();
        const auto known = [&tracks] {
            for (int row = 0; row < tracks.rowCount(); ++row) {
                const QModelIndex index = tracks.index(row, TrackListModel::AudioName);
                const bool gone = !QFile::exists(tracks.child(row).value(TrackEntry::FilePath).toString());
                if (index.data(TrackListModel::MissingRole).toBool() != gone)
                    return false;
            }
            return true;
        };
        ASSERT_TRUE(waitFor(known));
        take(*world.controller->window(), name, state);
    }

    QTemporaryDir folder;
    BurnWorld world;
};

} // namespace

TEST_F(BurnPictures, WaitingForMusic) {
    world.insert(*world.drive);
    world.open();
    takeWindow(u"1-no-music"_s, u"Waiting for the import Music File"_s);
}

TEST_F(BurnPictures, WaitingForADisc) {
    world.open(records());
    world.clickRow(1);
    takeWindow(u"2-no-disc"_s, u"Waiting for the inserted Disc"_s);
}

TEST_F(BurnPictures, AnErasableDisc) {
    world.insert(*world.drive);
    world.drive->blank = false;
    world.drive->erasable = true;
    world.open(records());
    takeWindow(u"3-erase"_s, u"Is not blank, Please erase the Disc"_s);
}

TEST_F(BurnPictures, AWrittenDiscAndADriveWithAProblem) {
    world.insert(*world.drive);
    world.drive->blank = false;
    world.drive->state.problem =
        u"The drive cannot be opened: another program uses it. Close that program, or choose another drive."_s;
    world.open(records());
    takeWindow(u"4-replace"_s, u"Is not blank, Please replace the Disc"_s);
}

TEST_F(BurnPictures, TooMuchMusic) {
    world.insert(*world.drive, BurnWorld::blocksOf(600));
    world.open(records());
    takeWindow(u"5-no-room"_s, u"Disc space not enough for music"_s);
}

TEST_F(BurnPictures, ReadyAndItsSheet) {
    world.insert(*world.drive);
    world.open(records());
    world.clickTick(4);
    world.clickRow(2);
    takeWindow(u"6-ready"_s, u"Ready to burn"_s);
    world.controller->window()->resize(world.controller->window()->minimumSize());
    takeWindow(u"6-ready-small"_s, u"Ready to burn"_s);
    BurnWorld::click(world.outlet("btnBurn_"));
    take(world.sheet(), u"sheet-waiting"_s, u"Ready to burn"_s);
    world.recording.lastBurn()->reach(Platform::DRStatusStateTrackWrite, 0.437);
    take(world.sheet(), u"sheet-burning"_s, u"Ready to burn"_s);
}

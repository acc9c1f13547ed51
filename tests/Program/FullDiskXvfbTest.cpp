// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/Program/MainWindowOnADesktop.h"
#include "tests/support/DiskRoom.h"
#include "tests/support/FullDisk.h"

#include <QLabel>
#include <QToolButton>

#include <optional>

namespace {

class FullDiskOnADesktop : public MainWindowOnADesktop {
protected:
    [[nodiscard]] bool notices(const QString& words) const {
        const auto& line = static_cast<QLabel&>(outlet("noticeField"));
        return waitFor([&] { return line.isVisible() && line.toolTip().contains(words); }, 60000);
    }
};

} // namespace

TEST_F(FullDiskOnADesktop, IsToldBeforeStopsTheTimeAndTheRecordingGoesOnWhenThereIsRoom) {
    DiskRoom room(25LL * 60 * 18000);
    click("btnSatrtRecord_");
    ASSERT_TRUE(notices(u"The disk is nearly full: there is room for about 2"_s));
    EXPECT_EQ(static_cast<QToolButton&>(outlet("helpButton")).text(), u"Free Space …"_s);
    // Real writes fail from here on: no file may grow any more.
    room.set(0);
    std::optional<FullDisk> full(std::in_place, 60000);
    ASSERT_TRUE(notices(u"The disk is full. Nothing more is recorded until there is room"_s));
    EXPECT_TRUE(waitFor([&] { return controller->window()->windowTitle().startsWith(u"Nothing is being recorded"_s); }))
        << qPrintable(controller->window()->windowTitle());
    const float stopped = record().fRecordTime();
    int ticks = 0;
    const auto counting =
        QObject::connect(&record(), &RecordStateController::displayChanged, controller, [&] { ++ticks; });
    ASSERT_TRUE(waitFor([&] { return ticks >= 3; }));
    QObject::disconnect(counting);
    EXPECT_EQ(record().fRecordTime(), stopped) << "no time counts that is not recorded";
    EXPECT_TRUE(record().isStateAudioRecord());
    full.reset();
    room.set(100'000'000);
    ASSERT_TRUE(notices(u"s are missing: the disk was full. The recording went on in another file."_s));
    ASSERT_TRUE(waitFor([&] { return record().fRecordTime() >= 1; }));
    EXPECT_TRUE(controller->window()->windowTitle().startsWith(u"Recording 00:0"_s));
    click("btnSatrtRecord_");
    ASSERT_TRUE(waitFor([&] { return MediaLibrary::shareLibrary().records().size() == 2; }, 60000));
    EXPECT_GT(lengthOf(user.recording(0)), 1);
    EXPECT_GT(lengthOf(user.recording(1)), 0.5);
}

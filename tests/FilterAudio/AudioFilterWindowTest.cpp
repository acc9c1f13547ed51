// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "FilterAudio/AudioFilterController.h"
#include "FilterAudio/FilteredAudioModel.h"
#include "Source/View/EditDialog.h"
#include "Source/View/Theme.h"
#include "tests/Source/WndController/LibraryWorld.h"
#include "tests/support/ScreenReader.h"
#include "tests/support/Screenshot.h"

#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <ctime>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class AudioFilterWindow : public testing::Test, public AudioFilterControllerDelegate {
protected:
    AudioFilterWindow() {
        Theme::install(*qApp, nullptr);
        filter.setDelegate(this);
    }
    ~AudioFilterWindow() override { Theme::apply(Theme::Shade::Light); }
    void removeMediaLibraryArray(const QVariantList& entries) override {
        ++calls;
        removed = entries;
    }
    static Dictionary entry(const QString& title, double seconds) {
        return LibraryWorld::entry(title, title, u"/music/"_s + title + u".m4a"_s, seconds);
    }
    void open(const QVariantList& entries) {
        filter.setAudioArray(entries);
        filter.makeWindow().show();
        (void)QTest::qWaitForWindowExposed(filter.window(), 30000);
        outlet<QTableView>("audioTableView").setFocus();
    }
    template <typename W = QWidget>
    [[nodiscard]] W& outlet(const char* name) const {
        return *filter.window()->findChild<W*>(QString::fromLatin1(name));
    }
    [[nodiscard]] FilteredAudioModel& model() const { return filter.tableArrayControler(); }
    [[nodiscard]] QStringList shown() const {
        QStringList titles;
        for (int row = 0; row < model().rowCount(); ++row)
            titles.append(model().index(row, FilteredAudioModel::Title).data().toString());
        return titles;
    }
    [[nodiscard]] QString ticked() const { return outlet<QLabel>("tickedLabel").text(); }
    void setTick(int row, bool tick) {
        model().setData(model().index(row, FilteredAudioModel::Tick), tick ? Qt::Checked : Qt::Unchecked,
                        Qt::CheckStateRole);
    }

    LibraryWorld world;
    AudioFilterController filter;
    int calls = 0;
    QVariantList removed;
};

TEST_F(AudioFilterWindow, ShowsAndTicksEntriesOfAtMostTenWholeSeconds) {
    const QAbstractItemModelTester tester(&model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    Dictionary without = entry(u"without"_s, 0);
    without.remove(AudioRecordEntry::Length);
    open({entry(u"9.9"_s, 9.9), entry(u"10.0"_s, 10.0), entry(u"10.5"_s, 10.5), entry(u"11"_s, 11), without});
    EXPECT_EQ(filter.lessThanSecond(), 10);
    EXPECT_EQ(outlet<QSpinBox>("lessThanSecondField").text(), u"10 seconds"_s);
    EXPECT_EQ(shown(), (QStringList{u"9.9"_s, u"10.0"_s, u"10.5"_s, u"without"_s}));
    EXPECT_EQ(ticked(), u"4 ticked, 00:00:30"_s);
    EXPECT_EQ(model().index(0, FilteredAudioModel::Length).data().toString(), u"00:00:09"_s);
    EXPECT_EQ(model().index(0, FilteredAudioModel::Date).data().toString(), u"2026/11/21"_s);
    EXPECT_EQ(model().index(0, FilteredAudioModel::Title).data(Qt::ToolTipRole).toString(), u"/music/9.9.m4a"_s);
}

TEST_F(AudioFilterWindow, AThresholdBelowOneShowsAndTicksEveryEntry) {
    open({entry(u"a"_s, 3), entry(u"b"_s, 5000)});
    EXPECT_EQ(shown().size(), 1);
    for (const int all : {0, -1}) {
        filter.setLessThanSecond(all);
        EXPECT_EQ(shown().size(), 2);
        EXPECT_EQ(model().tickedCount(), 2);
    }
    outlet<QSpinBox>("lessThanSecondField").setValue(4);
    EXPECT_EQ(shown(), QStringList{u"a"_s});
    EXPECT_EQ(filter.lessThanSecond(), 4);
}

TEST_F(AudioFilterWindow, AnotherThresholdTicksTheShownEntries) {
    open({entry(u"a"_s, 3), entry(u"b"_s, 5)});
    setTick(0, false);
    EXPECT_EQ(ticked(), u"1 ticked, 00:00:05"_s);
    filter.setLessThanSecond(4);
    EXPECT_EQ(ticked(), u"1 ticked, 00:00:03"_s);
}

TEST_F(AudioFilterWindow, RemovesTheTickedOnesInTheirOrderAfterAskingAndCloses) {
    open({entry(u"a"_s, 3), entry(u"b"_s, 5), entry(u"c"_s, 7), entry(u"long"_s, 700)});
    setTick(1, false);
    world.alerts.answers = {0, 1};
    QTest::mouseClick(&outlet("removeButton"), Qt::LeftButton);
    EXPECT_EQ(calls, 0) << "Cancel does nothing";
    EXPECT_TRUE(filter.window()->isVisible());
    QTest::mouseClick(&outlet("removeButton"), Qt::LeftButton);
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(removed, (QVariantList{entry(u"a"_s, 3), entry(u"c"_s, 7)})) << "as they were given";
    EXPECT_FALSE(filter.window()->isVisible());
    EXPECT_EQ(world.alerts.shown[0].title, u"Do you want to move these items to the trash?"_s);
}

TEST_F(AudioFilterWindow, RemovingNothingPassesAnEmptyListAndCloses) {
    open({entry(u"a"_s, 3)});
    setTick(0, false);
    world.alerts.answers = {1};
    filter.removeAudio();
    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(removed.isEmpty());
    EXPECT_FALSE(filter.window()->isVisible());
}

TEST_F(AudioFilterWindow, IsModalAndStartsAtTenSecondsEachTime) {
    filter.setAudioArray({entry(u"a"_s, 3)});
    for (int time = 0; time < 2; ++time) {
        bool modal = false;
        QTimer::singleShot(0, [&] {
            modal = QApplication::activeModalWidget() == filter.window();
            EXPECT_EQ(filter.lessThanSecond(), 10);
            filter.setLessThanSecond(300);
            QTest::keyClick(filter.window(), Qt::Key_Escape);
        });
        filter.showWindow();
        EXPECT_TRUE(modal);
    }
    EXPECT_EQ(calls, 0);
}

TEST_F(AudioFilterWindow, SpaceTicksCtrlASelectsAndReturnInTheFieldRemovesNothing) {
    open({entry(u"a"_s, 3), entry(u"b"_s, 5), entry(u"c"_s, 7)});
    auto& table = outlet<QTableView>("audioTableView");
    auto* const window = filter.window()->windowHandle();
    table.selectRow(1);
    QTest::keyClick(window, Qt::Key_Space);
    EXPECT_EQ(ticked(), u"2 ticked, 00:00:10"_s);
    QTest::keyClick(window, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(table.selectionModel()->selectedRows().size(), 3);
    QTest::keyClick(window, Qt::Key_Space);
    EXPECT_EQ(model().tickedCount(), 3) << "mixed rows are ticked first";
    QTest::keyClick(window, Qt::Key_Space);
    EXPECT_EQ(model().tickedCount(), 0);
    auto& field = outlet<QSpinBox>("lessThanSecondField");
    field.setFocus();
    field.selectAll();
    QTest::keyClick(window, Qt::Key_6);
    QTest::keyClick(window, Qt::Key_Return);
    EXPECT_EQ(filter.lessThanSecond(), 6);
    EXPECT_TRUE(world.alerts.shown.isEmpty());
    EXPECT_TRUE(filter.window()->isVisible());
}

TEST_F(AudioFilterWindow, AClickOnTheBoxTicksTheRow) {
    open({entry(u"a"_s, 3), entry(u"b"_s, 5)});
    auto& table = outlet<QTableView>("audioTableView");
    const QRect cell = table.visualRect(model().index(1, FilteredAudioModel::Tick));
    const QPoint box = table.viewport()->mapTo(filter.window(), QPoint(cell.left() + 12, cell.center().y()));
    QTest::mouseClick(filter.window()->windowHandle(), Qt::LeftButton, {}, box);
    EXPECT_EQ(ticked(), u"1 ticked, 00:00:03"_s);
}

TEST_F(AudioFilterWindow, AThousandRecordingsFollowTheThresholdWithoutDelay) {
    QVariantList entries;
    for (int i = 0; i < 1000; ++i)
        entries.append(entry(u"Track%1"_s.arg(i), i * 3.6));
    open(entries);
    std::vector<double> times;
    QImage frame(filter.window()->size(), QImage::Format_ARGB32_Premultiplied);
    auto& field = outlet<QSpinBox>("lessThanSecondField");
    for (int seconds = 0; seconds <= 3600; seconds += 20) {
        const std::clock_t begin = std::clock(); // processor time: the load of other programs does not change it
        field.setValue(seconds);
        filter.window()->render(&frame);
        times.push_back(double(std::clock() - begin) * 1000 / CLOCKS_PER_SEC);
    }
    EXPECT_EQ(shown().size(), 1000);
    std::sort(times.begin(), times.end());
    std::printf("a step of the threshold: median %.2f ms, worst %.2f ms\n", times[times.size() / 2], times.back());
    EXPECT_LT(times[times.size() / 2], 16);
}

TEST_F(AudioFilterWindow, DescribesEachPartToScreenReaders) {
    open({entry(u"a"_s, 3)});
    for (const char* each : {"lessThanSecondField", "audioTableView", "removeButton", "cancelButton", "tickedLabel"}) {
        auto* const spoken = QAccessible::queryAccessibleInterface(&outlet(each));
        EXPECT_FALSE(spoken->text(QAccessible::Name).isEmpty()) << each;
    }
    EXPECT_EQ(ScreenReader::namelessControls(*filter.window()), "");
    EXPECT_EQ(model().index(0, FilteredAudioModel::Tick).data(Qt::AccessibleTextRole).toString(), u"a"_s);
}

/// When SONAPHEX_SCREENSHOTS names a folder, the pictures are saved there.
TEST_F(AudioFilterWindow, ItsPictures) {
    QVariantList entries;
    for (int i = 0; i < 9; ++i)
        entries.append(entry(i == 4
                                 ? u"A very long title that somebody gave to a recording which is hardly longer than "
                                   "the time one needs to read it"_s
                                 : u"Track%1"_s.arg(12 + i),
                             1.3 * i));
    open(entries);
    setTick(2, false);
    outlet<QTableView>("audioTableView").selectRow(1);
    for (const auto shade : {Theme::Shade::Light, Theme::Shade::Dark})
        for (const qreal ratio : {1.0, 2.0}) {
            Theme::apply(shade);
            QCoreApplication::processEvents();
            const QImage image = Screenshot::take(*filter.window(),
                                                  u"filter"_s + (ratio > 1 ? u"-2x"_s : QString()) +
                                                      (shade == Theme::Shade::Dark ? u"-dark"_s : u"-light"_s),
                                                  ratio);
            EXPECT_GT(Screenshot::coverage(image, image.pixel(2, 2)), 0.2);
        }
}

} // namespace

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/AudioWaveViewController/AudioRecordWaveView.h"
#include "Source/View/Theme.h"
#include "tests/Source/WndController/WindowWorld.h"
#include "tests/support/CutOffTexts.h"
#include "tests/support/Screenshot.h"

#include <QTableView>
#include <cmath>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

/// The main window in each state. When SONAPHEX_SCREENSHOTS names a folder, the pictures are saved there.
class Pictures : public testing::Test {
protected:
    Pictures() { Theme::install(*qApp, nullptr); }
    ~Pictures() override { Theme::apply(Theme::Shade::Light); }

    void fill() {
        const QStringList titles{u"Interview with Ada, part 1"_s,
                                 u"Interview with Ada, part 2"_s,
                                 u"Rain on the roof"_s,
                                 u"Track12"_s,
                                 u"Track11"_s,
                                 u"Choir rehearsal"_s,
                                 u"Lecture 7: sampling"_s};
        double length = 3725;
        for (const QString& title : titles) {
            Dictionary entry = world.made(title, length);
            entry.insert(AudioRecordEntry::IsNew, title.startsWith(u"Interview"));
            world.sounds.lengths.insert(entry.value(AudioRecordEntry::SavePath).toString(), length);
            world.library->addRecordFile(entry);
            length = std::fmod(length * 0.37 + 61, 4000);
        }
        world.library->addRingtoneFile(world.made(u"Ringtone"_s, 24, u"m4r"_s));
        QFile::remove(world.folder.filePath(u"Track11.m4a"_s));
    }
    void showAll(int row = -1) {
        world.selectNode(u"all-record"_s);
        if (row >= 0)
            world.outlet<QTableView>("audioTableView_").selectRow(row);
    }
    void levels() {
        for (int i = 0; i < 400; ++i)
            world.controller->display().audioRecordWaveView()->addCurrentLevel(
                static_cast<float>(0.15 + 0.55 * std::abs(std::sin(i * 0.045)) * std::abs(std::sin(i * 0.61))));
    }
    /// Whether all rows know if their file exists: a worker looks at the disk.
    [[nodiscard]] bool filesAreKnown() const {
        const auto& model = world.controller->library().tableModel();
        for (int row = 0; row < model.rowCount(); ++row) {
            const QModelIndex index = model.index(row, AudioTableModel::Title);
            const bool gone = !QFile::exists(index.data(AudioTableModel::PathRole).toString());
            if (index.data(AudioTableModel::MissingRole).toBool() != gone)
                return false;
        }
        return true;
    }
    /// Takes the picture in both themes; the window must not be empty.
    void take(const QString& name, qreal ratio = 1) {
        for (const auto shade : {Theme::Shade::Light, Theme::Shade::Dark}) {
            Theme::apply(shade);
            QCoreApplication::processEvents(); // the palette reaches the windows by an event
            ASSERT_TRUE(waitFor([this] { return filesAreKnown(); }));
            const QString full = name + (shade == Theme::Shade::Dark ? u"-dark"_s : u"-light"_s);
            const QImage image = Screenshot::take(*world.controller->window(), full, ratio);
            const auto& table = world.outlet<QTableView>("audioTableView_");
            const QPoint below = table.mapTo(world.controller->window(), QPoint(40, table.height() - 20));
            const bool isDark = qGray(image.pixel((QPointF(below) * ratio).toPoint())) < 128;
            EXPECT_EQ(isDark, shade == Theme::Shade::Dark) << qPrintable(full);
            EXPECT_GT(Screenshot::coverage(image, image.pixel(image.width() / 2, image.height() - 100)), 0.02);
        }
        Theme::apply(Theme::Shade::Light);
    }
    /// Pixels per point. All of them only when the pictures are saved: the layout is the same.
    [[nodiscard]] static QList<qreal> ratios() {
        return qEnvironmentVariableIsSet("SONAPHEX_SCREENSHOTS") ? QList<qreal>{1, 1.5, 2} : QList<qreal>{1};
    }
    /// Takes the picture in the smallest window and on a full screen.
    void takeAll(const QString& name) {
        for (const QSize size : {QSize(720, 480), QSize(1920, 1080)}) {
            world.controller->window()->resize(size);
            QCoreApplication::processEvents();
            EXPECT_EQ(cutOff(), QStringList()) << qPrintable(name) << " at " << size.width();
            for (const qreal ratio : ratios())
                take(u"%1-%2-at-%3"_s.arg(name).arg(size.width()).arg(ratio), ratio);
        }
    }
    /// The visible texts that do not fit.
    [[nodiscard]] QStringList cutOff() const { return cutOffTexts(*world.controller->window()); }
    void feed(float level, AudioObjectID device = WindowWorld::kMicrophone) {
        world.hardware.unitOf(device)->feedValue(level, 512);
    }
    void tick(int times = 1) {
        for (int i = 0; i < times; ++i)
            world.record->recordFlushTime();
    }

    WindowWorld world;
};

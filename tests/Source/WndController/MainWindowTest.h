// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/View/ElidedLabel.h"
#include "Source/View/TransportButton.h"
#include "Source/WndController/AudioTableModel.h"
#include "Source/WndController/MainWndController.h"
#include "tests/Source/WndController/WindowWorld.h"

#include <gtest/gtest.h>

/// The main window over engines, a library and files of the test, and what a user does in it.
class MainWindow : public testing::Test {
protected:
    [[nodiscard]] TransportButton& button(const char* name) const { return world.outlet<TransportButton>(name); }
    [[nodiscard]] QTableView& table() const { return world.outlet<QTableView>("audioTableView_"); }
    [[nodiscard]] QString status() const { return world.outlet<ElidedLabel>("lblStatus_").text(); }
    void addRecording(const QString& title, double seconds = 3) {
        const Dictionary entry = world.made(title, seconds);
        world.sounds.lengths.insert(entry.value(AudioRecordEntry::SavePath).toString(), seconds);
        world.library->addRecordFile(entry);
    }
    void feed(float level, AudioObjectID device = WindowWorld::kMicrophone) {
        world.hardware.unitOf(device)->feedValue(level, 512);
    }
    void showAll() { world.selectNode(QStringLiteral("all-record")); }
    void clickRow(int row, Qt::KeyboardModifiers keys = {}) {
        QWidget* viewport = table().viewport();
        const QPoint place = table().visualRect(table().model()->index(row, AudioTableModel::Title)).center();
        QTest::mouseClick(world.controller->window()->windowHandle(), Qt::LeftButton, keys,
                          viewport->mapTo(world.controller->window(), place));
    }
    [[nodiscard]] qsizetype controllerSelection() const {
        return world.controller->library().tableViewSelectionAudioArray().size();
    }
    void key(int code, Qt::KeyboardModifiers keys = {}) {
        QTest::keyClick(world.controller->window()->windowHandle(), Qt::Key(code), keys);
    }

    WindowWorld world;
};

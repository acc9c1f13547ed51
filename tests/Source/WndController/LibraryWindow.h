// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/View/ElidedLabel.h"
#include "Source/View/MediaNodeListTableView.h"
#include "tests/Source/WndController/WindowWorld.h"

#include <QApplication>
#include <gtest/gtest.h>

/// The main window with recordings, controlled by keys and clicks sent to its window.
class LibraryWindow : public testing::Test {
protected:
    [[nodiscard]] MediaNodeListTableView& table() const {
        return world.outlet<MediaNodeListTableView>("audioTableView_");
    }
    [[nodiscard]] QString status() const { return world.outlet<ElidedLabel>("lblStatus_").text(); }
    [[nodiscard]] LibraryPresenter& library() const { return world.controller->library(); }
    [[nodiscard]] QWindow* handle() const { return world.controller->window()->windowHandle(); }

    Dictionary addRecording(const QString& title, double seconds = 3) {
        const Dictionary entry = world.made(title, seconds);
        addEntry(entry);
        return entry;
    }
    void addEntry(const Dictionary& entry) {
        world.sounds.lengths.insert(entry.value(AudioRecordEntry::SavePath).toString(),
                                    entry.value(AudioRecordEntry::Length).toDouble());
        world.library->addRecordFile(entry);
    }
    /// Opens and activates the window with the recordings, the last added one first.
    void openWithAll(QSize size = {900, 600}) {
        world.open(size);
        world.selectNode(QStringLiteral("all-record"));
        world.controller->window()->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(world.controller->window(), 30000));
    }
    [[nodiscard]] QPoint placeOf(int row, int column = AudioTableModel::Title) const {
        const QPoint place = table().visualRect(table().model()->index(row, column)).center();
        return table().viewport()->mapTo(world.controller->window(), place);
    }
    void clickRow(int row, Qt::KeyboardModifiers keys = {}) const {
        QTest::mouseClick(handle(), Qt::LeftButton, keys, placeOf(row));
    }
    void key(Qt::Key code, Qt::KeyboardModifiers keys = {}) const { QTest::keyClick(handle(), code, keys); }
    void type(const QString& text) const {
        for (const QChar letter : text)
            QTest::keyClick(handle(), letter.toLatin1());
    }
    [[nodiscard]] QString titleOf(int row) const {
        return table().model()->index(row, AudioTableModel::Title).data().toString();
    }
    [[nodiscard]] QStringList titles() const {
        QStringList shown;
        for (int row = 0; row < table().model()->rowCount(); ++row)
            shown += titleOf(row);
        return shown;
    }
    [[nodiscard]] QStringList selectedTitles() const {
        QStringList titles;
        for (const QVariant& entry : library().tableViewSelectionAudioArray())
            titles += entry.toMap().value(AudioRecordEntry::Title).toString();
        return titles;
    }

    WindowWorld world;
};

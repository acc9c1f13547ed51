// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Services.h"
#include "Source/CDBurn/BurnControl.h"
#include "Source/CDBurn/CDBurnWndController.h"
#include "Source/CDBurn/ProcessWndController.h"
#include "Source/CDBurn/TrackEntry.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/View/EditDialog.h"
#include "tests/fakes/FakeAlerts.h"
#include "tests/fakes/FakeDiscRecording.h"
#include "tests/fakes/FakeMediaFiles.h"
#include "tests/fakes/FakePanels.h"
#include "tests/fakes/FakeUserDefaults.h"
#include "tests/support/WaitFor.h"

#include <QHeaderView>
#include <QLabel>
#include <QTest>

#include <memory>

/// The burn window with two drives; the test inserts and removes their discs.
struct BurnWorld {
    BurnWorld() {
        auto& services = Platform::services();
        services.discRecording = &recording;
        services.diskArbitration = &arbitration;
        services.alerts = &alerts;
        services.panels = &panels;
        services.userDefaults = &defaults;
        services.mediaFiles = &media;
        drive = recording.addDrive(QStringLiteral("Fast Burner 52x"));
        other = recording.addDrive(QStringLiteral("Disc Image (CUE/BIN)"));
    }

    /// Opens the window with the current doubles and brings it to the front.
    CDBurnWndController& open(const QVariantList& records = {}) {
        controller = std::make_unique<CDBurnWndController>(nullptr);
        controller->setAudioDataForCDBurn(records);
        controller->prepareWindow();
        controller->window()->show();
        (void)QTest::qWaitForWindowExposed(controller->window(), 30000);
        return *controller;
    }
    static Dictionary record(const QString& name, double seconds) {
        return {{AudioRecordEntry::SavePath, QStringLiteral("/music/") + name}, {AudioRecordEntry::Length, seconds}};
    }
    /// Five recordings of 9 to 13 minutes, 628 MB in all.
    static QVariantList records() {
        return {record(QStringLiteral("Interview with Ada.m4a"), 599), record(QStringLiteral("Rain.m4a"), 779),
                record(QStringLiteral("Choir.m4a"), 639), record(QStringLiteral("Lecture 7.m4a"), 719),
                record(QStringLiteral("Encore.m4a"), 749)};
    }
    /// Free blocks of a disc that the window shows as @p megabytes.
    static std::int64_t blocksOf(int megabytes) { return std::int64_t((megabytes + 0.5) / 1000 * 1024 * 1024 / 2); }

    /// Inserts a disc that the system knows, and notifies the observers.
    void insert(FakeDrive& into, std::int64_t freeBlocks = blocksOf(686)) {
        into.insertBlankDisc(freeBlocks);
        arbitration.described.insert(into.path());
        tell(into);
    }
    void takeOut(FakeDrive& from) {
        arbitration.described.remove(from.path());
        from.removeDisc();
        tell(from);
    }
    void tell(FakeDrive& changed) {
        for (const auto& each : recording.drives)
            if (each.get() == &changed)
                recording.statusChanged(each);
    }

    template <typename W = QWidget>
    [[nodiscard]] W& outlet(const char* name) const {
        return *controller->window()->findChild<W*>(QString::fromLatin1(name));
    }
    [[nodiscard]] QString stateText() const { return outlet<QLabel>("lblState_").text(); }
    [[nodiscard]] QString summary() const { return outlet<QLabel>("lblSummary_").text(); }
    [[nodiscard]] QDialog& sheet() const { return *controller->processWndController().window(); }

    static void clickIn(QWidget& widget, const QPoint& place) {
        QTest::mouseClick(widget.window()->windowHandle(), Qt::LeftButton, {}, widget.mapTo(widget.window(), place));
    }
    /// A real mouse click in the middle of a widget.
    static void click(QWidget& widget) { clickIn(widget, widget.rect().center()); }
    /// A real click on a row's check box.
    void clickTick(int row) const {
        AudioDataSourceView& list = controller->trackList();
        const QRect cell = list.visualRect(list.model()->index(row, TrackListModel::Choose));
        clickIn(*list.viewport(), {cell.left() + 12, cell.center().y()});
    }
    void clickRow(int row, Qt::KeyboardModifiers modifiers = {}) const {
        AudioDataSourceView& list = controller->trackList();
        const QRect cell = list.visualRect(list.model()->index(row, TrackListModel::AudioName));
        QTest::mouseClick(list.window()->windowHandle(), Qt::LeftButton, modifiers,
                          list.viewport()->mapTo(list.window(), cell.center()));
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const {
        QTest::keyClick(controller->window()->windowHandle(), key, modifiers);
    }
    [[nodiscard]] QStringList names() const {
        QStringList result;
        for (const Dictionary& entry : controller->trackList().aryForAudioData_())
            result.append(entry.value(TrackEntry::FileName).toString());
        return result;
    }

    Platform::ServicesScope scope;
    FakeDiscRecording recording;
    FakeDiskArbitration arbitration;
    FakeAlerts alerts;
    FakePanels panels;
    FakeUserDefaults defaults;
    FakeMediaFiles media;
    std::shared_ptr<FakeDrive> drive;
    std::shared_ptr<FakeDrive> other;
    std::unique_ptr<CDBurnWndController> controller;
};

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FilterAudio/AudioFilterController.h"
#include "Source/View/AudioTrimEditView.h"
#include "Source/View/KeyNames.h"
#include "Source/WndController/AudioTrimWndController.h"
#include "Source/WndController/ID3EditWndController.h"
#include "Source/WndController/PreferenceWndController.h"
#include "Source/WndController/WaitWndController.h"
#include "tests/RingtoneMaker/RingtoneWorld.h"
#include "tests/Source/CDBurn/BurnWorld.h"
#include "tests/Source/WndController/BalanceWorld.h"
#include "tests/Source/WndController/EditWorld.h"
#include "tests/Source/WndController/SplitWorld.h"
#include "tests/Source/WndController/WindowWorld.h"
#include "tests/fakes/FakeAutostart.h"
#include "tests/fakes/FakeHotKeys.h"

#include <gtest/gtest.h>

#include <functional>

/// Opens every window of the program in turn, with recordings in it, and lets a test look at it.
namespace EveryWindow {

using Look = std::function<void(QWidget& window, const QString& name)>;

inline void main(const Look& look) {
    WindowWorld world;
    for (const char* title : {"Track1", "Track2", "Track3"}) {
        const Dictionary entry = world.made(QLatin1StringView(title), 75);
        world.sounds.lengths.insert(entry.value(AudioRecordEntry::SavePath).toString(), 75);
        world.library->addRecordFile(entry);
    }
    QFile::remove(world.folder.filePath(QStringLiteral("Track2.m4a")));
    world.open({900, 600});
    look(*world.controller->window(), QStringLiteral("main-ready"));
    world.selectNode(QStringLiteral("all-record"));
    world.outlet<QTableView>("audioTableView_").selectRow(0);
    look(*world.controller->window(), QStringLiteral("main-library"));
    world.record->startAndStopRecord();
    QCoreApplication::processEvents();
    world.record->recordFlushTime();
    look(*world.controller->window(), QStringLiteral("main-recording"));
    world.record->pauseAndResumeRecord();
    world.record->recordFlushTime();
    QCoreApplication::processEvents();
    look(*world.controller->window(), QStringLiteral("main-paused"));
}

inline void edit(const Look& look) {
    EditWorld world;
    const Dictionary entry = world.recording(QStringLiteral("Track1"), 3);
    {
        AudioTrimWndController trim;
        trim.setTrimAudioSourceData(entry);
        trim.window()->resize(720, 320);
        ToolControl::showWindowNib(trim);
        auto& bar = *trim.window()->findChild<AudioTrimEditView*>();
        ASSERT_TRUE(waitFor([&] { return !bar.outline().isEmpty(); }));
        trim.setLeftTrim(0.2F);
        trim.setRightTrim(0.7F);
        look(*trim.window(), QStringLiteral("trim"));
        trim.startConverter();
        look(*trim.waitWndController().window(), QStringLiteral("wait"));
        trim.waitWndController().setStopWork();
    }
    ID3EditWndController tags;
    tags.window()->resize(520, 300);
    tags.setID3EditDataSource(entry);
    ToolControl::showWindowNib(tags);
    look(*tags.window(), QStringLiteral("tags"));
}

inline void split(const Look& look) {
    SplitWorld world;
    world.open(world.splitRecording(QStringLiteral("Track1")));
    world.length().setValue(4);
    look(*world.controller.window(), QStringLiteral("split"));
    world.controller.waitWndController().beginSheet(
        world.controller.window(), [] {}, [] {});
    look(*world.controller.waitWndController().window(), QStringLiteral("wait-cancel"));
    world.controller.waitWndController().setStopWork();
}

inline void balance(const Look& look) {
    BalanceWorld world;
    world.open();
    world.balance.window()->resize(720, 420);
    ToolControl::showWindowNib(world.balance);
    ASSERT_TRUE(waitFor([&] { return world.balance.isMeasured(); }));
    look(*world.balance.window(), QStringLiteral("balance"));
}

inline void preferences(const Look& look) {
    WindowWorld world;
    FakeHotKeys hotKeys;
    Platform::services().hotKeys = &hotKeys;
    const bool exists = true;
    FakeAutostart::Desktop desktop;
    PreferenceWndController preferences({[&] { return exists; }, [] { return true; }, [] { return true; },
                                         [] { return false; }, [] { return QString(); }},
                                        std::make_unique<FakeAutostart>(desktop));
    ToolControl::showWindowNib(preferences);
    QCoreApplication::processEvents();
    look(*preferences.window(), QStringLiteral("preferences"));
}

inline void ringtone(const Look& look) {
    RingtoneWorld world;
    world.open(192);
    world.show();
    ASSERT_TRUE(world.outlineDone());
    look(*world.maker.window(), QStringLiteral("ringtone"));
}

inline void filter(const Look& look) {
    LibraryWorld world;
    AudioFilterController filter;
    filter.setAudioArray({LibraryWorld::entry(QStringLiteral("Track1"), QStringLiteral("Track1"),
                                              QStringLiteral("/music/Track1.m4a"), 3)});
    filter.makeWindow().show();
    look(*filter.window(), QStringLiteral("filter"));
}

inline void burn(const Look& look) {
    BurnWorld world;
    world.insert(*world.drive);
    world.open(BurnWorld::records());
    look(*world.controller->window(), QStringLiteral("burn"));
    world.controller->processWndController().window()->show();
    look(world.sheet(), QStringLiteral("burn-progress"));
    world.sheet().hide();
}

inline void lookAtAll(const Look& look) {
    for (const auto& open : {main, edit, split, balance, preferences, ringtone, filter, burn})
        open([&look](QWidget& window, const QString& name) {
            QCoreApplication::processEvents();
            look(window, name);
        });
}

} // namespace EveryWindow

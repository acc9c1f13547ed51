// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Preferences/Settings.h"

#include "Platform/Foundation/Services.h"
#include "Source/Preferences/RecordPreferences.h"
#include "tests/fakes/FakeBundle.h"
#include "tests/fakes/FakeUserDefaults.h"

#include <gtest/gtest.h>

#include <QDateTime>

using namespace Qt::StringLiterals;

namespace {

/// Objects that stand for no number and no text.
const QVariantList containers{QVariantList{1}, QVariantMap{{u"a"_s, 1}}, QByteArray("5"),
                              QDateTime::fromSecsSinceEpoch(5)};

struct StoredSettings : testing::Test {
    StoredSettings() {
        Platform::services().userDefaults = &defaults;
        Platform::services().bundle = &bundle;
    }

    Platform::ServicesScope scope;
    FakeUserDefaults defaults;
    FakeBundle bundle;
};

} // namespace

TEST_F(StoredSettings, HaveTheirDefaultsWhenNothingIsStored) {
    EXPECT_FALSE(Platform::boolValue(Settings::value(Settings::split)));
    EXPECT_EQ(Settings::value(Settings::splitTimeMS), u"300"_s);
    EXPECT_TRUE(Platform::boolValue(Settings::value(Settings::filter)));
    EXPECT_EQ(Settings::value(Settings::filterTime), u"5"_s);
    EXPECT_TRUE(Platform::boolValue(Settings::value(Settings::recordBuiltIn)));
    EXPECT_FALSE(Platform::boolValue(Settings::value(Settings::recordComputerAudio)));
    EXPECT_EQ(Settings::value(Settings::savePath), PreferenceStore::defaultMusicFolder());
    EXPECT_EQ(Settings::value(Settings::ringtoneSavePath), PreferenceStore::defaultMusicFolder());
    EXPECT_EQ(defaults.changes(), 0) << "a default is never stored";
}

TEST_F(StoredSettings, HaveTheirDefaultsWhenWhatIsStoredIsOfAnotherKind) {
    for (const Settings::Setting* setting :
         {&Settings::split, &Settings::splitTimeMS, &Settings::filter, &Settings::filterTime, &Settings::savePath,
          &Settings::ringtoneSavePath, &Settings::notifications, &Settings::preRollMS, &Settings::titles,
          &Settings::cutAtTracks, &Settings::keepTracks, &Settings::recordBuiltIn, &Settings::recordComputerAudio})
        for (const QVariant& stored : containers) {
            defaults.setObject(setting->key, stored);
            EXPECT_EQ(Settings::value(*setting), setting->defaultObject())
                << qPrintable(setting->key) << ' ' << stored.typeName();
        }
    for (const QVariant& stored : {QVariant(12), QVariant(u"only"_s), QVariant(QVariantList{1})}) {
        defaults.setObject(PreferenceStore::ChooseRecordPrograms, stored);
        EXPECT_EQ(Settings::value(Settings::recordPrograms), QVariant(Dictionary())) << stored.typeName();
    }
    for (const QVariant& stored : {QVariant(12), QVariant(u""_s), QVariant(u"relative/folder"_s)}) {
        defaults.setObject(PreferenceStore::PreferenceSavePathKey, stored);
        EXPECT_EQ(Settings::value(Settings::savePath), PreferenceStore::defaultMusicFolder()) << stored.typeName();
    }
}

TEST_F(StoredSettings, AreGivenAsTheyAreWhenTheyCanBeUsed) {
    for (const QVariant& stored : {QVariant(750), QVariant(u"2000ms"_s), QVariant(true), QVariant(1.5)}) {
        defaults.setObject(PreferenceStore::PreferenceSplitTimeMSKey, stored);
        EXPECT_EQ(Settings::value(Settings::splitTimeMS), stored);
    }
    defaults.setObject(PreferenceStore::PreferenceSavePathKey, u"/music"_s);
    EXPECT_EQ(Settings::value(Settings::savePath), u"/music"_s);
}

TEST_F(StoredSettings, OfADamagedStoreFilterAndSplitAsByDefault) {
    for (const QVariant& stored : containers) {
        for (const Settings::Setting* setting : {&Settings::filter, &Settings::filterTime, &Settings::splitTimeMS})
            defaults.setObject(setting->key, stored);
        const RecordFilter filter = RecordFilter::read(RecordPreferences());
        EXPECT_TRUE(filter.on) << stored.typeName();
        EXPECT_EQ(filter.seconds, 5) << stored.typeName();
        defaults.setObject(PreferenceStore::PreferenceSplitKey, 1);
        EXPECT_EQ(Settings::storedSplitTimeMS(), 300) << stored.typeName();
        defaults.setObject(PreferenceStore::PreferenceSplitKey, stored);
        EXPECT_EQ(Settings::storedSplitTimeMS(), -1) << stored.typeName();
    }
}

TEST_F(StoredSettings, AreHiddenByThoseOfOneRun) {
    defaults.setObject(PreferenceStore::PreferenceFilterTimeKey, u"10"_s);
    OverriddenPreferences run;
    EXPECT_EQ(run.value(Settings::filterTime), u"10"_s);
    run.setValue(20, Settings::filterTime);
    EXPECT_EQ(run.value(Settings::filterTime), 20);
    EXPECT_EQ(Settings::value(Settings::filterTime), u"10"_s);
    run.setValue(QVariantList{}, Settings::filterTime);
    EXPECT_EQ(run.value(Settings::filterTime), u"5"_s);
}

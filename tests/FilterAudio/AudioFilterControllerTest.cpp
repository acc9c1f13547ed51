// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "FilterAudio/AudioFilterController.h"

#include "Platform/Foundation/Services.h"
#include "tests/fakes/FakeAlerts.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(AudioFilterController, AsksBeforeAnythingIsRemovedAndAcceptsOnlyRemove) {
    const Platform::ServicesScope scope;
    FakeAlerts alerts;
    Platform::services().alerts = &alerts;
    AudioFilterController filter;
    alerts.answers = {0, 1, -1};
    EXPECT_FALSE(filter.runRemoveAudioAlert());
    EXPECT_TRUE(filter.runRemoveAudioAlert());
    EXPECT_FALSE(filter.runRemoveAudioAlert()) << "a dialog that went away has answered nothing";
    ASSERT_EQ(alerts.shown.size(), 3);
    EXPECT_EQ(alerts.shown[0].title, u"Do you want to move these items to the trash?"_s);
    EXPECT_TRUE(alerts.shown[0].text.isEmpty());
    EXPECT_EQ(alerts.shown[0].buttons, (QStringList{u"Cancel"_s, u"Remove"_s})) << "Cancel is the default";
}

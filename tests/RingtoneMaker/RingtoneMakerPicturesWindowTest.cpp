// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RingtoneMaker/AudioWaveTrimView.h"
#include "tests/RingtoneMaker/RingtoneWorld.h"
#include "tests/support/Screenshot.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Pictures of the window. When SONAPHEX_SCREENSHOTS names a folder, they are saved there.
class RingtonePictures : public testing::Test {
protected:
    void take(const QString& name, qreal ratio = 1) {
        for (const auto shade : {Theme::Shade::Light, Theme::Shade::Dark}) {
            Theme::apply(shade);
            QCoreApplication::processEvents();
            const QImage image = Screenshot::take(
                *world.maker.window(), name + (shade == Theme::Shade::Dark ? u"-dark"_s : u"-light"_s), ratio);
            EXPECT_GT(Screenshot::coverage(image, image.pixel(4, image.height() - 4)), 0.3);
        }
    }
    RingtoneWorld world;
};

TEST_F(RingtonePictures, TheWindowAtBothSizesAndScales) {
    world.open(192);
    world.show();
    ASSERT_TRUE(world.outlineDone());
    auto& selection = world.outlet<AudioWaveTrimView>("audioWaveTrimView");
    selection.setAudioFrom(100);
    selection.setAudioLength(300);
    world.maker.setAudioPosition(230);
    world.maker.setFadeInEnable(true);
    QCoreApplication::processEvents();
    take(u"ringtone"_s);
    take(u"ringtone-2x"_s, 2);
    world.show({640, 400});
    take(u"ringtone-small"_s);
    EXPECT_EQ(world.maker.window()->size(), QSize(640, 400)) << "everything fits";
}

TEST_F(RingtonePictures, ARecordingThatCannotBeRead) {
    const QString path = world.file(u"broken.m4a"_s);
    world.maker.openFile(path, RingtoneWorld::entry(u"key"_s, u"Broken"_s, path));
    world.show();
    ASSERT_TRUE(world.outlineDone());
    take(u"ringtone-broken"_s);
}

} // namespace

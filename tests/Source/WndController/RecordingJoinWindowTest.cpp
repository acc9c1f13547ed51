// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/RecordingJoin.h"

#include "Source/WndController/WaitWndController.h"
#include "tests/Platform/Media/MediaTestSupport.h"
#include "tests/Source/WndController/EditWorld.h"

#include <QPushButton>
#include <QWidget>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct JoinWorld : EditWorld {
    JoinWorld() : join(&window) {
        join.setDelegate(this);
        window.show();
        QObject::connect(&join, &RecordingJoin::joined, &join, [this](const QString& text) { notice = text; });
    }
    QString made(const QString& name, std::size_t seconds) {
        MediaTest::writeFile(at(name), kAudioFileM4AType, MediaTest::tones(seconds * 44100));
        return at(name);
    }
    static QVariantList entries(const QStringList& paths) {
        QVariantList all;
        for (const QString& path : paths)
            all.append(entry(path, u"Title"_s, path, 1));
        return all;
    }
    void run(const QStringList& paths) {
        join.join(entries(paths));
        ASSERT_TRUE(waitFor([&] { return !join.waitWndController().isSheetUp(); }, 60000));
    }
    void showFile(const QString& path) override { shownPath = path; }

    QWidget window;
    RecordingJoin join;
    QString notice;
    QString shownPath;
};

} // namespace

TEST(RecordingJoins, GiveARecordingBackFromItsParts) {
    JoinWorld world;
    const QString path = world.made(u"One.m4a"_s, 6);
    const QStringList paths = RecordingParts::partPaths(path, QFileInfo(path).path(), 3);
    ASSERT_TRUE(RecordingParts::split(path, {70000, 150001}, paths));
    world.panels.answer = world.at(u"All"_s);
    world.run(paths);
    EXPECT_TRUE(world.alerts.shown.isEmpty());
    EXPECT_TRUE(MediaTest::readFile(world.at(u"All.m4a"_s)).rows == MediaTest::readFile(path).rows);
    EXPECT_EQ(world.updatedPaths, QStringList{world.at(u"All.m4a"_s)});
    EXPECT_NEAR(world.updatedTags[0].value(AudioRecordEntry::Length).toDouble(), 6, 0.001);
    EXPECT_EQ(world.shownPath, world.at(u"All.m4a"_s));
    EXPECT_EQ(world.notice, u"“All.m4a” was made. The sound was copied without encoding it again."_s);
    for (const QString& part : paths)
        EXPECT_TRUE(QFileInfo::exists(part));
}

TEST(RecordingJoins, JoinOtherRecordingsInTheirOrderByEncodingThem) {
    JoinWorld world;
    const QString one = world.made(u"One.m4a"_s, 2);
    const QString two = world.recording(u"Two"_s, 3).value(AudioRecordEntry::SavePath).toString();
    world.panels.answer = world.at(u"All.m4a"_s);
    world.run({two, one});
    EXPECT_TRUE(world.alerts.shown.isEmpty());
    EXPECT_NEAR(double(MediaTest::readFile(world.at(u"All.m4a"_s)).rows[0].size()), 5 * 44100.0, 1024);
    EXPECT_TRUE(world.notice.contains(u"encoded again"_s)) << qPrintable(world.notice);
}

TEST(RecordingJoins, OverwriteNothingAndSayWhy) {
    JoinWorld world;
    const QString one = world.made(u"One.m4a"_s, 1);
    const QString two = world.made(u"Two.m4a"_s, 1);
    const QByteArray before = Mpeg4Files::contentOf(one);
    world.panels.answer = one;
    world.run({one, two});
    ASSERT_EQ(world.alerts.shown.size(), 1);
    EXPECT_EQ(world.alerts.shown[0].title, u"The recordings were not joined."_s);
    EXPECT_EQ(world.alerts.shown[0].text, u"This path exists, please change the path or name."_s);
    EXPECT_EQ(Mpeg4Files::contentOf(one), before);
    ASSERT_TRUE(Mpeg4Files::write(world.at(u"text.m4a"_s), "no audio"));
    world.panels.answer = world.at(u"All.m4a"_s);
    world.run({one, world.at(u"text.m4a"_s)});
    ASSERT_EQ(world.alerts.shown.size(), 2);
    EXPECT_TRUE(world.alerts.shown[1].text.contains(u"text.m4a"_s)) << qPrintable(world.alerts.shown[1].text);
    world.run({one, world.at(u"gone.m4a"_s)});
    ASSERT_EQ(world.alerts.shown.size(), 3);
    EXPECT_EQ(world.alerts.shown[2].text, u"The file is no longer there: "_s + world.at(u"gone.m4a"_s));
    world.panels.answer = std::nullopt; // Cancel in the panel
    world.run({one, two});
    EXPECT_EQ(world.files(), (QStringList{u"One.m4a"_s, u"Two.m4a"_s, u"text.m4a"_s}));
    EXPECT_TRUE(world.updatedPaths.isEmpty());
}

TEST(RecordingJoins, CanBeCancelled) {
    JoinWorld world;
    const QString one = world.made(u"One.m4a"_s, 20);
    world.panels.answer = world.at(u"All.m4a"_s);
    world.join.join(JoinWorld::entries({one, one, one, one}));
    WaitWndController& sheet = world.join.waitWndController();
    ASSERT_TRUE(sheet.isSheetUp());
    auto& cancel = *sheet.window()->findChild<QPushButton*>();
    EXPECT_TRUE(cancel.isVisible());
    QTest::mouseClick(&cancel, Qt::LeftButton);
    ASSERT_TRUE(waitFor([&] { return !sheet.isSheetUp(); }, 60000));
    EXPECT_EQ(world.files(), QStringList{u"One.m4a"_s}) << "80 s are not encoded before the click is seen";
    EXPECT_TRUE(world.alerts.shown.isEmpty());
    EXPECT_TRUE(world.notice.isEmpty());
}

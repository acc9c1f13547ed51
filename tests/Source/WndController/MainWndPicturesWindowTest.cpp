// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/Source/WndController/MainWndPictures.h"

#include "RingtoneMaker/CustomSound.h"
#include "Source/View/ConvertingTipView.h"
#include "Source/View/MediaNodeListTableView.h"

#include <QLineEdit>
#include <QTreeView>

using namespace Qt::StringLiterals;

TEST_F(Pictures, AnEmptyLibraryIsFriendly) {
    world.open();
    take(u"empty"_s);
}

TEST_F(Pictures, IdleWithALibrary) {
    fill();
    world.open();
    showAll(2);
    levels();
    take(u"idle"_s);
    take(u"idle-2x"_s, 2);
}

TEST_F(Pictures, AGroupThatIsHidden) {
    fill();
    world.open();
    showAll();
    auto& outline = world.outlet<QTreeView>("outlineLibraryView_");
    outline.collapse(outline.model()->index(1, 0));
    take(u"group-hidden"_s);
    take(u"group-hidden-2x"_s, 2);
}

TEST_F(Pictures, ConvertingWithANotice) {
    fill();
    world.open();
    showAll();
    levels();
    auto& tip = world.controller->recordPanel().fileConvertingTipView();
    tip.showFileConvertTipView(true, u"         Audio File Converting\n         Please Wait .."_s, 0.4);
    ASSERT_TRUE(waitFor([&] { return tip.y() == tip.parentWidget()->height() - tip.height(); }));
    world.controller->display().setNotices(
        {{.text = u"The disk is nearly full: there is room for about 45 minutes of recording."_s,
          .help = RecordNotice::Help::FreeSpace}});
    take(u"converting"_s);
}

TEST_F(Pictures, Playing) {
    fill();
    world.open();
    showAll(1);
    world.controller->tableViewDoubleAction();
    auto& sound = static_cast<FakeSound&>(*world.controller->display().playSound()->sound());
    sound.time = sound.duration() * 0.4;
    world.controller->display().updatePlaySoundProgress();
    take(u"playing"_s);
}

TEST_F(Pictures, LongNamesAndTextFromRightToLeft) {
    world.library->addRecordFile(LibraryWorld::entry(
        u"a"_s, u"A very long title that somebody typed on a rainy afternoon and never shortened again"_s,
        world.file(u"long.m4a"_s), 86399));
    world.library->addRecordFile(
        LibraryWorld::entry(u"b"_s, u"هذا تسجيل طويل للاجتماع الأسبوعي"_s, world.file(u"rtl.m4a"_s), 62));
    world.library->addRecordFile(LibraryWorld::entry(u"c"_s, u"שיחה עם 123 אורחים"_s, world.file(u"he.m4a"_s), 5));
    world.open({720, 480});
    showAll(0);
    take(u"long-names-720"_s);
}

TEST_F(Pictures, AWholeMirroredWindow) {
    fill();
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    world.open();
    showAll(0);
    take(u"mirrored"_s);
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

TEST_F(Pictures, FromTheSmallestWindowToAFullScreen) {
    fill();
    world.open({720, 480});
    showAll(0);
    levels();
    take(u"small-720x480"_s);
    world.controller->window()->resize(1920, 1080);
    levels();
    take(u"full-1920x1080"_s);
}

TEST_F(Pictures, EachStateOfTheListAtEachScale) {
    fill();
    world.library->addRecordFile(LibraryWorld::entry(u"untitled"_s, u""_s, world.file(u"Untitled 4.m4a"_s), 62));
    for (const QSize size : {QSize(720, 480), QSize(1920, 1080)}) {
        world.controller.reset();
        world.open(size);
        world.controller->window()->resize(size);
        world.controller->window()->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(world.controller->window(), 30000));
        showAll();
        levels();
        auto& table = world.outlet<MediaNodeListTableView>("audioTableView_");
        const auto shoot = [&](const QString& state) {
            for (const qreal ratio : ratios())
                take(u"%1-%2-at-%3"_s.arg(state).arg(size.width()).arg(ratio), ratio);
        };
        table.selectRow(1);
        shoot(u"list"_s);
        table.selectAll();
        shoot(u"several"_s);
        table.selectRow(4);
        ASSERT_NE(table.editCell(table.model()->index(4, AudioTableModel::Title)), nullptr);
        shoot(u"title-open"_s);
        world.outlet<QLineEdit>("searchField_").setText(u"interview"_s);
        shoot(u"searched"_s);
        world.outlet<QLineEdit>("searchField_").setText(u"nothing like it"_s);
        shoot(u"not-found"_s);
    }
}

TEST_F(Pictures, EachButtonUnderThePointer) {
    fill();
    world.open();
    showAll(1);
    for (const char* name : {"btnSatrtRecord_", "btnPlayAudio_", "changeTabViewButton", "btnShow_", "btnDelete_"}) {
        QWidget& button = world.outlet(name);
        for (const auto shade : {Theme::Shade::Light, Theme::Shade::Dark}) {
            Theme::apply(shade);
            QCoreApplication::processEvents();
            const auto shown = [&](const QString& state) {
                return Screenshot::take(*world.controller->window(),
                                        QString::fromLatin1(name) + state +
                                            (shade == Theme::Shade::Dark ? u"-dark"_s : u"-light"_s),
                                        1.5)
                    .copy(QRectF(QPointF(button.mapTo(world.controller->window(), QPoint())) * 1.5,
                                 QSizeF(button.size()) * 1.5)
                              .toRect());
            };
            QTest::mouseMove(world.controller->window()->windowHandle(), QPoint(4, 300));
            ASSERT_TRUE(waitFor([&] { return !button.underMouse(); })) << name;
            const QImage atRest = shown(u"-rest"_s);
            QTest::mouseMove(world.controller->window()->windowHandle(),
                             button.mapTo(world.controller->window(), button.rect().center()));
            ASSERT_TRUE(waitFor([&] { return button.underMouse(); })) << name;
            const QImage hovered = shown(u"-hover"_s);
            EXPECT_NE(hovered, atRest) << name << " answers to the pointer";
            // The picture differs from its ground as much as before.
            const auto contrast = [](const QImage& image) {
                const int ground = qGray(image.pixel(image.width() / 2, 4));
                int most = 0;
                for (int y = 4; y < image.height() - 4; ++y)
                    for (int x = 4; x < image.width() - 4; ++x)
                        most = std::max(most, std::abs(qGray(image.pixel(x, y)) - ground));
                return most;
            };
            EXPECT_GT(contrast(hovered), 60) << name;
        }
    }
    Theme::apply(Theme::Shade::Light);
}

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/AcceptDragImageView.h"
#include "Source/View/AudioTrimEditView.h"
#include "Source/View/Theme.h"
#include "Source/WndController/AudioTrimWndController.h"
#include "Source/WndController/ID3EditWndController.h"
#include "Source/WndController/WaitWndController.h"
#include "tests/Source/WndController/BalanceWorld.h"
#include "tests/Source/WndController/EditWorld.h"
#include "tests/Source/WndController/SplitWorld.h"
#include "tests/support/Screenshot.h"

#include <QApplication>
#include <QDoubleSpinBox>
#include <QPainter>
#include <cmath>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The editing windows in each state. When SONAPHEX_SCREENSHOTS names a folder, the pictures are saved there.
class EditPictures : public testing::Test {
protected:
    EditPictures() { Theme::install(*qApp, nullptr); }
    ~EditPictures() override { Theme::apply(Theme::Shade::Light); }

    static void take(QWidget& window, const QString& name) {
        for (const auto shade : {Theme::Shade::Light, Theme::Shade::Dark}) {
            Theme::apply(shade);
            QCoreApplication::processEvents(); // an event carries the palette to the windows
            const QString full = name + (shade == Theme::Shade::Dark ? u"-dark"_s : u"-light"_s);
            const QImage image = Screenshot::take(window, full, 2);
            EXPECT_GT(Screenshot::coverage(image, image.pixel(4, 4)), 0.02);
            Screenshot::take(window, full + u"-1x"_s, 1);
        }
        Theme::apply(Theme::Shade::Light);
    }
    static QList<float> speech(int values) {
        QList<float> outline;
        for (int i = 0; i < values; ++i)
            outline.append(float(0.1 + 0.8 * std::abs(std::sin(i * 0.021)) * std::abs(std::sin(i * 0.37))));
        return outline;
    }
    static QImage picture() {
        QImage image(300, 300, QImage::Format_RGB32);
        QLinearGradient sky(0, 0, 0, 300);
        sky.setColorAt(0, QColor(0x1d, 0x4e, 0x89));
        sky.setColorAt(1, QColor(0xf7, 0x9d, 0x65));
        QPainter painter(&image);
        painter.fillRect(image.rect(), sky);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0xff, 0xe1, 0xa8));
        painter.drawEllipse(QPoint(200, 190), 40, 40);
        return image;
    }

    EditWorld world;
};

} // namespace

TEST_F(EditPictures, TheTrimWindow) {
    const Dictionary entry = world.recording(u"Interview with Ada, part 1"_s, 3);
    world.sounds.lengths[entry.value(AudioRecordEntry::SavePath).toString()] = 754;
    AudioTrimWndController trim;
    trim.setTrimAudioSourceData(entry);
    trim.window()->resize(720, 320);
    ToolControl::showWindowNib(trim);
    auto& bar = *trim.window()->findChild<AudioTrimEditView*>();
    ASSERT_TRUE(waitFor([&] { return !bar.outline().isEmpty(); }));
    bar.setOutline(speech(7540)); // replaces the file's real outline, which is loaded already
    take(*trim.window(), u"trim-opened"_s);
    trim.setLeftTrim(0.22F);
    trim.setRightTrim(0.71F);
    trim.seekPlay(0.4F);
    trim.playAudio();
    bar.setFocus();
    trim.audioPlayTrimAudioUpdateTimer();
    take(*trim.window(), u"trim-playing"_s);
    // A handle shows its time while it is dragged.
    const QPoint place = bar.leftHandleRect().center().toPoint();
    QTest::mousePress(&bar, Qt::LeftButton, {}, place);
    QTest::mouseMove(&bar, place + QPoint(60, 0));
    take(*trim.window(), u"trim-dragging"_s);
    QTest::mouseRelease(&bar, Qt::LeftButton, {}, place + QPoint(60, 0));
    trim.startConverter();
    trim.waitWndController().setProgress(0.4);
    take(*trim.waitWndController().window(), u"wait"_s);
    trim.waitWndController().setStopWork();
}

TEST_F(EditPictures, TheSplitWindow) {
    SplitWorld split;
    split.open(split.splitRecording(u"Choir rehearsal"_s));
    take(*split.controller.window(), u"split-opened"_s);
    split.length().setValue(4);
    split.bar().setCurrentCut(1);
    take(*split.controller.window(), u"split-cuts"_s);
    const QPoint place = split.bar().handleRect(1).center().toPoint();
    QTest::mousePress(&split.bar(), Qt::LeftButton, {}, place);
    QTest::mouseMove(&split.bar(), place + QPoint(40, 0));
    split.bar().setZoom(3, place.x());
    take(*split.controller.window(), u"split-dragging"_s);
    QTest::mouseRelease(&split.bar(), Qt::LeftButton, {}, place + QPoint(40, 0));
    split.length().setValue(100);
    split.controller.resetCuts();
    split.controller.window()->resize(640, 480);
    take(*split.controller.window(), u"split-none"_s);
    split.controller.waitWndController().beginSheet(
        split.controller.window(), [] {}, [] {});
    split.controller.waitWndController().setIsWorking(u"Writing the parts…"_s);
    split.controller.waitWndController().setProgress(0.4);
    take(*split.controller.waitWndController().window(), u"wait-cancel"_s);
    split.controller.waitWndController().setStopWork();
}

TEST_F(EditPictures, TheBalanceWindow) {
    BalanceWorld balanced;
    balanced.open();
    BalanceWndController& balance = balanced.balance;
    balance.window()->resize(720, 420);
    ToolControl::showWindowNib(balance);
    auto& view = *balance.window()->findChild<BalanceView*>();
    ASSERT_TRUE(waitFor([&] { return balance.isMeasured() && !view.outline(BalanceView::Input).isEmpty(); }));
    view.setOutline(BalanceView::Input, speech(30));
    QList<float> other = speech(60).mid(30);
    view.setOutline(BalanceView::Computer, other);
    take(*balance.window(), u"balance-opened"_s);
    balance.window()->findChild<QDoubleSpinBox*>(u"fldInputGain_"_s)->setValue(14);
    balance.window()->findChild<QDoubleSpinBox*>(u"fldComputerGain_"_s)->setValue(-4.5);
    balance.window()->findChild<QDoubleSpinBox*>(u"fldDelay_"_s)->setValue(120);
    balance.togglePlay();
    view.setFocus();
    ASSERT_TRUE(waitFor([&] { return balance.isMeasured(); }));
    take(*balance.window(), u"balance-too-loud"_s);
}

TEST_F(EditPictures, TheTagWindow) {
    Dictionary entry = world.recording(u"Rain on the roof"_s, 1);
    ID3EditWndController tags;
    tags.window()->resize(520, 300);
    tags.setID3EditDataSource(entry);
    ToolControl::showWindowNib(tags);
    take(*tags.window(), u"tags-empty"_s);
    auto& well = *tags.window()->findChild<AcceptDragImageView*>();
    well.setImgShow(picture());
    take(*tags.window(), u"tags-cover"_s);
    tags.startConverter();
    take(*tags.waitWndController().window(), u"wait-tags"_s);
}

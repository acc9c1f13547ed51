// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The keys for what the mouse does in the views that draw themselves.
#include "tests/Accessibility/EveryWindow.h"

#include "Source/AudioWaveViewController/AudioPlayProgressView.h"

#include <QClipboard>
#include <QHeaderView>
#include <QMenuBar>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Sends keys to a window as the desktop does.
struct Keys {
    explicit Keys(QWidget& window) : window(window) {
        window.show();
        (void)QTest::qWaitForWindowExposed(&window, 30000);
        window.activateWindow();
        (void)QTest::qWaitForWindowActive(&window, 30000);
    }
    void press(int key, Qt::KeyboardModifiers modifiers = {}) const {
        QTest::keyClick(window.windowHandle(), Qt::Key(key), modifiers);
        QCoreApplication::processEvents();
    }
    QWidget& window;
};

class TrimKeys : public testing::Test {
protected:
    TrimKeys() {
        Theme::install(*qApp, nullptr);
        const Dictionary entry = world.recording(u"One"_s, 3);
        world.sounds.lengths[entry.value(AudioRecordEntry::SavePath).toString()] = 100;
        trim.setTrimAudioSourceData(entry);
    }
    ~TrimKeys() override { trim.window()->hide(); }
    [[nodiscard]] AudioTrimEditView& bar() const { return *trim.window()->findChild<AudioTrimEditView*>(); }

    EditWorld world;
    AudioTrimWndController trim;
};

} // namespace

TEST_F(TrimKeys, TabGoesThroughTheHandlesAndTheArrowsMoveTheFocusedOne) {
    const Keys keys(*trim.window());
    bar().setFocus();
    keys.press(Qt::Key_PageUp);
    EXPECT_FLOAT_EQ(bar().leftTrimRate(), 0.1F) << "ten seconds of a hundred";
    keys.press(Qt::Key_Tab);
    keys.press(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_FLOAT_EQ(bar().rightTrimRate(), 0.99F);
    EXPECT_FLOAT_EQ(bar().leftTrimRate(), 0.1F);
    keys.press(Qt::Key_Home);
    EXPECT_FLOAT_EQ(bar().rightTrimRate(), 0.1F) << "not past the other end";
    keys.press(Qt::Key_End);
    EXPECT_EQ(bar().rightTrimRate(), 1);
    keys.press(Qt::Key_Backtab, Qt::ShiftModifier);
    keys.press(Qt::Key_Backtab, Qt::ShiftModifier);
    keys.press(Qt::Key_PageUp);
    keys.press(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_NEAR(bar().playRate(), 0.11, 0.0001) << "the play button is before both";
    keys.press(Qt::Key_Home);
    EXPECT_EQ(bar().playRate(), 0);
    EXPECT_FLOAT_EQ(bar().leftTrimRate(), 0.1F);
    EXPECT_EQ(bar().lastHandle(), AudioTrimEditView::LeftHandle) << "seeking chooses no end";
}

TEST_F(TrimKeys, AClickOnTheBarLeavesTheKeysWithTheHandleThatWasUsedLast) {
    const Keys keys(*trim.window());
    const QPoint end = bar().rightHandleRect().center().toPoint();
    QTest::mouseClick(trim.window()->windowHandle(), Qt::LeftButton, {}, bar().mapTo(trim.window(), end));
    keys.press(Qt::Key_PageDown);
    EXPECT_FLOAT_EQ(bar().rightTrimRate(), 0.9F);
    EXPECT_EQ(bar().leftTrimRate(), 0);
}

TEST(RingtoneKeys, IAndODrawASelectionOfAnyLength) {
    RingtoneWorld world;
    world.open(192);
    const Keys keys(*world.maker.window());
    auto& selection = world.outlet<AudioWaveTrimView>("audioWaveTrimView");
    selection.setFocus();
    world.maker.setAudioPosition(1500);
    keys.press(Qt::Key_O);
    EXPECT_EQ(selection.audioFromTime(), 0);
    EXPECT_FLOAT_EQ(selection.audioToTime(), 150) << "longer than the handles allow, as with a drag on the outline";
    world.maker.setAudioPosition(300);
    keys.press(Qt::Key_I);
    EXPECT_FLOAT_EQ(selection.audioFromTime(), 30);
    EXPECT_FLOAT_EQ(selection.audioToTime(), 150);
    keys.press(Qt::Key_P);
    EXPECT_TRUE(world.maker.previewSound());
    keys.press(Qt::Key_P);
    EXPECT_FALSE(world.maker.previewSound());
    world.maker.window()->hide();
}

TEST(TagKeys, ThePictureIsCopiedPastedChosenAndRemoved) {
    Theme::install(*qApp, nullptr);
    EditWorld world;
    ID3EditWndController tags;
    tags.setID3EditDataSource(world.recording(u"One"_s, 1));
    const Keys keys(*tags.window());
    auto& well = *tags.window()->findChild<AcceptDragImageView*>();
    well.setFocus(Qt::TabFocusReason);
    QImage picture(40, 40, QImage::Format_RGB32);
    picture.fill(Qt::green);
    QGuiApplication::clipboard()->setImage(picture);
    keys.press(Qt::Key_V, Qt::ControlModifier);
    ASSERT_FALSE(well.imgShow().isNull());
    EXPECT_EQ(well.imgShow().pixelColor(100, 100), QColor(Qt::green));
    QGuiApplication::clipboard()->clear();
    keys.press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->image().size(), QSize(300, 300));
    keys.press(Qt::Key_Delete);
    EXPECT_TRUE(well.imgShow().isNull());
    ASSERT_TRUE(picture.save(world.at(u"cover.png"_s)));
    world.panels.answer = world.at(u"cover.png"_s);
    keys.press(Qt::Key_Space);
    EXPECT_FALSE(well.imgShow().isNull());
    tags.window()->hide();
}

TEST(MainWindowKeys, TheMenuSortsAsAClickOnAHeadingDoes) {
    Theme::install(*qApp, nullptr);
    WindowWorld world;
    for (const char* title : {"B", "C", "A"})
        world.library->addRecordFile(world.made(QString::fromLatin1(title)));
    world.open();
    world.selectNode(u"all-record"_s);
    const auto& table = world.outlet<QTableView>("audioTableView_");
    const auto titles = [&] {
        QString all;
        for (int row = 0; row < table.model()->rowCount(); ++row)
            all += table.model()->index(row, AudioTableModel::Title).data().toString();
        return all;
    };
    const QString unsorted = titles();
    const auto choose = [&](const QString& text) {
        for (QAction* each : world.controller->window()->findChildren<QAction*>())
            if (each->text() == text && qobject_cast<QMenu*>(each->parent())) {
                each->trigger();
                return true;
            }
        return false;
    };
    EXPECT_TRUE(choose(u"Title"_s));
    EXPECT_EQ(titles(), u"ABC"_s);
    EXPECT_TRUE(choose(u"Title"_s));
    EXPECT_EQ(titles(), u"CBA"_s) << "the second time reversed";
    EXPECT_TRUE(choose(u"&Unsorted"_s));
    EXPECT_EQ(titles(), unsorted);
}

TEST(PlaybackKeys, TheBarSeeksByKeys) {
    struct Wish : AudioPlayProgressViewDelegate {
        void setAudioPosition(float seconds) override { wanted = seconds; }
        float wanted = -1;
    } wish;
    AudioPlayProgressView bar;
    bar.setDelegate(&wish);
    bar.setDuration(100);
    bar.setCurrentTime(50);
    const auto after = [&](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&bar, key, modifiers);
        return wish.wanted;
    };
    EXPECT_EQ(after(Qt::Key_Left), 45);
    EXPECT_EQ(after(Qt::Key_Right, Qt::ShiftModifier), 51);
    EXPECT_EQ(after(Qt::Key_PageDown), 20);
    EXPECT_EQ(after(Qt::Key_PageUp), 80);
    EXPECT_EQ(after(Qt::Key_Home), 0);
    EXPECT_EQ(after(Qt::Key_End), 100);
}

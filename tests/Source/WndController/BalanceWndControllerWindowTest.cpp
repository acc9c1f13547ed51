// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/BalanceWndController.h"

#include "RingtoneMaker/CustomSound.h"
#include "Source/View/Theme.h"
#include "tests/Source/WndController/BalanceWorld.h"
#include "tests/support/AudioCheck.h"

#include <QApplication>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSlider>
#include <QWindow>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class BalanceWindow : public testing::Test {
protected:
    BalanceWindow() { Theme::install(*qApp, nullptr); }
    ~BalanceWindow() override { window().hide(); }

    void open(float level = 0.3F) {
        world.open(level);
        window().resize(720, 420);
        ToolControl::showWindowNib(world.balance);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window(), 30000));
        window().activateWindow();
        QCoreApplication::processEvents();
    }
    [[nodiscard]] QWidget& window() const { return *world.balance.window(); }
    template <typename Widget>
    [[nodiscard]] Widget& find(const char* name) const {
        auto* const widget = window().findChild<Widget*>(QLatin1StringView(name));
        EXPECT_NE(widget, nullptr) << name;
        return *widget;
    }
    void click(const char* button) const {
        const QWidget& widget = find<QPushButton>(button);
        QTest::mouseClick(window().windowHandle(), Qt::LeftButton, {}, widget.mapTo(&window(), widget.rect().center()));
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const {
        QTest::keyClick(window().windowHandle(), key, modifiers);
    }
    [[nodiscard]] bool measured() const {
        return waitFor([this] { return world.balance.isMeasured(); });
    }
    [[nodiscard]] bool saved() const {
        return waitFor([this] { return !world.balance.isSaving(); });
    }
    [[nodiscard]] QString mix() const { return world.entry.value(AudioRecordEntry::SavePath).toString(); }
    [[nodiscard]] FakeSound& sound() const { return static_cast<FakeSound&>(*world.balance.sound()->sound()); }
    /// The level of what the player gets next.
    [[nodiscard]] double heard() const {
        std::vector<float> left(2048);
        std::vector<float> right(2048);
        std::uint32_t frames = 2048;
        struct {
            AudioBufferList head;
            AudioBuffer second;
        } list;
        list.head.mNumberBuffers = 2;
        list.head.mBuffers[0] = {1, frames * 4, left.data()};
        list.second = {1, frames * 4, right.data()};
        EXPECT_EQ(sound().reader->read(frames, &list.head), noErr);
        return AudioCheck::levelOf(left);
    }

    BalanceWorld world;
};

} // namespace

TEST_F(BalanceWindow, KeysMoveTheGainsAndTheDelay) {
    open();
    find<QSlider>("sldInputGain_").setFocus();
    key(Qt::Key_Right);
    EXPECT_DOUBLE_EQ(world.balance.settings().inputGain, 0.1);
    EXPECT_DOUBLE_EQ(find<QDoubleSpinBox>("fldInputGain_").value(), 0.1);
    key(Qt::Key_PageUp);
    EXPECT_NEAR(world.balance.settings().inputGain, 1.1, 1e-9);
    key(Qt::Key_Tab);
    EXPECT_TRUE(find<QDoubleSpinBox>("fldInputGain_").hasFocus());
    key(Qt::Key_Up);
    EXPECT_NEAR(world.balance.settings().inputGain, 1.6, 1e-9);
    EXPECT_EQ(find<QSlider>("sldInputGain_").value(), 16);
    find<QDoubleSpinBox>("fldDelay_").setFocus();
    find<QDoubleSpinBox>("fldDelay_").selectAll();
    QTest::keyClicks(&find<QDoubleSpinBox>("fldDelay_"), u"-120"_s);
    key(Qt::Key_Return);
    EXPECT_DOUBLE_EQ(world.balance.settings().delayMs, -120);
    EXPECT_EQ(find<QSlider>("sldDelay_").value(), -120);
    EXPECT_TRUE(window().isVisible()) << "Return does not save or close";
    find<QSlider>("sldComputerGain_").setFocus();
    key(Qt::Key_Home);
    EXPECT_DOUBLE_EQ(world.balance.settings().computerGain, -60);
    EXPECT_EQ(find<QDoubleSpinBox>("fldComputerGain_").text(), u"Silent"_s);
    click("btnReset_");
    EXPECT_EQ(world.balance.settings(), BalanceSettings());
    EXPECT_FALSE(find<QPushButton>("btnReset_").isEnabled());
}

TEST_F(BalanceWindow, AChangeIsHeardWhileItPlays) {
    open();
    key(Qt::Key_Space);
    EXPECT_TRUE(sound().playing);
    EXPECT_EQ(find<QPushButton>("btnPlay_").text(), u"Pause"_s);
    (void)heard();
    const double both = heard();
    find<QSlider>("sldComputerGain_").setFocus();
    key(Qt::Key_Home);
    (void)heard(); // the way down
    const double one = heard();
    EXPECT_NEAR(one / both, std::sqrt(0.5), 0.03);
    EXPECT_TRUE(sound().playing) << "it goes on";
    find<QDoubleSpinBox>("fldInputGain_").setValue(-20);
    (void)heard();
    EXPECT_NEAR(heard() / one, 0.1, 0.01);
    key(Qt::Key_Space);
    EXPECT_TRUE(sound().paused);
    EXPECT_EQ(find<QPushButton>("btnPlay_").text(), u"Play"_s);
}

TEST_F(BalanceWindow, TheOutlineSeeksByMouseAndKeys) {
    open();
    auto& view = find<BalanceView>("balanceView_");
    ASSERT_TRUE(waitFor([&] { return view.outline(BalanceView::Input).size() >= 29; }));
    const QPoint middle = view.mapTo(&window(), view.rect().center());
    QTest::mouseClick(window().windowHandle(), Qt::LeftButton, {}, middle);
    EXPECT_NEAR(sound().time, 1.5, 0.05);
    EXPECT_TRUE(view.hasFocus());
    key(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_NEAR(sound().time, 0.5, 0.05);
    key(Qt::Key_End);
    EXPECT_NEAR(sound().time, 3, 1e-6);
    key(Qt::Key_Home);
    EXPECT_NEAR(sound().time, 0, 1e-6);
    EXPECT_EQ(view.spokenNumber(), 0.0);
}

TEST_F(BalanceWindow, TooLoudIsToldAndLowered) {
    open(0.4F);
    ASSERT_TRUE(measured());
    EXPECT_TRUE(find<QLabel>("lblLoudness_").text().startsWith(u"Loudest point: "_s));
    EXPECT_FALSE(find<QPushButton>("btnLower_").isEnabled());
    find<QDoubleSpinBox>("fldInputGain_").setValue(10);
    ASSERT_TRUE(measured());
    EXPECT_TRUE(find<QLabel>("lblLoudness_").text().startsWith(u"Too loud by "_s))
        << qPrintable(find<QLabel>("lblLoudness_").text());
    EXPECT_TRUE(find<QPushButton>("btnLower_").isEnabled());
    click("btnLower_");
    EXPECT_LT(world.balance.settings().inputGain, 6);
    ASSERT_TRUE(measured());
    EXPECT_TRUE(find<QLabel>("lblLoudness_").text().startsWith(u"Loudest point: "_s))
        << qPrintable(find<QLabel>("lblLoudness_").text());
}

TEST_F(BalanceWindow, SaveAsksAndReplacesTheMix) {
    open();
    find<QDoubleSpinBox>("fldComputerGain_").setValue(-60);
    const QByteArray before = Mpeg4Files::contentOf(mix());
    world.alerts.answers = {1}; // Cancel
    click("btnSave_");
    EXPECT_FALSE(world.balance.isSaving());
    EXPECT_EQ(Mpeg4Files::contentOf(mix()), before);
    click("btnSave_");
    EXPECT_TRUE(find<QProgressBar>("progress_").isVisible());
    EXPECT_FALSE(find<QSlider>("sldInputGain_").isEnabled());
    ASSERT_TRUE(saved());
    EXPECT_NE(Mpeg4Files::contentOf(mix()), before);
    ASSERT_EQ(world.updatedPaths, QStringList{mix()});
    EXPECT_NEAR(world.updatedTags.at(0).value(AudioRecordEntry::Length).toDouble(), 3, 0.01);
    EXPECT_TRUE(RecordingTracks::isKeptFor(world.updatedTags.at(0))) << "the tracks still belong to it";
    EXPECT_FALSE(find<QProgressBar>("progress_").isVisible());
    EXPECT_EQ(find<QPushButton>("btnCancel_").text(), u"Close"_s);
    const auto samples = AudioCheck::decodedByFfmpeg(mix());
    ASSERT_EQ(samples.size(), 2U);
    EXPECT_NEAR(AudioCheck::pitchOf(AudioCheck::inner(samples[0], 4096), 44100), 440, 1) << "the input alone";
}

TEST_F(BalanceWindow, SaveAsWritesANewFile) {
    open();
    const QByteArray before = Mpeg4Files::contentOf(mix());
    world.panels.answer = world.at(u"New.m4a"_s);
    click("btnSaveAs_");
    ASSERT_TRUE(saved());
    EXPECT_TRUE(QFileInfo(world.at(u"New.m4a"_s)).isFile());
    EXPECT_EQ(Mpeg4Files::contentOf(mix()), before);
    EXPECT_TRUE(world.updatedPaths.isEmpty());
}

TEST_F(BalanceWindow, AMixThatIsTooLoudIsSavedLowered) {
    open(0.9F);
    world.alerts.answers = {0, 0}; // replace; then lower both
    click("btnSave_");
    ASSERT_TRUE(waitFor([this] { return !world.balance.isSaving() && !world.updatedPaths.isEmpty(); }));
    EXPECT_LT(world.balance.settings().inputGain, -4);
    const auto samples = AudioCheck::decodedByFfmpeg(mix());
    float most = 0;
    for (const float sample : samples.at(0))
        most = std::max(most, std::fabs(sample));
    EXPECT_LT(most, 1.05F);
    EXPECT_GT(most, 0.8F);
}

TEST_F(BalanceWindow, EscapeStopsASaveAndThenCloses) {
    open();
    const QByteArray before = Mpeg4Files::contentOf(mix());
    click("btnSave_");
    key(Qt::Key_Escape);
    ASSERT_TRUE(saved());
    EXPECT_TRUE(window().isVisible());
    const bool wasAtItsEnd = !world.updatedPaths.isEmpty();
    EXPECT_TRUE(wasAtItsEnd || Mpeg4Files::contentOf(mix()) == before);
    key(Qt::Key_Escape);
    EXPECT_FALSE(window().isVisible());
}

TEST_F(BalanceWindow, ARecordingThatPlaysElsewhereIsNotReplaced) {
    open();
    world.playedElsewhere = mix();
    click("btnSave_");
    EXPECT_FALSE(world.balance.isSaving());
    EXPECT_TRUE(world.updatedPaths.isEmpty());
}

TEST_F(BalanceWindow, MissingTracksAreNamed) {
    open();
    const auto tracks = RecordingTracks::stored(world.entry);
    ASSERT_TRUE(QFile::remove(tracks.computer));
    EXPECT_TRUE(world.balance.setEntry(world.entry).contains(QFileInfo(tracks.computer).fileName()));
}

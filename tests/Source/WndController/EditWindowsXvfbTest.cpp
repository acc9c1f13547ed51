// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/play/PipeWireSounds.h"
#include "RingtoneMaker/CustomSound.h"
#include "Source/View/AcceptDragImageView.h"
#include "Source/View/Theme.h"
#include "Source/WndController/AudioTrimWndController.h"
#include "Source/WndController/ID3EditWndController.h"
#include "tests/Source/WndController/EditWorld.h"
#include "tests/Source/WndController/SplitWorld.h"
#include "tests/fakes/FakeSourceFiles.h"
#include "tests/support/PrivateAudioSession.h"
#include "tests/support/RealPointer.h"
#include "tests/support/Standstills.h"
#include "tests/support/TestCapture.h"
#include "tests/support/XvfbSession.h"

#include <QApplication>
#include <QProcess>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using RealPointer::drag;
using RealPointer::onScreen;
using RealPointer::shown;

namespace {

/// The editing windows under a real window manager, with the X server's pointer and keyboard.
class RealDrags : public testing::Test {
protected:
    RealDrags() { Theme::install(*qApp, nullptr); }

    static XvfbSession& desktop() { return *XvfbSession::current(); }

    EditWorld world;
};

class TrimWindowOnADesktop : public RealDrags {
protected:
    void open(double seconds) {
        const Dictionary entry = world.recording(u"One"_s, 3);
        world.sounds.lengths[entry.value(AudioRecordEntry::SavePath).toString()] = seconds;
        trim.setTrimAudioSourceData(entry);
        trim.window()->restoreSize();
        ToolControl::showWindowNib(trim);
        ASSERT_TRUE(shown(*trim.window()));
    }
    [[nodiscard]] AudioTrimEditView& bar() const { return *trim.window()->findChild<AudioTrimEditView*>(); }
    [[nodiscard]] QPointF placeOf(double rate, double y) const {
        return {bar().backStripRect().x() + bar().backStripRect().width() * rate, y};
    }
    AudioTrimWndController trim;
};

class TagWindowOnADesktop : public RealDrags {
protected:
    void open() {
        tags.setDelegate(&world);
        tags.setID3EditDataSource(world.recording(u"One"_s, 1));
        tags.window()->restoreSize();
        ToolControl::showWindowNib(tags);
        ASSERT_TRUE(shown(*tags.window()));
    }
    /// Starts the other program; its window is at the upper left of the screen.
    void startClient(const QString& gives) {
        client.start(QCoreApplication::applicationFilePath(), {u"--drag-client"_s, u"4"_s, u"4"_s, gives});
        ASSERT_TRUE(waitFor([&] { return said().contains("ready"); }));
    }
    QByteArray said() {
        output += client.readAllStandardOutput();
        return output;
    }
    void TearDown() override {
        client.kill();
        client.waitForFinished();
    }
    [[nodiscard]] AcceptDragImageView& well() const { return *tags.window()->findChild<AcceptDragImageView*>(); }
    [[nodiscard]] QPoint middleOfWell() const { return onScreen(well(), QRectF(well().rect()).center()); }
    [[nodiscard]] QString picture() const {
        QImage image(40, 20, QImage::Format_RGB32);
        image.fill(Qt::red);
        EXPECT_TRUE(image.save(world.at(u"a b%20$(x).png"_s)));
        return world.at(u"a b%20$(x).png"_s);
    }
    static constexpr QPoint kClient{64, 64};

    ID3EditWndController tags;
    QProcess client;
    QByteArray output;
};

} // namespace

TEST(SplitWindowOnADesktop, ACutIsDraggedAndRemoved) {
    Theme::install(*qApp, nullptr);
    SplitWorld world;
    world.open(world.splitRecording(u"One"_s));
    ASSERT_TRUE(shown(*world.controller.window()));
    world.length().setValue(4);
    ASSERT_EQ(world.cuts().size(), 3U);
    const QRectF handle = world.bar().handleRect(1);
    const double to = world.bar().xOf(std::llround(6.5 * SplitWorld::kRate));
    ASSERT_TRUE(drag(onScreen(world.bar(), handle.center()), onScreen(world.bar(), {to, handle.center().y()})));
    ASSERT_TRUE(waitFor([&] { return std::abs(world.cuts()[1] - 6.5) < 0.1; }));
    EXPECT_EQ(world.bar().currentCut(), 1);
    ASSERT_TRUE(XvfbSession::current()->xdotool({u"key"_s, u"Delete"_s}));
    EXPECT_TRUE(waitFor([&] { return world.cuts().size() == 2; }));
    world.controller.window()->hide();
}

TEST_F(TrimWindowOnADesktop, AHandleStopsAtTheOtherOne) {
    open(100);
    ASSERT_TRUE(drag(onScreen(bar(), bar().rightHandleRect().center()), onScreen(bar(), placeOf(0.5, 100))));
    EXPECT_NEAR(bar().rightTrimRate(), 0.5, 0.01);
    ASSERT_TRUE(drag(onScreen(bar(), bar().leftHandleRect().center()), onScreen(bar(), placeOf(0.8, 100))));
    EXPECT_EQ(bar().leftTrimRate(), bar().rightTrimRate());
    ASSERT_TRUE(drag(onScreen(bar(), bar().leftHandleRect().center()), onScreen(bar(), placeOf(0.25, 100))));
    EXPECT_NEAR(bar().leftTrimRate(), 0.25, 0.01);
    ASSERT_TRUE(drag(onScreen(bar(), bar().rightHandleRect().center()), onScreen(bar(), placeOf(0.1, 100))));
    EXPECT_EQ(bar().rightTrimRate(), bar().leftTrimRate());
}

TEST_F(TrimWindowOnADesktop, AClickOnTheStripSeeksNothingAndADragDoes) {
    open(100);
    const QPoint place = onScreen(bar(), placeOf(0.5, 8));
    ASSERT_TRUE(desktop().xdotool(
        {u"mousemove"_s, QString::number(place.x()), QString::number(place.y()), u"click"_s, u"1"_s}));
    ASSERT_TRUE(drag(onScreen(bar(), placeOf(0.1, 8)), onScreen(bar(), placeOf(0.75, 8))));
    ASSERT_TRUE(waitFor([&] { return bar().playRate() > 0.7; }));
    for (const QString& call : world.sounds.last->calls)
        EXPECT_NE(call, u"setCurrentTime 50"_s);
    EXPECT_NEAR(bar().playRate(), 0.75, 0.01);
}

TEST_F(TrimWindowOnADesktop, PreviewPlaysFromTheLeftEndToTheRightEnd) {
    PrivateAudioSession::shared();
    constexpr double seconds = 20;
    constexpr int rate = 48000;
    FakeSourceFiles files;
    const QString path = world.at(u"ramp.wav"_s);
    auto& source = files.addSource(path, 0, [](int, std::int64_t frame) { // each sample encodes its own time
        return float(double(frame) / (seconds * rate));
    });
    source.rate = rate;
    source.frames = std::int64_t(seconds * rate);
    const auto sounds = Platform::createSounds(files);
    Platform::services().sounds = sounds.get();
    Platform::services().mediaFiles = nullptr;
    trim.setTrimAudioSourceData(LibraryWorld::entry(u"k"_s, u"ramp"_s, path, seconds));
    trim.setLeftTrim(0.25F);
    trim.setRightTrim(0.5F);
    trim.window()->restoreSize();
    ToolControl::showWindowNib(trim);
    ASSERT_TRUE(shown(*trim.window()));
    double first = 0;
    double last = 0;
    Standstills standstills;
    standstills.attemptInOnePiece([&] {
        TestCapture capture({.target = "sonaphex.output", .monitor = true, .rate = rate});
        ASSERT_TRUE(capture.start());
        bar().setFocus();
        ASSERT_TRUE(desktop().xdotool({u"key"_s, u"p"_s}));
        ASSERT_TRUE(waitFor([&] { return trim.isPreview(); }));
        ASSERT_TRUE(waitFor([&] { return !trim.isPreview(); }, 60000));
        EXPECT_TRUE(trim.audioPlayControl()->isStop());
        const auto behind = capture.frames() + rate / 2;
        ASSERT_TRUE(waitFor([&] { return capture.frames() > behind; }));

        first = last = 0;
        for (const float sample : capture.interleaved()) {
            if (sample <= 0.01F)
                continue;
            if (first == 0)
                first = double(sample) * seconds;
            last = double(sample) * seconds;
        }
    });
    if (HasFatalFailure())
        return;
    // A busy machine may lose the first cycle, of at most 1024 frames.
    EXPECT_GE(first, 5 - 0.001);
    EXPECT_LT(first, 5.1);
    EXPECT_GT(last, 9.8);
    EXPECT_LE(last, 10.1);
    RecordProperty("heardFrom", std::to_string(first));
    RecordProperty("heardTo", std::to_string(last));
    std::printf("heard from %.4f s to %.4f s\n", first, last);
    Platform::services().sounds = &world.sounds;
    trim.setTrimAudioSourceData({});
}

TEST_F(TagWindowOnADesktop, AcceptsAFileFromAnotherProgram) {
    open();
    startClient(QUrl::fromLocalFile(picture()).toString(QUrl::FullyEncoded));
    ASSERT_TRUE(drag(kClient, middleOfWell(), [this] { return well().isDragOver(); }));
    ASSERT_TRUE(waitFor([&] { return !well().imgShow().isNull(); }));
    EXPECT_EQ(well().imgShow().size(), QSize(300, 300));
    EXPECT_EQ(well().imgShow().pixelColor(150, 150), QColor(Qt::red));
    EXPECT_EQ(well().strImagePath(), picture());
}

TEST_F(TagWindowOnADesktop, AcceptsAPictureFromAnotherProgram) {
    open();
    startClient(u"image"_s);
    ASSERT_TRUE(drag(kClient, middleOfWell(), [this] { return well().isDragOver(); }));
    ASSERT_TRUE(waitFor([&] { return !well().imgShow().isNull(); }));
    EXPECT_EQ(well().imgShow().pixelColor(150, 150), QColor(Qt::green));
}

TEST_F(TagWindowOnADesktop, MovesItsPictureToAnotherProgram) {
    open();
    ASSERT_TRUE(well().hasImageFile({picture()}));
    startClient(u"image"_s);
    ASSERT_TRUE(drag(middleOfWell(), kClient, [this] { return said().contains("entered"); }));
    ASSERT_TRUE(waitFor([&] { return said().contains("dropped"); })) << "the other program got nothing";
    EXPECT_TRUE(said().contains("dropped image 300x300")) << said().constData();
    EXPECT_TRUE(waitFor([&] { return well().imgShow().isNull(); }));
}

TEST_F(TagWindowOnADesktop, RemovesAPictureThatIsDraggedOutAndKeepsOneThatIsDroppedBack) {
    open();
    ASSERT_TRUE(well().hasImageFile({picture()}));
    ASSERT_TRUE(drag(middleOfWell(), middleOfWell() + QPoint(20, 20)));
    EXPECT_FALSE(well().imgShow().isNull()) << "it was let go inside the well";
    ASSERT_TRUE(drag(
        middleOfWell(), QPoint(2, 2), [] { return true; }, true));
    EXPECT_FALSE(well().imgShow().isNull()) << "Escape calls the drag back";
    ASSERT_TRUE(drag(middleOfWell(), QPoint(2, 2)));
    EXPECT_TRUE(waitFor([&] { return well().imgShow().isNull(); }));
    EXPECT_TRUE(well().strImagePath().isEmpty());
}

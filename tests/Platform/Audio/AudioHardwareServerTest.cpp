// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Audio/AudioHardware.h"
#include "Platform/Audio/IORegistry.h"

#include "tests/support/PrivateAudioSession.h"
#include "tests/support/TestCapture.h"
#include "tests/support/TestCard.h"
#include "tests/support/TestSource.h"
#include "tests/support/UnitCapture.h"
#include "tests/support/WaitFor.h"

#include <QProcess>
#include <QRegularExpression>
#include <QSignalSpy>

#include <chrono>
#include <csignal>
#include <thread>

using namespace Platform;
using namespace Qt::StringLiterals;

namespace {

class AudioHardwareTest : public testing::Test {
protected:
    PrivateAudioSession& session_ = PrivateAudioSession::shared();
    std::unique_ptr<AudioHardware> hardware_ = createAudioHardware();
};

QString uidOf(AudioHardware& hardware, AudioObjectID device) {
    QString uid;
    EXPECT_EQ(hardware.getDeviceUID(device, uid), noErr);
    return uid;
}

/// Asks the server with one of its own tools.
QByteArray asked(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished();
    return process.readAllStandardOutput();
}

} // namespace

TEST_F(AudioHardwareTest, KnowsTheDevicesWhenItIsFirstAsked) {
    EXPECT_TRUE(hardware_->connected());
    EXPECT_NE(deviceNamed(*hardware_, u"Silent Output"_s), 0u);
}

TEST_F(AudioHardwareTest, ListsAnAddedDeviceAndDropsARemovedOne) {
    QSignalSpy changed(hardware_.get(), &AudioHardware::devicesChanged);
    TestSource source({.name = "test.mic", .description = "Test Microphone"});
    ASSERT_TRUE(source.start());
    const auto device = waitForDevice(*hardware_, u"Test Microphone"_s);
    ASSERT_NE(device, 0u);
    EXPECT_TRUE(waitFor([&] { return changed.count() > 0; }));
    changed.clear();
    source.remove();
    EXPECT_TRUE(waitFor([&] { return deviceNamed(*hardware_, u"Test Microphone"_s) == 0; }));
    EXPECT_TRUE(waitFor([&] { return changed.count() > 0; }));
    QString name = u"untouched"_s;
    EXPECT_NE(hardware_->getDeviceName(device, name), noErr);
    EXPECT_EQ(name, u"untouched"_s);
}

TEST_F(AudioHardwareTest, ListsDevicesInTheOrderOfTheirFirstAppearance) {
    TestSource first({.name = "test.order.z", .description = "Order Z"});
    TestSource second({.name = "test.order.a", .description = "Order A"});
    ASSERT_TRUE(first.start());
    const auto one = waitForDevice(*hardware_, u"Order Z"_s);
    ASSERT_TRUE(second.start());
    const auto two = waitForDevice(*hardware_, u"Order A"_s);
    first.remove();
    ASSERT_TRUE(waitFor([&] { return deviceNamed(*hardware_, u"Order Z"_s) == 0; }));
    ASSERT_TRUE(first.start());
    EXPECT_EQ(waitForDevice(*hardware_, u"Order Z"_s), one);
    const auto devices = hardware_->devices();
    EXPECT_LT(std::ranges::find(devices, one), std::ranges::find(devices, two));
}

TEST_F(AudioHardwareTest, GivesAReturningDeviceItsOldNumber) {
    TestSource first({.name = "test.return.one", .description = "Return One"});
    ASSERT_TRUE(first.start());
    const auto one = waitForDevice(*hardware_, u"Return One"_s);
    first.remove();
    ASSERT_TRUE(waitFor([&] { return deviceNamed(*hardware_, u"Return One"_s) == 0; }));
    // The server reuses the id of the node that left for the next node.
    TestSource second({.name = "test.return.two", .description = "Return Two"});
    ASSERT_TRUE(second.start());
    const auto two = waitForDevice(*hardware_, u"Return Two"_s);
    EXPECT_NE(two, one);
    ASSERT_TRUE(first.start());
    EXPECT_EQ(waitForDevice(*hardware_, u"Return One"_s), one);
    EXPECT_EQ(deviceNamed(*hardware_, u"Return Two"_s), two);
}

TEST_F(AudioHardwareTest, DistinguishesTwoDevicesOfOneName) {
    TestSource first({.name = "test.twin", .description = "Twin"});
    TestSource second({.name = "test.twin", .description = "Other Twin"});
    ASSERT_TRUE(first.start());
    ASSERT_TRUE(second.start());
    const auto one = waitForDevice(*hardware_, u"Twin"_s);
    const auto two = waitForDevice(*hardware_, u"Other Twin"_s);
    EXPECT_NE(one, two);
}

TEST_F(AudioHardwareTest, MakesUidsOfTheNameAndItsHash) {
    TestSource first({.name = "test.uid", .description = "Uid Short"});
    TestSource second({.name = "test.uid.longer", .description = "Uid Long"});
    ASSERT_TRUE(first.start());
    ASSERT_TRUE(second.start());
    const QString shortUid = uidOf(*hardware_, waitForDevice(*hardware_, u"Uid Short"_s));
    const QString longUid = uidOf(*hardware_, waitForDevice(*hardware_, u"Uid Long"_s));
    static const QRegularExpression pattern(u"^test\\.uid:[0-9a-f]{8}$"_s);
    EXPECT_TRUE(pattern.match(shortUid).hasMatch()) << shortUid.toStdString();
    EXPECT_TRUE(longUid.startsWith(u"test.uid.longer:"_s));
    EXPECT_NE(shortUid.section(u':', 1), longUid.section(u':', 1));
}

TEST_F(AudioHardwareTest, CountsCapturePortsButNoMonitors) {
    TestSource source({.name = "test.four", .description = "Four Channels", .channels = 4});
    ASSERT_TRUE(source.start());
    const auto input = waitForDevice(*hardware_, u"Four Channels"_s);
    const auto output = waitForDevice(*hardware_, u"Silent Output"_s);
    const auto sizeOf = [&](AudioObjectID device, AudioHardware::Scope scope) {
        std::uint32_t bytes = 256;
        EXPECT_EQ(hardware_->getStreamsDataSize(device, scope, bytes), noErr);
        return bytes;
    };
    // The session manager creates the ports one by one.
    EXPECT_TRUE(waitFor([&] { return sizeOf(input, AudioHardware::Scope::Input) == 16; }));
    EXPECT_EQ(sizeOf(input, AudioHardware::Scope::Output), 0u);
    EXPECT_TRUE(waitFor([&] { return sizeOf(output, AudioHardware::Scope::Output) == 8; }));
    EXPECT_EQ(sizeOf(output, AudioHardware::Scope::Input), 0u);
    std::uint32_t size = 0;
    size = 256;
    EXPECT_NE(hardware_->getStreamsDataSize(0xFFFFFF, AudioHardware::Scope::Input, size), noErr);
    EXPECT_EQ(size, 256u);
}

TEST_F(AudioHardwareTest, KnowsRateAndChannelsBeforeADeviceWasEverOpened) {
    TestSource mono({.name = "test.mono", .description = "Mono 44", .rate = 44100, .channels = 1});
    TestSource six({.name = "test.six", .description = "Six 96", .rate = 96000, .channels = 6});
    ASSERT_TRUE(mono.start());
    ASSERT_TRUE(six.start());
    double rate = 0;
    std::uint32_t channels = 0;
    ASSERT_EQ(hardware_->getInputFormat(waitForDevice(*hardware_, u"Mono 44"_s), rate, channels), noErr);
    EXPECT_EQ(rate, 44100);
    EXPECT_EQ(channels, 1u);
    ASSERT_EQ(hardware_->getInputFormat(waitForDevice(*hardware_, u"Six 96"_s), rate, channels), noErr);
    EXPECT_EQ(rate, 96000);
    EXPECT_EQ(channels, 6u);
    EXPECT_NE(hardware_->getInputFormat(waitForDevice(*hardware_, u"Silent Output"_s), rate, channels), noErr);
}

TEST_F(AudioHardwareTest, SetsVolumeAndMuteOfTheDeviceItself) {
    TestSource source({.name = "test.volume", .description = "Volume Test"});
    ASSERT_TRUE(source.start());
    const auto device = waitForDevice(*hardware_, u"Volume Test"_s);
    float volume = 0;
    ASSERT_TRUE(waitFor([&] { return hardware_->getVolumeScalar(device, 1, volume) == noErr; }));
    ASSERT_EQ(hardware_->setVolumeScalar(device, 1, 0.25f), noErr);
    ASSERT_EQ(hardware_->setVolumeScalar(device, 2, 0.5f), noErr);
    ASSERT_EQ(hardware_->setMute(device, 2, true), noErr);
    EXPECT_NE(hardware_->setVolumeScalar(device, 3, 1.0f), noErr);
    EXPECT_NE(hardware_->setVolumeScalar(device, 0, 1.0f), noErr);
    bool mute = false;
    EXPECT_TRUE(waitFor([&] { return hardware_->getMute(device, 1, mute) == noErr && mute; }));
    // A second connection to the server must see the same values, at the latest when the node has run.
    TestCapture capture({.target = "test.volume", .monitor = false});
    ASSERT_TRUE(capture.start());
    EXPECT_TRUE(waitFor([&] {
        const QByteArray props = asked(u"pw-dump"_s, {u"test.volume"_s}).simplified();
        return props.contains("\"channelVolumes\": [ 0.250000, 0.500000 ]") && props.contains("\"mute\": true");
    })) << asked(u"pw-dump"_s, {u"test.volume"_s}).toStdString();
    EXPECT_TRUE(waitFor([&] { return hardware_->getMute(device, 1, mute) == noErr && mute; }));
    EXPECT_TRUE(waitFor([&] { return hardware_->getVolumeScalar(device, 2, volume) == noErr && volume == 0.5f; }));
}

TEST_F(AudioHardwareTest, ARequestRightBeforeTheEndReachesABusyServer) {
    auto registry = createIORegistry();
    const auto output = deviceNamed(*hardware_, u"Silent Output"_s);
    ASSERT_NE(output, 0u);
    hardware_.reset();
    const pid_t server = session_.serverProcess();
    ASSERT_EQ(kill(server, SIGSTOP), 0);
    std::thread continuing([server] {
        // Long enough for an end that does not wait.
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
        kill(server, SIGCONT);
    });
    EXPECT_EQ(registry->setProperty(output, u"kCaptureDriverPathKey"_s, u"/the/last"_s), noErr);
    registry.reset();
    continuing.join();
    EXPECT_TRUE(asked(u"pw-metadata"_s, {}).contains("/the/last"));
    createIORegistry()->setProperty(output, u"kCaptureDriverPathKey"_s, QString());
}

TEST_F(AudioHardwareTest, ReportsAVolumeThatAnotherProgramSet) {
    TestSource source({.name = "test.other", .description = "Others Volume"});
    ASSERT_TRUE(source.start());
    const auto device = waitForDevice(*hardware_, u"Others Volume"_s);
    float volume = 0;
    ASSERT_TRUE(waitFor([&] { return hardware_->getVolumeScalar(device, 1, volume) == noErr; }));
    TestCapture capture(
        {.target = "test.other", .monitor = false}); // PipeWire 1.4 reports it only of a node that has run
    ASSERT_TRUE(capture.start());
    asked(u"pw-cli"_s, {u"set-param"_s, u"test.other"_s, u"Props"_s, u"{ channelVolumes: [ 0.125, 0.75 ] }"_s});
    EXPECT_TRUE(waitFor([&] { return hardware_->getVolumeScalar(device, 2, volume) == noErr && volume == 0.75f; }));
}

namespace {

/// A microphone node of a sound card.
class CardNode {
public:
    CardNode(const TestCard& card, int device) {
        node_.start(u"pw-cli"_s, QStringList());
        node_.write("create-node adapter { factory.name=support.null-audio-sink node.name=test.card.mic "
                    "node.description=\"Card Microphone\" media.class=Audio/Source/Virtual audio.position=[FL FR] "
                    "device.id=" +
                    QByteArray::number(card.id()) + " card.profile.device=" + QByteArray::number(device) + " }\n");
    }
    ~CardNode() {
        node_.closeWriteChannel();
        node_.terminate();
        node_.waitForFinished();
    }

private:
    QProcess node_;
};

} // namespace

TEST_F(AudioHardwareTest, SetsVolumeAndMuteOnTheRouteOfACard) {
    TestCard card({{"device.name", "test_card.routed"}, {"media.class", "Audio/Device"}},
                  TestCard::Route{.index = 4, .device = 7, .volumes = {0.1f, 0.2f}, .muted = true});
    ASSERT_TRUE(card.start());
    const CardNode node(card, 7);
    const auto device = waitForDevice(*hardware_, u"Card Microphone"_s);
    // The card's values are reported, not those of its node.
    float volume = 0;
    bool mute = false;
    ASSERT_TRUE(waitFor([&] { return hardware_->getVolumeScalar(device, 2, volume) == noErr && volume == 0.2f; }));
    ASSERT_TRUE(waitFor([&] { return hardware_->getMute(device, 1, mute) == noErr && mute; }));
    ASSERT_EQ(hardware_->setVolumeScalar(device, 1, 1.0f), noErr);
    ASSERT_EQ(hardware_->setVolumeScalar(device, 2, 0.5f), noErr);
    ASSERT_EQ(hardware_->setMute(device, 2, false), noErr);
    EXPECT_TRUE(waitFor([&] {
        const auto route = card.route();
        return route.volumes == std::vector{1.0f, 0.5f} && !route.muted;
    })) << testing::PrintToString(card.route().volumes);
    ASSERT_TRUE(waitFor([&] { return asked(u"pw-dump"_s, {}).simplified().contains("[ 1.000000, 0.500000 ]"); }))
        << "the card has told the server";
    // A program that has just started knows the route when it first asks.
    hardware_.reset();
    hardware_ = createAudioHardware();
    (void)hardware_->devices();
    const auto again = deviceNamed(*hardware_, u"Card Microphone"_s);
    EXPECT_EQ(again, device);
    EXPECT_EQ(hardware_->getVolumeScalar(again, 2, volume), noErr);
    EXPECT_EQ(volume, 0.5f);
    card.turn({0.25f, 0.75f});
    EXPECT_TRUE(waitFor([&] { return hardware_->getVolumeScalar(device, 2, volume) == noErr && volume == 0.75f; }));
}

TEST_F(AudioHardwareTest, SetsVolumeAndMuteOnTheNodeWhereTheRouteHasNone) {
    TestCard card({{"device.name", "test_card.digital"}, {"media.class", "Audio/Device"}},
                  TestCard::Route{.index = 0, .device = 7});
    ASSERT_TRUE(card.start());
    const CardNode node(card, 7);
    const auto device = waitForDevice(*hardware_, u"Card Microphone"_s);
    float volume = 0;
    ASSERT_TRUE(waitFor([&] { return hardware_->getVolumeScalar(device, 1, volume) == noErr; }));
    ASSERT_EQ(hardware_->setVolumeScalar(device, 1, 0.25f), noErr);
    TestCapture capture(
        {.target = "test.card.mic", .monitor = false}); // PipeWire 1.4 reports it only of a node that has run
    ASSERT_TRUE(capture.start());
    EXPECT_TRUE(waitFor([] {
        return asked(u"pw-dump"_s, {u"test.card.mic"_s}).simplified().contains("\"channelVolumes\": [ 0.250000,");
    }));
    EXPECT_TRUE(card.route().volumes.empty());
}

TEST_F(AudioHardwareTest, FollowsTheDefaultOutput) {
    AudioObjectID device = 0;
    ASSERT_TRUE(waitFor([&] { return hardware_->getDefaultOutputDevice(device) == noErr; }));
    EXPECT_EQ(device, deviceNamed(*hardware_, u"Silent Output"_s));
    QSignalSpy changed(hardware_.get(), &AudioHardware::defaultOutputDeviceChanged);
    QProcess second;
    second.start(u"pw-cli"_s, QStringList());
    second.write("create-node adapter { factory.name=support.null-audio-sink node.name=test.sink "
                 "node.description=\"Second Output\" media.class=Audio/Sink audio.position=[FL FR] "
                 "priority.session=5000 }\n");
    EXPECT_TRUE(waitFor([&] {
        return hardware_->getDefaultOutputDevice(device) == noErr &&
               device == deviceNamed(*hardware_, u"Second Output"_s);
    }));
    EXPECT_TRUE(waitFor([&] { return changed.count() > 0; }));
    second.closeWriteChannel();
    second.terminate();
    second.waitForFinished();
    EXPECT_TRUE(waitFor([&] {
        return hardware_->getDefaultOutputDevice(device) == noErr &&
               device == deviceNamed(*hardware_, u"Silent Output"_s);
    }));
}

TEST_F(AudioHardwareTest, ReconnectsAfterTheServerIsLost) {
    const auto before = deviceNamed(*hardware_, u"Silent Output"_s);
    QSignalSpy connected(hardware_.get(), &AudioHardware::connectedChanged);
    ASSERT_TRUE(session_.stopServer());
    EXPECT_TRUE(waitFor([&] { return !hardware_->connected(); }));
    EXPECT_TRUE(waitFor([&] { return connected.count() == 1; }));
    EXPECT_TRUE(hardware_->devices().empty());
    EXPECT_FALSE(hardware_->lastError().isEmpty());
    AudioObjectID device = 0;
    EXPECT_NE(hardware_->getDefaultOutputDevice(device), noErr);
    ASSERT_TRUE(session_.startServer());
    EXPECT_TRUE(waitFor([&] { return deviceNamed(*hardware_, u"Silent Output"_s) == before; }));
    EXPECT_TRUE(waitFor([&] { return connected.count() == 2; }));
    EXPECT_TRUE(hardware_->lastError().isEmpty());
}

TEST(AudioHardwareWithoutServer, HasNoDevicesAndReportsTheReason) {
    PrivateAudioSession::end();
    const QTemporaryDir bare;
    qputenv("PIPEWIRE_RUNTIME_DIR", bare.path().toLocal8Bit());
    {
        const auto hardware = createAudioHardware();
        EXPECT_TRUE(hardware->devices().empty());
        EXPECT_FALSE(hardware->connected());
        EXPECT_TRUE(hardware->lastError().startsWith(u"no sound server answers"_s));
    }
    qunsetenv("PIPEWIRE_RUNTIME_DIR");
}

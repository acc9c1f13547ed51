// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CaptureComputerAudio/AudioDevice.h"
#include "CaptureComputerAudio/CaptureComputerAudio.h"
#include "CaptureComputerAudio/CaptureDriver.h"
#include "CaptureComputerAudio/KextInstallControl.h"
#include "CommandLine/DriverCommand.h"
#include "Platform/Audio/AudioHardware.h"
#include "Platform/Audio/IORegistry.h"
#include "Platform/Audio/linux/DeviceRegistry.h"
#include "Platform/Foundation/Services.h"
#include "tests/fakes/FakeAdminShell.h"
#include "tests/fakes/FakeBundle.h"
#include "tests/support/CallersThings.h"
#include "tests/support/PrivateAudioSession.h"
#include "tests/support/RunTool.h"
#include "tests/support/ServerWatch.h"
#include "tests/support/TestCapture.h"
#include "tests/support/TestCard.h"
#include "tests/support/TestSource.h"
#include "tests/support/WaitFor.h"

#include <QProcess>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

const QString kBundle = QStringLiteral(SONAPHEX_BIN_DIR "/Resources/ComputerAudioCapture.kext");

/// The real driver in a private session, controlled in the same way as by the program.
class ComputerAudio : public testing::Test {
protected:
    ComputerAudio() {
        auto& services = Platform::services();
        services.audioHardware = hardware.get();
        services.ioRegistry = registry.get();
        services.adminShell = &shell;
        services.bundle = &bundle;
    }
    ~ComputerAudio() override {
        EXPECT_TRUE(CaptureDriver::unload(20000));
        second.closeWriteChannel();
        second.terminate();
        second.waitForFinished();
    }

    void load() {
        QString why;
        ASSERT_TRUE(CaptureDriver::load(kBundle, why, 10000)) << qPrintable(why);
    }
    /// The driver process of this session.
    [[nodiscard]] pid_t driverProcess() const {
        const QByteArray ours = "PIPEWIRE_RUNTIME_DIR=" + session.runtimeFolder().toLocal8Bit();
        for (const QString& pid : QDir(u"/proc"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            QFile environment(u"/proc/%1/environ"_s.arg(pid));
            if (QFile::symLinkTarget(u"/proc/%1/exe"_s.arg(pid)).endsWith(u"/CaptureDriver"_s) &&
                environment.open(QIODevice::ReadOnly) && environment.readAll().split('\0').contains(ours))
                return pid.toInt();
        }
        return -1;
    }
    AudioObjectID deviceNamed(const QString& wanted) {
        for (const auto device : hardware->devices())
            if (QString name; hardware->getDeviceName(device, name) == noErr && name == wanted)
                return device;
        return 0;
    }
    QString defaultOutput() {
        const auto device = AudioDevice::defaultAudioOutputDevice();
        QString name;
        if (device)
            (void)hardware->getDeviceName(device->audioDeviceID(), name);
        return name;
    }
    /// A second output, which does not automatically become the default.
    void addSecondOutput(const QByteArray& properties = {}) { addOutput("test.second", "Second Output", properties); }
    void addOutput(const std::string& name, const std::string& description, const QByteArray& properties = {}) {
        if (second.state() == QProcess::NotRunning)
            second.start(u"pw-cli"_s, QStringList());
        second.write("create-node adapter { factory.name=support.null-audio-sink node.name=" +
                     QByteArray::fromStdString(name) + " node.description=\"" + QByteArray::fromStdString(description) +
                     "\" media.class=Audio/Sink audio.position=[FL FR] priority.session=1 " + properties + " }\n");
        ASSERT_TRUE(waitFor([&] { return deviceNamed(QString::fromStdString(description)) != 0; }));
    }
    void setDefaultOutput(const std::string& nodeName) {
        (void)Platform::DeviceRegistry::shared()->setMetadata(0, "default.configured.audio.sink", "Spa:String:JSON",
                                                              "{\"name\":\"" + nodeName + "\"}");
    }
    static TestSource::Options playing(float value, const std::string& name, const std::string& target) {
        TestSource::Options options;
        options.name = name;
        options.target = target;
        options.sample = [value](std::uint64_t, std::uint32_t) { return value; };
        return options;
    }

    PrivateAudioSession& session = PrivateAudioSession::shared();
    Platform::ServicesScope scope;
    std::unique_ptr<Platform::AudioHardware> hardware = Platform::createAudioHardware();
    std::unique_ptr<Platform::IORegistry> registry = Platform::createIORegistry();
    FakeAdminShell shell;
    FakeBundle bundle;
    QProcess second;
};

TEST_F(ComputerAudio, AppearsAsANamedInputDevice) {
    EXPECT_FALSE(CaptureDriver::isLoaded());
    load();
    const auto device = deviceNamed(u"Korvane System Audio"_s);
    ASSERT_NE(device, 0U);
    std::uint32_t size = 0;
    EXPECT_EQ(hardware->getStreamsDataSize(device, Platform::AudioHardware::Scope::Input, size), noErr);
    EXPECT_EQ(size, 8U);
    const auto engines = IOService::getServicesByClassName(u"com_Korvane_driver_CaptureEngine"_s);
    ASSERT_EQ(engines.size(), 1U);
    EXPECT_TRUE(engines[0].path().startsWith(u"IOService:/VIRTUAL/"_s)) << qPrintable(engines[0].path());
    EXPECT_EQ(engines[0].getProperty(u"korvane.engine.class"_s), u"com_Korvane_driver_CaptureEngine"_s);
}

TEST_F(ComputerAudio, InheritsNothingFromTheProgramThatStartedIt) {
    CallersThings things;
    load();
    const pid_t driver = driverProcess();
    ASSERT_GT(driver, 0);
    EXPECT_TRUE(things.areNotOf(driver));
    EXPECT_TRUE(things.letGo());
}

TEST_F(ComputerAudio, FindsThePathOfEachDevice) {
    load();
    addSecondOutput();
    EXPECT_EQ(IOService::getServicesByClassName(u"IOAudioEngine"_s).size(), hardware->devices().size());
    for (const auto id : hardware->devices()) {
        const AudioDevice device(id);
        EXPECT_TRUE(device.sameDeviceWithPath(device.path())) << qPrintable(device.path());
    }
    EXPECT_TRUE(AudioDevice(deviceNamed(u"Second Output"_s)).path().contains(u"/test.second@"_s));
    EXPECT_FALSE(CaptureComputerAudio::captureComputerAudioIsUSBDevice());
}

TEST_F(ComputerAudio, ReadsTheBusOfAnOutputFromItsCard) {
    TestCard card({{"device.name", "test_card.headset"}, {"device.bus", "usb"}, {"media.class", "Audio/Device"}});
    ASSERT_TRUE(card.start());
    addSecondOutput("device.id=" + QByteArray::number(card.id()));
    const AudioDevice headset(deviceNamed(u"Second Output"_s));
    EXPECT_TRUE(waitFor([&] { return headset.path().startsWith(u"IOService:/USB/test_card.headset/test.second@"_s); }))
        << qPrintable(headset.path());
    setDefaultOutput("test.second");
    EXPECT_TRUE(waitFor([] { return CaptureComputerAudio::captureComputerAudioIsUSBDevice(); }))
        << qPrintable(defaultOutput());
    setDefaultOutput("sonaphex.output");
    EXPECT_TRUE(waitFor([] { return !CaptureComputerAudio::captureComputerAudioIsUSBDevice(); }));
}

TEST_F(ComputerAudio, CapturesTheDefaultOutputUntilAnotherIsSelected) {
    load();
    TestPlayer player(playing(0.5F, "test.one", ""));
    ASSERT_TRUE(player.start());
    TestCapture capture({.target = "korvane.system-audio", .monitor = false});
    ASSERT_TRUE(capture.start());
    EXPECT_TRUE(waitFor([&] { return capture.recentPeak(480) == 0.5F; }));
}

TEST_F(ComputerAudio, IsSilentAfterStopAndDeliversAgainAfterStart) {
    load();
    TestPlayer player(playing(0.5F, "test.one", ""));
    ASSERT_TRUE(player.start());
    TestCapture capture({.target = "korvane.system-audio", .monitor = false});
    ASSERT_TRUE(capture.start());
    CaptureComputerAudio::startCaptureComputerAudio();
    ASSERT_TRUE(waitFor([&] { return capture.recentPeak(480) == 0.5F; }));
    CaptureComputerAudio::stopCaptureComputerAudio();
    ASSERT_TRUE(waitFor([&] { return capture.recentPeak(4800) == 0; }));
    const auto before = capture.frames();
    EXPECT_TRUE(waitFor([&] { return capture.frames() > before + 9600; })) << "silence, not an end";
    CaptureComputerAudio::startCaptureComputerAudio();
    EXPECT_TRUE(waitFor([&] { return capture.recentPeak(480) == 0.5F; }));
}

TEST_F(ComputerAudio, CapturesOnlyTheSelectedOutput) {
    load();
    addSecondOutput();
    TestPlayer one(playing(0.5F, "test.one", "sonaphex.output"));
    TestPlayer two(playing(0.25F, "test.two", "test.second"));
    ASSERT_TRUE(one.start());
    ASSERT_TRUE(two.start());
    TestCapture capture({.target = "korvane.system-audio", .monitor = false});
    ASSERT_TRUE(capture.start());
    ASSERT_TRUE(waitFor([&] { return capture.recentPeak(480) == 0.5F; }));
    auto engines = IOService::getServicesByClassName(CaptureComputerAudio::kEngineClass);
    ASSERT_EQ(engines.size(), 1U);
    engines[0].setProperty(AudioDevice(deviceNamed(u"Second Output"_s)).path(),
                           CaptureComputerAudio::kCaptureDriverPathKey);
    EXPECT_TRUE(waitFor([&] { return capture.recentPeak(480) == 0.25F; }));
}

TEST_F(ComputerAudio, FollowsTheDefaultOutputWithoutAGap) {
    load();
    // Each output plays before and after it is the default, from a source that the session manager does not move:
    // silence can only come from the change between them.
    const auto soundOn = [](const std::string& name, const std::string& output) {
        auto options = playing(0.5F, name, "");
        options.description = name;
        options.ownClock = false;
        auto source = std::make_unique<TestSource>(options);
        EXPECT_TRUE(source->start());
        for (const std::string channel : {"FL", "FR"})
            EXPECT_TRUE(waitFor([&] {
                return runTool(u"pw-link"_s, {QString::fromStdString(name + ":capture_" + channel),
                                              QString::fromStdString(output + ":playback_" + channel)})
                           .status == 0;
            }));
        return source;
    };
    std::vector<std::unique_ptr<TestSource>> sources;
    sources.push_back(soundOn("test.sound", "sonaphex.output"));
    CaptureComputerAudio::startCaptureComputerAudio();
    QObject::connect(hardware.get(), &Platform::AudioHardware::defaultOutputDeviceChanged, hardware.get(),
                     [] { CaptureComputerAudio::startCaptureComputerAudio(); });
    TestCapture capture({.target = "korvane.system-audio", .monitor = false});
    ASSERT_TRUE(capture.start());
    ASSERT_TRUE(waitFor([&] { return capture.recentPeak(480) == 0.5F; }));
    ServerWatch server;
    ASSERT_TRUE(server.start());
    // The outputs have different clocks, and the server is silent for one cycle of 1024 frames when a node changes its
    // clock. An overloaded machine that misses a source's cycle makes it silent, too; then the change is repeated. A
    // gap caused by the driver would appear at each change.
    constexpr std::size_t cycle = 1024;
    std::size_t silent = cycle + 1;
    for (int number = 1; number <= 10 && silent > cycle; ++number) {
        const std::string output = "test.output" + std::to_string(number);
        addOutput(output, "Output " + std::to_string(number));
        TestCapture heard({.target = output, .monitor = true});
        ASSERT_TRUE(heard.start());
        sources.push_back(soundOn("test.sound" + std::to_string(number), output));
        ASSERT_TRUE(waitFor([&] { return heard.recentPeak(480) == 0.5F; }));
        const auto begin = std::size_t(capture.frames() * 2);
        setDefaultOutput(output);
        ASSERT_TRUE(waitFor([&] { return server.feedersOf("korvane.system-audio") == std::set<std::string>{output}; }));
        const auto enough = capture.frames() + 8192;
        ASSERT_TRUE(waitFor([&] { return capture.frames() > enough; }));
        ASSERT_TRUE(waitFor([&] { return capture.recentPeak(480) == 0.5F; })) << capture.recentPeak(480);
        const auto samples = capture.interleaved();
        silent = std::size_t(std::count(samples.begin() + std::ptrdiff_t(begin), samples.end(), 0.0F)) / 2;
    }
    EXPECT_LE(silent, cycle);
    EXPECT_EQ(server.timesCutOff("korvane.system-audio"), 0);
}

TEST_F(ComputerAudio, FallsBackToTheDefaultOutputWhenTheSelectedOneIsUnplugged) {
    load();
    addSecondOutput();
    TestPlayer one(playing(0.5F, "test.one", "sonaphex.output"));
    ASSERT_TRUE(one.start());
    TestCapture capture({.target = "korvane.system-audio", .monitor = false});
    ASSERT_TRUE(capture.start());
    auto engines = IOService::getServicesByClassName(CaptureComputerAudio::kEngineClass);
    ASSERT_EQ(engines.size(), 1U);
    engines[0].setProperty(AudioDevice(deviceNamed(u"Second Output"_s)).path(),
                           CaptureComputerAudio::kCaptureDriverPathKey);
    ASSERT_TRUE(waitFor([&] { return capture.recentPeak(480) == 0; }));
    second.closeWriteChannel();
    second.terminate();
    EXPECT_TRUE(waitFor([&] { return capture.recentPeak(480) == 0.5F; }))
        << capture.recentPeak(480) << qPrintable(defaultOutput()) << deviceNamed(u"Second Output"_s);
}

TEST_F(ComputerAudio, IsNotTheDefaultSourceWhileThereIsAMicrophone) {
    TestSource microphone({.name = "test.microphone", .description = "Microphone", .sessionPriority = 100});
    ASSERT_TRUE(microphone.start());
    load();
    TestCapture capture({.target = "korvane.system-audio", .monitor = false});
    ASSERT_TRUE(capture.start());
    QProcess metadata;
    metadata.start(u"pw-metadata"_s, {u"0"_s, u"default.audio.source"_s});
    ASSERT_TRUE(metadata.waitForFinished());
    EXPECT_FALSE(metadata.readAllStandardOutput().contains("korvane"));
}

TEST_F(ComputerAudio, IsInstalledLoadedAndRemovedWithTheRealDriver) {
    QTemporaryDir folder;
    const KextInstallControl::ExtensionsFolderScope extensions(folder.filePath(u"Extensions"_s));
    testing::internal::CaptureStdout();
    EXPECT_EQ(CommandLine::driverCommand.run({u"status"_s}), CommandLine::Done);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "installed: no\nloaded: no\n");
    testing::internal::CaptureStdout();
    EXPECT_EQ(CommandLine::driverCommand.run({u"install"_s}), CommandLine::Done)
        << qPrintable(KextInstallControl::lastError());
    EXPECT_TRUE(CaptureDriver::isLoaded());
    EXPECT_TRUE(KextInstallControl::isExist());
    EXPECT_EQ(CommandLine::driverCommand.run({u"remove"_s}), CommandLine::Done);
    EXPECT_FALSE(CaptureDriver::isLoaded());
    EXPECT_FALSE(KextInstallControl::isExist());
    testing::internal::GetCapturedStdout();

    // A driver that is installed but not running is started with the program.
    ASSERT_TRUE(KextInstallControl::install());
    ASSERT_TRUE(CaptureDriver::unload(20000));
    KextInstallControl::loadIfInstalled(); // on a busy machine it appears only after the launch
    EXPECT_TRUE(waitFor([&] { return CaptureDriver::isLoaded(); }));
    EXPECT_NE(deviceNamed(u"Korvane System Audio"_s), 0U);
}

TEST_F(ComputerAudio, EndsWithTheServerAndIsStartedAgain) {
    load();
    ASSERT_TRUE(session.stopServer());
    ASSERT_TRUE(session.startServer());
    ASSERT_TRUE(waitFor([&] { return hardware->connected() && deviceNamed(u"Silent Output"_s) != 0; }));
    EXPECT_FALSE(CaptureDriver::isLoaded());
    load();
    EXPECT_TRUE(CaptureDriver::isLoaded());
}

TEST_F(ComputerAudio, ReportsWrongUsage) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(CommandLine::driverCommand.run({}), CommandLine::WrongUsage);
    EXPECT_EQ(CommandLine::driverCommand.run({u"update"_s}), CommandLine::WrongUsage);
    testing::internal::GetCapturedStderr();
}

} // namespace

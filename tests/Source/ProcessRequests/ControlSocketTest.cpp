// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Requests of other processes through the real socket, while a device change makes the program open a dialog.
#include "Source/ProcessRequests/ControlRequests.h"
#include "tests/Source/Record/RecordFixture.h"

#include <atomic>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

class ControlSocketTest : public RecordFixture {
protected:
    /// A USB output, and the device that captures it: the user is warned about the headset.
    void addHeadsetOutput() {
        FakeAudioHardware::Device output;
        output.id = 21;
        output.name = u"headset"_s;
        output.uid = u"headset:0a0b0c0d"_s;
        output.inputChannels = 0;
        output.outputChannels = 2;
        hardware.list.push_back(output);
        hardware.defaultOutput = output.id;
        registry.add(u"IOAudioEngine"_s, u"IOService:/USB/card/headset@0a0b0c0d"_s);
        addComputerAudio();
    }

    EnvironmentScope temporary{"TMPDIR", home.path().toUtf8()};
    std::unique_ptr<Platform::RunningProgram> running = Platform::RunningProgram::create(u"org.example.Test"_s);
};

} // namespace

TEST_F(ControlSocketTest, AStopIsAnsweredAlthoughANewDeviceOpensADialog) {
    addMicrophone();
    begin();
    setFilter(false);
    ASSERT_TRUE(running->acquire());
    ASSERT_TRUE(
        running->listen([this](const QByteArray& request) { return ControlRequests(*controller).answer(request); }));
    controller->startAndStopRecord();
    play(Microphone, 0.5F, 1);
    addHeadsetOutput();
    Q_EMIT hardware.devicesChanged(); // evaluated when the recording ends

    std::atomic<bool> hungUp{false};
    QByteArray answer;
    std::thread asking([&] {
        const auto other = Platform::RunningProgram::create(u"org.example.Test"_s);
        if (!other->ask("start-stop", answer, 2000))
            answer = "(nobody)";
        hungUp = true;
    });
    // The dialog stays open until the other process has disconnected and its socket was deleted.
    alerts.whileShown = [&] { EXPECT_TRUE(waitFor([&] { return hungUp.load(); })); };
    EXPECT_TRUE(waitFor([this] { return alerts.shown.size() == 1; }));
    EXPECT_TRUE(waitFor([&] { return hungUp.load(); }));
    asking.join();
    EXPECT_EQ(answer, "ok");
    EXPECT_EQ(controller->recordState_(), 0);
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(delegate.paths, QStringList{track(0)});
}

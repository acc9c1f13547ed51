// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Destroying a controller while its I/O threads are running.
#include "Source/Record/ExportNote.h"
#include "tests/Source/Record/RecordFixture.h"

#include <thread>

using namespace Qt::StringLiterals;

namespace {

/// An engine whose I/O thread still runs cycles while it is being closed, like a real one. Two calls of the fake unit
/// must not overlap, so the cycles run here one after the other.
struct BusyToTheEnd : BuildInAudioRecord {
    void cleanUp() override {
        if (lastCycles)
            std::exchange(lastCycles, {})();
        BuildInAudioRecord::cleanUp();
    }
    std::function<void()> lastCycles;
};

class RecordEndTest : public RecordFixture {
protected:
    void beginWithBusyEngines() {
        addMicrophone();
        addComputerAudio();
        setFilter(false);
        controller = std::make_unique<RecordStateController>([this] {
            auto engine = std::make_unique<BusyToTheEnd>();
            engines.push_back(engine.get());
            return engine;
        });
        controller->setDelegate(&delegate);
        controller->awakeFromNib();
        controller->setDisplayClockRunning(false);
    }
    [[nodiscard]] static QStringList kept() {
        return QDir(Platform::FileManager::unfinishedFolder()).entryList(QDir::Files, QDir::Name);
    }
    std::vector<BusyToTheEnd*> engines; ///< the input device's engine, then that of computer audio
};

} // namespace

TEST_F(RecordEndTest, CyclesDuringDestructionUseAValidController) {
    defaults.setObject(PreferenceStore::ChooseRecordBuiltIn, false);
    defaults.setObject(PreferenceStore::ChooseRecordComputerAudio, true);
    beginWithBusyEngines();
    g_SplitTimeMS = 0;
    controller->startAndStopRecord();
    play(ComputerAudio, 0.25F, 1);
    // Sound, silences and cuts post to the main thread: they copy the controller's context object.
    std::atomic<bool> ends{false};
    std::thread ioThread([&] {
        while (!ends) {
            play(ComputerAudio, 0.25F, 0.02);
            play(ComputerAudio, 0, 0.02);
        }
    });
    engines.at(0)->lastCycles = [&] {
        ends = true;
        ioThread.join();
    };
    controller.reset();
    QCoreApplication::processEvents();
    EXPECT_FALSE((kept() + QDir(folder()).entryList(QDir::Files)).isEmpty() && ExportNote::interrupted().empty())
        << "what was recorded is kept, or finished by the next start";
}

TEST_F(RecordEndTest, NoCutUsesTheOtherEngineWhileItIsBeingClosed) {
    defaults.setObject(PreferenceStore::ChooseRecordBuiltIn, false);
    defaults.setObject(PreferenceStore::ChooseRecordComputerAudio, true);
    beginWithBusyEngines();
    controller->startAndStopRecord();
    play(ComputerAudio, 0.25F, 1);
    const auto computer = hardware.stateOf(ComputerAudio);
    int holds = 0;
    engines.at(0)->lastCycles = [&] { holds = computer->holds; };
    controller.reset();
    EXPECT_EQ(holds, 1);
}

TEST_F(RecordEndTest, AnArmedWaitRecordsNothingDuringDestruction) {
    defaults.setObject(PreferenceStore::ChooseRecordBuiltIn, false);
    defaults.setObject(PreferenceStore::ChooseRecordComputerAudio, true);
    beginWithBusyEngines();
    controller->startAndStopRecord();
    controller->startAndStopRecord();
    engines.at(1)->lastCycles = [&] { play(ComputerAudio, 0.25F, 1); };
    controller.reset();
    EXPECT_EQ(media.last().framesAccepted, 0) << "it would be cut off";
}

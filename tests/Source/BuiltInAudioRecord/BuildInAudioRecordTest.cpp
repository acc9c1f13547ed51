// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/BuiltInAudioRecord/BuildInAudioRecord.h"

#include "Platform/Foundation/Services.h"
#include "tests/fakes/FakeAudioHardware.h"
#include "tests/fakes/FakeMediaFiles.h"
#include "tests/fakes/FakeWorkspace.h"
#include "tests/support/CallCounter.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <cmath>

using Step = FakeInputUnit::Step;

namespace {

struct Levels : BuildInAudioRecordDelegate {
    std::vector<float> builtIn;
    std::vector<float> computer;
    void clientRecievedBuiltInAudioData(float level) override { builtIn.push_back(level); }
    void clientRecievedComputerAudioData(float level) override { computer.push_back(level); }
};

struct BuildInAudioRecordTest : testing::Test {
    Platform::ServicesScope scope;
    QTemporaryDir dir;
    FakeAudioHardware hardware;
    FakeMediaFiles media;
    FakeWorkspace workspace;
    QStringList changed;
    Levels levels;
    BuildInAudioRecord engine;

    BuildInAudioRecordTest() {
        Platform::services().audioHardware = &hardware;
        Platform::services().mediaFiles = &media;
        Platform::services().workspace = &workspace;
        QObject::connect(&workspace, &Platform::Workspace::fileSystemChanged, &workspace,
                         [this](const QString& path) { changed << path; });
        engine.setDelegate(&levels);
    }
    ~BuildInAudioRecordTest() override { engine.cleanUp(); }

    [[nodiscard]] QString path(const char* name = "raw.m4a") const { return dir.filePath(QString::fromUtf8(name)); }
    [[nodiscard]] FakeInputUnit& unit() const { return *hardware.unit(); }
    [[nodiscard]] FakeInputUnit::State& state() const { return *hardware.opened.back(); }
    /// An engine that is set up, with an M4A file.
    void prepare() {
        ASSERT_TRUE(engine.configureAudioUnit(7));
        ASSERT_TRUE(engine.setOutPutAudioPath(path(), 1));
    }
};

/// Each set-up step whose failure ends the set-up, with the steps that must come before it.
struct FailingStep : BuildInAudioRecordTest, testing::WithParamInterface<Step> {};

} // namespace

TEST_F(BuildInAudioRecordTest, StartsStoppedAndWithoutFiles) {
    EXPECT_EQ(engine.recordStatus(), 0);
    EXPECT_EQ(engine.currMillisecond(), 0);
    EXPECT_FALSE(engine.isRecordComputerAudio());
    EXPECT_TRUE(engine.outPutFilePath().isNull());
    EXPECT_FALSE(engine.hasSetM4aExportFile());
    EXPECT_FALSE(engine.hasSetWAVExportFile());
    EXPECT_FALSE(engine.isRunning());
    EXPECT_EQ(engine.sampleRate(), 0.0);
}

TEST_F(BuildInAudioRecordTest, ConfiguresTheUnitInItsOrder) {
    hardware.nextUnit->sampleRate = 96000;
    hardware.nextUnit->channels = 2;
    EXPECT_TRUE(engine.configureAudioUnit(7));
    EXPECT_EQ(state().steps, (std::vector{Step::EnableInput, Step::EnableOutput, Step::CurrentDevice,
                                          Step::InputCallback, Step::DeviceFormat, Step::ClientFormat,
                                          Step::BufferFrameSize, Step::Initialize, Step::Start}));
    EXPECT_EQ(state().device, 7U);
    AudioStreamBasicDescription expected;
    expected.mSampleRate = 96000;
    expected.mFormatID = kAudioFormatLinearPCM;
    expected.mFormatFlags = 41;
    expected.mBytesPerPacket = 4;
    expected.mFramesPerPacket = 1;
    expected.mBytesPerFrame = 4;
    expected.mChannelsPerFrame = 2;
    expected.mBitsPerChannel = 32;
    EXPECT_EQ(state().clientFormat, expected);
    EXPECT_TRUE(engine.isRunning());
    EXPECT_EQ(engine.sampleRate(), 96000.0);
}

TEST_F(BuildInAudioRecordTest, CapturesAMonoDeviceAsTwoChannelsAndOthersAsTheyAre) {
    hardware.nextUnit->channels = 1;
    EXPECT_TRUE(engine.configureAudioUnit(7));
    EXPECT_EQ(state().clientFormat.mChannelsPerFrame, 2U);
    hardware.nextUnit->channels = 6;
    EXPECT_TRUE(engine.configureAudioUnit(8));
    EXPECT_EQ(state().clientFormat.mChannelsPerFrame, 6U);
}

TEST_P(FailingStep, EndsTheConfigurationAndLeavesTheUnitOpen) {
    hardware.nextUnit->fails = {GetParam()};
    EXPECT_FALSE(engine.configureAudioUnit(7));
    EXPECT_EQ(state().steps.back(), GetParam());
    EXPECT_FALSE(state().closed);
    EXPECT_FALSE(engine.isRunning());
    EXPECT_FALSE(engine.lastError().isEmpty());
    const auto failed = hardware.opened.back();
    EXPECT_TRUE(engine.configureAudioUnit(7)) << "the next configuration begins anew";
    EXPECT_TRUE(failed->closed);
    EXPECT_EQ(failed->stops, 1);
    EXPECT_TRUE(engine.isRunning());
}

INSTANTIATE_TEST_SUITE_P(EachOne, FailingStep,
                         testing::Values(Step::EnableOutput, Step::CurrentDevice, Step::InputCallback,
                                         Step::DeviceFormat, Step::ClientFormat, Step::BufferFrameSize,
                                         Step::Initialize, Step::Start));

TEST_F(BuildInAudioRecordTest, ToleratesAUnitWhoseInputCannotBeEnabled) {
    hardware.nextUnit->fails = {Step::EnableInput};
    EXPECT_TRUE(engine.configureAudioUnit(7));
    EXPECT_EQ(state().steps[0], Step::EnableInput);
    EXPECT_EQ(state().steps[1], Step::CurrentDevice) << "then its output is not asked either";
}

TEST_F(BuildInAudioRecordTest, CannotBeConfiguredWithoutAUnit) {
    hardware.unitOpens = false;
    EXPECT_FALSE(engine.configureAudioUnit(7));
    EXPECT_FALSE(engine.startRecordAudio());
    hardware.unitOpens = true;
    hardware.unitFound = false;
    EXPECT_FALSE(engine.configureAudioUnit(7));
    EXPECT_FALSE(engine.startRecordAudio());
}

TEST_F(BuildInAudioRecordTest, StopsAndClosesTheUnitWhenItMovesToAnotherDevice) {
    EXPECT_TRUE(engine.configureAudioUnit(7));
    const auto first = hardware.opened.back();
    EXPECT_TRUE(engine.configureAudioUnit(8));
    EXPECT_EQ(first->stops, 1);
    EXPECT_TRUE(first->closed);
    EXPECT_EQ(state().device, 8U);
}

TEST_F(BuildInAudioRecordTest, ClosesTheUnitWithoutStoppingItWhenItCleansUp) {
    prepare();
    EXPECT_TRUE(engine.startRecordAudio());
    engine.cleanUp();
    EXPECT_EQ(state().stops, 0);
    EXPECT_TRUE(state().closed);
    EXPECT_TRUE(media.last().disposed);
    EXPECT_EQ(engine.recordStatus(), 0);
    EXPECT_TRUE(engine.outputM4aFilePath().isNull());
    EXPECT_EQ(engine.outPutFilePath(), path());
    EXPECT_FALSE(engine.startRecordAudio());
}

TEST_F(BuildInAudioRecordTest, GoesThroughItsStates) {
    EXPECT_FALSE(engine.startRecordAudio()) << "without a unit";
    EXPECT_FALSE(engine.pauseRecordAudio());
    EXPECT_FALSE(engine.resumeRecordAudio());
    prepare();
    EXPECT_TRUE(engine.stopRecordAudio()) << "stopped already";
    EXPECT_FALSE(media.last().disposed) << "then files are untouched";
    EXPECT_TRUE(engine.startRecordAudio());
    EXPECT_EQ(engine.recordStatus(), 1);
    EXPECT_FALSE(engine.startRecordAudio());
    EXPECT_TRUE(engine.resumeRecordAudio());
    EXPECT_EQ(engine.recordStatus(), 1);
    EXPECT_TRUE(engine.pauseRecordAudio());
    EXPECT_EQ(engine.recordStatus(), 2);
    EXPECT_TRUE(engine.pauseRecordAudio());
    EXPECT_EQ(engine.recordStatus(), 2);
    EXPECT_FALSE(engine.startRecordAudio());
    EXPECT_TRUE(engine.resumeRecordAudio());
    EXPECT_EQ(engine.recordStatus(), 1);
    EXPECT_TRUE(engine.pauseRecordAudio());
    EXPECT_TRUE(engine.stopRecordAudio());
    EXPECT_EQ(engine.recordStatus(), 0);
    EXPECT_TRUE(media.last().disposed);
    EXPECT_EQ(changed, QStringList{path()});
}

TEST_F(BuildInAudioRecordTest, WritesFramesOnlyWhileItRecords) {
    prepare();
    unit().feed({{0.1F}, {-0.1F}});
    engine.startRecordAudio();
    unit().feed({{0.2F, 0.3F}, {-0.2F, -0.3F}});
    engine.pauseRecordAudio();
    unit().feed({{0.4F}, {-0.4F}});
    engine.resumeRecordAudio();
    unit().feed({{0.5F}, {-0.5F}});
    EXPECT_EQ(engine.framesAccepted(), 3);
    engine.stopRecordAudio();
    unit().feed({{0.6F}, {-0.6F}});
    EXPECT_EQ(media.last().samples, (std::vector<std::vector<float>>{{0.2F, 0.3F, 0.5F}, {-0.2F, -0.3F, -0.5F}}));
}

TEST_F(BuildInAudioRecordTest, WritesBothFilesWhenThereAreTwo) {
    prepare();
    ASSERT_TRUE(engine.setOutPutAudioPath(path("raw.wav"), 0));
    EXPECT_TRUE(engine.hasSetM4aExportFile());
    EXPECT_TRUE(engine.hasSetWAVExportFile());
    EXPECT_EQ(engine.outputM4aFilePath(), path());
    EXPECT_EQ(engine.outputWAVFilePath(), path("raw.wav"));
    EXPECT_EQ(engine.outPutFilePath(), path("raw.wav"));
    engine.startRecordAudio();
    unit().feedValue(0.5F, 3);
    engine.stopRecordAudio();
    ASSERT_EQ(media.files.size(), 2U);
    EXPECT_EQ(media.files[0]->framesAccepted, 3);
    EXPECT_EQ(media.files[1]->framesAccepted, 3);
    EXPECT_EQ(changed, (QStringList{path(), path("raw.wav")}));
    EXPECT_FALSE(engine.hasSetM4aExportFile());
    EXPECT_FALSE(engine.hasSetWAVExportFile());
}

TEST_F(BuildInAudioRecordTest, DropsTheRestOfACycleThatCannotBeWrittenAndContinues) {
    prepare();
    ASSERT_TRUE(engine.setOutPutAudioPath(path("raw.wav"), 0));
    engine.startRecordAudio();
    media.files[0]->writeStatus = -34;
    EXPECT_EQ(unit().feedValue(0.5F, 3), -34);
    EXPECT_EQ(media.files[1]->framesAccepted, 0) << "the second file is skipped";
    EXPECT_TRUE(levels.builtIn.empty()) << "and so is the level";
    EXPECT_EQ(engine.writeError().kind, Platform::Error::Kind::DiskFull);
    media.files[0]->writeStatus = noErr;
    media.files[1]->writeStatus = -35;
    EXPECT_EQ(unit().feedValue(0.5F, 3), -35);
    EXPECT_EQ(media.files[0]->framesAccepted, 3);
    EXPECT_TRUE(levels.builtIn.empty());
    media.files[1]->writeStatus = noErr;
    EXPECT_EQ(unit().feedValue(0.5F, 3), noErr);
    EXPECT_EQ(levels.builtIn.size(), 1U);
    EXPECT_EQ(engine.recordStatus(), 1);
}

TEST_F(BuildInAudioRecordTest, ReturnsTheRenderStatusAndProcessesTheCycle) {
    prepare();
    engine.startRecordAudio();
    unit().feedValue(0.5F, 3);
    state().fails = {Step::Render};
    EXPECT_EQ(unit().feedValue(0.5F, 3), -1);
    EXPECT_EQ(media.last().framesAccepted, 6);
    EXPECT_EQ(levels.builtIn.size(), 2U);
}

TEST_F(BuildInAudioRecordTest, RefusesACycleThatWouldNotFit) {
    hardware.nextUnit->bufferFrames = 4;
    prepare();
    engine.startRecordAudio();
    EXPECT_NE(unit().feedValue(0.5F, 5), noErr);
    EXPECT_EQ(media.last().framesAccepted, 0);
    EXPECT_EQ(unit().feedValue(0.5F, 4), noErr);
    EXPECT_EQ(media.last().framesAccepted, 4);
}

TEST_F(BuildInAudioRecordTest, MeasuresEveryThirdSampleOfTheFirstChannel) {
    ASSERT_TRUE(engine.configureAudioUnit(7));
    unit().feed({{0.5F, 9, 9, -0.25F, 9, 9, 0.75F}, {9, 9, 9, 9, 9, 9, 9}});
    ASSERT_EQ(levels.builtIn.size(), 1U);
    EXPECT_FLOAT_EQ(levels.builtIn[0], 0.5F * 12);
    EXPECT_TRUE(levels.computer.empty());
}

TEST_F(BuildInAudioRecordTest, ReportsAQuarterOfTheLevelForComputerAudio) {
    engine.setIsecordComputerAudio_(true);
    EXPECT_TRUE(engine.isRecordComputerAudio());
    ASSERT_TRUE(engine.configureAudioUnit(7));
    unit().feedValue(0.5F, 9);
    ASSERT_EQ(levels.computer.size(), 1U);
    EXPECT_FLOAT_EQ(levels.computer[0], 0.5F * 12 / 4);
    EXPECT_TRUE(levels.builtIn.empty());
}

TEST_F(BuildInAudioRecordTest, ReportsNanForAnEmptyCycle) {
    ASSERT_TRUE(engine.configureAudioUnit(7));
    unit().feed({{}, {}});
    ASSERT_EQ(levels.builtIn.size(), 1U);
    EXPECT_TRUE(std::isnan(levels.builtIn[0]));
}

TEST_F(BuildInAudioRecordTest, ReportsLevelsWhetherItRecordsOrNot) {
    prepare();
    unit().feedValue(0.1F, 3);
    engine.startRecordAudio();
    unit().feedValue(0.1F, 3);
    engine.pauseRecordAudio();
    unit().feedValue(0.1F, 3);
    engine.stopRecordAudio();
    EXPECT_EQ(levels.builtIn.size(), 3U);
    engine.setDelegate(nullptr);
    unit().feedValue(0.1F, 3);
    EXPECT_EQ(levels.builtIn.size(), 3U);
}

TEST_F(BuildInAudioRecordTest, DescribesItsExports) {
    const auto m4a = engine.exportDescription(1);
    EXPECT_EQ(m4a.mSampleRate, 44100.0);
    EXPECT_EQ(m4a.mFormatID, kAudioFormatMPEG4AAC);
    EXPECT_EQ(m4a.mFormatFlags, 0U);
    EXPECT_EQ(m4a.mBytesPerPacket, 0U);
    EXPECT_EQ(m4a.mFramesPerPacket, 1024U);
    EXPECT_EQ(m4a.mBytesPerFrame, 0U);
    EXPECT_EQ(m4a.mChannelsPerFrame, 2U);
    EXPECT_EQ(m4a.mBitsPerChannel, 0U);
    EXPECT_EQ(media.completions, 0);
    const auto wave = engine.exportDescription(0);
    EXPECT_EQ(wave.mSampleRate, 44100.0);
    EXPECT_EQ(wave.mFormatID, kAudioFormatLinearPCM);
    EXPECT_EQ(wave.mFormatFlags, 12U);
    EXPECT_EQ(wave.mBytesPerPacket, 8U);
    EXPECT_EQ(wave.mFramesPerPacket, 1024U);
    EXPECT_EQ(wave.mBytesPerFrame, 8U);
    EXPECT_EQ(wave.mChannelsPerFrame, 2U);
    EXPECT_EQ(wave.mBitsPerChannel, 32U);
    EXPECT_EQ(media.completions, 1) << "the system completes it";
    for (const int other : {2, 3, -1})
        EXPECT_EQ(engine.exportDescription(other), AudioStreamBasicDescription());
}

TEST_F(BuildInAudioRecordTest, CreatesFilesOfTheirTypeOverExistingOnes) {
    ASSERT_TRUE(engine.configureAudioUnit(7));
    ASSERT_TRUE(engine.setOutPutAudioPath(path(), 1));
    EXPECT_EQ(media.last().type, kAudioFileM4AType);
    EXPECT_EQ(media.last().flags, kAudioFileFlags_EraseFile);
    EXPECT_EQ(media.last().format, engine.exportDescription(1));
    EXPECT_EQ(media.last().clientFormat, state().clientFormat);
    EXPECT_TRUE(media.last().primed);
    EXPECT_TRUE(media.last().channelMap.empty()) << "two channels need no map";
    ASSERT_TRUE(engine.setOutPutAudioPath(path("raw.wav"), 0));
    EXPECT_EQ(media.last().type, kAudioFileWAVEType);
    EXPECT_EQ(media.last().format, engine.exportDescription(0));
}

TEST_F(BuildInAudioRecordTest, TreatsTypeTwoAsM4aAndIgnoresOthers) {
    ASSERT_TRUE(engine.configureAudioUnit(7));
    EXPECT_TRUE(engine.setOutPutAudioPath(path(), 2));
    EXPECT_TRUE(engine.hasSetM4aExportFile());
    EXPECT_EQ(media.last().type, kAudioFileM4AType);
    EXPECT_TRUE(engine.setOutPutAudioPath(path("other"), 5));
    EXPECT_EQ(media.files.size(), 1U);
    EXPECT_EQ(engine.outPutFilePath(), path("other"));
    EXPECT_EQ(engine.outputM4aFilePath(), path());
}

TEST_F(BuildInAudioRecordTest, DisposesAnOpenFileWhenAnotherOfItsTypeIsSet) {
    prepare();
    ASSERT_TRUE(engine.setOutPutAudioPath(path("other.m4a"), 1));
    EXPECT_TRUE(media.files[0]->disposed);
    EXPECT_FALSE(media.files[1]->disposed);
    EXPECT_TRUE(changed.isEmpty());
}

TEST_F(BuildInAudioRecordTest, FeedsBothChannelsOfAFileFromAMonoDevice) {
    hardware.nextUnit->channels = 1;
    prepare();
    EXPECT_EQ(media.last().channelMap, (std::vector<std::int32_t>{0, 0}));
    media.channelMapStatus = -1;
    EXPECT_TRUE(engine.setOutPutAudioPath(path("other.m4a"), 1)) << "a map that is refused fails nothing";
    media.hasConverter = false;
    EXPECT_TRUE(engine.setOutPutAudioPath(path("third.m4a"), 1));
    EXPECT_TRUE(media.last().channelMap.empty());
}

TEST_F(BuildInAudioRecordTest, ReportsAFileThatCannotBeCreated) {
    ASSERT_TRUE(engine.configureAudioUnit(7));
    media.createFails = true;
    EXPECT_FALSE(engine.setOutPutAudioPath(path(), 1));
    EXPECT_FALSE(engine.hasSetM4aExportFile());
    EXPECT_EQ(engine.outPutFilePath(), path());
    EXPECT_EQ(engine.lastError(), QStringLiteral("the file is set to fail"));
    media.createFails = false;
    media.clientFormatStatus = -2;
    EXPECT_FALSE(engine.setOutPutAudioPath(path(), 1));
    media.clientFormatStatus = noErr;
    media.primeStatus = -3;
    EXPECT_FALSE(engine.setOutPutAudioPath(path(), 1));
    EXPECT_FALSE(engine.hasSetM4aExportFile());
    media.primeStatus = noErr;
    EXPECT_TRUE(engine.setOutPutAudioPath(path(), 1));
}

TEST_F(BuildInAudioRecordTest, ExchangesItsFileBetweenTwoCycles) {
    prepare();
    engine.startRecordAudio();
    unit().feed({{1, 2}, {1, 2}}, 1000);
    QString closedPath;
    EXPECT_TRUE(engine.exchangeM4aFile(path("next.m4a"), [&](const QString& old, OSStatus) { closedPath = old; }));
    EXPECT_EQ(engine.framesAccepted(), 0);
    unit().feed({{3}, {3}}, 2000);
    EXPECT_EQ(engine.captureSpan().firstHostTime, 2000U);
    engine.stopRecordAudio();
    EXPECT_EQ(closedPath, path());
    ASSERT_EQ(media.files.size(), 2U);
    EXPECT_EQ(media.files[0]->samples[0], (std::vector<float>{1, 2}));
    EXPECT_EQ(media.files[1]->samples[0], (std::vector<float>{3}));
    EXPECT_EQ(media.files[1]->predecessor, media.files[0].get());
    EXPECT_EQ(engine.outPutFilePath(), path("next.m4a"));
    EXPECT_EQ(state().holds, 0);
}

TEST_F(BuildInAudioRecordTest, ContinuesInTheOldFileWhenTheNextCannotBeCreated) {
    prepare();
    engine.startRecordAudio();
    media.createFails = true;
    bool closed = false;
    EXPECT_FALSE(engine.exchangeM4aFile(path("next.m4a"), [&](const QString&, OSStatus) { closed = true; }));
    EXPECT_FALSE(closed);
    unit().feedValue(0.5F, 3);
    EXPECT_EQ(media.files[0]->framesAccepted, 3);
    EXPECT_EQ(engine.outputM4aFilePath(), path());
    EXPECT_EQ(state().holds, 0);
}

TEST_F(BuildInAudioRecordTest, ReportsAnExchangeWithoutAnOldFileAsClosed) {
    ASSERT_TRUE(engine.configureAudioUnit(7));
    media.createFails = true;
    EXPECT_FALSE(engine.setOutPutAudioPath(path(), 1));
    media.createFails = false;
    engine.startRecordAudio();
    QStringList closed;
    EXPECT_TRUE(engine.exchangeM4aFile(path("next.m4a"), [&](const QString& old, OSStatus) { closed << old; }));
    EXPECT_EQ(closed, QStringList{path()}) << "who waits for it would wait for ever";
    unit().feedValue(0.5F, 10);
    EXPECT_EQ(media.last().path, path("next.m4a"));
    EXPECT_EQ(media.last().framesAccepted, 10);
}

TEST_F(BuildInAudioRecordTest, MayExchangeItsFileInsideACycle) {
    struct Splitter : BuildInAudioRecordDelegate {
        BuildInAudioRecord* engine = nullptr;
        QString next;
        void clientRecievedBuiltInAudioData(float) override {
            if (next.isNull())
                return;
            EXPECT_TRUE(engine->exchangeM4aFile(std::exchange(next, QString()), {}));
        }
    } splitter;
    splitter.engine = &engine;
    splitter.next = path("next.m4a");
    engine.setDelegate(&splitter);
    prepare();
    engine.startRecordAudio();
    unit().feedValue(1, 2);
    unit().feedValue(2, 3);
    engine.stopRecordAudio();
    EXPECT_EQ(media.files[0]->framesAccepted, 2);
    EXPECT_EQ(media.files[1]->framesAccepted, 3);
}

TEST_F(BuildInAudioRecordTest, CutsInsideALaterCycleAtTheRequestedFrame) {
    prepare();
    engine.startRecordAudio();
    unit().feed({{1, 2}, {1, 2}}, 1'000'000'000);
    QString closedPath;
    EXPECT_TRUE(engine.exchangeM4aFile(
        path("next.m4a"), [&](const QString& old, OSStatus) { closedPath = old; }, 4));
    EXPECT_EQ(engine.outPutFilePath(), path("next.m4a"));
    unit().feed({{3, 4, 5}, {-3, -4, -5}}, 2'000'000'000);
    EXPECT_TRUE(closedPath.isNull());
    EXPECT_EQ(engine.framesAccepted(), 0);
    unit().feed({{6, 7, 8}, {-6, -7, -8}}, 3'000'000'000);
    EXPECT_EQ(closedPath, path());
    EXPECT_EQ(engine.framesAccepted(), 2);
    EXPECT_EQ(engine.captureSpan().firstHostTime, 3'000'000'000U + 1'000'000'000U / 48000U);
    engine.stopRecordAudio();
    EXPECT_EQ(media.files[0]->samples[0], (std::vector<float>{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(media.files[1]->samples[1], (std::vector<float>{-7, -8}));
    EXPECT_EQ(media.files[1]->predecessor, media.files[0].get());
}

TEST_F(BuildInAudioRecordTest, FinishesAWaitingCutWhenItStops) {
    prepare();
    engine.startRecordAudio();
    unit().feed({{1, 2}, {1, 2}});
    QStringList closed;
    const auto note = [&](const QString& old, OSStatus) { closed.append(old); };
    EXPECT_TRUE(engine.exchangeM4aFile(path("next.m4a"), note, 100));
    EXPECT_TRUE(engine.exchangeM4aFile(path("last.m4a"), note, 100));
    EXPECT_TRUE(engine.stopRecordAudioLater(note));
    EXPECT_EQ(closed, (QStringList{path(), path("next.m4a"), path("last.m4a")}));
    EXPECT_EQ(media.files[0]->framesAccepted, 2);
    EXPECT_EQ(media.files[1]->framesAccepted, 0);
    EXPECT_EQ(media.files[2]->framesAccepted, 0);
}

TEST_F(BuildInAudioRecordTest, WritesTheCycleThatMadeTheDelegateBegin) {
    struct Starter : BuildInAudioRecordDelegate {
        BuildInAudioRecord* engine = nullptr;
        void clientRecievedBuiltInAudioData(float level) override {
            if (level > 0)
                engine->startRecordAudio();
        }
    } starter;
    starter.engine = &engine;
    engine.setDelegate(&starter);
    prepare();
    unit().feed({{0, 0}, {0, 0}}, 1000);
    unit().feed({{1, 2}, {1, 2}}, 2000);
    unit().feed({{3}, {3}}, 3000);
    EXPECT_EQ(media.last().samples[0], (std::vector<float>{1, 2, 3}));
    EXPECT_EQ(engine.captureSpan().firstHostTime, 2000U);
    engine.stopRecordAudio();
}

TEST_F(BuildInAudioRecordTest, StopsWithoutWaitingForTheFile) {
    prepare();
    QString closedPath;
    OSStatus closedStatus = noErr;
    const auto closed = [&](const QString& old, OSStatus status) {
        closedPath = old;
        closedStatus = status;
    };
    EXPECT_FALSE(engine.stopRecordAudioLater(closed)) << "nothing to close while stopped";
    engine.startRecordAudio();
    media.last().disposeStatus = -34;
    EXPECT_TRUE(engine.stopRecordAudioLater(closed));
    EXPECT_EQ(closedPath, path());
    EXPECT_EQ(closedStatus, -34);
    EXPECT_EQ(engine.recordStatus(), 0);
    EXPECT_FALSE(engine.hasSetM4aExportFile());
}

TEST_F(BuildInAudioRecordTest, CountsLostFramesOfTheCurrentRecording) {
    prepare();
    state().lost = 100;
    engine.startRecordAudio();
    EXPECT_EQ(engine.lostFrames(), 0U);
    state().lost = 130;
    EXPECT_EQ(engine.lostFrames(), 30U);
    engine.stopRecordAudio();
    engine.cleanUp();
    EXPECT_EQ(engine.lostFrames(), 30U);
}

TEST_F(BuildInAudioRecordTest, MeasuresTheDevicesClock) {
    prepare();
    engine.startRecordAudio();
    // A clock 100 ppm fast: 512 frames take a little less time than at 48000 Hz.
    const double cycle = 512 / 48004.8 * 1e9;
    double time = 5e9;
    const std::vector<std::vector<float>> block(2, std::vector<float>(512));
    EXPECT_EQ(engine.captureSpan().measuredRate, 0.0);
    for (int i = 0; i < 8000; ++i, time += cycle) {
        if (i == 4000)
            time += 3e9; // the device was away
        unit().feed(block, std::uint64_t(time));
    }
    EXPECT_EQ(engine.captureSpan().firstHostTime, 5000000000U);
    EXPECT_NEAR(engine.captureSpan().measuredRate, 48004.8, 0.01);
}

#if SONAPHEX_COUNTS_CALLS
TEST_F(BuildInAudioRecordTest, AllocatesNothingAndTakesNoLockInACycle) {
    media.keepSamples = false;
    prepare();
    ASSERT_TRUE(engine.setOutPutAudioPath(path("raw.wav"), 0));
    engine.startRecordAudio();
    levels.builtIn.reserve(1000);
    const std::vector<std::vector<float>> block(2, std::vector<float>(512));
    unit().feed(block, 1);
    const CallCounter counter;
    for (int i = 0; i < 500; ++i)
        unit().feed(block, std::uint64_t(i));
    EXPECT_EQ(counter.allocations(), 0);
    EXPECT_EQ(counter.locks(), 0);
    void* volatile block10 = std::malloc(10);
    std::free(block10);
    std::mutex mutex;
    mutex.lock();
    mutex.unlock();
    EXPECT_EQ(counter.allocations(), 1) << "the counter counts";
    EXPECT_EQ(counter.locks(), 1);
}
#endif

TEST_F(BuildInAudioRecordTest, KeepsItsEventHandlerForEveryUnit) {
    std::vector<Platform::InputUnit::Event> events;
    engine.setEventHandler([&](Platform::InputUnit::Event event) { events.push_back(event); });
    ASSERT_TRUE(engine.configureAudioUnit(7));
    unit().tell(Platform::InputUnit::Event::DeviceLost);
    ASSERT_TRUE(engine.configureAudioUnit(8));
    unit().tell(Platform::InputUnit::Event::DeviceReturned);
    EXPECT_EQ(events,
              (std::vector{Platform::InputUnit::Event::DeviceLost, Platform::InputUnit::Event::DeviceReturned}));
}

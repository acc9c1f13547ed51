// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Record/RecordPrograms.h"

#include "CaptureComputerAudio/CaptureComputerAudio.h"
#include "CaptureComputerAudio/ComputerAudioClaim.h"
#include "tests/Source/Record/RecordFixture.h"

using namespace Qt::StringLiterals;
using Mode = RecordPrograms::Mode;

namespace {

RecordPrograms chosen(Mode mode) {
    return {.mode = mode,
            .programs = {{u"org.mozilla.firefox"_s, u"Firefox"_s, u"firefox"_s}, {u"vlc"_s, u"VLC"_s}},
            .recent = {{u"game"_s, u"Game"_s}}};
}

/// The controller with a driver that can choose programs.
class ProgramsOfARecording : public RecordFixture {
protected:
    void SetUp() override {
        RecordFixture::SetUp();
        engine = registry.add(CaptureComputerAudio::kEngineClass, u"IOService:/VIRTUAL/driver/korvane@1"_s);
        registry.entries[engine].properties[u"korvane.engine.programs"_s] = u"true"_s;
        registry.onSet = [this](auto object, const QString& key, const QVariant& value) {
            if (key == CaptureComputerAudio::kCaptureDriverProgramsKey && answers)
                registry.entries[object].properties[CaptureComputerAudio::kCaptureDriverProgramsAppliedKey] = value;
        };
    }
    void store(const RecordPrograms& programs) {
        defaults.setObject(PreferenceStore::ChooseRecordPrograms, programs.toStored());
    }
    [[nodiscard]] QString sent() {
        return registry.entries[engine].properties.value(CaptureComputerAudio::kCaptureDriverProgramsKey).toString();
    }
    void plays(const QString& id, bool playing = true) {
        hardware.setPrograms({{.id = id, .name = id, .iconName = {}, .parts = {id}, .isPlaying = playing}});
    }

    Platform::IORegistry::Object engine = 0;
    bool answers = true;
};

} // namespace

TEST(RecordPrograms, SurviveTheStore) {
    for (const Mode mode : {Mode::Everything, Mode::Only, Mode::AllBut})
        EXPECT_EQ(RecordPrograms::fromStored(chosen(mode).toStored()), chosen(mode));
    EXPECT_EQ(RecordPrograms::fromStored({}), RecordPrograms());
}

TEST(RecordPrograms, OfADamagedStoreAreEverything) {
    const Dictionary noPrograms{{u"mode"_s, u"only"_s}};
    const Dictionary noList{{u"mode"_s, u"only"_s}, {u"programs"_s, u"firefox"_s}};
    const Dictionary noIds{{u"mode"_s, u"not"_s}, {u"programs"_s, QVariantList{1, Dictionary{{u"name"_s, u"A"_s}}}}};
    for (const QVariant& stored :
         {QVariant(5), QVariant(u"only"_s), QVariant(noPrograms), QVariant(noList), QVariant(noIds)})
        EXPECT_EQ(RecordPrograms::fromStored(stored).mode, Mode::Everything);
    const Dictionary noName{{u"mode"_s, u"only"_s}, {u"programs"_s, QVariantList{Dictionary{{u"id"_s, u"vlc"_s}}}}};
    EXPECT_EQ(RecordPrograms::fromStored(noName).title(), u"Only vlc"_s);
}

TEST(RecordPrograms, AreNamedInAMenu) {
    EXPECT_EQ(chosen(Mode::Everything).title(), u"Everything"_s);
    EXPECT_EQ(chosen(Mode::Only).title(), u"Only Firefox and VLC"_s);
    EXPECT_EQ(chosen(Mode::AllBut).title(), u"Everything but Firefox and VLC"_s);
    EXPECT_EQ(RecordPrograms::named(Mode::Only, {u"a"_s, u"b"_s, u"c"_s}).title(), u"Only a, b and c"_s);
    EXPECT_EQ(RecordPrograms::named(Mode::AllBut, {}), RecordPrograms());
    EXPECT_EQ(chosen(Mode::Only).choice().encoded(), "only:org.mozilla.firefox,vlc");
    EXPECT_EQ(chosen(Mode::Everything).choice(), Platform::ProgramChoice());
}

TEST(RecordPrograms, WaitForOneOfTheChosenProgramsToPlay) {
    const auto playing = [](const QString& id, const QString& part, bool isPlaying = true) {
        return Platform::PlayingProgram{.id = id, .name = id, .iconName = {}, .parts = {part}, .isPlaying = isPlaying};
    };
    const QString waiting = u"Waiting for Firefox and VLC"_s;
    EXPECT_EQ(chosen(Mode::Only).waiting({}), waiting);
    EXPECT_EQ(chosen(Mode::Only).waiting({playing(u"game"_s, u"Game"_s)}), waiting);
    EXPECT_EQ(chosen(Mode::Only).waiting({playing(u"vlc"_s, u"VLC"_s, false)}), waiting) << "it is paused";
    EXPECT_EQ(chosen(Mode::Only).waiting({playing(u"game"_s, u"Game"_s), playing(u"vlc"_s, u"VLC"_s)}), QString());
    EXPECT_EQ(chosen(Mode::Only).waiting({playing(u"org.videolan"_s, u"VLC"_s)}), QString())
        << "by another of its names";
    EXPECT_EQ(chosen(Mode::AllBut).waiting({}), QString());
    EXPECT_EQ(chosen(Mode::Everything).waiting({}), QString());
}

TEST(RecordPrograms, RememberTheProgramsThatPlayedLately) {
    RecordPrograms programs;
    for (int i = 0; i < 20; ++i) {
        const QString id = QString::number(i);
        const std::vector<Platform::PlayingProgram> playing{{.id = id, .name = id, .iconName = {}}};
        EXPECT_TRUE(programs.remember(playing));
        EXPECT_FALSE(programs.remember(playing));
    }
    ASSERT_EQ(programs.recent.size(), RecordPrograms::LongestMemory);
    EXPECT_EQ(programs.recent.first().id, u"19"_s);
    EXPECT_EQ(programs.recent.last().id, u"8"_s);
    EXPECT_FALSE(programs.remember({}));
}

TEST_F(ProgramsOfARecording, WithoutAChoiceTheDriverGetsNone) {
    beginWithComputerAudioOnly();
    record(ComputerAudio, 0.25F, 6);
    EXPECT_TRUE(queueDone());
    EXPECT_FALSE(registry.entries[engine].properties.contains(CaptureComputerAudio::kCaptureDriverProgramsKey));
    EXPECT_FALSE(defaults.objectForKey(PreferenceStore::ChooseRecordPrograms).isValid());
}

TEST_F(ProgramsOfARecording, AChoiceReachesTheDriverAtOnceAndIsTakenBackAtTheEnd) {
    store(chosen(Mode::Only));
    beginWithComputerAudioOnly();
    EXPECT_EQ(sent(), u"only:org.mozilla.firefox,vlc"_s);
    controller->chooseRecordPrograms(RecordPrograms::named(Mode::AllBut, {u"game"_s}));
    EXPECT_EQ(sent(), u"not:game"_s);
    EXPECT_EQ(RecordPrograms::fromStored(defaults.objectForKey(PreferenceStore::ChooseRecordPrograms)).title(),
              u"Everything but game"_s);
    controller->chooseRecordPrograms({});
    EXPECT_EQ(sent(), QString());
    controller->chooseRecordPrograms(chosen(Mode::Only));
    controller.reset();
    EXPECT_EQ(sent(), QString());
}

TEST_F(ProgramsOfARecording, ARecordingKeepsItsChoice) {
    store(chosen(Mode::Only));
    beginWithComputerAudioOnly();
    controller->startAndStopRecord();
    controller->chooseRecordPrograms({});
    EXPECT_EQ(controller->recordPrograms().mode, Mode::Only);
    EXPECT_EQ(sent(), u"only:org.mozilla.firefox,vlc"_s);
    // The driver was started again and knows nothing.
    registry.entries[engine].properties.remove(CaptureComputerAudio::kCaptureDriverProgramsKey);
    registry.entries[engine].properties.remove(CaptureComputerAudio::kCaptureDriverProgramsAppliedKey);
    controller->recordFlushTime();
    EXPECT_EQ(sent(), u"only:org.mozilla.firefox,vlc"_s);
}

TEST_F(ProgramsOfARecording, TheDisplayNamesTheProgramThatPlaysNothing) {
    store(RecordPrograms::named(Mode::Only, {u"firefox"_s}));
    beginWithComputerAudioOnly();
    EXPECT_EQ(controller->waitingForPrograms(), QString()) << "nothing is recorded";
    int changes = 0;
    QObject::connect(controller.get(), &RecordStateController::programsChanged, controller.get(), [&] { ++changes; });
    controller->startAndStopRecord();
    EXPECT_EQ(controller->waitingForPrograms(), u"Waiting for firefox"_s);
    EXPECT_EQ(controller->headline(), u"Waiting for firefox"_s);
    plays(u"firefox"_s);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(controller->waitingForPrograms(), QString());
    EXPECT_EQ(controller->headline(), u"Waiting for the first sound"_s);
    play(ComputerAudio, 0.25F, 1);
    plays(u"firefox"_s, false);
    EXPECT_EQ(controller->waitingForPrograms(), u"Waiting for firefox"_s);
    EXPECT_TRUE(controller->headline().startsWith(u"Recording"_s));
    // Ten seconds of silence are no surprise then.
    play(ComputerAudio, 0, 12);
    controller->recordFlushTime();
    QCoreApplication::processEvents();
    EXPECT_TRUE(controller->notices().isEmpty()) << qPrintable(controller->notices().join(u' '));
    plays(u"firefox"_s);
    controller->recordFlushTime();
    EXPECT_TRUE(noticed(u"Computer audio (Only firefox) has been silent for 10 s: nothing plays."_s));
}

TEST_F(ProgramsOfARecording, ADriverThatCannotChooseRecordsNothing) {
    registry.entries[engine].properties.remove(u"korvane.engine.programs"_s);
    store(chosen(Mode::AllBut));
    beginWithComputerAudioOnly();
    controller->startAndStopRecord();
    EXPECT_EQ(controller->state(), RecordState::Idle);
    EXPECT_FALSE(controller->hasFile());
    EXPECT_TRUE(noticed(u"cannot choose programs"_s));
    controller->chooseRecordPrograms({});
    controller->startAndStopRecord();
    EXPECT_EQ(controller->state(), RecordState::Armed);
}

TEST_F(ProgramsOfARecording, TwoRecordingsWithDifferentProgramsExcludeEachOther) {
    ComputerAudioClaim other;
    ASSERT_TRUE(other.take({.mode = Platform::ProgramChoice::Mode::Only, .programs = {"game"}}));
    beginWithComputerAudioOnly();
    controller->startAndStopRecord();
    EXPECT_EQ(controller->state(), RecordState::Idle);
    EXPECT_TRUE(noticed(u"another recording of computer audio runs with other programs"_s));
    ASSERT_TRUE(other.take({})) << "recordings of everything go together";
    controller->startAndStopRecord();
    EXPECT_EQ(controller->state(), RecordState::Armed);
    EXPECT_FALSE(other.take({.mode = Platform::ProgramChoice::Mode::Only, .programs = {"game"}}));
    play(ComputerAudio, 0.25F, 6);
    controller->startAndStopRecord();
    controller->recordFlushTime();
    EXPECT_TRUE(other.take({.mode = Platform::ProgramChoice::Mode::Only, .programs = {"game"}})) << "it has ended";
}

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/ProcessRequests/ControlRequests.h"

#include "Source/Model/AudioRecordEntry.h"
#include "Source/Model/MediaLibrary.h"
#include "Source/Model/MediaLibraryStore.h"
#include "tests/Source/Record/RecordFixture.h"

using namespace Qt::StringLiterals;

namespace {

class ControlRequestsTest : public RecordFixture {
protected:
    void SetUp() override {
        RecordFixture::SetUp();
        addMicrophone();
        begin();
        library = std::make_unique<MediaLibrary>();
        requests = std::make_unique<ControlRequests>(*controller, library.get());
    }

    /// The answer; returns after the work behind it was done.
    QByteArray ask(const QByteArray& request) {
        const auto reply = requests->answer(request);
        if (reply.afterwards)
            reply.afterwards();
        return reply.line;
    }

    std::unique_ptr<MediaLibrary> library;
    std::unique_ptr<ControlRequests> requests;
};

} // namespace

TEST_F(ControlRequestsTest, StartsAndStops) {
    EXPECT_EQ(requests->status().value(u"state"_s), u"idle"_s);
    EXPECT_EQ(ask("start-stop"), "ok");
    EXPECT_EQ(requests->status().value(u"state"_s), u"recording"_s);
    EXPECT_EQ(ask("start-stop\n"), "ok");
    EXPECT_EQ(requests->status().value(u"state"_s), u"idle"_s);
}

TEST_F(ControlRequestsTest, RefusesWhatTheButtonsWouldRefuse) {
    EXPECT_EQ(ask("pause-resume"), "failed nothing is being recorded");
    EXPECT_EQ(ask("split"), "failed nothing is being recorded");
    controller->chooseRecordBuiltIn(false);
    EXPECT_EQ(ask("start-stop"), "failed there is no source to record");
    EXPECT_FALSE(controller->isStateAudioRecord());
    EXPECT_EQ(ask("rm -rf"), "failed unknown request");
    EXPECT_EQ(ask(""), "failed unknown request");
}

TEST_F(ControlRequestsTest, PausesAndSplits) {
    (void)ask("start-stop");
    play(Microphone, 0.5F, 6);
    EXPECT_EQ(ask("pause-resume"), "ok");
    EXPECT_EQ(requests->status().value(u"state"_s), u"paused"_s);
    EXPECT_EQ(ask("pause-resume"), "ok");
    EXPECT_EQ(ask("split"), "ok");
    ASSERT_TRUE(queueDone());
    EXPECT_EQ(delegate.paths, QStringList{track(0)});
}

TEST_F(ControlRequestsTest, TheStatusIsOneLineOfJson) {
    QByteArray rest;
    const QByteArray answer = ask("status");
    EXPECT_FALSE(answer.contains('\n'));
    ASSERT_TRUE(ControlRequests::isOk(answer, rest));
    EXPECT_TRUE(rest.contains("\"state\":\"idle\"")) << rest.constData();
    EXPECT_TRUE(rest.contains("\"lostFrames\":0")) << rest.constData();
}

TEST_F(ControlRequestsTest, AddsARecordingOfASubcommandToTheLibrary) {
    Dictionary tags = RecordStateController::initID3BasicInfoDic();
    tags.insert(AudioRecordEntry::Title, u"Träck \"0\"\n"_s);
    tags.insert(AudioRecordEntry::Length, 7.5);
    const QByteArray request = ControlRequests::libraryAdd(u"/music/ä %1.m4a"_s, tags);
    EXPECT_FALSE(request.contains('\n'));
    EXPECT_EQ(ask(request), "ok");
    ASSERT_EQ(library->records().size(), 1);
    const Dictionary entry = library->records().front().toMap();
    EXPECT_EQ(entry.value(AudioRecordEntry::SavePath), u"/music/ä %1.m4a"_s);
    EXPECT_EQ(entry.value(AudioRecordEntry::Title), u"Träck \"0\"\n"_s);
    EXPECT_DOUBLE_EQ(entry.value(AudioRecordEntry::Length).toDouble(), 7.5);
    EXPECT_TRUE(entry.value(AudioRecordEntry::NodeDataKey).toString().startsWith(u"/music/ä %1.m4a_"_s));
    EXPECT_EQ(ask("library-add {}"), "failed there is no path");
    EXPECT_EQ(ask("library-add {{{"), "failed there is no path");
}

TEST_F(ControlRequestsTest, AddsARecordingUnderItsGivenIdentity) {
    Dictionary tags{{AudioRecordEntry::NodeDataKey, u"its own"_s}, {AudioRecordEntry::IsNew, true}};
    for (const QString& title : {u"first"_s, u"second"_s}) {
        tags.insert(AudioRecordEntry::Title, title);
        EXPECT_EQ(ask(ControlRequests::libraryAdd(u"/music/a.m4a"_s, tags)), "ok");
        ASSERT_EQ(library->records().size(), 1);
        EXPECT_EQ(library->records().front().toMap().value(AudioRecordEntry::NodeDataKey), u"its own"_s);
        EXPECT_EQ(library->records().front().toMap().value(AudioRecordEntry::Title), title);
    }
    EXPECT_EQ(library->currentNewArray(), QStringList{u"its own"_s});
    for (const QVariant& none : {QVariant(QString()), QVariant(QVariantList{1})}) {
        tags.insert(AudioRecordEntry::NodeDataKey, none);
        EXPECT_EQ(ask(ControlRequests::libraryAdd(u"/music/b.m4a"_s, tags)), "ok");
        const QString made = library->records().front().toMap().value(AudioRecordEntry::NodeDataKey).toString();
        EXPECT_TRUE(made.startsWith(u"/music/b.m4a_"_s)) << qPrintable(made);
    }
}

TEST_F(ControlRequestsTest, AdoptsEntriesOfOtherProcessesBeforeItAdds) {
    const Dictionary theirs{{AudioRecordEntry::NodeDataKey, u"theirs"_s}};
    defaults.setObject(PreferenceStore::kMediaLibrarySavedKey, MediaLibraryStore::value({theirs}, {}));
    EXPECT_EQ(ask(ControlRequests::libraryAdd(u"/music/a.m4a"_s, {})), "ok");
    ASSERT_EQ(library->records().size(), 2);
    EXPECT_EQ(library->records().last(), theirs);
}

TEST_F(ControlRequestsTest, ForwardsRemovalsToTheLibrary) {
    EXPECT_TRUE(ask("library-remove {}").contains("problem"));
}

TEST_F(ControlRequestsTest, TheButtonsCommandsStartAfterTheAnswerIsSent) {
    const auto start = requests->answer("start-stop");
    EXPECT_EQ(start.line, "ok");
    EXPECT_EQ(requests->status().value(u"state"_s), u"idle"_s);
    start.afterwards();
    EXPECT_EQ(requests->status().value(u"state"_s), u"recording"_s);
    const auto pause = requests->answer("pause-resume");
    EXPECT_EQ(requests->status().value(u"state"_s), u"recording"_s);
    pause.afterwards();
    EXPECT_EQ(requests->status().value(u"state"_s), u"paused"_s);
}

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Drives of the system, with a double in place of libburn.
#include "tests/Platform/Disc/LibBurnDouble.h"

#include "tests/Platform/Disc/DiscTestSupport.h"
#include "tests/fakes/FakeSourceFiles.h"

#include <cerrno>

using namespace Qt::StringLiterals;
using namespace Platform;
using namespace DiscTest;

namespace {

/// The drives and discs that a test inserts.
class TestDrives final : public DriveSource {
public:
    explicit TestDrives(std::function<void()> changed) : changed(std::move(changed)) {}
    std::vector<FoundDrive> drives() override { return found; }
    int openError(const QString&) override { return error; }
    void setQuiet(const QString& path, bool quiet) override {
        quieted.append(path + (quiet ? u" quiet"_s : u" looked at"_s));
    }

    void mount(const QString& path) override { mounted.append(path); }

    std::function<void()> changed;
    QStringList mounted;
    std::atomic<int> error{0};
    QStringList quieted;
    static inline std::vector<FoundDrive> found; // exists before the first poll
};

class OpticalBurnTest : public testing::Test {
protected:
    OpticalBurnTest() {
        TestDrives::found = {
            {u"/dev/sr0"_s, u"sr0"_s, u"ACME Writer"_s, DRDeviceMediaStateMediaPresent, true, false, 0}};
        const auto ramp = [](int channel, std::int64_t frame) {
            return float((frame * (channel + 1)) % 20000) / 32768;
        };
        files.addSource(files.at(u"one"_s), 8, ramp);
        files.addSource(files.at(u"two"_s), 5, ramp);
        discs = std::make_unique<LinuxDiscRecording>(files, [this](std::function<void()> changed) {
            auto made = std::make_unique<TestDrives>(std::move(changed));
            drives = made.get();
            return made;
        });
    }
    ~OpticalBurnTest() override {
        burner.holdsWriting = false;
        watch.reset();
        discs.reset(); // before the double is destroyed
    }

    std::shared_ptr<DRDevice> drive() {
        const auto first = discs->devices().front();
        EXPECT_TRUE(waitFor([&] { return first->status().mediaState != DRDeviceMediaStateInTransition; }));
        return first;
    }
    DRLayout layout() {
        DRLayout made;
        for (const QString& path : {files.at(u"one"_s), files.at(u"two"_s)}) {
            made.push_back(discs->trackForAudioFile(path).valueOr(nullptr));
            made.back()->setProperties({75});
        }
        return made;
    }
    std::shared_ptr<DRBurn> started(const std::optional<DRLayout>& given,
                                    DRBurnCompletionAction action = DRBurnCompletionActionMount) {
        const auto burn = discs->burnWithDevice(drive());
        burn->setRequestedBurnSpeed(8467);
        auto properties = burn->properties();
        properties.completionAction = action;
        burn->setProperties(properties);
        watch = std::make_unique<BurnWatch>(discs->currentRunLoopCenter(), burn);
        burn->writeLayout(given);
        return burn;
    }
    DRStatus burned(DRBurnCompletionAction action = DRBurnCompletionActionMount) {
        const auto burn = started(layout(), action);
        EXPECT_TRUE(waitFor([&] { return watch->ended(); }));
        return burn->status();
    }
    /// The calls of the burn itself, without those that examine the disc before and after it.
    QStringList callsOfTheBurn() {
        QStringList calls = burner.calls();
        const auto from = calls.indexOf(u"grab /dev/sr0 1"_s);
        auto to = from;
        while (to >= 0 && to < calls.size() && !calls[to].startsWith(u"release"_s))
            ++to;
        return from < 0 ? QStringList() : calls.mid(from, to - from + 1);
    }

    LibBurnDouble burner;
    FakeSourceFiles files;
    TestDrives* drives = nullptr;
    std::unique_ptr<LinuxDiscRecording> discs;
    std::unique_ptr<BurnWatch> watch;
};

TEST_F(OpticalBurnTest, ExaminesTheInsertedDiscAndIsListedBeforeTheImageDrive) {
    const auto first = drive();
    ASSERT_EQ(discs->devices().size(), 2U);
    EXPECT_EQ(first->displayName(), u"ACME Writer"_s);
    EXPECT_EQ(first->bsdName(), u"sr0"_s);
    EXPECT_TRUE(first->mediaIsBlank());
    EXPECT_FALSE(first->mediaIsErasable());
    EXPECT_EQ(first->status().mediaBlocksFree, 359'849);
    EXPECT_EQ(first->status().maximumWriteSpeed, 8467);
    EXPECT_EQ(first->status().mediaKind, u"CD-R"_s);
    EXPECT_EQ(burner.calls(), (QStringList{u"initialize"_s, u"grab /dev/sr0 0"_s, u"release 0"_s}));
}

TEST_F(OpticalBurnTest, WritesAnAudioDiscWithTheDocumentedCallOrder) {
    const DRStatus status = burned();
    ASSERT_EQ(status.state, DRStatusStateDone) << qPrintable(status.reason);
    EXPECT_EQ(callsOfTheBurn(), (QStringList{u"grab /dev/sr0 1"_s,
                                             u"options"_s,
                                             u"disc"_s,
                                             u"session"_s,
                                             u"add session"_s,
                                             u"track"_s,
                                             u"define 0 0 1 audio"_s,
                                             u"pre-gap 75"_s,
                                             u"source 1411200"_s,
                                             u"add track"_s,
                                             u"track"_s,
                                             u"define 0 0 1 audio"_s,
                                             u"pre-gap 75"_s,
                                             u"source 882000"_s,
                                             u"add track"_s,
                                             u"multi 0"_s,
                                             u"underrun proof 1"_s,
                                             u"type SAO"_s,
                                             u"check"_s,
                                             u"speed 0 8467"_s,
                                             u"write"_s,
                                             u"well?"_s,
                                             u"free options"_s,
                                             u"release 0"_s}));
    EXPECT_EQ(burner.holds, 0);
    EXPECT_EQ(drives->mounted, QStringList{u"/dev/sr0"_s});
    const auto samples = samplesOf(burner.written());
    ASSERT_EQ(samples.size(), (1411200U + 882000U) / 2);
    for (const auto& [from, frames] : {std::pair<std::size_t, std::size_t>{0, 8 * 44100}, {8 * 44100, 5 * 44100}})
        for (std::size_t i = 0; i < frames; i += 97)
            for (std::size_t c = 0; c < 2; ++c)
                ASSERT_NEAR(samples[(from + i) * 2 + c], double((i * (c + 1)) % 20000), 2) << i;
    EXPECT_EQ(drives->quieted, (QStringList{u"/dev/sr0 quiet"_s, u"/dev/sr0 looked at"_s}));
}

TEST_F(OpticalBurnTest, EjectsTheDiscOnRequest) {
    EXPECT_EQ(burned(DRBurnCompletionActionEject).state, DRStatusStateDone);
    EXPECT_EQ(callsOfTheBurn().last(), u"release 1"_s);
    EXPECT_EQ(drives->mounted, QStringList());
}

TEST_F(OpticalBurnTest, IsBusyWhileItBurnsAndExaminesTheDiscAfterwards) {
    burner.holdsWriting = true;
    const auto burn = started(layout());
    ASSERT_TRUE(waitFor([&] { return burn->status().percentComplete > 0; }));
    EXPECT_TRUE(discs->devices().front()->status().isBusy);
    EXPECT_FALSE(discs->devices().front()->ejectMedia());
    burner.disc = burn::BURN_DISC_FULL;
    burner.holdsWriting = false;
    ASSERT_TRUE(waitFor([&] { return watch->ended(); }));
    ASSERT_TRUE(waitFor([&] { return !discs->devices().front()->status().isBusy; }));
    EXPECT_FALSE(drive()->mediaIsBlank());
}

TEST_F(OpticalBurnTest, ReportsEveryFailureAndReleasesTheDrive) {
    for (const auto& [call, reason] : std::vector<std::pair<QString, QString>>{
             {u"disc"_s, u"the layout of the disc could not be made"_s},
             {u"session"_s, u"the layout of the disc could not be made"_s},
             {u"add session"_s, u"the layout of the disc could not be made"_s},
             {u"track"_s, u"the layout of the disc could not be made"_s},
             {u"pre-gap"_s, u"the layout of the disc could not be made"_s},
             {u"source"_s, u"the layout of the disc could not be made"_s},
             {u"add track"_s, u"the layout of the disc could not be made"_s},
             {u"options"_s, u"the layout of the disc could not be made"_s},
             {u"type"_s, u"ACME Writer: the disc cannot be written like this: the drive gave no reason"_s},
             {u"check"_s, u"ACME Writer: the disc cannot be written like this: SAO: cannot"_s},
             {u"check: no media"_s, u"ACME Writer: the disc cannot be written like this: the drive gave no reason"_s},
             {u"profile"_s, u"ACME Writer: an audio CD needs a CD-R or a CD-RW, this is a disc of another kind"_s},
             {u"well?"_s, u"ACME Writer: the burn failed: the drive gave no reason"_s}}) {
        drive();
        burner.forgetCalls();
        burner.fails = {call};
        const DRStatus status = burned();
        EXPECT_EQ(status.state, DRStatusStateFailed) << qPrintable(call);
        EXPECT_EQ(status.reason, reason) << qPrintable(call);
        EXPECT_EQ(burner.calls().contains(u"write"_s), call == u"well?"_s);
        ASSERT_TRUE(waitFor([&] { return burner.holds == 0; }));
        burner.fails = {};
    }
}

TEST_F(OpticalBurnTest, BurnsWithADriveWithoutUnderrunProtection) {
    burner.fails = {u"underrun proof"_s, u"atip"_s};
    EXPECT_EQ(burned().state, DRStatusStateDone);
}

TEST_F(OpticalBurnTest, ReportsTheDrivesMessage) {
    drive();
    burner.fails = {u"well?"_s};
    burner.holdsWriting = true;
    const auto burn = started(layout());
    ASSERT_TRUE(waitFor([&] { return burn->status().percentComplete > 0; }));
    burner.says = "SCSI error on write: medium error";
    burner.holdsWriting = false;
    ASSERT_TRUE(waitFor([&] { return watch->ended(); }));
    EXPECT_EQ(burn->status().reason, u"ACME Writer: the burn failed: SCSI error on write: medium error"_s);
}

TEST_F(OpticalBurnTest, ReportsTheKindOfTheDisc) {
    drive();
    for (const auto& [state, reason] : std::vector<std::pair<burn::burn_disc_status, QString>>{
             {burn::BURN_DISC_EMPTY, u"ACME Writer: there is no disc in the drive"_s},
             {burn::BURN_DISC_FULL, u"ACME Writer: the disc is not blank"_s},
             {burn::BURN_DISC_APPENDABLE, u"ACME Writer: the disc is not blank"_s},
             {burn::BURN_DISC_UNSUITABLE, u"ACME Writer: this disc cannot be written to"_s}}) {
        burner.disc = state;
        EXPECT_EQ(burned().reason, reason);
    }
    burner.disc = burn::BURN_DISC_BLANK;
    burner.profile = 0x11;
    EXPECT_EQ(burned().reason, u"ACME Writer: an audio CD needs a CD-R or a CD-RW, this is a DVD-R"_s);
    EXPECT_FALSE(burner.calls().contains(u"write"_s));
}

TEST_F(OpticalBurnTest, ComputesTheFreeSpaceWithoutTheFirstPreGap) {
    burner.lastBlock = 600 + 75 + 375; // 8 s, a pre-gap, 5 s
    EXPECT_EQ(burned().state, DRStatusStateDone);
    burner.lastBlock = 600 + 75 + 374;
    EXPECT_EQ(
        burned().reason,
        u"there is not enough room on the disc: the tracks need 0:14 minutes (1050 sectors), 0:14 minutes (1049 sectors) are free"_s);
}

TEST_F(OpticalBurnTest, ReportsADriveInUseAndMissingPermissions) {
    drive();
    burner.fails = {u"grab"_s};
    drives->error = EBUSY;
    EXPECT_EQ(burned().reason, u"ACME Writer: another program uses the drive, or its disc is mounted"_s);
    drives->error = EACCES;
    EXPECT_EQ(
        burned().reason,
        u"ACME Writer: no right to use /dev/sr0: join the group that owns it (often \"cdrom\") and log in again"_s);
    EXPECT_EQ(drive()->status().problem,
              u"no right to use /dev/sr0: join the group that owns it (often \"cdrom\") and log in again"_s);
    EXPECT_TRUE(drive()->mediaIsBlank()); // the value of the system's database
    drives->error = 0;
    EXPECT_EQ(burned().reason, u"ACME Writer: the drive cannot be opened"_s);
}

TEST_F(OpticalBurnTest, AbortsOnceAndOnlyWhileItWrites) {
    burner.holdsWriting = true;
    const auto burn = started(layout());
    ASSERT_TRUE(waitFor([&] { return burn->status().percentComplete > 0; }));
    burn->abort();
    burn->abort();
    ASSERT_TRUE(waitFor([&] { return watch->ended(); }));
    EXPECT_EQ(burn->status().reason, u"it was stopped before the end: the disc may be unusable"_s);
    EXPECT_EQ(burner.cancels, 1);
    EXPECT_EQ(burner.cancelsAtTheWrongTime, 0);
    EXPECT_EQ(callsOfTheBurn().last(), u"release 0"_s);
}

TEST_F(OpticalBurnTest, StopsWhenASourceFailsAndNamesIt) {
    drive();
    files.sources[files.at(u"two"_s)].failingRead = 3;
    // Longer than the ring, so that the failure comes while the disc is being written.
    files.addSource(files.at(u"one"_s), 400, [](int, std::int64_t) { return 0.25F; });
    const DRStatus status = burned();
    EXPECT_EQ(status.state, DRStatusStateFailed);
    EXPECT_TRUE(status.reason.startsWith(QString(files.at(u"two"_s) + u": cannot be read"_s)))
        << qPrintable(status.reason);
}

TEST_F(OpticalBurnTest, WritesNothingWhenASourceFailsWhileTheBufferFills) {
    drive();
    files.sources[files.at(u"one"_s)].failingRead = 1;
    EXPECT_EQ(burned().reason, files.at(u"one"_s) + u": cannot be read"_s);
    EXPECT_EQ(callsOfTheBurn(), QStringList());
}

TEST_F(OpticalBurnTest, EndsRunningWorkBeforeTheLibraryIsClosed) {
    burner.holdsWriting = true;
    const auto burn = started(layout());
    ASSERT_TRUE(waitFor([&] { return burn->status().percentComplete > 0; }));
    watch.reset();
    discs.reset();
    EXPECT_EQ(burner.cancels, 1);
    EXPECT_EQ(burner.holds, 0);
    EXPECT_EQ(burner.calls().last(), u"finish"_s);
}

TEST_F(OpticalBurnTest, ReportsThatTheLibraryCannotBeInitialised) {
    burner.fails = {u"initialize"_s};
    const auto first = drive();
    EXPECT_EQ(first->status().problem, u"the drive cannot be opened"_s);
}

TEST_F(OpticalBurnTest, ErasesQuicklyAndReportsTheProgress) {
    burner.disc = burn::BURN_DISC_FULL;
    burner.erasable = true;
    burner.profile = 0x0a;
    ASSERT_TRUE(drive()->mediaIsErasable());
    const auto erase = discs->eraseWithDevice(drive());
    std::vector<double> shares;
    discs->currentRunLoopCenter().addObserver(
        this, DREraseStatusChangedNotification, erase,
        [&](const DRNotification&) { shares.push_back(erase->status().percentComplete); });
    erase->setEraseType(DREraseTypeQuick);
    erase->start();
    ASSERT_TRUE(waitFor([&] { return erase->status().state == DRStatusStateDone; }));
    EXPECT_TRUE(burner.calls().contains(u"erase 1"_s));
    EXPECT_EQ(shares.back(), 1);
    EXPECT_TRUE(std::is_sorted(shares.begin(), shares.end()));
    ASSERT_TRUE(waitFor([&] { return drive()->mediaIsBlank(); }));
    discs->currentRunLoopCenter().removeObserver(this);
}

TEST_F(OpticalBurnTest, DoesNotEraseADiscThatIsNotErasable) {
    burner.disc = burn::BURN_DISC_FULL;
    drive();
    const auto erase = discs->eraseWithDevice(drive());
    erase->start();
    ASSERT_TRUE(waitFor([&] { return erase->status().state == DRStatusStateFailed; }));
    EXPECT_EQ(erase->status().reason, u"ACME Writer: this disc cannot be erased"_s);
    EXPECT_FALSE(burner.calls().contains(u"erase 0"_s));
}

TEST_F(OpticalBurnTest, ReportsDiscsAndDrivesThatAppearAndDisappear) {
    TestDrives::found[0].media = DRDeviceMediaStateNone;
    const auto first = drive();
    EXPECT_EQ(first->status().mediaState, DRDeviceMediaStateNone);
    std::vector<DRDeviceMediaState> states;
    int lists = 0;
    auto& center = discs->currentRunLoopCenter();
    center.addObserver(this, DRDeviceStatusChangedNotification, first,
                       [&](const DRNotification&) { states.push_back(first->status().mediaState); });
    center.addObserver(this, DRDeviceListChangedNotification, nullptr, [&](const DRNotification&) { ++lists; });
    TestDrives::found[0].media = DRDeviceMediaStateMediaPresent;
    drives->changed();
    ASSERT_TRUE(waitFor([&] { return first->status().mediaState == DRDeviceMediaStateMediaPresent; }));
    drives->changed(); // nothing changed
    TestDrives::found[0].media = DRDeviceMediaStateNone;
    drives->changed();
    EXPECT_EQ(states,
              (std::vector{DRDeviceMediaStateInTransition, DRDeviceMediaStateMediaPresent, DRDeviceMediaStateNone}));
    EXPECT_EQ(lists, 0);
    TestDrives::found.push_back({u"/dev/sr1"_s, u"sr1"_s, u"Other"_s, DRDeviceMediaStateNone, false, false, 0});
    drives->changed();
    EXPECT_EQ(lists, 1);
    EXPECT_EQ(discs->devices().size(), 3U);
    TestDrives::found.clear();
    drives->changed();
    EXPECT_EQ(lists, 2);
    EXPECT_EQ(discs->devices().size(), 1U);
    center.removeObserver(this);
}

TEST_F(OpticalBurnTest, EjectsTheDiscOfAnIdleDrive) {
    EXPECT_TRUE(drive()->ejectMedia());
    EXPECT_TRUE(waitFor([&] { return burner.calls().last() == u"release 1"_s; }));
}

} // namespace

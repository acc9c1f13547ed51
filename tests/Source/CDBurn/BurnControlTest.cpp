// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/CDBurn/BurnControl.h"
#include "Platform/Foundation/NotificationCenter.h"
#include "Platform/Foundation/Services.h"
#include "tests/fakes/FakeDiscRecording.h"
#include "tests/support/LogCatcher.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace Platform;

namespace {

/// All posted notifications, one line each: the name, and the progress where there is one.
class Posted {
public:
    Posted() {
        for (const QString& name :
             {BurnControlDVDWillInsertNotification, BurnControlDVDDidInNotification, BurnControlDVDDidOutNotification,
              BurnControlBurnProgressNotification, BurnControlBurnDidFininshNotification,
              BurnControlBurnDidFailedNotification, EraseDVDProgressNotification, EraseDVDDidFininshNotification,
              BurnControlDevicesDidChangeNotification})
            observations_.push_back(NotificationCenter::defaultCenter().addObserver(
                name, [this](const QString& posted, const Dictionary& info) {
                    lines_.append(info.contains(kBurnProgressKey)
                                      ? u"%1 %2"_s.arg(posted, QString::number(info.value(kBurnProgressKey).toDouble()))
                                      : posted);
                }));
    }
    /// The lines since the last call.
    QStringList take() { return std::exchange(lines_, {}); }

private:
    QStringList lines_;
    std::vector<std::unique_ptr<NotificationCenter::Observation>> observations_;
};

/// Installs the doubles before the engine is created.
struct Doubles {
    Doubles() {
        services().discRecording = &discs;
        services().diskArbitration = &disks;
    }
    ServicesScope scope;
    FakeDiscRecording discs;
    FakeDiskArbitration disks;
};

class BurnControlTest : public testing::Test, protected Doubles {
protected:
    static Dictionary entry(const QString& path, bool ticked = true) {
        return {{TrackEntry::FilePath, path}, {TrackEntry::ChooseTheAudio, ticked}};
    }
    /// The drive reports a change of its disc.
    void disc(DRDeviceMediaState state, bool busy = false) {
        drive->state.mediaState = state;
        drive->state.isBusy = busy;
        discs.statusChanged(drive);
    }
    static QStringList paths(const DRLayout& layout) {
        QStringList all;
        for (const auto& track : layout)
            all.append(track->path());
        return all;
    }

    std::shared_ptr<FakeDrive> drive = discs.addDrive(u"Writer A"_s);
    std::shared_ptr<FakeDrive> second = discs.addDrive(u"Writer B"_s);
    Posted posted;
    BurnControl control;
};

TEST_F(BurnControlTest, ListsTheDrivesByTheirDisplayedNames) {
    EXPECT_EQ(BurnControl::cdROMDisplayNames(), (QStringList{u"Writer A"_s, u"Writer B"_s}));
    discs.drives.clear();
    EXPECT_EQ(BurnControl::cdROMDisplayNames(), QStringList());
}

TEST_F(BurnControlTest, ChoosesADriveAndIgnoresAnIndexBeyondTheList) {
    LogCatcher log;
    EXPECT_EQ(control.recordNum(), 0U);
    control.setUseCDRom(1);
    EXPECT_EQ(control.recordNum(), 1U);
    EXPECT_EQ(log.lines(), (QStringList{u"Remove DRDevice!"_s, u"Init DRDevice!"_s}));
    control.setUseCDRom(2);
    EXPECT_EQ(control.recordNum(), 1U);
    EXPECT_EQ(log.lines().size(), 2);
    second->insertBlankDisc();
    discs.statusChanged(second);
    discs.statusChanged(drive); // not observed any more
    EXPECT_EQ(posted.take(), QStringList{u"DvdIn"_s});
}

TEST_F(BurnControlTest, ReportsADiscBeingInsertedPresentAndRemoved) {
    LogCatcher log;
    control.setUseCDRom(0);
    disc(DRDeviceMediaStateNone);
    EXPECT_EQ(posted.take(), QStringList());
    disc(DRDeviceMediaStateInTransition);
    disc(DRDeviceMediaStateInTransition);
    EXPECT_EQ(posted.take(), (QStringList{u"DvdInsert"_s, u"DvdInsert"_s}));
    disc(DRDeviceMediaStateMediaPresent);
    disc(DRDeviceMediaStateMediaPresent);
    disc(DRDeviceMediaStateInTransition); // a loaded disc in transition is not a new disc
    EXPECT_EQ(posted.take(), QStringList{u"DvdIn"_s});
    disc(DRDeviceMediaStateNone);
    disc(DRDeviceMediaStateNone);
    EXPECT_EQ(posted.take(), QStringList{u"DvdOut"_s});
    disc(DRDeviceMediaStateMediaPresent);
    EXPECT_EQ(posted.take(), QStringList{u"DvdIn"_s});
    EXPECT_EQ(log.lines().mid(2), (QStringList{u"cd  insert to  the CD -ROM"_s, u"cd  insert to  the CD -ROM"_s,
                                               u"cd  into to  the CD -ROM"_s, u"cd  out to  the CD -ROM"_s,
                                               u"cd  into to  the CD -ROM"_s}));
}

TEST_F(BurnControlTest, IgnoresABusyDriveEntirely) {
    control.setUseCDRom(0);
    disc(DRDeviceMediaStateInTransition, true);
    disc(DRDeviceMediaStateMediaPresent, true);
    EXPECT_EQ(posted.take(), QStringList());
    disc(DRDeviceMediaStateMediaPresent);
    disc(DRDeviceMediaStateNone, true);
    EXPECT_EQ(posted.take(), QStringList{u"DvdIn"_s});
}

TEST_F(BurnControlTest, IgnoresNotificationsOfOtherObjects) {
    LogCatcher log;
    const DRNotification wrong{DRDeviceStatusChangedNotification, std::make_shared<FakeTrack>(u"a"_s)};
    control.NotificationToCurrentDevice(wrong);
    control.burnNotification(wrong);
    control.eraseNotification(wrong);
    EXPECT_EQ(posted.take(), QStringList());
    EXPECT_EQ(log.lines(), (QStringList{u"CurrentDevice. is not DRDevice"_s, u"burnNotification. is not DRBurn"_s,
                                        u"burnNotification. is not DRErase"_s}));
}

TEST_F(BurnControlTest, LaysOutTheTickedFilesWithASecondOfPreGapEach) {
    const auto layout = control.createLayoutForCDBurn({entry(u"a"_s), entry(u"b"_s, false), entry(u"c"_s)});
    ASSERT_TRUE(layout);
    EXPECT_EQ(paths(*layout), (QStringList{u"a"_s, u"c"_s}));
    for (const auto& track : *layout)
        EXPECT_EQ(track->properties().preGapLength, 75U);
}

TEST_F(BurnControlTest, LaysOutNothingWhenNothingIsTicked) {
    const auto layout = control.createLayoutForCDBurn({entry(u"a"_s, false)});
    ASSERT_TRUE(layout);
    EXPECT_TRUE(layout->empty());
}

TEST_F(BurnControlTest, HasNoLayoutWhenOneTickedFileCannotBecomeATrack) {
    discs.unreadable = {u"b"_s};
    EXPECT_FALSE(control.createLayoutForCDBurn({entry(u"a"_s), entry(u"b"_s), entry(u"c"_s)}));
    EXPECT_EQ(control.failureReason(), u"b: cannot be read"_s);
    EXPECT_TRUE(control.createLayoutForCDBurn({entry(u"a"_s), entry(u"b"_s, false)}));
    EXPECT_EQ(control.failureReason(), QString());
}

TEST_F(BurnControlTest, BurnsAtTheGreatestSpeedAndMountsOrEjects) {
    drive->state.maximumWriteSpeed = 8467;
    control.burnMusicToCD({entry(u"a"_s), entry(u"b"_s, false)}, false);
    const auto burn = discs.lastBurn();
    ASSERT_TRUE(burn);
    EXPECT_EQ(burn->calls, (QStringList{u"speed"_s, u"properties"_s, u"write"_s}));
    EXPECT_EQ(burn->requestedSpeed, 8467);
    EXPECT_EQ(burn->properties().completionAction, DRBurnCompletionActionMount);
    ASSERT_TRUE(burn->layout);
    EXPECT_EQ(paths(*burn->layout), QStringList{u"a"_s});
    control.burnMusicToCD({entry(u"a"_s)}, true);
    EXPECT_EQ(discs.lastBurn()->properties().completionAction, DRBurnCompletionActionEject);
}

TEST_F(BurnControlTest, StartsTheBurnWithoutALayoutWhenNoneCouldBeMade) {
    discs.unreadable = {u"a"_s};
    control.burnMusicToCD({entry(u"a"_s)}, false);
    EXPECT_FALSE(discs.lastBurn()->layout);
    discs.lastBurn()->reach(DRStatusStateFailed, 0, u"no layout"_s);
    EXPECT_EQ(posted.take(), (QStringList{u"BurnProcess 0"_s, u"BurnFailed"_s}));
    EXPECT_EQ(control.failureReason(), u"a: cannot be read"_s); // the failed file, not a consequence of it
}

TEST_F(BurnControlTest, DoesNothingWithoutADriveOrABurn) {
    discs.refusesBurns = true;
    control.burnMusicToCD({entry(u"a"_s)}, false);
    control.beginDVDMediaBurn(u"disc.iso"_s);
    discs.refusesBurns = false;
    discs.drives = {nullptr};
    control.burnMusicToCD({entry(u"a"_s)}, false);
    control.beginDVDMediaBurn(u"disc.iso"_s);
    control.eraseDVD();
    control.stopBurn();
    EXPECT_TRUE(discs.burns.empty());
    EXPECT_TRUE(discs.erases.empty());
    EXPECT_EQ(posted.take(), QStringList());
}

TEST_F(BurnControlTest, PostsEachChangeAndTheEndOfABurn) {
    LogCatcher log;
    control.burnMusicToCD({entry(u"a"_s)}, false);
    const auto burn = discs.lastBurn();
    burn->reach(DRStatusStatePreparing, -1);
    burn->reach(DRStatusStateTrackWrite, 0.25);
    burn->reach(DRStatusStateDone, 1);
    EXPECT_EQ(posted.take(),
              (QStringList{u"BurnProcess -1"_s, u"BurnProcess 0.25"_s, u"BurnProcess 1"_s, u"BurnFinish"_s}));
    EXPECT_EQ(log.lines(), (QStringList{u"                    BurndValue  =  -1.000000"_s,
                                        u"                    BurndValue  =  0.250000"_s,
                                        u"                    BurndValue  =  1.000000"_s, u"Burn is end"_s,
                                        u"          the   Burn  is    end\n  "_s}));
    burn->reach(DRStatusStateDone, 1); // not observed any more
    EXPECT_EQ(posted.take(), QStringList());
}

TEST_F(BurnControlTest, PostsAFailureOnceAndLogsItsReason) {
    LogCatcher log;
    control.burnMusicToCD({entry(u"a"_s)}, false);
    discs.lastBurn()->reach(DRStatusStateFailed, 0.5, u"the laser is tired"_s);
    discs.lastBurn()->reach(DRStatusStateFailed, 0.5);
    EXPECT_EQ(posted.take(), (QStringList{u"BurnProcess 0.5"_s, u"BurnFailed"_s}));
    EXPECT_EQ(log.lines().mid(1), (QStringList{u"Burn is failed"_s, u"the laser is tired"_s}));
}

TEST_F(BurnControlTest, PostsNothingAfterAStop) {
    control.burnMusicToCD({entry(u"a"_s)}, false);
    const auto burn = discs.lastBurn();
    control.stopBurn();
    EXPECT_EQ(burn->aborts, 1);
    burn->reach(DRStatusStateFailed, 0.5);
    EXPECT_EQ(posted.take(), QStringList());
}

TEST_F(BurnControlTest, NeverDestroysAnEarlierBurnOrErase) {
    control.burnMusicToCD({entry(u"a"_s)}, false);
    control.eraseDVD();
    const std::weak_ptr<FakeBurn> burn = discs.burns.front();
    const std::weak_ptr<FakeErase> erase = discs.erases.front();
    control.burnMusicToCD({entry(u"b"_s)}, false);
    control.eraseDVD();
    discs.burns.clear();
    discs.erases.clear();
    ASSERT_FALSE(burn.expired());
    ASSERT_FALSE(erase.expired());
    burn.lock()->reach(DRStatusStateTrackWrite, 0.5); // and it is still observed
    EXPECT_EQ(posted.take(), QStringList{u"BurnProcess 0.5"_s});
}

TEST_F(BurnControlTest, BurnsAnImageFileAtOnceWithoutReadingItBack) {
    control.beginDVDMediaBurn(u"disc.iso"_s);
    const auto burn = discs.lastBurn();
    ASSERT_TRUE(burn);
    EXPECT_EQ(burn->calls, (QStringList{u"speed"_s, u"properties"_s, u"write"_s}));
    const DRBurnProperties properties = burn->properties();
    EXPECT_EQ(properties.strategy, DRBurnStrategyDVDDAO);
    EXPECT_FALSE(properties.verifyDisc);
    EXPECT_EQ(properties.completionAction, DRBurnCompletionActionMount);
    EXPECT_EQ(properties.udfWriteVersion, DRUDFVersion150);
    ASSERT_TRUE(burn->layout);
    EXPECT_EQ(paths(*burn->layout), QStringList{u"disc.iso"_s});
    burn->reach(DRStatusStateDone, 1);
    EXPECT_EQ(posted.take(), (QStringList{u"BurnProcess 1"_s, u"BurnFinish"_s}));
}

TEST_F(BurnControlTest, KeepsObservingAnEraseAfterItsEnd) {
    LogCatcher log;
    control.eraseDVD();
    const auto erase = discs.erases.front();
    EXPECT_TRUE(erase->started);
    EXPECT_EQ(erase->type, DREraseTypeQuick);
    erase->reach(DRStatusStateErasing, 0.1);
    erase->reach(DRStatusStateDone, 1);
    EXPECT_EQ(posted.take(), (QStringList{u"EraseProcess 0.1"_s, u"EraseProcess 1"_s, u"EraseFininsh"_s}));
    erase->reach(DRStatusStateFailed, 0);
    EXPECT_EQ(posted.take(), QStringList{u"EraseProcess 0"_s}); // no failure is reported, and it is still observed
    EXPECT_EQ(log.lines(),
              (QStringList{u"    value  =  0.100000"_s, u"    value  =  1.000000"_s, u"     the erase   end !!!  "_s,
                           u"    value  =  0.000000"_s, u"           the   erase  is  Failed"_s}));
}

TEST_F(BurnControlTest, CountsFreeBlocksInGigabytesOf1024) {
    drive->insertBlankDisc(1'048'576);
    EXPECT_EQ(control.getcurrentDVDFreeSize(), 2.0F);
    second->insertBlankDisc(524'288);
    EXPECT_EQ(BurnControl::getFreeSize(1), 1.0F);
    EXPECT_EQ(BurnControl::getFreeSize(7), 0.0F);
}

TEST_F(BurnControlTest, AsksTheChosenDriveOnly) {
    second->insertBlankDisc();
    second->erasable = true;
    EXPECT_FALSE(control.currenrDVDIsBlank());
    EXPECT_EQ(control.currentDVDbsdName(), QString());
    control.setUseCDRom(1);
    EXPECT_TRUE(control.currenrDVDIsBlank());
    EXPECT_TRUE(control.currentDVDIsErasable());
    EXPECT_EQ(control.currentDVDbsdName(), u"sr1"_s);
    EXPECT_TRUE(control.ejectCurrentDvd());
    second->ejectWorks = false;
    EXPECT_FALSE(control.ejectCurrentDvd());
    EXPECT_EQ(second->ejects, 2);
    EXPECT_EQ(drive->ejects, 0);
}

TEST_F(BurnControlTest, ChecksTheMountStepByStep) {
    LogCatcher log;
    disks.described = {u"/dev/sr0"_s};
    EXPECT_TRUE(BurnControl::statusByPath(u"sr0"_s));
    EXPECT_FALSE(BurnControl::statusByPath(u"sr1"_s));
    EXPECT_FALSE(BurnControl::statusByPath(QString()));
    EXPECT_EQ(disks.asked, (QStringList{u"/dev/sr0"_s, u"/dev/sr1"_s, u"/dev/"_s}));
    EXPECT_EQ(log.lines(), QStringList());
    disks.failsDisk = true;
    EXPECT_FALSE(BurnControl::statusByPath(u"sr0"_s));
    disks.failsSession = true;
    EXPECT_FALSE(BurnControl::statusByPath(u"sr0"_s));
    EXPECT_EQ(log.lines(),
              (QStringList{u"DADiskCreateFromBSDName(/dev/sr0) failed"_s, u"Can't create DiskArb session"_s}));
}

TEST_F(BurnControlTest, KeepsItsDriveWhenOthersAreAddedOrRemoved) {
    control.setUseCDRom(1);
    discs.drives.erase(discs.drives.begin());
    discs.listChanged();
    EXPECT_EQ(control.recordNum(), 0U);
    EXPECT_EQ(posted.take(), QStringList{u"DvdDevices"_s});
    second->insertBlankDisc();
    discs.statusChanged(second);
    EXPECT_EQ(posted.take(), QStringList{u"DvdIn"_s});
}

TEST_F(BurnControlTest, UsesTheFirstDriveWhenItsOwnIsRemoved) {
    control.setUseCDRom(1);
    discs.drives.pop_back();
    discs.listChanged();
    EXPECT_EQ(control.recordNum(), 0U);
    drive->insertBlankDisc();
    discs.statusChanged(drive);
    EXPECT_EQ(posted.take(), (QStringList{u"DvdDevices"_s, u"DvdIn"_s}));
}

TEST_F(BurnControlTest, LeavesNoObserverBehind) {
    {
        BurnControl other;
        other.setUseCDRom(0);
        other.burnMusicToCD({entry(u"a"_s)}, false);
        other.eraseDVD();
    }
    EXPECT_EQ(discs.center.observations(), 1U); // the list of drives, observed by the test's own control
    discs.lastBurn()->reach(DRStatusStateDone, 1);
    EXPECT_EQ(posted.take(), QStringList());
}

} // namespace

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/PreferenceWndController.h"

#include "Platform/Foundation/Services.h"
#include "Source/HotKey/KeybordShortcutTextView.h"
#include "Source/Preferences/PreferenceStore.h"
#include "Source/View/QtFocusProbe.h"
#include "Source/View/Theme.h"
#include "tests/fakes/FakeAlerts.h"
#include "tests/fakes/FakeAutostart.h"
#include "tests/fakes/FakeBundle.h"
#include "tests/fakes/FakeHotKeys.h"
#include "tests/fakes/FakePanels.h"
#include "tests/fakes/FakeUserDefaults.h"
#include "tests/fakes/FakeWorkspace.h"
#include "tests/support/Screenshot.h"
#include "tests/support/WaitFor.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

#include <thread>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

// A device that the test controls.
struct ScriptedDevice {
    bool exists = false;
    bool works = true;
    bool busy = false;
    QString error;
    int installs = 0;
    int removals = 0;
    std::function<void()> whileWorking;
    const QString* whyNot = nullptr;

    ComputerAudioDevice door() {
        return {[this] { return exists; },
                [this] {
                    ++installs;
                    if (whileWorking)
                        whileWorking();
                    if (works)
                        exists = true;
                    else
                        error = u"the password was not given"_s;
                    return works;
                },
                [this] {
                    ++removals;
                    if (works)
                        exists = false;
                    return works;
                },
                [this] { return busy; },
                [this] { return error; },
                [this] { return whyNot ? *whyNot : QString(); }};
    }
};

// Drops root's right to write anywhere while it lives.
class NoPrivileges {
public:
    NoPrivileges() {
        if (geteuid() == 0)
            dropped_ = setresuid(65534, 65534, 0) == 0;
    }
    ~NoPrivileges() {
        if (dropped_)
            static_cast<void>(setresuid(0, 0, 0) == 0);
    }

private:
    bool dropped_ = false;
};

class Preferences : public testing::Test {
protected:
    Preferences() {
        auto& set = Platform::services();
        set.userDefaults = &defaults;
        set.hotKeys = &hotKeys;
        set.alerts = &alerts;
        set.panels = &panels;
        set.workspace = &workspace;
        set.bundle = &bundle;
        set.focusProbe = &probe;
        Theme::install(*qApp, nullptr);
    }
    ~Preferences() override { controller.reset(); }

    PreferenceWndController& open() {
        controller.reset();
        controller = std::make_unique<PreferenceWndController>(
            device.door(), offersAutostart ? std::make_unique<FakeAutostart>(autostart) : nullptr);
        controller->makeKeyAndOrderFront();
        controller->center();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(controller->window(), 30000));
        return *controller;
    }
    template <typename T>
    T* find(const char* name) {
        return controller->window()->findChild<T*>(QString::fromLatin1(name));
    }
    QString musicFolder() { return QDir::homePath() + u"/Music/com.korvane.Sonaphex"_s; }

    Platform::ServicesScope scope;
    FakeAutostart::Desktop autostart;
    bool offersAutostart = true;
    FakeUserDefaults defaults;
    FakeHotKeys hotKeys;
    FakeAlerts alerts;
    FakePanels panels;
    FakeWorkspace workspace;
    FakeBundle bundle;
    QtFocusProbe probe;
    ScriptedDevice device;
    std::unique_ptr<PreferenceWndController> controller;
};

} // namespace

TEST_F(Preferences, ShowsTheDefaultsWhenNothingIsStored) {
    open();
    EXPECT_FALSE(find<QCheckBox>("splitCheckBox")->isChecked());
    EXPECT_FALSE(find<QComboBox>("splitTimePopUp")->isEnabled());
    EXPECT_EQ(find<QComboBox>("splitTimePopUp")->currentText(), u"300"_s);
    EXPECT_TRUE(find<QCheckBox>("filterCheckBox")->isChecked());
    EXPECT_TRUE(find<QComboBox>("filterTimePopUp")->isEnabled());
    EXPECT_EQ(find<QComboBox>("filterTimePopUp")->currentText(), u"5"_s);
    EXPECT_EQ(find<QLineEdit>("audioPathField")->text(), musicFolder());
    EXPECT_EQ(find<QLineEdit>("ringtonePathField")->text(), musicFolder());
    EXPECT_EQ(controller->startStopShortcut()->text(), u"Control + Super + S"_s);
    EXPECT_EQ(controller->pauseResumeShortcut()->text(), u"Control + Super + P"_s);
    EXPECT_EQ(controller->startNewRecordShortcut()->text(), u"Control + Super + N"_s);
    EXPECT_EQ(defaults.changes(), 0) << "reading stores nothing";
}

TEST_F(Preferences, TheThreeHotKeysHaveTheirSignatures) {
    open();
    std::map<std::uint16_t, std::uint32_t> signatures;
    for (const auto& [handle, taken] : hotKeys.registrations)
        signatures[taken.keyCode] = taken.id.signature;
    EXPECT_EQ(signatures,
              (std::map<std::uint16_t, std::uint32_t>{{1, 0x73737273}, {35, 0x70727273}, {45, 0x736E7273}}));
}

TEST_F(Preferences, ItemTitlesAreNumbers) {
    open();
    for (const char* name : {"splitTimePopUp", "filterTimePopUp"}) {
        const auto* popUp = find<QComboBox>(name);
        for (int i = 0; i < popUp->count(); ++i) {
            bool number = false;
            popUp->itemText(i).toInt(&number);
            EXPECT_TRUE(number) << qPrintable(popUp->itemText(i));
        }
    }
}

TEST_F(Preferences, AStoredValueThatIsNotOfferedIsShownAndStoredAgain) {
    defaults.setObject(u"PreferenceSplitTimeMSKey"_s, u"450"_s);
    defaults.setObject(u"PreferenceFilterTimeKey"_s, u"7 seconds"_s);
    open();
    EXPECT_EQ(find<QComboBox>("splitTimePopUp")->currentText(), u"450"_s);
    EXPECT_EQ(find<QComboBox>("filterTimePopUp")->currentText(), u"7 seconds"_s);
    controller->window()->close();
    EXPECT_EQ(defaults.objectForKey(u"PreferenceSplitTimeMSKey"_s), u"450"_s);
    EXPECT_EQ(defaults.objectForKey(u"PreferenceFilterTimeKey"_s), u"7 seconds"_s);
}

TEST_F(Preferences, StoredValuesOfTheWrongTypeGiveTheDefault) {
    defaults.setObject(u"PreferenceSplitTimeMSKey"_s, QVariantList{1});
    defaults.setObject(u"PreferenceFilterTimeKey"_s, QVariantMap{{u"a"_s, 1}});
    defaults.setObject(u"PreferenceSavePathKey"_s, 12);
    defaults.setObject(u"PreferenceRingtoneSavePathKey"_s, QByteArray("x"));
    defaults.setObject(u"PreferenceSplitKey"_s, QVariantList{});
    defaults.setObject(u"PreferenceFilterKey"_s, u"YES"_s);
    open();
    EXPECT_EQ(find<QComboBox>("splitTimePopUp")->currentText(), u"300"_s);
    EXPECT_EQ(find<QComboBox>("filterTimePopUp")->currentText(), u"5"_s);
    EXPECT_EQ(find<QLineEdit>("audioPathField")->text(), musicFolder());
    EXPECT_EQ(find<QLineEdit>("ringtonePathField")->text(), musicFolder());
    EXPECT_FALSE(find<QCheckBox>("splitCheckBox")->isChecked());
    EXPECT_TRUE(find<QCheckBox>("filterCheckBox")->isChecked());
}

TEST_F(Preferences, AStoredNumberIsAcceptedAsText) {
    defaults.setObject(u"PreferenceSplitTimeMSKey"_s, qlonglong(500));
    open();
    EXPECT_EQ(find<QComboBox>("splitTimePopUp")->currentText(), u"500"_s);
}

TEST_F(Preferences, CheckBoxesEnableTheirTimes) {
    open();
    find<QCheckBox>("splitCheckBox")->click();
    EXPECT_TRUE(find<QComboBox>("splitTimePopUp")->isEnabled());
    find<QCheckBox>("filterCheckBox")->click();
    EXPECT_FALSE(find<QComboBox>("filterTimePopUp")->isEnabled());
    find<QCheckBox>("splitCheckBox")->click();
    EXPECT_FALSE(find<QComboBox>("splitTimePopUp")->isEnabled());
}

TEST_F(Preferences, ClosingAppliesAndStoresEverything) {
    open();
    find<QCheckBox>("splitCheckBox")->click();
    find<QComboBox>("splitTimePopUp")->setCurrentText(u"1000"_s);
    find<QCheckBox>("filterCheckBox")->click();
    find<QComboBox>("filterTimePopUp")->setCurrentText(u"10"_s);
    EXPECT_EQ(defaults.changes(), 0) << "nothing before the window closes";
    controller->window()->close();
    EXPECT_FALSE(controller->isWindowVisible());
    EXPECT_EQ(g_SplitTimeMS, 1000);
    const Dictionary expected{
        {u"PreferenceSavePathKey"_s, musicFolder()},    {u"PreferenceRingtoneSavePathKey"_s, musicFolder()},
        {u"PreferenceSplitKey"_s, qlonglong(1)},        {u"PreferenceFilterKey"_s, qlonglong(0)},
        {u"PreferenceSplitTimeMSKey"_s, u"1000"_s},     {u"PreferenceFilterTimeKey"_s, u"10"_s},
        {u"PreferenceNotificationsKey"_s, qlonglong(1)}};
    EXPECT_EQ(defaults.values(), expected);
}

TEST_F(Preferences, TheTimeBeforeTheFirstSoundIsStoredOnceItIsChanged) {
    open();
    auto* field = find<QSpinBox>("preRollField");
    EXPECT_EQ(field->value(), 0);
    EXPECT_EQ(field->maximum(), 5000);
    field->setFocus();
    QTest::keyClick(field, Qt::Key_Up);
    controller->window()->close();
    EXPECT_EQ(defaults.objectForKey(u"PreferencePreRollMSKey"_s), qlonglong(100));
    defaults.setObject(u"PreferencePreRollMSKey"_s, u"700"_s);
    open();
    EXPECT_EQ(find<QSpinBox>("preRollField")->value(), 700);
    controller->window()->close();
    EXPECT_EQ(defaults.objectForKey(u"PreferencePreRollMSKey"_s), u"700"_s) << "unchanged";
}

TEST_F(Preferences, TitlesAndTracksOfThePlayerAreOffAndStoredOnceTheyAreChanged) {
    open();
    auto* titles = find<QCheckBox>("titlesCheckBox");
    auto* cuts = find<QCheckBox>("cutAtTracksCheckBox");
    EXPECT_FALSE(titles->isChecked());
    EXPECT_FALSE(cuts->isChecked());
    titles->setFocus();
    QTest::keyClick(titles, Qt::Key_Space);
    controller->window()->close();
    EXPECT_EQ(defaults.objectForKey(u"PreferenceTitlesKey"_s), qlonglong(1));
    EXPECT_FALSE(defaults.objectForKey(u"PreferenceCutAtTracksKey"_s).isValid());
    open();
    EXPECT_TRUE(find<QCheckBox>("titlesCheckBox")->isChecked());
    QTest::keyClick(find<QCheckBox>("cutAtTracksCheckBox"), Qt::Key_Space);
    QTest::keyClick(find<QCheckBox>("titlesCheckBox"), Qt::Key_Space);
    controller->window()->close();
    EXPECT_EQ(defaults.objectForKey(u"PreferenceTitlesKey"_s), qlonglong(0));
    EXPECT_EQ(defaults.objectForKey(u"PreferenceCutAtTracksKey"_s), qlonglong(1));
}

TEST_F(Preferences, TurningSplittingOffStillStoresItsTime) {
    defaults.setObject(u"PreferenceSplitKey"_s, 1);
    defaults.setObject(u"PreferenceSplitTimeMSKey"_s, u"500"_s);
    open();
    EXPECT_TRUE(find<QComboBox>("splitTimePopUp")->isEnabled());
    find<QCheckBox>("splitCheckBox")->click();
    controller->window()->close();
    EXPECT_EQ(g_SplitTimeMS, -1);
    EXPECT_EQ(defaults.objectForKey(u"PreferenceSplitTimeMSKey"_s), u"500"_s);
}

TEST_F(Preferences, NotificationsAreOnUntilTheyAreSwitchedOff) {
    open();
    EXPECT_TRUE(find<QCheckBox>("notificationsCheckBox")->isChecked());
    find<QCheckBox>("notificationsCheckBox")->click();
    controller->window()->close();
    EXPECT_EQ(defaults.objectForKey(PreferenceStore::PreferenceNotificationsKey).toLongLong(), 0);
    open();
    EXPECT_FALSE(find<QCheckBox>("notificationsCheckBox")->isChecked());
}

TEST_F(Preferences, TheStartWithTheDesktopIsTheDesktopsOwnSwitch) {
    open();
    auto* box = find<QCheckBox>("autostartCheckBox");
    EXPECT_FALSE(box->isChecked());
    box->click();
    EXPECT_FALSE(autostart.enabled) << "closing applies";
    controller->window()->close();
    EXPECT_TRUE(autostart.enabled);
    open();
    EXPECT_TRUE(find<QCheckBox>("autostartCheckBox")->isChecked());
    autostart.problem = u"the disk is full"_s;
    find<QCheckBox>("autostartCheckBox")->click();
    controller->window()->close();
    ASSERT_TRUE(waitFor([&] { return !alerts.shown.isEmpty(); }));
    EXPECT_EQ(alerts.shown.last().text, u"the disk is full"_s);
    EXPECT_TRUE(find<QCheckBox>("autostartCheckBox")->isChecked()) << "it shows what is so";
    offersAutostart = false;
    open();
    EXPECT_FALSE(find<QCheckBox>("autostartCheckBox")->isVisible());
}

TEST_F(Preferences, EscapeClosesAndApplies) {
    open();
    QTest::keyClick(controller->window(), Qt::Key_Escape);
    EXPECT_FALSE(controller->isWindowVisible());
    EXPECT_EQ(defaults.objectForKey(u"PreferenceFilterTimeKey"_s), u"5"_s);
}

TEST_F(Preferences, AChosenFolderIsShownAtOnceAndStoredOnClose) {
    QTemporaryDir folder;
    panels.answer = folder.path();
    open();
    find<QPushButton>("chooseAudioPathButton")->click();
    EXPECT_EQ(panels.prompts, QStringList{u"Choose"_s});
    EXPECT_EQ(find<QLineEdit>("audioPathField")->text(), folder.path());
    EXPECT_EQ(find<QLineEdit>("audioPathField")->toolTip(), folder.path());
    EXPECT_EQ(defaults.changes(), 0);
    find<QPushButton>("chooseRingtonePathButton")->click();
    EXPECT_EQ(find<QLineEdit>("ringtonePathField")->text(), folder.path());
    controller->window()->close();
    EXPECT_EQ(defaults.objectForKey(u"PreferenceSavePathKey"_s), folder.path());
    EXPECT_EQ(defaults.objectForKey(u"PreferenceRingtoneSavePathKey"_s), folder.path());
}

TEST_F(Preferences, ThePanelStartsInTheFieldsFolderOrAtHome) {
    QTemporaryDir folder;
    defaults.setObject(u"PreferenceSavePathKey"_s, folder.path());
    defaults.setObject(u"PreferenceRingtoneSavePathKey"_s, u"/nowhere/at/all"_s);
    open();
    find<QPushButton>("chooseAudioPathButton")->click();
    find<QPushButton>("chooseRingtonePathButton")->click();
    EXPECT_EQ(panels.startFolders, (QStringList{folder.path(), QDir::homePath()}));
    EXPECT_EQ(find<QLineEdit>("ringtonePathField")->text(), u"/nowhere/at/all"_s) << "Cancel changes nothing";
}

TEST_F(Preferences, AFolderWithoutWritePermissionIsRefusedWithAnAlert) {
    QTemporaryDir folder;
    QFile::setPermissions(folder.path(), QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    panels.answer = folder.path();
    open();
    {
        const NoPrivileges here;
        find<QPushButton>("chooseAudioPathButton")->click();
    }
    ASSERT_TRUE(waitFor([&] { return alerts.shown.size() == 1; }));
    EXPECT_EQ(alerts.shown.first().title, u"Warning:"_s);
    EXPECT_EQ(alerts.shown.first().text, u"You cannot save files in the folder. Read and write privilege is needed."_s);
    EXPECT_EQ(alerts.shown.first().buttons, QStringList{u"OK"_s});
    EXPECT_EQ(find<QLineEdit>("audioPathField")->text(), musicFolder());
    QFile::setPermissions(folder.path(), QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
}

TEST_F(Preferences, ShowRevealsTheFolderOfItsField) {
    defaults.setObject(u"PreferenceSavePathKey"_s, u"/a folder;with $(odd) 'name'"_s);
    open();
    find<QPushButton>("showAudioPathButton")->click();
    find<QPushButton>("showRingtonePathButton")->click();
    EXPECT_EQ(workspace.selected, (QStringList{u"/a folder;with $(odd) 'name'"_s, musicFolder()}));
}

TEST_F(Preferences, InstallingTheDeviceRefreshesItsButtons) {
    open();
    auto* insert = find<QPushButton>("insertDeviceButton");
    auto* remove = find<QPushButton>("unInsertDeviceButton");
    EXPECT_TRUE(insert->isEnabled());
    EXPECT_FALSE(remove->isEnabled());
    device.whileWorking = [&] {
        EXPECT_TRUE(find<QProgressBar>("deviceProgress")->isVisible());
        EXPECT_FALSE(insert->isEnabled());
    };
    QSignalSpy changed(controller.get(), &PreferenceWndController::systemAudioRecordDeviceExistChanged);
    insert->click();
    EXPECT_TRUE(waitFor([&] { return changed.count() == 1; }));
    EXPECT_TRUE(controller->systemAudioRecordDeviceExist());
    EXPECT_FALSE(insert->isEnabled());
    EXPECT_TRUE(remove->isEnabled());
    EXPECT_FALSE(find<QProgressBar>("deviceProgress")->isVisible());
    EXPECT_TRUE(alerts.shown.isEmpty());
    remove->click();
    EXPECT_TRUE(waitFor([&] { return insert->isEnabled(); }));
    EXPECT_EQ(device.removals, 1);
}

TEST_F(Preferences, AFailedRemovalShowsNothing) {
    device.exists = true;
    open();
    device.works = false;
    device.error = u"the password was not given"_s;
    find<QPushButton>("unInsertDeviceButton")->click();
    EXPECT_EQ(device.removals, 1);
    EXPECT_TRUE(alerts.shown.isEmpty());
    EXPECT_TRUE(controller->systemAudioRecordDeviceExist());
    EXPECT_FALSE(find<QLabel>("deviceProblemField")->isVisible());
}

TEST_F(Preferences, TheDeviceCannotBeChangedDuringARecording) {
    QString why = u"a recording runs"_s;
    device.whyNot = &why;
    open();
    auto* insert = find<QPushButton>("insertDeviceButton");
    auto* remove = find<QPushButton>("unInsertDeviceButton");
    EXPECT_FALSE(insert->isEnabled());
    EXPECT_EQ(insert->toolTip(), why);
    controller->insertTheSystemAudioRecordDevice();
    EXPECT_EQ(device.installs, 0);
    device.exists = true;
    controller->flushExistSystemAudioRecordDevice();
    EXPECT_FALSE(remove->isEnabled());
    EXPECT_EQ(remove->toolTip(), why);
    controller->unInsertTheSystemAudioRecordDevice();
    EXPECT_EQ(device.removals, 0);
    why.clear();
    controller->flushExistSystemAudioRecordDevice();
    EXPECT_TRUE(remove->isEnabled());
}

TEST_F(Preferences, AFailedInstallationShowsItsAlertAndTheReasonStaysInTheWindow) {
    open();
    device.works = false;
    controller->insertTheSystemAudioRecordDevice();
    ASSERT_EQ(alerts.shown.size(), 1);
    EXPECT_EQ(alerts.shown.first().title, u"Can not insert the system audio device, Please try it again."_s);
    EXPECT_EQ(alerts.shown.first().text, QString());
    EXPECT_EQ(alerts.shown.first().buttons, QStringList{u"OK"_s});
    EXPECT_EQ(find<QLabel>("deviceProblemField")->text(), u"the password was not given"_s);
    EXPECT_TRUE(find<QLabel>("deviceProblemField")->isVisible());
}

TEST_F(Preferences, ASecondInstallationMeanwhileIsRefused) {
    open();
    device.busy = true;
    controller->insertTheSystemAudioRecordDevice();
    controller->unInsertTheSystemAudioRecordDevice();
    EXPECT_EQ(device.installs, 0);
    EXPECT_EQ(device.removals, 0);
}

TEST_F(Preferences, TheDeviceMayBeInstalledFromAnotherThread) {
    open();
    device.works = false;
    std::thread worker([&] { controller->insertTheSystemAudioRecordDevice(); });
    EXPECT_TRUE(waitFor([&] { return alerts.shown.size() == 1; }));
    worker.join();
    EXPECT_TRUE(waitFor([&] { return !find<QProgressBar>("deviceProgress")->isVisible(); }));
}

TEST_F(Preferences, SettingTheStateOnlyQueriesItAgainLater) {
    open();
    device.exists = true;
    QSignalSpy changed(controller.get(), &PreferenceWndController::systemAudioRecordDeviceExistChanged);
    controller->setSystemAudioRecordDeviceExist(false);
    EXPECT_EQ(changed.count(), 0);
    EXPECT_TRUE(waitFor([&] { return changed.count() == 1; }));
    EXPECT_TRUE(find<QPushButton>("unInsertDeviceButton")->isEnabled());
}

TEST_F(Preferences, WhereNoHotKeysWorkTheCommandsAreShown) {
    hotKeys.currentWay = Platform::HotKeys::Way::None;
    open();
    auto* hint = find<QLabel>("hotKeyHint");
    EXPECT_TRUE(hint->isVisible());
    for (const char* command :
         {"sonaphex control start-stop", "sonaphex control pause-resume", "sonaphex control split"})
        EXPECT_TRUE(find<QLabel>("hotKeyCommands")->text().contains(QString::fromLatin1(command))) << command;
    const auto* commands = find<QLabel>("hotKeyCommands");
    EXPECT_GE(commands->height(), commands->sizeHint().height()) << "all of them can be read";
    EXPECT_FALSE(controller->startStopShortcut()->isEnabled());
    hotKeys.changeWay(Platform::HotKeys::Way::Portal);
    EXPECT_FALSE(hint->isVisible());
    EXPECT_TRUE(controller->startStopShortcut()->isEnabled());
}

TEST_F(Preferences, TheStartingFocusIsNoShortcutField) {
    open();
    EXPECT_FALSE(probe.isEditKeybordShortcutControl());
}

TEST_F(Preferences, TabReachesTheShortcutFieldsAndLeavesThemUnchanged) {
    open();
    QSet<const QWidget*> reached;
    for (int i = 0; i < 40; ++i) {
        reached.insert(QApplication::focusWidget());
        QTest::keyClick(controller->window()->windowHandle(), Qt::Key_Tab);
    }
    for (const auto* field :
         {controller->startStopShortcut(), controller->pauseResumeShortcut(), controller->startNewRecordShortcut()}) {
        EXPECT_TRUE(reached.contains(field)) << qPrintable(field->objectName());
        EXPECT_TRUE(field->hotKeyRegister()->hasRegisterHotKey());
        EXPECT_FALSE(defaults.objectForKey(field->saveKey()).isValid());
    }
    EXPECT_EQ(controller->startStopShortcut()->text(), u"Control + Super + S"_s);
}

TEST_F(Preferences, EveryControlHasAnAccessibleNameAndEveryFieldAMnemonic) {
    open();
    QStringList mnemonics;
    for (QWidget* control : controller->window()->findChildren<QWidget*>()) {
        const bool inside = qobject_cast<QComboBox*>(control->parent()) != nullptr;
        if (control->focusPolicy() != Qt::NoFocus && control->isVisible() && !inside) {
            EXPECT_FALSE(control->accessibleName().isEmpty()) << qPrintable(control->objectName());
        }
        for (const char* property : {"text", "title"}) {
            const QKeySequence mnemonic = QKeySequence::mnemonic(control->property(property).toString());
            if (!mnemonic.isEmpty())
                mnemonics.append(mnemonic.toString());
        }
    }
    EXPECT_GE(mnemonics.size(), 11);
    const QSet<QString> different(mnemonics.begin(), mnemonics.end());
    EXPECT_EQ(different.size(), mnemonics.size()) << qPrintable(mnemonics.join(u' '));
}

TEST_F(Preferences, TheMnemonicOfAShortcutFieldFocusesIt) {
    open();
    controller->window()->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(controller->window(), 30000));
    QTest::keyClick(controller->window(), Qt::Key_P, Qt::AltModifier);
    EXPECT_TRUE(controller->pauseResumeShortcut()->hasFocus());
    EXPECT_TRUE(controller->pauseResumeShortcut()->hotKeyRegister()->hasRegisterHotKey());
}

TEST_F(Preferences, AFieldFocusedAtCloseDoesNotCaptureWhenTheWindowIsShownAgain) {
    open();
    controller->window()->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(controller->window(), 30000));
    controller->startStopShortcut()->setFocus();
    ASSERT_TRUE(probe.isEditKeybordShortcutControl());
    controller->window()->close();
    controller->makeKeyAndOrderFront();
    ASSERT_TRUE(QTest::qWaitForWindowActive(controller->window(), 30000));
    EXPECT_FALSE(probe.isEditKeybordShortcutControl()) << "hot keys would rest, and nobody is typing one";
    QTest::keyClick(controller->window()->windowHandle(), Qt::Key_Escape);
    EXPECT_FALSE(controller->isWindowVisible()) << "Escape closes the window";
    EXPECT_EQ(controller->startStopShortcut()->text(), u"Control + Super + S"_s) << "and takes no shortcut away";
}

TEST_F(Preferences, LongerTextsMakeTheWindowGrow) {
    open();
    const int before = controller->window()->minimumSizeHint().width();
    find<QCheckBox>("splitCheckBox")
        ->setText(u"A translation that needs a good deal more room than the original does, "_s.repeated(3));
    QCoreApplication::processEvents();
    EXPECT_GT(controller->window()->minimumSizeHint().width(), before);
}

TEST_F(Preferences, HasPictures) {
    for (const auto shade : {Theme::Shade::Light, Theme::Shade::Dark}) {
        Theme::apply(shade);
        open();
        find<QCheckBox>("splitCheckBox")->click();
        const QString name = shade == Theme::Shade::Dark ? u"preferences-dark"_s : u"preferences-light"_s;
        for (const double ratio : {1.0, 2.0}) {
            const QImage image =
                Screenshot::take(*controller->window(), name + (ratio > 1 ? u"-2x"_s : u"-1x"_s), ratio);
            EXPECT_GT(Screenshot::coverage(image, image.pixel(1, 1)), 0.05);
        }
    }
    device.error = u"pkexec: the password prompt was closed"_s;
    hotKeys.currentWay = Platform::HotKeys::Way::None;
    open();
    Screenshot::take(*controller->window(), u"preferences-no-hot-keys"_s, 1);
    Theme::apply(Theme::Shade::Light);
}

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CaptureComputerAudio/KextInstallControl.h"

#include "CaptureComputerAudio/CaptureComputerAudio.h"
#include "CaptureComputerAudio/CaptureDriver.h"
#include "Platform/Desktop/linux/LinuxAdminShell.h"
#include "Platform/Foundation/MainQueue.h"
#include "Platform/Foundation/Services.h"
#include "tests/fakes/FakeAdminShell.h"
#include "tests/fakes/FakeBundle.h"
#include "tests/fakes/FakeIORegistry.h"
#include "tests/support/FileContent.h"
#include "tests/support/WaitFor.h"

#include <QDir>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>
#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;
using FileContent::put;

namespace {

/// A registry in which the driver appears after its program ran, and disappears when it is asked to end.
class DriverRegistry : public FakeIORegistry {
public:
    explicit DriverRegistry(QString marker) : marker_(std::move(marker)) {
        onSet = [this](Object, const QString& key, const QVariant&) {
            if (key == u"korvane.driver.quit"_s) {
                ++unloads;
                QFile::remove(marker_);
            }
        };
    }
    std::vector<Object> servicesOfClass(const QString& className) override {
        ++looks;
        std::erase_if(entries,
                      [](const auto& each) { return each.second.className == CaptureComputerAudio::kEngineClass; });
        if (QFile::exists(marker_))
            add(CaptureComputerAudio::kEngineClass, u"IOService:/VIRTUAL/driver/system-audio@1"_s);
        return FakeIORegistry::servicesOfClass(className);
    }
    int unloads = 0;
    int looks = 0; ///< how often the services were listed

private:
    QString marker_;
};

class KextInstallControlTest : public testing::Test {
protected:
    KextInstallControlTest() {
        Platform::services().adminShell = &shell;
        Platform::services().ioRegistry = &registry;
        Platform::services().bundle = &bundle;
        bundle.resources = folder.filePath(u"it's $(touch pwned) a folder"_s);
        makeBundle(bundle.resources, "new");
    }

    /// A bundle whose driver only creates a marker file.
    void makeBundle(const QString& parent, const QByteArray& version) {
        const auto path = parent + u"/ComputerAudioCapture.kext"_s;
        ASSERT_TRUE(QDir().mkpath(path));
        put(path + u"/version"_s, version);
        put(path + u"/CaptureDriver"_s, "#!/bin/sh\n[ \"$1\" = --check ] || touch '" + marker.toLocal8Bit() + "'\n");
        QFile(path + u"/CaptureDriver"_s).setPermissions(QFile::Permissions(0x7755));
    }
    [[nodiscard]] QByteArray installedVersion() const {
        return FileContent::get(KextInstallControl::installedBundlePath() + u"/version"_s);
    }

    Platform::ServicesScope scope;
    QTemporaryDir folder;
    QString extensions = folder.filePath(u"o'system/Extensions"_s);
    QString marker = folder.filePath(u"running"_s);
    KextInstallControl::ExtensionsFolderScope extensionsScope{extensions};
    FakeAdminShell shell;
    FakeBundle bundle;
    DriverRegistry registry{marker};
};

TEST_F(KextInstallControlTest, UninstallsNothingWithoutAPasswordPrompt) {
    EXPECT_FALSE(KextInstallControl::isExist());
    EXPECT_TRUE(KextInstallControl::uninstall());
    EXPECT_TRUE(shell.commands.isEmpty());
}

TEST_F(KextInstallControlTest, InstallsTheBundleAndLoadsTheDriver) {
    EXPECT_TRUE(KextInstallControl::install()) << qPrintable(KextInstallControl::lastError());
    EXPECT_TRUE(KextInstallControl::isExist());
    EXPECT_EQ(installedVersion(), "new");
    EXPECT_TRUE(CaptureDriver::isLoaded());
    EXPECT_EQ(shell.commands.size(), 1);
    EXPECT_EQ(QDir(extensions).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList{u"ComputerAudioCapture.kext"_s});
    EXPECT_FALSE(QFile::exists(u"pwned"_s));
}

TEST_F(KextInstallControlTest, ReplacesAnOlderBundleWithOnePromptThenEndsItsDriver) {
    makeBundle(extensions, "old");
    put(extensions + u"/ComputerAudioCapture.kext/left over"_s, "x");
    put(marker, "");
    bool runningAtThePrompt = false;
    QByteArray installedAtThePrompt;
    shell.before = [&] {
        runningAtThePrompt = QFile::exists(marker);
        installedAtThePrompt = installedVersion();
    };
    EXPECT_TRUE(KextInstallControl::install()) << qPrintable(KextInstallControl::lastError());
    EXPECT_EQ(shell.commands.size(), 1);
    EXPECT_TRUE(runningAtThePrompt);
    EXPECT_EQ(installedAtThePrompt, "old");
    EXPECT_EQ(registry.unloads, 1);
    EXPECT_EQ(installedVersion(), "new");
    EXPECT_FALSE(QFile::exists(extensions + u"/ComputerAudioCapture.kext/left over"_s));
    EXPECT_EQ(QDir(extensions).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList{u"ComputerAudioCapture.kext"_s});
    EXPECT_TRUE(CaptureDriver::isLoaded());
}

TEST_F(KextInstallControlTest, KeepsTheOldDriverWhenAnyStepFails) {
    // A command of this name, earlier in PATH than the system's, that fails at its first, second ... call.
    const QString tools = folder.filePath(u"tools"_s);
    const QByteArray path = qgetenv("PATH");
    QDir().mkpath(tools);
    for (const auto& [command, call] : {std::pair("mkdir", 1), {"cp", 1}, {"chmod", 2}, {"mv", 1}, {"mv", 2}}) {
        SCOPED_TRACE(testing::Message() << command << ' ' << call);
        QDir(extensions).removeRecursively();
        QDir(tools).removeRecursively();
        QDir().mkpath(tools);
        makeBundle(extensions, "old");
        put(marker, "");
        put(tools + u'/' + QLatin1StringView(command),
            "#!/bin/sh\necho >> \"${0%/*}/calls\"\n[ $(wc -l < \"${0%/*}/calls\") -eq " + QByteArray::number(call) +
                " ] && exit 1\nPATH='" + path + "' exec " + command + " \"$@\"\n");
        QFile(tools + u'/' + QLatin1StringView(command)).setPermissions(QFile::Permissions(0x7755));
        qputenv("PATH", tools.toLocal8Bit() + ':' + path);
        EXPECT_FALSE(KextInstallControl::install());
        qputenv("PATH", path);
        EXPECT_TRUE(QFile::exists(tools + u"/calls"_s));
        EXPECT_FALSE(KextInstallControl::lastError().isEmpty());
        EXPECT_EQ(installedVersion(), "old");
        EXPECT_TRUE(CaptureDriver::isLoaded());
        EXPECT_EQ(registry.unloads, 0) << "the device did not even go away";
    }
}

TEST_F(KextInstallControlTest, KeepsTheOldDriverWithoutAPromptWhenTheNewOneCannotRun) {
    makeBundle(extensions, "old");
    put(marker, "");
    put(bundle.resources + u"/ComputerAudioCapture.kext/CaptureDriver"_s,
        "#!/bin/sh\necho 'a library is missing' >&2\nexit 127\n");
    EXPECT_FALSE(KextInstallControl::install());
    EXPECT_EQ(KextInstallControl::lastError(), u"a library is missing"_s);
    QDir(bundle.resources).removeRecursively();
    EXPECT_FALSE(KextInstallControl::install());
    EXPECT_TRUE(shell.commands.isEmpty());
    EXPECT_EQ(installedVersion(), "old");
    EXPECT_TRUE(CaptureDriver::isLoaded());
}

TEST_F(KextInstallControlTest, InstallsADriverThatEveryUserCanRunWhateverTheUmask) {
    const auto before = umask(077);
    const bool installed = KextInstallControl::install();
    umask(before);
    ASSERT_TRUE(installed) << qPrintable(KextInstallControl::lastError());
    const auto modeOf = [](const QString& path) {
        struct stat status = {};
        return stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
    };
    const QString path = KextInstallControl::installedBundlePath();
    for (const QString& each : {QFileInfo(extensions).path(), extensions, path, path + u"/CaptureDriver"_s})
        EXPECT_EQ(modeOf(each), 0755U) << qPrintable(each);
    EXPECT_EQ(modeOf(path + u"/version"_s), 0644U);
    // An installation with these wrong permissions is repaired.
    ASSERT_TRUE(QFile::setPermissions(extensions, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    ASSERT_TRUE(KextInstallControl::install());
    EXPECT_EQ(modeOf(extensions), 0755U);
}

TEST_F(KextInstallControlTest, RemovesTheBundleAndUnloadsTheDriver) {
    ASSERT_TRUE(KextInstallControl::install());
    EXPECT_TRUE(KextInstallControl::uninstall());
    EXPECT_FALSE(KextInstallControl::isExist());
    EXPECT_FALSE(CaptureDriver::isLoaded());
}

TEST_F(KextInstallControlTest, FailsWhenThePromptIsCancelled) {
    shell.refusal = Platform::Error{Platform::Error::Kind::Cancelled, u"the password prompt was cancelled"_s};
    EXPECT_FALSE(KextInstallControl::install());
    EXPECT_EQ(KextInstallControl::lastError(), u"the password prompt was cancelled"_s);
    EXPECT_FALSE(KextInstallControl::isExist());
    EXPECT_FALSE(CaptureDriver::isLoaded());
    makeBundle(extensions, "old");
    EXPECT_FALSE(KextInstallControl::uninstall());
    EXPECT_EQ(installedVersion(), "old");
    EXPECT_FALSE(CaptureDriver::isLoaded()) << "what did not run is not started";
}

TEST_F(KextInstallControlTest, KeepsTheDeviceWhenThePromptIsCancelled) {
    makeBundle(extensions, "old");
    put(marker, "");
    shell.refusal = Platform::Error{Platform::Error::Kind::Cancelled, u"the password prompt was cancelled"_s};
    EXPECT_FALSE(KextInstallControl::uninstall());
    EXPECT_TRUE(CaptureDriver::isLoaded());
    EXPECT_FALSE(KextInstallControl::install());
    EXPECT_TRUE(CaptureDriver::isLoaded());
    EXPECT_EQ(KextInstallControl::lastError(), u"the password prompt was cancelled"_s);
}

TEST_F(KextInstallControlTest, FailsWhenTheDriverDoesNotStart) {
    put(bundle.resources + u"/ComputerAudioCapture.kext/CaptureDriver"_s,
        "#!/bin/sh\n[ \"$1\" = --check ] && exit 0\nexit 1\n");
    EXPECT_FALSE(KextInstallControl::install());
    EXPECT_EQ(shell.commands.size(), 1);
    EXPECT_FALSE(KextInstallControl::lastError().isEmpty());
}

TEST_F(KextInstallControlTest, FailsWhenTheResourcesContainNoDriver) {
    QDir(bundle.resources).removeRecursively();
    EXPECT_FALSE(KextInstallControl::install());
    EXPECT_TRUE(shell.commands.isEmpty());
    EXPECT_FALSE(KextInstallControl::lastError().isEmpty());
}

TEST_F(KextInstallControlTest, RunsTheEventLoopWhileItWaitsAndRefusesASecondCall) {
    std::atomic<bool> promptOpen{true};
    shell.before = [&] {
        while (promptOpen)
            QThread::msleep(1);
    };
    bool refused = false;
    QTimer::singleShot(0, [&] {
        EXPECT_TRUE(KextInstallControl::isBusy());
        refused = !KextInstallControl::install() && !KextInstallControl::uninstall();
        promptOpen = false;
    });
    EXPECT_TRUE(KextInstallControl::install());
    EXPECT_TRUE(refused);
    EXPECT_FALSE(KextInstallControl::isBusy());
    EXPECT_EQ(shell.commands.size(), 1);
}

TEST_F(KextInstallControlTest, LoadsAnInstalledDriverAtLaunchWhenItIsMissing) {
    EXPECT_FALSE(KextInstallControl::loadIfInstalled());
    EXPECT_FALSE(QFile::exists(marker));
    makeBundle(extensions, "new");
    (void)KextInstallControl::loadIfInstalled(); // on a busy machine the driver appears only after the launch
    EXPECT_TRUE(waitFor([this] { return QFile::exists(marker); }));
    EXPECT_TRUE(KextInstallControl::loadIfInstalled());
}

TEST_F(KextInstallControlTest, StopsWaitingForADriverThatDoesNotAppear) {
    makeBundle(extensions, "new");
    put(extensions + u"/ComputerAudioCapture.kext/CaptureDriver"_s, "#!/bin/sh\nexit 0\n");
    QElapsedTimer timer;
    timer.start();
    EXPECT_FALSE(KextInstallControl::loadIfInstalled());
    EXPECT_GE(timer.elapsed(), 1000);
    // At least two milliseconds lie between two queries. A slow machine queries less often.
    EXPECT_LE(registry.looks, 1000 / 2 + 3);
}

TEST_F(KextInstallControlTest, AnEndingProgramDoesNotWaitForThePrompt) {
    shell.refusal = Platform::Error{Platform::Error::Kind::Cancelled, u"the password prompt was cancelled"_s};
    shell.before = [] {
        Platform::MainQueue::post([] { QCoreApplication::exit(0); });
        while (!QThread::currentThread()->isInterruptionRequested())
            QThread::msleep(1);
    };
    bool returned = false;
    Platform::MainQueue::post([&] {
        EXPECT_FALSE(KextInstallControl::install());
        returned = true;
    });
    QCoreApplication::exec();
    EXPECT_TRUE(returned);
    EXPECT_EQ(shell.commands.size(), 1);
}

/// The AdminShell that uses pkexec, with a test version of pkexec in PATH.
class AdminShellTest : public testing::Test {
protected:
    AdminShellTest() { qputenv("PATH", folder.path().toLocal8Bit()); }
    ~AdminShellTest() override { qputenv("PATH", before); }
    void makeHelper(const QByteArray& script) {
        QFile file(folder.filePath(u"pkexec"_s));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write("#!/bin/sh\n" + script);
        file.setPermissions(QFile::Permissions(0x7755));
    }
    QTemporaryDir folder;
    QByteArray before = qgetenv("PATH");
};

TEST_F(AdminShellTest, RunsTheCommandThroughTheHelper) {
    makeHelper("echo \"$1 $2 $3\" > \"${0%/*}/given\"; exec \"$@\"\n");
    const auto result = Platform::createAdminShell(false)->executeShellStringWithAdmin(u"exit 0; %s %1"_s);
    EXPECT_TRUE(result) << qPrintable(result.error().text);
    QFile given(folder.filePath(u"given"_s));
    ASSERT_TRUE(given.open(QIODevice::ReadOnly));
    EXPECT_EQ(given.readAll(), "/bin/sh -c exit 0; %s %1\n");
}

TEST_F(AdminShellTest, ReportsACancelledPromptAndMissingRights) {
    makeHelper("exit 126\n");
    const Platform::Error cancelled = Platform::createAdminShell(false)->executeShellStringWithAdmin(u"true"_s).error();
    EXPECT_EQ(cancelled.kind, Platform::Error::Kind::Cancelled);
    EXPECT_EQ(cancelled.text, u"the password prompt was cancelled"_s);
    makeHelper("exit 127\n");
    EXPECT_EQ(Platform::createAdminShell(false)->executeShellStringWithAdmin(u"true"_s).error().text,
              u"administrator rights were not given"_s);
}

TEST_F(AdminShellTest, EndsThePromptWhenItsWorkerIsInterrupted) {
    makeHelper("exec /bin/sleep 1000\n");
    Platform::Result<> result;
    const std::unique_ptr<QThread> worker(
        QThread::create([&] { result = Platform::createAdminShell(false)->executeShellStringWithAdmin(u"true"_s); }));
    worker->start();
    worker->requestInterruption();
    EXPECT_TRUE(worker->wait(30000));
    EXPECT_EQ(result.error().kind, Platform::Error::Kind::Cancelled);
}

TEST_F(AdminShellTest, ReportsAMissingHelper) {
    const auto result = Platform::createAdminShell(false)->executeShellStringWithAdmin(u"true"_s);
    EXPECT_EQ(result.error().kind, Platform::Error::Kind::NotFound);
    EXPECT_TRUE(result.error().text.contains(u"pkexec is not installed"_s));
}

TEST_F(AdminShellTest, RunsDirectlyWithRightsAndReportsTheCommandsError) {
    const auto shell = Platform::createAdminShell(true);
    EXPECT_TRUE(shell->executeShellStringWithAdmin(u"exit 0"_s));
    EXPECT_EQ(shell->executeShellStringWithAdmin(u"echo 'no room' >&2; exit 3"_s).error().text, u"no room"_s);
    EXPECT_EQ(shell->executeShellStringWithAdmin(u"exit 3"_s).error().text, u"the command ended with status 3"_s);
}

} // namespace

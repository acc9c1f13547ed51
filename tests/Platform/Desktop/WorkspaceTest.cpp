// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Desktop/linux/LinuxDesktop.h"

#include "tests/support/Environment.h"
#include "tests/support/PrivateBus.h"
#include "tests/support/WaitFor.h"

#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace {

/// A desktop whose xdg-open records its arguments.
struct WorkspaceTest : testing::Test {
    QTemporaryDir dir;
    EnvironmentScope path{"PATH", dir.path().toUtf8() + ":" + qgetenv("PATH")};
    std::unique_ptr<Platform::Workspace> workspace = Platform::createWorkspace();

    void SetUp() override {
        QFile script(dir.filePath(QStringLiteral("xdg-open")));
        ASSERT_TRUE(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\nprintf '%s\\n' \"$#\" \"$1\" > '" + dir.path().toUtf8() + "/new' && mv '" +
                     dir.path().toUtf8() + "/new' '" + dir.path().toUtf8() + "/asked'\n");
        script.close();
        script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    [[nodiscard]] QString opened() const {
        QFile file(dir.filePath(QStringLiteral("asked")));
        if (!waitFor([&] { return file.exists(); }) || !file.open(QIODevice::ReadOnly))
            return QStringLiteral("(nothing)");
        return QString::fromUtf8(file.readAll());
    }
    [[nodiscard]] QString make(const char* name) const {
        QFile file(dir.filePath(QString::fromUtf8(name)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return file.fileName();
    }
};

/// A file manager on the bus.
class FileManager1 : public QDBusVirtualObject {
public:
    QStringList shown;
    bool refuses = false;
    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        if (message.member() != QStringLiteral("ShowItems"))
            return false;
        if (refuses) {
            connection.send(message.createErrorReply(QDBusError::Failed, QStringLiteral("no")));
            return true;
        }
        shown = message.arguments().value(0).toStringList();
        connection.send(message.createReply());
        return true;
    }
};

} // namespace

TEST_F(WorkspaceTest, OpensAnAddressInTheBrowser) {
    EXPECT_TRUE(workspace->openUrl(QUrl(QStringLiteral("https://example.org/a b"))));
    EXPECT_EQ(opened(), QStringLiteral("1\nhttps://example.org/a%20b\n"));
}

TEST_F(WorkspaceTest, RefusesAMalformedAddress) {
    EXPECT_FALSE(workspace->openUrl(QUrl()));
    EXPECT_FALSE(workspace->openUrl(QUrl(QStringLiteral("-version"))));
}

TEST_F(WorkspaceTest, OpensAFileWithAnyNameInTheDefaultPlayer) {
    const QString file = make("$(touch x); 'a\".m4a");
    EXPECT_TRUE(workspace->openFile(file, QStringLiteral("iTunes")));
    EXPECT_EQ(opened(), QStringLiteral("1\n") + file + u'\n');
}

TEST_F(WorkspaceTest, DoesNotOpenAMissingFileOrUseAMissingProgram) {
    EXPECT_FALSE(workspace->openFile(dir.filePath(QStringLiteral("missing.m4a")), QStringLiteral("iTunes")));
    EXPECT_FALSE(workspace->openFile(make("a.m4a"), QStringLiteral("no-such-player")));
}

TEST_F(WorkspaceTest, OpensTheFolderWhenThereIsNoBus) {
    workspace = Platform::createWorkspace(QStringLiteral("unix:path=/nonexistent"));
    EXPECT_TRUE(workspace->selectFile(make("a.m4a")));
    EXPECT_EQ(opened(), QStringLiteral("1\n") + dir.path() + u'\n');
}

TEST_F(WorkspaceTest, ShowsAFileInTheFileManager) {
    const PrivateBus bus(dir.path());
    ASSERT_FALSE(bus.address().isEmpty());
    QDBusConnection mock = QDBusConnection::connectToBus(bus.address(), QStringLiteral("mock"));
    FileManager1 manager;
    ASSERT_TRUE(mock.registerVirtualObject(QStringLiteral("/org/freedesktop/FileManager1"), &manager));
    ASSERT_TRUE(mock.registerService(QStringLiteral("org.freedesktop.FileManager1")));
    workspace = Platform::createWorkspace(bus.address());
    EXPECT_TRUE(workspace->selectFile(make("a b#.m4a")));
    EXPECT_TRUE(waitFor([&] { return !manager.shown.isEmpty(); }));
    EXPECT_EQ(manager.shown, QStringList{QStringLiteral("file://") + dir.path() + QStringLiteral("/a%20b%23.m4a")});
    manager.refuses = true;
    EXPECT_TRUE(workspace->selectFile(make("c.m4a")));
    EXPECT_EQ(opened(), QStringLiteral("1\n") + dir.path() + u'\n');
    mock.unregisterObject(QStringLiteral("/org/freedesktop/FileManager1"));
}

TEST_F(WorkspaceTest, SignalsAChangedFile) {
    QStringList changed;
    QObject::connect(workspace.get(), &Platform::Workspace::fileSystemChanged, workspace.get(),
                     [&](const QString& path) { changed << path; });
    workspace->noteFileSystemChanged(QStringLiteral("/a"));
    EXPECT_EQ(changed, QStringList{QStringLiteral("/a")});
}

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Desktop/Autostart.h"

#include "tests/support/Environment.h"
#include "tests/support/RunTool.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Platform::Autostart;

namespace {

class AutostartFile : public testing::Test {
protected:
    [[nodiscard]] QByteArray content() const {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void write(const QByteArray& text) const {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    static QString set(Autostart& autostart, bool enabled) {
        QString problem = u"not called"_s;
        autostart.setEnabled(enabled, [&](const QString& why) { problem = why; });
        return problem;
    }

    QTemporaryDir folder;
    EnvironmentScope config{"XDG_CONFIG_HOME", QFile::encodeName(folder.path())};
    QString path = folder.filePath(u"autostart/com.korvane.Sonaphex.desktop"_s);
    std::unique_ptr<Autostart> autostart =
        Autostart::createWithFile(u"com.korvane.Sonaphex"_s, u"/opt/my $tools/100% \"so\\naphex`"_s);
};

} // namespace

TEST_F(AutostartFile, IsWrittenAndRemoved) {
    EXPECT_FALSE(autostart->isEnabled());
    EXPECT_EQ(set(*autostart, true), u""_s);
    EXPECT_TRUE(autostart->isEnabled());
    EXPECT_TRUE(content().contains("\nExec=\"/opt/my \\\\$tools/100%% \\\\\"so\\\\\\\\naphex\\\\`\" --hidden\n"))
        << content().constData();
    const auto valid = runTool(u"desktop-file-validate"_s, {path});
    EXPECT_EQ(valid.status, 0) << valid.output.constData();
    EXPECT_EQ(set(*autostart, false), u""_s);
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(AutostartFile, FollowsTheDesktopsOwnSwitches) {
    for (const char* off : {"Hidden=true", "X-GNOME-Autostart-enabled = false"}) {
        write(QByteArray("[Desktop Entry]\nExec=sonaphex --hidden\n") + off + '\n');
        EXPECT_FALSE(autostart->isEnabled()) << off;
        EXPECT_EQ(set(*autostart, true), u""_s);
        EXPECT_TRUE(autostart->isEnabled()) << off;
    }
}

TEST_F(AutostartFile, AFileOfTheUsersOwnStaysAsItIs) {
    const QByteArray own = "[Desktop Entry]\nType=Application\nName=Mine\nExec=nice sonaphex --hidden\n";
    write(own);
    EXPECT_TRUE(autostart->isEnabled());
    EXPECT_EQ(set(*autostart, true), u""_s);
    EXPECT_EQ(content(), own);
}

TEST_F(AutostartFile, SaysWhyItCannotBeWritten) {
    QFile inTheWay(folder.filePath(u"autostart"_s));
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    EXPECT_FALSE(set(*autostart, true).isEmpty());
    EXPECT_FALSE(autostart->isEnabled());
}

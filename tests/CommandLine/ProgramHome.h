// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/linux/PropertyListDefaults.h"
#include "Source/Model/MediaLibraryStore.h"
#include "Source/Preferences/PreferenceStore.h"
#include "tests/support/Environment.h"
#include "tests/support/RunTool.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <memory>
#include <vector>

/// A home folder for the real program, which this process's children use while the object lives.
class ProgramHome {
public:
    static inline const QString identifier = QStringLiteral("com.korvane.Sonaphex");

    ProgramHome() {
        for (const char* name : {"XDG_CONFIG_HOME", "XDG_RUNTIME_DIR", "XDG_DATA_HOME", "XDG_CACHE_HOME", "HOME"})
            environment_.push_back(std::make_unique<EnvironmentScope>(name, folder_.path().toUtf8()));
        const QString temporary = filePath(QStringLiteral("tmp"));
        environment_.push_back(std::make_unique<EnvironmentScope>("TMPDIR", temporary.toUtf8()));
        QDir().mkdir(temporary);
        QFile::setPermissions(temporary, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    [[nodiscard]] QString path() const { return folder_.path(); }
    [[nodiscard]] QString filePath(const QString& name) const { return folder_.filePath(name); }
    /// Folders that a command left in the temporary folder.
    [[nodiscard]] QStringList temporaries() const {
        return QDir(filePath(QStringLiteral("tmp"))).entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden);
    }
    /// Notes about unfinished edits.
    [[nodiscard]] QStringList notes() const {
        return QDir(filePath(identifier + QStringLiteral("/Edits"))).entryList(QDir::Files);
    }

    static ToolResult sonaphex(const QStringList& arguments) {
        return runTool(QStringLiteral(SONAPHEX_PROGRAM), arguments);
    }
    /// What "library --json" prints.
    static QJsonDocument library() {
        return QJsonDocument::fromJson(sonaphex({QStringLiteral("library"), QStringLiteral("--json")}).output);
    }
    /// Stores these entries as the library.
    static void store(const QVariantList& records, const QVariantList& ringtones = {},
                      const Dictionary& settings = {}) {
        const auto defaults = Platform::createUserDefaults(identifier);
        defaults->setObject(PreferenceStore::kMediaLibrarySavedKey, MediaLibraryStore::value(records, ringtones));
        for (auto it = settings.cbegin(); it != settings.cend(); ++it)
            defaults->setObject(it.key(), it.value());
        ASSERT_TRUE(defaults->flush());
    }
    /// A failure that is reported in one line.
    static void expectOneLine(const ToolResult& result, const QByteArray& text) {
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.errors.count('\n'), 1) << result.errors.constData();
        EXPECT_TRUE(result.errors.startsWith("sonaphex: ")) << result.errors.constData();
        EXPECT_TRUE(result.errors.contains(text)) << result.errors.constData();
        EXPECT_TRUE(result.output.isEmpty()) << result.output.constData();
    }

private:
    QTemporaryDir folder_;
    std::vector<std::unique_ptr<EnvironmentScope>> environment_;
};

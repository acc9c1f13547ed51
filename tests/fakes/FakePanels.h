// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Desktop/Panels.h"

#include <QStringList>

/// Answers panels from a script and keeps their questions.
class FakePanels : public Platform::Panels {
public:
    void chooseFolder(QObject*, const QString& prompt, const QString& startFolder, Chosen done) override {
        prompts.append(prompt);
        startFolders.append(startFolder);
        done(answer);
    }
    void chooseFilesAndFolders(QObject*, const QString& prompt, const QString& startFolder,
                               std::function<void(QStringList paths)> done) override {
        prompts.append(prompt);
        startFolders.append(startFolder);
        done(answers);
    }
    std::optional<QString> chooseFile(QObject*, const QString& title, const QString& startFolder,
                                      const QString&) override {
        prompts.append(title);
        startFolders.append(startFolder);
        return answer;
    }
    using Panels::saveFile;
    std::optional<QString> saveFile(QObject*, const QString& title, const QString& startPath, Existing) override {
        prompts.append(title);
        startFolders.append(startPath);
        return answer;
    }

    std::optional<QString> answer; ///< empty means Cancel
    QStringList answers;           ///< for panels that pick any number
    QStringList prompts;
    QStringList startFolders;
};

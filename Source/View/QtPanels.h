// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Desktop/Panels.h"

/// Panels as file dialogs; uses the desktop's own where it has them.
class QtPanels : public Platform::Panels {
public:
    void chooseFolder(QObject* window, const QString& prompt, const QString& startFolder, Chosen done) override;
    void chooseFilesAndFolders(QObject* window, const QString& prompt, const QString& startFolder,
                               std::function<void(QStringList paths)> done) override;
    std::optional<QString> chooseFile(QObject* window, const QString& title, const QString& startFolder,
                                      const QString& filter) override;
    using Panels::saveFile;
    std::optional<QString> saveFile(QObject* window, const QString& title, const QString& startPath,
                                    Existing existing) override;
};

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

class QObject;

namespace Platform {

/// Open and save panels. Main thread only.
class Panels {
public:
    using Chosen = std::function<void(std::optional<QString> path)>;
    virtual ~Panels() = default;
    /// A sheet that picks one existing folder (new ones may be made in it, links are resolved). @p window is the window
    /// it belongs to; @p done is called once, with nothing on Cancel.
    virtual void chooseFolder(QObject* window, const QString& prompt, const QString& startFolder, Chosen done) = 0;
    /// A sheet that picks any number of existing files and folders (links are resolved). @p done is called once, with
    /// nothing on Cancel.
    virtual void chooseFilesAndFolders(QObject* window, const QString& prompt, const QString& startFolder,
                                       std::function<void(QStringList paths)> done) = 0;
    /// A modal panel that picks one existing file; the filter reads "Images (*.png *.jpg)".
    virtual std::optional<QString> chooseFile(QObject* window, const QString& title, const QString& startFolder,
                                              const QString& filter) = 0;
    /// What the save panel does when the chosen file exists.
    enum class Existing {
        Asked,  ///< the panel asks before it accepts the name
        Unasked ///< the panel accepts the name; the caller decides
    };
    /// A modal panel that asks for the path of a file to write.
    virtual std::optional<QString> saveFile(QObject* window, const QString& title, const QString& startPath,
                                            Existing existing) = 0;
    std::optional<QString> saveFile(QObject* window, const QString& title, const QString& startPath) {
        return saveFile(window, title, startPath, Existing::Asked);
    }
};

} // namespace Platform

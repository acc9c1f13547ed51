// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Control/RecordingRename.h"

#include "Platform/Desktop/Workspace.h"
#include "Platform/Foundation/FileManager.h"
#include "Source/Model/RecordingTracks.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace RecordingRename {
namespace {

constexpr int kLongestName = 255;    ///< bytes, the limit of the usual file systems
constexpr int kShownCharacters = 40; ///< of a name within a message

QString shown(const QString& name) {
    return name.size() <= kShownCharacters ? name : name.left(kShownCharacters - 1) + u'…';
}

QString text(const char* sentence) {
    return QCoreApplication::translate("RecordingRename", sentence);
}

/// Why a file cannot have this name, as the end of a sentence; empty when it can.
QString objection(const QString& title, const QString& fileName) {
    if (title.isEmpty())
        return text(QT_TRANSLATE_NOOP("RecordingRename", "the title is empty"));
    if (title.contains(u'/'))
        return text(QT_TRANSLATE_NOOP("RecordingRename", "a file name cannot contain “/”"));
    if (title.contains(QChar(u'\0')) || QFile::decodeName(QFile::encodeName(fileName)) != fileName)
        return text(QT_TRANSLATE_NOOP("RecordingRename", "the title has a character that no file name can contain"));
    if (QFile::encodeName(fileName).size() > kLongestName)
        return text(QT_TRANSLATE_NOOP("RecordingRename", "the title is longer than a file name can be"));
    return {};
}

} // namespace

QString pathForTitle(const QString& path, const QString& title) {
    const QFileInfo info(path);
    return info.path() + u'/' + title + u'.' + info.suffix();
}

Outcome rename(const QString& path, const QString& title) {
    const QString target = pathForTitle(path, title);
    if (target == path)
        return {path, {}};
    const QString name = title + u'.' + QFileInfo(path).suffix();
    QString why = objection(title, name);
    if (why.isEmpty() && (QFileInfo::exists(target) || QFileInfo(target).isSymLink()))
        why = text(QT_TRANSLATE_NOOP("RecordingRename", "there is already a file named “%1” in its folder"))
                  .replace(u"%1"_s, shown(name));
    if (why.isEmpty()) {
        why = Platform::FileManager::move(path, target)
                  .error()
                  .text; // also refused when another process created the name first
        if (why.isEmpty()) {
            Platform::noteFileSystemChanged(path);
            Platform::noteFileSystemChanged(target);
            return {target, {}};
        }
    }
    return {path, text(QT_TRANSLATE_NOOP("RecordingRename", "The file keeps its name “%1”: %2."))
                      .arg(shown(QFileInfo(path).fileName()), why)};
}

Dictionary renameTracks(const Dictionary& entry, const QString& before, const QString& after) {
    const QString oldName = QFileInfo(before).completeBaseName();
    const QString newName = QFileInfo(after).completeBaseName();
    const auto renamed = [&](const QString& track) {
        const QFileInfo info(track);
        if (!info.fileName().startsWith(oldName + u" ("_s))
            return track;
        const QString target = info.path() + u'/' + newName + info.fileName().mid(oldName.size());
        if (!Platform::FileManager::move(track, target))
            return track;
        Platform::noteFileSystemChanged(track);
        Platform::noteFileSystemChanged(target);
        return target;
    };
    Dictionary result = entry;
    const RecordingTracks::Tracks tracks = RecordingTracks::found(entry);
    RecordingTracks::insertInto(result, {renamed(tracks.input), renamed(tracks.computer)});
    return result;
}

} // namespace RecordingRename

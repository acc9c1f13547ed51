// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/MovedFiles.h"

#include "Platform/Foundation/linux/OpenFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>

using namespace Qt::StringLiterals;

namespace Platform::MovedFiles {
namespace {

Q_LOGGING_CATEGORY(movedFilesLog, "sonaphex.foundation")

const QString noteEnding = u".origin"_s;
// A note decides where a file is moved to, so notes of other users are refused.
const FileRules noteRules{.ownUser = true, .noLink = true, .largest = 65536};

} // namespace

Result<> moveAway(const QString& from, const QString& to) {
    // The note is written first: without it a crash after the move would leave a file of unknown origin.
    if (const auto written = FileManager::writeAtomically(to + noteEnding, QFile::encodeName(from), 0600); !written)
        return written;
    const auto moved = FileManager::move(from, to);
    if (!moved && !QFileInfo::exists(to))
        forget(to);
    return moved;
}

QString setAside(const QString& path, const QString& wishedName) {
    QString at = FileManager::setAside(path, wishedName);
    if (at != path || !QFileInfo::exists(path)) {
        forget(path); // it may have had a note before
        return at;
    }
    // The next recording may reuse the file's name and would empty it.
    at = FileManager::moveIntoFolder(path, QFileInfo(path).path(), wishedName).valueOr(at);
    const QString home = FileManager::unfinishedFolder() + u'/' + QFileInfo(at).fileName();
    if (FileManager::writeAtomically(at + noteEnding, QFile::encodeName(home), 0600))
        return at;
    // An empty note needs no space on a full disk and also keeps the file.
    if (QFile note(at + noteEnding); !note.open(QIODevice::WriteOnly))
        qCWarning(movedFilesLog, "%s goes with its temporary folder: %s", qUtf8Printable(at),
                  qUtf8Printable(note.errorString()));
    return at;
}

bool isKept(const QString& path) {
    return path.endsWith(noteEnding) || QFileInfo::exists(path + noteEnding);
}

void forget(const QString& to) {
    (void)FileManager::removeFile(to + noteEnding);
}

QStringList bringBack(const QString& folder) {
    QStringList stay;
    const QStringList notes = QDir(folder).entryList({u'*' + noteEnding}, QDir::Files | QDir::Hidden);
    for (const QString& name : notes) {
        const QString path = folder + u'/' + name.chopped(noteEnding.size());
        const auto note = readFile(folder + u'/' + name, noteRules);
        if (!QFileInfo(path).isFile() || !note)
            continue;
        QString home = QFile::decodeName(*note);
        if (home.isEmpty())
            home = FileManager::unfinishedFolder() + u'/' + QFileInfo(path).fileName();
        QString landed = home;
        if (const auto moved = FileManager::move(path, home); !moved) {
            landed = FileManager::setAside(path, QFileInfo(home).fileName());
            if (landed == path) {
                qCWarning(movedFilesLog, "%s is still at %s: it cannot be put back (%s)", qUtf8Printable(home),
                          qUtf8Printable(path), qUtf8Printable(moved.error().forLog()));
                stay += {name.chopped(noteEnding.size()), name};
                continue;
            }
        }
        qCWarning(movedFilesLog, "%s was left in a temporary folder; it is back at %s", qUtf8Printable(home),
                  qUtf8Printable(landed));
        forget(path);
    }
    return stay;
}

} // namespace Platform::MovedFiles

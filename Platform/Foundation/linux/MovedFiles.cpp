// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/MovedFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>

using namespace Qt::StringLiterals;

namespace Platform::MovedFiles {
namespace {

Q_LOGGING_CATEGORY(log, "sonaphex.foundation")

const QString noteEnding = u".origin"_s;

} // namespace

FileManager::Problem moveAway(const QString& from, const QString& to) {
    // The note is there first: between the two there is no moment in which a crash makes the file homeless.
    if (const auto problem = FileManager::writeAtomically(to + noteEnding, QFile::encodeName(from), 0600);
        !problem.isEmpty())
        return problem;
    const auto problem = FileManager::move(from, to);
    if (!problem.isEmpty() && !QFileInfo::exists(to))
        forget(to);
    return problem;
}

void forget(const QString& to) {
    (void)FileManager::removeFile(to + noteEnding);
}

QStringList bringBack(const QString& folder) {
    QStringList stay;
    const QStringList notes = QDir(folder).entryList({u'*' + noteEnding}, QDir::Files | QDir::Hidden);
    for (const QString& name : notes) {
        const QString path = folder + u'/' + name.chopped(noteEnding.size());
        QFile note(folder + u'/' + name);
        if (!QFileInfo(path).isFile() || !note.open(QIODevice::ReadOnly))
            continue;
        const QString home = QFile::decodeName(note.readAll());
        QString landed = home;
        if (const auto problem = FileManager::move(path, home); !problem.isEmpty()) {
            landed = FileManager::setAside(path, QFileInfo(home).fileName());
            if (landed == path) {
                qCWarning(log, "%s is still at %s: it cannot be put back (%s)", qUtf8Printable(home),
                          qUtf8Printable(path), qUtf8Printable(problem));
                stay += {name.chopped(noteEnding.size()), name};
                continue;
            }
        }
        qCWarning(log, "%s was left in a temporary folder; it is back at %s", qUtf8Printable(home),
                  qUtf8Printable(landed));
        forget(path);
    }
    return stay;
}

} // namespace Platform::MovedFiles

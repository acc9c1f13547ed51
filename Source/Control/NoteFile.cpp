// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Control/NoteFile.h"

#include "Platform/Foundation/Bundle.h"
#include "Platform/Foundation/FileManager.h"
#include "Platform/Foundation/Folders.h"
#include "Platform/Foundation/Services.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QRandomGenerator>

using namespace Qt::StringLiterals;
using Platform::Error;
using Platform::Result;

namespace {

/// Bytes of the longest note: it may contain a picture of 10 MB in base64.
constexpr qint64 LongestNote = qint64(32) << 20;

} // namespace

QString NoteFile::folderPath(const QString& folder) {
    const Platform::Bundle* const bundle = Platform::services().bundle;
    return Platform::Folders::data() + u'/' + (bundle ? bundle->bundleIdentifier() : u"com.korvane.Sonaphex"_s) + u'/' +
           folder;
}

Result<NoteFile> NoteFile::create(const QString& folder, const QString& ending) {
    const QString path = folderPath(folder);
    if (!QDir().mkpath(path))
        return Error{Error::Kind::Other,
                     QCoreApplication::translate("Control", "%1: the folder cannot be created").arg(path)};
    Platform::FileLock lock;
    const QString name = path + u'/' + QString::number(QRandomGenerator::system()->generate64(), 36) + ending;
    if (const auto taken = lock.take(name); !taken)
        return taken.error();
    return NoteFile(std::move(lock));
}

QStringList NoteFile::pathsOf(const QString& folder, const QString& ending) {
    QStringList paths;
    const QDir all(folderPath(folder));
    // No name filter for QDir: it would compile a regular expression, which takes longer than reading the folder.
    for (const QString& name : all.entryList(QDir::Files))
        if (name.endsWith(ending))
            paths << all.filePath(name);
    return paths;
}

std::vector<NoteFile> NoteFile::ofEndedProcesses(const QString& folder, const QString& ending) {
    std::vector<NoteFile> notes;
    for (const QString& path : pathsOf(folder, ending)) {
        Platform::FileLock lock;
        if (lock.take(path))
            notes.push_back(NoteFile(std::move(lock)));
    }
    return notes;
}

Result<> NoteFile::append(const QJsonObject& values) {
    QFile file(path());
    // A line that a full disk cut off must not be continued.
    const QByteArray line = '\n' + QJsonDocument(values).toJson(QJsonDocument::Compact) + '\n';
    const bool written = file.open(QIODevice::Append | QIODevice::ExistingOnly) && file.write(line) == line.size() &&
                         file.flush() && Platform::FileManager::sync(path());
    if (!written)
        return Error{Error::Kind::Other, u"%1: %2"_s.arg(path(), file.errorString())};
    return {};
}

Result<QJsonObject> NoteFile::values() const {
    const auto content = Platform::FileManager::read(path(), LongestNote);
    if (!content)
        return content.error();
    QJsonObject values;
    for (const QByteArray& line : content->split('\n')) {
        const QJsonObject added = QJsonDocument::fromJson(line).object();
        for (auto value = added.begin(); value != added.end(); ++value)
            values.insert(value.key(), value.value());
    }
    return values;
}

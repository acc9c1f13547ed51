// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Control/EditNote.h"

#include "Platform/Foundation/Bundle.h"
#include "Platform/Foundation/FileManager.h"
#include "Platform/Foundation/Folders.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/UserDefaults.h"
#include "Platform/Media/BasicID3Change.h"
#include "Platform/Media/ExtAudioFile.h"
#include "Source/Model/AudioRecordEntry.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>
#include <QRandomGenerator>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(editLog, "sonaphex.control")

constexpr qint64 kLongestNote = 1 << 16;
const QString kEnding = u".edit"_s;

QString notesFolder() {
    const Platform::Bundle* const bundle = Platform::services().bundle;
    return Platform::Folders::data() + u'/' + (bundle ? bundle->bundleIdentifier() : u"com.korvane.Sonaphex"_s) +
           u"/Edits"_s;
}

/// The entry's keys with the values of the file at @p path.
Dictionary factsOf(const QString& path) {
    Dictionary facts{{AudioRecordEntry::SavePath, path}};
    if (const auto tags = Platform::BasicID3Change::read(path)) {
        facts.insert(AudioRecordEntry::Title, tags->title);
        facts.insert(AudioRecordEntry::Artist, tags->artist);
        facts.insert(AudioRecordEntry::Album, tags->album);
        facts.insert(AudioRecordEntry::Year, tags->year);
        facts.insert(AudioRecordEntry::Genre, tags->genre);
    }
    if (auto* const files = Platform::services().mediaFiles)
        if (const auto info = files->info(path))
            facts.insert(AudioRecordEntry::Length, float(info->seconds));
    return facts;
}

/// @return whether the note can be removed
bool settle(const QByteArray& content, const EditNote::Retag& retag) {
    const QJsonDocument note = QJsonDocument::fromJson(content);
    const QString path = note[u"path"_s].toString();
    if (path.isEmpty())
        return true; // incomplete note: the change had not begun
    const QString newPath = note[u"newPath"_s].toString();
    const QString hidden = note[u"hidden"_s].toString();
    if (QFileInfo(hidden).fileName().startsWith(u".sonaphex-"_s))
        (void)Platform::FileManager::removeFile(hidden);
    // A rename never overwrites. While a file has the old name, the rename has not happened.
    const QString now = QFileInfo::exists(path) || QFileInfo(path).isSymLink() ? path : newPath;
    if (!QFileInfo::exists(now))
        return true;
    qCInfo(editLog, "an edit of %s was interrupted; its entry was updated", qUtf8Printable(now));
    return retag(path, factsOf(now));
}

} // namespace

Platform::Result<EditNote> EditNote::begin(const QString& path, const QString& newPath, const QString& hidden) {
    using Platform::Error;
    const QString folder = notesFolder();
    if (!QDir().mkpath(folder))
        return Error{Error::Kind::Other,
                     QCoreApplication::translate("Control", "%1: the folder cannot be created").arg(folder)};
    Platform::FileLock lock;
    const QString name = folder + u'/' + QString::number(QRandomGenerator::global()->generate64(), 36) + kEnding;
    if (const auto taken = lock.take(name); !taken)
        return taken.error();
    const QJsonObject note{{u"path"_s, path}, {u"newPath"_s, newPath}, {u"hidden"_s, hidden}};
    QFile file(name);
    const QByteArray content = QJsonDocument(note).toJson(QJsonDocument::Compact);
    const bool written = file.open(QIODevice::WriteOnly | QIODevice::ExistingOnly) &&
                         file.write(content) == content.size() && file.flush() && Platform::FileManager::sync(name);
    if (!written) {
        lock.removeAndRelease();
        return Error{Error::Kind::Other, u"%1: %2"_s.arg(name, file.errorString())};
    }
    return EditNote(std::move(lock));
}

void EditNote::end() {
    auto* const defaults = Platform::services().userDefaults;
    if (!defaults || defaults->flush())
        lock_.removeAndRelease();
}

void EditNote::recover(const Retag& retag) {
    const QDir folder(notesFolder());
    for (const QString& name : folder.entryList({u'*' + kEnding}, QDir::Files)) {
        Platform::FileLock lock;
        if (!lock.take(folder.filePath(name)))
            continue; // its process is still running
        QFile file(folder.filePath(name));
        if (file.open(QIODevice::ReadOnly) && settle(file.read(kLongestNote), retag))
            lock.removeAndRelease();
    }
}

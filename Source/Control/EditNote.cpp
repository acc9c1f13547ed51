// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Control/EditNote.h"

#include "Platform/Foundation/FileManager.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/UserDefaults.h"
#include "Platform/Media/BasicID3Change.h"
#include "Platform/Media/ExtAudioFile.h"
#include "Source/Model/AudioRecordEntry.h"

#include <QFileInfo>
#include <QJsonObject>
#include <QLoggingCategory>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(editLog, "sonaphex.control")

const QString kFolder = u"Edits"_s;
const QString kEnding = u".edit"_s;

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
    if (const auto info = Platform::services().mediaFiles->info(path))
        facts.insert(AudioRecordEntry::Length, float(info->seconds));
    return facts;
}

/// @return whether the note can be removed
bool settle(const QJsonObject& note, const EditNote::Retag& retag) {
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
    auto note = NoteFile::create(kFolder, kEnding);
    if (!note)
        return note.error();
    if (const auto written = note->append({{u"path"_s, path}, {u"newPath"_s, newPath}, {u"hidden"_s, hidden}});
        !written) {
        note->remove();
        return written.error();
    }
    return EditNote(*std::move(note));
}

void EditNote::end() {
    auto* const defaults = Platform::services().userDefaults;
    if (!defaults || defaults->flush())
        note_.remove();
}

bool EditNote::anyIsLeft() {
    return !NoteFile::pathsOf(kFolder, kEnding).isEmpty();
}

void EditNote::recover(const Retag& retag) {
    if (!Platform::services().mediaFiles)
        return;
    for (NoteFile& note : NoteFile::ofEndedProcesses(kFolder, kEnding))
        if (const auto values = note.values(); values && settle(*values, retag))
            note.remove();
}

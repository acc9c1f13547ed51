// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Control/ID3EditSave.h"

#include "Platform/Foundation/FileManager.h"
#include "Source/Control/FileTags.h"
#include "Source/Control/ID3ChangeControl.h"
#include "Source/Control/RecordingRename.h"
#include "Source/Model/AudioRecordEntry.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <mutex>

using namespace Qt::StringLiterals;
using namespace AudioRecordEntry;

namespace ID3EditSave {
namespace {

constexpr int kDefaultYear = 2012;

QString text(const Dictionary& entry, const QString& key) {
    return Platform::stringForm(entry.value(key));
}

QString sentence(const char* words, const QString& path) {
    return QCoreApplication::translate("ID3EditSave", words).replace(u"%1"_s, QFileInfo(path).fileName());
}

/// Whether the recording's cover equals an image file, byte for byte.
bool hasPicture(const QString& path, const QString& picture) {
    QFile file(picture);
    return file.open(QIODevice::ReadOnly) && FileTags::artwork(path) == file.readAll();
}

} // namespace

QString yearText(const QString& typed) {
    if (typed.size() < 4)
        return {};
    const int year = Platform::intValue(typed.left(4));
    return QString::number(year < 1000 || year > 9999 ? kDefaultYear : year);
}

Result save(const Dictionary& before, const Dictionary& edited, const Artwork& artwork) {
    static std::mutex oneAtATime;
    const std::lock_guard lock(oneAtATime);
    const QString path = text(before, SavePath);
    Result result{before, {}, {}};
    if (!QFileInfo(path).isFile()) {
        result.notice = sentence(QT_TRANSLATE_NOOP("ID3EditSave", "The file “%1” is no longer there."), path);
        return result;
    }
    const QString title = text(edited, Title);
    auto note = EditNote::begin(path, RecordingRename::pathForTitle(path, title), {});
    if (!note) {
        result.notice = note.error().text;
        return result;
    }

    QString picture = artwork.path;
    QString own;
    if (artwork.kind == Artwork::Kind::Keep)
        picture = own = FileTags::artworkFile(path);
    // Cover and texts are changed in place, and the rename comes last: the recording never leaves its folder.
    ID3ChangeControl::changeID3Artwork(path, path, artwork.kind == Artwork::Kind::Default ? QString() : picture);
    if (!own.isEmpty())
        (void)Platform::FileManager::removeFile(own);
    if (artwork.kind == Artwork::Kind::Set && !hasPicture(path, artwork.path)) {
        // For example a full disk. Nothing is changed yet, and the user can try again.
        result.notice = sentence(QT_TRANSLATE_NOOP("ID3EditSave", "The cover of “%1” could not be written."), path);
        note->end();
        return result;
    }

    (void)ID3ChangeControl::changeID3Info(path, edited);
    if (const auto agrees = FileTags::agree(path, edited); !agrees || !*agrees) {
        const QString why = agrees.error().text;
        result.notice = why.isEmpty()
                            ? sentence(QT_TRANSLATE_NOOP("ID3EditSave", "The tags of “%1” could not be written."), path)
                            : QCoreApplication::translate("ID3EditSave", "The tags of “%1” could not be written: %2")
                                  .arg(QFileInfo(path).fileName(), why);
        note->end();
        return result;
    }
    const auto renamed = RecordingRename::rename(path, title);
    result.entry = renamed.path == path ? edited : RecordingRename::renameTracks(edited, path, renamed.path);
    result.entry.insert(SavePath, renamed.path);
    result.notice = renamed.notice;
    result.note = *std::move(note);
    return result;
}

} // namespace ID3EditSave

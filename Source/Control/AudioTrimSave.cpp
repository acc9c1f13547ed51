// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Control/AudioTrimSave.h"

#include "Platform/Desktop/Workspace.h"
#include "Platform/Foundation/FileManager.h"
#include "Platform/Foundation/ReplacementFile.h"
#include "Source/Control/ConverterAudioControl.h"
#include "Source/Control/FileTags.h"
#include "Source/Control/ID3ChangeControl.h"
#include "Source/Preferences/PreferenceStore.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>

using namespace Qt::StringLiterals;
namespace FileManager = Platform::FileManager;

namespace AudioTrimSave {
namespace {

constexpr double kShareOfConversion = 0.97; ///< the rest is spent on tags and the disk

QString text(const char* sentence) {
    return QCoreApplication::translate("AudioTrimSave", sentence);
}

QString named(const char* sentence, const QString& path) {
    return text(sentence).replace(u"%1"_s, QFileInfo(path).fileName());
}

/// Replaces the temporary file's name in an error: the user knows the recording's name only.
QString withoutTemporaryName(QString why, const QString& temporary, const QString& shown) {
    return why.replace(temporary, shown);
}

/// Converts the range into @p temporary. @return the error; empty on success
QString convert(ConverterAudioControl& converter, const Task& task, const QString& temporary,
                const std::function<bool(double)>& progress) {
    bool stopped = false;
    converter.setProgress([&](double share) {
        stopped = progress && !progress(share * kShareOfConversion);
        return !stopped;
    });
    const auto forget = qScopeGuard([&] { converter.setProgress({}); });
    if (!converter.createOutPutFile(temporary, 1))
        return withoutTemporaryName(converter.exportError().text, temporary,
                                    text(QT_TRANSLATE_NOOP("AudioTrimSave", "the new file")));
    const bool copied = converter.startConverterSource(task.source, task.from, task.to);
    converter.closeExportFile();
    if (stopped)
        return text(QT_TRANSLATE_NOOP("AudioTrimSave", "It was stopped before the end."));
    if (!copied)
        return converter.sourceError().text;
    if (const auto error = converter.exportError())
        return withoutTemporaryName(error.text, temporary, text(QT_TRANSLATE_NOOP("AudioTrimSave", "the new file")));
    // A damaged part is silence in the copy. The recording is kept: other tools may recover more of it.
    if (const auto damage = converter.sourceError(); damage && task.replace)
        return damage.text;
    return {};
}

} // namespace

QString exportPath(const QString& path) {
    const QFileInfo info(path);
    const QString name = info.completeBaseName();
    return info.path() + u'/' + (name.isEmpty() ? info.fileName() : name) + u".m4a"_s;
}

QString refusal(const QString& source, double from, double to) {
    if (!QFileInfo(source).isFile())
        return named(QT_TRANSLATE_NOOP("AudioTrimSave", "The file “%1” is no longer there."), source);
    if (FileManager::isOpenForWriting(source))
        return named(QT_TRANSLATE_NOOP("AudioTrimSave", "The file “%1” is still being recorded to."), source);
    if (to - from < kShortestRange)
        return text(QT_TRANSLATE_NOOP("AudioTrimSave", "The range is shorter than a tenth of a second."));
    return {};
}

Result run(ConverterAudioControl& converter, const Task& task, const std::function<bool(double)>& progress) {
    Result result;
    result.problem = refusal(task.source, task.from, task.to);
    if (!result.problem.isEmpty())
        return result;
    const QString temporary = g_strTmpPath + u"/TempExportTrimAudio.m4a"_s;
    (void)FileManager::removeFile(temporary);
    const auto removeTemporary = qScopeGuard([&] { (void)FileManager::removeFile(temporary); });
    result.problem = convert(converter, task, temporary, progress);
    if (!result.problem.isEmpty())
        return result;
    result = deliver(task, temporary);
    if (result.done && progress)
        (void)progress(1);
    return result;
}

Result deliver(const Task& task, const QString& temporary) {
    Result result;
    using Platform::ReplacementFile;
    ReplacementFile file(task.exportPath,
                         task.replace ? ReplacementFile::Existing::Replaced : ReplacementFile::Existing::Kept);
    const QString& hidden = file.path();
    auto note = EditNote::begin(task.source, task.source, hidden);
    if (!note) {
        result.problem = note.error().text;
        return result;
    }
    const QString ownArtwork = task.artworkPath.isEmpty() ? FileTags::artworkFile(task.source) : QString();
    ID3ChangeControl::changeID3(temporary, hidden, task.entry,
                                task.artworkPath.isEmpty() ? ownArtwork : task.artworkPath);
    if (!ownArtwork.isEmpty())
        (void)FileManager::removeFile(ownArtwork);

    if (!FileTags::agree(hidden, task.entry).valueOr(false)) {
        const qint64 room = FileManager::availableBytes(file.target());
        result.problem = room >= 0 && room < QFileInfo(temporary).size()
                             ? text(QT_TRANSLATE_NOOP("AudioTrimSave", "There is no room left on the disk."))
                             : text(QT_TRANSLATE_NOOP("AudioTrimSave", "The tags could not be written."));
    } else {
        if (task.replace && QFileInfo::exists(file.target()))
            (void)QFile::setPermissions(hidden, QFile::permissions(file.target()));
        if (const int error = file.commit(); error != 0)
            result.problem = qt_error_string(error);
    }
    if (!result.problem.isEmpty()) {
        note->end();
        return result;
    }
    Platform::noteFileSystemChanged(file.target());
    result.note = *std::move(note);
    result.done = true;
    return result;
}

} // namespace AudioTrimSave

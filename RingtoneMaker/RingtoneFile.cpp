// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RingtoneMaker/RingtoneFile.h"

#include "Platform/Foundation/FileManager.h"
#include "RingtoneMaker/ValueTransformers.h"
#include "Source/Control/ConverterAudioControl.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/Record/RecordingNames.h"

#include <QCoreApplication>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace RingtoneFile {
namespace {

constexpr int kMpeg4 = 1;

bool exists(const QString& path) {
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

/// @return the error; empty on success
QString land(const QString& temporary, const Task& task, bool replace, QString& landed) {
    if (task.target.isEmpty())
        return QCoreApplication::translate("RingtoneMaker", "no folder for ringtones is known");
    if (replace) {
        // Renames over the old file, so that a file exists at every moment.
        if (const auto copied = Platform::FileManager::copy(temporary, task.target, true); !copied)
            return u"%1: %2"_s.arg(task.target, copied.error().text);
        (void)Platform::FileManager::removeFile(temporary);
        landed = task.target;
        return {};
    }
    const auto next = [](const QString& taken) {
        return RecordingNames::nextRingtoneMakerFilePath(QFileInfo(taken).path());
    };
    const auto moved = Platform::FileManager::moveToFreeName(temporary, task.target, next);
    if (!moved)
        return u"%1: %2"_s.arg(task.target, moved.error().text);
    landed = *moved;
    return {};
}

} // namespace

Result write(ConverterAudioControl& converter, const Task& task, const std::function<bool(double)>& progress) {
    const QString temporary = task.temporaryFolder + u"/TempRingtoneMakerAudio.m4r"_s;
    const bool replace = exists(task.target);
    (void)Platform::FileManager::removeFile(temporary);

    Result result;
    bool stopped = false;
    const bool created = converter.createOutPutFile(temporary, kMpeg4);
    bool copied = false;
    if (created) {
        converter.setProgress([&](double share) {
            stopped = !progress(share);
            return !stopped;
        });
        copied = converter.startFadeInFadeOutConverterSource(task.source, task.from, task.to, task.fadeIn, task.fadeOut,
                                                             task.to - task.from);
        converter.setProgress({});
    }
    const auto createError = converter.exportError();
    converter.closeExportFile(); // a failed copy leaves it open
    if (!stopped) {
        if (!created)
            result.problem = createError
                                 ? createError.text
                                 : QCoreApplication::translate("RingtoneMaker", "%1 cannot be written").arg(temporary);
        else if (const auto error = converter.exportError())
            result.problem = error.text;
        else if (!copied)
            result.problem = converter.sourceError().text;
        else
            result.problem = land(temporary, task, replace, result.path);
    }
    if (result.path.isEmpty())
        (void)Platform::FileManager::removeFile(temporary);
    else
        result.damage = converter.sourceError().text;
    return result;
}

Dictionary tags(const Dictionary& recording, const QString& path, float seconds) {
    using namespace AudioRecordEntry;
    Dictionary tags = recording;
    tags.remove(NodeDataKey);
    tags.insert(Length, seconds);
    if (Platform::stringForm(tags.value(Title)).startsWith(u"Track"_s))
        tags.insert(Title, FilePath2NameTransformer().transformedValue(path));
    tags.insert(IsNew, true);
    return tags;
}

} // namespace RingtoneFile

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Control/ID3ChangeControl.h"

#include "Platform/Foundation/Bundle.h"
#include "Platform/Foundation/FileManager.h"
#include "Platform/Foundation/MovedFiles.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Media/BasicID3Change.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/Preferences/PreferenceStore.h"

#include <QFileInfo>
#include <QLoggingCategory>
#include <QProcess>

using namespace Qt::StringLiterals;
namespace FileManager = Platform::FileManager;
namespace MovedFiles = Platform::MovedFiles;

namespace ID3ChangeControl {
namespace {

Q_LOGGING_CATEGORY(changeLog, "sonaphex.control")

unsigned audioCounter = 0;
unsigned artworkCounter = 0;

QString temporaryPath(QLatin1StringView prefix, unsigned& counter, QLatin1StringView ending) {
    for (;;) {
        // A crash may have left a file of this name: it must not be mistaken for the file being changed.
        const QString path = g_strTmpPath + u'/' + prefix + QString::number(counter++) + ending;
        if (!QFileInfo::exists(path) && !QFileInfo(path).isSymLink())
            return path;
    }
}

/// The target of a symbolic link in the library: the target is changed, and the link stays.
QString behindLink(const QString& path) {
    const QString real = QFileInfo(path).isSymLink() ? QFileInfo(path).canonicalFilePath() : QString();
    return real.isEmpty() ? path : real;
}

/// Moves a file into the temporary folder. @return whether it is there now and nowhere else
bool moveAway(const QString& path, const QString& working) {
    const auto moved = MovedFiles::moveAway(path, working);
    if (moved)
        return true;
    qCWarning(changeLog, "cannot move %s away: %s", qUtf8Printable(path), qUtf8Printable(moved.error().forLog()));
    if (!QFileInfo::exists(path))
        return QFileInfo::exists(working);
    (void)FileManager::removeFile(working); // a copy whose original could not be removed
    MovedFiles::forget(working);
    return false;
}

/// Moves a file back from the temporary folder; when another file has its place by now, both are kept.
void moveBack(const QString& from, const QString& to) {
    if (!FileManager::move(from, to) && QFileInfo::exists(from)) {
        const QString kept = FileManager::setAside(from, QFileInfo(to).fileName());
        qCWarning(changeLog, "%s could not be put back; it is at %s", qUtf8Printable(to), qUtf8Printable(kept));
    }
    if (!QFileInfo::exists(from)) // a file that stays keeps its note: the next launch tries again
        MovedFiles::forget(from);
}

} // namespace

QString artworkCommandLine(const QString& tool, const QString& source, const QString& artwork,
                           const QString& destination) {
    const auto quoted = [](const QString& path) {
        QString text(u'"');
        for (const QChar character : path) {
            if (character == u'\\' || character == u'"' || character == u'$' || character == u'`')
                text += u'\\';
            text += character;
        }
        return text + u'"';
    };
    return quoted(tool) + u"   "_s + quoted(source) + u"   "_s + quoted(artwork) + u"  "_s + quoted(destination);
}

void changeID3Artwork(const QString& source, const QString& destPath, const QString& artworkPath) {
    const Platform::Bundle* const bundle = Platform::services().bundle;
    const QString tool = bundle->pathForTool(u"SetArtWork"_s);
    QString artwork = artworkPath;
    if (artwork.isEmpty()) {
        artwork = g_strTmpPath + u"/AudioImageSource.png"_s;
        (void)FileManager::removeFile(artwork);
        (void)FileManager::copy(bundle->pathForResource(u"AudioArtwork.png"_s), artwork);
    }
    if (!QFileInfo::exists(tool))
        return;
    (void)QProcess::execute(u"/bin/sh"_s, {u"-c"_s, artworkCommandLine(tool, source, artwork, destPath)});
}

void changeID3(const QString& source, const QString& destAudioPath, const Dictionary& ID3Info,
               const QString& artworkPath) {
    const bool samePath = source == destAudioPath;
    if (const QString real = behindLink(source); samePath && real != source)
        return changeID3(real, real, ID3Info, artworkPath);
    QString working = source;
    QString inTheWay;
    if (samePath) {
        working = temporaryPath("tempID3Audio"_L1, audioCounter, ".m4a"_L1);
        if (!moveAway(source, working))
            return;
        (void)FileManager::removeFile(destAudioPath);
    } else if (QFileInfo::exists(destAudioPath)) {
        inTheWay = FileManager::setAside(destAudioPath, QFileInfo(destAudioPath).fileName());
        if (inTheWay == destAudioPath)
            return; // it would be overwritten
    }

    changeID3Artwork(working, destAudioPath, artworkPath);
    (void)changeID3Info(destAudioPath, ID3Info);

    if (QFileInfo::exists(destAudioPath)) {
        (void)FileManager::removeFile(working);
        MovedFiles::forget(working);
        if (!inTheWay.isEmpty())
            qCWarning(changeLog, "another file was at %s; it is now at %s", qUtf8Printable(destAudioPath),
                      qUtf8Printable(inTheWay));
        return;
    }
    if (working != source)
        moveBack(working, source);
    if (!inTheWay.isEmpty())
        (void)FileManager::move(inTheWay, destAudioPath);
}

void changeID3ArtworkInfo(const QString& path, const QString& artworkPath) {
    if (const QString real = behindLink(path); real != path)
        return changeID3ArtworkInfo(real, artworkPath);
    const QString working = temporaryPath("tempID3AudioTT"_L1, artworkCounter, ".m4a"_L1);
    if (!moveAway(path, working))
        return;
    changeID3Artwork(working, path, artworkPath);
    if (QFileInfo::exists(path)) {
        (void)FileManager::removeFile(working);
        MovedFiles::forget(working);
    } else {
        moveBack(working, path);
    }
}

bool changeID3Info(const QString& path, const Dictionary& ID3Info) {
    using namespace AudioRecordEntry;
    const auto text = [&](const QString& key) {
        const QVariant value = ID3Info.value(key);
        return value.isValid() ? Platform::stringForm(value) : QString();
    };
    return Platform::BasicID3Change::setMpeg4ID3Information(path, text(Title), text(Artist), text(Album),
                                                            Platform::intValue(ID3Info.value(Year)), text(Genre));
}

bool changeID3BasicInfo(const QString& path, const Dictionary& ID3Info) {
    return changeID3Info(path, ID3Info);
}

} // namespace ID3ChangeControl

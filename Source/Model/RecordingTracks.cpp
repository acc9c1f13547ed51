// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Model/RecordingTracks.h"

#include "Source/Model/AudioRecordEntry.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace RecordingTracks {
namespace {

QString pathIn(const Dictionary& entry, const QString& key) {
    const QString path = Platform::stringForm(entry.value(key));
    return path.startsWith(u'/') ? path : QString();
}

/// The stored path, or the one beside the mix when only that has a file.
QString foundPath(const QString& stored, const QString& mix, Source source) {
    if (stored.isEmpty() || QFileInfo(stored).isFile())
        return stored;
    const QString beside = pathBeside(mix, source);
    return QFileInfo(beside).isFile() ? beside : stored;
}

} // namespace

QString pathBeside(const QString& mix, Source source, int number) {
    const QFileInfo info(mix);
    // Concatenated, not arg(): the name of the mix may contain "%1".
    QString name = info.completeBaseName() + (source == Source::Input ? u" (input"_s : u" (computer"_s);
    if (number > 1)
        name += u' ' + QString::number(number);
    return info.path() + u'/' + name + u").m4a"_s;
}

bool isKeptFor(const Dictionary& entry) {
    return stored(entry).isWhole();
}

Tracks stored(const Dictionary& entry) {
    return {pathIn(entry, AudioRecordEntry::InputTrack), pathIn(entry, AudioRecordEntry::ComputerTrack)};
}

Tracks found(const Dictionary& entry) {
    const Tracks paths = stored(entry);
    const QString mix = Platform::stringForm(entry.value(AudioRecordEntry::SavePath));
    return {foundPath(paths.input, mix, Source::Input), foundPath(paths.computer, mix, Source::Computer)};
}

Tracks besideFile(const QString& mix) {
    const Tracks tracks{pathBeside(mix, Source::Input), pathBeside(mix, Source::Computer)};
    const bool areThere = QFileInfo(tracks.input).isFile() && QFileInfo(tracks.computer).isFile();
    return areThere ? tracks : Tracks();
}

void insertInto(Dictionary& entry, const Tracks& tracks) {
    if (!tracks.input.isEmpty())
        entry.insert(AudioRecordEntry::InputTrack, tracks.input);
    if (!tracks.computer.isEmpty())
        entry.insert(AudioRecordEntry::ComputerTrack, tracks.computer);
}

QStringList pathsOf(const Dictionary& entry) {
    QStringList paths;
    for (const QString& key :
         {AudioRecordEntry::SavePath, AudioRecordEntry::InputTrack, AudioRecordEntry::ComputerTrack})
        if (const QString path = pathIn(entry, key); !path.isEmpty())
            paths.append(path);
    return paths;
}

} // namespace RecordingTracks

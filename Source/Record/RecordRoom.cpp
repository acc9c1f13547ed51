// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Record/RecordRoom.h"

#include "Platform/Foundation/FileManager.h"
#include "Platform/Foundation/MainQueue.h"

#include <QCoreApplication>
#include <QStorageInfo>

#include <algorithm>

using namespace Qt::StringLiterals;
using Platform::FileManager::availableBytes;

namespace {

/// Bytes per recorded second of one source: AAC at 128 kb/s, in practice up to 140 kb/s, and the boxes around it.
constexpr double EncodedBytes = 18000;
/// Bytes per mixed second: 44100 frames of two 32-bit samples.
constexpr double MixedBytes = 353000;
/// Seconds that are assumed when the free space of a disk is unknown.
constexpr double Unknown = 1e9;

/// Above ten minutes in steps of five: the estimate is not more exact, and the text changes less often.
int roundedMinutes(double seconds) {
    const int minutes = int(std::min(seconds / 60, 1e6));
    return minutes > 10 ? minutes - minutes % 5 : minutes;
}

} // namespace

RecordRoom::RecordRoom(QObject* parent) : QObject(parent) {
    worker_.setMaxThreadCount(1);
}

RecordRoom::~RecordRoom() {
    worker_.waitForDone();
}

void RecordRoom::look(const Recording& recording) {
    if (asking_.exchange(true))
        return;
    worker_.start([this, recording] {
        const Room room = measure(recording);
        asking_ = false;
        Platform::MainQueue::post(this, [this, room] { Q_EMIT measured(room); });
    });
}

RecordRoom::Room RecordRoom::measure(const Recording& recording) {
    const bool mixes = recording.sources > 1;
    const auto temporary = availableBytes(recording.temporaryFolder);
    Room room{0, recording.temporaryFolder, temporary};
    // Space is also reserved for the mix of the recording so far; it grows with each further second.
    const double mixed = mixes ? MixedBytes : 0;
    // Kept tracks are written while the raw files are still there.
    const double tracks = mixes && recording.keepsTracks ? 2 * EncodedBytes : 0;
    room.seconds = temporary < 0 ? Unknown
                                 : (double(temporary) - recording.seconds * (mixed + tracks)) /
                                       (EncodedBytes * recording.sources + mixed + tracks);
    // Within one file system the finished recording is only renamed and needs no more space.
    if (QStorageInfo(recording.temporaryFolder).device() != QStorageInfo(recording.recordFolder).device()) {
        const auto target = availableBytes(recording.recordFolder);
        const double seconds = double(target) / (EncodedBytes + tracks) - recording.seconds;
        if (target >= 0 && seconds < room.seconds) {
            room.seconds = seconds;
            room.folder = recording.recordFolder;
        }
    }
    room.seconds = std::max(0.0, room.seconds);
    return room;
}

QString RecordRoom::words(double seconds) {
    const int minutes = roundedMinutes(seconds);
    if (minutes < 1)
        return QCoreApplication::translate("Record", "less than a minute");
    if (minutes == 1)
        return QCoreApplication::translate("Record", "about 1 minute");
    return QCoreApplication::translate("Record", "about %n minutes", nullptr, minutes);
}

QString RecordRoom::sentence(double seconds) {
    const int minutes = roundedMinutes(seconds);
    if (minutes < 1)
        return QCoreApplication::translate("Record", "Less than a minute left on this disk");
    if (minutes < 60)
        return QCoreApplication::translate("Record", "About %1 min left on this disk").arg(minutes);
    return QCoreApplication::translate("Record", "About %1 h %2 min left on this disk")
        .arg(minutes / 60)
        .arg(minutes % 60);
}

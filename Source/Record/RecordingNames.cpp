// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Record/RecordingNames.h"

#include "Platform/Foundation/Bundle.h"
#include "Platform/Foundation/Folders.h"
#include "Platform/Foundation/Services.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

/// A link that leads nowhere takes its name as well.
bool isTaken(const QString& path) {
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

QString inFolder(const QString& folder, const QString& name) {
    return folder.endsWith(u'/') ? folder + name : folder + u'/' + name;
}

/// Where the markers of a user's processes lie. Not beside the recordings: a crash would leave litter there.
QString markerFor(const QString& path) {
    const auto* bundle = Platform::services().bundle;
    const QString folder = Platform::Folders::runtime() + u'/' +
                           (bundle ? bundle->bundleIdentifier() : u"com.korvane.Sonaphex"_s) + u".names"_s;
    QDir().mkpath(folder);
    const QByteArray whole = QFileInfo(path).absoluteFilePath().toUtf8();
    return folder + u'/' + QString::fromLatin1(QCryptographicHash::hash(whole, QCryptographicHash::Sha1).toHex());
}

} // namespace

RecordingNames::RecordingNames() = default;
RecordingNames::~RecordingNames() {
    for (auto& [path, marker] : reserved_)
        marker.removeAndRelease();
}

QString RecordingNames::getAudioRecordPath(const QString& folder) {
    QDir().mkpath(folder);
    const QString base = inFolder(folder, u"Track"_s);
    for (int n = 0;; ++n) {
        const QString candidate = base + QString::number(n) + u".m4a"_s;
        if (!isTaken(candidate) && reserve(candidate))
            return candidate;
    }
}

bool RecordingNames::reserve(const QString& path) {
    if (reserved_.contains(path))
        return false;
    Platform::FileLock marker;
    // When no marker can be made, the list of this process has to do.
    if (marker.take(markerFor(path)) == Platform::FileLock::Result::Elsewhere)
        return false;
    // Another process may have finished its recording of this name before the marker was ours.
    if (isTaken(path)) {
        marker.removeAndRelease();
        return false;
    }
    reserved_.emplace(path, std::move(marker));
    return true;
}

void RecordingNames::release(const QString& path) {
    if (const auto found = reserved_.find(path); found != reserved_.end()) {
        found->second.removeAndRelease();
        reserved_.erase(found);
    }
}

QStringList RecordingNames::aryForRecordedAudioPath() const {
    QStringList paths;
    for (const auto& [path, marker] : reserved_)
        paths.append(path);
    return paths;
}

QString RecordingNames::nextRingtoneMakerFilePath(const QString& folder) {
    QDir().mkpath(folder);
    const QString base = inFolder(folder, u"Ringtone"_s);
    QString candidate = base + u".m4r"_s;
    for (int n = 1; isTaken(candidate); ++n)
        candidate = base + QString::number(n) + u".m4r"_s;
    return candidate;
}

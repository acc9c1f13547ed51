// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Record/RecordingNames.h"

#include "Platform/Foundation/Bundle.h"
#include "Platform/Foundation/Folders.h"
#include "Platform/Foundation/Services.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>

#include <charconv>
#include <filesystem>
#include <set>

using namespace Qt::StringLiterals;

namespace {

/// A broken symbolic link also takes its name.
bool isTaken(const QString& path) {
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

QString inFolder(const QString& folder, const QString& name) {
    return folder.endsWith(u'/') ? folder + name : folder + u'/' + name;
}

QString trackPath(const QString& folder, int number) {
    return inFolder(folder, u"Track%1.m4a"_s.arg(number));
}

/// The numbers of all tracks in a folder, from one directory listing: checking each name takes seconds for thousands of
/// tracks on a share.
std::set<int> numbersTaken(const QString& folder) {
    std::set<int> numbers;
    std::error_code error;
    std::filesystem::directory_iterator entry(QFile::encodeName(folder).toStdString(), error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        if (!name.starts_with("Track") || !name.ends_with(".m4a"))
            continue;
        int number = 0;
        const char* const end = name.data() + name.size() - 4;
        const auto parsed = std::from_chars(name.data() + 5, end, number);
        if (parsed.ec == std::errc() && parsed.ptr == end)
            numbers.insert(number);
    }
    return numbers;
}

/// The path of a marker. Markers of a user's processes are not beside the recordings: a crash would leave them there.
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

QString RecordingNames::getAudioRecordPath(const QString& folder, const QString& own) {
    QDir().mkpath(folder);
    const std::set<int> taken = numbersTaken(folder);
    for (int number = 0;; ++number) {
        const QString candidate = trackPath(folder, number);
        const bool isOwn = candidate == own;
        if (taken.contains(number) || (!isOwn && !reserve(candidate)))
            continue;
        // The listing may be outdated, and names that differ only in case may be one file.
        if (isTaken(candidate)) {
            if (!isOwn)
                release(candidate);
            continue;
        }
        const std::scoped_lock lock(mutex_);
        nextFolder_ = folder;
        nextNumber_ = number + 1;
        return candidate;
    }
}

QString RecordingNames::nextAudioRecordPath(const QString& folder) {
    int number = 0;
    {
        const std::scoped_lock lock(mutex_);
        if (nextFolder_ == folder)
            number = nextNumber_;
    }
    QString path = trackPath(folder, number);
    while (!reserve(path))
        path = trackPath(folder, ++number);
    const std::scoped_lock lock(mutex_);
    nextFolder_ = folder;
    nextNumber_ = number + 1;
    return path;
}

bool RecordingNames::reserve(const QString& path) {
    const std::scoped_lock lock(mutex_);
    if (reserved_.contains(path))
        return false;
    Platform::FileLock marker;
    // When no marker can be created, the list of this process must do.
    if (marker.take(markerFor(path)).error().kind == Platform::Error::Kind::Busy)
        return false;
    reserved_.emplace(path, std::move(marker));
    return true;
}

void RecordingNames::release(const QString& path) {
    const std::scoped_lock lock(mutex_);
    (void)end(path);
}

bool RecordingNames::end(const QString& path) {
    const auto found = reserved_.find(path);
    if (found == reserved_.end())
        return false;
    found->second.removeAndRelease();
    reserved_.erase(found);
    return true;
}

void RecordingNames::giveBack(const QString& path) {
    const std::scoped_lock lock(mutex_);
    if (!end(path))
        return;
    for (int number = 0; number < nextNumber_; ++number)
        if (trackPath(nextFolder_, number) == path)
            nextNumber_ = number;
}

QStringList RecordingNames::aryForRecordedAudioPath() const {
    const std::scoped_lock lock(mutex_);
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

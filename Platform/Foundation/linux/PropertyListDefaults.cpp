// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/linux/PropertyListDefaults.h"

#include "Platform/Foundation/FileLock.h"
#include "Platform/Foundation/Folders.h"
#include "Platform/Foundation/ReplacementFile.h"
#include "Platform/Foundation/linux/OpenFile.h"
#include "Platform/Foundation/linux/PropertyList.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace Platform {
namespace {

Q_LOGGING_CATEGORY(defaultsLog, "sonaphex.foundation")

constexpr auto retryAfter = std::chrono::seconds(5);
// Changes within this time are saved together. A longer burst is saved in between.
constexpr auto quietTime = std::chrono::milliseconds(50);
constexpr auto longestBurst = std::chrono::milliseconds(500);
constexpr auto lockPatience = std::chrono::seconds(10);     // a stopped process may hold the lock forever
constexpr std::int64_t largestFile = std::int64_t(1) << 30; // enough for a library of two million recordings

/// The hidden lock file of the settings; a process that writes holds it.
QString lockPath(const QString& path) {
    const QFileInfo info(path);
    return info.path() + "/."_L1 + info.fileName() + ".lock"_L1;
}

/// The target of a symbolic link: replacing the link itself would move the settings away from where the user keeps
/// them.
QString behindLinks(const QString& path) {
    const QString real = QFileInfo(path).canonicalFilePath();
    return real.isEmpty() ? path : real;
}

} // namespace

std::unique_ptr<UserDefaults> createUserDefaults(const QString& bundleIdentifier) {
    return std::make_unique<PropertyListDefaults>(Folders::config() + u'/' + bundleIdentifier + ".plist"_L1);
}

PropertyListDefaults::PropertyListDefaults(const QString& path) : path_(behindLinks(path)), worker_([this] { run(); }) {
}

PropertyListDefaults::~PropertyListDefaults() {
    {
        const std::lock_guard guard(mutex_);
        stopping_ = true;
    }
    work_.notify_one();
    worker_.join();
}

QVariant PropertyListDefaults::objectForKey(const QString& key) const {
    std::unique_lock lock(mutex_);
    done_.wait(lock, [this] { return loaded_; });
    return values_.value(key);
}

void PropertyListDefaults::setObject(const QString& key, const QVariant& object) {
    change(key, object);
}

void PropertyListDefaults::removeObject(const QString& key) {
    change(key, {});
}

void PropertyListDefaults::setMergeForKey(const QString& key, Merge merge) {
    const std::lock_guard guard(mutex_);
    merges_.insert(key, merge);
}

void PropertyListDefaults::change(const QString& key, const QVariant& object) {
    {
        const std::lock_guard guard(mutex_);
        // The worker frees the old value: freeing a library of many entries would block the caller for longer than the
        // change.
        replaced_.push_back(values_.take(key));
        if (object.isValid())
            values_.insert(key, object);
        pending_.insert(key, object);
        ++lastChange_;
    }
    work_.notify_one();
}

bool PropertyListDefaults::flush() {
    std::unique_lock lock(mutex_);
    const quint64 wanted = lastChange_;
    failedChange_ = 0; // changes that failed before are tried again
    ++flushes_;
    work_.notify_one();
    done_.wait(lock, [&] { return savedChange_ >= wanted || failedChange_ >= wanted; });
    --flushes_;
    return savedChange_ >= wanted;
}

bool PropertyListDefaults::takeUp(const QString& key) {
    TakeUp mine{key};
    std::unique_lock lock(mutex_);
    takeUps_.push_back(&mine);
    work_.notify_one();
    done_.wait(lock, [&] { return mine.isDone; });
    return mine.isRead;
}

void PropertyListDefaults::answerTakeUps(std::unique_lock<std::mutex>& lock) {
    const auto asked = std::exchange(takeUps_, {});
    lock.unlock();
    const bool isRead = readAgain(Damage::Leave);
    lock.lock();
    for (TakeUp* each : asked) {
        if (isRead)
            takeUpFromDisk(each->key);
        each->isRead = isRead;
        each->isDone = true;
    }
    lock.unlock();
    done_.notify_all();
    spent_.reset();
    lock.lock();
}

void PropertyListDefaults::takeUpFromDisk(const QString& key) {
    const QVariant theirs = onDisk_.value(key);
    const Merge merge = merges_.value(key);
    const auto set = pending_.find(key);
    if (theirs == ours_.value(key) || (set != pending_.end() && !merge))
        return;
    const bool isHere = values_.contains(key) || set != pending_.end();
    const QVariant joined = merge && isHere ? merge(ours_.value(key), theirs, values_.value(key)) : theirs;
    overlay({{key, joined}}, values_);
    if (set != pending_.end())
        *set = joined;
    ours_.insert(key, theirs); // the value here is now a change relative to theirs
}

void PropertyListDefaults::load() {
    if (!readAgain(Damage::Leave)) {
        // Moving a damaged file away needs the lock: another process may just have written a good one in its place.
        FileLock lock;
        if (lock.take(lockPath(path_), lockPatience))
            readAgain(Damage::SetAside);
    }
    ours_ = onDisk_;
    {
        const std::lock_guard guard(mutex_);
        values_ = onDisk_;
        overlay(pending_, values_); // values set while the file was read
        loaded_ = true;
    }
    done_.notify_all();
    spent_.reset();
}

void PropertyListDefaults::overlay(const Changes& changes, Dictionary& values) {
    for (auto it = changes.cbegin(); it != changes.cend(); ++it) {
        if (it->isValid())
            values.insert(it.key(), *it);
        else
            values.remove(it.key());
    }
}

void PropertyListDefaults::run() {
    load();
    std::unique_lock lock(mutex_);
    for (;;) {
        const auto hasWork = [this] {
            return stopping_ || !takeUps_.empty() || (!pending_.isEmpty() && failedChange_ < lastChange_);
        };
        if (pending_.isEmpty() || failedChange_ < lastChange_)
            work_.wait(lock, hasWork);
        else
            work_.wait_for(lock, retryAfter, hasWork);
        if (!takeUps_.empty()) {
            answerTakeUps(lock);
            continue;
        }
        if (pending_.isEmpty()) {
            if (stopping_)
                return;
            continue;
        }

        waitForQuiet(lock);
        if (!takeUps_.empty())
            continue;

        const Changes changes = std::exchange(pending_, {});
        const auto merges = merges_;
        const quint64 newest = lastChange_;
        auto replaced = std::exchange(replaced_, {});
        lock.unlock();
        replaced.clear();
        const bool saved = save(changes, merges);
        lock.lock();

        if (saved) {
            savedChange_ = newest;
            // Adopt the values that other processes stored, except for keys that were changed here since, and except
            // for merged values: their owner keeps its own view, or it could not remove an entry that it sees as new.
            Dictionary seen = onDisk_;
            Changes joined;
            for (auto it = merges.cbegin(); it != merges.cend(); ++it)
                joined.insert(it.key(), values_.value(it.key()));
            overlay(joined, seen);
            overlay(pending_, seen);
            values_ = seen;
        } else {
            failedChange_ = newest;
            for (auto it = changes.cbegin(); it != changes.cend(); ++it)
                if (!pending_.contains(it.key()))
                    pending_.insert(it.key(), *it);
        }
        done_.notify_all();
        if (stopping_ && !saved)
            return;
    }
}

/// Returns when a burst of changes is over, or at once when a caller waits for the save.
void PropertyListDefaults::waitForQuiet(std::unique_lock<std::mutex>& lock) {
    const auto isUrgent = [this] { return stopping_ || flushes_ > 0 || !takeUps_.empty(); };
    const auto latest = std::chrono::steady_clock::now() + longestBurst;
    quint64 seen = 0;
    while (seen != lastChange_ && !isUrgent() && std::chrono::steady_clock::now() < latest) {
        seen = lastChange_;
        work_.wait_for(lock, quietTime, isUrgent);
    }
}

PropertyListDefaults::Version PropertyListDefaults::versionOf(const struct stat& status) {
    const auto nanoseconds = [](const timespec& time) { return qint64(time.tv_sec) * 1'000'000'000 + time.tv_nsec; };
    return {status.st_dev, status.st_ino, status.st_size, nanoseconds(status.st_mtim), nanoseconds(status.st_ctim)};
}

bool PropertyListDefaults::readAgain(Damage damage) {
    const OpenedFile opened = openFile(path_, {.largest = largestFile});
    if (!opened.file) {
        if (opened.error.kind == Error::Kind::NotFound)
            return true; // a file that was removed is written again completely by the next save
        qCWarning(defaultsLog, "cannot read %s: %s", qUtf8Printable(path_), qUtf8Printable(opened.error.text));
        errno = opened.code != 0 ? opened.code : EINVAL;
        return false;
    }
    const Version version = versionOf(opened.status);
    if (version == version_)
        return true;

    QByteArray content(qsizetype(opened.status.st_size), Qt::Uninitialized);
    if (readAllAt(opened.file.get(), content.data(), std::size_t(content.size()), 0) != content.size()) {
        qCWarning(defaultsLog, "cannot read %s: %s", qUtf8Printable(path_), qUtf8Printable(qt_error_string(errno)));
        return false;
    }
    if (auto dictionary = PropertyList::fromXml(content, &spent_)) {
        onDisk_ = std::move(*dictionary);
        version_ = version;
        return true;
    }
    if (damage == Damage::Leave)
        return false;
    setAsideDamaged();
    return true;
}

void PropertyListDefaults::setAsideDamaged() {
    const QString name = path_ + ".damaged-"_L1 + QDateTime::currentDateTime().toString(u"yyyyMMdd-HHmmss"_s);
    QString target = name;
    for (int number = 2;; ++number) {
        const int error = renameWithoutOverwriting(QFile::encodeName(path_), QFile::encodeName(target));
        if (error == 0)
            break;
        if (error != EEXIST || number > 1000)
            return; // already gone (another process moved it), or the folder is not writable
        target = name + u'-' + QString::number(number);
    }
    qCWarning(defaultsLog, "%s is damaged; it was kept as %s", qUtf8Printable(path_), qUtf8Printable(target));
}

bool PropertyListDefaults::save(const Changes& changes, const QHash<QString, Merge>& merges) {
    const auto tell = [this](const char* what, const QString& why) {
        if (!std::exchange(problemTold_, true))
            qCWarning(defaultsLog, "cannot save %s: %s: %s", qUtf8Printable(path_), what, qUtf8Printable(why));
        return false;
    };
    const auto problem = [&tell](const char* what) { return tell(what, qt_error_string(errno)); };
    if (!QDir().mkpath(QFileInfo(path_).path()))
        return problem("its folder");
    FileLock lock;
    if (const auto taken = lock.take(lockPath(path_), lockPatience); !taken)
        return tell("its lock", taken.error().forLog());
    if (!readAgain(Damage::SetAside))
        return problem("what it holds now");
    spent_.reset();

    Dictionary merged = onDisk_;
    for (auto it = changes.cbegin(); it != changes.cend(); ++it) {
        QVariant value = *it;
        if (const Merge merge = merges.value(it.key()))
            value = merge(ours_.value(it.key()), onDisk_.value(it.key()), value);
        if (value.isValid())
            merged.insert(it.key(), value);
        else
            merged.remove(it.key());
    }
    if (!replaceFile(PropertyList::toXml(merged)))
        return problem("writing");

    onDisk_ = merged;
    for (auto it = changes.cbegin(); it != changes.cend(); ++it)
        ours_.insert(it.key(), *it);
    problemTold_ = false;
    return true;
}

bool PropertyListDefaults::replaceFile(const QByteArray& content) {
    const QByteArray path = QFile::encodeName(path_);
    struct stat status {};
    // A damaged file that could not be moved away must not be overwritten either.
    const bool exists = ::stat(path.constData(), &status) == 0;
    if (exists && static_cast<quint64>(status.st_ino) != version_.inode) {
        errno = EEXIST;
        return false;
    }
    ReplacementFile file(path_);
    int error = file.open(0600);
    if (error == 0 &&
        ((exists && ::fchmod(file.descriptor(), status.st_mode & 0777) != 0) || !writeAll(file.descriptor(), content)))
        error = errno;
    if (error == 0)
        error = file.commit();
    if (error != 0) {
        errno = error;
        return false;
    }
    if (::stat(path.constData(), &status) == 0)
        version_ = versionOf(status);
    return true;
}

} // namespace Platform

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/UserDefaults.h"

#include <QHash>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

struct stat;

namespace Platform {

/// The defaults in $XDG_CONFIG_HOME/<bundle identifier>.plist (below ~/.config when the variable is unset).
[[nodiscard]] std::unique_ptr<UserDefaults> createUserDefaults(const QString& bundleIdentifier);

/// User defaults in one XML property list. A burst of changes is written once: at most half a second after its first
/// change, and at once when flush() or the destructor waits for it.
///
/// The file is replaced as a whole (new file, sync, rename), so it is complete at every moment. A lock file beside it
/// keeps other processes out from reading it until replacing it; it is only held during a save. A damaged file is moved
/// to "<file>.damaged-<date>"; one that cannot be read (permissions, a bad disk) is never replaced.
class PropertyListDefaults final : public UserDefaults {
public:
    /// Starts the worker, which reads the file; the first objectForKey() waits for it.
    explicit PropertyListDefaults(const QString& path);
    /// Writes pending changes. When the file cannot be written, it tries once more and then logs that the changes were
    /// given up.
    ~PropertyListDefaults() override;
    PropertyListDefaults(const PropertyListDefaults&) = delete;
    PropertyListDefaults& operator=(const PropertyListDefaults&) = delete;

    [[nodiscard]] QVariant objectForKey(const QString& key) const override;
    void setObject(const QString& key, const QVariant& object) override;
    void removeObject(const QString& key) override;
    bool flush() override;
    void setMergeForKey(const QString& key, Merge merge) override;
    bool takeUp(const QString& key) override;

private:
    using Changes = QHash<QString, QVariant>; // an invalid value removes the key

    /// Identifies one version of the file.
    struct Version {
        quint64 device = 0, inode = 0;
        qint64 size = -1, modified = 0, changed = 0;
        friend bool operator==(const Version&, const Version&) = default;
    };

    void change(const QString& key, const QVariant& object);
    void run();
    void load();
    void waitForQuiet(std::unique_lock<std::mutex>& lock);
    void answerTakeUps(std::unique_lock<std::mutex>& lock);
    void takeUpFromDisk(const QString& key);
    static void overlay(const Changes& changes, Dictionary& values);
    enum class Damage { Leave, SetAside };

    [[nodiscard]] static Version versionOf(const struct stat& status);
    /// Reads the file if its version changed. False when it exists and cannot be read; a damaged file counts as
    /// unreadable until it may be set aside, which needs the lock.
    bool readAgain(Damage damage);
    bool save(const Changes& changes, const QHash<QString, Merge>& merges);
    bool replaceFile(const QByteArray& content);
    void setAsideDamaged();

    const QString path_;

    mutable std::mutex mutex_;
    std::condition_variable work_;
    mutable std::condition_variable done_;
    Dictionary values_;
    Changes pending_;
    QHash<QString, Merge> merges_;
    quint64 lastChange_ = 0;   // number of the newest change
    quint64 savedChange_ = 0;  // number of the newest change on the disk
    quint64 failedChange_ = 0; // number of the newest change in a failed save
    /// A takeUp() call that waits for the worker.
    struct TakeUp {
        QString key;
        bool isDone = false;
        bool isRead = false;
    };
    std::vector<TakeUp*> takeUps_;
    int flushes_ = 0;                // waiting calls of flush()
    std::vector<QVariant> replaced_; // old values for the worker to free
    bool loaded_ = false;
    bool stopping_ = false;

    // Used by the worker only.
    Version version_;
    Dictionary onDisk_;           // the file's content as of version_
    Dictionary ours_;             // values that this process read or set itself, the base of a merge
    std::shared_ptr<void> spent_; // the parsed form of the file, freed when nothing waits for the values
    bool problemTold_ = false;

    std::thread worker_; // last: it uses the members above
};

} // namespace Platform

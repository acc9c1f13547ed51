// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Platform {

/// A file that is made whole under a hidden name beside its target, is synced, and then takes the target's name in one
/// step. Until commit() the target stays as it was, whatever ends the process. Without commit() the hidden file goes
/// with the object.
///
/// There are two ways to write it: let any writer write to path(), or call open() and write to descriptor(). The second
/// way leaves nothing behind when the process is killed (on file systems that know files without a name).
///
/// Any thread, one at a time. Blocks on the disk. Failures are errno values; 0 means success.
class ReplacementFile {
public:
    enum class Existing {
        Replaced, ///< commit() replaces the file at the target
        Kept      ///< commit() fails with EEXIST when something stands at the target
    };
    enum class Link {
        Followed, ///< a link at the target stays, and the file that it points to is replaced
        Replaced  ///< a link at the target is replaced by the file
    };

    explicit ReplacementFile(const QString& target, Existing existing = Existing::Replaced, Link link = Link::Followed);
    ~ReplacementFile();
    ReplacementFile(const ReplacementFile&) = delete;
    ReplacementFile& operator=(const ReplacementFile&) = delete;

    /// The file that commit() makes or replaces.
    [[nodiscard]] const QString& target() const { return target_; }
    /// The hidden name. It has the target's ending, because writers judge a file by it.
    [[nodiscard]] const QString& path() const { return path_; }

    /// Makes the file and opens it for reading and writing. The umask applies to @p mode.
    [[nodiscard]] int open(int mode = 0666);
    /// open() with the owner and the mode of @p model, an open file.
    [[nodiscard]] int openLike(int model);
    /// The file that open() made. It stays this object's.
    [[nodiscard]] int descriptor() const { return descriptor_; }

    /// Syncs the file, gives it the target's name and syncs the folder. On failure the target is as it was. The
    /// descriptor stays open.
    [[nodiscard]] int commit();

    /// commit() for two files that are of no use alone: both are synced first, so that between the one name and the
    /// other lies a single system call. Both keep existing files. On failure neither has its name.
    [[nodiscard]] static int commitTogether(ReplacementFile& first, ReplacementFile& second);

private:
    int give(const QByteArray& name);
    int sync();
    int takeName();

    QString target_;
    QString path_;
    Existing existing_;
    int descriptor_ = -1;
    bool hasName_ = true; ///< false: the open file has no name yet
    bool done_ = false;
};

} // namespace Platform

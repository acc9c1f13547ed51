// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Platform {

/// A file that is written completely under a hidden name beside its target, is synced, and then takes the target's name
/// in one step. Until commit() the target does not change, even when the process is killed. Without commit() the
/// destructor removes the hidden file.
/// There are two ways to write it: let any writer write to path(), or call open() and write to descriptor(). The second
/// way leaves no file behind when the process is killed (on file systems that support files without a name).
/// Any thread, one at a time. Blocks on the disk. Failures are errno values; 0 means success.
class ReplacementFile {
public:
    enum class Existing {
        Replaced, ///< commit() replaces the file at the target
        Kept      ///< commit() fails with EEXIST when something stands at the target
    };
    enum class Link {
        Followed, ///< a symbolic link stays, and the file that it points to is replaced
        Replaced  ///< a symbolic link is replaced by the file
    };

    explicit ReplacementFile(const QString& target, Existing existing = Existing::Replaced, Link link = Link::Followed);
    ~ReplacementFile();
    ReplacementFile(const ReplacementFile&) = delete;
    ReplacementFile& operator=(const ReplacementFile&) = delete;

    /// The file that commit() creates or replaces.
    [[nodiscard]] const QString& target() const { return target_; }
    /// The hidden path. It has the target's extension, because writers choose the format by it.
    [[nodiscard]] const QString& path() const { return path_; }

    /// Creates the file and opens it for reading and writing. The umask applies to @p mode.
    [[nodiscard]] int open(int mode = 0666);
    /// open() with the owner and the mode of @p model, an open file.
    [[nodiscard]] int openLike(int model);
    /// The descriptor that open() made. It remains owned by this object.
    [[nodiscard]] int descriptor() const { return descriptor_; }

    /// Syncs the file, gives it the target's name and syncs the folder. On failure the target is unchanged. The
    /// descriptor stays open.
    [[nodiscard]] int commit();

    /// commit() for two files that are only useful together: both are synced first, so that only one system call lies
    /// between the two renames. Existing files are kept. On failure neither file gets its name.
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

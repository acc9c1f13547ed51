// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/tags/InPlaceSave.h"

#include "Platform/Media/linux/mpeg4/Mpeg4Atoms.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <linux/magic.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <thread>
#include <unistd.h>

#include <QCryptographicHash>
#include <QDataStream>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QRandomGenerator>

using namespace Qt::StringLiterals;

namespace Platform::Media {
namespace {

Q_LOGGING_CATEGORY(log, "sonaphex.media")

// What is copied aside and rewritten on the spot; above it a whole new file is as fast and simpler.
constexpr qint64 mostInPlace = qint64(32) << 20;
constexpr auto lockPatience = std::chrono::seconds(10);
constexpr auto readerPatience = std::chrono::seconds(2);
constexpr quint64 undoMagic = 0x534e5058554e4433; // "SNPXUND3"
constexpr qint64 longestWitness = qint64(64) << 10;

/// Tells a file from every other in its folder, also from a later one that got its inode number. The number of the
/// device is no part of it: after a power cut the same disk may come back under another one.
struct Identity {
    QByteArray name; ///< what the copy is called after
    qint64 born = 0;
    friend bool operator==(const Identity&, const Identity&) = default;
};

/// FAT makes inode numbers up anew each time that it is mounted; there a file goes by its name.
bool hasInodeNumbers(int fd) {
    constexpr decltype(statfs::f_type) exfat = 0x2011BAB0;
    struct statfs system {};
    return ::fstatfs(fd, &system) != 0 || (system.f_type != MSDOS_SUPER_MAGIC && system.f_type != exfat);
}

Identity identityOf(int fd, const QString& path) {
    struct statx status {};
    if (!hasInodeNumbers(fd) || ::statx(fd, "", AT_EMPTY_PATH, STATX_INO | STATX_BTIME, &status) != 0)
        return {QCryptographicHash::hash(QFileInfo(path).fileName().toUtf8(), QCryptographicHash::Sha1).toHex(), 0};
    const qint64 born = (status.stx_mask & STATX_BTIME)
                            ? qint64(status.stx_btime.tv_sec) * 1'000'000'000 + status.stx_btime.tv_nsec
                            : 0;
    return {QByteArray::number(quint64(status.stx_ino), 16), born};
}

/// The copy goes by the file's inode number, so that it is found again when the file was renamed in its folder.
QString undoPath(const QString& path, const Identity& identity) {
    return QFileInfo(path).path() + "/.sonaphex-"_L1 + QLatin1StringView(identity.name) + ".undo"_L1;
}

/// Opens (@p access is O_RDONLY or O_RDWR) and takes the lock (@p kind is LOCK_EX or LOCK_SH); the file that is locked
/// is the one that has the name. False leaves a file open that only is in use for longer than the patience.
bool openLocked(const QString& path, int access, int kind, std::chrono::seconds patience, Descriptor& file,
                QString& why) {
    const auto deadline = std::chrono::steady_clock::now() + patience;
    const QByteArray name = QFile::encodeName(path);
    for (;;) {
        file.reset(::open(name.constData(), access | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
        struct stat opened {};
        struct stat named {};
        if (!file || ::fstat(file.get(), &opened) != 0) {
            why = qt_error_string(errno);
            file.reset(-1);
            return false;
        }
        if (!S_ISREG(opened.st_mode)) {
            file.reset(-1);
            why = u"not a file"_s;
            return false;
        }
        if (::flock(file.get(), kind | LOCK_NB) == 0) {
            if (::stat(name.constData(), &named) == 0 && named.st_ino == opened.st_ino && named.st_dev == opened.st_dev)
                return true;
        } else if (errno != EWOULDBLOCK && errno != EINTR) {
            return true; // a file system without locks
        }
        if (std::chrono::steady_clock::now() > deadline) {
            why = u"another program is changing it"_s;
            return false;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
}

struct Undo {
    Identity identity;
    QByteArray witness; // what witnessOf() said
    qint64 size = 0;    // of the whole file before
    qint64 begin = 0;   // where the bytes belong
    QByteArray before;  // what stood there, all of what the save overwrites
    QByteArray after;   // what the save puts in its place
    [[nodiscard]] qint64 newSize() const { return size + after.size() - before.size(); }
};

QByteArray hashOf(const QByteArray& bytes) {
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha1);
}

/// A hash of what stands before @p begin and is not written to: the undo of one file never gets into another.
QByteArray witnessOf(int fd, qint64 begin) {
    QByteArray before(static_cast<qsizetype>(std::min(begin, longestWitness)), '\0');
    const ssize_t got =
        ::pread(fd, before.data(), static_cast<std::size_t>(before.size()), begin - static_cast<qint64>(before.size()));
    before.truncate(std::max<ssize_t>(got, 0));
    return hashOf(before);
}

QByteArray packed(const Undo& undo) {
    QByteArray content;
    QDataStream stream(&content, QIODevice::WriteOnly);
    stream << undoMagic << undo.identity.name << undo.identity.born << undo.witness << undo.size << undo.begin
           << undo.before << undo.after;
    return content + hashOf(content);
}

bool unpack(const QByteArray& content, Undo& undo) {
    constexpr qsizetype hashSize = 20;
    const QByteArray body = content.chopped(std::min(hashSize, content.size()));
    if (body.isEmpty() || hashOf(body) != content.right(hashSize))
        return false;
    QDataStream stream(body);
    quint64 magic = 0;
    stream >> magic >> undo.identity.name >> undo.identity.born >> undo.witness >> undo.size >> undo.begin >>
        undo.before >> undo.after;
    return stream.status() == QDataStream::Ok && magic == undoMagic && undo.begin >= 0 && undo.size >= undo.begin;
}

/// Writes a new file beside, synced, and gives it its name.
bool writeBeside(const QString& path, const QByteArray& content) {
    const QByteArray part = QFile::encodeName(path + ".part"_L1);
    {
        const Descriptor file(::open(part.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOFOLLOW, 0600));
        if (!file || !writeAllAt(file.get(), content, 0) || ::fsync(file.get()) != 0) {
            const int error = errno;
            ::unlink(part.constData());
            errno = error;
            return false;
        }
    }
    if (std::rename(part.constData(), QFile::encodeName(path).constData()) != 0)
        return false;
    syncFolder(QFile::encodeName(QFileInfo(path).path()));
    return true;
}

bool putBack(int fd, const Undo& undo) {
    return writeAllAt(fd, undo.before, undo.begin) && ::ftruncate(fd, undo.size) == 0 && ::fsync(fd) == 0;
}

enum class Found { AllWritten, Torn, Foreign };

/// What stands in the file: all of the save, some of it, or what somebody else has written since. A power cut leaves
/// zeros where nothing had reached the disk.
Found lookAt(int fd, const Undo& undo) {
    struct stat status {};
    if (::fstat(fd, &status) != 0)
        return Found::Torn;
    const PatchedFile content(fd, status.st_size);
    const QByteArray there = content.read(undo.begin, std::max(undo.before.size(), undo.after.size()));
    if (status.st_size == undo.newSize() && there.startsWith(undo.after))
        return Found::AllWritten;
    const auto [least, most] = std::minmax({undo.size, undo.newSize()});
    bool ours = status.st_size >= least && status.st_size <= most;
    for (qsizetype i = 0; ours && i < there.size(); ++i)
        ours = there[i] == '\0' || (i < undo.before.size() && there[i] == undo.before[i]) ||
               (i < undo.after.size() && there[i] == undo.after[i]);
    return ours ? Found::Torn : Found::Foreign;
}

bool isSound(int fd) {
    struct stat status {};
    QString why;
    return ::fstat(fd, &status) == 0 && readMpeg4Atoms(PatchedFile(fd, status.st_size), why).has_value();
}

enum class Restored { Yes, NothingToDo, Failed };

/// The file is open and locked.
Restored restoreLocked(int fd, const QString& file) {
    const Identity identity = identityOf(fd, file);
    const QString path = undoPath(file, identity);
    QFile copy(path);
    if (!copy.open(QIODevice::ReadOnly))
        return copy.exists() ? Restored::Failed : Restored::NothingToDo;
    Undo undo;
    if (!unpack(copy.readAll(), undo)) {
        qCWarning(log, "%s is damaged: the save that it would undo stays as it is", qUtf8Printable(path));
        return Restored::NothingToDo;
    }
    if (undo.identity != identity || undo.witness != witnessOf(fd, undo.begin)) {
        copy.remove(); // of a file that was deleted; this one only got its number or its name
        return Restored::NothingToDo;
    }
    const Found found = lookAt(fd, undo);
    if (found == Found::AllWritten || (found == Found::Foreign && isSound(fd))) {
        if (::fsync(fd) == 0)
            copy.remove();
        return Restored::NothingToDo;
    }
    if (!putBack(fd, undo)) {
        qCWarning(log, "cannot undo an interrupted save: %s", qUtf8Printable(qt_error_string(errno)));
        return Restored::Failed; // the copy stays for the next time
    }
    qCInfo(log, "undid an interrupted save with %s", qUtf8Printable(path));
    copy.remove();
    return Restored::Yes;
}

bool writePiece(int out, qint64 at, int in, const PatchedFile::Piece& piece) {
    if (piece.fileOffset < 0)
        return writeAllAt(out, piece.bytes, at);
    loff_t from = piece.fileOffset;
    loff_t to = at;
    for (qint64 left = piece.length; left > 0;) {
        const ssize_t count = ::copy_file_range(in, &from, out, &to, static_cast<std::size_t>(left), 0);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            break;
        left -= count;
    }
    // Where the kernel does not copy by itself (between file systems, on old ones), through memory.
    std::vector<char> buffer(std::size_t(1) << 20);
    while (to < at + piece.length) {
        const auto wanted = std::min<std::size_t>(buffer.size(), static_cast<std::size_t>(at + piece.length - to));
        const ssize_t count = ::pread(in, buffer.data(), wanted, from);
        if (count < 0 && errno == EINTR)
            continue;
        if (count == 0)
            errno = EIO;
        if (count <= 0 || !writeAllAt(out, QByteArrayView(buffer.data(), count), to))
            return false;
        from += count;
        to += count;
    }
    return true;
}

/// A new file in a folder that has no name yet, so that a crash leaves nothing behind, or, where the file system knows
/// no such files, a hidden name.
class FileWithoutName {
public:
    explicit FileWithoutName(const QString& folder)
        : hidden_(QFile::encodeName(folder + "/.sonaphex-"_L1 +
                                    QString::number(QRandomGenerator::system()->generate64(), 16) + ".part"_L1)),
          file_(::open(QFile::encodeName(folder).constData(), O_TMPFILE | O_WRONLY | O_CLOEXEC, 0600)) {
        if (file_)
            return;
        file_.reset(::open(hidden_.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, 0600));
        named_ = static_cast<bool>(file_);
    }
    ~FileWithoutName() {
        if (named_)
            ::unlink(hidden_.constData());
    }
    FileWithoutName(const FileWithoutName&) = delete;
    FileWithoutName& operator=(const FileWithoutName&) = delete;
    [[nodiscard]] int get() const { return file_.get(); }
    explicit operator bool() const { return static_cast<bool>(file_); }

    /// Gives it its name, in the place of a file that has it. @return false with errno.
    bool rename(const QString& path) {
        const QByteArray self = "/proc/self/fd/" + QByteArray::number(file_.get());
        // A link cannot take another file's place, so it gets the hidden name for a moment.
        if (!named_ && ::linkat(AT_FDCWD, self.constData(), AT_FDCWD, hidden_.constData(), AT_SYMLINK_FOLLOW) != 0)
            return false;
        named_ = true;
        if (std::rename(hidden_.constData(), QFile::encodeName(path).constData()) != 0)
            return false;
        named_ = false;
        return true;
    }

private:
    const QByteArray hidden_;
    Descriptor file_;
    bool named_ = false;
};

/// Makes a file of the edited content beside @p path and gives it that name when it is whole. The owner and the mode
/// are those of the file that the content comes from.
bool writeWhole(const QString& path, int source, const PatchedFile& content, QString& why) {
    const QString folder = QFileInfo(path).path();
    FileWithoutName out(folder);
    const auto write = [&] {
        struct stat status {};
        if (!out || ::fstat(source, &status) != 0)
            return false;
        // Only root may give files away; for others the file is theirs anyway.
        if (::fchown(out.get(), status.st_uid, status.st_gid) != 0 && errno != EPERM)
            return false;
        if (::fchmod(out.get(), status.st_mode & 07777) != 0)
            return false;
        qint64 at = 0;
        for (const PatchedFile::Piece& piece : content.pieces()) {
            if (!writePiece(out.get(), at, source, piece))
                return false;
            at += piece.length;
        }
        return ::fsync(out.get()) == 0 && out.rename(path);
    };
    if (!write()) {
        why = qt_error_string(errno);
        return false;
    }
    syncFolder(QFile::encodeName(folder));
    return true;
}

} // namespace

bool saveInPlace(const QString& givenPath, const std::function<bool(PatchedFile&, QString&)>& edit, QString& why) {
    // Behind a link the file itself is changed, and the copy stands beside it.
    const QString real = QFileInfo(givenPath).canonicalFilePath();
    const QString path = real.isEmpty() ? givenPath : real;
    Descriptor file;
    if (!openLocked(path, O_RDWR, LOCK_EX, lockPatience, file, why))
        return false;
    if (restoreLocked(file.get(), path) == Restored::Failed) {
        // Another save would write its own copy over the one that is still needed.
        why = u"an interrupted save cannot be undone"_s;
        return false;
    }

    struct stat status {};
    if (::fstat(file.get(), &status) != 0) {
        why = qt_error_string(errno);
        return false;
    }
    PatchedFile content(file.get(), status.st_size);
    if (!edit(content, why))
        return false;
    const PatchedFile::Change change = content.change();
    const QByteArray bytes = change.newEnd - change.begin <= mostInPlace
                                 ? content.read(change.begin, change.newEnd - change.begin)
                                 : QByteArray();
    if (content.failed()) {
        why = u"it cannot be read"_s;
        return false;
    }
    if (change.newEnd == change.begin && change.oldEnd == change.begin)
        return true;
    if (std::max(change.newEnd, change.oldEnd) - change.begin > mostInPlace)
        return writeWhole(path, file.get(), content, why);

    PatchedFile before(file.get(), status.st_size);
    const Undo undo{.identity = identityOf(file.get(), path),
                    .witness = witnessOf(file.get(), change.begin),
                    .size = status.st_size,
                    .begin = change.begin,
                    .before = before.read(change.begin, change.oldEnd - change.begin),
                    .after = bytes};
    const QString undoFile = undoPath(path, undo.identity);
    if (before.failed() || !writeBeside(undoFile, packed(undo))) {
        why = qt_error_string(errno);
        return false;
    }
    const bool written = writeAllAt(file.get(), undo.after, undo.begin) &&
                         (undo.newSize() >= undo.size || ::ftruncate(file.get(), undo.newSize()) == 0) &&
                         ::fsync(file.get()) == 0;
    if (!written) {
        why = qt_error_string(errno);
        if (!putBack(file.get(), undo))
            return false; // the copy stays: the next one who opens the file puts it back
    }
    ::unlink(QFile::encodeName(undoFile).constData());
    syncFolder(QFile::encodeName(QFileInfo(path).path()));
    return written;
}

bool saveCopy(const QString& source, const QString& destination,
              const std::function<bool(PatchedFile&, QString&)>& edit, QString& why) {
    restoreInterruptedSave(source);
    // Locked although it is only read: a save in between would move what is still to be copied.
    Descriptor file;
    struct stat status {};
    if (!openLocked(source, O_RDONLY, LOCK_EX, lockPatience, file, why))
        return false;
    if (::fstat(file.get(), &status) != 0) {
        why = qt_error_string(errno);
        return false;
    }
    PatchedFile content(file.get(), status.st_size);
    if (!edit(content, why))
        return false;
    if (content.failed()) {
        why = u"it cannot be read"_s;
        return false;
    }
    // A link stays one: what it points to is replaced.
    const QString real = QFileInfo(destination).isSymLink() ? QFileInfo(destination).canonicalFilePath() : QString();
    if (QFileInfo::exists(destination) && !QFileInfo(destination).isFile()) {
        why = u"something stands there that is no file"_s; // a device, a pipe, a folder
        return false;
    }
    return writeWhole(real.isEmpty() ? destination : real, file.get(), content, why);
}

bool openForReading(const QString& path, Descriptor& file, QString& why) {
    restoreInterruptedSave(path);
    // Who holds the file for longer may be no save of ours: better a look at it than none.
    return openLocked(path, O_RDONLY, LOCK_SH, readerPatience, file, why) || file;
}

bool restoreInterruptedSave(const QString& givenPath) {
    const QString path = QFileInfo(givenPath).canonicalFilePath();
    if (path.isEmpty())
        return false;
    {
        // A name is not opened for writing just to see that nothing is to be done.
        const Descriptor found(::open(QFile::encodeName(path).constData(), O_PATH | O_CLOEXEC));
        struct stat status {};
        if (!found || ::fstat(found.get(), &status) != 0 || !S_ISREG(status.st_mode) ||
            !QFileInfo::exists(undoPath(path, identityOf(found.get(), path))))
            return false;
    }
    Descriptor file;
    QString why;
    return openLocked(path, O_RDWR, LOCK_EX, readerPatience, file, why) &&
           restoreLocked(file.get(), path) == Restored::Yes;
}

} // namespace Platform::Media

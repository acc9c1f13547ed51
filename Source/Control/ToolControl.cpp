// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Control/ToolControl.h"

#include "Platform/Desktop/Workspace.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Media/ExtAudioFile.h"

#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QProcess>
#include <filesystem>
#include <stdexcept>
#include <sys/stat.h>
#include <sys/vfs.h>

using namespace Qt::StringLiterals;

namespace ToolControl {
namespace {

Q_LOGGING_CATEGORY(toolLog, "sonaphex.control")

QString twoDigits(std::int64_t number) {
    const QString text = QString::number(number);
    return text.size() < 2 ? u'0' + text : text;
}

QString lastPathComponent(const QString& path) {
    qsizetype end = path.size();
    while (end > 0 && path[end - 1] == u'/')
        --end;
    return path.left(end).section(u'/', -1);
}

/// The part of the name behind the last dot; the first dot of a hidden file does not count.
QString pathExtension(const QString& path) {
    const QString name = lastPathComponent(path);
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot > 0 ? name.mid(dot + 1) : QString();
}

bool hasExtension(const QString& path, QLatin1StringView extension) {
    return pathExtension(path).compare(extension, Qt::CaseInsensitive) == 0;
}

qint64 sizeOfEntry(const QByteArray& path) {
    struct stat status {};
    return ::lstat(path.constData(), &status) == 0 ? status.st_size : 0;
}

/// A relative path that begins like an option or an operator of find would be interpreted as one.
QString asOperand(const QString& path) {
    return path.startsWith(u'-') || path.startsWith(u'(') || path.startsWith(u'!') || path.startsWith(u')') ||
                   path.startsWith(u',')
               ? u"./"_s + path
               : path;
}

QString outputOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(program, arguments, QIODevice::ReadOnly);
    if (!process.waitForStarted(-1))
        throw std::runtime_error("cannot start " + program.toStdString() + ": " + process.errorString().toStdString());
    process.waitForFinished(-1);
    return QString::fromUtf8(process.readAllStandardOutput());
}

} // namespace

void showWindowNib(WindowShower& controller) {
    if (controller.isWindowVisible())
        controller.showWindow();
    else
        controller.makeKeyAndOrderFront();
    controller.center();
}

QString getTimeString(std::int64_t seconds) {
    return twoDigits(seconds / 3600) + u':' + twoDigits(seconds % 3600 / 60) + u':' + twoDigits(seconds % 60);
}

float getAudioLength(const QString& path) {
    Platform::MediaFiles* const files = Platform::services().mediaFiles;
    return files ? static_cast<float>(files->info(path).valueOr({}).seconds) : 0.0F;
}

std::int32_t getDirectorySize(const QString& path) {
    const QByteArray name = QFile::encodeName(path);
    struct stat status {};
    qint64 size = 0;
    if (::stat((name + '/').constData(), &status) != 0) {
        size = sizeOfEntry(name);
    } else {
        std::error_code error;
        std::filesystem::recursive_directory_iterator entry(
            (name + '/').toStdString(), std::filesystem::directory_options::skip_permission_denied, error);
        for (; !error && entry != std::filesystem::end(entry); entry.increment(error))
            size += sizeOfEntry(QByteArray::fromStdString(entry->path().string()));
    }
    if (size < 11)
        return 0;
    if (size <= 999999)
        return 1;
    return static_cast<std::int32_t>(size / 1000 / 1000);
}

std::int64_t getLocalSize(const QString& path) {
    struct statfs status {};
    if (::statfs(QFile::encodeName(path).constData(), &status) != 0)
        return 0;
    const auto kilobytes =
        static_cast<std::int64_t>(status.f_bfree) * (static_cast<std::int64_t>(status.f_bsize) / 1024);
    return kilobytes / 1024;
}

bool isAvailable(const QString& fileName) {
    return !fileName.contains(u':') && !fileName.contains(u'\\') && !fileName.contains(u'/');
}

bool findDRMForExtension(const QString& folder, const QString& extension) {
    // Without a shell the backslash is passed as a file name: file(1) reports that it does not exist.
    const QString output = outputOf(u"/usr/bin/find"_s, {asOperand(folder), u"-name"_s, extension, u"-exec"_s,
                                                         u"/usr/bin/file"_s, u"{}"_s, u"\\"_s, u";"_s});
    qCInfo(toolLog, "taskOutput    =   %s", qUtf8Printable(output));
    const qsizetype at = output.indexOf(u" iTunes "_s);
    return at >= 0 && at < 20000;
}

bool hasDRMFile(const QString& path) {
    const QString extension = pathExtension(path);
    if (!extension.isEmpty() && !QStringList{u"m4a"_s, u"m4b"_s, u"m4p"_s, u"mp4"_s, u"m4v"_s}.contains(extension))
        return false;
    for (const QString& pattern : {u"*.m4a"_s, u"*.m4b"_s, u"*.m4p"_s, u"*.mp4"_s, u"*.m4v"_s})
        if (findDRMForExtension(path, pattern))
            return true;
    return false;
}

QString getFileInfoForFileCMD(const QString& path) {
    const QString output = outputOf(u"/usr/bin/file"_s, {asOperand(path)});
    return output.mid(output.indexOf(u':') + 1);
}

QString isVIDEO_TS(const QString& path) {
    if (lastPathComponent(path) == u"VIDEO_TS"_s)
        return path;
    const QString inside = path + (path.endsWith(u'/') ? u"VIDEO_TS"_s : u"/VIDEO_TS"_s);
    return QFileInfo::exists(inside) ? inside : QString();
}

QString isISO(const QString& path) {
    return hasExtension(path, "iso"_L1) ? path : QString();
}

QString isDMG(const QString& path) {
    return hasExtension(path, "dmg"_L1) ? path : QString();
}

bool isDVDpath(const QString& path) {
    return path.startsWith(u"/Volumes"_s);
}

QString getFirstImageFile(const QStringList& paths) {
    for (const QString& path : paths)
        if (hasExtension(path, "iso"_L1) || hasExtension(path, "dmg"_L1))
            return path;
    return {};
}

void openFile(const QString& path) {
    if (Platform::Workspace* const workspace = Platform::services().workspace)
        workspace->selectFile(path);
}

} // namespace ToolControl

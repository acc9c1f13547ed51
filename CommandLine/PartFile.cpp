// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/PartFile.h"

#include <QCoreApplication>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace CommandLine {

using Existing = Platform::ReplacementFile::Existing;

PartFile::PartFile(const QString& target, bool overwrite)
    : target_(QFileInfo(target).absoluteFilePath()), overwrite_(overwrite),
      file_(target_, overwrite ? Existing::Replaced : Existing::Kept, Platform::ReplacementFile::Link::Replaced) {
}

QString PartFile::problem() const {
    const QFileInfo info(target_);
    if (info.isDir())
        return QCoreApplication::translate("CommandLine", "%1: is a folder").arg(target_);
    if (!QFileInfo(info.path()).isDir())
        return QCoreApplication::translate("CommandLine", "%1: no such folder").arg(info.path());
    if (info.exists() && !info.isFile())
        return QCoreApplication::translate("CommandLine", "%1: that path is not a regular file")
            .arg(target_); // a device, a pipe
    if (!overwrite_ && (info.exists() || info.isSymLink()))
        return QCoreApplication::translate("CommandLine", "%1: exists already (--overwrite replaces it)").arg(target_);
    return {};
}

QString PartFile::commit() {
    const int error = file_.commit();
    return error == 0 ? QString() : u"%1: %2"_s.arg(target_, qt_error_string(error));
}

} // namespace CommandLine

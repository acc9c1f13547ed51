// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/PartFile.h"

#include "Platform/Foundation/FileManager.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <filesystem>

using namespace Qt::StringLiterals;

namespace CommandLine {

PartFile::PartFile(const QString& target, bool overwrite)
    : target_(QFileInfo(target).absoluteFilePath()), overwrite_(overwrite) {
    const QFileInfo info(target_);
    const auto suffix = info.suffix().isEmpty() ? QString() : u'.' + info.suffix();
    // A name of its own, not one made from the target's: that one may already be as long as names get.
    path_ = info.path() + u"/.sonaphex-%1.part"_s.arg(QCoreApplication::applicationPid()) + suffix;
}

PartFile::~PartFile() {
    QFile::remove(path_);
}

QString PartFile::problem() const {
    const QFileInfo info(target_);
    if (info.isDir())
        return u"%1: is a folder"_s.arg(target_);
    if (!QFileInfo(info.path()).isDir())
        return u"%1: no such folder"_s.arg(info.path());
    if (info.exists() && !info.isFile())
        return u"%1: something stands there that is no file"_s.arg(target_); // a device, a pipe
    if (!overwrite_ && (info.exists() || info.isSymLink()))
        return u"%1: exists already (--overwrite replaces it)"_s.arg(target_);
    return {};
}

QString PartFile::commit() {
    if (!overwrite_) {
        const auto why = Platform::FileManager::move(path_, target_);
        return why.isEmpty() ? QString() : u"%1: %2"_s.arg(target_, why);
    }
    std::error_code error;
    std::filesystem::rename(QFile::encodeName(path_).toStdString(), QFile::encodeName(target_).toStdString(), error);
    return error ? u"%1: %2"_s.arg(target_, QString::fromLocal8Bit(error.message())) : QString();
}

} // namespace CommandLine

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Record/CutOffRecordings.h"

#include "Platform/Foundation/MovedFiles.h"
#include "Source/Preferences/PreferenceStore.h"

#include <QDir>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace CutOffRecordings {
namespace {

void keep() {
    // The files may still grow: a writer that holds one goes on in it under its new name.
    const QDir folder(g_strTmpPath);
    for (const QFileInfo& file : folder.entryInfoList({u"BuiltInA*"_s, u"ComputerA*"_s}, QDir::Files)) {
        if (file.size() == 0 || Platform::MovedFiles::isKept(file.filePath()))
            continue;
        const QString kept = Platform::MovedFiles::setAside(file.filePath(), file.fileName());
        std::fprintf(stderr, "sonaphex: ended in the middle of a recording: it is kept in %s\n", qUtf8Printable(kept));
    }
}

} // namespace

void keepAtExit() {
    static const int registered = std::atexit(keep); // once, however often this is called
    Q_UNUSED(registered)
}

} // namespace CutOffRecordings

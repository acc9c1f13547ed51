// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Control/ArtworkTool.h"

#include "Platform/Foundation/Bundle.h"
#include "Platform/Foundation/Services.h"

#include <QCoreApplication>
#include <QProcess>

using namespace Qt::StringLiterals;
using Platform::Error;

namespace ArtworkTool {

Platform::Result<> write(const QString& path, const QString& image) {
    QProcess tool;
    tool.start(Platform::services().bundle->pathForTool(u"SetArtWork"_s), {path, image, path});
    if (!tool.waitForFinished(-1))
        return Error{Error::Kind::Other, u"%1: %2"_s.arg(tool.program(), tool.errorString()), {}};
    if (tool.exitStatus() == QProcess::NormalExit && tool.exitCode() == 0)
        return {};
    const QString errors = QString::fromLocal8Bit(tool.readAllStandardError()).trimmed();
    const QString problem = errors.section(u": "_s, 1);
    return Error{Error::Kind::Other,
                 problem.isEmpty()
                     ? QCoreApplication::translate("CommandLine", "the artwork of %1 could not be written").arg(path)
                     : problem,
                 {}};
}

} // namespace ArtworkTool

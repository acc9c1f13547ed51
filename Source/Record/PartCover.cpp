// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Record/PartCover.h"

#include "Platform/Desktop/PlayerCover.h"
#include "Source/Control/ArtworkTool.h"
#include "Source/Preferences/PreferenceStore.h"

#include <QFileInfo>
#include <QLoggingCategory>
#include <QTemporaryFile>

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace PartCover {
namespace {

Q_LOGGING_CATEGORY(coverLog, "sonaphex.players")

/// A cover on a disk that does not answer must not keep the recording.
constexpr auto Patience = 5s;

void tell(const QString& recording, const QString& why) {
    qCWarning(coverLog, "%s gets no cover: %s", qUtf8Printable(QFileInfo(recording).fileName()), qUtf8Printable(why));
}

} // namespace

void write(const QString& recording, const PartTitle& title) {
    if (!title.cover.valid())
        return;
    QByteArray bytes;
    if (title.cover.wait_for(Patience) == std::future_status::ready)
        bytes = title.cover.get();
    if (bytes.isEmpty()) {
        // Some players write the file only after they have named it.
        auto again = Platform::readPlayerCover(title.coverPlace);
        if (!again)
            return tell(recording, again.error().text);
        bytes = *std::move(again);
    }
    QTemporaryFile image(g_strTmpPath + u"/cover-XXXXXX"_s);
    if (!image.open() || image.write(bytes) != bytes.size() || !image.flush())
        return tell(recording, image.errorString());
    if (const auto written = ArtworkTool::write(recording, image.fileName()); !written)
        tell(recording, written.error().text);
}

} // namespace PartCover

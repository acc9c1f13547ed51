// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// A file of its own because it draws: the recorder on the command line is linked without Qt Gui.
#include "Source/Control/ID3ChangeControl.h"

#include "Platform/Foundation/FileManager.h"
#include "Source/Preferences/PreferenceStore.h"

#include <QBuffer>
#include <QLoggingCategory>
#include <QPainter>

using namespace Qt::StringLiterals;
namespace FileManager = Platform::FileManager;

namespace ID3ChangeControl {
namespace {

Q_LOGGING_CATEGORY(picturesLog, "sonaphex.control")

unsigned imageCounter = 0;

QByteArray jpegOf(const QImage& image) {
    // JPEG has no transparency: transparent parts become white instead of an undefined colour.
    QImage opaque(image.size(), QImage::Format_RGB32);
    opaque.fill(Qt::white);
    QPainter(&opaque).drawImage(0, 0, image);
    QByteArray jpeg;
    QBuffer buffer(&jpeg);
    buffer.open(QIODevice::WriteOnly);
    return opaque.save(&buffer, "JPEG") ? jpeg : QByteArray();
}

} // namespace

QString createPathForImage(const QImage& image) {
    const QString path = g_strTmpPath + u"/ArtworkImage"_s + QString::number(imageCounter++) + u".png"_s;
    (void)FileManager::removeFile(path);
    const QByteArray jpeg = jpegOf(image);
    if (jpeg.isEmpty())
        qCWarning(picturesLog, "cannot write %s: no image", qUtf8Printable(path));
    else if (const auto written = FileManager::writeAtomically(path, jpeg); !written)
        qCWarning(picturesLog, "cannot write %s: %s", qUtf8Printable(path), qUtf8Printable(written.error().forLog()));
    return path;
}

} // namespace ID3ChangeControl

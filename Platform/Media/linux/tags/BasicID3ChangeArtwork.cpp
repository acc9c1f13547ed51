// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// A file of its own because it uses images: the recorder on the command line is linked without Qt Gui.
#include "Platform/Media/BasicID3Change.h"

#include "Platform/Foundation/linux/OpenFile.h"
#include "Platform/Media/linux/tags/Mpeg4Tags.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFileInfo>
#include <QImageReader>

#include <taglib/mp4coverart.h>

using namespace Qt::StringLiterals;

namespace Platform {
namespace {

// Covers are shown on screens; a larger file is refused.
constexpr qint64 largestImage = qint64(64) << 20;

/// The image format by content; nothing when the file is not a complete JPEG or PNG.
std::optional<TagLib::MP4::CoverArt::Format> formatOf(QByteArray& image) {
    const bool isJpeg = image.startsWith("\xff\xd8\xff") && image.contains("\xff\xd9");
    const bool isPng = image.startsWith("\x89PNG\r\n\x1a\n") && image.contains("IEND");
    if (!isJpeg && !isPng)
        return std::nullopt;
    QBuffer buffer(&image);
    buffer.open(QIODevice::ReadOnly);
    if (!QImageReader(&buffer, isJpeg ? "jpeg" : "png").size().isValid())
        return std::nullopt;
    return isJpeg ? TagLib::MP4::CoverArt::JPEG : TagLib::MP4::CoverArt::PNG;
}

} // namespace

Result<> BasicID3Change::copyWithArtwork(const QString& source, const QString& image, const QString& destination) {
    auto bytes = readFile(image, {.largest = largestImage});
    if (!bytes)
        return Error{
            bytes.error().kind,
            QCoreApplication::translate("Media", "cannot read the image %1: %2").arg(image, bytes.error().text),
            bytes.error().detail};
    const auto format = formatOf(*bytes);
    if (!format)
        return Error{Error::Kind::UnknownFormat,
                     QCoreApplication::translate("Media", "%1 is neither a JPEG nor a PNG image").arg(image)};

    const auto edit = Media::editOfTags({Media::artworkItem}, [&](TagLib::MP4::Tag& tag) {
        TagLib::MP4::CoverArtList covers;
        covers.append({*format, TagLib::ByteVector(bytes->constData(), static_cast<unsigned int>(bytes->size()))});
        tag.setItem(Media::artworkItem, covers);
    });
    // When source and destination are the same file, the audio stays in place.
    const QString real = QFileInfo(source).canonicalFilePath();
    QString why;
    const bool ontoItself = !real.isEmpty() && real == QFileInfo(destination).canonicalFilePath();
    if (ontoItself ? Media::saveInPlace(real, edit, why) : Media::saveCopy(source, destination, edit, why))
        return {};
    return Error{
        Error::Kind::Other,
        QCoreApplication::translate("Media", "cannot write the artwork of %1 to %2: %3").arg(source, destination, why)};
}

} // namespace Platform

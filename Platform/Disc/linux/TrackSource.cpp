// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Disc/linux/TrackSource.h"

#include <QCoreApplication>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Platform {

namespace {

struct Drawn {
    TrackFeed* feed;
    std::int64_t left; ///< bytes of the track that were not taken yet
    std::int64_t size;
};

Drawn& drawnOf(burn::burn_source* source) {
    return *static_cast<Drawn*>(source->data);
}

/// Like read(2): fills the whole buffer, 0 at the end, -1 after a failure.
int readSectors(burn::burn_source* source, unsigned char* buffer, int size) {
    Drawn& drawn = drawnOf(source);
    const auto wanted = std::min<std::int64_t>(size, drawn.left);
    if (wanted <= 0)
        return 0;
    if (!drawn.feed->take(std::span(reinterpret_cast<std::byte*>(buffer), std::size_t(wanted))))
        return -1;
    drawn.left -= wanted;
    return int(wanted);
}

off_t sizeOf(burn::burn_source* source) {
    return drawnOf(source).size;
}

int keepSize(burn::burn_source*, off_t) {
    return 1; // the size was measured and does not change
}

void freeDrawn(burn::burn_source* source) {
    delete static_cast<Drawn*>(source->data);
}

int cancelled(burn::burn_source* source) {
    if (drawnOf(source).left > 0) // a track that was read completely must not cancel the tracks behind it
        drawnOf(source).feed->cancel();
    return 1;
}

} // namespace

LibBurn::SourcePtr feedSource(TrackFeed& feed, std::int64_t bytes) {
    // libburn releases it with free().
    auto* source = static_cast<burn::burn_source*>(std::calloc(1, sizeof(burn::burn_source)));
    if (!source)
        return nullptr;
    source->refcount = 1;
    source->version = 1;
    source->read_xt = readSectors;
    source->get_size = sizeOf;
    source->set_size = keepSize;
    source->free_data = freeDrawn;
    source->cancel = cancelled;
    source->data = new Drawn{&feed, bytes, bytes};
    return LibBurn::SourcePtr(source);
}

Result<std::shared_ptr<ImageFileTrack>> ImageFileTrack::open(const QString& path) {
    const QFileInfo info(path);
    if (!info.exists())
        return Error{Error::Kind::NotFound, QCoreApplication::translate("Disc", "%1: no such file").arg(path)};
    if (!info.isFile())
        return Error{Error::Kind::NotAFile, QCoreApplication::translate("Disc", "%1: is not a file").arg(path)};
    if (!info.isReadable())
        return Error{Error::Kind::NotPermitted,
                     QCoreApplication::translate("Disc", "%1: no right to read it").arg(path)};
    if (info.size() == 0)
        return Error{Error::Kind::UnknownFormat, QCoreApplication::translate("Disc", "%1: is empty").arg(path)};
    auto track = std::make_shared<ImageFileTrack>();
    track->path_ = info.absoluteFilePath();
    track->bytes_ = info.size();
    return track;
}

} // namespace Platform

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Control/CoverFile.h"

#include "Platform/Foundation/FileManager.h"
#include "Platform/Foundation/MainQueue.h"
#include "Platform/Foundation/TemporaryFolder.h"
#include "Source/Control/FileTags.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace {

/// Writes the cover of @p audioFile into @p folder. @return the image's path; empty when there is none.
QString writeCover(const QString& audioFile, const QString& folder) {
    const QByteArray picture = FileTags::artwork(audioFile);
    if (picture.isEmpty() || !QDir().mkpath(folder))
        return {};
    // The name is a hash of the content: programs cache pictures by URL, so another picture needs another URL.
    const QString name = QString::fromLatin1(QCryptographicHash::hash(picture, QCryptographicHash::Sha1).toHex());
    const QString path = folder + u'/' + name + (picture.startsWith("\x89PNG") ? u".png"_s : u".jpg"_s);
    return QFileInfo::exists(path) || Platform::FileManager::writeAtomically(path, picture, 0600) ? path : QString();
}

} // namespace

CoverFile::CoverFile(const QString& folder, QObject* parent) : QObject(parent), folder_(folder) {
    worker_.setMaxThreadCount(1);
    Platform::TemporaryFolder::removeWhole(folder_); // left by a killed program
}

CoverFile::~CoverFile() {
    worker_.clear();
    worker_.waitForDone();
    Platform::TemporaryFolder::removeWhole(folder_);
}

void CoverFile::setAudioFile(const QString& path) {
    const QFileInfo file(path);
    const QString source = path.isEmpty()
                               ? QString()
                               : u"%1 %2 %3"_s.arg(path).arg(file.lastModified().toMSecsSinceEpoch()).arg(file.size());
    if (source == source_)
        return;
    source_ = source;
    if (path.isEmpty()) {
        setPicture({});
        return;
    }
    worker_.start([guard = QPointer<CoverFile>(this), path, source, folder = folder_] {
        const QString picture = writeCover(path, folder);
        Platform::MainQueue::post([guard, picture, source] {
            if (guard && guard->source_ == source)
                guard->setPicture(picture);
        });
    });
}

void CoverFile::setPicture(const QString& path) {
    const QUrl url = path.isEmpty() ? QUrl() : QUrl::fromLocalFile(path);
    if (url == url_)
        return;
    const QString before = url_.toLocalFile();
    url_ = url;
    Q_EMIT urlChanged();
    if (!before.isEmpty())
        (void)Platform::FileManager::removeFile(before);
}

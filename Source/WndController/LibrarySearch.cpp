// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/LibrarySearch.h"

#include "Platform/Foundation/MainQueue.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/Model/MediaLibrary.h"

#include <QFileInfo>

#include <algorithm>

namespace {

constexpr qsizetype kSearchAtOnce = 2000; // takes about 2 ms

QVariantList matching(const QVariantList& entries, const QStringList& words) {
    QVariantList result;
    std::copy_if(entries.begin(), entries.end(), std::back_inserter(result),
                 [&](const QVariant& entry) { return LibrarySearch::matches(entry.toMap(), words); });
    return result;
}

} // namespace

LibrarySearch::LibrarySearch(MediaLibrary& library, QObject* parent) : QObject(parent) {
    worker_.setMaxThreadCount(1);
    changed_.setSingleShot(true);
    changed_.setInterval(0);
    connect(&changed_, &QTimer::timeout, this, [this] { search(true); });
    connect(&library, &MediaLibrary::leafChanged, this, [this](const QString& leaf) {
        if (isActive() && node_ && leaf == node_->key())
            changed_.start();
    });
}

LibrarySearch::~LibrarySearch() {
    worker_.waitForDone();
}

bool LibrarySearch::matches(const Dictionary& entry, const QStringList& words) {
    const auto text = [&](const QString& key) {
        const QVariant value = entry.value(key);
        return value.isValid() ? Platform::stringForm(value) : QString();
    };
    QString title = text(AudioRecordEntry::Title);
    if (title.trimmed().isEmpty())
        title = QFileInfo(text(AudioRecordEntry::SavePath)).fileName();
    QString artist = text(AudioRecordEntry::Artist);
    if (artist == QStringLiteral("NO Artist"))
        artist.clear();
    QString album = text(AudioRecordEntry::Album);
    if (album == QStringLiteral("NO Album"))
        album.clear();
    return std::all_of(words.begin(), words.end(), [&](const QString& word) {
        return title.contains(word, Qt::CaseInsensitive) || artist.contains(word, Qt::CaseInsensitive) ||
               album.contains(word, Qt::CaseInsensitive);
    });
}

void LibrarySearch::setNode(std::shared_ptr<const MediaLibraryNode> node) {
    node_ = std::move(node);
    search(false);
}

void LibrarySearch::setText(const QString& text) {
    text_ = text;
    const QStringList words = text.simplified().split(u' ', Qt::SkipEmptyParts);
    if (words == words_)
        return;
    words_ = words;
    search(true);
}

void LibrarySearch::update() {
    if (!changed_.isActive())
        return;
    changed_.stop();
    search(true);
}

void LibrarySearch::search(bool sameNode) {
    ++generation_;
    if (!isActive() || !node_) {
        Q_EMIT found(node_, sameNode);
        return;
    }
    const QVariantList entries = node_->leafNode();
    if (entries.size() <= kSearchAtOnce) {
        give(matching(entries, words_), sameNode);
        return;
    }
    if (!sameNode) // the new node must not show the old list
        give({}, false);
    worker_.start([this, entries = QVariantList(entries), words = words_, generation = generation_]() mutable {
        auto result = matching(entries, words);
        entries.clear();
        Platform::MainQueue::post(this, [this, result = std::move(result), generation] {
            if (generation == generation_)
                give(result, true);
        });
    });
}

void LibrarySearch::give(QVariantList entries, bool sameNode) {
    // A separate node: the library's change signals do not refer to it.
    auto shown = std::make_shared<MediaLibraryNode>();
    shown->setKey(QStringLiteral("search:") + node_->key());
    shown->setLeafNode(std::move(entries));
    Q_EMIT found(shown, sameNode);
}

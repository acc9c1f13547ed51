// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"
#include "Source/Model/MediaLibraryNode.h"

#include <QObject>
#include <QStringList>
#include <QThreadPool>
#include <QTimer>

#include <memory>

class MediaLibrary;

/// Filters the shown list by the typed words: the table gets those entries of the node whose title, artist or album
/// contains all of them. Without words the table gets the node itself. A worker searches long lists. Main thread.
class LibrarySearch : public QObject {
    Q_OBJECT
public:
    explicit LibrarySearch(MediaLibrary& library, QObject* parent = nullptr);
    /// Waits for the worker.
    ~LibrarySearch() override;

    /// Whether each word is part of the title, the artist or the album, in upper or lower case. For an entry without a
    /// title the name of its file counts, which the list shows. The default artist and album do not count.
    [[nodiscard]] static bool matches(const Dictionary& entry, const QStringList& words);

    /// The node to search in; null for none.
    void setNode(std::shared_ptr<const MediaLibraryNode> node);
    void setText(const QString& text);
    [[nodiscard]] QString text() const { return text_; }
    [[nodiscard]] bool isActive() const { return !words_.isEmpty(); }
    /// Searches again now if the library has changed. Otherwise this happens when the event loop runs.
    void update();

Q_SIGNALS:
    /// The node for the table to show; null for none. @p sameNode: the result of another search in the same node.
    void found(const std::shared_ptr<const MediaLibraryNode>& node, bool sameNode);

private:
    void search(bool sameNode);
    void give(QVariantList entries, bool sameNode);

    std::shared_ptr<const MediaLibraryNode> node_;
    QString text_;
    QStringList words_;
    QTimer changed_;               ///< joins several changes of the library into one search
    std::uint64_t generation_ = 0; ///< counts searches, to discard the results of older ones
    QThreadPool worker_;           ///< last member: its work uses the others
};

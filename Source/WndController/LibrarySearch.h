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

/// The search field's side of the list: gives the table the entries of a node whose title, artist or album has the
/// words that were typed. Without words it gives the node itself. A long list is searched by a worker. Main thread.
class LibrarySearch : public QObject {
    Q_OBJECT
public:
    explicit LibrarySearch(MediaLibrary& library, QObject* parent = nullptr);
    /// Waits for the worker.
    ~LibrarySearch() override;

    /// Whether each word is part of the title, the artist or the album, in any case. An entry without a title goes by
    /// its file's name, which the list shows; the artist and the album that every recording begins with do not count.
    [[nodiscard]] static bool matches(const Dictionary& entry, const QStringList& words);

    /// The node to search in; null for none.
    void setNode(std::shared_ptr<const MediaLibraryNode> node);
    void setText(const QString& text);
    [[nodiscard]] QString text() const { return text_; }
    [[nodiscard]] bool isActive() const { return !words_.isEmpty(); }
    /// Takes over now what the library changed. It is taken over anyway when the event loop runs.
    void update();

Q_SIGNALS:
    /// What the table shows from now on; null for nothing. @p sameNode: the same list, searched again.
    void found(const std::shared_ptr<const MediaLibraryNode>& node, bool sameNode);

private:
    void search(bool sameNode);
    void give(QVariantList entries, bool sameNode);

    std::shared_ptr<const MediaLibraryNode> node_;
    QString text_;
    QStringList words_;
    QTimer changed_;               ///< joins several changes of the library into one search
    std::uint64_t generation_ = 0; ///< counts searches: the result of an older one is not shown
    QThreadPool worker_;           ///< last member: its work uses the others
};

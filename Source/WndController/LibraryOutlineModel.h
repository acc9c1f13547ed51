// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractItemModel>
#include <QFont>
#include <QHash>

#include <memory>
#include <vector>

class MediaLibrary;
class MediaLibraryNode;

/// The library's tree in two columns: the title of a node and, for a leaf, the number of its entries. Entries are not
/// rows here. Main thread.
class LibraryOutlineModel : public QAbstractItemModel {
    Q_OBJECT
public:
    enum Column { Name, Count, ColumnCount };
    enum Role { GroupRole = Qt::UserRole + 1, NodeKeyRole };

    /// A text with its font and colour, and the icon in front of it.
    struct AttributedString {
        QString text;
        QFont font;
        QString icon; ///< name of the image; empty for none
        bool grey = false;
    };
    static constexpr int kIconSize = 11;

    explicit LibraryOutlineModel(MediaLibrary& library, QObject* parent = nullptr);

    /// Reads the tree again. The model does so itself when the library has built a new tree.
    void reset();
    /// The invisible root for an invalid index.
    [[nodiscard]] const MediaLibraryNode* node(const QModelIndex& index) const;
    /// node() with shared ownership; null for the root.
    [[nodiscard]] std::shared_ptr<const MediaLibraryNode> sharedNode(const QModelIndex& index) const;
    [[nodiscard]] QModelIndex indexOf(const MediaLibraryNode* node, int column = Name) const;
    [[nodiscard]] QModelIndex indexOfKey(const QString& key) const;
    [[nodiscard]] bool isGroup(const MediaLibraryNode* node) const;

    [[nodiscard]] static AttributedString mediaLibraryNodeGroupTitleString(const MediaLibraryNode& node);
    [[nodiscard]] static AttributedString mediaLibraryNodeTitleString(const MediaLibraryNode& node);

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex& index) const override;
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void announceCount(const QString& leafKey);
    void learnTree();
    void learnParents(const MediaLibraryNode& node);

    MediaLibrary& library_;
    const MediaLibraryNode* root_ = nullptr; ///< for comparison only: whether the library still has the shown tree
    std::vector<std::shared_ptr<MediaLibraryNode>> groups_; ///< keeps that tree alive while views refer to it
    QHash<const MediaLibraryNode*, const MediaLibraryNode*> parents_;
};

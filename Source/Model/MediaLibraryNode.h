// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"

#include <memory>
#include <vector>

#include <QVariantList>

/// One row of the library tree: a group with children, or a leaf with the entries that it lists.
class MediaLibraryNode {
public:
    [[nodiscard]] bool isLeaf() const { return nonLeafNode_.empty(); }
    [[nodiscard]] const QVariantList& leafNode() const { return leafNode_; }
    void setLeafNode(QVariantList entries) { leafNode_ = std::move(entries); }
    [[nodiscard]] const std::vector<std::shared_ptr<MediaLibraryNode>>& nonLeafNode() const { return nonLeafNode_; }
    void setNonLeafNode(std::vector<std::shared_ptr<MediaLibraryNode>> nodes) { nonLeafNode_ = std::move(nodes); }
    [[nodiscard]] QString name() const { return name_; }
    void setName(const QString& name) { name_ = name; }
    /// Name of the icon's image; empty for none. The windows load the image.
    [[nodiscard]] QString icon() const { return icon_; }
    void setIcon(const QString& icon) { icon_ = icon; }
    /// Which entries a leaf shows; null for groups.
    [[nodiscard]] QString key() const { return key_; }
    void setKey(const QString& key) { key_ = key; }

private:
    QVariantList leafNode_;
    std::vector<std::shared_ptr<MediaLibraryNode>> nonLeafNode_;
    QString name_;
    QString icon_;
    QString key_;
};

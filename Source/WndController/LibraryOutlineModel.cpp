// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/LibraryOutlineModel.h"

#include "Source/Model/MediaLibrary.h"
#include "Source/View/NamedImages.h"
#include "Source/View/Theme.h"

#include <QGuiApplication>
#include <QPalette>

namespace {

QFont systemFont(int size) {
    QFont font = QGuiApplication::font();
    font.setPixelSize(Theme::enlarged(size));
    return font;
}

} // namespace

LibraryOutlineModel::LibraryOutlineModel(MediaLibrary& library, QObject* parent)
    : QAbstractItemModel(parent), library_(library) {
    learnTree();
    connect(&library_, &MediaLibrary::leafChanged, this, &LibraryOutlineModel::announceCount);
}

void LibraryOutlineModel::reset() {
    beginResetModel();
    learnTree();
    endResetModel();
}

void LibraryOutlineModel::learnTree() {
    parents_.clear();
    root_ = &library_.rootNode();
    groups_ = library_.rootNode().nonLeafNode();
    learnParents(library_.rootNode());
}

std::shared_ptr<const MediaLibraryNode> LibraryOutlineModel::sharedNode(const QModelIndex& index) const {
    if (!index.isValid())
        return nullptr;
    const auto& rows = index.parent().isValid() ? node(index.parent())->nonLeafNode() : groups_;
    return static_cast<std::size_t>(index.row()) < rows.size() ? rows[static_cast<std::size_t>(index.row())] : nullptr;
}

void LibraryOutlineModel::learnParents(const MediaLibraryNode& node) {
    for (const auto& child : node.nonLeafNode()) {
        parents_.insert(child.get(), &node);
        learnParents(*child);
    }
}

const MediaLibraryNode* LibraryOutlineModel::node(const QModelIndex& index) const {
    return index.isValid() ? static_cast<const MediaLibraryNode*>(index.constInternalPointer()) : &library_.rootNode();
}

QModelIndex LibraryOutlineModel::indexOf(const MediaLibraryNode* node, int column) const {
    const MediaLibraryNode* above = parents_.value(node);
    if (!above)
        return {};
    const auto& rows = above == root_ ? groups_ : above->nonLeafNode();
    const auto found = std::find_if(rows.begin(), rows.end(), [&](const auto& each) { return each.get() == node; });
    return createIndex(static_cast<int>(found - rows.begin()), column, node);
}

QModelIndex LibraryOutlineModel::indexOfKey(const QString& key) const {
    for (auto it = parents_.cbegin(); it != parents_.cend(); ++it)
        if (it.key()->isLeaf() && it.key()->key() == key)
            return indexOf(it.key());
    return {};
}

bool LibraryOutlineModel::isGroup(const MediaLibraryNode* node) const {
    return node && parents_.value(node) == root_;
}

LibraryOutlineModel::AttributedString
LibraryOutlineModel::mediaLibraryNodeGroupTitleString(const MediaLibraryNode& node) {
    return {node.name().isNull() ? QStringLiteral("") : node.name(), systemFont(14), {}, true};
}

LibraryOutlineModel::AttributedString LibraryOutlineModel::mediaLibraryNodeTitleString(const MediaLibraryNode& node) {
    return {QStringLiteral(" ") + QStringLiteral(" %1").arg(node.name()), systemFont(12), node.icon(), false};
}

QModelIndex LibraryOutlineModel::index(int row, int column, const QModelIndex& parent) const {
    const auto& rows = parent.isValid() ? node(parent)->nonLeafNode() : groups_;
    if (row < 0 || row >= static_cast<int>(rows.size()) || column < 0 || column >= ColumnCount)
        return {};
    return createIndex(row, column, rows[static_cast<std::size_t>(row)].get());
}

QModelIndex LibraryOutlineModel::parent(const QModelIndex& index) const {
    if (!index.isValid())
        return {};
    const MediaLibraryNode* above = parents_.value(node(index));
    return above && above != root_ ? indexOf(above) : QModelIndex();
}

int LibraryOutlineModel::rowCount(const QModelIndex& parent) const {
    if (parent.column() > 0)
        return 0;
    return static_cast<int>(parent.isValid() ? node(parent)->nonLeafNode().size() : groups_.size());
}

int LibraryOutlineModel::columnCount(const QModelIndex&) const {
    return ColumnCount;
}

Qt::ItemFlags LibraryOutlineModel::flags(const QModelIndex& index) const {
    if (!index.isValid())
        return Qt::NoItemFlags;
    // The arrow keys skip disabled rows. A heading that is enabled but not selectable would stop them and take the
    // selection.
    return isGroup(node(index)) ? Qt::NoItemFlags : Qt::ItemIsEnabled | Qt::ItemIsSelectable;
}

QVariant LibraryOutlineModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const MediaLibraryNode& here = *node(index);
    const bool group = isGroup(&here);
    if (role == GroupRole)
        return group;
    if (role == NodeKeyRole)
        return here.key();
    if (role == Qt::ToolTipRole || role == Qt::AccessibleTextRole)
        return index.column() == Name
                   ? here.name()
                   : (here.isLeaf() ? tr("%n recording(s)", nullptr, static_cast<int>(here.leafNode().size()))
                      : role == Qt::AccessibleTextRole ? tr("Heading")
                                                       : QString());
    if (index.column() == Count)
        return role == Qt::DisplayRole && here.isLeaf() ? QVariant(QString::number(here.leafNode().size()))
                                                        : QVariant();
    const AttributedString title = group ? mediaLibraryNodeGroupTitleString(here) : mediaLibraryNodeTitleString(here);
    switch (role) {
    case Qt::DisplayRole:
        return title.text;
    case Qt::FontRole:
        return title.font;
    case Qt::ForegroundRole:
        return title.grey ? QVariant(QGuiApplication::palette().brush(QPalette::Active, QPalette::PlaceholderText))
                          : QVariant();
    case Qt::DecorationRole:
        return title.icon.isEmpty() ? QVariant() : QVariant(NamedImages::icon(title.icon));
    default:
        return {};
    }
}

QVariant LibraryOutlineModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == Name ? tr("Library") : tr("Files");
}

void LibraryOutlineModel::announceCount(const QString& leafKey) {
    if (root_ != &library_.rootNode()) {
        reset();
        return;
    }
    const QModelIndex name = indexOfKey(leafKey);
    if (name.isValid())
        Q_EMIT dataChanged(name.siblingAtColumn(Count), name.siblingAtColumn(Count));
}

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTreeView>

/// The outline of the library: what cannot be selected never takes the selection from the node that has it, also not
/// when the pointer is let go over it.
class LibraryOutlineView : public QTreeView {
    Q_OBJECT
public:
    using QTreeView::QTreeView;

protected:
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event = nullptr) const override;
};

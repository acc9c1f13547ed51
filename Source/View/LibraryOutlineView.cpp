// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/LibraryOutlineView.h"

QItemSelectionModel::SelectionFlags LibraryOutlineView::selectionCommand(const QModelIndex& index,
                                                                         const QEvent* event) const {
    if (!index.flags().testFlag(Qt::ItemIsSelectable))
        return QItemSelectionModel::NoUpdate;
    return QTreeView::selectionCommand(index, event);
}

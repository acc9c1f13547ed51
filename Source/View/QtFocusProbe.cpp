// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/QtFocusProbe.h"

#include <QApplication>
#include <QWidget>

bool QtFocusProbe::isEditKeybordShortcutControl() const {
    const QWidget* focus = QApplication::activeWindow() ? QApplication::activeWindow()->focusWidget() : nullptr;
    // Any widget that answers to the name counts as one that is being edited; it is not called.
    return focus && focus->hasFocus() && focus->metaObject()->indexOfMethod("isEditKeybordShortcutControl()") >= 0;
}

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/QtFocusProbe.h"

#include <QApplication>
#include <QWidget>

bool QtFocusProbe::isEditKeybordShortcutControl() const {
    const QWidget* focus = QApplication::activeWindow() ? QApplication::activeWindow()->focusWidget() : nullptr;
    // Any widget with a method of this name counts as such a field; the method is not called.
    return focus && focus->hasFocus() && focus->metaObject()->indexOfMethod("isEditKeybordShortcutControl()") >= 0;
}

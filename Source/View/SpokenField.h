// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QWidget;

/// The names of fields that show a changing text. Qt gives screen readers the accessible name of a label instead of its
/// text, so a label with a name such as "State" would never tell the state. Main thread.
namespace SpokenField {
/// From now on, labels with an accessible name are called "name: text". Once per process; later calls do nothing.
void install();
/// The same for a field whose shown text is not the one to be spoken, because it is elided or blinks. The caption is
/// the accessible name that the field had at the first call; a field without one is named by its text.
void setText(QWidget& field, const QString& text);
} // namespace SpokenField

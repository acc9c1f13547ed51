// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The names of the modifier keys.
namespace KeyNames {

/// Makes menus and tool tips use the names on a Linux keyboard, as the shortcut fields do: Control and Super instead of
/// Qt's Ctrl and Meta, in the language of the texts. Call it once per process, after the texts' translation was
/// installed. Main thread.
void install();

} // namespace KeyNames

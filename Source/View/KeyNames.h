// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The names of the modifier keys.
namespace KeyNames {

/// Gives menus and tool tips the names that a Linux keyboard has and that the shortcut fields show: Control and Super,
/// where Qt says Ctrl and Meta. Once per process, with an application. Main thread.
void install();

} // namespace KeyNames

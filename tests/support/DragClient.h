// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Another program of the desktop, in a process of its own: a window of 120 × 120 points that gives a file or a picture
/// to whoever drags it out, and prints what is dropped on it.
///
///     <test program> --drag-client X Y file:///path | image
///
/// It prints "ready" when its window can be used, and "dropped image WxH", "dropped files N" or "dropped nothing".
namespace DragClient {

/// Runs it when the arguments ask for it. @return its exit status, or -1 when they do not
[[nodiscard]] int run(int argc, char** argv);

} // namespace DragClient

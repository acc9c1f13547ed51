// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Another program of the desktop, in a separate process: a window of 120 × 120 points from which a file or a picture
/// can be dragged, and which prints what is dropped on it.
///
///   <test program> --drag-client X Y file:///path | image
///
/// It prints "ready" when its window can be used, and "dropped image WxH", "dropped files N" or "dropped nothing".
namespace DragClient {

/// Runs it when the arguments request it. @return its exit status, or -1 when they do not
[[nodiscard]] int run(int argc, char** argv);

} // namespace DragClient

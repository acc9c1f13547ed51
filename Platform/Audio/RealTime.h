// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Marks what runs on an audio thread: no lock, no allocation, no system call. Checked by compilers that know the
/// attribute; the names of such functions end in Rt everywhere.
#if defined(__clang__) && __has_cpp_attribute(clang::nonblocking)
#define REC_NONBLOCKING [[clang::nonblocking]]
#else
#define REC_NONBLOCKING
#endif

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Marks a function that runs on an audio thread: no lock, no allocation, no system call. Compilers that know the
/// attribute check it. The names of these functions end in Rt.
#if defined(__clang__) && __has_cpp_attribute(clang::nonblocking)
#define REC_NONBLOCKING [[clang::nonblocking]]
#else
#define REC_NONBLOCKING
#endif

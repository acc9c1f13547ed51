// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// How many times as long this build may take where a test sets a limit in time. A sanitizer checks each access to
/// memory: the code is slower beside it, and no worse.
#if defined(__SANITIZE_THREAD__)
inline constexpr int kSlowness = 20;
#elif defined(__SANITIZE_ADDRESS__)
inline constexpr int kSlowness = 5;
#else
inline constexpr int kSlowness = 1;
#endif

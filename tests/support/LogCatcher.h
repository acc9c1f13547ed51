// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

/// Keeps the lines that are logged while it lives, on any thread, instead of printing them. One object at a time.
class LogCatcher {
public:
    LogCatcher();
    ~LogCatcher();
    LogCatcher(const LogCatcher&) = delete;
    LogCatcher& operator=(const LogCatcher&) = delete;
    [[nodiscard]] QStringList lines() const;
};

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <memory>

namespace Platform {

/// Keeps the machine awake while a recording runs. Main thread; no call waits for the system's answer.
class SleepInhibitor {
public:
    virtual ~SleepInhibitor() = default;
    /// @param why one sentence that the system may show to the user
    virtual void setInhibited(bool inhibited, const QString& why) = 0;
    /// Whether the system has granted the request.
    [[nodiscard]] virtual bool isInhibited() const = 0;
};

/// Asks the login manager over the system bus; does nothing where there is none.
[[nodiscard]] std::unique_ptr<SleepInhibitor> createSleepInhibitor();

} // namespace Platform

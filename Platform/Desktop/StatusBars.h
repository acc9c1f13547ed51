// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <memory>

namespace Platform {

/// Whether the desktop has a status bar that takes items of programs. Main thread. Looks without waiting: at login a
/// program may be up before the panel that holds its item.
class StatusBars : public QObject {
    Q_OBJECT
public:
    [[nodiscard]] static std::unique_ptr<StatusBars> create();

Q_SIGNALS:
    /// The first one is there.
    void appeared();
};

} // namespace Platform

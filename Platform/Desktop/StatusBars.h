// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <memory>

namespace Platform {

/// Whether the desktop has a status bar for program items. Main thread. Does not wait: at login the program may start
/// before the panel.
class StatusBars : public QObject {
    Q_OBJECT
public:
    [[nodiscard]] static std::unique_ptr<StatusBars> create();

Q_SIGNALS:
    /// The first status bar appeared.
    void appeared();
};

} // namespace Platform

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

namespace Platform {

/// Whether the desktop wants light or dark windows. Main thread. Starts with NoPreference and signals the answer later:
/// waiting for it would delay the first window on a busy desktop.
class ColorScheme : public QObject {
    Q_OBJECT
public:
    enum class Preference { NoPreference, Dark, Light };
    [[nodiscard]] virtual Preference preference() const = 0;

Q_SIGNALS:
    void changed();
};

} // namespace Platform

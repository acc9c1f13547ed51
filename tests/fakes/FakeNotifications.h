// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Desktop/Notifications.h"

/// Records the notifications.
class FakeNotifications : public Platform::Notifications {
public:
    void show(const Notification& notification) override {
        all.append(notification);
        stands = true;
    }
    void withdraw() override { stands = false; }
    /// The user's click.
    void choose(const QString& key) { Q_EMIT actionInvoked(key, "token"); }

    QList<Notification> all;
    bool stands = false;
};

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Desktop/Alerts.h"

#include <QList>
#include <functional>

/// Answers alerts from a script and keeps their texts. Without a script it chooses the default button (0).
class FakeAlerts : public Platform::Alerts {
public:
    struct Shown {
        QString title;
        QString text;
        QStringList buttons;
    };

    int runModal(const QString& title, const QString& text, const QStringList& buttons) override {
        shown.append({title, text, buttons});
        if (whileShown)
            whileShown();
        return answers.isEmpty() ? 0 : answers.takeFirst();
    }

    QList<int> answers; ///< for the next alerts, in order
    QList<Shown> shown;
    std::function<void()> whileShown; ///< runs while an alert is open
};

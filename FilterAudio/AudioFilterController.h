// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

/// Finds short recordings and removes them after a question.
class AudioFilterController : public QObject {
    Q_OBJECT
public:
    explicit AudioFilterController(QObject* parent = nullptr);

    /// Asks whether the items may go; true only when the user chose to remove them.
    bool runRemoveAudioAlert();
};

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

enum class RecordState;

/// What the live display shows about a recording.
struct RecordDisplay {
    QString stateString;
    QString timeString;
    Qt::GlobalColor stateColor = Qt::black;

    /// @p recordState 0 stopped, 1 recording, 2 paused; @p seconds of the current file.
    [[nodiscard]] static RecordDisplay of(int recordState, float seconds, bool blinkOn);
    /// State and time in a few words, for use outside the display; empty while nothing is recorded. Hours are shown. @p
    /// seconds of the current file.
    [[nodiscard]] static QString headline(RecordState state, double seconds);
    /// The phase of everything that blinks; it changes every half second.
    [[nodiscard]] static bool blinkOn(double timeIntervalSinceReferenceDate);
    /// The notice shown while recordings are being finished.
    [[nodiscard]] static QString convertingTip(bool blinkOn);
    friend bool operator==(const RecordDisplay&, const RecordDisplay&) = default;
};

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QString>

namespace CommandLine {

/// One line on standard error that shows the time and level of a recording; prints nothing when that is not a terminal.
/// Removed at the end.
class LevelMeter {
public:
    LevelMeter();
    ~LevelMeter();
    LevelMeter(const LevelMeter&) = delete;
    LevelMeter& operator=(const LevelMeter&) = delete;

    /// @p level is the engine's value: twelve times the mean of the samples' magnitudes. Draws at most ten times a
    /// second. @p state is a word ("recording", "waiting for the first sound").
    void show(double seconds, float level, const QString& state);
    /// Prints a line above the meter, also without a terminal.
    void say(const QString& line);

    /// The line that show() draws.
    [[nodiscard]] static QString text(double seconds, float level, const QString& state);

private:
    bool terminal_;
    bool drawn_ = false;
    QElapsedTimer sinceDrawn_;
};

} // namespace CommandLine

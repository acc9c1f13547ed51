// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QString>

namespace CommandLine {

/// One line on standard error that shows the time and level of a recording; silent when that is no terminal. Gone
/// without a trace at the end.
class LevelMeter {
public:
    LevelMeter();
    ~LevelMeter();
    LevelMeter(const LevelMeter&) = delete;
    LevelMeter& operator=(const LevelMeter&) = delete;

    /// @p level as the engine tells it: twelve times the mean of the samples' magnitudes. Draws ten times a second at
    /// most. @p state is a word ("recording", "waiting for the first sound").
    void show(double seconds, float level, const QString& state);
    /// A line above the meter, terminal or not.
    void say(const QString& line);

    /// The line that show() draws.
    [[nodiscard]] static QString text(double seconds, float level, const QString& state);

private:
    bool terminal_;
    bool drawn_ = false;
    QElapsedTimer sinceDrawn_;
};

} // namespace CommandLine

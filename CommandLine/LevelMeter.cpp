// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/LevelMeter.h"

#include "Source/Control/ToolControl.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace CommandLine {
namespace {
constexpr int kWidth = 40;
constexpr int kMillisecondsBetween = 100;
constexpr double kQuietest = -60; // dB at the left end of the bar
} // namespace

LevelMeter::LevelMeter() : terminal_(isatty(STDERR_FILENO) == 1) {
}

LevelMeter::~LevelMeter() {
    if (drawn_)
        std::fputs("\r\033[K", stderr);
}

QString LevelMeter::text(double seconds, float level, const QString& state) {
    const double magnitude = double(level) / 12;
    const double decibels = magnitude > 0 ? std::max(kQuietest, 20 * std::log10(magnitude)) : kQuietest;
    const int full = std::clamp(int(std::lround((1 - decibels / kQuietest) * kWidth)), 0, kWidth);
    return u"%1 [%2%3] %4 dB  %5"_s.arg(ToolControl::getTimeString(std::int64_t(seconds)), QString(full, u'#'),
                                        QString(kWidth - full, u'.'),
                                        QString::number(decibels, 'f', 0).rightJustified(3), state);
}

void LevelMeter::show(double seconds, float level, const QString& state) {
    if (!terminal_ || (drawn_ && sinceDrawn_.elapsed() < kMillisecondsBetween))
        return;
    drawn_ = true;
    sinceDrawn_.start();
    std::fprintf(stderr, "\r%s\033[K", qUtf8Printable(text(seconds, level, state)));
    std::fflush(stderr);
}

void LevelMeter::say(const QString& line) {
    std::fprintf(stderr, "%ssonaphex: %s\n", drawn_ ? "\r\033[K" : "", qUtf8Printable(line));
    drawn_ = false;
}

} // namespace CommandLine

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/ProgressBar.h"

#include <algorithm>
#include <cstdio>

#include <unistd.h>

namespace CommandLine {

namespace {
constexpr int kWidth = 40;
constexpr int kMillisecondsBetween = 100;
} // namespace

ProgressBar::ProgressBar(const QString& what) : what_(what), terminal_(isatty(STDERR_FILENO) == 1) {
}

ProgressBar::~ProgressBar() {
    if (drawn_)
        std::fputs("\r\033[K", stderr);
}

void ProgressBar::show(double share) {
    if (!terminal_ || (drawn_ && sinceDrawn_.elapsed() < kMillisecondsBetween))
        return;
    drawn_ = true;
    sinceDrawn_.start();
    const auto full = std::clamp(int(share * kWidth), 0, kWidth);
    const auto bar = QString(full, u'#') + QString(kWidth - full, u'.');
    std::fprintf(stderr, "\r%s [%s] %3d %%\033[K", qUtf8Printable(what_), qUtf8Printable(bar),
                 std::clamp(int(share * 100), 0, 100));
    std::fflush(stderr);
}

} // namespace CommandLine

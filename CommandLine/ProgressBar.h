// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QString>

namespace CommandLine {

/// A progress bar on standard error; prints nothing when that is not a terminal. Removed at the end.
class ProgressBar {
public:
    explicit ProgressBar(const QString& what);
    ~ProgressBar();
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;
    /// @p share from 0 to 1. Cheap: draws at most ten times a second.
    void show(double share);

private:
    QString what_;
    bool terminal_;
    bool drawn_ = false;
    QElapsedTimer sinceDrawn_;
};

} // namespace CommandLine

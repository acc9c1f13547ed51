// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CommandLine/CommandLine.h"

#include <gtest/gtest.h>

#include <QStringList>

/// A subcommand that ran inside this process: its exit status and what it printed.
struct CommandRun {
    CommandRun(const CommandLine::Command& command, const QStringList& arguments) {
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        status = command.run(arguments);
        out = QString::fromStdString(testing::internal::GetCapturedStdout());
        err = QString::fromStdString(testing::internal::GetCapturedStderr());
    }

    int status = 0;
    QString out;
    QString err;
};

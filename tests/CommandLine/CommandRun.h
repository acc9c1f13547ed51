// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CommandLine/CommandLine.h"

#include <gtest/gtest.h>

#include <QStringList>

/// The exit status and output of a subcommand that ran inside this process.
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

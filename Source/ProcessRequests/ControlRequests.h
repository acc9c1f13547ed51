// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"
#include "Platform/Foundation/RunningProgram.h"

#include <QByteArray>

class MediaLibrary;
class RecordStateController;

/// Handles the requests of other processes to the running program, one line each. An answer is "ok", "ok" and a JSON
/// document, or "failed" and the reason. Main thread.
///
///     start-stop | pause-resume | split     as the buttons do; refused where the button is disabled
///     status                                "ok {...}", see status()
///     library-add {"path": P, "tags": {…}}  adds a recording that a subcommand has finished. The tags contain its
///                                           identity: the window may handle a request after its sender gave up
///     library-remove …                      see MediaLibraryRequests
class ControlRequests {
public:
    /// Neither is owned. With a null @p library the shared one is used once it is needed.
    explicit ControlRequests(RecordStateController& controller, MediaLibrary* library = nullptr);

    /// The buttons' commands start after their answer was sent: they may open a dialog, and the other process must not
    /// wait for it.
    [[nodiscard]] Platform::RunningProgram::Reply answer(const QByteArray& request);
    /// state ("idle", "armed", "recording", "paused"), seconds of the current file, number of recordings being finished
    /// (queue), lostFrames, notices.
    [[nodiscard]] Dictionary status() const;

    /// The request as a line; any text is escaped. @p tags should contain the entry's identity.
    [[nodiscard]] static QByteArray libraryAdd(const QString& path, const Dictionary& tags);
    /// Parses an answer: whether it is "ok", and the rest of the line.
    [[nodiscard]] static bool isOk(const QByteArray& answer, QByteArray& rest);

private:
    [[nodiscard]] QByteArray addToLibrary(const QByteArray& json) const;

    RecordStateController& controller_;
    MediaLibrary* library_;
};

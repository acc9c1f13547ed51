// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"
#include "Platform/Foundation/RunningProgram.h"

#include <QByteArray>

class MediaLibrary;
class RecordStateController;

/// What another process may ask of the running program, one line each. An answer is "ok", "ok" and a JSON document, or
/// "failed" and why. Main thread.
///
///     start-stop | pause-resume | split     as the buttons do; refused where the button is disabled
///     status                                "ok {...}", see status()
///     library-add {"path": P, "tags": {…}}  a recording that a subcommand has finished. The tags bring its
///                                           identity: a request that was given up may be done all the same
///     library-remove …                      as MediaLibraryRequests says
class ControlRequests {
public:
    /// Neither is owned. @p library null: the shared one, when it is first needed.
    explicit ControlRequests(RecordStateController& controller, MediaLibrary* library = nullptr);

    /// The buttons' commands are begun after their answer is on its way: what they do may open a dialog, and the other
    /// process does not wait for that.
    [[nodiscard]] Platform::RunningProgram::Reply answer(const QByteArray& request);
    /// state ("idle", "armed", "recording", "paused"), seconds of the file at hand, recordings that are being finished
    /// (queue), lostFrames, notices.
    [[nodiscard]] Dictionary status() const;

    /// The request as a line; any text goes through unharmed. @p tags should have the entry's identity.
    [[nodiscard]] static QByteArray libraryAdd(const QString& path, const Dictionary& tags);
    /// What an answer says: whether it is "ok", and the rest of the line.
    [[nodiscard]] static bool isOk(const QByteArray& answer, QByteArray& rest);

private:
    [[nodiscard]] QByteArray addToLibrary(const QByteArray& json) const;

    RecordStateController& controller_;
    MediaLibrary* library_;
};

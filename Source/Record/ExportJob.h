// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/BuiltInAudioRecord/BuildInAudioRecord.h"
#include "Source/Model/RecordingTracks.h"
#include "Source/Record/PartTitle.h"

#include <array>
#include <atomic>
#include <memory>

class ExportNote;

/// One finished recording that waits to become a tagged file: its raw files and their timing.
struct ExportJob {
    static inline const QString OutPutPath = QStringLiteral("OutPutPath");
    static inline const QString BuiltInAudioTempPath = QStringLiteral("BuiltInAudioTempPath");
    static inline const QString ComputerAudioTempPath = QStringLiteral("ComputerAudioTempPath");
    static inline const QString OutPutWAVTempPath = QStringLiteral("OutPutWAVTempPath");

    Dictionary paths; ///< under the keys above; a source that was off has no file
    /// The capture timing of a source's raw file.
    struct SourceTiming {
        BuildInAudioRecord::CaptureSpan span;
        double sampleRate = 0; ///< Hz
    };
    std::array<SourceTiming, 2> timings; ///< of the input device and of computer audio
    /// A full disk or a lost device ended it: the filter does not apply, because the user did not make it short.
    bool isKeptHoweverShort = false;
    PartTitle title{};              ///< what a media player named for it
    bool keepsTracks = false;       ///< of two sources, each is also kept as a file of its own
    RecordingTracks::Tracks tracks; ///< the kept tracks, when they are written
    /// Raw files that are still being closed, and a note that is still being written. The job starts when this is 0.
    std::atomic<int> openFiles{0};

    /// How far the job is. A job that was interrupted continues there.
    enum class Stage {
        Raw,           ///< its raw files are whole
        Mixed,         ///< the WAVE is whole
        Encoded,       ///< the file at `encoded` is whole and is moved to OutPutPath
        Delivered,     ///< the recording is at OutPutPath
        TracksWritten, ///< the files of `trackFiles` are whole and are moved to `tracks`
        Tagged         ///< `entry` is complete
    };
    Stage stage = Stage::Raw;
    QString encoded;          ///< what becomes the recording: the encoded mix, or the raw file of the only source
    QStringList trackFiles;   ///< both tracks, before they are moved beside the mix
    Dictionary entry;         ///< for the library; empty when the filter keeps the recording out of it
    bool isContinued = false; ///< an earlier process was ended before it was finished
    QString date;             ///< of a continued job: the day of the recording, "yyyy/MM/dd"
    std::shared_ptr<ExportNote> note; ///< none when it could not be written

    [[nodiscard]] QString path(const QString& key) const { return paths.value(key).toString(); }
    /// The raw files that the job still has: of the input device, then of computer audio.
    [[nodiscard]] QStringList rawFiles() const;
    /// How the computer-audio recording is aligned with the other one: how much later each starts, and the speed of the
    /// former that compensates the different clocks of the two devices.
    struct Timing {
        double builtInOffset = 0;
        double computerOffset = 0;
        double computerSpeed = 1;
    };
    [[nodiscard]] Timing timing() const;
};

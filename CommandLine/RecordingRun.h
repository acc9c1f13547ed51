// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CommandLine/LevelMeter.h"
#include "Platform/Audio/AudioTypes.h"
#include "Source/Record/RecordStateController.h"

#include <QElapsedTimer>
#include <QJsonArray>

namespace CommandLine {

/// The options of a recording from the command line.
struct RecordingTask {
    AudioObjectID device = 0; ///< the input device; 0 for the first one
    bool wantsInput = true;
    bool wantsComputerAudio = false;
    bool computerAudioNamed = false; ///< set by an option: then the device must exist
    double seconds = 0;              ///< 0: until a signal arrives
    double waitSeconds = -1; ///< how long an armed recording waits for the first sound; negative: without a limit
    bool json = false;
};

/// One recording from start to report, under a QCoreApplication.
class RecordingRun : private RecordStateControllerDelegate {
public:
    RecordingRun(RecordPreferences& preferences, const RecordingTask& task);
    /// @return the subcommand's exit status
    int run();

private:
    void addRecordFile(const QString& path, const Dictionary& tags) override;
    [[nodiscard]] bool hasRecordFile(const QString& path) override;
    [[nodiscard]] QString begin();
    void recordUntilTheEnd();
    void finish();
    [[nodiscard]] int report();
    void tellNotices();
    [[nodiscard]] QString state() const;

    const RecordingTask task_;
    LevelMeter meter_;
    RecordStateController controller_;
    QJsonArray recordings_;
    QStringList paths_;
    int dropped_ = 0;
    QString problem_; ///< why it ended early, or could not be moved to its folder
    qsizetype told_ = 0;
    QElapsedTimer armed_; ///< since it started to wait for a sound
};

} // namespace CommandLine

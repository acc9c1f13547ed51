// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/RecordingRun.h"

#include "CommandLine/CommandLine.h"
#include "CommandLine/LibraryChange.h"
#include "CommandLine/ProgressBar.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/TerminationSignals.h"
#include "Platform/Foundation/Translations.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/Model/MediaLibrary.h"
#include "Source/Model/RecordingTracks.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>
#include <QTimer>

#include <cerrno>
#include <optional>

using namespace Qt::StringLiterals;

namespace CommandLine {

namespace {

constexpr int LookMilliseconds = 20;

QJsonObject described(const QString& path, double seconds, const QString& title = {}) {
    return {{u"path"_s, path},
            {u"title"_s, title.isEmpty() ? QFileInfo(path).completeBaseName() : title},
            {u"seconds"_s, seconds}};
}

/// An engine that only opens the requested device: a source that is not recorded needs no stream and no ring, and its
/// volume is not changed.
class AskedEngine final : public BuildInAudioRecord {
public:
    explicit AskedEngine(const RecordingTask& task) : task_(task) {}
    bool records(AudioObjectID device) const override {
        return isRecordComputerAudio() ? task_.wantsComputerAudio
                                       : task_.wantsInput && (task_.device == 0 || task_.device == device);
    }

private:
    RecordingTask task_;
};

} // namespace

RecordingRun::RecordingRun(RecordPreferences& preferences, const RecordingTask& task)
    : task_(task), controller_([&task] { return std::make_unique<AskedEngine>(task); }) {
    // The notices are printed above the meter; the log would print them twice.
    QLoggingCategory::setFilterRules(u"sonaphex.record=false"_s);
    controller_.setDelegate(this);
    controller_.setPreferences(&preferences);
    QObject::connect(&controller_, &RecordStateController::recordingFinished, &controller_,
                     [this](const QString& path, const Dictionary& entry) {
                         if (entry.isEmpty()) {
                             ++dropped_;
                             return;
                         }
                         paths_.append(path);
                         QJsonObject recording = described(path, entry.value(AudioRecordEntry::Length).toDouble(),
                                                           entry.value(AudioRecordEntry::Title).toString());
                         if (const auto tracks = RecordingTracks::stored(entry); tracks.isWhole())
                             recording.insert(u"tracks"_s, QJsonArray{tracks.input, tracks.computer});
                         recordings_.append(recording);
                     });
    QObject::connect(&controller_, &RecordStateController::recordingSetAside, &controller_,
                     [this](const QString&, const QStringList& kept) {
                         for (const QString& path : kept) {
                             const auto info = Platform::services().mediaFiles->info(path).valueOr({});
                             paths_.append(path);
                             recordings_.append(described(path, info.seconds));
                         }
                         if (problem_.isEmpty())
                             problem_ =
                                 controller_.notices().isEmpty()
                                     ? QCoreApplication::translate("CommandLine", "a recording could not be finished")
                                     : controller_.notices().constLast();
                         told_ = controller_.notices().size();
                     });
}

int RecordingRun::run() {
    controller_.awakeFromNib();
    if (const QString why = begin(); !why.isEmpty())
        return fail(why);
    controller_.finishInterruptedRecordings();
    recordUntilTheEnd();
    return report();
}

/// Chooses the device and starts. @return why nothing is recorded; empty on success
QString RecordingRun::begin() {
    if (task_.wantsComputerAudio && !controller_.hasComputerAudioDevice() &&
        (task_.computerAudioNamed || !task_.wantsInput))
        return QCoreApplication::translate("CommandLine",
                                           "computer audio: its driver is not installed (see sonaphex driver install)");
    // The first device of the list is already open. Choosing it again would reopen it.
    if (const int index = controller_.indexOfDevice(task_.device);
        task_.device != 0 && index != controller_.selectedDevice())
        controller_.chooseBuiltInDevice(index);
    if (task_.wantsInput && controller_.deviceNames().isEmpty() && !controller_.hasComputerAudioDevice())
        return QCoreApplication::translate("CommandLine", "there is no input device");
    if (!controller_.canRecord())
        return QCoreApplication::translate("CommandLine",
                                           "there is no source to record: name one with --input or --computer");
    controller_.setRecordLimit(task_.seconds);
    controller_.startAndStopRecord();
    QCoreApplication::sendPostedEvents(); // delivers the notices
    if (controller_.hasFile())
        return {};
    const QStringList notices = controller_.notices();
    return notices.isEmpty() ? QCoreApplication::translate("CommandLine", "nothing can be recorded") : notices.first();
}

QString RecordingRun::state() const {
    if (const QString waiting = controller_.waitingForPrograms(); !waiting.isEmpty())
        return waiting.left(1).toLower() + waiting.mid(1);
    if (controller_.isWaittingForSound())
        return QCoreApplication::translate("CommandLine", "waiting for the first sound");
    return controller_.recordState_() == 1 ? QCoreApplication::translate("CommandLine", "recording", "now")
                                           : QCoreApplication::translate("CommandLine", "finishing");
}

void RecordingRun::recordUntilTheEnd() {
    QEventLoop loop;
    // Caught until all files are finished: a second signal must not cut them off.
    const Platform::TerminationSignals ending([&](int) { loop.quit(); });
    armed_.start();
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &loop, [&] {
        tellNotices();
        const double seconds = controller_.recordedSeconds();
        if (const QString why = controller_.writeProblem(); !why.isEmpty()) {
            problem_ = why;
            loop.quit();
        } else if (task_.seconds > 0 && seconds >= task_.seconds) {
            loop.quit();
        } else if (task_.waitSeconds >= 0 && controller_.isWaittingForSound() &&
                   double(armed_.elapsed()) >= task_.waitSeconds * 1000) {
            meter_.say(QCoreApplication::translate("CommandLine", "no sound came: nothing was recorded"));
            loop.quit();
        }
        meter_.show(seconds, controller_.getAudioWaveLevelValue(), state());
    });
    timer.start(LookMilliseconds);
    loop.exec();
    timer.stop();
    finish();
}

void RecordingRun::finish() {
    {
        ProgressBar bar(QCoreApplication::translate("CommandLine", "finishing"));
        QTimer progress;
        QObject::connect(&progress, &QTimer::timeout, &controller_, [&] {
            if (const double share = controller_.jobProgress(); share > 0)
                bar.show(share);
        });
        progress.start(100);
        controller_.finishAll();
    }
    QCoreApplication::sendPostedEvents();
    tellNotices();
}

void RecordingRun::tellNotices() {
    // Taken out of the controller, whose list is bounded.
    const QStringList notices = controller_.takeNotices();
    for (; told_ < notices.size(); ++told_)
        meter_.say(notices.at(told_));
    told_ = 0;
}

/// Adds the recording through the running window, which holds the library in memory, else directly.
void RecordingRun::addRecordFile(const QString& path, const Dictionary& tags) {
    if (const QString problem = addRecording(path, tags); !problem.isEmpty()) {
        if (problem_.isEmpty())
            problem_ = problem;
        else
            meter_.say(problem);
    }
}

bool RecordingRun::hasRecordFile(const QString& path) {
    return !entryOf(path).isEmpty();
}

int RecordingRun::report() {
    if (dropped_ > 0)
        meter_.say(dropped_ == 1
                       ? QCoreApplication::translate(
                             "CommandLine", "one recording was shorter than the filter's time and was not kept")
                       : QCoreApplication::translate(
                             "CommandLine", "%n recordings were shorter than the filter's time and were not kept",
                             nullptr, dropped_));
    bool printed = true;
    if (task_.json) {
        const QJsonObject all{{u"recordings"_s, recordings_},
                              {u"dropped"_s, dropped_},
                              {u"lostFrames"_s, qint64(controller_.lostFrames())}};
        printed = print(QString::fromUtf8(QJsonDocument(all).toJson(QJsonDocument::Indented).trimmed()));
    } else if (!paths_.isEmpty()) {
        printed = print(paths_.join(u'\n'));
    }
    // The recording is complete, but its path could not be printed.
    if (!printed && problem_.isEmpty())
        problem_ = QCoreApplication::translate("CommandLine", "standard output could not be written: %1")
                       .arg(qt_error_string(errno));
    if (problem_.isEmpty())
        return Done;
    return fail(paths_.isEmpty() ? problem_
                                 : QCoreApplication::translate("CommandLine", "%1: what was recorded is kept in %2")
                                       .arg(problem_, Platform::Translations::list(paths_)));
}

} // namespace CommandLine

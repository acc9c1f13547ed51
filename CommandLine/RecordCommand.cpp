// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/RecordCommand.h"

#include "CommandLine/Arguments.h"
#include "CommandLine/InputDevice.h"
#include "CommandLine/LevelMeter.h"
#include "Platform/Foundation/Bundle.h"
#include "Platform/Foundation/FileManager.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/TemporaryFolder.h"
#include "Platform/Foundation/TerminationSignals.h"
#include "Source/BuiltInAudioRecord/BuildInAudioRecord.h"
#include "Source/Control/PreferenceStore.h"
#include "Source/Control/RecordingNames.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTimer>

#include <cmath>
#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace CommandLine {
namespace {

struct Task {
    InputDevice device;
    double seconds = 0;       ///< 0: until a signal comes
    double filterSeconds = 0; ///< shorter recordings are dropped
    QString folder;
    bool json = false;
};

/// What came of it.
struct Outcome {
    QString path; ///< empty when nothing was kept
    double seconds = 0;
    int dropped = 0;
    std::uint64_t lostFrames = 0;
    QString problem; ///< why it ended early, or was not put where it belongs
};

/// Follows one recording on the engine's I/O thread: shows its level, and ends it at the cycle that completes it.
class Follower : public BuildInAudioRecordDelegate {
public:
    explicit Follower(BuildInAudioRecord& engine) : engine_(engine) {}
    void setLimit(std::int64_t frames) { limit_ = frames; }
    [[nodiscard]] bool isComplete() const { return limit_ > 0 && engine_.framesAccepted() >= limit_; }
    /// The loudest cycle since the last call.
    [[nodiscard]] float takeLevel() { return level_.exchange(0); }
    void clientRecievedBuiltInAudioData(float level) override {
        if (level > level_)
            level_ = level;
        if (isComplete())
            (void)engine_.pauseRecordAudio(); // no frame after the last, however late the main thread comes
    }

private:
    BuildInAudioRecord& engine_;
    std::atomic<std::int64_t> limit_{0};
    std::atomic<float> level_{0};
};

/// Why nothing can be put into @p folder, which is made when missing; empty when something can.
QString whyNotWritable(const QString& folder) {
    (void)QDir().mkpath(folder);
    if (!QFileInfo(folder).isDir())
        return u"the folder %1 cannot be made"_s.arg(folder);
    if (faccessat(AT_FDCWD, QFile::encodeName(folder).constData(), W_OK | X_OK, AT_EACCESS) != 0)
        return u"the folder %1 cannot be written: %2"_s.arg(folder, qt_error_string(errno));
    return {};
}

/// Tells about devices and servers that come and go.
class Witness {
public:
    explicit Witness(LevelMeter& meter) : meter_(meter) {}
    [[nodiscard]] bool isAway() const { return isAway_; }
    void operator()(Platform::InputUnit::Event event) {
        using Event = Platform::InputUnit::Event;
        if (event == Event::FramesLost)
            return; // told at the end
        const bool lost = event == Event::DeviceLost || event == Event::ServerLost;
        if (lost != isAway_)
            meter_.say(!lost                        ? u"recording goes on"_s
                       : event == Event::DeviceLost ? u"the device went away; waiting for it"_s
                                                    : u"the sound server went away; waiting for it"_s);
        isAway_ = lost;
    }

private:
    LevelMeter& meter_;
    bool isAway_ = false;
};

/// Lets the engine record until the task is done, a signal comes or the file cannot be written.
/// @return what went wrong with the file
QString recordUntilTheEnd(BuildInAudioRecord& engine, Follower& follower, const Witness& witness, LevelMeter& meter) {
    QEventLoop loop;
    QString problem;
    const Platform::TerminationSignals ending([&](int) { loop.quit(); });
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &loop, [&] {
        if (const auto error = engine.writeError()) {
            problem = error.text;
            loop.quit();
        } else if (follower.isComplete()) {
            loop.quit();
        }
        meter.show(double(engine.framesAccepted()) / engine.sampleRate(), follower.takeLevel(),
                   witness.isAway() ? u"waiting"_s : u"recording"_s);
    });
    timer.start(20);
    loop.exec();
    return problem;
}

/// Puts the finished raw file where it belongs.
void land(const QString& raw, RecordingNames& names, const Task& task, Outcome& outcome) {
    Platform::AudioFileInfo info;
    Platform::MediaError error;
    outcome.seconds = Platform::services().mediaFiles->info(raw, info, error) ? info.seconds : 0;
    // What a full disk or a broken encoder left over is kept, however short: the user wanted more, not less.
    if (outcome.problem.isEmpty() && (outcome.seconds < task.filterSeconds || outcome.seconds <= 0)) {
        outcome.dropped = 1;
        return;
    }
    QString reserved = names.getAudioRecordPath(task.folder);
    const auto problem = Platform::FileManager::moveToFreeName(
        raw, reserved,
        [&](const QString& taken) {
            names.release(taken);
            return reserved = names.getAudioRecordPath(task.folder);
        },
        outcome.path);
    if (!problem.isEmpty()) {
        outcome.path = Platform::FileManager::setAside(raw, QFileInfo(reserved).fileName());
        if (outcome.problem.isEmpty())
            outcome.problem = u"%1: %2"_s.arg(task.folder, problem);
    }
    names.release(reserved);
}

int report(const Task& task, const Outcome& outcome) {
    if (task.json) {
        QJsonArray recordings;
        if (!outcome.path.isEmpty())
            recordings.append(QJsonObject{{u"path"_s, outcome.path},
                                          {u"title"_s, QFileInfo(outcome.path).completeBaseName()},
                                          {u"seconds"_s, outcome.seconds}});
        const QJsonObject all{{u"recordings"_s, recordings},
                              {u"dropped"_s, outcome.dropped},
                              {u"lostFrames"_s, qint64(outcome.lostFrames)}};
        print(QString::fromUtf8(QJsonDocument(all).toJson(QJsonDocument::Indented).trimmed()));
    } else if (!outcome.path.isEmpty()) {
        print(outcome.path);
    }
    if (!outcome.problem.isEmpty())
        return fail(outcome.path.isEmpty()
                        ? outcome.problem
                        : u"%1: what was recorded is kept in %2"_s.arg(outcome.problem, outcome.path));
    return Done;
}

int record(const Task& task) {
    if (const QString why = whyNotWritable(task.folder); !why.isEmpty())
        return fail(why);
    QString why;
    const auto temporary =
        Platform::TemporaryFolder::create(Platform::services().bundle->bundleIdentifier() + u".record"_s, why);
    if (!temporary)
        return fail(why);

    RecordingNames names;
    Outcome outcome;
    LevelMeter meter;
    const QString raw = temporary->path() + u"/BuiltInA0.m4a"_s;
    Witness witness(meter);
    {
        BuildInAudioRecord engine;
        Follower follower(engine);
        engine.setDelegate(&follower);
        engine.setEventHandler(std::ref(witness));
        BuildInAudioRecord::setMaxVolume(task.device.id);
        if (!engine.configureAudioUnit(task.device.id))
            return fail(u"%1: %2"_s.arg(task.device.name, engine.lastError()));
        follower.setLimit(std::int64_t(std::ceil(task.seconds * engine.sampleRate())));
        if (!engine.setOutPutAudioPath(raw, 1) || !engine.startRecordAudio())
            return fail(engine.lastError());
        outcome.problem = recordUntilTheEnd(engine, follower, witness, meter);
        (void)engine.stopRecordAudio();
        if (const auto error = engine.writeError())
            outcome.problem = error.text;
        outcome.lostFrames = engine.lostFrames();
        if (outcome.lostFrames > 0)
            meter.say(u"%1 frames (%2 s) were lost before they could be written"_s.arg(outcome.lostFrames)
                          .arg(double(outcome.lostFrames) / engine.sampleRate(), 0, 'f', 3));
        engine.setDelegate(nullptr);
    }
    land(raw, names, task, outcome);
    if (outcome.dropped > 0)
        meter.say(outcome.seconds > 0
                      ? u"%1 s is shorter than the filter's %2 s: nothing was kept"_s.arg(outcome.seconds, 0, 'f', 1)
                            .arg(task.filterSeconds)
                      : u"nothing was recorded"_s);
    return report(task, outcome);
}

/// Seconds below which a recording is dropped, by the option or else by the preferences.
double filterSeconds(Arguments& arguments) {
    using namespace PreferenceStore;
    if (arguments.isSet(u"filter"_s))
        return arguments.value(u"filter"_s) == u"off"_s ? 0 : arguments.seconds(u"filter"_s, 0);
    if (!Platform::boolValue(preferenceValueForKey(PreferenceFilterKey, 1)))
        return 0;
    return Platform::intValue(preferenceValueForKey(PreferenceFilterTimeKey, u"5"_s));
}

int run(const QStringList& given) {
    const auto name = u"record"_s;
    Arguments arguments(given, {u"input=NAME"_s, u"for=S"_s, u"filter=S"_s, u"folder=DIR"_s, u"json"_s});
    Task task;
    task.seconds = arguments.seconds(u"for"_s, 0);
    task.json = arguments.isSet(u"json"_s);
    if (arguments.problem().isEmpty())
        task.filterSeconds = filterSeconds(arguments);
    if (!arguments.problem().isEmpty())
        return wrongUsage(name, arguments.problem());
    if (!arguments.positional().isEmpty())
        return wrongUsage(name, u"record takes options only"_s);
    if (arguments.isSet(u"for"_s) && task.seconds <= 0)
        return wrongUsage(name, u"--for takes a time above 0"_s);
    if (arguments.value(u"input"_s) == u"none"_s)
        return wrongUsage(name, u"without an input device there is nothing to record"_s);
    const QString folder = arguments.isSet(u"folder"_s)
                               ? arguments.value(u"folder"_s)
                               : PreferenceStore::preferenceValueForKey(PreferenceStore::PreferenceSavePathKey,
                                                                        PreferenceStore::defaultMusicFolder())
                                     .toString();
    if (folder.isEmpty())
        return wrongUsage(name, u"--folder takes a folder"_s);
    task.folder = QDir::cleanPath(QFileInfo(folder).absoluteFilePath());

    QString why;
    if (!startAudio(why))
        return fail(why);
    if (arguments.isSet(u"input"_s)) {
        if (!findInputDevice(arguments.value(u"input"_s), task.device, why))
            return fail(why);
    } else {
        const auto devices = inputDevices();
        const auto found = std::find_if(devices.begin(), devices.end(),
                                        [](const InputDevice& device) { return !device.isComputerAudio(); });
        if (found == devices.end())
            return fail(u"there is no input device"_s);
        task.device = *found;
    }
    return record(task);
}

} // namespace

const Command recordCommand{run, "record [--input NAME] [--for S] [--filter S|off] [--folder DIR] [--json]",
                            "record an input device into an .m4a file"};

} // namespace CommandLine

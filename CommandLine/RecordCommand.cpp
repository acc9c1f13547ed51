// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/RecordCommand.h"

#include "CommandLine/Arguments.h"
#include "CommandLine/CommandServices.h"
#include "CommandLine/InputDevice.h"
#include "CommandLine/RecordingRun.h"
#include "Platform/Foundation/Bundle.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/TemporaryFolder.h"
#include "Source/Preferences/Settings.h"
#include "Source/Record/ExportNote.h"
#include "Source/Record/RecordPrograms.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace PreferenceStore;

namespace CommandLine {
namespace {

/// Why no file can be created in @p folder, which is created when missing; empty when one can.
QString whyNotWritable(const QString& folder) {
    (void)QDir().mkpath(folder);
    if (!QFileInfo(folder).isDir())
        return QCoreApplication::translate("CommandLine", "the folder %1 cannot be created").arg(folder);
    if (faccessat(AT_FDCWD, QFile::encodeName(folder).constData(), W_OK | X_OK, AT_EACCESS) != 0)
        return QCoreApplication::translate("CommandLine", "the folder %1 cannot be written: %2")
            .arg(folder, qt_error_string(errno));
    return {};
}

/// Whether an option asks for computer audio. Naming its programs does.
bool namesComputerAudio(const Arguments& arguments) {
    return arguments.isSet(u"computer"_s) || arguments.isSet(u"app"_s) || arguments.isSet(u"not-app"_s);
}

/// Overrides the stored preferences with the options. Invalid values set the arguments' problem().
void takeSettings(Arguments& arguments, OverriddenPreferences& preferences) {
    if (arguments.isSet(u"filter"_s)) {
        const bool off = arguments.value(u"filter"_s) == u"off"_s;
        const int seconds = off ? 0 : arguments.whole(u"filter"_s, 0);
        preferences.setValue(off ? 0 : 1, Settings::filter);
        preferences.setValue(seconds, Settings::filterTime);
    }
    if (arguments.isSet(u"folder"_s)) {
        const QString folder = arguments.value(u"folder"_s);
        preferences.setValue(QDir::cleanPath(QFileInfo(folder).absoluteFilePath()), Settings::savePath);
    }
    if (arguments.isSet(u"keep-tracks"_s))
        preferences.setValue(1, Settings::keepTracks);
    if (arguments.isSet(u"pre-roll"_s))
        preferences.setValue(arguments.whole(u"pre-roll"_s, 0), Settings::preRollMS);
    if (arguments.isSet(u"titles"_s))
        preferences.setValue(1, Settings::titles);
    if (arguments.isSet(u"cut-at-tracks"_s))
        preferences.setValue(1, Settings::cutAtTracks);
    // Computer audio that is asked for is all of it, unless its programs are named.
    if (namesComputerAudio(arguments)) {
        const bool isOnly = arguments.isSet(u"app"_s);
        preferences.setValue(RecordPrograms::named(isOnly ? RecordPrograms::Mode::Only : RecordPrograms::Mode::AllBut,
                                                   arguments.values(isOnly ? u"app"_s : u"not-app"_s))
                                 .toStored(),
                             Settings::recordPrograms);
    }
    g_SplitTimeMS = Settings::storedSplitTimeMS();
    if (arguments.isSet(u"split"_s))
        g_SplitTimeMS = arguments.value(u"split"_s) == u"off"_s ? -1 : arguments.whole(u"split"_s, 0);
}

/// Why the combination of options is invalid; empty when it is valid.
QString whyWrong(Arguments& arguments, const RecordingTask& task) {
    if (!arguments.problem().isEmpty())
        return arguments.problem();
    if (!arguments.positional().isEmpty())
        return QCoreApplication::translate("CommandLine", "record takes options only");
    if (arguments.isSet(u"for"_s) && task.seconds <= 0)
        return QCoreApplication::translate("CommandLine", "--for takes a time above 0");
    if (arguments.whole(u"pre-roll"_s, 0) > Settings::LongestPreRollMS)
        return QCoreApplication::translate("CommandLine", "--pre-roll takes at most %1 milliseconds")
            .arg(Settings::LongestPreRollMS);
    if (arguments.isSet(u"folder"_s) && arguments.value(u"folder"_s).isEmpty())
        return QCoreApplication::translate("CommandLine", "--folder takes a folder");
    if (arguments.isSet(u"app"_s) && arguments.isSet(u"not-app"_s))
        return QCoreApplication::translate("CommandLine", "--app and --not-app exclude each other");
    for (const QString& option : {u"app"_s, u"not-app"_s})
        if (arguments.values(option).contains(QString()))
            return QCoreApplication::translate("CommandLine", "--%1 takes the name of a program").arg(option);
    if (arguments.value(u"input"_s) == u"none"_s && !namesComputerAudio(arguments))
        return QCoreApplication::translate("CommandLine",
                                           "without an input device and without --computer there is nothing to record");
    return {};
}

/// Finds the named devices and decides which sources are recorded.
bool takeSources(const Arguments& arguments, OverriddenPreferences& preferences, RecordingTask& task, QString& why) {
    const QString input = arguments.value(u"input"_s);
    bool computer = namesComputerAudio(arguments);
    if (!input.isEmpty() || computer) {
        bool builtIn = !input.isEmpty() && input != u"none"_s;
        InputDevice device;
        if (builtIn && !findInputDevice(input, device, why))
            return false;
        if (builtIn && device.isComputerAudio()) {
            builtIn = false;
            if (!computer)
                preferences.setValue(RecordPrograms().toStored(), Settings::recordPrograms);
            computer = true;
        }
        task.device = device.id;
        preferences.setValue(builtIn, Settings::recordBuiltIn);
        preferences.setValue(computer, Settings::recordComputerAudio);
    }
    // Otherwise the stored choices apply, if their devices exist.
    task.wantsComputerAudio = Platform::boolValue(preferences.value(Settings::recordComputerAudio));
    task.wantsInput = Platform::boolValue(preferences.value(Settings::recordBuiltIn));
    task.computerAudioNamed = computer;
    return true;
}

int run(const QStringList& given) {
    Arguments arguments(given, recordCommand);
    OverriddenPreferences preferences;
    RecordingTask task;
    task.seconds = arguments.seconds(u"for"_s, 0);
    task.waitSeconds = arguments.seconds(u"wait"_s, -1);
    task.json = arguments.isSet(u"json"_s);
    takeSettings(arguments, preferences);
    if (const QString why = whyWrong(arguments, task); !why.isEmpty())
        return wrongUsage(recordCommand, why);

    if (const auto started = startAudio(); !started)
        return fail(started.error().text);
    QString why;
    if (!takeSources(arguments, preferences, task, why))
        return fail(why);
    const QString folder = preferences.value(Settings::savePath).toString();
    if (why = whyNotWritable(folder); !why.isEmpty())
        return fail(why);
    // The folders of killed processes are removed next.
    ExportNote::saveFilesOfEndedProcesses();
    // Not the window's folder: its next launch empties that one.
    const auto temporary =
        Platform::TemporaryFolder::create(Platform::services().bundle->bundleIdentifier() + u".record"_s);
    if (!temporary)
        return fail(temporary.error().text);
    g_strTmpPath = temporary->path();
    return RecordingRun(preferences, task).run();
}

} // namespace

const Command recordCommand{
    "record",
    "",
    QT_TRANSLATE_NOOP("CommandLine", "record an input device, what the computer plays, or both into .m4a files"),
    {{"input", "NAME|none",
      QT_TRANSLATE_NOOP("CommandLine",
                        "Record the input device with this name, UID or id; none records no input device."),
      QT_TRANSLATE_NOOP("CommandLine", "the device and the choice stored in the preferences")},
     {"computer", "", QT_TRANSLATE_NOOP("CommandLine", "Record what the computer plays.")},
     {"app", "NAME",
      QT_TRANSLATE_NOOP("CommandLine", "Of computer audio, record only this program; may be given several times."),
      QT_TRANSLATE_NOOP("CommandLine", "with --computer everything, else as in the preferences")},
     {"not-app", "NAME",
      QT_TRANSLATE_NOOP("CommandLine",
                        "Of computer audio, record everything but this program; may be given several times.")},
     {"for", "S", QT_TRANSLATE_NOOP("CommandLine", "Stop after S seconds of recorded sound, over all files."),
      QT_TRANSLATE_NOOP("CommandLine", "until Control+C")},
     {"wait", "S", QT_TRANSLATE_NOOP("CommandLine", "When waiting for the first sound, give up after S seconds."),
      QT_TRANSLATE_NOOP("CommandLine", "no limit")},
     {"split", "MS|off",
      QT_TRANSLATE_NOOP("CommandLine", "Begin a new file after a silence of MS milliseconds of computer audio."),
      QT_TRANSLATE_NOOP("CommandLine", "as in the preferences")},
     {"pre-roll", "MS",
      QT_TRANSLATE_NOOP("CommandLine",
                        "When waiting for the first sound, begin MS milliseconds before it, at most 5000."),
      QT_TRANSLATE_NOOP("CommandLine", "as in the preferences")},
     {"titles", "",
      QT_TRANSLATE_NOOP("CommandLine",
                        "Of computer audio, give each file the title, artist, album and cover that the media player "
                        "names."),
      QT_TRANSLATE_NOOP("CommandLine", "as in the preferences")},
     {"cut-at-tracks", "",
      QT_TRANSLATE_NOOP("CommandLine",
                        "Of computer audio, begin a new file when the media player goes on to another track."),
      QT_TRANSLATE_NOOP("CommandLine", "as in the preferences")},
     {"keep-tracks", "",
      QT_TRANSLATE_NOOP("CommandLine",
                        "Of a recording of both sources, also keep the input and computer audio, each as a file of its "
                        "own beside the mix."),
      QT_TRANSLATE_NOOP("CommandLine", "as in the preferences")},
     {"filter", "S|off", QT_TRANSLATE_NOOP("CommandLine", "Drop a recording shorter than S seconds."),
      QT_TRANSLATE_NOOP("CommandLine", "as in the preferences")},
     {"folder", "DIR",
      QT_TRANSLATE_NOOP("CommandLine", "Put the recordings into DIR, which is made when it is missing."),
      QT_TRANSLATE_NOOP("CommandLine", "as in the preferences")},
     kJsonOption},
    {{"record --for 10", QT_TRANSLATE_NOOP("CommandLine", "Record ten seconds of the input device.")},
     {"record --input \"USB Mic\" --folder .",
      QT_TRANSLATE_NOOP("CommandLine", "Record a named device into the current folder until Control+C.")},
     {"record --input none --computer --split 300 --wait 60",
      QT_TRANSLATE_NOOP(
          "CommandLine",
          "Record what the computer plays, one file for each song, and give up when nothing plays for a minute.")},
     {"record --input none --computer --titles --cut-at-tracks",
      QT_TRANSLATE_NOOP("CommandLine", "Record an album without pauses, one file with its title for each track.")},
     {"record --input none --app Firefox",
      QT_TRANSLATE_NOOP("CommandLine", "Record one program, whatever else plays.")}},
    run};

} // namespace CommandLine

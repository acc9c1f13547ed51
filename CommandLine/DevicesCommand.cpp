// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/DevicesCommand.h"

#include "CommandLine/Arguments.h"
#include "CommandLine/CommandServices.h"
#include "CommandLine/InputDevice.h"
#include "Platform/Audio/AudioHardware.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/Translations.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace CommandLine {
namespace {

struct Output {
    AudioObjectID id = 0;
    QString name;
    QString uid;
};

Output defaultOutput() {
    auto& hardware = *Platform::services().audioHardware;
    Output output;
    if (hardware.getDefaultOutputDevice(output.id) == noErr) {
        (void)hardware.getDeviceName(output.id, output.name);
        (void)hardware.getDeviceUID(output.id, output.uid);
    }
    return output;
}

void printJson(const std::vector<InputDevice>& devices, const Output& output) {
    QJsonArray list;
    for (const InputDevice& device : devices)
        list.append(QJsonObject{{u"id"_s, qint64(device.id)},
                                {u"name"_s, device.name.isNull() ? QJsonValue() : QJsonValue(device.name)},
                                {u"uid"_s, device.uid},
                                {u"channels"_s, qint64(device.channels)},
                                {u"sampleRate"_s, device.sampleRate},
                                {u"isComputerAudio"_s, device.isComputerAudio()}});
    QJsonValue played; // null: the machine has no output
    if (output.id != 0)
        played = QJsonObject{{u"id"_s, qint64(output.id)}, {u"name"_s, output.name}, {u"uid"_s, output.uid}};
    const QJsonObject all{{u"devices"_s, list}, {u"defaultOutput"_s, played}};
    print(QString::fromUtf8(QJsonDocument(all).toJson(QJsonDocument::Indented).trimmed()));
}

int run(const QStringList& given) {
    Arguments arguments(given, devicesCommand);
    if (!arguments.problem().isEmpty())
        return wrongUsage(devicesCommand, arguments.problem());
    if (!arguments.positional().isEmpty())
        return wrongUsage(devicesCommand, QCoreApplication::translate("CommandLine", "devices takes no names"));
    if (const auto started = startAudio(); !started)
        return fail(started.error().text);
    const auto devices = inputDevices();
    const Output output = defaultOutput();
    if (arguments.isSet(u"json"_s)) {
        printJson(devices, output);
        return Done;
    }
    for (const InputDevice& device : devices) {
        const QString channels = device.channels == 1 ? QCoreApplication::translate("CommandLine", "1 channel")
                                                      : QCoreApplication::translate("CommandLine", "%n channels",
                                                                                    nullptr, int(device.channels));
        const QString facts =
            (device.isComputerAudio() ? QCoreApplication::translate("CommandLine", "%1, %2 Hz, what the computer plays")
                                      : QCoreApplication::translate("CommandLine", "%1, %2 Hz"))
                .arg(channels, Platform::Translations::decimal(double(device.sampleRate), 'f', 0));
        print(u"%1\t%2"_s.arg(device.name.isEmpty() ? device.uid : device.name, facts));
    }
    if (devices.empty())
        print(QCoreApplication::translate("CommandLine", "no input devices"));
    print(QCoreApplication::translate("CommandLine", "default output: %1")
              .arg(output.id == 0 ? QCoreApplication::translate("CommandLine", "none", "output device") : output.name));
    return Done;
}

} // namespace

const Command devicesCommand{"devices",
                             "",
                             QT_TRANSLATE_NOOP("CommandLine", "list the input devices"),
                             {kJsonOption},
                             {{"devices --json", QT_TRANSLATE_NOOP("CommandLine", "List the devices for a script.")}},
                             run};

} // namespace CommandLine

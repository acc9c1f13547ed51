// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/CommandLine.h"
#include "CommandLine/ControlCommand.h"
#include "CommandLine/ConvertCommand.h"
#include "CommandLine/DevicesCommand.h"
#include "CommandLine/DriverCommand.h"
#include "CommandLine/LibraryCommand.h"
#include "CommandLine/RecordCommand.h"
#include "CommandLine/TagCommand.h"

using namespace Qt::StringLiterals;

namespace CommandLine {

const Commands& plainCommands() {
    // clang-format off
    static const Commands plain{
        {u"control"_s, controlCommand},
        {u"convert"_s, convertCommand},
        {u"devices"_s, devicesCommand},
        {u"driver"_s, driverCommand},
        {u"library"_s, libraryCommand},
        {u"record"_s, recordCommand},
        {u"tag"_s, tagCommand},
    };
    // clang-format on
    return plain;
}

} // namespace CommandLine

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/Arguments.h"

#include <QCoreApplication>

#include <cstdint>
#include <limits>

using namespace Qt::StringLiterals;

namespace CommandLine {
namespace {

/// The errors of Qt's parser, so that they are translated where Qt's own translations are not installed.
[[maybe_unused]] constexpr const char* kParserErrors[] = {
    QT_TRANSLATE_NOOP("QCommandLineParser", "Unknown option '%1'."),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Unknown options: %1."),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Missing value after '%1'."),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Unexpected value after '%1'.")};

} // namespace

Arguments::Arguments(const QStringList& arguments, const Command& command) {
    parser_.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    for (const Option& option : command.options)
        parser_.addOption(
            {{QString::fromUtf8(option.name)}, QString::fromUtf8(option.sentence), QString::fromUtf8(option.value)});
    if (!parser_.parse(QStringList{u"sonaphex"_s} + arguments))
        problem_ = parser_.errorText();
}

double Arguments::seconds(const QString& option, double otherwise) {
    if (!parser_.isSet(option))
        return otherwise;
    bool isNumber = false;
    const auto seconds = parser_.value(option).toDouble(&isNumber);
    // Longer than 68 years is a mistake, and millisecond counters would overflow.
    if (!isNumber || !(seconds >= 0 && seconds <= std::numeric_limits<std::int32_t>::max())) {
        problem_ = QCoreApplication::translate("CommandLine", "--%1: %2 is not a time in seconds")
                       .arg(option, parser_.value(option));
        return otherwise;
    }
    return seconds;
}

int Arguments::whole(const QString& option, int otherwise) {
    if (!parser_.isSet(option))
        return otherwise;
    bool isNumber = false;
    const int number = parser_.value(option).toInt(&isNumber);
    if (!isNumber || number < 0) {
        problem_ = QCoreApplication::translate("CommandLine", "--%1: %2 is not a whole number")
                       .arg(option, parser_.value(option));
        return otherwise;
    }
    return number;
}

} // namespace CommandLine

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/CommandHelp.h"

#include "CommandLine/TerminalColumns.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;
using namespace CommandLine;

namespace CommandHelp {
namespace {

constexpr qsizetype kLineLength = 100;

/// A text of a declaration in the user's language. The manual page and the completions stay English.
QString translated(const char* declared) {
    return *declared ? QCoreApplication::translate("CommandLine", declared) : QString();
}

QString shown(const Option& option) {
    const QString name = u"--"_s + QString::fromUtf8(option.name);
    return *option.value ? name + u' ' + QString::fromUtf8(option.value) : name;
}

QString wrapped(const QString& first, const QStringList& words, qsizetype indent) {
    return TerminalColumns::wrapped(first, words, indent, kLineLength);
}

/// An option's sentence, with its default in brackets.
QStringList explanation(const Option& option) {
    QString text = translated(option.sentence);
    if (*option.byDefault)
        text = QCoreApplication::translate("CommandLine", "%1 (default: %2)").arg(text, translated(option.byDefault));
    return text.split(u' ');
}

} // namespace

QString usage(const Command& command) {
    QStringList words;
    if (*command.operands)
        words << QString::fromUtf8(command.operands);
    for (const Option& option : command.options)
        words << u'[' + shown(option) + u']';
    return wrapped(
        QCoreApplication::translate("CommandLine", "usage: sonaphex %1").arg(QString::fromUtf8(command.name)), words,
        8);
}

QString whole(const Command& command) {
    QString text = usage(command) + u"\n\n"_s + translated(command.summary) + u'\n';
    qsizetype width = 0;
    for (const Option& option : command.options)
        width = std::max(width, shown(option).size());
    if (!command.options.empty())
        text += u'\n' + QCoreApplication::translate("CommandLine", "options:") + u'\n';
    for (const Option& option : command.options)
        text += wrapped(u"  "_s + shown(option).leftJustified(width + 1), explanation(option), width + 4) + u'\n';
    if (!command.examples.empty())
        text += u'\n' + QCoreApplication::translate("CommandLine", "examples:") + u'\n';
    for (const Example& example : command.examples)
        text += u"  sonaphex %1\n      %2\n"_s.arg(QString::fromUtf8(example.arguments), translated(example.sentence));
    return text;
}

QString overview(const Commands& commands) {
    QString text = QCoreApplication::translate(
        "CommandLine", "usage: sonaphex            open the window\n       sonaphex FILE       open the window and "
                       "trim an audio file\n       sonaphex COMMAND    do one thing and end\n\ncommands:\n");
    for (const auto& [name, command] : commands)
        text += u"  %1 %2\n"_s.arg(name.leftJustified(12), translated(command->summary));
    return text +
           QCoreApplication::translate(
               "CommandLine",
               "\n\"sonaphex COMMAND --help\" lists the options of a command, \"sonaphex --version\" the version.\n");
}

} // namespace CommandHelp

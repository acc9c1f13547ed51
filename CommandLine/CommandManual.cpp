// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/CommandManual.h"

#include "Platform/Foundation/PlainText.h"

using namespace Qt::StringLiterals;
using namespace CommandLine;

namespace CommandManual {
namespace {

/// Escapes a text for the man macros: hyphens stay hyphens, and no character is taken as a macro.
QString roff(QString text) {
    text.replace(u'\\', u"\\e"_s).replace(u'-', u"\\-"_s);
    if (text.startsWith(u'.') || text.startsWith(u'\''))
        text.prepend(u"\\&"_s);
    return text;
}

QString roff(const char* text) {
    return roff(QString::fromUtf8(text));
}

/// A sentence with its full stop, as in the manual page.
QString sentence(const char* text) {
    QString whole = QString::fromUtf8(text);
    if (!whole.isEmpty())
        whole[0] = whole[0].toUpper();
    return roff(whole.endsWith(u'.') ? whole : whole + u'.');
}

/// The choices in a declaration: "wav|m4a" has two; "FILE" and "S" have none.
QStringList choices(const char* declared) {
    QStringList words;
    for (QString word : QString::fromUtf8(declared).split(u'|')) {
        word.remove(u'[').remove(u']');
        word = word.trimmed().section(u' ', 0, 0);
        if (!word.isEmpty() && word == word.toLower())
            words << word;
    }
    return words;
}

bool takesFiles(const char* declared) {
    const QString text = QString::fromUtf8(declared);
    for (const QString& word : {u"FILE"_s, u"SRC"_s, u"DST"_s, u"IMAGE"_s, u"DIR"_s})
        if (text.contains(word))
            return true;
    return false;
}

QString longForm(const Option& option) {
    return u"--"_s + QString::fromUtf8(option.name);
}

} // namespace

QString manualPage(const Commands& commands) {
    QString page = u".TH SONAPHEX 1 \"\" \"Sonaphex %1\" \"User Commands\"\n"_s.arg(QStringLiteral(SONAPHEX_VERSION));
    page += u".SH NAME\nsonaphex \\- record, edit and keep sound\n.SH SYNOPSIS\n.B sonaphex\n.RI [ FILE ]\n.br\n"
            ".B sonaphex\n.I COMMAND\n.RI [ OPTIONS ]\n"_s;
    page +=
        u".SH DESCRIPTION\nSonaphex records what the computer plays, what a microphone hears, or both at once, into "
        "tagged MPEG\\-4 audio files, and keeps them in a library. Without arguments it opens its window. With a file "
        "it opens the window with that file. With a command it does one thing in the terminal and ends.\n.PP\n"
        "Results go to standard output, a meter or a progress bar to standard error when that is a terminal.\n"_s;
    page += u".SH COMMANDS\n"_s;
    for (const auto& [name, command] : commands) {
        page += u".SS \"sonaphex %1"_s.arg(roff(name));
        if (*command->operands)
            page += u' ' + roff(command->operands);
        page += u"\"\n"_s + sentence(command->summary) + u'\n';
        for (const Option& option : command->options) {
            page += u".TP\n.B "_s + roff(longForm(option));
            if (*option.value)
                page += u" \\fI"_s + roff(option.value) + u"\\fR"_s;
            page += u'\n' + sentence(option.sentence);
            if (*option.byDefault)
                page += u" Default: "_s + roff(option.byDefault) + u'.';
            page += u'\n';
        }
        for (const Example& example : command->examples)
            page += u".PP\n.nf\n.RS\nsonaphex "_s + roff(example.arguments) + u"\n.RE\n.fi\n.RS\n"_s +
                    sentence(example.sentence) + u"\n.RE\n"_s;
    }
    page += u".SH EXIT STATUS\n.TP\n.B 0\nAll went well.\n.TP\n.B 1\nSomething failed; one line on standard error says "
            "what and why.\n.TP\n.B 2\nThe command line is invalid.\n"_s;
    page += u".SH ENVIRONMENT\n.BR HOME , \" XDG_CONFIG_HOME\" , \" XDG_CACHE_HOME\" , \" XDG_DATA_HOME\" , "
            "\" XDG_RUNTIME_DIR\" \" and\" \" TMPDIR\"\nare honoured.\n"_s;
    page += u".SH FILES\n.TP\n.I ~/Music/com.korvane.Sonaphex\nRecordings and ringtones, unless other folders are "
            "chosen in the preferences.\n.TP\n.I ~/.config/com.korvane.Sonaphex.plist\nSettings and the list of the "
            "library.\n.TP\n.I ~/.local/share/com.korvane.Sonaphex/Unfinished\nRecordings that could not be "
            "finished.\n"_s;
    page += u".SH SEE ALSO\n.BR pipewire (1),\n.BR ffmpeg (1)\n"_s;
    return page;
}

QString bashCompletion(const Commands& commands) {
    QStringList names{u"help"_s};
    QString cases;
    for (const auto& [name, command] : commands) {
        names << name;
        QStringList words = choices(command->operands);
        QString values;
        for (const Option& option : command->options) {
            words << longForm(option);
            if (!*option.value)
                continue;
            const QStringList offered = choices(option.value);
            values += u"            %1) COMPREPLY=($(compgen %2 -- \"$word\")); return ;;\n"_s.arg(
                longForm(option),
                takesFiles(option.value) ? u"-f"_s : u"-W "_s + Platform::shellWord(offered.join(u' ')));
        }
        cases += u"        %1)\n"_s.arg(name);
        if (!values.isEmpty())
            cases += u"            case $before in\n"_s + values + u"            esac\n"_s;
        cases += u"            words=%1\n"_s.arg(Platform::shellWord(words.join(u' ')));
        if (takesFiles(command->operands))
            cases += u"            files=-f\n"_s;
        cases += u"            ;;\n"_s;
    }
    return u"# bash completion for sonaphex\n_sonaphex() {\n"
           "    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} words='' files=''\n"
           "    compopt -o filenames 2>/dev/null\n"
           "    if [ \"$COMP_CWORD\" = 1 ]; then\n"
           "        COMPREPLY=($(compgen -f -W %1 -- \"$word\"))\n        return\n    fi\n"
           "    case ${COMP_WORDS[1]} in\n%2    esac\n"
           "    COMPREPLY=($(compgen $files -W \"$words\" -- \"$word\"))\n}\n"
           "complete -F _sonaphex sonaphex\n"_s.arg(Platform::shellWord(names.join(u' ')), cases);
}

QString zshCompletion(const Commands& commands) {
    // Colons and brackets separate the parts of a specification.
    const auto spec = [](QString text) {
        return text.replace(u'\\', u"\\\\"_s).replace(u':', u"\\:"_s).replace(u'[', u"\\["_s).replace(u']', u"\\]"_s);
    };
    const auto action = [](const char* declared) {
        const QStringList offered = choices(declared);
        if (!offered.isEmpty())
            return u'(' + offered.join(u' ') + u')';
        return takesFiles(declared) ? u"_files"_s : u" "_s;
    };
    QString described;
    QString cases;
    for (const auto& [name, command] : commands) {
        described +=
            u"        %1\n"_s.arg(Platform::shellWord(name + u':' + spec(QString::fromUtf8(command->summary))));
        cases += u"        %1)\n            _arguments"_s.arg(name);
        for (const Option& option : command->options) {
            QString one = longForm(option) + u'[' + spec(QString::fromUtf8(option.sentence)) + u']';
            if (*option.value)
                one += u':' + spec(QString::fromUtf8(option.value)) + u':' + action(option.value);
            cases += u" \\\n                "_s + Platform::shellWord(one);
        }
        if (*command->operands)
            cases +=
                u" \\\n                "_s + Platform::shellWord(u"*:"_s + spec(QString::fromUtf8(command->operands)) +
                                                                 u':' + action(command->operands));
        cases += u"\n            ;;\n"_s;
    }
    return u"#compdef sonaphex\n_sonaphex() {\n    local -a commands\n    commands=(\n%1    )\n"
           "    if (( CURRENT == 2 )); then\n        _describe command commands\n        _files\n        return\n    "
           "fi\n"
           "    local command=$words[2]\n    shift words\n    (( CURRENT-- ))\n    case $command in\n%2    esac\n}\n"
           "_sonaphex \"$@\"\n"_s.arg(described, cases);
}

QString fishCompletion(const Commands& commands) {
    QString text = u"# fish completion for sonaphex\n"_s;
    for (const auto& [name, command] : commands) {
        text += u"complete -c sonaphex -n __fish_use_subcommand -a %1 -d %2\n"_s.arg(
            name, Platform::shellWord(QString::fromUtf8(command->summary)));
        const QString here = u"complete -c sonaphex -n '__fish_seen_subcommand_from %1'"_s.arg(name);
        const QStringList operands = choices(command->operands);
        if (!takesFiles(command->operands))
            text += here + u" -f"_s +
                    (operands.isEmpty() ? QString() : u" -a "_s + Platform::shellWord(operands.join(u' '))) + u'\n';
        for (const Option& option : command->options) {
            text += here + u" -l %1 -d %2"_s.arg(QString::fromUtf8(option.name),
                                                 Platform::shellWord(QString::fromUtf8(option.sentence)));
            if (*option.value) {
                const QStringList offered = choices(option.value);
                text += takesFiles(option.value) ? u" -r -F"_s : u" -x"_s;
                if (!offered.isEmpty())
                    text += u" -a "_s + Platform::shellWord(offered.join(u' '));
            }
            text += u'\n';
        }
    }
    return text;
}

} // namespace CommandManual

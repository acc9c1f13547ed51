// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Record/RecordPrograms.h"

#include "Platform/Foundation/Dictionary.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString kMode = u"mode"_s;
const QString kPrograms = u"programs"_s;
const QString kRecent = u"recent"_s;
const QString kId = u"id"_s;
const QString kName = u"name"_s;
const QString kIcon = u"icon"_s;
const QString kOnly = u"only"_s;
const QString kAllBut = u"not"_s;
const QString kEverything = u"everything"_s;

using Program = RecordPrograms::Program;

QList<Program> programsIn(const QVariant& stored) {
    QList<Program> programs;
    for (const QVariant& each : stored.toList()) {
        const Dictionary entry = each.toMap();
        Program program{.id = entry.value(kId).toString(),
                        .name = entry.value(kName).toString(),
                        .iconName = entry.value(kIcon).toString()};
        if (program.id.isEmpty() || programs.size() == RecordPrograms::LongestMemory)
            continue;
        if (program.name.isEmpty())
            program.name = program.id;
        programs.append(std::move(program));
    }
    return programs;
}

QVariantList stored(const QList<Program>& programs) {
    QVariantList list;
    for (const Program& program : programs)
        list.append(Dictionary{{kId, program.id}, {kName, program.name}, {kIcon, program.iconName}});
    return list;
}

} // namespace

RecordPrograms RecordPrograms::fromStored(const QVariant& stored) {
    const Dictionary all = stored.toMap();
    RecordPrograms result{.programs = programsIn(all.value(kPrograms)), .recent = programsIn(all.value(kRecent))};
    const QString mode = all.value(kMode).toString();
    if (mode == kOnly)
        result.mode = Mode::Only;
    else if (mode == kAllBut)
        result.mode = Mode::AllBut;
    if (result.programs.isEmpty())
        result.mode = Mode::Everything;
    return result;
}

QVariant RecordPrograms::toStored() const {
    const QString& word = mode == Mode::Only ? kOnly : mode == Mode::AllBut ? kAllBut : kEverything;
    return Dictionary{{kMode, word}, {kPrograms, stored(programs)}, {kRecent, stored(recent)}};
}

RecordPrograms RecordPrograms::named(Mode mode, const QStringList& names) {
    RecordPrograms result{.mode = names.isEmpty() ? Mode::Everything : mode};
    for (const QString& name : names)
        result.programs.append({.id = name, .name = name});
    return result;
}

Platform::ProgramChoice RecordPrograms::choice() const {
    Platform::ProgramChoice choice{.mode = mode};
    if (mode != Mode::Everything)
        for (const Program& program : programs)
            choice.programs.push_back(program.id.toStdString());
    return choice;
}

QString RecordPrograms::names() const {
    QStringList list;
    for (const Program& program : programs)
        list.append(program.name);
    if (list.size() < 2)
        return list.join(QString());
    const QString last = list.takeLast();
    return tr("%1 and %2").arg(list.join(tr(", ")), last);
}

QString RecordPrograms::title() const {
    switch (mode) {
    case Mode::Everything:
        break;
    case Mode::Only:
        return tr("Only %1").arg(names());
    case Mode::AllBut:
        return tr("Everything but %1").arg(names());
    }
    return tr("Everything");
}

QString RecordPrograms::waiting(const std::vector<Platform::PlayingProgram>& playing) const {
    if (mode != Mode::Only)
        return {};
    const auto isChosen = [this](const Platform::PlayingProgram& program) {
        return std::ranges::any_of(programs, [&](const Program& each) {
            return each.id == program.id || program.parts.contains(each.id, Qt::CaseInsensitive);
        });
    };
    for (const auto& program : playing)
        if (program.isPlaying && isChosen(program))
            return {};
    return tr("Waiting for %1").arg(names());
}

bool RecordPrograms::has(const QString& id) const {
    return std::ranges::find(programs, id, &Program::id) != programs.end();
}

bool RecordPrograms::remember(const std::vector<Platform::PlayingProgram>& playing) {
    const auto before = recent;
    for (const auto& program : playing) {
        const Program seen{.id = program.id, .name = program.name, .iconName = program.iconName};
        // One that is remembered keeps its place, or two programs that play would change places for ever.
        if (const auto known = std::ranges::find(recent, program.id, &Program::id); known != recent.end())
            *known = seen;
        else
            recent.prepend(seen);
    }
    if (recent.size() > LongestMemory)
        recent.resize(LongestMemory);
    return recent != before;
}

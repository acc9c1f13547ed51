// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/PlayingProgram.h"
#include "Platform/Audio/ProgramChoice.h"

#include <QCoreApplication>
#include <QList>
#include <QVariant>

#include <vector>

/// Which programs a recording of computer audio takes, as the user has chosen it.
struct RecordPrograms {
    Q_DECLARE_TR_FUNCTIONS(RecordPrograms)
public:
    using Mode = Platform::ProgramChoice::Mode;
    struct Program {
        QString id;
        QString name;
        QString iconName{}; ///< may be empty
        friend bool operator==(const Program&, const Program&) = default;
    };
    /// The most programs that are remembered.
    static constexpr qsizetype LongestMemory = 12;

    Mode mode = Mode::Everything;
    QList<Program> programs{}; ///< not empty unless the mode is Everything
    QList<Program> recent{};   ///< programs that played lately, the newest first

    /// A stored object that is damaged gives Everything.
    [[nodiscard]] static RecordPrograms fromStored(const QVariant& stored);
    [[nodiscard]] QVariant toStored() const;
    /// One mode with these names, as from a terminal.
    [[nodiscard]] static RecordPrograms named(Mode mode, const QStringList& names);

    [[nodiscard]] Platform::ProgramChoice choice() const;
    /// "Everything", "Only Firefox", "Everything but Firefox and Music".
    [[nodiscard]] QString title() const;
    /// "Firefox and Music".
    [[nodiscard]] QString names() const;
    /// "Waiting for Firefox" when only programs are recorded of which none plays; else empty.
    [[nodiscard]] QString waiting(const std::vector<Platform::PlayingProgram>& playing) const;
    /// Whether a program is among the chosen ones.
    [[nodiscard]] bool has(const QString& id) const;
    /// Adds the programs to the recent ones. True when that changes them.
    bool remember(const std::vector<Platform::PlayingProgram>& playing);

    friend bool operator==(const RecordPrograms&, const RecordPrograms&) = default;
};

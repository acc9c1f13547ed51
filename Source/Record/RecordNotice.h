// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMetaType>
#include <QString>
#include <QStringList>

/// Something that the user should know about a recording. The text names the cause first and the consequence next; a
/// path comes last.
struct RecordNotice {
    /// What a window can offer to do about it.
    enum class Help {
        None,
        Show,         ///< the file or folder in the file manager
        ChooseDevice, ///< the list of input devices
        FreeSpace     ///< the folder on the full disk in the file manager
    };

    QString text;
    /// What the text ends with; empty when it ends by itself.
    QString path{};
    Help help = Help::None;
    /// The file or folder that the help is about, when it is not the path.
    QString target{};
    /// Notices about one event replace each other. Empty: no other one is about it.
    QString event{};
    /// Files in the folder of unfinished recordings. They are named at each start until this notice was seen.
    QStringList kept{};
    /// It does not go when the next recording starts.
    bool outlivesRecording = false;

    /// Text and path as one sentence.
    [[nodiscard]] QString sentence() const {
        if (kept.size() == 2)
            return text + u' ' + kept.join(QStringLiteral(" and "));
        return path.isEmpty() ? text : text + u' ' + path;
    }
    friend bool operator==(const RecordNotice&, const RecordNotice&) = default;
};

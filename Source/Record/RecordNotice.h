// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
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
        Unmute,       ///< the muted input device
        FreeSpace     ///< the folder on the full disk in the file manager
    };

    QString text;
    /// The path at the end of the text; empty when the text needs none.
    QString path{};
    Help help = Help::None;
    /// The file or folder that the help is about, when it is not the path.
    QString target{};
    /// Identifies the event: a newer notice about an event replaces the older one. Empty when nothing replaces it.
    QString event{};
    /// Grows when the event becomes more urgent; the user is then told again.
    int stage = 0;
    /// Files in the folder of unfinished recordings. Each start shows them again until the user has dismissed them.
    QStringList kept{};
    /// The notice stays when the next recording starts.
    bool outlivesRecording = false;

    /// Text and path as one sentence.
    [[nodiscard]] QString sentence() const {
        if (kept.size() == 2)
            return text + u' ' +
                   QCoreApplication::translate("Record", "%1 and %2", "two paths").arg(kept.at(0), kept.at(1));
        return path.isEmpty() ? text : text + u' ' + path;
    }
    friend bool operator==(const RecordNotice&, const RecordNotice&) = default;
};

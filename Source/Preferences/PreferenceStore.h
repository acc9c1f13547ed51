// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"

#include <atomic>
#include <cstdint>

/// Milliseconds of silence after which a computer-audio recording is split; -1 is off. Written on the main thread (at
/// launch and when the preferences window closes), read on I/O threads.
extern std::atomic<std::int32_t> g_SplitTimeMS;

/// The private temporary folder of this program: the user's temporary folder and the bundle identifier. Raw recordings,
/// mixes and the temporary files of conversion and tagging live here; every launch begins with an empty one.
/// Set once at launch, before any other thread runs.
extern QString g_strTmpPath;

/// The one gate to the stored settings. The window that edits them forwards its operations here.
namespace PreferenceStore {

inline const QString PreferenceSplitKey = QStringLiteral("PreferenceSplitKey");
inline const QString PreferenceSplitTimeMSKey = QStringLiteral("PreferenceSplitTimeMSKey");
inline const QString PreferenceFilterKey = QStringLiteral("PreferenceFilterKey");
inline const QString PreferenceFilterTimeKey = QStringLiteral("PreferenceFilterTimeKey");
inline const QString PreferenceSavePathKey = QStringLiteral("PreferenceSavePathKey");
inline const QString PreferenceRingtoneSavePathKey = QStringLiteral("PreferenceRingtoneSavePathKey");
inline const QString ChooseRecordBuiltIn = QStringLiteral("ChooseRecordBuiltIn");
inline const QString ChooseRecordComputerAudio = QStringLiteral("ChooseRecordComputerAudio");
inline const QString PreferenceStartStopShortcutKey = QStringLiteral("PreferenceStartStopShortcutKey");
inline const QString PreferencePauseResumeShortcutKey = QStringLiteral("PreferencePauseResumeShortcutKey");
inline const QString PreferenceStartNewRecordShortcutKey = QStringLiteral("PreferenceStartNewRecordShortcutKey");
inline const QString kMediaLibrarySavedKey = QStringLiteral("kMediaLibrarySavedKey");

/// The stored object as it is, or @p defaultObject when there is none; nothing is written.
[[nodiscard]] QVariant preferenceValueForKey(const QString& key, const QVariant& defaultObject);
/// Stores the object exactly as given.
void setPreferenceValue(const QVariant& object, const QString& key);

/// $HOME/Music/<bundle identifier>, evaluated afresh at each call.
[[nodiscard]] QString defaultMusicFolder();
/// The folder that a stored value names. A value that is no text, is empty or is no absolute path gives
/// defaultMusicFolder(): a relative one would depend on where the program was started.
[[nodiscard]] QString folderOf(const QVariant& stored);

/// -1 when splitting is off, else the leading integer of the stored time: what g_SplitTimeMS is set to at launch.
[[nodiscard]] std::int32_t storedSplitTimeMS();

} // namespace PreferenceStore

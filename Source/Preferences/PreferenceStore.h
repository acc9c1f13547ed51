// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"

#include <atomic>
#include <cstdint>

/// Milliseconds of silence after which a computer-audio recording is split; -1 is off. Written on the main thread (at
/// launch and when the preferences window closes), read on I/O threads.
extern std::atomic<std::int32_t> g_SplitTimeMS;

/// The private temporary folder of this program: the user's temporary folder plus the bundle identifier. Contains raw
/// recordings, mixes and the temporary files of conversion and tagging; every launch starts with an empty one. Set once
/// at launch, before any other thread runs.
extern QString g_strTmpPath;

/// All access to the stored settings. The preferences window forwards its operations here.
/// Source/Preferences/Settings.h defines the types and defaults of the settings.
namespace PreferenceStore {

inline const QString PreferenceSplitKey = QStringLiteral("PreferenceSplitKey");
inline const QString PreferenceSplitTimeMSKey = QStringLiteral("PreferenceSplitTimeMSKey");
inline const QString PreferenceFilterKey = QStringLiteral("PreferenceFilterKey");
inline const QString PreferenceFilterTimeKey = QStringLiteral("PreferenceFilterTimeKey");
/// Milliseconds of the time before the first sound with which an armed recording begins; a number, 0 by default.
inline const QString PreferencePreRollMSKey = QStringLiteral("PreferencePreRollMSKey");
/// Whether parts get the titles that media players name; a number, 0 by default.
inline const QString PreferenceTitlesKey = QStringLiteral("PreferenceTitlesKey");
/// Whether a recording is cut where a media player changes the track; a number, 0 by default.
inline const QString PreferenceCutAtTracksKey = QStringLiteral("PreferenceCutAtTracksKey");
/// Whether a recording of both sources also keeps input and computer audio as files of their own; a number, 0 by
/// default.
inline const QString PreferenceKeepTracksKey = QStringLiteral("PreferenceKeepTracksKey");
inline const QString PreferenceSavePathKey = QStringLiteral("PreferenceSavePathKey");
inline const QString PreferenceRingtoneSavePathKey = QStringLiteral("PreferenceRingtoneSavePathKey");
/// Whether desktop notifications report recordings while the window is not in front; a number, 1 by default.
inline const QString PreferenceNotificationsKey = QStringLiteral("PreferenceNotificationsKey");
inline const QString ChooseRecordBuiltIn = QStringLiteral("ChooseRecordBuiltIn");
inline const QString ChooseRecordComputerAudio = QStringLiteral("ChooseRecordComputerAudio");
/// Which programs a recording of computer audio takes: a dictionary, see RecordPrograms.
inline const QString ChooseRecordPrograms = QStringLiteral("ChooseRecordPrograms");
inline const QString PreferenceStartStopShortcutKey = QStringLiteral("PreferenceStartStopShortcutKey");
inline const QString PreferencePauseResumeShortcutKey = QStringLiteral("PreferencePauseResumeShortcutKey");
inline const QString PreferenceStartNewRecordShortcutKey = QStringLiteral("PreferenceStartNewRecordShortcutKey");
/// Unfinished recordings that the user has dismissed: file names with their times, as text.
inline const QString kUnfinishedSeenKey = QStringLiteral("kUnfinishedSeenKey");
inline const QString kMediaLibrarySavedKey = QStringLiteral("kMediaLibrarySavedKey");

/// The stored object, or @p defaultObject when there is none; nothing is written.
[[nodiscard]] QVariant preferenceValueForKey(const QString& key, const QVariant& defaultObject);
/// Stores the object unchanged.
void setPreferenceValue(const QVariant& object, const QString& key);

/// $HOME/Music/<bundle identifier>, evaluated at each call.
[[nodiscard]] QString defaultMusicFolder();
} // namespace PreferenceStore

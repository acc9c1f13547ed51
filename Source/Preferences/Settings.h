// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"
#include "Source/Preferences/PreferenceStore.h"

#include <cstdint>

/// The table of the stored settings: the only place that defines the key, type and default of each.
namespace Settings {

enum class Type {
    Number,    ///< a number, a boolean or a text; Platform::intValue() and similar functions convert texts
    Folder,    ///< a text, an absolute path. The default is PreferenceStore::defaultMusicFolder()
    Dictionary ///< a dictionary; by default an empty one
};

struct Setting {
    QString key;
    Type type;
    QVariant byDefault{}; ///< for a Number only

    [[nodiscard]] QVariant defaultObject() const;
    /// @p stored unchanged, or the default when @p stored is invalid or has another type.
    [[nodiscard]] QVariant usable(const QVariant& stored) const;
};

inline const Setting split{PreferenceStore::PreferenceSplitKey, Type::Number, 0};
inline const Setting splitTimeMS{PreferenceStore::PreferenceSplitTimeMSKey, Type::Number, QStringLiteral("300")};
inline const Setting filter{PreferenceStore::PreferenceFilterKey, Type::Number, 1};
inline const Setting filterTime{PreferenceStore::PreferenceFilterTimeKey, Type::Number, QStringLiteral("5")};
inline const Setting preRollMS{PreferenceStore::PreferencePreRollMSKey, Type::Number, 0};
inline const Setting keepTracks{PreferenceStore::PreferenceKeepTracksKey, Type::Number, 0};
inline const Setting savePath{PreferenceStore::PreferenceSavePathKey, Type::Folder};
inline const Setting ringtoneSavePath{PreferenceStore::PreferenceRingtoneSavePathKey, Type::Folder};
inline const Setting notifications{PreferenceStore::PreferenceNotificationsKey, Type::Number, 1};
inline const Setting recordBuiltIn{PreferenceStore::ChooseRecordBuiltIn, Type::Number, true};
inline const Setting recordComputerAudio{PreferenceStore::ChooseRecordComputerAudio, Type::Number, false};
inline const Setting titles{PreferenceStore::PreferenceTitlesKey, Type::Number, 0};
inline const Setting cutAtTracks{PreferenceStore::PreferenceCutAtTracksKey, Type::Number, 0};
inline const Setting recordPrograms{PreferenceStore::ChooseRecordPrograms, Type::Dictionary};

/// A key combination. KeybordShortcutTextView defines the stored object and decides which objects are usable.
struct Shortcut {
    QString key;
    QString characters;    ///< of the default combination, which also has the Command and the Control key
    std::uint16_t keyCode; ///< of the default combination
};

inline const Shortcut startStop{PreferenceStore::PreferenceStartStopShortcutKey, QStringLiteral("s"), 1};
inline const Shortcut pauseResume{PreferenceStore::PreferencePauseResumeShortcutKey, QStringLiteral("p"), 35};
inline const Shortcut startNewRecord{PreferenceStore::PreferenceStartNewRecordShortcutKey, QStringLiteral("n"), 45};

/// The stored value when it is usable, else the default.
[[nodiscard]] QVariant value(const Setting& setting);
void setValue(const QVariant& object, const Setting& setting);

/// The value of g_SplitTimeMS at launch: -1 when splitting is off, else the leading integer of the stored time.
[[nodiscard]] std::int32_t storedSplitTimeMS();

/// Largest value of preRollMS; larger ones count as this one, negative ones as 0.
inline constexpr int LongestPreRollMS = 5000;

} // namespace Settings

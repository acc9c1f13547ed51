// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"
#include "Source/Preferences/PreferenceStore.h"

#include <cstdint>

/// The settings that the store keeps: key, type and default of each stand here and nowhere else.
namespace Settings {

enum class Type {
    Number, ///< a number, a boolean or a text; Platform::intValue() and the like say which number a text stands for
    Folder  ///< a text, an absolute path. The default is PreferenceStore::defaultMusicFolder()
};

struct Setting {
    QString key;
    Type type;
    QVariant byDefault{}; ///< of a number

    [[nodiscard]] QVariant defaultObject() const;
    /// @p stored as it is, or the default when nothing is stored or the stored object is not of the type.
    [[nodiscard]] QVariant usable(const QVariant& stored) const;
};

inline const Setting split{PreferenceStore::PreferenceSplitKey, Type::Number, 0};
inline const Setting splitTimeMS{PreferenceStore::PreferenceSplitTimeMSKey, Type::Number, QStringLiteral("300")};
inline const Setting filter{PreferenceStore::PreferenceFilterKey, Type::Number, 1};
inline const Setting filterTime{PreferenceStore::PreferenceFilterTimeKey, Type::Number, QStringLiteral("5")};
inline const Setting savePath{PreferenceStore::PreferenceSavePathKey, Type::Folder};
inline const Setting ringtoneSavePath{PreferenceStore::PreferenceRingtoneSavePathKey, Type::Folder};
inline const Setting notifications{PreferenceStore::PreferenceNotificationsKey, Type::Number, 1};
inline const Setting recordBuiltIn{PreferenceStore::ChooseRecordBuiltIn, Type::Number, true};
inline const Setting recordComputerAudio{PreferenceStore::ChooseRecordComputerAudio, Type::Number, false};

/// A key combination. The object that is stored, and which object is usable, belong to KeybordShortcutTextView.
struct Shortcut {
    QString key;
    QString characters;    ///< of the default, which also has the Command and the Control key
    std::uint16_t keyCode; ///< of the default
};

inline const Shortcut startStop{PreferenceStore::PreferenceStartStopShortcutKey, QStringLiteral("s"), 1};
inline const Shortcut pauseResume{PreferenceStore::PreferencePauseResumeShortcutKey, QStringLiteral("p"), 35};
inline const Shortcut startNewRecord{PreferenceStore::PreferenceStartNewRecordShortcutKey, QStringLiteral("n"), 45};

/// The usable object of the store.
[[nodiscard]] QVariant value(const Setting& setting);
void setValue(const QVariant& object, const Setting& setting);

/// -1 when splitting is off, else the leading integer of the stored time: what g_SplitTimeMS is set to at launch.
[[nodiscard]] std::int32_t storedSplitTimeMS();

} // namespace Settings

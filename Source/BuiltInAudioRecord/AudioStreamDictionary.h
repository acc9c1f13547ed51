// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/AudioTypes.h"
#include "Platform/Foundation/Dictionary.h"

/// Stream descriptions as dictionaries of property-list values. Any thread.

inline const QString UKAudioStreamSampleRate = QStringLiteral("UKAudioStreamSampleRate");
inline const QString UKAudioStreamFormat = QStringLiteral("UKAudioStreamFormat");
inline const QString UKAudioStreamFormatFlags = QStringLiteral("UKAudioStreamFormatFlags");
inline const QString UKAudioStreamBytesPerPacket = QStringLiteral("UKAudioStreamBytesPerPacket");
inline const QString UKAudioStreamFramesPerPacket = QStringLiteral("UKAudioStreamFramesPerPacket");
inline const QString UKAudioStreamBytesPerFrame = QStringLiteral("UKAudioStreamBytesPerFrame");
inline const QString UKAudioStreamChannelsPerFrame = QStringLiteral("UKAudioStreamChannelsPerFrame");
inline const QString UKAudioStreamBitsPerChannel = QStringLiteral("UKAudioStreamBitsPerChannel");

/// All eight fields; mReserved is not stored.
[[nodiscard]] Dictionary UKDictionaryFromAudioStreamDescription(const AudioStreamBasicDescription& description);
/// Fields whose key is absent become 0.
void UKAudioStreamDescriptionFromDictionary(const Dictionary& dictionary, AudioStreamBasicDescription& description);
/// The four bytes of the ID, highest first, read as Mac OS Roman text: "lpcm".
[[nodiscard]] QString UKStringFromAudioStreamFormatID(std::uint32_t formatID);
/// 0 unless the text consists of four characters of Mac OS Roman.
[[nodiscard]] std::uint32_t UKAudioStreamFormatIDFromString(const QString& text);

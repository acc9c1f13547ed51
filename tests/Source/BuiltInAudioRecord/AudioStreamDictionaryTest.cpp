// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/BuiltInAudioRecord/AudioStreamDictionary.h"

#include <gtest/gtest.h>

namespace {

AudioStreamBasicDescription aacDescription() {
    AudioStreamBasicDescription description;
    description.mSampleRate = 44100.5;
    description.mFormatID = kAudioFormatMPEG4AAC;
    description.mFormatFlags = 0xF0000001U;
    description.mBytesPerPacket = 3;
    description.mFramesPerPacket = 1024;
    description.mBytesPerFrame = 8;
    description.mChannelsPerFrame = 2;
    description.mBitsPerChannel = 32;
    return description;
}

} // namespace

TEST(AudioStreamDictionary, StoresEveryField) {
    const Dictionary dictionary = UKDictionaryFromAudioStreamDescription(aacDescription());
    EXPECT_EQ(dictionary.size(), 8);
    EXPECT_EQ(dictionary.value(QStringLiteral("UKAudioStreamFormat")).toString(), QStringLiteral("aac "));
    EXPECT_EQ(dictionary.value(QStringLiteral("UKAudioStreamSampleRate")).toDouble(), 44100.5);
    EXPECT_EQ(dictionary.value(QStringLiteral("UKAudioStreamFormatFlags")).toUInt(), 0xF0000001U);
    EXPECT_EQ(dictionary.value(QStringLiteral("UKAudioStreamBytesPerPacket")).toUInt(), 3U);
    EXPECT_EQ(dictionary.value(QStringLiteral("UKAudioStreamFramesPerPacket")).toUInt(), 1024U);
    EXPECT_EQ(dictionary.value(QStringLiteral("UKAudioStreamBytesPerFrame")).toUInt(), 8U);
    EXPECT_EQ(dictionary.value(QStringLiteral("UKAudioStreamChannelsPerFrame")).toUInt(), 2U);
    EXPECT_EQ(dictionary.value(QStringLiteral("UKAudioStreamBitsPerChannel")).toUInt(), 32U);
}

TEST(AudioStreamDictionary, RestoresEveryFieldButTheReservedOne) {
    AudioStreamBasicDescription before = aacDescription();
    before.mReserved = 7;
    AudioStreamBasicDescription after;
    after.mReserved = 9;
    UKAudioStreamDescriptionFromDictionary(UKDictionaryFromAudioStreamDescription(before), after);
    before.mReserved = 0;
    EXPECT_EQ(after, before);
}

TEST(AudioStreamDictionary, LeavesAbsentFieldsZero) {
    Dictionary dictionary = UKDictionaryFromAudioStreamDescription(aacDescription());
    dictionary.remove(UKAudioStreamFormat);
    AudioStreamBasicDescription description = aacDescription();
    UKAudioStreamDescriptionFromDictionary(dictionary, description);
    EXPECT_EQ(description.mFormatID, 0U);
    EXPECT_EQ(description.mFramesPerPacket, 1024U);
    UKAudioStreamDescriptionFromDictionary({}, description);
    EXPECT_EQ(description, AudioStreamBasicDescription());
}

TEST(AudioStreamDictionary, SpellsFormatsInMacOSRoman) {
    EXPECT_EQ(UKStringFromAudioStreamFormatID(kAudioFormatLinearPCM), QStringLiteral("lpcm"));
    EXPECT_EQ(UKStringFromAudioStreamFormatID(0x80A0CAFFU), QStringLiteral("\u00C4\u2020\u00A0\u02C7"));
    EXPECT_EQ(UKAudioStreamFormatIDFromString(QStringLiteral("\u00C4\u2020\u00A0\u02C7")), 0x80A0CAFFU);
    EXPECT_EQ(UKStringFromAudioStreamFormatID(0), QString(4, QChar(u'\0')));
}

TEST(AudioStreamDictionary, RoundTripsEveryByteInEveryPosition) {
    for (std::uint32_t byte = 0; byte < 256; ++byte)
        for (int shift = 0; shift < 32; shift += 8) {
            const std::uint32_t formatID = (0x6D6D6D6DU & ~(0xFFU << shift)) | (byte << shift);
            EXPECT_EQ(UKAudioStreamFormatIDFromString(UKStringFromAudioStreamFormatID(formatID)), formatID);
        }
}

TEST(AudioStreamDictionary, RejectsFormatsOfAnotherLengthOrAlphabet) {
    EXPECT_EQ(UKAudioStreamFormatIDFromString(QStringLiteral("lpcm2")), 0U);
    EXPECT_EQ(UKAudioStreamFormatIDFromString(QStringLiteral("aac")), 0U);
    EXPECT_EQ(UKAudioStreamFormatIDFromString(QString()), 0U);
    EXPECT_EQ(UKAudioStreamFormatIDFromString(QStringLiteral("аас ")), 0U) << "these letters are Cyrillic";
    EXPECT_EQ(UKAudioStreamFormatIDFromString(QStringLiteral("ab\U0001F399")), 0U);
}

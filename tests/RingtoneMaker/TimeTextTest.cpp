// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RingtoneMaker/AudioTimeFormatter.h"
#include "RingtoneMaker/ValueTransformers.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QString shown(double seconds) {
    return AudioWaveTime2TimeStringTransformer().transformedValue(seconds).toString();
}

TEST(AudioTimeFormatter, AcceptsOnlyThreeShortPartsOfDigitsUpTo59) {
    for (const auto& text : {u"00:4:"_s, u"00:00:00"_s, u"::"_s, u"59:59:59"_s, u"1:2:3"_s})
        EXPECT_TRUE(AudioTimeFormatter::isPartialStringValid(text)) << qPrintable(text);
    for (const auto& text : {u"00:60:00"_s, u"000:00:00"_s, u"00:0a:00"_s, u"00:00"_s, u""_s, u"1:2:3:4"_s,
                             u"-1:00:00"_s, u" 1:00:00"_s, u"\u0661:00:00"_s})
        EXPECT_FALSE(AudioTimeFormatter::isPartialStringValid(text)) << qPrintable(text);
}

TEST(AudioTimeFormatter, GivesNeitherReplacementNorErrorText) {
    QString replacement = u"as it was"_s;
    QString error = u"as it was"_s;
    EXPECT_FALSE(AudioTimeFormatter::isPartialStringValid(u"00:60:00"_s, &replacement, &error));
    EXPECT_EQ(replacement, u"as it was"_s);
    EXPECT_EQ(error, u"as it was"_s);
}

TEST(AudioTimeFormatter, CapsEachPartAt59TheHoursToo) {
    QString object;
    EXPECT_TRUE(AudioTimeFormatter::getObjectValue(object, u"1:75:3"_s));
    EXPECT_EQ(object, u"01:59:03"_s);
    EXPECT_TRUE(AudioTimeFormatter::getObjectValue(object, u"99:00:00"_s));
    EXPECT_EQ(object, u"59:00:00"_s);
    EXPECT_TRUE(AudioTimeFormatter::getObjectValue(object, u"-1::59"_s));
    EXPECT_EQ(object, u"59:00:59"_s);
}

TEST(AudioTimeFormatter, ShowsTextsAndNothingElse) {
    EXPECT_EQ(AudioTimeFormatter::stringForObjectValue(u"00:01:02"_s), u"00:01:02"_s);
    EXPECT_TRUE(AudioTimeFormatter::stringForObjectValue(5).isNull());
    EXPECT_TRUE(AudioTimeFormatter::stringForObjectValue({}).isNull());
}

TEST(AudioTimeFormatter, CountsAnEmptyTextAsDigits) {
    EXPECT_TRUE(AudioTimeFormatter::isIntStr(u""_s));
    EXPECT_TRUE(AudioTimeFormatter::isIntStr(u"0123456789"_s));
    EXPECT_FALSE(AudioTimeFormatter::isIntStr(u"1 "_s));
}

TEST(TimeTransformers, ShowSecondsAsHoursMinutesAndSeconds) {
    EXPECT_EQ(shown(3725.9), u"01:02:05"_s);
    EXPECT_EQ(shown(0), u"00:00:00"_s);
    EXPECT_EQ(shown(360000), u"100:00:00"_s);
    EXPECT_EQ(Time2PlayTimeStringTransformer().transformedValue(59.99).toString(), u"00:00:59"_s);
    EXPECT_EQ(shown(1e30), u"00:00:00"_s);
}

TEST(TimeTransformers, ReadSecondsFromExactlyThreeParts) {
    using Transformer = AudioWaveTime2TimeStringTransformer;
    EXPECT_EQ(Transformer::stringToSecond(u"01:02:05"_s), 3725);
    EXPECT_EQ(Transformer::stringToSecond(u"1:2"_s), 0);
    EXPECT_EQ(Transformer::stringToSecond(u"::"_s), 0);
    EXPECT_EQ(Transformer::stringToSecond(u"1:2:3:4"_s), 0);
    EXPECT_EQ(Transformer().reverseTransformedValue(u"00:01:01"_s), QVariant(61));
}

TEST(TimeTransformers, DeclareANumberAlthoughTheyGiveAText) {
    EXPECT_EQ(AudioWaveTime2TimeStringTransformer().transformedValueClass(), QMetaType::fromType<double>());
    EXPECT_EQ(IntegerDiv10Transformer().transformedValueClass(), QMetaType::fromType<double>());
    EXPECT_EQ(FilePath2NameTransformer().transformedValueClass(), QMetaType::fromType<QString>());
}

TEST(IntegerDiv10Transformer, TruncatesTowardsZero) {
    EXPECT_EQ(IntegerDiv10Transformer().transformedValue(25), QVariant(2));
    EXPECT_EQ(IntegerDiv10Transformer().transformedValue(-25), QVariant(-2));
}

TEST(FilePath2NameTransformer, RemovesFolderAndExtension) {
    const FilePath2NameTransformer transformer;
    EXPECT_EQ(transformer.transformedValue(u"/home/a/Music/Ringtone3.m4r"_s), QVariant(u"Ringtone3"_s));
    EXPECT_EQ(transformer.transformedValue(u"/a.b/Track 1.5.m4a"_s), QVariant(u"Track 1.5"_s));
}

TEST(ValueTransformers, AreFoundByTheirClassNames) {
    for (const auto& name : {u"AudioWaveTime2TimeStringTransformer"_s, u"Time2PlayTimeStringTransformer"_s,
                             u"FilePath2NameTransformer"_s, u"IntegerDiv10Transformer"_s, u"CustomValueTransformer"_s})
        EXPECT_NE(ValueTransformer::valueTransformerForName(name), nullptr) << qPrintable(name);
    EXPECT_EQ(ValueTransformer::valueTransformerForName(u"Other"_s), nullptr);
}

} // namespace

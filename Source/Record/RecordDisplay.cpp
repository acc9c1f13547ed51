// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Record/RecordDisplay.h"

#include "Source/Record/RecordState.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

QString twoDigits(std::int64_t number) {
    return u"%1"_s.arg(number, 2, 10, QChar(u'0'));
}

QString clock(double seconds) {
    const auto whole = static_cast<std::int64_t>(seconds);
    const QString minutesAndSeconds = twoDigits(whole / 60 % 60) + u':' + twoDigits(whole % 60);
    return whole < 3600 ? minutesAndSeconds : u"%1:%2"_s.arg(whole / 3600).arg(minutesAndSeconds);
}

} // namespace

RecordDisplay RecordDisplay::of(int recordState, float seconds, bool blinkOn) {
    const auto whole = static_cast<std::int64_t>(seconds);
    // Hours are not shown: the minutes restart after 59.
    const QString minutes = twoDigits(whole / 60 % 60);
    const QString minutesAndSeconds = minutes + u':' + twoDigits(whole % 60);
    switch (recordState) {
    case 1:
        return {blinkOn ? QCoreApplication::translate("Record", "Rec..") : QCoreApplication::translate("Record", "Rec"),
                minutesAndSeconds, Qt::red};
    case 2:
        return {QCoreApplication::translate("Record", "Pause"), blinkOn ? minutesAndSeconds : minutes + u':',
                Qt::black};
    default:
        return {QCoreApplication::translate("Record", "Ready"), blinkOn ? u"00:00"_s : u"00:"_s, Qt::black};
    }
}

QString RecordDisplay::headline(RecordState state, double seconds) {
    switch (state) {
    case RecordState::Idle:
        return {};
    case RecordState::Armed:
        return QCoreApplication::translate("Record", "Waiting for the first sound");
    case RecordState::Recording:
        return QCoreApplication::translate("Record", "Recording %1").arg(clock(seconds));
    case RecordState::Paused:
        return QCoreApplication::translate("Record", "Paused %1").arg(clock(seconds));
    case RecordState::Finishing:
        return QCoreApplication::translate("Record", "Finishing the recording");
    }
    return {};
}

bool RecordDisplay::blinkOn(double timeIntervalSinceReferenceDate) {
    const auto halfSeconds = static_cast<std::int64_t>(2 * timeIntervalSinceReferenceDate + 0.1);
    return halfSeconds % 2 == 0;
}

QString RecordDisplay::convertingTip(bool blinkOn) {
    return blinkOn ? QCoreApplication::translate("Record", "         Audio File Converting\n         Please Wait ..")
                   : QCoreApplication::translate("Record", "         Audio File Converting\n         Please Wait ");
}

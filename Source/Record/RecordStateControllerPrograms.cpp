// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The record state controller's choice of programs, and how the driver gets it.
#include "CaptureComputerAudio/CaptureComputerAudio.h"
#include "Platform/Audio/AudioHardware.h"
#include "Platform/Foundation/Services.h"
#include "Source/Record/RecordStateControllerPrivate.h"

#include <QCoreApplication>
#include <QThread>
#include <QTimer>

#include <chrono>

using namespace Qt::StringLiterals;

namespace {

constexpr int ChoosePatienceMs = 2000;
/// Sound from before a change of the choice is still on its way through the sound server and the capture ring: a few
/// cycles of at most 43 ms.
constexpr int OnItsWayMs = 150;

} // namespace

const RecordPrograms& RecordStateController::recordPrograms() const {
    return d->programs_;
}

void RecordStateController::chooseRecordPrograms(const RecordPrograms& programs) {
    if (d->isActive())
        return;
    d->programs_ = programs;
    d->preferences->setValue(programs.toStored(), Settings::recordPrograms);
    if (programs.mode != RecordPrograms::Mode::Everything)
        watchPrograms();
    // Waits, so that the answer is known: the menu was just closed, and the driver answers within milliseconds.
    (void)d->applyPrograms(ChoosePatienceMs);
    d->changed();
}

QString RecordStateController::waitingForPrograms() const {
    if (d->programs_.mode != RecordPrograms::Mode::Only || !d->isActive() || !d->computer.takesPart())
        return {};
    auto* hardware = Platform::services().audioHardware;
    return hardware ? d->programs_.waiting(hardware->playingPrograms()) : QString();
}

void RecordStateController::watchPrograms() {
    auto* hardware = Platform::services().audioHardware;
    if (!hardware || d->programsWatched_)
        return;
    d->programsWatched_ = true;
    const auto follow = [this, hardware] {
        d->programs_.remember(hardware->playingPrograms());
        Q_EMIT programsChanged();
    };
    connect(hardware, &Platform::AudioHardware::playingProgramsChanged, this, follow);
    follow();
}

void RecordStateController::Private::readPrograms() {
    programs_ = RecordPrograms::fromStored(preferences->value(Settings::recordPrograms));
}

/// Gives the driver the choice. False when it cannot follow it. Without a choice nothing is sent, unless an earlier one
/// was.
bool RecordStateController::Private::applyPrograms(int patienceMs) {
    const bool everything = programs_.mode == RecordPrograms::Mode::Everything;
    const AudioObjectID device = devices->computerAudioDeviceID();
    if (device == 0 || !computer.engine->records(device) || (everything && !programsChosen_ && patienceMs == 0))
        return true;
    const auto answer = CaptureComputerAudio::choosePrograms(programs_.choice(), patienceMs);
    programsChosen_ = programsChosen_ || !everything;
    if (answer == CaptureComputerAudio::Choosing::Changed) {
        programsSent_.start();
        QTimer::singleShot(OnItsWayMs, q, [this] { forgetPreRoll(); });
    }
    if (patienceMs > 0 && programsSent_.isValid() && programsSent_.elapsed() < OnItsWayMs) {
        QThread::msleep(static_cast<unsigned long>(OnItsWayMs - programsSent_.elapsed()));
        forgetPreRoll();
    }
    return answer != CaptureComputerAudio::Choosing::NotPossible;
}

/// What it holds was captured with the old choice.
void RecordStateController::Private::forgetPreRoll() {
    if (isActive() || anyEngineRecords())
        return;
    computer.engine->setPreRoll(std::chrono::milliseconds(0));
    applyPreRoll();
}

/// Why computer audio cannot be recorded with the chosen programs; empty when it can. Takes the claim.
QString RecordStateController::Private::whyNoPrograms() {
    if (!claim_.take(programs_.choice()))
        return QCoreApplication::translate("RecordStateController",
                                           "another recording of computer audio runs with other programs");
    if (applyPrograms(ChoosePatienceMs))
        return {};
    claim_.release();
    return QCoreApplication::translate(
        "RecordStateController", "the computer-audio device cannot choose programs; remove it and install it again");
}

/// The driver starts again with its server and then knows no choice.
void RecordStateController::Private::keepPrograms() {
    releaseClaim();
    if (programs_.mode != RecordPrograms::Mode::Everything && isActive() && computer.takesPart())
        (void)applyPrograms(0);
}

void RecordStateController::Private::releaseClaim() {
    if (claim_.isHeld() && !isActive() && !anyEngineRecords() && !q->isWaittingForSound())
        claim_.release();
}

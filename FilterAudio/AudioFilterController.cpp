// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "FilterAudio/AudioFilterController.h"

#include "Platform/Desktop/Alerts.h"
#include "Platform/Foundation/Services.h"

AudioFilterController::AudioFilterController(QObject* parent) : QObject(parent) {
}

bool AudioFilterController::runRemoveAudioAlert() {
    // "Cancel" is the default button, so that a stray Enter keeps the files.
    return Platform::services().alerts->runModal(QStringLiteral("Do you want to move these items to the trash?"), {},
                                                 {QStringLiteral("Cancel"), QStringLiteral("Remove")}) == 1;
}

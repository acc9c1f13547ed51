// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/CDBurn/BurnState.h"

#include <QCoreApplication>

BurnState burnState(const BurnConditions& conditions) {
    if (conditions.listIsEmpty)
        return BurnState::NoMusic;
    if (!conditions.mounted)
        return BurnState::NoDisc;
    if (!conditions.blank)
        return conditions.erasable ? BurnState::Erasable : BurnState::NotBlank;
    return conditions.musicSize > conditions.discFreeSize ? BurnState::NoRoom : BurnState::Ready;
}

QString burnStateMessage(BurnState state) {
    switch (state) {
    case BurnState::NoMusic:
        return QCoreApplication::translate("BurnState", "Waiting for the import Music File");
    case BurnState::NoDisc:
        return QCoreApplication::translate("BurnState", "Waiting for the inserted Disc");
    case BurnState::Erasable:
        return QCoreApplication::translate("BurnState", "Is not blank, Please erase the Disc");
    case BurnState::NotBlank:
        return QCoreApplication::translate("BurnState", "Is not blank, Please replace the Disc");
    case BurnState::NoRoom:
        return QCoreApplication::translate("BurnState", "Disc space not enough for music");
    case BurnState::Ready:
        return QCoreApplication::translate("BurnState", "Ready to burn");
    }
    return {};
}

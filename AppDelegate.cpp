// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "AppDelegate.h"

AppDelegate::AppDelegate(QObject* parent) : QObject(parent) {
}
AppDelegate::~AppDelegate() = default;

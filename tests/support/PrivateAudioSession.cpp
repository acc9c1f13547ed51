// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/PrivateAudioSession.h"

#include <cstdlib>

#include <QDebug>

std::unique_ptr<PrivateAudioSession>& PrivateAudioSession::instance() {
    static std::unique_ptr<PrivateAudioSession> shared;
    return shared;
}

PrivateAudioSession& PrivateAudioSession::shared() {
    auto& shared = instance();
    if (!shared) {
        shared = std::make_unique<PrivateAudioSession>();
        QString why;
        shared->session_ = Platform::LinuxPrivateSession::start({}, why);
        if (!shared->session_) {
            qCritical() << "no private audio session:" << why;
            std::exit(1);
        }
    }
    if (shared->stopped_ && !shared->startServer()) {
        qCritical() << "the private audio session did not come back";
        std::exit(1);
    }
    return *shared;
}

void PrivateAudioSession::end() {
    instance().reset();
}

bool PrivateAudioSession::stopServer() {
    stopped_ = session_->stopServer();
    return stopped_;
}

bool PrivateAudioSession::startServer() {
    stopped_ = !session_->startServer();
    return !stopped_;
}

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/PrivateAudioSession.h"

#include <cstdlib>

#include <QDebug>
#include <QDir>
#include <QFile>

std::unique_ptr<PrivateAudioSession>& PrivateAudioSession::instance() {
    static std::unique_ptr<PrivateAudioSession> shared;
    return shared;
}

PrivateAudioSession& PrivateAudioSession::shared() {
    auto& shared = instance();
    if (!shared) {
        shared = std::make_unique<PrivateAudioSession>();
        auto started = Platform::LinuxPrivateSession::start({});
        if (!started) {
            qCritical() << "no private audio session:" << started.error().text;
            std::exit(1);
        }
        shared->session_ = *std::move(started);
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

pid_t PrivateAudioSession::serverProcess() const {
    for (const QString& pid : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile stat(QStringLiteral("/proc/%1/stat").arg(pid));
        if (!stat.open(QIODevice::ReadOnly))
            continue;
        const QByteArray all = stat.readAll();
        const auto end = all.lastIndexOf(')');
        const QByteArray name = all.mid(all.indexOf('(') + 1, end - all.indexOf('(') - 1);
        const auto parent = all.mid(end + 2).split(' ').value(1).toInt();
        if (name == "pipewire" && parent == session_->keeper())
            return pid.toInt();
    }
    return -1;
}

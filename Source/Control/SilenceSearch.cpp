// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Control/SilenceSearch.h"

#include "Platform/Foundation/MainQueue.h"
#include "Platform/Media/EncodedAudio.h"

#include <QElapsedTimer>

#include <functional>
#include <utility>

namespace {
constexpr int kMillisecondsBetweenReports = 50;
}

SilenceSearch::SilenceSearch(QObject* parent) : QObject(parent) {
}

SilenceSearch::~SilenceSearch() {
    stop();
}

void SilenceSearch::stop() {
    if (cancelled_)
        *cancelled_ = true;
    if (worker_.joinable())
        worker_.join();
}

void SilenceSearch::load(const QString& path) {
    stop();
    map_.reset();
    problem_.clear();
    cancelled_ = std::make_shared<std::atomic<bool>>(false);
    worker_ = std::thread([this, path, cancelled = cancelled_] {
        const auto post = [this, &cancelled](std::function<void()> work) {
            Platform::MainQueue::post(this, [cancelled, work = std::move(work)] {
                if (!*cancelled)
                    work();
            });
        };
        const auto refuse = [&](const QString& why) {
            post([this, why] {
                problem_ = why;
                Q_EMIT finished();
            });
        };
        // The files of other programs cannot be cut without encoding them again.
        if (const auto audio = Platform::openEncodedAudio(path); !audio)
            return refuse(audio.error().text);
        QElapsedTimer sinceReport;
        sinceReport.start();
        auto read = SilenceMap::read(path, [&](double share) {
            if (sinceReport.elapsed() >= kMillisecondsBetweenReports) {
                sinceReport.start();
                post([this, share] { Q_EMIT progressed(share); });
            }
            return !*cancelled;
        });
        if (!read)
            return refuse(read.error().text);
        post([this, map = std::make_shared<const SilenceMap>(*std::move(read))] {
            map_ = map;
            Q_EMIT finished();
        });
    });
}

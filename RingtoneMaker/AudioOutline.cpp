// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RingtoneMaker/AudioOutline.h"

#include "Platform/Foundation/MainQueue.h"
#include "RingtoneMaker/AudioExtractWave.h"

#include <QElapsedTimer>

#include <algorithm>
#include <cmath>
#include <functional>
#include <span>
#include <utility>

namespace {
constexpr int kMillisecondsBetween = 50; ///< between two grew() signals
}

AudioOutline::AudioOutline(QObject* parent) : QObject(parent) {
}

AudioOutline::~AudioOutline() {
    stop();
}

void AudioOutline::stop() {
    if (cancelled_)
        *cancelled_ = true;
    if (worker_.joinable())
        worker_.join();
}

void AudioOutline::load(const QString& path) {
    stop();
    values_.clear();
    problem_.clear();
    cancelled_ = std::make_shared<std::atomic<bool>>(false);
    worker_ = std::thread([this, path, cancelled = cancelled_] {
        const auto post = [this, &cancelled](std::function<void()> work) {
            Platform::MainQueue::post(this, [cancelled, work = std::move(work)] {
                if (!*cancelled)
                    work();
            });
        };
        // Values that were not announced yet: announcing each second of ten hours would keep the window busy.
        QList<float> pending;
        qsizetype first = 0;
        QElapsedTimer sinceReport;
        const auto tell = [&] {
            if (!pending.isEmpty())
                post([this, first, values = std::exchange(pending, {})] { take(first, values); });
            sinceReport.start();
        };
        AudioExtractWave wave;
        wave.setProgress([&](double) { return !*cancelled; });
        wave.setPoints([&](qsizetype number, std::span<const float> values) {
            if (number != first + pending.size())
                tell();
            if (pending.isEmpty())
                first = number;
            pending.append(QList<float>(values.begin(), values.end()));
            if (!sinceReport.isValid() || sinceReport.elapsed() >= kMillisecondsBetween)
                tell();
        });
        if (wave.openFile(path)) {
            const QList<float> values = wave.extractSamplePoint();
            tell();
            post([this, values] {
                values_ = values;
                Q_EMIT loaded();
            });
        } else {
            post([this, why = wave.error().text] {
                problem_ = why;
                Q_EMIT loaded();
            });
        }
    });
}

void AudioOutline::take(qsizetype first, const QList<float>& values) {
    values_.resize(first);
    values_.append(values);
    Q_EMIT grew(first);
}

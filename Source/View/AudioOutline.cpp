// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/AudioOutline.h"

#include "Platform/Foundation/MainQueue.h"
#include "RingtoneMaker/AudioExtractWave.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

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
    cancelled_ = std::make_shared<std::atomic<bool>>(false);
    worker_ = std::thread([this, path, cancelled = cancelled_] {
        AudioExtractWave wave;
        wave.setProgress([&](double) { return !*cancelled; });
        if (!wave.openFile(path))
            return;
        const QList<float> values = wave.extractSamplePoint();
        Platform::MainQueue::post(this, [this, values, cancelled] {
            if (*cancelled)
                return;
            values_ = values;
            Q_EMIT loaded();
        });
    });
}

void AudioOutline::draw(QPainter& painter, const QRectF& rect, const QList<float>& values, const QColor& color) {
    const int columns = int(std::floor(rect.width()));
    if (values.isEmpty() || columns <= 0)
        return;
    const double middle = rect.center().y();
    for (int column = 0; column < columns; ++column) {
        const auto first = values.size() * column / columns;
        const auto last = std::max(first + 1, values.size() * (column + 1) / columns);
        float most = 0;
        for (auto i = first; i < std::min(last, values.size()); ++i)
            if (std::isfinite(values[i]))
                most = std::max(most, std::min(1.0F, std::fabs(values[i])));
        const double half = std::max(0.5, double(most) * rect.height() / 2);
        painter.fillRect(QRectF(rect.x() + column, middle - half, 1, 2 * half), color);
    }
}

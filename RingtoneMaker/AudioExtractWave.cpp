// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RingtoneMaker/AudioExtractWave.h"

#include "Platform/Foundation/Services.h"
#include "Source/Control/ClientFormat.h"

#include <QLoggingCategory>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(waveLog, "sonaphex.wave")

constexpr int kValuesPerSecond = 10;
constexpr int kBlocksPerReport = 256;

} // namespace

AudioExtractWave::AudioExtractWave() : actualOutputFormat_(clientFormat()) {
}

AudioExtractWave::~AudioExtractWave() = default;

bool AudioExtractWave::openFile(const QString& path) {
    infile_.reset();
    openError_ = {};
    auto* files = Platform::services().mediaFiles;
    auto file = files ? files->openReader(path, openError_) : nullptr;
    if (file && file->setClientDataFormat(actualOutputFormat_) != noErr) {
        openError_ = file->firstError();
        file.reset();
    }
    if (!file) {
        if (!openError_)
            openError_ = {Platform::MediaError::Kind::Other, u"%1 cannot be read"_s.arg(path)};
        return false;
    }
    infile_ = std::move(file);
    return true;
}

QList<float> AudioExtractWave::extractSamplePoint() {
    QList<float> points;
    if (!infile_)
        return points;
    const auto rate = actualOutputFormat_.mSampleRate;
    const auto fileRate = infile_->fileDataFormat().mSampleRate;
    const double total = fileRate > 0 ? double(infile_->fileLengthFrames()) * rate / fileRate : 0;

    infile_->seek(0);
    ClientBlock block;
    int counter = 0;
    std::int64_t position = 0;
    for (int blocks = 1;; ++blocks) {
        auto frames = block.prepare(actualOutputFormat_);
        if (infile_->read(frames, block.list()) != noErr)
            qCWarning(waveLog, "read Audio Data Error");
        if (frames == 0)
            break;
        position += frames;
        counter += static_cast<int>(frames);
        while (counter >= rate / kValuesPerSecond) {
            counter = static_cast<int>(counter - rate / kValuesPerSecond);
            points.append(block.firstSample());
        }
        if (progress_ && blocks % kBlocksPerReport == 0 &&
            !progress_(std::min(1.0, double(position) / std::max(total, 1.0))))
            break;
    }
    return points;
}

Platform::MediaError AudioExtractWave::error() const {
    return infile_ ? infile_->firstError() : openError_;
}

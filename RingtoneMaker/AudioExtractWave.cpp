// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RingtoneMaker/AudioExtractWave.h"

#include "Platform/Audio/ClientFormat.h"
#include "Platform/Foundation/Services.h"

#include <QCoreApplication>
#include <QLoggingCategory>

#include <algorithm>
#include <span>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(waveLog, "sonaphex.wave")

constexpr int kValuesPerSecond = 10;
constexpr int kBlocksPerReport = 256;
/// Number of values to fetch per call when a file need not be read completely: ten minutes of audio, about 50 ms. Each
/// call opens four decoders, which takes some milliseconds.
constexpr std::size_t kValuesAtOnce = 6000;

/// The frames of the blocks in which a tenth of a second is completed.
std::vector<std::int64_t> framesOfPoints(std::int64_t length, double rate) {
    constexpr auto block = std::int64_t(ClientBlock::kSamples);
    const auto step = std::int64_t(rate) / kValuesPerSecond;
    std::vector<std::int64_t> frames;
    for (std::int64_t mark = step; mark <= length; mark += step)
        frames.push_back((mark - 1) / block * block);
    return frames;
}

} // namespace

AudioExtractWave::AudioExtractWave() : actualOutputFormat_(clientFormat()) {
}

AudioExtractWave::~AudioExtractWave() = default;

bool AudioExtractWave::openFile(const QString& path) {
    infile_.reset();
    openError_ = {Platform::Error::Kind::Other,
                  QCoreApplication::translate("RingtoneMaker", "%1 cannot be read").arg(path)};
    auto* files = Platform::services().mediaFiles;
    if (!files)
        return false;
    auto file = files->openReader(path);
    if (!file) {
        openError_ = file.error();
        return false;
    }
    if ((*file)->setClientDataFormat(actualOutputFormat_) != noErr) {
        if (const auto error = (*file)->firstError())
            openError_ = error;
        return false;
    }
    openError_ = {};
    infile_ = *std::move(file);
    return true;
}

QList<float> AudioExtractWave::extractSamplePoint() {
    QList<float> points;
    if (!infile_)
        return points;
    const auto rate = actualOutputFormat_.mSampleRate;
    const auto fileRate = infile_->fileDataFormat().mSampleRate;
    const double total = fileRate > 0 ? double(infile_->fileLengthFrames()) * rate / fileRate : 0;

    if (fileRate == rate && extractSparse(framesOfPoints(infile_->fileLengthFrames(), rate), points))
        return points;

    infile_->seek(0);
    ClientBlock block;
    int counter = 0;
    std::int64_t position = 0;
    qsizetype reported = 0;
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
        if (blocks % kBlocksPerReport != 0)
            continue;
        tell(points, std::exchange(reported, points.size()));
        if (progress_ && !progress_(std::min(1.0, double(position) / std::max(total, 1.0))))
            break;
    }
    tell(points, reported);
    return points;
}

void AudioExtractWave::tell(const QList<float>& points, qsizetype first) const {
    if (points_ && first < points.size())
        points_(first, std::span(points.constData() + first, std::size_t(points.size() - first)));
}

/// Fetches only the values where the file allows it. False: the whole file must be read.
bool AudioExtractWave::extractSparse(const std::vector<std::int64_t>& frames, QList<float>& points) {
    points.resize(qsizetype(frames.size()));
    for (std::size_t begin = 0; begin < frames.size(); begin += kValuesAtOnce) {
        if (progress_ && !progress_(double(begin) / double(frames.size()))) {
            points.resize(qsizetype(begin));
            return true;
        }
        const auto count = std::min(kValuesAtOnce, frames.size() - begin);
        if (!infile_->sparseSamples(std::span(frames).subspan(begin, count), std::span(points.data() + begin, count))) {
            points.clear();
            return false;
        }
        if (points_)
            points_(qsizetype(begin), std::span<const float>(points.constData() + begin, count));
    }
    return true;
}

Platform::Error AudioExtractWave::error() const {
    return infile_ ? infile_->firstError() : openError_;
}

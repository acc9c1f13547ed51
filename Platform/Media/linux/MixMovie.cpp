// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/MixMovie.h"
#include "Platform/Media/linux/decode/FileReader.h"
#include "Platform/Media/linux/encode/FileWriter.h"

#include <QFile>

#include <cmath>
#include <cstring>
#include <future>

namespace Platform {

namespace {

constexpr int mixRate = 44100;
constexpr std::size_t mixChannels = 2;
constexpr std::size_t chunkFrames = 1 << 16;
/// A speed is expressed as a ratio of two rates. They are scaled by this factor so that a change of 1e-8 has an effect.
constexpr double speedScale = 10000;

AudioStreamBasicDescription waveFormat() {
    AudioStreamBasicDescription format;
    format.mSampleRate = mixRate;
    format.mFormatID = kAudioFormatLinearPCM;
    format.mFormatFlags = kAudioFormatFlagIsSignedInteger | kAudioFormatFlagIsPacked;
    format.mBytesPerPacket = format.mBytesPerFrame = 8;
    format.mFramesPerPacket = 1;
    format.mChannelsPerFrame = mixChannels;
    format.mBitsPerChannel = 32;
    return format;
}

struct Track {
    QString path;
    double seconds = 0;
    Movie::TrackTiming timing;
    [[nodiscard]] double end() const { return timing.offset + seconds / timing.speed; }
};

/// One track as input of the mix: at the mix's rate, shifted and resampled.
class TrackReader {
public:
    TrackReader(std::unique_ptr<InputFile> input, Movie::TrackTiming timing)
        : reader_(std::move(input)), converted_(mixChannels) {
        reader_.setClientDataFormat(planarFloatFormat(mixRate, mixChannels));
        const auto shift = std::int64_t(std::llround(timing.offset * mixRate));
        silence_ = std::max<std::int64_t>(0, shift);
        drop_ = std::max<std::int64_t>(0, -shift);
        if (std::fabs(timing.speed - 1) > 1e-9)
            stretch_ = std::make_unique<ConversionStream>(
                mixChannels, int(std::llround(mixRate * speedScale * timing.speed)), int(mixRate * speedScale));
    }

    /// Adds the next @p frames frames to @p sums, fewer at the end of the track. @return the number added.
    std::size_t addTo(Planes& sums, std::size_t frames) {
        std::size_t done = std::size_t(std::min<std::int64_t>(silence_, std::int64_t(frames)));
        silence_ -= std::int64_t(done);
        while (done < frames && fill()) {
            const auto dropped = std::size_t(std::min<std::int64_t>(drop_, std::int64_t(waiting_)));
            drop_ -= std::int64_t(dropped);
            advance(dropped);
            const std::size_t count = std::min(waiting_, frames - done);
            for (std::size_t c = 0; c < mixChannels; ++c) {
                float* sum = sums.row(c) + done;
                const float* in = rows_[c];
                for (std::size_t i = 0; i < count; ++i)
                    sum[i] += in[i];
            }
            advance(count);
            done += count;
        }
        return done;
    }

    [[nodiscard]] Error error() const { return reader_.firstError(); }

private:
    bool fill() {
        while (waiting_ == 0 && !ended_) {
            const auto got = reader_.readRows(chunkFrames);
            ended_ = got.frames == 0;
            if (!stretch_) {
                std::copy_n(got.rows, ended_ ? 0 : mixChannels, rows_.begin());
                waiting_ = got.frames;
                continue;
            }
            if (ended_)
                stretch_->finish(converted_);
            else
                stretch_->feed(got.rows, got.frames, converted_);
            for (std::size_t c = 0; c < mixChannels; ++c)
                rows_[c] = converted_.row(c);
            waiting_ = converted_.frames();
        }
        return waiting_ > 0;
    }
    void advance(std::size_t frames) {
        for (auto& row : rows_)
            row += frames;
        waiting_ -= frames;
    }

    FileReader reader_;
    std::unique_ptr<ConversionStream> stretch_;
    Planes converted_;
    std::array<const float*, mixChannels> rows_ = {};
    std::size_t waiting_ = 0;
    std::int64_t silence_ = 0;
    std::int64_t drop_ = 0;
    bool ended_ = false;
};

class MixMovie final : public Movie {
public:
    explicit MixMovie(Track track) { tracks_.push_back(std::move(track)); }

    double duration() const override {
        double longest = 0;
        for (const Track& track : tracks_)
            longest = std::max(longest, track.end());
        return longest;
    }

    int soundTracks() const override { return int(tracks_.size()); }

    bool insertSoundTrackOf(const Movie& other) override {
        const auto* movie = dynamic_cast<const MixMovie*>(&other);
        if (!movie || movie->tracks_.empty())
            return false;
        tracks_.push_back(movie->tracks_.front());
        return true;
    }

    void setTiming(int track, TrackTiming timing) override {
        const bool sane = std::isfinite(timing.offset) && timing.speed > 0.5 && timing.speed < 2;
        if (track >= 0 && track < soundTracks() && sane)
            tracks_[std::size_t(track)].timing = timing;
    }

    Result<> writeWave(const QString& path, const std::function<bool(double)>& progress) override;
    Result<> writeTracks(const QStringList& paths, const AudioStreamBasicDescription& format,
                         const std::function<bool(double)>& progress) override;
    Error readError() const override { return readError_; }

private:
    using Writers = std::vector<std::unique_ptr<FileWriter>>;
    Result<> render(const Writers& writers, const std::function<bool(double)>& progress);

    std::vector<Track> tracks_;
    Error readError_;
};

/// Opens the file of a writer that takes frames of the mix.
Result<> openWriter(FileWriter& writer) {
    if (const auto opened = writer.open(true); !opened)
        return opened;
    writer.setClientDataFormat(planarFloatFormat(mixRate, mixChannels));
    return {};
}

Result<> MixMovie::writeWave(const QString& path, const std::function<bool(double)>& progress) {
    Writers writers;
    writers.push_back(std::make_unique<FileWriter>(path, kAudioFileWAVEType, waveFormat()));
    return render(writers, progress);
}

Result<> MixMovie::writeTracks(const QStringList& paths, const AudioStreamBasicDescription& format,
                               const std::function<bool(double)>& progress) {
    Q_ASSERT(std::size_t(paths.size()) == tracks_.size());
    Writers writers;
    for (const QString& path : paths)
        writers.push_back(std::make_unique<FileWriter>(path, kAudioFileM4AType, format));
    return render(writers, progress);
}

/// Writes the sum of all tracks when there is one writer, else each track into its own file.
Result<> MixMovie::render(const Writers& writers, const std::function<bool(double)>& progress) {
    std::vector<std::unique_ptr<TrackReader>> readers;
    readError_ = {};
    for (const Track& track : tracks_) {
        auto input = InputFile::open(track.path, true);
        if (!input)
            return input.error();
        readers.push_back(std::make_unique<TrackReader>(*std::move(input), track.timing));
    }
    Error error;
    for (std::size_t i = 0; i < writers.size() && !error; ++i) {
        error = openWriter(*writers[i]).error();
        for (std::size_t opened = 0; error && opened < i; ++opened)
            QFile::remove(writers[opened]->path());
    }
    if (error)
        return error;

    const double total = std::max(1.0, duration() * mixRate);
    std::vector<Planes> sums(readers.size(), Planes(mixChannels));
    std::vector<std::size_t> counts(readers.size());
    alignas(AudioBufferList) std::byte memory[sizeof(AudioBufferList) + sizeof(AudioBuffer)];
    auto* list = new (memory) AudioBufferList{};
    for (double written = 0; !error;) {
        // Each track is decoded on its own thread.
        const auto readTrack = [&](std::size_t i) {
            sums[i].clear();
            sums[i].resize(chunkFrames);
            counts[i] = readers[i]->addTo(sums[i], chunkFrames);
        };
        std::vector<std::future<void>> others;
        for (std::size_t i = 1; i < readers.size(); ++i)
            others.push_back(std::async(std::launch::async, readTrack, i));
        readTrack(0);
        for (auto& other : others)
            other.get();
        const std::size_t frames = *std::ranges::max_element(counts);
        if (frames == 0)
            break;
        for (std::size_t i = writers.size(); i < readers.size(); ++i) {
            for (std::size_t c = 0; c < mixChannels; ++c) {
                float* sum = sums[0].row(c);
                const float* in = sums[i].row(c);
                for (std::size_t f = 0; f < counts[i]; ++f)
                    sum[f] += in[f];
            }
        }
        // A track that has ended is continued with silence, so that all files are equally long.
        for (std::size_t i = 0; i < writers.size() && !error; ++i) {
            list->mNumberBuffers = mixChannels;
            for (std::size_t c = 0; c < mixChannels; ++c)
                list->mBuffers[c] = {1, std::uint32_t(frames * 4), sums[i].row(c)};
            if (writers[i]->write(std::uint32_t(frames), list) != noErr)
                error = writers[i]->firstError();
        }
        written += double(frames);
        if (!error && progress && !progress(std::min(1.0, written / total)))
            error = makeError(Error::Kind::Cancelled, writers.front()->path(), QStringLiteral("cancelled"));
    }
    for (const auto& reader : readers)
        if (!readError_)
            readError_ = reader->error();
    for (const auto& writer : writers) {
        writer->dispose();
        if (!error)
            error = writer->firstError();
    }
    if (error)
        for (const auto& writer : writers)
            QFile::remove(writer->path());
    return error;
}

} // namespace

Result<std::unique_ptr<Movie>> createMixMovie(const QString& path) {
    const auto opened = InputFile::open(path, false);
    if (!opened)
        return opened.error();
    InputFile& input = **opened;
    return std::make_unique<MixMovie>(Track{path, double(input.lengthFrames()) / input.rate(), {}});
}

} // namespace Platform

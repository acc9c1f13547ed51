// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/linux/decode/SourceFile.h"
#include "Platform/Media/linux/libav/LibAvFormat.h"
#include "Platform/Media/linux/libav/MediaErrors.h"

#include <optional>
#include <vector>

namespace Platform {

/// Decodes one audio file: its best audio stream as rows of float samples at the file's own rate, each frame with its
/// number, priming and padding removed. One thread.
class InputFile {
public:
    /// @p decode: false when the file is only described.
    static Result<std::unique_ptr<InputFile>> open(const QString& path, bool decode);
    ~InputFile();

    [[nodiscard]] int rate() const { return rate_; }
    [[nodiscard]] int channels() const { return channels_; }
    [[nodiscard]] const QString& path() const { return path_; }
    /// Exact where the container stores it; else all packets are counted, once.
    [[nodiscard]] std::int64_t lengthFrames();
    [[nodiscard]] AudioStreamBasicDescription dataFormat() const;
    [[nodiscard]] std::int64_t packetCount();
    /// See ExtAudioFileReader::metadata().
    [[nodiscard]] QString metadata(const QString& key) const;

    /// Sets the number of channels that next() returns.
    void setOutputChannels(int channels);

    struct Block {
        const float* const* rows = nullptr; ///< valid until the next call
        std::size_t frames = 0;             ///< 0 at the end
        std::optional<Error> error;         ///< set when these frames replace damaged ones
    };
    [[nodiscard]] Block next();
    /// The next block begins with this frame (or at the end).
    bool seek(std::int64_t frame);

    /// Whether a packet, decoded after its predecessor alone, gives exactly the samples that decoding from the
    /// beginning gives: the file is complete and of our own encoder, which leaves no noise to the decoder.
    [[nodiscard]] bool seeksExactly() const;
    /// See ExtAudioFileReader::sparseSamples(); the first channel of the file at these frames. @p threads: at most so
    /// many, 0 for as many as the machine has cores; the values do not depend on it.
    [[nodiscard]] bool sparseSamples(std::span<const std::int64_t> frames, std::span<float> out, unsigned threads = 0);

private:
    explicit InputFile(QString path) : path_(std::move(path)) {}
    Result<> openContainer();
    Result<> openDecoder();
    void findLength();
    void countPackets();
    [[nodiscard]] bool isPcm() const;
    /// @p name: libavformat's short name of a container, "mp4".
    [[nodiscard]] bool formatIs(const char* name) const;
    [[nodiscard]] bool timestampsAreExact() const;
    [[nodiscard]] bool timesAreFine() const;
    /// Whether a packet can be decoded after its predecessor alone: an AAC-LC file of any encoder. Noise that the
    /// encoder left to the decoder then differs from that of decoding from the beginning.
    [[nodiscard]] bool packetsDecodeApart() const;

    enum class Got { Frame, Silence, End };
    Got decodeOne(std::optional<Error>& error);
    Block convert(std::int64_t skip, std::int64_t most);
    std::int64_t inFrames(std::int64_t timestamp) const;
    std::int64_t inStreamTime(std::int64_t frames) const;
    std::int64_t durationOf(const AVPacket& packet) const;

    QString path_;
    SourceFile file_;
    const Av::FormatLibrary* av_ = nullptr;
    Av::IoPtr io_;
    Av::FormatPtr format_;
    Av::CodecPtr codec_;
    AVStream* stream_ = nullptr; // owned by format_
    Av::FramePtr frame_;
    Av::PacketPtr packet_;
    Av::ResamplerPtr mixer_; // converts sample format and channels where they differ
    int mixerFormat_ = -1;
    int mixerChannels_ = 0;
    std::vector<std::vector<float>> mixed_;
    std::vector<const float*> rows_;

    int rate_ = 0;
    int channels_ = 0;
    int outputChannels_ = 0;
    std::optional<std::int64_t> length_;
    std::int64_t packets_ = -1;
    ContainerFacts facts_;

    std::int64_t position_ = 0;   // number of the next frame that the decoder gives
    std::int64_t target_ = 0;     // frames before this one are dropped
    bool frameIsWaiting_ = false; // the first frame, which was decoded when the file was opened
    bool timeFromFrames_ = false; // after a seek, until the first frame gives its position
    std::int64_t packetTime_ = 0; // in the stream's time base: of the next packet if it has no time of its own
    std::int64_t origin_ = 0;     // in the stream's time base: of the first frame
    std::int64_t silence_ = 0;    // frames of silence that replace a damaged packet
    bool draining_ = false;
    int failuresInARow_ = 0;
};

} // namespace Platform

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/encode/AacEncoder.h"
#include "Platform/Media/linux/encode/FrameSink.h"
#include "Platform/Media/linux/encode/SerialEncoder.h"
#include "Platform/Media/linux/encode/StretchEncoder.h"

#include <QCoreApplication>

namespace Platform {

namespace {

/// @p Encoder: SerialEncoder or StretchEncoder.
template <typename Encoder>
class AacSink final : public FrameSink {
public:
    AacSink(OutputFile& file, std::unique_ptr<PacketFile> container, const AacSettings& settings)
        : file_(file), container_(std::move(container)), encoder_(settings) {
        if (encoder_.valid())
            container_->begin(encoder_.streamInfo());
    }

    [[nodiscard]] bool valid() const { return encoder_.valid(); }

    void append(const float* const* channels, std::size_t frames) override {
        frames_ += std::int64_t(frames);
        encoder_.append(channels, frames, packets_);
        store();
    }

    void finish() override {
        if (frames_ == 0 && !container_->mayBeEmpty()) {
            const std::vector<float> silence(AacEncoder::packetFrames);
            const std::vector<const float*> rows(std::size_t(encoder_.streamInfo().channels), silence.data());
            encoder_.append(rows.data(), silence.size(), packets_);
        }
        encoder_.finish(packets_);
        store();
        container_->finish(frames_);
    }

private:
    void store() {
        if (!encoder_.valid())
            file_.fail(makeError(Error::Kind::Encoder, file_.path(),
                                 QCoreApplication::translate("Media", "the AAC encoder failed")));
        for (const auto& packet : packets_) {
            if (!file_.failed())
                container_->add(packet);
        }
        packets_.clear();
    }

    OutputFile& file_;
    std::unique_ptr<PacketFile> container_;
    Encoder encoder_;
    std::vector<AacEncoder::Packet> packets_;
    std::int64_t frames_ = 0;
};

template <typename Encoder>
std::unique_ptr<FrameSink> createSink(OutputFile& file, std::unique_ptr<PacketFile> container,
                                      const AacSettings& settings) {
    auto sink = std::make_unique<AacSink<Encoder>>(file, std::move(container), settings);
    if (!sink->valid())
        return nullptr;
    return sink;
}

} // namespace

std::unique_ptr<FrameSink> createAacSink(OutputFile& file, std::unique_ptr<PacketFile> container,
                                         const AacSettings& settings) {
    const auto create = settings.workers > 1 ? createSink<StretchEncoder> : createSink<SerialEncoder>;
    return create(file, std::move(container), settings);
}

} // namespace Platform

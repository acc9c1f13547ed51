// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/fakes/FakeMediaFiles.h"

#include <QFile>

#include <atomic>
#include <sys/stat.h>

namespace {

std::uint64_t inodeOf(const QString& path) {
    struct stat status {};
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_ino : 0;
}

class FakeWriter final : public Platform::ExtAudioFileWriter {
public:
    explicit FakeWriter(std::shared_ptr<FakeMediaFiles::File> file) : file_(std::move(file)) {}
    ~FakeWriter() override { FakeWriter::dispose(); }

    OSStatus setClientDataFormat(const AudioStreamBasicDescription& format) override {
        file_->clientFormat = format;
        file_->samples.resize(format.mChannelsPerFrame);
        return file_->clientFormatStatus;
    }
    bool hasAudioConverter() const override { return file_->hasConverter; }
    OSStatus setConverterChannelMap(std::span<const std::int32_t> map) override {
        file_->channelMap.assign(map.begin(), map.end());
        return file_->channelMapStatus;
    }
    OSStatus continueFrom(ExtAudioFileWriter& predecessor) override {
        file_->predecessor = static_cast<FakeWriter&>(predecessor).file_.get();
        return noErr;
    }
    OSStatus write(std::uint32_t frames, const AudioBufferList* data) override { return writeAsync(frames, data); }
    OSStatus writeAsync(std::uint32_t frames, const AudioBufferList* data) override {
        if (frames == 0 && !data) {
            file_->primed = true;
            return file_->primeStatus;
        }
        if (file_->writeStatus != noErr)
            return file_->writeStatus;
        file_->framesAccepted += frames;
        if (file_->keepSamples)
            for (std::size_t i = 0; i < file_->samples.size() && i < data->mNumberBuffers; ++i) {
                const auto* from = static_cast<const float*>(data->mBuffers[i].mData);
                file_->samples[i].insert(file_->samples[i].end(), from, from + frames);
            }
        return noErr;
    }
    OSStatus dispose() override {
        file_->disposed = true;
        return file_->disposeStatus;
    }
    void disposeLater(std::function<void(OSStatus)> closed) override {
        file_->disposed = true;
        if (closed)
            closed(file_->disposeStatus);
    }
    std::int64_t framesAccepted() const override { return file_->framesAccepted; }
    Platform::Error firstError() const override {
        if (file_->writeStatus != noErr)
            return {Platform::Error::Kind::DiskFull, QStringLiteral("No space left on device")};
        return {};
    }
    QString path() const override { return file_->path; }

private:
    std::shared_ptr<FakeMediaFiles::File> file_;
};

} // namespace

Platform::Result<std::unique_ptr<Platform::ExtAudioFileWriter>>
FakeMediaFiles::createWriter(const QString& path, std::uint32_t fileType, const AudioStreamBasicDescription& format,
                             std::uint32_t flags) {
    QFile real(path);
    if (createFails || !real.open(QIODevice::WriteOnly))
        return Platform::Error{Platform::Error::Kind::NotPermitted, QStringLiteral("the file is set to fail")};
    auto file = std::make_shared<File>();
    file->path = path;
    file->inode = inodeOf(path);
    file->type = fileType;
    file->format = format;
    file->flags = flags;
    file->keepSamples = keepSamples;
    file->clientFormatStatus = clientFormatStatus;
    file->channelMapStatus = channelMapStatus;
    file->primeStatus = primeStatus;
    file->hasConverter = hasConverter;
    files.push_back(file);
    return std::make_unique<FakeWriter>(std::move(file));
}

Platform::Result<std::unique_ptr<Platform::ExtAudioFileReader>> FakeMediaFiles::openReader(const QString& path) {
    return Platform::Error{Platform::Error::Kind::NotFound, path};
}

Platform::Result<Platform::AudioFileInfo> FakeMediaFiles::info(const QString& path) {
    if (knowsItsFiles)
        // Newest first: a removed file's inode number may have been reused by a later file.
        for (auto file = files.rbegin(); file != files.rend(); ++file)
            if ((*file)->inode == inodeOf(path)) {
                Platform::AudioFileInfo info;
                info.dataFormat = (*file)->format;
                info.frameCount = (*file)->framesAccepted;
                info.seconds = double((*file)->framesAccepted) / (*file)->clientFormat.mSampleRate;
                return info;
            }
    const auto known = infos.constFind(path);
    if (known == infos.constEnd())
        return Platform::Error{Platform::Error::Kind::NotFound, path};
    return *known;
}

Platform::Result<std::unique_ptr<Platform::Movie>> FakeMediaFiles::openMovie(const QString& path) {
    return Platform::Error{Platform::Error::Kind::NotFound, path};
}

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The engine's export files: how they are created, exchanged and closed. BuildInAudioRecord.cpp writes the frames.
#include "Source/BuiltInAudioRecord/BuildInAudioRecord.h"

#include "Platform/Desktop/Workspace.h"
#include "Platform/Foundation/MainQueue.h"
#include "Platform/Foundation/Services.h"
#include "Source/BuiltInAudioRecord/ExportFormat.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <utility>

using Platform::ExtAudioFileWriter;

namespace {

/// Makes the writer's own thread close the file, notify file browsers, and report.
void disposeLater(ExtAudioFileWriter& writer, const QString& path, std::function<void(QString, OSStatus)> closed) {
    writer.disposeLater([path, closed = std::move(closed)](OSStatus status) {
        Platform::MainQueue::post([path] { Platform::noteFileSystemChanged(path); });
        if (closed)
            closed(path, status);
    });
}

} // namespace

AudioStreamBasicDescription BuildInAudioRecord::exportDescription(int type) const {
    if (type == 1)
        return aacExportFormat();
    return type == 0 ? waveExportFormat() : AudioStreamBasicDescription{};
}

/// Creates the writer without preparing it for frames: until then it may continue another one.
std::unique_ptr<ExtAudioFileWriter> BuildInAudioRecord::createWriter(const QString& path, int forType) {
    const std::uint32_t fileType = forType == 1 ? kAudioFileM4AType : forType == 0 ? kAudioFileWAVEType : 0;
    auto created = Platform::services().mediaFiles->createWriter(path, fileType, exportDescription(forType),
                                                                 kAudioFileFlags_EraseFile);
    if (!created) {
        (void)noteFailure(created.error(), path);
        return nullptr;
    }
    auto writer = *std::move(created);
    if (writer->setClientDataFormat(actualOutputFormat_) != noErr) {
        (void)noteFailure(writer->firstError(), path);
        return nullptr;
    }
    if (deviceFormat_.mChannelsPerFrame == 1 && actualOutputFormat_.mChannelsPerFrame == 2 &&
        writer->hasAudioConverter()) {
        constexpr std::array<std::int32_t, 2> bothFromTheFirst{0, 0};
        (void)writer->setConverterChannelMap(bothFromTheFirst);
    }
    return writer;
}

bool BuildInAudioRecord::noteFailure(const Platform::Error& error, const QString& path) {
    const std::lock_guard lock(mutex_);
    lastError_ = error ? error.text : QCoreApplication::translate("Record", "%1 cannot be written").arg(path);
    return false;
}

std::unique_ptr<ExtAudioFileWriter> BuildInAudioRecord::setOutAudioPath(const QString& path, int forType) {
    auto writer = createWriter(path, forType);
    if (writer && writer->writeAsync(0, nullptr) != noErr) {
        (void)noteFailure(writer->firstError(), path);
        return nullptr;
    }
    return writer;
}

std::unique_ptr<ExtAudioFileWriter> BuildInAudioRecord::takeWriter(Export& file) {
    const Platform::HeldCycles held(audioUnit_.get());
    if (&file == &outputM4a_)
        finishCut();
    const std::lock_guard lock(mutex_);
    return std::move(file.writer);
}

void BuildInAudioRecord::noteClosed(const ExtAudioFileWriter& writer) {
    const auto error = writer.firstError();
    const std::lock_guard lock(mutex_);
    writeError_ = error;
}

bool BuildInAudioRecord::openExport(Export& file, const QString& path, int type) {
    {
        const std::lock_guard lock(mutex_);
        file.path = path;
    }
    if (const auto old = takeWriter(file))
        (void)old->dispose();
    auto writer = setOutAudioPath(path, type);
    const Platform::HeldCycles held(audioUnit_.get());
    const std::lock_guard lock(mutex_);
    file.clientFormat = actualOutputFormat_;
    file.writer = std::move(writer);
    if (type == 1) {
        framesAccepted_ = 0;
        firstHostTime_ = 0;
        writeError_ = {};
    }
    return file.writer != nullptr;
}

bool BuildInAudioRecord::setOutPutAudioPath(const QString& path, int forType) {
    const int type = forType == 2 ? 1 : forType;
    {
        const std::lock_guard lock(mutex_);
        outPutFilePath_ = path;
    }
    if (type == 1)
        return openExport(outputM4a_, path, 1);
    if (type == 0)
        return openExport(outputWAV_, path, 0);
    return true;
}

bool BuildInAudioRecord::exchangeM4aFile(const QString& path, std::function<void(QString, OSStatus)> closed,
                                         std::int64_t framesBefore) {
    const Platform::HeldCycles held(audioUnit_.get());
    finishCut();
    if (!outputM4a_.writer) {
        const QString oldPath = outputM4aFilePath();
        if (!setOutPutAudioPath(path, 1))
            return false;
        // Nothing has to be closed, but the caller waits for the report.
        if (closed)
            closed(oldPath, noErr);
        return true;
    }
    auto writer = createWriter(path, 1);
    if (!writer)
        return false;
    {
        const std::lock_guard lock(mutex_);
        cut_ = Cut{std::move(writer), std::move(closed), std::exchange(outputM4a_.path, path),
                   std::max<std::int64_t>(0, framesBefore)};
        outPutFilePath_ = path;
    }
    framesAccepted_ = -cut_->framesBefore;
    firstHostTime_ = 0;
    if (cut_->framesBefore == 0)
        finishCut();
    return true;
}

/// Swaps the writers of a cut once the old file has its last frame. On the I/O thread or with cycles held.
void BuildInAudioRecord::finishCut() {
    if (!cut_)
        return;
    // A writer that cannot continue the other starts anew: the resampler's state is lost, but no frame.
    if (outputM4a_.writer)
        (void)cut_->writer->continueFrom(*outputM4a_.writer);
    (void)cut_->writer->writeAsync(0, nullptr);
    std::unique_ptr<ExtAudioFileWriter> old;
    Cut cut;
    {
        const std::lock_guard lock(mutex_);
        cut = std::move(*cut_);
        cut_.reset();
        old = std::exchange(outputM4a_.writer, std::move(cut.writer));
        outputM4a_.clientFormat = actualOutputFormat_;
    }
    framesAccepted_ = 0;
    if (old)
        disposeLater(*old, cut.oldPath, std::move(cut.closed));
    else if (cut.closed)
        cut.closed(cut.oldPath, noErr);
}

void BuildInAudioRecord::closeExportFile() {
    if (const auto writer = takeWriter(outputM4a_)) {
        (void)writer->dispose();
        noteClosed(*writer);
        Platform::noteFileSystemChanged(outputM4aFilePath());
    }
    if (const auto writer = takeWriter(outputWAV_)) {
        (void)writer->dispose();
        Platform::noteFileSystemChanged(outputWAVFilePath());
    }
}

bool BuildInAudioRecord::closeExportFileLater(std::function<void(QString, OSStatus)> closed) {
    auto writer = takeWriter(outputM4a_);
    const QString path = outputM4aFilePath();
    closeExportFile(); // closes the other files
    if (!writer)
        return false;
    noteClosed(*writer);
    disposeLater(*writer, path, std::move(closed));
    return true;
}

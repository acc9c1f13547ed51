// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/ExtAudioFile.h"

#include <functional>

/// Called when a plain copy has ended, on the thread that ran it.
class ConverterAudioControlDelegate {
public:
    virtual ~ConverterAudioControlDelegate() = default;
    virtual void converterFinish() {}
};

/// Copies a range of an audio file into a new file by decoding and encoding. One output at a time; a copy blocks the
/// calling thread.
class ConverterAudioControl {
public:
    ConverterAudioControl();
    ~ConverterAudioControl();

    [[nodiscard]] ConverterAudioControlDelegate* delegate() const { return delegate_; }
    void setDelegate(ConverterAudioControlDelegate* delegate) { delegate_ = delegate; }

    /// Output types: 0 WAVE, 1 (and 3) MPEG-4 AAC, 2 CAF with AAC.
    [[nodiscard]] static AudioStreamBasicDescription exportDescription(int type);
    bool createOutPutFile(const QString& path, int type);
    /// Copies [trimFrom, trimTo) seconds; a trimTo below 0.1 means to the end.
    bool startConverterSource(const QString& source, float trimFrom, float trimTo);
    /// Copies with linear fades; repeats the range when it ends before converterLength seconds.
    bool startFadeInFadeOutConverterSource(const QString& source, float trimFrom, float trimTo, float fadeInTime,
                                           float fadeOutTime, float converterLength);
    void closeExportFile();
    void converterFinish();

    /// The first error of the last output: the copy itself ignores it, its caller must check it.
    [[nodiscard]] Platform::Error exportError() const { return exportError_; }
    /// Why the source of the last copy could not be opened, or the first damage found in it.
    [[nodiscard]] Platform::Error sourceError() const { return sourceError_; }
    /// Called now and then on the copying thread with the progress from 0 to 1. When it returns false the copy ends:
    /// the output is closed, converterFinish() is not called, and the copy returns false.
    void setProgress(std::function<bool(double)> progress) { progress_ = std::move(progress); }

private:
    struct Source;
    [[nodiscard]] bool openSource(const QString& path, Source& source);
    void writeBlock(Source& source, std::uint32_t frames);
    [[nodiscard]] bool goesOn(double share);
    /// Closes both files. @return whether the copy was completed
    [[nodiscard]] bool finishCopy(Source& source, const QString& path, bool stopped);

    std::unique_ptr<Platform::ExtAudioFileWriter> outputAudioFile_;
    QString outputAudioFilePath_;
    AudioStreamBasicDescription actualOutputFormat_;
    ConverterAudioControlDelegate* delegate_ = nullptr;
    Platform::Error exportError_;
    Platform::Error sourceError_;
    std::function<bool(double)> progress_;
};

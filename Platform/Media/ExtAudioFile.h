// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/AudioTypes.h"
#include "Platform/Foundation/Result.h"

#include <functional>
#include <memory>
#include <span>

#include <QString>
#include <QStringList>

namespace Platform {

/// Writes one audio file: takes frames in the client format, converts and encodes them to the file's format.
/// One thread writes at a time. Frames given to writeAsync() are encoded and written by the file's own thread; when the
/// ring is full, writeAsync() waits, and nothing is dropped. An MPEG-4 file is readable at every moment while it grows
/// and becomes a plain, seekable file when it is closed.
class ExtAudioFileWriter {
public:
    /// Calls dispose() if that was not done.
    virtual ~ExtAudioFileWriter() = default;

    /// The format of the frames for write() and writeAsync(): linear PCM, 32-bit float, any rate and channel count.
    virtual OSStatus setClientDataFormat(const AudioStreamBasicDescription& format) = 0;
    /// Whether a converter is set up between client and file (always true after setClientDataFormat()).
    [[nodiscard]] virtual bool hasAudioConverter() const = 0;
    /// For each channel of the file, the client channel that feeds it. Before the first frame.
    virtual OSStatus setConverterChannelMap(std::span<const std::int32_t> map) = 0;
    /// Continues where @p predecessor ends, as if one file had been cut in two: the resampler's state carries over, no
    /// frame is lost or repeated. Before the first frame; the predecessor takes no more frames and may be disposed at
    /// any time after. Both have the same client format and rate.
    virtual OSStatus continueFrom(ExtAudioFileWriter& predecessor) = 0;

    /// Converts, encodes and writes on the calling thread (or copies to the ring and waits for room).
    virtual OSStatus write(std::uint32_t frames, const AudioBufferList* data) = 0;
    /// Copies the frames into the file's ring and returns; with 0 frames and no data it only prepares the ring and the
    /// thread. Takes no lock while there is room. @return the first error of the file's thread, if there was one.
    virtual OSStatus writeAsync(std::uint32_t frames, const AudioBufferList* data) = 0;

    /// Writes the rest, closes the file and waits. @return the first error since the file was created.
    virtual OSStatus dispose() = 0;
    /// dispose() on the file's own thread: returns at once, and @p closed is called on that thread when the file is
    /// closed. The object may be deleted after the call.
    virtual void disposeLater(std::function<void(OSStatus)> closed) = 0;

    /// Client frames taken so far. Any thread.
    [[nodiscard]] virtual std::int64_t framesAccepted() const = 0;
    /// The first error since the file was created. Any thread.
    [[nodiscard]] virtual Error firstError() const = 0;
    [[nodiscard]] virtual QString path() const = 0;
};

/// Reads an audio file as frames in a client format. One thread at a time.
class ExtAudioFileReader {
public:
    virtual ~ExtAudioFileReader() = default;
    [[nodiscard]] virtual AudioStreamBasicDescription fileDataFormat() const = 0;
    /// Length in frames at the file's own rate, without priming and padding; exact for MPEG-4, WAVE, FLAC, CAF.
    [[nodiscard]] virtual std::int64_t fileLengthFrames() const = 0;
    virtual OSStatus setClientDataFormat(const AudioStreamBasicDescription& format) = 0;
    /// The next read() starts at this frame of the client format.
    virtual OSStatus seek(std::int64_t clientFrame) = 0;
    /// Reads at most @p frames frames (and at most what each buffer holds). Sets @p frames to the count read, 0 at the
    /// end, and each buffer's size. A damaged part is read as silence of its length: the call that reaches it returns
    /// the error, once, together with its frames; the next call continues behind it.
    virtual OSStatus read(std::uint32_t& frames, AudioBufferList* data) = 0;
    /// Whether reading from any frame on gives exactly what reading from the beginning gives, at the cost of a packet.
    [[nodiscard]] virtual bool seeksExactly() const { return false; }
    /// The first channel's value at each of these client frames (ascending), without reading the frames between them.
    /// For pictures of the audio: the values equal those of a read from the beginning, except that noise which an
    /// encoder left to the decoder differs. They depend only on the file and on the frames of the call. Returns true
    /// only when the frames lie within the file and nothing failed; otherwise the caller must read. Does not change
    /// where the next read() starts.
    [[nodiscard]] virtual bool sparseSamples(std::span<const std::int64_t> /*frames*/, std::span<float> /*out*/) {
        return false;
    }
    [[nodiscard]] virtual Error firstError() const = 0;
    /// The file's metadata value for a key ("title", "artist"); empty when it has none.
    [[nodiscard]] virtual QString metadata(const QString& /*key*/) const { return {}; }
};

/// Properties of a file, found without decoding it.
struct AudioFileInfo {
    AudioStreamBasicDescription dataFormat;
    std::int64_t packetCount = 0;
    std::int64_t frameCount = 0; ///< exact length at the file's rate, without priming and padding
    double seconds = 0;          ///< frameCount divided by the rate
};

/// Two or more audio tracks mixed together and written as one WAVE file.
class Movie {
public:
    virtual ~Movie() = default;
    /// Seconds of the longest track.
    [[nodiscard]] virtual double duration() const = 0;
    [[nodiscard]] virtual int soundTracks() const = 0;
    /// Adds the first audio track of @p other to this movie, starting at time 0. False when it has none.
    virtual bool insertSoundTrackOf(const Movie& other) = 0;
    /// Corrects the timing of a track from a position on, given in seconds of the file (for clocks that differ and
    /// frames that were lost): the track plays `offset` later and runs at `speed` times its rate.
    struct TrackTiming {
        double offset = 0;
        double speed = 1;
    };
    virtual void setTiming(int track, TrackTiming timing) = 0;
    /// Writes the sum of all tracks, 44100 Hz, 32-bit integer, two channels; the sum is limited, it never wraps around.
    /// Blocks. @p progress receives a value from 0 to 1 and returns false to stop. On failure no file is left. A part
    /// of a track that cannot be read is no failure: it becomes silence, and readError() reports it.
    virtual Result<> writeWave(const QString& path, const std::function<bool(double)>& progress) = 0;
    /// Writes each track alone as it is in the sum of writeWave(): shifted, resampled, 44100 Hz, two channels, and all
    /// of them as long as the sum. One MPEG-4 file per track, in @p format. Otherwise like writeWave(); on failure none
    /// of the files is left.
    virtual Result<> writeTracks(const QStringList& paths, const AudioStreamBasicDescription& format,
                                 const std::function<bool(double)>& progress) = 0;
    /// The first read error of the last writeWave() or writeTracks().
    [[nodiscard]] virtual Error readError() const = 0;
};

/// Opens and creates all media files. Thread-safe; the callers own the objects that it returns.
class MediaFiles {
public:
    virtual ~MediaFiles() = default;
    /// Creates a file (type: kAudioFileM4AType, kAudioFileWAVEType, kAudioFileCAFType), in @p format. With
    /// kAudioFileFlags_EraseFile an existing file is overwritten; without it the call fails and the file is kept.
    /// The pointers in the results of this class are never null.
    virtual Result<std::unique_ptr<ExtAudioFileWriter>> createWriter(const QString& path, std::uint32_t fileType,
                                                                     const AudioStreamBasicDescription& format,
                                                                     std::uint32_t flags) = 0;
    virtual Result<std::unique_ptr<ExtAudioFileReader>> openReader(const QString& path) = 0;
    virtual Result<AudioFileInfo> info(const QString& path) = 0;
    virtual Result<std::unique_ptr<Movie>> openMovie(const QString& path) = 0;
    /// Completes a linear PCM description in place (kAudioFormatProperty_FormatInfo).
    virtual OSStatus completeFormat(AudioStreamBasicDescription& format) = 0;
};

} // namespace Platform

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/AudioTypes.h"

#include <functional>
#include <memory>
#include <span>

#include <QString>

namespace Platform {

/// Why a file operation failed, for the program (kind) and for people (text: what, and why).
struct MediaError {
    enum class Kind {
        None,
        NotFound,
        NotPermitted,
        NotAFile,
        UnknownFormat,
        NoAudio,
        Damaged,
        DiskFull,
        Encoder,
        Other
    };
    Kind kind = Kind::None;
    QString text;
    explicit operator bool() const { return kind != Kind::None; }
};

/// Writes one audio file: takes frames in the client format, converts and encodes them to the file's format.
///
/// One thread writes at a time. What writeAsync() took is encoded and written by the file's own thread; a full ring
/// makes writeAsync() wait, nothing is dropped. An MPEG-4 file is readable at every moment while it grows and becomes a
/// plain, seekable one when it is closed.
class ExtAudioFileWriter {
public:
    /// Disposes when that has not been done.
    virtual ~ExtAudioFileWriter() = default;

    /// The format of what write() and writeAsync() are given: linear PCM, 32-bit float, any rate and channel count.
    virtual OSStatus setClientDataFormat(const AudioStreamBasicDescription& format) = 0;
    /// Whether a converter stands between client and file (always, once the client format is set).
    [[nodiscard]] virtual bool hasAudioConverter() const = 0;
    /// For each channel of the file, the client channel that feeds it. Before the first frame.
    virtual OSStatus setConverterChannelMap(std::span<const std::int32_t> map) = 0;
    /// Goes on where @p predecessor ends, as if one file had been cut in two: the resampler's phase carries over, no
    /// frame is lost or repeated. Before the first frame; the predecessor takes no more frames and may be disposed at
    /// any time after. Both have the same client format and rate.
    virtual OSStatus continueFrom(ExtAudioFileWriter& predecessor) = 0;

    /// Converts, encodes and writes on the calling thread (or hands over and waits for room).
    virtual OSStatus write(std::uint32_t frames, const AudioBufferList* data) = 0;
    /// Copies the frames into the file's ring and returns; with 0 frames and no data it makes ring and thread ready.
    /// Takes no lock while there is room. @return the first error of the file's thread, if there was one.
    virtual OSStatus writeAsync(std::uint32_t frames, const AudioBufferList* data) = 0;

    /// Writes what is left, closes and waits. @return the first error of the file's life.
    virtual OSStatus dispose() = 0;
    /// dispose() on the file's own thread: returns at once, @p closed is called on that thread when the file is closed.
    /// The object may be deleted after the call.
    virtual void disposeLater(std::function<void(OSStatus)> closed) = 0;

    /// Client frames taken so far. Any thread.
    [[nodiscard]] virtual std::int64_t framesAccepted() const = 0;
    /// The first thing that went wrong in this file's life. Any thread.
    [[nodiscard]] virtual MediaError firstError() const = 0;
    [[nodiscard]] virtual QString path() const = 0;
};

/// Reads an audio file as frames in a client format. One thread at a time.
class ExtAudioFileReader {
public:
    virtual ~ExtAudioFileReader() = default;
    [[nodiscard]] virtual AudioStreamBasicDescription fileDataFormat() const = 0;
    /// Length in frames at the file's own rate, priming and padding taken off; exact for MPEG-4, WAVE, FLAC, CAF.
    [[nodiscard]] virtual std::int64_t fileLengthFrames() const = 0;
    virtual OSStatus setClientDataFormat(const AudioStreamBasicDescription& format) = 0;
    /// The next read() begins at this frame of the client format.
    virtual OSStatus seek(std::int64_t clientFrame) = 0;
    /// Fills at most @p frames frames (and at most what each buffer holds); @p frames becomes the count read, 0 at the
    /// end, and each buffer's size what was read. A damaged place is read as silence of its length: the call that meets
    /// it returns the error, once, together with its frames; the next goes on behind it.
    virtual OSStatus read(std::uint32_t& frames, AudioBufferList* data) = 0;
    /// The first channel's value at each of these client frames (ascending), without reading what lies between. True
    /// only where that gives exactly the values of a read from the beginning, the frames lie within the file, and
    /// nothing failed; else the caller reads. Where the next read() begins stays as it is.
    [[nodiscard]] virtual bool sparseSamples(std::span<const std::int64_t> /*frames*/, std::span<float> /*out*/) {
        return false;
    }
    [[nodiscard]] virtual MediaError firstError() const = 0;
    /// What the file says of itself under a key ("title", "artist"); empty when it says nothing.
    [[nodiscard]] virtual QString metadata(const QString& /*key*/) const { return {}; }
};

/// What a file is, without decoding it.
struct AudioFileInfo {
    AudioStreamBasicDescription dataFormat;
    std::int64_t packetCount = 0;
    std::int64_t frameCount = 0; ///< exact length at the file's rate, priming and padding taken off
    double seconds = 0;          ///< frameCount over the rate
};

/// Two or more sound tracks laid over one another, written out as one WAVE file.
class Movie {
public:
    virtual ~Movie() = default;
    /// Seconds of the longest track.
    [[nodiscard]] virtual double duration() const = 0;
    [[nodiscard]] virtual int soundTracks() const = 0;
    /// Lays the first sound track of @p other over this movie from time 0. False when it has none.
    virtual bool insertSoundTrackOf(const Movie& other) = 0;
    /// Where, in seconds of the file, a stretch of the track is to be stretched or shifted (clocks that differ, frames
    /// that were lost): the track plays `offset` later and runs at `speed` times its rate.
    struct TrackTiming {
        double offset = 0;
        double speed = 1;
    };
    virtual void setTiming(int track, TrackTiming timing) = 0;
    /// Writes the sum of all tracks, 44100 Hz, 32-bit integer, two channels; the sum is limited, it never wraps around.
    /// Blocks; @p progress is told a share from 0 to 1 and may answer false to stop. Nothing is left on failure. A
    /// place of a track that cannot be read is no failure: it is silent in the sum, and readError() says so.
    [[nodiscard]] virtual MediaError writeWave(const QString& path, const std::function<bool(double)>& progress) = 0;
    /// The first thing that the last writeWave() could not read of a track.
    [[nodiscard]] virtual MediaError readError() const = 0;
};

/// The door to all media files. Thread-safe; the objects it hands out are owned by the caller.
class MediaFiles {
public:
    virtual ~MediaFiles() = default;
    /// Creates a file (type: kAudioFileM4AType, kAudioFileWAVEType, kAudioFileCAFType), in @p format. With
    /// kAudioFileFlags_EraseFile an existing file is overwritten, else it is kept and the call fails.
    [[nodiscard]] virtual std::unique_ptr<ExtAudioFileWriter> createWriter(const QString& path, std::uint32_t fileType,
                                                                           const AudioStreamBasicDescription& format,
                                                                           std::uint32_t flags, MediaError& error) = 0;
    [[nodiscard]] virtual std::unique_ptr<ExtAudioFileReader> openReader(const QString& path, MediaError& error) = 0;
    [[nodiscard]] virtual bool info(const QString& path, AudioFileInfo& info, MediaError& error) = 0;
    [[nodiscard]] virtual std::unique_ptr<Movie> openMovie(const QString& path, MediaError& error) = 0;
    /// Completes a linear PCM description in place (kAudioFormatProperty_FormatInfo).
    virtual OSStatus completeFormat(AudioStreamBasicDescription& format) = 0;
};

} // namespace Platform

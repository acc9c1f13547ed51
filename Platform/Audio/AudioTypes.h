// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

/// Four letters in one number, the first in the highest byte.
constexpr std::uint32_t fourCharCode(const char (&text)[5]) {
    return (std::uint32_t(std::uint8_t(text[0])) << 24) | (std::uint32_t(std::uint8_t(text[1])) << 16) |
           (std::uint32_t(std::uint8_t(text[2])) << 8) | std::uint32_t(std::uint8_t(text[3]));
}

/// Result code of the audio services: 0 is success, anything else says what failed.
using OSStatus = std::int32_t;
inline constexpr OSStatus noErr = 0;
inline constexpr OSStatus kAudioHardwareNotRunningError = OSStatus(fourCharCode("stop"));      ///< no sound server
inline constexpr OSStatus kAudioHardwareUnknownPropertyError = OSStatus(fourCharCode("who?")); ///< not on this device
inline constexpr OSStatus kAudioHardwareBadDeviceError = OSStatus(fourCharCode("!dev"));       ///< no such device
inline constexpr OSStatus kAudioHardwareIllegalOperationError = OSStatus(fourCharCode("nope"));
inline constexpr OSStatus kAudioUnitErr_InvalidPropertyValue = -10851;
inline constexpr OSStatus kAudioUnitErr_Uninitialized = -10867;
inline constexpr OSStatus kAudioUnitErr_CannotDoInCurrentContext = -10863;
inline constexpr OSStatus kAudioUnitErr_FormatNotSupported = -10868;

/// Names one audio device in this process. Never reused; 0 is no device.
using AudioObjectID = std::uint32_t;

inline constexpr std::uint32_t kAudioFormatLinearPCM = fourCharCode("lpcm");
inline constexpr std::uint32_t kAudioFormatMPEG4AAC = fourCharCode("aac ");
inline constexpr std::uint32_t kAudioFileM4AType = fourCharCode("m4af");
inline constexpr std::uint32_t kAudioFileWAVEType = fourCharCode("WAVE");
inline constexpr std::uint32_t kAudioFileCAFType = fourCharCode("caff");
inline constexpr std::uint32_t kAudioFormatFlagIsFloat = 1;
inline constexpr std::uint32_t kAudioFormatFlagIsSignedInteger = 4;
inline constexpr std::uint32_t kAudioFormatFlagIsPacked = 8;
inline constexpr std::uint32_t kAudioFormatFlagIsNonInterleaved = 32;
inline constexpr std::uint32_t kAudioFileFlags_EraseFile = 1;

/// One stream of audio as data: how many samples a second, how they are coded and laid out. 40 bytes.
struct AudioStreamBasicDescription {
    double mSampleRate = 0;            ///< frames a second
    std::uint32_t mFormatID = 0;       ///< four letters: "lpcm", "aac "
    std::uint32_t mFormatFlags = 0;    ///< of the format
    std::uint32_t mBytesPerPacket = 0; ///< 0 when the size varies from packet to packet
    std::uint32_t mFramesPerPacket = 0;
    std::uint32_t mBytesPerFrame = 0; ///< of one channel when each channel has its own buffer
    std::uint32_t mChannelsPerFrame = 0;
    std::uint32_t mBitsPerChannel = 0;
    std::uint32_t mReserved = 0;

    friend bool operator==(const AudioStreamBasicDescription&, const AudioStreamBasicDescription&) = default;
};
static_assert(sizeof(AudioStreamBasicDescription) == 40);

/// Samples as 32-bit float, one buffer a channel.
constexpr AudioStreamBasicDescription planarFloatFormat(double rate, std::uint32_t channels) {
    return {.mSampleRate = rate,
            .mFormatID = kAudioFormatLinearPCM,
            .mFormatFlags = kAudioFormatFlagIsFloat | kAudioFormatFlagIsPacked | kAudioFormatFlagIsNonInterleaved,
            .mBytesPerPacket = 4,
            .mFramesPerPacket = 1,
            .mBytesPerFrame = 4,
            .mChannelsPerFrame = channels,
            .mBitsPerChannel = 32};
}

/// Samples of one channel (or of several interleaved ones).
struct AudioBuffer {
    std::uint32_t mNumberChannels;
    std::uint32_t mDataByteSize; ///< bytes that are valid or asked for
    void* mData;
};

/// A C-style list: @c mNumberBuffers buffers follow in one block.
struct AudioBufferList {
    std::uint32_t mNumberBuffers;
    AudioBuffer mBuffers[1];
};

/// When a cycle was captured.
struct AudioTimeStamp {
    std::uint64_t mHostTime = 0; ///< nanoseconds of the steady clock, of the first frame
    double mSampleTime = 0;      ///< frames since the unit started, lost ones included
    bool mStartsAnew = false;    ///< first cycle of a connection: it does not follow any earlier cycle
};

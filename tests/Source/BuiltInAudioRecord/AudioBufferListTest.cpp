// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/BuiltInAudioRecord/BuildInAudioRecord.h"

#include <gtest/gtest.h>

#include <sys/resource.h>

#include <cstdlib>

TEST(AudioBufferListTest, HasOneZeroedBufferPerChannel) {
    AudioBufferList* list = BuildInAudioRecord::allocateAudioBufferList(3, 2048);
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->mNumberBuffers, 3U);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(list->mBuffers[i].mNumberChannels, 1U);
        EXPECT_EQ(list->mBuffers[i].mDataByteSize, 2048U);
        ASSERT_NE(list->mBuffers[i].mData, nullptr);
        EXPECT_EQ(static_cast<const char*>(list->mBuffers[i].mData)[2047], 0);
    }
    BuildInAudioRecord::destroyAudioBufferList(list);
    BuildInAudioRecord::destroyAudioBufferList(nullptr);
}

// A sanitizer's own tables exceed the memory limit that is set here.
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
namespace {
[[noreturn]] void allocateMoreThanThereIs() {
    rlimit little{};
    little.rlim_cur = little.rlim_max = 1UL << 30;
    setrlimit(RLIMIT_AS, &little);
    std::_Exit(BuildInAudioRecord::allocateAudioBufferList(8, 1U << 29) == nullptr ? 0 : 1);
}
} // namespace

TEST(AudioBufferListTest, IsNullWhenThereIsNoMemory) {
    EXPECT_EXIT(allocateMoreThanThereIs(), testing::ExitedWithCode(0), "");
}
#endif

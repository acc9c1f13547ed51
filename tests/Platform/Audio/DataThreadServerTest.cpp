// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Counts allocations, releases and locks on the sound server's data threads of this process, where none may happen, and
// the memory that the process keeps. All calls pass through here, including those of the libraries. Sanitizers replace
// the allocator and the locks, so these tests are not built with them.

#include "Platform/Audio/linux/PipeWireHandles.h"
#include "tests/support/PrivateAudioSession.h"
#include "tests/support/TestSource.h"
#include "tests/support/UnitCapture.h"
#include "tests/support/WaitFor.h"

#include <atomic>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <filesystem>
#include <iterator>
#include <malloc.h>
#include <string>

#include <dlfcn.h>
#include <pthread.h>

#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#define COUNTS_CALLS 1
#else
#define COUNTS_CALLS 0
#endif

namespace {

std::atomic<bool> counting{false};
std::atomic<std::uint64_t> allocations{0};
std::atomic<std::uint64_t> locks{0};
std::atomic<std::int64_t> bytesInUse{0}; ///< on the heap, of the whole process

thread_local bool onDataThread = false;

[[maybe_unused]] void count(std::atomic<std::uint64_t>& what) {
    if (onDataThread && counting.load(std::memory_order_relaxed))
        what.fetch_add(1, std::memory_order_relaxed);
}

} // namespace

#if COUNTS_CALLS
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
void __libc_free(void* block);

static void* taken(void* block) {
    count(allocations);
    bytesInUse.fetch_add(std::int64_t(malloc_usable_size(block)), std::memory_order_relaxed);
    return block;
}
static void givenBack(void* block) {
    bytesInUse.fetch_sub(std::int64_t(malloc_usable_size(block)), std::memory_order_relaxed);
}

void* malloc(std::size_t size) {
    return taken(__libc_malloc(size));
}
void* calloc(std::size_t number, std::size_t size) {
    return taken(__libc_calloc(number, size));
}
void* realloc(void* block, std::size_t size) {
    const auto before = std::int64_t(malloc_usable_size(block));
    void* const moved = __libc_realloc(block, size);
    if (moved || size == 0)
        bytesInUse.fetch_sub(before, std::memory_order_relaxed);
    return moved ? taken(moved) : moved;
}
void* memalign(std::size_t alignment, std::size_t size) {
    return taken(__libc_memalign(alignment, size));
}
void* aligned_alloc(std::size_t alignment, std::size_t size) {
    return taken(__libc_memalign(alignment, size));
}
int posix_memalign(void** block, std::size_t alignment, std::size_t size) {
    *block = taken(__libc_memalign(alignment, size));
    return *block ? 0 : ENOMEM;
}
void free(void* block) {
    count(allocations);
    givenBack(block);
    __libc_free(block);
}
int pthread_mutex_lock(pthread_mutex_t* mutex) {
    using Lock = int (*)(pthread_mutex_t*);
    static const Lock real = reinterpret_cast<Lock>(dlsym(RTLD_NEXT, "pthread_mutex_lock"));
    count(locks);
    return real(mutex);
}
// The thread that dequeues a buffer in real time is a data thread.
pw_buffer* pw_stream_dequeue_buffer(pw_stream* stream) {
    using Dequeue = pw_buffer* (*)(pw_stream*);
    static const Dequeue real = reinterpret_cast<Dequeue>(dlsym(RTLD_NEXT, "pw_stream_dequeue_buffer"));
    onDataThread = true;
    return real(stream);
}
}
#endif

using namespace Platform;
using namespace Qt::StringLiterals;

namespace {

class DataThread : public testing::Test {
protected:
    PrivateAudioSession& session_ = PrivateAudioSession::shared();
    std::unique_ptr<AudioHardware> hardware_ = createAudioHardware();
};

} // namespace

#if COUNTS_CALLS
TEST_F(DataThread, AllocatesNothingAndTakesNoLockWhileItCaptures) {
    TestSource source({.name = "test.rt", .description = "Watched"});
    ASSERT_TRUE(source.start());
    UnitCapture capture(*hardware_, waitForDevice(*hardware_, u"Watched"_s), 0, false);
    ASSERT_TRUE(capture.start());
    ASSERT_TRUE(waitFor([&] { return capture.frames() > 24000; }));
    counting = true;
    const auto before = capture.frames();
    ASSERT_TRUE(waitFor([&] { return capture.frames() > before + 2 * 48000; }));
    // A full ring must not change the result.
    capture.unit().holdCycles();
    ASSERT_TRUE(waitFor([&] { return capture.unit().lostFrames() > 4800; }, 40000));
    capture.unit().releaseCycles();
    counting = false;
    EXPECT_EQ(allocations, 0u);
    EXPECT_EQ(locks, 0u);
}

TEST_F(DataThread, AnAllocationOnItIsDetected) {
    // Checks the counter: a source whose sample function allocates is detected.
    TestSource source(
        {.name = "test.bad", .description = "Allocating", .sample = [](std::uint64_t frame, std::uint32_t) {
             return float(std::string(64, char('a' + frame % 2)).size()) / 128;
         }});
    ASSERT_TRUE(source.start());
    UnitCapture capture(*hardware_, waitForDevice(*hardware_, u"Allocating"_s), 0, false);
    ASSERT_TRUE(capture.start());
    counting = true;
    EXPECT_TRUE(waitFor([] { return allocations > 0; }));
    counting = false;
    allocations = 0;
}
#endif

TEST_F(DataThread, LeaksNothingOverAHundredUnits) {
    TestSource source({.name = "test.cycle", .description = "Come and go"});
    ASSERT_TRUE(source.start());
    const auto device = waitForDevice(*hardware_, u"Come and go"_s);
    const auto round = [&] {
        UnitCapture capture(*hardware_, device, 0, false);
        ASSERT_TRUE(capture.start());
        ASSERT_TRUE(waitFor([&] { return capture.frames() > 0; }));
    };
    const auto entries = [](const char* folder) {
        return std::distance(std::filesystem::directory_iterator(folder), {});
    };
    for (int i = 0; i < 20; ++i)
        round();
    const auto files = entries("/proc/self/fd");
    const auto threads = entries("/proc/self/task");
    [[maybe_unused]] const auto bytes = bytesInUse.load();
    for (int i = 0; i < 80; ++i)
        round();
    // The server releases the objects of the last units after a delay. Objects that each round leaks would exist 80
    // times. The resident size is no measure, because the heap keeps free pages.
    EXPECT_TRUE(waitFor([&] { return entries("/proc/self/fd") < files + 40; })) << "files at first: " << files;
    EXPECT_TRUE(waitFor([&] { return entries("/proc/self/task") < threads + 40; })) << "threads at first: " << threads;
#if COUNTS_CALLS
    EXPECT_TRUE(waitFor([&] { return bytesInUse - bytes < 80 * 256; })) << "more bytes by: " << bytesInUse - bytes;
#endif
}

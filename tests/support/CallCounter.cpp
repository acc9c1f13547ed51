// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/CallCounter.h"

#if SONAPHEX_COUNTS_CALLS
#include <dlfcn.h>
#include <pthread.h>

#include <cstddef>

namespace {
thread_local bool counting = false;
thread_local long allocated = 0;
thread_local long locked = 0;
} // namespace

// Definitions in the program take precedence over those of the C library, also for calls from other libraries.
extern "C" {
void* __libc_malloc(std::size_t);
void* __libc_calloc(std::size_t, std::size_t);
void* __libc_realloc(void*, std::size_t);

void* malloc(std::size_t size) {
    allocated += counting;
    return __libc_malloc(size);
}
void* calloc(std::size_t count, std::size_t size) {
    allocated += counting;
    return __libc_calloc(count, size);
}
void* realloc(void* block, std::size_t size) {
    allocated += counting;
    return __libc_realloc(block, size);
}
int pthread_mutex_lock(pthread_mutex_t* mutex) {
    using Lock = int (*)(pthread_mutex_t*);
    static const Lock real = reinterpret_cast<Lock>(dlsym(RTLD_NEXT, "pthread_mutex_lock"));
    locked += counting;
    return real(mutex);
}
}

CallCounter::CallCounter() {
    allocated = 0;
    locked = 0;
    counting = true;
}

CallCounter::~CallCounter() {
    counting = false;
}

long CallCounter::allocations() const {
    return allocated;
}

long CallCounter::locks() const {
    return locked;
}
#endif

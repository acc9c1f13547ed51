// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Linked into every program that is built with ThreadSanitizer, and no other.
//
// QProcess starts programs by clone() with shared memory until exec, like vfork(). GCC 12's ThreadSanitizer treats
// every clone() as a fork: the child resets the state of "its" thread, and because the memory is shared, the parent's
// state is reset twice. From then on the thread that started a program is not tracked: its locks are not seen, so data
// that they guard is reported as a race, real races are missed, and signals that it raises are not delivered. Giving
// the child its own memory leaves the parent's state alone; the sanitizer itself turns vfork() into fork() for the same
// reason.
#ifndef __SANITIZE_THREAD__
#error "this file is only needed with ThreadSanitizer"
#endif

#include <cstdarg>
#include <dlfcn.h>
#include <sched.h>
#include <sys/types.h>

using Clone = int (*)(int (*)(void*), void*, int, void*, ...);

extern "C" int clone(int (*work)(void*), void* stack, int flags, void* argument, ...) noexcept {
    static const auto watched = reinterpret_cast<Clone>(dlsym(RTLD_NEXT, "clone"));
    std::va_list more;
    va_start(more, argument);
    auto* const parentId = va_arg(more, pid_t*);
    auto* const storage = va_arg(more, void*);
    auto* const childId = va_arg(more, pid_t*);
    va_end(more);
    if (!(flags & CLONE_THREAD))
        flags &= ~(CLONE_VM | CLONE_VFORK);
    return watched(work, stack, flags, argument, parentId, storage, childId);
}

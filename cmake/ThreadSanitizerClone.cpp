// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Belongs to every program that the thread sanitizer watches, and to no other.
//
// QProcess starts programs by clone() with memory shared until exec, as vfork() does. GCC 12's thread sanitizer takes
// every clone() for a fork: the child puts the state of "its" thread in order, and where memory is shared the parent
// does so once more. The thread that started a program is not watched from then on: its locks are not seen, so that
// whatever they guard is reported as a race, true races of it are not, and signals that it raises never arrive. A child
// with memory of its own leaves the parent's state alone; the sanitizer itself turns vfork() into fork() for the same
// reason.
#ifndef __SANITIZE_THREAD__
#error "this is of use only beside the thread sanitizer"
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

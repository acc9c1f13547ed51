// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/DiskRoom.h"

#include <dlfcn.h>
#include <sys/statvfs.h>

std::atomic<std::int64_t>& DiskRoom::free() {
    static std::atomic<std::int64_t> bytes{-1};
    return bytes;
}

// The program's own definition comes before the one of the C library. With 64-bit offsets the header gives the function
// the library's other name.
extern "C" int statvfs(const char* path, struct statvfs* result) noexcept {
    static const auto call = reinterpret_cast<int (*)(const char*, struct statvfs*)>(dlsym(RTLD_NEXT, "statvfs64"));
    const int status = call(path, result);
    if (const auto bytes = DiskRoom::free().load(); status == 0 && bytes >= 0) {
        result->f_frsize = 1;
        result->f_bavail = fsblkcnt_t(bytes);
    }
    return status;
}

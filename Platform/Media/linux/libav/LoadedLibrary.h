// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <dlfcn.h>
#include <string>

namespace Av {

/// A library of libav that is loaded while the program runs, or the reason why it cannot be used.
class LoadedLibrary {
public:
    /// @p name must contain the major version of the headers, because the structures differ between versions.
    explicit LoadedLibrary(const char* name) : handle_(dlopen(name, RTLD_LAZY | RTLD_LOCAL)) {
        if (!handle_)
            complain(name);
    }

    template <typename Function>
    void find(Function*& function, const char* symbol) {
        function = handle_ ? reinterpret_cast<Function*>(dlsym(handle_, symbol)) : nullptr;
        if (!function && why_.empty())
            complain(symbol);
    }
    /// Why the library, or one of the functions, is missing; empty when all were found.
    [[nodiscard]] const std::string& why() const { return why_; }

private:
    void complain(const char* what) {
        const char* const error = dlerror();
        why_ = error ? error : what;
    }

    void* handle_; // never closed: objects of the library may still be in use
    std::string why_;
};

} // namespace Av

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <dlfcn.h>
#include <string>

namespace Av {

/// A library of libav that is loaded while the program runs, and why it cannot be used.
class LoadedLibrary {
public:
    /// @p name has the version that the headers are of: other versions have other structures.
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
    /// Empty when the library and all that was looked for are there.
    [[nodiscard]] const std::string& why() const { return why_; }

private:
    void complain(const char* what) {
        const char* const error = dlerror();
        why_ = error ? error : what;
    }

    void* handle_; // never closed: objects of the library live anywhere
    std::string why_;
};

} // namespace Av

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <cassert>
#include <type_traits>
#include <utility>
#include <variant>

namespace Platform {

/// Why something failed: a kind for the program, a text for people, a detail for the log.
struct Error {
    enum class Kind {
        None,
        NotFound,
        Exists, ///< something stands at the target already
        NotPermitted,
        NotAFile,
        Busy, ///< another process or object holds it
        DiskFull,
        UnknownFormat,
        NoAudio,
        Damaged,
        Encoder,
        Cancelled,
        Other
    };
    Kind kind = Kind::None;
    QString text;     ///< what failed, and why
    QString detail{}; ///< the code of the library or the system; may be empty

    /// Whether something failed.
    explicit operator bool() const { return kind != Kind::None; }
    /// The text, and the detail in brackets.
    [[nodiscard]] QString forLog() const {
        return detail.isEmpty() ? text : text + QStringLiteral(" [") + detail + u']';
    }

    /// The error that @p code of errno stands for: "No space left on device", or "<path>: No space left on device". An
    /// error also for 0: the caller knows that something failed.
    [[nodiscard]] static Error ofErrno(int code, const QString& path = {});
};

/// What a function that can fail returns: a value or an error. Any thread; as copyable as the value.
template <typename Value = void>
class [[nodiscard]] Result {
public:
    /// From a value, or from what converts to one, such as a pointer to a derived class.
    template <typename Other>
    // NOLINTNEXTLINE(bugprone-forwarding-reference-overload): a Result is no Value, so that copies stay copies
    requires(std::is_convertible_v<Other&&, Value> && !std::is_convertible_v<Other&&, Error>) Result(Other&& value)
        : content_(std::in_place_index<0>, std::forward<Other>(value)) {}
    Result(Error error) : content_(std::in_place_index<1>, std::move(error)) { assert(this->error()); }

    /// Whether there is a value.
    explicit operator bool() const { return content_.index() == 0; }
    [[nodiscard]] Value& operator*() & { return *std::get_if<0>(&content_); }
    [[nodiscard]] const Value& operator*() const& { return *std::get_if<0>(&content_); }
    [[nodiscard]] Value&& operator*() && { return std::move(*std::get_if<0>(&content_)); }
    [[nodiscard]] Value* operator->() { return std::get_if<0>(&content_); }
    [[nodiscard]] const Value* operator->() const { return std::get_if<0>(&content_); }
    [[nodiscard]] Value valueOr(Value other) && { return *this ? std::move(**this) : std::move(other); }
    /// Of kind None when there is a value.
    [[nodiscard]] Error error() const { return *this ? Error() : *std::get_if<1>(&content_); }

private:
    std::variant<Value, Error> content_;
};

template <>
class [[nodiscard]] Result<void> {
public:
    Result() = default;
    Result(Error error) : error_(std::move(error)) {} // NOLINT: an error is a result, and one of kind None is success

    /// Whether it succeeded.
    explicit operator bool() const { return !error_; }
    [[nodiscard]] const Error& error() const { return error_; }

private:
    Error error_;
};

} // namespace Platform

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/linux/PropertyListReader.h"

#include <QVariantList>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace Platform::PropertyList {
namespace {

using namespace std::string_view_literals;

constexpr int deepestOwnNesting = 50; // the lists that this program stores are five levels deep

class OwnXmlReader {
public:
    explicit OwnXmlReader(std::string_view xml) : rest_(xml) {}

    std::optional<Dictionary> list() {
        take(R"(<?xml version="1.0" encoding="UTF-8"?>)"sv);
        takeSpace();
        take(
            R"(<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">)"sv);
        takeSpace();
        expect(R"(<plist version="1.0">)"sv);
        takeSpace();
        Dictionary result;
        if (!take("<dict/>"sv)) {
            expect("<dict>"sv);
            result = dictionary(0);
        }
        takeSpace();
        expect("</plist>"sv);
        takeSpace();
        if (failed_ || !rest_.empty())
            return std::nullopt;
        return result;
    }

private:
    /// A dictionary key, and the last text stored under it.
    struct Key {
        std::string_view name;
        QString string;
        std::string_view text;
        QString value;
    };

    bool take(std::string_view what) {
        if (failed_ || !rest_.starts_with(what))
            return false;
        rest_.remove_prefix(what.size());
        return true;
    }
    void expect(std::string_view what) {
        if (!take(what))
            failed_ = true;
    }
    void takeSpace() {
        const auto isSpace = [](char c) { return c == ' ' || c == '\n' || c == '\t' || c == '\r'; };
        rest_.remove_prefix(std::size_t(std::ranges::find_if_not(rest_, isSpace) - rest_.begin()));
    }

    /// The text up to the next tag.
    std::string_view text() {
        const void* const found = std::memchr(rest_.data(), '<', rest_.size());
        if (!found) {
            failed_ = true;
            return {};
        }
        const auto length = std::size_t(static_cast<const char*>(found) - rest_.data());
        const auto result = rest_.substr(0, length);
        rest_.remove_prefix(length);
        return result;
    }

    QString decoded(std::string_view text) {
        if (text.find('&') == std::string_view::npos)
            return QString::fromUtf8(text.data(), qsizetype(text.size()));
        QByteArray plain;
        while (!text.empty()) {
            const auto length = std::min(text.find('&'), text.size());
            plain.append(text.data(), qsizetype(length));
            text.remove_prefix(length);
            if (text.empty())
                break;
            const auto* const entity =
                std::ranges::find_if(entities, [&](const auto& each) { return text.starts_with(each.first); });
            if (entity == entities.end()) {
                failed_ = true;
                return {};
            }
            plain.append(entity->second);
            text.remove_prefix(entity->first.size());
        }
        return QString::fromUtf8(plain);
    }

    Dictionary dictionary(int depth) {
        Dictionary result;
        std::size_t expected = 0; // entries of one array usually have the same keys in the same order
        for (;;) {
            takeSpace();
            if (take("</dict>"sv))
                return result;
            expect("<key>"sv);
            const std::string_view name = text();
            expect("</key>"sv);
            if (failed_)
                return result;
            const std::size_t key = keyNamed(name, expected);
            expected = key + 1;
            takeSpace();
            const QVariant value = object(depth + 1, key);
            if (failed_)
                return result;
            result.insert(result.cend(), keys_[key].string, value);
        }
    }

    QVariantList array(int depth) {
        QVariantList result;
        for (;;) {
            takeSpace();
            if (failed_ || take("</array>"sv))
                return result;
            result.append(object(depth + 1, noKey));
        }
    }

    QVariant object(int depth, std::size_t key) {
        if (depth > deepestOwnNesting)
            failed_ = true;
        if (take("<string>"sv)) {
            const std::string_view content = text();
            expect("</string>"sv);
            return failed_ ? QString() : string(content, key);
        }
        if (take("<dict>"sv))
            return dictionary(depth);
        if (take("<integer>"sv))
            return number<qlonglong>("</integer>"sv);
        if (take("<real>"sv))
            return number<double>("</real>"sv);
        if (take("<array>"sv))
            return array(depth);
        if (take("<true/>"sv))
            return true;
        if (take("<false/>"sv))
            return false;
        if (take("<dict/>"sv))
            return Dictionary();
        if (take("<array/>"sv))
            return QVariantList();
        if (take("<data>"sv))
            return data();
        failed_ = true; // dates are rare: libplist reads them
        return {};
    }

    QString string(std::string_view content, std::size_t key) {
        if (key == noKey)
            return decoded(content);
        Key& of = keys_[key];
        if (of.value.isNull() || of.text != content) {
            of.text = content;
            of.value = decoded(content);
        }
        return of.value;
    }

    template <typename Number>
    Number number(std::string_view closing) {
        const std::string_view digits = text();
        Number value = 0;
        const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
        // Decimal numbers only: no NaN or infinity, no exponent, no leading zero, which would mean octal.
        if (result.ec != std::errc() || result.ptr != digits.data() + digits.size() ||
            (std::is_integral_v<Number> && digits.size() > 1 && digits.starts_with('0')) ||
            digits.find_first_not_of("-.0123456789"sv) != std::string_view::npos)
            failed_ = true;
        expect(closing);
        return value;
    }

    QByteArray data() {
        QByteArray encoded;
        for (const char c : text())
            if (c != '\n' && c != '\t')
                encoded.append(c);
        expect("</data>"sv);
        const auto result = QByteArray::fromBase64Encoding(encoded, QByteArray::AbortOnBase64DecodingErrors);
        if (!result || encoded.size() % 4 != 0)
            failed_ = true;
        return result.decoded;
    }

    std::size_t keyNamed(std::string_view name, std::size_t expected) {
        if (expected < keys_.size() && keys_[expected].name == name)
            return expected;
        const auto found = std::ranges::find(keys_, name, &Key::name);
        if (found != keys_.end())
            return std::size_t(found - keys_.begin());
        if (keys_.size() >= mostKeys)
            failed_ = true;
        keys_.push_back({name, decoded(name), {}, {}});
        return keys_.size() - 1;
    }

    static constexpr std::size_t noKey = std::size_t(-1);
    static constexpr std::size_t mostKeys = 500; // limited because they are searched linearly
    static constexpr std::array<std::pair<std::string_view, const char*>, 3> entities{
        {{"&amp;"sv, "&"}, {"&lt;"sv, "<"}, {"&gt;"sv, ">"}}};

    std::string_view rest_;
    bool failed_ = false;
    std::vector<Key> keys_;
};

} // namespace

std::optional<Dictionary> fromOwnXml(const QByteArray& xml) {
    if (xml.contains('\0'))
        return std::nullopt;
    return OwnXmlReader({xml.constData(), std::size_t(xml.size())}).list();
}

} // namespace Platform::PropertyList

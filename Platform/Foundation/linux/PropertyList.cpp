// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/linux/PropertyList.h"

#include "Platform/Foundation/linux/PropertyListReader.h"

#include <clocale>
#include <cstdlib>
#include <cstring>
#include <future>
#include <plist/plist.h>
#include <span>
#include <vector>

#include <QDateTime>
#include <QTimeZone>

namespace Platform::PropertyList {
namespace {

struct FreePlist {
    void operator()(void* node) const { plist_free(node); }
};
struct FreeMemory {
    void operator()(void* memory) const { std::free(memory); }
};
using NodePtr = std::unique_ptr<void, FreePlist>;
using TextPtr = std::unique_ptr<char, FreeMemory>;

/// libplist prints and reads reals in the locale of the thread: with a decimal comma every fraction would be lost.
class CNumbers {
public:
    CNumbers() : c_(newlocale(LC_NUMERIC_MASK, "C", duplocale(uselocale(nullptr)))), before_(uselocale(c_)) {}
    ~CNumbers() {
        uselocale(before_);
        freelocale(c_);
    }
    CNumbers(const CNumbers&) = delete;
    CNumbers& operator=(const CNumbers&) = delete;

private:
    locale_t c_;
    locale_t before_;
};

// libplist recurses without a limit (2.2.0 overflows the stack). The lists that this program stores are five levels
// deep.
constexpr int deepestNesting = 200;
constexpr std::size_t worthTwoThreads = 2000;

bool isTooDeep(const QByteArray& xml) {
    int depth = 0;
    const char* at = xml.constData();
    const char* const end = at + xml.size();
    const auto beginsWith = [&](const char* text) {
        const auto length = static_cast<qsizetype>(std::strlen(text));
        return end - at >= length && std::memcmp(at, text, static_cast<std::size_t>(length)) == 0;
    };
    while ((at = static_cast<const char*>(std::memchr(at, '<', static_cast<std::size_t>(end - at))))) {
        if (beginsWith("<dict") || beginsWith("<array")) {
            if (++depth > deepestNesting)
                return true;
            const void* close = std::memchr(at, '>', static_cast<std::size_t>(end - at));
            if (close && static_cast<const char*>(close)[-1] == '/')
                --depth;
        } else if (beginsWith("</dict") || beginsWith("</array")) {
            --depth;
        }
        ++at;
    }
    return false;
}

/// libplist 2.7 replaced the functions of dates, whose times began in 2001. Templates, so that only the functions that
/// exist are used.
constexpr std::int64_t secondsTo2001 = 978307200; ///< from 1970-01-01 to 2001-01-01, UTC

template <typename Seconds>
plist_t dateNode(Seconds since1970) {
    if constexpr (requires { plist_new_unix_date(since1970); })
        return plist_new_unix_date(since1970);
    else
        return plist_new_date(Seconds(since1970 - secondsTo2001), 0);
}

template <typename Node>
std::int64_t secondsSince1970(Node date) {
    std::int64_t seconds = 0;
    if constexpr (requires { plist_get_unix_date_val(date, &seconds); }) {
        plist_get_unix_date_val(date, &seconds);
        return seconds;
    } else {
        std::int32_t since2001 = 0;
        std::int32_t microseconds = 0;
        plist_get_date_val(date, &since2001, &microseconds);
        return secondsTo2001 + since2001;
    }
}

/// libplist 2.2 writes an unsigned number as a signed one, and has no other. Since 2.3 it writes it unsigned, so that a
/// negative number would become a huge one, and has a function for signed numbers; PLIST_UINT is a macro since then.
plist_t integerNode(qlonglong value) {
#ifdef PLIST_UINT
    return plist_new_int(value);
#else
    return plist_new_uint(static_cast<std::uint64_t>(value));
#endif
}

plist_t nodeFrom(const QVariant& object);

template <typename Map>
plist_t dictionaryNode(const Map& map) {
    plist_t node = plist_new_dict();
    for (auto it = map.cbegin(); it != map.cend(); ++it)
        if (plist_t child = nodeFrom(it.value()))
            plist_dict_set_item(node, it.key().toUtf8().constData(), child);
    return node;
}

plist_t nodeFrom(const QVariant& object) {
    switch (object.typeId()) {
    case QMetaType::QString:
        return plist_new_string(static_cast<const QString*>(object.constData())->toUtf8().constData());
    case QMetaType::Bool:
        return plist_new_bool(object.toBool());
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::LongLong:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
        return integerNode(object.toLongLong());
    case QMetaType::ULong:
    case QMetaType::ULongLong:
        return plist_new_uint(object.toULongLong());
    case QMetaType::Double:
    case QMetaType::Float:
        return plist_new_real(object.toDouble());
    case QMetaType::QByteArray: {
        const QByteArray data = object.toByteArray();
        return plist_new_data(data.constData(), static_cast<std::uint64_t>(data.size()));
    }
    case QMetaType::QDateTime:
        return dateNode(std::int64_t(object.toDateTime().toSecsSinceEpoch()));
    case QMetaType::QVariantList:
    case QMetaType::QStringList: {
        plist_t node = plist_new_array();
        const QVariantList list = object.toList();
        for (const QVariant& entry : list)
            if (plist_t child = nodeFrom(entry))
                plist_array_append_item(node, child);
        return node;
    }
    case QMetaType::QVariantMap:
        return dictionaryNode(*static_cast<const QVariantMap*>(object.constData()));
    case QMetaType::QVariantHash:
        return dictionaryNode(*static_cast<const QVariantHash*>(object.constData()));
    default:
        return nullptr;
    }
}

/// Converts a parsed list. Keys repeat from entry to entry, so each key is converted to a QString once and then shared.
class Reader {
public:
    QVariant object(plist_t node) {
        switch (plist_get_node_type(node)) {
        case PLIST_STRING:
            return QString::fromUtf8(plist_get_string_ptr(node, nullptr));
        case PLIST_BOOLEAN: {
            std::uint8_t value = 0;
            plist_get_bool_val(node, &value);
            return value != 0;
        }
        case PLIST_UINT: {
            std::uint64_t value = 0;
            plist_get_uint_val(node, &value);
            return static_cast<qlonglong>(value);
        }
        case PLIST_REAL: {
            double value = 0;
            plist_get_real_val(node, &value);
            return value;
        }
        case PLIST_DATA: {
            std::uint64_t length = 0;
            const char* data = plist_get_data_ptr(node, &length);
            return QByteArray(data, static_cast<qsizetype>(length));
        }
        case PLIST_DATE:
            return QDateTime::fromSecsSinceEpoch(secondsSince1970(node), QTimeZone::utc());
        case PLIST_ARRAY:
            return array(node);
        case PLIST_DICT:
            return dictionary(node);
        default:
            return {};
        }
    }

    Dictionary dictionary(plist_t node) {
        Dictionary result;
        void* iterator = nullptr;
        plist_dict_new_iter(node, &iterator);
        const TextPtr owner(static_cast<char*>(iterator));
        for (;;) {
            char* key = nullptr;
            plist_t child = nullptr;
            plist_dict_next_item(node, iterator, &key, &child);
            const TextPtr keyOwner(key);
            if (!child)
                return result;
            result.insert(result.cend(), keyNamed(key), object(child)); // keys in our own files are sorted
        }
    }

private:
    QVariantList array(plist_t node) {
        std::vector<plist_t> children;
        children.reserve(plist_array_get_size(node));
        void* iterator = nullptr;
        plist_array_new_iter(node, &iterator);
        const TextPtr owner(static_cast<char*>(iterator));
        for (;;) {
            plist_t child = nullptr;
            plist_array_next_item(node, iterator, &child);
            if (!child)
                break;
            children.push_back(child);
        }
        // The launch waits for a library of thousands of entries, so two threads convert it. The list is only read.
        const std::span<const plist_t> all(children);
        if (all.size() < worthTwoThreads)
            return objects(all);
        auto behind = std::async(std::launch::async | std::launch::deferred,
                                 [&] { return Reader().objects(all.subspan(all.size() / 2)); });
        QVariantList result = objects(all.first(all.size() / 2));
        result.append(behind.get());
        return result;
    }

    QVariantList objects(std::span<const plist_t> nodes) {
        QVariantList result;
        result.reserve(static_cast<qsizetype>(nodes.size()));
        for (plist_t node : nodes)
            result.append(object(node));
        return result;
    }

    QString keyNamed(const char* key) {
        const QByteArray utf8 = QByteArray::fromRawData(key, static_cast<qsizetype>(std::strlen(key)));
        if (const auto found = keys_.constFind(utf8); found != keys_.cend())
            return *found;
        return *keys_.insert(QByteArray(key), QString::fromUtf8(key));
    }

    QHash<QByteArray, QString> keys_;
};

} // namespace

QByteArray toXml(const Dictionary& dictionary) {
    const CNumbers numbers;
    const NodePtr root(dictionaryNode(dictionary));
    char* text = nullptr;
    std::uint32_t length = 0;
    plist_to_xml(root.get(), &text, &length);
    const TextPtr owner(text);
    return QByteArray(text, static_cast<qsizetype>(length));
}

std::optional<Dictionary> fromXml(const QByteArray& xml, std::shared_ptr<void>* spent) {
    if (auto dictionary = fromOwnXml(xml))
        return dictionary;
    return fromAnyXml(xml, spent);
}

std::optional<Dictionary> fromAnyXml(const QByteArray& xml, std::shared_ptr<void>* spent) {
    if (xml.isEmpty() || xml.size() > std::numeric_limits<std::uint32_t>::max() || isTooDeep(xml))
        return std::nullopt;
    const CNumbers numbers;
    plist_t node = nullptr;
    plist_from_xml(xml.constData(), static_cast<std::uint32_t>(xml.size()), &node);
    NodePtr root(node);
    if (!root || plist_get_node_type(node) != PLIST_DICT)
        return std::nullopt;
    auto dictionary = Reader().dictionary(node);
    if (spent)
        *spent = std::shared_ptr<void>(std::move(root));
    return dictionary;
}

} // namespace Platform::PropertyList

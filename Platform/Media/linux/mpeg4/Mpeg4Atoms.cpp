// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/mpeg4/Mpeg4Atoms.h"

#include "Platform/Media/linux/tags/PatchedFile.h"

#include <QtEndian>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace Platform::Media {
namespace {

constexpr int deepest = 16;
constexpr int mostAtoms = 2'000'000;

class Walker {
public:
    Walker(const PatchedFile& file, QString& why) : file_(file), why_(why) {}

    /// The boxes from @p at to @p end. A box of the top level may reach beyond the end of the file.
    bool walk(qint64 at, qint64 end, int depth, std::vector<Mpeg4Atom>& atoms, bool* complete) {
        if (depth > deepest)
            return refuse(u"too deeply nested"_s);
        while (at < end) {
            if (end - at < 8) {
                // Some writers end a list of boxes with four zero bytes.
                if (depth > 0)
                    return end - at == 4 || refuse(u"a box without a header"_s);
                *complete = false;
                return true;
            }
            if (++count_ > mostAtoms)
                return refuse(u"too many boxes"_s);
            Mpeg4Atom atom;
            qint64 header = 8;
            if (!readHeader(at, end, atom, header))
                return false;
            if (atom.length > end - at) {
                if (depth > 0)
                    return refuse(u"a box larger than the one around it"_s);
                *complete = false;
                if (atom.name == "moov" || atom.name == "moof")
                    return refuse(u"the file ends within its index"_s);
                atom.length = end - at;
            }
            if (!content(atom, header, depth))
                return false;
            at += atom.length;
            atoms.push_back(std::move(atom));
        }
        return true;
    }

private:
    bool refuse(const QString& why) {
        why_ = why;
        return false;
    }

    bool readHeader(qint64 at, qint64 end, Mpeg4Atom& atom, qint64& header) {
        const QByteArray bytes = file_.read(at, 16);
        if (bytes.size() < 8)
            return refuse(u"it cannot be read"_s);
        atom.offset = at;
        atom.name = bytes.mid(4, 4);
        atom.length = qFromBigEndian<quint32>(bytes.constData());
        if (atom.length == 0) {
            atom.length = end - at; // up to the end
        } else if (atom.length == 1) {
            if (bytes.size() < 16)
                return refuse(u"a box without a header"_s);
            const auto large = qFromBigEndian<quint64>(bytes.constData() + 8);
            if (large < 16 || large > (Q_UINT64_C(1) << 62))
                return refuse(u"a box of impossible size"_s);
            atom.length = static_cast<qint64>(large);
            header = 16;
        }
        return atom.length >= 8 || refuse(u"a box of impossible size"_s);
    }

    bool content(Mpeg4Atom& atom, qint64 header, int depth) {
        atom.content = atom.offset + header;
        static constexpr std::array containers{"moov", "udta", "mdia", "meta", "ilst", "stbl",
                                               "minf", "moof", "traf", "trak", "stsd"};
        const bool isContainer =
            std::any_of(containers.begin(), containers.end(), [&](const char* name) { return atom.name == name; });
        if (isContainer) {
            qint64 skipped = header;
            if (atom.name == "stsd")
                skipped += 8;
            else if (atom.name == "meta" && isFullBox(atom.offset + header))
                skipped += 4;
            if (skipped > atom.length)
                return refuse(u"a box of impossible size"_s);
            atom.content = atom.offset + skipped;
            return walk(atom.content, atom.offset + atom.length, depth + 1, atom.children, nullptr);
        }
        // Tables that are rewritten when the audio moves: a count that lies would be followed far beyond the box.
        const qint64 length = atom.length - header;
        const qint64 entry = atom.name == "stco" ? 4 : atom.name == "co64" ? 8 : 0;
        if (entry > 0) {
            const QByteArray count = file_.read(atom.content + 4, 4);
            if (length < 8 || count.size() < 4 ||
                qint64(qFromBigEndian<quint32>(count.constData())) * entry > length - 8)
                return refuse(u"a table that is larger than its box"_s);
        }
        if (atom.name == "tfhd") {
            const QByteArray flags = file_.read(atom.content, 4);
            if (length < 8 || flags.size() < 4 || ((flags[3] & 1) && length < 16))
                return refuse(u"a box of impossible size"_s);
        }
        return true;
    }

    /// Some "meta" boxes have version and flags before their first child, some have not.
    [[nodiscard]] bool isFullBox(qint64 at) const {
        static constexpr std::array children{"hdlr", "ilst", "mhdr", "ctry", "lang"};
        const QByteArray next = file_.read(at + 4, 4);
        return std::none_of(children.begin(), children.end(), [&](const char* name) { return next == name; });
    }

    const PatchedFile& file_;
    QString& why_;
    int count_ = 0;
};

} // namespace

const Mpeg4Atom* Mpeg4Atom::child(const char* wanted) const {
    const auto found =
        std::find_if(children.begin(), children.end(), [&](const auto& atom) { return atom.name == wanted; });
    return found == children.end() ? nullptr : &*found;
}

const Mpeg4Atom* Mpeg4Atoms::find(const char* name) const {
    const auto found = std::find_if(top.begin(), top.end(), [&](const auto& atom) { return atom.name == name; });
    return found == top.end() ? nullptr : &*found;
}

std::vector<const Mpeg4Atom*> Mpeg4Atoms::tagPath() const {
    const Mpeg4Atom* const moov = find("moov");
    if (!moov)
        return {};
    std::vector<const Mpeg4Atom*> longest{moov};
    for (const Mpeg4Atom& udta : moov->children) {
        if (udta.name != "udta")
            continue;
        if (longest.size() == 1)
            longest.push_back(&udta);
        for (const Mpeg4Atom& meta : udta.children) {
            // With a table of keys its items are numbered: another kind of list, which most players do not show.
            if (meta.name != "meta" || meta.child("keys"))
                continue;
            const Mpeg4Atom* const list = meta.child("ilst");
            if (list)
                return {moov, &udta, &meta, list};
            if (longest.size() == 2)
                longest = {moov, &udta, &meta};
        }
    }
    return longest;
}

const Mpeg4Atom* Mpeg4Atoms::tagList() const {
    const auto path = tagPath();
    return path.size() == 4 ? path.back() : nullptr;
}

std::optional<Mpeg4Atoms> readMpeg4Atoms(const PatchedFile& file, QString& why) {
    Mpeg4Atoms atoms;
    if (file.read(4, 4) != "ftyp") {
        why = u"not an MPEG-4 file"_s;
        return std::nullopt;
    }
    if (!Walker(file, why).walk(0, file.size(), 0, atoms.top, &atoms.complete))
        return std::nullopt;
    if (!atoms.find("moov")) {
        why = u"the file has no index"_s;
        return std::nullopt;
    }
    return atoms;
}

} // namespace Platform::Media

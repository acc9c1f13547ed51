// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/BasicID3Change.h"
#include "Platform/Media/linux/MediaFilesLinux.h"
#include "Platform/Media/linux/tags/InPlaceSave.h"
#include "tests/support/ChildProcess.h"
#include "tests/support/Mpeg4Files.h"
#include "tests/support/WaitFor.h"

#include <atomic>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtEndian>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Platform::BasicID3Change;

namespace {

enum class Size { Short, Long, UpToTheEnd };

QByteArray box(const char* name, const QByteArray& body, Size size = Size::Short) {
    QByteArray number(size == Size::Long ? 8 : 4, '\0');
    if (size == Size::Long) {
        qToBigEndian(static_cast<quint64>(16 + body.size()), number.data());
        return QByteArray::fromHex("00000001") + QByteArray(name, 4) + number + body;
    }
    if (size == Size::Short)
        qToBigEndian(static_cast<quint32>(8 + body.size()), number.data());
    return number + QByteArray(name, 4) + body;
}

const QByteArray zeros(4, '\0');
const QByteArray name = box("name", "x");

/// The header of a list of tags, or of another kind of list.
QByteArray handler(const char* kind = "mdir") {
    return box("hdlr", zeros + zeros + QByteArray(kind, 4) + QByteArray(13, '\0'));
}

QByteArray textItem(const char* item, const QByteArray& text) {
    return box(item, box("data", QByteArray::fromHex("0000000100000000") + text));
}

QByteArray ownItem(const QByteArray& itsName, const QByteArray& data) {
    return box("----", box("mean", zeros + "com.example") + box("name", zeros + itsName) + data);
}

class TagLayouts : public testing::Test {
protected:
    [[nodiscard]] QString path(const QString& file = u"a.m4a"_s) const { return folder_.filePath(file); }

    /// A file whose index is at its end, with @p tail as the last box inside it instead of tags.
    void makeWith(const QByteArray& tail, Size size = Size::Short) const {
        static const QByteArray plain = [this] {
            EXPECT_TRUE(Mpeg4Files::make(path(), Mpeg4Files::Shape::IndexAtEnd, 2));
            return Mpeg4Files::contentOf(path());
        }();
        const auto index = plain.lastIndexOf("moov") - 4;
        const auto tags = plain.lastIndexOf("udta") - 4;
        const QByteArray moov = plain.mid(index + 8, tags - index - 8) + tail;
        ASSERT_TRUE(Mpeg4Files::write(path(), plain.left(index) + box("moov", moov, size)));
    }

    /// Writes texts and a cover into a file of makeWith(); other programs read them, and the audio is unchanged.
    void expectTagsGoIn() const {
        static const QByteArray audio = Mpeg4Files::audioOf(path());
        static const QByteArray cover = [this] {
            EXPECT_TRUE(Mpeg4Files::noise(30).save(path(u"cover.png"_s)));
            return Mpeg4Files::contentOf(path(u"cover.png"_s));
        }();
        ASSERT_FALSE(audio.isEmpty());
        const QString image = path(u"image.png"_s);
        ASSERT_TRUE(Mpeg4Files::write(image, cover));
        for (const int length : {1, 5000}) {
            const QString title(length, u'ü');
            ASSERT_TRUE(BasicID3Change::setMpeg4ID3Information(path(), title, u"A"_s, u"B"_s, 1999, u"G"_s));
            ASSERT_TRUE(BasicID3Change::copyWithArtwork(path(), image, path()));
            const auto tags = BasicID3Change::read(path());
            ASSERT_TRUE(tags);
            EXPECT_EQ(tags->title, title);
            EXPECT_EQ(tags->artwork, cover);
        }
        EXPECT_EQ(Mpeg4Files::probe(path())[u"title"_s].toString(), QString(5000, u'ü'));
        EXPECT_EQ(Mpeg4Files::artworkOf(path()), cover);
        EXPECT_EQ(Mpeg4Files::audioOf(path()), audio);
    }

    /// The index in use, which is the last box of these files.
    [[nodiscard]] QByteArray index() const {
        const QByteArray content = Mpeg4Files::contentOf(path());
        return content.mid(content.lastIndexOf("moov") - 4);
    }

    QTemporaryDir folder_;
};

/// Whether this process has the file open.
bool isOpenHere(const QString& path) {
    const QDir descriptors(u"/proc/self/fd"_s);
    for (const QString& number : descriptors.entryList(QDir::Files | QDir::System))
        if (QFile::symLinkTarget(descriptors.filePath(number)) == path)
            return true;
    return false;
}

} // namespace

TEST_F(TagLayouts, WithoutAListGetANewOne) {
    for (const QByteArray& tail :
         {QByteArray(), box("udta", {}), box("udta", name), box("udta", name, Size::Long),
          box("udta", box("meta", zeros + handler())), box("udta", box("meta", zeros + handler(), Size::Long)),
          box("udta", box("meta", zeros + handler() + box("free", QByteArray(300, '\0'))))}) {
        makeWith(tail, tail.contains("free") ? Size::Long : Size::Short);
        expectTagsGoIn();
    }
}

TEST_F(TagLayouts, MayEndWithFourZeros) {
    const QByteArray list = box("ilst", textItem("\251nam", "old"));
    for (const QByteArray& tail : {zeros, box("udta", name + zeros), box("udta", zeros) + zeros,
                                   box("udta", box("meta", zeros + handler() + list) + zeros)}) {
        makeWith(tail);
        expectTagsGoIn();
    }
}

TEST_F(TagLayouts, MayReachUpToTheEnd) {
    const QByteArray list = box("ilst", textItem("\251nam", "old"), Size::UpToTheEnd);
    const QByteArray meta = box("meta", zeros + handler() + list, Size::UpToTheEnd);
    for (const QByteArray& tail :
         {QByteArray(), box("udta", name), box("udta", {}, Size::UpToTheEnd), box("udta", meta, Size::UpToTheEnd)}) {
        makeWith(tail, Size::UpToTheEnd);
        expectTagsGoIn();
    }
}

TEST_F(TagLayouts, WithSeveralListsUseTheOneThatPlayersShow) {
    const QByteArray keyed = box("meta", zeros + handler("mdta") + box("keys", zeros + zeros) + box("ilst", {}));
    const QByteArray shown = box("meta", zeros + handler() + box("ilst", textItem("\251nam", "old")));
    for (const QByteArray& tail : {box("udta", keyed), box("udta", keyed + shown),
                                   box("udta", name) + box("udta", shown), box("udta", shown) + box("udta", name)}) {
        makeWith(tail);
        expectTagsGoIn();
        EXPECT_TRUE(index().contains(keyed) || !tail.contains(keyed));
        EXPECT_FALSE(index().contains("old"));
    }
}

TEST_F(TagLayouts, KeepForeignItemsByteForByte) {
    const QByteArray number = box("data", QByteArray::fromHex("000000150000000000000007"));
    const QByteArray text = box("data", QByteArray::fromHex("0000000100000000") + "text");
    for (const QByteArray& item :
         {ownItem("mixed", number + text), ownItem("bare", {}), box("----", "?"), box("covr", number),
          textItem("\251cmt", "one") + textItem("\251cmt", "two"), box("trkn", text), box("gnre", number)}) {
        const QByteArray list = box("ilst", ownItem("first", text) + item + textItem("\251nam", "old"));
        makeWith(box("udta", box("meta", zeros + handler() + list)));
        ASSERT_TRUE(BasicID3Change::writeTexts(path(), {.title = QString(3000, u'n')}));
        EXPECT_TRUE(index().contains(ownItem("first", text) + item)) << item.toHex().constData();
    }
}

TEST_F(TagLayouts, ChangeOnlyTheGivenTexts) {
    const QByteArray items = textItem("\251day", "2012-05-01") +
                             box("\251ART", box("data", QByteArray::fromHex("0000000100000000") + "One") +
                                                box("data", QByteArray::fromHex("0000000100000000") + "Two"));
    makeWith(box("udta", box("meta", zeros + handler() + box("ilst", items))));
    ASSERT_TRUE(BasicID3Change::writeTexts(path(), {.title = u"T"_s, .album = u""_s}));
    EXPECT_TRUE(index().contains(items));
    EXPECT_EQ(BasicID3Change::read(path())->title, u"T"_s);
    ASSERT_TRUE(BasicID3Change::writeTexts(path(), {.year = 2013}));
    EXPECT_EQ(Mpeg4Files::probe(path())[u"date"_s].toString(), u"2013"_s);
    EXPECT_EQ(BasicID3Change::read(path())->title, u"T"_s);
}

TEST_F(TagLayouts, ThatStayTheSameLeaveTheFileAlone) {
    // A save would remove the padding behind the list.
    const QByteArray list = box("ilst", textItem("\251cmt", "kept") + textItem("\251nam", "T"));
    const QByteArray padding = box("free", QByteArray(300, '\0'));
    makeWith(box("udta", box("meta", zeros + handler() + list + padding)));
    const QByteArray before = Mpeg4Files::contentOf(path());
    ASSERT_TRUE(BasicID3Change::writeTexts(path(), {.title = u"T"_s, .album = u""_s}));
    EXPECT_EQ(Mpeg4Files::contentOf(path()), before);
    ASSERT_TRUE(BasicID3Change::writeTexts(path(), {.title = u"U"_s}));
    EXPECT_FALSE(index().contains(padding));
    EXPECT_EQ(BasicID3Change::read(path())->title, u"U"_s);
}

TEST_F(TagLayouts, RefuseToMoveAudioBeyondTheRangeOfATable) {
    ASSERT_TRUE(Mpeg4Files::make(path(), Mpeg4Files::Shape::IndexInFront, 1));
    QByteArray content = Mpeg4Files::contentOf(path());
    qToBigEndian(0xffffff00U, content.data() + content.indexOf("stco") + 12);
    ASSERT_TRUE(Mpeg4Files::write(path(), content));
    const QString cover = path(u"cover.png"_s);
    ASSERT_TRUE(Mpeg4Files::noise(20).save(cover));
    EXPECT_FALSE(BasicID3Change::copyWithArtwork(path(), cover, path(u"copy.m4a"_s)));
    EXPECT_FALSE(QFile::exists(path(u"copy.m4a"_s)));
    EXPECT_EQ(Mpeg4Files::contentOf(path()), content);
}

TEST_F(TagLayouts, WriteACoverToTheTargetOfALink) {
    const QString cover = path(u"cover.png"_s);
    ASSERT_TRUE(Mpeg4Files::make(path()));
    ASSERT_TRUE(Mpeg4Files::noise(20).save(cover));
    ASSERT_TRUE(QFile::link(path(), path(u"link.m4a"_s)));
    ASSERT_TRUE(BasicID3Change::copyWithArtwork(path(u"link.m4a"_s), cover, path(u"link.m4a"_s)));
    EXPECT_TRUE(QFileInfo(path(u"link.m4a"_s)).isSymLink());
    EXPECT_EQ(BasicID3Change::read(path())->artwork, Mpeg4Files::contentOf(cover));
}

TEST_F(TagLayouts, AreCopiedAfterASaveOfAnotherProcess) {
    ASSERT_TRUE(Mpeg4Files::make(path(), Mpeg4Files::Shape::IndexInFront, 5));
    const QByteArray audio = Mpeg4Files::audioOf(path());
    const QString cover = path(u"cover.png"_s);
    ASSERT_TRUE(Mpeg4Files::noise(20).save(cover));
    int begun[2];
    int goOn[2];
    ASSERT_EQ(::pipe(begun), 0);
    ASSERT_EQ(::pipe(goOn), 0);
    ChildProcess saver([&] {
        const auto edit = [&](const auto&, QString&) -> std::optional<QByteArray> {
            char byte = 0;
            if (::write(begun[1], "", 1) != 1 || ::read(goOn[0], &byte, 1) != 1)
                return std::nullopt;
            return textItem("\251nam", QByteArray(3000, 'n'));
        };
        QString why;
        return Platform::Media::saveInPlace(path(), edit, why) ? 0 : 1;
    });
    char byte = 0;
    ASSERT_EQ(::read(begun[0], &byte, 1), 1);
    std::atomic<bool> copied = false;
    Platform::Result<> result;
    std::thread copier([&] {
        result = BasicID3Change::copyWithArtwork(path(), cover, path(u"copy.m4a"_s));
        copied = true;
    });
    EXPECT_TRUE(waitFor([&] { return copied || isOpenHere(path()); }));
    ASSERT_EQ(::write(goOn[1], "", 1), 1);
    EXPECT_EQ(saver.wait(), 0);
    copier.join();
    EXPECT_TRUE(result) << qPrintable(result.error().text);
    EXPECT_EQ(BasicID3Change::read(path(u"copy.m4a"_s))->title.size(), 3000);
    EXPECT_EQ(Mpeg4Files::audioOf(path(u"copy.m4a"_s)), audio);
    for (const int end : {begun[0], begun[1], goOn[0], goOn[1]})
        ::close(end);
}

TEST_F(TagLayouts, WithACoverOf200GigabytesTakeNoMemory) {
    // A sparse file of a few blocks whose cover, and all boxes around it, claim this length.
    constexpr qint64 length = qint64(200) << 30;
    ASSERT_TRUE(Mpeg4Files::make(path(), Mpeg4Files::Shape::IndexAtEnd, 2));
    ASSERT_TRUE(BasicID3Change::setMpeg4ID3Information(path(), u"Title"_s, u"A"_s, u"B"_s, 1999, u"G"_s));
    QByteArray content = Mpeg4Files::contentOf(path());
    QByteArray moov = content.mid(content.lastIndexOf("moov") - 4);
    content.chop(moov.size());
    const auto items = moov.lastIndexOf("ilst") + 4;
    const auto udta = moov.lastIndexOf("udta") - 4;
    const auto meta = moov.lastIndexOf("meta") - 4;
    const auto open = [](const char* type, qint64 size) {
        QByteArray number(8, '\0');
        qToBigEndian(size, number.data());
        return QByteArray::fromHex("00000001") + QByteArray(type, 4) + number;
    };
    const QByteArray cover = open("covr", length) + open("data", length - 16) + QByteArray::fromHex("0000000d00000000");
    const QByteArray list = moov.mid(items);
    const QByteArray head = moov.mid(meta + 8, items - 8 - (meta + 8));
    const qint64 listSize = 16 + list.size() + length;
    const qint64 metaSize = 16 + head.size() + listSize;
    const QByteArray tables = moov.mid(8, udta - 8);
    content += open("moov", 16 + tables.size() + 16 + metaSize) + tables + open("udta", 16 + metaSize) +
               open("meta", metaSize) + head + open("ilst", listSize) + list;
    const qint64 size = content.size() + length;
    ASSERT_TRUE(Mpeg4Files::write(path(), content + cover));
    ASSERT_EQ(::truncate(QFile::encodeName(path()).constData(), size), 0);

    const QString image = path(u"cover.png"_s);
    ASSERT_TRUE(Mpeg4Files::noise(20).save(image));
    ChildProcess child([&] {
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__) // the sanitizers' own tables exceed this limit
        const rlimit limit{rlim_t(1) << 30, rlim_t(1) << 30};
        if (::setrlimit(RLIMIT_AS, &limit) != 0)
            return 1;
#endif
        const auto tags = BasicID3Change::read(path());
        if (!tags || tags->title != u"Title"_s || !tags->artwork.isEmpty())
            return 2;
        if (!BasicID3Change::writeTexts(path(), {.title = u"Other"_s})
                 .error()
                 .text.endsWith(u"its index is too large"_s))
            return 3;
        if (BasicID3Change::copyWithArtwork(path(), image, path(u"copy.m4a"_s)))
            return 4;
        const auto media = Platform::createMediaFiles();
        (void)media->info(path());
        (void)media->openReader(path());
        return 0;
    });
    EXPECT_EQ(child.wait(), 0);
    EXPECT_EQ(QFileInfo(path()).size(), size);
    EXPECT_FALSE(QFile::exists(path(u"copy.m4a"_s)));
}

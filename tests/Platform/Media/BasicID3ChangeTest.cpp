// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/BasicID3Change.h"

#include "tests/support/ChildProcess.h"
#include "tests/support/Mpeg4Files.h"

#include <csignal>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtEndian>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Mpeg4Files::Shape;
using Platform::BasicID3Change;

namespace {

bool tag(const QString& path, const QString& title, const QString& artist = u"Artist"_s,
         const QString& album = u"Album"_s, int year = 2012, const QString& genre = u"Genre"_s) {
    return BasicID3Change::setMpeg4ID3Information(path, title, artist, album, year, genre);
}

class Tags : public testing::Test {
protected:
    [[nodiscard]] QString path(const QString& name = u"a.m4a"_s) const { return folder_.filePath(name); }
    /// Files that a save left beside the test's own files.
    [[nodiscard]] QStringList leftOver() const {
        return QDir(folder_.path()).entryList({u".sonaphex*"_s}, QDir::Hidden | QDir::Files);
    }

    QTemporaryDir folder_;
};

class TagsOfShape : public Tags, public testing::WithParamInterface<Shape> {};

QString parsley(const QString& path) {
    return QString::fromUtf8(runTool(u"AtomicParsley"_s, {path, u"-t"_s}).output);
}

QString mediainfo(const QString& path, const QString& field) {
    const auto found = runTool(u"mediainfo"_s, {u"--Output=General;%"_s + field + u'%', path});
    return QString::fromUtf8(found.output).trimmed();
}

/// Removes all tags from a file that ends with them, like a recording that was never tagged.
void stripTags(const QString& path) {
    QByteArray content = Mpeg4Files::contentOf(path);
    const auto tags = content.lastIndexOf("udta") - 4;
    const auto index = content.lastIndexOf("moov") - 4;
    ASSERT_EQ(tags + qFromBigEndian<qint32>(content.constData() + tags), content.size());
    content.truncate(tags);
    qToBigEndian(static_cast<quint32>(content.size() - index), content.data() + index);
    ASSERT_TRUE(Mpeg4Files::write(path, content));
}

/// Appends an item to the tag list of a file whose index is at its end, with the list at the end of the index.
void insertItem(const QString& path, const QByteArray& item) {
    QByteArray content = Mpeg4Files::contentOf(path);
    for (const char* const box : {"moov", "udta", "meta", "ilst"}) {
        const auto at = content.lastIndexOf(box) - 4;
        const auto length = qFromBigEndian<quint32>(content.constData() + at);
        ASSERT_EQ(at + length, content.size()) << box;
        qToBigEndian(quint32(length + item.size()), content.data() + at);
    }
    ASSERT_TRUE(Mpeg4Files::write(path, content + item));
}

} // namespace

TEST_P(TagsOfShape, AreReadBackTheSameByEveryProgram) {
    const QString file = path(GetParam() == Shape::Ringtone ? u"a.m4r"_s : u"a.m4a"_s);
    ASSERT_TRUE(Mpeg4Files::make(file, GetParam()));
    const QByteArray audio = Mpeg4Files::audioOf(file);
    ASSERT_FALSE(audio.isEmpty());

    const QString title = u"Über „日本語“ $(x) \"q\" 🎵"_s;
    ASSERT_TRUE(tag(file, title, u"Жанна"_s, u"ألبوم"_s, 1999, u"Jazz, sort of"_s));

    const auto tags = BasicID3Change::read(file);
    ASSERT_TRUE(tags);
    EXPECT_EQ(tags->title, title);
    EXPECT_EQ(tags->artist, u"Жанна"_s);
    EXPECT_EQ(tags->album, u"ألبوم"_s);
    EXPECT_EQ(tags->year, 1999);
    EXPECT_EQ(tags->genre, u"Jazz, sort of"_s);
    EXPECT_TRUE(tags->artwork.isEmpty());
    const QJsonObject probed = Mpeg4Files::probe(file);
    EXPECT_EQ(probed[u"title"_s].toString(), title);
    EXPECT_EQ(probed[u"artist"_s].toString(), u"Жанна"_s);
    EXPECT_EQ(probed[u"album"_s].toString(), u"ألبوم"_s);
    EXPECT_EQ(probed[u"date"_s].toString(), u"1999"_s);
    EXPECT_EQ(probed[u"genre"_s].toString(), u"Jazz, sort of"_s);
    EXPECT_EQ(mediainfo(file, u"Title"_s), title);
    EXPECT_EQ(mediainfo(file, u"Performer"_s), u"Жанна"_s);
    const QString printed = parsley(file);
    EXPECT_TRUE(printed.contains(u"\"©nam\" contains: "_s + title)) << qPrintable(printed);
    EXPECT_TRUE(printed.contains(u"\"©day\" contains: 1999"_s));
    EXPECT_EQ(Mpeg4Files::audioOf(file), audio);
    EXPECT_TRUE(leftOver().isEmpty());
}

TEST_P(TagsOfShape, GrowAndShrinkWithoutChangingTheAudio) {
    const QString file = path(GetParam() == Shape::Ringtone ? u"a.m4r"_s : u"a.m4a"_s);
    ASSERT_TRUE(Mpeg4Files::make(file, GetParam()));
    const QByteArray audio = Mpeg4Files::audioOf(file);
    for (const int length : {10, 5000, 1, 20000, 300, 0}) {
        ASSERT_TRUE(tag(file, QString(length, u'ü')));
        EXPECT_EQ(BasicID3Change::read(file)->title, QString(length, u'ü'));
        ASSERT_EQ(Mpeg4Files::audioOf(file), audio) << length;
    }
}

TEST_P(TagsOfShape, MayContainACoverOfAMegabyte) {
    const QString file = path(GetParam() == Shape::Ringtone ? u"a.m4r"_s : u"a.m4a"_s);
    const QString copy = path(u"copy.m4a"_s);
    const QString cover = path(u"cover.png"_s);
    ASSERT_TRUE(Mpeg4Files::make(file, GetParam()));
    const QByteArray before = Mpeg4Files::contentOf(file);
    ASSERT_TRUE(Mpeg4Files::noise(600).save(cover));
    ASSERT_GT(QFileInfo(cover).size(), 1'000'000);
    ASSERT_TRUE(BasicID3Change::copyWithArtwork(file, cover, copy));
    EXPECT_EQ(Mpeg4Files::contentOf(file), before);
    EXPECT_EQ(BasicID3Change::read(copy)->artwork, Mpeg4Files::contentOf(cover));
    EXPECT_EQ(Mpeg4Files::artworkOf(copy), Mpeg4Files::contentOf(cover));
    EXPECT_EQ(mediainfo(copy, u"Cover"_s), u"Yes"_s);
    EXPECT_TRUE(parsley(copy).contains(u"\"covr\" contains: 1 piece of artwork"_s)) << qPrintable(parsley(copy));
    EXPECT_EQ(Mpeg4Files::audioOf(copy), Mpeg4Files::audioOf(file));
    // Saving text tags does not change it.
    ASSERT_TRUE(tag(copy, u"Title"_s));
    EXPECT_EQ(BasicID3Change::read(copy)->artwork, Mpeg4Files::contentOf(cover));
    EXPECT_EQ(Mpeg4Files::audioOf(copy), Mpeg4Files::audioOf(file));
    EXPECT_TRUE(leftOver().isEmpty());
}

INSTANTIATE_TEST_SUITE_P(All, TagsOfShape,
                         testing::Values(Shape::IndexAtEnd, Shape::IndexInFront, Shape::Fragmented,
                                         Shape::FragmentedWithPlaces, Shape::Ringtone));

TEST_F(Tags, WithoutAValueAreNotWritten) {
    ASSERT_TRUE(Mpeg4Files::make(path()));
    ASSERT_TRUE(tag(path(), u"Title"_s));
    ASSERT_TRUE(tag(path(), QString(), u""_s, QString(), 0, QString()));
    const auto tags = BasicID3Change::read(path());
    ASSERT_TRUE(tags);
    EXPECT_TRUE(tags->title.isEmpty());
    EXPECT_EQ(tags->year, 0);
    const QString printed = parsley(path());
    for (const QString& name : {u"©nam"_s, u"©ART"_s, u"©alb"_s, u"©day"_s, u"©gen"_s})
        EXPECT_FALSE(printed.contains(name)) << qPrintable(name);
}

TEST_F(Tags, OfAnotherProgramAreReadTheSame) {
    ASSERT_TRUE(Mpeg4Files::make(path()));
    const QString cover = path(u"cover.jpg"_s);
    ASSERT_TRUE(Mpeg4Files::noise(40).save(cover, "JPEG"));
    ASSERT_EQ(runTool(u"AtomicParsley"_s,
                      {path(), u"--title"_s, u"Свобода"_s, u"--artist"_s, u"A & B"_s, u"--album"_s, u"C"_s, u"--year"_s,
                       u"2004-05-06"_s, u"--genre"_s, u"Jazz"_s, u"--artwork"_s, cover, u"--overWrite"_s})
                  .status,
              0);
    const auto tags = BasicID3Change::read(path());
    ASSERT_TRUE(tags);
    EXPECT_EQ(tags->title, u"Свобода"_s);
    EXPECT_EQ(tags->artist, u"A & B"_s);
    EXPECT_EQ(tags->year, 2004);
    EXPECT_EQ(tags->genre, u"Jazz"_s);
    EXPECT_EQ(tags->artwork, Mpeg4Files::contentOf(cover));
    // The numbered genre is removed when a text genre is set.
    ASSERT_TRUE(tag(path(), u"t"_s, u"a"_s, u"b"_s, 1, u"Own"_s));
    EXPECT_EQ(BasicID3Change::read(path())->genre, u"Own"_s);
    EXPECT_EQ(BasicID3Change::read(path())->artwork, Mpeg4Files::contentOf(cover));
}

TEST_F(Tags, KeepTagsOfOtherKinds) {
    ASSERT_TRUE(Mpeg4Files::make(path()));
    const QByteArray audio = Mpeg4Files::audioOf(path());
    ASSERT_TRUE(tag(path(), u"x"_s));
    // An item with a type that TagLib does not expect: a number where it expects a text.
    const QByteArray odd = QByteArray::fromHex("0000001c636d494400000014646174610000001500000000000004d2");
    insertItem(path(), odd);
    for (const bool inFront : {false, true}) {
        if (inFront) { // this program writes the index in front, with many tags of its own
            ASSERT_EQ(runTool(u"AtomicParsley"_s,
                              {path(), u"--composer"_s, u"Composer"_s, u"--comment"_s, u"Comment"_s, u"--tracknum"_s,
                               u"3/9"_s, u"--disk"_s, u"1/2"_s, u"--bpm"_s, u"120"_s, u"--compilation"_s, u"true"_s,
                               u"--rDNSatom"_s, u"text"_s, u"name=OWN"_s, u"domain=com.example"_s, u"--overWrite"_s})
                          .status,
                      0);
        }
        const QStringList before = parsley(path()).split(u'\n');
        // The second is larger than the padding behind the list.
        for (const QString& title : {u"New title"_s, QString(30000, u'n')}) {
            ASSERT_TRUE(tag(path(), title));
            const QString after = parsley(path());
            for (const QString& line : before)
                EXPECT_TRUE(line.contains(u"©nam"_s) || after.contains(line)) << qPrintable(line);
            EXPECT_TRUE(Mpeg4Files::contentOf(path()).contains(odd));
            EXPECT_EQ(BasicID3Change::read(path())->title, title);
            EXPECT_EQ(Mpeg4Files::audioOf(path()), audio);
        }
    }
}

TEST_F(Tags, NeverRewriteTheAudioOfAFileWithItsIndexAtTheEnd) {
    ASSERT_TRUE(Mpeg4Files::make(path(), Shape::IndexAtEnd, 20));
    struct stat before {};
    struct stat after {};
    ASSERT_EQ(::stat(QFile::encodeName(path()).constData(), &before), 0);
    ASSERT_TRUE(tag(path(), QString(2000, u'x')));
    ASSERT_EQ(::stat(QFile::encodeName(path()).constData(), &after), 0);
    EXPECT_EQ(before.st_ino, after.st_ino);
}

TEST_F(Tags, AreWrittenBehindTheTablesOfTheAudio) {
    ASSERT_TRUE(Mpeg4Files::make(path(), Shape::IndexAtEnd, 20));
    stripTags(path());
    const QByteArray before = Mpeg4Files::contentOf(path());
    const auto indexOf = [](const QByteArray& content) { return content.mid(content.lastIndexOf("moov") - 4); };
    for (const int length : {20, 5000, 100}) {
        ASSERT_TRUE(tag(path(), QString(length, u'x')));
        const QByteArray after = Mpeg4Files::contentOf(path());
        // Except for its size, the index is unchanged, and so is the audio in front of it.
        const auto tables = indexOf(before).size();
        EXPECT_EQ(after.left(before.size() - tables), before.left(before.size() - tables));
        EXPECT_EQ(indexOf(after).mid(4, tables - 4), indexOf(before).mid(4));
        EXPECT_EQ(indexOf(after).indexOf("udta"), tables + 4);
    }
}

TEST_F(Tags, GoIntoAnIndexWithALargeSize) {
    const QByteArray odd = QByteArray::fromHex("0000001c636d494400000014646174610000001500000000000004d2");
    ASSERT_TRUE(Mpeg4Files::make(path(), Shape::IndexAtEnd, 5));
    ASSERT_TRUE(tag(path(), u"x"_s));
    insertItem(path(), odd);
    const QByteArray audio = Mpeg4Files::audioOf(path());
    const auto enlarge = [&] {
        QByteArray content = Mpeg4Files::contentOf(path());
        const auto at = content.lastIndexOf("moov") - 4;
        QByteArray size(8, '\0');
        qToBigEndian(static_cast<quint64>(content.size() - at + 8), size.data());
        content.replace(at, 8, QByteArray::fromHex("00000001") + "moov" + size);
        return Mpeg4Files::write(path(), content);
    };
    ASSERT_TRUE(enlarge());
    for (const int length : {5000, 20}) {
        ASSERT_TRUE(tag(path(), QString(length, u'x')));
        EXPECT_EQ(BasicID3Change::read(path())->title.size(), length);
        EXPECT_EQ(Mpeg4Files::probe(path())[u"title"_s].toString().size(), length);
        EXPECT_EQ(Mpeg4Files::audioOf(path()), audio);
        EXPECT_TRUE(Mpeg4Files::contentOf(path()).contains(odd));
    }
    // Also into a file that has no tags yet.
    ASSERT_TRUE(Mpeg4Files::make(path(), Shape::IndexAtEnd, 5));
    stripTags(path());
    ASSERT_TRUE(enlarge());
    ASSERT_TRUE(tag(path(), u"y"_s));
    EXPECT_EQ(Mpeg4Files::probe(path())[u"title"_s].toString(), u"y"_s);
    EXPECT_EQ(Mpeg4Files::audioOf(path()), audio);
}

TEST_F(Tags, KeepTheModeOfARewrittenFile) {
    ASSERT_TRUE(Mpeg4Files::make(path(u"long.m4a"_s), Shape::IndexInFront, 3));
    QFile::setPermissions(path(u"long.m4a"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup);
    const QString cover = path(u"c.png"_s);
    ASSERT_TRUE(Mpeg4Files::noise(20).save(cover));
    ASSERT_TRUE(BasicID3Change::copyWithArtwork(path(u"long.m4a"_s), cover, path(u"copy.m4a"_s)));
    struct stat status {};
    ASSERT_EQ(::stat(QFile::encodeName(path(u"copy.m4a"_s)).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0640U);
}

TEST_F(Tags, AreWrittenToTheTargetOfALink) {
    ASSERT_TRUE(Mpeg4Files::make(path()));
    ASSERT_TRUE(QFile::link(path(), path(u"link.m4a"_s)));
    ASSERT_TRUE(tag(path(u"link.m4a"_s), u"Title"_s));
    EXPECT_TRUE(QFileInfo(path(u"link.m4a"_s)).isSymLink());
    EXPECT_EQ(BasicID3Change::read(path())->title, u"Title"_s);
}

TEST_F(Tags, RefuseAPathThatIsNotAFile) {
    EXPECT_FALSE(tag(path(u"missing.m4a"_s), u"x"_s));
    EXPECT_FALSE(tag(folder_.path(), u"x"_s));
    EXPECT_FALSE(BasicID3Change::read(path(u"missing.m4a"_s)));
    EXPECT_FALSE(BasicID3Change::read(folder_.path()));
    ASSERT_EQ(::mkfifo(QFile::encodeName(path(u"pipe.m4a"_s)).constData(), 0600), 0);
    EXPECT_FALSE(tag(path(u"pipe.m4a"_s), u"x"_s));
    EXPECT_FALSE(BasicID3Change::read(path(u"pipe.m4a"_s)));
}

TEST_F(Tags, RefuseOtherFileTypesAndKeepThemUnchanged) {
    for (const QByteArray& content : {QByteArray(), QByteArray("RIFF....WAVE"), QByteArray(5000, '\0'),
                                      QByteArray("\0\0\0\x14"
                                                 "ftypM4A ",
                                                 12),
                                      QByteArray(5000, '\xff')}) {
        ASSERT_TRUE(Mpeg4Files::write(path(), content));
        EXPECT_FALSE(tag(path(), u"x"_s));
        EXPECT_FALSE(BasicID3Change::read(path()));
        EXPECT_EQ(Mpeg4Files::contentOf(path()), content);
    }
}

TEST_F(Tags, RefuseEveryTruncatedFileAndKeepItUnchanged) {
    for (const Shape shape : {Shape::IndexAtEnd, Shape::IndexInFront, Shape::Fragmented}) {
        ASSERT_TRUE(Mpeg4Files::make(path(), shape, 1));
        ASSERT_TRUE(tag(path(), u"Title"_s));
        const QByteArray whole = Mpeg4Files::contentOf(path());
        for (qsizetype length = whole.size() - 1; length > 0; length -= 1 + length / 40) {
            const QByteArray cut = whole.left(length);
            ASSERT_TRUE(Mpeg4Files::write(path(), cut));
            (void)BasicID3Change::read(path());
            if (!tag(path(), u"Other"_s))
                ASSERT_EQ(Mpeg4Files::contentOf(path()), cut);
            else // the cut was between two boxes: the rest is an intact file
                ASSERT_EQ(BasicID3Change::read(path())->title, u"Other"_s);
        }
    }
}

TEST_F(Tags, SurviveEveryHostileSize) {
    for (const Shape shape : {Shape::IndexAtEnd, Shape::IndexInFront, Shape::Fragmented}) {
        ASSERT_TRUE(Mpeg4Files::make(path(), shape, 1));
        ASSERT_TRUE(tag(path(), u"Title"_s));
        const QByteArray whole = Mpeg4Files::contentOf(path());
        for (const char* name : {"ftyp", "moov", "trak", "mdia", "minf", "stbl", "stsd", "stco", "udta", "meta", "ilst",
                                 "\251nam", "data", "mdat", "moof", "traf", "tfhd", "free", "hdlr"}) {
            const qsizetype at = whole.indexOf(name);
            if (at < 4)
                continue;
            for (const quint32 size : {0U, 1U, 7U, 8U, 9U, 0x7fffffffU, 0x80000000U, 0xffffffffU}) {
                QByteArray hostile = whole;
                qToBigEndian(size, hostile.data() + at - 4);
                ASSERT_TRUE(Mpeg4Files::write(path(), hostile));
                (void)BasicID3Change::read(path());
                if (!tag(path(), u"Other"_s)) {
                    ASSERT_EQ(Mpeg4Files::contentOf(path()), hostile) << name << " " << size;
                }
            }
        }
    }
}

TEST_F(Tags, SurviveHostileTables) {
    ASSERT_TRUE(Mpeg4Files::make(path(), Shape::IndexInFront, 1));
    const QByteArray whole = Mpeg4Files::contentOf(path());
    QByteArray hostile = whole;
    qToBigEndian(0xffffffffU, hostile.data() + whole.indexOf("stco") + 8);
    ASSERT_TRUE(Mpeg4Files::write(path(), hostile));
    EXPECT_FALSE(tag(path(), u"x"_s));
    EXPECT_EQ(Mpeg4Files::contentOf(path()), hostile);
    // Boxes nested deeper than any stack.
    QByteArray nested;
    for (quint32 depth = 1; depth <= 100000; ++depth) {
        QByteArray header(8, '\0');
        qToBigEndian(8 * (100001 - depth), header.data());
        header.replace(4, 4, "moov");
        nested += header;
    }
    ASSERT_TRUE(Mpeg4Files::write(path(), whole.left(whole.indexOf("moov") - 4) + nested));
    EXPECT_FALSE(tag(path(), u"x"_s));
    EXPECT_FALSE(BasicID3Change::read(path()));
}

TEST_F(Tags, SurviveDamageAnywhere) {
    ASSERT_TRUE(Mpeg4Files::make(path(), Shape::IndexAtEnd, 1));
    ASSERT_TRUE(tag(path(), u"Title"_s));
    const QByteArray whole = Mpeg4Files::contentOf(path());
    const qsizetype index = whole.indexOf("moov") - 4;
    QRandomGenerator random(11);
    for (int round = 0; round < 400; ++round) {
        QByteArray damaged = whole;
        for (int i = 0; i < 4; ++i)
            damaged[random.bounded(index, whole.size())] = static_cast<char>(random.bounded(256));
        ASSERT_TRUE(Mpeg4Files::write(path(), damaged));
        (void)BasicID3Change::read(path());
        if (!tag(path(), u"Other"_s)) {
            ASSERT_EQ(Mpeg4Files::contentOf(path()), damaged);
        }
    }
}

TEST_F(Tags, RefuseAFileThatIsNotAnImage) {
    ASSERT_TRUE(Mpeg4Files::make(path()));
    const QString image = path(u"image.png"_s);
    QImage(3, 3, QImage::Format_RGB32).save(image);
    const QByteArray png = Mpeg4Files::contentOf(image);
    for (const QByteArray& content :
         {QByteArray(), QByteArray("GIF89a"), QByteArray("text"), png.left(20), png.left(45),
          QByteArray("\xff\xd8\xff\xe0"), QByteArray("\xff\xd8\xff\xff\xd9")}) {
        ASSERT_TRUE(Mpeg4Files::write(image, content));
        EXPECT_FALSE(BasicID3Change::copyWithArtwork(path(), image, path(u"out.m4a"_s)));
        EXPECT_FALSE(QFile::exists(path(u"out.m4a"_s)));
    }
    ASSERT_TRUE(Mpeg4Files::write(image, png));
    ASSERT_EQ(::truncate(QFile::encodeName(image).constData(), off_t(200) << 30), 0); // sparse
    EXPECT_TRUE(
        BasicID3Change::copyWithArtwork(path(), image, path(u"out.m4a"_s)).error().text.contains(u"larger than"_s));
    ASSERT_EQ(::mkfifo(QFile::encodeName(path(u"pipe.png"_s)).constData(), 0600), 0);
    EXPECT_FALSE(BasicID3Change::copyWithArtwork(path(), path(u"pipe.png"_s), path(u"out.m4a"_s)));
    ASSERT_TRUE(Mpeg4Files::write(image, png));
    EXPECT_FALSE(BasicID3Change::copyWithArtwork(path(), path(u"missing.png"_s), path(u"out.m4a"_s)));
    EXPECT_FALSE(BasicID3Change::copyWithArtwork(path(), folder_.path(), path(u"out.m4a"_s)));
    EXPECT_FALSE(BasicID3Change::copyWithArtwork(path(u"missing"_s), image, path(u"out.m4a"_s)));
}

TEST_F(Tags, AreUnchangedWhenTheDiskFillsDuringASave) {
    ASSERT_TRUE(Mpeg4Files::make(path(), Shape::IndexAtEnd, 10));
    ASSERT_TRUE(tag(path(), u"Before"_s));
    const QByteArray before = Mpeg4Files::contentOf(path());
    ChildProcess child([&] {
        // A limit on the file size: the save has written a part when it fails.
        const rlimit limit{static_cast<rlim_t>(before.size() + 500), RLIM_INFINITY};
        std::signal(SIGXFSZ, SIG_IGN);
        ::setrlimit(RLIMIT_FSIZE, &limit);
        return tag(path(), QString(20000, u'x')) ? 1 : 0;
    });
    ASSERT_EQ(child.wait(), 0);
    EXPECT_EQ(Mpeg4Files::contentOf(path()), before);
    EXPECT_TRUE(leftOver().isEmpty());
}

TEST_F(Tags, SurviveKillsAtAnyMoment) {
    for (const Shape shape : {Shape::IndexAtEnd, Shape::IndexInFront}) {
        ASSERT_TRUE(Mpeg4Files::make(path(), shape, 20));
        ASSERT_TRUE(tag(path(), u"0"_s));
        const QByteArray audio = Mpeg4Files::audioOf(path());
        for (int round = 0; round < 25; ++round) {
            int ends[2];
            ASSERT_EQ(::pipe(ends), 0);
            ChildProcess child([&] {
                for (int i = 1;; ++i) {
                    if (!tag(path(), QString(1 + i * 997 % 9000, u'x')))
                        return 1;
                    if (::write(ends[1], "", 1) != 1)
                        return 1;
                }
            });
            char byte = 0;
            ASSERT_EQ(::read(ends[0], &byte, 1), 1);
            ::usleep(static_cast<useconds_t>(round * 430));
            child.kill();
            ::close(ends[0]);
            ::close(ends[1]);
            const auto tags = BasicID3Change::read(path());
            ASSERT_TRUE(tags) << round;
            ASSERT_EQ(QString(tags->title).remove(u'x').size(), round == 0 && tags->title == u"0"_s ? 1 : 0);
            if (round % 5 == 4) {
                ASSERT_EQ(Mpeg4Files::audioOf(path()), audio) << round;
            }
        }
    }
}

TEST_F(Tags, SavedByTwoProcessesAtOnceLeaveAnIntactFile) {
    ASSERT_TRUE(Mpeg4Files::make(path(), Shape::IndexAtEnd, 5));
    const QByteArray audio = Mpeg4Files::audioOf(path());
    const auto writer = [&](char16_t letter) {
        return [this, letter] {
            for (int i = 0; i < 40; ++i)
                if (!tag(path(), QString(1 + i * 131 % 3000, QChar(letter))))
                    return 1;
            return 0;
        };
    };
    ChildProcess one(writer(u'a'));
    ChildProcess other(writer(u'b'));
    EXPECT_EQ(one.wait(), 0);
    EXPECT_EQ(other.wait(), 0);
    EXPECT_EQ(BasicID3Change::read(path())->title.size(), 1 + 39 * 131 % 3000);
    EXPECT_EQ(Mpeg4Files::audioOf(path()), audio);
    EXPECT_TRUE(leftOver().isEmpty());
}

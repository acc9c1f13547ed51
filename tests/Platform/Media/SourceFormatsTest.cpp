// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/Platform/Media/MediaTestSupport.h"

#include <sys/stat.h>

using namespace MediaTest;
using namespace Platform;
using namespace Qt::StringLiterals;

namespace {

struct Source {
    const char* name;
    const char* arguments; // for ffmpeg, between input and output
    double rate;
    int channels;
    double quality; // dB relative to the source audio
    bool exactLength;
};

void PrintTo(const Source& source, std::ostream* out) {
    *out << source.name;
}

struct SourceFormats : testing::TestWithParam<Source> {
    QTemporaryDir folder;
    static constexpr std::size_t seconds = 4;

    /// The audio as a 32-bit float WAVE, written here so that no code under test is needed to make it.
    QString original(const Samples& rows, double rate) const {
        const QString path = folder.filePath(u"original.raw"_s);
        QFile raw(path);
        EXPECT_TRUE(raw.open(QIODevice::WriteOnly));
        for (std::size_t i = 0; i < rows[0].size(); ++i) {
            for (const auto& row : rows)
                raw.write(reinterpret_cast<const char*>(&row[i]), 4);
        }
        raw.close();
        const QString wave = folder.filePath(u"original.wav"_s);
        EXPECT_EQ(
            tool(u"ffmpeg"_s, {u"-v"_s, u"error"_s, u"-y"_s, u"-f"_s, u"f32le"_s, u"-ar"_s, QString::number(rate),
                               u"-ac"_s, QString::number(rows.size()), u"-i"_s, path, u"-c:a"_s, u"pcm_f32le"_s, wave})
                .status,
            0);
        return wave;
    }
};

} // namespace

TEST_P(SourceFormats, AreReadWithTheRightLengthRateAndSoundAndSeekExactly) {
    const Source& source = GetParam();
    const auto frames = std::size_t(source.rate) * seconds + 123;
    const Samples sound = sweep(frames, source.rate, std::size_t(source.channels));
    const QString path = folder.filePath(QString::fromLatin1(source.name));
    QStringList arguments{u"-v"_s, u"error"_s, u"-y"_s, u"-i"_s, original(sound, source.rate)};
    arguments += QString::fromLatin1(source.arguments).split(u' ', Qt::SkipEmptyParts);
    const auto made = tool(u"ffmpeg"_s, arguments << path);
    ASSERT_EQ(made.status, 0) << made.err.toStdString();

    const auto described = media().info(path);
    ASSERT_TRUE(described) << described.error().text.toStdString();
    const AudioFileInfo& info = *described;
    EXPECT_EQ(info.dataFormat.mSampleRate, source.rate);
    EXPECT_EQ(int(info.dataFormat.mChannelsPerFrame), source.channels);

    const auto own = readFile(path, source.rate, std::uint32_t(source.channels));
    EXPECT_EQ(own.errors, 0);
    // Matroska stores times in milliseconds.
    const double unsure = path.endsWith(u".mka") ? source.rate / 500 : 0;
    EXPECT_NEAR(double(own.length), double(own.rows[0].size()), unsure);
    EXPECT_EQ(info.frameCount, own.length);
    if (source.exactLength) {
        EXPECT_EQ(own.length, std::int64_t(frames));
    }
    EXPECT_NEAR(double(own.length), double(frames), 2500);
    EXPECT_GT(signalToError(sound[0], own.rows[0], 3000, frames - 3000), source.quality);
    EXPECT_GT(signalToError(sound.back(), own.rows.back(), 3000, frames - 3000), source.quality);

    for (const std::int64_t from : {std::int64_t(5), std::int64_t(frames / 3), std::int64_t(frames - 5000)}) {
        const auto part = readFile(path, source.rate, std::uint32_t(source.channels), from, 2000);
        ASSERT_EQ(part.rows[0].size(), 2000u);
        const std::vector<float> expected(own.rows[0].begin() + from, own.rows[0].begin() + from + 2000);
        // Decoders with a long history round differently after a jump; the position must be the same.
        EXPECT_GT(signalToError(expected, part.rows[0]), 60) << from;
    }

    const auto client = readFile(path, 44100, 2);
    EXPECT_NEAR(double(client.rows[0].size()), double(own.length) * 44100 / source.rate, 1 + unsure);
    EXPECT_EQ(client.rows[0].size(), client.rows[1].size());
    if (source.channels == 1) {
        EXPECT_EQ(client.rows[0], client.rows[1]);
    }
    if (source.channels <= 2 && source.rate > 20000) {
        const Samples expected = sweep(client.rows[0].size(), 44100, std::size_t(source.channels));
        EXPECT_GT(signalToError(expected[0], client.rows[0], 4000, client.rows[0].size() - 4000),
                  std::min(source.quality, 80.0) - 1);
        const auto later = readFile(path, 44100, 2, 50001, 3000);
        const std::vector<float> there(client.rows[0].begin() + 50001, client.rows[0].begin() + 53001);
        EXPECT_GT(signalToError(there, later.rows[0]), 60);
    }
}

INSTANTIATE_TEST_SUITE_P(
    OfOtherPrograms, SourceFormats,
    testing::Values(Source{"s16.wav", "-c:a pcm_s16le", 44100, 2, 75, true},
                    Source{"s24.wav", "-c:a pcm_s24le", 48000, 2, 120, true},
                    Source{"s32.wav", "-c:a pcm_s32le", 44100, 2, 140, true},
                    Source{"float.wav", "-c:a pcm_f32le", 96000, 2, 140, true},
                    Source{"mono8k.wav", "-c:a pcm_s16le", 8000, 1, 70, true},
                    Source{"five.wav", "-c:a pcm_s16le", 48000, 6, 70, true},
                    Source{"rf64.wav", "-c:a pcm_s16le -rf64 always", 44100, 2, 75, true},
                    Source{"a.aiff", "-c:a pcm_s16be", 44100, 2, 75, true},
                    Source{"a.caf", "-c:a pcm_s16be", 44100, 2, 75, true},
                    Source{"192k.flac", "-c:a flac -sample_fmt s32", 192000, 2, 100, true},
                    Source{"44k.flac", "-c:a flac -sample_fmt s16", 44100, 2, 75, true},
                    Source{"mono.flac", "-c:a flac -sample_fmt s16", 22050, 1, 75, true},
                    Source{"alac.m4a", "-c:a alac", 44100, 2, 75, true},
                    Source{"lame.mp3", "-c:a libmp3lame -b:a 192k", 44100, 2, 20, true},
                    Source{"plain.mp3", "-c:a libmp3lame -b:a 192k -write_xing 0", 44100, 2, -10, false},
                    Source{"mono.mp3", "-c:a libmp3lame -b:a 96k", 32000, 1, 15, true},
                    Source{"vorbis.ogg", "-c:a libvorbis -q:a 6", 44100, 2, 15, true},
                    Source{"opus.ogg", "-c:a libopus -b:a 160k", 48000, 2, 10, true},
                    Source{"aac.m4a", "-c:a aac", 44100, 2, 15, true},
                    Source{"aac48.m4a", "-c:a aac", 48000, 2, 15, true},
                    Source{"mono.m4a", "-c:a aac", 44100, 1, 15, true},
                    Source{"five.m4a", "-c:a aac -b:a 384k", 48000, 6, 10, true},
                    Source{"front.m4a", "-c:a aac -movflags +faststart", 44100, 2, 15, true},
                    Source{"fragments.m4a", "-c:a aac -movflags +empty_moov+default_base_moof", 44100, 2, -10, false},
                    Source{"adts.aac", "-c:a aac -f adts", 44100, 2, -10, false},
                    Source{"matroska.mka", "-c:a flac -sample_fmt s16", 44100, 2, 75, false}),
    [](const auto& info) {
        std::string name = info.param.name;
        for (char& letter : name) {
            if (!std::isalnum(static_cast<unsigned char>(letter)))
                letter = '_';
        }
        return name;
    });

namespace {

struct BadInput : testing::Test {
    QTemporaryDir folder;
    QString write(const QString& name, const QByteArray& bytes) const {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }
    Error errorOf(const QString& path) const {
        Error error = media().openReader(path).error();
        EXPECT_TRUE(error);
        EXPECT_EQ(media().info(path).error().kind, error.kind);
        EXPECT_FALSE(media().openMovie(path));
        EXPECT_TRUE(error.text.startsWith(path)) << error.text.toStdString();
        EXPECT_FALSE(error.text.contains(u'\n'));
        return error;
    }
};

} // namespace

TEST_F(BadInput, EachKindIsReportedInOneClearLine) {
    EXPECT_EQ(errorOf(folder.filePath(u"missing.m4a"_s)).kind, Error::Kind::NotFound);
    EXPECT_EQ(errorOf(folder.path()).kind, Error::Kind::NotAFile);
    EXPECT_EQ(errorOf(u"/dev/null"_s).kind, Error::Kind::NotAFile);
    EXPECT_EQ(errorOf(write(u"empty.m4a"_s, {})).kind, Error::Kind::UnknownFormat);
    EXPECT_EQ(errorOf(write(u"text.m4a"_s, QByteArray("This is no music, only words.\n").repeated(500))).kind,
              Error::Kind::UnknownFormat);
    EXPECT_EQ(errorOf(write(u"short.wav"_s, "RIFF")).kind, Error::Kind::UnknownFormat);
    EXPECT_EQ(errorOf(write(u"list.m3u8"_s, "#EXTM3U\n#EXT-X-TARGETDURATION:1\n#EXTINF:1,\n/etc/passwd\n")).kind,
              Error::Kind::UnknownFormat);
}

TEST_F(BadInput, AFifoDoesNotBlock) {
    const QString path = folder.filePath(u"fifo.m4a"_s);
    ASSERT_EQ(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    EXPECT_EQ(errorOf(path).kind, Error::Kind::NotAFile);
    EXPECT_EQ(media().createWriter(path, kAudioFileM4AType, aacFormat(), kAudioFileFlags_EraseFile).error().kind,
              Error::Kind::NotAFile);
}

TEST_F(BadInput, AFileWithPicturesOnlyHasNoAudio) {
    const QString path = folder.filePath(u"film.mp4"_s);
    ASSERT_EQ(tool(u"ffmpeg"_s, {u"-v"_s, u"error"_s, u"-f"_s, u"lavfi"_s, u"-i"_s, u"testsrc=d=0.5:s=64x64"_s,
                                 u"-c:v"_s, u"mpeg4"_s, path})
                  .status,
              0);
    EXPECT_EQ(errorOf(path).kind, Error::Kind::NoAudio);
}

TEST_F(BadInput, ATruncatedFileIsRefusedOrReadToItsEnd) {
    const Samples sound = tones(300000);
    for (const std::uint32_t type : {kAudioFileM4AType, kAudioFileWAVEType, kAudioFileCAFType}) {
        const QString whole = folder.filePath(u"whole"_s);
        writeFile(whole, type, sound);
        QFile file(whole);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.resize(file.size() / 2));
        file.close();
        const auto back = readFile(whole);
        EXPECT_TRUE(back.openError ? !back.openError.text.isEmpty() : back.rows[0].size() > 50000u);
    }
}

TEST_F(BadInput, ADamagedPlaceIsReportedOnceAndReadingContinuesBehindIt) {
    const Samples sound = tones(400000);
    const QString path = folder.filePath(u"a.m4a"_s);
    writeFile(path, kAudioFileM4AType, sound);
    const auto whole = readFile(path);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.seek(file.size() / 2);
    file.write(QByteArray(2000, '\xff'));
    file.close();
    const auto back = readFile(path);
    EXPECT_GE(back.errors, 1);
    EXPECT_EQ(back.rows[0].size(), whole.rows[0].size());
    for (const std::size_t quiet : {std::size_t(100000), std::size_t(350000)}) {
        const auto begin = std::ptrdiff_t(quiet);
        EXPECT_TRUE(std::equal(whole.rows[0].begin() + begin, whole.rows[0].begin() + begin + 20000,
                               back.rows[0].begin() + begin));
    }
}

TEST_F(BadInput, NamesAreTakenLiterally) {
    for (const auto& name : {u"concat:a|b.m4a"_s, u"%03d.m4a"_s, u"file:x; rm -rf $(y) `z` 'q' \"p\".m4a"_s,
                             u"-i.m4a"_s, u"dürüm \u266b.m4a"_s, u"pipe:0"_s}) {
        writeFile(folder.filePath(name), kAudioFileM4AType, tones(5000));
        EXPECT_EQ(readFile(folder.filePath(name)).length, 5000) << name.toStdString();
    }
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 6);
}

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The real program is killed after a recording, at several points before its files are complete. The next recording
// finishes the one before it.
#include "Platform/Media/BasicID3Change.h"
#include "tests/CommandLine/RecordServerFixture.h"

#include <sys/inotify.h>

#include <array>
#include <poll.h>
#include <unistd.h>

namespace {

/// The names of files that are created in a folder, or moved into it, at the moment when this happens.
class NewFiles {
public:
    explicit NewFiles(const QString& folder) : descriptor_(inotify_init1(IN_CLOEXEC)) {
        (void)inotify_add_watch(descriptor_, QFile::encodeName(folder).constData(), IN_CREATE | IN_MOVED_TO);
    }
    ~NewFiles() { ::close(descriptor_); }
    NewFiles(const NewFiles&) = delete;
    NewFiles& operator=(const NewFiles&) = delete;

    /// Returns when there is a file whose name ends so; false after a minute.
    [[nodiscard]] bool waitForEnding(const QByteArray& ending) const {
        alignas(inotify_event) std::array<char, 4096> events{};
        for (;;) {
            pollfd wait{descriptor_, POLLIN, 0};
            if (::poll(&wait, 1, 60000) <= 0)
                return false;
            const ssize_t bytes = ::read(descriptor_, events.data(), events.size());
            for (ssize_t at = 0; at < bytes;) {
                const auto* const event = reinterpret_cast<const inotify_event*>(events.data() + at);
                if (QByteArray(event->name).endsWith(ending))
                    return true;
                at += ssize_t(sizeof(inotify_event) + event->len);
            }
        }
    }

private:
    int descriptor_;
};

/// A recording of two tones from two devices.
class RecordKilled : public RecordServer {
protected:
    static constexpr double Microphone = 440;
    static constexpr double Computer = 1500;
    static constexpr double Seconds = 5;

    /// What a killed process has left.
    struct Left {
        QStringList raws;       ///< names in its temporary folder
        QStringList recordings; ///< names in the folder of the recordings
        [[nodiscard]] bool has(const QString& ending) const {
            return std::ranges::any_of(raws, [&](const QString& name) { return name.endsWith(ending); });
        }
        [[nodiscard]] bool hasMix() const { return recordings.contains(u"Track0.m4a"_s); }
    };

    RecordKilled() {
        tone();
        computer_ = std::make_unique<TestSource>(TestSource::Options{.name = "test.computer",
                                                                     .description = "Korvane System Audio",
                                                                     .content = TestSource::Content::Tone,
                                                                     .frequency = Computer,
                                                                     .ownClock = true});
        EXPECT_TRUE(computer_->start());
        EXPECT_TRUE(Platform::PipeWire::serverIsThere(30000, true, "test.computer"));
    }

    [[nodiscard]] static QStringList names(const QString& folder) {
        return QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    /// Records, stops, and kills the program when a file whose name ends so appears, among the raw files or the
    /// recordings.
    Left recordAndKill(const QStringList& options, const QByteArray& ending, bool isRecording) {
        QProcess process;
        process.start(QStringLiteral(SONAPHEX_PROGRAM), recordArguments(QStringList{u"--computer"_s} + options));
        const QString raw = rawFile(1);
        EXPECT_FALSE(raw.isEmpty());
        const auto end = source_->position() + std::uint64_t(Seconds * 48000);
        EXPECT_TRUE(waitFor([&] { return source_->position() >= end; }, 60000));
        const QString folder = QFileInfo(raw).path();
        const NewFiles files(isRecording ? folder_ : folder);
        ::kill(pid_t(process.processId()), SIGINT);
        EXPECT_TRUE(files.waitForEnding(ending)) << process.readAllStandardError().toStdString();
        ::kill(pid_t(process.processId()), SIGKILL);
        EXPECT_TRUE(process.waitForFinished());
        return {names(folder), names(folder_)};
    }
    /// recordAndKill() until the kill hit its point: on a busy machine it may come too late. What the next start makes
    /// of it does not decide.
    [[nodiscard]] bool killedAt(const QStringList& options, const QByteArray& ending, bool isRecording,
                                const std::function<bool(const Left&)>& isThere) {
        Left left;
        for (int attempt = 0; attempt < 6; ++attempt) {
            left = recordAndKill(options, ending, isRecording);
            if (isThere(left))
                return true;
            for (const QString& folder : {tmp_, folder_, dir_.filePath(u"data"_s)})
                QDir(folder).removeRecursively();
            QDir().mkdir(tmp_);
            QFile::setPermissions(tmp_, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        }
        ADD_FAILURE() << "the kill never hit its point; the last one left " << qPrintable(left.raws.join(u' '))
                      << " and " << qPrintable(left.recordings.join(u' '));
        return false;
    }
    /// The next start, which records for a second.
    void startAgain() {
        const auto result = sonaphex(recordArguments({u"--for"_s, u"1"_s}));
        EXPECT_EQ(result.status, 0) << result.errors.constData();
        EXPECT_TRUE(result.errors.contains("An interrupted recording is complete now")) << result.errors.constData();
        EXPECT_EQ(QString::fromUtf8(result.output.trimmed()), folder_ + u"/Track1.m4a"_s) << "only its own recording";
    }
    /// The level of a tone in a second of a file's middle, in dB below full scale.
    [[nodiscard]] static double level(const AudioCheck::Channels& channels, double pitch) {
        if (channels.size() != 2 || channels[0].size() < 3 * 44100)
            return -1e9;
        const auto middle = channels[0].begin() + std::ptrdiff_t(channels[0].size() / 2);
        return AudioCheck::toneLevel({middle - 22050, middle + 22050}, pitch, 44100);
    }
    /// Checks the interrupted recording: its sound, its tags, its one row, and that nothing else is left.
    void expectFinished(bool keepsTracks) {
        QStringList expected{u"Track0.m4a"_s, u"Track1.m4a"_s};
        if (keepsTracks)
            expected = QStringList{u"Track0 (computer).m4a"_s, u"Track0 (input).m4a"_s} + expected;
        EXPECT_EQ(names(folder_).join(u'|').toStdString(), expected.join(u'|').toStdString());
        const QString path = folder_ + u"/Track0.m4a"_s;
        const auto frames = AudioCheck::framesByFfprobe(path);
        EXPECT_GT(frames, std::int64_t(Seconds * 44100));
        const auto mix = AudioCheck::decodedByFfmpeg(path);
        EXPECT_NEAR(level(mix, Microphone), -12, 1);
        EXPECT_NEAR(level(mix, Computer), -12, 1);
        if (keepsTracks) {
            const QString inputPath = folder_ + u"/Track0 (input).m4a"_s;
            const QString computerPath = folder_ + u"/Track0 (computer).m4a"_s;
            EXPECT_EQ(AudioCheck::framesByFfprobe(inputPath), frames);
            EXPECT_EQ(AudioCheck::framesByFfprobe(computerPath), frames);
            const auto input = AudioCheck::decodedByFfmpeg(inputPath);
            const auto computer = AudioCheck::decodedByFfmpeg(computerPath);
            EXPECT_NEAR(level(input, Microphone), -12, 1);
            EXPECT_LT(level(input, Computer), -80);
            EXPECT_NEAR(level(computer, Computer), -12, 1);
            EXPECT_LT(level(computer, Microphone), -80);
            std::printf("input %.1f and %.1f dB, computer %.1f and %.1f dB\n", level(input, Microphone),
                        level(input, Computer), level(computer, Computer), level(computer, Microphone));
        }
        const auto tags = Platform::BasicID3Change::read(path);
        ASSERT_TRUE(tags) << tags.error().text.toStdString();
        EXPECT_EQ(tags->title, u"Track0"_s);
        EXPECT_EQ(tags->artist, u"NO Artist"_s);
        const auto library = QJsonDocument::fromJson(sonaphex({u"library"_s, u"--json"_s}).output);
        QStringList paths;
        const QJsonArray records = library[u"records"_s].toArray();
        for (const auto& record : records)
            paths.append(record[u"path"_s].toString());
        paths.sort();
        EXPECT_EQ(paths, (QStringList{path, folder_ + u"/Track1.m4a"_s}));
        EXPECT_TRUE(QDir(tmp_).isEmpty()) << qPrintable(filesBelow(tmp_).join(u' '));
        QStringList kept = filesBelow(dir_.filePath(u"data"_s));
        kept.removeIf([](const QString& file) { return file.endsWith(u"/.moving"_s); });
        EXPECT_TRUE(kept.isEmpty()) << qPrintable(kept.join(u' '));
    }

    std::unique_ptr<TestSource> computer_;
};

TEST_F(RecordKilled, DuringTheMix) {
    ASSERT_TRUE(killedAt({u"--keep-tracks"_s}, ".m4atemp", false, [](const Left& left) {
        return left.has(u".m4atemp"_s) && !left.has(u".m4atemp.m4a"_s) && !left.hasMix();
    }));
    startAgain();
    expectFinished(true);
}

TEST_F(RecordKilled, DuringTheEncodingOfTheMix) {
    ASSERT_TRUE(killedAt({u"--keep-tracks"_s}, ".m4atemp.m4a", false, [](const Left& left) {
        return left.has(u".m4atemp"_s) && left.has(u".m4atemp.m4a"_s) && !left.hasMix();
    }));
    startAgain();
    expectFinished(true);
}

TEST_F(RecordKilled, WhenTheFirstTrackIsBegun) {
    ASSERT_TRUE(killedAt({u"--keep-tracks"_s}, ".m4a.track.m4a", false, [](const Left& left) {
        return left.hasMix() && left.has(u".m4a.track.m4a"_s) && left.raws.filter(u"A0.m4a"_s).size() >= 3 &&
               left.recordings.size() == 1;
    }));
    startAgain();
    expectFinished(true);
}

TEST_F(RecordKilled, WhenTheSecondTrackIsBegun) {
    ASSERT_TRUE(killedAt({u"--keep-tracks"_s}, "ComputerA0.m4a.track.m4a", false, [](const Left& left) {
        return left.hasMix() && left.has(u"BuiltInA0.m4a.track.m4a"_s) && left.has(u"ComputerA0.m4a.track.m4a"_s) &&
               left.has(u"BuiltInA0.m4a"_s) && left.recordings.size() == 1;
    }));
    startAgain();
    expectFinished(true);
}

TEST_F(RecordKilled, WhenTheFirstTrackIsAtItsPlace) {
    ASSERT_TRUE(killedAt({u"--keep-tracks"_s}, "(input).m4a", true, [](const Left& left) {
        return left.hasMix() && left.recordings.contains(u"Track0 (input).m4a"_s) &&
               !left.recordings.contains(u"Track0 (computer).m4a"_s);
    }));
    startAgain();
    expectFinished(true);
}

TEST_F(RecordKilled, DuringTheMixWithoutTracks) {
    ASSERT_TRUE(killedAt({}, ".m4atemp", false, [](const Left& left) {
        return left.has(u".m4atemp"_s) && !left.has(u".m4atemp.m4a"_s) && !left.hasMix();
    }));
    startAgain();
    expectFinished(false);
}

TEST_F(RecordKilled, WhenOnlyTheMixedSoundIsLeft) {
    ASSERT_TRUE(killedAt({}, ".m4atemp.m4a", false, [](const Left& left) {
        return left.has(u".m4atemp"_s) && !left.has(u"BuiltInA0.m4a"_s) && !left.hasMix();
    }));
    startAgain();
    expectFinished(false);
}

TEST_F(RecordKilled, WhenTheRecordingIsAtItsPlace) {
    ASSERT_TRUE(killedAt({}, "Track0.m4a", true, [](const Left& left) { return left.hasMix(); }));
    startAgain();
    expectFinished(false);
}

} // namespace

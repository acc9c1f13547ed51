// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Control/BalanceSave.h"

#include "tests/Source/Control/EditFixture.h"
#include "tests/support/AudioCheck.h"

#include <random>

using namespace Qt::StringLiterals;

namespace {

class Balance : public EditFixture {
protected:
    static constexpr std::int64_t kFrames = 3 * 44100 + 77;

    /// Writes a file of two different channels.
    void write(const QString& path, double pitch, float level, std::int64_t frames = kFrames) const {
        auto writer = media_->createWriter(
            path, kAudioFileM4AType,
            {.mSampleRate = 44100, .mFormatID = kAudioFormatMPEG4AAC, .mFramesPerPacket = 1024, .mChannelsPerFrame = 2},
            kAudioFileFlags_EraseFile);
        ASSERT_TRUE(writer) << qPrintable(writer.error().text);
        ASSERT_EQ((*writer)->setClientDataFormat(planarFloatFormat(44100, 2)), noErr);
        AudioCheck::Channels samples(2, std::vector<float>(std::size_t(frames)));
        for (std::size_t i = 0; i < samples[0].size(); ++i) {
            const double angle = 2 * std::numbers::pi * pitch * double(i) / 44100;
            samples[0][i] = level * float(std::sin(angle) * std::sin(double(i) * 1e-4));
            samples[1][i] = level * float(std::sin(angle * 1.5));
        }
        struct {
            AudioBufferList head;
            AudioBuffer second;
        } list;
        list.head.mNumberBuffers = 2;
        list.head.mBuffers[0] = {1, std::uint32_t(frames * 4), samples[0].data()};
        list.second = {1, std::uint32_t(frames * 4), samples[1].data()};
        ASSERT_EQ((*writer)->write(std::uint32_t(frames), &list.head), noErr);
        ASSERT_EQ((*writer)->dispose(), noErr);
    }
    RecordingTracks::Tracks tracks(float level = 0.3F) {
        const RecordingTracks::Tracks made{at(u"Track0 (input).m4a"_s), at(u"Track0 (computer).m4a"_s)};
        write(made.input, 440, level);
        write(made.computer, 1000, level);
        return made;
    }
    /// All samples of a reader, read in blocks of these sizes in turn.
    static AudioCheck::Channels all(Platform::ExtAudioFileReader& reader,
                                    const std::vector<std::uint32_t>& blocks = {4096}) {
        EXPECT_EQ(reader.setClientDataFormat(planarFloatFormat(44100, 2)), noErr);
        AudioCheck::Channels result(2);
        std::array<std::vector<float>, 2> rows{std::vector<float>(16384), std::vector<float>(16384)};
        for (std::size_t i = 0;; ++i) {
            std::uint32_t frames = blocks[i % blocks.size()];
            struct {
                AudioBufferList head;
                AudioBuffer second;
            } list;
            list.head.mNumberBuffers = 2;
            list.head.mBuffers[0] = {1, frames * 4, rows[0].data()};
            list.second = {1, frames * 4, rows[1].data()};
            EXPECT_EQ(reader.read(frames, &list.head), noErr);
            if (frames == 0)
                return result;
            for (std::size_t c = 0; c < 2; ++c)
                result[c].insert(result[c].end(), rows[c].begin(), rows[c].begin() + frames);
        }
    }
    [[nodiscard]] AudioCheck::Channels allOf(const QString& path) const {
        auto reader = media_->openReader(path);
        EXPECT_TRUE(reader);
        return reader ? all(**reader) : AudioCheck::Channels(2);
    }
    static AudioCheck::Channels sumOf(const RecordingTracks::Tracks& tracks, const BalanceSettings& settings,
                                      const std::vector<std::uint32_t>& blocks = {4096}) {
        auto reader = BalanceReader::open(tracks, std::make_shared<BalanceControls>(settings));
        EXPECT_TRUE(reader) << qPrintable(reader.error().text);
        return reader ? all(**reader, blocks) : AudioCheck::Channels(2);
    }
    [[nodiscard]] BalanceSave::Task task(const Dictionary& mix, const RecordingTracks::Tracks& tracks,
                                         const BalanceSettings& settings, const QString& to = {}) const {
        BalanceSave::Task made{.tracks = tracks, .settings = settings, .file = {}, .lowersToFit = false};
        made.file.source = mix.value(AudioRecordEntry::SavePath).toString();
        made.file.exportPath = to.isEmpty() ? made.file.source : to;
        made.file.entry = mix;
        made.file.replace = to.isEmpty();
        return made;
    }
};

} // namespace

TEST_F(Balance, IsTheSumOfBothTracksSampleBySample) {
    const auto files = tracks();
    const auto input = allOf(files.input);
    const auto computer = allOf(files.computer);
    ASSERT_EQ(input[0].size(), std::size_t(kFrames));
    for (const BalanceSettings& settings :
         {BalanceSettings{}, BalanceSettings{6, -4, 0}, BalanceSettings{-60, 3.5, 120}, BalanceSettings{-3, 20, -250.5},
          BalanceSettings{0, 0, 2000}, BalanceSettings{0, -60, -2000}}) {
        const auto sum = sumOf(files, settings, {1, 4096, 77, 16384, 2048});
        const std::int64_t delay = std::llround(settings.delayMs * 44.1);
        const double inputGain = BalanceSettings::factor(settings.inputGain);
        const double computerGain = BalanceSettings::factor(settings.computerGain);
        ASSERT_EQ(sum[0].size(), std::size_t(kFrames));
        double worst = 0;
        for (std::size_t c = 0; c < 2; ++c)
            for (std::int64_t i = 0; i < kFrames; ++i) {
                const std::int64_t from = i - delay;
                double expected = inputGain * double(input[c][std::size_t(i)]);
                if (from >= 0 && from < kFrames)
                    expected += computerGain * double(computer[c][std::size_t(from)]);
                worst = std::max(worst, std::fabs(expected - double(sum[c][std::size_t(i)])));
            }
        EXPECT_LT(worst, 2e-6) << settings.inputGain << ' ' << settings.computerGain << ' ' << settings.delayMs;
    }
}

TEST_F(Balance, TheFileIsTheSumWithinTheErrorOfTheEncoder) {
    const Dictionary mix = recording(u"Track0"_s, 3);
    const auto files = tracks();
    const BalanceSettings settings{4, -2, 130};
    const auto result = BalanceSave::run(task(mix, files, settings), {});
    ASSERT_TRUE(result.file.done) << qPrintable(result.file.problem);
    EXPECT_EQ(result.tooLoud, 0);
    EXPECT_NEAR(result.seconds, double(kFrames) / 44100, 1e-9);
    const auto expected = sumOf(files, settings);
    const auto written = allOf(mix.value(AudioRecordEntry::SavePath).toString());
    for (std::size_t c = 0; c < 2; ++c) {
        ASSERT_EQ(written[c].size(), expected[c].size());
        double error = 0;
        double power = 0;
        for (std::size_t i = 2048; i + 2048 < expected[c].size(); ++i) {
            error += std::pow(double(written[c][i]) - double(expected[c][i]), 2);
            power += std::pow(double(expected[c][i]), 2);
        }
        EXPECT_GT(10 * std::log10(power / error), 20) << "channel " << c;
    }
}

TEST_F(Balance, ReplacesTheMixAndKeepsItsTagsAndTracks) {
    const Dictionary mix = recording(u"Track0"_s, 3);
    const auto files = tracks();
    const QByteArray before = Mpeg4Files::contentOf(files.input);
    const auto result = BalanceSave::run(task(mix, files, {-6, 0, 0}), {});
    ASSERT_TRUE(result.file.done) << qPrintable(result.file.problem);
    const auto tags = Platform::BasicID3Change::read(mix.value(AudioRecordEntry::SavePath).toString());
    ASSERT_TRUE(tags);
    EXPECT_EQ(tags->title, u"Track0"_s);
    EXPECT_EQ(tags->artist, u"Artist"_s);
    EXPECT_EQ(Mpeg4Files::contentOf(files.input), before);
    EXPECT_EQ(this->files(), (QStringList{u"Track0 (computer).m4a"_s, u"Track0 (input).m4a"_s, u"Track0.m4a"_s}));
}

TEST_F(Balance, ASavedCopyLeavesTheMixAndOverwritesNothing) {
    const Dictionary mix = recording(u"Track0"_s, 3);
    const QString path = mix.value(AudioRecordEntry::SavePath).toString();
    const auto files = tracks();
    const QByteArray before = Mpeg4Files::contentOf(path);
    ASSERT_TRUE(BalanceSave::run(task(mix, files, {}, at(u"New.m4a"_s)), {}).file.done);
    EXPECT_EQ(Mpeg4Files::contentOf(path), before);
    const QByteArray first = Mpeg4Files::contentOf(at(u"New.m4a"_s));
    const auto again = BalanceSave::run(task(mix, files, {-20, 0, 0}, at(u"New.m4a"_s)), {});
    EXPECT_FALSE(again.file.done);
    EXPECT_EQ(Mpeg4Files::contentOf(at(u"New.m4a"_s)), first);
}

TEST_F(Balance, ASumThatWouldBeClippedIsRefusedOrLowered) {
    const Dictionary mix = recording(u"Track0"_s, 3);
    const QString path = mix.value(AudioRecordEntry::SavePath).toString();
    const auto files = tracks(0.8F);
    const QByteArray before = Mpeg4Files::contentOf(path);
    const auto peak = BalanceSave::peak(files, {3, 3, 0});
    ASSERT_TRUE(peak);
    EXPECT_GT(*peak, 1.5);
    auto loud = task(mix, files, {3, 3, 0});
    const auto refused = BalanceSave::run(loud, {});
    EXPECT_FALSE(refused.file.done);
    EXPECT_NEAR(refused.tooLoud, BalanceSave::decibels(*peak), 0.011);
    EXPECT_EQ(Mpeg4Files::contentOf(path), before);

    loud.lowersToFit = true;
    const auto lowered = BalanceSave::run(loud, {});
    ASSERT_TRUE(lowered.file.done) << qPrintable(lowered.file.problem);
    EXPECT_NEAR(lowered.settings.inputGain, 3 - refused.tooLoud, 1e-9);
    const auto fits = BalanceSave::peak(files, lowered.settings);
    ASSERT_TRUE(fits);
    EXPECT_LE(*fits, 1);
    EXPECT_GT(*fits, 0.99) << "not lower than needed";
}

TEST_F(Balance, AStoppedSaveLeavesEverythingAsItWas) {
    const Dictionary mix = recording(u"Track0"_s, 3);
    const auto files = tracks();
    const QByteArray before = Mpeg4Files::contentOf(mix.value(AudioRecordEntry::SavePath).toString());
    for (const double stopAt : {0.0, 0.1, 0.3, 0.9}) {
        const auto result = BalanceSave::run(task(mix, files, {}), [stopAt](double share) { return share < stopAt; });
        EXPECT_FALSE(result.file.done);
        EXPECT_FALSE(result.file.problem.isEmpty());
        EXPECT_EQ(Mpeg4Files::contentOf(mix.value(AudioRecordEntry::SavePath).toString()), before);
        EXPECT_TRUE(QDir(g_strTmpPath).entryList(QDir::Files | QDir::Hidden).isEmpty());
    }
    EXPECT_EQ(notes(), QStringList());
}

TEST_F(Balance, AMissingTrackIsNamed) {
    const Dictionary mix = recording(u"Track0"_s, 3);
    const auto files = tracks();
    ASSERT_TRUE(QFile::remove(files.computer));
    const auto result = BalanceSave::run(task(mix, files, {}), {});
    EXPECT_FALSE(result.file.done);
    EXPECT_TRUE(result.file.problem.contains(u"Track0 (computer).m4a"_s)) << qPrintable(result.file.problem);
}

TEST_F(Balance, AChangeWhileItIsReadIsHeardInTheNextBlockWithoutAClick) {
    const auto files = tracks();
    const auto controls = std::make_shared<BalanceControls>(BalanceSettings{0, -60, 0});
    auto opened = BalanceReader::open(files, controls);
    ASSERT_TRUE(opened);
    BalanceReader& reader = **opened;
    std::array<std::vector<float>, 2> rows{std::vector<float>(2048), std::vector<float>(2048)};
    std::vector<float> heard;
    const auto read = [&] {
        std::uint32_t frames = 2048;
        struct {
            AudioBufferList head;
            AudioBuffer second;
        } list;
        list.head.mNumberBuffers = 2;
        list.head.mBuffers[0] = {1, frames * 4, rows[0].data()};
        list.second = {1, frames * 4, rows[1].data()};
        EXPECT_EQ(reader.read(frames, &list.head), noErr);
        heard.insert(heard.end(), rows[1].begin(), rows[1].begin() + frames);
        return AudioCheck::levelOf(rows[1]);
    };
    for (int i = 0; i < 10; ++i)
        (void)read();
    const double before = read();
    controls->set({-20, -60, 0});
    (void)read(); // the way down
    EXPECT_NEAR(read() / before, 0.1, 0.02);
    controls->set({-60, 0, 0});
    (void)read();
    EXPECT_GT(read(), 0.15) << "computer audio alone";
    controls->set({-60, 0, 100}); // one block down, one block up
    (void)read();
    (void)read();
    EXPECT_GT(read(), 0.15);
    double step = 0;
    for (std::size_t i = 2049; i < heard.size(); ++i)
        step = std::max(step, std::fabs(double(heard[i]) - double(heard[i - 1])));
    // The steepest step of the tones themselves: 0.3 of 1500 Hz.
    EXPECT_LT(step, 0.3 * 2 * std::numbers::pi * 1500 / 44100 * 1.2);
}

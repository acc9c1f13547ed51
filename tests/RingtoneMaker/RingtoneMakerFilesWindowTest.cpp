// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/MediaFilesLinux.h"
#include "tests/RingtoneMaker/RingtoneWorld.h"
#include "tests/support/FileContent.h"
#include "tests/support/FullDisk.h"
#include "tests/support/Mpeg4Files.h"

#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <gtest/gtest.h>
#include <linux/capability.h>
#include <malloc.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// While it lives, file permissions also apply to root: on this thread, and on threads that it starts.
class PermissionsHold {
public:
    PermissionsHold() {
        ::syscall(SYS_capget, &head_, before_);
        __user_cap_data_struct less[2] = {before_[0], before_[1]};
        less[0].effective &= ~(1U << CAP_DAC_OVERRIDE);
        EXPECT_EQ(::syscall(SYS_capset, &head_, less), 0);
    }
    ~PermissionsHold() { EXPECT_EQ(::syscall(SYS_capset, &head_, before_), 0); }
    PermissionsHold(const PermissionsHold&) = delete;
    PermissionsHold& operator=(const PermissionsHold&) = delete;

private:
    __user_cap_header_struct head_{_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct before_[2]{};
};

/// The ringtone maker's window with real files and the real encoder.
class RingtoneMakerOnADisk : public testing::Test {
protected:
    RingtoneMakerOnADisk() : media(Platform::createMediaFiles()) {
        Platform::services().mediaFiles = media.get();
        QDir().mkpath(world.folder.filePath(u"made"_s));
    }
    void open(int seconds) {
        source = world.folder.filePath(u"Track1.m4a"_s);
        ASSERT_TRUE(Mpeg4Files::make(source, Mpeg4Files::Shape::IndexAtEnd, seconds));
        content = FileContent::get(source);
        world.sounds.lengths.insert(source, seconds);
        world.maker.openFile(source, LibraryWorld::entry(u"key"_s, u"Track1"_s, source, seconds));
        world.show();
    }
    void pressTheButton() {
        auto& button = world.outlet<QPushButton>("makeButton");
        ASSERT_TRUE(button.isEnabled());
        QTest::mouseClick(&button, Qt::LeftButton);
        ASSERT_TRUE(waitFor([&] { return !world.maker.isWriting() && !world.maker.window()->isVisible(); }));
    }
    /// Expects one alert with one line that names @p place, the recording unchanged, and no other file left.
    void expectFailure(const QString& place) const {
        ASSERT_EQ(world.alerts.shown.size(), 1);
        EXPECT_EQ(world.alerts.shown[0].title, u"The ringtone could not be made."_s);
        EXPECT_TRUE(world.alerts.shown[0].text.contains(place)) << qPrintable(world.alerts.shown[0].text);
        EXPECT_EQ(world.alerts.shown[0].text.count(u'\n'), 0);
        std::printf("said: %s\n", qPrintable(world.alerts.shown[0].text));
        EXPECT_TRUE(world.paths.isEmpty());
        EXPECT_EQ(FileContent::get(source), content);
        EXPECT_TRUE(QDir(g_strTmpPath).isEmpty());
        EXPECT_TRUE(QDir(world.folder.filePath(u"made"_s)).isEmpty());
    }
    RingtoneWorld world;
    std::unique_ptr<Platform::MediaFiles> media;
    QString source;
    QByteArray content;
};

TEST_F(RingtoneMakerOnADisk, ReportsAFullDisk) {
    open(45);
    {
        const FullDisk full(100000);
        pressTheButton();
    }
    expectFailure(u"TempRingtoneMakerAudio.m4r"_s);
}

TEST_F(RingtoneMakerOnADisk, ReportsAReadOnlyFolder) {
    open(45);
    const QString made = world.folder.filePath(u"made"_s);
    ASSERT_EQ(::chmod(QFile::encodeName(made).constData(), 0555), 0);
    {
        const PermissionsHold hold;
        pressTheButton();
    }
    ASSERT_EQ(::chmod(QFile::encodeName(made).constData(), 0755), 0);
    expectFailure(u"made/Ringtone.m4r"_s);
}

TEST_F(RingtoneMakerOnADisk, WritesARingtone) {
    open(45);
    pressTheButton();
    EXPECT_TRUE(world.alerts.shown.isEmpty());
    ASSERT_EQ(world.paths, QStringList(world.folder.filePath(u"made/Ringtone.m4r"_s)));
    EXPECT_FALSE(Mpeg4Files::audioOf(world.paths[0]).isEmpty());
    EXPECT_EQ(FileContent::get(source), content);
}

/// Memory of this process, without mapped files.
qint64 ownMemory() {
    ::malloc_trim(0);
    QFile file(u"/proc/self/status"_s);
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray& line : file.readAll().split('\n'))
        if (line.startsWith("RssAnon:"))
            return line.mid(8).trimmed().split(' ').value(0).toLongLong() * 1024;
    return -1;
}

/// Ten hours of silence, mono, 16 bits: a sparse file with only a header.
void makeTenHours(const QString& path) {
    constexpr quint32 rate = 44100;
    constexpr quint32 bytes = 36000 * rate * 2;
    QByteArray head;
    const auto number = [&head](auto value) { head.append(reinterpret_cast<const char*>(&value), sizeof value); };
    head += "RIFF";
    number(quint32(36 + bytes));
    head += "WAVEfmt ";
    number(quint32(16));
    number(quint16(1));
    number(quint16(1));
    number(rate);
    number(quint32(rate * 2));
    number(quint16(2));
    number(quint16(16));
    head += "data";
    number(bytes);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(head), head.size());
    ASSERT_TRUE(file.resize(qint64(head.size()) + bytes));
}

TEST_F(RingtoneMakerOnADisk, NeedsLittleMemoryForTenHours) {
    open(5); // opens the window once first, as in a running program
    ASSERT_TRUE(world.outlineDone());
    const qint64 before = ownMemory();
    ASSERT_GT(before, 0);
    const QString path = world.folder.filePath(u"ten hours.wav"_s);
    makeTenHours(path);
    world.sounds.lengths.insert(path, 36000);
    world.maker.openFile(path, LibraryWorld::entry(u"long"_s, u"Long"_s, path, 36000));
    // Reading takes some 15 seconds of a processor.
    ASSERT_TRUE(waitFor([&] { return !world.maker.generatingWave(); }, 80000));
    ASSERT_EQ(world.outlet("audioEditContainerView").width(), 360000);
    QImage frame(world.maker.window()->size(), QImage::Format_ARGB32_Premultiplied);
    auto& bar = *world.outlet<QScrollArea>("audioEditScrollView").horizontalScrollBar();
    for (int step = 0; step <= 100; ++step) {
        bar.setValue(int(qint64(bar.maximum()) * step / 100));
        world.maker.window()->render(&frame);
    }
    const double megabytes = double(ownMemory() - before) / 1e6;
    std::printf("ten hours: %.1f MB above the window with five seconds\n", megabytes);
    EXPECT_LT(megabytes, 40);
}

} // namespace

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// A file must be on the disk before it is reported closed: its owner then deletes its sources, and a power cut must not
// lose both.
#include "tests/Platform/Media/MediaTestSupport.h"
#include "tests/support/DiskCalls.h"

#include <sys/stat.h>

using namespace MediaTest;
using namespace Platform;
using namespace Qt::StringLiterals;

namespace {

using Kind = DiskCalls::Call::Kind;

struct SyncedFiles : testing::Test {
    QTemporaryDir folder;
    QString path = folder.filePath(u"a"_s);

    static struct stat statOf(const QString& of) {
        struct stat status {};
        EXPECT_EQ(::stat(QFile::encodeName(of).constData(), &status), 0);
        return status;
    }

    /// The disk calls made until the file was reported closed.
    std::vector<DiskCalls::Call> callsUntilClosed(std::uint32_t type) const {
        const DiskCalls disk;
        Samples sound = tones(100000);
        auto writer = newWriter(path, type, type == kAudioFileWAVEType ? waveFormat() : aacFormat(), clientFormat());
        writeAll(*writer, sound, 512, true);
        std::promise<std::vector<DiskCalls::Call>> closed;
        writer->disposeLater([&](OSStatus status) {
            EXPECT_EQ(status, noErr);
            closed.set_value(disk.calls());
        });
        return closed.get_future().get();
    }
};

} // namespace

TEST_F(SyncedFiles, AreOnTheDiskBeforeTheyAreReportedClosed) {
    for (const std::uint32_t type : {kAudioFileM4AType, kAudioFileWAVEType, kAudioFileCAFType}) {
        const auto calls = callsUntilClosed(type);
        const auto file = statOf(path);
        const auto whole = std::ranges::find_if(calls, [&](const DiskCalls::Call& call) {
            return call.kind == Kind::Sync && call.inode == file.st_ino && call.size == file.st_size;
        });
        ASSERT_NE(whole, calls.end()) << "type " << type;
        const auto renamed = std::ranges::find_if(
            calls, [&](const DiskCalls::Call& call) { return call.kind == Kind::Rename && call.to == path; });
        if (type == kAudioFileM4AType) {
            ASSERT_NE(renamed, calls.end());
            EXPECT_LT(whole - calls.begin(), renamed - calls.begin()) << "first its content, then its name";
        }
        const auto named = std::find_if(renamed == calls.end() ? whole : renamed, calls.end(),
                                        [inode = statOf(folder.path()).st_ino](const DiskCalls::Call& call) {
                                            return call.kind == Kind::Sync && call.inode == inode;
                                        });
        EXPECT_NE(named, calls.end()) << "type " << type << ": its name could be lost";
        for (const auto& call : calls) {
            const bool waits = call.kind == Kind::Sync || call.kind == Kind::Rename;
            EXPECT_FALSE(waits && call.thread == std::this_thread::get_id()) << "a disk may take long";
        }
    }
}

TEST_F(SyncedFiles, AnErrorOfTheDiskIsTheFilesError) {
    DiskCalls disk;
    disk.failSync(EIO, [&](const QString& of) { return of == path; });
    Samples sound = tones(10000);
    auto writer = newWriter(path, kAudioFileWAVEType, waveFormat(), clientFormat());
    writeAll(*writer, sound);
    EXPECT_NE(writer->dispose(), noErr);
    EXPECT_TRUE(writer->firstError().text.contains(path)) << qPrintable(writer->firstError().text);
}

TEST_F(SyncedFiles, APlainVersionThatCannotBeSyncedReplacesNothing) {
    DiskCalls disk;
    disk.failSync(EIO, [&](const QString& of) { return of.startsWith(folder.path() + u'/') && of != path; });
    writeFile(path, kAudioFileM4AType, tones(300000));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_GT(file.readAll().indexOf("moof"), 0) << "its fragments have got their index in place";
    EXPECT_EQ(readFile(path).length, 300000);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList(u"a"_s));
}

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// bench_queue one SECONDS FOLDER    writes a raw recording as an engine does, and prints the seconds from its stop to
//                                   the tagged file in the library.
// bench_queue two FIRST SECOND FOLDER   the same for two raw files that are closed already: the mix and its encoding.
#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/UserDefaults.h"
#include "Platform/Foundation/linux/LinuxFoundation.h"
#include "Platform/Foundation/linux/PropertyListDefaults.h"
#include "Platform/Media/linux/MediaFilesLinux.h"
#include "Source/Record/RecordQueue.h"
#include "Source/Record/RecordStateController.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>

#include <cstdio>
#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr double Rate = 48000;
constexpr std::uint32_t Block = 1024;

std::unique_ptr<Platform::ExtAudioFileWriter> record(const QString& path, double seconds) {
    AudioStreamBasicDescription file;
    file.mSampleRate = 44100;
    file.mFormatID = kAudioFormatMPEG4AAC;
    file.mFramesPerPacket = 1024;
    file.mChannelsPerFrame = 2;
    auto writer = Platform::services()
                      .mediaFiles->createWriter(path, kAudioFileM4AType, file, kAudioFileFlags_EraseFile)
                      .valueOr(nullptr);
    if (!writer || writer->setClientDataFormat(planarFloatFormat(Rate, 2)) != noErr)
        return nullptr;
    (void)writer->writeAsync(0, nullptr);

    std::mt19937 random(1);
    std::uniform_real_distribution<float> noise(-0.2F, 0.2F);
    std::vector<float> left(Block);
    std::vector<float> right(Block);
    auto* list = BuildInAudioRecord::allocateAudioBufferList(2, Block * 4);
    for (std::int64_t done = 0; double(done) < seconds * Rate; done += Block) {
        for (std::uint32_t i = 0; i < Block; ++i) {
            static_cast<float*>(list->mBuffers[0].mData)[i] = noise(random);
            static_cast<float*>((&list->mBuffers[0] + 1)->mData)[i] = noise(random);
        }
        (void)writer->writeAsync(Block, list);
    }
    BuildInAudioRecord::destroyAudioBufferList(list);
    // In real use the writer's thread is idle at the stop, because audio arrives in real time.
    QThread::sleep(5);
    return writer;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const bool two = arguments.value(1) == u"two"_s;
    if (arguments.size() != (two ? 5 : 4))
        return 2;
    const QString folder = arguments.last();
    QDir().mkpath(folder);

    auto& services = Platform::services();
    const auto bundle = Platform::createBundle();
    const auto clock = Platform::createClock();
    const auto defaults = Platform::createUserDefaults(bundle->bundleIdentifier());
    const auto media = Platform::createMediaFiles();
    services.bundle = bundle.get();
    services.clock = clock.get();
    services.userDefaults = defaults.get();
    services.mediaFiles = media.get();
    g_strTmpPath = folder;

    RecordStateControllerDelegate library;
    RecordQueue::Owner owner;
    owner.nextFreeName = [&] { return folder + u"/Other.m4a"_s; };
    owner.releaseName = [](const QString&) {};
    owner.filter = [] { return RecordFilter{}; };
    owner.addRecordFile = [&](const QString& path, const Dictionary& tags) { library.addRecordFile(path, tags); };
    RecordQueue queue(owner);
    bool finished = false;
    QObject::connect(&queue, &RecordQueue::recordingFinished, &queue, [&] {
        finished = true;
        QCoreApplication::quit();
    });
    QObject::connect(&queue, &RecordQueue::recordingSetAside, &queue, [] { QCoreApplication::quit(); });

    auto job = std::make_shared<ExportJob>();
    job->paths.insert(ExportJob::OutPutPath, folder + u"/Track0.m4a"_s);
    std::unique_ptr<Platform::ExtAudioFileWriter> writer;
    if (two) {
        job->paths.insert(ExportJob::BuiltInAudioTempPath, arguments.at(2));
        job->paths.insert(ExportJob::ComputerAudioTempPath, arguments.at(3));
        job->paths.insert(ExportJob::OutPutWAVTempPath, folder + u"/ComputerA0.m4atemp"_s);
    } else {
        const QString raw = folder + u"/BuiltInA0.m4a"_s;
        writer = record(raw, arguments.at(2).toDouble());
        if (!writer)
            return 1;
        job->paths.insert(ExportJob::BuiltInAudioTempPath, raw);
        job->openFiles = 1;
    }
    QElapsedTimer timer;
    timer.start();
    if (writer)
        writer->disposeLater(
            [guard = queue.guard(), job](OSStatus status) { RecordQueue::rawFileClosed(guard, job, status); });
    queue.append(job);
    QCoreApplication::exec();
    std::printf("%.3f\n", double(timer.nsecsElapsed()) / 1e9);
    return finished ? 0 : 1;
}

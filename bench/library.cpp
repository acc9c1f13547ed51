// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// bench_Library library COUNT   a library of COUNT entries: loading, one more entry, saving
// bench_Library tags FILE       writing the text tags of a file, the first time and again
#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/linux/PropertyListDefaults.h"
#include "Platform/Media/BasicID3Change.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/Model/MediaLibrary.h"
#include "Source/Model/MediaLibraryStore.h"
#include "Source/Preferences/PreferenceStore.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr int rounds = 7;

/// The median of a few runs, in milliseconds.
double median(const std::function<double()>& once) {
    std::array<double, rounds> times{};
    for (double& time : times)
        time = once();
    std::sort(times.begin(), times.end());
    return times[rounds / 2];
}

double timed(const std::function<void()>& work) {
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

Dictionary entry(int number) {
    const QString path = u"/home/someone/Music/com.korvane.Sonaphex/Recording %1.m4a"_s.arg(number);
    return {{AudioRecordEntry::NodeDataKey, QString(path + u"_817430400.500000"_s)},
            {AudioRecordEntry::SavePath, path},
            {AudioRecordEntry::Title, u"Recording %1"_s.arg(number)},
            {AudioRecordEntry::Artist, u"NO Artist"_s},
            {AudioRecordEntry::Album, u"NO Album"_s},
            {AudioRecordEntry::Year, 2012},
            {AudioRecordEntry::Genre, u"NO General"_s},
            {AudioRecordEntry::AddDate, u"2026/11/21"_s},
            {AudioRecordEntry::Length, 83.5}};
}

void measureLibrary(int count) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"library.plist"_s);
    QVariantList records;
    for (int i = 0; i < count; ++i)
        records.append(entry(i));
    {
        Platform::PropertyListDefaults defaults(path);
        defaults.setObject(PreferenceStore::kMediaLibrarySavedKey, MediaLibraryStore::value(records, {}));
        if (!defaults.flush())
            qFatal("cannot write %s", qPrintable(path));
    }
    const double load = median([&] {
        return timed([&] {
            Platform::PropertyListDefaults defaults(path);
            Platform::services().userDefaults = &defaults;
            const MediaLibrary library;
            if (library.records().size() != count)
                qFatal("lost entries");
        });
    });
    Platform::PropertyListDefaults defaults(path);
    Platform::services().userDefaults = &defaults;
    MediaLibrary library;
    library.prepareForChanges(); // as the window does after its start
    int next = count;
    double save = 0;
    const double add = median([&] {
        Dictionary one = entry(next++);
        one.insert(AudioRecordEntry::IsNew, true);
        const double time = timed([&] { library.addRecordFile(one); });
        save = timed([&] { (void)defaults.flush(); });
        return time;
    });
    Platform::services().userDefaults = nullptr;
    std::printf("%.1f %.2f %.1f\n", load, add, save);
}

void measureTags(const QString& path) {
    int round = 0;
    const auto tag = [&] {
        return timed([&] {
            if (!Platform::BasicID3Change::setMpeg4ID3Information(path, u"Title %1"_s.arg(++round), u"Artist"_s,
                                                                  u"Album"_s, 2012, u"Genre"_s))
                qFatal("cannot tag %s", qPrintable(path));
        });
    };
    const double first = tag();
    std::printf("%.2f %.2f\n", first, median(tag));
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 3 && arguments[1] == u"library"_s)
        measureLibrary(arguments[2].toInt());
    else if (arguments.size() == 3 && arguments[1] == u"tags"_s)
        measureTags(arguments[2]);
    else
        return 2;
    return 0;
}

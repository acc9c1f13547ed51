// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The code has four layers: the platform, the core, the windows, the program. A layer includes nothing of a higher one,
// and only the Linux side of the platform includes the system's libraries.
#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QStringList>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

enum Floor { Platform = 1, Core, Windows, Program, Tools, Tests };

/// The list by which the build sorts sources into the core and the windows' library.
const QStringList& windowFloor() {
    static const QStringList entries = [] {
        QFile file(QStringLiteral(SONAPHEX_SOURCE_DIR "/cmake/WindowFloor.txt"));
        if (!file.open(QIODevice::ReadOnly))
            return QStringList();
        QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
        lines.removeIf([](const QString& line) { return line.startsWith(u'#'); });
        return lines;
    }();
    return entries;
}

/// @p path is relative to the root of the tree.
Floor floorOf(const QString& path) {
    if (path.startsWith(u"tests/"_s) || path.startsWith(u"bench/"_s))
        return Tests;
    if (path.startsWith(u"Tools/"_s))
        return Tools;
    if (path.startsWith(u"Platform/"_s))
        return Platform;
    if (!path.contains(u'/') || path.startsWith(u"CommandLine/"_s))
        return Program;
    const QString folder = path.left(path.lastIndexOf(u'/') + 1);
    const QString stem = path.left(path.lastIndexOf(u'.'));
    return windowFloor().contains(folder) || windowFloor().contains(stem) ? Windows : Core;
}

/// Whether this header belongs to a system library that only one folder may include.
bool isOfASystemLibrary(const QString& include) {
    static const QRegularExpression libraries(
        u"^(pipewire|spa|libavcodec|libavformat|libavutil|libswresample|libavfilter|taglib|libburn|plist|xcb|X11)/"
        "|^(libudev|alsa/|jack/|pulse/|fileref|tag|tpropertymap|mp4|burn).*\\.h$"_s);
    return include.contains(libraries);
}

bool mayUseSystemLibraries(const QString& path) {
    static const QRegularExpression linuxSide(u"^Platform/[^/]+/linux/"_s);
    return path.contains(linuxSide) || floorOf(path) == Tests || floorOf(path) == Tools;
}

/// The forbidden includes of one file, one line each.
QStringList faults(const QString& root, const QString& path) {
    static const QRegularExpression includeLine(u"^\\s*#\\s*include\\s*([<\"])([^>\"]+)[>\"]"_s,
                                                QRegularExpression::MultilineOption);
    QFile file(root + u'/' + path);
    if (!file.open(QIODevice::ReadOnly))
        return {path + u": cannot be read"_s};
    QStringList found;
    auto matches = includeLine.globalMatch(QString::fromUtf8(file.readAll()));
    while (matches.hasNext()) {
        const auto match = matches.next();
        const bool own = match.captured(1) == u"\""_s;
        const QString include = match.captured(2);
        if (include.contains(u"../"_s))
            found << u"%1: %2 climbs"_s.arg(path, include);
        if (isOfASystemLibrary(include) && !mayUseSystemLibraries(path))
            found << u"%1: %2 belongs behind the platform's door"_s.arg(path, include);
        if (own && QFile::exists(root + u'/' + include)) {
            const Floor here = floorOf(path);
            const Floor there = floorOf(include);
            const bool isTool = here == Tools && there != Platform && there != Tools;
            if (there > here || isTool)
                found << u"%1: %2 is on a higher floor"_s.arg(path, include);
        }
        if (own && include.contains(u"/linux/"_s) && floorOf(path) != Platform && !mayUseSystemLibraries(path))
            found << u"%1: %2 is behind the platform's door"_s.arg(path, include);
    }
    return found;
}

/// The faults of all files of a tree, in the order of the paths.
QStringList faultsOf(const QString& root) {
    QStringList paths;
    QDirIterator tree(root, {u"*.h"_s, u"*.cpp"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (tree.hasNext()) {
        const QString path = QDir(root).relativeFilePath(tree.next());
        if (!path.startsWith(u"build/"_s) && !path.startsWith(u'.'))
            paths << path;
    }
    paths.sort();
    QStringList all;
    for (const QString& path : paths)
        all << faults(root, path);
    return all;
}

} // namespace

TEST(Floors, StandOnEachOther) {
    EXPECT_EQ(faultsOf(QStringLiteral(SONAPHEX_SOURCE_DIR)).join(u'\n').toStdString(), "");
}

TEST(Floors, AreSortedAsTheBuildSortsThem) {
    EXPECT_EQ(floorOf(u"Platform/Audio/linux/X.cpp"_s), Platform);
    EXPECT_EQ(floorOf(u"Source/Control/ToolControl.cpp"_s), Core);
    EXPECT_EQ(floorOf(u"Source/CDBurn/BurnControl.cpp"_s), Core);
    EXPECT_EQ(floorOf(u"Source/CDBurn/AudioDataSourceView.cpp"_s), Windows);
    EXPECT_EQ(floorOf(u"Source/View/Theme.cpp"_s), Windows);
    EXPECT_EQ(floorOf(u"RingtoneMaker/RingtoneMakerViewController.h"_s), Windows);
    EXPECT_EQ(floorOf(u"RingtoneMaker/CustomSound.h"_s), Core);
    EXPECT_EQ(floorOf(u"CommandLine/CommandLine.h"_s), Program);
    EXPECT_EQ(floorOf(u"main.cpp"_s), Program);
}

TEST(Floors, FallWithABadTree) {
    QTemporaryDir dir;
    const auto put = [&](const QString& path, const QByteArray& content) {
        QDir(dir.path()).mkpath(QFileInfo(path).path());
        QFile file(dir.filePath(path));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    };
    put(u"AppDelegate.h"_s, "#include <QObject>\n");
    put(u"Platform/Audio/Good.h"_s, "#pragma once\n#include <vector>\n");
    put(u"Platform/Audio/Leaky.h"_s, "#include <pipewire/pipewire.h>\n");
    put(u"Platform/Audio/Upwards.cpp"_s, "#include \"Source/Control/Engine.h\"\n");
    put(u"Platform/Audio/linux/Door.cpp"_s, "#include <pipewire/pipewire.h>\n#include <libavutil/frame.h>\n");
    put(u"Platform/Audio/linux/Door.h"_s, "\n");
    put(u"Source/Control/Climber.cpp"_s, "  #  include \"../Control/Engine.h\"\n");
    put(u"Source/Control/Engine.h"_s, "#include \"Platform/Audio/Good.h\"\n// #include \"Source/View/Theme.h\"\n");
    put(u"Source/Control/Sneaky.cpp"_s,
        "#include \"Source/View/Theme.h\"\n#include <taglib/tag.h>\n#include \"Platform/Audio/linux/Door.h\"\n");
    put(u"Source/View/Theme.h"_s, "#include \"Source/Control/Engine.h\"\n#include \"AppDelegate.h\"\n");
    put(u"Tools/Tone/main.cpp"_s, "#include \"Platform/Audio/linux/Door.h\"\n#include \"Source/Control/Engine.h\"\n");
    put(u"tests/Source/EngineTest.cpp"_s, "#include <taglib/tag.h>\n#include \"AppDelegate.h\"\n");
    put(u"build/dev/moc.cpp"_s, "#include \"../../Source/View/Theme.h\"\n");
    EXPECT_EQ(faultsOf(dir.path()),
              (QStringList{
                  u"Platform/Audio/Leaky.h: pipewire/pipewire.h belongs behind the platform's door"_s,
                  u"Platform/Audio/Upwards.cpp: Source/Control/Engine.h is on a higher floor"_s,
                  u"Source/Control/Climber.cpp: ../Control/Engine.h climbs"_s,
                  u"Source/Control/Sneaky.cpp: Source/View/Theme.h is on a higher floor"_s,
                  u"Source/Control/Sneaky.cpp: taglib/tag.h belongs behind the platform's door"_s,
                  u"Source/Control/Sneaky.cpp: Platform/Audio/linux/Door.h is behind the platform's door"_s,
                  u"Source/View/Theme.h: AppDelegate.h is on a higher floor"_s,
                  u"Tools/Tone/main.cpp: Source/Control/Engine.h is on a higher floor"_s,
              }));
}

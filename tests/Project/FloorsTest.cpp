// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The code has four layers: the platform, the core, the windows, the program. A layer includes nothing of a higher one,
// and only the Linux side of the platform includes the system's libraries. The folders have an order too, files do not
// include each other in a circle, and a class is defined in files that begin with its name.
#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>
#include <QTemporaryDir>

#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

enum Floor { Platform = 1, Core, Windows, Program, Tools, Tests };

/// The entries of a list in the folder of the build, without its comments.
QStringList listed(const QString& name) {
    QFile file(QStringLiteral(SONAPHEX_SOURCE_DIR "/cmake/") + name);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    lines.removeIf([](const QString& line) { return line.startsWith(u'#'); });
    return lines;
}

/// The list by which the build sorts sources into the core and the windows' library.
const QStringList& windowFloor() {
    static const QStringList entries = listed(u"WindowFloor.txt"_s);
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

QString contentOf(const QString& root, const QString& path) {
    QFile file(root + u'/' + path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

struct Include {
    bool own = false; ///< in quotes
    QString path;
};

std::vector<Include> includesOf(const QString& content) {
    static const QRegularExpression line(u"^\\s*#\\s*include\\s*([<\"])([^>\"]+)[>\"]"_s,
                                         QRegularExpression::MultilineOption);
    std::vector<Include> includes;
    auto matches = line.globalMatch(content);
    while (matches.hasNext()) {
        const auto match = matches.next();
        includes.push_back({match.captured(1) == u"\""_s, match.captured(2)});
    }
    return includes;
}

/// The forbidden includes of one file, one line each.
QStringList faults(const QString& root, const QString& path) {
    QStringList found;
    for (const auto& [own, include] : includesOf(contentOf(root, path))) {
        if (include.contains(u"../"_s))
            found << u"%1: %2 is a relative path"_s.arg(path, include);
        if (isOfASystemLibrary(include) && !mayUseSystemLibraries(path))
            found << u"%1: only Platform/*/linux may include %2"_s.arg(path, include);
        if (own && QFile::exists(root + u'/' + include)) {
            const Floor here = floorOf(path);
            const Floor there = floorOf(include);
            const bool isTool = here == Tools && there != Platform && there != Tools;
            if (there > here || isTool)
                found << u"%1: %2 is on a higher floor"_s.arg(path, include);
        }
        if (own && include.contains(u"/linux/"_s) && floorOf(path) != Platform && !mayUseSystemLibraries(path))
            found << u"%1: %2 is private to the platform"_s.arg(path, include);
    }
    return found;
}

/// All headers and sources of a tree, in the order of the paths.
QStringList pathsOf(const QString& root) {
    QStringList paths;
    QDirIterator tree(root, {u"*.h"_s, u"*.cpp"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (tree.hasNext()) {
        const QString path = QDir(root).relativeFilePath(tree.next());
        if (!path.startsWith(u"build/"_s) && !path.startsWith(u'.'))
            paths << path;
    }
    paths.sort();
    return paths;
}

/// The faults of all files of a tree, in the order of the paths.
QStringList faultsOf(const QString& root) {
    QStringList all;
    for (const QString& path : pathsOf(root))
        all << faults(root, path);
    return all;
}

QString folderOf(const QString& path) {
    return path.contains(u'/') ? path.left(path.lastIndexOf(u'/')) : u"."_s;
}

QString stemOf(const QString& path) {
    return path.left(path.lastIndexOf(u'.'));
}

/// All tools count as one folder. Tests are not in the order.
QString roomOf(const QString& path) {
    return floorOf(path) == Tools ? u"Tools"_s : folderOf(path);
}

/// Includes that break the order of the folders, and folders that are not in it.
QStringList roomFaultsOf(const QString& root, const QStringList& rooms) {
    QStringList found;
    for (const QString& path : pathsOf(root)) {
        if (floorOf(path) == Tests)
            continue;
        const auto here = rooms.indexOf(roomOf(path));
        if (here < 0)
            found << u"%1: its folder is not in the list of folders"_s.arg(path);
        for (const auto& [own, include] : includesOf(contentOf(root, path)))
            if (own && QFile::exists(root + u'/' + include) && here >= 0 && rooms.indexOf(roomOf(include)) > here)
                found << u"%1: %2 is in a later folder"_s.arg(path, include);
    }
    return found;
}

/// Which file declares which class.
struct Classes {
    QHash<QString, QString> headerOf; ///< of each class of one header; a name of several headers has an empty one
    QHash<QString, QString> unitOf;   ///< of each file: its path without the ending, or that of the class it is part of
};

Classes classesOf(const QString& root) {
    static const QRegularExpression declared(u"^ *(?:class|struct) (\\w+)(?: final)?(?: *:(?!:)[^;{]*)? *\\{"_s,
                                             QRegularExpression::MultilineOption);
    static const QRegularExpression nested(u"^(?:class|struct) (\\w+)::\\w+(?: final)?(?: *:[^;{]*)? *\\{"_s,
                                           QRegularExpression::MultilineOption);
    Classes classes;
    const QStringList paths = pathsOf(root);
    for (const QString& path : paths) {
        classes.unitOf.insert(path, stemOf(path));
        if (floorOf(path) == Tests)
            continue;
        auto matches = declared.globalMatch(contentOf(root, path));
        while (matches.hasNext()) {
            const QString name = matches.next().captured(1);
            const auto known = classes.headerOf.constFind(name);
            classes.headerOf.insert(name, known == classes.headerOf.constEnd() || *known == path ? path : QString());
        }
    }
    // A header that defines a part of a class is itself a part of that class.
    for (const QString& path : paths)
        if (const auto match = nested.match(contentOf(root, path)); match.hasMatch() && path.endsWith(u".h"_s))
            if (const QString header = classes.headerOf.value(match.captured(1)); !header.isEmpty())
                classes.unitOf.insert(path, stemOf(header));
    return classes;
}

/// Sources that define members of a class whose header has another name. The Linux side of a platform interface may
/// have a name of its own.
QStringList strayDefinitionsOf(const QString& root) {
    static const QRegularExpression definition(u"^(?! |return|using|else)(?:[\\w:<>,*& ]+[ *&])?(\\w+)::~?\\w+\\(.*"_s,
                                               QRegularExpression::MultilineOption);
    const Classes classes = classesOf(root);
    QStringList found;
    for (const QString& path : pathsOf(root)) {
        if (floorOf(path) == Tests || !path.endsWith(u".cpp"_s))
            continue;
        auto matches = definition.globalMatch(contentOf(root, path));
        while (matches.hasNext()) {
            const auto match = matches.next();
            const QString header = classes.headerOf.value(match.captured(1));
            const bool isDoor = path.contains(u"/linux/"_s) && !header.contains(u"/linux/"_s);
            if (header.isEmpty() || header == path || isDoor || match.captured().endsWith(u';'))
                continue;
            const QString home = QFileInfo(classes.unitOf.value(header)).fileName();
            const QString fault = u"%1: defines %2 of %3"_s.arg(path, match.captured(1), header);
            if (!QFileInfo(path).fileName().startsWith(home) && !found.contains(fault))
                found << fault;
        }
    }
    return found;
}

/// The files that include each other in a circle, directly or through others: header and source count as one.
QStringList circlesOf(const QString& root) {
    const Classes classes = classesOf(root);
    QHash<QString, QSet<QString>> uses;
    for (const QString& path : pathsOf(root)) {
        if (floorOf(path) == Tests)
            continue;
        const QString here = classes.unitOf.value(path);
        for (const auto& [own, include] : includesOf(contentOf(root, path)))
            if (const QString there = classes.unitOf.value(include); own && !there.isEmpty() && there != here)
                uses[here].insert(there);
    }
    // A file that includes nothing, or that nothing includes, is in no circle.
    for (bool removed = true; removed;) {
        removed = false;
        QSet<QString> used;
        for (const auto& each : std::as_const(uses))
            used.unite(each);
        for (auto it = uses.begin(); it != uses.end();) {
            it->removeIf([&](const QString& other) { return !uses.contains(other); });
            const bool isOutside = it->isEmpty() || !used.contains(it.key());
            removed = removed || isOutside;
            it = isOutside ? uses.erase(it) : std::next(it);
        }
    }
    QStringList found = uses.keys();
    found.sort();
    return found;
}

/// Trees that break the rules.
class BadTree : public testing::Test {
protected:
    void put(const QString& path, const QByteArray& content) {
        QDir(dir.path()).mkpath(QFileInfo(path).path());
        QFile file(dir.filePath(path));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    QTemporaryDir dir;
};

} // namespace

TEST(Floors, IncludeOnlyLowerFloors) {
    EXPECT_EQ(faultsOf(QStringLiteral(SONAPHEX_SOURCE_DIR)).join(u'\n').toStdString(), "");
}

TEST(Floors, IncludeFoldersInTheirOrder) {
    const QStringList rooms = listed(u"Rooms.txt"_s);
    EXPECT_EQ(roomFaultsOf(QStringLiteral(SONAPHEX_SOURCE_DIR), rooms).join(u'\n').toStdString(), "");
    for (const QString& room : rooms)
        EXPECT_TRUE(QFileInfo(QStringLiteral(SONAPHEX_SOURCE_DIR "/") + room).isDir()) << qPrintable(room);
}

TEST(Floors, HaveNoCircles) {
    EXPECT_EQ(circlesOf(QStringLiteral(SONAPHEX_SOURCE_DIR)).join(u'\n').toStdString(), "");
}

TEST(Floors, HaveEachClassInFilesOfItsName) {
    EXPECT_EQ(strayDefinitionsOf(QStringLiteral(SONAPHEX_SOURCE_DIR)).join(u'\n').toStdString(), "");
}

TEST(Floors, MatchTheSortingOfTheBuild) {
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

TEST_F(BadTree, IncludesHigherFloorsAndSystemLibraries) {
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
                  u"Platform/Audio/Leaky.h: only Platform/*/linux may include pipewire/pipewire.h"_s,
                  u"Platform/Audio/Upwards.cpp: Source/Control/Engine.h is on a higher floor"_s,
                  u"Source/Control/Climber.cpp: ../Control/Engine.h is a relative path"_s,
                  u"Source/Control/Sneaky.cpp: Source/View/Theme.h is on a higher floor"_s,
                  u"Source/Control/Sneaky.cpp: only Platform/*/linux may include taglib/tag.h"_s,
                  u"Source/Control/Sneaky.cpp: Platform/Audio/linux/Door.h is private to the platform"_s,
                  u"Source/View/Theme.h: AppDelegate.h is on a higher floor"_s,
                  u"Tools/Tone/main.cpp: Source/Control/Engine.h is on a higher floor"_s,
              }));
}

TEST_F(BadTree, BreaksTheOrderOfTheFolders) {
    put(u"Source/Low/A.h"_s, "#include \"Source/High/B.h\"\n");
    put(u"Source/High/B.h"_s, "#include \"Source/Low/C.h\"\n#include \"Source/High/D.h\"\n");
    put(u"Source/High/D.h"_s, "\n");
    put(u"Source/Low/C.h"_s, "\n");
    put(u"Source/New/E.cpp"_s, "#include \"Source/Low/C.h\"\n");
    put(u"tests/Source/LowTest.cpp"_s, "#include \"Source/High/B.h\"\n");
    EXPECT_EQ(roomFaultsOf(dir.path(), {u"Source/Low"_s, u"Source/High"_s}),
              (QStringList{u"Source/Low/A.h: Source/High/B.h is in a later folder"_s,
                           u"Source/New/E.cpp: its folder is not in the list of folders"_s}));
}

TEST_F(BadTree, IncludesInACircle) {
    put(u"Source/A.h"_s, "class A {\n};\n");
    put(u"Source/A.cpp"_s, "#include \"Source/A.h\"\n#include \"Source/B.h\"\n");
    put(u"Source/B.h"_s, "#include \"Source/C.h\"\n");
    put(u"Source/C.h"_s, "#include \"Source/A.h\"\n");
    put(u"Source/Outside.h"_s, "#include \"Source/A.h\"\n");
    put(u"Source/B.cpp"_s, "#include \"Source/B.h\"\n#include \"Source/Leaf.h\"\n");
    put(u"Source/Leaf.h"_s, "\n");
    put(u"Source/P.h"_s, "class P {\n    struct Private;\n};\n");
    put(u"Source/PPrivate.h"_s, "#include \"Source/P.h\"\nstruct P::Private {\n};\n");
    put(u"Source/P.cpp"_s, "#include \"Source/P.h\"\n#include \"Source/PPrivate.h\"\n");
    EXPECT_EQ(circlesOf(dir.path()), (QStringList{u"Source/A"_s, u"Source/B"_s, u"Source/C"_s}));
}

TEST_F(BadTree, DefinesClassesInFilesOfOtherNames) {
    put(u"Source/Recorder.h"_s, "class Recorder {\n    void start();\n};\n");
    put(u"Source/Recorder.cpp"_s, "void Recorder::start() {\n}\n");
    put(u"Source/RecorderFiles.cpp"_s, "void Recorder::open() {\n}\n");
    put(u"Source/Files.cpp"_s,
        "bool Recorder::close() {\n    return Recorder::closed();\n}\nRecorder::~Recorder() = default;\n");
    put(u"Source/Own.cpp"_s, "struct Local {\n    void go();\n};\nvoid Local::go() {\n}\n");
    EXPECT_EQ(strayDefinitionsOf(dir.path()),
              QStringList{u"Source/Files.cpp: defines Recorder of Source/Recorder.h"_s});
}

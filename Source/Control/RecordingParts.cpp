// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Control/RecordingParts.h"

#include "Platform/Audio/ClientFormat.h"
#include "Platform/Desktop/Workspace.h"
#include "Platform/Foundation/Clock.h"
#include "Platform/Foundation/FileManager.h"
#include "Platform/Foundation/ReplacementFile.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Media/EncodedAudio.h"
#include "Platform/Media/ExtAudioFile.h"
#include "Source/Control/ConverterAudioControl.h"
#include "Source/Control/FileTags.h"
#include "Source/Control/ID3ChangeControl.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/Preferences/PreferenceStore.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QScopeGuard>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;
using Platform::EncodedAudio;
using Platform::Error;
using Platform::ReplacementFile;
using Platform::Result;
namespace FileManager = Platform::FileManager;

namespace RecordingParts {
namespace {

/// "<path>: <what>"
Error failure(Error::Kind kind, const QString& path, const QString& what) {
    return {kind, u"%1: %2"_s.arg(path, what)};
}

using Progress = std::function<bool(double)>;

constexpr int BlocksPerReport = 256;

/// Tags and cover of a recording, for the files that are made from it.
class Labels {
public:
    explicit Labels(const QString& source) : tags_(FileTags::texts(source)), cover_(FileTags::artworkFile(source)) {
        if (Platform::stringForm(tags_.value(AudioRecordEntry::Title)).isEmpty())
            tags_.insert(AudioRecordEntry::Title, QFileInfo(source).completeBaseName());
    }
    ~Labels() {
        if (!cover_.isEmpty())
            (void)FileManager::removeFile(cover_);
    }
    Labels(const Labels&) = delete;
    Labels& operator=(const Labels&) = delete;

    [[nodiscard]] const Dictionary& tags() const { return tags_; }
    /// With this title; if it is empty, with a number added to the source's.
    [[nodiscard]] Dictionary titled(const QString& typed, int number) const {
        Dictionary tags = tags_;
        if (!typed.isEmpty()) {
            tags.insert(AudioRecordEntry::Title, typed);
            return tags;
        }
        const QString title = Platform::stringForm(tags_.value(AudioRecordEntry::Title));
        tags.insert(AudioRecordEntry::Title, u"%1 %2"_s.arg(title, QString::number(number)));
        return tags;
    }
    /// Tags the audio in @p temporary and moves it to the hidden path of @p file.
    Result<> apply(const Dictionary& tags, const QString& temporary, const ReplacementFile& file) const {
        ID3ChangeControl::changeID3(temporary, file.path(), tags, cover_);
        if (FileTags::agree(file.path(), tags).valueOr(false))
            return {};
        return failure(Error::Kind::Other, file.target(),
                       QCoreApplication::translate("Control", "the file or its tags could not be written"));
    }

private:
    Dictionary tags_;
    QString cover_;
};

/// A file in the temporary folder, removed at the end.
class TemporaryAudio {
public:
    TemporaryAudio() : path_(g_strTmpPath + u"/TempRecordingPart.m4a"_s) { remove(); }
    ~TemporaryAudio() { remove(); }
    TemporaryAudio(const TemporaryAudio&) = delete;
    TemporaryAudio& operator=(const TemporaryAudio&) = delete;
    [[nodiscard]] const QString& path() const { return path_; }
    /// The user knows the name of the target only.
    [[nodiscard]] Error named(Error error, const QString& target) const {
        error.text.replace(path_, target);
        return error;
    }

private:
    void remove() const { (void)FileManager::removeFile(path_); }
    QString path_;
};

Error existsError(const QString& path) {
    return failure(Error::Kind::Exists, path,
                   QCoreApplication::translate("Control", "This path exists, please change the path or name."));
}

QStringList namedPartPaths(const QString& name, const QString& folder, std::size_t count) {
    QStringList paths;
    for (std::size_t i = 1; i <= count; ++i)
        paths.append(u"%1/%2 %3.m4a"_s.arg(folder, name, QString::number(i)));
    return paths;
}

bool isTaken(const QString& path) {
    return QFileInfo::exists(path) || QFileInfo(path).isSymLink();
}

Result<> commit(ReplacementFile& file) {
    const int error = file.commit();
    if (error == EEXIST)
        return existsError(file.target());
    if (error != 0)
        return Error::ofErrno(error, file.target());
    Platform::noteFileSystemChanged(file.target());
    return {};
}

/// The sources as one run of packets; null when they are not parts of one recording that follow each other.
std::unique_ptr<EncodedAudio> encodedInARow(const QStringList& sources) {
    std::unique_ptr<EncodedAudio> all;
    for (const QString& source : sources) {
        auto next = Platform::openEncodedAudio(source);
        if (!next)
            return nullptr;
        if (!all)
            all = *std::move(next);
        else if (!all->append(**next))
            return nullptr;
    }
    return all;
}

/// Decodes one source into the writer. @return its frames
Result<std::int64_t> copyFrames(const QString& source, Platform::ExtAudioFileWriter& writer, const Progress& progress) {
    auto opened = Platform::services().mediaFiles->openReader(source);
    if (!opened)
        return opened.error();
    auto& reader = **opened;
    const auto format = clientFormat();
    if (reader.setClientDataFormat(format) != noErr)
        return reader.firstError();
    ClientBlock block;
    const double total = std::max(1.0, double(reader.fileLengthFrames()));
    std::int64_t copied = 0;
    for (int blocks = 1;; ++blocks) {
        std::uint32_t frames = block.prepare(format);
        if (reader.read(frames, block.list()) != noErr)
            return reader.firstError();
        if (frames == 0)
            return copied;
        if (writer.writeAsync(frames, block.list()) != noErr)
            return writer.firstError();
        copied += frames;
        if (progress && blocks % BlocksPerReport == 0 && !progress(std::min(1.0, double(copied) / total)))
            return failure(Error::Kind::Cancelled, source,
                           QCoreApplication::translate("Control", "stopped before the end"));
    }
}

/// Decodes the sources and encodes them into one file. @return its seconds
Result<double> encode(const QStringList& sources, const QString& path, const Progress& progress) {
    auto created = Platform::services().mediaFiles->createWriter(
        path, kAudioFileM4AType, ConverterAudioControl::exportDescription(1), kAudioFileFlags_EraseFile);
    if (!created)
        return created.error();
    auto& writer = **created;
    const auto format = clientFormat();
    if (writer.setClientDataFormat(format) != noErr || writer.writeAsync(0, nullptr) != noErr)
        return writer.firstError();
    std::int64_t frames = 0;
    for (qsizetype i = 0; i < sources.size(); ++i) {
        const auto copied = copyFrames(sources.at(i), writer, [&](double share) {
            return !progress || progress((double(i) + share) / double(sources.size()));
        });
        if (!copied)
            return copied.error();
        frames += *copied;
    }
    if (writer.dispose() != noErr)
        return writer.firstError();
    return double(frames) / format.mSampleRate;
}

} // namespace

QStringList partPaths(const QString& source, const QString& folder, std::size_t count) {
    return namedPartPaths(QFileInfo(source).completeBaseName(), folder, count);
}

QStringList freePartPaths(const QString& source, const QString& folder, std::size_t count) {
    const QString name = QFileInfo(source).completeBaseName();
    QStringList paths = namedPartPaths(name, folder, count);
    for (int number = 2; std::any_of(paths.cbegin(), paths.cend(), isTaken); ++number)
        paths = namedPartPaths(u"%1 (%2)"_s.arg(name, QString::number(number)), folder, count);
    return paths;
}

Dictionary entryOf(const Part& part) {
    Dictionary entry = part.tags;
    entry.insert(AudioRecordEntry::AddDate, Platform::services().clock->now().toString(u"yyyy/MM/dd"_s));
    entry.insert(AudioRecordEntry::Length, part.seconds);
    return entry;
}

QString joinedPath(const QString& firstSource) {
    const QFileInfo file(firstSource);
    const QString name = QCoreApplication::translate("Control", "%1 joined").arg(file.completeBaseName());
    QString path = u"%1/%2.m4a"_s.arg(file.path(), name);
    for (int number = 2; isTaken(path); ++number)
        path = u"%1/%2 %3.m4a"_s.arg(file.path(), name, QString::number(number));
    return path;
}

Result<QList<Part>> split(const QString& source, const std::vector<std::int64_t>& cuts, const QStringList& paths,
                          const Progress& progress, const QStringList& titles) {
    const auto audio = Platform::openEncodedAudio(source);
    if (!audio)
        return audio.error();
    for (const QString& path : paths)
        if (isTaken(path))
            return existsError(path);
    const Labels labels(source);
    const TemporaryAudio temporary;
    QList<Part> parts;
    std::vector<std::unique_ptr<ReplacementFile>> files;
    const std::int64_t all = (*audio)->frames();
    std::int64_t first = 0;
    for (qsizetype i = 0; i < paths.size(); ++i) {
        const std::int64_t end = std::size_t(i) < cuts.size() ? cuts[std::size_t(i)] : all;
        const auto copied = (*audio)->copy(temporary.path(), first, end, [&](double share) {
            return !progress || progress((double(first) + share * double(end - first)) / double(all));
        });
        if (!copied)
            return temporary.named(copied.error(), paths.at(i));
        files.push_back(std::make_unique<ReplacementFile>(paths.at(i), ReplacementFile::Existing::Kept));
        parts.append(
            {paths.at(i), double(end - first) / (*audio)->sampleRate(), labels.titled(titles.value(i), int(i) + 1)});
        if (const auto labelled = labels.apply(parts.constLast().tags, temporary.path(), *files.back()); !labelled)
            return labelled.error();
        first = end;
    }
    for (std::size_t i = 0; i < files.size(); ++i)
        if (const auto committed = commit(*files[i]); !committed) {
            while (i-- > 0)
                (void)FileManager::removeFile(files[i]->target());
            return committed.error();
        }
    return parts;
}

Result<Part> join(const QStringList& sources, const QString& path, const Progress& progress, bool* encoded) {
    if (isTaken(path))
        return existsError(path);
    const Labels labels(sources.constFirst());
    const TemporaryAudio temporary;
    const auto row = encodedInARow(sources);
    if (encoded)
        *encoded = row == nullptr;
    Part part{path, 0, labels.tags()};
    if (row) {
        if (const auto copied = row->copy(temporary.path(), 0, row->frames(), progress); !copied)
            return temporary.named(copied.error(), path);
        part.seconds = double(row->frames()) / row->sampleRate();
    } else {
        const auto seconds = encode(sources, temporary.path(), progress);
        if (!seconds)
            return temporary.named(seconds.error(), path);
        part.seconds = *seconds;
    }
    ReplacementFile file(path, ReplacementFile::Existing::Kept);
    if (const auto labelled = labels.apply(part.tags, temporary.path(), file); !labelled)
        return labelled.error();
    if (const auto committed = commit(file); !committed)
        return committed.error();
    return part;
}

} // namespace RecordingParts

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Disc/linux/ImageDrive.h"

#include "Platform/Desktop/Alerts.h"
#include "Platform/Desktop/Panels.h"
#include "Platform/Disc/linux/ImageWriter.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/Translations.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace Platform {

ImagePaths::ImagePaths(const QString& named) {
    QString base = QFileInfo(named).absoluteFilePath();
    for (const QString& ending : {u".cue"_s, u".bin"_s})
        if (base.endsWith(ending, Qt::CaseInsensitive) && QFileInfo(base).fileName().size() > ending.size()) {
            base.chop(ending.size());
            break;
        }
    cue = base + u".cue"_s;
    bin = base + u".bin"_s;
}

QString ImagePaths::problem() const {
    const QFileInfo info(cue);
    if (!QFileInfo(info.path()).isDir())
        return QCoreApplication::translate("Disc", "%1: no such folder").arg(info.path());
    for (const QString& path : {cue, bin}) {
        const QFileInfo file(path);
        if (file.exists() || file.isSymLink())
            return QCoreApplication::translate("Disc",
                                               "%1: exists already, and an image replaces no file; choose another name")
                .arg(path);
    }
    const QString name = QFileInfo(bin).fileName();
    for (const QChar c : name)
        if (c == u'"' || c.category() == QChar::Other_Control)
            return QCoreApplication::translate(
                       "Disc",
                       "%1: a cue sheet cannot name a file with quotation marks or line ends; choose another name")
                .arg(bin);
    return {};
}

QString playingTime(std::int64_t sectors) {
    const auto seconds = (sectors + CDFormat::kSectorsPerSecond - 1) / CDFormat::kSectorsPerSecond;
    return u"%1:%2"_s.arg(seconds / 60).arg(seconds % 60, 2, 10, QChar(u'0'));
}

QString layoutProblem(const std::optional<DRLayout>& layout, std::int64_t freeSectors, std::int64_t leadingGap) {
    if (!layout)
        return QCoreApplication::translate("Disc", "a file cannot be read: nothing was burned");
    if (layout->empty())
        return QCoreApplication::translate("Disc", "there is nothing to burn: no file is ticked");
    if (layout->size() > CDFormat::kMostTracks)
        return QCoreApplication::translate("Disc", "an audio CD holds at most %1 tracks, these are %2")
            .arg(CDFormat::kMostTracks)
            .arg(layout->size());
    std::int64_t needed = -leadingGap;
    for (const auto& track : *layout)
        needed += track->properties().preGapLength + track->sectors();
    if (needed > freeSectors)
        return QCoreApplication::translate("Disc", "there is not enough room on the disc: the tracks need %1 minutes "
                                                   "(%2 sectors), %3 minutes (%4 sectors) are free")
            .arg(playingTime(needed))
            .arg(Translations::number(needed))
            .arg(playingTime(freeSectors))
            .arg(Translations::number(freeSectors));
    return {};
}

void ImageBurn::fail(const QString& reason) {
    status_.set({DRStatusStatePreparing, 0, {}});
    status_.report(shared_from_this(), {DRStatusStateFailed, 0, reason});
}

/// Asks until a writable path is given. @return false when the user cancelled
bool ImageBurn::askForPath() {
    Panels* panels = services().panels;
    if (!panels)
        return true; // no window: the empty path is refused with its reason
    const QString music = QDir::homePath() + u"/Music"_s;
    const QString folder = QFileInfo(music).isDir() ? music : QDir::homePath();
    QString start = folder + u"/Audio CD.cue"_s;
    for (int n = 2; !ImagePaths(start).problem().isEmpty() && n < 1000; ++n)
        start = folder + u"/Audio CD %1.cue"_s.arg(n);
    for (;;) {
        const auto chosen = panels->saveFile(nullptr, QCoreApplication::translate("Disc", "Write Disc Image"), start,
                                             Panels::Existing::Unasked);
        if (!chosen)
            return false;
        const QString problem = ImagePaths(*chosen).problem();
        if (problem.isEmpty()) {
            path_ = *chosen;
            return true;
        }
        start = *chosen;
        if (services().alerts)
            services().alerts->runModal(QCoreApplication::translate("Disc", "The image cannot be written there."),
                                        problem, {Alerts::okLabel()});
    }
}

void ImageBurn::writeLayout(const std::optional<DRLayout>& layout) {
    if (status_.shown().state != DRStatusStateNone)
        return;
    // The whole file counts, including the first pre-gap.
    if (const QString problem = layoutProblem(layout, CDFormat::kSectorsOf80Minutes, 0); !problem.isEmpty())
        return fail(problem);
    if (path_.isEmpty() && !askForPath()) {
        declined_ = true;
        return;
    }
    if (path_.isEmpty())
        return fail(QCoreApplication::translate("Disc", "no path was given for the disc image"));
    const ImagePaths paths(path_);
    if (const QString problem = paths.problem(); !problem.isEmpty())
        return fail(problem);

    status_.set({DRStatusStatePreparing, -1, {}});
    const auto self = shared_from_this();
    jobs_.start(
        [self, paths, layout = *layout] {
            ImageWriter writer(layout, paths.cue, paths.bin, self->aborted_);
            self->status_.report(self, {DRStatusStateTrackWrite, 0, {}});
            const QString problem = writer.write([&](double share, bool closing) {
                self->status_.report(self, {closing ? DRStatusStateSessionClose : DRStatusStateTrackWrite, share, {}});
            });
            if (problem.isEmpty())
                self->status_.report(self, {DRStatusStateDone, 1, {}});
            else
                self->status_.report(self, {DRStatusStateFailed, writer.share(), problem});
        },
        [self] { self->abort(); });
}

} // namespace Platform

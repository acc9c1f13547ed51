// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>
#include <QThreadPool>

#include <atomic>

/// How long the disks can take what is being recorded. Main thread; the disks are asked on a worker, since a folder may
/// be on a slow share.
class RecordRoom : public QObject {
    Q_OBJECT
public:
    /// A recording under way.
    struct Recording {
        QString temporaryFolder; ///< of the raw files and the mix
        QString recordFolder;    ///< of the finished recording
        int sources = 1;         ///< two are mixed at the end, and the mix needs room as well
        double seconds = 0;      ///< of the file at hand
    };
    struct Room {
        double seconds = 0; ///< until a disk is full
        QString folder;     ///< on that disk
        qint64 bytes = 0;   ///< free in the temporary folder
    };

    explicit RecordRoom(QObject* parent = nullptr);
    ~RecordRoom() override;

    /// Asks the disks and tells the answer with measured(). Nothing happens while an earlier question is open.
    void look(const Recording& recording);
    /// The same at once. Any thread; blocks.
    [[nodiscard]] static Room measure(const Recording& recording);
    /// "about 25 minutes"; rounded down.
    [[nodiscard]] static QString words(double seconds);

Q_SIGNALS:
    void measured(const RecordRoom::Room& room);

private:
    std::atomic<bool> asking_{false};
    QThreadPool worker_; ///< destroyed first: waits for the question at hand
};

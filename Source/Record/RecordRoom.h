// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>
#include <QThreadPool>

#include <atomic>

/// Computes how long the recording can continue until a disk is full. Main thread. A worker queries the disks, because
/// a folder may be on a slow share.
class RecordRoom : public QObject {
    Q_OBJECT
public:
    /// The running recording.
    struct Recording {
        QString temporaryFolder;  ///< of the raw files and the mix
        QString recordFolder;     ///< of the finished recording
        int sources = 1;          ///< two are mixed at the end, and the mix needs space, too
        double seconds = 0;       ///< of the current file
        bool keepsTracks = false; ///< of two sources, each is also kept as a file of its own
    };
    struct Room {
        double seconds = 0; ///< until a disk is full
        QString folder;     ///< the folder on that disk
        qint64 bytes = 0;   ///< free in the temporary folder
    };

    explicit RecordRoom(QObject* parent = nullptr);
    ~RecordRoom() override;

    /// Queries the disks; measured() reports the result. Does nothing while an earlier query runs.
    void look(const Recording& recording);
    /// Queries the disks and returns the result. Any thread; blocks.
    [[nodiscard]] static Room measure(const Recording& recording);
    /// "about 25 minutes"; rounded down.
    [[nodiscard]] static QString words(double seconds);
    /// "About 3 h 10 min left on this disk"; rounded down.
    [[nodiscard]] static QString sentence(double seconds);

Q_SIGNALS:
    void measured(const RecordRoom::Room& room);

private:
    std::atomic<bool> asking_{false};
    QThreadPool worker_; ///< destroyed first: waits for the running query
};

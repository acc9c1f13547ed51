// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFileSystemWatcher>
#include <QHash>
#include <QObject>
#include <QSet>
#include <QThreadPool>

/// Knows which files of the library are gone from the disk, without ever making the window wait for a disk: a path is
/// looked at by a worker when it is first asked for, and again when its folder changes. Main thread.
class MissingFiles : public QObject {
    Q_OBJECT
public:
    explicit MissingFiles(QObject* parent = nullptr);
    ~MissingFiles() override;

    /// What is known so far; a path that nobody has looked at yet counts as present.
    [[nodiscard]] bool isMissing(const QString& path);
    /// Forgets the answers for one path, or for all of them: they are looked at anew when they are asked for next.
    void forget(const QString& path);
    void forgetAll();

Q_SIGNALS:
    /// Some answers changed.
    void changed();

private:
    void lookAt(const QString& path);
    void forgetFolder(const QString& folder);

    QHash<QString, bool> missing_;
    QSet<QString> stale_; ///< the last answer stands until the worker has a new one
    QStringList wanted_;
    bool askScheduled_ = false;
    QFileSystemWatcher folders_;
    QThreadPool worker_;
};

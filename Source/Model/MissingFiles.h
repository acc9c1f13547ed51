// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFileSystemWatcher>
#include <QHash>
#include <QObject>
#include <QSet>
#include <QThreadPool>

/// Knows which files of the library do not exist any more, without making the window wait for a disk: a worker checks a
/// path when it is first asked for, and again when its folder changes. Main thread.
class MissingFiles : public QObject {
    Q_OBJECT
public:
    explicit MissingFiles(QObject* parent = nullptr);
    ~MissingFiles() override;

    /// The last known state; a path that was not checked yet counts as present.
    [[nodiscard]] bool isMissing(const QString& path);
    /// Forgets the state of one path, or of all paths: they are checked again when they are next asked for.
    void forget(const QString& path);
    void forgetAll();

Q_SIGNALS:
    /// The state of some paths changed.
    void changed();

private:
    void lookAt(const QString& path);
    void forgetFolder(const QString& folder);

    QHash<QString, bool> missing_;
    QSet<QString> stale_; ///< the last answer is used until the worker has a new one
    QStringList wanted_;
    bool askScheduled_ = false;
    QFileSystemWatcher folders_;
    QThreadPool worker_;
};

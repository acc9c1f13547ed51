// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>
#include <QUrl>

namespace Platform {

/// The desktop around the program. A recording that a crash left incomplete is repaired before it is handed to another
/// program. Main thread, except noteFileSystemChanged().
class Workspace : public QObject {
    Q_OBJECT
public:
    /// Shows the file selected in the file manager, else opens its folder.
    virtual bool selectFile(const QString& path) = 0;
    /// Opens the file with the named application; "iTunes" stands for the desktop's default player of the file's type.
    virtual bool openFile(const QString& path, const QString& application) = 0;
    virtual bool openUrl(const QUrl& url) = 0;
    /// Signals that a file changed. Any thread but the audio thread; only queues a signal.
    void noteFileSystemChanged(const QString& path) { Q_EMIT fileSystemChanged(path); }

Q_SIGNALS:
    void fileSystemChanged(const QString& path);
};

/// Calls noteFileSystemChanged() of the process's workspace, if there is one.
void noteFileSystemChanged(const QString& path);

} // namespace Platform

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>
#include <QUrl>

namespace Platform {

/// The desktop around the program. A recording that a crash left torn is whole when it is handed on. Main thread, but
/// for noteFileSystemChanged().
class Workspace : public QObject {
    Q_OBJECT
public:
    /// Shows the file selected in the file manager, else opens its folder.
    virtual bool selectFile(const QString& path) = 0;
    /// Opens the file with the named application; "iTunes" stands for the desktop's default player of the file's type.
    virtual bool openFile(const QString& path, const QString& application) = 0;
    virtual bool openUrl(const QUrl& url) = 0;
    /// Says that a file changed. From any thread but the audio thread; costs a queued signal, nothing more.
    void noteFileSystemChanged(const QString& path) { Q_EMIT fileSystemChanged(path); }

Q_SIGNALS:
    void fileSystemChanged(const QString& path);
};

/// Workspace::noteFileSystemChanged() of the process's workspace, where there is one.
void noteFileSystemChanged(const QString& path);

} // namespace Platform

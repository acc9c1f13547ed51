// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>
#include <QThreadPool>
#include <QUrl>

/// The cover of one audio file at a time as a picture file, which other programs can open. It lies in the user's cache
/// and goes with this object. The audio file is read on a worker. Main thread.
class CoverFile : public QObject {
    Q_OBJECT
public:
    /// @param folder for the picture alone; it is emptied
    explicit CoverFile(const QString& folder, QObject* parent = nullptr);
    ~CoverFile() override;

    /// Takes the cover of another audio file, or the new one of the same file when it was written since. An empty path
    /// takes none.
    void setAudioFile(const QString& path);
    /// Empty until the cover is read, and for a file without one of its own.
    [[nodiscard]] QUrl url() const { return url_; }

Q_SIGNALS:
    void urlChanged();

private:
    void setPicture(const QString& path);

    QString folder_;
    QString source_; ///< path, time and size of the audio file
    QUrl url_;
    QThreadPool worker_; ///< last member: its work is over before the rest goes
};

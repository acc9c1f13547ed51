// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>
#include <QThreadPool>
#include <QUrl>

/// Extracts the cover of one audio file at a time into a picture file that other programs can open. The picture is
/// removed with this object. The audio file is read on a worker. Main thread.
class CoverFile : public QObject {
    Q_OBJECT
public:
    /// @param folder used for the picture only; its content is deleted
    explicit CoverFile(const QString& folder, QObject* parent = nullptr);
    ~CoverFile() override;

    /// Extracts the cover of an audio file. Does nothing if the same file was not modified since the last call. An
    /// empty path removes the picture.
    void setAudioFile(const QString& path);
    /// Empty until the cover is read, and for a file without a cover of its own.
    [[nodiscard]] QUrl url() const { return url_; }

Q_SIGNALS:
    void urlChanged();

private:
    void setPicture(const QString& path);

    QString folder_;
    QString source_; ///< path, time and size of the audio file
    QUrl url_;
    QThreadPool worker_; ///< last member: its work ends before the other members are destroyed
};

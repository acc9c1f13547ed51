// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QObject>

#include <atomic>
#include <memory>
#include <thread>

/// Reads the outline of an audio file on a thread of its own. Main thread; one file at a time.
class AudioOutline : public QObject {
    Q_OBJECT
public:
    explicit AudioOutline(QObject* parent = nullptr);
    /// Stops the thread and waits for it: some milliseconds.
    ~AudioOutline() override;

    /// Clears the previous values, and reads those of @p path.
    void load(const QString& path);
    /// Stops reading; no further signals. The values so far are kept.
    void stop();
    /// Ten values per second, -1 to 1: those read so far; none for an unreadable file.
    [[nodiscard]] const QList<float>& values() const { return values_; }
    /// Why the file cannot be read, for the user; empty when it can.
    [[nodiscard]] QString problem() const { return problem_; }

Q_SIGNALS:
    /// New values have been read; they start at the number @p first.
    void grew(qsizetype first);
    /// All values are read, or the file cannot be read.
    void loaded();

private:
    void take(qsizetype first, const QList<float>& values);

    QList<float> values_;
    QString problem_;
    std::shared_ptr<std::atomic<bool>> cancelled_;
    std::thread worker_;
};

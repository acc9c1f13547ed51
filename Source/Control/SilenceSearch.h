// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/Control/SilenceMap.h"

#include <QObject>

#include <atomic>
#include <memory>
#include <thread>

/// Reads the silences of a recording on a thread of its own. Main thread; one file at a time.
class SilenceSearch : public QObject {
    Q_OBJECT
public:
    explicit SilenceSearch(QObject* parent = nullptr);
    /// Stops the thread and waits for it: some milliseconds.
    ~SilenceSearch() override;

    void load(const QString& path);
    /// Stops reading; no further signals.
    void stop();
    /// Null until finished(), and when the recording cannot be split.
    [[nodiscard]] const std::shared_ptr<const SilenceMap>& map() const { return map_; }
    /// Why it cannot be split, for the user; empty when it can.
    [[nodiscard]] QString problem() const { return problem_; }

Q_SIGNALS:
    /// A value from 0 to 1.
    void progressed(double share);
    void finished();

private:
    std::shared_ptr<const SilenceMap> map_;
    QString problem_;
    std::shared_ptr<std::atomic<bool>> cancelled_;
    std::thread worker_;
};

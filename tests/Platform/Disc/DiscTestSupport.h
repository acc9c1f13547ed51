// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Disc/linux/LinuxDiscRecording.h"
#include "Platform/Media/linux/MediaFilesLinux.h"
#include "tests/support/FileContent.h"
#include "tests/support/RunTool.h"
#include "tests/support/WaitFor.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <vector>

namespace DiscTest {

using FileContent::get;

/// Interleaved 16-bit samples.
inline std::vector<std::int16_t> samplesOf(const QByteArray& bytes) {
    std::vector<std::int16_t> samples(std::size_t(bytes.size() / 2));
    std::memcpy(samples.data(), bytes.data(), samples.size() * 2);
    return samples;
}

inline void sox(const QStringList& arguments) {
    const auto ran = runTool(QStringLiteral("sox"), QStringList{QStringLiteral("-R")} + arguments);
    ASSERT_EQ(ran.status, 0) << ran.errors.data();
}

/// Root mean square of the differences, in 16-bit steps.
inline double difference(const std::vector<std::int16_t>& a, const std::vector<std::int16_t>& b, std::size_t count) {
    double sum = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const double d = double(a[i]) - double(b[i]);
        sum += d * d;
    }
    return std::sqrt(sum / double(count));
}

/// No real drives: tests must not depend on the machine.
class NoDrives final : public Platform::DriveSource {
public:
    std::vector<Platform::FoundDrive> drives() override { return {}; }
    int openError(const QString&) override { return 0; }
    void setQuiet(const QString&, bool) override {}
};

inline std::unique_ptr<Platform::DriveSource> noDrives(std::function<void()>) {
    return std::make_unique<NoDrives>();
}

/// Records every status that a burn reports.
class BurnWatch {
public:
    BurnWatch(Platform::DRNotificationCenter& center, const std::shared_ptr<Platform::DRBurn>& burn) : center_(center) {
        center_.addObserver(
            this, Platform::DRBurnStatusChangedNotification, burn,
            [this, burn = burn.get()](const Platform::DRNotification&) { statuses.push_back(burn->status()); });
    }
    ~BurnWatch() { center_.removeObserver(this); }
    BurnWatch(const BurnWatch&) = delete;
    BurnWatch& operator=(const BurnWatch&) = delete;

    [[nodiscard]] bool ended() const {
        return !statuses.empty() && (statuses.back().state == Platform::DRStatusStateDone ||
                                     statuses.back().state == Platform::DRStatusStateFailed);
    }
    std::vector<Platform::DRStatus> statuses;

private:
    Platform::DRNotificationCenter& center_;
};

} // namespace DiscTest

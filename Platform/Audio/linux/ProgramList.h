// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/PlayingProgram.h"
#include "Platform/Audio/linux/PipeWireConnection.h"
#include "Platform/Audio/linux/StreamWatch.h"

#include <functional>
#include <memory>
#include <mutex>
#include <vector>

namespace Platform {

/// The programs that play on the process's sound server, kept current by the connection's thread.
class ProgramList final : private PipeWireConnection::Client {
public:
    /// @p changed is called on the connection's thread after programs() has changed. Main thread, without a loop lock.
    explicit ProgramList(std::function<void()> changed);
    ~ProgramList() override;
    ProgramList(const ProgramList&) = delete;
    ProgramList& operator=(const ProgramList&) = delete;

    /// One entry for each program, sorted by name. Any thread.
    [[nodiscard]] std::vector<PlayingProgram> programs() const;

private:
    void serverConnected() override;
    void serverLost() override;
    void update();

    const std::function<void()> changed_;
    std::shared_ptr<PipeWireConnection> connection_;
    std::unique_ptr<StreamWatch> watch_; ///< on the connection's thread
    mutable std::mutex mutex_;           ///< guards programs_
    std::vector<PlayingProgram> programs_;
};

} // namespace Platform

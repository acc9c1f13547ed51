// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Audio/linux/ProgramList.h"

#include <algorithm>
#include <utility>

namespace Platform {

ProgramList::ProgramList(std::function<void()> changed)
    : changed_(std::move(changed)), connection_(PipeWireConnection::shared()) {
    connection_->add(*this);
}

ProgramList::~ProgramList() {
    connection_->remove(*this);
    const PipeWire::LoopLock lock(connection_->threadLoop());
    watch_.reset();
}

std::vector<PlayingProgram> ProgramList::programs() const {
    const std::scoped_lock lock(mutex_);
    return programs_;
}

void ProgramList::serverConnected() {
    watch_ = std::make_unique<StreamWatch>(connection_->core(), [this] { update(); });
}

void ProgramList::serverLost() {
    watch_.reset();
    update();
}

void ProgramList::update() {
    std::vector<PlayingProgram> list;
    const auto streams = watch_ ? watch_->streams() : std::map<std::uint32_t, StreamWatch::Stream>();
    for (const auto& [node, stream] : streams) {
        if (!stream.known || stream.isEffect)
            continue;
        PlayingProgram program{.id = QString::fromStdString(stream.program.id()),
                               .name = QString::fromStdString(stream.program.title()),
                               .iconName = QString::fromStdString(stream.iconName),
                               .isPlaying = stream.running,
                               .latency = stream.latency};
        if (program.id.isEmpty())
            continue;
        for (const auto* part :
             {&stream.program.applicationId, &stream.program.binary, &stream.program.name, &stream.program.nodeName})
            if (!part->empty())
                program.parts.append(QString::fromStdString(*part));
        const auto same = std::ranges::find(list, program.id, &PlayingProgram::id);
        if (same == list.end()) {
            list.push_back(std::move(program));
            continue;
        }
        same->isPlaying = same->isPlaying || program.isPlaying;
        same->latency = std::max(same->latency, program.latency);
        same->parts.append(program.parts);
        same->parts.removeDuplicates();
        if (same->iconName.isEmpty())
            same->iconName = program.iconName;
    }
    std::ranges::sort(list, [](const PlayingProgram& one, const PlayingProgram& other) {
        const int order = one.name.compare(other.name, Qt::CaseInsensitive);
        return order != 0 ? order < 0 : one.id < other.id;
    });
    {
        const std::scoped_lock lock(mutex_);
        if (list == programs_)
            return;
        programs_ = std::move(list);
    }
    changed_();
}

} // namespace Platform

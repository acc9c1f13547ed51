// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Control/SplitPlan.h"

#include <algorithm>
#include <cmath>

void SplitPlan::setMap(std::shared_ptr<const SilenceMap> map) {
    map_ = std::move(map);
    added_.clear();
    removed_.clear();
    titles_.clear();
    update();
}

void SplitPlan::setRule(const SilenceFinder::Rule& rule) {
    rule_ = rule;
    update();
}

std::int64_t SplitPlan::shortest() const {
    return std::max<std::int64_t>(2048, std::llround(kShortestPart * sampleRate()));
}

const SilenceFinder::Silence* SplitPlan::silenceAt(std::int64_t frame) const {
    const auto behind = std::upper_bound(found_.silences.begin(), found_.silences.end(), frame,
                                         [](std::int64_t at, const auto& silence) { return at < silence.first; });
    if (behind == found_.silences.begin())
        return nullptr;
    const auto& silence = *(behind - 1);
    return frame < silence.end ? &silence : nullptr;
}

void SplitPlan::update() {
    found_ = map_ ? map_->find(rule_) : SilenceFinder::Found();
    cuts_.clear();
    if (!map_)
        return;
    std::vector<const SilenceFinder::Silence*> without;
    for (const std::int64_t frame : removed_)
        without.push_back(silenceAt(frame));
    for (const std::int64_t cut : SilenceFinder::cuts(found_)) {
        const bool isRemoved = std::find(without.begin(), without.end(), silenceAt(cut)) != without.end();
        const auto next = std::lower_bound(added_.begin(), added_.end(), cut);
        const bool isClose = (next != added_.end() && *next - cut < shortest()) ||
                             (next != added_.begin() && cut - *(next - 1) < shortest());
        if (!isRemoved && !isClose && cut >= shortest() && frames() - cut >= shortest())
            cuts_.push_back(cut);
    }
    cuts_.insert(cuts_.end(), added_.begin(), added_.end());
    std::sort(cuts_.begin(), cuts_.end());
}

int SplitPlan::add(std::int64_t frame) {
    if (!map_ || frame < shortest() || frames() - frame < shortest())
        return -1;
    for (const std::int64_t cut : cuts_)
        if (std::abs(cut - frame) < shortest())
            return -1;
    added_.insert(std::lower_bound(added_.begin(), added_.end(), frame), frame);
    update();
    return int(std::lower_bound(cuts_.begin(), cuts_.end(), frame) - cuts_.begin());
}

void SplitPlan::move(int index, std::int64_t frame) {
    if (index < 0 || index >= int(cuts_.size()))
        return;
    const auto at = std::size_t(index);
    const std::int64_t old = cuts_[at];
    const std::int64_t least = (at > 0 ? cuts_[at - 1] : 0) + shortest();
    const std::int64_t most = (at + 1 < cuts_.size() ? cuts_[at + 1] : frames()) - shortest();
    if (most < least)
        return;
    frame = std::clamp(frame, least, most);
    if (frame == old)
        return;
    if (const auto title = titleAt(old); title != titles_.end()) {
        const QString text = title->second;
        titles_.erase(title);
        titles_.insert_or_assign(frame, text);
    }
    if (const auto own = std::find(added_.begin(), added_.end(), old); own != added_.end())
        added_.erase(own);
    else
        removed_.push_back(old);
    added_.insert(std::lower_bound(added_.begin(), added_.end(), frame), frame);
    update();
}

void SplitPlan::remove(int index) {
    if (index < 0 || index >= int(cuts_.size()))
        return;
    const std::int64_t old = cuts_[std::size_t(index)];
    if (const auto own = std::find(added_.begin(), added_.end(), old); own != added_.end())
        added_.erase(own);
    // Also behind a removed cut that was added: the silence there must not give another one.
    if (silenceAt(old))
        removed_.push_back(old);
    update();
}

void SplitPlan::reset() {
    added_.clear();
    removed_.clear();
    update();
}

std::int64_t SplitPlan::partBegin(int part) const {
    return part <= 0 ? 0 : cuts_[std::size_t(part) - 1];
}

std::int64_t SplitPlan::partEnd(int part) const {
    return std::size_t(part) < cuts_.size() ? cuts_[std::size_t(part)] : frames();
}

std::map<std::int64_t, QString>::const_iterator SplitPlan::titleAt(std::int64_t begin) const {
    if (const auto exact = titles_.find(begin); exact != titles_.end())
        return exact;
    // Another level moves the middle of a silence a little. Its title stays with it.
    const SilenceFinder::Silence* silence = begin > 0 ? silenceAt(begin) : nullptr;
    if (!silence)
        return titles_.end();
    const auto inside = titles_.lower_bound(silence->first);
    return inside != titles_.end() && inside->first > 0 && inside->first < silence->end ? inside : titles_.end();
}

QString SplitPlan::title(int part) const {
    const auto found = titleAt(partBegin(part));
    return found == titles_.end() ? QString() : found->second;
}

void SplitPlan::setTitle(int part, const QString& title) {
    const std::int64_t begin = partBegin(part);
    if (const auto old = titleAt(begin); old != titles_.end())
        titles_.erase(old);
    if (!title.isEmpty())
        titles_.insert_or_assign(begin, title);
}

QStringList SplitPlan::titles() const {
    QStringList all;
    for (int part = 0; part < partCount(); ++part)
        all.append(title(part));
    return all;
}

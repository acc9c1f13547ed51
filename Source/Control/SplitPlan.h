// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/Control/SilenceMap.h"

#include <cstdint>
#include <map>
#include <memory>
#include <vector>

#include <QString>
#include <QStringList>

/// Where a recording is to be cut, and the titles of its parts: the cuts of the silences that a rule finds, with the
/// changes that the user made. Changes and titles are kept while the rule changes. One thread.
class SplitPlan {
public:
    /// Shortest part in seconds: EncodedAudio::copy() needs 2048 frames.
    static constexpr double kShortestPart = 0.05;

    /// Starts over with another recording, or with none.
    void setMap(std::shared_ptr<const SilenceMap> map);
    [[nodiscard]] bool isReady() const { return map_ != nullptr; }
    void setRule(const SilenceFinder::Rule& rule);
    [[nodiscard]] const SilenceFinder::Rule& rule() const { return rule_; }

    /// The silences of the rule.
    [[nodiscard]] const SilenceFinder::Found& found() const { return found_; }
    /// Frames, in ascending order.
    [[nodiscard]] const std::vector<std::int64_t>& cuts() const { return cuts_; }
    [[nodiscard]] std::int64_t frames() const { return map_ ? map_->frames() : 0; }
    [[nodiscard]] double sampleRate() const { return map_ ? map_->sampleRate() : 0; }

    /// Adds a cut. @return its index, or -1 when it would make a part shorter than kShortestPart
    int add(std::int64_t frame);
    /// Moves a cut, at most up to kShortestPart from its neighbours; its index stays.
    void move(int index, std::int64_t frame);
    void remove(int index);
    /// Whether cuts were added, moved or removed.
    [[nodiscard]] bool isChanged() const { return !added_.empty() || !removed_.empty(); }
    /// Forgets those changes. Titles are kept.
    void reset();

    // ---- the parts: one more than cuts
    [[nodiscard]] int partCount() const { return isReady() ? int(cuts_.size()) + 1 : 0; }
    [[nodiscard]] std::int64_t partBegin(int part) const;
    [[nodiscard]] std::int64_t partEnd(int part) const;
    /// As typed; empty: the part gets the recording's title with its number.
    [[nodiscard]] QString title(int part) const;
    void setTitle(int part, const QString& title);
    [[nodiscard]] QStringList titles() const;

private:
    void update();
    [[nodiscard]] std::int64_t shortest() const;
    [[nodiscard]] const SilenceFinder::Silence* silenceAt(std::int64_t frame) const;
    [[nodiscard]] std::map<std::int64_t, QString>::const_iterator titleAt(std::int64_t begin) const;

    std::shared_ptr<const SilenceMap> map_;
    SilenceFinder::Rule rule_;
    SilenceFinder::Found found_;
    std::vector<std::int64_t> added_;        ///< in order
    std::vector<std::int64_t> removed_;      ///< a silence that contains one of these frames gives no cut
    std::vector<std::int64_t> cuts_;         ///< in order
    std::map<std::int64_t, QString> titles_; ///< by the begin of the part
};

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Which links the driver needs, and how it maintains them.
#include "Platform/Audio/linux/RegistryPath.h"
#include "Tools/CaptureDriver/Driver.h"

#include <algorithm>

using namespace Platform;
using namespace Platform::PipeWire;
using namespace std::chrono_literals;

namespace {
/// A link or mixer that the server refuses, or that another program removes at once, is only retried after this time:
/// otherwise the driver and the server would do nothing else.
constexpr auto kRetryAfter = 1s;
} // namespace

std::uint32_t Driver::nodeNamed(const std::string& name) const {
    for (const auto& [id, node] : nodes_)
        if (node.name == name)
            return id;
    return SPA_ID_INVALID;
}

std::uint32_t Driver::target() const {
    if (steering_ == kPathKey)
        return SPA_ID_INVALID;
    auto id = steering_.empty() ? SPA_ID_INVALID : nodeNamed(RegistryPath::nodeNameOf(steering_));
    // The selected output was removed: its streams have moved to the default one.
    if (id == SPA_ID_INVALID && !defaultOutput_.empty())
        id = nodeNamed(defaultOutput_);
    return id == ownId_ ? SPA_ID_INVALID : id;
}

/// The node's ports of one kind, in channel order.
std::vector<std::uint32_t> Driver::portsOf(std::uint32_t node, PortKind kind) const {
    std::map<std::uint32_t, std::uint32_t> byNumber;
    for (const auto& [id, port] : ports_) {
        const auto itsKind = !port.output ? PortKind::Input : port.monitor ? PortKind::Monitor : PortKind::Output;
        if (port.node == node && itsKind == kind)
            byNumber[port.number] = id;
    }
    std::vector<std::uint32_t> list;
    list.reserve(byNumber.size());
    for (const auto& [number, id] : byNumber)
        list.push_back(id);
    return list;
}

Driver::Wiring Driver::wiring() {
    const auto node = target();
    if (node == SPA_ID_INVALID || ownId_ == SPA_ID_INVALID)
        return {};
    const auto from = portsOf(node, PortKind::Monitor);
    // One or two channels are linked directly, bit for bit. More channels need a mixer.
    return from.size() > 2 ? mixedLinks(from) : Wiring{directLinks(from), nullptr, true};
}

/// Left to left, right to right; a single channel goes to both sides; other channels by their order.
std::set<Driver::Ports> Driver::directLinks(const std::vector<std::uint32_t>& from) const {
    std::set<Ports> pairs;
    for (const auto to : portsOf(ownId_, PortKind::Input)) {
        const auto& channel = ports_.at(to).channel;
        bool found = false;
        for (const auto each : from) {
            const auto& name = ports_.at(each).channel;
            if (name == channel || name == "MONO") {
                pairs.insert({each, to});
                found = true;
            }
        }
        const std::size_t index = channel == "FR" ? 1 : 0;
        if (!found && from.size() > index && ports_.at(from[0]).channel != "FL" && ports_.at(from[0]).channel != "FR")
            pairs.insert({from[index], to});
    }
    return pairs;
}

/// Each channel into the mixer, and the mixer's two outputs to the source.
Driver::Wiring Driver::mixedLinks(const std::vector<std::uint32_t>& from) {
    std::vector<std::string> channels;
    channels.reserve(from.size());
    for (const auto each : from)
        channels.push_back(ports_.at(each).channel);
    Wiring result;
    result.mixer = mixerFor(ports_.at(from[0]).node, channels);
    const auto node = result.mixer ? result.mixer->node() : SPA_ID_INVALID;
    const auto into = portsOf(node, PortKind::Input);
    const auto outOf = portsOf(node, PortKind::Output);
    const auto to = portsOf(ownId_, PortKind::Input);
    result.complete = node != SPA_ID_INVALID && into.size() == from.size() && outOf.size() == 2 && to.size() == 2;
    if (!result.complete)
        return result;
    for (std::size_t i = 0; i < from.size(); ++i)
        result.links.insert({from[i], into[i]});
    for (std::size_t i = 0; i < to.size(); ++i)
        result.links.insert({outOf[i], to[i]});
    return result;
}

/// Null when none can be created.
const Mixer* Driver::mixerFor(std::uint32_t output, const std::vector<std::string>& channels) {
    if (std::erase_if(mixers_, [](const auto& each) { return each->broken(); }) > 0)
        mixerFailedAt_ = SteadyClock::now();
    for (const auto& each : mixers_)
        if (each->output() == output && each->channels() == channels)
            return each.get();
    if (SteadyClock::now() - mixerFailedAt_ < kRetryAfter) {
        retryLater();
        return nullptr;
    }
    mixers_.push_back(std::make_unique<Mixer>(context_.get(), core_.get(), output, channels, [this] { lookAgain(); }));
    return mixers_.back().get();
}

/// A link exists once, whoever created it. The server refuses a second one between the same ports.
bool Driver::isLinkedByOthers(Ports ports) const {
    return std::ranges::any_of(serverLinks_, [ports](const auto& each) { return each.second == ports; });
}

void Driver::connect(Ports ports) {
    PropertiesPtr properties(pw_properties_new(nullptr, nullptr));
    pw_properties_setf(properties.get(), PW_KEY_LINK_OUTPUT_NODE, "%u", ports_.at(ports.first).node);
    pw_properties_setf(properties.get(), PW_KEY_LINK_OUTPUT_PORT, "%u", ports.first);
    pw_properties_setf(properties.get(), PW_KEY_LINK_INPUT_NODE, "%u", ports_.at(ports.second).node);
    pw_properties_setf(properties.get(), PW_KEY_LINK_INPUT_PORT, "%u", ports.second);
    // While nothing records from the driver, an idle output may be suspended.
    pw_properties_set(properties.get(), PW_KEY_LINK_PASSIVE, "true");
    pw_properties_set(properties.get(), "object.linger", "false");
    auto& link = links_[ports];
    link.driver = this;
    link.madeAt = SteadyClock::now();
    link.proxy.reset(static_cast<pw_proxy*>(pw_core_create_object(core_.get(), "link-factory", PW_TYPE_INTERFACE_Link,
                                                                  PW_VERSION_LINK, &properties->dict, 0)));
    if (!link.proxy) {
        link.gone = link.refused = true;
        lookAgain();
        return;
    }
    static constexpr pw_proxy_events proxyEvents = {
        .version = PW_VERSION_PROXY_EVENTS,
        .removed =
            [](void* data) {
                auto* self = static_cast<Link*>(data);
                self->gone = true;
                self->driver->lookAgain();
            },
        .error =
            [](void* data, int, int, const char*) {
                auto* self = static_cast<Link*>(data);
                self->gone = self->refused = true;
                self->driver->lookAgain();
            },
    };
    pw_proxy_add_listener(link.proxy.get(), link.proxyListener.get(), &proxyEvents, &link);
    static constexpr pw_link_events linkEvents = {
        .version = PW_VERSION_LINK_EVENTS,
        .info =
            [](void* data, const pw_link_info* info) {
                auto* self = static_cast<Link*>(data);
                const bool established = info->state >= PW_LINK_STATE_PAUSED;
                if (established != self->established)
                    self->driver->lookAgain();
                self->established = established;
            },
    };
    pw_link_add_listener(reinterpret_cast<pw_link*>(link.proxy.get()), link.infoListener.get(), &linkEvents, &link);
}

/// Links that the server removed are made again at once, unless they existed only for a short time: another program may
/// be removing them.
void Driver::forgetLostLinks() {
    const auto now = SteadyClock::now();
    for (const auto& [ports, link] : links_)
        if (link.gone && (link.refused || now - link.madeAt < kRetryAfter))
            refused_[ports] = now;
    std::erase_if(links_, [](const auto& each) { return each.second.gone; });
    std::erase_if(refused_, [now](const auto& each) { return now - each.second >= kRetryAfter; });
}

void Driver::retryLater() {
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(kRetryAfter);
    // Slightly later than the time that is waited for.
    timespec after = {.tv_sec = time_t(seconds.count()), .tv_nsec = 10'000'000};
    pw_loop_update_timer(pw_main_loop_get_loop(loop_.get()), retryTimer_.get(), &after, nullptr, false);
}

/// Runs after the server has reported all events so far: the ports of a node appear one by one, and links made from
/// some of them would carry one side only.
void Driver::reconcile() {
    if (!created_) {
        if (metadata_)
            createNode();
        return;
    }
    if (!listening_ && ownId_ != SPA_ID_INVALID) {
        // The server does not send metadata about an object that the client does not know yet, so values set on our
        // node in its first moments are lost. Subscribing now delivers all of them.
        listening_ = true;
        if (metadataId_ != SPA_ID_INVALID)
            bindMetadata(metadataId_);
        lookAgain();
        return;
    }
    forgetLostLinks();
    const Wiring wanted = wiring();
    bool complete = wanted.complete;
    for (const auto& each : wanted.links) {
        if (const auto own = links_.find(each); own != links_.end()) {
            complete = complete && own->second.established;
        } else if (!isLinkedByOthers(each)) {
            complete = false;
            if (refused_.contains(each))
                retryLater();
            else
                connect(each);
        }
    }
    // The old output is unlinked when the new one delivers.
    if (!complete)
        return;
    std::erase_if(links_, [&wanted](const auto& each) { return !wanted.links.contains(each.first); });
    std::erase_if(mixers_, [&wanted](const auto& each) { return each.get() != wanted.mixer; });
}

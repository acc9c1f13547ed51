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
    Wiring result;
    if (ownId_ == SPA_ID_INVALID)
        return result;
    if (choice_.mode != ProgramChoice::Mode::Everything)
        wirePrograms(result);
    else if (const auto node = target(); node != SPA_ID_INVALID)
        wire(portsOf(node, PortKind::Monitor), result);
    return result;
}

/// One or two channels are linked directly, bit for bit. More channels need a mixer.
void Driver::wire(const std::vector<std::uint32_t>& from, Wiring& wiring) {
    if (from.size() > 2)
        wireThroughMixer(from, wiring);
    else
        wireDirectly(from, wiring);
}

/// The streams of the chosen programs, as they leave the programs: the streams' own links are not changed. A stream
/// that no output plays is left alone. Our link alone could make it run, and the user would miss what it plays
/// meanwhile.
void Driver::wirePrograms(Wiring& wiring) {
    if (steering_ == kPathKey || !streams_)
        return;
    const auto heard = nodesWithOutput();
    for (const auto& [id, stream] : streams_->streams())
        if (stream.known && !stream.isEffect && heard.contains(id) && choice_.takes(stream.program))
            wire(portsOf(id, PortKind::Output), wiring);
}

/// The nodes with a link to an output.
std::set<std::uint32_t> Driver::nodesWithOutput() const {
    std::set<std::uint32_t> found;
    for (const auto& [id, ports] : serverLinks_) {
        const auto from = ports_.find(ports.first);
        const auto to = ports_.find(ports.second);
        if (from == ports_.end() || to == ports_.end())
            continue;
        const auto output = nodes_.find(to->second.node);
        if (output != nodes_.end() &&
            (output->second.mediaClass == "Audio/Sink" || output->second.mediaClass == "Audio/Duplex"))
            found.insert(from->second.node);
    }
    return found;
}

/// Left to left, right to right; a single channel goes to both sides; other channels by their order.
void Driver::wireDirectly(const std::vector<std::uint32_t>& from, Wiring& wiring) const {
    for (const auto to : portsOf(ownId_, PortKind::Input)) {
        const auto& channel = ports_.at(to).channel;
        bool found = false;
        for (const auto each : from) {
            const auto& name = ports_.at(each).channel;
            if (name == channel || name == "MONO") {
                wiring.links.insert({each, to});
                found = true;
            }
        }
        const std::size_t index = channel == "FR" ? 1 : 0;
        if (!found && from.size() > index && ports_.at(from[0]).channel != "FL" && ports_.at(from[0]).channel != "FR")
            wiring.links.insert({from[index], to});
    }
}

/// Each channel into the mixer, and the mixer's two outputs to the source.
void Driver::wireThroughMixer(const std::vector<std::uint32_t>& from, Wiring& wiring) {
    std::vector<std::string> channels;
    channels.reserve(from.size());
    for (const auto each : from)
        channels.push_back(ports_.at(each).channel);
    const Mixer* mixer = mixerFor(ports_.at(from[0]).node, channels);
    if (mixer)
        wiring.mixers.insert(mixer);
    const auto node = mixer ? mixer->node() : SPA_ID_INVALID;
    const auto into = portsOf(node, PortKind::Input);
    const auto outOf = portsOf(node, PortKind::Output);
    const auto to = portsOf(ownId_, PortKind::Input);
    if (node == SPA_ID_INVALID || into.size() != from.size() || outOf.size() != 2 || to.size() != 2) {
        wiring.complete = false;
        return;
    }
    for (std::size_t i = 0; i < from.size(); ++i)
        wiring.links.insert({from[i], into[i]});
    for (std::size_t i = 0; i < to.size(); ++i)
        wiring.links.insert({outOf[i], to[i]});
}

/// Null when none can be created.
const Mixer* Driver::mixerFor(std::uint32_t node, const std::vector<std::string>& channels) {
    if (std::erase_if(mixers_, [](const auto& each) { return each->broken(); }) > 0)
        mixerFailedAt_ = SteadyClock::now();
    for (const auto& each : mixers_)
        if (each->source() == node && each->channels() == channels)
            return each.get();
    if (SteadyClock::now() - mixerFailedAt_ < kRetryAfter) {
        retryLater();
        return nullptr;
    }
    mixers_.push_back(std::make_unique<Mixer>(context_.get(), core_.get(), node, channels, [this] { lookAgain(); }));
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
        removeStaleMetadata();
        if (metadataId_ != SPA_ID_INVALID)
            bindMetadata(metadataId_);
        lookAgain();
        return;
    }
    forgetLostLinks();
    const Wiring wanted = wiring();
    // An output that is carried beside its programs would double them, and a program that is not chosen must not be
    // carried any longer than that.
    if (const bool programs = choice_.mode != ProgramChoice::Mode::Everything; programs || carriesPrograms_) {
        carriesPrograms_ = programs;
        removeAllBut(wanted);
    }
    confirmChoice();
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
    removeAllBut(wanted);
}

void Driver::removeAllBut(const Wiring& wanted) {
    std::erase_if(links_, [&wanted](const auto& each) { return !wanted.links.contains(each.first); });
    std::erase_if(mixers_, [&wanted](const auto& each) { return !wanted.mixers.contains(each.get()); });
}

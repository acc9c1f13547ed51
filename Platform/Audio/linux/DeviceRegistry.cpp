// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Audio/linux/DeviceRegistry.h"

#include "Platform/Audio/linux/DeviceRegistryObjects.h"
#include "Platform/Audio/linux/RegistryPath.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <string_view>

#include <QByteArray>

namespace Platform {

using namespace PipeWire;
using namespace Qt::StringLiterals;

namespace {

constexpr std::array deviceClasses = {"Audio/Sink", "Audio/Source", "Audio/Source/Virtual", "Audio/Duplex"};

/// How long the end of the registry waits for a server that does not answer.
constexpr std::chrono::seconds RequestPatience{2};

/// The value of "name" in {"name":"..."}.
std::string nameIn(const char* json) {
    spa_json outer;
    spa_json object;
    char key[64];
    spa_json_init(&outer, json, strlen(json));
    if (spa_json_enter_object(&outer, &object) <= 0)
        return {};
    while (spa_json_get_string(&object, key, sizeof key) > 0) {
        char value[1024];
        if (strcmp(key, "name") == 0)
            return spa_json_get_string(&object, value, sizeof value) > 0 ? value : std::string();
        const char* skipped = nullptr;
        if (spa_json_next(&object, &skipped) <= 0)
            break;
    }
    return {};
}

} // namespace

QString AudioDeviceInfo::uid() const {
    return QString::fromStdString(RegistryPath::uniqueID(nodeName));
}

std::shared_ptr<DeviceRegistry> DeviceRegistry::shared() {
    static std::mutex mutex;
    static std::weak_ptr<DeviceRegistry> existing;
    std::lock_guard guard(mutex);
    auto registry = existing.lock();
    if (!registry) {
        registry.reset(new DeviceRegistry);
        existing = registry;
    }
    return registry;
}

DeviceRegistry::DeviceRegistry() : connection_(PipeWireConnection::shared()) {
    connection_->add(*this);
}

DeviceRegistry::~DeviceRegistry() {
    {
        // The server drops what it has not read yet when a program disconnects. A choice that stays in the server would
        // also apply to other programs.
        std::unique_lock lock(mutex_);
        changed_.wait_for(lock, RequestPatience, [this] { return requestsAreHandled_; });
    }
    connection_->remove(*this);
    LoopLock lock(connection_->threadLoop());
    serverLost();
}

void DeviceRegistry::add(Listener& listener) {
    LoopLock lock(connection_->threadLoop());
    listeners_.push_back(&listener);
}

void DeviceRegistry::remove(Listener& listener) {
    LoopLock lock(connection_->threadLoop());
    std::erase(listeners_, &listener);
}

void DeviceRegistry::serverConnected() {
    auto* core = connection_->core();
    static constexpr pw_core_events coreEvents = {
        .version = PW_VERSION_CORE_EVENTS,
        .done =
            [](void* data, std::uint32_t id, int sequence) {
                if (id == PW_ID_CORE)
                    static_cast<DeviceRegistry*>(data)->onDone(sequence);
            },
    };
    pw_core_add_listener(core, coreListener_.get(), &coreEvents, this);
    registry_.reset(pw_core_get_registry(core, PW_VERSION_REGISTRY, 0));
    static constexpr pw_registry_events registryEvents = {
        .version = PW_VERSION_REGISTRY_EVENTS,
        .global =
            [](void* data, std::uint32_t id, std::uint32_t, const char* type, std::uint32_t,
               const spa_dict* properties) { static_cast<DeviceRegistry*>(data)->onGlobal(id, type, properties); },
        .global_remove = [](void* data, std::uint32_t id) { static_cast<DeviceRegistry*>(data)->onGlobalRemove(id); },
    };
    pw_registry_add_listener(registry_.get(), registryListener_.get(), &registryEvents, this);
    knownSequence_ = -1;
    routesAsked_ = false;
    globalsSequence_ = pw_core_sync(core, PW_ID_CORE, 0);
}

void DeviceRegistry::serverLost() {
    const bool wasConnected = registry_ != nullptr;
    metadata_.clear();
    nodes_.clear();
    cards_.clear();
    ports_.clear();
    registryListener_.remove();
    registry_.reset();
    coreListener_.remove();
    {
        std::lock_guard guard(mutex_);
        known_ = false;
        requestsAreHandled_ = true;
        picture_.clear();
        defaultSink_.clear();
        driverMetadata_.clear();
    }
    changed_.notify_all();
    if (wasConnected)
        for (auto* each : std::vector(listeners_))
            each->serverGone();
}

void DeviceRegistry::onGlobal(std::uint32_t id, const char* type, const spa_dict* properties) {
    if (strcmp(type, PW_TYPE_INTERFACE_Port) == 0) {
        Port& port = ports_[id];
        port.node = std::uint32_t(std::strtoul(lookup(properties, PW_KEY_NODE_ID).c_str(), nullptr, 10));
        port.delivers = lookup(properties, PW_KEY_PORT_DIRECTION) == "out";
        port.monitor = lookup(properties, PW_KEY_PORT_MONITOR) == "true";
        if (const auto node = nodes_.find(port.node); node != nodes_.end() && node->second->announced)
            publish(*node->second);
    } else if (strcmp(type, PW_TYPE_INTERFACE_Metadata) == 0) {
        bindMetadata(id, lookup(properties, PW_KEY_METADATA_NAME));
    } else if (strcmp(type, PW_TYPE_INTERFACE_Device) == 0) {
        bindCard(id);
    } else if (strcmp(type, PW_TYPE_INTERFACE_Node) == 0) {
        const std::string mediaClass = lookup(properties, PW_KEY_MEDIA_CLASS);
        if (std::ranges::find(deviceClasses, mediaClass) == deviceClasses.end())
            return;
        auto& node = nodes_[id] = std::make_unique<Node>(*this, id);
        node->info.nodeId = id;
        node->info.serial = std::strtoull(lookup(properties, PW_KEY_OBJECT_SERIAL).c_str(), nullptr, 10);
        node->info.nodeName = lookup(properties, PW_KEY_NODE_NAME);
        node->info.description = lookup(properties, PW_KEY_NODE_DESCRIPTION);
        node->info.mediaClass = mediaClass;
        node->proxy.reset(
            static_cast<pw_node*>(pw_registry_bind(registry_.get(), id, PW_TYPE_INTERFACE_Node, PW_VERSION_NODE, 0)));
        static constexpr pw_node_events events = {
            .version = PW_VERSION_NODE_EVENTS,
            .info = [](void* data, const pw_node_info* info) { static_cast<Node*>(data)->onInfo(info); },
            .param = [](void* data, int, std::uint32_t param, std::uint32_t, std::uint32_t,
                        const spa_pod* pod) { static_cast<Node*>(data)->onParam(param, pod); },
        };
        pw_node_add_listener(node->proxy.get(), node->listener.get(), &events, node.get());
        std::uint32_t params[] = {SPA_PARAM_EnumFormat, SPA_PARAM_Format, SPA_PARAM_Props};
        pw_node_subscribe_params(node->proxy.get(), params, std::size(params));
        node->sequence = pw_core_sync(connection_->core(), PW_ID_CORE, 0);
    }
}

void DeviceRegistry::onGlobalRemove(std::uint32_t id) {
    if (const auto port = ports_.find(id); port != ports_.end()) {
        const auto owner = port->second.node;
        ports_.erase(port);
        if (const auto node = nodes_.find(owner); node != nodes_.end() && node->second->announced)
            publish(*node->second);
        return;
    }
    metadata_.erase(id);
    cards_.erase(id);
    const auto found = nodes_.find(id);
    if (found == nodes_.end())
        return;
    const auto node = std::move(found->second);
    nodes_.erase(found);
    if (!node->announced)
        return;
    {
        std::lock_guard guard(mutex_);
        picture_.erase(node->info.id);
        // The server reuses the id for other nodes.
        std::erase_if(driverMetadata_, [id](const auto& each) { return each.first.first == id; });
    }
    for (auto* each : std::vector(listeners_))
        each->deviceGone(node->info.id);
}

/// Called after each request, with the loop's lock.
void DeviceRegistry::followRequest() {
    requestSequence_ = pw_core_sync(connection_->core(), PW_ID_CORE, 0);
    std::lock_guard guard(mutex_);
    requestsAreHandled_ = false;
}

void DeviceRegistry::onDone(int sequence) {
    if (sequence == requestSequence_) {
        std::lock_guard guard(mutex_);
        requestsAreHandled_ = true;
        changed_.notify_all();
    }
    for (auto& [id, node] : nodes_) {
        if (node->sequence == sequence && !node->announced)
            announce(*node);
    }
    if (sequence == globalsSequence_) {
        knownSequence_ = pw_core_sync(connection_->core(), PW_ID_CORE, 0);
    } else if (sequence == knownSequence_ && !routesAsked_ && !cards_.empty()) {
        // Every card that described itself was asked for its routes. Their answers arrive before the answer to this
        // call.
        routesAsked_ = true;
        knownSequence_ = pw_core_sync(connection_->core(), PW_ID_CORE, 0);
    } else if (sequence == knownSequence_) {
        {
            std::lock_guard guard(mutex_);
            known_ = true;
        }
        changed_.notify_all();
        for (auto* each : std::vector(listeners_))
            each->devicesKnown();
    }
}

void DeviceRegistry::announce(Node& node) {
    node.info.id = numberFor(node.info.nodeName);
    node.announced = true;
    publish(node);
    for (auto* each : std::vector(listeners_))
        each->deviceAppeared(*device(node.info.id));
}

AudioObjectID DeviceRegistry::numberFor(const std::string& nodeName) {
    static AudioObjectID last = 0;
    auto& known = numbers()[nodeName];
    std::lock_guard guard(mutex_);
    for (const auto each : known)
        if (!picture_.contains(each))
            return each;
    known.push_back(++last);
    return last;
}

std::unordered_map<std::string, std::vector<AudioObjectID>>& DeviceRegistry::numbers() {
    static std::unordered_map<std::string, std::vector<AudioObjectID>> given;
    return given;
}

void DeviceRegistry::publish(const Node& node) {
    AudioDeviceInfo info = node.info;
    const NodeFormat format = node.chosen.known() ? node.chosen : node.offered;
    for (const auto& [id, port] : ports_) {
        if (port.node != node.nodeId || port.monitor)
            continue;
        ++(port.delivers ? info.captureStreams : info.playbackStreams);
    }
    const bool captures = info.mediaClass != "Audio/Sink";
    const bool plays = info.mediaClass == "Audio/Sink" || info.mediaClass == "Audio/Duplex";
    const auto portCount = captures ? info.captureStreams : info.playbackStreams;
    info.channels = format.channels ? format.channels : portCount ? portCount : 2;
    info.channelPositions = format.positions;
    if (info.channelPositions.size() != info.channels)
        info.channelPositions = defaultChannelPositions(info.channels);
    for (const auto& [id, card] : cards_) {
        if (!card->has(info))
            continue;
        info.properties.insert(card->properties.begin(), card->properties.end());
        if (const auto* route = card->routeOf(info); route && route->hasVolume) {
            info.hasVolume = true;
            info.volumes = route->volumes;
            info.muted = route->muted;
        }
    }
    if (info.hasVolume)
        info.volumes.resize(info.channels, 1.0f);
    // The session manager creates a device's ports shortly after the device itself.
    if (captures && info.captureStreams == 0)
        info.captureStreams = info.channels;
    if (plays && info.playbackStreams == 0)
        info.playbackStreams = info.channels;
    std::lock_guard guard(mutex_);
    info.sampleRate = format.rate ? format.rate : clockRate_;
    picture_[info.id] = std::move(info);
}

void DeviceRegistry::Node::onInfo(const pw_node_info* update) {
    if (!(update->change_mask & PW_NODE_CHANGE_MASK_PROPS) || !update->props)
        return;
    info.properties.clear();
    const spa_dict_item* item = nullptr;
    spa_dict_for_each(item, update->props) info.properties[item->key] = item->value ? item->value : "";
    const std::string described = lookup(update->props, PW_KEY_NODE_DESCRIPTION);
    info.description = !described.empty() ? described : info.nodeName;
    if (announced)
        owner.publish(*this);
}

void DeviceRegistry::Node::onParam(std::uint32_t id, const spa_pod* pod) {
    if (!pod)
        return;
    if (id == SPA_PARAM_Format) {
        chosen = NodeFormat::read(pod);
    } else if (id == SPA_PARAM_EnumFormat) {
        if (const auto format = NodeFormat::read(pod); format.known() && !offered.known())
            offered = format;
    } else if (id == SPA_PARAM_Props) {
        // While a node has never run, PipeWire 1.4 keeps reporting the values from before they were set here. So only
        // values that differ from the last report are adopted.
        auto volumes = reportedVolumes;
        bool muted = reportedMuted;
        info.hasVolume = readVolumes(pod, volumes, muted) || info.hasVolume;
        if (volumes != reportedVolumes)
            info.volumes = reportedVolumes = std::move(volumes);
        if (muted != reportedMuted)
            info.muted = reportedMuted = muted;
    }
    if (announced)
        owner.publish(*this);
}

void DeviceRegistry::bindMetadata(std::uint32_t id, const std::string& name) {
    if (name != "default" && name != "settings")
        return;
    auto& metadata = metadata_[id] = std::make_unique<Metadata>(*this, name);
    metadata->proxy.reset(static_cast<pw_metadata*>(
        pw_registry_bind(registry_.get(), id, PW_TYPE_INTERFACE_Metadata, PW_VERSION_METADATA, 0)));
    static constexpr pw_metadata_events events = {
        .version = PW_VERSION_METADATA_EVENTS,
        .property =
            [](void* data, std::uint32_t subject, const char* key, const char*, const char* value) {
                auto* self = static_cast<Metadata*>(data);
                self->owner.onMetadata(*self, subject, key, value);
                return 0;
            },
    };
    pw_metadata_add_listener(metadata->proxy.get(), metadata->listener.get(), &events, metadata.get());
}

void DeviceRegistry::onMetadata(Metadata& metadata, std::uint32_t subject, const char* key, const char* value) {
    if (key && metadata.name == "default" && std::string_view(key).starts_with("kCaptureDriver")) {
        std::lock_guard guard(mutex_);
        if (value)
            driverMetadata_[{subject, key}] = value;
        else
            driverMetadata_.erase({subject, key});
        return;
    }
    if (subject != PW_ID_CORE)
        return;
    if (metadata.name == "settings") {
        if (!key || !value)
            return;
        const auto number = std::uint32_t(std::strtoul(value, nullptr, 10));
        std::lock_guard guard(mutex_);
        if (strcmp(key, "clock.rate") == 0 && number > 0)
            clockRate_ = number;
        else if (strcmp(key, "clock.quantum") == 0 && number > 0)
            quantum_ = number;
        else if (strcmp(key, "clock.force-quantum") == 0)
            forcedQuantum_ = number;
        return;
    }
    // No key: all metadata of the subject is removed.
    if (key && strcmp(key, "default.audio.sink") != 0)
        return;
    {
        const std::string name = key && value ? nameIn(value) : std::string();
        std::lock_guard guard(mutex_);
        if (name == defaultSink_)
            return;
        defaultSink_ = name;
    }
    for (auto* each : std::vector(listeners_))
        each->defaultSinkChanged();
}

std::string DeviceRegistry::driverMetadata(std::uint32_t subject, const std::string& key) const {
    std::lock_guard guard(mutex_);
    const auto found = driverMetadata_.find({subject, key});
    return found != driverMetadata_.end() ? found->second : std::string();
}

bool DeviceRegistry::waitUntilKnown(int milliseconds) const {
    std::unique_lock lock(mutex_);
    changed_.wait_for(lock, std::chrono::milliseconds(milliseconds),
                      [this] { return known_ || !connection_->connected(); });
    return known_;
}

std::vector<AudioDeviceInfo> DeviceRegistry::devices() const {
    std::lock_guard guard(mutex_);
    std::vector<AudioDeviceInfo> list;
    list.reserve(picture_.size());
    for (const auto& [id, info] : picture_)
        list.push_back(info);
    return list;
}

std::optional<AudioDeviceInfo> DeviceRegistry::device(AudioObjectID id) const {
    std::lock_guard guard(mutex_);
    const auto found = picture_.find(id);
    return found != picture_.end() ? std::optional(found->second) : std::nullopt;
}

AudioObjectID DeviceRegistry::defaultOutput() const {
    std::lock_guard guard(mutex_);
    for (const auto& [id, info] : picture_)
        if (info.nodeName == defaultSink_ && info.playbackStreams > 0)
            return id;
    return 0;
}

std::uint32_t DeviceRegistry::cycleFrames(double sampleRate) const {
    std::lock_guard guard(mutex_);
    const auto quantum = forcedQuantum_ ? forcedQuantum_ : quantum_;
    // At a multiple of the server's rate a cycle takes the same time and so holds more frames.
    return std::clamp(std::uint32_t(quantum * std::max(1.0, std::floor(sampleRate / clockRate_))), 64u, 8192u);
}

OSStatus DeviceRegistry::setMetadata(std::uint32_t subject, const std::string& key, const std::string& type,
                                     const std::string& value) {
    LoopLock lock(connection_->threadLoop());
    for (const auto& [id, metadata] : metadata_) {
        if (metadata->name != "default")
            continue;
        const char* text = value.empty() ? nullptr : value.c_str();
        const int result = pw_metadata_set_property(metadata->proxy.get(), subject, key.c_str(), type.c_str(), text);
        followRequest();
        return result < 0 ? kAudioHardwareIllegalOperationError : noErr;
    }
    return kAudioHardwareNotRunningError;
}

} // namespace Platform

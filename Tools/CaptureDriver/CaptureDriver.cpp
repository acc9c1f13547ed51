// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The computer-audio driver: makes a source in the sound server and feeds it from the monitor of an output, the default
// one until it is told another. It ends with the sound server, and when its engine is told to quit.
#include "Platform/Audio/linux/PipeWireHandles.h"
#include "Platform/Audio/linux/RegistryPath.h"

#include <csignal>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace {

using namespace Platform;
using namespace Platform::PipeWire;

constexpr char kPathKey[] = "kCaptureDriverPathKey";
constexpr char kQuitKey[] = "korvane.driver.quit";

using MainLoopPtr = std::unique_ptr<pw_main_loop, FreeBy<pw_main_loop_destroy>>;

std::string text(const spa_dict* properties, const char* key) {
    const char* value = properties ? spa_dict_lookup(properties, key) : nullptr;
    return value ? value : "";
}

/// The "name" of {"name":"..."}.
std::string nameIn(const char* json) {
    spa_json it[2];
    spa_json_init(&it[0], json, strlen(json));
    if (spa_json_enter_object(&it[0], &it[1]) <= 0)
        return {};
    char key[64];
    while (spa_json_get_string(&it[1], key, sizeof key) > 0) {
        if (strcmp(key, "name") == 0) {
            char name[1024];
            return spa_json_get_string(&it[1], name, sizeof name) > 0 ? name : "";
        }
        const char* skipped = nullptr;
        if (spa_json_next(&it[1], &skipped) <= 0)
            break;
    }
    return {};
}

/// Everything happens on the one thread of the main loop. Members are destroyed from the bottom up.
class Driver {
public:
    ~Driver() {
        links_.clear();
        metadataListener_.remove();
        nodeListener_.remove();
        registryListener_.remove();
        coreListener_.remove();
    }

    bool start(const std::string& configuration);
    void run() { pw_main_loop_run(loop_.get()); }

private:
    using Ports = std::pair<std::uint32_t, std::uint32_t>; ///< from, to

    struct Node {
        std::string name;
        std::string mediaClass;
    };
    struct Port {
        std::uint32_t node;
        std::uint32_t number;
        bool output;
        bool monitor;
        std::string channel;
    };
    /// One wire from a monitor to us. The server may take it away at any time.
    struct Link {
        ~Link() {
            infoListener.remove();
            proxyListener.remove();
        }
        Driver* driver = nullptr;
        ProxyPtr proxy;
        Hook infoListener;
        Hook proxyListener;
        bool established = false;
        bool gone = false;
    };

    void quit() { pw_main_loop_quit(loop_.get()); }
    void leave();
    void onSteered(const std::string& key, const std::string& value);
    void bindMetadata(std::uint32_t id);
    void createNode();
    void onGlobal(std::uint32_t id, const char* type, const spa_dict* properties);
    void onGlobalRemoved(std::uint32_t id);
    void onMetadata(std::uint32_t subject, const char* key, const char* value);
    void lookAgain() { pendingSync_ = pw_core_sync(core_.get(), PW_ID_CORE, 0); }
    void reconcile();
    [[nodiscard]] std::uint32_t nodeNamed(const std::string& name) const;
    [[nodiscard]] std::uint32_t target() const;
    [[nodiscard]] std::vector<std::uint32_t> portsOf(std::uint32_t node, bool output) const;
    [[nodiscard]] std::set<Ports> wanted() const;
    void connect(Ports ports);

    MainLoopPtr loop_;
    ContextPtr context_;
    CorePtr core_;
    Hook coreListener_;
    RegistryPtr registry_;
    Hook registryListener_;
    ProxyPtr node_;
    Hook nodeListener_;
    MetadataPtr metadata_;
    Hook metadataListener_;
    PropertiesPtr properties_;
    LoopSource interrupt_;
    LoopSource termination_;

    int pendingSync_ = -1;
    std::uint32_t metadataId_ = SPA_ID_INVALID;
    std::uint32_t ownId_ = SPA_ID_INVALID;
    bool created_ = false;
    bool listening_ = false;
    bool leaving_ = false;
    std::map<std::uint32_t, Node> nodes_;
    std::map<std::uint32_t, Port> ports_;
    std::map<Ports, Link> links_;
    std::map<std::pair<std::uint32_t, std::string>, std::string> stale_; ///< by number and key
    std::string defaultOutput_;
    std::string steering_; ///< a registry path; the key itself takes nothing; empty follows the default output
};

bool Driver::start(const std::string& configuration) {
    properties_.reset(pw_properties_new_string(configuration.c_str()));
    if (!properties_ || !pw_properties_get(properties_.get(), PW_KEY_NODE_NAME)) {
        std::fprintf(stderr, "CaptureDriver: the configuration names no node\n");
        return false;
    }
    pw_properties_set(properties_.get(), "factory.name", "support.null-audio-sink");
    // The node goes when this process does.
    pw_properties_set(properties_.get(), "object.linger", "false");

    loop_.reset(pw_main_loop_new(nullptr));
    auto* loop = pw_main_loop_get_loop(loop_.get());
    context_.reset(pw_context_new(loop, nullptr, 0));
    if (context_)
        core_.reset(pw_context_connect(context_.get(), nullptr, 0));
    if (!core_) {
        std::fprintf(stderr, "CaptureDriver: no sound server: %s\n", strerror(errno));
        return false;
    }
    const auto stop = [](void* data, int) { static_cast<Driver*>(data)->leave(); };
    interrupt_ = LoopSource(loop, pw_loop_add_signal(loop, SIGINT, stop, this));
    termination_ = LoopSource(loop, pw_loop_add_signal(loop, SIGTERM, stop, this));

    static constexpr pw_core_events coreEvents = {
        .version = PW_VERSION_CORE_EVENTS,
        .done =
            [](void* data, uint32_t id, int sequence) {
                auto* self = static_cast<Driver*>(data);
                if (id != PW_ID_CORE || sequence != self->pendingSync_)
                    return;
                if (self->leaving_)
                    self->quit();
                else
                    self->reconcile();
            },
        .error =
            [](void* data, uint32_t id, int, int result, const char*) {
                if (id == PW_ID_CORE && result == -EPIPE)
                    static_cast<Driver*>(data)->quit();
            },
    };
    pw_core_add_listener(core_.get(), coreListener_.get(), &coreEvents, this);
    registry_.reset(pw_core_get_registry(core_.get(), PW_VERSION_REGISTRY, 0));
    static constexpr pw_registry_events registryEvents = {
        .version = PW_VERSION_REGISTRY_EVENTS,
        .global = [](void* data, uint32_t id, uint32_t, const char* type, uint32_t,
                     const spa_dict* properties) { static_cast<Driver*>(data)->onGlobal(id, type, properties); },
        .global_remove = [](void* data, uint32_t id) { static_cast<Driver*>(data)->onGlobalRemoved(id); },
    };
    pw_registry_add_listener(registry_.get(), registryListener_.get(), &registryEvents, this);
    lookAgain();
    return true;
}

void Driver::createNode() {
    created_ = true;
    const char* name = pw_properties_get(properties_.get(), PW_KEY_NODE_NAME);
    if (nodeNamed(name) != SPA_ID_INVALID) {
        quit(); // another driver serves this sound server
        return;
    }
    node_.reset(static_cast<pw_proxy*>(
        pw_core_create_object(core_.get(), "adapter", PW_TYPE_INTERFACE_Node, PW_VERSION_NODE, &properties_->dict, 0)));
    if (!node_) {
        quit();
        return;
    }
    static constexpr pw_proxy_events events = {
        .version = PW_VERSION_PROXY_EVENTS,
        .bound =
            [](void* data, uint32_t id) {
                auto* self = static_cast<Driver*>(data);
                self->ownId_ = id;
                self->lookAgain();
            },
        .removed = [](void* data) { static_cast<Driver*>(data)->quit(); },
        .error = [](void* data, int, int, const char*) { static_cast<Driver*>(data)->quit(); },
    };
    pw_proxy_add_listener(node_.get(), nodeListener_.get(), &events, this);
}

void Driver::onGlobal(std::uint32_t id, const char* type, const spa_dict* properties) {
    if (strcmp(type, PW_TYPE_INTERFACE_Node) == 0) {
        nodes_[id] = {text(properties, PW_KEY_NODE_NAME), text(properties, PW_KEY_MEDIA_CLASS)};
    } else if (strcmp(type, PW_TYPE_INTERFACE_Port) == 0) {
        ports_[id] = {std::uint32_t(atoi(text(properties, PW_KEY_NODE_ID).c_str())),
                      std::uint32_t(atoi(text(properties, PW_KEY_PORT_ID).c_str())),
                      text(properties, PW_KEY_PORT_DIRECTION) == "out", text(properties, PW_KEY_PORT_MONITOR) == "true",
                      text(properties, PW_KEY_AUDIO_CHANNEL)};
    } else if (strcmp(type, PW_TYPE_INTERFACE_Metadata) == 0 && text(properties, PW_KEY_METADATA_NAME) == "default" &&
               !metadata_) {
        bindMetadata(id);
    } else {
        return;
    }
    lookAgain();
}

void Driver::bindMetadata(std::uint32_t id) {
    metadataListener_.remove();
    metadata_.reset(static_cast<pw_metadata*>(
        pw_registry_bind(registry_.get(), id, PW_TYPE_INTERFACE_Metadata, PW_VERSION_METADATA, 0)));
    metadataId_ = id;
    static constexpr pw_metadata_events events = {
        .version = PW_VERSION_METADATA_EVENTS,
        .property =
            [](void* data, uint32_t subject, const char* key, const char*, const char* value) {
                static_cast<Driver*>(data)->onMetadata(subject, key, value);
                return 0;
            },
    };
    pw_metadata_add_listener(metadata_.get(), metadataListener_.get(), &events, this);
}

void Driver::onGlobalRemoved(std::uint32_t id) {
    if (id == metadataId_) {
        // The session manager restarts; until it is back what we know stays true.
        metadataListener_.remove();
        metadata_.reset();
        metadataId_ = SPA_ID_INVALID;
    }
    if (nodes_.erase(id) + ports_.erase(id) > 0)
        lookAgain();
}

/// Takes back what was said to this node: its number will be another's. What the number's former owner was told came
/// before our node was made and is not listened to.
void Driver::leave() {
    leaving_ = true;
    if (metadata_ && ownId_ != SPA_ID_INVALID)
        for (const char* key : {kPathKey, kQuitKey})
            pw_metadata_set_property(metadata_.get(), ownId_, key, nullptr, nullptr);
    lookAgain();
}

void Driver::onSteered(const std::string& key, const std::string& value) {
    if (const auto before = stale_.find({ownId_, key}); before != stale_.end()) {
        if (before->second == value)
            return;
        stale_.erase(before);
    }
    if (key == kPathKey)
        steering_ = value;
    else if (!value.empty())
        leave();
    lookAgain();
}

void Driver::onMetadata(std::uint32_t subject, const char* key, const char* value) {
    if (leaving_)
        return;
    if (subject == PW_ID_CORE && key && strcmp(key, "default.audio.sink") == 0) {
        defaultOutput_ = value ? nameIn(value) : "";
    } else if (key && (strcmp(key, kPathKey) == 0 || strcmp(key, kQuitKey) == 0)) {
        // Until our node is made, all that is said is said to others, under a number that may become ours.
        if (!created_)
            stale_[{subject, key}] = value ? value : "";
        else if (subject == ownId_)
            onSteered(key, value ? value : "");
        return;
    } else {
        return;
    }
    lookAgain();
}

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
    // An output that was pulled out: what plays there has moved to the default one.
    if (id == SPA_ID_INVALID && !defaultOutput_.empty())
        id = nodeNamed(defaultOutput_);
    return id == ownId_ ? SPA_ID_INVALID : id;
}

/// The node's monitor ports or its input ports, in the order of its channels.
std::vector<std::uint32_t> Driver::portsOf(std::uint32_t node, bool output) const {
    std::map<std::uint32_t, std::uint32_t> byNumber;
    for (const auto& [id, port] : ports_)
        if (port.node == node && port.output == output && port.monitor == output)
            byNumber[port.number] = id;
    std::vector<std::uint32_t> list;
    for (const auto& [number, id] : byNumber)
        list.push_back(id);
    return list;
}

/// Left to left, right to right; one channel goes to both sides; channels without such names go by their order.
std::set<Driver::Ports> Driver::wanted() const {
    std::set<Ports> pairs;
    const auto node = target();
    if (node == SPA_ID_INVALID || ownId_ == SPA_ID_INVALID)
        return pairs;
    const auto from = portsOf(node, true);
    for (const auto to : portsOf(ownId_, false)) {
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

void Driver::connect(Ports ports) {
    PropertiesPtr properties(pw_properties_new(nullptr, nullptr));
    pw_properties_setf(properties.get(), PW_KEY_LINK_OUTPUT_NODE, "%u", ports_.at(ports.first).node);
    pw_properties_setf(properties.get(), PW_KEY_LINK_OUTPUT_PORT, "%u", ports.first);
    pw_properties_setf(properties.get(), PW_KEY_LINK_INPUT_NODE, "%u", ports_.at(ports.second).node);
    pw_properties_setf(properties.get(), PW_KEY_LINK_INPUT_PORT, "%u", ports.second);
    // While nobody listens to us, an output that plays nothing may go to sleep.
    pw_properties_set(properties.get(), PW_KEY_LINK_PASSIVE, "true");
    pw_properties_set(properties.get(), "object.linger", "false");
    auto& link = links_[ports];
    link.driver = this;
    link.proxy.reset(static_cast<pw_proxy*>(pw_core_create_object(core_.get(), "link-factory", PW_TYPE_INTERFACE_Link,
                                                                  PW_VERSION_LINK, &properties->dict, 0)));
    if (!link.proxy) {
        links_.erase(ports);
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
                self->gone = true;
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

/// Runs when the server has told all that happened so far: the ports of a node come one by one, and links made from
/// half of them would carry one side only.
void Driver::reconcile() {
    if (!created_) {
        if (metadata_)
            createNode();
        return;
    }
    if (!listening_ && ownId_ != SPA_ID_INVALID) {
        // The server tells nobody of an object that he does not know of yet, so what was said to our node in its first
        // moments is lost. Asked now, it tells all.
        listening_ = true;
        if (metadataId_ != SPA_ID_INVALID)
            bindMetadata(metadataId_);
        lookAgain();
        return;
    }
    std::erase_if(links_, [](const auto& each) { return each.second.gone; });
    const auto pairs = wanted();
    bool complete = true;
    for (const auto& each : pairs) {
        const auto found = links_.find(each);
        if (found == links_.end())
            connect(each);
        complete = complete && found != links_.end() && found->second.established;
    }
    // The old output is let go when the new one flows.
    if (complete)
        std::erase_if(links_, [&pairs](const auto& each) { return !pairs.contains(each.first); });
}

} // namespace

int main(int argc, char** argv) {
    pw_init(&argc, &argv);
    std::error_code error;
    const auto folder = std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
    std::ifstream file(folder / "driver.conf");
    const std::string configuration{std::istreambuf_iterator<char>(file), {}};
    Driver driver;
    if (!driver.start(configuration))
        return 1;
    driver.run();
    return 0;
}

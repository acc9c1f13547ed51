// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/AudioTypes.h"
#include "Platform/Audio/linux/PipeWireConnection.h"

#include <condition_variable>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace Platform {

struct DeviceRoute;

/// A node of the sound server that is a device, with its state at one moment.
struct AudioDeviceInfo {
    AudioObjectID id = 0;
    std::uint32_t nodeId = 0; ///< recycled by the server: valid for one call only
    std::uint64_t serial = 0; ///< never recycled during the life of a server
    std::string nodeName;
    std::string description;
    std::string mediaClass;
    std::map<std::string, std::string> properties; ///< all properties of the node, completed with those of its card
    std::uint32_t captureStreams = 0;              ///< output ports that are no monitor
    std::uint32_t playbackStreams = 0;             ///< input ports
    double sampleRate = 0;
    std::uint32_t channels = 0;
    std::vector<std::uint32_t> channelPositions; ///< SPA_AUDIO_CHANNEL_...; one per channel
    bool hasVolume = false;                      ///< has a volume control
    std::vector<float> volumes;                  ///< linear, one per channel while the node has one
    bool muted = false;

    /// "<node name>:<8 hex digits of its hash>": the hash keeps a name distinct from one that begins with it.
    [[nodiscard]] QString uid() const;
};

/// The list of the server's devices, kept current by the connection's thread. Shared by the hardware's object model,
/// the input units and the I/O registry. Queries may come from any thread and do not take the server loop's lock.
class DeviceRegistry final : public PipeWireConnection::Client {
public:
    /// All functions are called on the loop's thread.
    class Listener {
    public:
        virtual ~Listener() = default;
        virtual void deviceAppeared(const AudioDeviceInfo& /*device*/) {}
        virtual void deviceGone(AudioObjectID /*device*/) {}
        virtual void defaultSinkChanged() {}
        /// The server is gone with all its devices; deviceGone() is not called for each of them.
        virtual void serverGone() {}
        /// All devices of a server that (re)appeared are known.
        virtual void devicesKnown() {}
    };

    static std::shared_ptr<DeviceRegistry> shared();
    ~DeviceRegistry() override;
    DeviceRegistry(const DeviceRegistry&) = delete;
    DeviceRegistry& operator=(const DeviceRegistry&) = delete;

    [[nodiscard]] const std::shared_ptr<PipeWireConnection>& connection() const { return connection_; }
    /// Takes the loop's lock.
    void add(Listener& listener);
    void remove(Listener& listener);

    /// Waits until all devices are known or there is no server; at most @p milliseconds.
    bool waitUntilKnown(int milliseconds) const;
    /// In the order of their first appearance.
    [[nodiscard]] std::vector<AudioDeviceInfo> devices() const;
    [[nodiscard]] std::optional<AudioDeviceInfo> device(AudioObjectID id) const;
    /// 0 when there is none.
    [[nodiscard]] AudioObjectID defaultOutput() const;
    /// Frames in one cycle of a device that runs at @p sampleRate.
    [[nodiscard]] std::uint32_t cycleFrames(double sampleRate) const;

    /// Sets the volume of one channel, or mute: on the card's route where the card has one, else on the node. Takes the
    /// loop's lock.
    OSStatus setVolume(AudioObjectID device, std::uint32_t element, float volume);
    OSStatus setMute(AudioObjectID device, bool mute);
    /// Sets a key of the server's metadata "default" for an object, or removes it when @p value is empty. Takes the
    /// loop's lock.
    OSStatus setMetadata(std::uint32_t subject, const std::string& key, const std::string& type,
                         const std::string& value);
    /// The value of a driver's key ("kCaptureDriver...") of the server's metadata "default"; empty when there is none.
    [[nodiscard]] std::string driverMetadata(std::uint32_t subject, const std::string& key) const;

    void serverConnected() override;
    void serverLost() override;

private:
    struct Node;
    struct Card;
    struct Port {
        std::uint32_t node = 0;
        bool delivers = false;
        bool monitor = false;
    };
    struct Metadata;

    DeviceRegistry();
    void onGlobal(std::uint32_t id, const char* type, const spa_dict* properties);
    void onGlobalRemove(std::uint32_t id);
    void onDone(int sequence);
    void onMetadata(Metadata& metadata, std::uint32_t subject, const char* key, const char* value);
    void bindMetadata(std::uint32_t id, const std::string& name);
    void bindCard(std::uint32_t id);
    void followRequest();
    void announce(Node& node);
    void publish(const Node& node);
    [[nodiscard]] AudioObjectID numberFor(const std::string& nodeName);
    [[nodiscard]] Node* find(AudioObjectID device);
    /// The card and the route that control the node's volume; null where the node controls it itself.
    [[nodiscard]] std::pair<Card*, DeviceRoute*> routeOf(const Node& node);

    std::shared_ptr<PipeWireConnection> connection_;
    std::vector<Listener*> listeners_;
    PipeWire::RegistryPtr registry_;
    PipeWire::Hook registryListener_;
    PipeWire::Hook coreListener_;
    std::map<std::uint32_t, std::unique_ptr<Node>> nodes_; ///< by the server's id
    std::map<std::uint32_t, std::unique_ptr<Card>> cards_; ///< by the server's id, as are the next two
    std::map<std::uint32_t, Port> ports_;
    std::map<std::uint32_t, std::unique_ptr<Metadata>> metadata_;
    int globalsSequence_ =
        -1; ///< sync number; its answer comes after all objects that existed at connecting were announced
    bool routesAsked_ = false;
    int knownSequence_ = -1; ///< sync number; its answer comes after all those objects described themselves

    int requestSequence_ = -1; ///< sync number; its answer comes after the server has handled the newest request

    /// All numbers ever given to a name, oldest first. Lives as long as the process, longer than any registry.
    static std::unordered_map<std::string, std::vector<AudioObjectID>>& numbers();

    mutable std::mutex mutex_; ///< guards the members below; never held while a listener is called
    mutable std::condition_variable changed_;
    bool known_ = false;
    bool requestsAreHandled_ = true;
    std::map<AudioObjectID, AudioDeviceInfo> picture_;
    std::string defaultSink_;
    std::map<std::pair<std::uint32_t, std::string>, std::string> driverMetadata_; ///< by subject and key
    std::uint32_t clockRate_ = 48000;
    std::uint32_t quantum_ = 1024;
    std::uint32_t forcedQuantum_ = 0;
};

} // namespace Platform

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/ProgramChoice.h"
#include "Platform/Audio/linux/PipeWireHandles.h"
#include "Platform/Audio/linux/StreamWatch.h"
#include "Tools/CaptureDriver/Mixer.h"

#include <chrono>
#include <cstdint>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

/// The computer-audio driver: creates a source in the sound server and feeds it from the monitor of an output, the
/// default one unless another is selected; or from the streams of chosen programs, on any output. Everything runs on
/// the one thread of the main loop. Members are destroyed in reverse order.
class Driver {
public:
    /// The metadata key of our node that selects the output; as a value it selects no output.
    static constexpr char kPathKey[] = "kCaptureDriverPathKey";
    /// The metadata key of our node that chooses programs: an encoded Platform::ProgramChoice.
    static constexpr char kProgramsKey[] = "kCaptureDriverProgramsKey";
    /// The driver copies the value of kProgramsKey to this key when the links of everything else are removed.
    static constexpr char kProgramsAppliedKey[] = "kCaptureDriverProgramsAppliedKey";

    Driver() = default;
    ~Driver();
    Driver(const Driver&) = delete;
    Driver& operator=(const Driver&) = delete;

    /// @p configuration holds the properties of the node. Connects to the server; false when there is none.
    bool start(const std::string& configuration);
    /// Runs until the server ends or the driver gets the quit property.
    void run() { pw_main_loop_run(loop_.get()); }

private:
    using MainLoopPtr = std::unique_ptr<pw_main_loop, Platform::PipeWire::FreeBy<pw_main_loop_destroy>>;
    using SteadyClock = std::chrono::steady_clock;
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
    /// One link that the driver created. The server may remove it at any time.
    struct Link {
        ~Link() {
            infoListener.remove();
            proxyListener.remove();
        }
        Driver* driver = nullptr;
        Platform::PipeWire::ProxyPtr proxy;
        Platform::PipeWire::Hook infoListener;
        Platform::PipeWire::Hook proxyListener;
        SteadyClock::time_point madeAt;
        bool established = false;
        bool refused = false; ///< the server refused it
        bool gone = false;
    };
    /// The links that carry the selected output, or the chosen programs, to the driver's source.
    struct Wiring {
        std::set<Ports> links;
        std::set<const Mixer*> mixers; ///< through which links go
        bool complete = true;          ///< false while a node or some of its ports are missing
    };

    void quit() { pw_main_loop_quit(loop_.get()); }
    void leave();
    void onSteered(const std::string& key, const std::string& value);
    void choosePrograms(const std::string& value);
    void bindMetadata(std::uint32_t id);
    void createNode();
    void onGlobal(std::uint32_t id, const char* type, const spa_dict* properties);
    void onGlobalRemoved(std::uint32_t id);
    void onMetadata(std::uint32_t subject, const char* key, const char* value);
    /// Runs reconcile() after the server has reported all events so far.
    void lookAgain() { pendingSync_ = pw_core_sync(core_.get(), PW_ID_CORE, 0); }
    void reconcile();
    void forgetLostLinks();
    void retryLater();
    [[nodiscard]] std::uint32_t nodeNamed(const std::string& name) const;
    [[nodiscard]] std::uint32_t target() const;
    enum class PortKind { Input, Output, Monitor };
    [[nodiscard]] std::vector<std::uint32_t> portsOf(std::uint32_t node, PortKind kind) const;
    [[nodiscard]] Wiring wiring();
    void wire(const std::vector<std::uint32_t>& from, Wiring& wiring);
    void wirePrograms(Wiring& wiring);
    void wireDirectly(const std::vector<std::uint32_t>& from, Wiring& wiring) const;
    void wireThroughMixer(const std::vector<std::uint32_t>& from, Wiring& wiring);
    [[nodiscard]] const Mixer* mixerFor(std::uint32_t node, const std::vector<std::string>& channels);
    [[nodiscard]] std::set<std::uint32_t> nodesWithOutput() const;
    void removeAllBut(const Wiring& wanted);
    void confirmChoice();
    void removeMetadata(const char* key);
    void removeStaleMetadata();
    [[nodiscard]] bool isLinkedByOthers(Ports ports) const;
    void connect(Ports ports);

    MainLoopPtr loop_;
    Platform::PipeWire::ContextPtr context_;
    Platform::PipeWire::CorePtr core_;
    Platform::PipeWire::Hook coreListener_;
    Platform::PipeWire::RegistryPtr registry_;
    Platform::PipeWire::Hook registryListener_;
    Platform::PipeWire::ProxyPtr node_;
    Platform::PipeWire::Hook nodeListener_;
    Platform::PipeWire::MetadataPtr metadata_;
    Platform::PipeWire::Hook metadataListener_;
    Platform::PipeWire::PropertiesPtr properties_;
    Platform::PipeWire::LoopSource interrupt_;
    Platform::PipeWire::LoopSource termination_;
    Platform::PipeWire::LoopSource retryTimer_;

    int pendingSync_ = -1;
    std::uint32_t metadataId_ = SPA_ID_INVALID;
    std::uint32_t ownId_ = SPA_ID_INVALID;
    bool created_ = false;
    bool listening_ = false;
    bool leaving_ = false;
    std::map<std::uint32_t, Node> nodes_;
    std::map<std::uint32_t, Port> ports_;
    std::map<std::uint32_t, Ports> serverLinks_; ///< all links of the server, by its id
    /// Of the selected output, and of the previous one until the new one delivers; or of programs.
    std::vector<std::unique_ptr<Mixer>> mixers_;
    std::map<Ports, Link> links_;
    std::map<Ports, SteadyClock::time_point> refused_; ///< when the server refused or removed a link of the driver
    SteadyClock::time_point mixerFailedAt_{};
    std::map<std::pair<std::uint32_t, std::string>, std::string> stale_; ///< by id and key
    std::string defaultOutput_;
    std::string steering_;   ///< a registry path; the key itself selects nothing; empty follows the default output
    std::string choiceText_; ///< encoded
    Platform::ProgramChoice choice_;
    std::string confirmedChoice_;                    ///< the last value of kProgramsAppliedKey
    bool carriesPrograms_ = false;                   ///< the links were made for chosen programs
    std::unique_ptr<Platform::StreamWatch> streams_; ///< exists since programs were chosen for the first time
};

// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Disc/linux/LibBurn.h"

#include <QByteArray>
#include <QSet>
#include <QStringList>

#include <dlfcn.h>

#include <atomic>
#include <mutex>
#include <thread>
#include <vector>

// Replacements for libburn's functions: those that use a drive are answered by a burner that the test sets up; those
// that only build a layout call the real library. Include this in one test file only.

/// The burner, and a record of the calls.
class LibBurnDouble {
public:
    LibBurnDouble() { current = this; }
    ~LibBurnDouble() {
        if (writer_.joinable())
            writer_.join();
        current = nullptr;
    }
    LibBurnDouble(const LibBurnDouble&) = delete;
    LibBurnDouble& operator=(const LibBurnDouble&) = delete;

    static inline LibBurnDouble* current = nullptr;

    // ---- set by the test
    std::atomic<burn::burn_disc_status> disc{burn::BURN_DISC_BLANK};
    std::atomic<int> profile{0x09};
    std::atomic<int> lastBlock{359'849};
    std::atomic<bool> erasable{false};
    QSet<QString> fails;                   ///< names of calls that fail as documented
    QByteArray says;                       ///< a message for the library to report
    std::atomic<bool> holdsWriting{false}; ///< while true, writing stops after the first second

    // ---- read by the test
    QStringList calls() {
        const std::lock_guard lock(mutex_);
        return calls_;
    }
    void forgetCalls() {
        const std::lock_guard lock(mutex_);
        calls_.clear();
    }
    QByteArray written() {
        const std::lock_guard lock(mutex_);
        return written_;
    }
    std::atomic<int> cancels{0};
    std::atomic<int> cancelsAtTheWrongTime{0};
    std::atomic<int> holds{0}; ///< number of drives that are grabbed now

    // ---- called by the functions below
    void note(const QString& call) {
        const std::lock_guard lock(mutex_);
        calls_.append(call);
    }
    bool failsAt(const char* call) const { return fails.contains(QString::fromLatin1(call)); }
    void addSource(burn::burn_source* source) {
        const std::lock_guard lock(mutex_);
        sources_.push_back(source);
    }
    void beginLayout() {
        const std::lock_guard lock(mutex_);
        sources_.clear();
        written_.clear();
        cancelled_ = false;
    }
    void write() {
        if (writer_.joinable())
            writer_.join();
        status_ = burn::BURN_DRIVE_SPAWNING;
        writer_ = std::thread([this] {
            status_ = burn::BURN_DRIVE_WRITING_LEADIN;
            std::vector<burn::burn_source*> sources;
            {
                const std::lock_guard lock(mutex_);
                sources = sources_;
            }
            status_ = burn::BURN_DRIVE_WRITING;
            for (std::size_t i = 0; i < sources.size(); ++i) {
                track_ = int(i);
                sector_ = 0;
                std::vector<unsigned char> sector(2352);
                const auto size = sources[i]->get_size(sources[i]);
                for (off_t done = 0; done < size && !cancelled_; done += 2352) {
                    while (holdsWriting && sector_ >= 75 && !cancelled_)
                        std::this_thread::yield();
                    const int got = sources[i]->read_xt(sources[i], sector.data(), 2352);
                    const std::lock_guard lock(mutex_);
                    if (got > 0)
                        written_.append(reinterpret_cast<const char*>(sector.data()), got);
                    else
                        written_.append(2352, '\0'); // the library pads a source that ends early
                    ++sector_;
                }
            }
            status_ = burn::BURN_DRIVE_WRITING_LEADOUT;
            status_ = burn::BURN_DRIVE_IDLE;
        });
    }
    void erase() {
        if (writer_.joinable())
            writer_.join();
        status_ = burn::BURN_DRIVE_ERASING;
        writer_ = std::thread([this] {
            for (sector_ = 0; sector_ < 0x10000; sector_ = sector_ + 0x4000)
                std::this_thread::sleep_for(std::chrono::milliseconds(60));
            disc = burn::BURN_DISC_BLANK;
            status_ = burn::BURN_DRIVE_IDLE;
        });
    }
    burn::burn_drive_status status(burn::burn_progress* progress) {
        if (progress) {
            progress->track = track_;
            progress->sector = sector_;
        }
        return status_;
    }
    void cancel() {
        ++cancels;
        if (status_ != burn::BURN_DRIVE_WRITING)
            ++cancelsAtTheWrongTime;
        cancelled_ = true;
    }
    [[nodiscard]] bool wasCancelled() const { return cancelled_; }
    burn::burn_drive* drive() { return reinterpret_cast<burn::burn_drive*>(this); }

private:
    std::mutex mutex_; // guards the members below
    QStringList calls_;
    QByteArray written_;
    std::vector<burn::burn_source*> sources_;

    std::atomic<burn::burn_drive_status> status_{burn::BURN_DRIVE_IDLE};
    std::atomic<int> track_{0};
    std::atomic<int> sector_{0};
    std::atomic<bool> cancelled_{false};
    std::thread writer_;
};

namespace burn {

#define REAL(name) (reinterpret_cast<decltype(&::burn::name)>(dlsym(RTLD_NEXT, #name)))

inline LibBurnDouble& burner() {
    return *LibBurnDouble::current;
}

extern "C" {

int burn_initialize(void) {
    burner().note(QStringLiteral("initialize"));
    return burner().failsAt("initialize") ? 0 : REAL(burn_initialize)();
}
void burn_finish(void) {
    if (LibBurnDouble::current)
        burner().note(QStringLiteral("finish"));
    REAL(burn_finish)();
}
int burn_msgs_obtain(char*, int*, char text[], int*, char*) {
    if (burner().says.isEmpty())
        return 0;
    qstrncpy(text, burner().says.constData(), BURN_MSGS_MESSAGE_LEN);
    burner().says.clear();
    return 1;
}
int burn_drive_scan_and_grab(burn_drive_info* infos[], char* adr, int load) {
    burner().note(QStringLiteral("grab %1 %2").arg(QString::fromLatin1(adr)).arg(load));
    if (burner().failsAt("grab"))
        return 0;
    ++burner().holds;
    *infos = new burn_drive_info{};
    (*infos)->drive = burner().drive();
    return 1;
}
void burn_drive_info_free(burn_drive_info infos[]) {
    delete infos;
}
void burn_drive_release(burn_drive*, int eject) {
    burner().note(QStringLiteral("release %1").arg(eject));
    --burner().holds;
}
burn_disc_status burn_disc_get_status(burn_drive*) {
    return burner().disc;
}
int burn_disc_get_profile(burn_drive*, int* number, char name[80]) {
    *number = burner().profile;
    qstrncpy(name,
             burner().profile == 0x09   ? "CD-R"
             : burner().profile == 0x0a ? "CD-RW"
                                        : "DVD-R sequential recording",
             80);
    return burner().failsAt("profile") ? 0 : 1;
}
int burn_disc_read_atip(burn_drive*) {
    return burner().failsAt("atip") ? 0 : 1;
}
int burn_drive_get_start_end_lba(burn_drive*, int* start, int* end, int) {
    *start = -150;
    *end = burner().lastBlock;
    return burner().failsAt("lba") ? 0 : 1;
}
off_t burn_disc_available_space(burn_drive*, burn_write_opts*) {
    return off_t(burner().lastBlock) * 2048;
}
int burn_disc_erasable(burn_drive*) {
    return burner().erasable ? 1 : 0;
}
int burn_drive_get_write_speed(burn_drive*) {
    return 8467;
}
burn_disc* burn_disc_create(void) {
    burner().note(QStringLiteral("disc"));
    burner().beginLayout();
    return burner().failsAt("disc") ? nullptr : REAL(burn_disc_create)();
}
burn_session* burn_session_create(void) {
    burner().note(QStringLiteral("session"));
    return burner().failsAt("session") ? nullptr : REAL(burn_session_create)();
}
int burn_disc_add_session(burn_disc* d, burn_session* s, unsigned int place) {
    burner().note(QStringLiteral("add session"));
    return burner().failsAt("add session") ? 0 : REAL(burn_disc_add_session)(d, s, place);
}
burn_track* burn_track_create(void) {
    burner().note(QStringLiteral("track"));
    return burner().failsAt("track") ? nullptr : REAL(burn_track_create)();
}
void burn_track_define_data(burn_track* t, int offset, int tail, int pad, int mode) {
    burner().note(QStringLiteral("define %1 %2 %3 %4")
                      .arg(offset)
                      .arg(tail)
                      .arg(pad)
                      .arg(mode == BURN_AUDIO   ? QStringLiteral("audio")
                           : mode == BURN_MODE1 ? QStringLiteral("data")
                                                : QStringLiteral("?")));
    REAL(burn_track_define_data)(t, offset, tail, pad, mode);
}
int burn_track_set_pregap_size(burn_track* t, int size, int flag) {
    burner().note(QStringLiteral("pre-gap %1").arg(size));
    return burner().failsAt("pre-gap") ? 0 : REAL(burn_track_set_pregap_size)(t, size, flag);
}
burn_source_status burn_track_set_source(burn_track* t, burn_source* s) {
    burner().addSource(s);
    burner().note(QStringLiteral("source %1").arg(s->get_size(s)));
    return burner().failsAt("source") ? BURN_SOURCE_FAILED : REAL(burn_track_set_source)(t, s);
}
int burn_session_add_track(burn_session* s, burn_track* t, unsigned int place) {
    burner().note(QStringLiteral("add track"));
    return burner().failsAt("add track") ? 0 : REAL(burn_session_add_track)(s, t, place);
}
burn_write_opts* burn_write_opts_new(burn_drive* d) {
    burner().note(QStringLiteral("options"));
    return burner().failsAt("options") ? nullptr : reinterpret_cast<burn_write_opts*>(d);
}
void burn_write_opts_free(burn_write_opts*) {
    burner().note(QStringLiteral("free options"));
}
void burn_write_opts_set_perform_opc(burn_write_opts*, int) {
}
void burn_write_opts_set_multi(burn_write_opts*, int multi) {
    burner().note(QStringLiteral("multi %1").arg(multi));
}
int burn_write_opts_set_underrun_proof(burn_write_opts*, int on) {
    burner().note(QStringLiteral("underrun proof %1").arg(on));
    return burner().failsAt("underrun proof") ? 0 : 1; // some drives do not support this; the burn continues
}
int burn_write_opts_set_write_type(burn_write_opts*, burn_write_types type, int block) {
    burner().note(type == BURN_WRITE_SAO && block == BURN_BLOCK_SAO ? QStringLiteral("type SAO")
                                                                    : QStringLiteral("type ?"));
    return burner().failsAt("type") ? 0 : 1;
}
burn_write_types burn_write_opts_auto_write_type(burn_write_opts*, burn_disc*, char reasons[BURN_REASONS_LEN], int) {
    burner().note(QStringLiteral("automatic type"));
    qstrncpy(reasons, "MEDIA: unsuitable", BURN_REASONS_LEN);
    return burner().failsAt("automatic type") ? BURN_WRITE_NONE : BURN_WRITE_TAO;
}
int burn_precheck_write(burn_write_opts*, burn_disc*, char reasons[BURN_REASONS_LEN], int) {
    burner().note(QStringLiteral("check"));
    qstrncpy(reasons, burner().failsAt("check") ? "SAO: cannot" : "", BURN_REASONS_LEN);
    return burner().failsAt("check") ? 0 : burner().failsAt("check: no media") ? -1 : 1;
}
void burn_drive_set_speed(burn_drive*, int read, int write) {
    burner().note(QStringLiteral("speed %1 %2").arg(read).arg(write));
}
void burn_disc_write(burn_write_opts*, burn_disc*) {
    burner().note(QStringLiteral("write"));
    burner().write();
}
burn_drive_status burn_drive_get_status(burn_drive*, burn_progress* progress) {
    return burner().status(progress);
}
void burn_drive_cancel(burn_drive*) {
    burner().note(QStringLiteral("cancel"));
    burner().cancel();
}
void burn_disc_erase(burn_drive*, int fast) {
    burner().note(QStringLiteral("erase %1").arg(fast));
    burner().erase();
}
int burn_drive_wrote_well(burn_drive*) {
    burner().note(QStringLiteral("well?"));
    return burner().failsAt("well?") || burner().wasCancelled() ? 0 : 1;
}

} // extern "C"

#undef REAL

} // namespace burn

# SPDX-FileCopyrightText: 2026 The Sonaphex authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Functions of the scripts: finding and installing packages, configuring and building. Source this file.

say() { printf '\033[1m==>\033[0m %s\n' "$*" >&2; }
die() { printf '%s: %s\n' "$(basename "$0")" "$*" >&2; exit 1; }

# Package lists: for building, running, testing and benchmarking.
apt_build="cmake ninja-build g++ ccache pkg-config qt6-base-dev qt6-svg-dev qt6-tools-dev qt6-l10n-tools libpipewire-0.3-dev libavcodec-dev libavformat-dev
  libavutil-dev libswresample-dev libtag1-dev libplist-dev libxcb1-dev libxcb-keysyms1-dev libburn-dev libudev-dev"
apt_run="pipewire pipewire-bin wireplumber libspa-0.2-modules libqt6svg6 qt6-image-formats-plugins fonts-inter
  fonts-droid-fallback qt6-translations-l10n file findutils xdg-utils"
apt_test="libgtest-dev libgmock-dev xvfb xauth x11-utils x11-xkb-utils dbus dbus-daemon xdotool openbox trayer|stalonetray playerctl libglib2.0-bin
  libgtk-3-bin dunst xdg-desktop-portal qt6-wayland sway desktop-file-utils at-spi2-core libatspi2.0-dev ffmpeg faad
  mediainfo atomicparsley sox libsox-fmt-all gstreamer1.0-tools gstreamer1.0-plugins-base gstreamer1.0-plugins-good
  gstreamer1.0-plugins-bad gstreamer1.0-libav pipewire-pulse procps libcdio-utils bchunk groff-base zsh fish time"
apt_package="build-essential debhelper dpkg-dev lintian appstream desktop-file-utils git"
apt_check="clang-format clang-tidy clazy git"
apt_const="clang-tidy-15"
apt_bench="$apt_test qmmp pavucontrol"

dnf_build="cmake ninja-build gcc-c++ ccache pkgconf qt6-qtbase-devel qt6-qtsvg-devel qt6-qttools-devel pipewire-devel ffmpeg-free-devel
  taglib-devel libplist-devel libxcb-devel xcb-util-keysyms-devel libburn-devel systemd-devel"
dnf_run="pipewire pipewire-utils wireplumber qt6-qtsvg qt6-qtimageformats qt6-qttranslations rsms-inter-fonts file findutils xdg-utils"
pacman_build="cmake ninja gcc ccache pkgconf qt6-base qt6-svg qt6-tools libpipewire ffmpeg taglib libplist libxcb
  xcb-util-keysyms libburn systemd-libs"
pacman_run="pipewire wireplumber qt6-svg qt6-imageformats qt6-translations inter-font file findutils xdg-utils"

as_root() {
    if [ "$(id -u)" = 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        die "cannot install packages: neither root nor sudo. Please install: ${*: -1}"
    fi
}

# first_available A|B: prints the first of the packages that apt can install.
first_available() {
    local name
    for name in ${1//|/ }; do
        if LC_ALL=C apt-cache policy "$name" 2>/dev/null | grep -q 'Candidate: [^(]'; then break; fi
    done
    printf '%s' "$name"
}

# need_packages build run ...: installs the missing packages of the named lists. Of "A|B" either will do: no package has
# that name in every distribution.
need_packages() {
    local kind names="" missing="" name
    if command -v apt-get >/dev/null; then
        for kind in "$@"; do local list="apt_$kind"; names+=" ${!list}"; done
        local have
        have=" $(dpkg-query -W -f='${db:Status-Status} ${Package}\n' 2>/dev/null | sed -n 's/^installed //p' | tr '\n' ' ') "
        for name in $names; do [[ "$have" == *" ${name%|*} "* || "$have" == *" ${name#*|} "* ]] || missing+=" $name"; done
        [ -n "$missing" ] || return 0
        as_root apt-get -o DPkg::Lock::Timeout=300 update -q >&2 || say "apt-get update failed; trying with the lists at hand"
        names=$missing missing=
        for name in $names; do missing+=" $(first_available "$name")"; done
        say "installing with apt:$missing"
        # shellcheck disable=SC2086
        as_root env DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=300 install -y -q --no-install-recommends $missing >&2 ||
            die "apt could not install:$missing"
    elif command -v dnf >/dev/null; then
        for kind in build run; do local list="dnf_$kind"; names+=" ${!list}"; done
        for name in $names; do rpm -q --whatprovides "$name" >/dev/null 2>&1 || missing+=" $name"; done
        [ -n "$missing" ] || return 0
        say "installing with dnf:$missing"
        # shellcheck disable=SC2086
        as_root dnf install -y $missing >&2 || die "dnf could not install:$missing"
    elif command -v pacman >/dev/null; then
        for kind in build run; do local list="pacman_$kind"; names+=" ${!list}"; done
        # shellcheck disable=SC2086
        missing=$(pacman -T $names || true)
        [ -n "$missing" ] || return 0
        say "installing with pacman: $missing"
        # shellcheck disable=SC2086
        as_root pacman -S --needed --noconfirm $missing >&2 || die "pacman could not install: $missing"
    else
        say "no known package manager; building with what is there"
    fi
}

build_once() {
    local preset=$1
    shift
    if [ ! -f "build/$preset/build.ninja" ]; then
        say "configuring ($preset)"
        cmake --preset "$preset" >"build-$preset.log" 2>&1 || { cat "build-$preset.log" >&2; rm -f "build-$preset.log"; die "configuring failed"; }
        rm -f "build-$preset.log"
    fi
    # Prints nothing when only the check for new files ran.
    cmake --build --preset "$preset" ${1:+--target} "$@" 2>&1 | awk -v preset="$preset" '
        /no work to do|Re-checking globbed directories/ { next }
        !said { print "==> building (" preset ")"; said = 1 }
        { print; fflush() }' >&2
}

# build PRESET [targets]: configures if needed, then builds. When a build in batches fails, for example because two files
# of a batch define the same name, it builds file by file.
build() {
    build_once "$@" && return
    grep -q '^SONAPHEX_UNITY:BOOL=ON$' "build/$1/CMakeCache.txt" || die "the build failed"
    say "building file by file ($1)"
    cmake -DSONAPHEX_UNITY=OFF "build/$1" >/dev/null && build_once "$@" || die "the build failed"
}

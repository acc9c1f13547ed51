#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Sonaphex authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Measures the main window with a library of 10,000 and of 200 recordings: the time from the start of the process to the
# painted window, and memory, compared with qmmp, a Qt player whose list has as many files; and the processor time at
# rest while the level moves, compared with pavucontrol showing its meter, and while hidden and iconified. The sound
# server runs before, as on a desktop: a program without a window keeps the private server running.
set -euo pipefail
. "${LIB:?run this through scripts/bench}/bench.sh"

runs=${RUNS:-7}
idle=${IDLE:-10}
: "${BUILD:?run this through scripts/bench}" "${SCRATCH:?}"

children=()
cleanup() { for child in "${children[@]}"; do kill "$child" 2>/dev/null || true; wait "$child" 2>/dev/null || true; done; }
trap cleanup EXIT

Xvfb -displayfd 6 -screen 0 1280x900x24 -nolisten tcp -noreset 6>"$SCRATCH/display" >"$SCRATCH/xvfb.log" 2>&1 &
children+=($!)
for _ in $(seq 200); do [ -s "$SCRATCH/display" ] && break; sleep 0.05; done
DISPLAY=:$(cat "$SCRATCH/display")
export DISPLAY QT_QPA_PLATFORM=xcb

mkdir -m 0700 "$SCRATCH/keeper" "$SCRATCH/keeper/run" "$SCRATCH/keeper/tmp"
env HOME="$SCRATCH/keeper" XDG_CONFIG_HOME="$SCRATCH/keeper/config" XDG_RUNTIME_DIR="$SCRATCH/keeper/run" \
    TMPDIR="$SCRATCH/keeper/tmp" QT_QPA_PLATFORM=offscreen "$BUILD/bin/sonaphex" >"$SCRATCH/keeper.log" 2>&1 &
children+=($!)
for _ in $(seq 200); do
    PIPEWIRE_RUNTIME_DIR=$(find "$SCRATCH/keeper/run" -maxdepth 1 -name 'sonaphex-audio-*' | head -1)
    [ -S "${PIPEWIRE_RUNTIME_DIR:-/nowhere}/pipewire-0" ] && break
    sleep 0.05
done
export PIPEWIRE_RUNTIME_DIR
sleep 1 # its devices

# So many recordings in the formats of both programs' lists.
fill() { # count
    awk -v n="$1" 'BEGIN {
        print "<?xml version=\"1.0\" encoding=\"UTF-8\"?><plist version=\"1.0\"><dict><key>kMediaLibrarySavedKey</key><dict>"
        print "<key>ringtones</key><array/><key>records</key><array>"
        for (i = 0; i < n; i++)
            printf "<dict><key>AddAudioDate</key><string>2026/11/21</string><key>AddAudioLength</key><real>%d.5</real>" \
                   "<key>AudioSavePath</key><string>/nowhere/Track%d.m4a</string><key>ID3AlbumKey</key><string>NO Album" \
                   "</string><key>ID3ArtistKey</key><string>NO Artist</string><key>ID3GenreKey</key><string>NO General" \
                   "</string><key>ID3TitleKey</key><string>Track%d</string><key>ID3YearKey</key><integer>2012</integer>" \
                   "<key>MediaLibraryNodeDataKey</key><string>/nowhere/Track%d.m4a_%d.5</string></dict>\n", i % 4000, i, i, i, i
        print "</array></dict></dict></plist>"
    }' >"$XDG_CONFIG_HOME/com.korvane.Sonaphex.plist"
    awk -v n="$1" 'BEGIN {
        print "current_playlist=0\nplaylist=Playlist\ncurrent=0"
        for (i = 0; i < n; i++)
            printf "file=/nowhere/Track%d.m4a\ntitle=Track%d\nartist=NO Artist\nalbum=NO Album\ngenre=NO General\n" \
                   "year=2012\nduration=%d500\n", i, i, i % 4000
    }' >"$HOME/.qmmp/playlist.txt"
}
# How many files qmmp lists, asked from a running qmmp.
listed_by_qmmp() {
    local count=0 peer
    qmmp >/dev/null 2>&1 &
    peer=$!
    # Asked earlier, the asking qmmp would become the running one, and this one would end.
    timeout 60 xdotool search --sync --onlyvisible --pid $peer >/dev/null
    for _ in $(seq 40); do
        count=$(timeout 5 qmmp --pl-dump 2>/dev/null | grep -c 'NO Artist' || true)
        [ "$count" = 0 ] || break
        sleep 0.5
    done
    kill "$peer"
    wait "$peer" 2>/dev/null || true
    echo "$count"
}
median() { sort -n | awk '{ v[NR] = $1 } END { print v[int((NR + 1) / 2)] }'; }

mkdir -p "$XDG_CONFIG_HOME" "$HOME/.qmmp"
for entries in 200 10000; do
    fill "$entries"
    equal "recordings in the list" "$("$BUILD/bin/sonaphex" library --json | grep -o '/nowhere/Track[0-9]*.m4a"' | wc -l)" \
        "$(listed_by_qmmp)"
    rm -f "$SCRATCH/ours" "$SCRATCH/peer"
    # The two alternate, so that a temporary load affects both.
    for _ in $(seq "$runs"); do
        "$BUILD/bin/bench_window" "$BUILD/bin/sonaphex" >>"$SCRATCH/ours"
        "$BUILD/bin/bench_window" qmmp >>"$SCRATCH/peer"
    done
    aim="1.20 or less"
    if [ "$entries" = 200 ]; then aim="1.00 or less"; fi
    report "window, start to painted, $entries recordings (qmmp)" "$(median <"$SCRATCH/ours")" "$(median <"$SCRATCH/peer")" ms "$aim"
    equal "runs that ended with a painted window" "$(wc -l <"$SCRATCH/ours")" "$(wc -l <"$SCRATCH/peer")"
    not_equal "ours opens the sound server and its devices, the peer opens the sound output when it plays"
done
"$BUILD/bin/bench_window" --idle "$idle" "$BUILD/bin/sonaphex" >"$SCRATCH/ours.idle"
"$BUILD/bin/bench_window" --idle 1 qmmp >"$SCRATCH/peer.idle"
read -r _ ours_cpu ours_mb <"$SCRATCH/ours.idle"
read -r _ _ peer_mb <"$SCRATCH/peer.idle"
report "window, memory, 10000 recordings (qmmp)" "$ours_mb" "$peer_mb" MB "1.15 or less"

# A mixer that shows the same microphone's level.
export PULSE_RUNTIME_PATH=$XDG_RUNTIME_DIR/pulse
pipewire-pulse >/dev/null 2>&1 &
children+=($!)
for _ in $(seq 100); do [ -S "$PULSE_RUNTIME_PATH/native" ] && break; sleep 0.05; done
"$BUILD/bin/bench_window" --idle "$idle" pavucontrol -t 4 >"$SCRATCH/mixer.idle" &
mixer=$!
sleep 3
peak=$(pw-link --links | grep -c 'sonaphex.tone:' || true)
wait "$mixer"
read -r _ mixer_cpu _ <"$SCRATCH/mixer.idle"
report "window at rest, level moving (pavucontrol)" "$ours_cpu" "$mixer_cpu" "% of a core" "0.50 or less, and under 0.9 %"
holds "the mixer listened to the microphone" test "$peak" -ge 1
not_equal "ours keeps a history of the level and captures every frame, the mixer draws a bar for each device"

# Percent of a core of a process.
percent() { # process
    local before after
    before=$(awk '{ print $14 + $15 }' "/proc/$1/stat")
    sleep "$idle"
    after=$(awk '{ print $14 + $15 }' "/proc/$1/stat") || fail "the program ended while it should rest"
    awk -v a="$before" -v b="$after" -v s="$idle" -v t="$(getconf CLK_TCK)" 'BEGIN { printf "%.2f", 100 * (b - a) / t / s }'
}
"$BUILD/bin/sonaphex" --hidden >/dev/null 2>&1 &
hidden=$!
children+=($hidden)
sleep 4
hidden_cpu=$(percent $hidden)
report "window at rest, hidden" "$hidden_cpu" - "% of a core" "under 0.4 %"
holds "its engine listens to the microphone" sh -c "pw-link --links sonaphex.capture | grep -q sonaphex.tone"
kill $hidden
wait $hidden 2>/dev/null || true

openbox >/dev/null 2>&1 &
children+=($!)
# A window that asks to be shown while the window manager takes over is shown by nobody.
for _ in $(seq 200); do xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id' && break; sleep 0.05; done
"$BUILD/bin/sonaphex" >/dev/null 2>&1 &
small=$!
children+=($small)
window=$(timeout 30 xdotool search --sync --onlyvisible --pid $small | tail -1)
sleep 3
xdotool windowminimize "$window"
sleep 1
holds "the window is iconified" sh -c "xprop -id $window WM_STATE | grep -q Iconic"
small_cpu=$(percent $small)
report "window at rest, iconified" "$small_cpu" - "% of a core" "under 0.4 %"

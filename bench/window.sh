#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Sonaphex authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Measures the main window with a library of 10,000 recordings: the time from the start of the process to the painted
# window, the processor time while idle with running engines, and memory; compared with qmmp, a Qt player with an empty
# list. The sound server runs before, as on a desktop: a program without a window keeps the private server running.
set -euo pipefail
. "${LIB:?run this through scripts/bench}/bench.sh"

entries=10000
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

# The recordings in the format of the stored library.
mkdir -p "$XDG_CONFIG_HOME"
awk -v n="$entries" 'BEGIN {
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

listed=$("$BUILD/bin/sonaphex" library --json | grep -o /nowhere/Track | wc -l)

median() { sort -n | awk '{ v[NR] = $1 } END { print v[int((NR + 1) / 2)] }'; }

# The two alternate, so that a temporary load affects both.
for _ in $(seq "$runs"); do
    "$BUILD/bin/bench_window" "$BUILD/bin/sonaphex" >>"$SCRATCH/ours"
    "$BUILD/bin/bench_window" qmmp >>"$SCRATCH/peer"
done
"$BUILD/bin/bench_window" --idle "$idle" "$BUILD/bin/sonaphex" >"$SCRATCH/ours.idle"
"$BUILD/bin/bench_window" --idle "$idle" qmmp >"$SCRATCH/peer.idle"

read -r _ ours_cpu ours_mb <"$SCRATCH/ours.idle"
read -r _ peer_cpu peer_mb <"$SCRATCH/peer.idle"
ours=$(median <"$SCRATCH/ours")
peer=$(median <"$SCRATCH/peer")
report "window, start to painted, $entries recordings (qmmp)" "$ours" "$peer" ms "under 300 ms"
report "window, idle (qmmp)" "$ours_cpu" "$peer_cpu" "% of a core" "under 2 %"
report "window, memory, $entries recordings (qmmp)" "$ours_mb" "$peer_mb" MB "-"
holds "the library that is shown has $entries recordings" test "$listed" -ge "$entries"
equal "runs that ended with a painted window" "$(wc -l <"$SCRATCH/ours")" "$(wc -l <"$SCRATCH/peer")"
not_equal "ours lists $entries recordings, the peer nothing"
not_equal "ours runs both its engines and its level display while idle, the peer is at rest"

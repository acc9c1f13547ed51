#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Sonaphex authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Recording one input device beside other recorders, on a private sound server. Run by scripts/bench.
# BENCH_SECONDS: how long each records (60).
set -euo pipefail
seconds=${BENCH_SECONDS:-60}
bin=$BUILD/bin
resources=$bin/Resources
chmod 0700 "$XDG_RUNTIME_DIR"

# The server ends with this script: the keeper watches its process and its standard input.
coproc KEEPER { exec "$resources/AudioSessionKeeper" $$ "$XDG_RUNTIME_DIR" "$resources/AudioSession" \
    "$(command -v pipewire)" "$(command -v wireplumber)" "$resources/ToneSource"; }
read -r -t 20 word folder <&"${KEEPER[0]}"
[ "$word" = ready ] || { echo "the sound server did not start: $folder" >&2; exit 1; }
export PIPEWIRE_RUNTIME_DIR=$folder
for _ in $(seq 100); do
    "$bin/sonaphex" devices | grep -q "Test Tone" && break
    sleep 0.05
done
export PULSE_RUNTIME_PATH=$XDG_RUNTIME_DIR/pulse
pipewire-pulse >/dev/null 2>&1 &
pulse=$!
trap 'kill $pulse 2>/dev/null; wait $pulse 2>/dev/null || true' EXIT
for _ in $(seq 100); do [ -S "$PULSE_RUNTIME_PATH/native" ] && break; sleep 0.05; done

# "user system peak-kilobytes" of a command, whatever its exit status.
measure() { /usr/bin/time -q -o "$SCRATCH/time" -f "%U %S %M" "$@" >/dev/null 2>"$SCRATCH/errors" || true; cat "$SCRATCH/time"; }
cpu() { awk -v s="$seconds" '{ printf "%.3f", ($1 + $2) * 60 / s }'; }
peak() { awk '{ printf "%.1f", $3 / 1024 }'; }
line() { awk -v n="$1" -v o="$2" -v p="$3" -v u="$4" -v a="$5" \
    'BEGIN { printf "%s: ours %s %s, peer %s %s, ratio %.2f (aim %s)\n", n, o, u, p, u, (p > 0 ? o / p : 0), a }'; }

ours=$(measure "$bin/sonaphex" record --input "Test Tone" --for "$seconds" --filter off --folder "$SCRATCH/out")
ffmpeg=$(measure ffmpeg -v error -f pulse -i sonaphex.tone -t "$seconds" -c:a aac -y "$SCRATCH/peer.m4a")
[ -s "$SCRATCH/peer.m4a" ] || { echo "ffmpeg recorded nothing: $(cat "$SCRATCH/errors")" >&2; exit 1; }
wave=$(measure timeout -s INT "$seconds" pw-record --target sonaphex.tone "$SCRATCH/peer.wav")
[ -s "$SCRATCH/peer.wav" ] || { echo "pw-record recorded nothing: $(cat "$SCRATCH/errors")" >&2; exit 1; }
core=$(measure qtpaths6 --qt-version)

line "record: processor seconds a minute (ffmpeg -f pulse -c:a aac)" \
    "$(cpu <<<"$ours")" "$(cpu <<<"$ffmpeg")" s "1.00 or less"
line "record: processor seconds a minute (pw-record, WAVE, encodes nothing)" \
    "$(cpu <<<"$ours")" "$(cpu <<<"$wave")" s "none"
line "record: peak memory (ffmpeg)" "$(peak <<<"$ours")" "$(peak <<<"$ffmpeg")" MB "none"
line "record: peak memory (a program of Qt Core alone)" "$(peak <<<"$ours")" "$(peak <<<"$core")" MB "30 MB more"

# Pages that nobody shares with it, in the middle of a recording: what it costs a machine that runs other programs too.
private() {
    "$@" >/dev/null 2>&1 &
    local recorder=$!
    sleep 3
    awk '/RssAnon/ { printf "%.1f", $2 / 1024 }' "/proc/$recorder/status"
    kill -INT "$recorder"
    wait "$recorder" || true
}
line "record: private memory (ffmpeg)" \
    "$(private "$bin/sonaphex" record --input "Test Tone" --filter off --folder "$SCRATCH/out")" \
    "$(private ffmpeg -v error -f pulse -i sonaphex.tone -c:a aac -y "$SCRATCH/peer.m4a")" MB "30 MB"

# From the start of the process to the capture of its first frame; the middle one of nine, the machine does other things.
starts=()
for _ in $(seq 9); do
    sleep 1 # the device comes to rest
    before=$EPOCHREALTIME
    first=$(QT_LOGGING_RULES="sonaphex.engine.debug=true" "$bin/sonaphex" record --input "Test Tone" --for 0.1 \
        --filter off --folder "$SCRATCH/out" 2>&1 | sed -n 's/.*first frame captured at //p')
    starts+=("$(awk -v a="$before" -v b="$first" 'BEGIN { printf "%.0f", (b - a) * 1000 }')")
done
middle=$(printf '%s\n' "${starts[@]}" | sort -n | sed -n 5p)
sleep 1
before=$EPOCHREALTIME
(timeout -s INT 5 pw-record --target sonaphex.tone "$SCRATCH/first.wav" >/dev/null 2>&1 || true) &
peer=999999
for _ in $(seq 1000); do
    if [ "$(stat -c %s "$SCRATCH/first.wav" 2>/dev/null || echo 0)" -gt 100 ]; then
        peer=$(awk -v a="$before" -v b="$EPOCHREALTIME" 'BEGIN { printf "%.0f", (b - a) * 1000 }')
        break
    fi
    sleep 0.004
done
wait $! || true
line "record: start to first captured frame (pw-record: to its first byte in the file)" "$middle" "$peer" ms "150 ms or less"

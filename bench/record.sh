#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Sonaphex authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Records one input device on a private sound server, compared with other recorders. Run by scripts/bench.
# BENCH_SECONDS: how long each records (60).
set -euo pipefail
. "${LIB:?run this through scripts/bench}/bench.sh"
seconds=${BENCH_SECONDS:-60}
bin=$BUILD/bin
resources=$bin/Resources
chmod 0700 "$XDG_RUNTIME_DIR"

# The keeper ends the server with this script: it watches the script's process and its own standard input.
coproc KEEPER { exec "$resources/AudioSessionKeeper" $$ "$XDG_RUNTIME_DIR" "$resources/AudioSession" \
    "$(command -v pipewire)" "$(command -v wireplumber)" "$resources/ToneSource"; }
read -r -t 20 word folder <&"${KEEPER[0]}"
[ "$word" = ready ] || fail "the sound server did not start: $folder"
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

# Seconds of processor time per minute of recorded audio.
a_minute() { awk -v c="$cpu" -v s="$(seconds_of "$1")" 'BEGIN { printf "%.3f", c * 60 / s }'; }
# Runs a recorder that only ends on a signal; timeout then returns its own status.
interrupted() {
    local status=0
    timeout -s INT "$seconds" "$@" || status=$?
    [ $status = 124 ] || { echo "it ended by itself, with status $status" >&2; return 1; }
}
export -f interrupted
export seconds

timed "$bin/sonaphex" record --input "Test Tone" --for "$seconds" --filter off --folder "$SCRATCH/out"
ours_cpu=$(a_minute "$SCRATCH/out/Track0.m4a") ours_memory=$memory
timed ffmpeg -v error -f pulse -i sonaphex.tone -t "$seconds" -c:a aac -y "$SCRATCH/peer.m4a"
ffmpeg_cpu=$(a_minute "$SCRATCH/peer.m4a") ffmpeg_memory=$memory
timed bash -c 'interrupted pw-record --target sonaphex.tone "$1"' bash "$SCRATCH/peer.wav"
wave_cpu=$(a_minute "$SCRATCH/peer.wav")
timed qtpaths6 --qt-version
core_memory=$memory

report "record: processor seconds a minute (ffmpeg -f pulse -c:a aac)" "$ours_cpu" "$ffmpeg_cpu" s "1.00 or less"
report "record: processor seconds a minute (pw-record, WAVE)" "$ours_cpu" "$wave_cpu" s none
report "record: peak memory (ffmpeg)" "$ours_memory" "$ffmpeg_memory" MB none
report "record: peak memory (a program of Qt Core alone)" "$ours_memory" "$core_memory" MB "30 MB more"
ours=$SCRATCH/out/Track0.m4a
equal "seconds recorded (ffmpeg)" "$(seconds_of "$ours")" "$(seconds_of "$SCRATCH/peer.m4a")" 0.2
equal "seconds recorded (pw-record)" "$(seconds_of "$ours")" "$(seconds_of "$SCRATCH/peer.wav")" 2
not_equal "pw-record is interrupted after $seconds s of its process; its figure is for the minute that it recorded"
equal "level in dB (ffmpeg)" "$(level_of "$ours")" "$(level_of "$SCRATCH/peer.m4a")" 0.3
equal "level in dB (pw-record)" "$(level_of "$ours")" "$(level_of "$SCRATCH/peer.wav")" 0.3
not_equal "rate and channels: ours $(format_of "$ours"), ffmpeg $(format_of "$SCRATCH/peer.m4a"), pw-record $(format_of "$SCRATCH/peer.wav")"
not_equal "the bit rate: ours $(kilobits_of "$ours") kb/s, ffmpeg $(kilobits_of "$SCRATCH/peer.m4a") kb/s"
not_equal "ours keeps the file playable while it grows, tags it and enters it into the library; pw-record encodes nothing"

# Private memory in the middle of a recording, without the pages that other programs share.
private() {
    "$@" >/dev/null 2>"$SCRATCH/errors" &
    local recorder=$! status=0
    sleep 3
    kill -0 "$recorder" 2>/dev/null || fail "$1 ended: $(tail -1 "$SCRATCH/errors")"
    awk '/RssAnon/ { printf "%.1f", $2 / 1024 }' "/proc/$recorder/status"
    kill -TERM "$recorder" # bash makes its background jobs ignore SIGINT
    wait "$recorder" || status=$?
    case $status in 0 | 143 | 255) ;; *) fail "$1 ended with status $status: $(tail -1 "$SCRATCH/errors")" ;; esac
}
ours_private=$(private "$bin/sonaphex" record --input "Test Tone" --filter off --folder "$SCRATCH/private")
ffmpeg_private=$(private ffmpeg -v error -f pulse -i sonaphex.tone -c:a aac -y "$SCRATCH/private.m4a")
report "record: private memory (ffmpeg)" "$ours_private" "$ffmpeg_private" MB "30 MB"
equal "seconds recorded" "$(seconds_of "$SCRATCH/private/Track0.m4a")" "$(seconds_of "$SCRATCH/private.m4a")" 1

# The same interval for both: from the start of the process until the server has linked the device to it, when the first
# cycles arrive. The median of nine runs.
linked() { # command...
    local begin line at="" recorder links
    exec 7< <(exec pw-link --monitor --links)
    links=$!
    while read -r -t 0.5 line <&7; do :; done # skip the existing links
    begin=$EPOCHREALTIME
    "$@" >/dev/null 2>"$SCRATCH/errors" &
    recorder=$!
    while read -r -t 20 line <&7; do
        case "$line" in *sonaphex.tone:*) at=$EPOCHREALTIME; break ;; esac
    done
    kill "$links" 2>/dev/null
    [ -n "$at" ] || fail "$1 was never linked: $(tail -1 "$SCRATCH/errors")"
    exec 7<&-
    sleep 0.3
    kill -TERM "$recorder" 2>/dev/null || fail "$1 ended by itself: $(tail -1 "$SCRATCH/errors")"
    wait "$recorder" || true # pw-record then exits with 1; ours is checked by its files
    awk -v a="$begin" -v b="$at" 'BEGIN { printf "%.0f\n", (b - a) * 1000 }'
}
ours_starts=() peer_starts=()
for _ in $(seq 9); do
    start=$(linked "$bin/sonaphex" record --input "Test Tone" --filter off --folder "$SCRATCH/starts")
    ours_starts+=("$start")
    start=$(linked pw-record --target sonaphex.tone "$SCRATCH/starts.wav")
    peer_starts+=("$start")
done
middle() { printf '%s\n' "$@" | sort -n | sed -n 5p; }
ours=$(middle "${ours_starts[@]}")
peer=$(middle "${peer_starts[@]}")
report "record: start of the process to the device's link (pw-record)" "$ours" "$peer" ms "150 ms or less"
holds "ours wrote nine files" test "$(find "$SCRATCH/starts" -name '*.m4a' | wc -l)" = 9
not_equal "ours opens the devices of both sources, looks for its driver and makes its folders first"

# From the start of the process to the capture of the first frame, from the program's log. Other programs do not log it.
starts=()
for _ in $(seq 9); do
    sleep 1 # the device becomes idle
    before=$EPOCHREALTIME
    must env QT_LOGGING_RULES="sonaphex.engine.debug=true" "$bin/sonaphex" record --input "Test Tone" --for 0.1 \
        --filter off --folder "$SCRATCH/firsts"
    first=$(sed -n 's/.*first frame captured at //p' "$SCRATCH/errors" | head -1)
    [ -n "$first" ] || fail "the log does not tell of the first frame"
    starts+=("$(awk -v a="$before" -v b="$first" 'BEGIN { printf "%.0f", (b - a) * 1000 }')")
done
ours=$(middle "${starts[@]}")
report "record: start of the process to the first captured frame" "$ours" - ms "150 ms or less"

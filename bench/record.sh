#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Sonaphex authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Records one input device on a private sound server, compared with other recorders: a tone, speech-like sound and pink
# noise, and the speech from a microphone with one channel. Run by scripts/bench.
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
children=("$pulse")
trap 'kill "${children[@]}" 2>/dev/null; wait "${children[@]}" 2>/dev/null || true' EXIT
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

# Devices like sound cards, which repeat 20 s. The speech is pulses of a voice in syllables through three formants, with
# hisses and pauses.
device() { # name, channels, ffmpeg's inputs and filter
    local name=$1 channels=$2
    shift 2
    must ffmpeg -v error "$@" -t 20 -ac "$channels" -ar 48000 -f f32le "$SCRATCH/$name.raw"
    "$bin/bench_source" "bench.$name" "Bench $name" "$channels" <"$SCRATCH/$name.raw" >/dev/null 2>&1 &
    children+=($!)
    for _ in $(seq 100); do
        "$bin/sonaphex" devices | grep -q "Bench $name" && return
        sleep 0.05
    done
    fail "the device $name did not appear"
}
device tone 2 -f lavfi -i "sine=frequency=440:sample_rate=48000" -af volume=2
speech=(-f lavfi -i "aevalsrc='(mod(t*(110+25*sin(2*PI*0.7*t)+8*sin(2*PI*5*t)),1)-0.5)*max(0,sin(2*PI*2.1*t))*gt(mod(t,4.3),0.9)':s=48000" \
    -f lavfi -i "anoisesrc=color=white:a=0.12:r=48000:seed=7" -filter_complex "[0]asplit=3[a][b][c];[a]bandpass=f=550:w=150[x];[b]bandpass=f=1500:w=200[y];[c]bandpass=f=2500:w=300[z];[1]highpass=f=4000,volume='if(gt(mod(t*2.1+0.3,1),0.82),1,0.004)':eval=frame[n];[x][y][z][n]amix=inputs=4:normalize=0,volume=2.2,aecho=0.9:0.7:37:0.15")
device speech 2 "${speech[@]}"
# Most microphones have one channel. Both programs record it as two.
device microphone 1 "${speech[@]}"
device pink 2 -f lavfi -i "anoisesrc=color=pink:a=0.3:r=48000:seed=3" -f lavfi -i "anoisesrc=color=pink:a=0.3:r=48000:seed=4" \
    -filter_complex amerge=inputs=2

settings=(-c:a aac -aac_coder fast -aac_pns 0 -aac_is 0 -aac_tns 0)
for sound in tone speech microphone pink; do
    ours=$SCRATCH/$sound/Track0.m4a peer=$SCRATCH/peer.$sound.m4a same=$SCRATCH/same.$sound.m4a
    timed "$bin/sonaphex" record --input "Bench $sound" --for "$seconds" --filter off --folder "$SCRATCH/$sound"
    ours_cpu=$(a_minute "$ours") ours_memory=$memory
    timed ffmpeg -v error -f pulse -i "bench.$sound" -t "$seconds" -c:a aac -y "$peer"
    peer_cpu=$(a_minute "$peer") ffmpeg_memory=$memory
    timed ffmpeg -v error -f pulse -i "bench.$sound" -t "$seconds" -ar 44100 "${settings[@]}" -y "$same"
    same_cpu=$(a_minute "$same")
    report "record $sound: processor seconds a minute (ffmpeg -f pulse -c:a aac)" "$ours_cpu" "$peer_cpu" s "0.80 or less"
    report "record $sound: processor seconds a minute (ffmpeg with our rate and encoder settings)" "$ours_cpu" "$same_cpu" s none
    for other in "$peer" "$same"; do
        equal "seconds recorded" "$(seconds_of "$ours")" "$(seconds_of "$other")" 0.2
        equal "level in dB" "$(level_of "$ours")" "$(level_of "$other")" 0.5
    done
    not_equal "rate and channels: ours $(format_of "$ours"), ffmpeg $(format_of "$peer"), with our settings $(format_of "$same")"
    not_equal "the bit rate: ours $(kilobits_of "$ours") kb/s, ffmpeg $(kilobits_of "$peer") kb/s"
done
not_equal "ours uses the fast coder, ffmpeg's default the one with two loops; media compares their errors at the same bit rate"

timed "$bin/sonaphex" record --input "Test Tone" --for "$seconds" --filter off --folder "$SCRATCH/out"
ours_cpu=$(a_minute "$SCRATCH/out/Track0.m4a")
timed bash -c 'interrupted pw-record --target sonaphex.tone "$1"' bash "$SCRATCH/peer.wav"
wave_cpu=$(a_minute "$SCRATCH/peer.wav")
timed qtpaths6 --qt-version
core_memory=$memory

report "record: processor seconds a minute (pw-record, WAVE)" "$ours_cpu" "$wave_cpu" s none
report "record: peak memory (ffmpeg)" "$ours_memory" "$ffmpeg_memory" MB none
report "record: peak memory (a program of Qt Core alone)" "$ours_memory" "$core_memory" MB "30 MB more"
ours=$SCRATCH/out/Track0.m4a
equal "seconds recorded (pw-record)" "$(seconds_of "$ours")" "$(seconds_of "$SCRATCH/peer.wav")" 2
not_equal "pw-record is interrupted after $seconds s of its process; its figure is for the minute that it recorded"
equal "level in dB (pw-record)" "$(level_of "$ours")" "$(level_of "$SCRATCH/peer.wav")" 0.3
not_equal "rate and channels: ours $(format_of "$ours"), pw-record $(format_of "$SCRATCH/peer.wav")"
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
report "record: private memory (ffmpeg)" "$ours_private" "$ffmpeg_private" MB "24 MB"
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

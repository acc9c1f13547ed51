#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Sonaphex authors
# SPDX-License-Identifier: GPL-3.0-or-later
# One hour of stereo through `sonaphex convert` and `sonaphex waveform`, beside the ffmpeg command line doing the same
# work in the same run. SECONDS_OF_SOUND shortens it. Each figure is the best of three turns, the programs by turns.
set -euo pipefail
cd "$SCRATCH"
program=$BUILD/bin/sonaphex
length=${SECONDS_OF_SOUND:-3600}
turns=${TURNS:-3}

# Broadband material that keeps an encoder busy: filtered noise under a few tones, different left and right.
ffmpeg -v error -y -f lavfi -i "anoisesrc=d=$length:c=pink:r=44100:a=0.3:seed=1" \
    -f lavfi -i "aevalsrc=0.2*sin(2*PI*t*(300+200*sin(t/3)))|0.2*sin(2*PI*t*(500+300*sin(t/5))):d=$length:s=44100" \
    -filter_complex "[0]pan=stereo|c0=c0|c1=0.7*c0[n];[n][1]amix=inputs=2:normalize=0" -c:a pcm_s16le source.wav
"$program" convert source.wav source.m4a

# measure NAME COMMAND...: keeps the smallest wall time, processor time (seconds) and memory (KiB) in wall[NAME] etc.
declare -A wall cpu memory
smaller() { awk -v a="$1" -v b="$2" 'BEGIN { print a == "" || b < a ? b : a }'; }
measure() {
    local name=$1 e u s m
    shift
    rm -f out.*
    /usr/bin/time -o time.txt -f "%e %U %S %M" "$@" >/dev/null
    read -r e u s m <time.txt
    wall[$name]=$(smaller "${wall[$name]:-}" "$e")
    cpu[$name]=$(smaller "${cpu[$name]:-}" "$(awk -v u="$u" -v s="$s" 'BEGIN { print u + s }')")
    memory[$name]=$(smaller "${memory[$name]:-}" "$m")
}
ratio() { awk -v a="$1" -v b="$2" 'BEGIN { printf "%.2f", a / (b > 0 ? b : 0.01) }'; }
# report NAME WALL-AIM [CPU-AIM]
report() {
    local name=$1 ours="ours-$1" peer="peer-$1"
    echo "$name wall: ours ${wall[$ours]} s, peer ${wall[$peer]} s, ratio $(ratio "${wall[$ours]}" "${wall[$peer]}") (aim $2)"
    [ $# -lt 3 ] ||
        echo "$name processor: ours ${cpu[$ours]} s, peer ${cpu[$peer]} s, ratio $(ratio "${cpu[$ours]}" "${cpu[$peer]}") (aim $3)"
    echo "$name memory: ours $((memory[$ours] / 1024)) MiB, peer $((memory[$peer] / 1024)) MiB," \
        "ratio $(ratio "${memory[$ours]}" "${memory[$peer]}") (aim peer + 64 MiB)"
}

for _ in $(seq "$turns"); do
    measure ours-aac-to-aac "$program" convert source.m4a out.m4a
    measure peer-aac-to-aac ffmpeg -v error -y -i source.m4a -c:a aac out.m4a
    measure ours-wave-to-aac "$program" convert source.wav out.m4a
    measure peer-wave-to-aac ffmpeg -v error -y -i source.wav -c:a aac out.m4a
    measure ours-aac-to-wave "$program" convert source.m4a out.wav
    measure peer-aac-to-wave ffmpeg -v error -y -i source.m4a -c:a pcm_s32le out.wav
    measure ours-waveform "$program" waveform source.m4a
    measure peer-waveform ffmpeg -v error -y -i source.m4a -f null -
done
report aac-to-aac 0.55 1.1
report wave-to-aac 0.55 1.1
report aac-to-wave 1.0
report waveform 0.3

#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Sonaphex authors
# SPDX-License-Identifier: GPL-3.0-or-later
# A disc of 79:59 written as an image, from one AAC file and from ten, beside ffmpeg decoding the same files to the same
# samples. ROUNDS sets how often each runs; the better run counts.
set -euo pipefail

work=${SCRATCH:?}/disc
ours=$BUILD/bin/sonaphex
mkdir -p "$work"
cd "$work"

# Runs a command; sets wall (seconds) and memory (MiB at its peak).
measure() {
    /usr/bin/time -o figures -f "%e %M" "$@" >/dev/null 2>errors || { cat errors >&2; return 1; }
    read -r wall kib < <(tail -1 figures)
    memory=$((kib / 1024))
}

ffmpeg -v error -f lavfi -i "aevalsrc='0.2*sin(2*PI*(220+60*sin(2*PI*0.3*t))*t)|0.2*sin(2*PI*330*t)':s=44100:d=60" \
    -f lavfi -i "anoisesrc=color=pink:a=0.08:d=60:r=44100" -filter_complex "[0][1]amix=inputs=2:normalize=0" \
    -ac 2 -c:a aac -b:a 128k minute.m4a
ffmpeg -v error -stream_loop 80 -i minute.m4a -t 4798.9 -c copy long.m4a
parts=()
for n in 0 1 2 3 4 5 6 7 8 9; do
    # Ten pre-gaps of a second are part of the disc.
    ffmpeg -v error -ss $((n * 479)) -t 478.9 -i long.m4a -c copy "part$n.m4a"
    parts+=("part$n.m4a")
done

decodeAll() {
    for file in "$@"; do
        ffmpeg -v error -y -i "$file" -ar 44100 -ac 2 -f s16le "$file.raw"
    done
}
export -f decodeAll

compare() {
    local name=$1 best=999999 peer=999999 ourMemory=0 base
    shift
    measure "$ours" --version
    base=$memory
    for ((i = 0; i < ${ROUNDS:-3}; ++i)); do
        rm -f disc.cue disc.bin
        measure "$ours" burn "$@" --image disc
        best=$(awk "BEGIN { print (($wall < $best) ? $wall : $best) }")
        ourMemory=$((memory > ourMemory ? memory : ourMemory))
        rm -f -- *.raw
        measure bash -c 'decodeAll "$@"' decode "$@"
        peer=$(awk "BEGIN { print (($wall < $peer) ? $wall : $peer) }")
    done
    awk -v name="$name" -v ours="$best" -v peer="$peer" \
        'BEGIN { printf "image of 79:59 from %s, wall time: ours %s s, peer %s s, ratio %.2f (aim 0.6)\n", name, ours, peer, ours / peer }'
    printf 'image of 79:59 from %s, peak memory: ours %d MiB, idle %d MiB, more %d MiB (aim 64)\n' \
        "$name" "$ourMemory" "$base" "$((ourMemory - base))"
}

compare "one file" long.m4a
compare "ten files" "${parts[@]}"

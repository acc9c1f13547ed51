#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Sonaphex authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Writes a disc of 79:59 as an image, from one AAC file and from ten; compared with ffmpeg, which decodes the same files
# to the same samples. ROUNDS sets how often each runs; the best run counts.
set -euo pipefail
. "${LIB:?run this through scripts/bench}/bench.sh"

work=${SCRATCH:?}/disc
ours=$BUILD/bin/sonaphex
mkdir -p "$work"
cd "$work"

ffmpeg -v error -f lavfi -i "aevalsrc='0.2*sin(2*PI*(220+60*sin(2*PI*0.3*t))*t)|0.2*sin(2*PI*330*t)':s=44100:d=60" \
    -f lavfi -i "anoisesrc=color=pink:a=0.08:d=60:r=44100" -filter_complex "[0][1]amix=inputs=2:normalize=0" \
    -ac 2 -c:a aac -b:a 128k minute.m4a
ffmpeg -v error -stream_loop 80 -i minute.m4a -t 4798.9 -c copy long.m4a
parts=()
for n in 0 1 2 3 4 5 6 7 8 9; do
    # The disc includes ten pre-gaps of a second.
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
    local name=$1 best=999999 peer=999999 ourMemory=0 base ourFrames peerFrames
    shift
    timed "$ours" --version
    base=$memory
    for ((i = 0; i < ${ROUNDS:-3}; ++i)); do
        rm -f disc.cue disc.bin
        timed "$ours" burn "$@" --image disc
        best=$(awk "BEGIN { print (($wall < $best) ? $wall : $best) }")
        ourMemory=$(awk "BEGIN { print (($memory > $ourMemory) ? $memory : $ourMemory) }")
        rm -f -- *.raw
        timed bash -c 'decodeAll "$@"' decode "$@"
        peer=$(awk "BEGIN { print (($wall < $peer) ? $wall : $peer) }")
    done
    # Four bytes per frame; each track begins with 75 sectors of 588 silent frames, and its last sector is padded.
    ourFrames=$(($(stat -c %s disc.bin) / 4 - $# * 75 * 588))
    peerFrames=$(($(cat -- *.raw | wc -c) / 4))
    equal "frames of $name" "$ourFrames" "$peerFrames" $(($# * 2048))
    report "image of 79:59 from $name, wall time" "$best" "$peer" s 0.6
    report "image of 79:59 from $name, memory beyond an idle program" \
        "$(awk "BEGIN { printf \"%.0f\", $ourMemory - $base }")" - MiB 64
}

not_equal "the image is synced to the disk and dithered where bits are taken away; ffmpeg's files are neither"
compare "one file" long.m4a
compare "ten files" "${parts[@]}"

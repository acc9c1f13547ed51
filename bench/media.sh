#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Sonaphex authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Conversions of an hour of stereo beside the ffmpeg command line doing the same work. MINUTES sets another length.
set -euo pipefail

work=${SCRATCH:?}/media
ours=$BUILD/bin/sonaphex
minutes=${MINUTES:-60}
mkdir -p "$work"
cd "$work"

# Runs a command; sets wall, cpu (seconds) and memory (MiB at its peak).
measure() {
    local figures=$work/figures
    sync
    /usr/bin/time -o "$figures" -f "%e %U %S %M" "$@" >/dev/null 2>"$work/errors" || { cat "$work/errors" >&2; return 1; }
    read -r wall user system kib < <(tail -1 "$figures")
    cpu=$(awk "BEGIN { print $user + $system }")
    memory=$(awk "BEGIN { printf \"%.0f\", $kib / 1024 }")
}

# report NAME OURS PEER AIM UNIT
report() {
    awk -v name="$1" -v ours="$2" -v peer="$3" -v aim="$4" -v unit="$5" \
        'BEGIN { printf "%s: ours %s%s, peer %s%s, ratio %.2f (aim %s)\n", name, ours, unit, peer, unit, ours / peer, aim }'
}

# Two commands by turns, ours and the peer's (after --); the better run of each counts, so that a passing load of the
# machine weighs on neither.
beside() {
    local rounds=$1 our=() peer=() into=our
    shift
    for word in "$@"; do
        if [ "$word" = -- ]; then into=peer; elif [ $into = our ]; then our+=("$word"); else peer+=("$word"); fi
    done
    ourWall=999999 peerWall=999999 ourCpu=999999 peerCpu=999999 ourMemory=0 peerMemory=0
    for ((i = 0; i < rounds; ++i)); do
        measure "${our[@]}"
        ourWall=$(awk "BEGIN { print (($wall < $ourWall) ? $wall : $ourWall) }")
        ourCpu=$(awk "BEGIN { print (($cpu < $ourCpu) ? $cpu : $ourCpu) }")
        ourMemory=$(awk "BEGIN { print (($memory > $ourMemory) ? $memory : $ourMemory) }")
        measure "${peer[@]}"
        peerWall=$(awk "BEGIN { print (($wall < $peerWall) ? $wall : $peerWall) }")
        peerCpu=$(awk "BEGIN { print (($cpu < $peerCpu) ? $cpu : $peerCpu) }")
        peerMemory=$(awk "BEGIN { print (($memory > $peerMemory) ? $memory : $peerMemory) }")
    done
}

rounds=${ROUNDS:-2}
ffmpeg -v error -f lavfi -i "aevalsrc='0.2*sin(2*PI*(220+60*sin(2*PI*0.3*t))*t)*(0.5+0.5*sin(2*PI*2*t))+0.1*sin(2*PI*880*t)*exp(-4*mod(t,0.5))|0.2*sin(2*PI*330*t)*(0.5+0.5*sin(2*PI*1.5*t))+0.1*sin(2*PI*1320*t)*exp(-4*mod(t,0.7))':s=44100:d=60" \
    -f lavfi -i "anoisesrc=color=pink:a=0.08:d=60:r=44100" -filter_complex "[0][1]amix=inputs=2:normalize=0" \
    -ac 2 -c:a pcm_s16le minute.wav
ffmpeg -v error -stream_loop $((minutes - 1)) -i minute.wav -c copy hour.wav

# The conversion lays the left channel into both, and so does the peer.
left=(-af "pan=stereo|c0=c0|c1=c0")
beside "$rounds" "$ours" convert hour.wav our.m4a --type m4a --overwrite -- \
    ffmpeg -v error -y -i hour.wav "${left[@]}" -c:a aac peer.m4a
report "WAVE to AAC, wall time" "$ourWall" "$peerWall" 0.55 " s"
report "WAVE to AAC, processor time" "$ourCpu" "$peerCpu" 1.1 " s"
report "WAVE to AAC, peak memory (aim: peer + 64)" "$ourMemory" "$peerMemory" "$(awk "BEGIN { printf \"%.2f\", 1 + 64 / $peerMemory }")" " MiB"

beside "$rounds" "$ours" convert our.m4a again.m4a --type m4a --overwrite -- \
    ffmpeg -v error -y -i our.m4a "${left[@]}" -c:a aac peer.m4a
report "AAC to AAC, wall time" "$ourWall" "$peerWall" 0.55 " s"
report "AAC to AAC, processor time" "$ourCpu" "$peerCpu" 1.1 " s"
report "AAC to AAC, peak memory (aim: peer + 64)" "$ourMemory" "$peerMemory" "$(awk "BEGIN { printf \"%.2f\", 1 + 64 / $peerMemory }")" " MiB"

beside "$((rounds + 1))" "$ours" convert our.m4a our.wav --type wav --overwrite -- \
    ffmpeg -v error -y -i our.m4a "${left[@]}" -c:a pcm_s32le peer.wav
report "AAC to WAVE, wall time" "$ourWall" "$peerWall" 1.0 " s"
rm -f our.wav peer.wav again.m4a

beside "$((rounds + 1))" "$ours" waveform our.m4a -- ffmpeg -v error -i our.m4a -f null -
report "waveform of an AAC file, wall time" "$ourWall" "$peerWall" 0.3 " s"

#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Sonaphex authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Converts an hour of stereo, compared with the ffmpeg command line doing the same work. MINUTES sets another length.
set -euo pipefail
. "${LIB:?run this through scripts/bench}/bench.sh"

work=${SCRATCH:?}/media
ours=$BUILD/bin/sonaphex
minutes=${MINUTES:-60}
mkdir -p "$work"
cd "$work"

# Runs two commands alternately, ours and the peer's (after --). The best run of each counts, so that a temporary load
# affects neither.
beside() {
    local rounds=$1 our=() peer=() into=our
    shift
    for word in "$@"; do
        if [ "$word" = -- ]; then into=peer; elif [ $into = our ]; then our+=("$word"); else peer+=("$word"); fi
    done
    ourWall=999999 peerWall=999999 ourCpu=999999 peerCpu=999999 ourMemory=0 peerMemory=0
    for ((i = 0; i < rounds; ++i)); do
        sync
        timed "${our[@]}"
        ourWall=$(awk "BEGIN { print (($wall < $ourWall) ? $wall : $ourWall) }")
        ourCpu=$(awk "BEGIN { print (($cpu < $ourCpu) ? $cpu : $ourCpu) }")
        ourMemory=$(awk "BEGIN { print (($memory > $ourMemory) ? $memory : $ourMemory) }")
        sync
        timed "${peer[@]}"
        peerWall=$(awk "BEGIN { print (($wall < $peerWall) ? $wall : $peerWall) }")
        peerCpu=$(awk "BEGIN { print (($cpu < $peerCpu) ? $cpu : $peerCpu) }")
        peerMemory=$(awk "BEGIN { print (($memory > $peerMemory) ? $memory : $peerMemory) }")
    done
}

# Checks that both outputs have the same format, length, and level in a minute in the middle.
same_sound() { # ours peer
    equal "codec, rate, channels" "$(format_of "$1")" "$(format_of "$2")"
    equal "frames" "$(frames_of "$1")" "$(frames_of "$2")" 2048
    equal "level in dB" "$(level_of "$1" $((minutes * 30)))" "$(level_of "$2" $((minutes * 30)))" 0.3
}

# Signal to error in dB of the first minute of an output, whose source's left channel is on both sides.
closeness() { # output source
    ffmpeg -v info -nostats -t 60 -i "$1" -t 60 -i "$2" \
        -filter_complex "[1]pan=stereo|c0=c0|c1=c0[source];[0][source]asdr" -f null - 2>&1 |
        sed -n 's/.*SDR ch0: \(.*\) dB/\1/p'
}
as_close() { # ours peer source
    local ours peer
    ours=$(closeness "$1" "$3")
    peer=$(closeness "$2" "$3")
    holds "as close to the source as the peer (ours $ours dB, peer $peer dB)" \
        awk -v a="$ours" -v b="$peer" 'BEGIN { exit !(a > 0 && b > 0 && a >= b - 0.5) }'
}

rounds=${ROUNDS:-2}
must ffmpeg -v error -f lavfi -i "aevalsrc='0.2*sin(2*PI*(220+60*sin(2*PI*0.3*t))*t)*(0.5+0.5*sin(2*PI*2*t))+0.1*sin(2*PI*880*t)*exp(-4*mod(t,0.5))|0.2*sin(2*PI*330*t)*(0.5+0.5*sin(2*PI*1.5*t))+0.1*sin(2*PI*1320*t)*exp(-4*mod(t,0.7))':s=44100:d=60" \
    -f lavfi -i "anoisesrc=color=pink:a=0.08:d=60:r=44100" -filter_complex "[0][1]amix=inputs=2:normalize=0" \
    -ac 2 -c:a pcm_s16le minute.wav
must ffmpeg -v error -stream_loop $((minutes - 1)) -i minute.wav -c copy hour.wav

# The conversion copies the left channel to both, and so does the peer.
left=(-af "pan=stereo|c0=c0|c1=c0")
beside "$rounds" "$ours" convert hour.wav our.m4a --type m4a --overwrite -- \
    ffmpeg -v error -y -i hour.wav "${left[@]}" -c:a aac peer.m4a
report "WAVE to AAC, wall time" "$ourWall" "$peerWall" s 0.55
report "WAVE to AAC, processor time" "$ourCpu" "$peerCpu" s 0.7
report "WAVE to AAC, peak memory (aim: peer + 64)" "$ourMemory" "$peerMemory" MiB "$(awk "BEGIN { printf \"%.2f\", 1 + 64 / $peerMemory }")"
same_sound our.m4a peer.m4a
as_close our.m4a peer.m4a hour.wav
not_equal "the bit rate: ours $(kilobits_of our.m4a) kb/s, peer $(kilobits_of peer.m4a) kb/s"
not_equal "ours encodes a long file on all cores, the peer on one"
not_equal "ours encodes one channel and stores it for both, because they are equal; the peer encodes both"

beside "$rounds" "$ours" convert our.m4a again.m4a --type m4a --overwrite -- \
    ffmpeg -v error -y -i our.m4a "${left[@]}" -c:a aac peer.m4a
report "AAC to AAC, wall time" "$ourWall" "$peerWall" s 0.55
report "AAC to AAC, processor time" "$ourCpu" "$peerCpu" s 0.7
report "AAC to AAC, peak memory (aim: peer + 64)" "$ourMemory" "$peerMemory" MiB "$(awk "BEGIN { printf \"%.2f\", 1 + 64 / $peerMemory }")"
same_sound again.m4a peer.m4a
as_close again.m4a peer.m4a our.m4a
not_equal "the bit rate: ours $(kilobits_of again.m4a) kb/s, peer $(kilobits_of peer.m4a) kb/s"

beside "$((rounds + 1))" "$ours" convert our.m4a our.wav --type wav --overwrite -- \
    ffmpeg -v error -y -i our.m4a "${left[@]}" -c:a pcm_s32le peer.wav
report "AAC to WAVE, wall time" "$ourWall" "$peerWall" s 1.0
same_sound our.wav peer.wav
rm -f our.wav peer.wav again.m4a

beside "$((rounds + 1))" "$ours" waveform our.m4a -- ffmpeg -v error -i our.m4a -f null -
report "waveform of an AAC file, wall time" "$ourWall" "$peerWall" s 0.3
must "$ours" waveform our.m4a
holds "ten values a second" test "$(wc -l <"$SCRATCH/output")" -ge $((minutes * 600 - 1))
not_equal "the peer decodes every packet and makes no values; ours decodes what its values need"

# A file of another program may contain noise that only its decoder makes: a value may differ by it.
beside "$rounds" "$ours" waveform peer.m4a -- ffmpeg -v error -i peer.m4a -f null -
report "waveform of an AAC file that ffmpeg made, wall time" "$ourWall" "$peerWall" s 0.6
report "waveform of an AAC file that ffmpeg made, processor time" "$ourCpu" "$peerCpu" s none
must "$ours" waveform peer.m4a
holds "ten values a second" test "$(wc -l <"$SCRATCH/output")" -ge $((minutes * 600 - 1))
not_equal "the peer decodes every packet and makes no values; ours decodes what its values need"

# The silences of a recording that has one of two seconds in every fourth minute.
must ffmpeg -v error -y -stream_loop 3 -i minute.wav -af "volume='if(gt(t,238),0,1)':eval=frame" -t 240 four.wav
must ffmpeg -v error -y -stream_loop $((minutes / 4)) -i four.wav -c copy gaps.wav
must "$ours" convert gaps.wav gaps.m4a --type m4a --overwrite
rm -f gaps.wav four.wav
beside "$((rounds + 1))" "$ours" split gaps.m4a --silence 800 --dry-run -- \
    ffmpeg -i gaps.m4a -af silencedetect=n=-60dB:d=0.8 -f null -
report "silences of an AAC file, wall time" "$ourWall" "$peerWall" s 0.2
report "silences of an AAC file, processor time" "$ourCpu" "$peerCpu" s 0.2
theirs=$(grep -c silence_end "$SCRATCH/errors")
must "$ours" split gaps.m4a --silence 800 --dry-run
# The last silence ends with the file and gives no cut.
equal "silences" "$(wc -l <"$SCRATCH/output")" "$theirs"
not_equal "the peer decodes every packet; ours skips those that cannot belong to a silence of that length"
beside "$rounds" "$ours" split gaps.m4a --silence 100000 --dry-run -- \
    ffmpeg -v error -i gaps.m4a -af silencedetect=n=-60dB:d=100 -f null -
report "no silence long enough in an AAC file, wall time" "$ourWall" "$peerWall" s 0.5
rm -rf parts
mkdir parts
sync
timed "$ours" split gaps.m4a --silence 800 --folder parts
report "splitting an AAC file at its silences, wall time" "$wall" - s 3
report "splitting an AAC file at its silences, processor time" "$cpu" - s 2
rm -rf parts gaps.m4a

# The ringtone maker's outline with the file in the page cache: the median of five runs.
outline() { for _ in 1 2 3 4 5; do must "$BUILD/bin/bench_outline" our.m4a; cat "$SCRATCH/output"; done; }
outlines=$(outline)
report "outline of an AAC file in the window, first part" "$(sort -n <<<"$outlines" | sed -n 3p | cut -d ' ' -f 1)" - ms 200
report "outline of an AAC file in the window, whole" "$(sort -n -k 2 <<<"$outlines" | sed -n 3p | cut -d ' ' -f 2)" - ms 1500

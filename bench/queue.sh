#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Sonaphex authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Measures the time from the stop of a recording to its tagged file in the library: an hour of one source, and an hour
# of two sources compared with the ffmpeg command line that mixes and encodes the same files. SECONDS_OF_SOUND shortens it.
set -euo pipefail
. "${LIB:?run this through scripts/bench}/bench.sh"
cd "$SCRATCH"
length=${SECONDS_OF_SOUND:-3600}

# The program measures the time itself, and fails when there is no file.
ours=$("$BUILD/bin/bench_queue" one "$length" "$SCRATCH/one")
report "stop to library, $length s of one source" "$ours" - s "0.6 s"
holds "the file has the sound's length" \
    awk -v f="$(frames_of "$SCRATCH/one/Track0.m4a")" -v l="$length" 'BEGIN { d = f / 44100 - l; exit !(d > -0.1 && d < 0.1) }'
holds "it has its tags" test "$(tag_of "$SCRATCH/one/Track0.m4a" title)" = Track0

must ffmpeg -v error -y -f lavfi -i "anoisesrc=d=$length:c=pink:r=44100:a=0.3:seed=1" -ac 2 -c:a aac first.m4a
must ffmpeg -v error -y -f lavfi \
    -i "aevalsrc=0.2*sin(2*PI*t*(300+200*sin(t/3)))|0.2*sin(2*PI*t*(500+300*sin(t/5))):d=$length:s=44100" \
    -c:a aac second.m4a
best() { awk -v a="$1" -v b="$2" 'BEGIN { print a == "" || b < a ? b : a }'; }
ours="" peer=""
for turn in 1 2; do
    # The queue deletes the files that it has mixed.
    cp first.m4a raw1.m4a
    cp second.m4a raw2.m4a
    once=$("$BUILD/bin/bench_queue" two raw1.m4a raw2.m4a "$SCRATCH/two$turn")
    ours=$(best "$ours" "$once")
    timed ffmpeg -v error -y -i first.m4a -i second.m4a -filter_complex amix=inputs=2:normalize=0 -c:a aac mixed.m4a
    peer=$(best "$peer" "$wall")
done
report "stop to library, $length s of two sources (ffmpeg amix)" "$ours" "$peer" s 0.7
result=$SCRATCH/two2/Track0.m4a
equal "codec, rate, channels" "$(format_of "$result")" "$(format_of mixed.m4a)"
equal "frames" "$(frames_of "$result")" "$(frames_of mixed.m4a)" 4410
equal "level in dB of the middle" "$(level_of "$result" $((length / 2)) 30)" "$(level_of mixed.m4a $((length / 2)) 30)" 0.3
holds "ours has its tags" test "$(tag_of "$result" title)" = Track0
not_equal "ours tags the file, enters it into the library and deletes the two sources; the peer only mixes and encodes"
not_equal "ours encodes on all cores, the peer on one"
not_equal "the bit rate: ours $(kilobits_of "$result") kb/s, peer $(kilobits_of mixed.m4a) kb/s"

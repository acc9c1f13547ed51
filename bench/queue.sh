#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Sonaphex authors
# SPDX-License-Identifier: GPL-3.0-or-later
# From the stop of a recording to its tagged file in the library: an hour of one source, and of two sources beside the
# ffmpeg command line that mixes and encodes the same files. SECONDS_OF_SOUND shortens it.
set -euo pipefail
cd "$SCRATCH"
length=${SECONDS_OF_SOUND:-3600}

ours=$("$BUILD/bin/bench_queue" one "$length" "$SCRATCH/one")
echo "stop to library, $length s of one source: ours $ours s, peer none, ratio none (aim 0.6 s)"

ffmpeg -v error -y -f lavfi -i "anoisesrc=d=$length:c=pink:r=44100:a=0.3:seed=1" -ac 2 -c:a aac first.m4a
ffmpeg -v error -y -f lavfi \
    -i "aevalsrc=0.2*sin(2*PI*t*(300+200*sin(t/3)))|0.2*sin(2*PI*t*(500+300*sin(t/5))):d=$length:s=44100" \
    -c:a aac second.m4a
best() { awk -v a="$1" -v b="$2" 'BEGIN { print a == "" || b < a ? b : a }'; }
ours= peer=
for turn in 1 2; do
    # The queue deletes what it has mixed.
    cp first.m4a raw1.m4a
    cp second.m4a raw2.m4a
    ours=$(best "$ours" "$("$BUILD/bin/bench_queue" two raw1.m4a raw2.m4a "$SCRATCH/two$turn")")
    begin=$(date +%s.%N)
    ffmpeg -v error -y -i first.m4a -i second.m4a -filter_complex amix=inputs=2:normalize=0 -c:a aac mixed.m4a
    peer=$(best "$peer" "$(awk -v a="$begin" -v b="$(date +%s.%N)" 'BEGIN { printf "%.3f", b - a }')")
done
awk -v o="$ours" -v p="$peer" -v l="$length" \
    'BEGIN { printf "stop to library, %s s of two sources: ours %.2f s, peer %.2f s, ratio %.2f (aim 0.7)\n", l, o, p, o / p }'

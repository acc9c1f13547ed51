#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Sonaphex authors
# SPDX-License-Identifier: GPL-3.0-or-later
# The library's file and the tags of a one-hour recording. Run by scripts/bench, which sets BUILD and SCRATCH.
set -euo pipefail

bench=$BUILD/bin/bench_library

for count in 10000 100000; do
    read -r load add save < <("$bench" library $count)
    aim_load="" aim_add=""
    if [ $count = 10000 ]; then aim_load=" (aim under 100 ms)" aim_add=" (aim under 20 ms)"; fi
    echo "library of $count, load: ours $load ms$aim_load"
    echo "library of $count, one more on the main thread: ours $add ms$aim_add"
    echo "library of $count, saving behind: ours $save ms"
done

# Milliseconds that a command takes, the median of five.
milliseconds() {
    for _ in 1 2 3 4 5; do
        local start end
        start=$(date +%s%N)
        "$@" >/dev/null 2>&1
        end=$(date +%s%N)
        echo $(((end - start) / 10000))
    done | sort -n | sed -n 3p | awk '{ printf "%.2f\n", $1 / 100 }'
}
ratio() { awk -v a="$1" -v b="$2" 'BEGIN { printf "%.3f", a / b }'; }

hour=$SCRATCH/hour.m4a
ffmpeg -v error -f lavfi -i "sine=frequency=440:sample_rate=44100:duration=3600" -ac 2 -c:a aac -b:a 128k -f ipod -y "$hour"
cp "$hour" "$SCRATCH/peer.m4a"
read -r first again < <("$bench" tags "$hour")
peer=$(milliseconds AtomicParsley "$SCRATCH/peer.m4a" --title Title --artist Artist --album Album --year 2012 --genre Genre --overWrite)
echo "tags of one hour: ours $first ms, peer $peer ms, ratio $(ratio "$first" "$peer") (aim under 50 ms)"
echo "tags of one hour, again: ours $again ms, peer $peer ms, ratio $(ratio "$again" "$peer") (aim under 50 ms)"

ffmpeg -v error -f lavfi -i "nullsrc=s=500x500,geq=random(1)*255:128:128" -frames:v 1 -y "$SCRATCH/cover.png"
ours=$(milliseconds "$BUILD/bin/Resources/SetArtWork" "$hour" "$SCRATCH/cover.png" "$SCRATCH/out.m4a")
peer=$(milliseconds AtomicParsley "$SCRATCH/peer.m4a" --artwork REMOVE_ALL --artwork "$SCRATCH/cover.png" --output "$SCRATCH/peer-out.m4a" --overWrite)
echo "cover into a copy of one hour: ours $ours ms, peer $peer ms, ratio $(ratio "$ours" "$peer")"
ours=$(milliseconds "$BUILD/bin/sonaphex" tag "$hour" --title Title)
peer=$(milliseconds AtomicParsley "$SCRATCH/peer.m4a" --title Title --overWrite)
echo "tags of one hour, whole command: ours $ours ms, peer $peer ms, ratio $(ratio "$ours" "$peer")"

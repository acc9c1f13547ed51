#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Sonaphex authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Measures the library's file and the tags of a one-hour recording. Run by scripts/bench, which sets BUILD and SCRATCH.
set -euo pipefail
. "${LIB:?run this through scripts/bench}/bench.sh"

bench=$BUILD/bin/bench_library

for count in 10000 100000; do
    must "$bench" library $count # checks by itself that all entries are there
    read -r load add save <"$SCRATCH/output"
    aim_load="under 350 ms"
    if [ $count = 10000 ]; then aim_load="under 60 ms"; fi
    report "library of $count, load" "$load" - ms "$aim_load"
    report "library of $count, one more on the main thread" "$add" - ms "under 8 ms"
    report "library of $count, saving behind" "$save" - ms none
done

hour=$SCRATCH/hour.m4a
must ffmpeg -v error -f lavfi -i "sine=frequency=440:sample_rate=44100:duration=3600" -ac 2 -c:a aac -b:a 128k -f ipod -y "$hour"
sound=$(sound_of "$hour")
cp "$hour" "$SCRATCH/worker.m4a"
cp "$hour" "$SCRATCH/peer.m4a"

# Measured inside the program, without a peer: another program would also have to start a process.
must "$bench" tags "$SCRATCH/worker.m4a"
read -r first again <"$SCRATCH/output"
report "tags of one hour, on the program's worker" "$first" - ms "under 50 ms"
report "tags of one hour, on the program's worker, again" "$again" - ms "under 50 ms"
holds "the encoded sound is untouched" test "$(sound_of "$SCRATCH/worker.m4a")" = "$sound"

# One process against another, with the same five tags.
ours=$(milliseconds "$BUILD/bin/sonaphex" tag "$hour" --title Title --artist Artist --album Album --year 2012 --genre Genre)
peer=$(milliseconds AtomicParsley "$SCRATCH/peer.m4a" --title Title --artist Artist --album Album --year 2012 --genre Genre --overWrite)
report "tags of one hour, whole command (AtomicParsley)" "$ours" "$peer" ms "2.50 or less"
not_equal "four of the five runs find the tags in the file: ours then leaves the file alone, the peer writes it again"
# Every run with another title, so that both write every time.
titled() { "$@" --title "Title $EPOCHREALTIME"; }
ours=$(milliseconds titled "$BUILD/bin/sonaphex" tag "$hour")
peer=$(milliseconds titled AtomicParsley "$SCRATCH/peer.m4a" --overWrite)
report "a new title for one hour, whole command (AtomicParsley)" "$ours" "$peer" ms none
must "$BUILD/bin/sonaphex" tag "$hour" --title Title
must AtomicParsley "$SCRATCH/peer.m4a" --title Title --overWrite
for tag in title artist album date genre; do
    equal "$tag" "$(tag_of "$hour" "$tag")" "$(tag_of "$SCRATCH/peer.m4a" "$tag")"
done
equal "the encoded sound" "$(sound_of "$hour")" "$(sound_of "$SCRATCH/peer.m4a")"
not_equal "ours waits until the disk has the tags, the peer does not"

must ffmpeg -v error -f lavfi -i "nullsrc=s=500x500,geq=random(1)*255:128:128" -frames:v 1 -y "$SCRATCH/cover.png"
ours=$(milliseconds "$BUILD/bin/Resources/SetArtWork" "$hour" "$SCRATCH/cover.png" "$SCRATCH/out.m4a")
peer=$(milliseconds AtomicParsley "$SCRATCH/peer.m4a" --artwork REMOVE_ALL --artwork "$SCRATCH/cover.png" --output "$SCRATCH/peer-out.m4a" --overWrite)
report "cover into a copy of one hour (AtomicParsley)" "$ours" "$peer" ms none
cover_of() { ffprobe -v error -select_streams v:0 -show_entries stream=width,height -of csv=p=0:s=x "$1"; }
equal "the size of the picture" "$(cover_of "$SCRATCH/out.m4a")" "$(cover_of "$SCRATCH/peer-out.m4a")"
equal "the encoded sound" "$(sound_of "$SCRATCH/out.m4a")" "$(sound_of "$SCRATCH/peer-out.m4a")"

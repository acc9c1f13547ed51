# SPDX-FileCopyrightText: 2026 The Sonaphex authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Functions of the bench scripts. Source this file after `set -euo pipefail`.
#
# A figure only counts when the program did its work: run everything that is timed with timed(), milliseconds() or
# must(), which end the bench when the program fails, and report with equal() and not_equal() what was the same on both
# sides and what was not. Call a function that prints a figure in an assignment of its own (`x=$(milliseconds ...)`):
# bash ignores a failure inside a longer word.

fail() { echo "bench: $*" >&2; exit 1; }

# must COMMAND...: runs it; its failure ends the bench and prints its last message.
must() {
    local status=0
    "$@" >"$SCRATCH/output" 2>"$SCRATCH/errors" || status=$?
    [ $status = 0 ] || fail "$1 ended with status $status: $(tail -1 "$SCRATCH/errors")"
}

# timed COMMAND...: sets wall, cpu (seconds) and memory (MiB at its peak).
timed() {
    local status=0 user system kib
    /usr/bin/time -q -o "$SCRATCH/figures" -f "%e %U %S %M" "$@" >"$SCRATCH/output" 2>"$SCRATCH/errors" || status=$?
    [ $status = 0 ] || fail "$1 ended with status $status: $(tail -1 "$SCRATCH/errors")"
    read -r wall user system kib < <(tail -1 "$SCRATCH/figures")
    cpu=$(awk "BEGIN { print $user + $system }")
    memory=$(awk "BEGIN { printf \"%.1f\", $kib / 1024 }")
}

# milliseconds COMMAND...: prints its run time, the median of five.
milliseconds() {
    local start end times=()
    for _ in 1 2 3 4 5; do
        start=$EPOCHREALTIME
        must "$@"
        end=$EPOCHREALTIME
        times+=("$(awk -v a="$start" -v b="$end" 'BEGIN { printf "%.2f", (b - a) * 1000 }')")
    done
    printf '%s\n' "${times[@]}" | sort -n | sed -n 3p
}

# equal WHAT OURS PEER [TOLERANCE]: both sides must agree, numbers within the tolerance.
equal() {
    if [ $# = 4 ]; then
        awk -v a="$2" -v b="$3" -v t="$4" 'BEGIN { d = a - b; exit !(a != "" && b != "" && d <= t && -d <= t) }' ||
            fail "$1: ours $2, peer $3: not the same work"
        echo "  equal: $1 (ours $2, peer $3, within $4)"
    else
        [ -n "$2" ] && [ "$2" = "$3" ] || fail "$1: ours ${2:-nothing}, peer ${3:-nothing}: not the same work"
        echo "  equal: $1 ($2)"
    fi
}
# not_equal WHAT: reports a difference between the two sides that is part of the figures.
not_equal() { echo "  not equal: $*"; }
# holds WHAT CONDITION...: checks a condition of our own result where there is no peer.
holds() {
    local what=$1
    shift
    "$@" || fail "$what: not so"
    echo "  holds: $what"
}

# report NAME OURS PEER UNIT AIM: prints one line; "-" means that there is no peer.
report() {
    awk -v name="$1" -v a="$2" -v b="$3" -v unit="$4" -v aim="$5" 'BEGIN {
        if (b == "-") printf "%s: ours %s %s, no peer (aim %s)\n", name, a, unit, aim
        else printf "%s: ours %s %s, peer %s %s, ratio %s (aim %s)\n", name, a, unit, b, unit,
            (b > 0 ? sprintf("%.2f", a / b) : "-"), aim }'
}

# Length of a file in seconds.
seconds_of() { ffprobe -v error -show_entries format=duration -of csv=p=0 "$1"; }
# Frames of a file's audio at its own rate, from its duration.
frames_of() {
    local duration rate
    duration=$(ffprobe -v error -select_streams a:0 -show_entries stream=duration -of csv=p=0 "$1") || fail "$1 cannot be read"
    rate=$(ffprobe -v error -select_streams a:0 -show_entries stream=sample_rate -of csv=p=0 "$1")
    awk -v d="$duration" -v r="$rate" 'BEGIN { printf "%.0f", d * r }'
}
# "codec rate channels" of a file's audio.
format_of() {
    ffprobe -v error -select_streams a:0 -show_entries stream=codec_name,sample_rate,channels -of csv=p=0 "$1" | tr ',' ' '
}
# Mean level in dB of SECONDS of a file from START.
level_of() { # file [start seconds]
    ffmpeg -v info -nostats -ss "${2:-0}" -t "${3:-60}" -i "$1" -map a:0 -af volumedetect -f null - 2>&1 |
        sed -n 's/.*mean_volume: \(.*\) dB/\1/p'
}
# One of the tags of a file, and the checksum of its encoded audio.
tag_of() { ffprobe -v error -show_entries "format_tags=$2" -of csv=p=0 "$1"; }
sound_of() { ffmpeg -v error -i "$1" -map a:0 -c copy -f md5 - ; }
kilobits_of() { ffprobe -v error -select_streams a:0 -show_entries stream=bit_rate -of csv=p=0 "$1" | awk '{ printf "%.0f", $1 / 1000 }'; }

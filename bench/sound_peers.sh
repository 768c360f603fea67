#!/bin/bash
# SPDX-FileCopyrightText: The Kelvo authors
# SPDX-License-Identifier: GPL-3.0-or-later
# sound_peers.sh BUILD_FOLDER [SCRATCH_FOLDER]: kelvoctl sound adpcm beside ffmpeg's encoder of the same family
# (adpcm_yamaha), a process each: for ten minutes of 8000 Hz, and for a clip of a second, ten of them a measurement.
#
# Ours has the output on the medium before the program ends, ffmpeg does not. Printed are the medians of eleven rounds
# in milliseconds of each, and our part, of the time that passes and of the processor's. Needs ffmpeg.
set -euo pipefail
program=$(realpath "${1:?usage: sound_peers.sh BUILD_FOLDER [SCRATCH_FOLDER]}")/bin/kelvoctl
rounds=11
work=$(mktemp -d -p "${2:-${TMPDIR:-/tmp}}")
trap 'rm -rf "$work"' EXIT
export LC_ALL=C HOME=$work XDG_RUNTIME_DIR=$work

# Speech-like: tones that come and go over noise.
sound="aevalsrc='0.4*sin(440*2*PI*t)*sin(3*t)+0.3*sin(1210*2*PI*t)*sin(5*t)+0.1*(random(0)-0.5)':s=8000"
ffmpeg -v error -f lavfi -i "$sound:d=600" -c:a pcm_s16le -y "$work/long.wav"
ffmpeg -v error -f lavfi -i "$sound:d=1" -c:a pcm_s16le -y "$work/short.wav"

# measure NAME TIMES COMMAND...: notes the milliseconds that pass for one run, and those of the processor.
measure() {
    local name=$1 times=$2
    shift 2
    TIMEFORMAT='%R %U %S'
    { time for ((j = 0; j < times; j++)); do "$@" > /dev/null < /dev/null; done; } 2>&1 |
        awk -v times="$times" -v name="$work/$name" \
            '{ print 1000 * $1 / times >> name; print 1000 * ($2 + $3) / times >> name "-cpu" }'
}

median() { sort -n "$work/$1" | sed -n "$((($(wc -l < "$work/$1") + 1) / 2))p"; }

show() {
    awk -v name="$1" -v ours="$(median "kelvoctl-$2")" -v theirs="$(median "ffmpeg-$2")" \
        'BEGIN { printf "%-24s %8.1f ms   ffmpeg %8.1f ms %8.3f\n", name, ours, theirs, ours / theirs }'
}

for ((i = 0; i < rounds; i++)); do
    measure kelvoctl-long 1 "$program" --quiet sound adpcm "$work/long.wav" "$work/long.bin"
    measure ffmpeg-long 1 ffmpeg -v error -y -i "$work/long.wav" -c:a adpcm_yamaha -f wav "$work/long.out"
    measure kelvoctl-short 10 "$program" --quiet sound adpcm "$work/short.wav" "$work/short.bin"
    measure ffmpeg-short 10 ffmpeg -v error -y -i "$work/short.wav" -c:a adpcm_yamaha -f wav "$work/short.out"
done
show "ten minutes" long
show "ten minutes, processor" long-cpu
show "one second" short
show "one second, processor" short-cpu

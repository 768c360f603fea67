#!/bin/bash
# SPDX-FileCopyrightText: The Kelvo authors
# SPDX-License-Identifier: GPL-3.0-or-later
# thumbnail_peers.sh BUILD_FOLDER CORPUS: kelvoctl beside vipsthumbnail, one process and one thread each.
#
# CORPUS is what bench/make_corpus made. Every file stands under several names, so that starting the programs
# does not count. A round runs both, one after the other; printed are the medians of five rounds in
# milliseconds a file and their ratio. kelvoctl fills its store as at a first visit; the last column is a
# second visit, as a part of the first. Needs libvips-tools.
set -euo pipefail
program=$(realpath "${1:?usage: thumbnail_peers.sh BUILD_FOLDER CORPUS}")/bin/kelvoctl
corpus=$(realpath "${2:?usage: thumbnail_peers.sh BUILD_FOLDER CORPUS}")
rounds=5
work=$(mktemp -d "$corpus/peers.XXXXXX")
trap 'rm -rf "$work"' EXIT

export HOME=$work/home VIPS_CONCURRENCY=1
unset XDG_DATA_HOME XDG_CONFIG_HOME XDG_DOCUMENTS_DIR
export LC_ALL=C

# milliseconds COMMAND...: how long it takes.
milliseconds() {
    local start=$EPOCHREALTIME
    "$@" > /dev/null
    awk "BEGIN { print 1000 * ($EPOCHREALTIME - $start) }"
}

median() { sort -n | sed -n "$(((rounds + 1) / 2))p"; }

compare() { # SET NAMES_A_FILE
    local folder=$work/$1 count=0 i
    mkdir -p "$folder"
    for file in "$corpus/$1"/*.jpg; do
        for ((i = 0; i < $2; i++)); do
            ln "$file" "$folder/$i-${file##*/}"
            count=$((count + 1))
        done
    done
    for ((i = 0; i < rounds; i++)); do
        rm -rf "$HOME" "$work/out"
        mkdir -p "$HOME" "$work/out"
        milliseconds "$program" thumbs "$folder" >> "$work/$1.first"
        milliseconds "$program" thumbs "$folder" >> "$work/$1.second"
        milliseconds vipsthumbnail --size 180x180 -o "$work/out/%s.jpg[Q=85]" "$folder"/*.jpg >> "$work/$1.vips"
    done
    awk -v set="$1" -v count=$count -v ours="$(median < "$work/$1.first")" \
        -v again="$(median < "$work/$1.second")" -v theirs="$(median < "$work/$1.vips")" 'BEGIN {
            printf "%-8s %5d %10.2f %10.2f %8.2f %8.3f\n", set, count, ours / count, theirs / count, ours / theirs,
                again / ours }'
}

printf '%-8s %5s %10s %10s %8s %8s\n' photos files kelvoctl vips ratio again
compare large 4
compare middle 4
compare small 8

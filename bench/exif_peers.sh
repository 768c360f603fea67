#!/bin/bash
# SPDX-FileCopyrightText: The Kelvo authors
# SPDX-License-Identifier: GPL-3.0-or-later
# exif_peers.sh BUILD_FOLDER PHOTOS: kelvoctl exif beside exif -m, exiv2 and exiftool -fast2, a process each for all photos.
#
# PHOTOS is what bench/make_exif_corpus made. A round runs all of them, one after the other; printed are the medians of
# five rounds in milliseconds (of two for exiftool), and kelvoctl's part of each. Needs exif, exiv2 and exiftool.
set -euo pipefail
program=$(realpath "${1:?usage: exif_peers.sh BUILD_FOLDER PHOTOS}")/bin/kelvoctl
folder=$(realpath "${2:?usage: exif_peers.sh BUILD_FOLDER PHOTOS}")
rounds=5
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export LC_ALL=C
photos=("$folder"/*.jpg)

# measure NAME COMMAND...: notes how many milliseconds it takes.
measure() {
    local name=$1 start=$EPOCHREALTIME
    shift
    "$@" > /dev/null 2>&1 || true
    awk "BEGIN { print 1000 * ($EPOCHREALTIME - $start) }" >> "$work/$name"
}

median() { sort -n "$work/$1" | sed -n "$((($(wc -l < "$work/$1") + 1) / 2))p"; }

cat "${photos[@]}" > /dev/null
for ((i = 0; i < rounds; i++)); do
    measure kelvoctl "$program" exif "${photos[@]}"
    measure kelvoctl-json "$program" --json exif "${photos[@]}"
    measure exif exif -m "${photos[@]}"
    measure exiv2 exiv2 -q -pa "${photos[@]}"
    [ "$i" -ge 2 ] || measure exiftool exiftool -fast2 "${photos[@]}"
done
echo "${#photos[@]} photos"
for name in kelvoctl kelvoctl-json exif exiv2 exiftool; do
    awk -v name="$name" -v theirs="$(median $name)" -v ours="$(median kelvoctl)" \
        'BEGIN { printf "%-14s %9.1f ms %8.4f\n", name, theirs, ours / theirs }'
done

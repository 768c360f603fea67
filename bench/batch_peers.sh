#!/bin/bash
# SPDX-FileCopyrightText: The Kelvo authors
# SPDX-License-Identifier: GPL-3.0-or-later
# batch_peers.sh BUILD_FOLDER PHOTOS: kelvoctl rename beside Perl's rename, and stamp beside exiftool, a process each
# for all photos.
#
# Works on copies of PHOTOS (what bench/make_exif_corpus made) beside them, with a fresh home in which every photo has
# its thumbnail and a caption. Printed are the medians of five rounds in milliseconds (of one for exiftool), and
# kelvoctl's part. Needs rename and exiftool.
set -euo pipefail
program=$(realpath "${1:?usage: batch_peers.sh BUILD_FOLDER PHOTOS}")/bin/kelvoctl
photos=$(realpath "${2:?usage: batch_peers.sh BUILD_FOLDER PHOTOS}")
rounds=5
work=$(mktemp -d -p "$(dirname "$photos")")
trap 'rm -rf "$work"' EXIT
export LC_ALL=C HOME=$work/home XDG_RUNTIME_DIR=$work
mkdir "$HOME" "$work/ours" "$work/theirs"
cp "$photos"/*.jpg "$work/ours"
cp "$photos"/*.jpg "$work/theirs"

# measure NAME COMMAND...: notes how many milliseconds it takes.
measure() {
    local name=$1 start=$EPOCHREALTIME
    shift
    "$@" > /dev/null
    awk "BEGIN { print 1000 * ($EPOCHREALTIME - $start) }" >> "$work/$name"
}

median() { sort -n "$work/$1" | sed -n "$((($(wc -l < "$work/$1") + 1) / 2))p"; }

# show NAME PEER: both medians and their ratio.
show() {
    awk -v name="$1" -v ours="$(median "$1")" -v peer="$2" -v theirs="$(median "$2")" \
        'BEGIN { printf "%-14s %9.1f ms  %-14s %9.1f ms %8.4f\n", name, ours, peer, theirs, ours / theirs }'
}

"$program" --quiet thumbs "$work/ours" > /dev/null
"$program" --quiet caption set --caption "A caption" "$work/ours"/*.jpg
for ((i = 0; i < rounds; i++)); do
    measure rename "$program" --quiet rename --prefix "Round$i-" "$work/ours"/*.jpg
    measure perl-rename rename "s{(Round\\d+-)?([^/]*)\$}{Round$i-\$2}" "$work/theirs"/*.jpg
    measure stamp "$program" --quiet stamp --modified --from exif "$work/ours"/*.jpg
done
measure exiftool exiftool -q '-FileModifyDate<DateTimeOriginal' "$work/theirs"
echo "$(ls "$work/ours" | wc -l) photos"
show rename perl-rename
show stamp exiftool

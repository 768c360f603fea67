#!/bin/bash
# SPDX-FileCopyrightText: The Kelvo authors
# SPDX-License-Identifier: GPL-3.0-or-later
# camera_peers.sh BUILD_FOLDER [WORK_FOLDER]: kelvoctl camera copy beside cp -r, sync -f and diff -r, on a card of 1,100
# photos and two clips, 1 GB in all, on the same disk.
#
# Works in WORK_FOLDER (else the current one), which chooses the disk. Printed are the medians of five rounds in
# milliseconds, kelvoctl's part, and its largest memory in kilobytes. Needs GNU time.
set -euo pipefail
program=$(realpath "${1:?usage: camera_peers.sh BUILD_FOLDER [WORK_FOLDER]}")/bin/kelvoctl
work=$(mktemp -d "$(realpath "${2:-.}")/camera_peers.XXXXXX")
trap 'rm -rf "$work"' EXIT
export LC_ALL=C HOME=$work/home KELVO_CAMERA_ROOT=$work/card
card=$work/card/DCIM/100CARD
mkdir -p "$HOME" "$card"
head -c $((1100 * 820000)) /dev/urandom | split -b 820000 -d -a 5 --additional-suffix=.JPG - "$card/IMG_"
head -c 60000000 /dev/urandom > "$card/CLIP0001.MOV"
head -c 60000000 /dev/urandom > "$card/CLIP0002.MOV"
sync -f "$work"

# measure NAME COMMAND...: notes how many milliseconds it takes.
measure() {
    local name=$1 start=$EPOCHREALTIME
    shift
    "$@" > /dev/null
    awk "BEGIN { print 1000 * ($EPOCHREALTIME - $start) }" >> "$work/$name"
}

median() { sort -n "$work/$1" | sed -n "$((($(wc -l < "$work/$1") + 1) / 2))p"; }

ours() { /usr/bin/time -a -o "$work/memory" -f %M "$program" --quiet camera copy --to "$work/copies" 2> /dev/null; }

theirs() {
    mkdir -p "$work/copies"
    cp -r "$KELVO_CAMERA_ROOT" "$work/copies/card"
    sync -f "$work/copies"
    diff -r "$KELVO_CAMERA_ROOT" "$work/copies/card"
}

for round in 1 2 3 4 5; do
    for who in ours theirs; do
        measure $who $who
        rm -r "$work/copies"
        sync -f "$work"
    done
done
awk -v ours="$(median ours)" -v theirs="$(median theirs)" -v memory="$(sort -n "$work/memory" | tail -1)" 'BEGIN {
    printf "camera copy %.0f ms, cp + sync + diff %.0f ms, ratio %.3f (target 0.8), memory %d kB\n",
           ours, theirs, ours / theirs, memory }'

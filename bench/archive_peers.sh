#!/bin/bash
# SPDX-FileCopyrightText: The Kelvo authors
# SPDX-License-Identifier: GPL-3.0-or-later
# archive_peers.sh BUILD_FOLDER [WORK_FOLDER]: the archive beside zip and sqlite3, with 10,000 members of some
# 7 kB that do not compress.
#
# Works in WORK_FOLDER (else the current one), which chooses the disk. A round runs all programs one after
# the other; printed are the medians in milliseconds and the ratio of ours to the peer's. The last rows are
# those of archive_bench, since kelvoctl removes one member a process; it needs a build with KELVO_BENCH.
# Needs zip and sqlite3. Of the peers only sqlite3 syncs; ours does when it compacts.
set -euo pipefail
build=$(realpath "${1:?usage: archive_peers.sh BUILD_FOLDER [WORK_FOLDER]}")
program=$build/bin/kelvoctl
work=$(mktemp -d "$(realpath "${2:-.}")/archive_peers.XXXXXX")
trap 'rm -rf "$work"' EXIT
members=10000
one=IMG_15000.JPG.jpg

export HOME=$work/home LC_ALL=C
unset XDG_DATA_HOME XDG_CONFIG_HOME XDG_DOCUMENTS_DIR
mkdir -p "$HOME" "$work/sources" "$work/out"
cd "$work/sources"
head -c $((members * 6900)) /dev/urandom | split -b 6900 -d -a 5 --additional-suffix=.JPG.jpg - IMG_
for file in *; do
    mv "$file" "IMG_$((10000 + 10#${file:4:5})).JPG.jpg"
done
sync

# run NAME COMMAND...: notes the milliseconds that it takes.
run() {
    local name=$1 start=$EPOCHREALTIME
    shift
    "$@" > /dev/null
    awk "BEGIN { print 1000 * ($EPOCHREALTIME - $start) }" >> "$work/$name.times"
}

median() { sort -n "$work/$1.times" | awk '{ all[NR] = $1 } END { print all[int((NR + 1) / 2)] }'; }

report() { # TITLE OURS PEER TARGET
    awk -v title="$1" -v ours="$(median "$2")" -v peer="$(median "$3")" -v target="$4" \
        'BEGIN { printf "%-32s %10.2f %10.2f %8.3f %8s\n", title, ours, peer, ours / peer, target }'
}

fill() {
    "$program" archive create "$work/ours.db"
    "$program" archive add "$work/ours.db" ./*
}

for round in 1 2 3; do
    rm -f "$work"/{ours.db,peer.zip,peer.sqlar}
    run fill.ours fill
    run fill.zip zip -q -6 "$work/peer.zip" ./*
done
sqlite3 -A -c -f "$work/peer.sqlar" ./*
select="select writefile('$work/out/peer', sqlar_uncompress(data, sz)) from sqlar where name = './$one'"
for round in {1..25}; do
    rm -f "$work"/out/*
    run get.ours "$program" archive extract "$work/ours.db" $one --to "$work/out"
    run get.sqlite sqlite3 "$work/peer.sqlar" "$select"
    rm -f "$work"/out/*
    run get.sqlite-A sqlite3 "$work/peer.sqlar" -A -x -C "$work/out" ./$one
done
for round in {1..15}; do
    run add.ours "$program" archive add "$work/ours.db" $one
    run add.sqlite sqlite3 "$work/peer.sqlar" -A -i $one
done
seq -f 'IMG_%.0f.JPG.jpg' 10000 10 19999 > "$work/names"
for round in 1 2 3 4 5; do
    cp "$work/peer.zip" "$work/less.zip"
    sync
    run remove.zip xargs -a "$work/names" zip -q -d "$work/less.zip"
done

# The times of archive_bench in milliseconds, by the beginning of the benchmark's name.
KELVO_BENCH_FOLDER=$work "$build/bin/archive_bench" --benchmark_format=csv \
    --benchmark_filter='OpenFindAndExtract/10000|RemoveAndCompact' 2> "$work/log" > "$work/bench.csv"
bench() { awk -F, -v name="\"$1" 'index($1, name) == 1 { print $3 * ($5 == "us" ? 0.001 : 1) }' "$work/bench.csv"; }
bench OpenFindAndExtract > "$work/indexed.ours.times"
bench RemoveAndCompact > "$work/remove.ours.times"

printf '%-32s %10s %10s %8s %8s\n' archive ours peer ratio target
report "fill (zip -6)" fill.ours fill.zip 0.9
report "append one (sqlite3 -A -i)" add.ours add.sqlite 1.0
report "extract one (sqlite3, select)" get.ours get.sqlite 3
report "extract one (sqlite3 -A -x)" get.ours get.sqlite-A 3
report "the same, index kept (select)" indexed.ours get.sqlite 0.01
report "remove 1,000, compact (zip -d)" remove.ours remove.zip 0.5

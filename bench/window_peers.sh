#!/bin/bash
# SPDX-FileCopyrightText: The Kelvo authors
# SPDX-License-Identifier: GPL-3.0-or-later
# window_peers.sh BUILD_FOLDER WORK_FOLDER [PHOTOS [ROUNDS]]: the window beside gThumb and Gwenview, on one
# folder of 10,000 photos, each program without and with its cache of thumbnails.
#
# Printed are medians of the rounds: seconds from start to the window, to the first photo, to a screen full of
# them, and the memory then in MB; last, our part of the better peer's. Then the wake-ups of our idle window.
# Needs gthumb, gwenview, xvfb, dbus and imagemagick. WORK_FOLDER keeps the photos between runs.
set -euo pipefail
build=$(realpath "${1:?usage: window_peers.sh BUILD_FOLDER WORK_FOLDER [PHOTOS [ROUNDS]]}")
mkdir -p "${2:?usage: window_peers.sh BUILD_FOLDER WORK_FOLDER [PHOTOS [ROUNDS]]}"
work=$(realpath "$2")
photos=${3:-10000}
rounds=${4:-3}
folder=$work/photos-$photos

make_photos() {
    mkdir -p "$work/base"
    for i in $(seq 20); do
        [[ -e $work/base/$i.jpg ]] && continue
        convert -seed "$i" -size 1024x768 plasma:magenta-'#c000a0' -resize 2048x1536 -attenuate 0.2 \
            +noise Gaussian -quality 88 "$work/base/$i.part.jpg"
        mv "$work/base/$i.part.jpg" "$work/base/$i.jpg"
    done
    [[ -e $folder/done ]] && return
    mkdir -p "$folder"
    for ((i = 0; i < photos; i++)); do
        ln -f "$work/base/$((i % 20 + 1)).jpg" "$(printf '%s/photo%05d.jpg' "$folder" "$i")"
    done
    touch "$folder/done"
}

run_in() { # HOME COMMAND...: on a screen and a bus of its own
    local home=$1
    shift
    mkdir -p "$home/run"
    chmod 700 "$home/run"
    env -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM -u XDG_DATA_HOME -u XDG_CONFIG_HOME -u XDG_CACHE_HOME \
        HOME="$home" XDG_RUNTIME_DIR="$home/run" LC_ALL=C.UTF-8 \
        xvfb-run -a -s '-screen 0 1280x800x24' dbus-run-session -- "$@" 2>>"$work/errors.txt"
}

# What the bus starts may say something on its own.
figures() { grep -xE '(-?[0-9.]+ ?){4}' || true; }

measure() { # NAME COMMAND...
    local name=$1 home=$work/home
    shift
    : > "$work/$name.first"
    : > "$work/$name.again"
    for ((i = 0; i < rounds; i++)); do
        rm -rf "$home"
        { run_in "$home" "$build/bin/window_watch" "$@" || true; } | figures >> "$work/$name.first"
        { run_in "$home" "$build/bin/window_watch" "$@" || true; } | figures >> "$work/$name.again"
    done
}

median() { # FILE COLUMN
    awk -v column="$2" '{ print $column }' "$1" | sort -n | sed -n "$(((rounds + 1) / 2))p"
}

report() { # first | again
    printf '%-10s %8s %8s %8s %8s\n' "$1" window photo screen MB
    for name in kelvo gthumb gwenview; do
        printf '%-10s' "$name"
        for column in 1 2 3 4; do printf ' %8s' "$(median "$work/$name.$1" $column)"; done
        echo
    done
    printf '%-10s' ratio
    for column in 1 2 3 4; do
        awk -v ours="$(median "$work/kelvo.$1" $column)" -v a="$(median "$work/gthumb.$1" $column)" \
            -v b="$(median "$work/gwenview.$1" $column)" 'BEGIN { printf " %8.2f", ours / (a < b ? a : b) }'
    done
    echo
}

# Context switches of the window's process in ten seconds, once the thumbnails of a small folder are made.
idle() {
    rm -rf "$work/idle" "$work/home"
    mkdir -p "$work/idle"
    cp "$work/base/"*.jpg "$work/idle"
    run_in "$work/home" bash -c '
        "$1" "$2" & program=$!
        switches() { cat /proc/$program/task/*/status | awk "/ctxt_switches/ { sum += \$2 } END { print sum }"; }
        sleep 5
        before=$(switches)
        sleep 10
        after=$(switches)
        kill $program
        awk "BEGIN { printf \"idle: %.1f context switches a second\n\", ($after - $before) / 10 }"' \
        - "$build/bin/kelvo" "$work/idle"
}

make_photos
measure kelvo "$build/bin/kelvo" "$folder"
measure gthumb gthumb "$folder"
measure gwenview gwenview "$folder"
report first
report again
idle

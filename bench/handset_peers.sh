#!/bin/bash
# SPDX-FileCopyrightText: The Kelvo authors
# SPDX-License-Identifier: GPL-3.0-or-later
# handset_peers.sh BUILD_FOLDER [WORK_FOLDER]: kelvoctl handset beside gammu, at the simulated handset with a line of
# 460,800 bits per second; a megabyte each way, 600 files with names of 200 characters, a cable that is pulled.
#
# Printed are seconds and processor milliseconds of the whole program, its start and the greeting included; the first
# also in percent of the time that the line itself takes. Takes two minutes. Needs GNU time, and gammu for its part.
set -euo pipefail
build=$(realpath "${1:?usage: handset_peers.sh BUILD_FOLDER [WORK_FOLDER]}")
handset=$(dirname "$(realpath "$0")")/../tools/handset-simulator
work=$(mktemp -d "$(realpath "${2:-.}")/handset_peers.XXXXXX")
export LC_ALL=C HOME=$work/home KELVO_PORT_3=$work/port
mkdir -p "$HOME" "$work/root/My Album" "$work/root/Ring" "$work/root/Frame"
cd "$work"
head -c 1048576 /dev/urandom > sent.bin
cp sent.bin "root/Frame/held.bin"
for ((i = 0; i < 600; ++i)); do
    : > "root/Ring/$(printf "%0196d.mmf" "$i")"
done
printf '[gammu]\nport = %s\nconnection = at115200\nmodel = atobex\n' "$work/port" > gammurc

coproc simulator { exec "$handset" --root root --port port --shim "$build/lib/kelvo/rfcomm-shim.so"; }
exec 3>&"${simulator[1]}" 4<&"${simulator[0]}" {simulator[1]}>&-
process=$simulator_PID
trap 'exec 3>&-; wait "$process"; rm -rf "$work"' EXIT
read -r _ <&4

faults() {
    echo "faults $*" >&3
    read -r _ <&4
}

# measure WHAT BYTES COMMAND...: prints how long it takes, beside the line's own time for so many bytes.
measure() {
    local what=$1 bytes=$2 status=0
    shift 2
    timeout 300 /usr/bin/time -q -o time -f "%e %U %S" "$@" > out 2> errors || status=$?
    awk -v what="$what" -v bytes="$bytes" -v status="$status" 'END {
        line = bytes * 10 / 460800
        printf "%-34s %6.2f s  %4.0f ms of the processor  %s%s\n", what, $1, ($2 + $3) * 1000,
               bytes ? sprintf("%.1f %% of the line", 100 * line / $1) : "", status ? "  status " status : "" }' time
}

ours() { measure "kelvoctl $1" "$2" "$build/bin/kelvoctl" --quiet handset --port 3 "${@:3}"; }
theirs() { if command -v gammu > /dev/null; then measure "gammu $1" "$2" gammu -c gammurc "${@:3}"; fi; }

faults slow:460800
ours "sends 1 MiB" 1048576 send sent.bin
cmp sent.bin "root/My Album/sent.bin" && rm "root/My Album/sent.bin"
theirs "sends 1 MiB" 1048576 addfile "My Album" sent.bin
ours "fetches 1 MiB" 1048576 fetch --frame --to fetched
cmp sent.bin fetched/Frame/held.bin
theirs "fetches 1 MiB" 1048576 getfiles "Frame/held.bin"
ours "counts 600 files" 0 count ring
test "$(cat out)" = 600
theirs "lists 600 files" 0 getfilesystem -flatall

faults put:500000:unplug
ours "sends, cable pulled" 0 send sent.bin
theirs "sends, cable pulled" 0 addfile "My Album" sent.bin
faults get:500000:unplug
ours "fetches, cable pulled" 0 fetch --frame --to again
theirs "fetches, cable pulled" 0 getfiles "Frame/held.bin"

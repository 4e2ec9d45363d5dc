#!/usr/bin/env bash
# Tells how much of a core the program and the host take while nothing happens.
#
#   bench/idle.sh [CALENDARS [SECONDS]]   33 watched calendars and 20 seconds by default
set -euo pipefail
cd "$(dirname "$0")/.."

rooms=${1:-33}
seconds=${2:-20}
RF_DEMO=$(mktemp -d)
export RF_DEMO
run=
finish() {
    [ -z "$run" ] || { kill -TERM "$run" 2> /dev/null || true; wait "$run" 2> /dev/null || true; }
    rm -rf "$RF_DEMO"
}
trap finish EXIT

# One booking for each calendar.
{
    printf 'BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//idle//EN\r\n'
    for room in $(seq "$rooms"); do
        printf 'BEGIN:VEVENT\r\nUID:%s\r\nDTSTART:20240205T090000\r\nDTEND:20240205T100000\r\n' "$room"
        printf 'SUMMARY:Meeting %s\r\nLOCATION:Room %s\r\nCATEGORIES:Alpha\r\nEND:VEVENT\r\n' "$room" "$room"
    done
    printf 'END:VCALENDAR\r\n'
} > "$RF_DEMO/idle.ics"

./run.sh --stay "$RF_DEMO/idle.ics" > "$RF_DEMO/run.log" 2>&1 &
run=$!
until grep -q 'Ctrl-C ends them' "$RF_DEMO/run.log"; do
    kill -0 "$run" 2> /dev/null || { cat "$RF_DEMO/run.log" >&2; exit 1; }
    sleep 1
done

# process NAME: the one of this run, known by its temporary folder.
process() {
    local id
    for id in $(pgrep -x "$1"); do
        ! grep -qz "^TMPDIR=$RF_DEMO/" "/proc/$id/environ" 2> /dev/null || echo "$id"
    done
}
# ticks ID: the clock ticks that a process has used; its name may hold no blank.
ticks() { awk '{ print $14 + $15 }' "/proc/$1/stat"; }

program=$(process RFBookingInfo)
host=$(process rfhost)
before=($(ticks "$program") $(ticks "$host"))
sleep "$seconds"
after=($(ticks "$program") $(ticks "$host"))
grep watches "$RF_DEMO/run.log"
for index in 0 1; do
    awk -v used=$((after[index] - before[index])) -v ticks="$(getconf CLK_TCK)" -v seconds="$seconds" \
        -v name="$([ $index = 0 ] && echo RFBookingInfo || echo rfhost)" \
        'BEGIN { printf "%-15s %.2f %% of a core\n", name, 100 * used / ticks / seconds }'
done

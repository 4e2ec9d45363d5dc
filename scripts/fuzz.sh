#!/usr/bin/env bash
# Runs every fuzz program of a build for a time each. Ends with status 1 when one crashes, hangs or takes too much memory;
# the input that did it is then named, printed, and kept below the build.
#
#   scripts/fuzz.sh BUILD_FOLDER SECONDS
set -uo pipefail
cd "$(dirname "$0")/.."

if [ $# -ne 2 ] || ! ls "$1"/bin/*_fuzz > /dev/null 2>&1; then
    sed -n '2,5s/^# \{0,1\}//p' "$0" >&2
    exit 2
fi
megabytes=2048
# A program that is ended by a sanitizer has to say which input it was, so it is ended by a signal that it can catch.
export ASAN_OPTIONS=abort_on_error=1:hard_rss_limit_mb=$megabytes:detect_leaks=1 UBSAN_OPTIONS=abort_on_error=1:print_stacktrace=1

# fuzz PROGRAM SECONDS: one program; its log is told when it has ended.
fuzz() {
    local program=$1 seconds=$2 name work seeds input
    name=$(basename "$program" _fuzz)
    work=$folder/fuzz/$name
    mkdir -p "$work/corpus" "$work/found"
    seeds=tests/data/fuzz/$name
    [ -d "$seeds" ] || seeds=
    if timeout -s KILL $((seconds + 120)) "$program" -max_total_time="$seconds" -timeout=25 -rss_limit_mb=$megabytes \
        -max_len=20000 -print_final_stats=1 -artifact_prefix="$work/found/" "$work/corpus" $seeds > "$work/log" 2>&1; then
        echo "$name: $(grep -hE 'inputs, seed|number_of_executed_units' "$work/log")"
    else
        tail -n 40 "$work/log"
        input=$(ls -t "$work"/found/* 2> /dev/null | head -n 1)
        echo "FAILED: $name; the input is in: $input"
        echo "Again: $program THAT_FILE"
        # Where only what is printed is left of the machine, the input is made again by: base64 -d
        [ -z "$input" ] || base64 -w 120 "$input"
        return 1
    fi
}

folder=$1
export folder megabytes
export -f fuzz
# As many at once as there are processors; each is a process of one thread.
printf '%s\0' "$folder"/bin/*_fuzz | xargs -0 -P "$(nproc)" -I{} bash -c 'fuzz "$1" "$2"' fuzz {} "$2"

#!/usr/bin/env bash
# Writes the pictures of the guides anew, in docs/pictures: the windows of the host and of the program, drawn off screen, in
# light and in dark.
#
#   scripts/pictures.sh [FOLDER]   FOLDER: write them there, and those of every form in four languages too
set -euo pipefail
caller=$PWD
cd "$(dirname "$0")/.."
. scripts/packages.sh

steps='BookingByHand.IsMade*:BookingByHand.IsRefused*:FirstRoom.IsAdded*:EveryWindow.*'
folder=$PWD/docs/pictures
if [ $# -gt 0 ]; then
    folder=$(cd "$caller" && realpath -m -- "$1")
    steps=$steps:Languages/EveryForm.*
fi

mkdir -p build/logs "$folder"
install_packages $build_packages $test_packages
log=build/logs/pictures.log
echo "Building (log: $log)"
if ! { cmake --preset linux-asan && cmake --build --preset linux-asan --target system_tests; } > "$log" 2>&1; then
    tail -n 40 "$log"
    echo "The build failed." >&2
    exit 1
fi
for look in light dark; do
    echo "Drawing in $look"
    # An empty variable would count as one that is set.
    [ $look = light ] || export RF_DARK=1
    if ! RF_PICTURES=$folder build/linux-asan/bin/system_tests --gtest_filter="$steps" > "$log" 2>&1; then
        tail -n 40 "$log"
        echo "A step failed." >&2
        exit 1
    fi
done
ls "$folder"

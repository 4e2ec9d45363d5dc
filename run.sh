#!/usr/bin/env bash
# Installs what is missing, builds the program and starts it.
#
#   ./run.sh [NUMBER [PAGE]]   arguments go to the program
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh

case ${1:-} in
--help | -h)
    sed -n '2,4s/^# \{0,1\}//p' "$0"
    exit 0
    ;;
esac

mkdir -p build/logs
install_packages $build_packages
log=build/logs/run-build.log
echo "Building (log: $log)"
if ! { cmake --preset linux -DRF_BENCH=OFF && cmake --build --preset linux --target RFBookingInfo; } > "$log" 2>&1; then
    tail -n 40 "$log"
    echo "The build failed." >&2
    exit 1
fi
echo "Starting RFBookingInfo"
status=0
build/linux/bin/RFBookingInfo "$@" || status=$?
echo "RFBookingInfo ended with status $status."
exit "$status"

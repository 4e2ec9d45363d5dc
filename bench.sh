#!/usr/bin/env bash
# Installs what is missing, builds the benchmarks optimised and prints their table.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh

mkdir -p build/logs
install_packages $build_packages $bench_packages
log=build/logs/bench-build.log
echo "Building (log: $log)"
if ! { cmake --preset linux -DRF_BENCH=ON && cmake --build --preset linux; } > "$log" 2>&1; then
    tail -n 40 "$log"
    echo "The build failed." >&2
    exit 1
fi
exec bench/report.sh build/linux

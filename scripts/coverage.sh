#!/usr/bin/env bash
# Builds with coverage counters into build/coverage, runs the unit tests and prints how many lines of the folders that
# hold the rules they reach. Ends with status 1 when a test fails or a folder stays below the bound.
#
#   scripts/coverage.sh [PERCENT]    the bound is 95 without an argument
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

bound=${1:-95}
if [[ ! $bound =~ ^[0-9]+$ ]]; then
    sed -n '2,5s/^# \{0,1\}//p' "$0" >&2
    exit 2
fi

mkdir -p build/logs
install_packages $build_packages $test_packages $coverage_packages
log=build/logs/coverage.log
echo "Building and running the unit tests (log: $log)"
# Counters add up over runs, and those of sources that have gone would stay.
find build/coverage -name '*.gcda' -delete 2> /dev/null || true
if ! { cmake --preset coverage && cmake --build --preset coverage --target unit_tests &&
    build/coverage/bin/unit_tests; } > "$log" 2>&1; then
    tail -n 40 "$log"
    echo "The build or a test failed." >&2
    exit 1
fi

echo "Reading the counters"
table=build/logs/coverage.csv
if ! gcovr --root . --object-directory build/coverage --filter 'src/(storage|orders|booking)/' -j "$(nproc)" \
    --csv "$table" build/coverage >> "$log" 2>&1; then
    tail -n 40 "$log"
    echo "The counters cannot be read." >&2
    exit 1
fi

# A row of the table is a file, its lines and those that were reached, then shares of lines, branches, functions.
awk -F, -v bound="$bound" '
    NR > 1 {
        split($1, part, "/")
        folder = part[1] "/" part[2]
        lines[folder] += $2
        reached[folder] += $3
        if ($2 > 0 && 100 * $3 < bound * $2)
            weak = weak sprintf("   %-44s %6.1f %%\n", $1, 100 * $3 / $2)
    }
    END {
        for (folder in lines) {
            low = 100 * reached[folder] < bound * lines[folder]
            missed += low
            printf "%-44s %5d of %5d lines %6.1f %%  %s\n", folder, reached[folder], lines[folder], 100 * reached[folder] / lines[folder], low ? "BELOW " bound : "met" | "sort"
            found = 1
        }
        close("sort")
        if (weak != "")
            printf "Below %d %% by themselves:\n%s", bound, weak
        if (!found)
            print "nothing was measured"
        exit missed > 0 || !found
    }' "$table"

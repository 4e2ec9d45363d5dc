#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test: on Linux under the address and undefined-behaviour sanitizers,
# and the same portable tests once more as Windows programs under Wine.
#
#   ./test.sh         the quick checks: format, Linux tests, Windows tests
#   ./test.sh --all   the slow ones too: clang-tidy over everything, the 32-bit build, long fault
#                     and fuzz runs
set -uo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh

usage() { sed -n '2,7s/^# \{0,1\}//p' "$0"; }
slow=no
for argument in "$@"; do
    case $argument in
    --all) slow=yes ;;
    --help | -h) usage; exit 0 ;;
    *) echo "test.sh: unknown option $argument" >&2; usage >&2; exit 2 ;;
    esac
done

mkdir -p build/logs
# Whatever a test puts among the temporary files goes with this run, and a test that leaves some there is found out.
TMPDIR=$(mktemp -d)
# Tests that give up their rights have to get in.
chmod 755 "$TMPDIR"
export TMPDIR
trap 'rm -rf "$TMPDIR"' EXIT
failures=()
notes=()

fail() { failures+=("$1"); echo "FAILED: $1" >&2; }

# step NAME COMMAND...: runs a step, shows its output when it fails.
step() {
    local name=$1 log started=$SECONDS
    shift
    log=build/logs/$(echo "$name" | tr ' /' '--').log
    echo "== $name"
    if "$@" > "$log" 2>&1; then
        echo "   done in $((SECONDS - started)) s"
        return 0
    fi
    tail -n 60 "$log"
    fail "$name (log: $log)"
    return 1
}

build() { cmake --preset "$1" && cmake --build --preset "$1"; }

format() {
    git ls-files -co --exclude-standard -- '*.cpp' '*.h' | while read -r file; do [ -f "$file" ] && echo "$file"; done |
        xargs clang-format --dry-run --Werror
}

wine_prefix() {
    scripts/wine.sh wineboot --init &&
        # A program that crashes says where and ends, instead of waiting for somebody to press a button.
        scripts/wine.sh reg add 'HKCU\Software\Wine\WineDbg' /v ShowCrashDialog /t REG_DWORD /d 0 /f
}

# run_tests SYSTEM PROGRAM [PART]: runs a test program, or the part of its tests with this number, counted from 0. What it
# ended with is kept beside its log.
run_tests() {
    local system=$1 program=$2 runner=$alone folder=build/linux-asan/bin limit=600 log status
    [ "$system" = linux ] || { runner=scripts/wine.sh folder=build/windows-x86_64/bin limit=180; }
    log=build/logs/$system-${program%.exe}${3:+-$3}.log
    [ $# -lt 3 ] || export GTEST_TOTAL_SHARDS=$parts GTEST_SHARD_INDEX=$3
    timeout $limit $runner "$folder/$program" > "$log" 2>&1
    status=$?
    if [ "$system $status" = "wine 124" ]; then
        # Two processes that call each other were seen to wait for ever there, once, on a busy machine.
        mv "$log" "${log%.log}.stood-still"
        timeout $limit $runner "$folder/$program" > "$log" 2>&1
        status=$?
    fi
    # A program that breaks off under Wine can end with 0.
    grep -aq '^\[==========\] .* ran\.' "$log" || status="$status, before its last test"
    echo "$status" > "${log%.log}.status"
}

# rows_of_tests: command lines for every test program there is, the longest first.
rows_of_tests() {
    local program part
    # A prefix of Wine is for one program at a time.
    [ $wine = no ] || echo 'for program in unit object_model native system; do run_tests wine ${program}_tests.exe; done'
    [ $linux = yes ] || return
    echo "run_tests linux unit_tests"
    for ((part = 0; part < parts; part++)); do
        for program in system_tests native_tests; do echo "run_tests linux $program $part"; done
    done
    echo "run_tests linux object_model_tests"
}

# failed_parts LOG: what the failed tests wrote; where none failed, the last that the program wrote.
failed_parts() {
    tr -d '\r' < "$1" | grep -avE '^This plugin does not support|Failed to set fd limit' | cut -c 1-1000 | awk '
        function tell(last) { for (i = lines > last ? lines - last : 0; i < lines; i++) print line[i]; told = 1 }
        /^\[ RUN / { lines = 0 }
        { line[lines++] = $0 }
        /^\[  FAILED  \].* ms\)$/ { tell(20) }
        END { if (!told) tell(60) }' | head -n 80
}

# tell_failures SYSTEM LABEL: what the test programs of a system found.
tell_failures() {
    local status log
    for status in build/logs/"$1"-*_tests*.status; do
        [ -f "$status" ] && [ "$(cat "$status")" != 0 ] || continue
        log=${status%.status}.log
        failed_parts "$log"
        fail "$2: $(basename "$log" .log | cut -d- -f2) ended with status $(cat "$status") (log: $log)"
    done
}

# Qt makes its folder of the session there when the system has none for the user, and Wine that of its server.
nothing_left() {
    [ -z "$(find "$TMPDIR" -mindepth 1 -not -path "$TMPDIR/runtime-*" -not -path "$TMPDIR/wine-*" -print | tee /dev/stderr)" ]
}

# summary LABEL LOG...: "Linux: N passed, N failed, N skipped", and the skipped tests by name.
summary() {
    local label=$1
    shift
    cat "$@" 2> /dev/null | tr -d '\r' | awk -v label="$label" '
        /^\[  PASSED  \] [0-9]+ test/ { passed += $4 }
        /^\[  FAILED  \] [0-9]+ test/ { failed += $4 }
        /^\[  SKIPPED \] [0-9]+ test/ { skipped += $4 }
        /^\[  SKIPPED \] [A-Za-z]/ && NF == 4 && !seen[$4]++ { names = names "\n   skipped: " $4 }
        END { printf "%s: %d passed, %d failed, %d skipped\n", label, passed, failed, skipped
              if (names != "") print "  " label names }' > "build/logs/summary-$label.txt"
}

rm -f build/logs/*_tests*.{status,log,stood-still} build/logs/summary-*.txt
linux=no
wine=no
if ! install_packages $build_packages $test_packages; then
    fail "Linux build: packages are missing"
else
    step "clang-format" format
    step "page of the phrases" scripts/phrase_page.sh --check
    step "build for Linux with sanitizers" build linux-asan && linux=yes
fi

# The 32-bit compiler is needed for the slow checks only.
if ! install_packages $windows_packages; then
    notes+=("skipped: every Windows test (install: apt-get install $windows_packages)")
elif step "build for Windows, 64 bits" build windows-x86_64; then
    if install_packages $wine_packages; then
        step "a Wine prefix" wine_prefix && wine=yes
    else
        notes+=("skipped: unit_tests, object_model_tests, native_tests and system_tests under Wine (install: apt-get install $wine_packages)")
    fi
fi

# The tests start the program, which knows and ends the others of its user: they run apart, or one after the other.
alone= rows=1
scripts/alone.sh && alone=scripts/alone.sh rows=5
parts=3
export alone parts
export -f run_tests

echo "== tests"
testing=$SECONDS
# Several at once fill the time in which a test waits.
rows_of_tests | xargs -d '\n' -P "$rows" -n 1 bash -c
echo "   done in $((SECONDS - testing)) s"
if [ $linux = yes ]; then
    tell_failures linux Linux
    summary Linux build/logs/linux-*_tests*.log
    step "nothing left among the temporary files" nothing_left
    step "random inputs, 10 s for each parser" scripts/fuzz.sh build/linux-asan 10
fi
if [ $wine = yes ]; then
    tell_failures wine Wine
    summary Wine build/logs/wine-*_tests*.log
    for log in build/logs/wine-*_tests.stood-still; do
        [ ! -f "$log" ] || notes+=("run again, because it stood still under Wine (log: $log)")
    done
fi

if [ $slow = yes ]; then
    step "long fault runs" env RF_SLOW_TESTS=1 build/linux-asan/bin/native_tests \
        --gtest_filter='RulesAtWork.*:SqliteKill.*:RuleComparison.*'
    step "the whole conference, and the program killed time and again" env RF_SLOW_TESTS=1 \
        build/linux-asan/bin/system_tests --gtest_filter='DemoRun.*'
    if ! install_packages $fuzz_packages; then
        notes+=("skipped: libFuzzer on $(cd tests/fuzz && echo *_fuzz.cpp) (install: apt-get install $fuzz_packages)")
    elif step "build with libFuzzer" build linux-fuzz; then
        step "libFuzzer, 120 s for each parser" scripts/fuzz.sh build/linux-fuzz 120
    fi
    if install_packages $tidy_packages; then
        step "clang-tidy" scripts/tidy.sh linux-asan
    else
        notes+=("skipped: clang-tidy (install: apt-get install $tidy_packages)")
    fi
    if install_packages $windows32_packages; then
        step "build for Windows, 32 bits" build windows-i686 &&
            step "resources of the 32-bit program" env RF_PROGRAM_FILE="$PWD/build/windows-i686/bin/RFBookingInfo.exe" \
                scripts/wine.sh build/windows-x86_64/bin/native_tests.exe --gtest_filter='ProgramFile.*'
    else
        notes+=("skipped: the 32-bit Windows build (install: apt-get install $windows32_packages)")
    fi
fi

echo
for label in Linux Wine; do
    [ ! -f "build/logs/summary-$label.txt" ] || sed -n '2,$p' "build/logs/summary-$label.txt"
done
[ ${#notes[@]} -eq 0 ] || printf '%s\n' "${notes[@]}"
for label in Linux Wine; do
    [ ! -f "build/logs/summary-$label.txt" ] || sed -n '1p' "build/logs/summary-$label.txt"
done
if [ ${#failures[@]} -gt 0 ]; then
    printf 'FAILED: %s\n' "${failures[@]}"
    exit 1
fi
echo "All checks passed in $SECONDS s."

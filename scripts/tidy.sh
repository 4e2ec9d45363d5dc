#!/usr/bin/env bash
# Runs clang-tidy over every source of a build. A source that was clean is passed over until it, any header or the
# checks change.
#
#   scripts/tidy.sh PRESET [PATH_PART]   PRESET: one that is built; PATH_PART: only the sources whose path contains it
#
# As many run at once as there are processors, or RF_JOBS of them.
set -uo pipefail
cd "$(dirname "$0")/.."
root=$PWD

if [ $# -lt 1 ] || [ ! -f "build/$1/CMakeCache.txt" ]; then
    sed -n '2,7s/^# \{0,1\}//p' scripts/tidy.sh >&2
    exit 2
fi
part=${2:-}

stamps=build/tidy
mkdir -p "$stamps"

# The build compiles tests in batches, and has made what Qt's tools generate. The checks read one source at a time.
alone=$stamps/$1
cmake --preset "$1" -B "$alone" -DRF_BATCHES=OFF > "$stamps/cmake.log" || { cat "$stamps/cmake.log" >&2; exit 1; }
sed "s#$root/$alone#$root/build/$1#g" "$alone/compile_commands.json" > "$stamps/sources.json"
database=$stamps/sources.json

# The precompiled headers are another compiler's; the checks read the headers themselves.
sed -E 's/-Winvalid-pch( (-Xclang )?-include(-pch)? (-Xclang )?[^ ]*cmake_pch\.hxx(\.pch)?)+//' "$database" > "$stamps/compile_commands.json"
database=$stamps/compile_commands.json

# What every source depends on. A header counts for all of them: few change without their sources.
newest=$(find src tests .clang-tidy scripts/tidy.sh scripts/clang-tidy \
    \( -name '*.h' -o -name '.clang-tidy' -o -path 'scripts/*' \) -type f -printf '%T@ %p\n' | sort -n | tail -n 1)
newest=${newest#* }

# Qt's generated sources lie in the build folder and are nobody's to mend.
sources() {
    sed -n 's/^ *"file": "\(.*\.cpp\)",\{0,1\}$/\1/p' "$database" | sort -u | grep -F "$root/" |
        grep -vF "$root/build/" | grep -F -- "$part"
}

stamp_of() { echo "$stamps/$(echo "${1#"$root"/}" | tr / -).clean"; }

# check SOURCE: the findings, and a stamp when there are none. The stamp is as old as the start of the check, so that
# an edit made meanwhile is seen.
check() {
    local source=$1 stamp started findings
    stamp=$(stamp_of "$source")
    started=$stamp.$$
    touch "$started"
    # A source may include what Qt's tools have generated for it; only the project's own headers are looked at.
    # This Clang's builtins do not serve the standard library's <source_location>.
    if findings=$(clang-tidy --quiet -p "$stamps" --header-filter="^$root/(src|tests)/" \
        --extra-arg=-isystem"$root/scripts/clang-tidy" "$source" 2>&1); then
        mv "$started" "$stamp"
    else
        rm -f "$started" "$stamp"
        printf '%s:\n%s\n' "$source" "$findings" | grep -vE '^[0-9]+ (warning|error)s?.* generated|^Suppressed '
        return 1
    fi
}

count=0
due=()
while read -r source; do
    count=$((count + 1))
    stamp=$(stamp_of "$source")
    if [ ! "$stamp" -nt "$source" ] || [ ! "$stamp" -nt "$newest" ]; then
        due+=("$source")
    fi
done < <(sources)
if [ $count = 0 ]; then
    echo "clang-tidy: no source of $root in $database" >&2
    exit 1
fi

if [ ${#due[@]} -gt 0 ]; then
    export root database stamps
    export -f check stamp_of
    if ! printf '%s\0' "${due[@]}" | xargs -0 -P "${RF_JOBS:-$(nproc)}" -I{} bash -c 'check "$1"' check {}; then
        echo "clang-tidy: findings in ${#due[@]} files checked" >&2
        exit 1
    fi
fi
echo "clang-tidy: $count files clean"

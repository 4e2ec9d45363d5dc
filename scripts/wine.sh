#!/usr/bin/env bash
# Runs a Windows program under Wine, in a prefix of this build's own and on a screen that nobody sees.
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
export WINEPREFIX=${WINEPREFIX:-$root/build/wine}
export WINEDEBUG=${WINEDEBUG:--all}
# Wine offers to download these at the first start of a prefix; the program needs neither.
export WINEDLLOVERRIDES=${WINEDLLOVERRIDES:-mscoree=;mshtml=}
wine=$(command -v wine64 || echo /usr/lib/wine/wine64)
mkdir -p "$(dirname "$WINEPREFIX")"
# A service of the last run that is still going down would refuse the first calls of this one, so it is let go first.
server=$(command -v wineserver || echo /usr/lib/wine/wineserver)
timeout 15 "$server" -w || "$server" -k || true
if [ -n "${DISPLAY:-}" ]; then
    exec "$wine" "$@"
fi
exec xvfb-run -a "$wine" "$@"

#!/usr/bin/env bash
# Runs a command among processes of its own: it neither sees nor ends those that run beside it.
#
#   scripts/alone.sh [COMMAND...]    without a command: status 0 when the system allows that
set -uo pipefail

own=(unshare --pid --fork --kill-child --mount-proc)
# A user without rights gets those that it takes among users of its own. Root would lose some there: tests give up theirs.
[ "$(id -u)" = 0 ] || own+=(--user --map-current-user)
if [ $# = 0 ]; then
    "${own[@]}" true 2> /dev/null
    exit
fi
# The shell is the first process there, which takes the ends of all that lost their parents.
exec "${own[@]}" sh -c '"$@"; exit $?' sh "$@"

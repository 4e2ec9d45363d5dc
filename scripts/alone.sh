#!/usr/bin/env bash
# Runs a command among processes of its own: it neither sees nor ends those that run beside it.
#
#   scripts/alone.sh [COMMAND...]    without a command: status 0 when the system allows that
set -uo pipefail

# A user without rights gets those that it takes in a name space of its own.
own=(unshare --pid --fork --kill-child --mount-proc)
"${own[@]}" true 2> /dev/null || own=(unshare --user --map-current-user --pid --fork --kill-child --mount-proc)
if [ $# = 0 ]; then
    "${own[@]}" true 2> /dev/null
    exit
fi
# The shell is the first process there, which takes the ends of all that lost their parents.
exec "${own[@]}" sh -c '"$@"; exit $?' sh "$@"

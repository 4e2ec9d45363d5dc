#!/usr/bin/env bash
# Shows RFBookingInfo at work: installs what is missing, builds, and lets a real conference calendar
# arrive in a demonstration installation, booking by booking.
#
#   ./run.sh [--fresh] [--stay] [--filled NUMBER] [CALENDAR.ics...]
#
#   --fresh          begin anew; without it a run goes on with the installation of the run before
#   --stay           keep the host and the program until Ctrl-C, to look at them
#   --filled NUMBER  put so many bookings of past years into the calendars first, for measuring;
#                    begins anew
#
# Without a calendar it takes tests/data/conference-2024.ics. The installation lies in $RF_DEMO, else in
# rfbookinginfo-demo in the user's data folder. Where there is no screen the windows are drawn off screen in the end: a
# booking by hand, step by step, as pictures in the same folder. The exit status is 0 when all was as it should be.
set -euo pipefail
caller=$PWD
cd "$(dirname "$0")"
. scripts/packages.sh

usage() { sed -n '2,15s/^# \{0,1\}//p' run.sh; }

fresh=no
stay=no
filled=
calendars=()
while [ $# -gt 0 ]; do
    case $1 in
    --help | -h) usage; exit 0 ;;
    --fresh) fresh=yes ;;
    --stay) stay=yes ;;
    --filled) fresh=yes; filled=${2:-}; [ -n "$filled" ] || { usage >&2; exit 2; }; shift ;;
    -*) echo "run.sh: unknown option $1" >&2; usage >&2; exit 2 ;;
    *) calendars+=("$(cd "$caller" && realpath -- "$1")") ;;
    esac
    shift
done
[ ${#calendars[@]} -gt 0 ] || calendars=("$PWD/tests/data/conference-2024.ics")

mkdir -p build/logs
install_packages $build_packages $run_packages
log=build/logs/run-build.log
echo "Building (log: $log)"
targets="RFBookingInfo rfhost rfdemo booking_by_hand"
if ! { cmake --preset linux -DRF_BENCH=OFF && cmake --build --preset linux --target $targets; } > "$log" 2>&1; then
    tail -n 40 "$log"
    echo "The build failed." >&2
    exit 1
fi

bin=$PWD/build/linux/bin
demo=${RF_DEMO:-${XDG_DATA_HOME:-$HOME/.local/share}/rfbookinginfo-demo}
store=$demo/store.db
user="Jane Doe"
[ $fresh = no ] || rm -f "$store" "$store"-*
mkdir -p "$demo/temporary"
demo=$(realpath "$demo")
store=$demo/store.db
# The host and the program leave their temporary files, and the selection file, with the demonstration.
export TMPDIR=$demo/temporary
# Windows are for who sits here. Without a terminal nobody may: a display that is named all the same may be gone, and an
# error report in a window would wait for ever. A platform without a screen would draw where nobody looks.
[ -t 0 ] || unset DISPLAY WAYLAND_DISPLAY
[ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] || unset QT_QPA_PLATFORM

bus=
host=
client=
hands=
# end GROUP: asks the first process of a group to end. The others end with it; the group is theirs alone, should one of
# them not.
end() {
    kill -TERM "$1" 2> /dev/null || true
    for _ in $(seq 30); do
        kill -0 -- "-$1" 2> /dev/null || break
        sleep 0.1
    done
    kill -KILL -- "-$1" 2> /dev/null || true
}
finish() {
    trap - EXIT INT TERM HUP
    [ -z "$client" ] || kill "$client" 2> /dev/null || true
    [ -z "$hands" ] || end "$hands"
    [ -z "$host" ] || end "$host"
    [ -z "$bus" ] || kill "$bus" 2> /dev/null || true
    wait 2> /dev/null || true
}
trap finish EXIT
trap 'exit 130' INT
trap 'exit 143' TERM HUP

has_bus() { [ -n "${DBUS_SESSION_BUS_ADDRESS:-}" ] || [ -S "${XDG_RUNTIME_DIR:-/nowhere}/bus" ]; }

# Where the private bus looks for services it finds how to start the host, should a program ask for one.
start_bus() {
    local services=$demo/data/dbus-1/services
    "$bin/rfhost" --store "$store" activation --user "$user" --into "$services" > /dev/null
    rm -f "$demo/bus"
    XDG_DATA_HOME=$demo/data setpriv --pdeathsig KILL \
        dbus-daemon --session --nofork --nosyslog --print-address=3 3> "$demo/bus" 2> "$demo/bus.log" &
    bus=$!
    for _ in $(seq 100); do
        DBUS_SESSION_BUS_ADDRESS=$(cat "$demo/bus" 2> /dev/null || true)
        [ -z "$DBUS_SESSION_BUS_ADDRESS" ] || break
        sleep 0.05
    done
    export DBUS_SESSION_BUS_ADDRESS
    [ -n "$DBUS_SESSION_BUS_ADDRESS" ] || { echo "The private session bus does not start." >&2; exit 1; }
}

"$bin/rfhost" --store "$store" init "$user" > /dev/null
if [ -n "$filled" ]; then
    echo "Filling the calendars with $filled bookings"
    "$bin/rfdemo" fill --store "$store" --bookings "$filled" "${calendars[@]}"
fi
has_bus || start_bus
# The mailbox is shown first: the program starts when the root folder is, and by then there are rooms in it.
setsid setpriv --pdeathsig TERM "$bin/rfhost" --store "$store" serve --user "$user" --accept-alerts \
    --show "Mailbox - $user/Calendar" --program "$bin/RFBookingInfo" > "$demo/host.log" 2> "$demo/alerts.log" &
host=$!
until grep -q serves "$demo/host.log"; do
    kill -0 "$host" 2> /dev/null || { cat "$demo/alerts.log" >&2; exit 1; }
    sleep 0.02
done

status=0
# In the background, since a signal for this script would wait until a command in the foreground ends.
setpriv --pdeathsig TERM "$bin/rfdemo" --pictures "$demo" "${calendars[@]}" &
client=$!
wait "$client" || status=$?
client=
if [ -s "$demo/alerts.log" ]; then
    echo
    echo "Said meanwhile, with the answer that was taken:"
    sed 's/^/  /' "$demo/alerts.log"
fi

rooms="Public Folders/All Public Folders"
cat << EOF

To look further:
  export RFHOST_STORE="$store"
  ${bin#"$PWD/"}/rfhost list                                            # the folders
  ${bin#"$PWD/"}/rfhost list "$rooms/All bookings"    # the master copies
  ${bin#"$PWD/"}/rfhost show ID                                         # an item with its properties
EOF
if [ $stay = yes ] && [ $status = 0 ]; then
    echo "The host and the program stay; Ctrl-C ends them."
    wait "$host" || true
elif [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    # A user has one program at a time.
    end "$host"
    host=
    echo
    echo "The windows, off screen, as a person drives them, in an installation of their own:"
    # In the background and in a group of its own, as the host.
    setsid setpriv --pdeathsig TERM "$bin/booking_by_hand" "$demo/pictures" &
    hands=$!
    wait "$hands" || status=$?
fi
[ $status = 0 ] || echo "Not all was as it should be." >&2
exit "$status"

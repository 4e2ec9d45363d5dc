#!/bin/sh
# Runs every benchmark program of a build and prints the medians next to their bounds.
#
#   bench/report.sh BUILD_FOLDER
#
# Times are processor time, so that other work on the machine does not count; a benchmark that waits for others tells
# the time that passes. Ends with status 1 when a bound is missed or was not measured, or when a program fails.
set -eu

if [ $# -ne 1 ] || ! ls "$1"/bin/*_bench > /dev/null 2>&1; then
    sed -n '2,7s/^# \{0,1\}//p' "$0" >&2
    exit 2
fi

results=$(mktemp)
trap 'rm -f "$results"' EXIT
status=0
for program in "$1"/bin/*_bench; do
    # JSON, since the library writes no CSV of benchmarks whose counters differ.
    if ! "$program" --benchmark_repetitions=5 --benchmark_report_aggregates_only=true --benchmark_format=json \
        2> /dev/null >> "$results"; then
        echo "$(basename "$program") failed" >&2
        status=1
    fi
done

# A row: the benchmark, what it measures, how ("time", "item" for the time of one item, "bytes" for bytes per second,
# or the name of a counter), the unit, and the bound ("<" or ">" and the number, "-" for none). A benchmark without a
# row is printed behind them.
awk '
    function milliseconds(number, scale) {
        return number * (scale == "ns" ? 1e-6 : scale == "us" ? 1e-3 : scale == "s" ? 1e3 : 1)
    }
    function take(name, waiting, time) {
        waiting = name ~ /\/(real|manual)_time$/
        gsub(/\/(iterations:[0-9]+|real_time|manual_time)/, "", name)
        time = waiting ? field["real_time"] : field["cpu_time"]
        if (!(name in rowsOf)) {
            ++rows
            rowsOf[name] = rows
            title[rows] = name
            unit[rows] = field["time_unit"]
            bound[rows] = "-"
            median[rows] = time
            return
        }
        count = split(rowsOf[name], rowNumbers, " ")
        for (i = 1; i <= count; ++i) {
            row = rowNumbers[i]
            if (measure[row] == "item")
                median[row] = 1e9 / field["items_per_second"]
            else if (measure[row] == "bytes")
                median[row] = field["bytes_per_second"] / 1e6
            else if (measure[row] == "time")
                median[row] = milliseconds(time, field["time_unit"]) * (unit[row] == "us" ? 1e3 : 1)
            else if (measure[row] in field)
                median[row] = field[measure[row]]
        }
    }
    NR == FNR {
        split($0, cell, "|")
        ++rows
        rowsOf[cell[1]] = rowsOf[cell[1]] " " rows
        title[rows] = cell[2]
        measure[rows] = cell[3]
        unit[rows] = cell[4]
        bound[rows] = cell[5]
        next
    }
    /^ *"[^"]+": / {
        key = $0
        sub(/^ *"/, "", key)
        value = key
        sub(/".*/, "", key)
        sub(/^[^"]*": /, "", value)
        gsub(/^"|"?,?$/, "", value)
        field[key] = value
        next
    }
    /^ *[{}]/ {
        if (field["aggregate_name"] == "median")
            take(field["run_name"])
        split("", field)
    }
    END {
        line = "%-44s %10s %-5s %8s  %s"
        print sprintf(line, "", "median", "", "bound", "")
        for (row = 1; row <= rows; ++row) {
            limit = substr(bound[row], 3) + 0
            word = ""
            if (!(row in median))
                word = "MISSED: not measured"
            else if (bound[row] != "-")
                word = (bound[row] ~ /^</ ? median[row] + 0 < limit : median[row] + 0 > limit) ? "met" : "MISSED"
            if (word ~ /^MISSED/)
                missed = 1
            number = row in median ? sprintf("%.2f", median[row]) : "-"
            text = sprintf(line, title[row], number, unit[row], bound[row], word)
            sub(/ +$/, "", text)
            print text
        }
        exit missed
    }
' - "$results" << 'ROWS' || status=1
loadPhraseTable|phrase table loaded|time|ms|< 5
readBareObject|1,000,000 property reads, a bare object|time|ms|< 500
readHostItem|1,000,000 property reads, a host item|time|ms|< 500
readHostFolder/0|1,000,000 property reads, a folder of few|time|ms|< 500
readHostFolder/20|1,000,000 property reads, a folder of many|time|ms|< 500
buildDictionary/1000|dictionary of 1,000 keys built|time|ms|-
buildDictionary/10000|dictionary of 10,000 keys built|time|ms|-
buildDictionary/100000|dictionary of 100,000 keys built|time|ms|< 200
readDictionary/1000|dictionary read, per key of 1,000|item|ns|-
readDictionary/10000|dictionary read, per key of 10,000|item|ns|-
readDictionary/100000|dictionary read, per key of 100,000|item|ns|-
writeAndReadLongText|long text of 1 MB written and read|time|ms|< 50
readValue|stored value read|time|us|< 10
loadSimpleList/100000|list of 100,000 lines loaded|time|ms|< 500
loadSimpleList/1000000|list of 1,000,000 lines loaded|time|ms|< 5000
loadProjects/100000|100,000 projects loaded|time|ms|< 500
loadProjects/1000000|1,000,000 projects loaded|time|ms|< 5000
folderFromPath|folder found by its path|time|us|< 100
loadResourceDescription|resource description loaded|time|us|< 200
loadSettings/1|settings with 1 calendar loaded|time|ms|< 5
loadSettings/1|    uses of the host's members|calls|times|< 151
loadSettings/1000|settings with 1,000 calendars loaded|time|ms|< 100
loadSettings/1000|    uses of the host's members|calls|times|-
saveSettings|settings saved|time|ms|< 5
validateBooking/100000|booking validated among 100,000: p99|p99_us|us|< 1000
validateBooking/100000|    p50 against the bare search|ratio|times|< 2
readBookingRecord|booking record with 50 order lines read|time|us|< 50
callsToValidate|calls to the host, booking validated|calls||< 12
callsToAcceptSave|calls to the host, save with both copies|calls||< 64
callsOfItemAdd|calls to the host, one item added|calls||< 72
callsOfItemChange|calls to the host, unchanged item changed|calls||< 46
openOrdersForm/99|orders form of 99 supplies opened|time|ms|< 200
openOrdersForm/500|orders form of 500 supplies opened|time|ms|-
typeQuantity/99|quantity typed until its total is shown|time|ms|< 20
callsOfOrdersForm/99|calls to the host, orders form opened|open_host||< 40
callsOfOrdersForm/99|calls to the host, orders form left by OK|ok_host||< 30
callsOfOrdersForm/99|calls to the spreadsheet, form opened|open_sheet||< 170
callsOfOrdersForm/99|calls to the spreadsheet, form left by OK|ok_sheet||< 10
splitIntoLines|text split into lines|bytes|MB/s|> 200
overlappingFreeSlot/1000|free slot in 1,000: p50|store_p50_us|us|-
overlappingFreeSlot/1000|    p99|store_p99_us|us|-
overlappingFreeSlot/1000|    p50 against plain SQL|ratio_p50|times|< 3
overlappingFreeSlot/1000|    p99 against plain SQL|ratio_p99|times|< 3
overlappingFreeSlot/10000|free slot in 10,000: p50|store_p50_us|us|-
overlappingFreeSlot/10000|    p99|store_p99_us|us|-
overlappingFreeSlot/10000|    p50 against plain SQL|ratio_p50|times|< 3
overlappingFreeSlot/10000|    p99 against plain SQL|ratio_p99|times|< 3
overlappingFreeSlot/100000|free slot in 100,000: p50|store_p50_us|us|-
overlappingFreeSlot/100000|    p99|store_p99_us|us|-
overlappingFreeSlot/100000|    p50 against plain SQL|ratio_p50|times|< 3
overlappingFreeSlot/100000|    p99 against plain SQL|ratio_p99|times|< 3
overlappingFreeSlot/1000000|free slot in 1,000,000: p50|store_p50_us|us|-
overlappingFreeSlot/1000000|    p99|store_p99_us|us|-
overlappingFreeSlot/1000000|    p50 against plain SQL|ratio_p50|times|< 3
overlappingFreeSlot/1000000|    p99 against plain SQL|ratio_p99|times|< 3
overlappingFreeSlot/1000000|    p50 against the smallest calendar|growth|times|< 2
overlappingTakenSlot/1000|taken slot in 1,000: p50|store_p50_us|us|-
overlappingTakenSlot/1000|    p99|store_p99_us|us|-
overlappingTakenSlot/1000|    p50 against plain SQL|ratio_p50|times|< 3
overlappingTakenSlot/1000|    p99 against plain SQL|ratio_p99|times|< 3
overlappingTakenSlot/10000|taken slot in 10,000: p50|store_p50_us|us|-
overlappingTakenSlot/10000|    p99|store_p99_us|us|-
overlappingTakenSlot/10000|    p50 against plain SQL|ratio_p50|times|< 3
overlappingTakenSlot/10000|    p99 against plain SQL|ratio_p99|times|< 3
overlappingTakenSlot/100000|taken slot in 100,000: p50|store_p50_us|us|-
overlappingTakenSlot/100000|    p99|store_p99_us|us|-
overlappingTakenSlot/100000|    p50 against plain SQL|ratio_p50|times|< 3
overlappingTakenSlot/100000|    p99 against plain SQL|ratio_p99|times|< 3
overlappingTakenSlot/1000000|taken slot in 1,000,000: p50|store_p50_us|us|-
overlappingTakenSlot/1000000|    p99|store_p99_us|us|-
overlappingTakenSlot/1000000|    p50 against plain SQL|ratio_p50|times|< 3
overlappingTakenSlot/1000000|    p99 against plain SQL|ratio_p99|times|< 3
overlappingTakenSlot/1000000|    p50 against the smallest calendar|growth|times|< 2
saveNewItem/1000|appointment saved in 1,000: p50|store_p50_us|us|-
saveNewItem/1000|    p50 against a plain insert|ratio_p50|times|< 2
saveNewItem/1000000|appointment saved in 1,000,000: p50|store_p50_us|us|-
saveNewItem/1000000|    p50 against a plain insert|ratio_p50|times|< 2
readPropertyAgainstEmptyCall|property read over D-Bus|read_us|us|-
readPropertyAgainstEmptyCall|    against an empty call|ratio|times|< 1.5
drawWeek/1000|week drawn from 1,000 bookings|time|ms|-
drawWeek/100000|week drawn from 100,000 bookings|time|ms|< 50
openAppointmentWindow|appointment window opened until its bar shows|median_ms|ms|< 150
openAppointmentWindow|    calls of the program|calls||-
pressBookingInfo|orders form of 99 supplies opened by hand|median_ms|ms|< 200
pressBookingInfo|    calls of the program|calls||-
typeQuantityByHand|quantity typed by hand until its total shows|median_ms|ms|< 20
typeQuantityByHand|    calls of the program|calls||-
saveBookingByHand|booking saved by hand with both copies|median_ms|ms|< 60
saveBookingByHand|    calls of the program|calls||-
importConference|conference-2019.ics imported|time|ms|< 1000
ROWS
exit $status

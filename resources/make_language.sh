#!/bin/sh
# Makes the phrase table that the program carries (UTF-16LE, byte-order mark, CR LF, a key and 16 columns) out of the
# text that people edit. A block that does not follow the format stops the build with its line.
set -eu
source=$1
target=$2
lines=$(mktemp)
trap 'rm -f "$lines"' EXIT

awk '
BEGIN {
    count = split("cs da nl en fi fr de el it nb pt sl es sv tr ru", codes, " ")
    for (i = 1; i <= count; i++) known[codes[i]] = 1
}
function wrong(what) { printf "%s:%d: %s\n", FILENAME, NR, what > "/dev/stderr"; failed = 1; exit 1 }
function flush(   i, line) {
    if (key == "") return
    line = key
    for (i = 1; i <= count; i++) line = line "\t" cell[codes[i]]
    printf "%s\r\n", line
    split("", cell)
}
/\t/ || /\r/ { wrong("a TAB or a carriage return would break the table") }
/^#/ || /^$/ { next }
/^\[LNG[A-Z0-9]+\]$/ {
    flush()
    key = substr($0, 2, length($0) - 2)
    if (key in seen) wrong("the key " key " stands twice")
    seen[key] = 1
    next
}
/^[a-z][a-z]: / {
    code = substr($0, 1, 2)
    if (key == "") wrong("a phrase before the first key")
    if (!(code in known)) wrong("unknown language " code)
    if (code in cell) wrong("a second phrase for " code)
    cell[code] = substr($0, 5)
    next
}
{ wrong("neither a key, a phrase nor a comment: " $0) }
END { if (!failed) flush() }
' "$source" > "$lines"

mkdir -p "$(dirname "$target")"
{ printf '\377\376'; iconv -f UTF-8 -t UTF-16LE "$lines"; } > "$target.new"
mv "$target.new" "$target"

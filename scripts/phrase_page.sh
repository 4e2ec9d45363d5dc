#!/bin/sh
# Writes the part of docs/phrases.md that shows the phrase table and the languages of the locales. What stands above the
# marker line in that page is written by hand and stays.
#
#   scripts/phrase_page.sh           brings the page up to date
#   scripts/phrase_page.sh --check   fails, and shows the difference, when it is not
set -eu
cd "$(dirname "$0")/.."
table=resources/language.txt
locales=src/language/locale_columns.h
page=docs/phrases.md
marker='<!-- Everything below is written by scripts/phrase_page.sh. -->'

case ${1:-} in
'' | --check) ;;
*) sed -n '2,6s/^# \{0,1\}//p' "$0" >&2; exit 2 ;;
esac
grep -qxF -e "$marker" "$page" || { echo "phrase_page.sh: $page lacks the line: $marker" >&2; exit 1; }

fresh=$(mktemp)
trap 'rm -f "$fresh"' EXIT

awk -v marker="$marker" '{ print } $0 == marker { exit }' "$page" > "$fresh"
awk '
BEGIN {
    count = split("cs da nl en fi fr de el it nb pt sl es sv tr ru", codes, " ")
    split("Czech Danish Dutch English Finnish French German Greek Italian Norwegian Portuguese Slovenian Spanish" \
        " Swedish Turkish Russian", names, " ")
    groups = split("Buttons;Labels and columns;Options and check boxes;Headings, titles and links;Views, entries and" \
        " units;Messages and questions;Error report;Tooltips;Longer texts", group, ";")
}
function wrong(what) { print "phrase_page.sh: " what > "/dev/stderr"; failed = 1; exit 1 }
# The group of a phrase by the use with which its comment begins.
function group_of(key, use) {
    if (use ~ /^Button/) return 1
    if (use ~ /^(Label|Column)/) return 2
    if (use ~ /^(Option|Check box)/) return 3
    if (use ~ /^(Heading|Title|Link|Tab|Caption|Subject)/) return 4
    if (use ~ /^(View|List entry|Unit|Free\/busy)/) return 5
    if (use ~ /^(Message|Question)/) return 6
    if (use ~ /^Error report/) return 7
    if (use ~ /^Tooltip/) return 8
    if (use ~ /^(Text|Body text)/) return 9
    wrong("the comment under " key " begins with no use that is known: " use)
}
function escaped(text) {
    gsub(/[\\|*_<`]/, "\\\\&", text)
    return text
}
FILENAME ~ /locale_columns/ {
    if (match($0, /LocaleColumn\{[0-9]+, LanguageColumn::[A-Za-z]+\}/)) {
        entry = substr($0, RSTART, RLENGTH)
        gsub(/LocaleColumn\{|LanguageColumn::|\}|,/, "", entry)
        split(entry, part, " ")
        ids[part[2]] = ids[part[2]] (ids[part[2]] == "" ? "" : ", ") part[1]
    }
    next
}
/^\[/ { key = substr($0, 2, length($0) - 2); keys[++total] = key; next }
/^# / && total { use[key] = use[key] (use[key] == "" ? "" : " ") substr($0, 3); next }
/^[a-z][a-z]: / && total { phrase[key, substr($0, 1, 2)] = substr($0, 5); held[substr($0, 1, 2)]++ }
END {
    if (failed) exit 1
    ids["English"] = "every other"
    print "\n## Languages\n"
    print "| code | language | phrases | Windows locale ids |"
    print "|---|---|---|---|"
    for (i = 1; i <= count; i++)
        print "| `" codes[i] "` | " names[i] " | " held[codes[i]] " | " (ids[names[i]] == "" ? "none" : ids[names[i]]) " |"

    print "\n## Index by use"
    for (i = 1; i <= total; i++) {
        place = group_of(keys[i], use[keys[i]])
        index_of[place] = index_of[place] "- [" keys[i] "](#" tolower(keys[i]) "): " escaped(phrase[keys[i], "en"]) "\n"
    }
    for (i = 1; i <= groups; i++)
        if (index_of[i] != "") printf "\n### %s\n\n%s", group[i], index_of[i]

    print "\n## The table"
    for (i = 1; i <= total; i++) {
        key = keys[i]
        print "\n### " key "\n\n" escaped(use[key]) "\n\n| language | phrase |\n|---|---|"
        for (j = 1; j <= count; j++) {
            text = phrase[key, codes[j]]
            print "| " names[j] " | " (text == "" ? "(German is shown)" : escaped(text)) " |"
        }
    }
}
' "$locales" "$table" >> "$fresh"

if [ "${1:-}" = --check ]; then
    diff -u "$page" "$fresh" && exit 0
    echo "$page is not up to date: run scripts/phrase_page.sh" >&2
    exit 1
fi
cat "$fresh" > "$page"

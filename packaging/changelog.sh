#!/bin/sh
# Writes the list of changes the way Debian keeps it: changelog.sh CHANGELOG.md OUTPUT
# Debian wants a time of day, later for a later version: the newest of a day is of noon.
set -eu
sed 's/`//g' "$1" | LC_ALL=C.UTF-8 awk '
    # Prints the words of an item in lines of at most 78 signs.
    function print_item(    count, words, i, line) {
        if (item == "") { return }
        count = split(item, words, " ")
        line = "  *"
        for (i = 1; i <= count; ++i) {
            if (length(line) + length(words[i]) > 77) { print line; line = "   " }
            line = line " " words[i]
        }
        print line
        item = ""
    }
    function print_end(    command, when) {
        print_item()
        if (day == "") { return }
        hour = day == former ? hour - 1 : 12
        former = day
        command = "LC_ALL=C date --utc --rfc-email --date=" day "T" hour ":00"
        command | getline when
        close(command)
        print "\n -- The smscrm authors <>  " when "\n"
    }
    /^## / {
        print_end()
        day = substr($3, 2, length($3) - 2)
        print "smscrm (" $2 ") stable; urgency=medium\n"
        next
    }
    /^- / { print_item(); item = substr($0, 3); next }
    /^  / { item = item " " $0 }
    END { print_end() }' >"$2"

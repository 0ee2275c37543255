#!/bin/sh
# Makes the example report: make-report.sh OSTREL DIRECTORY [OPTION...]
set -eu
ostrel=${1:?the path of the ostrel binary}
directory=${2:?the directory of the report}
shift 2

"$ostrel" report "$(dirname "$0")/earthquakes.csv" -o "$directory" \
    --title "One week of earthquakes" \
    --footer "Figures: U.S. Geological Survey, 31 January to 7 February 2018, magnitude 2 and above. Times are UTC." \
    --records=name,value --record-title Place \
    --total "Felt reports" "$@"

#!/bin/sh
# Two builds of the library compute the same bits, by their digests (tools/digest.cpp).
#   same_bits.sh <digest> <library> <digest> <library> [<exports that hand on a signalling NaN>]
#
# With a list, the second build is for i386: there a signalling NaN among the width-1 results of the exports in the
# list, and of no others, comes back quiet.
set -eu
first=$1 first_library=$2 second=$3 second_library=$4 quieted=${5-/dev/null}
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
"$first" "$first_library" >"$scratch/first"
"$second" "$second_library" >"$scratch/second"
grep -v '^#' "$quieted" | sort >"$scratch/listed" || true

exports=$(grep -c '^__ocl' "$scratch/first") || true
echo "$exports exports: $(tail -n 1 "$scratch/first")"
if grep -q missing "$scratch/first" "$scratch/second" || [ "$exports" = 0 ]; then
    echo "an export is missing"
    exit 1
fi

# name, hash and, where signalling NaNs were among the results, the hash with these made quiet
awk '/^__ocl/ {print $1, $2, $3}' "$scratch/first" >"$scratch/first.rows"
awk '/^__ocl/ {print $1, $2, $3}' "$scratch/second" >"$scratch/second.rows"
awk -v list="$scratch/listed" '
    BEGIN { while ((getline name <list) > 0) listed[name] = 1 }
    NR == FNR { hash[$1] = $2; quiet[$1] = $3; next }
    {
        if ($1 in listed ? quiet[$1] == $2 && hash[$1] != $2 : hash[$1] == $2) { ++same; delete listed[$1]; next }
        print "different bits: " $1
        failed = 1
    }
    END {
        for (name in listed) { print "in the list, but no different: " name; failed = 1 }
        for (name in hash) --same
        if (same != 0 && !failed) { print "not the same exports"; failed = 1 }
        exit failed
    }' "$scratch/first.rows" "$scratch/second.rows"

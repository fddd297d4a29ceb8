#!/bin/sh
# What the product promises as a file: exactly the grid's names, nothing undefined, no text relocation, no executable
# stack, no writable data but what the loader itself relocates and then seals.
#   shared_object.sh <library> <grid_outputs>
set -eu
library=$1
grid_outputs=$2
failed=0
complain() { echo "$1"; failed=1; }

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
nm -D --defined-only "$library" | awk '{print $3}' | sort > "$scratch/exported"
"$grid_outputs" version_script | awk '/__ocl/ {sub(";", ""); print $1}' | sort > "$scratch/expected"
cmp -s "$scratch/exported" "$scratch/expected" ||
  { diff "$scratch/expected" "$scratch/exported" || true; complain "the exported names are not the grid's"; }
[ -s "$scratch/exported" ] || complain "nothing is exported"

undefined=$(nm -D --undefined-only "$library")
[ -z "$undefined" ] || complain "undefined symbols: $undefined"

readelf -dW "$library" > "$scratch/dynamic"
! grep -q TEXTREL "$scratch/dynamic" || complain "text relocations"
! grep -q NEEDED "$scratch/dynamic" || complain "needs other libraries"
grep -q 'SONAME.*\[__ocl_zorv_v8.so\]' "$scratch/dynamic" || complain "no SONAME __ocl_zorv_v8.so"

readelf -lW "$library" | grep -q 'GNU_STACK.* RW ' || complain "executable stack, or none stated"
writable=$(readelf -SW "$library" | sed 's/^ *\[ *[0-9]*\] *//' | awk '$7 ~ /W/ || $8 ~ /W/ {print $1}' |
  grep -vE '^\.(dynamic|got|got\.plt)$' || true)
[ -z "$writable" ] || complain "writable sections: $writable"

# Nothing is called that is not in the file and known beforehand, and nothing of the system.
objdump -d --no-show-raw-insn "$library" > "$scratch/code"
strays=$(grep -cE '\s(call|jmp) +\*|\s(int|sysenter|syscall)\b' "$scratch/code" || true)
[ "$strays" = 0 ] || complain "$strays calls through pointers or of the system"
exit $failed

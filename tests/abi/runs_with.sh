#!/bin/sh
# Runs a program that is compiled for an instruction set, if the processor has that.
#   runs_with.sh <flag in /proc/cpuinfo> <command...>
flag=$1
shift
if grep -qw "$flag" /proc/cpuinfo; then exec "$@"; fi
echo "skipped: this processor has no $flag"
exit 77

#!/bin/sh
# A program of others, without the layer and with it: it ends well both times, measures the same things, and under the
# layer computes with the library.
#
#   clpeak.sh <layer>      with the run-time's own variables in the environment
set -eu
layer=$1
unset OPENCL_LAYERS
measured() { sed -n 's/^ *\(float[0-9]* *\): [0-9.]*$/\1/p'; }
own=$(clpeak --compute-sp)
ours=$(OPENCL_LAYERS=$layer OCL_ZORV_V8_LAYER_VERBOSE=1 clpeak --compute-sp 2>&1)
printf '%s\n\n%s\n' "$own" "$ours"
[ "$(echo "$own" | measured | wc -l)" -ge 5 ]
[ "$(echo "$own" | measured)" = "$(echo "$ours" | measured)" ]
echo "$ours" | grep -q "computes with"

#!/bin/sh
# Where the bitcode is missing, the application runs as it would without the layer, and one line says so if asked.
#
#   left.sh <layer> <application>
set -eu
layer=$1 application=$2
unset OPENCL_LAYERS OCL_ZORV_V8_LAYER_VERBOSE
export OCL_ZORV_V8_BITCODE=/nowhere
own=$("$application")
[ "$(OPENCL_LAYERS=$layer "$application" 2>&1)" = "$own" ]
lines=$(OPENCL_LAYERS=$layer OCL_ZORV_V8_LAYER_VERBOSE=1 "$application" 2>&1 >/dev/null | grep -c "is left as it was")
[ "$lines" = 1 ]
unset OCL_ZORV_V8_BITCODE
[ "$(OPENCL_LAYERS=$layer "$application" 2>&1)" != "$own" ]

#!/usr/bin/env bash
# Measures the library and publishes the figures: docs/accuracy.json, docs/accuracy.md, a plot per
# family, and the Accuracy paragraphs of include/dakvmpx.h.
#
#   scripts/measure-accuracy.sh [--quick] [FUNC...]
#
# Without names all families. 32f functions of one argument are measured over all 2^32 floats, the
# grades in one pass; --quick samples them. Interrupted, it goes on where it was: finished parts are
# in build/release/accuracy-state, finished records in docs/accuracy.json. Durations: docs/laboratory.md.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh accuracy
cmake --preset release
cmake --build --preset release -j "$(nproc)" --target dakvm_accuracy
tool=build/release/dakvm-accuracy
worst=0
"$tool" publish --state build/release/accuracy-state "$@" || worst=$?
[[ $worst -lt 2 ]] || exit "$worst"

mkdir -p docs/accuracy
families=$("$tool" list | sed -n 's/^daks\([A-Za-z0-9]*\)_64f_A53 .*/\1/p')
for family in $families; do
  "$tool" plot "$family" >build/release/plot.txt
  gnuplot -c tools/accuracy/plot.gnuplot "$family" build/release/plot.txt "docs/accuracy/$family.svg"
done
"$tool" document
exit "$worst"

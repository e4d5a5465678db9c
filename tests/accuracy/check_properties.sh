#!/usr/bin/env bash
# Order, symmetry, range and independence of neighbours, of the best grade of every family.
set -euo pipefail
tool=$1
for function in $("$tool" list | grep -oE '^daks[A-Za-z0-9]+_(64f_A53|64f_A50|32f_A24)'); do
  "$tool" "$function" --properties
done >properties.log || { grep -B3 FAIL properties.log; exit 1; }
grep -q PASS properties.log

#!/usr/bin/env bash
# Compares the library's binary interface with the committed one; any change fails.
#
#   check_baseline.sh LIBRARY            compares: symbols, and with debug information types as well
#   check_baseline.sh LIBRARY --print    prints the file to commit, when a change is meant
#
# Baselines: tests/library/abi, a pair for each word size.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
library=$1

machine=$(readelf -h "$library" | sed -n 's/ *Class: *//p')
case $machine in
  ELF32) name=i386 ;;
  ELF64) name=x86-64 ;;
  *) echo "$library is no library" >&2; exit 1 ;;
esac
readelf -S --wide "$library" | grep -q ' \.debug_info ' || name+=.symbols

describe() {
  abidw --no-corpus-path --no-comp-dir-path --no-show-locs --drop-private-types \
    --drop-undefined-syms --exported-interfaces-only --headers-dir "$here/../../include" \
    "$library" | sed "s|path='$(cd "$here/../.." && pwd)/|path='|"
}
if [[ ${2:-} == --print ]]; then
  describe
  exit
fi
now=$(mktemp --suffix=.abi)
trap 'rm -f "$now"' EXIT
describe >"$now"
abidiff --no-default-suppression --harmless "$here/abi/$name.abi" "$now" || {
  echo "the binary interface is not that of tests/library/abi/$name.abi: if that is meant, run" >&2
  echo "  tests/library/check_baseline.sh $library --print >tests/library/abi/$name.abi" >&2
  exit 1
}
echo "as in tests/library/abi/$name.abi"

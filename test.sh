#!/usr/bin/env bash
# Installs what is missing, builds the library for 32 and for 64 bits, and runs all tests of both.
# With --full also the manual; everything without optimisation, with AddressSanitizer and
# UndefinedBehaviorSanitizer, and with ThreadSanitizer; the golden hashes from every compiler and
# level, and on an emulated processor without SSE (scripts/golden-matrix.sh); five minutes of fuzzing
# (tests/fuzz/run.sh); and the packages in fresh systems (tests/install/chroot.sh): about an hour on
# two cores.
set -euo pipefail
cd "$(dirname "$0")"

[[ $# -eq 0 || $* == --full ]] ||
  { echo "usage: ./test.sh [--full]; for single tests use ctest --preset" >&2; exit 2; }
full=${1:-}

scripts/setup.sh "$([[ -z $full ]] && echo test || echo full)"
presets=(release x86-64)
[[ -z $full ]] || presets+=(manual debug asan tsan)
for preset in "${presets[@]}"; do
  cmake --preset "$preset"
  cmake --build --preset "$preset" -j "$(nproc)"
done
if [[ -n $full ]]; then
  scripts/golden-matrix.sh --strict
  tests/fuzz/run.sh 100
  $([[ $EUID -eq 0 ]] || echo sudo) tests/install/chroot.sh
fi
for preset in "${presets[@]}"; do
  ctest --preset "$preset" --no-tests=error -j "$(nproc)"
done

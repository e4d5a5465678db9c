#!/usr/bin/env bash
# Installs what is missing, builds the library for 32 and for 64 bits, and runs all tests of both.
set -euo pipefail
cd "$(dirname "$0")"

[[ $# -eq 0 ]] || { echo "test.sh takes no arguments; for single tests use ctest --preset" >&2; exit 2; }

scripts/setup.sh test
presets=(release x86-64)
for preset in "${presets[@]}"; do
  cmake --preset "$preset"
  cmake --build --preset "$preset" -j "$(nproc)"
done
for preset in "${presets[@]}"; do
  ctest --preset "$preset" --no-tests=error -j "$(nproc)"
done

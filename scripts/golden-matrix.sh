#!/usr/bin/env bash
# Runs the golden hashes (tests/golden) against every build that must give the same results: g++ and
# clang++ for 32 bits at -O1 to -O3, g++ for x86-64, and the 32-bit build on an emulated processor
# without SSE. What needs a tool that is not installed is skipped and said; --strict makes that an
# error. ./test.sh --full installs the tools and runs this.
set -euo pipefail
cd "$(dirname "$0")/.."
[[ $# -eq 0 || $* == --strict ]] || { echo "usage: scripts/golden-matrix.sh [--strict]" >&2; exit 2; }
strict=${1:-}
failed=()

missing() {
  echo "== $1: not run, $2 is not installed"
  [[ -z $strict ]] || failed+=("$1")
}

# run NAME COMMAND...: one line for what holds
run() {
  local name=$1
  shift
  if "$@" --gtest_brief=1; then echo "== $name: the same hashes"; else failed+=("$name"); fi
}

build() {
  local tree=build/golden/$1 log=build/golden/$1.log
  shift
  mkdir -p build/golden
  { cmake -B "$tree" -DDAKVM_BUILD_TOOLS=OFF "$@" &&
    cmake --build "$tree" -j "$(nproc)" --target golden_test; } >"$log" 2>&1 ||
    { tail -20 "$log" >&2; return 1; }
}

for preset in release clang; do
  compiler=g++
  [[ $preset == release ]] || compiler=clang++
  for level in 1 2 3; do
    name="$compiler -m32 -O$level"
    if ! command -v $compiler >/dev/null; then
      missing "$name" $compiler
    elif build "$preset-O$level" --preset "$preset" -DCMAKE_CXX_FLAGS_RELEASE="-O$level"; then
      run "$name" "build/golden/$preset-O$level/tests/golden/golden_test"
    else
      failed+=("$name")
    fi
  done
done
if build x86-64 --preset x86-64; then
  run "g++ x86-64" build/golden/x86-64/tests/golden/golden_test
else
  failed+=("g++ x86-64")
fi
if command -v qemu-i386 >/dev/null; then
  run "qemu-i386, pentium2" qemu-i386 -cpu pentium2 build/golden/release-O2/tests/golden/golden_test
else
  missing "qemu-i386, pentium2" qemu-user
fi

[[ ${#failed[@]} -eq 0 ]] || { printf 'golden-matrix.sh: failed: %s\n' "${failed[@]}" >&2; exit 1; }

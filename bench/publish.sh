#!/usr/bin/env bash
# Measures everything that docs/speed.md and its plots show, and writes them. Takes about fifteen
# minutes; keep the machine idle. Needs scripts/setup.sh bench.
set -euo pipefail
cd "$(dirname "$0")/.."

for preset in bench bench-x86-64; do
  cmake --preset "$preset" >/dev/null
  cmake --build --preset "$preset" -j "$(nproc)" >/dev/null
done
dakvm=build/bench/dakvm
plots=docs/plots
document=docs/speed.md
mkdir -p "$plots"
text=$(mktemp)
trap 'rm -f "$text"' EXIT

best() { # the most accurate grade of one type, every family
  "$dakvm" bench --type "$1" --grade "$2" --markdown "${@:3}"
}
{
  cat <<'HEAD'
# Speed

Written by `bench/publish.sh`; what the columns mean is in [bench/README.md](../bench/README.md).
Ratios above 1 mean that the library is faster. Of single precision one grade is shown: A11, A21 and
A24 of a family return the same bits by the same code.

HEAD
  echo '```'
  "$dakvm" bench --machine
  echo '```'
  printf '\n## Double precision\n\n![ratios](plots/speed-64f.svg)\n\n'
  best 64f A53 --force --plot "$plots/speed-64f.svg"
  printf '\n### Grade A50\n\n'
  best 64f A50
  printf '\n## Single precision\n\n![ratios](plots/speed-32f.svg)\n\n'
  best 32f A24 --force --plot "$plots/speed-32f.svg"
  for share in 1 50; do
    printf '\n## %s %% exceptional elements\n\nNaN, infinities, zeros, subnormal and largest numbers in turn; the loops over libm get the same.\n\n' "$share"
    best 64f A53 --exceptional "$share" --no-wide
  done
  printf '\n## In place\n\nDestination and source are one array; times include a copy that restores it, those of libm too.\n\n'
  best 64f A53 --in-place --no-wide
  printf '\n## Length of a call\n\n![time over length](plots/speed-length.svg)\n\n'
  "$dakvm" bench Exp Ln Sin Pow Atan2 Erf --grade A53 --all-lengths --no-wide --markdown \
    --force --plot "$plots/speed-length.svg" >/dev/null
  cat <<'SIMD'
## What the x87 unit cannot reach

The unit takes one number at a time, and executes one addition or multiplication in a core cycle. SIMD
units execute eight to sixteen. Where errors of one to four ulp are good enough, and the program may
use AVX2, these libraries are several times faster; this library is for results within a hair of
correct rounding, the same bits everywhere, and processors or contracts without SIMD. Times of one
element in ns, double precision, x86-64 builds:

SIMD
  build/bench-x86-64/bench/simd_comparison
  printf '\n## Several cores\n\nThe library has no state, so an application splits its arrays as it likes: `examples/parallel`.\n\n```\n'
  build/bench/examples/parallel/parallel
  echo '```'
} >"$text"
cat "$text" >"$document"  # with the permissions of a new file

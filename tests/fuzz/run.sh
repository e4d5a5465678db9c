#!/usr/bin/env bash
# Builds the fuzz targets and runs each for some seconds, starting from the committed corpus:
# tests/fuzz/run.sh [SECONDS]. What it finds stays in build/fuzz/findings.
set -euo pipefail
cd "$(dirname "$0")/../.."
seconds=${1:-100}
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz -j "$(nproc)"
findings=build/fuzz/findings
mkdir -p "$findings"
for target in frame parse rows; do
  corpus=build/fuzz/corpus_$target
  mkdir -p "$corpus"
  echo "== $target, $seconds seconds"
  "build/fuzz/tests/fuzz/${target}_fuzz" -max_total_time="$seconds" -print_final_stats=1 \
    -artifact_prefix="$findings/${target}_" "$corpus" "tests/fuzz/corpus/$target"
done

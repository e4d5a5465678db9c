#!/usr/bin/env bash
# Builds the library and the dakvm command, and evaluates three functions over a reactor's log.
set -euo pipefail
cd "$(dirname "$0")"

scripts/setup.sh build

echo "== Building for 32-bit x86 in build/demo"
cmake --preset release -B build/demo -DBUILD_TESTING=OFF
cmake --build build/demo -j"$(nproc)"

dakvm=build/demo/dakvm
log=examples/data/reactor_log.csv
results=build/demo/results
mkdir -p "$results"

echo
echo "== The library"
"$dakvm" version
"$dakvm" list

echo
echo "== The data: $log, $(wc -l <"$log") lines"
head -4 "$log"

# show FUNCTION COLUMNS: one function over the log, its summary, and some of what came out.
show() {
  local output=$results/$1.csv
  local command=("$dakvm" eval "$1" "$log" --csv --column "$2" --on-error nan -o "$output" --force)
  echo
  echo "== ${command[*]}"
  "${command[@]}"
  echo "  result in the last column:"
  sed -n 1,4p "$output"
  echo "  infinities and NaN among the results:"
  grep -m 3 -E ',-?(inf|nan)$' "$output"
}
show Exp minus_e_over_rt
show Sqrt noise_variance
show Div converted,fed

echo
echo "The demonstration is complete; its results are in $results"

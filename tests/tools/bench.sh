#!/usr/bin/env bash
# dakvm bench, for the build that has it: bench.sh DAKVM LIBRARY. Figures are not judged, only that
# every form of output holds them.
set -euo pipefail
dakvm=$1
library=$2
dir=$(mktemp -d)
trap 'rm -rf "$dir"' EXIT
fail() {
  echo "bench.sh: $*" >&2
  exit 1
}
expect_exit() { # code, then a command that must end with it
  local code=$1 got=0
  shift
  "$@" >/dev/null 2>"$dir/stderr" || got=$?
  [[ $got -eq $code ]] || fail "exit $got instead of $code: $*; $(cat "$dir/stderr")"
}

"$dakvm" bench Exp --repetitions 1 --csv --plot "$dir/bars.svg" >"$dir/rows.csv"
[[ $(wc -l <"$dir/rows.csv") -eq 6 ]] || fail "a family has five rows and a header"
awk -F, 'NR == 1 { for (i = 1; i <= NF; ++i) column[$i] = i }
         NR > 1 && !($column["ns"] > 0 && $column["ratio_libm"] > 0 && $column["ratio_libm_stored"] > 0 &&
                     $column["x87_operations"] > 10 && $column["one_element_call_ns"] > 0) { exit 1 }' \
  "$dir/rows.csv" || fail "a row without its figures: $(cat "$dir/rows.csv")"
grep -q '<svg' "$dir/bars.svg" || fail "no plot"
expect_exit 8 "$dakvm" bench Exp --repetitions 1 --plot "$dir/bars.svg"

"$dakvm" bench daksLn_64f_A53 --compare "$library" "$library" --repetitions 1 --json |
  grep -q '"ratio_baseline":[0-9]' || fail "no ratio of two builds"
expect_exit 3 "$dakvm" bench Ln --compare "$dir/absent.so" "$library"
expect_exit 4 "$dakvm" bench Nonsense
expect_exit 2 "$dakvm" bench Ln --length 0

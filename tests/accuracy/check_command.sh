#!/usr/bin/env bash
# The command dakvm-accuracy: verdicts, exit codes, modes, other libraries, an interrupted run.
set -euo pipefail
tool=$1 library=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() {
  echo "FAILED: $*" >&2
  exit 1
}
# expect CODE COMMAND...: runs it with its output in $work/out
expect() {
  local code=0
  "${@:2}" >"$work/out" 2>&1 || code=$?
  [[ $code -eq $1 ]] || { cat "$work/out"; fail "exit code $code, not $1: ${*:2}"; }
}
has() { grep -qE -- "$1" "$work/out" || { cat "$work/out"; fail "no $1"; }; }

expect 0 "$tool" daksExp_64f_A53 --samples 2000
has 'PASS: bound'
cp "$work/out" "$work/two_jobs"
expect 0 "$tool" daksExp_64f_A53 --samples 2000 --jobs 1
cmp -s "$work/out" "$work/two_jobs" || fail "the figures depend on the number of processes"
expect 0 "$tool" daksExp_64f_A53 --samples 2000 --library "$library"
cmp -s "$work/out" "$work/two_jobs" || fail "the library by its path has other figures"

# The low grade breaks the bound of no row; a library that is none, and one without the functions.
expect 2 "$tool" Exp --library "$0"
expect 2 "$tool" Exp --library "$(ldd "$tool" | awk '/libmpfr/ {print $3}')"
expect 2 "$tool" NoSuchFunction
has "no function 'NoSuchFunction'"

# One input with a known error, and a threshold with its status and flags.
printf '# a comment\n0x1.8631adc63838cp+8\n-746\n710\n' >"$work/inputs"
expect 0 "$tool" daksExp_64f_A53 --inputs "$work/inputs" --format json
has '"max_ulp": 0.5023'
has '"got": "0x631e81989ad42262"'
has '"wrong_statuses": 0'
printf '1 2\n' >"$work/inputs"
expect 2 "$tool" Exp --inputs "$work/inputs"
has 'takes 1 numbers'

# In precision 24 a double quotient is off by millions of ulp: nothing is claimed there.
expect 0 "$tool" daksDiv_64f_A53 --range 1 2 --samples 1000 --precision 24,64 --rounding n,z \
  --format csv
[[ $(grep -c '^daksDiv' "$work/out") -eq 4 ]] || fail "four combinations of modes"
awk -F, '$8 == 24 && $10 < 1e6 {exit 1} $8 == 64 && $10 > 1 {exit 1}' "$work/out" ||
  fail "errors in other modes"

# A finished part of an exhaustive run is not done again.
expect 0 "$tool" daksInv_32f_A24 --exhaustive --every 512 --state "$work/state"
has '100 % of 8388608'
cp "$work/out" "$work/first"
before=$(stat -c %Y%s "$work"/state/*)
expect 0 "$tool" daksInv_32f_A24 --exhaustive --every 512 --state "$work/state"
cmp -s "$work/out" "$work/first" || fail "the figures of a run that goes on"
[[ $(stat -c %Y%s "$work"/state/*) == "$before" ]] || fail "finished parts were done again"

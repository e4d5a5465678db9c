#!/usr/bin/env bash
# What bash offers for command lines: completion.sh SCRIPT DAKVM [DAKVM-ACCURACY]
set -euo pipefail
# shellcheck source=/dev/null
source "$1"
command=$2
accuracy=${3-}
dir=$(mktemp -d)
trap 'rm -rf "$dir"' EXIT
cd "$dir"
touch Exports.txt
status=0

expect() { # what is offered, then the words of the line, the last one unfinished
  local offered=$1
  shift
  COMP_WORDS=("$command" "$@")
  COMP_CWORD=$#
  _dakvm "$command" "${COMP_WORDS[COMP_CWORD]}" "${COMP_WORDS[COMP_CWORD - 1]}"
  if [[ ${COMPREPLY[*]-} != "$offered" ]]; then
    echo "${command##*/} $*: offered '${COMPREPLY[*]-}' in place of '$offered'" >&2
    status=1
  fi
}
expect eval e
expect Exp eval Ex
expect "Sinh Sin SinCos" eval Sin
expect "Ln Log10" eval L
expect "daksExp_64f_A50 daksExp_64f_A53" eval daksExp_6
expect Exp eval --csv Ex
expect Exports.txt eval Exp Ex
expect Exports.txt eval Exp --csv Ex
expect Exports.txt eval Exp -o Ex
expect "A50 A53" eval Exp --grade A5
expect 64f eval Exp --type 6
expect "stop skip" eval Exp --on-error s
expect "--no-header --name" eval Exp --n
expect --json list --j
expect "" list x
expect --quiet eval Exp --q
[[ -n $accuracy ]] || exit $status

command=$accuracy
expect "publish plot" p
expect "Sinh Sin SinCos" Si
expect daksTan_64f_A53 --hard daksTan_64f_A53
expect "A21 A24" Exp --grade A2
expect "64f 32f" Exp --type ""
expect "text csv json" Exp --format ""
expect Exports.txt Exp --inputs Ex
expect "" Exp --samples Ex
expect "--range --rounding" Exp --r
expect "--records --range --rounding" verify --r
expect --samples verify --sa
expect "Exp" publish Ln --quick Ex
expect "Exp" plot Ex
expect "" list Ex
exit $status

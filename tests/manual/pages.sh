#!/usr/bin/env bash
# Every family, function and command has its manual page, and pages say what they should:
# pages.sh MANUAL_FOLDER DAKVM
set -euo pipefail
manual=$1
dakvm=$2
status=0
fail() {
  echo "FAILED: $*" >&2
  status=1
}
expect_text() { # page, an extended regular expression
  man -M "$manual/man" "${1##*.}" "${1%.*}" 2>/dev/null | grep -qE -- "$2" || fail "$1 does not say: $2"
}
export MANWIDTH=120 LC_ALL=C.UTF-8 MAN_KEEP_FORMATTING=

families=$("$dakvm" list | awk 'NF == 0 { exit } NR > 1 { print $1 }')
for family in $families; do
  page=daks$family.3
  [[ -s $manual/man/man3/$page ]] || fail "no page $page"
  grep -qs "\"group__daks$family.html\"\|href=\"group__daks${family}.html\"" \
    "$manual/html/index.html" || fail "$family is not on the main page"
  for part in Domain Formula "Special arguments" "See also"; do
    [[ $part == Domain && $family == Powx ]] || grep -q "^\\\\fB$part\\\\fP" \
      "$manual/man/man3/$page" || fail "$page has no paragraph $part"
  done
done
for function in $("$dakvm" list --json | sed -n 's/.*"name":"\([^"]*\)".*/\1/p'); do
  grep -qs "^.so man3/${function%_*_*}.3" "$manual/man/man3/$function.3" ||
    fail "$function.3 does not lead to its family"
done
for command in "" $("$dakvm" --help | awk '/^Subcommands:/ { on = 1; next } on && NF { print "-" $1 }'); do
  [[ -s $manual/man/man1/dakvm$command.1 ]] || fail "no page dakvm$command.1"
done

expect_text daksExp.3 '709\.7827128933841 +\+Inf +OVERFLOW +overflow inexact'
expect_text daksAcosh.3 '0\.9999999999999999 +NaN +DOMAIN +invalid'
expect_text daksAtan2.3 '^ +-0 +-3\.14 +-3\.14 +-3\.14 +-0 +-0 +-0 +NaN'
expect_text daksSinCos.3 '^ +\+Inf +NaN, NaN +DOMAIN +invalid'
expect_text daksLn.3 'printf\("%\.17g\\n", dst\[i\]\);'
expect_text dakvmpx.3 'Every exceptional element raises its IEEE flag'
expect_text gaxdsqrt_scalar.3 'long double gaxdsqrt_scalar \(double x\)'
expect_text dakvm-eval.1 '^ +-o, --output TEXT'
exit $status

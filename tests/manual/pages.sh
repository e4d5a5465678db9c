#!/usr/bin/env bash
# The installed manual: every exported name, family and command has its page, and the pages say what
# they should: pages.sh CMAKE BUILD_TREE DAKVM EXPORTED_NAMES
set -euo pipefail
cmake=$1 tree=$2 dakvm=$3 exported=$4
prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT
for component in development tools; do
  "$cmake" --install "$tree" --prefix "$prefix" --component "$component" >/dev/null
done
man3=$prefix/share/man/man3
html=$prefix/share/doc/dakvmpx/html
status=0
fail() {
  echo "FAILED: $*" >&2
  status=1
}

while read -r name; do
  [[ -s $man3/$name.3 ]] || fail "no page $name.3"
done <"$exported"
# Names that a system's own pages have, or nobody looks for.
for page in "$man3"/*; do
  name=$(basename "$page" .3)
  [[ $name =~ ^(dak|DAKVM|LibraryVersion$|ReducedArg$) ]] || grep -qx "$name" "$exported" ||
    fail "$name.3 does not belong to the library"
done

for family in $("$dakvm" list | awk 'NF == 0 { exit } NR > 1 { print $1 }'); do
  page=daks$family.3
  for part in Formula "Special arguments" Example "See also"; do
    grep -q "^\\\\fB$part\\\\fP" "$man3/$page" || fail "$page has no paragraph $part"
  done
  grep -qx ".so man3/$page" "$man3/daks${family}_32f_A11.3" || fail "A11 does not lead to $page"
  grep -q "href=\"group__daks$family.html\"" "$html/index.html" ||
    fail "$family is not on the main page"
done
for command in "" $("$dakvm" --help |
  awk '/^Subcommands:/ { on = 1; next } on && NF { print "-" $1 }'); do
  [[ -s $prefix/share/man/man1/dakvm$command.1 ]] || fail "no page dakvm$command.1"
done

if command -v man >/dev/null; then
  export MANWIDTH=120 LC_ALL=C.UTF-8 MAN_KEEP_FORMATTING=
  expect_text() { # page, an extended regular expression
    man -M "$prefix/share/man" "${1##*.}" "${1%.*}" 2>/dev/null >"$prefix/text" || true
    grep -qE -- "$2" "$prefix/text" || fail "$1 does not say: $2"
  }
  expect_text daksExp.3 '^ +709\.7827128933841 +\+Inf +OVERFLOW +overflow inexact'
  expect_text daksAcosh.3 '^ +0\.9999999999999999 +NaN +DOMAIN +invalid'
  expect_text daksAtan2.3 '^ +-0 +-3\.14 +-3\.14 +-3\.14 +-0 +-0 +-0 +NaN'
  expect_text daksSinCos.3 '^ +\+Inf +NaN, NaN +DOMAIN +invalid'
  expect_text daksLn_64f_A53.3 'printf\("%\.17g\\n", dst\[i\]\);'
  expect_text dakvmpx.3 'Every exceptional element raises its IEEE flag'
  expect_text gaxdsqrt_scalar.3 'long double gaxdsqrt_scalar \(double x\)'
  expect_text dakvm-eval.1 '^ +-o, --output TEXT'
fi
exit $status

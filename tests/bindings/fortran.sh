#!/bin/sh
# Builds the Fortran example and runs it: fortran.sh COMPILER SOURCE_TREE LIBRARY_FOLDER
set -eu
compiler=$1
source=$2
library=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
# shellcheck disable=SC2086 # the compiler brings its word size
$compiler -std=f2008 -Wall -Werror -J "$work" "$source/bindings/fortran/dakvmpx.f90" \
  "$source/examples/fortran/compound_interest.f90" -L"$library" -ldakvmpx -Wl,-rpath,"$library" \
  -o "$work/example"
"$work/example"

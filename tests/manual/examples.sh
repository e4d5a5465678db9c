#!/bin/sh
# Compiles the example of every family and compares what it prints with what its page says:
# examples.sh PAGES COMPILER INCLUDE_FOLDER LIBRARY_FOLDER
set -eu
pages=$1 compiler=$2 include=$3 library=$4
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
count=0
for source in "$pages"/*.c; do
  # shellcheck disable=SC2086 # the compiler brings its word size
  $compiler -std=c99 -Wall -Wextra -Wpedantic -Werror -I"$include" "$source" -o "$work/example" \
    -L"$library" -ldakvmpx -Wl,-rpath,"$library"
  "$work/example" | diff -u "${source%.c}.out" -
  count=$((count + 1))
done
echo "$count examples"
[ "$count" -gt 0 ]

#!/usr/bin/env bash
# Installs a build tree under a staging root, then builds and runs the consumer against it.
set -euo pipefail
cmake=$1 tree=$2 work=$3 libdir=$4 cc=$5 flags=$6 other_size=$7

fail() {
  echo "FAILED: $*" >&2
  exit 1
}
source=$(dirname "$0")/consumer
prefix=$work/root/opt/dakvmpx
rm -rf "$work"
mkdir -p "$work"
export CFLAGS=$flags

echo "== the runtime component: the shared library and the licence, nothing else"
DESTDIR=$work/runtime "$cmake" --install "$tree" --prefix /opt --component runtime
found=$(cd "$work/runtime" && find . -type f -printf '%f ' | xargs -n1 | sort | xargs)
[[ $found == "LICENSE libdakvmpx.so" ]] || fail "the runtime component holds: $found"

echo "== everything, staged below a root that the installed files do not name"
DESTDIR=$work/root "$cmake" --install "$tree" --prefix /opt/dakvmpx

echo "== find_package, shared and static"
"$cmake" -S "$source" -B "$work/cmake" -DCMAKE_C_COMPILER="$cc" -DCMAKE_PREFIX_PATH="$prefix"
"$cmake" --build "$work/cmake"
"$work/cmake/consumer_shared"
"$work/cmake/consumer_static"

echo "== find_package knows its components"
if "$cmake" -S "$source" -B "$work/component" -DCMAKE_C_COMPILER="$cc" \
  -DCMAKE_PREFIX_PATH="$prefix" -DCOMPONENTS="shared;nonsense" >"$work/component.log" 2>&1; then
  fail "component nonsense was accepted"
fi
grep -q 'no component nonsense' "$work/component.log" || fail "$(cat "$work/component.log")"

echo "== add_subdirectory; not optimised, to save the time of a whole build"
"$cmake" -S "$source" -B "$work/subdirectory" -DCMAKE_C_COMPILER="$cc" -DCMAKE_CXX_FLAGS="$flags" \
  -DCMAKE_BUILD_TYPE=Debug -DSUBDIRECTORY="$(cd "$(dirname "$0")/../.." && pwd)"
"$cmake" --build "$work/subdirectory" -j2
"$work/subdirectory/consumer_shared"
"$work/subdirectory/consumer_static"

echo "== find_package refuses another pointer size"
if CFLAGS=$other_size "$cmake" -S "$source" -B "$work/mismatch" -DCMAKE_C_COMPILER="$cc" \
  -DCMAKE_PREFIX_PATH="$prefix" >"$work/mismatch.log" 2>&1; then
  fail "a program with $other_size was accepted"
fi
grep -q 'dakvmpxConfig.cmake, version: .*bit' "$work/mismatch.log" ||
  fail "refused for another reason: $(cat "$work/mismatch.log")"

echo "== pkg-config"
export PKG_CONFIG_PATH=$prefix/$libdir/pkgconfig
from_pc=$(pkg-config --cflags --libs dakvmpx)
# shellcheck disable=SC2086 # flags are lists of words
"$cc" $flags -std=c99 -Wall -Wextra -Wpedantic -Werror "$source/consumer.c" $from_pc \
  -o "$work/consumer_pkg"
LD_LIBRARY_PATH=$prefix/$libdir "$work/consumer_pkg"
# shellcheck disable=SC2086
c++ $flags -std=c++20 -Wall -Wextra -Wpedantic -Werror "$source/consumer.cpp" $from_pc \
  -o "$work/consumer_cpp"
LD_LIBRARY_PATH=$prefix/$libdir "$work/consumer_cpp"

#!/bin/sh
# Reruns a table generator and compares: check_tables.sh COMMITTED.inc GENERATOR [TABLE]
set -eu
committed=$1
shift
printed=$(mktemp)
trap 'rm -f "$printed"' EXIT
"$@" >"$printed"
if ! diff -u "$committed" "$printed"; then
  echo "$committed is not what its generator prints; to renew it: $* > $committed" >&2
  exit 1
fi

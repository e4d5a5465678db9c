#!/bin/sh
# What the shared library must be: check_abi.sh LIBRARY EXPORTED_NAMES
set -eu
library=$1
names=$2
fail() {
  echo "$library: $1" >&2
  exit 1
}

nm -D --defined-only "$library" | awk '{print $3}' | LC_ALL=C sort | diff -u "$names" - ||
  fail "the exported names are not those of $names"
[ -z "$(nm -D --undefined-only "$library")" ] || fail "symbols are imported: $(nm -D -u "$library")"
readelf -d "$library" | grep -q 'SONAME.*\[libdakvmpx.so\]$' || fail "the SONAME is not libdakvmpx.so"
needed=$(readelf -d "$library" | sed -n 's/.*NEEDED.*\[\(.*\)\]/\1/p' | tr '\n' ' ')
[ "$needed" = "libdl.so.2 libgomp.so.1 " ] || fail "needed libraries are $needed"
! readelf -d "$library" | grep -q TEXTREL || fail "it has text relocations"
# No vector register and no instruction of SSE, AVX or MMX in the 32-bit library.
if readelf -h "$library" | grep -q 'Class:.*ELF32'; then
  disassembly=$(objdump -d --no-show-raw-insn "$library")
  echo "$disassembly" | grep -q 'fldl' || fail "it cannot be disassembled"
  ! echo "$disassembly" | grep -E '%[xyz]?mm[0-9]|ldmxcsr|stmxcsr|cvt.*(sd|ss)|prefetch|[lms]fence' ||
    fail "it contains the vector instructions above"
fi

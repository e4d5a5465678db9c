#!/usr/bin/env bash
# Packages the library, installs the packages in a fresh Debian 12, and uses them there as a newcomer
# would: README.md's C example through pkg-config, the command, the manual, on amd64 also Python.
#
#   tests/install/chroot.sh [i386|amd64]...     both without a name; needs root and debootstrap
#
# Prints what the newcomer types and sees. The system lies in build/chroot and is removed at the end.
set -euo pipefail
cd "$(dirname "$0")/../.."

fail() {
  echo "chroot.sh: $*" >&2
  exit 1
}
for word in "$@"; do
  [[ $word == i386 || $word == amd64 ]] || fail "unknown architecture '$word': i386 or amd64"
done
[[ $# -gt 0 ]] || set -- i386 amd64
[[ $EUID -eq 0 ]] || fail "only root can make the new system: sudo tests/install/chroot.sh $*"
command -v debootstrap >/dev/null || fail "debootstrap is missing: scripts/setup.sh full"
mirror=${DAKVM_MIRROR:-http://deb.debian.org/debian}

# The new system has /proc; nothing may be mounted in it when it is removed.
remove() {
  local mounted
  while read -r mounted; do
    umount "$mounted"
  done < <(awk -v below="$PWD/build/chroot/" 'index($2, below) == 1 {print $2}' /proc/mounts | sort -r)
  rm -rf --one-file-system build/chroot
}
trap remove EXIT

inside() { chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 "$@"; }

# type_in COMMAND: what the newcomer types and sees
type_in() {
  echo "\$ $1"
  inside HOME=/root bash -euo pipefail -c "cd; $1"
}

for arch in "$@"; do
  cmake --preset "$arch" >/dev/null
  cmake --build --preset "$arch" -j "$(nproc)" >/dev/null
  rm -f "build/$arch"/*.deb
  cpack --preset "$arch" >/dev/null

  remove
  root=$PWD/build/chroot/$arch
  mkdir -p "$root"
  echo "== a fresh Debian 12, $arch"
  log=build/$arch/debootstrap.log
  debootstrap --variant=minbase --arch="$arch" bookworm "$root" "$mirror" >"$log" 2>&1 ||
    fail "debootstrap failed: $(tail -5 "$log")"
  mountpoint -q "$root/proc" || mount -t proc proc "$root/proc"

  cp "build/$arch"/*.deb "$root/root"
  sed -n '/^```c$/,/^```$/p' README.md | sed '1d;$d' >"$root/root/example.c"
  [[ -s $root/root/example.c ]] || fail "README.md has no C example"
  seq 1 5 >"$root/root/numbers.txt"

  type_in "ls *.deb"
  type_in "apt-get update >update.log"
  tools="gcc libc6-dev pkg-config man-db"
  type_in "apt-get install -y --no-install-recommends ./*.deb $tools >install.log 2>&1" ||
    fail "the packages cannot be installed: $(tail -20 "$root/root/install.log")"
  type_in "gcc example.c \$(pkg-config --cflags --libs dakvmpx) -o example && ./example"
  type_in "gcc -static example.c \$(pkg-config --cflags --libs --static dakvmpx) -o example && ./example"
  type_in "dakvm list | sed -n 1,3p"
  type_in "dakvm eval Exp numbers.txt"
  type_in "man daksExp | sed -n 1,20p"
  type_in "man dakvm-eval | sed -n 1,8p"
  [[ $arch != amd64 ]] || {
    type_in "python3 -c 'import dakvmpx, numpy; print(dakvmpx.exp(numpy.arange(3.0)))'"
    type_in "dakvm-accuracy daksExp_64f_A53 --hard | sed -n 1,4p"
  }
done
echo "chroot.sh: installed and used: $*"

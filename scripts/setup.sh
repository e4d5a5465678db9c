#!/usr/bin/env bash
# Installs the Debian packages that this project needs; nothing happens when none is missing.
#
#   scripts/setup.sh build    what the 32-bit library and the dakvm command are built with (default)
#   scripts/setup.sh test     that, and what the tests need
#   scripts/setup.sh full     that of test and docs, and what ./test.sh --full needs: clang, an
#                             emulator, provers, what packages are tried out with
#   scripts/setup.sh accuracy that of test, and what draws the plots of docs/accuracy.md
#   scripts/setup.sh bench    that of build, and what `dakvm bench` and its documents need: Google
#                             Benchmark for both word sizes, of which Debian has the one for 32
#                             bits only in the foreign architecture i386 (added when it is not
#                             there); gnuplot; SLEEF
#   scripts/setup.sh docs     that of build, and what the manual is built with
set -euo pipefail

build_packages=(cmake make g++ g++-multilib libc6-dev-i386 lib32gomp1 libcli11-dev
  libdragonbox-dev)
test_packages=(googletest libmpfr-dev nlohmann-json3-dev pkg-config binutils)
full_packages=(abigail-tools clang debootstrap gappa libclang-rt-14-dev qemu-user)
accuracy_packages=(gnuplot-nox)
bench_packages=(libbenchmark-dev:i386 libbenchmark-dev:amd64 gnuplot-nox libsleef-dev)
docs_packages=(doxygen help2man)
update_tries=3

fail() {
  printf 'setup.sh: %s\n' "$@" >&2
  exit 1
}

usage="usage: scripts/setup.sh [build|test|full|accuracy|bench|docs]"
level=${1:-build}
case $level in
  build) wanted=("${build_packages[@]}") ;;
  test) wanted=("${build_packages[@]}" "${test_packages[@]}") ;;
  full)
    wanted=("${build_packages[@]}" "${test_packages[@]}" "${docs_packages[@]}")
    wanted+=("${full_packages[@]}")
    ;;
  accuracy) wanted=("${build_packages[@]}" "${test_packages[@]}" "${accuracy_packages[@]}") ;;
  bench) wanted=("${build_packages[@]}" "${bench_packages[@]}") ;;
  docs) wanted=("${build_packages[@]}" "${docs_packages[@]}") ;;
  *) fail "unknown level '$level'" "$usage" ;;
esac
[[ $# -le 1 ]] || fail "one level at a time" "$usage"

for tool in dpkg-query apt-get; do
  command -v "$tool" >/dev/null ||
    fail "no $tool: this is not a Debian system; install what these Debian packages hold:" \
      "${wanted[*]}"
done

missing_packages() {
  local package
  for package in "${wanted[@]}"; do
    [[ $(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null) == installed ]] ||
      printf '%s\n' "$package"
  done
}

mapfile -t missing < <(missing_packages)
[[ ${#missing[@]} -gt 0 ]] || exit 0

if [[ $EUID -eq 0 ]]; then
  as_root=(env)
elif command -v sudo >/dev/null; then
  as_root=(sudo env)
else
  fail "neither root nor sudo: have these packages installed and try again:" "${missing[*]}"
fi
echo "setup.sh: installing with apt-get: ${missing[*]}"
# A lock held by another apt is waited for; interrupted downloads are tried again.
apt=("${as_root[@]}" DEBIAN_FRONTEND=noninteractive apt-get -q -o DPkg::Lock::Timeout=300
  -o Acquire::Retries=3)

if [[ ${missing[*]} == *:i386* ]] && ! dpkg --print-foreign-architectures | grep -qx i386; then
  echo "setup.sh: adding the foreign architecture i386 (dpkg --add-architecture i386)"
  "${as_root[@]}" dpkg --add-architecture i386
fi

# One index that fails need not matter to the packages at hand: the installation decides.
for ((try = 1; ; ++try)); do
  "${apt[@]}" update -o APT::Update::Error-Mode=any && break
  if ((try == update_tries)); then
    echo "setup.sh: apt-get update failed $try times; going on with the lists there are" >&2
    break
  fi
  echo "setup.sh: apt-get update failed; trying again in $((5 * try)) seconds" >&2
  sleep $((5 * try))
done

if ! "${apt[@]}" install -y --no-install-recommends "${missing[@]}"; then
  unavailable=()
  for package in "${missing[@]}"; do
    apt-cache show "$package" >/dev/null 2>&1 || unavailable+=("$package")
  done
  [[ ${#unavailable[@]} -eq 0 ]] ||
    fail "no package source has: ${unavailable[*]}" \
      "check that the sources under /etc/apt have Debian 12 (bookworm) with component main," \
      "that the network reaches them, and run scripts/setup.sh $level again"
  fail "apt-get could not install: ${missing[*]}" \
    "its messages above tell why; mend that and run scripts/setup.sh $level again"
fi

mapfile -t missing < <(missing_packages)
[[ ${#missing[@]} -eq 0 ]] || fail "still missing after the installation: ${missing[*]}"

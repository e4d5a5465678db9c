#!/usr/bin/env bash
# Has a generator write its scripts and Gappa prove them: prove.sh GAPPA GENERATOR [FOLDER]
# A FOLDER keeps the scripts.
set -euo pipefail
gappa=$1 generator=$2
folder=${3:-$(mktemp -d)}
[[ $# -eq 3 ]] || trap 'rm -rf "$folder"' EXIT
mkdir -p "$folder"

"$generator" "$folder"

# Every script must be proved without a word. No claim is searched for in ever smaller intervals: what
# fails, fails at once. Any improvement of a bound counts, however small. Gappa itself checks that a
# rewriting is an identity, and says so if it is none, or of no use; of denominators the scripts say
# where they are not zero, which it overlooks in some (1 + y c with y and c positive).
prove() {
  local message
  if message=$(timeout 60 "$1" -Eno-auto-dichotomy -Echange-threshold=0 -Wno-null-denominator "$2" 2>&1) && [[ -z $message ]]; then
    return
  fi
  printf '%s is not proved:\n%s\n' "$2" "$(head -n 20 <<<"$message")" >&2
  return 1
}
export -f prove
scripts=$(find "$folder" -name '*.gappa' | wc -l)
[[ $scripts -gt 0 ]] || { echo "$generator wrote no scripts" >&2; exit 1; }
find "$folder" -name '*.gappa' -print0 | sort -z |
  xargs -0 -n 1 -P "$(nproc)" bash -c 'prove "$0" "$1"' "$gappa" ||
  { echo "some of $scripts scripts are not proved" >&2; exit 1; }
echo "$scripts scripts proved"

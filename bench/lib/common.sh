# Sourced by the benchmark scripts: the repository, the program under test ($MERO, else bin/mero
# of the repository, built by `make build`), a scratch folder removed on exit, and the generator
# of random location files.
set -euo pipefail
repo="$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)"
mero="${MERO:-$repo/bin/mero}"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT

# random_locations N EQUAL NAMED: N locations with coordinates of three decimals in [0, 1000),
# weight 1 when EQUAL is 1 and integer weights 1..100 otherwise, named p1, p2, ... when NAMED is
# 1. The seed is N, so a size always gives the same file.
random_locations() {
  awk -v n="$1" -v seed="$1" -v equal="$2" -v named="$3" 'BEGIN {
    srand(seed)
    print "begin {location} [2,1]"
    for (i = 1; i <= n; i++) {
      printf "%.3f %.3f %d", rand() * 1000, rand() * 1000, equal ? 1 : 1 + int(rand() * 100)
      if (named) printf " [p%d]", i
      printf "\n"
    }
    print "end {location}"
  }'
}

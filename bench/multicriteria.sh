#!/usr/bin/env bash
# Pareto problems on networks: medPareto with two criteria (the two-objective merge,
# bicriteria_median, and the general route with linear programs, pareto_median), with three
# criteria (general route), and loc_medPareto (Pareto nodes, three criteria), on the OR-Library
# p-median graphs pmed1 to pmed10, converted by scripts/orlib-pmed-to-mero. Each node gets random
# integer weights per criterion: 1..10, 0..1, and sparse (-20..1 with negatives as 0, so about
# one node in 22 has demand); the seed is the instance number. Prints the number of pieces (and of node pieces) and the seconds of the
# routine, reading excluded. Uses bin/multicriteria_bench of the repository, built by
# `make build`, or $BENCH. The bicriteria route should stay under 10 s on pmed10.
source "$(dirname "$0")/lib/common.sh"
bench="${BENCH:-$repo/bin/multicriteria_bench}"
pmed="${PMED:-$repo/../shared/benchmarks/orlib/pmed}"

printf '%-7s %4s %5s %7s  %-24s %7s %6s %8s\n' instance n edges weights route pieces nodes seconds
for k in 1 2 3 4 5 6 7 8 9 10; do
  "$repo/scripts/orlib-pmed-to-mero" "$pmed/pmed$k.txt" >"$work/g.graph" 2>/dev/null
  read -r n m _ <"$pmed/pmed$k.txt"
  for range in "1 10" "0 1" "-20 1"; do
    for run in "2 bicriteria" "2 general" "3 general" "3 nodes"; do
      read -r q route <<<"$run"
      read -r pieces nodes seconds < <("$bench" "$work/g.graph" $q $route $k $range)
      printf '%-7s %4s %5s %7s  %-24s %7s %6s %8s\n' "pmed$k" "$n" "$m" "${range/ /..}" \
        "Q=$q $route" "$pieces" "$nodes" "$seconds"
    done
  done
done

#!/usr/bin/env bash
# The four N-median routines and the two N-center heuristics on the OR-Library p-median
# instances (pmed1 to pmed40, converted by scripts/orlib-pmed-to-mero), each run with the
# instance's own p as -n. Prints one table row per instance: n, p, the published optimum, then
# value, gap to the optimum in percent and wall seconds of N_median_cplex, N_median_partitioning,
# N_median_exchange and N_median_greedy, and value and seconds of N_center_partitioning and
# N_center_greedy (the published optima are of the median only).
#
# Every run is a whole `mero` process (reading included) under `timeout`: HEURISTIC_LIMIT seconds
# (default 120) for the heuristics, EXACT_LIMIT (default 600) for N_median_cplex, which is tried
# only on instances of at most EXACT_MAX_NODES nodes (default 100: its program has n^2 binaries).
# A run cut off shows as "> LIMIT". Uses the program in $MERO, else bin/mero of the repository
# (build it as a Release tree for figures worth recording).
# Usage: bench/n_median.sh [K...]   (instance numbers; default 1 to 40)
#        PMED=dir to look for pmedK.txt and optimal.txt elsewhere than ../shared/benchmarks/orlib/pmed
source "$(dirname "$0")/lib/common.sh"
pmed="${PMED:-$repo/../shared/benchmarks/orlib/pmed}"
convert="$repo/scripts/orlib-pmed-to-mero"
instances=("$@")
[ ${#instances[@]} -gt 0 ] || instances=($(seq 1 40))
heuristic_limit="${HEURISTIC_LIMIT:-120}"
exact_limit="${EXACT_LIMIT:-600}"
exact_max_nodes="${EXACT_MAX_NODES:-100}"

# run ALGORITHM LIMIT: prints "value seconds", or "- >LIMIT" when the run was cut off.
run() {
  if /usr/bin/time -f '%e' -o "$work/time" timeout "$2" "$mero" -a "$1" -g "$work/g.graph" \
       -n "$p" --output=nowindowed,file="$work/out" >/dev/null 2>"$work/err"; then
    echo "$(sed -n '/begin {objective value}/{n;p}' "$work/out") $(tail -1 "$work/time")"
  else
    echo "- >$2"
  fi
}

# cell VALUE SECONDS [OPTIMUM]: "value gap% s" (no gap without optimum or value).
cell() {
  awk -v v="$1" -v s="$2" -v opt="${3:-}" 'BEGIN {
    if (v == "-") { printf "%9s %7s %8s", "-", "", s; exit }
    gap = opt == "" ? "" : sprintf("%.2f", 100 * (v - opt) / opt)
    printf "%9s %7s %8s", v, gap, s
  }'
}

printf '%-7s %4s %3s %6s | %-26s | %-26s | %-26s | %-26s | %-18s | %-18s\n' instance n p optimum \
  "cplex: value gap% s" "partitioning: value gap% s" "exchange: value gap% s" \
  "greedy: value gap% s" "center part.: val s" "center greedy: val s"
for k in "${instances[@]}"; do
  "$convert" "$pmed/pmed$k.txt" >"$work/g.graph" 2>/dev/null
  p="$("$convert" --p "$pmed/pmed$k.txt")"
  read -r n _ <"$pmed/pmed$k.txt"
  optimum="$(awk -v name="pmed$k" '$1 == name { print $2 }' "$pmed/optimal.txt")"
  if [ "$n" -le "$exact_max_nodes" ]; then exact="$(run N_median_cplex "$exact_limit")"; else exact="- not_tried"; fi
  row="$(printf '%-7s %4s %3s %6s' "pmed$k" "$n" "$p" "$optimum")"
  for a in exact N_median_partitioning N_median_exchange N_median_greedy; do
    [ "$a" = exact ] && result="$exact" || result="$(run "$a" "$heuristic_limit")"
    read -r value secs <<<"$result"
    row+=" | $(cell "$value" "$secs" "$optimum")"
  done
  for a in N_center_partitioning N_center_greedy; do
    read -r value secs <<<"$(run "$a" "$heuristic_limit")"
    row+=" | $(printf '%9s %8s' "$value" "$secs")"
  done
  echo "$row"
done

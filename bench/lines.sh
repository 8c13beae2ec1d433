#!/usr/bin/env bash
# Line location on N random locations of weight 1 (the fast variants promise the value of the
# pair loop only with equal weights), as whole processes with reading included:
#   sum: L_l2_sum_M3 (cubic) against L_l2_sum_M2logM (sorted sweep) and L_l2_sum_M2 (rotating
#        halving line), N = 250, 500, 1000, 2000;
#   max: L_l2_max_M4 (quartic) against L_l2_max_M2logM and L_l2_max_MlogM (hull walks),
#        N = 50, 100, 200;
#   the two sum sweeps alone at N = 4000 and 8000, where the cubic loop would take too long, to
#   fit their growth.
# A run is stopped after LIMIT seconds (default 600) and shown as "> LIMIT". SIZES_SUM,
# SIZES_MAX and SIZES_FAST replace the lists of N. Uses the program in $MERO, else bin/mero of
# the repository.
source "$(dirname "$0")/lib/common.sh"
limit="${LIMIT:-600}"
export tmp="$work"

run() {  # algorithm, file; prints "wall user value"
  if /usr/bin/time -f '%e %U' -o "$work/time" timeout "$limit" "$mero" -a "$1" -l "$2" \
    --output=nowindowed,file="$work/out" >/dev/null; then
    grep -q '^end {result}$' "$work/out" || { echo "no report: $1 $2" >&2; exit 1; }
    echo "$(cat "$work/time") $(sed -n '/^begin {objective value}/{n;p;}' "$work/out")"
  else
    echo ">$limit - -"
  fi
}

table() {  # sizes, algorithms...
  local sizes="$1"
  shift
  printf '%-16s %6s %9s %9s %s\n' algorithm n "wall s" "user s" value
  for n in $sizes; do
    random_locations "$n" 1 0 >"$work/equal.loc"
    for algorithm in "$@"; do
      read -r wall user value < <(run "$algorithm" "$work/equal.loc")
      printf '%-16s %6s %9s %9s %s\n' "$algorithm" "$n" "$wall" "$user" "$value"
    done
  done
}

echo "load before: $(cut -d' ' -f1-3 /proc/loadavg)"
table "${SIZES_SUM:-250 500 1000 2000}" L_l2_sum_M3 L_l2_sum_M2logM L_l2_sum_M2
table "${SIZES_MAX:-50 100 200}" L_l2_max_M4 L_l2_max_M2logM L_l2_max_MlogM
table "${SIZES_FAST:-4000 8000}" L_l2_sum_M2logM L_l2_sum_M2
echo "load after: $(cut -d' ' -f1-3 /proc/loadavg)"

#!/usr/bin/env bash
# Times the single-facility network algorithms as whole processes (reading included) on the
# OR-Library p-median graphs of 100 to 900 nodes, converted by scripts/orlib-pmed-to-mero:
# undir_median, abs_undir_median, loc_undir_center and abs_undir_center. abs_undir_center on the
# 900-node graph should take under 30 s. Uses the program in $MERO, else bin/mero of the
# repository (build it as a Release tree for figures worth recording). The instances are looked
# for in $PMED, else ../shared/benchmarks/orlib/pmed beside the repository.
source "$(dirname "$0")/lib/common.sh"
pmed="${PMED:-$repo/../shared/benchmarks/orlib/pmed}"

printf '%-7s %5s %6s  %-18s %9s %11s  %s\n' instance n edges algorithm "wall s" "max RSS kB" value
for k in 1 6 11 16 21 26 31 35 38; do
  "$repo/scripts/orlib-pmed-to-mero" "$pmed/pmed$k.txt" >"$work/g.graph" 2>/dev/null
  read -r n m _ <"$pmed/pmed$k.txt"
  for algorithm in undir_median abs_undir_median loc_undir_center abs_undir_center; do
    /usr/bin/time -f '%e %M' -o "$work/time" "$mero" -a "$algorithm" -g "$work/g.graph" \
      --output=nowindowed,file="$work/out" >"$work/points"
    read -r wall rss <"$work/time"
    value="$(sed -n '/begin {objective value}/{n;p}' "$work/out")"
    printf '%-7s %5s %6s  %-18s %9s %11s  %s\n' "pmed$k" "$n" "$m" "$algorithm" "$wall" "$rss" \
      "$value"
  done
done

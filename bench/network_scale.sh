#!/usr/bin/env bash
# Memory and time of undir_median, abs_undir_median and loc_undir_center on road-like grids
# (bench/road_grid.sh: 100 x 100 and 316 x 317 crossings, streets of 100 to 199 whole metres),
# and undir_median on the 100 x 100 grid with lengths in kilometres whose sums round. Whole
# processes, /usr/bin/time. The 10^5-node medians take minutes of processor time: run this one
# by hand (SCALE_LARGE=0 leaves them out). Uses $MERO, else bin/mero of the repository.
source "$(dirname "$0")/lib/common.sh"
printf '%-8s %7s  %-18s %9s %9s %11s  %s\n' grid n algorithm "wall s" "user s" "max RSS kB" value
run() {  # columns rows unit algorithm
  "$repo/bench/road_grid.sh" "$1" "$2" "$3" >"$work/g.graph"
  /usr/bin/time -f '%e %U %M' -o "$work/time" "$mero" -a "$4" -g "$work/g.graph" \
    --output=nowindowed,file="$work/out" >/dev/null
  read -r wall user rss <"$work/time"
  printf '%-8s %7s  %-18s %9s %9s %11s  %s\n' "$1x$2$3" $(($1 * $2)) "$4" "$wall" "$user" "$rss" \
    "$(sed -n '/begin {objective value}/{n;p}' "$work/out")"
}
for algorithm in undir_median abs_undir_median loc_undir_center; do run 100 100 m "$algorithm"; done
run 100 100 km undir_median
if [ "${SCALE_LARGE:-1}" = 1 ]; then
  for algorithm in loc_undir_center undir_median abs_undir_median; do
    run 316 317 m "$algorithm"
  done
fi

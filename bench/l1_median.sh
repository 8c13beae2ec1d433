#!/usr/bin/env bash
# Times `mero -a l1_sum` as a whole process (reading included) on N random locations, for
# N = 10^4, 10^5 and 10^6. The cost should grow as n log n; 10^6 locations should take under 2 s.
# Uses the program in $MERO, else bin/mero of the repository (built by `make build`).
source "$(dirname "$0")/lib/common.sh"

printf '%-9s %9s %9s %11s\n' "n" "wall s" "user s" "max RSS kB"
for n in 10000 100000 1000000; do
  random_locations "$n" 0 1 >"$work/in.loc"
  best=""
  for run in 1 2 3; do
    /usr/bin/time -f '%e %U %M' -o "$work/time" \
      "$mero" -a l1_sum -l "$work/in.loc" --output=nowindowed,file="$work/out" >/dev/null
    read -r wall user rss <"$work/time"
    if [ -z "$best" ] || awk -v a="$wall" -v b="$best" 'BEGIN { exit !(a < b) }'; then
      best="$wall"; best_user="$user"; best_rss="$rss"
    fi
  done
  grep -q '^end {result}$' "$work/out" || { echo "no report for n = $n" >&2; exit 1; }
  printf '%-9s %9s %9s %11s\n' "$n" "$best" "$best_user" "$best_rss"
done

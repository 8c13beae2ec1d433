#!/usr/bin/env bash
# Times l2_sum, lp_sum (p = 3), linf_max and l2_v1_max as whole processes (reading included) on
# N random locations, N = 10^4, 10^5, 10^6. l2_v1_max on 10^6 uniform points should finish in
# under 3 s. lp_sum rules out most locations with a bound before the exact test; a run is stopped
# after LIMIT seconds (default 300) and shown as "> LIMIT".
# Uses the program in $MERO, else bin/mero of the repository.
source "$(dirname "$0")/lib/common.sh"
limit="${LIMIT:-300}"
export tmp="$work"

run() {  # algorithm, file; prints "wall user rss" or "> limit"
  local args=(-a "$1" -l "$2" --output=nowindowed,file="$work/out")
  [ "$1" = lp_sum ] && args+=(-p 3)
  if /usr/bin/time -f '%e %U %M' -o "$work/time" timeout "$limit" "$mero" "${args[@]}" >/dev/null
  then
    grep -q '^end {result}$' "$work/out" || { echo "no report: $1 $2" >&2; exit 1; }
    cat "$work/time"
  else
    echo ">$limit - -"
  fi
}

printf '%-10s %-9s %9s %9s %11s\n' algorithm n "wall s" "user s" "max RSS kB"
for n in 10000 100000 1000000; do
  random_locations "$n" 0 0 >"$work/weighted.loc"
  random_locations "$n" 1 0 >"$work/equal.loc"
  for algorithm in l2_sum lp_sum linf_max l2_v1_max; do
    file="$work/weighted.loc"
    [ "$algorithm" = l2_v1_max ] && file="$work/equal.loc"
    read -r wall user rss < <(run "$algorithm" "$file")
    printf '%-10s %-9s %9s %9s %11s\n' "$algorithm" "$n" "$wall" "$user" "$rss"
  done
done

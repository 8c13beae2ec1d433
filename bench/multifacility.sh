#!/usr/bin/env bash
# Times `mero -a N_l1_sum_v1` and `mero -a N_linf_max` as whole processes (reading included) for
# n = 5, 20, 50 new facilities and m = 100, 1000 random locations, and prints the size of the
# linear program each one builds:
#   N_l1_sum_v1: n rows, n m + n (n - 1) / 2 bounded columns (the dual of the model with one
#                row per term), solved once per axis;
#   N_linf_max:  2 n m + n (n - 1) rows, n + 1 columns, solved once per axis.
# Uses the program in $MERO, else bin/mero of the repository (built by `make build`).
source "$(dirname "$0")/lib/common.sh"

# m random locations in [0, 1000)^2 with n integer weights 1..100 each (none zero, as
# N_linf_max divides by every weight).
locations() {
  awk -v n="$1" -v m="$2" -v seed="$((1000 * $1 + $2))" 'BEGIN {
    srand(seed)
    printf "begin {location} [2,%d]\n", n
    for (i = 1; i <= m; i++) {
      printf "%.3f %.3f", rand() * 1000, rand() * 1000
      for (j = 1; j <= n; j++) printf " %d", 1 + int(rand() * 100)
      printf "\n"
    }
    print "end {location}"
  }'
}

# An n by n dependency matrix with ties 1..20 above the diagonal (all non-zero), mirrored below.
dependencies() {
  awk -v n="$1" -v seed="$1" 'BEGIN {
    srand(seed)
    for (j = 0; j < n; j++) for (k = j + 1; k < n; k++) v[j, k] = v[k, j] = 1 + int(rand() * 20)
    printf "begin {matrix} [%d]\n", n
    for (j = 0; j < n; j++) {
      for (k = 0; k < n; k++) printf "%s%d", (k ? " " : ""), (j == k ? 0 : v[j, k])
      printf "\n"
    }
    print "end {matrix}"
  }'
}

printf '%-12s %4s %5s %8s %8s %9s %9s %11s\n' \
  "algorithm" "n" "m" "rows" "columns" "wall s" "user s" "max RSS kB"
for n in 5 20 50; do
  dependencies "$n" >"$work/v.mat"
  for m in 100 1000; do
    locations "$n" "$m" >"$work/in.loc"
    for algorithm in N_l1_sum_v1 N_linf_max; do
      if [ "$algorithm" = N_l1_sum_v1 ]; then
        rows=$n; columns=$((n * m + n * (n - 1) / 2))
      else
        rows=$((2 * n * m + n * (n - 1))); columns=$((n + 1))
      fi
      /usr/bin/time -f '%e %U %M' -o "$work/time" "$mero" -a "$algorithm" -l "$work/in.loc" \
        -m "$work/v.mat" --output=nowindowed,file="$work/out" >/dev/null
      read -r wall user rss <"$work/time"
      grep -q '^end {result}$' "$work/out" || { echo "no report: $algorithm n=$n m=$m" >&2; exit 1; }
      printf '%-12s %4s %5s %8s %8s %9s %9s %11s\n' \
        "$algorithm" "$n" "$m" "$rows" "$columns" "$wall" "$user" "$rss"
    done
  done
done

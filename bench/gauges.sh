#!/usr/bin/env bash
# Times gauge_median and gauge_center as whole processes (reading included) on N random locations,
# N = 10, 100, 1000, each location measured with one of three random convex gauges of K corners,
# K = 4 and 8. Also counts the crossings of the grid of rays that gauge_median evaluates (the rays
# cut at gauge distance z / w, crossings of rays of different locations), with a small program
# linked with the same library. gauge_median evaluates every crossing on the right side of its
# cut at O(n) each, so its time grows like n^3; a run is stopped after LIMIT seconds (default 120)
# and shown as "> LIMIT".
# Uses the program in $MERO, else bin/mero of the repository; the counter is built in the Release
# tree build/ (`make build`).
source "$(dirname "$0")/lib/common.sh"
limit="${LIMIT:-120}"
tree="${BUILD:-$repo/build}"

# random_gauge_locations N: N locations in [0, 1000)^2 with integer weights 1..100 and gauge
# numbers 0..2 in turn; the seed is N.
random_gauge_locations() {
  awk -v n="$1" 'BEGIN {
    srand(n)
    print "begin {location} [2,1]"
    for (i = 0; i < n; i++)
      printf "%.3f %.3f %d {%d}\n", rand() * 1000, rand() * 1000, 1 + int(rand() * 100), i % 3
    print "end {location}"
  }'
}

# random_gauges K: three convex gauges of K corners, angles spread evenly with a small jitter and
# radii in [0.8, 1.2], which keeps every corner on the hull for K <= 8.
random_gauges() {
  awk -v k="$1" 'BEGIN {
    srand(k)
    pi = atan2(0, -1)
    print "begin {polygaugelist}"
    for (g = 0; g < 3; g++) {
      print "begin {polygauge}"
      for (i = 0; i < k; i++) {
        a = 2 * pi * (i + 0.2 * (rand() - 0.5)) / k
        r = 0.9 + 0.1 * rand()
        printf "%.6f %.6f\n", r * cos(a), r * sin(a)
      }
      print "end {polygauge}"
    }
    print "end {polygaugelist}"
  }'
}

cat >"$work/count.cpp" <<'CPP'
// Prints the number of distinct crossings of gauge_median's grid for a location and gauge file.
#include <cstdio>

#include "gauge/gauge_file.h"
#include "gauge/gauge_sites.h"
#include "model/location_file.h"

int main(int, char** argv) {
  using namespace mero;
  facilities f;
  std::vector<int> numbers;
  read_gauge_location_file(argv[1], f, numbers);
  const std::vector<polygauge> gauges = read_polygauges(argv[2]);
  const std::vector<gauge_site> sites =
      checked_sites(f, gauges, numbers, 1, median_checks);
  f.l2sqr_sum(0, true);
  const double z = gauge_sum(sites, point(f.optima().front()), 0);
  std::vector<std::size_t> owner;
  const auto rays = ray_grid(sites, [z](const gauge_site& s, const point&) { return z / s.w[0]; },
                             owner);
  std::printf("%zu\n", grid_crossings(rays, owner).size());
}
CPP
counter="$work/count"
c++ -O2 -std=c++20 -I"$repo/src" "$work/count.cpp" -o "$counter" -L"$tree/src" -lmero \
  -L/usr/lib -llpsolve55 -lcolamd -ldl -lm

run() {  # algorithm, locations, gauges; prints "wall user rss" or "> limit"
  if /usr/bin/time -f '%e %U %M' -o "$work/time" timeout "$limit" "$mero" -a "$1" -l "$2" \
       -d "$3" --output=nowindowed,file="$work/out" >/dev/null; then
    grep -q '^end {result}$' "$work/out" || { echo "no report: $1 $2" >&2; exit 1; }
    cat "$work/time"
  else
    echo ">$limit - -"
  fi
}

printf '%-13s %5s %2s %10s %9s %9s %11s\n' algorithm n k crossings "wall s" "user s" "max RSS kB"
for k in 4 8; do
  random_gauges "$k" >"$work/gauges"
  for n in 10 100 1000; do
    random_gauge_locations "$n" >"$work/sites.loc"
    crossings="$(timeout "$limit" "$counter" "$work/sites.loc" "$work/gauges" || echo "-")"
    for algorithm in gauge_median gauge_center; do
      read -r wall user rss < <(run "$algorithm" "$work/sites.loc" "$work/gauges")
      shown="$crossings"
      [ "$algorithm" = gauge_center ] && shown="-"
      printf '%-13s %5s %2s %10s %9s %9s %11s\n' "$algorithm" "$n" "$k" "$shown" "$wall" "$user" \
        "$rss"
    done
  done
done

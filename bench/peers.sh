#!/usr/bin/env bash
# mero against the field's tools, on the same instance in one run, whole processes timed:
#   UFL_Dualoc              against CBC on the strong MIP   (OR-Library uncap, 15 instances)
#   undir_median and        against scipy's all-pairs Dijkstra with the least row sum and the
#   loc_undir_center        least row maximum               (OR-Library pmed1 to pmed40)
#   abs_undir_center        against the same with the absolute center edge by edge (pmed1-40)
#   l2_v1_max               against CGAL's Min_circle_2     (10^5 and 10^6 random points)
# Each row prints both times, the ratio peer / mero (above 1: mero is faster) and both values
# (UFL: each program's fastest of up to twenty runs while its runs take under a second together);
# values that differ beyond the six digits of mero's report make the script fail.
# Installs its peers from Debian when they are missing (coinor-cbc, python3-scipy, libcgal-dev).
# Usage: bench/peers.sh [ufl|pmed|circle]...   (default: all three; UFL_INSTANCES=names picks
#        OR-Library uncap instances)
source "$(dirname "$0")/lib/common.sh"
orlib="${ORLIB:-$repo/../shared/benchmarks/orlib}"
peers="$repo/bench/peers"
python=/usr/bin/python3
parts=("$@")
[ ${#parts[@]} -gt 0 ] || parts=(ufl pmed circle)

need=()
command -v cbc >/dev/null || need+=(coinor-cbc)
$python -c 'import scipy' 2>/dev/null || need+=(python3-scipy)
[ -f /usr/include/CGAL/Min_circle_2.h ] || need+=(libcgal-dev)
if [ ${#need[@]} -gt 0 ]; then
  sudo=""; [ "$(id -u)" = 0 ] || sudo=sudo
  $sudo apt-get install -y -q "${need[@]}" >/dev/null
fi

seconds() {  # command...: runs it, its output to $work/out, prints the wall seconds
  local start=$EPOCHREALTIME
  "$@" >"$work/out" 2>/dev/null
  awk -v a="$start" -v b="$EPOCHREALTIME" 'BEGIN { printf "%.4f", b - a }'
}

fastest() {  # command...: as seconds, but runs it up to twenty times while the runs together
             # take under a second and prints the fastest: a run of a few milliseconds on a
             # loaded machine is mostly the wait for a core
  local best="" total=0 t
  for _ in $(seq 20); do
    t=$(seconds "$@")
    best=$(awk -v a="$best" -v b="$t" 'BEGIN { print (a == "" || b + 0 < a + 0) ? b : a }')
    total=$(awk -v a="$total" -v b="$t" 'BEGIN { print a + b }')
    awk -v t="$total" 'BEGIN { exit !(t >= 1) }' && break
  done
  echo "$best"
}

report_value() {  # the objective value of a mero report in $work/out
  awk '/^begin \{objective value\}/ { getline; print; exit }' "$work/out"
}

agree() {  # a b: relative difference within the six significant digits of a report
  awk -v a="$1" -v b="$2" 'BEGIN { d = a - b; if (d < 0) d = -d; m = b < 0 ? -b : b;
                                   exit !(d <= 5e-6 * (m > 1 ? m : 1)) }'
}

row() {  # name, mero time, peer time, mero value, peer value
  local ratio
  ratio=$(awk -v m="$2" -v p="$3" 'BEGIN { printf "%.2f", (m > 0 ? p / m : 0) }')
  printf '%-24s %9s %9s %7s %18s %18s\n' "$1" "$2" "$3" "$ratio" "$4" "$5"
  agree "$4" "$5" || { echo "values differ: $1" >&2; exit 1; }
}

header() { printf '%-24s %9s %9s %7s %18s %18s\n' instance "mero s" "peer s" ratio "mero value" \
                  "peer value"; }

ufl() {
  echo "== UFL_Dualoc against CBC on the strong MIP"
  header
  for name in ${UFL_INSTANCES:-cap71 cap72 cap73 cap74 cap101 cap102 cap103 cap104 cap131 cap132
                              cap133 cap134 capa capb capc}; do
    "$repo/scripts/orlib-ufl-to-mero" "$orlib/uncap/$name.txt" >"$work/$name.dat"
    $python "$peers/ufl_mip.py" "$orlib/uncap/$name.txt" >"$work/$name.lp"
    local mt pt mv pv
    mt=$(fastest "$mero" -a UFL_Dualoc -d "$work/$name.dat" --output=nowindowed)
    mv=$(report_value)
    pt=$(fastest cbc "$work/$name.lp" solve quit)
    pv=$(awk '/^Objective value:/ { print $3; exit }' "$work/out")
    row "$name" "$mt" "$pt" "$mv" "$pv"
  done
}

pmed() {
  echo "== undir_median, loc_undir_center and abs_undir_center against scipy (all-pairs Dijkstra)"
  header
  for k in $(seq 1 40); do
    local name="pmed$k" mt ct at pt qt mv cv av pv pc pa
    "$repo/scripts/orlib-pmed-to-mero" "$orlib/pmed/$name.txt" >"$work/$name.graph" 2>/dev/null
    mt=$(seconds "$mero" -a undir_median -g "$work/$name.graph" --output=nowindowed)
    mv=$(report_value)
    ct=$(seconds "$mero" -a loc_undir_center -g "$work/$name.graph" --output=nowindowed)
    cv=$(report_value)
    pt=$(seconds $python "$peers/pmed_scipy.py" "$orlib/pmed/$name.txt")
    pv=$(awk '$1 == "median" { print $2 }' "$work/out")
    pc=$(awk '$1 == "center" { print $2 }' "$work/out")
    at=$(seconds "$mero" -a abs_undir_center -g "$work/$name.graph" --output=nowindowed)
    av=$(report_value)
    qt=$(seconds $python "$peers/pmed_scipy.py" "$orlib/pmed/$name.txt" abscenter)
    pa=$(awk '$1 == "abscenter" { print $2 }' "$work/out")
    row "$name median" "$mt" "$pt" "$mv" "$pv"
    row "$name center" "$ct" "$pt" "$cv" "$pc"
    row "$name abs center" "$at" "$qt" "$av" "$pa"
  done
}

circle() {
  echo "== l2_v1_max against CGAL Min_circle_2"
  g++ -O2 -o "$work/min_circle" "$peers/min_circle.cpp" -lgmp -lmpfr
  header
  for n in 100000 1000000; do
    random_locations "$n" 1 0 >"$work/points.loc"
    local mt pt mv pv
    mt=$(seconds "$mero" -a l2_v1_max -l "$work/points.loc" --output=nowindowed)
    mv=$(report_value)
    pt=$(seconds "$work/min_circle" "$work/points.loc")
    pv=$(awk '$1 == "radius" { print $2 }' "$work/out")
    row "random $n" "$mt" "$pt" "$mv" "$pv"
  done
}

for part in "${parts[@]}"; do "$part"; done

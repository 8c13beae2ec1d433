#!/usr/bin/env bash
# mero against the field's tools, on the same instance in one run, whole processes timed:
#   UFL_Dualoc              against CBC on the strong MIP   (OR-Library uncap, 15 instances)
#   undir_median and        against scipy's all-pairs Dijkstra with the least row sum and the
#   loc_undir_center        least row maximum               (OR-Library pmed1 to pmed40)
#   abs_undir_center        against the same with the absolute center edge by edge (pmed1-40)
#   l2_v1_max               against CGAL's Min_circle_2     (10^5 and 10^6 random points)
#   l1_sum                  against the same CGAL time, its value against a weighted median
#                           program with the same stream reading (bench/peers/l1_median.cpp)
#   N_median_cplex          against CBC on the p-median MIP (OR-Library pmed1 to pmed10)
# Each row prints both times, the ratio peer / mero (above 1: mero is faster) and both values
# (UFL: each program's fastest of up to twenty runs while its runs take under a second together);
# values that differ beyond the six digits of mero's report make the script fail.
# Installs its peers from Debian when they are missing (coinor-cbc, python3-scipy, libcgal-dev).
# Usage: bench/peers.sh [ufl|pmed|circle|pmedmip]...   (default: all four; UFL_INSTANCES=names
#        picks OR-Library uncap instances)
#        PMEDMIP_LIMIT=seconds (default 600): a longer mero run of N_median_cplex is cut off; its
#        row then shows "> LIMIT" and CBC's value is checked against the published optimum.
source "$(dirname "$0")/lib/common.sh"
orlib="${ORLIB:-$repo/../shared/benchmarks/orlib}"
peers="$repo/bench/peers"
python=/usr/bin/python3
parts=("$@")
[ ${#parts[@]} -gt 0 ] || parts=(ufl pmed circle pmedmip)

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

timed() {  # command...: as seconds, and the processor seconds (user + system) go to $work/cpu
  local start=$EPOCHREALTIME
  /usr/bin/time -f '%U %S' -o "$work/time" "$@" >"$work/out" 2>/dev/null || true
  awk -v a="$start" -v b="$EPOCHREALTIME" 'BEGIN { printf "%.4f", b - a }'
  tail -1 "$work/time" | awk '{ printf "%.2f", $1 + $2 }' >"$work/cpu"
}

cpu_row() {  # name, mero cpu, peer cpu: the processor seconds of the row above and their ratio
  awk -v n="$1" -v m="$2" -v p="$3" 'BEGIN {
    printf "%-24s %9s %9s %7.2f   (processor seconds, user + system)\n", "  " n, m, p,
           (m > 0 ? p / m : 0) }'
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

mero_row() {  # algorithm, n, peer wall, peer cpu, peer value: mero on $work/points.loc
  local mt mv mc
  mt=$(timed "$mero" -a "$1" -l "$work/points.loc" --output=nowindowed)
  mv=$(report_value) mc=$(cat "$work/cpu")
  row "$1 $2" "$mt" "$3" "$mv" "$5"
  cpu_row "$1" "$mc" "$4"
}

circle() {
  echo "== l2_v1_max against CGAL Min_circle_2, l1_sum against a weighted median on the same"
  echo "   stream reading (ratios of both against the CGAL time: the reference for the reading)"
  g++ -O2 -o "$work/min_circle" "$peers/min_circle.cpp" -lgmp -lmpfr
  g++ -O2 -o "$work/l1_median" "$peers/l1_median.cpp"
  header
  for n in 100000 1000000; do
    random_locations "$n" 1 0 >"$work/points.loc"
    local pt pv pc st sc
    pt=$(timed "$work/min_circle" "$work/points.loc")
    pv=$(awk '$1 == "radius" { print $2 }' "$work/out") pc=$(cat "$work/cpu")
    st=$(timed "$work/l1_median" "$work/points.loc")
    sc=$(cat "$work/cpu") && cp "$work/out" "$work/out.l1"
    mero_row l2_v1_max "$n" "$pt" "$pc" "$pv"
    mero_row l1_sum "$n" "$pt" "$pc" "$(awk '$1 == "value" { print $2 }' "$work/out.l1")"
    printf '%-24s %9s %9s %7s   (the weighted median program: wall, processor seconds)\n' \
      "  median peer" "" "$st" "$sc"
  done
}

pmedmip() {
  echo "== N_median_cplex against CBC on the p-median MIP"
  header
  local limit="${PMEDMIP_LIMIT:-600}"
  for k in $(seq 1 10); do
    local name="pmed$k" p optimum mt pt mv pv
    "$repo/scripts/orlib-pmed-to-mero" "$orlib/pmed/$name.txt" >"$work/$name.graph" 2>/dev/null
    p="$("$repo/scripts/orlib-pmed-to-mero" --p "$orlib/pmed/$name.txt")"
    optimum="$(awk -v name="$name" '$1 == name { print $2 }' "$orlib/pmed/optimal.txt")"
    $python "$peers/pmed_mip.py" "$orlib/pmed/$name.txt" >"$work/$name.lp"
    mt=$(seconds timeout "$limit" "$mero" -a N_median_cplex -g "$work/$name.graph" -n "$p" \
           --output=nowindowed)
    mv=$(report_value)
    pt=$(seconds cbc "$work/$name.lp" solve quit)
    pv=$(awk '/^Objective value:/ { print $3; exit }' "$work/out")
    if [ -z "$mv" ]; then  # cut off: the peer must still reach the published optimum
      printf '%-24s %9s %9s %7s %18s %18s\n' "$name" "> $limit" "$pt" - "(optimum $optimum)" "$pv"
      agree "$pv" "$optimum" || { echo "values differ: $name" >&2; exit 1; }
    else
      row "$name" "$mt" "$pt" "$mv" "$pv"
    fi
  done
}

for part in "${parts[@]}"; do "$part"; done

#!/usr/bin/env bash
# Runs the four discrete algorithms on every OR-Library uncapacitated instance (cap71 to cap134,
# capa, capb, capc), converted with scripts/orlib-ufl-to-mero, and compares with the published
# optima. UFL_Dualoc must reach the optimum to the three decimals published; each of cap71 to
# cap134 should take it under 2 s. Prints one table row per instance: the optimum, the value and
# the solver time of UFL_Dualoc, the time of a whole `mero -a UFL_Dualoc` run, and the gap of each
# heuristic in percent of the optimum.
#
# Builds a Release tree of its own (build-discrete-release) and, beside the program, a small
# driver linked with the same libmero that prints the values with all their digits (the report
# shows six significant digits only).
# Usage: bench/discrete.sh [ORLIB_UNCAP_DIR] [INSTANCE...]
#        (default directory: ../shared/benchmarks/orlib/uncap beside the repository)
# DUALOC_LIMIT (seconds, default 3600) bounds each instance; a UFL_Dualoc run cut off there shows
# as "not done" and makes the script fail.
set -euo pipefail
repo="$(cd "$(dirname "$0")/.." && pwd)"
orlib="${1:-$repo/../shared/benchmarks/orlib/uncap}"
shift || true
instances=("$@")
[ ${#instances[@]} -gt 0 ] || instances=(cap71 cap72 cap73 cap74 cap101 cap102 cap103 cap104
                                         cap131 cap132 cap133 cap134 capa capb capc)
tree="$repo/build-discrete-release"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT

cmake -S "$repo" -B "$tree" -G Ninja -DCMAKE_BUILD_TYPE=Release -DMERO_TESTS=OFF \
  -DMERO_BIN_DIR="$tree/bin" >/dev/null
cmake --build "$tree" -j2 --target mero >/dev/null
mero="$tree/bin/mero"

cat >"$work/ufl_values.cpp" <<'CPP'
// Reads a discrete file and prints, for each of the four algorithms, its value with six
// decimals and its solver time in seconds.
#include <chrono>
#include <cstdio>

#include "discrete/discrete_file.h"

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  mero::discrete_problem problem;
  mero::read_discrete_file(argv[1], problem);
  using member = double (mero::discrete_problem::*)();
  const struct { const char* name; member solve; } algorithms[] = {
      {"UFL_Greedy", &mero::discrete_problem::UFL_Greedy},
      {"UFL_Stingy", &mero::discrete_problem::UFL_Stingy},
      {"UFL_Interchange", &mero::discrete_problem::UFL_Interchange},
      {"UFL_Dualoc", &mero::discrete_problem::UFL_Dualoc}};
  for (const auto& a : algorithms) {
    mero::discrete_problem copy = problem;
    const auto start = std::chrono::steady_clock::now();
    const double value = (copy.*a.solve)();
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
    std::printf("%s %.6f %.3f\n", a.name, value, took.count());
    std::fflush(stdout);
  }
}
CPP
# The program's own link line, with the driver's object in place of main.
link="$(ninja -C "$tree" -t commands mero | tail -1)"
c++ -O2 -std=c++20 -I"$repo/src" -c "$work/ufl_values.cpp" -o "$work/ufl_values.o"
link="${link//src\/CMakeFiles\/mero.dir\/driver\/main.cpp.o/$work/ufl_values.o}"
link="${link//-o bin\/mero/-o $work/ufl_values}"
(cd "$tree" && eval "${link#: && }") >/dev/null

printf '| %-8s | %15s | %16s | %9s | %9s | %8s | %8s | %11s |\n' instance optimum "Dualoc value" \
  "Dualoc s" "mero s" "Greedy %" "Stingy %" "Interch. %"
printf '|%s|%s|%s|%s|%s|%s|%s|%s|\n' ---------- ----------------: -----------------: \
  ----------: ----------: ---------: ---------: ------------:
status=0
for name in "${instances[@]}"; do
  optimum="$(awk -v n="$name" '$1 == n { print $2 }' "$orlib/optimal.txt")"
  "$repo/scripts/orlib-ufl-to-mero" "$orlib/$name.txt" "$work/$name.dat"
  limit="${DUALOC_LIMIT:-3600}"
  timeout "$limit" "$work/ufl_values" "$work/$name.dat" >"$work/values" || true
  if grep -q '^UFL_Dualoc ' "$work/values"; then
    /usr/bin/time -f '%e' -o "$work/time" "$mero" -a UFL_Dualoc -d "$work/$name.dat" \
      --output=nowindowed,file="$work/report" >/dev/null
    grep -q '^end {result}$' "$work/report" || { echo "no report for $name" >&2; exit 1; }
  else
    echo "-" >"$work/time"
  fi
  awk -v n="$name" -v opt="$optimum" -v wall="$(cat "$work/time")" -v limit="$limit" '
    { value[$1] = $2; secs[$1] = $3 }
    function gap(a) { return sprintf("%.3f", 100 * (value[a] - opt) / opt) }
    END {
      # The published optima have three decimals, cut rather than rounded (cap101: .4375 is
      # listed as .437), so the value must lie within one unit of the last published digit.
      done = "UFL_Dualoc" in value
      d = value["UFL_Dualoc"] - opt
      mark = !done ? "not done" : (d < 0 ? -d : d) < 0.001 ? "" : " MISSED"
      shown = done ? sprintf("%16.4f", value["UFL_Dualoc"]) : sprintf("%16s", "")
      took = done ? sprintf("%9.3f", secs["UFL_Dualoc"]) : sprintf("> %7d", limit)
      printf "| %-8s | %15.3f | %s%s | %s | %9s | %8s | %8s | %11s |\n", n, opt, shown, mark,
        took, wall, gap("UFL_Greedy"), gap("UFL_Stingy"), gap("UFL_Interchange")
      exit mark != ""
    }' "$work/values" || status=1
done
exit $status

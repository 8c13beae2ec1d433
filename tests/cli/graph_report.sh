# Sourced by the cram tests of graph problems.
# solve NAME ARGS...: one run's name, classification, value and points on one line.
# status NAME ARGS...: what a run prints (both streams), followed by its exit status in brackets.
set -o pipefail
solve() {
  printf '%s: ' "$1"
  $MERO -a "$@" --output=nowindowed |
    grep -v -e '^end {' -e '^begin {\(result\|classification\|objective value\|graphpointset\)}' |
    paste -sd' '
}
status() {
  local out
  out=$($MERO -a "$@" --output=nowindowed 2>&1)
  echo "$out [$?]"
}

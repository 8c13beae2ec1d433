# Sourced by the cram tests of graph problems: `solve NAME ARGS...` runs mero on NAME and shows
# the name, then the classification, value and points of the report on one line.
set -o pipefail
solve() {
  printf '%s: ' "$1"
  $MERO -a "$@" --output=nowindowed |
    grep -v -e '^end {' -e '^begin {\(result\|classification\|objective value\|graphpointset\)}' |
    paste -sd' '
}

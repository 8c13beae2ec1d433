# Sourced by the cram tests of planar problems.
# solve ARGS...: one run's classification, value and points on one line. The begin lines dropped
# are those named in report_blocks (a grep alternation); line tests add "polygon" to it.
set -o pipefail
report_blocks=${report_blocks:-'result\|classification\|objective value\|polygonlist'}
solve() {
  $MERO "$@" --output=nowindowed |
    grep -v -e '^end {' -e "^begin {\($report_blocks\)}" |
    paste -sd' '
}

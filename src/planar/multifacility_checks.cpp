#include "kernel/error_handler.h"
#include "kernel/reporters.h"
#include "model/model_messages.h"
#include "planar/multifacility.h"

namespace mero {

void report_multifacility_error(const multifacility_message& m) {
  report_error(m.text, m.code, 1, windowed_mode);
}

void check_multifacility_data(const facilities& problem, int n, const matrix& V) {
  namespace msg = multifacility_messages;
  if (V.dim1() != V.dim2()) report_multifacility_error(msg::unequal_dimensions);
  if (V.dim1() != n) report_multifacility_error(msg::matrix_does_not_fit);
  if (problem.empty()) empty_list_error(model_messages::empty_list);
  if (problem.front().weight_dim() != n) report_multifacility_error(msg::weights_do_not_fit);
}

location new_facility(int j, double x, double y) { return location(2, 1, x, y, j); }

}  // namespace mero

#include "kernel/error_handler.h"
#include "kernel/reporters.h"
#include "model/model_messages.h"
#include "planar/multifacility.h"
#include "planar/planar_messages.h"

namespace mero {

void check_multifacility_data(const facilities& problem, int n, const matrix& V) {
  namespace msg = multifacility_messages;
  if (V.dim1() != V.dim2()) report_error(msg::unequal_dimensions);
  if (V.dim1() != n) report_error(msg::matrix_does_not_fit);
  if (problem.empty()) empty_list_error(model_messages::empty_list);
  if (problem.front().weight_dim() != n) report_error(msg::weights_do_not_fit);
}

location new_facility(int j, double x, double y) { return location(2, 1, x, y, j); }

}  // namespace mero

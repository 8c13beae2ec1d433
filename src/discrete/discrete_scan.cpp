#include "discrete/discrete_scan.h"

#include "discrete/discrete_messages.h"

namespace mero {

void discrete_scan::start(std::istream& input) {
  // Everything back to its initial value, then a fresh scanner state on input.
  *this = discrete_scan();
  reset(input, discrete_messages::syntax_default);
}

void discrete_scan::add_name(std::string name) {
  (current == block::demand ? demand_names : supply_names).push_back(std::move(name));
  name_seen = true;
}

void discrete_scan::complete_line() {
  std::list<location>& target = current == block::demand ? demand : supply;
  location& l = target.emplace_back(2, weight_count);
  for (std::size_t i = 0; i < line_coordinates.size(); ++i)
    l.coordinate_ref(static_cast<int>(i)) = line_coordinates[i];
  for (std::size_t i = 0; i < line_weights.size(); ++i)
    l.weight_ref(static_cast<int>(i)) = line_weights[i];
  if (!name_seen) add_name("");
  line_coordinates.clear();
  line_weights.clear();
  counter = 0;
  name_seen = false;
}

int discrete_scan::columns() const {
  return static_cast<int>(has_supply_block ? supply.size() : demand.size());
}

int discrete_scan::complete_row(int line) {
  if (row_entries == 0) return 0;
  if (rows >= static_cast<int>(demand.size()))
    return scan_stop(*this, discrete_messages::matrix_too_many_lines, {});
  if (row_entries != columns())
    return scan_stop(*this, discrete_messages::matrix_line_length, {line});
  ++rows;
  row_entries = 0;
  return 0;
}

int discrete_scan::end_of_matrix() {
  if (complete_row(line)) return 1;
  if (rows != static_cast<int>(demand.size()))
    return scan_stop(*this, discrete_messages::matrix_too_few_lines, {});
  return 0;
}

}  // namespace mero

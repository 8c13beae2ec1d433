#include "planar/single_facility_messages.h"

#include "kernel/reporters.h"

namespace mero {

void report_single_facility_error(const single_facility_message& m) {
  report_error(m.text, m.code, 1, windowed_mode);
}

}  // namespace mero

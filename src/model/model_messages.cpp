#include "model/model_messages.h"

#include "kernel/reporters.h"

namespace mero {

void report_model_error(const model_message& m) { report_error(m.text, m.code, 1, windowed_mode); }

}  // namespace mero

#pragma once
// Puts the result viewers into the run's hooks; the program calls it at its start.

namespace mero {

void install_viewers();

}  // namespace mero

#pragma once
// Puts the result viewers into the run's hooks; the window program does so at its start.

namespace mero {

void install_viewers();

}  // namespace mero

#pragma once
// Puts the result viewers into the run's hooks; the window module calls it when it is installed.

namespace mero {

void install_viewers();

}  // namespace mero

#include "driver/front_end.h"

#include <fstream>
#include <iostream>
#include <string>

namespace mero {

namespace {

// The script stands at ../tk/merofront seen from the program's folder, or from the current
// folder as the fallback.
std::string find_script(const char* program) {
  std::string path = program ? program : "";
  std::size_t slash = path.find_last_of('/');
  std::string beside = (slash == std::string::npos ? std::string() : path.substr(0, slash + 1)) +
                       "../tk/merofront";
  for (const std::string& candidate : {beside, std::string("../tk/merofront")})
    if (std::ifstream(candidate)) return candidate;
  return "";
}

}  // namespace

int start_front_end(int argc, char** argv) {
  std::string script = find_script(argc > 0 ? argv[0] : nullptr);
  if (script.empty()) {
    std::cerr << "Cannot find Tcl-script merofront.\n";
    return 0;
  }
  // The Tcl/Tk bridge that runs the script comes with the window layer.
  std::cerr << "mero: this build has no graphical front end to run " << script << '\n';
  return 1;
}

}  // namespace mero

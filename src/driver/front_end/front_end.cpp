#include "driver/front_end/front_end.h"

#include <tcl.h>
#include <tk.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

#include "driver/front_end/front_end_messages.h"

namespace mero {

namespace fm = front_end_messages;

namespace {

// The range of the generator the front end was written for; glibc's rand reaches 2^31 - 1, so
// only its low 15 bits are used and a number stays between a and b.
constexpr int rand_range = 32767;

// random a b: sets ranint to a + r / (32767 / (b - a)), both divisions on integers. A divisor of
// 0 (b = a, or b - a beyond 32767 either way) would stop the process; it is a Tcl error instead.
int random_command(ClientData, Tcl_Interp* interp, int argc, const char* argv[]) {
  if (argc != 3) {
    Tcl_SetResult(interp, const_cast<char*>(fm::wrong_args), TCL_STATIC);
    return TCL_ERROR;
  }
  const long long a = std::atoi(argv[1]);
  const long long b = std::atoi(argv[2]);
  const long long divisor = b == a ? 0 : rand_range / (b - a);
  if (divisor == 0) {
    Tcl_SetResult(interp, const_cast<char*>(fm::random_range), TCL_STATIC);
    return TCL_ERROR;
  }
  const long long r = std::rand() & rand_range;
  Tcl_SetVar(interp, "ranint", std::to_string(a + r / divisor).c_str(), 0);
  return TCL_OK;
}

// RestrInt file: inters is "0" first, and "1" when the figures of the file overlap. More than
// one argument is "wrong # args"; none, which would leave no file to read, is a Tcl error too.
int restrint_command(ClientData, Tcl_Interp* interp, int argc, const char* argv[]) {
  Tcl_SetVar(interp, "inters", "0", 0);
  if (argc > 2) {
    Tcl_SetResult(interp, const_cast<char*>(fm::wrong_args), TCL_STATIC);
    return TCL_ERROR;
  }
  if (argc < 2) {
    Tcl_SetResult(interp, const_cast<char*>(fm::restrint_no_file), TCL_STATIC);
    return TCL_ERROR;
  }
  if (restrictions_intersect(argv[1]) == 1) Tcl_SetVar(interp, "inters", "1", 0);
  return TCL_OK;
}

// The script stands at ../tk/merofront seen from the program's folder (the program's path up to
// its last slash), or from the current folder as the fallback.
std::string find_script(const char* program) {
  std::string path = program ? program : "";
  std::size_t slash = path.find_last_of('/');
  std::string beside =
      (slash == std::string::npos ? std::string() : path.substr(0, slash + 1)) + fm::script;
  for (const std::string& candidate : {beside, std::string(fm::script)})
    if (std::ifstream(candidate)) return candidate;
  return "";
}

}  // namespace

void create_front_end_commands(Tcl_Interp* interp) {
  Tcl_CreateCommand(interp, "RestrInt", restrint_command, nullptr, nullptr);
  Tcl_CreateCommand(interp, "random", random_command, nullptr, nullptr);
}

int start_front_end(int argc, char** argv) {
  Tcl_FindExecutable(argc > 0 ? argv[0] : nullptr);
  Tcl_Interp* interp = Tcl_CreateInterp();
  create_front_end_commands(interp);
  if (Tcl_Init(interp) != TCL_OK)
    std::fprintf(stderr, fm::tcl_init_failed, Tcl_GetStringResult(interp));
  if (Tk_Init(interp) != TCL_OK)
    std::fprintf(stderr, fm::tk_init_failed, Tcl_GetStringResult(interp));
  if (!Tk_MainWindow(interp)) {
    std::fprintf(stderr, "%s\n", Tcl_GetStringResult(interp));
    std::exit(1);
  }
  const std::string script = find_script(argc > 0 ? argv[0] : nullptr);
  if (script.empty()) {
    std::fputs(fm::no_script, stderr);
    return 0;
  }
  Tcl_EvalFile(interp, script.c_str());
  Tk_MainLoop();
  return 0;
}

}  // namespace mero

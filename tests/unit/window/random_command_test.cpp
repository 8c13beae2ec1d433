// The front end's random command on a plain Tcl interpreter: argument rules, ranges, and the
// ranges that would divide by zero.

#include <tcl.h>

#include <cstdlib>
#include <string>

#include "driver/front_end/front_end.h"
#include "driver/front_end/front_end_messages.h"
#include "test_support.h"

namespace mero {
namespace {

struct tcl_interp {
  Tcl_Interp* in = Tcl_CreateInterp();
  tcl_interp() { create_front_end_commands(in); }
  ~tcl_interp() { Tcl_DeleteInterp(in); }
  int eval(const std::string& script) { return Tcl_Eval(in, script.c_str()); }
  std::string result() const { return Tcl_GetStringResult(in); }
  int ranint() const { return std::atoi(Tcl_GetVar(in, "ranint", 0)); }
};

TEST(random_command, WrongNumberOfArguments) {
  tcl_interp t;
  for (const char* call : {"random", "random 5", "random 1 2 3"}) {
    EXPECT_EQ(t.eval(call), TCL_ERROR) << call;
    EXPECT_EQ(t.result(), "wrong # args");
  }
}

// The divisor 32767 / (b - a) is 0 for b = a and for |b - a| > 32767.
TEST(random_command, RangesThatWouldDivideByZeroAreErrors) {
  tcl_interp t;
  for (const char* call : {"random 1 1", "random 0 32768", "random 40000 0", "random x y"}) {
    EXPECT_EQ(t.eval(call), TCL_ERROR) << call;
    EXPECT_EQ(t.result(), front_end_messages::random_range);
  }
  EXPECT_EQ(t.eval("random 0 32767"), TCL_OK);
}

// a + r / (32767 / (b - a)) with r in [0, 32767]: for 0..10 the divisor is 3276 and the value at
// most 32767 / 3276 = 10 (reached for r >= 32760 only); downwards (10 to 0) the divisor is -3276
// and the value at least 0. Over 200000 draws both ends of each range are met.
TEST(random_command, ValuesStayInTheirRange) {
  tcl_interp t;
  struct range {
    const char* call;
    int low, high;
  };
  for (const range& r : {range{"random 0 10", 0, 10}, range{"random 10 0", 0, 10},
                         range{"random 3abc 7x", 3, 7}, range{"random -5 -3", -5, -3}}) {
    const std::string loop = std::string(
                                 "set lo 1000; set hi -1000; for {set i 0} {$i < 200000} "
                                 "{incr i} { ") +
                             r.call +
                             "; if {$ranint < $lo} {set lo $ranint}; "
                             "if {$ranint > $hi} {set hi $ranint} }; list $lo $hi";
    ASSERT_EQ(t.eval(loop), TCL_OK) << t.result();
    EXPECT_EQ(t.result(), std::to_string(r.low) + " " + std::to_string(r.high)) << r.call;
  }
}

// Tcl_SetVar without flags sets the variable where the command runs: inside a procedure, its own.
TEST(random_command, RanintIsSetWhereTheCommandRuns) {
  tcl_interp t;
  ASSERT_EQ(t.eval("proc draw {} { random 4 5; return $ranint }; draw"), TCL_OK);
  const int value = std::atoi(t.result().c_str());
  EXPECT_TRUE(value == 4 || value == 5);
  EXPECT_EQ(Tcl_GetVar(t.in, "ranint", TCL_GLOBAL_ONLY), nullptr);
}

}  // namespace
}  // namespace mero

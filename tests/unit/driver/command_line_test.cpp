#include "driver/command_line.h"

#include <cstdlib>
#include <fstream>
#include <sstream>

#include "driver/lpinfo.h"
#include "test_support.h"

namespace mero {
namespace {

run_request parse(std::vector<std::string> args) {
  windowed_mode = true;
  return parse_command_line(args);
}

TEST(command_line, value_forms_are_the_same) {
  for (auto args : std::vector<std::vector<std::string>>{{"-a=l1_sum", "-l", "f"},
                                                         {"-a:l1_sum", "-lf"},
                                                         {"-al1_sum", "-l=f"},
                                                         {"-a", "l1_sum", "-l:f"}}) {
    run_request r = parse(args);
    EXPECT_EQ(r.algorithm, 0);
    EXPECT_EQ(r.data_file, "f");
    EXPECT_TRUE(r.windowed);
  }
}

TEST(command_line, missing_values_and_unknown_options) {
  EXPECT_REPORT(parse({"-l", "-a", "x"}), 1002, "Missing value for option -l");
  EXPECT_REPORT(parse({"-a", "l1_sum", "-a", "l2_sum", "-l", "f"}), 1005,
                "Unrecognized option -al2_sum");
  EXPECT_REPORT(parse({"-l", "f", "-g", "g", "-a", "l1_sum"}), 1005, "Unrecognized option -gg");
  EXPECT_REPORT(parse({"x", "-l", "f"}), 1005, "Unrecognized option x");
  EXPECT_REPORT(parse({"--"}), 1006, "You have to specify an algorithm and a location file.");
  EXPECT_REPORT(parse({"--foo", "-a", "l1_sum"}), 1006,
                "You have to specify an algorithm and a location file.");
  // -a as the last argument takes an empty name.
  EXPECT_REPORT(parse({"-l", "f", "-a"}), 1007, "Illegal algorithm or missing data.");
}

TEST(command_line, output_lists) {
  run_request r = parse({"-a", "l1_sum", "-l", "f", "--output=a.txt,nowindowed,b.txt"});
  EXPECT_EQ(r.output_file, "b.txt");
  EXPECT_FALSE(r.windowed);
  EXPECT_FALSE(windowed_mode);
  r = parse({"-a", "l1_sum", "-l", "f", "--output", ",nowindowed,file=c,windowed"});
  EXPECT_EQ(r.output_file, "c");
  EXPECT_TRUE(r.windowed);
  r = parse({"-a", "l1_sum", "-l", "f", "--output:file=d"});
  EXPECT_EQ(r.output_file, "d");
  EXPECT_REPORT(parse({"-a", "l1_sum", "--output", "-l", "f"}), 1003,
                "Missing value for option --output.");
  EXPECT_REPORT(parse({"-a", "l1_sum", "-l", "f", "--output"}), 1003,
                "Missing value for option --output.");
  EXPECT_REPORT(parse({"--outputx"}), 1004,
                "Option --outputx is not a valid --output option.");
}

TEST(command_line, order_of_d_and_the_chains) {
  run_request r = parse({"-l", "data", "-d", "gauges", "-a", "gauge_median"});
  EXPECT_EQ(r.algorithm, 200);
  EXPECT_TRUE(r.have_gauge);
  EXPECT_EQ(r.gauge_file, "gauges");
  r = parse({"-d", "disc", "-a", "UFL_Dualoc"});
  EXPECT_TRUE(r.discrete_input);
  EXPECT_EQ(r.algorithm, 404);
  EXPECT_REPORT(parse({"-d", "gauges", "-l", "data", "-a", "gauge_median"}), 1005,
                "Unrecognized option -ldata");
  // -m takes the shared slot and selects chain N; -r after -m is refused.
  r = parse({"-l", "f", "-r", "restr", "-m", "matrix", "-a", "N_l1_sum_v1"});
  EXPECT_EQ(r.algorithm, 20);
  EXPECT_EQ(*r.second_file, "matrix");
  EXPECT_REPORT(parse({"-l", "f", "-m", "m", "-r", "r", "-a", "x"}), 1005,
                "Unrecognized option -rr");
  EXPECT_EQ(parse({"-l", "f", "-r", "r", "-a", "dir_median"}).algorithm, 160);
  EXPECT_EQ(parse({"-l", "f", "-a", "dir_median"}).algorithm, 100);
  EXPECT_REPORT(parse({"-l", "f", "-m", "m", "-a", "l1_sum"}), 1008,
                "Illegal algorithm or missing data.");
  EXPECT_REPORT(parse({"-l", "f", "-r", "r", "-a", "l1_sum"}), 1009,
                "Illegal algorithm or missing data.");
  EXPECT_REPORT(parse({"-l", "f", "-d", "g", "-a", "L_block_max_M3"}), 1010,
                "Illegal algorithm or missing data.");
  EXPECT_EQ(parse({"-l", "f", "-d", "g", "-a", "L_block_max_M4"}).algorithm, 356);
  EXPECT_EQ(parse({"-l", "f", "-d", "g", "-r", "r", "-a", "restr_gauge_center"}).algorithm, 211);
}

TEST(command_line, p_and_n_checks) {
  EXPECT_REPORT(parse({"-l", "f", "-a", "lp_sum"}), 1011, "Missing p-value for lp-algorithm.");
  EXPECT_REPORT(parse({"-g", "f", "-a", "N_median_greedy"}), 1012,
                "Missing number of new facilities for algorithms on graphs.");
  run_request r = parse({"-g", "f", "-a", "N_center_greedy"});  // not checked, deliberately
  EXPECT_EQ(r.algorithm, 133);
  EXPECT_FALSE(r.second_file.has_value());
  r = parse({"-g", "f", "-n", "3", "-a", "N_median_greedy"});
  EXPECT_EQ(*r.second_file, "3");
}

TEST(command_line, p_writes_lpinfo_at_once) {
  ::setenv("tmp", ::testing::TempDir().c_str(), 1);
  EXPECT_REPORT(parse({"-p=7", "-q"}), 1005, "Unrecognized option -q");
  std::ifstream in(lpinfo_path());
  std::stringstream text;
  text << in.rdbuf();
  EXPECT_EQ(text.str(), "7 0.0001 0.0001 50");
  parse({"-px", "-a", "lp_sum", "-l", "f"});  // atoi makes 0 of a non-number
  ASSERT_TRUE(read_lpinfo().has_value());
  EXPECT_EQ(read_lpinfo()->p, 0);
  EXPECT_EQ(read_lpinfo()->max_iterations, 50);
  ::unsetenv("tmp");
}

}  // namespace
}  // namespace mero

#include "driver/command_line.h"

#include "test_support.h"

namespace mero {
namespace {

run_request parse(std::vector<std::string> args) {
  windowed_mode = true;
  return parse_command_line(args);
}

TEST(command_line, output_lists) {
  // The rightmost argument of each kind counts.
  run_request r = parse({"-a", "l1_sum", "-l", "f", "--output=a.txt,nowindowed,b.txt"});
  EXPECT_EQ(r.output_file, "b.txt");
  EXPECT_FALSE(r.windowed);
  EXPECT_FALSE(windowed_mode);
  r = parse({"-a", "l1_sum", "-l", "f", "--output", ",nowindowed,file=c,windowed"});
  EXPECT_EQ(r.output_file, "c");
  EXPECT_TRUE(r.windowed);
  EXPECT_EQ(parse({"-a", "l1_sum", "-l", "f", "--output:file=d"}).output_file, "d");
}

TEST(command_line, the_files_select_the_chain) {
  const std::vector<std::pair<std::vector<std::string>, int>> runs{
      {{"-l", "f", "-a", "dir_median"}, 100},
      {{"-l", "f", "-r", "r", "-a", "dir_median"}, 160},
      {{"-l", "f", "-d", "g", "-a", "L_block_max_M4"}, 356},
      {{"-l", "f", "-d", "g", "-r", "r", "-a", "restr_gauge_center"}, 211},
      {{"-g", "f", "-a", "N_center_greedy"}, 133},  // asks for no -n, deliberately
  };
  for (const auto& [args, algorithm] : runs) EXPECT_EQ(parse(args).algorithm, algorithm);
  run_request r = parse({"-l", "data", "-d", "gauges", "-a", "gauge_median"});
  EXPECT_EQ(r.algorithm, 200);
  EXPECT_EQ(r.gauge_file, "gauges");
  r = parse({"-d", "disc", "-a", "UFL_Dualoc"});
  EXPECT_TRUE(r.discrete_input);
  EXPECT_EQ(r.algorithm, 404);
  // -r, -m and -n share one slot, the last one wins; -m selects chain N.
  r = parse({"-l", "f", "-r", "restr", "-m", "matrix", "-a", "N_l1_sum_v1"});
  EXPECT_EQ(r.algorithm, 20);
  EXPECT_EQ(*r.second_file, "matrix");
  EXPECT_FALSE(parse({"-g", "f", "-a", "N_center_greedy"}).second_file.has_value());
  // After -d, -l is no option any more; after -m, -r is none.
  EXPECT_REPORT(parse({"-d", "gauges", "-l", "data", "-a", "gauge_median"}), 1005,
                "Unrecognized option -ldata");
  EXPECT_REPORT(parse({"-l", "f", "-m", "m", "-r", "r", "-a", "x"}), 1005,
                "Unrecognized option -rr");
}

}  // namespace
}  // namespace mero

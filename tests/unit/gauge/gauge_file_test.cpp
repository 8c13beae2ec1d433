#include "gauge/gauge_file.h"

#include <unistd.h>

#include <cstdio>
#include <fstream>

#include "gauge/gauge_messages.h"
#include "test_support.h"

namespace mero::testing {
namespace {

namespace msg = gauge_messages;

struct gauge_temp_file {
  explicit gauge_temp_file(const std::string& text) { std::ofstream(path) << text; }
  ~gauge_temp_file() { std::remove(path.c_str()); }
  static inline int counter = 0;
  const std::string path = ::testing::TempDir() + "gauge_file_test_" + std::to_string(::getpid()) +
                           "_" + std::to_string(counter++) + ".gauge";
};

TEST(gauge_file, list_and_single_forms) {
  gauge_temp_file list(
      "// two gauges\nbegin {polygaugelist}\nbegin {polygauge}\n1 0\n0 1\n-1 0\n0 -1\n"
      "end {polygauge}\nBEGIN { polygauge }\n2e0 0\n-1 +1\n-1.0 -1.\nend {polygauge}\n"
      "end {polygaugelist}\nwhatever follows\n");
  const std::vector<polygauge> two = read_polygauges(list.path);
  ASSERT_EQ(two.size(), 2u);
  EXPECT_EQ(two[1].extreme_points(),
            (std::vector<point>{point(2, 0), point(-1, 1), point(-1, -1)}));
  EXPECT_DOUBLE_EQ(two[0].dist(point(0, 0), point(1, 1)), 2.0);

  gauge_temp_file single("oneLPGauge\n.5 0\n0 .5\n-1 0 /* a comment */\n0 -1");
  const std::vector<polygauge> one = read_polygauges(single.path);
  ASSERT_EQ(one.size(), 1u);
  EXPECT_EQ(one[0].extreme_points().front(), point(0.5, 0));

  gauge_temp_file mixed("oneMixGauge\n1 0 1\n0.7 0.7 1\n0 1 0\n-1 0 0\n0 -1 0\n");
  const std::vector<mixgauge> m = read_mixgauges(mixed.path);
  ASSERT_EQ(m.size(), 1u);
  EXPECT_EQ(m[0].cones(), 4);
  EXPECT_EQ(m[0].conetyps(), (std::vector<bool>{true, false, false, false}));

  gauge_temp_file mixed_list(
      "begin {mixgaugelist}\nbegin {mixgauge}\n1 0 0\n0 1 2.5\n-1 0 0\n0 -1 0\nend {mixgauge}\n"
      "end {mixgaugelist}\n");
  EXPECT_EQ(read_mixgauges(mixed_list.path).front().conetyps(),
            (std::vector<bool>{false, true, false, false}));
  EXPECT_REPORT(read_polygauges(mixed_list.path), msg::wrong_file.code, msg::wrong_file.text);
  EXPECT_REPORT(read_mixgauges(single.path), msg::wrong_file.code, msg::wrong_file.text);
}

TEST(gauge_file, messages_of_mixed_files) {
  gauge_temp_file bad(
      "begin {mixgaugelist}\nbegin {polygauge}\nbegin {mixgauge}\n1 0\n0 1 0 7\n-1 0 0\n"
      "0 -1 0\nend {mixgauge}\nend {mixgaugelist}\n");
  EXPECT_REPORT(read_mixgauges(bad.path), msg::file_messages.code,
                "'begin {mixgauge}' or 'end {mixgaugelist}' expected in line 2, found "
                "\"begin {polygauge}\" instead.\n"
                "Illegal linebreak in gauge-file at line 4.\n"
                "too many numbers in line 5");
  gauge_temp_file sizes("oneMixGauge\n1 0 0\n0 1 0\n-1 0 0\n0 -1");
  EXPECT_REPORT(read_mixgauges(sizes.path), msg::file_messages.code,
                "unexpected end of gauge-file in line 5");
  EXPECT_REPORT(read_polygauges(::testing::TempDir() + "no/such.gauge"), msg::cannot_open.code,
                msg::cannot_open.text);
}

}  // namespace
}  // namespace mero::testing

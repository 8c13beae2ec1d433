#include "model/location_file.h"

#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <sstream>

#include "model/location_file_messages.h"
#include "test_support.h"

namespace mero {
namespace {

// A file of the given text in the temporary directory, removed again at the end of the test.
class temp_file {
 public:
  explicit temp_file(const std::string& text)
      : path_(::testing::TempDir() + "location_file_test_" + std::to_string(::getpid()) + "_" +
              std::to_string(counter_++) + ".loc") {
    std::ofstream(path_) << text;
  }
  ~temp_file() { std::remove(path_.c_str()); }
  const std::string& path() const { return path_; }

 private:
  static inline int counter_ = 0;
  std::string path_;
};

facilities read(const std::string& text) {
  temp_file file(text);
  facilities f;
  read_location_file(file.path(), f);
  return f;
}

void expect_syntax_error(const std::string& text, const std::string& message) {
  temp_file file(text);
  facilities f;
  EXPECT_REPORT(read_location_file(file.path(), f), 1504, message);
}

TEST(location_file, reads_the_example_with_two_weights) {
  facilities f = read(
      "begin {location} [2,2]\n"
      "// comment line\n"
      "0.5 1 2 L_inf [depot]\n"
      "3 4.25 1 1\n"
      "end {location}\n");
  ASSERT_EQ(f.size(), 2u);
  EXPECT_EQ(f.front(), location(2.0, 2.0, 0.5, 1.0, 2.0, 1e50));
  EXPECT_EQ(f.back(), location(2.0, 2.0, 3.0, 4.25, 1.0, 1.0));
  EXPECT_EQ(f.names, (std::list<std::string>{"depot", ""}));
}

TEST(location_file, header_forms) {
  facilities f = read("BEGIN{LOCATION}\n1 2 3\nEND\n");
  EXPECT_EQ(f.front(), location(2.0, 1.0, 1.0, 2.0, 3.0));
  f = read("begin { location } [3]\n1 2 3 4 [p]\nend\n");
  EXPECT_EQ(f.front(), location(3.0, 1.0, 1.0, 2.0, 3.0, 4.0));
  f = read("begin {location} [1,3]\n-1.5e1 1 2 3\nend\n");
  EXPECT_EQ(f.front(), location(1.0, 3.0, -15.0, 1.0, 2.0, 3.0));
}

TEST(location_file, a_file_without_header_is_empty) {
  facilities f = read("nothing to see\n");
  EXPECT_TRUE(f.empty());
}

TEST(location_file, replaces_what_was_there) {
  temp_file file("begin {location}\n1 2 3\nend\n");
  facilities f;
  f.push_back(location(2, 1));
  f.names = {"old", "older"};
  read_location_file(file.path(), f);
  ASSERT_EQ(f.size(), 1u);
  EXPECT_EQ(f.names, std::list<std::string>{""});
}

TEST(location_file, syntax_errors_carry_the_rest_of_the_line) {
  namespace t = location_file_messages;
  expect_syntax_error("begin {location} [3,2]\n1 2 3 4 5 [a] [b]\n",
                      "Second name (\"b\") found in location file at line 2.");
  expect_syntax_error("begin {location}\n1 2 3\n4 x5 6 [q]\n",
                      "Coordinate #2 expected in location file at line 3, found \"x5 6 [q]\" "
                      "instead.");
  expect_syntax_error("begin {location}\n1 2 3 4\n",
                      "Name of location expected in location file at line 2, found \"4\" "
                      "instead.");
  expect_syntax_error("begin {location} [2,1]\n1 2 a\n",
                      "Weight #1 expected in location file at line 2, found \"a\" instead");
}

TEST(location_file, weight_dimension_zero_still_reads_one_weight) {
  temp_file file("begin {location} [2,0]\n1 2 3\nend\n");
  facilities f;
  EXPECT_REPORT(read_location_file(file.path(), f), 1209, "Index out of range.");
}

TEST(location_file, gauge_numbers) {
  temp_file file(
      "begin {location}\n"
      "1 2 3 { 2 } [a]\n"
      "4 5 6 {-1}\n"
      "7 8 9 [c]\n"
      "end\n");
  facilities f;
  std::vector<int> gauges{99};
  read_gauge_location_file(file.path(), f, gauges);
  ASSERT_EQ(f.size(), 3u);
  EXPECT_EQ(gauges, (std::vector<int>{2, -1}));
  EXPECT_EQ(f.names, (std::list<std::string>{"a", "", "c"}));
  temp_file bad("begin {location}\n1 2 3 x\n");
  EXPECT_REPORT(read_gauge_location_file(bad.path(), f, gauges), 1504,
                "Number of Gauge expected  at line 2, found \"x\" instead.");
}

TEST(location_file, missing_file) {
  facilities f;
  EXPECT_REPORT(read_location_file("/nonexistent/dir/x.loc", f), 1503, "Can't open file!");
  EXPECT_REPORT(read_location_file(::testing::TempDir(), f), 1503, "Can't open file!");
}

TEST(location_file, writer_output_reads_back_identically) {
  facilities f;
  f.push_back(location(2.0, 2.0, 0.5, -3.0, 1.0, 1e50));
  f.push_back(location(2.0, 2.0, 123456.0, 1e-5, 0.0, 2.5));
  f.push_back(location(2.0, 2.0, -7.0, 8.0, 3.0, 4.0));
  f.names = {"depot one", ""};  // the third location has no entry in names
  std::ostringstream out;
  write_locations(out, f);
  EXPECT_EQ(out.str(),
            "begin {location} [2,2]\n"
            "0.5 -3  1 1e+50  [depot one]\n"
            "123456 1e-05  0 2.5  []\n"
            "-7 8  3 4  []\n"
            "end {location}\n");
  facilities back = read(out.str());
  EXPECT_EQ(static_cast<std::list<location>&>(back), static_cast<std::list<location>&>(f));
  EXPECT_EQ(back.names, (std::list<std::string>{"depot one", "", ""}));
}

TEST(location_file, writer_refuses_brackets_and_empty_lists) {
  facilities f;
  std::ostringstream out;
  EXPECT_KERNEL_ERROR(write_locations(out, f), "dlist::head(): empty list");
  f.push_back(location(2.0, 1.0, 1.0, 1.0, 1.0));
  f.names = {"a[1]"};
  try {
    write_locations(out, f);
    ADD_FAILURE() << "no message";
  } catch (const testing::reported& r) {
    EXPECT_EQ(r.what.what, report::kind::message);
    EXPECT_FALSE(r.what.go_on);
    EXPECT_EQ(r.what.text, "Illegal brackets in location name\"a[1]\" replaced by parentheses");
  }
  EXPECT_REPORT(write_locations(std::string("/nonexistent/dir/out.loc"), f), 1512,
                "Can't open file !");
}

}  // namespace
}  // namespace mero

// The location file: what the reader builds, one bad file per message, and the writer's form.

#include "model/location_file.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <sstream>

#include "test_support.h"

namespace mero {
namespace {

// A file of the given text in the temporary directory, removed again when it goes out of scope.
struct temp_file {
  explicit temp_file(const std::string& text) { std::ofstream(path) << text; }
  ~temp_file() { std::remove(path.c_str()); }
  static inline int counter = 0;
  const std::string path = ::testing::TempDir() + "location_file_test_" +
                           std::to_string(::getpid()) + "_" + std::to_string(counter++) + ".loc";
};

facilities read(const std::string& text) {
  temp_file file(text);
  facilities f;
  read_location_file(file.path, f);
  return f;
}

TEST(location_file, reads_weights_names_and_header_forms) {
  facilities f = read(
      "begin {location} [2,2]\n// comment line\n0.5 1 2 L_inf [depot]\n3 4.25 1 1\n"
      "end {location}\n");
  ASSERT_EQ(f.size(), 2u);
  EXPECT_EQ(f.front(), location(2.0, 2.0, 0.5, 1.0, 2.0, 1e50));
  EXPECT_EQ(f.back(), location(2.0, 2.0, 3.0, 4.25, 1.0, 1.0));
  EXPECT_EQ(f.names, (std::list<std::string>{"depot", ""}));
  EXPECT_EQ(read("BEGIN{LOCATION}\n1 2 3\nEND\n").front(), location(2.0, 1.0, 1.0, 2.0, 3.0));
  EXPECT_EQ(read("begin { location } [3]\n1 2 3 4 [p]\nend\n").front(),
            location(3.0, 1.0, 1.0, 2.0, 3.0, 4.0));
  EXPECT_EQ(read("begin {location} [1,3]\n-1.5e1 1 2 3\nend\n").front(),
            location(1.0, 3.0, -15.0, 1.0, 2.0, 3.0));
  EXPECT_TRUE(read("nothing to see\n").empty());
  EXPECT_REPORT(read_location_file("/nonexistent/dir/x.loc", f), 1503, "Can't open file!");
  EXPECT_REPORT(read_location_file(::testing::TempDir(), f), 1503, "Can't open file!");
}

TEST(location_file, replaces_what_was_there) {
  temp_file file("begin {location}\n1 2 3\nend\n");
  facilities f;
  f.push_back(location(2, 1));
  f.names = {"old", "older"};
  read_location_file(file.path, f);
  ASSERT_EQ(f.size(), 1u);
  EXPECT_TRUE(f.names.empty());  // a file without names leaves none
}

// A file of several input blocks, whose first name comes late: every location in file order,
// the names of the earlier lines filled in as "".
TEST(location_file, large_files_and_late_names) {
  std::string text = "begin {location} [2,1]\n";
  const int n = 40000, named = 30000;
  for (int i = 0; i < n; ++i)
    text += std::to_string(i) + ".5 -" + std::to_string(i) + " 1" + (i == named ? " [late]" : "") +
            "\n";
  facilities f = read(text + "end {location}\n");
  ASSERT_EQ(f.size(), static_cast<std::size_t>(n));
  for (int i = 0; i < n; i += 997) EXPECT_EQ(f[i], location(2.0, 1.0, i + 0.5, -i, 1.0));
  EXPECT_EQ(f.back(), location(2.0, 1.0, n - 0.5, 1.0 - n, 1.0));
  ASSERT_EQ(f.names.size(), static_cast<std::size_t>(n));
  EXPECT_EQ(*std::next(f.names.begin(), named), "late");
  EXPECT_EQ(std::count(f.names.begin(), f.names.end(), ""), n - 1);
}

// Each file holds one fault; the message joins the offending token and the rest of its line.
TEST(location_file, every_syntax_error_has_its_message) {
  const struct {
    const char* text;
    const char* message;
  } cases[] = {
      {"begin {location} [0,1]\n1 2\n", "Dimension too small in location file at line 1."},
      {"begin {location} [two,1]\n",
       "Dimension expected in location file at line 1, found \"two,1]\" instead."},
      {"begin {location} [2;1]\n",
       "Weight dimension expected in location file at line 1, found \";1]\" instead."},
      {"begin {location} [2,-1]\n",
       "Weight dimension expected in location file at line 1, found \"-1]\" instead."},
      {"begin {location} [2,1} x\n",
       "Closing bracket expected in location file at line 1, found \"} x\" instead."},
      // A coordinate owns the blank behind it, so the last one cannot end its line.
      {"begin {location}\n1 2\nend\n",
       "Coordinate #2 expected in location file at line 2, found \"2\" instead."},
      {"begin {location}\n1 2 3\n4 x5 6 [q]\n",
       "Coordinate #2 expected in location file at line 3, found \"x5 6 [q]\" instead."},
      // No closing full stop in the weight message.
      {"begin {location}\n1 2 [a]\n",
       "Weight #1 expected in location file at line 2, found \"[a]\" instead"},
      {"begin {location} [2,2]\n1 2 3 heavy [a]\n",
       "Weight #2 expected in location file at line 2, found \"heavy [a]\" instead"},
      {"begin {location} [3,2]\n1 2 3 4 5 [a] [b]\n",
       "Second name (\"b\") found in location file at line 2."},
      {"begin {location}\n1 2 3 [a] 4 5\n",
       "End of line expected in location file at line 2, found \"4 5\" instead."},
      {"begin {location}\n1 2 3 a\n",
       "Name of location expected in location file at line 2, found \"a\" instead."},
      {"begin {location}\n1 2 3 [a]\n\n4 5 6 [b]\n",
       "Illegal linebreak in location file at line 3."},
      // A block comment, unlike a line comment, does not forgive the line end after it.
      {"begin {location}\n1 2 3 [a]\n/* no flag */\n4 6 1 [b]\n",
       "Illegal linebreak in location file at line 3."},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.text);
    EXPECT_REPORT(read(c.text), 1504, c.message);
  }
  // A weight dimension of 0 still reads one weight, which then has no place to go.
  EXPECT_REPORT(read("begin {location} [2,0]\n1 2 3\nend\n"), 1209, "Index out of range.");
}

// A number whose value would be infinite ends the read at its line, before any later error; one
// that only underflows reads as what atof makes of it.
TEST(location_file, numbers_beyond_the_double_range) {
  EXPECT_REPORT(read("begin {location}\n1 2 3\n4 1e309 6\n7 8 x\n"), 1504,
                "Number 1e309 at line 3 is beyond the range of a double.");
  EXPECT_REPORT(read("begin {location}\n1 2 -2e308\nend\n"), 1504,
                "Number -2e308 at line 2 is beyond the range of a double.");
  facilities f = read("begin {location}\n1e-400 1.7e308 1\nend\n");
  EXPECT_EQ(f.front().coordinate(0), 0.0);
  EXPECT_EQ(f.front().coordinate(1), 1.7e308);
}

// Bytes above 127 (a UTF-8 name, stray bytes before the header, in a number's place) read as
// any other character: kept in a name, passed through before the header, quoted in a message.
TEST(location_file, bytes_above_127) {
  facilities f = read("\xfe\xff" "begin {location}\n1 2 3 [Z\xc3\xbcrich]\n4 5 6\nend\n");
  EXPECT_EQ(f.names, (std::list<std::string>{"Z\xc3\xbcrich", ""}));
  EXPECT_EQ(f.back(), location(2.0, 1.0, 4.0, 5.0, 6.0));
  EXPECT_REPORT(read("begin {location}\n1 2 3\n4 \xff" "5 6\nend\n"), 1504,
                "Coordinate #2 expected in location file at line 3, found \"\xff" "5 6\" instead.");
  EXPECT_REPORT(read("begin {location}\n1 2 3 \xe9\n"), 1504,
                "Name of location expected in location file at line 2, found \"\xe9\" instead.");
}

TEST(location_file, gauge_numbers) {
  temp_file file("begin {location}\n1 2 3 { 2 } [a]\n4 5 6 {-1}\n7 8 9 [c]\nend\n");
  facilities f;
  std::vector<int> gauges{99};
  read_gauge_location_file(file.path, f, gauges);
  ASSERT_EQ(f.size(), 3u);
  EXPECT_EQ(gauges, (std::vector<int>{2, -1}));
  EXPECT_EQ(f.names, (std::list<std::string>{"a", "", "c"}));
  temp_file bad("begin {location}\n1 2 3 x\n");
  EXPECT_REPORT(read_gauge_location_file(bad.path, f, gauges), 1504,
                "Number of Gauge expected  at line 2, found \"x\" instead.");
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
            "begin {location} [2,2]\n0.5 -3  1 1e+50  [depot one]\n123456 1e-05  0 2.5  []\n"
            "-7 8  3 4  []\nend {location}\n");
  facilities back = read(out.str());
  EXPECT_EQ(static_cast<std::vector<location>&>(back), static_cast<std::vector<location>&>(f));
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

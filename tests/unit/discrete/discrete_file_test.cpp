// The discrete file: what the reader builds, one bad input per message, and the writer's form.

#include "discrete/discrete_file.h"

#include <gtest/gtest.h>

#include <sstream>

#include "discrete/discrete_problem.h"
#include "test_support.h"

namespace mero {
namespace {

discrete_problem read_text(const std::string& text) {
  std::istringstream in(text);
  discrete_problem p;
  p.read(in);
  return p;
}

std::vector<double> weights_of(const std::list<location>& points, int column) {
  std::vector<double> w;
  for (const location& l : points) w.push_back(l.weight(column));
  return w;
}

// A // comment forgives the line end after it, so a location line may end in one and a comment
// line may stand between points; a block comment may stand between numbers.
const char* const with_supply =
    "text before the file is skipped\nBEGIN {Discrete} // header\n"
    "begin {demand}\n0 0 3 [a]\n// a comment line between two points\n2.5 1 L_INF // no name\n"
    "end {demand}\nbegin {supply}\n\n2\n1 1 9 7 [s one]\n5 1 1e1 0 [s2]\n4 3 L_INF 1 []\n"
    "end {supply}\nbegin {costmatrix}\n6 18 l_inf\n1 /* inside */ 3 4\nend {costmatrix}\n"
    "anything after the matrix is not read [\n";

TEST(discrete_file, reads_demand_supply_and_matrix) {
  const discrete_problem p = read_text(with_supply);
  EXPECT_FALSE(p.supply_is_demand);
  ASSERT_EQ(p.demand.size(), 2u);
  ASSERT_EQ(p.supply.size(), 3u);
  EXPECT_EQ(p.demand.back().coordinate(0), 2.5);
  EXPECT_EQ(weights_of(p.demand, 0), (std::vector<double>{3, 1e50}));
  EXPECT_EQ(weights_of(p.supply, 0), (std::vector<double>{9, 10, 1e50}));
  EXPECT_EQ(weights_of(p.supply, 1), (std::vector<double>{7, 0, 1}));  // kept, not a cost
  EXPECT_EQ(p.demand_names, (std::list<std::string>{"a", ""}));
  EXPECT_EQ(p.supply_names, (std::list<std::string>{"s one", "s2", ""}));
  ASSERT_EQ(p.cost.dim1(), 2);
  ASSERT_EQ(p.cost.dim2(), 3);
  EXPECT_EQ(p.cost(0, 2), 1e50);
  EXPECT_EQ(p.cost(1, 0), 1.0);
  EXPECT_EQ(p.cost(1, 2), 4.0);
  EXPECT_EQ(p.assignment.dim1(), 2);
  EXPECT_TRUE(p.opt.empty());
}

// The writer's form, and its deliberate asymmetry: the reader takes the first coordinate of the
// first supply line as the weight count.
TEST(discrete_file, writes_its_own_form) {
  const discrete_problem p = read_text(with_supply);
  std::ostringstream out;
  p.write(out);
  EXPECT_EQ(out.str(),
            "begin {discrete}\nbegin {demand}\n0 0  3  [a]\n2.5 1  1e+50  []\nend {demand}\n"
            "begin {supply}\n1 1  9 7  [s one]\n5 1  10 0  [s2]\n4 3  1e+50 1  []\n"
            "end {supply}\nbegin {costmatrix}\n6 18 1e+50 \n1 3 4 \nend {costmatrix}\n"
            "end {discrete}\n");
  // Line 7 starts with "1 ": n = 1, and the rest of the line is where its end was expected.
  EXPECT_REPORT(read_text(out.str()), 3107,
                "End of line expected in discrete file at line 7, found \"1  9 7  [s one]\" "
                "instead.");
}

TEST(discrete_file, every_syntax_error_has_its_message) {
  const std::string head = "begin {discrete}\nbegin {demand}\n";
  const struct {
    const char* text;
    const char* message;
  } cases[] = {
      {"0 x 1\n", "Coordinate #2 expected in discrete file at line 3, found \"x 1\" instead."},
      {"0 1\n", "Coordinate #2 expected in discrete file at line 3, found \"1\" instead."},
      {"0 1 w\n", "Weight #1 expected in discrete file at line 3, found \"w\" instead"},
      {"0 1 2 [a] [b]\n", "Second name (\"b\") found in discrete file at line 3."},
      {"0 1 2 5 [a]\n",
       "Name of location expected in discrete file at line 3, found \"5 [a]\" instead."},
      {"0 1 2 [a] 5\n", "End of line expected in discrete file at line 3, found \"5\" instead."},
      {"0 1 \n", "Illegal linebreak in discrete file at line 3."},
      {"0 1 2\n\n", "Illegal linebreak in discrete file at line 4."},
      {"0 1 2\nend {supply}\n",
       "Coordinate #1 expected in discrete file at line 4, found \"end {supply}\" instead."},
      {"0 1 2\nend {demand}\nbegin {matrix}\n",
       "'Begin {supply} [x]' or 'Begin {costmatrix}' expected in discrete file at line 5, "
       "found \"begin {matrix}\" instead"},
      {"0 1 2\nend {demand}\nbegin {supply} two\n",
       "Dimension (1 or 2 possible) expected in discrete file at line 5, found \"two\" instead."},
      {"0 1 2\nend {demand}\nbegin {supply} 3\n",
       "Dimension between 1 or 2 expected in discrete file at line 5, found \"3\" instead"},
      {"0 1 2\nend {demand}\nbegin {supply} 1 x\n",
       "End of line expected in discrete file at line 5, found \"x\" instead."},
      {"0 1 2\nend {demand}\nbegin {supply} 1\n1 1 1\nend {supply}\nend {discrete}\n",
       "'begin {costmatrix}' expected in line 8"},
      {"0 1 2\n1 1 1\nend {demand}\nbegin {costmatrix}\n1 2\n3\nend {costmatrix}\n",
       "Number of Entries in costmatrix line 8 does not match dimension."},
      {"0 1 2\nend {demand}\nbegin {costmatrix}\n1\n2\nend {costmatrix}\n",
       "Number of lines in costmatrix  does not match number of demand-points."},
      {"0 1 2\n1 1 1\nend {demand}\nbegin {costmatrix}\n1 2\nend {costmatrix}\n",
       "Number of lines in costmatrix  does not match dimension."},
      {"0 1 2\nend {demand}\nbegin {costmatrix}\n1 two\n", "unexpected text  in line 6: two"},
      {"0 1 2\nend {demand}\n", "Unexpected end of discrete file at line 5."},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.text);
    EXPECT_REPORT(read_text(head + c.text), 3107, c.message);
  }
}

TEST(discrete_file, empty_files_and_files_that_cannot_be_opened) {
  // A file without "begin {discrete}" is an empty problem, which the solvers refuse.
  EXPECT_TRUE(read_text("nothing here\n/* begin {discrete} */\n").demand.empty());
  discrete_problem p;
  EXPECT_REPORT(read_discrete_file("/nonexistent/discrete.dat", p), 3106, "Can't open file!");
  EXPECT_REPORT(read_discrete_file("/", p), 3106, "Can't open file!");
  EXPECT_REPORT(write_discrete_file("/nonexistent/out.dat", p), 3103, "Can't open file !");
}

}  // namespace
}  // namespace mero

// The graph and discrete result viewers: their result texts and saved files against lines worked
// out by hand, the layout of graphs without coordinates, and the windows themselves on the
// virtual display, driven through the layer's interpreter.

#include <tcl.h>

#include <cmath>
#include <fstream>
#include <sstream>

#include "kernel/window/tk_window.h"
#include "network/graph_file_io.h"
#include "test_support.h"
#include "viewer/discrete_viewer.h"
#include "viewer/graph_layout.h"
#include "viewer/graph_results.h"
#include "viewer/graph_viewer.h"

namespace mero {
namespace {

const std::string examples = std::string(MERO_SOURCE_DIR) + "/examples/";

location_graph nc_graph(int nodes, const std::vector<std::pair<int, int>>& edges) {
  location_graph g;
  std::vector<node> v;
  for (int i = 0; i < nodes; ++i) v.push_back(g.new_node(node_weights{{1.0}, {}}));
  for (auto [a, b] : edges) g.new_edge(v[a], v[b], 1.0);
  return g;
}

double gap(const std::vector<point>& x, int a, int b) { return x[a].distance(x[b]); }

// A path of five nodes lies stretched out at one unit per edge; two leaves of one node do not
// meet; the same graph always gives the same places.
TEST(graph_layout, PathStretchesOutAndLeavesPart) {
  const location_graph path = nc_graph(5, {{0, 1}, {1, 2}, {2, 3}, {3, 4}});
  const std::vector<point> x = layout_graph(path);
  ASSERT_EQ(x.size(), 5u);
  for (int i = 0; i < 4; ++i) EXPECT_NEAR(gap(x, i, i + 1), 1.0, 0.05) << i;
  EXPECT_NEAR(gap(x, 0, 4), 4.0, 0.1);
  EXPECT_EQ(layout_graph(path), x);
  const std::vector<point> star = layout_graph(nc_graph(4, {{0, 1}, {0, 2}, {0, 3}}));
  for (int a = 1; a < 4; ++a)
    for (int b = a + 1; b < 4; ++b) EXPECT_GT(gap(star, a, b), 1.2) << a << b;
  EXPECT_TRUE(layout_graph(nc_graph(0, {})).empty());
}

// A 30 x 30 grid (900 nodes): neighbours about one unit apart, no two nodes on one place, and
// the two far corners about the 58 hops of their path apart, in the plane of the picture.
TEST(graph_layout, GridOfNineHundredNodes) {
  std::vector<std::pair<int, int>> edges;
  for (int r = 0; r < 30; ++r)
    for (int c = 0; c < 30; ++c) {
      if (c < 29) edges.push_back({30 * r + c, 30 * r + c + 1});
      if (r < 29) edges.push_back({30 * r + c, 30 * (r + 1) + c});
    }
  const std::vector<point> x = layout_graph(nc_graph(900, edges));
  double longest_edge = 0.0, closest = 1e9;
  for (auto [a, b] : edges) longest_edge = std::max(longest_edge, gap(x, a, b));
  for (int a = 0; a < 900; a += 7)
    for (int b = 0; b < 900; ++b)
      if (a != b) closest = std::min(closest, gap(x, a, b));
  EXPECT_LT(longest_edge, 1.5);
  EXPECT_GT(closest, 0.5);
  EXPECT_GT(gap(x, 0, 899), 0.6 * 58);
}

struct bus_line {
  location_graph g;
  facilities places;
  bus_line() { read_graph(examples + "bus_line.graph", g, places); }
};

const char* const bus_graph_file =
    "begin {merograph} \n"
    "begin {location} [2,1]\n"
    "0 0  1  [Mill]\n"
    "1 0  1  [Market]\n"
    "2 0  1  [Church]\n"
    "3 0  1  [School]\n"
    "4 0  1  [Station]\n"
    "end {location}\n"
    "begin {adjlist}\n"
    "1 2 1\n"
    "2 3 1\n"
    "3 4 1\n"
    "4 5 1\n"
    "end {adjlist}\n"
    "end {merograph}\n";

// A node, a whole edge and a point a quarter of the way from School (4) to Station (5), at (3.25,
// 0); the value 6 on every line.
TEST(graph_results, OneObjective) {
  bus_line b;
  b.g.optima = {{2, 2, 0.0}, {0, 1, 0.0}, {3, 4, 0.25}};
  const graph_scene scene{"1|G|.|d(V,V)|sum", &b.g, &b.places, 6.0, nullptr};
  const std::vector<std::string> expected{
      "OPTIMUM:                            OBJECTIVE VALUE:",
      "Node [3] (   2.000 ,   0.000)                   6.000",
      "Node [1][2] (   0.000 ,   0.000)                   6.000",
      "Edge [4][5] 0.25 (   3.250 ,   0.000)                   6.000"};
  EXPECT_EQ(graph_result_lines(scene, node_positions(scene)), expected);
  std::ostringstream saved;
  write_graph_results(saved, scene);
  EXPECT_EQ(saved.str(), std::string(bus_graph_file) +
                             "begin {results}\nNode[3]\nEdge[1][2]\nEdge[4][5] 0.250000\n"
                             "end {results}\nOBJECTIVE VALUE: \n        6.000\n");
}

// A node, a stretch of an edge with its two end vectors joined by "und", and a single point of an
// edge, whose vector is written once.
TEST(graph_results, QCriteria) {
  bus_line b;
  pareto_result r;
  r.append({0, 0, 0.0, 0.0}, vector{1, 2}, vector{1, 2});
  r.append({1, 2, 0.25, 0.75}, vector{3, 4.5}, vector{10, 0.125});
  r.append({3, 4, 0.5, 0.5}, vector{5, 6}, vector{5, 6});
  const graph_scene scene{"1|G|.|d(V,G)|2-sum-par", &b.g, &b.places, 0.0, &r};
  const std::vector<std::string> expected{
      "OPTIMUM:\tOBJECTIVE VECTOR(S):",
      "Node [1] (   1.000,   2.000)",
      "Edge [2][3] (   0.250,    0.750): (   3.000,   4.500) und (  10.000,   0.125)",
      "Edge [4][5] (   0.500,    0.500): (   5.000,   6.000)"};
  EXPECT_EQ(pareto_result_lines(scene), expected);
  std::ostringstream saved;
  write_graph_results(saved, scene);
  EXPECT_EQ(saved.str(), std::string(bus_graph_file) +
                             "begin {results}\nNode[1]\nEdge[2][3] 0.250000 0.750000\n"
                             "Edge[4][5] 0.500000\nend {results}\nOBJECTIVE VALUES: \n"
                             "Node[1] (        1.000,        2.000)\n"
                             "Node[2] (        3.000,        4.500)\n"
                             "Node[2] (       10.000,        0.125)\n"
                             "Node[4] (        5.000,        6.000)\n");
}

// Six villages and four depots; North (1, 1) and Centre (4, 3) open at a value of 42.5.
TEST(discrete_results, PanelsAndFile) {
  discrete_problem p;
  load_discrete_example(examples + "discrete_villages.dat", p);
  p.opt = {*p.supply.begin(), *std::next(p.supply.begin(), 3)};
  const discrete_scene scene{"#|D|.|.|.", 42.5, &p};
  const std::vector<std::string> expected{"OBJECTIVE VALUE:             OPTIMUM:     ",
                                          "        42.50",
                                          "(    1.00,     1.00)                    9.00",
                                          "(    4.00,     3.00)                    5.00"};
  EXPECT_EQ(discrete_result_lines(scene), expected);
  const std::vector<std::string> costs = cost_matrix_lines(p);
  ASSERT_EQ(costs.size(), 6u);
  EXPECT_EQ(costs[0], "    6.00   18.00   21.00   21.00");
  EXPECT_EQ(costs[5], "    8.00    6.00    3.00    3.00");
  std::ostringstream saved;
  write_discrete_results(saved, scene);
  EXPECT_EQ(saved.str(),
            "begin {results}\nOBJECTIVE VALUE: \n42.5\n1 1  9 \n4 3  5 \nend {results}\n");
  p.supply_is_demand = true;
  EXPECT_EQ(discrete_result_lines(scene)[2], "(    1.00,      1.00)");
}

TEST(discrete_results, LoadExample) {
  discrete_problem p;
  EXPECT_REPORT(load_discrete_example("no/such/file.dat", p), 3104, "Can't open file");
  const std::string path = ::testing::TempDir() + "two_villages.dat";
  std::ofstream(path) << "begin {discrete}\nbegin {demand}\n0 0 5 [A]\n3 4 7 [B]\nend {demand}\n"
                         "begin {costmatrix}\n0 5\n5 0\nend {costmatrix}\n";
  load_discrete_example(path, p);
  EXPECT_TRUE(p.supply_is_demand);
  ASSERT_EQ(p.supply.size(), 2u);
  EXPECT_EQ(p.supply.back().coordinate(1), 4.0);
  EXPECT_EQ(p.supply_names.back(), "B");
}

// The windows, pressed through the interpreter: each step runs from the event loop that waits at
// that moment, in order.
class result_viewer_test : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!window_display_available()) GTEST_SKIP() << "no display: window tests need Xvfb";
    // An error in a step is kept instead of opening Tk's error dialog, and the test fails on it.
    tcl(R"(namespace eval ::t { variable error "" }
      proc bgerror {message} { set ::t::error $message }
      proc ::t::find {title} {
        foreach w [winfo children .] {
          if {[winfo toplevel $w] eq $w && [wm title $w] eq $title && [winfo ismapped $w]} {
            return $w
          }
        }
        error "no window $title"
      }
      proc ::t::press {title k} { [::t::find $title].b.i$k invoke }
      proc ::t::panel_lines {} {
        set p [::t::find "Results of computation"]
        set ::t::lines {}
        foreach c [winfo children $p.p] { lappend ::t::lines [$c cget -text] }
        foreach c [winfo children $p.b] { if {[winfo class $c] eq "Button"} { $c invoke } }
      }
      proc ::t::texts {title} {
        set c [::t::find $title].c
        set n 0
        foreach i [$c find all] { if {[$c type $i] eq "text"} { incr n } }
        return $n
      })");
  }

  static std::string tcl(const std::string& script) {
    Tcl_Interp* in = tk_interpreter();
    EXPECT_EQ(Tcl_Eval(in, script.c_str()), TCL_OK) << Tcl_GetStringResult(in);
    return Tcl_GetStringResult(in);
  }

  // The steps, 400 ms apart: "View Results" (button 1) and its lines, the count of texts on the
  // canvas before and after pressing the toggle, and "Close" (the last button); should a step
  // fail, "Close" is pressed once more later, so that the test ends all the same.
  static void steps(const std::string& title, int toggle, int close) {
    const std::string t = "{" + title + "}";
    tcl("after 400 {::t::press " + t + " 1}");
    tcl("after 800 ::t::panel_lines");
    tcl("after 1200 {set ::t::before [::t::texts " + t + "]; ::t::press " + t + " " +
        std::to_string(toggle) + "}");
    tcl("after 1600 {set ::t::after [::t::texts " + t + "]; ::t::press " + t + " " +
        std::to_string(close) + "}");
    tcl("after 6000 {catch {::t::press " + t + " " + std::to_string(close) + "}}");
  }

  void TearDown() override {
    if (!window_display_available()) return;
    EXPECT_EQ(tcl("set ::t::error"), "");
    tcl("foreach a [after info] { after cancel $a }; set ::t::error {}");
  }

  static std::vector<std::string> lines() {
    std::vector<std::string> out;
    Tcl_Interp* in = tk_interpreter();
    Tcl_Obj* list = Tcl_GetVar2Ex(in, "::t::lines", nullptr, TCL_GLOBAL_ONLY);
    int n = 0;
    Tcl_Obj** items = nullptr;
    if (list && Tcl_ListObjGetElements(in, list, &n, &items) == TCL_OK)
      for (int i = 0; i < n; ++i) out.push_back(Tcl_GetString(items[i]));
    return out;
  }
};

// The bus line with its median Church (3): five node labels and the legend, and with
// "Show Edge_weights" the four lengths at the edges' middles.
TEST_F(result_viewer_test, GraphViewer) {
  bus_line b;
  b.g.optima = {{2, 2, 0.0}};
  const graph_scene scene{"1|G|.|d(V,V)|sum", &b.g, &b.places, 6.0, nullptr};
  steps("MERO VERSION 2.0   View Graphics", 3, 5);
  view_graph_result(scene);
  EXPECT_EQ(lines(), (std::vector<std::string>{
                         "OPTIMUM:                            OBJECTIVE VALUE:",
                         "Node [3] (   2.000 ,   0.000)                   6.000"}));
  EXPECT_EQ(tcl("set ::t::before"), "6");
  EXPECT_EQ(tcl("set ::t::after"), "10");
}

TEST_F(result_viewer_test, ParetoViewer) {
  bus_line b;
  pareto_result r;
  r.append({1, 2, 0.0, 1.0}, vector{3, 4}, vector{4, 3});
  const graph_scene scene{"1|G|.|d(V,G)|2-sum-par", &b.g, &b.places, 0.0, &r};
  steps("MERO VERSION 2.0   View Graphics for Q-criterial problems", 3, 5);
  view_pareto_result(scene);
  EXPECT_EQ(lines(), (std::vector<std::string>{
                         "OPTIMUM:\tOBJECTIVE VECTOR(S):",
                         "Edge [2][3] (   0.000,    1.000): (   3.000,   4.000) und (   4.000,   "
                         "3.000)"}));
  EXPECT_EQ(tcl("set ::t::after"), "10");
}

// Six villages and four depots: ten names; "Show/Hide Demand" adds the six demands.
TEST_F(result_viewer_test, DiscreteViewer) {
  discrete_problem p;
  load_discrete_example(examples + "discrete_villages.dat", p);
  p.opt = {p.supply.back()};
  const discrete_scene scene{"#|D|.|.|.", 47, &p};
  steps("MERO VERSION 2.0    View Graphics", 3, 6);
  view_discrete_result(scene);
  EXPECT_EQ(lines(), (std::vector<std::string>{"OBJECTIVE VALUE:             OPTIMUM:     ",
                                               "        47.00",
                                               "(    4.00,     3.00)                    5.00"}));
  EXPECT_EQ(tcl("set ::t::before"), "11");
  EXPECT_EQ(tcl("set ::t::after"), "17");
}

}  // namespace
}  // namespace mero

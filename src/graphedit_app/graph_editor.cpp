#include "graphedit_app/graph_editor.h"

#include <tcl.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <sstream>

#include "graphedit/ge_file.h"
#include "graphedit/gml_file.h"
#include "graphedit/graph_algorithms.h"
#include "graphedit/graph_convert.h"
#include "graphedit/graphedit_messages.h"
#include "graphedit/planar_representations.h"
#include "graphedit/postscript_writer.h"
#include "graphedit/schnyder_drawing.h"
#include "graphedit/simple_layouts.h"
#include "graphedit_app/screenshot.h"
#include "kernel/error_handler.h"
#include "kernel/window/svg_window.h"

namespace mero {

namespace msg = graphedit_messages;

// ---- options file ----

namespace {

std::string color_text(int rgb) {
  char text[8];
  std::snprintf(text, sizeof text, "#%06x", rgb & 0xffffff);
  return text;
}

bool parse_color(const std::string& text, int& rgb) {
  if (text.size() != 7 || text[0] != '#') return false;
  char* end = nullptr;
  long value = std::strtol(text.c_str() + 1, &end, 16);
  if (*end != '\0') return false;
  rgb = static_cast<int>(value);
  return true;
}

bool parse_number(const std::string& text, double& x) {
  char* end = nullptr;
  double value = std::strtod(text.c_str(), &end);
  if (end == text.c_str() || *end != '\0' || !std::isfinite(value)) return false;
  x = value;
  return true;
}

bool parse_count(const std::string& text, int& n, int low, int high) {
  double value = 0;
  if (!parse_number(text, value) || value != std::floor(value) || value < low || value > high)
    return false;
  n = static_cast<int>(value);
  return true;
}

const char* const shape_words[] = {"oval", "rectangle"};
const char* const label_words[] = {"text", "index", "data"};
const char* const style_words[] = {"solid", "dashed", "dotted"};
const char* const arrow_words[] = {"none", "last", "first", "both"};

template <typename E, std::size_t N>
bool parse_word(const std::string& text, const char* const (&words)[N], E& value) {
  for (std::size_t k = 0; k < N; ++k)
    if (text == words[k]) {
      value = static_cast<E>(k);
      return true;
    }
  return false;
}

template <typename E, std::size_t N>
std::string word(E value, const char* const (&words)[N]) {
  return words[static_cast<std::size_t>(value)];
}

}  // namespace

std::string options_file() {
  const char* home = std::getenv("HOME");
  return home && *home ? std::string(home) + "/.grapheditrc" : ".grapheditrc";
}

void read_options(editor_options& o, const std::string& file_name) {
  std::ifstream in(file_name);
  std::string key, value;
  // Lines "key value"; unknown keys and bad values keep the defaults.
  while (in >> key && std::getline(in >> std::ws, value)) {
    double x = 0;
    int c = 0;
    if (key == "node_shape") parse_word(value, shape_words, o.node_defaults.shape);
    if (key == "node_color" && parse_color(value, c)) o.node_defaults.color = c;
    if (key == "node_border" && parse_color(value, c)) o.node_defaults.border_color = c;
    if (key == "node_radius" && parse_number(value, x) && x > 0)
      o.node_defaults.radius1 = o.node_defaults.radius2 = x;
    if (key == "node_label") parse_word(value, label_words, o.node_defaults.label_type);
    if (key == "edge_color" && parse_color(value, c)) o.edge_defaults.color = c;
    if (key == "edge_width" && parse_number(value, x) && x > 0) o.edge_defaults.width = x;
    if (key == "edge_style") parse_word(value, style_words, o.edge_defaults.style);
    if (key == "edge_arrow") parse_word(value, arrow_words, o.edge_defaults.direction);
    if (key == "zoom_factor" && parse_number(value, x) && x > 1) o.zoom_factor = x;
    if (key == "postscript_scale" && parse_number(value, x) && x > 0) o.postscript_scale = x;
    if (key == "printer") o.printer = value;
    if (key == "grid" && parse_number(value, x) && x > 0) o.grid = x;
    if (key == "animation_steps") parse_count(value, o.animation_steps, 0, 1000);
    if (key == "seed" && parse_number(value, x) && x >= 0) o.seed = static_cast<unsigned>(x);
    if (key == "nodes") parse_count(value, o.nodes, 0, 100000);
    if (key == "edges") parse_count(value, o.edges, 0, 10000000);
  }
}

void write_options(const editor_options& o, const std::string& file_name) {
  std::ofstream out(file_name);
  out << "node_shape " << word(o.node_defaults.shape, shape_words) << '\n'
      << "node_color " << color_text(o.node_defaults.color) << '\n'
      << "node_border " << color_text(o.node_defaults.border_color) << '\n'
      << "node_radius " << o.node_defaults.radius1 << '\n'
      << "node_label " << word(o.node_defaults.label_type, label_words) << '\n'
      << "edge_color " << color_text(o.edge_defaults.color) << '\n'
      << "edge_width " << o.edge_defaults.width << '\n'
      << "edge_style " << word(o.edge_defaults.style, style_words) << '\n'
      << "edge_arrow " << word(o.edge_defaults.direction, arrow_words) << '\n'
      << "zoom_factor " << o.zoom_factor << '\n'
      << "postscript_scale " << o.postscript_scale << '\n'
      << "printer " << o.printer << '\n'
      << "grid " << o.grid << '\n'
      << "animation_steps " << o.animation_steps << '\n'
      << "seed " << o.seed << '\n'
      << "nodes " << o.nodes << '\n'
      << "edges " << o.edges << '\n';
}

// ---- the editor ----

graph_editor::graph_editor() : win_(800, 600, "GraphEdit") {
  read_options(options_, options_file());
  win_.set_redraw([this](window&) { redraw(); });
  set_frame(x_.settings.wxmin, x_.settings.wxmax, x_.settings.wymin);
  build_menus();
}

void graph_editor::load(const std::string& file_name) {
  read_editor_graph(x_, file_name);
  set_frame(x_.settings.wxmin, x_.settings.wxmax, x_.settings.wymin);
}

void graph_editor::press_later(const std::string& entry_path) {
  script_.push_back(entry_path);
  scripted_ = true;
}

window::menu_entry graph_editor::command(const std::string& label, action a) {
  window::menu_entry e;
  e.label = label;
  e.number = next_number_++;
  actions_[e.number] = std::move(a);
  return e;
}

window::menu_entry graph_editor::cascade(const std::string& label,
                                         std::vector<window::menu_entry> entries) {
  window::menu_entry e;
  e.label = label;
  e.entries = std::move(entries);
  return e;
}

void graph_editor::build_menus() {
  using E = window::menu_entry;
  auto layout = [this](const std::string& name, std::function<bool(ge_graph&, layout_box)> run) {
    return [this, name, run] {
      if (!need_graph()) return;
      layout_box box;
      layout_box_of_window(box);
      ge_graph before = x_;
      ge_graph after = x_;
      if (!run(after, box)) return;
      changed();
      // The animation moves the nodes in steps from where they were.
      std::vector<node> from = before.g.all_nodes(), to = after.g.all_nodes();
      for (int step = 1; step <= options_.animation_steps && win_.path() != ""; ++step) {
        double t = static_cast<double>(step) / (options_.animation_steps + 1);
        for (std::size_t k = 0; k < from.size(); ++k) {
          const point& p = before.g.inf(from[k]).position;
          const point& q = after.g.inf(to[k]).position;
          x_.g.inf(x_.g.all_nodes()[k]).position =
              point(p.xcoord() + t * (q.xcoord() - p.xcoord()), p.ycoord() + t * (q.ycoord() - p.ycoord()));
        }
        redraw();
        if (Tcl_Interp* in = tk_interpreter()) Tcl_Eval(in, "update; after 20");
      }
      x_ = after;
      redraw();
    };
  };
  auto planar_or_tell = [this](bool (*draw)(ge_graph&, double, double, double, double)) {
    return [this, draw](ge_graph& x, layout_box b) {
      if (draw(x, b.xmin, b.ymin, b.xmax, b.ymax)) return true;
      tell("Planar Layouts", msg::not_planar.text);
      return false;
    };
  };
  // The layouts that may also refuse a planar graph, with the entry's name on the panel.
  using representation = planar_layout_status (*)(ge_graph&, double, double, double, double);
  auto representation_or_tell = [this](const std::string& title, representation draw) {
    return [this, title, draw](ge_graph& x, layout_box b) {
      planar_layout_status status = draw(x, b.xmin, b.ymin, b.xmax, b.ymax);
      if (status == planar_layout_status::not_planar) tell(title, msg::not_planar.text);
      if (status == planar_layout_status::degree_above_four)
        tell(title, msg::degree_above_four.text);
      return status == planar_layout_status::drawn;
    };
  };

  win_.menu_bar_entry(cascade(
      "&File",
      {command("&Load GE-Graph ...", [this] { load_file(false); }),
       command("&Save GE-Graph ...", [this] { save_file(false); }),
       command("L&oad GML-Graph ...", [this] { load_file(true); }),
       command("S&ave GML-Graph ...", [this] { save_file(true); }),
       command("&Write Postscript ...", [this] { write_postscript_file(); }),
       command("&Print ...", [this] { print(); }),
       cascade("&Export",
               {command("&Latex/Postscript ...", [this] { export_latex(); }),
                command("&Screenshot ...", [this] { screenshot(); }),
                command("Windows &Metafile", [this] { metafile(); }),
                command("Copy to &Clipboard", [this] { copy_to_clipboard(); })}),
       E{"", -1, {}, true},
       command("E&xit", [this] { done_ = true; })}));

  auto selection = [this](bool nodes, bool on) {
    return [this, nodes, on] {
      if (nodes) {
        marks_.nodes.clear();
        if (on)
          for (node v : x_.g.all_nodes()) marks_.nodes.insert(v);
      } else {
        marks_.edges.clear();
        if (on)
          for (edge e : x_.g.all_edges()) marks_.edges.insert(e);
      }
      redraw();
    };
  };
  win_.menu_bar_entry(cascade(
      "&Edit",
      {command("&Faces", [this] { show_faces(); }),
       cascade("&Nodes", {command("selected", [this] { edit_nodes(0); }),
                          command("existing", [this] { edit_nodes(1); }),
                          command("defaults", [this] { edit_nodes(2); })}),
       cascade("&Edges", {command("selected", [this] { edit_edges(0); }),
                          command("existing", [this] { edit_edges(1); }),
                          command("defaults", [this] { edit_edges(2); })}),
       cascade("&Selection", {command("select all nodes", selection(true, true)),
                              command("deselect all nodes", selection(true, false)),
                              command("select all edges", selection(false, true)),
                              command("deselect all edges", selection(false, false))})}));

  auto make = [this](const std::string& name, int (*repair)(graph&)) {
    return [this, name, repair] {
      if (!need_graph()) return;
      changed();
      int count = repair(x_.g);
      marks_ = {};
      redraw();
      tell("Make " + name, std::to_string(count) + " edges " +
                               (name == "simple" ? "deleted." : "added."));
    };
  };
  auto del = [this](const std::string& what) {
    return [this, what] {
      if (!need_graph()) return;
      changed();
      if (what == "loops") {
        delete_loops(x_.g);
      } else if (what == "selected nodes") {
        for (node v : marks_.nodes) x_.g.del_node(v);
      } else if (what == "selected edges") {
        for (edge e : marks_.edges) x_.g.del_edge(e);
      } else if (what == "all nodes") {
        x_.g.clear();
      } else {
        for (edge e : x_.g.all_edges()) x_.g.del_edge(e);
      }
      marks_ = {};
      redraw();
    };
  };
  win_.menu_bar_entry(cascade(
      "&Graph",
      {command("&Clear",
               [this] {
                 changed();
                 x_.g.clear();
                 marks_ = {};
                 redraw();
               }),
       cascade("C&reate", {command("complete graph", [this] { create("complete graph"); }),
                           command("random graph", [this] { create("random graph"); }),
                           command("random planar", [this] { create("random planar"); }),
                           command("random series-parallel",
                                   [this] { create("random series-parallel"); }),
                           command("complete bipartite", [this] { create("complete bipartite"); }),
                           command("random bipartite", [this] { create("random bipartite"); }),
                           command("planar graph", [this] { create("planar graph"); }),
                           command("triangulated", [this] { create("triangulated"); }),
                           command("grid graph", [this] { create("grid graph"); })}),
       cascade("&Make", {command("simple", make("simple", make_simple)),
                         command("connected", make("connected", [](graph& g) {
                           return static_cast<int>(make_connected(g).size());
                         })),
                         command("biconnected", make("biconnected", make_biconnected)),
                         command("bidirected (map)", make("bidirected", make_bidirected))}),
       cascade("&Test",
               {command("simple", [this] { test("simple", is_simple); }),
                command("bidirected", [this] { test("bidirected", is_bidirected); }),
                command("bipartite", [this] { test("bipartite", is_bipartite); }),
                command("connected", [this] { test("connected", is_connected); }),
                command("biconnected", [this] { test("biconnected", is_biconnected); }),
                command("triconnected", [this] { test("triconnected", is_triconnected); }),
                command("series-parallel",
                        [this] { test("series-parallel", is_series_parallel); }),
                command("planar", [this] { test("planar", is_planar); })}),
       cascade("&Delete", {command("loops", del("loops")),
                           command("selected nodes", del("selected nodes")),
                           command("selected edges", del("selected edges")),
                           command("all nodes", del("all nodes")),
                           command("all edges", del("all edges"))}),
       cascade("&Embed", {command("edges by angle",
                                  [this] {
                                    if (!need_graph()) return;
                                    int faces = static_cast<int>(faces_by_angle(x_).size());
                                    tell("Embed", "The edges ordered by their angle at each node "
                                                  "give a map with " +
                                                      std::to_string(faces) + " faces.");
                                  }),
                          command("show faces", [this] {
                            faces_shown_ = !faces_shown_;
                            redraw();
                          })})}));

  auto tool = [this](std::function<void(ge_graph&, layout_box)> run) {
    return [this, run] {
      if (!need_graph()) return;
      changed();
      layout_box box;
      layout_box_of_window(box);
      run(x_, box);
      redraw();
    };
  };
  auto scale_about_centre = [](ge_graph& x, double f) {
    double cx = 0, cy = 0;
    for (node v : x.g.all_nodes()) {
      cx += x.g.inf(v).position.xcoord();
      cy += x.g.inf(v).position.ycoord();
    }
    cx /= x.g.number_of_nodes();
    cy /= x.g.number_of_nodes();
    for (node v : x.g.all_nodes()) {
      point& p = x.g.inf(v).position;
      p = point(cx + f * (p.xcoord() - cx), cy + f * (p.ycoord() - cy));
    }
    for (edge e : x.g.all_edges())
      for (point& p : x.g.inf(e).bends) p = point(cx + f * (p.xcoord() - cx), cy + f * (p.ycoord() - cy));
  };
  win_.menu_bar_entry(cascade(
      "&Layout",
      {cascade("&Layout Tools",
               {command("Snap To Grid", tool([this](ge_graph& x, layout_box) {
                          double g = options_.grid;
                          for (node v : x.g.all_nodes()) {
                            point& p = x.g.inf(v).position;
                            p = point(g * std::round(p.xcoord() / g), g * std::round(p.ycoord() / g));
                          }
                        })),
                command("Remove Bends", tool([](ge_graph& x, layout_box) {
                          for (edge e : x.g.all_edges()) x.g.inf(e).bends.clear();
                        })),
                command("Reset Anchors", tool([](ge_graph& x, layout_box) {
                          for (edge e : x.g.all_edges())
                            x.g.inf(e).source_anchor = x.g.inf(e).target_anchor = point();
                        })),
                command("Fit into Box", tool([](ge_graph& x, layout_box) {
                          fit_into_box(x, x.settings.wxmin, x.settings.wymin, x.settings.wxmax,
                                       x.settings.wymax);
                        })),
                command("Fit into Window", tool([](ge_graph& x, layout_box b) {
                          fit_into_box(x, b.xmin, b.ymin, b.xmax, b.ymax);
                        })),
                command("Shrink Graph", tool([scale_about_centre](ge_graph& x, layout_box) {
                          scale_about_centre(x, 1 / 1.25);
                        })),
                command("Expand Graph", tool([scale_about_centre](ge_graph& x, layout_box) {
                          scale_about_centre(x, 1.25);
                        }))}),
       cascade("&Simple Layouts",
               {command("Circular Layout", layout("circular", [](ge_graph& x, layout_box b) {
                          circular_layout(x, point((b.xmin + b.xmax) / 2, (b.ymin + b.ymax) / 2),
                                          std::min(b.xmax - b.xmin, b.ymax - b.ymin) / 2);
                          return true;
                        })),
                command("Random Layout", layout("random", [this](ge_graph& x, layout_box b) {
                          random_layout(x, b.xmin, b.ymin, b.xmax, b.ymax, options_.seed++);
                          return true;
                        }))}),
       cascade("Sp&ring Layouts",
               {command("2D Spring Embedder", layout("spring", [this](ge_graph& x, layout_box b) {
                          spring_layout(x, b.xmin, b.ymin, b.xmax, b.ymax, options_.seed);
                          return true;
                        })),
                command("3D Spring Embedder", layout("spring3", [this](ge_graph& x, layout_box b) {
                          spring_layout_3d(x, b.xmin, b.ymin, b.xmax, b.ymax, options_.seed);
                          return true;
                        }))}),
       cascade("&Planar Layouts",
               {command("Straight-Line (Fary/FPP)",
                        layout("fpp", planar_or_tell(straight_line_planar_layout))),
                command("Straight-Line (Schnyder)",
                        layout("schnyder", planar_or_tell(schnyder_layout))),
                command("Orthogonal",
                        layout("orthogonal",
                               representation_or_tell("Orthogonal", orthogonal_layout))),
                command("Visibility Representation",
                        layout("visibility", representation_or_tell("Visibility Representation",
                                                                    visibility_layout))),
                command("Series-Parallel",
                        layout("sp",
                               [this](ge_graph& x, layout_box b) {
                                 if (!is_series_parallel(x.g)) {
                                   tell("Series-Parallel", "The graph is not series-parallel.");
                                   return false;
                                 }
                                 return straight_line_planar_layout(x, b.xmin, b.ymin, b.xmax,
                                                                    b.ymax);
                               })),
                command("3D Series-Parallel",
                        layout("sp3", [this](ge_graph& x, layout_box b) {
                          if (!is_series_parallel(x.g)) {
                            tell("3D Series-Parallel", "The graph is not series-parallel.");
                            return false;
                          }
                          spring_layout_3d(x, b.xmin, b.ymin, b.xmax, b.ymax, options_.seed);
                          return true;
                        }))})}));

  win_.menu_bar_entry(cascade(
      "&Window",
      {command("default window ...",
               [this] { set_frame(x_.settings.wxmin, x_.settings.wxmax, x_.settings.wymin); }),
       command("center graph",
               [this] {
                 if (!need_graph()) return;
                 double cx = 0, cy = 0;
                 for (node v : x_.g.all_nodes()) {
                   cx += x_.g.inf(v).position.xcoord();
                   cy += x_.g.inf(v).position.ycoord();
                 }
                 cx /= x_.g.number_of_nodes();
                 cy /= x_.g.number_of_nodes();
                 double w = win_.xmax() - win_.xmin(), h = win_.ymax() - win_.ymin();
                 zoom_to(cx - w / 2, cx + w / 2, cy - h / 2);
               }),
       command("zoom to graph", [this] { zoom_to_graph(); }),
       command("zoom to area",
               [this] {
                 tell("zoom to area", "Click two corners of the area into the drawing.");
                 int a = win_.read_mouse();
                 if (a >= 0 || a == win_.close_value()) return;
                 point p = win_.clicked();
                 int b = win_.read_mouse();
                 if (b >= 0 || b == win_.close_value()) return;
                 point q = win_.clicked();
                 if (p.xcoord() == q.xcoord()) return;
                 zoom_to(std::min(p.xcoord(), q.xcoord()), std::max(p.xcoord(), q.xcoord()),
                         std::min(p.ycoord(), q.ycoord()));
               }),
       command("zoom +", [this] { zoom(1 / options_.zoom_factor); }),
       command("zoom -", [this] { zoom(options_.zoom_factor); }),
       command("zoom undo", [this] {
         if (frames_.empty()) return;
         auto f = frames_.back();
         frames_.pop_back();
         set_frame(f[0], f[1], f[2]);
       })}));

  win_.menu_bar_entry(cascade(
      "&Options",
      {command("Window Setup ...",
               [this] {
                 std::string a = std::to_string(x_.settings.wxmin), b = std::to_string(x_.settings.wymin),
                             c = std::to_string(x_.settings.wxmax), d = std::to_string(x_.settings.wymax);
                 if (!dialog("Window Setup", {{"xmin", &a}, {"ymin", &b}, {"xmax", &c}, {"ymax", &d}}))
                   return;
                 double v[4];
                 if (!parse_number(a, v[0]) || !parse_number(b, v[1]) || !parse_number(c, v[2]) ||
                     !parse_number(d, v[3]) || !(v[2] > v[0]) || !(v[3] > v[1])) {
                   tell("Window Setup", "The box needs numbers with xmin < xmax and ymin < ymax.");
                   return;
                 }
                 x_.settings.wxmin = v[0];
                 x_.settings.wymin = v[1];
                 x_.settings.wxmax = v[2];
                 x_.settings.wymax = v[3];
                 set_frame(v[0], v[2], v[1]);
               }),
       command("Global Options ...",
               [this] {
                 std::string directed = x_.settings.directed ? "1" : "0";
                 std::string label = x_.settings.label;
                 std::string format = x_.settings.node_index_format;
                 std::string seed = std::to_string(options_.seed);
                 std::string grid = std::to_string(options_.grid);
                 if (!dialog("Global Options", {{"directed (0 or 1)", &directed},
                                                {"graph label", &label},
                                                {"node index format", &format},
                                                {"random seed", &seed},
                                                {"grid", &grid}}))
                   return;
                 x_.settings.directed = directed != "0";
                 x_.settings.label = label;
                 x_.settings.node_index_format = format;
                 double s = 0, g = 0;
                 if (parse_number(seed, s) && s >= 0) options_.seed = static_cast<unsigned>(s);
                 if (parse_number(grid, g) && g > 0) options_.grid = g;
                 save_options();
                 redraw();
               }),
       command("Animation ...",
               [this] {
                 std::string steps = std::to_string(options_.animation_steps);
                 if (!dialog("Animation", {{"steps of a layout move", &steps}})) return;
                 parse_count(steps, options_.animation_steps, 0, 1000);
                 save_options();
               }),
       command("Zooming ...",
               [this] {
                 std::string f = std::to_string(options_.zoom_factor);
                 if (!dialog("Zooming", {{"zoom factor", &f}})) return;
                 double v = 0;
                 if (parse_number(f, v) && v > 1) options_.zoom_factor = v;
                 save_options();
               }),
       command("PostScript ...",
               [this] {
                 std::string s = std::to_string(options_.postscript_scale), p = options_.printer;
                 if (!dialog("PostScript", {{"points per unit", &s}, {"printer command", &p}})) return;
                 double v = 0;
                 if (parse_number(s, v) && v > 0) options_.postscript_scale = v;
                 options_.printer = p;
                 save_options();
               }),
       command("Node Defaults ...", [this] { edit_nodes(2); }),
       command("Edge Defaults ...", [this] { edit_edges(2); })}));

  const std::string b1 =
      "Button 1: on free space a new node (joined to a started node), on a node the start or "
      "the end of a new edge. With shift: select or deselect the node or edge.";
  const std::string b2 = "Button 2: pick a node up; the next click puts it down there.";
  const std::string b3 = "Button 3: delete the node or the edge under the mouse.";
  win_.menu_bar_entry(cascade(
      "&Help",
      {command("About",
               [this] {
                 tell("About", "GraphEdit: draw, edit, test and lay out graphs, read and write "
                               "GE and GML files. Part of mero.");
               }),
       command("&Mouse", [this, b1, b2, b3] { tell("Mouse", b1 + "\n" + b2 + "\n" + b3); }),
       command("Button 1", [this, b1] { tell("Button 1", b1); }),
       command("Button 2", [this, b2] { tell("Button 2", b2); }),
       command("Button 3", [this, b3] { tell("Button 3", b3); })}));
  win_.menu_bar_entry(command("undo", [this] { undo(); }));
  win_.menu_bar_entry(command("redo", [this] { redo(); }));
  win_.menu_bar_entry(command("&done", [this] { done_ = true; }));
}

// ---- panels ----

namespace {

// The text behind its leading format marks, such as "\\bf" and "\\red".
std::string plain_text(const std::string& text) {
  std::size_t at = 0;
  while (at < text.size() && text[at] == '\\') {
    std::size_t end = text.find(' ', at);
    if (end == std::string::npos) return text;
    at = end + 1;
  }
  return text.substr(at);
}

}  // namespace

void graph_editor::tell(const std::string& title, const std::string& text) {
  if (scripted_) std::cout << title << ": " << text << std::endl;
  tk_window panel(0, 0, "GraphEdit: " + title);
  // The panel shows the text without its leading format marks ("\\bf\\red ...").
  std::istringstream lines(plain_text(text));
  for (std::string line; std::getline(lines, line);) panel.text_item(line);
  panel.button("ok");
  panel.display(win_);
  panel.open();
}

bool graph_editor::ask(const std::string& title, const std::string& text) {
  if (scripted_) std::cout << title << ": " << text << std::endl;
  tk_window panel(0, 0, "GraphEdit: " + title);
  panel.text_item(plain_text(text));
  panel.button("no", 0);
  panel.button("yes", 1);
  panel.display(win_);
  return panel.open() == 1;
}

bool graph_editor::dialog(const std::string& title,
                          const std::vector<std::pair<std::string, std::string*>>& items) {
  tk_window panel(0, 0, "GraphEdit: " + title);
  for (const auto& [label, variable] : items) panel.string_item(label, *variable);
  panel.button("cancel", 0);
  panel.button("ok", 1);
  panel.display(win_);
  return panel.open() == 1;
}

bool graph_editor::ask_file(const std::string& title, std::string& name) {
  return dialog(title, {{"file", &name}}) && !name.empty();
}

bool graph_editor::need_graph() {
  if (x_.g.number_of_nodes() > 0) return true;
  tell("Message", msg::empty_graph.text);
  return false;
}

// ---- drawing, undo, frame ----

void graph_editor::redraw() {
  win_.start_buffering();
  win_.clear();
  if (faces_shown_) {
    static const color shades[] = {color::yellow, color::cyan, color::pink, color::green,
                                   color::orange, color::violet};
    std::vector<node> nodes = x_.g.all_nodes();
    auto faces = faces_by_angle(x_);
    std::vector<std::vector<point>> corners(faces.size());
    std::vector<double> areas(faces.size(), 0);
    std::size_t outer = 0;
    for (std::size_t f = 0; f < faces.size(); ++f) {
      for (int k : faces[f]) corners[f].push_back(x_.g.inf(nodes[static_cast<std::size_t>(k)]).position);
      for (std::size_t k = 0; k < corners[f].size(); ++k) {
        const point& p = corners[f][k];
        const point& q = corners[f][(k + 1) % corners[f].size()];
        areas[f] += p.xcoord() * q.ycoord() - q.xcoord() * p.ycoord();
      }
      if (std::abs(areas[f]) > std::abs(areas[outer])) outer = f;
    }
    // In a plane drawing the outer face encloses all others; it stays white.
    for (std::size_t f = 0; f < faces.size(); ++f) {
      if (f == outer || corners[f].size() < 3) continue;
      win_.set_color(shades[f % 6]);
      win_.draw_filled_polygon(corners[f]);
    }
  }
  draw_graph(win_, x_, marks_);
  win_.flush_buffer();
}

void graph_editor::changed() {
  undo_.push_back(x_);
  if (undo_.size() > 100) undo_.erase(undo_.begin());
  redo_.clear();
}

void graph_editor::undo() {
  if (undo_.empty()) return;
  redo_.push_back(x_);
  x_ = undo_.back();
  undo_.pop_back();
  marks_ = {};
  moving_ = nullptr;
  redraw();
}

void graph_editor::redo() {
  if (redo_.empty()) return;
  undo_.push_back(x_);
  x_ = redo_.back();
  redo_.pop_back();
  marks_ = {};
  moving_ = nullptr;
  redraw();
}

void graph_editor::set_frame(double xmin, double xmax, double ymin) {
  if (!(xmax > xmin)) return;
  win_.init(xmin, xmax, ymin);
  redraw();
}

void graph_editor::zoom_to(double xmin, double xmax, double ymin) {
  frames_.push_back({win_.xmin(), win_.xmax(), win_.ymin()});
  set_frame(xmin, xmax, ymin);
}

void graph_editor::zoom(double factor) {
  double cx = (win_.xmin() + win_.xmax()) / 2, cy = (win_.ymin() + win_.ymax()) / 2;
  double w = (win_.xmax() - win_.xmin()) * factor, h = (win_.ymax() - win_.ymin()) * factor;
  zoom_to(cx - w / 2, cx + w / 2, cy - h / 2);
}

void graph_editor::zoom_to_graph() {
  if (win_.path().empty() || tk_interpreter() == nullptr) {
    kernel_error(1, msg::zoom_not_displayed);
    return;
  }
  if (!need_graph()) return;
  double lx = 1e300, ly = 1e300, hx = -1e300, hy = -1e300;
  for (node v : x_.g.all_nodes()) {
    const ge_node& a = x_.g.inf(v);
    lx = std::min(lx, a.position.xcoord() - a.radius1);
    hx = std::max(hx, a.position.xcoord() + a.radius1);
    ly = std::min(ly, a.position.ycoord() - a.radius2);
    hy = std::max(hy, a.position.ycoord() + a.radius2);
  }
  double w = hx - lx, h = hy - ly;
  double aspect = static_cast<double>(win_.height()) / win_.width();
  // Wide enough for the width and for the height at the window's aspect ratio, with a margin.
  double span = std::max(w, h / aspect) * 1.1;
  double cx = (lx + hx) / 2, cy = (ly + hy) / 2;
  zoom_to(cx - span / 2, cx + span / 2, cy - span * aspect / 2);
}

void graph_editor::layout_box_of_window(layout_box& box) const {
  double mx = (win_.xmax() - win_.xmin()) * 0.1, my = (win_.ymax() - win_.ymin()) * 0.1;
  box = {win_.xmin() + mx, win_.ymin() + my, win_.xmax() - mx, win_.ymax() - my};
}

void graph_editor::save_options() { write_options(options_, options_file()); }

// ---- mouse ----

node graph_editor::node_at(point p) const {
  node found = nullptr;
  for (node v = x_.g.first_node(); v != nullptr; v = graph::succ_node(v)) {
    const ge_node& a = x_.g.inf(v);
    double dx = (p.xcoord() - a.position.xcoord()) / std::max(a.radius1, 1e-9);
    double dy = (p.ycoord() - a.position.ycoord()) / std::max(a.radius2, 1e-9);
    if (dx * dx + dy * dy <= 1) found = v;  // the last one drawn lies on top
  }
  return found;
}

edge graph_editor::edge_at(point p) const {
  double reach = 4 / win_.scale();  // four pixels
  for (edge e = x_.g.first_edge(); e != nullptr; e = graph::succ_edge(e)) {
    std::vector<point> way{x_.g.inf(graph::source(e)).position};
    for (const point& b : x_.g.inf(e).bends) way.push_back(b);
    way.push_back(x_.g.inf(graph::target(e)).position);
    for (std::size_t k = 0; k + 1 < way.size(); ++k) {
      double ax = way[k].xcoord(), ay = way[k].ycoord();
      double bx = way[k + 1].xcoord() - ax, by = way[k + 1].ycoord() - ay;
      double len2 = bx * bx + by * by;
      double t = len2 > 0 ? ((p.xcoord() - ax) * bx + (p.ycoord() - ay) * by) / len2 : 0;
      t = std::clamp(t, 0.0, 1.0);
      if (std::hypot(ax + t * bx - p.xcoord(), ay + t * by - p.ycoord()) <= reach) return e;
    }
  }
  return nullptr;
}

void graph_editor::click(int code) {
  point p = win_.clicked();
  node v = node_at(p);
  if (moving_ != nullptr) {  // the second click of a move puts the node down
    changed();
    node m = moving_;
    moving_ = nullptr;
    // The undo copy holds other items; the node is found again by its place in the list.
    x_.g.inf(m).position = p;
    redraw();
    return;
  }
  if (code == window::left_click && win_.shift_clicked()) {
    edge e = v == nullptr ? edge_at(p) : nullptr;
    if (v != nullptr && !marks_.nodes.erase(v)) marks_.nodes.insert(v);
    if (e != nullptr && !marks_.edges.erase(e)) marks_.edges.insert(e);
    redraw();
    return;
  }
  if (code == window::left_click) {
    changed();
    if (v == nullptr) {
      ge_node a = options_.node_defaults;
      a.position = p;
      v = x_.g.new_node(a);
      if (marks_.edge_start != nullptr) x_.g.new_edge(marks_.edge_start, v, options_.edge_defaults);
      marks_.edge_start = nullptr;
    } else if (marks_.edge_start == nullptr) {
      undo_.pop_back();  // starting an edge changes nothing yet
      marks_.edge_start = v;
    } else {
      x_.g.new_edge(marks_.edge_start, v, options_.edge_defaults);
      marks_.edge_start = nullptr;
    }
    redraw();
  } else if (code == window::middle_click) {
    moving_ = v;
  } else if (code == window::right_click) {
    edge e = v == nullptr ? edge_at(p) : nullptr;
    if (v == nullptr && e == nullptr) return;
    changed();
    marks_ = {};
    if (v != nullptr)
      x_.g.del_node(v);
    else
      x_.g.del_edge(e);
    redraw();
  }
}

// ---- the entries ----

void graph_editor::load_file(bool gml) {
  std::string name = gml ? "graph.gml" : "graph.ge";
  if (!ask_file(gml ? "Load GML-Graph" : "Load GE-Graph", name)) return;
  if (x_.g.number_of_nodes() > 0 && !ask("Load", msg::overwrite_graph.text)) return;
  std::ifstream probe(name);
  if (!probe) {
    tell("Load", "Cannot open " + name + ".");
    return;
  }
  changed();
  gml ? read_gml(x_, name) : read_ge(x_, name);
  marks_ = {};
  zoom_to_graph();
  redraw();
}

void graph_editor::save_file(bool gml) {
  std::string name = gml ? "graph.gml" : "graph.ge";
  if (!ask_file(gml ? "Save GML-Graph" : "Save GE-Graph", name)) return;
  gml ? write_gml(x_, name) : write_ge(x_, name);
}

void graph_editor::write_postscript_file() {
  if (!need_graph()) return;
  std::string name = "graph.ps";
  if (!ask_file("Write Postscript", name)) return;
  write_postscript(x_, name, options_.postscript_scale);
}

void graph_editor::print() {
  if (!need_graph()) return;
  std::string program = options_.printer.substr(0, options_.printer.find(' '));
  std::string check = "command -v '" + program + "' > /dev/null 2>&1";
  if (program.empty() || program.find('\'') != std::string::npos || std::system(check.c_str()) != 0) {
    write_postscript(x_, "graph.ps", options_.postscript_scale);
    tell("Print", "There is no printer command \"" + options_.printer +
                      "\": the drawing was saved in graph.ps.");
    return;
  }
  std::ostringstream text;
  write_postscript(x_, text, options_.postscript_scale);
  FILE* pipe = popen(options_.printer.c_str(), "w");
  if (pipe == nullptr) return;
  std::fwrite(text.str().data(), 1, text.str().size(), pipe);
  int status = pclose(pipe);
  tell("Print", status == 0 ? "The drawing went to \"" + options_.printer + "\"."
                            : "\"" + options_.printer + "\" failed.");
}

void graph_editor::export_latex() {
  if (!need_graph()) return;
  std::string name = "graph.ps";
  if (!ask_file("Latex/Postscript", name)) return;
  write_postscript(x_, name, options_.postscript_scale);
  std::string tex = name.substr(0, name.rfind('.')) + ".tex";
  write_text_file(tex, [&](std::ostream& out) {
    out << "% The drawing of " << name << "; needs \\usepackage{graphicx}.\n"
        << "\\begin{figure}[htbp]\n  \\centering\n  \\includegraphics{" << name << "}\n"
        << "\\end{figure}\n";
  });
  tell("Latex/Postscript", "Wrote " + name + " and " + tex + ".");
}

void graph_editor::screenshot() {
  std::string name = "graph.png";
  if (!ask_file("Screenshot", name)) return;
  std::string error;
  if (!save_screenshot(win_.canvas_path(), name, error)) tell("Screenshot", error);
}

void graph_editor::metafile() {
  if (!need_graph()) return;
  // This platform has no Windows metafiles; the vector picture is written as SVG instead.
  svg_window picture(win_.width(), win_.height(), "GraphEdit");
  picture.init(win_.xmin(), win_.xmax(), win_.ymin());
  draw_graph(picture, x_);
  if (!picture.save("graph.svg"))
    tell("Windows Metafile", "Cannot write graph.svg.");
  else
    tell("Windows Metafile", "Windows metafiles do not exist here: the drawing was written as SVG "
                             "to graph.svg.");
}

void graph_editor::copy_to_clipboard() {
  Tcl_Interp* in = tk_interpreter();
  if (in == nullptr) return;
  std::ostringstream text;
  write_ge(x_, text);
  Tcl_Obj* words[] = {Tcl_NewStringObj("clipboard", -1), Tcl_NewStringObj("append", -1),
                      Tcl_NewStringObj("--", -1),
                      Tcl_NewStringObj(text.str().data(), static_cast<int>(text.str().size()))};
  Tcl_Eval(in, "clipboard clear");
  for (Tcl_Obj* o : words) Tcl_IncrRefCount(o);
  Tcl_EvalObjv(in, 4, words, TCL_EVAL_GLOBAL);
  for (Tcl_Obj* o : words) Tcl_DecrRefCount(o);
}

void graph_editor::create(const std::string& kind) {
  std::string n = std::to_string(options_.nodes), m = std::to_string(options_.edges);
  std::string a = "3", b = "3";
  std::vector<std::pair<std::string, std::string*>> items;
  bool sides = kind.find("bipartite") != std::string::npos, grid = kind == "grid graph";
  if (sides || grid) {
    items = {{grid ? "rows" : "left side", &a}, {grid ? "columns" : "right side", &b}};
  } else {
    items = {{"nodes", &n}};
  }
  bool with_m = kind == "random graph" || kind == "random planar" || kind == "random bipartite" ||
                kind == "planar graph";
  if (with_m) items.push_back({"edges", &m});
  if (!dialog(kind, items)) return;
  int nn = 0, mm = 0, aa = 0, bb = 0;
  bool ok = parse_count(n, nn, 0, 2000) && parse_count(m, mm, 0, 100000) &&
            parse_count(a, aa, 0, 500) && parse_count(b, bb, 0, 500);
  if (!ok) {
    tell(kind, "The sizes must be whole numbers (nodes up to 2000, edges up to 100000).");
    return;
  }
  if (kind == "triangulated" && nn < 3) {
    tell(kind, "A triangulation needs at least 3 nodes.");
    return;
  }
  if (x_.g.number_of_nodes() > 0 && !ask(kind, msg::overwrite_graph.text)) return;
  changed();
  options_.nodes = nn;
  if (with_m) options_.edges = mm;
  save_options();
  layout_box box;
  layout_box_of_window(box);
  unsigned seed = options_.seed++;
  if (kind == "complete graph") complete_graph(x_, nn, box);
  if (kind == "random graph") random_graph(x_, nn, mm, seed, box);
  if (kind == "random planar") random_planar_graph(x_, nn, mm, seed, box);
  if (kind == "random series-parallel") random_series_parallel_graph(x_, nn, seed, box);
  if (kind == "complete bipartite") complete_bipartite_graph(x_, aa, bb, box);
  if (kind == "random bipartite") random_bipartite_graph(x_, aa, bb, mm, seed, box);
  if (kind == "planar graph") planar_graph(x_, nn, mm, seed, box);
  if (kind == "triangulated") triangulated_graph(x_, nn, seed, box);
  if (kind == "grid graph") grid_graph(x_, aa, bb, box);
  // The new items take the defaults, keeping their places.
  for (node v : x_.g.all_nodes()) {
    point p = x_.g.inf(v).position;
    x_.g.inf(v) = options_.node_defaults;
    x_.g.inf(v).position = p;
  }
  for (edge e : x_.g.all_edges()) x_.g.inf(e) = options_.edge_defaults;
  marks_ = {};
  redraw();
}

void graph_editor::test(const std::string& name, bool (*check)(const graph&)) {
  if (!need_graph()) return;
  bool yes = check(x_.g);
  tell("Test", std::string("The graph is ") + (yes ? "" : "not ") + name + ".");
}

void graph_editor::edit_nodes(int which) {
  ge_node proto = options_.node_defaults;
  if (which == 0 && marks_.nodes.empty()) {
    tell("Nodes", "No node is selected (shift and button 1 select).");
    return;
  }
  if (which == 0) proto = x_.g.inf(*marks_.nodes.begin());
  std::string shape = word(proto.shape, shape_words), fill = color_text(proto.color),
              border = color_text(proto.border_color), radius = std::to_string(proto.radius1),
              label_type = word(proto.label_type, label_words), label = proto.label;
  std::vector<std::pair<std::string, std::string*>> items{
      {"shape (oval, rectangle)", &shape}, {"fill #rrggbb", &fill},
      {"border #rrggbb", &border},         {"radius", &radius},
      {"label (text, index, data)", &label_type}};
  if (which != 1) items.push_back({"label text", &label});
  if (!dialog(which == 2 ? "Node Defaults" : "Nodes", items)) return;
  ge_node a = proto;
  double r = 0;
  if (!parse_word(shape, shape_words, a.shape) || !parse_color(fill, a.color) ||
      !parse_color(border, a.border_color) || !parse_number(radius, r) || r <= 0 ||
      !parse_word(label_type, label_words, a.label_type)) {
    tell("Nodes", "Not changed: a value is not one of those offered.");
    return;
  }
  a.radius1 = a.radius2 = r;
  a.label = label;
  auto apply = [&](ge_node& b) {
    b.shape = a.shape;
    b.color = a.color;
    b.border_color = a.border_color;
    b.radius1 = b.radius2 = r;
    b.label_type = a.label_type;
    if (which != 1) b.label = a.label;
  };
  if (which == 2) {
    apply(options_.node_defaults);
    save_options();
    return;
  }
  changed();
  if (which == 0)
    for (node v : marks_.nodes) apply(x_.g.inf(v));
  else
    for (node v : x_.g.all_nodes()) apply(x_.g.inf(v));
  redraw();
}

void graph_editor::edit_edges(int which) {
  ge_edge proto = options_.edge_defaults;
  if (which == 0 && marks_.edges.empty()) {
    tell("Edges", "No edge is selected (shift and button 1 select).");
    return;
  }
  if (which == 0) proto = x_.g.inf(*marks_.edges.begin());
  std::string colour = color_text(proto.color), width = std::to_string(proto.width),
              style = word(proto.style, style_words), arrow = word(proto.direction, arrow_words),
              label = proto.label;
  std::vector<std::pair<std::string, std::string*>> items{
      {"colour #rrggbb", &colour}, {"width", &width}, {"style (solid, dashed, dotted)", &style},
      {"arrow (none, last, first, both)", &arrow}};
  if (which != 1) items.push_back({"label text", &label});
  if (!dialog(which == 2 ? "Edge Defaults" : "Edges", items)) return;
  ge_edge a = proto;
  if (!parse_color(colour, a.color) || !parse_number(width, a.width) || a.width <= 0 ||
      !parse_word(style, style_words, a.style) || !parse_word(arrow, arrow_words, a.direction)) {
    tell("Edges", "Not changed: a value is not one of those offered.");
    return;
  }
  auto apply = [&](ge_edge& b) {
    b.color = a.color;
    b.width = a.width;
    b.style = a.style;
    b.direction = a.direction;
    if (which != 1) b.label = label;
  };
  if (which == 2) {
    apply(options_.edge_defaults);
    save_options();
    return;
  }
  changed();
  if (which == 0)
    for (edge e : marks_.edges) apply(x_.g.inf(e));
  else
    for (edge e : x_.g.all_edges()) apply(x_.g.inf(e));
  redraw();
}

void graph_editor::show_faces() {
  if (!need_graph()) return;
  auto faces = faces_by_angle(x_);
  std::ostringstream text;
  text << faces.size() << " faces of the drawing, by the nodes (from 1) around them:";
  for (const auto& f : faces) {
    text << "\n";
    for (std::size_t k = 0; k < f.size(); ++k) text << (k ? " " : "") << f[k] + 1;
  }
  tell("Faces", text.str());
}

// ---- the loop ----

void graph_editor::run() {
  win_.display();
  if (tk_interpreter() == nullptr) return;
  if (x_.g.number_of_nodes() > 0) zoom_to_graph();
  redraw();
  while (!done_) {
    if (!script_.empty()) {
      std::string path = script_.front();
      script_.pop_front();
      std::vector<std::string> labels;
      std::size_t start = 0;
      for (std::size_t at; (at = path.find('>', start)) != std::string::npos; start = at + 1)
        labels.push_back(path.substr(start, at - start));
      labels.push_back(path.substr(start));
      auto [menu, index] = win_.menu_entry_path(labels);
      if (menu.empty()) {
        std::cerr << "graphedit: no menu entry " << path << std::endl;
      } else {
        std::string command = "after 300 [list " + menu + " invoke " + std::to_string(index) + "]";
        Tcl_Eval(tk_interpreter(), command.c_str());
      }
    }
    int event = win_.read_mouse();
    if (event == win_.close_value()) break;
    if (event < 0) {
      click(event);
      continue;
    }
    auto found = actions_.find(event);
    if (found != actions_.end()) found->second();
  }
  win_.close();
}

}  // namespace mero

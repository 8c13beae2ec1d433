#pragma once
// The graph editor window: a menu bar over a drawing of the graph, edited with the mouse.
// Button 1 on free space makes a node (and the edge from a started node to it), on a node starts
// an edge or ends it there; shift and button 1 select a node or an edge; button 2 picks a node up
// and the next click puts it down; button 3 deletes the node or edge under the mouse.

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "graphedit/generators.h"
#include "graphedit/ge_graph.h"
#include "graphedit_app/editor_drawing.h"
#include "kernel/window/tk_window.h"

namespace mero {

// What .grapheditrc keeps: the defaults of new items and the options of the dialogs.
struct editor_options {
  editor_options() { node_defaults.radius1 = node_defaults.radius2 = 3; }
  ge_node node_defaults;
  ge_edge edge_defaults;
  double zoom_factor = 1.5;
  double postscript_scale = 1;
  std::string printer = "lpr";
  double grid = 10;             // Snap To Grid
  int animation_steps = 0;      // moves drawn in between by the layouts; 0 draws the end only
  unsigned seed = 1;            // of the random generators and layouts
  int nodes = 10, edges = 20;   // the sizes the "Create" dialogs offer
};

void read_options(editor_options& o, const std::string& file_name);
void write_options(const editor_options& o, const std::string& file_name);
// $HOME/.grapheditrc, or .grapheditrc here without HOME.
std::string options_file();

class graph_editor {
 public:
  graph_editor();
  // Loads the file (GE, GML or native graph file) before the window shows; errors end the run.
  void load(const std::string& file_name);
  // Menu entries, given by their labels ("&Graph>&Test>planar", '&' marks may be left out),
  // pressed one after the other when the window is up; the texts of the panels they show are
  // also written on standard output. For scripted runs and tests.
  void press_later(const std::string& entry_path);
  // Shows the window and works until "&done", "E&xit" or a close from the frame.
  void run();

 private:
  using action = std::function<void()>;
  window::menu_entry command(const std::string& label, action a);
  static window::menu_entry cascade(const std::string& label,
                                    std::vector<window::menu_entry> entries);
  void build_menus();

  // Panels.
  void tell(const std::string& title, const std::string& text);
  bool ask(const std::string& title, const std::string& text);
  // A dialog of string items; false when cancelled.
  bool dialog(const std::string& title, const std::vector<std::pair<std::string, std::string*>>& items);
  bool ask_file(const std::string& title, std::string& name);
  bool need_graph();  // false, after "Empty Graph.", on an empty graph

  void redraw();
  void changed();  // keeps the state before a change for undo
  void undo();
  void redo();
  void click(int code);

  // Entries.
  void load_file(bool gml);
  void save_file(bool gml);
  void write_postscript_file();
  void print();
  void export_latex();
  void screenshot();
  void metafile();
  void copy_to_clipboard();
  void create(const std::string& kind);
  void test(const std::string& name, bool (*test)(const graph&));
  void edit_nodes(int which);  // 0 selected, 1 existing, 2 defaults
  void edit_edges(int which);
  void show_faces();
  void zoom(double factor);
  void zoom_to(double xmin, double xmax, double ymin);
  void zoom_to_graph();
  void set_frame(double xmin, double xmax, double ymin);
  void layout_box_of_window(layout_box& box) const;
  void save_options();

  node node_at(point p) const;
  edge edge_at(point p) const;

  tk_window win_;
  ge_graph x_;
  editor_options options_;
  drawing_marks marks_;
  node moving_ = nullptr;
  std::vector<ge_graph> undo_, redo_;
  std::vector<std::array<double, 3>> frames_;  // for "zoom undo"
  std::map<int, action> actions_;
  int next_number_ = 100;
  std::deque<std::string> script_;
  bool scripted_ = false;
  bool done_ = false;
  bool faces_shown_ = false;
};

}  // namespace mero

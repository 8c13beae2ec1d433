// The graph editor program: `graphedit [--press ENTRY]... [FILE]` opens the editor window on a GE,
// GML or native graph file (and presses the menu entries, "&Graph>&Test>planar", when it is up);
// `graphedit --convert IN OUT [--weight=KEY,...] [--length=KEY]` converts between the editor's
// files and mero's graph file without a window.

#include <string>
#include <vector>

#include "graphedit/graph_convert.h"
#include "graphedit/graphedit_messages.h"
#include "graphedit_app/graph_editor.h"
#include "kernel/reporters.h"
#include "kernel/window/windowed_faces.h"

namespace {

namespace msg = mero::graphedit_messages;

std::vector<std::string> split_keys(const std::string& list) {
  std::vector<std::string> keys;
  std::size_t start = 0;
  for (;;) {
    std::size_t comma = list.find(',', start);
    keys.push_back(list.substr(start, comma - start));
    if (keys.back().empty()) mero::report_error(msg::bad_option, {"--weight=" + list});
    if (comma == std::string::npos) return keys;
    start = comma + 1;
  }
}

int convert(const std::vector<std::string>& args) {
  mero::windowed_mode = false;
  std::vector<std::string> files;
  mero::convert_keys keys;
  for (std::size_t k = 1; k < args.size(); ++k) {
    const std::string& a = args[k];
    if (a.rfind("--weight=", 0) == 0) {
      keys.weights = split_keys(a.substr(9));
    } else if (a.rfind("--length=", 0) == 0 && a.size() > 9) {
      keys.length = a.substr(9);
      if (keys.length == "euclidean") keys.length.clear();
    } else if (a.rfind("--", 0) == 0) {
      mero::report_error(msg::bad_option, {a});
    } else {
      files.push_back(a);
    }
  }
  if (files.size() != 2) mero::report_error(msg::usage);
  mero::convert_graph_file(files[0], files[1], keys);
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  std::vector<std::string> args(argv + 1, argv + argc);
  if (!args.empty() && args[0] == "--convert") return convert(args);
  mero::install_windowed_faces();
  mero::graph_editor editor;
  std::string file;
  for (std::size_t k = 0; k < args.size(); ++k) {
    if (args[k] == "--press" && k + 1 < args.size()) {
      editor.press_later(args[++k]);
    } else if (args[k].rfind("--", 0) == 0 || !file.empty()) {
      mero::windowed_mode = false;
      mero::report_error(msg::bad_option, {args[k]});
    } else {
      file = args[k];
    }
  }
  if (!file.empty()) editor.load(file);
  editor.run();
  return 0;
}

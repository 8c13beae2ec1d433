#include "viewer/graph_results.h"

#include <algorithm>
#include <iterator>

#include "network/graph_file_io.h"
#include "viewer/graph_layout.h"
#include "viewer/printed.h"
#include "viewer/viewer_messages.h"

namespace mero {

namespace vm = viewer_messages;

namespace {

point along(const std::vector<point>& at, int u, int v, double t) {
  const point a = at[static_cast<std::size_t>(u)], b = at[static_cast<std::size_t>(v)];
  return point((1 - t) * a.xcoord() + t * b.xcoord(), (1 - t) * a.ycoord() + t * b.ycoord());
}

bool known(const std::vector<point>& at, int u, int v) {
  return u >= 0 && v >= 0 && static_cast<std::size_t>(u) < at.size() &&
         static_cast<std::size_t>(v) < at.size();
}

// The vector's entries each ended by a comma, the last by the closing bracket.
std::string vector_text(const vector& v, const char* entry, const char* last) {
  std::string text;
  for (int q = 0; q < v.dim(); ++q) text += printed(q + 1 < v.dim() ? entry : last, v[q]);
  return v.dim() == 0 ? ")" : text;
}

std::string pareto_line(const pareto_piece& p, const vector& at_from, const vector& at_to) {
  if (p.first == p.second)
    return printed(vm::node_text, p.first + 1) + "] (" +
           vector_text(at_from, vm::vector_entry, vm::vector_end);
  std::string line = printed(vm::edge_text, p.first + 1) +
                     printed(vm::second_node_text, p.second + 1) + "] " +
                     printed(vm::stretch_text, p.from, p.to) + " (";
  if (p.from == p.to) return line + vector_text(at_from, vm::vector_entry, vm::vector_end);
  return line + vector_text(at_from, vm::vector_entry, vm::vector_und) +
         vector_text(at_to, vm::vector_entry, vm::vector_end);
}

void write_saved_vector(std::ostream& out, int first, const vector& v) {
  out << vm::saved_node << first + 1 << "] (" << vector_text(v, vm::saved_entry, vm::saved_end)
      << '\n';
}

}  // namespace

bool locations_place_nodes(const graph_scene& scene) {
  // Nodes read from "NC" lines may stand in the list without coordinates (an adjacency by name
  // leaves them there): such a list does not place the nodes either.
  const bool placed = std::all_of(scene.locations->begin(), scene.locations->end(),
                                  [](const location& l) { return l.dim() >= 2; });
  return placed &&
         scene.locations->size() == static_cast<std::size_t>(scene.graph->number_of_nodes());
}

std::vector<point> node_positions(const graph_scene& scene) {
  const location_graph& g = *scene.graph;
  if (locations_place_nodes(scene)) {
    std::vector<point> at;
    for (const location& l : *scene.locations) at.emplace_back(l.coordinate(0), l.coordinate(1));
    return at;
  }
  return layout_graph(g);
}

std::vector<std::string> graph_result_lines(const graph_scene& scene,
                                            const std::vector<point>& positions) {
  std::vector<std::string> lines{vm::graph_heading};
  for (const graph_point& o : scene.graph->optima) {
    if (!known(positions, o.first, o.second)) continue;
    const bool point_on_edge = o.first != o.second && o.position != 0.0;
    std::string line = printed(point_on_edge ? vm::edge_text : vm::node_text, o.first + 1);
    if (o.first != o.second) line += printed(vm::second_node_text, o.second + 1);
    line += point_on_edge ? printed(vm::position_text, o.position) + " " : std::string("] ");
    // A whole edge is given by the place of its first node.
    const point at = along(positions, o.first, o.second, point_on_edge ? o.position : 0.0);
    lines.push_back(line + printed(vm::graph_row, at.xcoord(), at.ycoord(), scene.value));
  }
  return lines;
}

std::vector<std::string> pareto_result_lines(const graph_scene& scene) {
  std::vector<std::string> lines{vm::pareto_heading};
  const pareto_result& r = *scene.pareto;
  auto from = r.at_from.begin();
  auto to = r.at_to.begin();
  for (const pareto_piece& p : r.pieces) {
    if (from == r.at_from.end() || to == r.at_to.end()) break;
    lines.push_back(pareto_line(p, *from++, *to++));
  }
  return lines;
}

void write_graph_results(std::ostream& out, const graph_scene& scene) {
  write_graph(out, *scene.graph, *scene.locations);
  out << vm::results_begin << '\n';
  if (scene.pareto) {
    for (const pareto_piece& p : scene.pareto->pieces) {
      if (p.first == p.second) {
        out << vm::saved_node << p.first + 1 << "]\n";
        continue;
      }
      out << vm::saved_edge << p.first + 1 << "][" << p.second + 1 << "] "
          << printed("%lf", p.from);
      if (p.to != p.from) out << ' ' << printed("%lf", p.to);
      out << '\n';
    }
  } else {
    for (const graph_point& o : scene.graph->optima) {
      if (o.first == o.second) {
        out << vm::saved_node << o.first + 1 << "]\n";
        continue;
      }
      out << vm::saved_edge << o.first + 1 << "][" << o.second + 1 << ']';
      if (o.position != 0.0) out << ' ' << printed("%lf", o.position);
      out << '\n';
    }
  }
  out << vm::results_end << '\n';
  if (!scene.pareto) {
    out << vm::saved_value << printed(vm::saved_number, scene.value) << '\n';
    return;
  }
  out << vm::saved_values;
  const pareto_result& r = *scene.pareto;
  auto from = r.at_from.begin();
  auto to = r.at_to.begin();
  for (const pareto_piece& p : r.pieces) {
    if (from == r.at_from.end() || to == r.at_to.end()) break;
    write_saved_vector(out, p.first, *from++);
    if (p.first != p.second && p.from != p.to) write_saved_vector(out, p.first, *to);
    ++to;
  }
}

}  // namespace mero

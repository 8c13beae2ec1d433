#pragma once
// The kernel's graph: a list of nodes and a list of edges, each node with two adjacency lists
// (0 and 1) whose order is the order of insertion. Directed, list 0 holds the edges leaving a
// node and list 1 those entering it; after make_undirected list 1 is empty and list 0 holds every
// incident edge, so that a walk over list 0 sees each edge once from both of its ends.
//
// Node and edge numbers are issued in creation order and never reused while the graph lives; a
// copy renumbers from 0 in list order. GRAPH<vtype, etype> adds typed information to the items.

#include <any>
#include <cstddef>
#include <istream>
#include <ostream>
#include <string>
#include <vector>

namespace mero {

class graph;
struct node_record;
struct edge_record;
using node = node_record*;
using edge = edge_record*;

struct node_record {
  node next = nullptr;
  node prev = nullptr;
  graph* owner = nullptr;
  int number = 0;
  edge first_adj[2] = {nullptr, nullptr};
  edge last_adj[2] = {nullptr, nullptr};
  int degree[2] = {0, 0};
  std::any info;
};

struct edge_record {
  edge next = nullptr;
  edge prev = nullptr;
  edge succ_adj[2] = {nullptr, nullptr};  // index 0: around the source, 1: around the target
  edge pred_adj[2] = {nullptr, nullptr};
  node term[2] = {nullptr, nullptr};  // source, target
  int number = 0;
  edge reversal = nullptr;
  std::any info;
};

class graph {
 public:
  graph() = default;
  graph(const graph& other);
  graph& operator=(const graph& other);
  virtual ~graph();

  void clear();
  node new_node();
  node new_node(std::any info);
  edge new_edge(node v, node w);
  edge new_edge(node v, node w, std::any info);
  void del_edge(edge e);
  void del_node(node v);
  void make_undirected();
  void make_directed();
  bool is_undirected() const { return undirected_; }

  int number_of_nodes() const { return node_count_; }
  int number_of_edges() const { return edge_count_; }
  // One more than the largest node (edge) number issued: the size of a table indexed by number.
  int node_index_bound() const { return next_node_number_; }
  int edge_index_bound() const { return next_edge_number_; }

  node first_node() const { return first_node_; }
  node last_node() const { return last_node_; }
  static node succ_node(node v) { return v->next; }
  edge first_edge() const { return first_edge_; }
  static edge succ_edge(edge e) { return e->next; }
  std::vector<node> all_nodes() const;
  std::vector<edge> all_edges() const;

  static node source(edge e) { return e->term[0]; }
  static node target(edge e) { return e->term[1]; }
  static node opposite(edge e, node v) { return e->term[0] == v ? e->term[1] : e->term[0]; }
  static int index(node v) { return v->number; }
  static int index(edge e) { return e->number; }
  static edge reversal(edge e) { return e->reversal; }
  // Reversals are paired: each of the two edges names the other.
  static void set_reversal(edge e, edge r) {
    e->reversal = r;
    r->reversal = e;
  }
  static int outdeg(node v) { return v->degree[0]; }
  static int indeg(node v) { return v->degree[1]; }
  static int degree(node v) { return v->degree[0] + v->degree[1]; }

  // Adjacency list `list` (0 or 1) of v, walked in its order.
  edge first_adj_edge(node v, int list) const { return v->first_adj[list]; }
  edge next_adj_edge(edge e, node v, int list) const { return e->succ_adj[link(e, v, list)]; }
  std::vector<edge> adj_edges(node v, int list = 0) const;

  // The information's type names and text form; the plain graph carries none ("void").
  virtual std::string node_type_name() const { return "void"; }
  virtual std::string edge_type_name() const { return "void"; }
  virtual std::any default_node_info() const { return {}; }
  virtual std::any default_edge_info() const { return {}; }
  virtual void write_node_info(std::ostream&, node) const {}
  virtual void write_edge_info(std::ostream&, edge) const {}
  virtual void read_node_info(std::istream&, node) {}
  virtual void read_edge_info(std::istream&, edge) {}

 private:
  // Which link of e continues list `list` around v: directed, list k uses link k; undirected,
  // the one on v's side of the edge.
  int link(edge e, node v, int list) const {
    return undirected_ ? (e->term[0] == v ? 0 : 1) : list;
  }
  void append_adj(node v, int list, edge e, int side);
  void unlink_adj(node v, int list, edge e, int side);
  void copy_from(const graph& other);
  void check_owner(node v, const char* text) const;

  node first_node_ = nullptr;
  node last_node_ = nullptr;
  edge first_edge_ = nullptr;
  edge last_edge_ = nullptr;
  int node_count_ = 0;
  int edge_count_ = 0;
  int next_node_number_ = 0;
  int next_edge_number_ = 0;
  bool undirected_ = false;
};

// How GRAPH reads and writes the information of one type: its name in the native file and its
// text form. The standard types are given here; a model type adds its own specialisation.
template <typename T>
struct graph_info_io;

// The information of an item that carries none.
struct no_info {};

template <>
struct graph_info_io<no_info> {
  static std::string name() { return "void"; }
  static void write(std::ostream&, const no_info&) {}
  static void read(std::istream&, no_info&) {}
};
template <>
struct graph_info_io<int> {
  static std::string name() { return "int"; }
  static void write(std::ostream& out, const int& x) { out << x; }
  static void read(std::istream& in, int& x) { in >> x; }
};
template <>
struct graph_info_io<double> {
  static std::string name() { return "double"; }
  static void write(std::ostream& out, const double& x) { out << x; }
  static void read(std::istream& in, double& x) { in >> x; }
};
template <>
struct graph_info_io<std::string> {
  static std::string name() { return "string"; }
  static void write(std::ostream& out, const std::string& x) { out << x; }
  static void read(std::istream& in, std::string& x);
};

// A graph whose nodes carry a vtype and whose edges an etype. New information is value
// initialised, so a new edge of a GRAPH<..., double> has length 0.0.
template <typename vtype, typename etype>
class GRAPH : public graph {
 public:
  node new_node(const vtype& x = vtype()) { return graph::new_node(std::any(x)); }
  edge new_edge(node v, node w, const etype& x = etype()) {
    return graph::new_edge(v, w, std::any(x));
  }

  vtype& inf(node v) { return std::any_cast<vtype&>(v->info); }
  const vtype& inf(node v) const { return std::any_cast<const vtype&>(v->info); }
  etype& inf(edge e) { return std::any_cast<etype&>(e->info); }
  const etype& inf(edge e) const { return std::any_cast<const etype&>(e->info); }
  void assign(node v, const vtype& x) { v->info = x; }
  void assign(edge e, const etype& x) { e->info = x; }

  std::string node_type_name() const override { return graph_info_io<vtype>::name(); }
  std::string edge_type_name() const override { return graph_info_io<etype>::name(); }
  std::any default_node_info() const override { return vtype(); }
  std::any default_edge_info() const override { return etype(); }
  void write_node_info(std::ostream& out, node v) const override {
    graph_info_io<vtype>::write(out, inf(v));
  }
  void write_edge_info(std::ostream& out, edge e) const override {
    graph_info_io<etype>::write(out, inf(e));
  }
  void read_node_info(std::istream& in, node v) override {
    vtype x{};
    graph_info_io<vtype>::read(in, x);
    v->info = std::move(x);
  }
  void read_edge_info(std::istream& in, edge e) override {
    etype x{};
    graph_info_io<etype>::read(in, x);
    e->info = std::move(x);
  }
};

}  // namespace mero

#include "kernel/graph.h"

#include <iterator>
#include <unordered_map>

#include "kernel/error_handler.h"

namespace mero {

graph::graph(const graph& other) { copy_from(other); }

graph& graph::operator=(const graph& other) {
  if (this != &other) {
    clear();
    copy_from(other);
  }
  return *this;
}

graph::~graph() { clear(); }

void graph::clear() {
  for (edge e = first_edge_; e != nullptr;) {
    edge next = e->next;
    delete e;
    e = next;
  }
  for (node v = first_node_; v != nullptr;) {
    node next = v->next;
    delete v;
    v = next;
  }
  first_node_ = last_node_ = nullptr;
  first_edge_ = last_edge_ = nullptr;
  node_count_ = edge_count_ = 0;
  next_node_number_ = next_edge_number_ = 0;
  undirected_ = false;
}

node graph::new_node() { return new_node(default_node_info()); }

node graph::new_node(std::any info) {
  node v = new node_record;
  v->owner = this;
  v->number = next_node_number_++;
  v->info = std::move(info);
  v->prev = last_node_;
  if (last_node_ != nullptr)
    last_node_->next = v;
  else
    first_node_ = v;
  last_node_ = v;
  ++node_count_;
  return v;
}

edge graph::new_edge(node v, node w) { return new_edge(v, w, default_edge_info()); }

edge graph::new_edge(node v, node w, std::any info) {
  check_owner(v, "new_edge(v,w): v not in graph");
  check_owner(w, "new_edge(v,w): w not in graph");
  if (undirected_ && v == w) kernel_error(1, "new_edge(v,e1,w,e2): selfloop in undirected graph.");
  edge e = new edge_record;
  e->term[0] = v;
  e->term[1] = w;
  e->number = next_edge_number_++;
  e->info = std::move(info);
  e->prev = last_edge_;
  if (last_edge_ != nullptr)
    last_edge_->next = e;
  else
    first_edge_ = e;
  last_edge_ = e;
  ++edge_count_;
  append_adj(v, 0, e, 0);
  append_adj(w, undirected_ ? 0 : 1, e, 1);
  return e;
}

void graph::append_adj(node v, int list, edge e, int side) {
  e->succ_adj[side] = nullptr;
  edge last = v->last_adj[list];
  e->pred_adj[side] = last;
  if (last != nullptr)
    last->succ_adj[link(last, v, list)] = e;
  else
    v->first_adj[list] = e;
  v->last_adj[list] = e;
  ++v->degree[list];
}

void graph::unlink_adj(node v, int list, edge e, int side) {
  edge before = e->pred_adj[side];
  edge after = e->succ_adj[side];
  if (before != nullptr)
    before->succ_adj[link(before, v, list)] = after;
  else
    v->first_adj[list] = after;
  if (after != nullptr)
    after->pred_adj[link(after, v, list)] = before;
  else
    v->last_adj[list] = before;
  --v->degree[list];
}

void graph::del_edge(edge e) {
  if (e == nullptr || e->term[0]->owner != this) kernel_error(1, "del_edge(e): e is not in G");
  unlink_adj(e->term[0], 0, e, 0);
  unlink_adj(e->term[1], undirected_ ? 0 : 1, e, 1);
  if (e->reversal != nullptr && e->reversal->reversal == e) e->reversal->reversal = nullptr;
  (e->prev ? e->prev->next : first_edge_) = e->next;
  (e->next ? e->next->prev : last_edge_) = e->prev;
  --edge_count_;
  delete e;
}

void graph::del_node(node v) {
  if (v == nullptr || v->owner != this) kernel_error(1, "del_node(v): v is not in G");
  for (int list = 0; list < 2; ++list)
    while (v->first_adj[list] != nullptr) del_edge(v->first_adj[list]);
  (v->prev ? v->prev->next : first_node_) = v->next;
  (v->next ? v->next->prev : last_node_) = v->prev;
  --node_count_;
  delete v;
}

void graph::check_owner(node v, const char* text) const {
  if (v == nullptr || v->owner != this) kernel_error(1, text);
}

std::vector<node> graph::all_nodes() const {
  std::vector<node> nodes;
  nodes.reserve(static_cast<std::size_t>(node_count_));
  for (node v = first_node_; v != nullptr; v = v->next) nodes.push_back(v);
  return nodes;
}

std::vector<edge> graph::all_edges() const {
  std::vector<edge> edges;
  edges.reserve(static_cast<std::size_t>(edge_count_));
  for (edge e = first_edge_; e != nullptr; e = e->next) edges.push_back(e);
  return edges;
}

std::vector<edge> graph::adj_edges(node v, int list) const {
  std::vector<edge> edges;
  for (edge e = v->first_adj[list]; e != nullptr; e = next_adj_edge(e, v, list)) edges.push_back(e);
  return edges;
}

void graph::make_undirected() {
  if (undirected_) return;
  std::vector<edge> loops;
  for (edge e = first_edge_; e != nullptr; e = e->next)
    if (e->term[0] == e->term[1]) loops.push_back(e);
  for (edge e : loops) del_edge(e);
  if (!loops.empty()) kernel_error(0, "selfloops deleted in ugraph constructor");
  // List 1 of a node is chained through link 1 and list 0 through link 0; with no loops left,
  // exactly the link on the node's own side, which is how the undirected walk reads them.
  for (node v = first_node_; v != nullptr; v = v->next) {
    edge head = v->first_adj[1];
    if (head == nullptr) continue;
    edge tail = v->last_adj[0];
    if (tail != nullptr) {
      tail->succ_adj[0] = head;
      head->pred_adj[1] = tail;
    } else {
      v->first_adj[0] = head;
    }
    v->last_adj[0] = v->last_adj[1];
    v->degree[0] += v->degree[1];
    v->first_adj[1] = v->last_adj[1] = nullptr;
    v->degree[1] = 0;
  }
  undirected_ = true;
}

void graph::make_directed() {
  if (!undirected_) return;
  std::vector<std::vector<edge>> lists;
  for (node v = first_node_; v != nullptr; v = v->next) lists.push_back(adj_edges(v, 0));
  for (node v = first_node_; v != nullptr; v = v->next) {
    v->first_adj[0] = v->last_adj[0] = v->first_adj[1] = v->last_adj[1] = nullptr;
    v->degree[0] = v->degree[1] = 0;
  }
  undirected_ = false;
  std::size_t k = 0;
  for (node v = first_node_; v != nullptr; v = v->next, ++k)
    for (edge e : lists[k]) append_adj(v, e->term[0] == v ? 0 : 1, e, e->term[0] == v ? 0 : 1);
}

void graph::copy_from(const graph& other) {
  std::unordered_map<node, node> node_copy;
  std::unordered_map<edge, edge> edge_copy;
  for (node v = other.first_node_; v != nullptr; v = v->next) node_copy[v] = new_node(v->info);
  // Edges are made in list order first and linked into the adjacency lists afterwards, so that
  // the copy keeps the original's order around every node.
  for (edge e = other.first_edge_; e != nullptr; e = e->next) {
    edge c = new edge_record;
    c->term[0] = node_copy[e->term[0]];
    c->term[1] = node_copy[e->term[1]];
    c->number = next_edge_number_++;
    c->info = e->info;
    c->prev = last_edge_;
    (last_edge_ ? last_edge_->next : first_edge_) = c;
    last_edge_ = c;
    ++edge_count_;
    edge_copy[e] = c;
  }
  undirected_ = other.undirected_;
  for (node v = other.first_node_; v != nullptr; v = v->next)
    for (int list = 0; list < 2; ++list)
      for (edge e : other.adj_edges(v, list)) {
        append_adj(node_copy[v], list, edge_copy[e], link(e, v, list));
      }
  for (edge e = other.first_edge_; e != nullptr; e = e->next)
    if (e->reversal != nullptr) edge_copy[e]->reversal = edge_copy[e->reversal];
}

void graph_info_io<std::string>::read(std::istream& in, std::string& x) {
  x.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

}  // namespace mero

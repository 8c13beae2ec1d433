#pragma once
// node_array and edge_array: maps from the items of one graph to values, kept in a table indexed
// by item number. The table is sized when the array is bound, so an item made later, or one of
// another graph, is refused with the kernel's code 999.
// Entries are handed out by reference, so use char rather than bool for flags.

#include <type_traits>
#include <vector>

#include "kernel/error_handler.h"
#include "kernel/graph.h"

namespace mero {

template <typename item, typename T>
class graph_item_array {
 public:
  graph_item_array() = default;
  graph_item_array(const graph& g, const T& x = T()) { init(g, x); }

  void init(const graph& g, const T& x = T()) {
    owner_ = &g;
    table_.assign(bound(g), x);
  }

  T& operator[](item i) { return table_[checked(i)]; }
  const T& operator[](item i) const { return table_[checked(i)]; }

 private:
  static std::size_t bound(const graph& g);
  static const char* illegal_text();

  std::size_t checked(item i) const {
    if (owner_ == nullptr || owner_of(i) != owner_ ||
        static_cast<std::size_t>(graph::index(i)) >= table_.size())
      kernel_error(999, illegal_text());
    return static_cast<std::size_t>(graph::index(i));
  }
  static const graph* owner_of(node v) { return v->owner; }
  static const graph* owner_of(edge e) { return e->term[0]->owner; }

  const graph* owner_ = nullptr;
  std::vector<T> table_;
};

template <typename T>
class node_array : public graph_item_array<node, T> {
  using graph_item_array<node, T>::graph_item_array;
};

template <typename T>
class edge_array : public graph_item_array<edge, T> {
  using graph_item_array<edge, T>::graph_item_array;
};

template <typename item, typename T>
std::size_t graph_item_array<item, T>::bound(const graph& g) {
  if constexpr (std::is_same_v<item, node>)
    return static_cast<std::size_t>(g.node_index_bound());
  else
    return static_cast<std::size_t>(g.edge_index_bound());
}

template <typename item, typename T>
const char* graph_item_array<item, T>::illegal_text() {
  if constexpr (std::is_same_v<item, node>)
    return "node_array: illegal node";
  else
    return "edge_array: illegal edge";
}

}  // namespace mero

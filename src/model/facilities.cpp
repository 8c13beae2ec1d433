#include "model/facilities.h"

#include <algorithm>
#include <vector>

#include "kernel/error_handler.h"
#include "model/model_messages.h"

namespace mero {

int sort_coordinate = 0;

int compare_by_coordinate(const location& a, const location& b) {
  const double x = a.coordinate(sort_coordinate);
  const double y = b.coordinate(sort_coordinate);
  if (x < y) return -1;
  return x > y ? 1 : 0;
}

void sort_by_coordinate(std::list<location>& list, int c) {
  sort_coordinate = c;
  list.sort([](const location& a, const location& b) { return compare_by_coordinate(a, b) < 0; });
}

namespace {

const location& first_of(const std::vector<location>& list) {
  if (list.empty()) empty_list_error(model_messages::empty_list);
  return list.front();
}

// Replaces list by a copy without the entries that drop says so of; the copies pass through the
// location copy rule like every other copy.
template <typename Drop>
void rebuild_without(std::vector<location>& list, Drop drop) {
  std::vector<location> kept;
  kept.reserve(list.size());
  int index = 0;
  for (const location& l : list)
    if (!drop(l, index++)) kept.push_back(l);
  list.swap(kept);
}

}  // namespace

location facilities::get(int i) const {
  if (i < 0 || i >= static_cast<int>(size())) return location(2, 1);
  return *std::next(begin(), i);
}

bool facilities::contains(const location& c) const {
  return std::any_of(begin(), end(),
                     [&](const location& l) { return l.coordinates() == c.coordinates(); });
}

void facilities::remove(int i) {
  const int n = static_cast<int>(size());
  if (i < 0 || i >= n) report_error(model_messages::remove_index);
  if (i == 0)
    erase(begin());  // the others move up unchanged (a move assignment keeps everything)
  else if (i == n - 1)
    pop_back();
  else
    rebuild_without(*this, [i](const location&, int index) { return index == i; });
}

void facilities::remove(const location& l) {
  if (empty()) return;
  if (front() == l)
    erase(begin());
  else if (back() == l)
    pop_back();
  else
    rebuild_without(*this, [&l](const location& x, int) { return x == l; });
}

std::string& facilities::refname(const location& item) {
  auto name = names.begin();
  for (const location& l : *this) {
    if (name == names.end()) name = names.insert(names.end(), std::string());
    if (&l == &item) return *name;
    ++name;
  }
  report_error(model_messages::foreign_item);
}

Loc_Vector facilities::weight_sums() const {
  Loc_Vector sums(first_of(*this).weight_dim());
  for (const location& l : *this) sums += l.weights();
  return sums;
}

double facilities::coordinate_max(int i) const {
  double best = first_of(*this).coordinate(i);
  for (const location& l : *this) best = std::max(best, l.coordinate(i));
  return best;
}

double facilities::coordinate_min(int i) const {
  double best = first_of(*this).coordinate(i);
  for (const location& l : *this) best = std::min(best, l.coordinate(i));
  return best;
}

double facilities::coordinate_range(int i) const { return coordinate_max(i) - coordinate_min(i); }

double facilities::objective(int p, const location& x, int w) const {
  double sum = 0.0;
  for (const location& l : *this) sum += (l.coordinates() - x.coordinates()).norm(p) * l.weight(w);
  return sum;
}

double facilities::objective(int p, int w) const {
  if (optima_.empty()) report_error(model_messages::objective_unsolved);
  return objective(p, optima_.front(), w);
}

void facilities::write_optima(std::ostream& out) const {
  if (optima_.empty()) report_error(model_messages::write_unsolved);
  location::WriteAsPolygonList(out, optima_);
}

void facilities::l1_to_linf(std::list<location>& list) {
  for (location& l : list) l.l1_to_linf();
}

void facilities::linf_to_l1(std::list<location>& list) {
  for (location& l : list) l.linf_to_l1();
}

void facilities::l1_to_linf() {
  for (location& l : *this) l.l1_to_linf();
}

void facilities::linf_to_l1() {
  for (location& l : *this) l.linf_to_l1();
}

namespace {

struct sort_entry {
  double key;     // coordinate c
  double weight;  // weight w
  const location* source;
};

}  // namespace

std::list<location> facilities::sorted_merged(int c, int w) const {
  // A stable sort of the keys gives the order that sorting a copy of the list with
  // compare_by_coordinate would; reading key and weight in list order first spares a pointer
  // chase for every comparison and every merge.
  std::vector<sort_entry> order;
  order.reserve(size());
  for (const location& l : *this) order.push_back({l.coordinate(c), l.weight(w), &l});
  std::stable_sort(order.begin(), order.end(),
                   [](const sort_entry& a, const sort_entry& b) { return a.key < b.key; });
  std::list<location> merged;
  double last_key = 0.0;
  for (const sort_entry& e : order) {
    if (!merged.empty() && last_key == e.key) {
      merged.back().weight_ref(w) += e.weight;
    } else {
      merged.push_back(*e.source);
      last_key = e.key;
    }
  }
  return merged;
}

}  // namespace mero

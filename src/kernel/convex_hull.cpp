#include "kernel/convex_hull.h"

#include <algorithm>

namespace mero {

namespace {

bool lexicographic(const point& a, const point& b) {
  if (a.xcoord() != b.xcoord()) return a.xcoord() < b.xcoord();
  return a.ycoord() < b.ycoord();
}

// Appends p to the chain after dropping every corner that would not make a left turn towards it.
void extend_chain(std::vector<point>& chain, std::size_t floor, const point& p) {
  while (chain.size() >= floor + 2 && orientation(chain[chain.size() - 2], chain.back(), p) != 1)
    chain.pop_back();
  chain.push_back(p);
}

}  // namespace

std::vector<point> convex_hull(std::vector<point> points) {
  // A stable sort stays within its range even for points that are no numbers, which compare
  // inconsistently.
  std::stable_sort(points.begin(), points.end(), lexicographic);
  points.erase(std::unique(points.begin(), points.end()), points.end());
  if (points.size() < 3) return points;
  std::vector<point> hull;
  for (const point& p : points) extend_chain(hull, 0, p);  // lower chain, left to right
  const std::size_t lower = hull.size() - 1;
  for (auto p = points.rbegin() + 1; p != points.rend(); ++p)  // upper chain, right to left
    extend_chain(hull, lower, *p);
  hull.pop_back();  // the leftmost point closes the ring and already stands first
  return hull;
}

}  // namespace mero

#include "kernel/convex_intersection.h"

namespace mero {

half_plane left_of(const point& p, const point& q) {
  const double a = q.ycoord() - p.ycoord();
  const double b = p.xcoord() - q.xcoord();
  return {a, b, a * p.xcoord() + b * p.ycoord()};
}

namespace {

double slack(const half_plane& h, const point& p) {
  return h.a * p.xcoord() + h.b * p.ycoord() - h.c;
}

// Appends a vertex with the label of the edge that leaves it, merging it into an equal
// predecessor: the later label is the one of the edge that really leaves the point.
void emit(labeled_convex_polygon& out, const point& p, int label) {
  if (!out.vertices.empty() && out.vertices.back() == p) {
    out.edge_labels.back() = label;
    return;
  }
  out.vertices.push_back(p);
  out.edge_labels.push_back(label);
}

}  // namespace

labeled_convex_polygon clip(const labeled_convex_polygon& polygon, const half_plane& h, int label) {
  labeled_convex_polygon out;
  const std::size_t m = polygon.vertices.size();
  for (std::size_t k = 0; k < m; ++k) {
    const point& p = polygon.vertices[k];
    const point& q = polygon.vertices[(k + 1) % m];
    const double sp = slack(h, p), sq = slack(h, q);
    const bool p_in = sp <= 0.0, q_in = sq <= 0.0;
    // A vertex on the boundary whose edge leaves h continues along the boundary of h.
    if (p_in) emit(out, p, !q_in && sp == 0.0 ? label : polygon.edge_labels[k]);
    if (p_in != q_in && sp != 0.0 && sq != 0.0) {
      // The edge crosses the boundary of h strictly between its ends.
      const double t = sp / (sp - sq);
      const point cut(p.xcoord() + t * (q.xcoord() - p.xcoord()),
                      p.ycoord() + t * (q.ycoord() - p.ycoord()));
      emit(out, cut, p_in ? label : polygon.edge_labels[k]);
    }
  }
  if (out.vertices.size() > 1 && out.vertices.front() == out.vertices.back()) {
    out.vertices.pop_back();
    out.edge_labels.pop_back();
  }
  return out;
}

std::vector<point> convex_polygon_intersection(const std::vector<point>& a,
                                               const std::vector<point>& b) {
  if (b.size() < 3) {
    if (a.size() < 3) return {};
    return convex_polygon_intersection(b, a);
  }
  labeled_convex_polygon current{a, std::vector<int>(a.size(), -1)};
  for (std::size_t k = 0; k < b.size() && !current.vertices.empty(); ++k)
    current = clip(current, left_of(b[k], b[(k + 1) % b.size()]), static_cast<int>(k));
  return current.vertices;
}

}  // namespace mero

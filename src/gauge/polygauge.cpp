#include "gauge/polygauge.h"

#include <cmath>
#include <numbers>

#include "gauge/gauge_messages.h"
#include "kernel/convex_hull.h"
#include "kernel/error_handler.h"
#include "kernel/geometry_texts.h"

namespace mero {

namespace {

constexpr double two_pi = 6.283185307179586;

// The angle from direction (ux, uy) to direction (vx, vy), counter-clockwise in [0, 2 pi).
double angle_from(double ux, double uy, double vx, double vy) {
  double a = std::atan2(vy, vx) - std::atan2(uy, ux);
  if (a < 0.0) a += two_pi;
  return a;
}

double angle_from(const point& u, const point& v) {
  return angle_from(u.xcoord(), u.ycoord(), v.xcoord(), v.ycoord());
}

bool has_origin(const std::vector<point>& points) {
  for (const point& p : points)
    if (p == point()) return true;
  return false;
}

std::vector<segment> rays_of(const std::vector<point>& points) {
  std::vector<segment> dirs;
  dirs.reserve(points.size());
  for (const point& p : points) dirs.emplace_back(point(), p);
  return dirs;
}

// The angles of the points from the first into alphas; false as soon as one does not rise
// strictly above the one before.
bool angles_rise(const std::vector<point>& points, std::vector<double>& alphas) {
  alphas.clear();
  double last = -1.0;
  for (const point& p : points) {
    const double a = angle_from(points.front(), p);
    if (!(a > last)) return false;
    alphas.push_back(a);
    last = a;
  }
  return true;
}

// The angles of the points from the first, which must rise strictly.
std::vector<double> rising_angles(const std::vector<point>& points, const message& failure) {
  std::vector<double> alphas;
  if (!angles_rise(points, alphas)) report_error(failure);
  return alphas;
}

}  // namespace

const message* polygauge_fault(const std::vector<point>& points) {
  if (has_origin(points)) return &gauge_messages::origin_point;
  std::vector<double> alphas;
  if (!angles_rise(points, alphas)) return &gauge_messages::counterclockwise;
  // The closing step from the last ray back to the first is left out of this test on purpose.
  for (std::size_t k = 1; k < alphas.size(); ++k)
    if (!(std::fabs(alphas[k] - alphas[k - 1]) < std::numbers::pi))
      return &gauge_messages::alpha_pi;
  // A point on an edge of the polygon is no corner of the hull and fails here too.
  if (points.size() < 3 || convex_hull(points).size() != points.size())
    return &gauge_messages::not_convex;
  return nullptr;
}

polygauge::polygauge(const std::vector<point>& points) {
  if (const message* fault = polygauge_fault(points)) report_error(*fault);
  dirs_ = rays_of(points);
  angles_rise(points, alphas_);
}

point polygauge::direction(int k) const {
  const segment& s = dirs_[k];
  return point(s.dx(), s.dy());
}

double polygauge::angle_at(const point& x, const point& p) const {
  const point first = direction(0);
  return angle_from(first.xcoord(), first.ycoord(), p.xcoord() - x.xcoord(),
                    p.ycoord() - x.ycoord());
}

bool polygauge::holds(int cone, double a, bool& interior) const {
  const int n = cones();
  interior = true;
  if (cone == n && a > alphas_[n - 1]) return true;
  const double low = alphas_[cone - 1];
  const double high = alphas_[cone % n];
  if (a == low || a == high) interior = false;  // p lies on a ray
  return low <= a && a <= high;
}

bool polygauge::in_cone(const point& x, int cone, const point& p, bool& interior) const {
  if (cone > cones() || cone < 1) report_error(gauge_messages::cone_in_cone);
  if (p == x) {
    interior = false;
    return false;
  }
  return holds(cone, angle_at(x, p), interior);
}

// The angle of p is measured once and tried against the cones in order, as in_cone would.
int polygauge::cone_of(const point& x, const point& p, bool& interior) const {
  if (p == x) {
    interior = false;
    return 0;
  }
  const double a = angle_at(x, p);
  for (int cone = 1; cone <= cones(); ++cone)
    if (holds(cone, a, interior)) return cone;
  return 0;
}

std::pair<point, point> polygauge::fundamental_directions(const point& x, int cone) const {
  const int n = cones();
  if (cone > n || cone < 1) report_error(gauge_messages::cone_directions);
  const point e1 = direction(cone - 1), e2 = direction(cone % n);
  return {point(x.xcoord() + e1.xcoord(), x.ycoord() + e1.ycoord()),
          point(x.xcoord() + e2.xcoord(), x.ycoord() + e2.ycoord())};
}

double polygauge::dist(const point& x, const point& y) const {
  if (x == y) return 0.0;
  bool interior = false;
  const int cone = cone_of(x, y, interior);
  const std::pair<point, point> ends = fundamental_directions(x, cone);
  // Columns of the matrix: the two fundamental directions; solve by its inverse.
  const double a = ends.first.xcoord() - x.xcoord(), c = ends.first.ycoord() - x.ycoord();
  const double b = ends.second.xcoord() - x.xcoord(), d = ends.second.ycoord() - x.ycoord();
  const double det = a * d - b * c;
  if (det == 0.0) kernel_error(1, texts::matrix_not_full_rank);
  const double rx = y.xcoord() - x.xcoord(), ry = y.ycoord() - x.ycoord();
  const double lambda1 = (d * rx - b * ry) / det;
  const double lambda2 = (a * ry - c * rx) / det;
  return std::fabs(lambda1) + std::fabs(lambda2);
}

std::vector<point> polygauge::extreme_points(const point& x) const {
  std::vector<point> points;
  points.reserve(dirs_.size());
  for (int k = 0; k < cones(); ++k) {
    const point e = direction(k);
    points.emplace_back(x.xcoord() + e.xcoord(), x.ycoord() + e.ycoord());
  }
  return points;
}

namespace {

double coordinate(const point& p, int i) { return i == 0 ? p.xcoord() : p.ycoord(); }

// The first extreme point whose coordinate i beats all earlier ones by better.
template <typename Better>
point extreme_by(const point& x, const std::vector<point>& points, int i, Better better) {
  if (points.empty()) return x;  // a mixgauge may have kept no point
  point best = points.front();
  for (const point& p : points)
    if (better(coordinate(p, i), coordinate(best, i))) best = p;
  return best;
}

}  // namespace

point polygauge::max(const point& x, int i) const {
  if (i != 0 && i != 1) report_error(gauge_messages::max_index);
  return extreme_by(x, extreme_points(x), i, [](double a, double b) { return a > b; });
}

point polygauge::mini(const point& x, int i) const {
  if (i != 0 && i != 1) report_error(gauge_messages::mini_index);
  return extreme_by(x, extreme_points(x), i, [](double a, double b) { return a < b; });
}

double polygauge::max_diff(int i) const {
  if (i != 0 && i != 1) report_error(gauge_messages::max_diff_index);
  return coordinate(max(point(), i), i) - coordinate(mini(point(), i), i);
}

double polygauge::max_length() const {
  double longest = 0.0;
  for (const segment& s : dirs_) longest = std::fmax(longest, s.length());
  return longest;
}

polygauge polygauge::moved(const point& x) const {
  polygauge copy = *this;
  for (segment& s : copy.dirs_) s = s.translate(x.xcoord(), x.ycoord());
  return copy;
}

mixgauge::kept mixgauge::checked(const std::vector<point>& points,
                                 const std::vector<bool>& conetyps) {
  if (points.size() != conetyps.size()) report_error(gauge_messages::mix_sizes);
  if (has_origin(points)) report_error(gauge_messages::mix_origin_point);
  // Of a run of round cones only the first point stays: the inner points of an arc are no
  // corners of the ball.
  std::vector<point> kept_points;
  kept k;
  bool previous = false;
  for (std::size_t i = 0; i < points.size(); ++i) {
    if (!(previous && conetyps[i])) {
      kept_points.push_back(points[i]);
      k.conetyps.push_back(conetyps[i]);
    }
    previous = conetyps[i];
  }
  if (!kept_points.empty() && k.conetyps.back() && k.conetyps.front() && kept_points.size() > 1) {
    kept_points.pop_back();
    k.conetyps.pop_back();
  }
  k.dirs = rays_of(kept_points);
  k.alphas = rising_angles(kept_points, gauge_messages::mix_counterclockwise);
  if (!k.alphas.empty() && k.alphas.back() < 0.0) report_error(gauge_messages::mix_last_angle);
  for (std::size_t i = 1; i < k.alphas.size(); ++i)
    if (std::fabs(k.alphas[i] - k.alphas[i - 1]) > std::numbers::pi)
      report_error(gauge_messages::mix_alpha_pi);
  if (convex_hull(kept_points).size() != kept_points.size())
    report_error(gauge_messages::mix_not_convex);
  return k;
}

mixgauge::mixgauge(kept k)
    : polygauge(std::move(k.dirs), std::move(k.alphas)), conetyps_(std::move(k.conetyps)) {}

mixgauge::mixgauge(const std::vector<point>& points, const std::vector<bool>& conetyps)
    : mixgauge(checked(points, conetyps)) {}

polygauge rectilinear_gauge() {
  return polygauge({point(0, 1), point(-1, 0), point(0, -1), point(1, 0)});
}

polygauge chebyshev_gauge() {
  return polygauge({point(-1, 1), point(-1, -1), point(1, -1), point(1, 1)});
}

}  // namespace mero

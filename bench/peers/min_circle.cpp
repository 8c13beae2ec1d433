// Reads a mero location file (header line, "x y w" lines, "end" line) and prints the radius of
// the smallest enclosing circle of the points with CGAL's Min_circle_2 (Welzl's randomised
// method), for comparison with mero's l2_v1_max on the same file.
#include <CGAL/Min_circle_2.h>
#include <CGAL/Min_circle_2_traits_2.h>
#include <CGAL/Simple_cartesian.h>

#include <cmath>
#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

using kernel = CGAL::Simple_cartesian<double>;
using traits = CGAL::Min_circle_2_traits_2<kernel>;
using min_circle = CGAL::Min_circle_2<traits>;

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  std::ifstream in(argv[1]);
  std::string line;
  std::getline(in, line);  // begin {location} [2,1]
  std::vector<kernel::Point_2> points;
  double x, y, w;
  while (in >> x >> y >> w) points.emplace_back(x, y);
  min_circle circle(points.begin(), points.end(), true);
  std::printf("radius %.17g\n", std::sqrt(circle.circle().squared_radius()));
  return 0;
}

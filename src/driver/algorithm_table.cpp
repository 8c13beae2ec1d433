#include "driver/algorithm_table.h"

#include <cstdio>
#include <vector>

namespace mero {

namespace {

// The order within a chain does not matter: names are unique in their chain.
const algorithm_name names[] = {
    {chain::A, "l1_sum", 0},
    {chain::A, "l2_sum", 1},
    {chain::A, "l2sqr_sum", 2},
    {chain::A, "lp_sum", 3},
    {chain::A, "linf_sum", 4},
    {chain::A, "l1_max", 5},
    {chain::A, "l2_max", 6},
    {chain::A, "l2_v1_max", 6},
    {chain::A, "linf_max", 7},
    {chain::A, "l1_v1_max", 8},
    {chain::A, "linf_v1_max", 9},
    {chain::A, "l2sqr_qsum", 10},
    {chain::A, "l1_2sum", 11},
    {chain::A, "linf_2sum", 12},
    {chain::A, "dir_median", 100},
    {chain::A, "undir_median", 102},
    {chain::A, "loc_undir_median", 102},
    {chain::A, "abs_undir_median", 103},
    {chain::A, "loc_tree_median", 104},
    {chain::A, "abs_tree_median", 105},
    {chain::A, "loc_dir_center", 110},
    {chain::A, "abs_undir_center", 111},
    {chain::A, "abs_undir_v1_center", 111},
    {chain::A, "loc_tree_v1_center", 112},
    {chain::A, "abs_tree_v1_center", 113},
    {chain::A, "abs_dir_center", 115},
    {chain::A, "loc_undir_center", 116},
    {chain::A, "loc_undir_v1_center", 116},
    {chain::A, "loc_tree_center", 117},
    {chain::A, "abs_tree_center", 118},
    {chain::A, "N_median_cplex", 120},
    {chain::A, "N_median_partitioning", 121},
    {chain::A, "N_median_exchange", 122},
    {chain::A, "N_median_greedy", 123},
    {chain::A, "N_center_partitioning", 131},
    {chain::A, "N_center_greedy", 133},
    {chain::A, "medPareto", 140},
    {chain::A, "loc_medPareto", 141},
    {chain::A, "loc_cenPareto", 142},
    {chain::A, "dir_medPareto", 145},
    {chain::A, "dir_loc_medPareto", 146},
    {chain::A, "dir_loc_cenPareto", 147},
    {chain::A, "dir_cenPareto", 148},
    {chain::A, "medLexi", 150},
    {chain::A, "loc_medLexi", 151},
    {chain::A, "loc_cenLexi", 152},
    {chain::A, "dir_medLexi", 155},
    {chain::A, "dir_loc_medLexi", 156},
    {chain::A, "dir_loc_cenLexi", 157},
    {chain::A, "L_l2_sum_M3", 300},
    {chain::A, "L_l1_sum_M3", 301},
    {chain::A, "L_linf_sum_M3", 302},
    {chain::A, "L_lp_sum_M3", 303},
    {chain::A, "L_l2_sum_M2logM", 304},
    {chain::A, "L_l2_sum_M2", 305},
    {chain::A, "L_l2_max_M4", 350},
    {chain::A, "L_l1_max_M4", 351},
    {chain::A, "L_linf_max_M4", 352},
    {chain::A, "L_l2_max_MlogM", 353},
    {chain::A, "L_l2_max_M2logM", 354},
    {chain::A, "L_lp_max_M4", 355},
    {chain::A, "UFL_Greedy", 401},
    {chain::A, "UFL_Stingy", 402},
    {chain::A, "UFL_Interchange", 403},
    {chain::A, "UFL_Dualoc", 404},

    {chain::N, "N_l1_sum_v1", 20},
    {chain::N, "N_l2sqr_sum", 21},
    {chain::N, "N_l2_sum_v1", 22},
    {chain::N, "N_linf_sum_v1", 23},
    {chain::N, "N_lp_sum_v1", 24},
    {chain::N, "N_l1_max", 40},
    {chain::N, "N_linf_max", 41},

    {chain::R, "in_l2sqr_sum", 50},
    {chain::R, "in_l1_sum", 51},
    {chain::R, "in_linf_sum", 52},
    {chain::R, "lp_sum", 53},
    {chain::R, "out_l2sqr_sum", 55},
    {chain::R, "out_l1_sum", 56},
    {chain::R, "out_linf_sum", 57},
    {chain::R, "in_l2_max", 60},
    {chain::R, "in_convex_linf_max", 61},
    {chain::R, "in_convex_l1_max", 64},
    {chain::R, "barr_l2_sum", 70},
    {chain::R, "dir_median", 160},
    {chain::R, "undir_median", 161},
    {chain::R, "abs_undir_median", 162},
    {chain::R, "L_RkonvPoly_l2_sum", 307},
    {chain::R, "L_RkonvPoly_lp_sum", 308},
    {chain::R, "L_RkonvPoly_l1_sum", 309},
    {chain::R, "L_RkonvPoly_linf_sum", 310},

    {chain::G, "gauge_median", 200},
    {chain::G, "bi_crit_gauge_median", 201},
    {chain::G, "gauge_center", 210},
    {chain::G, "L_block_sum_M3", 306},
    {chain::G, "L_block_max_M4", 356},

    {chain::RG, "restr_gauge_center", 211},
    {chain::RG, "L_RkonvPoly_block_sum", 311},
};

struct label_entry {
  int number;
  const char* format;
};

// Labels by number. Where a label repeats or misnames another entry (9, 41, 355, 356), that is
// the label users know from earlier reports and it stays.
const label_entry labels[] = {
    {0, "1|P|.|l1|sum"},
    {1, "1|P|.|l2 with eps: %6.3E|sum"},
    {2, "1|P|.|l2sqr|sum"},
    {3, "1|P|.|l%d with eps: %6.3E|sum"},
    {4, "1|P|.|linf|sum"},
    {5, "1|P|.|l1|max"},
    {6, "1|P|v=1|l2|max"},
    {7, "1|P|.|linf|max"},
    {8, "1|P|v=1|l1|max"},
    {9, "1|P|v=1|l1|max"},
    {10, "1|P|.|l2sqr|qsum"},
    {11, "1|P|.|l1|2sum"},
    {12, "1|P|.|linf|2sum"},
    {20, "%d|P|.|l1|sum"},
    {21, "%d|P|.|l2sqr|sum"},
    {22, "%d|P|.|l2|sum"},
    {23, "%d|P|.|linf|sum"},
    {24, "%d|P|.|l%d|sum"},
    {40, "%d|P|.|l1|max"},
    {41, "%d|P|.|linf|sum"},
    {50, "1|P|restr|l2sqr|sum"},
    {51, "1|P|restr|l1|sum"},
    {52, "1|P|restr|linf|sum"},
    {53, "1|P|restr|l%d with eps: %6.3E|sum"},
    {55, "1|P|restr(out)|l2sqr|sum"},
    {56, "1|P|restr(out)|l1|sum"},
    {57, "1|P|restr(out)|linf|sum"},
    {60, "1|P|restr|l2|max"},
    {61, "1|P|restr|linf|max"},
    {64, "1|P|restr|l1|max"},
    {70, "1|P|barr|l2|sum"},
    {100, "1|G|.|d(V,V)|sum"},
    {102, "1|G|.|d(V,V)|sum"},
    {103, "1|G|.|d(V,G)|sum"},
    {104, "1|Tree|.|d(V,V)|sum"},
    {105, "1|Tree|.|d(V,T)|sum"},
    {110, "1|G|.|d(V,V)|max"},
    {111, "1|G|.|d(V,G)|max"},
    {112, "1|Tree|.|d(V,V)|max"},
    {113, "1|Tree|.|d(V,T)|max"},
    {114, "2|Tree|.|d(V,V)|max"},
    {115, "1|G|.|d(V,G)|max"},
    {116, "1|G|.|d(V,V)|max"},
    {117, "1|Tree|.|d(V,V)|max"},
    {118, "1|Tree|.|d(V,T)|max"},
    {120, "%d|G|.|d(V,V)|sum: exact"},
    {121, "%d|G|.|d(V,V)|sum: Partitioning"},
    {122, "%d|G|.|d(V,V)|sum: Exchange"},
    {123, "%d|G|.|d(V,V)|sum: Greedy"},
    {131, "%d|G|.|d(V,V)|max: Partitioning"},
    {133, "%d|G|.|d(V,V)|max: Greedy"},
    {140, "1|G|.|d(V,G)|Q-sum-par"},
    {141, "1|G|.|d(V,V)|Q-sum-par"},
    {142, "1|G|.|d(V,V)|Q-max-par"},
    {145, "1|G_D|.|d(V,G)|Q-sum-par"},
    {146, "1|G_D|.|d(V,V)|Q-sum-par"},
    {147, "1|G_D|.|d(V,V)|Q-max-par"},
    {148, "1|G_D|.|d(V,G)|Q-max-par"},
    {150, "1|G|.|d(V,G)|Q-sum-lex"},
    {151, "1|G|.|d(V,V)|Q-sum-lex"},
    {152, "1|G|.|d(V,V)|Q-max-lex"},
    {155, "1|G_D|.|d(V,G)|Q-sum-lex"},
    {156, "1|G_D|.|d(V,V)|Q-sum-lex"},
    {157, "1|G_D|.|d(V,V)|Q-max-lex"},
    {200, "1|P|.|gauges|sum"},
    {201, "1|P|.|gauges|qsum"},
    {210, "1|P|.|gauges|max"},
    {211, "1|P|R|gauges|max"},
    {300, "1L|P|.|l2|sum: M3"},
    {301, "1L|P|.|l1|sum"},
    {302, "1L|P|.|linf|sum"},
    {303, "1L|P|.|l%d|sum"},
    {304, "1L|P|.|l2|sum: M2logM"},
    {305, "1L|P|v=1|l2|sum"},
    {306, "1L|P|.|block|sum"},
    {307, "1L|P|restr|l2|sum"},
    {308, "1L|P|restr|l%d|sum"},
    {309, "1L|P|restr|l1|sum"},
    {310, "1L|P|restr|linf|sum"},
    {311, "1L|P|restr|block|sum"},
    {350, "1L|P|.|l2|max: M4"},
    {351, "1L|P|.|l1|max"},
    {352, "1L|P|.|linf|max"},
    {353, "1L|P|v=1|l2|max"},
    {354, "1L|P|.|l2|max: M2logM"},
    {355, "1L|P|.|l%d|sum"},
    {356, "1L|P|.|block|sum"},
    {401, "#|D|.|.|."},
    {402, "#|D|.|.|."},
    {403, "#|D|.|.|."},
    {404, "#|D|.|.|."},
};

const char* label_format(int number, const label_values& values) {
  // The Pareto median has its own two-criteria solver and label.
  if (number == 140 && values.count == 2) return "1|G|.|d(V,G)|2-sum-par";
  for (const label_entry& l : labels)
    if (l.number == number) return l.format;
  return "";
}

std::string printf_string(const char* format, auto... args) {
  int size = std::snprintf(nullptr, 0, format, args...);
  std::vector<char> text(static_cast<std::size_t>(size) + 1);
  std::snprintf(text.data(), text.size(), format, args...);
  return text.data();
}

}  // namespace

std::span<const algorithm_name> algorithm_names() { return names; }

int find_algorithm(chain in, std::string_view name) {
  for (const algorithm_name& e : names)
    if (e.in == in && name == e.name) return e.number;
  return no_algorithm;
}

std::string format_label(int number, const label_values& v) {
  const char* format = label_format(number, v);
  switch (number) {
    case 1:
      return printf_string(format, v.eps);
    case 3:
    case 53:
      return printf_string(format, v.p, v.eps);
    case 303:
    case 308:
    case 355:
      return printf_string(format, v.p);
    case 24:
      return printf_string(format, v.count, v.p);
    case 20: case 21: case 22: case 23: case 40: case 41:
    case 120: case 121: case 122: case 123: case 131: case 133:
      return printf_string(format, v.count);
    default:
      return format;
  }
}

bool needs_p(int number) {
  for (int n : {3, 24, 53, 303, 308, 355})
    if (n == number) return true;
  return false;
}

bool needs_n(int number) { return number >= 120 && number <= 123; }

}  // namespace mero

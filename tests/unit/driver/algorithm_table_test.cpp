#include "driver/algorithm_table.h"

#include "test_support.h"

namespace mero {
namespace {

TEST(algorithm_table, labels_are_formatted_after_the_solver) {
  EXPECT_EQ(format_label(1, {0, 0.001, 0}), "1|P|.|l2 with eps: 1.000E-03|sum");
  EXPECT_EQ(format_label(53, {4, 0.5, 0}), "1|P|restr|l4 with eps: 5.000E-01|sum");
  EXPECT_EQ(format_label(24, {3, 0, 2}), "2|P|.|l3|sum");
  EXPECT_EQ(format_label(41, {0, 0, 5}), "5|P|.|linf|sum");
  EXPECT_EQ(format_label(355, {6, 0, 0}), "1L|P|.|l6|sum");
  EXPECT_EQ(format_label(123, {0, 0, 4}), "4|G|.|d(V,V)|sum: Greedy");
  EXPECT_EQ(format_label(140, {0, 0, 2}), "1|G|.|d(V,G)|2-sum-par");
  EXPECT_EQ(format_label(140, {0, 0, 3}), "1|G|.|d(V,G)|Q-sum-par");
  EXPECT_EQ(format_label(9, {}), "1|P|v=1|l1|max");
  EXPECT_EQ(format_label(114, {}), "2|Tree|.|d(V,V)|max");
  EXPECT_EQ(format_label(160, {}), "");
}

TEST(algorithm_table, names_by_chain) {
  EXPECT_EQ(find_algorithm(chain::A, "lp_sum"), 3);
  EXPECT_EQ(find_algorithm(chain::R, "lp_sum"), 53);
  EXPECT_EQ(find_algorithm(chain::A, "L1_sum"), no_algorithm);  // case matters
  EXPECT_EQ(find_algorithm(chain::A, "l2_v1_max"), 6);
  EXPECT_EQ(find_algorithm(chain::RG, "L_RkonvPoly_block_sum"), 311);
  EXPECT_EQ(find_algorithm(chain::N, "N_lp_sum_v1"), 24);
  EXPECT_EQ(find_algorithm(chain::G, "L_block_max_M3"), no_algorithm);
}

}  // namespace
}  // namespace mero

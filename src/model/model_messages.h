#pragma once
// The texts and codes that the location model reports, kept in one place so that the code that
// raises them and the tests that expect them read the same words.

namespace mero {

struct model_message {
  int code;
  const char* text;
};

namespace model_messages {

inline constexpr model_message rotate_dimension{
    1101, "Loc_Vector::rotate():To rotate the dimension must be 2."};
inline constexpr model_message bad_norm{1201, "Bad p-Norm argument in location::norm(int p)."};
inline constexpr model_message zero_length{1202, "Zero length location in location::r_angle()."};
inline constexpr model_message point_dimension{1203,
                                               "Conversion to only possible for dimension 2."};
inline constexpr model_message incompatible_dimension{1205, "Incompatible dimension."};
inline constexpr model_message coordinate_reference{1207, "Index out of range."};
inline constexpr model_message coordinate_read{1208, "Index out of range."};
inline constexpr model_message weight_reference{1209, "Index out of range."};
inline constexpr model_message weight_read{1210, "Index out of range."};
inline constexpr model_message division_by_zero{1211, "Division by zero."};
inline constexpr model_message not_a_polygon_list{
    1212, "Can't happen: L in location::WriteAsPolygonList is not a polygon list?"};

inline constexpr model_message objective_unsolved{1303, "Solve a problem first."};
inline constexpr model_message write_unsolved{1304, "Solve a problem first."};
inline constexpr model_message remove_index{
    1305, "facilities::remove(): There is no corresponding location for idx"};
inline constexpr model_message foreign_item{
    1334, "facilities::refname(): location isn't an item of this object"};

// The walk to the half-sum found no median (negative or undefined weights) or ran off the end of
// the list looking for an entry of non-zero weight in column 0.
inline constexpr model_message l1_no_median{1350,
                                            "facilities::l1_sum(): The weights give no median."};
inline constexpr model_message l1_no_corner{
    1351, "facilities::l1_sum(): No location of non-zero weight in column 0 beyond the median."};

inline constexpr const char* empty_list = "dlist::head(): empty list";
inline constexpr const char* l1_all_zero =
    "facilities::l1_sum(): All weights are equal zero:The whole plane is optimal";

}  // namespace model_messages

// Ends the process through the error reporter with the message's text and code.
[[noreturn]] void report_model_error(const model_message& m);

}  // namespace mero

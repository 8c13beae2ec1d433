#pragma once
// The failure texts of the kernel's number vector, dense matrix and planar geometry types. Each
// is raised through kernel_error with code 1 (which stops the run). Trailing newlines are part of
// the texts as the system prints them.

namespace mero::texts {

inline constexpr const char* vector_negative_dimension = "vector: negative dimension.";
inline constexpr const char* vector_index = "vector: index out of range";
inline constexpr const char* vector_dimensions = "vector arguments have different dimensions.";
inline constexpr const char* vector_rotate = "vector::rotate: dimension must be two.";
inline constexpr const char* vector_rotate90 = "vector::rotate90: dimension must be two.";
inline constexpr const char* vector_angle_zero = "angle: zero argument\n";

inline constexpr const char* matrix_negative_dimension = "matrix: negative dimension.";
inline constexpr const char* matrix_row_index = "matrix: row index out of range";
inline constexpr const char* matrix_col_index = "matrix: col index out of range";
inline constexpr const char* matrix_incompatible = "incompatible matrix types.";
inline constexpr const char* matrix_multiplication =
    "matrix multiplication: incompatible matrix types\n";
inline constexpr const char* matrix_det_not_quadratic = "matrix::det: matrix not quadratic.\n";
inline constexpr const char* matrix_inv_not_quadratic = "matrix::inv: matrix not quadratic.\n";
inline constexpr const char* matrix_not_full_rank = "matrix::solve: matrix has not full rank.";
inline constexpr const char* matrix_solve_dimensions = "Solve: wrong dimensions\n";
inline constexpr const char* matrix_to_vector = "error: cannot make vector from matrix\n";

inline constexpr const char* point_angle_zero = "point::angle:  zero vector input.";
inline constexpr const char* circle_not_admissible = "circle::circle: non-admissable triple";
inline constexpr const char* circle_collinear = "circle::center(): points are collinear.";
inline constexpr const char* polygon_not_simple = "POLYGON: POLYGON is not simple";
inline constexpr const char* polygon_not_weakly_simple = "POLYGON: POLYGON is not weakly simple";

}  // namespace mero::texts

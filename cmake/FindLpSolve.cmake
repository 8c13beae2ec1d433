# FindLpSolve: lp_solve 5.5 as Debian's liblpsolve55-dev ships it.
#
# Debian installs only static archives (/usr/lib/liblpsolve55.a) and the headers under
# /usr/include/lpsolve. The archive leaves the COLAMD ordering routines, dlopen/dlsym (for its
# optional external factorisation packages) and the maths library unresolved, so the imported
# target carries them. COLAMD is taken as its static archive where Debian ships one
# (libsuitesparse-dev does, with the SuiteSparse configuration archive it needs): the program then
# loads no shared library of its own, and a static build of it is possible.
#
# Result: LpSolve_FOUND, LpSolve_INCLUDE_DIR, LpSolve_LIBRARY and the target LpSolve::LpSolve,
# whose users write #include <lpsolve/lp_lib.h>.

find_path(LpSolve_INCLUDE_DIR NAMES lpsolve/lp_lib.h)
find_library(LpSolve_LIBRARY NAMES lpsolve55 lpsolve55_pic)
find_library(LpSolve_COLAMD_LIBRARY NAMES libcolamd.a colamd)
find_library(LpSolve_SUITESPARSECONFIG_LIBRARY NAMES libsuitesparseconfig.a suitesparseconfig)
find_library(LpSolve_MATH_LIBRARY NAMES m)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(LpSolve
  REQUIRED_VARS LpSolve_LIBRARY LpSolve_INCLUDE_DIR LpSolve_COLAMD_LIBRARY)

if(LpSolve_FOUND AND NOT TARGET LpSolve::LpSolve)
  add_library(LpSolve::LpSolve UNKNOWN IMPORTED)
  set(lpsolve_deps ${LpSolve_COLAMD_LIBRARY})
  if(LpSolve_COLAMD_LIBRARY MATCHES "[.]a$" AND LpSolve_SUITESPARSECONFIG_LIBRARY)
    list(APPEND lpsolve_deps ${LpSolve_SUITESPARSECONFIG_LIBRARY})
  endif()
  list(APPEND lpsolve_deps ${CMAKE_DL_LIBS})
  if(LpSolve_MATH_LIBRARY)
    list(APPEND lpsolve_deps ${LpSolve_MATH_LIBRARY})
  endif()
  set_target_properties(LpSolve::LpSolve PROPERTIES
    IMPORTED_LOCATION "${LpSolve_LIBRARY}"
    INTERFACE_INCLUDE_DIRECTORIES "${LpSolve_INCLUDE_DIR}"
    INTERFACE_LINK_LIBRARIES "${lpsolve_deps}")
endif()

mark_as_advanced(LpSolve_INCLUDE_DIR LpSolve_LIBRARY LpSolve_COLAMD_LIBRARY
                 LpSolve_SUITESPARSECONFIG_LIBRARY LpSolve_MATH_LIBRARY)

# mero_scanner(target file.l): generates a reentrant flex scanner into the build tree and adds it
# to the target. Generated code may relax the warnings that flex's skeleton triggers.
find_package(FLEX REQUIRED)

function(mero_scanner target lexfile)
  get_filename_component(stem ${lexfile} NAME_WE)
  set(out ${CMAKE_CURRENT_BINARY_DIR}/${stem}.yy.cpp)
  flex_target(${stem}_scanner ${CMAKE_CURRENT_SOURCE_DIR}/${lexfile} ${out})
  set_source_files_properties(${out} PROPERTIES
    COMPILE_OPTIONS "-Wno-unused-function;-Wno-sign-compare;-Wno-unused-parameter;-Wno-register")
  target_sources(${target} PRIVATE ${out})
  target_include_directories(${target} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
endfunction()

# mero_subsystem(name [DEPENDS lib...]): one object library per source folder, holding every
# .cpp of the folder and a scanner for every .l; main.cpp is left to the program. The objects of
# all subsystems are packed into the one static library libmero (src/CMakeLists.txt).
function(mero_subsystem name)
  cmake_parse_arguments(ARG "" "" "DEPENDS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  file(GLOB scanners CONFIGURE_DEPENDS RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} ${CMAKE_CURRENT_SOURCE_DIR}/*.l)
  if(NOT sources AND NOT scanners)
    # A folder that is just starting: an empty unit keeps the target (and those that depend on it)
    # valid until its first source arrives.
    set(sources ${CMAKE_CURRENT_BINARY_DIR}/empty.cpp)
    file(WRITE ${sources} "")
  endif()
  add_library(mero_${name} OBJECT ${sources})
  set_property(GLOBAL APPEND PROPERTY MERO_SUBSYSTEMS mero_${name})
  foreach(l ${scanners})
    mero_scanner(mero_${name} ${l})
  endforeach()
  target_include_directories(mero_${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  target_compile_options(mero_${name} PRIVATE -Wall -Wextra)
  target_link_libraries(mero_${name} PUBLIC ${ARG_DEPENDS})
endfunction()

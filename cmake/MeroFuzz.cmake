# The fuzzing harnesses (fuzz/). A harness is one file fuzz/<name>_fuzz.cpp defining
# LLVMFuzzerTestOneInput; mero_fuzz_harness(<name>) builds it in one of two ways:
#
# - in the test tree (any compiler): fuzz_<name>_replay, the harness linked with a main that feeds
#   it files, and the test fuzz_replay_<name>, which replays fuzz/corpus/<name> and the kept
#   reproducers of fuzz/regressions/<name>;
# - in the fuzzing tree (MERO_FUZZ=ON, clang): fuzz_<name>, the libFuzzer program that
#   `make fuzz` runs (the whole tree is then compiled with coverage for libFuzzer).
set(MERO_FUZZ_DIR ${CMAKE_SOURCE_DIR}/fuzz)

function(mero_fuzz_harness name)
  set(source ${MERO_FUZZ_DIR}/${name}_fuzz.cpp)
  if(MERO_FUZZ)
    add_executable(fuzz_${name} ${source})
    target_link_libraries(fuzz_${name} PRIVATE mero_fuzz_support libmero)
    target_link_options(fuzz_${name} PRIVATE -fsanitize=fuzzer)
    set_target_properties(fuzz_${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/fuzz)
  else()
    add_executable(fuzz_${name}_replay ${source} ${MERO_FUZZ_DIR}/support/replay_main.cpp)
    target_link_libraries(fuzz_${name}_replay PRIVATE mero_fuzz_support libmero)
    add_test(NAME fuzz_replay_${name}
             COMMAND fuzz_${name}_replay ${MERO_FUZZ_DIR}/corpus/${name}
                     ${MERO_FUZZ_DIR}/regressions/${name})
    set_tests_properties(fuzz_replay_${name} PROPERTIES
      ENVIRONMENT "ASAN_OPTIONS=detect_leaks=1:max_allocation_size_mb=2048;UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1")
  endif()
endfunction()

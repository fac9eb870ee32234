# The kinds of target the program is made of.

# kalvo_library(<name> [MOC] [PRECOMPILED <kind>] SOURCES <files...> LINK <targets...>)
# A static library whose headers are included by their path from the project's root. MOC is for
# libraries with Q_OBJECT classes; PRECOMPILED is a kind of KalvoPrecompiled, "plain" unless told
# otherwise.
function(kalvo_library name)
  cmake_parse_arguments(LIBRARY "MOC" "PRECOMPILED" "SOURCES;LINK" ${ARGN})
  if(NOT LIBRARY_PRECOMPILED)
    set(LIBRARY_PRECOMPILED plain)
  endif()
  add_library(${name} STATIC ${LIBRARY_SOURCES})
  set_target_properties(${name} PROPERTIES AUTOMOC ${LIBRARY_MOC})
  target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR})
  target_link_libraries(${name} PUBLIC ${LIBRARY_LINK})
  kalvo_use_precompiled(${LIBRARY_PRECOMPILED} ${name})
endfunction()

# kalvo_test(<name> SOURCES <files...> LINK <targets...>)
# One test program of GoogleTest cases, run on Qt's offscreen platform. Its main comes from
# tests/support and starts a QApplication, so that widgets and the event loop are there.
add_custom_target(kalvo_tests)
# A test runs each of its lines about once: optimizing them takes longer than they do.
set(KALVO_TEST_OPTIONS -O0)
function(kalvo_test name)
  cmake_parse_arguments(TEST "" "" "SOURCES;LINK" ${ARGN})
  add_executable(${name} ${TEST_SOURCES})
  target_link_libraries(${name} PRIVATE ${TEST_LINK} kalvo_test_support)
  target_compile_definitions(${name} PRIVATE
    KALVO_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
  target_compile_options(${name} PRIVATE ${KALVO_TEST_OPTIONS})
  kalvo_use_precompiled(tests ${name})
  add_dependencies(kalvo_tests ${name})
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8" TIMEOUT 100)
endfunction()

# kalvo_benchmark(<name> [PRECOMPILED <kind>] SOURCES <files...> LINK <targets...>)
# A Google Benchmark program. It is built with the tests so that it cannot rot, and run by hand.
function(kalvo_benchmark name)
  cmake_parse_arguments(BENCH "" "PRECOMPILED" "SOURCES;LINK" ${ARGN})
  add_executable(${name} ${BENCH_SOURCES})
  target_link_libraries(${name} PRIVATE ${BENCH_LINK} benchmark::benchmark_main)
  target_compile_definitions(${name} PRIVATE KALVO_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
  if(BENCH_PRECOMPILED)
    kalvo_use_precompiled(${BENCH_PRECOMPILED} ${name})
  endif()
endfunction()

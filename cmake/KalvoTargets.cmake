# The kinds of target the rooms are made of.

# kalvo_room(<name> [MOC] [PRECOMPILED <kind>] SOURCES <files...> LINK <targets...>)
# A static library whose headers are included by their path from the project's root. MOC is for
# the rooms whose classes are Q_OBJECTs; PRECOMPILED is a kind of KalvoPrecompiled, "plain"
# unless told otherwise, or "none" for a room without what every kind links.
function(kalvo_room name)
  cmake_parse_arguments(ROOM "MOC" "PRECOMPILED" "SOURCES;LINK" ${ARGN})
  if(NOT ROOM_PRECOMPILED)
    set(ROOM_PRECOMPILED plain)
  endif()
  add_library(${name} STATIC ${ROOM_SOURCES})
  set_target_properties(${name} PROPERTIES AUTOMOC ${ROOM_MOC})
  target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR})
  target_link_libraries(${name} PUBLIC ${ROOM_LINK})
  if(NOT ROOM_PRECOMPILED STREQUAL none)
    kalvo_use_precompiled(${ROOM_PRECOMPILED} ${name})
  endif()
endfunction()

# kalvo_test(<name> SOURCES <files...> LINK <targets...>)
# One test program of GoogleTest cases, run on Qt's offscreen platform. Its main comes from
# tests/support and starts a QApplication, so that widgets and the event loop are there.
add_custom_target(kalvo_tests)
# A test runs each of its lines about once: optimising them takes longer than they do.
set(KALVO_TEST_OPTIONS -O0)
function(kalvo_test name)
  cmake_parse_arguments(TEST "" "" "SOURCES;LINK" ${ARGN})
  add_executable(${name} ${TEST_SOURCES})
  target_link_libraries(${name} PRIVATE ${TEST_LINK} kalvo_test_support)
  target_compile_definitions(${name} PRIVATE
    KALVO_SOURCE_DIR="${CMAKE_SOURCE_DIR}" KALVO_BINARY_DIR="${CMAKE_BINARY_DIR}")
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

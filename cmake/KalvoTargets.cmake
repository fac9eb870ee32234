# The kinds of target the rooms are made of.

# kalvo_room(<name> [MOC] SOURCES <files...> LINK <targets...>)
# A static library whose headers are included by their path from the project's root. MOC is for
# the rooms whose classes are Q_OBJECTs.
function(kalvo_room name)
  cmake_parse_arguments(ROOM "MOC" "" "SOURCES;LINK" ${ARGN})
  add_library(${name} STATIC ${ROOM_SOURCES})
  set_target_properties(${name} PROPERTIES AUTOMOC ${ROOM_MOC})
  target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR})
  target_link_libraries(${name} PUBLIC ${ROOM_LINK})
endfunction()

# kalvo_test(<name> SOURCES <files...> LINK <targets...>)
# One test program of GoogleTest cases, run on Qt's offscreen platform. Its main comes from
# tests/support and starts a QApplication, so that widgets and the event loop are there.
add_custom_target(kalvo_tests)
function(kalvo_test name)
  cmake_parse_arguments(TEST "" "" "SOURCES;LINK" ${ARGN})
  add_executable(${name} ${TEST_SOURCES})
  target_link_libraries(${name} PRIVATE ${TEST_LINK} kalvo_test_support)
  target_compile_definitions(${name} PRIVATE
    KALVO_SOURCE_DIR="${CMAKE_SOURCE_DIR}" KALVO_BINARY_DIR="${CMAKE_BINARY_DIR}")
  # A test runs each of its lines about once: optimising them takes longer than they do.
  target_compile_options(${name} PRIVATE -O0)
  add_dependencies(kalvo_tests ${name})
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8" TIMEOUT 100)
endfunction()

# kalvo_benchmark(<name> SOURCES <files...> LINK <targets...>)
# A Google Benchmark program. It is built with the tests so that it cannot rot, and run by hand.
function(kalvo_benchmark name)
  cmake_parse_arguments(BENCH "" "" "SOURCES;LINK" ${ARGN})
  add_executable(${name} ${BENCH_SOURCES})
  target_link_libraries(${name} PRIVATE ${BENCH_LINK} benchmark::benchmark_main)
  target_compile_definitions(${name} PRIVATE KALVO_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
endfunction()

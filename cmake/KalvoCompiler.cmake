# How every target of the project is compiled: C++20 without extensions, warnings as errors,
# ccache where it is installed, sanitizers where a preset asks for them.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)

if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release)
endif()

set(KALVO_SANITIZE "" CACHE STRING "Sanitizers to build with, as -fsanitize names them")

add_compile_options(
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual
  -Werror -Werror=missing-field-initializers)
# RE2 asks for it, and precompiled headers want the same for everybody.
add_compile_options(-pthread)
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
  # g++ leaves changes of sign out of -Wconversion.
  add_compile_options(-Wno-sign-conversion)
endif()
if(KALVO_SANITIZE)
  add_compile_options(-fsanitize=${KALVO_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${KALVO_SANITIZE})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # g++ 12 sees uninitialized members in std::optional and std::variant, and copies beyond short
    # strings, that only its own sanitizer instrumentation makes it lose track of.
    add_compile_options(-Wno-maybe-uninitialized -Wno-array-bounds -Wno-stringop-overflow)
  endif()
endif()

find_program(KALVO_CCACHE ccache)
if(KALVO_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # Sloppiness is what ccache asks for to cache compilations that use precompiled headers.
  set(CMAKE_CXX_COMPILER_LAUNCHER
    ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros
    CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1 ${KALVO_CCACHE})
endif()

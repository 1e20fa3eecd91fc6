# Language level, optimisation, warnings and sanitizers of everything that is built here.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_STANDARD 99)
set(CMAKE_C_STANDARD_REQUIRED ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}")

# What nobody said how to optimise is optimised: without, decoding is more than ten times slower.
set(navframe_optimise OFF)
get_property(navframe_many_configs GLOBAL PROPERTY GENERATOR_IS_MULTI_CONFIG)
if(NOT navframe_many_configs
   AND NOT CMAKE_BUILD_TYPE
   AND NOT CMAKE_CXX_FLAGS MATCHES "(^| )-O")
  if(PROJECT_IS_TOP_LEVEL)
    set(CMAKE_BUILD_TYPE
        Release
        CACHE STRING "Debug, Release, RelWithDebInfo or MinSizeRel" FORCE)
  else()
    set(navframe_optimise ON) # the library alone; the rest of the build is its host's
  endif()
endif()

# What the C++ compiler links by itself and the C compiler does not.
set(navframe_cxx_runtime ${CMAKE_CXX_IMPLICIT_LINK_LIBRARIES})
list(REMOVE_ITEM navframe_cxx_runtime ${CMAKE_C_IMPLICIT_LINK_LIBRARIES})
list(REMOVE_DUPLICATES navframe_cxx_runtime)

# Products and sums are rounded apart on every machine, so that all of them give the same records,
# files and samples.
if(NOT MSVC)
  add_compile_options(-ffp-contract=off)
endif()

option(NAVFRAME_SANITIZE "Build with address and undefined-behaviour sanitizers" OFF)
option(NAVFRAME_WERROR "Treat warnings as errors" OFF)

add_library(navframe_warnings INTERFACE)
if(NOT MSVC)
  target_compile_options(navframe_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow
                                                     $<$<BOOL:${NAVFRAME_WERROR}>:-Werror>)
  # GCC 12 warns of std::string's own copies there.
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(navframe_warnings INTERFACE -Wno-restrict)
  endif()
endif()

if(NAVFRAME_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

if(NAVFRAME_FUZZ)
  set(sanitizers -fsanitize=address,undefined,float-cast-overflow,implicit-conversion)
  add_compile_options(
    -fsanitize=fuzzer-no-link ${sanitizers} -fno-sanitize-recover=all -fno-omit-frame-pointer
    "-fsanitize-ignorelist=${PROJECT_SOURCE_DIR}/fuzz/ignorelist.txt")
  add_link_options(${sanitizers})
endif()

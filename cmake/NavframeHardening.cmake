# What distributions build with, for optimised builds of a checkout of its own: what the compiler
# knows of it, and what the flags given to CMake do not already decide. A distribution's own flags
# stay as they are, as its builds are of no type that is named here. Sanitizers have checks of their
# own, and meet library functions that they do not know behind fortified ones.
option(NAVFRAME_HARDENING "Harden optimised builds as distributions do" ${PROJECT_IS_TOP_LEVEL})

set(navframe_given "")
foreach(flags C_FLAGS CXX_FLAGS CXX_FLAGS_RELEASE EXE_LINKER_FLAGS SHARED_LINKER_FLAGS)
  string(APPEND navframe_given " ${CMAKE_${flags}}")
endforeach()
if(NOT NAVFRAME_HARDENING
   OR NAVFRAME_SANITIZE
   OR NAVFRAME_FUZZ
   OR MSVC
   OR navframe_given MATCHES " -fsanitize")
  return()
endif()

include(CheckCXXCompilerFlag)
include(CheckCXXSourceCompiles)
include(CheckLinkerFlag)
include(CheckPIESupported)
set(navframe_hardened "$<CONFIG:Release,RelWithDebInfo,MinSizeRel>")

# Of what a feature is called in flags, some may already say what is wanted of it.
function(navframe_compile feature flag)
  string(MAKE_C_IDENTIFIER "NAVFRAME_HAS_${feature}" has)
  check_cxx_compiler_flag("${flag}" ${has})
  if(${has} AND NOT navframe_given MATCHES "${feature}")
    add_compile_options("$<${navframe_hardened}:${flag}>")
  endif()
endfunction()
navframe_compile(stack-protector -fstack-protector-strong)
navframe_compile(stack-clash-protection -fstack-clash-protection)
navframe_compile(cf-protection -fcf-protection) # x86
navframe_compile(branch-protection -mbranch-protection=standard) # ARM

# Level 3 checks buffers whose size is known at run time alone; where the C library has no such
# level it says so.
if(NOT navframe_given MATCHES "_FORTIFY_SOURCE")
  set(CMAKE_REQUIRED_FLAGS "-O2 -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3")
  check_cxx_source_compiles(
    "#include <cstddef>
     #if !defined(__USE_FORTIFY_LEVEL) || __USE_FORTIFY_LEVEL < 3
     #error level
     #endif
     int main() { return 0; }"
    NAVFRAME_HAS_FORTIFY_3)
  unset(CMAKE_REQUIRED_FLAGS)
  set(level $<IF:$<BOOL:${NAVFRAME_HAS_FORTIFY_3}>,3,2>)
  add_compile_options("$<${navframe_hardened}:-U_FORTIFY_SOURCE>"
                      "$<${navframe_hardened}:-D_FORTIFY_SOURCE=${level}>")
endif()

foreach(keyword relro now noexecstack)
  check_linker_flag(CXX "-Wl,-z,${keyword}" NAVFRAME_HAS_Z_${keyword})
  if(NAVFRAME_HAS_Z_${keyword} AND NOT navframe_given MATCHES "-z,(no)?${keyword}|-z,lazy")
    add_link_options("$<${navframe_hardened}:LINKER:-z,${keyword}>")
  endif()
endforeach()

check_pie_supported(LANGUAGES CXX)
if(NOT DEFINED CMAKE_POSITION_INDEPENDENT_CODE)
  set(CMAKE_POSITION_INDEPENDENT_CODE ON)
endif()

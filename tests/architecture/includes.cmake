# cmake -DROOT=... -DTSORT=... -P includes.cmake
# Dependencies between folders run one way, as docs/architecture.md draws them.

# The folders of src/, by layer. A folder includes its own headers, the public ones and those of
# layers below; folders of one layer do not know each other.
set(layers "base" "catalogue" "framing,output,time" "observations,ephemeris" "nmea,rtcm,ubx,frame55aa,asciilog,render" "stream" "api")

set(folders)
set(rank 0)
foreach(layer IN LISTS layers)
  string(REPLACE "," ";" names "${layer}")
  foreach(name IN LISTS names)
    list(APPEND folders ${name})
    set(rank_${name} ${rank})
  endforeach()
  math(EXPR rank "${rank} + 1")
endforeach()

set(faults 0)
set(edges "")
function(fault text)
  message("${text}")
  math(EXPR more "${faults} + 1")
  set(faults ${more} PARENT_SCOPE)
endfunction()

# The paths that a file includes, in the order of its lines.
function(included_by file out)
  file(STRINGS "${file}" lines REGEX "^[ \t]*#[ \t]*include")
  list(TRANSFORM lines REPLACE "^[ \t]*#[ \t]*include[ \t]*[<\"]([^>\"]+).*$" "\\1")
  set(${out} ${lines} PARENT_SCOPE)
endfunction()

# src/: layers.
file(GLOB_RECURSE sources RELATIVE "${ROOT}/src" "${ROOT}/src/*.h" "${ROOT}/src/*.cpp")
list(LENGTH sources count)
if(count EQUAL 0)
  message(FATAL_ERROR "no sources below ${ROOT}/src")
endif()
foreach(source IN LISTS sources)
  string(REGEX REPLACE "/.*" "" from "${source}")
  if(NOT DEFINED rank_${from})
    fault("src/${source}: ${from} has no layer yet; give it one in ${CMAKE_CURRENT_LIST_FILE}")
    continue()
  endif()
  included_by("${ROOT}/src/${source}" paths)
  foreach(path IN LISTS paths)
    string(APPEND edges "${source} ${path}\n")
    string(REGEX REPLACE "/.*" "" to "${path}")
    if(NOT path MATCHES "/")
      if(EXISTS "${ROOT}/src/${from}/${path}")
        fault("src/${source}: ${path} is to be included as ${from}/${path}")
      endif()
    elseif(DEFINED rank_${to} AND NOT to STREQUAL from AND NOT rank_${to} LESS rank_${from})
      fault("src/${source}: ${from} must not know ${path}")
    endif()
  endforeach()
endforeach()

# The public headers stand on nothing but themselves and the standard library; tools, the Python
# package and examples on the public headers. Their own headers are included without a folder.
file(GLOB_RECURSE outsiders RELATIVE "${ROOT}" "${ROOT}/include/*" "${ROOT}/tools/*.h"
     "${ROOT}/tools/*.cpp" "${ROOT}/python/src/*.h" "${ROOT}/python/src/*.cpp"
     "${ROOT}/examples/*.h" "${ROOT}/examples/*.c" "${ROOT}/examples/*.cpp")
foreach(outsider IN LISTS outsiders)
  included_by("${ROOT}/${outsider}" paths)
  foreach(path IN LISTS paths)
    if(outsider MATCHES "^include/")
      string(APPEND edges "${outsider} include/${path}\n")
    endif()
    string(REGEX REPLACE "/.*" "" to "${path}")
    if(DEFINED rank_${to} OR path MATCHES "\\.\\./|^src/")
      fault("${outsider}: ${path} is no public header")
    endif()
  endforeach()
endforeach()

# No header includes itself, however far the way around.
if(TSORT)
  set(edge_file "${CMAKE_CURRENT_BINARY_DIR}/include_edges.txt")
  file(WRITE "${edge_file}" "${edges}")
  execute_process(
    COMMAND "${TSORT}" "${edge_file}"
    RESULT_VARIABLE result
    OUTPUT_QUIET
    ERROR_VARIABLE cycle)
  if(NOT result EQUAL 0)
    fault("headers that include each other:\n${cycle}")
  endif()
endif()

if(faults)
  message(FATAL_ERROR "${faults} includes against the layers")
endif()

# cmake -DROOT=... -P readme.cmake
# The hosts that the README shows are those that the installation check builds and runs.
file(READ "${ROOT}/README.md" readme)
foreach(shown "c:examples/decode.c" "cpp:examples/find_package/track.cpp")
  string(REGEX MATCH "^([a-z]+):(.*)$" parts "${shown}")
  file(READ "${ROOT}/${CMAKE_MATCH_2}" host)
  string(FIND "${readme}" "```${CMAKE_MATCH_1}\n${host}```" at)
  if(at EQUAL -1)
    message(FATAL_ERROR "README.md does not show ${CMAKE_MATCH_2} as it is")
  endif()
endforeach()

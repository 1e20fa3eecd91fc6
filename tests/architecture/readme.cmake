# cmake -DROOT=... -P readme.cmake
# The host that the README shows is the one that the installation check builds and runs.
file(READ "${ROOT}/README.md" readme)
file(READ "${ROOT}/examples/decode.c" host)
string(FIND "${readme}" "```c\n${host}```" at)
if(at EQUAL -1)
  message(FATAL_ERROR "README.md does not show examples/decode.c as it is")
endif()

# cmake -DNM=... -DLIBRARY=... -DLIST=... -P exports.cmake
# The dynamic symbol table of the library holds the names of the list, and no other.
execute_process(
  COMMAND "${NM}" -D --defined-only --format=posix "${LIBRARY}"
  OUTPUT_VARIABLE table
  COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "[^\n]+" lines "${table}")
set(actual ${lines})
list(TRANSFORM actual REPLACE " .*$" "")

file(STRINGS "${LIST}" wanted REGEX "^[^#]")

set(surplus ${actual})
list(REMOVE_ITEM surplus ${wanted})
set(missing ${wanted})
list(REMOVE_ITEM missing ${actual})
foreach(name IN LISTS surplus)
  message("exported, but not in ${LIST}: ${name}")
endforeach()
foreach(name IN LISTS missing)
  message("not exported: ${name}")
endforeach()
if(surplus OR missing)
  message(FATAL_ERROR "${LIBRARY} does not export what it should")
endif()

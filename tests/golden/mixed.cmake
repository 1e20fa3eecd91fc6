# cmake -DTOOL=... -DROOT=... -DFOLDER=... -P mixed.cmake
# In chunks of any size the tool prints the golden file; and what scripts/run shows.
file(STRINGS "${ROOT}/scripts/lib.sh" first REGEX "^sample_options=")
string(REGEX REPLACE "^sample_options=\"(.*)\"$" "\\1" first "${first}")
separate_arguments(first)
execute_process(COMMAND "${TOOL}" "${ROOT}/samples/mixed.bin" ${first}
                OUTPUT_FILE "${FOLDER}/first.txt" COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${CMAKE_COMMAND}" -E compare_files "${FOLDER}/first.txt"
                        "${ROOT}/samples/first.txt" COMMAND_ERROR_IS_FATAL ANY)

set(golden "${ROOT}/samples/mixed.txt")
foreach(chunk 65536 1 37)
  set(printed "${FOLDER}/mixed-${chunk}.txt")
  execute_process(COMMAND "${TOOL}" --chunk ${chunk} "${ROOT}/samples/mixed.bin"
                  OUTPUT_FILE "${printed}" ERROR_VARIABLE said RESULT_VARIABLE status)
  if(NOT status EQUAL 0 OR NOT said STREQUAL "")
    message(FATAL_ERROR "navframe says ${status} with chunks of ${chunk}: ${said}")
  endif()
  execute_process(COMMAND "${CMAKE_COMMAND}" -E compare_files "${printed}" "${golden}"
                  RESULT_VARIABLE differs)
  if(NOT differs EQUAL 0)
    message(FATAL_ERROR "With chunks of ${chunk} not the golden file: diff ${golden} ${printed}")
  endif()
endforeach()

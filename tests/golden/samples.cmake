# cmake -DGENERATOR=... -DROOT=... -DFOLDER=... -P samples.cmake
execute_process(COMMAND "${GENERATOR}" "${FOLDER}" COMMAND_ERROR_IS_FATAL ANY)
foreach(sample drive.nmea mixed.bin)
  execute_process(COMMAND "${CMAKE_COMMAND}" -E compare_files "${FOLDER}/${sample}"
                          "${ROOT}/samples/${sample}" RESULT_VARIABLE differs)
  if(NOT differs EQUAL 0)
    message(FATAL_ERROR "samples/${sample} is not what the generator writes: scripts/renew-golden")
  endif()
endforeach()

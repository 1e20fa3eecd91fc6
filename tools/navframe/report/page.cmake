# The page of `navframe report`: the files of this folder and uPlot's, which comes by npm, become
# one source file. Builds without a network bring a folder of that package, or do without.
set(NAVFRAME_REPORT
    AUTO
    CACHE STRING "Build navframe report: AUTO where uPlot is found, ON or OFF")
set_property(CACHE NAVFRAME_REPORT PROPERTY STRINGS AUTO ON OFF)

set(uplot_script "dist/uPlot.iife.min.js")
if(NAVFRAME_UPLOT_DIR AND NOT EXISTS "${NAVFRAME_UPLOT_DIR}/${uplot_script}")
  unset(NAVFRAME_UPLOT_DIR CACHE)
endif()
if(NAVFRAME_REPORT)
  find_path(
    NAVFRAME_UPLOT_DIR
    NAMES "${uplot_script}"
    PATHS "${PROJECT_SOURCE_DIR}/build/npm/node_modules/uplot" /usr/share/nodejs/uplot
    DOC "Folder of the npm package uplot"
    NO_DEFAULT_PATH)
  mark_as_advanced(NAVFRAME_UPLOT_DIR)
endif()
if(NOT NAVFRAME_REPORT)
  return()
endif()
if(NOT NAVFRAME_UPLOT_DIR)
  if(NAVFRAME_REPORT STREQUAL "ON")
    message(FATAL_ERROR "navframe: reports need uPlot: run scripts/provide-uplot (npm), or set NAVFRAME_UPLOT_DIR")
  endif()
  message(STATUS "navframe: no reports without uPlot (scripts/provide-uplot, npm; or NAVFRAME_UPLOT_DIR)")
  return()
endif()

set(parts page.html page.css format.js elements.js charts.js timeline.js track.js sky.js tables.js
          page.js)
list(TRANSFORM parts PREPEND "${CMAKE_CURRENT_LIST_DIR}/")
set(package dist/uPlot.iife.min.js dist/uPlot.min.css LICENSE)
list(TRANSFORM package PREPEND "${NAVFRAME_UPLOT_DIR}/")
set(page_source "${CMAKE_CURRENT_BINARY_DIR}/report_page.cpp")
add_custom_command(
  OUTPUT "${page_source}"
  COMMAND
    "${CMAKE_COMMAND}" "-DPARTS=${parts}" "-DUPLOT=${NAVFRAME_UPLOT_DIR}"
    "-DVERSION=${PROJECT_VERSION}" "-DOUTPUT=${page_source}" -P
    "${CMAKE_CURRENT_LIST_DIR}/embed.cmake"
  DEPENDS ${parts} ${package} "${CMAKE_CURRENT_LIST_DIR}/embed.cmake"
  COMMENT "Making the page of reports"
  VERBATIM)
target_sources(navframe_tool PRIVATE "${page_source}")
set_property(
  SOURCE commands/report.cpp command_line/manual.cpp
  APPEND
  PROPERTY COMPILE_DEFINITIONS NAVFRAME_WITH_REPORT)
